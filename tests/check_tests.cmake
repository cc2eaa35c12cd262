# Tests of the tree and of the finished library that are not written in C++.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

add_test(NAME Sources.KeepTheirLayers
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_includes.py)

add_test(NAME Sources.AreNoLongerThan300Lines
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/check_lengths.py)

add_test(NAME RunUnderWine.RepeatsOnlyWhatFailedWithoutAWord
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/cmake/run_under_wine_test.py
    ${PROJECT_SOURCE_DIR}/cmake/run_under_wine.sh)

if(WIN32)
  add_test(NAME Library.ExportsAndNeedsTheAgreedAndNothingElse
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_windows_library.py
      ${CMAKE_OBJDUMP} $<TARGET_FILE:KxXlate> ${CMAKE_CURRENT_SOURCE_DIR}/abi/exports_windows.txt
      KERNEL32.dll msvcrt.dll)
else()
  add_test(NAME Library.ExportsTheAgreedNamesAndNoOthers
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_exports.py
      ${CMAKE_NM} $<TARGET_FILE:KxXlate> ${CMAKE_CURRENT_SOURCE_DIR}/abi/exports_linux.txt)

  if(KXXLATE_HARDENING)
    set(hardened built)
    if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
      set(hardened fortified)
    endif()
    add_test(NAME Library.IsHardenedLikeItsTool
      COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/packages/check_hardening.sh ${hardened}
        $<TARGET_FILE:KxXlate> $<TARGET_FILE:kxxlate>)
  endif()

  # Whatever compiler builds the library: this one alone knows the layout of the other system.
  find_program(KXXLATE_CLANG clang++ REQUIRED)
  add_test(NAME Sources.KeepTheSlotsForMicrosoftsCompiler
    COMMAND ${PROJECT_SOURCE_DIR}/tools/check_slots.sh ${KXXLATE_CLANG})
  # Of all compilers this one warns of most in the hosts that include a header.
  foreach(standard IN ITEMS 17 20)
    add_test(NAME Headers.MessagesAreCopiedWithoutAWarningInCxx${standard}
      COMMAND ${KXXLATE_CLANG} -std=c++${standard} -fsyntax-only -I ${PROJECT_SOURCE_DIR}/include
        -Wall -Wextra -Wpedantic -Wdeprecated -Wdeprecated-copy-dtor -Werror
        ${CMAKE_CURRENT_SOURCE_DIR}/abi/copying_host.cpp)
  endforeach()
endif()

# The consumer is built as this project is, and run in the same way.
set(consumer_options -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER})
if(CMAKE_TOOLCHAIN_FILE)
  set(consumer_options -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE})
endif()
if(KXXLATE_SANITIZE)
  list(APPEND consumer_options -DCMAKE_CXX_FLAGS=-fsanitize=${KXXLATE_SANITIZE})
endif()
foreach(way IN ITEMS Installed Packed)
  string(TOLOWER ${way} how)
  add_test(NAME Library.IsFoundByAnotherProjectOnce${way}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/consume.sh ${how} ${PROJECT_BINARY_DIR}
      ${CMAKE_CURRENT_SOURCE_DIR}/abi/consumer consumer${CMAKE_EXECUTABLE_SUFFIX}
      ${PROJECT_SOURCE_DIR}/examples/catalogues/resources ${consumer_options}
      -- ${CMAKE_CROSSCOMPILING_EMULATOR})
endforeach()

add_test(NAME Library.IsTakenInBySixLines
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_consumer_lines.sh
    ${CMAKE_CURRENT_SOURCE_DIR}/abi/consumer)

if(NOT WIN32 AND NOT KXXLATE_SANITIZE)
  foreach(way IN ITEMS CMake Meson Compiler)
    string(TOLOWER ${way} how)
    add_test(NAME Library.IsFoundByPkgConfigAnd${way}
      COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/consume_pkg_config.sh ${how} ${PROJECT_BINARY_DIR}
        ${CMAKE_CURRENT_SOURCE_DIR}/abi/consumer ${CMAKE_CXX_COMPILER})
  endforeach()
endif()

# Each way compiles the whole library, so each has one compiler that it is tried with.
if(NOT WIN32 AND NOT KXXLATE_SANITIZE)
  set(way Embedded)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    set(way Fetched)
  endif()
  string(TOLOWER ${way} how)
  add_test(NAME Library.IsBuiltWithinAnotherProjectOnce${way}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/consume_sources.sh ${how} ${PROJECT_SOURCE_DIR}
      ${CMAKE_CURRENT_SOURCE_DIR}/abi/consumer ${consumer_options})
  set(long_checks Library.IsBuiltWithinAnotherProjectOnce${way})
endif()

get_property(checks DIRECTORY PROPERTY TESTS)
set_tests_properties(${checks} PROPERTIES TIMEOUT 120)
# What they install are also the pages, which must not be made anew meanwhile.
set(installing ${checks})
list(FILTER installing INCLUDE REGEX "^Library\\.IsFoundBy")
set_tests_properties(${installing} PROPERTIES DEPENDS Documents.TheTargetDocsMakesThePages)
if(DEFINED long_checks)
  set_tests_properties(${long_checks} PROPERTIES TIMEOUT 600)
endif()
