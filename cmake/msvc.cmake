# The warnings and code generation of everything that is ours, for Visual C++. Written with care; not tried yet.
add_library(quillet_options INTERFACE)
target_compile_features(quillet_options INTERFACE cxx_std_20)
target_compile_definitions(quillet_options INTERFACE
    WINVER=0x0601 _WIN32_WINNT=0x0601 # Windows 7 and later
    STRICT NOMINMAX WIN32_LEAN_AND_MEAN)
# The lists of members need the preprocessor of the standard.
target_compile_options(quillet_options INTERFACE /W4 /WX /permissive- /utf-8 /EHsc /Gy /Zc:preprocessor /Zc:__cplusplus)
# Static run time: only system DLLs are imported. No time stamp: equal sources give equal files.
set(CMAKE_MSVC_RUNTIME_LIBRARY MultiThreaded$<$<CONFIG:Debug>:Debug>)
target_link_options(quillet_options INTERFACE /OPT:REF /OPT:ICF /Brepro /DYNAMICBASE /NXCOMPAT)
