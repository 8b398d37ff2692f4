# Cross-compiles for 64-bit Windows with clang.
set(QUILLET_ARCH x64)
set(QUILLET_PROCESSOR x86_64)
set(QUILLET_TRIPLE x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/clang.cmake)
