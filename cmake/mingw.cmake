# Cross-compiles for Windows on QUILLET_ARCH, x86 or x64, with mingw-w64's gcc. The run time of the win32 thread model uses
# Windows' own locks: that of the posix model would add a thread library of its own, and its licence, to everything that
# is shipped.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUILLET_ARCH)
if(QUILLET_ARCH STREQUAL x64)
    set(QUILLET_PROCESSOR x86_64)
else()
    set(QUILLET_PROCESSOR i686)
endif()
set(QUILLET_TRIPLE ${QUILLET_PROCESSOR}-w64-mingw32)
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${QUILLET_TRIPLE}-gcc-win32)
set(CMAKE_CXX_COMPILER ${QUILLET_TRIPLE}-g++-win32)
set(CMAKE_RC_COMPILER ${QUILLET_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${QUILLET_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
