# Script mode: makes the Windows ZIP, unpacks it into an empty folder and runs
# its programs there (see CMakeLists.txt).
include(${CMAKE_CURRENT_LIST_DIR}/packagecheck.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/out ${WORK}/unpacked)
run(${CPACK} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK}/out)
if(NOT EXISTS ${WORK}/out/${PACKAGE_FILE})
    message(FATAL_ERROR "cpack made no ${PACKAGE_FILE}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E tar xf ${WORK}/out/${PACKAGE_FILE}
                WORKING_DIRECTORY ${WORK}/unpacked RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "the ZIP does not unpack")
endif()
file(GLOB top LIST_DIRECTORIES true ${WORK}/unpacked/*)
list(LENGTH top count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "the ZIP should hold one folder, it holds: ${top}")
endif()
set(bin ${top}/${BINDIR})

# What a program needs to start on a clean Windows, and nothing to build with.
foreach(f ${BINDIR}/ndxcom${TOOL_SUFFIX}.exe ${BINDIR}/ndxcom-gallery${TOOL_SUFFIX}.exe
          ${BINDIR}/platforms/qwindows.dll ${BINDIR}/platforms/qoffscreen.dll)
    if(NOT EXISTS ${top}/${f})
        message(FATAL_ERROR "not in the ZIP: ${f}")
    endif()
endforeach()
file(GLOB_RECURSE dlls RELATIVE ${top} ${top}/*.dll)
file(GLOB_RECURSE catalogues RELATIVE ${top} ${top}/*.qm)
file(GLOB_RECURSE development RELATIVE ${top} ${top}/*.h ${top}/*.cmake ${top}/*.a ${top}/*.pc)
if(NOT dlls MATCHES "NdxCom[^;]*\\.dll" OR NOT dlls MATCHES "Qt[56]Core")
    message(FATAL_ERROR "the ZIP lacks the library or Qt: ${dlls}")
endif()
list(LENGTH catalogues qms)
if(qms LESS 4)
    message(FATAL_ERROR "the ZIP holds ${qms} catalogues, not the four languages")
endif()
if(development)
    message(FATAL_ERROR "files to build with in the ZIP: ${development}")
endif()

# Run from the unpacked folder, with no DLL folder but the program's own.
unset(ENV{WINEPATH})
set(ENV{HOME} ${WORK}/home)
execute_process(COMMAND ${EMULATOR} ${bin}/ndxcom${TOOL_SUFFIX}.exe --version
                WORKING_DIRECTORY ${WORK} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0 OR NOT out MATCHES "NdxCom ${VERSION}")
    message(FATAL_ERROR "ndxcom --version from the ZIP failed (${rc}):\n${out}\n${err}")
endif()
message(STATUS "from the ZIP: ${out}")

execute_process(COMMAND ${EMULATOR} ${bin}/ndxcom-gallery${TOOL_SUFFIX}.exe --list
                WORKING_DIRECTORY ${WORK} RESULT_VARIABLE rc OUTPUT_VARIABLE listing ERROR_VARIABLE err)
if(NOT rc EQUAL 0 OR NOT listing MATCHES "\t")
    message(FATAL_ERROR "ndxcom-gallery --list from the ZIP failed (${rc}):\n${err}")
endif()
string(REGEX MATCH "^[^\n]*" first "${listing}")
message(STATUS "the gallery's first dialog: ${first}")

set(picture ${WORK}/picture.png)
execute_process(COMMAND ${EMULATOR} ${bin}/ndxcom${TOOL_SUFFIX}.exe show presentation warning
                        "Calza.ndx" --screenshot Z:${picture} --language en
                WORKING_DIRECTORY ${WORK} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0 OR NOT EXISTS ${picture})
    message(FATAL_ERROR "ndxcom show --screenshot from the ZIP failed (${rc}):\n${out}\n${err}")
endif()
file(SIZE ${picture} size)
if(size LESS 1000)
    message(FATAL_ERROR "the picture from the ZIP is ${size} bytes")
endif()
message(STATUS "a dialog rendered from the ZIP: ${size} bytes")
