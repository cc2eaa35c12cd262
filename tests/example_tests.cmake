# The examples, run as their users would. They need libraries that nothing else here does, so they
# belong to the tests; of those libraries' code a sanitizer knows nothing.
add_subdirectory(${PROJECT_SOURCE_DIR}/examples/http_server ${PROJECT_BINARY_DIR}/examples/http_server)
add_subdirectory(${PROJECT_SOURCE_DIR}/examples/comparison ${PROJECT_BINARY_DIR}/examples/comparison)

add_test(NAME Examples.ServerAnswersInEachLanguageWhileItsTextsAreReplaced
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/examples/http_server_test.py
    $<TARGET_FILE:http_server> ${PROJECT_SOURCE_DIR}/examples/catalogues/resources)
set_tests_properties(Examples.ServerAnswersInEachLanguageWhileItsTextsAreReplaced PROPERTIES
  ${test_properties})

# As the documents' package brings them.
foreach(example IN ITEMS host http_server comparison)
  set(test Examples.AreBuiltWithTheInstalledLibrary/${example})
  add_test(NAME ${test}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/examples/build_installed.sh ${example}
      ${PROJECT_BINARY_DIR} ${CMAKE_CXX_COMPILER})
  set_tests_properties(${test} PROPERTIES ${test_properties} ENVIRONMENT LC_ALL=C.UTF-8
    DEPENDS Documents.TheTargetDocsMakesThePages)
endforeach()

# kxxlate_greeting_test(NAME LIBRARY LOCALE LINE PROCESS_LOCALE)
function(kxxlate_greeting_test name library locale line process_locale)
  add_test(NAME ${name} COMMAND greet_with_${library} ${locale})
  set_tests_properties(${name} PROPERTIES ${test_properties} PASS_REGULAR_EXPRESSION "^${line}\n$"
    ENVIRONMENT "TAVI_XLATE_ROOT=${PROJECT_SOURCE_DIR}/examples/comparison/catalogues;LC_ALL=${process_locale}")
endfunction()

set(french "Bienvenue sur alpha, Ann.")
set(english "Welcome to alpha, Ann.")
foreach(library IN ITEMS kxxlate gettext icu boost_locale)
  kxxlate_greeting_test(Examples.AllLibrariesGreetAlike/${library}.fr ${library} fr ${french} C.UTF-8)
  kxxlate_greeting_test(Examples.AllLibrariesGreetAlike/${library}.xx ${library} xx ${english} C.UTF-8)
  # The guide tells who answers so.
  set(unknown ${english})
  if(library STREQUAL "icu")
    set(unknown ${french})
  endif()
  kxxlate_greeting_test(Examples.OneLibraryAnswersInTheLanguageOfTheProcess/${library} ${library} xx
    ${unknown} fr_FR.UTF-8)
endforeach()

add_test(NAME Documents.ShowTheProgramsOfTheComparison
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_comparison.py)
set_tests_properties(Documents.ShowTheProgramsOfTheComparison PROPERTIES ${test_properties})
