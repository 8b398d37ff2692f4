# The same with clang and its linker, and the headers and libraries of the gcc that is installed for the same target.
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
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

# In 32 bits an object without members that is passed by value takes four bytes on the stack with gcc and none with
# clang. The library's strings have functions whose last argument is one (what kind of iterators the others are), and
# they are templates that both compilers compile, under one name. The library is linked from a copy that has its own
# under another name, so that everybody calls what the same compiler made.
get_property(is_trial GLOBAL PROPERTY IN_TRY_COMPILE)
if(QUILLET_ARCH STREQUAL x86 AND NOT is_trial)
    set(copy ${CMAKE_BINARY_DIR}/libstdc++)
    if(NOT EXISTS ${copy}/libstdc++.a)
        file(COPY ${folder}/libstdc++.dll.a DESTINATION ${copy})
        execute_process(COMMAND ${QUILLET_TRIPLE}-nm ${library} OUTPUT_VARIABLE symbols ERROR_QUIET)
        string(REGEX MATCHALL "__ZN[A-Za-z0-9_]+iterator_tag" names "${symbols}")
        list(REMOVE_DUPLICATES names)
        list(TRANSFORM names REPLACE "(.+)" "\\1 gcc\\1\n")
        string(CONCAT names ${names})
        file(WRITE ${copy}/names "${names}")
        execute_process(COMMAND ${CMAKE_OBJCOPY} --redefine-syms=${copy}/names ${library} ${copy}/libstdc++.a
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
    foreach(kind EXE SHARED)
        string(PREPEND CMAKE_${kind}_LINKER_FLAGS_INIT "-L${copy} ")
    endforeach()
endif()
