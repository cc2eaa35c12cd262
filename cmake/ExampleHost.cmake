# The smallest host; to be built with -DCMAKE_PREFIX_PATH=<folder of the unpacked zip>.
cmake_minimum_required(VERSION 3.25)
project(ExampleHost LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
find_package(KxXlate REQUIRED)
add_executable(example_host host.cpp)
target_link_libraries(example_host PRIVATE KxXlate::KxXlate)
# A program looks for its libraries, and the library for its catalogues, in the program's folder.
add_custom_command(TARGET example_host POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
    $<TARGET_FILE:KxXlate::KxXlate> $<TARGET_FILE_DIR:example_host>
  COMMAND ${CMAKE_COMMAND} -E copy_directory
    ${CMAKE_CURRENT_SOURCE_DIR}/resources $<TARGET_FILE_DIR:example_host>/resources
  VERBATIM)
