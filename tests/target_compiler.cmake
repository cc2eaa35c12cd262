# The compiler of this folder and of GoogleTest. Tests and their hosts use std::thread and std::mutex,
# which this compiler has with its posix thread model alone; the library is built with the other one.
# Both lay everything out alike, so that hosts of either run with the library.
find_program(KXXLATE_TEST_COMPILER x86_64-w64-mingw32-g++-posix REQUIRED)
set(CMAKE_CXX_COMPILER ${KXXLATE_TEST_COMPILER})
