# The 32-bit Windows module: korps.dll for 32-bit hosts.
set(KORPS_MINGW_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
