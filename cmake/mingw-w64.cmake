# Cross-compiling the Windows build from Linux with mingw-w64 (Debian's
# g++-mingw-w64-x86-64):
#   cmake -S . -B build-windows -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake
# The programs are linked statically, so they run on Windows (or under wine)
# without the compiler's DLLs beside them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(MINGW_PREFIX x86_64-w64-mingw32 CACHE STRING "Prefix of the mingw-w64 tools")
# The compilers with POSIX threads where there are both kinds (Debian): only
# they have std::mutex, which GoogleTest needs.
find_program(MINGW_CXX NAMES ${MINGW_PREFIX}-g++-posix ${MINGW_PREFIX}-g++ REQUIRED)
find_program(MINGW_CC NAMES ${MINGW_PREFIX}-gcc-posix ${MINGW_PREFIX}-gcc REQUIRED)
set(CMAKE_C_COMPILER ${MINGW_CC})
set(CMAKE_CXX_COMPILER ${MINGW_CXX})
set(CMAKE_RC_COMPILER ${MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Tests run through wine when one is there.
find_program(SKARMADA_WINE NAMES wine64 wine)
if(SKARMADA_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${SKARMADA_WINE})
endif()
