cmake_minimum_required(VERSION 3.21)
# Called by CTest in a Windows build: the layout of bin/ and the PATH that
# CTest gives every test are all a program needs to start.
#   WORK LIBRARY TOOL TEST_PROGRAM QT_PREFIX QT_MAJOR VERSION [EMULATOR]

get_filename_component(bin ${LIBRARY} DIRECTORY)
foreach(program ${TOOL} ${TEST_PROGRAM})
    get_filename_component(dir ${program} DIRECTORY)
    if(NOT dir STREQUAL bin)
        message(FATAL_ERROR "${program} is not beside ${LIBRARY}")
    endif()
endforeach()
file(GLOB copied ${bin}/Qt${QT_MAJOR}Core*.dll ${bin}/libstdc++-6.dll)
if(copied)
    message(FATAL_ERROR "Qt or the compiler runtime is copied into the build's bin/: ${copied}")
endif()
if(NOT EXISTS ${QT_PREFIX}/bin)
    message(FATAL_ERROR "Qt has no bin/ folder at ${QT_PREFIX}")
endif()

if(EMULATOR)
    set(path "$ENV{WINEPATH}")
    string(REPLACE "/" "\\" qt_bin "Z:${QT_PREFIX}/bin")
else()
    set(path "$ENV{PATH}")
    file(TO_NATIVE_PATH "${QT_PREFIX}/bin" qt_bin)
endif()
message(STATUS "PATH as CTest gives it: ${path}")
string(FIND "${path}" "${qt_bin}" at)
if(at EQUAL -1)
    message(FATAL_ERROR "Qt's bin/ (${qt_bin}) is not on the test's PATH")
endif()

# Started from a folder of its own, so nothing is found by accident in the
# current one.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
function(start out_rc out_text)
    execute_process(COMMAND ${EMULATOR} ${ARGN} WORKING_DIRECTORY ${WORK}
                    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
    set(${out_rc} "${rc}" PARENT_SCOPE)
    set(${out_text} "${out}${err}" PARENT_SCOPE)
endfunction()

start(rc text ${TOOL} --version)
if(NOT rc EQUAL 0 OR NOT text MATCHES "NdxCom ${VERSION}")
    message(FATAL_ERROR "ndxcom --version did not start with the test's PATH (${rc}):\n${text}")
endif()
start(rc text ${TEST_PROGRAM} -functions)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${TEST_PROGRAM} did not start with the test's PATH (${rc}):\n${text}")
endif()
message(STATUS "started with the test's PATH: ndxcom and a test program")

# Under wine, the same programs without that PATH: only the program's own
# folder and the system's are searched, as on a Windows machine without Qt
# on PATH. They must not start, or the PATH proved nothing.
if(EMULATOR)
    unset(ENV{WINEPATH})
    start(rc text ${TOOL} --version)
    if(rc EQUAL 0)
        message(FATAL_ERROR "ndxcom started without Qt's bin/ on PATH: some other folder "
                            "hands it Qt's DLLs:\n${text}")
    endif()
    message(STATUS "without the test's PATH ndxcom does not start (${rc}), as on Windows")
endif()
