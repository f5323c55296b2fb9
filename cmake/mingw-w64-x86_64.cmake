# Cross-compiles for 64-bit Windows with Debian's mingw-w64 g++ (posix threads
# variant, which std::thread and Qt need). Used both to build Qt for Windows
# (scripts/build-qt-mingw) and by the windows preset. Programs run under wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_ndxcom_mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_ndxcom_mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_ndxcom_mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${_ndxcom_mingw}-windres)
set(CMAKE_AR ${_ndxcom_mingw}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB ${_ndxcom_mingw}-gcc-ranlib-posix CACHE FILEPATH "")

# Libraries and headers come from the mingw sysroot and the Windows Qt prefix
# (CMAKE_PREFIX_PATH); programs (moc, lrelease, ...) from the host.
set(CMAKE_FIND_ROOT_PATH /usr/${_ndxcom_mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
