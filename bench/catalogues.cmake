# The generated catalogues, in build/bench/catalogues; made again only when their generator changed.
set(catalogues ${PROJECT_BINARY_DIR}/catalogues)
set(compile_catalogues "")
foreach(size 100 1000 10000 100000)
  set(compiled ${catalogues}/peers/texts${size})
  if(KXXLATE_MSGFMT)
    list(APPEND compile_catalogues COMMAND ${KXXLATE_MSGFMT}
      -o ${catalogues}/peers/locale/fr/LC_MESSAGES/texts${size}.mo ${compiled}.po)
  endif()
  if(KXXLATE_GENRB AND size LESS_EQUAL 10000)
    list(APPEND compile_catalogues COMMAND ${KXXLATE_GENRB} --quiet
      -e UTF-8 -d ${compiled} ${compiled}/fr.txt)
  endif()
endforeach()
add_custom_command(OUTPUT ${catalogues}/made
  COMMAND kxxlate_bench_catalogues ${catalogues}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${catalogues}/peers/locale/fr/LC_MESSAGES
  ${compile_catalogues}
  COMMAND ${CMAKE_COMMAND} -E touch ${catalogues}/made
  DEPENDS kxxlate_bench_catalogues
  COMMENT "Making the catalogues of the benchmarks"
  VERBATIM)
add_custom_target(kxxlate_bench_catalogue_files ALL DEPENDS ${catalogues}/made)
