# The Debian packages: the library, what a host's build needs, the command line, the documents.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE kxxlate)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_STRIP_FILES ON)

set(library_package libkxxlate${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkxxlate-dev)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME kxxlate-tools)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME kxxlate-doc)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${debian_version})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS kxxlate-doc)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} (= ${debian_version})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS kxxlate-doc)

# The set was two packages, kxxlate and kxxlate-dev, whose files the four have now.
foreach(component IN ITEMS RUNTIME TOOLS DOCUMENTATION)
  set(CPACK_DEBIAN_${component}_PACKAGE_BREAKS "kxxlate (<< ${debian_version}~)")
  set(CPACK_DEBIAN_${component}_PACKAGE_REPLACES "kxxlate (<< ${debian_version}~)")
endforeach()
set(CPACK_DEBIAN_TOOLS_PACKAGE_PROVIDES "kxxlate (= ${debian_version})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_BREAKS "kxxlate-dev (<< ${debian_version}~)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_REPLACES "kxxlate-dev (<< ${debian_version}~)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_PROVIDES "kxxlate-dev (= ${debian_version})")

# CPack's own default, which alone it does not put before the descriptions.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CMAKE_PROJECT_NAME} built using CMake")
string(CONCAT what_it_is
  "KxXlate gives the components of a server product their message texts in the\n"
  "language of whoever reads them: texts are looked up by key in property bundles\n"
  "and language files, and values are inserted into them. It is made for\n"
  "long-running servers with many threads.\n.\n")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "translated message texts for server components
${what_it_is}This package has the shared library.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "translated message texts (files for development)
${what_it_is}This package has the headers, and what CMake and pkg-config need to find them.")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "translated message texts (command line)
${what_it_is}This package has kxxlate, which shows texts to people who write catalogues.")
set(CPACK_DEBIAN_DOCUMENTATION_DESCRIPTION "translated message texts (documents and examples)
${what_it_is}This package has the documents, example hosts and example catalogues.")

# What the packages of other hosts are to depend on, and that the system's list of libraries is renewed.
set(control ${PROJECT_BINARY_DIR}/debian)
file(WRITE ${control}/shlibs
  "libKxXlate ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
configure_file(packaging/${library_package}.symbols ${control}/symbols COPYONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  ${control}/shlibs ${control}/symbols ${control}/triggers)

set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/finish_debian.cmake)
# Libraries of several architectures lie side by side only where each has a folder of its own.
if(CMAKE_INSTALL_LIBDIR STREQUAL "lib/${CMAKE_LIBRARY_ARCHITECTURE}")
  set(CPACK_KXXLATE_SIDE_BY_SIDE ON)
endif()

# Takes the time from SOURCE_DATE_EPOCH where that is set.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/changelog.in ${control}/changelog.Debian @ONLY)
configure_file(CHANGELOG.md ${control}/changelog COPYONLY)
configure_file(packaging/kxxlate.1 ${control}/kxxlate.1 COPYONLY)
foreach(file IN ITEMS changelog changelog.Debian kxxlate.1)
  # Neither the name nor the time of the file goes into what is compressed.
  execute_process(COMMAND gzip -9nf ${control}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
# Part of the packages only, not of what `cmake --install` lays out elsewhere.
foreach(component IN ITEMS RUNTIME DEVELOPMENT TOOLS DOCUMENTATION)
  string(TOLOWER ${component} lower)
  install(FILES packaging/copyright ${control}/changelog.gz ${control}/changelog.Debian.gz
    DESTINATION share/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}
    COMPONENT ${lower} EXCLUDE_FROM_ALL)
endforeach()
install(FILES ${control}/kxxlate.1.gz DESTINATION share/man/man1 COMPONENT tools EXCLUDE_FROM_ALL)
