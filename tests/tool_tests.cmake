# The command-line host and the example catalogues.
kxxlate_host_test(tool_test
  tools/example_host_test.cpp
  tools/kxxlate_test.cpp)
if(WIN32)
  target_sources(tool_test PRIVATE tools/kxxlate_windows_test.cpp)
endif()
add_dependencies(tool_test kxxlate example_host)
target_compile_definitions(tool_test PRIVATE
  KXXLATE_TOOL="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:kxxlate>"
  KXXLATE_EXAMPLE_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:example_host>"
  KXXLATE_EXAMPLE_CATALOGUES="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/examples/catalogues")

add_test(NAME Kxxlate.AConsoleShowsLettersOfEveryLanguage
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_console.py
    ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:kxxlate>)
set_tests_properties(Kxxlate.AConsoleShowsLettersOfEveryLanguage PROPERTIES ${test_properties})

kxxlate_unit_test(example_catalogues_test scenarios/example_catalogues_test.cpp)
target_compile_definitions(example_catalogues_test PRIVATE
  KXXLATE_EXAMPLE_CATALOGUES="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/examples/catalogues")
