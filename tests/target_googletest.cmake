# GoogleTest for the system we build for, from the sources that Debian's package googletest brings.
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
# Without any optimisation each of its inline functions has a section of its own, and the linker takes
# seconds to sort them, for every program anew.
foreach(library IN ITEMS gtest gmock)
  target_compile_options(${library} PRIVATE -O1)
endforeach()
