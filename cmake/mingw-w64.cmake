# Builds for 64-bit Windows with MinGW-w64 as Linux distributions bring it. MINGW_ROOT names a folder
# with Qt and the other libraries for it, where there is one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

# The variant whose standard library has threads.
find_program(mingw_compiler NAMES x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-g++ REQUIRED)
set(CMAKE_CXX_COMPILER "${mingw_compiler}")
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Nothing of the computer that builds, except its programs.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${MINGW_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
