# What is shipped has no symbols in it, but they are kept: whoever is told the address of a crash wants the line.

# Compiles the code of one target with line numbers. It makes no other code.
function(quillet_debug_information target)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-g>)
endfunction()

# Splits a shipped file after its link: the symbols go to FILE.debug, and both carry the same build id. What the
# linker took in, and from where, goes to FILE.map.
function(quillet_split_symbols target)
    if(NOT CMAKE_BUILD_TYPE STREQUAL Release)
        return()
    endif()
    quillet_debug_information(${target})
    set_target_properties(${target} PROPERTIES QUILLET_SYMBOLS ON)
    target_link_options(${target} PRIVATE -Wl,--build-id -Wl,-Map=$<TARGET_FILE:${target}>.map)
    # The tool would write the time into what it makes. A section's name that is too long for its place is cut, as the
    # linker cuts it where it leaves symbols out.
    set(objcopy ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0 ${CMAKE_OBJCOPY} --rename-section .eh_frame=.eh_fram)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${objcopy} --only-keep-debug $<TARGET_FILE:${target}> $<TARGET_FILE:${target}>.debug
        COMMAND ${objcopy} --strip-all $<TARGET_FILE:${target}>
        VERBATIM)
endfunction()
