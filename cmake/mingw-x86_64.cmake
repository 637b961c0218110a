# The 64-bit Windows module: korps.dll for 64-bit hosts.
set(KORPS_MINGW_PROCESSOR x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
