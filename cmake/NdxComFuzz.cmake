# Fuzz tests: a reader of hostile data under libFuzzer, run for a bounded
# number of inputs as one more test. Each fuzzer is a small clang project of
# its own, so the main build keeps its compiler. They are added whenever a
# clang++ with -fsanitize=fuzzer is found; NDXCOM_FUZZ=ON makes that a
# requirement.
#
#   ndxcom_add_fuzz_test(NAME <name> RUNS <n> MAX_LEN <bytes> LABELS <labels...>)
#
# builds the project in ${CMAKE_CURRENT_SOURCE_DIR}/fuzz, whose executable is
# <name>, and runs it over its seeds (fuzz/seeds) and a corpus in the build
# tree. On Windows the test is shown as skipped with its reason.

function(ndxcom_add_fuzz_test)
    cmake_parse_arguments(F "" "NAME;RUNS;MAX_LEN" "LABELS" ${ARGN})
    if(WIN32)
        add_test(NAME ${F_NAME} COMMAND ${CMAKE_COMMAND} -E echo
            "left out on Windows: libFuzzer is clang's on Linux; the Linux builds fuzz the reader")
        set_tests_properties(${F_NAME} PROPERTIES SKIP_REGULAR_EXPRESSION "left out on Windows"
                             TIMEOUT 10 LABELS "${F_LABELS};fuzz")
        return()
    endif()
    find_program(NDXCOM_CLANGXX NAMES clang++ clang++-16 clang++-15 clang++-14)
    if(NDXCOM_CLANGXX AND NOT DEFINED NDXCOM_HAVE_LIBFUZZER)
        set(_probe_dir ${PROJECT_BINARY_DIR}/fuzz-probe)
        file(MAKE_DIRECTORY ${_probe_dir})
        file(WRITE ${_probe_dir}/probe.cpp
             "#include <cstddef>\n#include <cstdint>\n"
             "extern \"C\" int LLVMFuzzerTestOneInput(const uint8_t *, size_t) { return 0; }\n")
        execute_process(
            COMMAND ${NDXCOM_CLANGXX} -fsanitize=fuzzer,address,undefined probe.cpp -o probe
            WORKING_DIRECTORY ${_probe_dir}
            RESULT_VARIABLE _probe_result OUTPUT_QUIET ERROR_QUIET)
        if(_probe_result EQUAL 0)
            set(NDXCOM_HAVE_LIBFUZZER ON CACHE INTERNAL "clang++ links libFuzzer")
        else()
            set(NDXCOM_HAVE_LIBFUZZER OFF CACHE INTERNAL "clang++ links libFuzzer")
        endif()
    endif()
    if(NOT NDXCOM_CLANGXX OR NOT NDXCOM_HAVE_LIBFUZZER)
        if(NDXCOM_FUZZ)
            message(FATAL_ERROR "NDXCOM_FUZZ needs a clang++ that links -fsanitize=fuzzer")
        endif()
        message(STATUS "No clang++ with libFuzzer: the fuzz test ${F_NAME} is left out")
        return()
    endif()

    include(ExternalProject)
    set(_build ${CMAKE_CURRENT_BINARY_DIR}/fuzz)
    ExternalProject_Add(${F_NAME}_project
        SOURCE_DIR ${CMAKE_CURRENT_SOURCE_DIR}/fuzz
        BINARY_DIR ${_build}
        CMAKE_ARGS
            -DCMAKE_CXX_COMPILER=${NDXCOM_CLANGXX}
            -DCMAKE_BUILD_TYPE=RelWithDebInfo
            "-DCMAKE_CXX_FLAGS=${NDXCOM_QT_API_CXX_FLAGS}"
            -DNDXCOM_INCLUDE_DIR=${NDXCOM_STAGE_INCLUDE_DIR}
            -DNDXCOM_SOURCE_DIR=${PROJECT_SOURCE_DIR}
            -DNDXCOM_QT_MAJOR=${NDXCOM_QT_MAJOR}
            -DQt${NDXCOM_QT_MAJOR}_DIR=${Qt${NDXCOM_QT_MAJOR}_DIR}
        BUILD_ALWAYS ON
        INSTALL_COMMAND ""
        BUILD_BYPRODUCTS ${_build}/${F_NAME})
    # New inputs go to the build tree, never into the seeds.
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${F_NAME}-corpus)
    add_test(NAME ${F_NAME}
        COMMAND sh ${PROJECT_SOURCE_DIR}/tests/shared/reported.sh ${NDXCOM_REPORTS_DIR}/${F_NAME}.txt
                ${_build}/${F_NAME} -runs=${F_RUNS} -seed=1
                -artifact_prefix=${CMAKE_CURRENT_BINARY_DIR}/ -max_len=${F_MAX_LEN}
                -max_total_time=50 -print_final_stats=1
                ${CMAKE_CURRENT_BINARY_DIR}/${F_NAME}-corpus ${CMAKE_CURRENT_SOURCE_DIR}/fuzz/seeds)
    set_tests_properties(${F_NAME} PROPERTIES
        WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
        TIMEOUT 90 LABELS "${F_LABELS};fuzz"
        ENVIRONMENT "ASAN_OPTIONS=detect_leaks=1;UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
    ndxcom_reports_figures(${F_NAME})
endfunction()
