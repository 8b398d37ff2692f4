# Programs run under Wine in a prefix of this build folder's own, on a display of their own; on Windows they just run.
if(CMAKE_HOST_WIN32)
    set(QUILLET_WINE)
else()
    set(QUILLET_WINE ${CMAKE_SOURCE_DIR}/tools/headless
        ${CMAKE_SOURCE_DIR}/tools/wine ${CMAKE_BINARY_DIR}/wineprefix)
endif()

# Adds one test program of many cases: quillet_test(NAME sources… LIBRARIES libraries… SECONDS about)
# Long ones begin first. Each takes one of the lanes of lanes.json, beside this file: a prefix has one display at a time.
function(quillet_test name)
    cmake_parse_arguments(arg "" "SECONDS" "LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE quillet_options gtest gmock ${arg_LIBRARIES})
    target_precompile_headers(${name} REUSE_FROM test_headers)
    # Some files a compilation: reading the headers takes longer than compiling what a test says.
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    add_test(NAME ${name} COMMAND ${QUILLET_WINE} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 RESOURCE_GROUPS lanes:1)
    if(arg_SECONDS)
        set_tests_properties(${name} PROPERTIES COST ${arg_SECONDS})
    endif()
endfunction()
