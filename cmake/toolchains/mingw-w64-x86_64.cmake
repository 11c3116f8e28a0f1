# 64-bit Windows with mingw-w64 (Debian g++-mingw-w64-x86-64-posix), programs run under Wine.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(NVRANDOM_MINGW_TRIPLE x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
