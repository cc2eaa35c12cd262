# The face for hosts in C++17: the headers, as a host sees them.
kxxlate_host_test(face_test
  face/fallback_chain_order_test.cpp
  face/insert_into_test.cpp
  face/insert_test.cpp
  face/insert_typed_test.cpp
  face/insert_variable_test.cpp
  face/locales_test.cpp
  face/message_test.cpp
  face/negotiate_test.cpp
  face/probe_translator.h
  face/translator_answers_test.cpp
  face/translator_references_test.cpp
  face/version_test.cpp)
if(WIN32)
  target_sources(face_test PRIVATE
    face/windows_before_windows_test.cpp
    face/windows_behind_windows_test.cpp)
endif()
set_source_files_properties(face/version_test.cpp PROPERTIES COMPILE_DEFINITIONS
  "KXXLATE_PROJECT_VERSION=\"${PROJECT_VERSION}\"")

# Beside the library's own readers of the same texts.
kxxlate_unit_test(face_model_test face/typed_model_test.cpp)

# In one module with the library, so that all memory is counted.
kxxlate_unit_test(face_memory_test
  core/counted_new.cpp
  core/counted_new.h
  face/memory_test.cpp)

# Hosts that list locales, in trees of their own.
kxxlate_host_program(face_host face/face_host.cpp)
target_link_libraries(face_host PRIVATE KxXlate)
kxxlate_host_test(face_search_test
  face/locales_search.h
  face/locales_search_test.cpp)
target_compile_definitions(face_search_test PRIVATE
  KXXLATE_FACE_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:face_host>")
add_dependencies(face_search_test face_host)
if(NOT WIN32)
  add_executable(listing_host face/listing_host.cpp)
  target_include_directories(listing_host PRIVATE ${PROJECT_SOURCE_DIR}/include)
  kxxlate_warnings(listing_host)
  target_sources(face_search_test PRIVATE face/locales_search_posix_test.cpp)
  target_compile_definitions(face_search_test PRIVATE
    KXXLATE_LISTING_HOST="$<TARGET_FILE:listing_host>")
  add_dependencies(face_search_test listing_host)
endif()

# With the compiler of this build, which hosts may have, too. Sanitizers see nothing of it.
if(NOT KXXLATE_SANITIZE)
  foreach(standard IN ITEMS 17 20)
    add_test(NAME Face.HeadersCompileAloneWithoutAWarningInCxx${standard}
      COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/face/check_headers.py
        ${CMAKE_CXX_COMPILER} ${standard})
    add_test(NAME Face.MisuseIsACompileErrorInCxx${standard}
      COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/face/check_misuse.py
        ${CMAKE_CXX_COMPILER} ${standard})
    set_tests_properties(Face.HeadersCompileAloneWithoutAWarningInCxx${standard}
      Face.MisuseIsACompileErrorInCxx${standard} PROPERTIES ${test_properties})
  endforeach()
endif()
