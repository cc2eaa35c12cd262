# Warnings for our own targets, never as global flags: what includes us or what we include is not
# ours to judge.
option(KXXLATE_WARNINGS_AS_ERRORS "Turn warnings in KxXlate's own code into errors" OFF)

function(kxxlate_warnings target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-qual -Wold-style-cast
    -Wformat=2 -Wundef -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion
    -Wimplicit-fallthrough
    # g++ 12 sees overlaps inside std::string that are not there.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<CXX_COMPILER_ID:Clang>:-Wthread-safety>)
  if(KXXLATE_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
