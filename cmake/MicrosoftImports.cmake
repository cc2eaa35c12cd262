# The library by which hosts of Microsoft's compiler link the DLL: that compiler gives the functions
# other names, and the linker's own import library has the DLL's names alone.
option(KXXLATE_MICROSOFT_IMPORTS "Make KxXlate.lib for hosts of Microsoft's compiler"
  ${PROJECT_IS_TOP_LEVEL})
if(NOT KXXLATE_MICROSOFT_IMPORTS)
  return()
endif()
find_program(KXXLATE_LLVM_DLLTOOL llvm-dlltool REQUIRED)
mark_as_advanced(KXXLATE_LLVM_DLLTOOL)

set(microsoft_names ${PROJECT_SOURCE_DIR}/cmake/KxXlateMicrosoft.def)
set(microsoft_imports ${PROJECT_BINARY_DIR}/lib/KxXlate.lib)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
add_custom_command(OUTPUT ${microsoft_imports}
  COMMAND ${KXXLATE_LLVM_DLLTOOL} -m i386:x86-64 -d ${microsoft_names} -l ${microsoft_imports}
  DEPENDS ${microsoft_names}
  VERBATIM)
add_custom_target(microsoft_imports ALL DEPENDS ${microsoft_imports})
# The tests ask for it.
set_property(TARGET microsoft_imports PROPERTY KXXLATE_FILE ${microsoft_imports})

install(FILES ${microsoft_imports} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)

# A folder of its own, whole, so that these hosts never take the Xlate.h of the others: a header finds
# those beside it first.
set(microsoft_headers ${public_headers})
list(FILTER microsoft_headers EXCLUDE REGEX "/Xlate\\.h$")
install(FILES ${microsoft_headers} ${PROJECT_SOURCE_DIR}/include/microsoft/Xlate.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/microsoft COMPONENT development)
install(FILES ${face_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/microsoft/kxxlate
  COMPONENT development)
