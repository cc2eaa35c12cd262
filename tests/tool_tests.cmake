# The command-line host and the example catalogues.
kxxlate_host_test(tool_test
  tools/example_host_test.cpp
  tools/kxxlate_test.cpp)
add_dependencies(tool_test kxxlate example_host)
target_compile_definitions(tool_test PRIVATE
  KXXLATE_TOOL="$<TARGET_FILE:kxxlate>"
  KXXLATE_EXAMPLE_HOST="$<TARGET_FILE:example_host>"
  KXXLATE_EXAMPLE_CATALOGUES="${PROJECT_SOURCE_DIR}/examples/catalogues")

kxxlate_unit_test(example_catalogues_test scenarios/example_catalogues_test.cpp)
target_compile_definitions(example_catalogues_test PRIVATE
  KXXLATE_EXAMPLE_CATALOGUES="${PROJECT_SOURCE_DIR}/examples/catalogues")
