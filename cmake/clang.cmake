# What the two architectures' toolchains with clang share: clang and its linker, with the headers and libraries of the
# gcc that is installed for the same target.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_RC_COMPILER ${QUILLET_TRIPLE}-windres)
foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_TARGET ${QUILLET_PROCESSOR}-w64-windows-gnu)
endforeach()
# clang does not find gcc's folders by itself, as Debian has one for each thread model.
execute_process(COMMAND ${QUILLET_TRIPLE}-g++-win32 -print-file-name=libstdc++.a
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET library PARENT_PATH folder)
set(CMAKE_CXX_FLAGS_INIT "-isystem ${folder}/include/c++ -isystem ${folder}/include/c++/${QUILLET_TRIPLE}")
# Its crtbegin.o has to be gcc's, too (-B): the empty one of mingw-w64, which clang would take, tells the 32-bit unwinder of
# no frames, and then the first exception ends the program.
foreach(kind EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -B${folder} -L${folder} -L/usr/${QUILLET_TRIPLE}/lib ")
endforeach()
set(CMAKE_FIND_ROOT_PATH /usr/${QUILLET_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
