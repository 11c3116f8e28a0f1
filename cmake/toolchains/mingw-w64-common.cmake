# Shared by the mingw-w64 toolchains: the caller sets NVRANDOM_MINGW_TRIPLE first.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10)

# The posix-threads compilers: std::thread and std::mutex, which googletest needs.
set(CMAKE_C_COMPILER ${NVRANDOM_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${NVRANDOM_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${NVRANDOM_MINGW_TRIPLE}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${NVRANDOM_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs built here run under Wine: ctest, test discovery and the build's own generators go
# through a wrapper that gives them a private Wine prefix inside the build folder.
find_program(NVRANDOM_WINE NAMES wine wine64 wine-stable)
if(NOT NVRANDOM_WINE)
  message(FATAL_ERROR "Wine is needed to run the Windows build's programs and tests but was not "
                      "found on the PATH. Install it with: sudo apt-get install wine64")
endif()
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tests/windows/wine-run.sh
    ${CMAKE_BINARY_DIR}/wine)
