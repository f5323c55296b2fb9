# Steps shared by the package tests (script mode).

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        string(REPLACE ";" " " cmd "${ARGN}")
        message(FATAL_ERROR "failed (${rc}): ${cmd}")
    endif()
endfunction()

# The environment of a program run from the prefix: no library path, and a
# private home, so the real settings are never read or written.
function(private_env out prefix)
    set(home ${prefix}/../home)
    file(MAKE_DIRECTORY ${home})
    set(${out} ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH HOME=${home}
               XDG_CONFIG_HOME=${home}/.config XDG_DATA_HOME=${home}/.local/share
               XDG_CACHE_HOME=${home}/.cache XDG_CONFIG_DIRS=${home}/etc
               PARENT_SCOPE)
endfunction()

# Every file a consumer of `package` needs is where its package says. The
# library and the programs are named as each system names them (WINDOWS).
function(check_installed prefix package include_root data_name libdir bindir tool_suffix)
    set(h ${include_root}/NdxCom)
    if(WINDOWS)
        set(binaries ${bindir}/lib${package}.dll ${libdir}/lib${package}.dll.a)
        set(exe .exe)
    else()
        set(binaries ${libdir}/lib${package}.so.1.2.0 ${libdir}/lib${package}.so.1
                     ${libdir}/lib${package}.so ${libdir}/pkgconfig/${package}.pc)
        set(exe "")
    endif()
    foreach(f ${binaries}
              ${h}/QNodrixCom ${h}/qnodrixcom.h ${h}/ndxcom_export.h ${h}/ndxcom_global.h
              ${h}/QNodrixRegistry ${h}/qnodrixregistry.h ${h}/QFileSharing ${h}/qfilesharing.h
              ${h}/QNodrixMessageBox ${h}/qnodrixmessagebox.h ${h}/QNodrixHelp
              ${h}/qnodrixhelp.h
              share/${data_name}/translations/ndxcom_en.qm
              share/${data_name}/translations/ndxcom_zh.qm
              share/${data_name}/translations/ndxcom_szh.qm
              share/${data_name}/translations/ndxcom_es.qm
              ${libdir}/cmake/${package}/${package}Config.cmake
              ${libdir}/cmake/${package}/${package}ConfigVersion.cmake
              ${libdir}/cmake/${package}/${package}Targets.cmake)
        if(NOT EXISTS ${prefix}/${f})
            message(FATAL_ERROR "not installed: ${f}")
        endif()
    endforeach()
    # Private headers belong to the library's own tests and tools.
    if(EXISTS ${prefix}/${h}/private)
        message(FATAL_ERROR "private headers installed: ${h}/private")
    endif()
    if(TOOLS)
        foreach(f ndxcom${tool_suffix}${exe} ndxcom-gallery${tool_suffix}${exe})
            if(NOT EXISTS ${prefix}/${bindir}/${f})
                message(FATAL_ERROR "not installed: ${bindir}/${f}")
            endif()
        endforeach()
    endif()
endfunction()

