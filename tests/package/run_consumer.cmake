cmake_minimum_required(VERSION 3.21)
# Called by CTest: install this build, check what its package holds, build a
# consumer against it and run it; run the installed ndxcom without any
# library path, and ask pkg-config for the flags.
#   NDXCOM_BUILD_DIR PREFIX CONSUMER_SOURCE CONSUMER_BUILD GENERATOR CXX CXX_FLAGS
#   PACKAGE (NdxCom or NdxComQt5) QT_MAJOR TOOL_SUFFIX INCLUDE_ROOT DATA_NAME
#   LIBDIR BINDIR TOOLS
# and for a cross build: TOOLCHAIN QT_PREFIX EMULATOR WINDOWS
include(${CMAKE_CURRENT_LIST_DIR}/packagecheck.cmake)

file(REMOVE_RECURSE ${PREFIX} ${CONSUMER_BUILD})
run(${CMAKE_COMMAND} --install ${NDXCOM_BUILD_DIR} --prefix ${PREFIX})

check_installed(${PREFIX} ${PACKAGE} ${INCLUDE_ROOT} ${DATA_NAME} ${LIBDIR} ${BINDIR}
                "${TOOL_SUFFIX}")
build_and_run_consumer(${PREFIX} ${PACKAGE} ${CONSUMER_SOURCE} ${CONSUMER_BUILD})
# The run path and pkg-config are matters of the Linux installation: a
# Windows program finds the DLL beside it.
if(NOT WINDOWS)
    if(TOOLS)
        run_installed_tool(${PREFIX}/${BINDIR}/ndxcom${TOOL_SUFFIX})
    endif()
    check_pkg_config(${PREFIX} ${PACKAGE} ${LIBDIR} ${INCLUDE_ROOT})
endif()
