# The face for hosts in C++17: the headers, as a host sees them.
kxxlate_host_test(face_test
  face/insert_into_test.cpp
  face/insert_test.cpp
  face/probe_translator.h
  face/translator_answers_test.cpp
  face/translator_references_test.cpp
  face/version_test.cpp)
set_source_files_properties(face/version_test.cpp PROPERTIES COMPILE_DEFINITIONS
  "KXXLATE_PROJECT_VERSION=\"${PROJECT_VERSION}\"")
