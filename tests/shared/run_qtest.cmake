# Runs a QtTest program through an emulator (wine for the Windows build) and
# prints its report: under wine QtTest's own output to stdout does not reach
# CTest, so the report goes to a file first.
#   -DEMULATOR=<wrapper> -DPROGRAM=<test program> -DREPORT=<report file>
file(REMOVE ${REPORT})
execute_process(COMMAND ${EMULATOR} ${PROGRAM} -o ${REPORT},txt RESULT_VARIABLE rc)
if(EXISTS ${REPORT})
    file(READ ${REPORT} report)
    message("${report}")
endif()
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${rc}")
endif()
