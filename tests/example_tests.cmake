# The examples, run as their users would. They need libraries that nothing else here does, so they
# belong to the tests; of those libraries' code a sanitizer knows nothing.
add_subdirectory(${PROJECT_SOURCE_DIR}/examples/http_server ${PROJECT_BINARY_DIR}/examples/http_server)
add_subdirectory(${PROJECT_SOURCE_DIR}/examples/comparison ${PROJECT_BINARY_DIR}/examples/comparison)

add_test(NAME Examples.ServerAnswersInEachLanguageWhileItsTextsAreReplaced
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/examples/http_server_test.py
    $<TARGET_FILE:http_server> ${PROJECT_SOURCE_DIR}/examples/catalogues/resources)
set_tests_properties(Examples.ServerAnswersInEachLanguageWhileItsTextsAreReplaced PROPERTIES
  ${test_properties})

foreach(library IN ITEMS kxxlate gettext icu boost_locale)
  foreach(row IN ITEMS "fr|Bienvenue sur alpha, Ann." "xx|Welcome to alpha, Ann.")
    string(REPLACE "|" ";" row "${row}")
    list(GET row 0 locale)
    list(GET row 1 line)
    set(test Examples.AllLibrariesGreetAlike/${library}.${locale})
    add_test(NAME ${test} COMMAND greet_with_${library} ${locale})
    set_tests_properties(${test} PROPERTIES ${test_properties} PASS_REGULAR_EXPRESSION "^${line}\n$"
      ENVIRONMENT TAVI_XLATE_ROOT=${PROJECT_SOURCE_DIR}/examples/comparison/catalogues)
  endforeach()
endforeach()

add_test(NAME Documents.ShowTheProgramsOfTheComparison
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_comparison.py)
set_tests_properties(Documents.ShowTheProgramsOfTheComparison PROPERTIES ${test_properties})
