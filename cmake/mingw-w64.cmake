# SPDX-License-Identifier: GPL-3.0-or-later
# The toolchain for 64-bit Windows: Debian's mingw-w64 with POSIX threads. What is linked comes from one folder,
# QUILLERY_WINDOWS_LIBRARIES, which packaging/windows/build fills; what the build machine has of its own is never found.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${mingw} ${QUILLERY_WINDOWS_LIBRARIES})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUILLERY_WINDOWS_LIBRARIES)
set(ENV{PKG_CONFIG_LIBDIR} "${QUILLERY_WINDOWS_LIBRARIES}/lib/pkgconfig")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
