# Binary packages with CPack: `cpack` in a build folder. On Windows a ZIP that
# runs where it is unpacked: the library, the tools, the catalogues, and the
# Qt and compiler runtime DLLs and Qt plugins the tools need, in bin/ beside
# the programs. Elsewhere a tarball of the same components, without Qt (the
# system's package manager provides it).

# The Qt runtime of a Windows install (component QtRuntime): Qt's DLLs and the
# plugins the tools load (the Windows and offscreen platforms, the Vista
# style, the icon reader), and the compiler's own runtime DLLs.
option(NDXCOM_DEPLOY_QT "Windows: install the Qt and compiler runtime DLLs beside the programs"
       ${WIN32})
if(WIN32 AND NDXCOM_DEPLOY_QT)
    set(_qt Qt${NDXCOM_QT_MAJOR})
    foreach(module Core Gui Widgets)
        install(FILES $<TARGET_FILE:${_qt}::${module}> DESTINATION ${CMAKE_INSTALL_BINDIR}
                COMPONENT QtRuntime)
    endforeach()
    # The Windows style is QModernWindowsStylePlugin from Qt 6.7 on. A Qt
    # whose packages do not load their plugins' targets by themselves (as
    # Debian builds Qt: QT_SKIP_AUTO_PLUGIN_INCLUSION) has each looked up.
    foreach(plugin QWindowsIntegrationPlugin:platforms QOffscreenIntegrationPlugin:platforms
                   QWindowsVistaStylePlugin:styles QModernWindowsStylePlugin:styles
                   QICOPlugin:imageformats)
        string(REPLACE ":" ";" plugin "${plugin}")
        list(GET plugin 0 target)
        list(GET plugin 1 folder)
        if(NOT TARGET ${_qt}::${target} AND NDXCOM_QT_MAJOR EQUAL 6)
            find_package(${_qt}${target} CONFIG QUIET
                         PATHS ${${_qt}Gui_DIR} ${${_qt}Widgets_DIR} NO_DEFAULT_PATH)
        endif()
        if(TARGET ${_qt}::${target})
            install(FILES $<TARGET_FILE:${_qt}::${target}>
                    DESTINATION ${CMAKE_INSTALL_BINDIR}/${folder} COMPONENT QtRuntime)
        endif()
    endforeach()
    if(MINGW)
        foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
            execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                            OUTPUT_VARIABLE _path OUTPUT_STRIP_TRAILING_WHITESPACE)
            if(IS_ABSOLUTE "${_path}" AND EXISTS "${_path}")
                get_filename_component(_path "${_path}" REALPATH)
                install(FILES ${_path} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT QtRuntime)
            elseif(NOT dll STREQUAL "libgcc_s_seh-1.dll")
                message(WARNING "${dll} not found: the Windows package will lack it")
            endif()
        endforeach()
    else()
        # MSVC: the C and C++ runtime the Visual Studio installation provides.
        set(CMAKE_INSTALL_SYSTEM_RUNTIME_COMPONENT QtRuntime)
        set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION ${CMAKE_INSTALL_BINDIR})
        include(InstallRequiredSystemLibraries)
    endif()
endif()

set(CPACK_PACKAGE_NAME ${NDXCOM_PACKAGE_NAME})
set(CPACK_PACKAGE_VENDOR "NdxCom")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_SYSTEM_NAME windows-x86_64)
else()
    set(CPACK_GENERATOR TGZ)
endif()
# One archive of what runs: no headers, CMake files or import library.
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_ALL Runtime Tools)
if(WIN32 AND NDXCOM_DEPLOY_QT)
    list(APPEND CPACK_COMPONENTS_ALL QtRuntime)
endif()
if(WIN32)
    set(NDXCOM_PACKAGE_FILE_NAME "${NDXCOM_PACKAGE_NAME}-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME}")
else()
    set(NDXCOM_PACKAGE_FILE_NAME "${NDXCOM_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}")
endif()
set(CPACK_PACKAGE_FILE_NAME ${NDXCOM_PACKAGE_FILE_NAME})
set(CPACK_ARCHIVE_FILE_NAME ${NDXCOM_PACKAGE_FILE_NAME})
include(CPack)
