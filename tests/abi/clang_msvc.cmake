# The build of a host by clang in the place of Microsoft's compiler, with stubs in the place of that
# compiler's headers and libraries. KXXLATE_HOST_COMPILER is clang, with either of its command lines:
# under the name clang-cl it has Microsoft's. KXXLATE_STUBS has the headers, and KXXLATE_RUNTIME what
# tests/microsoft_tests.cmake makes of them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(CMAKE_CXX_COMPILER ${KXXLATE_HOST_COMPILER})
set(CMAKE_CXX_COMPILER_TARGET x86_64-pc-windows-msvc)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES
  KXXLATE_HOST_COMPILER KXXLATE_STUBS KXXLATE_RUNTIME)

if(KXXLATE_HOST_COMPILER MATCHES "/clang-cl$")
  set(CMAKE_CXX_FLAGS_INIT "/X -imsvc ${KXXLATE_STUBS} /GS- /clang:-fno-builtin")
  set(CMAKE_EXE_LINKER_FLAGS_INIT "/NODEFAULTLIB /MANIFEST:NO")
else()
  set(CMAKE_CXX_FLAGS_INIT "-nostdinc -isystem ${KXXLATE_STUBS} -fno-builtin")
  set(CMAKE_EXE_LINKER_FLAGS_INIT "-nostdlib -Xlinker /NODEFAULTLIB")
endif()
set(CMAKE_CXX_STANDARD_LIBRARIES "${KXXLATE_RUNTIME}/runtime.obj ${KXXLATE_RUNTIME}/kernel32.lib"
  CACHE STRING "" FORCE)
