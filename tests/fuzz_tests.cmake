# What parses is fuzzed. With KXXLATE_FUZZ (clang only) each target becomes a fuzzer; otherwise it is
# built with a small main that replays the saved inputs, so that every ordinary test run covers them.
option(KXXLATE_FUZZ "Build the fuzzers with clang's fuzzing engine instead of the replays" OFF)

function(kxxlate_fuzzer input)
  set(name ${input}_fuzzer)
  set(corpus ${CMAKE_CURRENT_SOURCE_DIR}/fuzz/corpus/${input})
  add_executable(${name} fuzz/${name}.cpp fuzz/fuzz_target.h)
  target_link_libraries(${name} PRIVATE kxxlate_objects kxxlate_platform)
  target_compile_definitions(${name} PRIVATE KXXLATE_BUILDING)
  target_include_directories(${name} PRIVATE
    ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  kxxlate_warnings(${name})
  if(KXXLATE_FUZZ)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(${name} PRIVATE fuzz/replay_main.cpp)
    add_test(NAME Fuzz.Replay_${input} COMMAND ${name} ${corpus})
    set_tests_properties(Fuzz.Replay_${input} PROPERTIES ${test_properties})
  endif()
endfunction()

kxxlate_fuzzer(positional_insertion)
kxxlate_fuzzer(variable_insertion)
kxxlate_fuzzer(properties_file)
kxxlate_fuzzer(lang_file)
kxxlate_fuzzer(locale)