# Builds the consumer against `package` as found in `prefix` and runs it. A
# cross build (Windows from Linux) hands its toolchain (TOOLCHAIN) and its Qt
# (QT_PREFIX) on; the consumer then runs through the emulator (EMULATOR),
# with the installed DLL first on the search path.
function(build_and_run_consumer prefix package source build)
    file(REMOVE_RECURSE ${build})
    # The consumer is built as the library was: with the official Qt on
    # Windows, a Debug consumer of a Release library would load Qt's debug
    # and release DLLs, and two C runtimes, into one process.
    set(consumer_type ${BUILD_TYPE})
    if(NOT consumer_type)
        set(consumer_type RelWithDebInfo)
    endif()
    set(cross)
    if(TOOLCHAIN)
        list(APPEND cross -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
    endif()
    # The cross build's Qt comes through the environment's search path: a
    # list in -DCMAKE_PREFIX_PATH would be split again on its way to the
    # command line.
    set(qt_path)
    if(QT_PREFIX)
        set(qt_path CMAKE_PREFIX_PATH=${QT_PREFIX})
    endif()
    run(${CMAKE_COMMAND} -E env ${qt_path} ${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" ${cross}
        -DCMAKE_PREFIX_PATH=${prefix}
        -DCMAKE_BUILD_TYPE=${consumer_type} -DNDXCOM_PACKAGE=${package})
    run(${CMAKE_COMMAND} --build ${build})
    if(WINDOWS)
        # The installed library and Qt, as a user's PATH has them; under
        # wine that PATH is WINEPATH, in place of the build's.
        if(EMULATOR)
            string(REPLACE "/" "\\" dlls "Z:${prefix}/bin;Z:${QT_PREFIX}/bin")
            set(ENV{WINEPATH} "${dlls}")
        else()
            set(ENV{PATH} "${prefix}/bin;${QT_PREFIX}/bin;$ENV{PATH}")
        endif()
        run(${EMULATOR} ${build}/consumer.exe)
    else()
        private_env(env ${prefix})
        run(${env} ${build}/consumer)
    endif()
endfunction()

# An installed program starts with no library path: its run path finds the
# installed library.
function(run_installed_tool program)
    get_filename_component(prefix ${program} DIRECTORY)
    private_env(env ${prefix}/..)
    execute_process(COMMAND ${env} ${program} info RESULT_VARIABLE rc OUTPUT_VARIABLE out
                    ERROR_VARIABLE err)
    if(NOT rc EQUAL 0 OR NOT out MATCHES "Nodrix")
        message(FATAL_ERROR "${program} info failed (${rc}):\n${out}\n${err}")
    endif()
endfunction()

# pkg-config gives the flags of `package` from this prefix, and they build
# and link a program against it.
function(check_pkg_config prefix package libdir include_root)
    find_program(PKG_CONFIG pkg-config REQUIRED)
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${libdir}/pkgconfig)
    execute_process(COMMAND ${PKG_CONFIG} --cflags --libs ${package} RESULT_VARIABLE rc
                    OUTPUT_VARIABLE flags ERROR_VARIABLE err OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "pkg-config --cflags --libs ${package} failed:\n${err}")
    endif()
    message(STATUS "pkg-config ${package}: ${flags}")
    foreach(want "-I${prefix}/${include_root} " "-I${prefix}/${include_root}/NdxCom "
                 "-L${prefix}/${libdir} " "-l${package} ")
        string(FIND "${flags} " "${want}" at)
        if(at LESS 0)
            message(FATAL_ERROR "pkg-config ${package}: '${want}' missing in: ${flags}")
        endif()
    endforeach()
    execute_process(COMMAND ${PKG_CONFIG} --variable=translationsdir ${package}
                    OUTPUT_VARIABLE qm OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS ${qm}/ndxcom_en.qm)
        message(FATAL_ERROR "pkg-config ${package}: no catalogues in translationsdir '${qm}'")
    endif()

    set(dir ${prefix}/../pkgconfig-${package})
    file(MAKE_DIRECTORY ${dir})
    file(WRITE ${dir}/main.cpp [=[
#include <NdxCom/QNodrixCom>
#include <QNodrixRegistry>
#include <cstdio>
int main()
{
    const bool ok = QNodrixCom::projectFilesExt() == QStringLiteral(".ndx")
        && QNodrixCom::needleFromDegree(90, 1680, true) == 420;
    std::printf("pkg-config consumer: %s\n", ok ? "ok" : "wrong answers");
    return ok ? 0 : 1;
}
]=])
    separate_arguments(args UNIX_COMMAND "${flags}")
    run(${CXX} -std=c++17 -fPIC ${dir}/main.cpp -o ${dir}/main ${args})
    run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${libdir} ${dir}/main)
endfunction()
