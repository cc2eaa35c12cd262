# Tests of the zip for Windows and of what is in it.
add_test(NAME Library.AndToolCanBeProtectedAndTellNoTimeOfTheirMaking
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_windows_protection.py
    $<TARGET_FILE:KxXlate> $<TARGET_FILE:kxxlate>)

add_test(NAME WindowsZip.HasTheSameBytesWheneverItIsMadeAndNothingForDebuggers
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_windows_zip.py
    ${PROJECT_BINARY_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_windows_protection.py)

add_test(NAME WindowsZip.HasAnExampleThatIsBuiltAndRun
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/build_packed_example.sh ${PROJECT_BINARY_DIR}
    ${CMAKE_TOOLCHAIN_FILE} -- ${CMAKE_CROSSCOMPILING_EMULATOR})

set_tests_properties(
  Library.AndToolCanBeProtectedAndTellNoTimeOfTheirMaking
  WindowsZip.HasTheSameBytesWheneverItIsMadeAndNothingForDebuggers
  WindowsZip.HasAnExampleThatIsBuiltAndRun
  PROPERTIES ${test_properties})
