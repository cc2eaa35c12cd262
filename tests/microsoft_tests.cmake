# Hosts of Microsoft's compiler, as clang makes them for its conventions.
find_program(KXXLATE_CLANG clang++ REQUIRED)
find_program(KXXLATE_LLD_LINK lld-link REQUIRED)
find_program(KXXLATE_LLVM_NM llvm-nm REQUIRED)
find_program(KXXLATE_LLVM_UNDNAME llvm-undname REQUIRED)
find_program(KXXLATE_CXXFILT c++filt REQUIRED)
get_target_property(microsoft_imports microsoft_imports KXXLATE_FILE)

add_test(NAME MicrosoftHost.LinksEachFunctionByTheNameItsCompilerGives
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/check_microsoft_names.py
    ${KXXLATE_CLANG} ${KXXLATE_LLVM_NM} ${KXXLATE_LLD_LINK} ${KXXLATE_LLVM_UNDNAME}
    ${KXXLATE_CXXFILT} ${PROJECT_SOURCE_DIR} ${microsoft_imports})

# What stands for that compiler's own libraries.
set(stub_headers cstdarg cstddef cstdint cstdio cstring string utility)
set(stubs ${CMAKE_CURRENT_SOURCE_DIR}/abi/msvc_stubs)
set(runtime ${CMAKE_CURRENT_BINARY_DIR}/microsoft)
file(MAKE_DIRECTORY ${runtime})
set(compile ${KXXLATE_CLANG} --target=x86_64-pc-windows-msvc -std=c++17 -O1 -nostdinc -isystem ${stubs}
  -fno-builtin -fexceptions -fcxx-exceptions -Wall -Wextra -Werror)
list(TRANSFORM stub_headers PREPEND ${stubs}/)
add_custom_command(OUTPUT ${runtime}/runtime.obj ${runtime}/kernel32.lib
  COMMAND ${compile} -c ${stubs}/runtime.cpp -o ${runtime}/runtime.obj
  COMMAND ${KXXLATE_LLVM_DLLTOOL} -m i386:x86-64 -d ${stubs}/kernel32.def -l ${runtime}/kernel32.lib
  DEPENDS ${stubs}/runtime.cpp ${stubs}/kernel32.def ${stub_headers}
  VERBATIM)

set(include ${PROJECT_SOURCE_DIR}/include)
set(host ${CMAKE_CURRENT_SOURCE_DIR}/abi/microsoft_host)
set(sample ${runtime}/sample)
add_custom_command(OUTPUT ${sample}.cpp ${sample}.txt
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/abi/extract_sample.py
    ${PROJECT_SOURCE_DIR}/docs/windows.md ${sample}.cpp ${sample}.txt
  DEPENDS ${PROJECT_SOURCE_DIR}/docs/windows.md ${CMAKE_CURRENT_SOURCE_DIR}/abi/extract_sample.py
  VERBATIM)

# The program NAME.exe from one source; more arguments are what it depends on.
function(kxxlate_microsoft_program name source)
  add_custom_command(OUTPUT ${runtime}/${name}.exe
    COMMAND ${compile} -I ${include}/microsoft -I ${include} -c ${source} -o ${runtime}/${name}.obj
    COMMAND ${KXXLATE_LLD_LINK} -nodefaultlib -subsystem:console -out:${runtime}/${name}.exe
      ${runtime}/${name}.obj ${runtime}/runtime.obj ${runtime}/kernel32.lib ${microsoft_imports}
    DEPENDS ${source} ${ARGN} ${include}/CKxXlate.h ${include}/KxXlateExport.h
      ${include}/microsoft/Xlate.h ${stub_headers} ${runtime}/runtime.obj ${microsoft_imports}
    VERBATIM)
endfunction()
kxxlate_microsoft_program(host ${host}/host.cpp ${host}/lines.h)
kxxlate_microsoft_program(sample_host ${sample}.cpp)
add_custom_target(microsoft_host ALL DEPENDS ${runtime}/host.exe ${runtime}/sample_host.exe)
add_dependencies(microsoft_host microsoft_imports)

add_test(NAME MicrosoftHost.CallsTheLibraryAsItsOwn
  COMMAND ${host}/run.sh ${runtime}/host.exe $<TARGET_FILE:KxXlate>
    ${host}/resources ${host}/expected.txt -- ${CMAKE_CROSSCOMPILING_EMULATOR})
add_test(NAME MicrosoftHost.IsWrittenAsTheDocumentShows
  COMMAND ${host}/run.sh ${runtime}/sample_host.exe $<TARGET_FILE:KxXlate>
    ${PROJECT_SOURCE_DIR}/examples/catalogues/resources ${sample}.txt
    -- ${CMAKE_CROSSCOMPILING_EMULATOR})

# Both command lines of clang; CMake takes the one of this name for that compiler's.
file(CREATE_LINK ${KXXLATE_CLANG} ${runtime}/clang-cl SYMBOLIC)
set(compiler_installed ${runtime}/clang-cl)
set(compiler_packed ${KXXLATE_CLANG})
foreach(way IN ITEMS Installed Packed)
  string(TOLOWER ${way} how)
  add_test(NAME MicrosoftHost.FindsTheLibraryOnce${way}
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/consume.sh ${how} ${PROJECT_BINARY_DIR}
      ${CMAKE_CURRENT_SOURCE_DIR}/abi/microsoft_consumer consumer.exe
      ${PROJECT_SOURCE_DIR}/examples/catalogues/resources
      -DCMAKE_TOOLCHAIN_FILE=${CMAKE_CURRENT_SOURCE_DIR}/abi/clang_msvc.cmake
      -DCMAKE_BUILD_TYPE=Release -DKXXLATE_HOST_COMPILER=${compiler_${how}}
      -DKXXLATE_STUBS=${stubs} -DKXXLATE_RUNTIME=${runtime}
      -- ${CMAKE_CROSSCOMPILING_EMULATOR})
endforeach()

set_tests_properties(
  MicrosoftHost.LinksEachFunctionByTheNameItsCompilerGives
  MicrosoftHost.CallsTheLibraryAsItsOwn
  MicrosoftHost.IsWrittenAsTheDocumentShows
  MicrosoftHost.FindsTheLibraryOnceInstalled
  MicrosoftHost.FindsTheLibraryOncePacked
  PROPERTIES ${test_properties})
