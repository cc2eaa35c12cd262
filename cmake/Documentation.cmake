# The target "docs" makes pages of the public headers and the documents in docs/html of the build's
# folder. It is asked for by name; without doxygen there is none.
find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
  add_custom_target(docs
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${PROJECT_BINARY_DIR}/docs
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/docs
    COMMAND ${CMAKE_COMMAND} -E env KXXLATE_DOCS=${PROJECT_BINARY_DIR}/docs
      KXXLATE_VERSION=${PROJECT_VERSION} ${DOXYGEN_EXECUTABLE} cmake/Doxyfile
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Making the pages of the headers and documents"
    VERBATIM)
endif()
