# Script mode: builds the library as a package does and compares it with the
# baseline (see CMakeLists.txt).

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        string(REPLACE ";" " " cmd "${ARGN}")
        message(FATAL_ERROR "failed (${rc}): ${cmd}")
    endif()
endfunction()

if(NOT EXISTS ${BASELINE})
    message(FATAL_ERROR "no baseline: ${BASELINE} (scripts/abi-baseline writes it)")
endif()

run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${BUILD} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_BUILD_TYPE=RelWithDebInfo
    -DNDXCOM_QT_MAJOR=${QT_MAJOR} -DQt${QT_MAJOR}_DIR=${QT_DIR}
    -DBUILD_TESTING=OFF -DNDXCOM_BUILD_TOOLS=OFF -DNDXCOM_BUILD_BENCHMARKS=OFF)
run(${CMAKE_COMMAND} --build ${BUILD} --target NdxCom)
file(GLOB library ${BUILD}/src/lib${PACKAGE}.so.*.*.*)

# Only the public classes are exported: no test hook, no internal function.
execute_process(COMMAND nm -D --defined-only -C ${library}
                OUTPUT_VARIABLE symbols RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "nm failed on ${library}")
endif()
string(REPLACE "\n" ";" symbols "${symbols}")
set(foreign)
set(count 0)
foreach(line IN LISTS symbols)
    if(line STREQUAL "")
        continue()
    endif()
    math(EXPR count "${count} + 1")
    string(REGEX REPLACE "^[0-9a-f]* [A-Za-z] " "" name "${line}")
    set(class "(QNodrixCom|QNodrixRegistry|QFileSharing|QNodrixMessageBox|QNodrixHelp)")
    if(name MATCHES "^${class}::"
       OR name MATCHES "^(typeinfo for|typeinfo name for|vtable for|non-virtual thunk to) ${class}"
       OR name MATCHES "^std::"
       OR name MATCHES "^(__bss_start|_edata|_end)$")
        continue()
    endif()
    list(APPEND foreign "${name}")
endforeach()
if(foreign)
    list(JOIN foreign "\n  " shown)
    message(FATAL_ERROR "exported beside the public API:\n  ${shown}")
endif()
message(STATUS "${count} exported symbols, all of the public API")

# Incompatible changes: abidiff without the additions. Bit 2 (4) is an ABI
# change, bit 3 (8) an incompatible one; either fails.
execute_process(COMMAND ${ABIDUMP} ${library} ${BUILD}/current.abi RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "abidw failed on ${library}")
endif()
execute_process(COMMAND ${ABIDIFF} --no-added-syms --suppressions ${SUPPRESSIONS}
                        ${BASELINE} ${BUILD}/current.abi
                OUTPUT_VARIABLE report RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "the ABI changed against ${BASELINE} (abidiff exit ${rc}):\n${report}\n"
                        "An intended break needs a new baseline, a new SOVERSION and a "
                        "CHANGELOG entry: see docs/abi.md.")
endif()

# Additions are compatible; they are listed so that a reviewer sees them.
execute_process(COMMAND ${ABIDIFF} --suppressions ${SUPPRESSIONS} ${BASELINE} ${BUILD}/current.abi
                OUTPUT_VARIABLE report)
if(report MATCHES "[1-9][0-9]* Added")
    message(STATUS "additions to the ABI (compatible; record them with scripts/abi-baseline):\n"
                   "${report}")
else()
    message(STATUS "the ABI is the baseline's")
endif()
