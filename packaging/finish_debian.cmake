# Does to each package what CPack cannot: leaves out the scripts that CPack writes for ldconfig, whose
# work a trigger does, and says which packages of several architectures get along. Run by CPack.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(unpacked ${package}.unpacked)
  set(control ${unpacked}/DEBIAN/control)
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${unpacked}/DEBIAN/postinst ${unpacked}/DEBIAN/postrm)
  if(NOT package MATCHES "/lib[^/]*$")
    execute_process(COMMAND sed -i "/^Package:/a Multi-Arch: foreign" ${control}
      COMMAND_ERROR_IS_FATAL ANY)
  elseif(CPACK_KXXLATE_SIDE_BY_SIDE)
    execute_process(COMMAND sed -i "/^Package:/a Multi-Arch: same" ${control}
      COMMAND_ERROR_IS_FATAL ANY)
  endif()
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${unpacked} ${package}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${unpacked})
endforeach()
