kxxlate_unit_test(bundle_registry_test
  bundles/bundle_entries_test.cpp
  bundles/bundle_file_name_test.cpp
  bundles/bundle_memory_test.cpp
  bundles/bundle_of_files.h
  bundles/bundle_order_test.cpp
  bundles/bundle_test.cpp
  bundles/held_bundle_test.cpp
  bundles/install_manager_test.cpp
  bundles/install_order_test.cpp
  bundles/lasting_translators_test.cpp
  bundles/parent_locale_test.cpp
  bundles/properties_bundle_test.cpp
  bundles/properties_translator.h
  bundles/properties_xlate_copy_test.cpp
  bundles/properties_xlate_test.cpp
  bundles/remembered_requests_test.cpp
  bundles/request_digest_test.cpp
  bundles/resolved_translators_test.cpp
  bundles/split_locale_test.cpp
  bundles/xlate_manager_test.cpp
  scenarios/property_fallback_test.cpp)

# Apart, since its class Xlate is not that of other tests.
kxxlate_host_test(microsoft_message_test abi/microsoft_message_test.cpp)
# Only the linker of other hosts reads the pragma in that header.
target_compile_options(microsoft_message_test PRIVATE
  -Wno-unknown-pragmas $<$<CXX_COMPILER_ID:Clang>:-Wno-ignored-pragmas>)

kxxlate_host_test(abi_test
  abi/slot_order_test.cpp
  abi/translator_slots_test.cpp)
if(WIN32)
  target_sources(abi_test PRIVATE abi/version_windows_test.cpp)
  target_link_libraries(abi_test PRIVATE version)
endif()

kxxlate_host_test(property_process_test
  process/property_lookup.h
  process/property_lookup_test.cpp
  process/property_misses_test.cpp
  process/property_shortage_test.cpp)

# Replaces operator new, which the library has to take, too.
kxxlate_host_program(starving_host
  process/starving_host.cpp
  support/failing_new.cpp
  support/failing_new.h)
target_link_libraries(starving_host PRIVATE kxxlate_objects kxxlate_platform)
target_compile_definitions(starving_host PRIVATE KXXLATE_BUILDING)
add_dependencies(property_process_test starving_host)
target_compile_definitions(property_process_test PRIVATE
  KXXLATE_STARVING_HOST="${KXXLATE_ROOT_SEEN_BY_PROGRAMS}$<TARGET_FILE:starving_host>")
