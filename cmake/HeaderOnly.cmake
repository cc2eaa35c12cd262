# kxxlate_header_only(TARGET FOLDER): makes TARGET from a header-only library whose headers lie in
# FOLDER of this machine's include directory. The compiler gets to see a folder of links to such
# libraries, never that directory itself: its other headers belong to another system.
function(kxxlate_header_only target folder)
  set(headers ${PROJECT_BINARY_DIR}/headers)
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "There is no /usr/include/${folder} for ${target}.")
  endif()
  file(MAKE_DIRECTORY ${headers})
  file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} INTERFACE ${headers})
endfunction()
