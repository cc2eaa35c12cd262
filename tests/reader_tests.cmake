# What turns bytes into texts: the insertion of values, the reader of .properties files, and the
# text functions below both.
kxxlate_unit_test(format_test
  format/caller_buffer_test.cpp
  format/insert_entries_test.cpp
  format/insertion_buffer_test.cpp
  format/insertion_model_test.cpp
  format/positional_insertion_test.cpp)

kxxlate_unit_test(bundle_reader_test
  bundles/properties_file_test.cpp
  bundles/properties_line_test.cpp
  bundles/properties_model_test.cpp
  bundles/properties_reader_test.cpp
  bundles/properties_rows.h
  bundles/properties_value_test.cpp
  bundles/utf8_check_test.cpp)

# What both kinds of catalogues keep their texts in.
kxxlate_unit_test(texts_test
  texts/folded_key_test.cpp
  texts/growing_table_test.cpp
  texts/key_table_test.cpp
  texts/line_reader_test.cpp
  texts/measured_text_test.cpp
  texts/noted_keys_test.cpp
  texts/short_pointer_test.cpp
  texts/table_growth_test.cpp
  support/failing_new.cpp)

kxxlate_unit_test(platform_text_test
  platform/ascii_case_test.cpp
  platform/utf8_text_test.cpp)

# Replaces operator new, so apart from all the others.
kxxlate_unit_test(reader_memory_test
  bundles/bundle_of_files.h
  bundles/bundle_shortage_test.cpp
  bundles/properties_memory_test.cpp
  bundles/properties_rows.h
  bundles/lookup_memory_test.cpp
  format/insertion_memory_test.cpp
  log/log_memory_test.cpp
  support/failing_new.cpp
  support/failing_new.h)
