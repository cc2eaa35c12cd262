# What holds for the binaries that others get, beyond the warnings: defences of code that reads other
# people's files, and nothing in them of the folder or the time of the build.
set(hardened ${PROJECT_IS_TOP_LEVEL})
if(KXXLATE_SANITIZE)
  set(hardened OFF)  # sanitizers replace the functions that fortification checks
endif()
option(KXXLATE_HARDENING "Build with fortification, stack protection and control-flow protection"
       ${hardened})

if(KXXLATE_HARDENING)
  include(CheckPIESupported)
  check_pie_supported()
endif()

# kxxlate_hardened(TARGET): on Windows the linker's defaults hold, as docs/windows.md tells.
function(kxxlate_hardened target)
  target_compile_options(${target} PRIVATE -fstack-protector-strong)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
    target_compile_options(${target} PRIVATE -fcf-protection)
    # Only the shadow stack is promised: the C library's own first instructions in each file lack the
    # mark for indirect branches.
    target_link_options(${target} PRIVATE LINKER:-z,shstk)
  endif()
  # Without optimisation it does nothing but warn. A distribution's own setting gives way.
  target_compile_options(${target} PRIVATE
    $<$<NOT:$<CONFIG:Debug,>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug,>>:-D_FORTIFY_SOURCE=2>)
  target_link_options(${target} PRIVATE LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
endfunction()

# kxxlate_shipped(TARGET)
function(kxxlate_shipped target)
  # A debugger wants to find the sources where they are.
  target_compile_options(${target} PRIVATE
    $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
    $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(NOT KXXLATE_TESTS)  # which run copies of programs in trees of their own
    set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
  endif()
  if(WIN32)
    target_link_options(${target} PRIVATE LINKER:--no-insert-timestamp)
  elseif(KXXLATE_HARDENING)
    kxxlate_hardened(${target})
  endif()
endfunction()
