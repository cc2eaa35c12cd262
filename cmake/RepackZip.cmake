# After a zip was made: makes it anew with its files in the order of their names, in which they are
# listed here, since CPack takes the file system's order. A zip has local times, hence one zone for
# all; SOURCE_DATE_EPOCH, if it is set, tells which time the files have.
set(ENV{TZ} UTC)
cmake_path(GET CPACK_TEMPORARY_DIRECTORY PARENT_PATH top)
file(GLOB_RECURSE names RELATIVE ${top} ${CPACK_TEMPORARY_DIRECTORY}/*)
list(JOIN names "\n" lines)
file(WRITE ${top}/names.txt "${lines}\n")
execute_process(
  COMMAND ${CMAKE_COMMAND} -E tar cf ${CPACK_PACKAGE_FILES} --format=zip --files-from=names.txt
  WORKING_DIRECTORY ${top}
  COMMAND_ERROR_IS_FATAL ANY)
