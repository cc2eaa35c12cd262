# The language side: translators of language files, their cache, and what hosts see of them.
kxxlate_unit_test(language_test
  core/cached_translators_test.cpp
  core/held_language_test.cpp
  core/language_cache_change_test.cpp
  core/language_cache_fixture.h
  core/language_cache_test.cpp
  core/language_cache_threads_test.cpp
  core/language_rollout_test.cpp
  core/language_switch.h
  core/language_threads.h
  core/shared_region_test.cpp
  lang/lang_file_place_test.cpp
  lang/lang_loader_test.cpp
  lang/language_translator.h
  lang/language_tree.h
  lang/real_kx_xlate_copy_test.cpp
  lang/real_kx_xlate_lookup_test.cpp
  lang/real_kx_xlate_names_test.cpp
  lang/real_kx_xlate_slots_test.cpp
  lang/real_kx_xlate_stale_test.cpp
  lang/real_kx_xlate_test.cpp
  scenarios/language_fallback_test.cpp
  scenarios/language_files.h
  scenarios/language_precedence_test.cpp)
if(WIN32)
  target_sources(language_test PRIVATE
    core/held_language_windows_test.cpp
    lang/lang_loader_windows_test.cpp)
else()
  target_sources(language_test PRIVATE
    core/language_cache_threads_posix_test.cpp
    core/language_rollout_posix_test.cpp
    core/shared_region_posix_test.cpp)
endif()

# Replaces operator new, so apart from all the others.
kxxlate_unit_test(allocation_test
  core/allocation_failure_test.cpp
  core/bundle_allocation_failure_test.cpp
  core/counted_new.cpp
  core/counted_new.h
  core/message_memory_test.cpp
  core/install_allocation_failure_test.cpp
  core/translator_memory_test.cpp)

# Likewise.
kxxlate_unit_test(language_bytes_test
  core/language_bytes_test.cpp
  core/live_bytes.cpp
  core/live_bytes.h
  core/rollout_bytes_test.cpp)

if(NOT WIN32)
  # Stands in front of the system's functions, so apart from all the others.
  kxxlate_unit_test(language_questions_test
    lang/lang_source_posix_test.cpp
    support/file_questions.h
    support/file_questions_posix.cpp)
  target_link_libraries(language_questions_test PRIVATE ${CMAKE_DL_LIBS})
endif()

kxxlate_host_test(language_process_test
  process/language_directory.h
  process/language_directory_test.cpp
  process/language_locale_test.cpp
  process/language_lookup_test.cpp
  process/language_near_top_test.cpp
  process/language_threads_test.cpp
  process/near_top.h)
if(NOT WIN32)
  target_sources(language_process_test PRIVATE process/host_near_top_posix_test.cpp)
endif()
