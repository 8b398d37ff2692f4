# Cross-compiles for 32-bit Windows with clang.
set(QUILLET_ARCH x86)
set(QUILLET_PROCESSOR i686)
set(QUILLET_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/clang.cmake)

# An object without members that is passed by value takes four bytes on the stack with gcc and none with clang. The
# library's strings have functions whose last argument is one (what kind of iterators the others are), and they are
# templates that both compilers compile, under one name. The library is linked from a copy that has its own under
# another name, so that everybody calls what the same compiler made.
get_property(is_trial GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT is_trial)
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
