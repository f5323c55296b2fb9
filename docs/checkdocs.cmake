# Runs Doxygen with the check configuration and fails when it reports
# anything: an undocumented public symbol, an unknown command, a broken
# reference. Called by the test docs_undocumented with DOXYGEN, DOXYFILE,
# OUTPUT and LOG.
foreach(var DOXYGEN DOXYFILE OUTPUT LOG)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "checkdocs.cmake: ${var} is not set")
    endif()
endforeach()

file(REMOVE_RECURSE ${OUTPUT})
file(MAKE_DIRECTORY ${OUTPUT})
execute_process(COMMAND ${DOXYGEN} ${DOXYFILE}
                WORKING_DIRECTORY ${OUTPUT}
                RESULT_VARIABLE rc
                OUTPUT_VARIABLE out
                ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "doxygen failed (${rc}):\n${out}${err}")
endif()
if(NOT EXISTS ${LOG})
    message(FATAL_ERROR "doxygen wrote no warning log at ${LOG}")
endif()
file(READ ${LOG} warnings)
string(STRIP "${warnings}" warnings)
if(NOT warnings STREQUAL "" OR NOT err STREQUAL "")
    string(REGEX MATCHALL "\n" lines "\n${warnings}")
    list(LENGTH lines count)
    message(FATAL_ERROR
            "The API reference has ${count} warning(s); document every public symbol "
            "and fix every warning:\n${warnings}\n${err}")
endif()
message(STATUS "API reference: every public symbol documented, no warnings")
