# Variable insertion, and messages formatted by their keys.
kxxlate_unit_test(variable_insertion_test
  format/argument_walker_test.cpp
  format/conversion_test.cpp
  format/decimal_digits_test.cpp
  format/format_pieces_test.cpp
  format/insert_variable_model_test.cpp
  format/insert_variable_test.cpp
  format/insert_variable_va_buffer_test.cpp
  format/insert_variable_va_order_test.cpp
  format/insert_variable_va_test.cpp
  format/inserted.h
  format/insertion_aliasing_test.cpp
  format/insertion_limits_test.cpp
  format/marked_text_test.cpp
  format/plain_fraction_test.cpp
  format/printf_flags_test.cpp
  format/printf_fraction_model_test.cpp
  format/printf_lengths_test.cpp
  format/printf_percent_test.cpp
  format/printf_piece_model_test.cpp
  format/printf_piece_test.cpp
  format/printf_same_bytes_test.cpp
  format/result_text_test.cpp
  format/short_list_test.cpp
  format/variable_cases.h
  format/variable_copy_test.cpp
  format/variable_memory_test.cpp
  format/varied_calls.h
  format/wide_text_test.cpp
  support/failing_new.cpp
  support/failing_new.h)
if(WIN32)
  target_sources(variable_insertion_test PRIVATE
    format/decimal_point_windows_test.cpp
    format/long_double_windows_test.cpp
    format/wide_text_windows_test.cpp)
else()
  target_sources(variable_insertion_test PRIVATE
    format/decimal_point_posix_test.cpp
    format/long_double_posix_test.cpp
    format/wide_text_posix_test.cpp)
endif()

kxxlate_unit_test(message_test
  core/format_arguments_test.cpp
  core/format_fixture.h
  core/format_test.cpp
  core/message_copy_test.cpp
  core/message_text_test.cpp
  core/xlate_fields_test.cpp
  platform/admin_locale_test.cpp)

kxxlate_host_program(format_host
  process/format_host.cpp
  process/host_files.cpp
  process/host_steps.cpp
  process/host_steps.h)
target_link_libraries(format_host PRIVATE KxXlate Threads::Threads)

# As hosts see the library, so that the version is found as they find it.
kxxlate_host_test(format_process_test
  core/product_version_test.cpp
  process/format_test.cpp)
add_dependencies(format_process_test format_host)
target_compile_definitions(format_process_test PRIVATE
  KXXLATE_FORMAT_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:format_host>")

# What the document says of markers, run against the library.
kxxlate_host_test(markers_document_test docs/markers_document_test.cpp)
target_compile_definitions(markers_document_test PRIVATE
  KXXLATE_MARKERS_DOCUMENT="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}${PROJECT_SOURCE_DIR}/docs/markers.md")
