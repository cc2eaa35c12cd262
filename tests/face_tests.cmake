# The face for hosts in C++17: the headers, as a host sees them.
kxxlate_host_test(face_test
  face/insert_into_test.cpp
  face/insert_test.cpp
  face/insert_typed_test.cpp
  face/insert_variable_test.cpp
  face/message_test.cpp
  face/probe_translator.h
  face/translator_answers_test.cpp
  face/translator_references_test.cpp
  face/version_test.cpp)
set_source_files_properties(face/version_test.cpp PROPERTIES COMPILE_DEFINITIONS
  "KXXLATE_PROJECT_VERSION=\"${PROJECT_VERSION}\"")

# Beside the library's own readers of the same texts.
kxxlate_unit_test(face_model_test face/typed_model_test.cpp)

# In one module with the library, so that all memory is counted.
kxxlate_unit_test(face_memory_test
  core/counted_new.cpp
  core/counted_new.h
  face/memory_test.cpp)
