# A zip for Windows, and a set of Debian packages for Linux; scripts/package.sh makes both.
set(CPACK_PACKAGE_NAME kxxlate)
set(CPACK_PACKAGE_VENDOR "KxXlate developers")
set(CPACK_PACKAGE_CONTACT "KxXlate developers <kxxlate@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development tools documentation)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  include(cmake/DebianPackages.cmake)
endif()

include(CPack)
