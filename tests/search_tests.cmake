# Where the bundles lie, where the log lies, and the platform below both.
kxxlate_unit_test(search_test
  bundles/resource_directory_search_test.cpp
  bundles/resource_directory_test.cpp
  support/fake_machine.h)

kxxlate_unit_test(log_test
  log/problem_sink_test.cpp
  log/translation_log_failure_test.cpp
  log/translation_log_test.cpp
  log/translation_log_threads_test.cpp
  support/lasting_log.h
  support/special_files.h)

kxxlate_unit_test(platform_test
  platform/environment_test.cpp
  platform/executable_path_test.cpp
  platform/file_streams_test.cpp
  platform/files_test.cpp
  support/special_files.h)

kxxlate_host_test(process_test
  process/log_location_test.cpp
  process/resource_replacement_test.cpp
  process/resource_search_test.cpp
  process/unloading_test.cpp)
add_dependencies(process_test unloading_host)
target_compile_definitions(process_test PRIVATE
  KXXLATE_LIBRARY="$<TARGET_FILE:KxXlate>"
  KXXLATE_UNLOADING_HOST="$<TARGET_FILE:unloading_host>")
if(KXXLATE_SANITIZE)
  # This check names the translator's type, which a host that does not link the library cannot.
  target_compile_options(unloading_host PRIVATE -fno-sanitize=vptr)
endif()
