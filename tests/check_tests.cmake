# Tests of the tree and of the finished library that are not written in C++.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

add_test(NAME Sources.KeepTheirLayers
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_includes.py)

add_test(NAME Library.ExportsTheAgreedNamesAndNoOthers
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_exports.py
    ${CMAKE_NM} $<TARGET_FILE:KxXlate> ${CMAKE_CURRENT_SOURCE_DIR}/abi/exports_linux.txt)

set(consumer_flags "")
if(KXXLATE_SANITIZE)
  set(consumer_flags "-fsanitize=${KXXLATE_SANITIZE}")
endif()
add_test(NAME Library.IsFoundByAnotherProjectOnceInstalled
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/consume_installed.sh ${CMAKE_COMMAND} ${PROJECT_BINARY_DIR}
    ${CMAKE_CURRENT_SOURCE_DIR}/abi/consumer ${CMAKE_CXX_COMPILER} "${consumer_flags}")

set_tests_properties(Sources.KeepTheirLayers Library.ExportsTheAgreedNamesAndNoOthers
  Library.IsFoundByAnotherProjectOnceInstalled PROPERTIES TIMEOUT 120)
