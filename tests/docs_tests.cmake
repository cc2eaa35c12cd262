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

# In the standard that the headers promise to need, and in a later one.
foreach(standard IN ITEMS 17 20)
  add_test(NAME Documents.SamplesCompileInCxx${standard}
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_samples.py
      ${CMAKE_CXX_COMPILER} ${standard})
  set_tests_properties(Documents.SamplesCompileInCxx${standard} PROPERTIES ${test_properties})
endforeach()

add_test(NAME Documents.LinksLeadToWhatIsThere
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_links.py)
add_test(NAME Documents.LinksThatLeadNowhereAreFound
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_links_test.py)
set_tests_properties(Documents.LinksLeadToWhatIsThere Documents.LinksThatLeadNowhereAreFound
  PROPERTIES ${test_properties})

# What the documents tell a reader to run is about this system. -B leaves nothing in the sources for
# the modules that the checks share.
if(NOT WIN32)
  set(programs $<TARGET_FILE:kxxlate> $<TARGET_FILE:xlate_host>)
  add_test(NAME Documents.CommandsDoWhatTheyShow
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_commands.py ${programs})
  add_test(NAME Documents.CommandsThatFailAreFound
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/docs/check_commands_test.py
      ${programs})
  set_tests_properties(Documents.CommandsDoWhatTheyShow Documents.CommandsThatFailAreFound
    PROPERTIES ${test_properties})
endif()
