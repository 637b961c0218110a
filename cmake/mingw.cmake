# Cross build of a Windows module with MinGW-w64, for the processor that
# cmake/mingw-i686.cmake or cmake/mingw-x86_64.cmake names.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${KORPS_MINGW_PROCESSOR})
set(toolchain ${KORPS_MINGW_PROCESSOR}-w64-mingw32)

# The posix thread model: the win32 one has no std::mutex or std::thread.
set(CMAKE_C_COMPILER ${toolchain}-gcc-posix)
set(CMAKE_CXX_COMPILER ${toolchain}-g++-posix)
set(CMAKE_RC_COMPILER ${toolchain}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${toolchain})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
