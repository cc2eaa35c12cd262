# A zip for Windows, and a set of Debian packages for Linux; scripts/package.sh makes both.
set(CPACK_PACKAGE_NAME kxxlate)
set(CPACK_PACKAGE_VENDOR "KxXlate developers")
set(CPACK_PACKAGE_CONTACT "KxXlate developers <kxxlate@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development tools documentation)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  # What debuggers need is more than half of the files, and of no use without the sources.
  set(CPACK_STRIP_FILES ON)
  # The same files make the same zip, whenever and wherever it is made.
  set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/RepackZip.cmake)
  # The tool has another's code in it.
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT runtime)
  set(example_directory ${CMAKE_INSTALL_DOCDIR}/examples)
  install(FILES ${PROJECT_SOURCE_DIR}/examples/host.cpp DESTINATION ${example_directory}
    COMPONENT development)
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/ExampleHost.cmake DESTINATION ${example_directory}
    RENAME CMakeLists.txt COMPONENT development)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/catalogues/resources
    DESTINATION ${example_directory} COMPONENT development)
else()
  include(cmake/DebianPackages.cmake)
endif()

include(CPack)
