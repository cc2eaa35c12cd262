# The command-line host and the example catalogues.
kxxlate_host_test(tool_test
  tools/example_host_test.cpp
  tools/kxxlate_test.cpp)
if(WIN32)
  target_sources(tool_test PRIVATE
    tools/kxxlate_file_windows_test.cpp
    tools/kxxlate_windows_test.cpp)
  target_link_libraries(tool_test PRIVATE version)
endif()
add_dependencies(tool_test kxxlate example_host)
target_compile_definitions(tool_test PRIVATE
  KXXLATE_TOOL="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:kxxlate>"
  KXXLATE_EXAMPLE_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:example_host>"
  KXXLATE_EXAMPLE_CATALOGUES="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/examples/catalogues")

set(console_tests Kxxlate.AConsoleShowsLettersOfEveryLanguage)
# -B leaves nothing in the sources for the module that both scripts share.
add_test(NAME Kxxlate.AConsoleShowsLettersOfEveryLanguage
  COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_console.py
    ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:kxxlate>)
if(WIN32)
  kxxlate_host_program(console_host tools/console_host_win32.cpp)
  target_link_libraries(console_host PRIVATE KxXlate)
  list(APPEND console_tests Library.WritesToAConsoleWhateverItsCodePage)
  add_test(NAME Library.WritesToAConsoleWhateverItsCodePage
    COMMAND ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_code_page.py
      ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:console_host>)
endif()
set_tests_properties(${console_tests} PROPERTIES ${test_properties})

kxxlate_unit_test(example_catalogues_test scenarios/example_catalogues_test.cpp)
target_compile_definitions(example_catalogues_test PRIVATE
  KXXLATE_EXAMPLE_CATALOGUES="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/examples/catalogues")
