cmake_minimum_required(VERSION 3.21)
# Called by CTest from the Qt 6 build: installs it and a Qt 5 build of the
# same sources into one prefix, then serves a consumer of each from there.
include(${CMAKE_CURRENT_LIST_DIR}/packagecheck.cmake)

set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# The Qt 5 build keeps its folder between runs, so a second run only builds
# what changed. The library and its catalogues are enough: its programs are
# installed and run by the Qt 5 leg's own package test.
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${QT5_BUILD_DIR} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNDXCOM_QT_MAJOR=5
    -DBUILD_TESTING=OFF -DNDXCOM_BUILD_TOOLS=OFF -DNDXCOM_BUILD_BENCHMARKS=OFF
    -DCMAKE_INSTALL_LIBDIR=${LIBDIR} -DCMAKE_INSTALL_BINDIR=${BINDIR}
    -DCMAKE_INSTALL_INCLUDEDIR=${INCLUDEDIR})
run(${CMAKE_COMMAND} --build ${QT5_BUILD_DIR})

# Each build writes the list of what it installed; no path may be in both.
run(${CMAKE_COMMAND} --install ${QT6_BUILD_DIR} --prefix ${prefix})
file(STRINGS ${QT6_BUILD_DIR}/install_manifest.txt qt6_files)
run(${CMAKE_COMMAND} --install ${QT5_BUILD_DIR} --prefix ${prefix})
file(STRINGS ${QT5_BUILD_DIR}/install_manifest.txt qt5_files)
set(shared "")
foreach(f IN LISTS qt6_files)
    if(f IN_LIST qt5_files)
        list(APPEND shared ${f})
    endif()
endforeach()
if(shared)
    string(REPLACE ";" "\n  " shared "${shared}")
    message(FATAL_ERROR "installed by both builds:\n  ${shared}")
endif()
list(LENGTH qt6_files n6)
list(LENGTH qt5_files n5)
message(STATUS "Qt 6 build: ${n6} files, Qt 5 build: ${n5} files, none in common")

check_installed(${prefix} NdxCom ${INCLUDEDIR} ndxcom ${LIBDIR} ${BINDIR} "")
set(TOOLS OFF)
check_installed(${prefix} NdxComQt5 ${INCLUDEDIR}/NdxComQt5 ndxcom-qt5 ${LIBDIR} ${BINDIR} "")

foreach(package NdxCom NdxComQt6 NdxComQt5)
    build_and_run_consumer(${prefix} ${package} ${CONSUMER_SOURCE} ${WORK}/consumer-${package})
endforeach()

run_installed_tool(${prefix}/${BINDIR}/ndxcom)

check_pkg_config(${prefix} NdxCom ${LIBDIR} ${INCLUDEDIR})
check_pkg_config(${prefix} NdxComQt5 ${LIBDIR} ${INCLUDEDIR}/NdxComQt5)
