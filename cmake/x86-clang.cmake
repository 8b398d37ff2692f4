# Cross-compiles for 32-bit Windows with clang.
set(QUILLET_ARCH x86)
set(QUILLET_PROCESSOR i686)
set(QUILLET_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/clang.cmake)
