# Where the bundles lie, where the log lies, and the platform below both.
kxxlate_unit_test(search_test
  bundles/foreign_root_search_test.cpp
  bundles/resource_directory_search_test.cpp
  bundles/resource_directory_test.cpp
  support/fake_machine.h)

kxxlate_unit_test(log_test
  log/chosen_log_test.cpp
  log/held_log_test.cpp
  log/log_choice_test.cpp
  log/problem_sink_test.cpp
  log/translation_log_test.cpp
  log/translation_log_threads_test.cpp
  support/lasting_log.h)
if(NOT WIN32)
  target_sources(log_test PRIVATE
    log/translation_log_posix_test.cpp
    log/untrusted_directory_posix_test.cpp)
endif()

kxxlate_unit_test(platform_test
  platform/entry_list.h
  platform/environment_test.cpp
  platform/executable_path_test.cpp
  platform/file_streams_test.cpp
  platform/files_test.cpp
  platform/passing_failures_test.cpp
  platform/stream_bytes.h
  platform/unsorted_traversal_test.cpp)
if(WIN32)
  target_sources(platform_test PRIVATE
    platform/file_place_windows_test.cpp
    platform/files_windows_test.cpp
    platform/passing_failures_windows_test.cpp
    platform/long_prefix_windows_test.cpp
    platform/standard_stream_windows_test.cpp
    platform/wide_path_windows_test.cpp)
else()
  target_sources(platform_test PRIVATE
    platform/file_effects_posix_test.cpp
    platform/file_streams_posix_test.cpp
    platform/files_posix_test.cpp
    platform/passing_failures_posix_test.cpp
    platform/standard_stream_posix_test.cpp)
endif()

if(NOT WIN32)
  # Stands in front of the system's functions, so apart from all the others.
  kxxlate_unit_test(system_calls_test
    bundles/half_listed_directory_posix_test.cpp
    platform/entry_list.h
    platform/stream_bytes.h
    platform/system_calls_posix_test.cpp
    support/system_calls.h
    support/system_calls_posix.cpp)
  target_link_libraries(system_calls_test PRIVATE ${CMAKE_DL_LIBS})
endif()

kxxlate_host_test(process_test
  process/log_location_test.cpp
  process/log_rotation_test.cpp
  process/log_switch_test.cpp
  process/resource_replacement_test.cpp
  process/resource_search.h
  process/resource_search_test.cpp
  process/unloading_test.cpp)
if(WIN32)
  target_sources(process_test PRIVATE
    process/windows_search_test.cpp
    process/windows_streams_test.cpp
    process/windows_variables_test.cpp)
  kxxlate_host_program(streams_host process/streams_host_win32.cpp)
  target_link_libraries(streams_host PRIVATE KxXlate)
  add_dependencies(process_test streams_host)
  target_compile_definitions(process_test PRIVATE
    KXXLATE_STREAMS_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:streams_host>")
else()
  target_sources(process_test PRIVATE
    process/closed_streams_posix_test.cpp
    process/linked_host_posix_test.cpp
    process/log_switch_posix_test.cpp
    process/long_path_posix_test.cpp
    process/resource_search_posix_test.cpp
    process/service_rights_posix_test.cpp
    process/upgraded_library_posix_test.cpp
    support/set_user_id_posix.h)
  target_compile_definitions(process_test PRIVATE
    KXXLATE_LIBRARY_NAME="$<TARGET_SONAME_FILE_NAME:KxXlate>")
endif()
add_dependencies(process_test unloading_host)
target_compile_definitions(process_test PRIVATE
  KXXLATE_LIBRARY="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:KxXlate>"
  KXXLATE_UNLOADING_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:unloading_host>")
if(KXXLATE_SANITIZE)
  # This check names the translator's type, which a host that does not link the library cannot.
  target_compile_options(unloading_host PRIVATE -fno-sanitize=vptr)
endif()

kxxlate_host_program(ending_host process/ending_host.cpp)
target_link_libraries(ending_host PRIVATE KxXlate Threads::Threads)

kxxlate_host_test(ending_test process/ending_test.cpp)
add_dependencies(ending_test ending_host)
target_compile_definitions(ending_test PRIVATE
  KXXLATE_ENDING_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:ending_host>")
