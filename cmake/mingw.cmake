# What the two architectures' toolchains share. The run time of the win32 thread model uses Windows' own locks: that of
# the posix model would add a thread library of its own, and its licence, to everything that is shipped.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${QUILLET_TRIPLE}-gcc-win32)
set(CMAKE_CXX_COMPILER ${QUILLET_TRIPLE}-g++-win32)
set(CMAKE_RC_COMPILER ${QUILLET_TRIPLE}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${QUILLET_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
