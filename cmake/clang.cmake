# What the two architectures' toolchains with clang share: clang and its linker, with the headers and libraries of the
# gcc that is installed for the same target.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_RC_COMPILER ${QUILLET_TRIPLE}-windres)
set(CMAKE_OBJCOPY ${QUILLET_TRIPLE}-objcopy) # LLVM's renames no sections of this format
foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_TARGET ${QUILLET_PROCESSOR}-w64-windows-gnu)
endforeach()
# Without a root of its own clang would read this machine's headers where the target has none of a name.
set(CMAKE_SYSROOT /usr/${QUILLET_TRIPLE})
# clang does not find gcc's folders by itself, as Debian has one for each thread model.
execute_process(COMMAND ${QUILLET_TRIPLE}-g++-win32 -print-file-name=libstdc++.a
    OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET library PARENT_PATH folder)
# Types are compared by a function of the library, as gcc itself says for this system: a second one, written inline,
# would not link with it.
set(CMAKE_CXX_FLAGS_INIT "-isystem ${folder}/include/c++ -isystem ${folder}/include/c++/${QUILLET_TRIPLE} \
-D__GXX_TYPEINFO_EQUALITY_INLINE=0")
foreach(kind EXE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -L${folder}")
endforeach()
# Its crtbegin.o has to be gcc's, too (-B): the empty one of mingw-w64, which clang would take, tells the 32-bit unwinder of
# no frames, and then the first exception ends the program. No flag of every link, as the first folder counts and the
# component has one of its own.
add_link_options(-B${folder})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
