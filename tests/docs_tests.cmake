# The documents, checked by running what they say.
kxxlate_unit_test(docs_test
  docs/lang_document_test.cpp
  docs/lang_rollout_document_test.cpp
  docs/language_document.h
  docs/markdown_parts.cpp
  docs/markdown_parts.h
  docs/properties_document_test.cpp)
set_source_files_properties(docs/markdown_parts.cpp PROPERTIES COMPILE_DEFINITIONS
  "KXXLATE_DOCUMENTS=\"${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/docs\"")

# In the standard that the headers promise to need, and in a later one. Run where the library is of
# this system. -B leaves nothing in the sources for the modules that the checks share.
set(sample_library "")
if(NOT WIN32)
  set(sample_library $<TARGET_FILE:KxXlate>)
  if(KXXLATE_SANITIZE)
    set(sample_options -fsanitize=${KXXLATE_SANITIZE} -fno-sanitize-recover=all)
  endif()
  add_test(NAME Documents.SamplesThatFailAreFound
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_samples_test.py
      ${CMAKE_CXX_COMPILER} ${sample_library} ${sample_options})
  set_tests_properties(Documents.SamplesThatFailAreFound PROPERTIES ${test_properties})
endif()
foreach(standard IN ITEMS 17 20)
  add_test(NAME Documents.SamplesRunInCxx${standard}
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_samples.py
      ${CMAKE_CXX_COMPILER} ${standard} ${sample_library} ${sample_options})
  set_tests_properties(Documents.SamplesRunInCxx${standard} PROPERTIES ${test_properties})
endforeach()

add_test(NAME Documents.LinksLeadToWhatIsThere
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_links.py)
add_test(NAME Documents.LinksThatLeadNowhereAreFound
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_links_test.py)
# Who has the package has neither the sources nor what is around them.
add_test(NAME Documents.LinksLeadToWhatIsInstalled
  COMMAND sh -c "rm -rf \"$1\" && \"$0\" --install . --component documentation --prefix \"$1\" &&
    exec \"$2\" \"$3\" \"$1/${CMAKE_INSTALL_DOCDIR}\""
    ${CMAKE_COMMAND} ${PROJECT_BINARY_DIR}/installed_documents ${Python3_EXECUTABLE}
    ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_links.py
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
set_tests_properties(Documents.LinksLeadToWhatIsThere Documents.LinksLeadToWhatIsInstalled
  Documents.LinksThatLeadNowhereAreFound PROPERTIES ${test_properties})

# What the documents tell a reader to run is about this system.
if(NOT WIN32)
  set(programs $<TARGET_FILE:kxxlate> $<TARGET_FILE:xlate_host>)
  add_test(NAME Documents.CommandsDoWhatTheyShow
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_commands.py ${programs})
  add_test(NAME Documents.CommandsThatFailAreFound
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_commands_test.py
      ${programs})
  add_test(NAME Documents.TheManualPageTellsOfAllThatTheToolHas
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_manual.py
      $<TARGET_FILE:kxxlate>)
  set_tests_properties(Documents.CommandsDoWhatTheyShow Documents.CommandsThatFailAreFound
    Documents.TheManualPageTellsOfAllThatTheToolHas PROPERTIES ${test_properties})
endif()

# The pages are the same on every system, and from every build.
if(NOT WIN32 AND NOT KXXLATE_SANITIZE)
  find_package(Doxygen REQUIRED)
  add_test(NAME Documents.PagesOfHeadersAreMadeWithoutAWarningAndTheSameEverywhere
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_pages.py
      ${DOXYGEN_EXECUTABLE})
  add_test(NAME Documents.TheTargetDocsMakesThePages
    COMMAND sh -c "\"$0\" --build . --target docs && test -s docs/html/classCKxXlate.html"
      ${CMAKE_COMMAND}
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
  set_tests_properties(Documents.PagesOfHeadersAreMadeWithoutAWarningAndTheSameEverywhere
    Documents.TheTargetDocsMakesThePages PROPERTIES ${test_properties})
  set_tests_properties(Documents.LinksLeadToWhatIsInstalled PROPERTIES
    DEPENDS Documents.TheTargetDocsMakesThePages)
endif()
