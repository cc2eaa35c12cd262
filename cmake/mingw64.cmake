# 64-bit Windows from Debian: package g++-mingw-w64-x86-64-win32; wine runs what is built.
#
# Its other thread model, posix, would link a library of threads into the DLL, which uses up one of the
# 1,088 indices that a process has for the data of its threads: at each load, and for ever.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-win32)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-win32)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Behind what the command line names.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's own libraries go into our files: hosts have none of them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR
  ${CMAKE_CURRENT_LIST_DIR}/run_under_wine.sh ${CMAKE_BINARY_DIR}/wine)
# Where programs under wine see the root of this machine's files.
set(KXXLATE_ROOT_SEEN_BY_PROGRAMS "Z:")
