# Cross-build for 64-bit Windows with Debian's MinGW-w64 toolchain (g++-mingw-w64-x86-64; the
# posix-threads compiler is the one with std::thread). Executables built for the host's use,
# test discovery and the tests themselves, run under Debian's wine64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(cvx_mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${cvx_mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${cvx_mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${cvx_mingw}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${cvx_mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs run through wine-run.sh, which finds the GCC runtime's DLLs for them.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine-run.sh)
