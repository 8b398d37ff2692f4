# The warnings and code generation of everything that is ours.
if(MSVC)
    include(${CMAKE_CURRENT_LIST_DIR}/msvc.cmake)
    return()
endif()
add_library(quillet_options INTERFACE)
target_compile_features(quillet_options INTERFACE cxx_std_20)
target_compile_definitions(quillet_options INTERFACE
    WINVER=0x0601 _WIN32_WINNT=0x0601 # Windows 7 and later
    STRICT NOMINMAX WIN32_LEAN_AND_MEAN)
target_compile_options(quillet_options INTERFACE
    # (COM interfaces have no virtual destructors; -Wall finds a delete that would need one.)
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual> -Werror
    -Wno-array-bounds -Wno-restrict # GCC 12 finds fault with its own string library's appending
    $<$<CXX_COMPILER_ID:Clang>:-Wno-unknown-warning-option> # which clang has no word for
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.
    # What nobody calls goes at the link, where a target does not say that it has nothing of the kind, or does not care:
    # sections are aligned, and the linker takes its time for each.
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLET_ALL_IS_USED>>>:-ffunction-sections;-fdata-sections>)
# Static run time: only system DLLs are imported (a target may ask for another). No time stamp: equal sources give equal files.
target_link_options(quillet_options INTERFACE
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLET_SHARED_RUN_TIME>>>:-static>
    -Wl,--gc-sections -Wl,--no-insert-timestamp -Wl,--dynamicbase -Wl,--nxcompat
    $<$<STREQUAL:${QUILLET_ARCH},x64>:-Wl,--high-entropy-va>
    $<$<AND:$<CONFIG:Release>,$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLET_SYMBOLS>>>>:-s>)
if(QUILLET_ARCH STREQUAL x86)
    # Doubles of 64 bits on both architectures; a 32-bit host aligns the stack to 4 bytes only. GCC is told that this is
    # enough for us, too, and aligns where something needs more: a thirtieth less code than aligning at every entry.
    target_compile_options(quillet_options INTERFACE -msse2 -mfpmath=sse
        $<IF:$<C_COMPILER_ID:GNU>,-mpreferred-stack-boundary=2,-mstackrealign>)
endif()
