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

# Qt for Windows: the one scripts/build-qt-mingw builds into the cache folder
# for the version of the installed Qt 6 (6.4.2 on Debian 12, 6.8.2 on Debian
# 13), unless a prefix is given. Its host tools (moc, rcc, uic, the Linguist
# tools) are those of that installed Qt.
if(NOT CMAKE_PREFIX_PATH)
    if(NOT "$ENV{XDG_CACHE_HOME}" STREQUAL "")
        set(_ndxcom_cache "$ENV{XDG_CACHE_HOME}")
    else()
        set(_ndxcom_cache "$ENV{HOME}/.cache")
    endif()
    set(_ndxcom_host_qt "")
    set(_ndxcom_version_file /usr/lib/x86_64-linux-gnu/cmake/Qt6Core/Qt6CoreConfigVersionImpl.cmake)
    if(EXISTS ${_ndxcom_version_file})
        file(STRINGS ${_ndxcom_version_file} _ndxcom_host_qt
             REGEX "^set\\(PACKAGE_VERSION \"[0-9.]+\"\\)")
    endif()
    if(_ndxcom_host_qt MATCHES "\"([0-9.]+)\"")
        set(_ndxcom_qt "${_ndxcom_cache}/ndxcom/qt-${CMAKE_MATCH_1}-mingw64")
        if(EXISTS "${_ndxcom_qt}/.ndxcom-complete")
            set(CMAKE_PREFIX_PATH "${_ndxcom_qt}")
        endif()
    endif()
endif()
if(NOT DEFINED QT_HOST_PATH AND EXISTS /usr/lib/x86_64-linux-gnu/cmake/Qt6HostInfo)
    set(QT_HOST_PATH /usr CACHE PATH "Host Qt for the tools of a cross-built Qt")
    set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH
        "CMake packages of the host Qt")
endif()
