cmake_minimum_required(VERSION 3.21)
# Called by CTest: runs `ndxcom name` in a private home, next to a projects
# folder P holding Mod1.pmc, Prg1.ndx and Prg2.ndx, and checks its exit code
# and output. "<work>" in the arguments stands for the work folder. The
# user's settings must stay untouched: nothing may appear in the private
# config folder.
#   -DNDXCOM=<program> -DWORK=<folder> -DEXPECT=<exit code>
#   -DOUTPUT=<regular expression the output must match>
#   -DARGS=<arguments, separated by '|'>
file(REMOVE_RECURSE ${WORK})
foreach(sub home cache config runtime P)
    file(MAKE_DIRECTORY ${WORK}/${sub})
endforeach()
file(TOUCH ${WORK}/P/Mod1.pmc ${WORK}/P/Prg1.ndx ${WORK}/P/Prg2.ndx)
set(ENV{HOME} ${WORK}/home)
set(ENV{XDG_CACHE_HOME} ${WORK}/cache)
set(ENV{XDG_CONFIG_HOME} ${WORK}/config)
set(ENV{XDG_RUNTIME_DIR} ${WORK}/runtime)

string(REPLACE "<work>" "${WORK}" ARGS "${ARGS}")
string(REPLACE "|" ";" arguments "${ARGS}")
execute_process(COMMAND ${EMULATOR} ${NDXCOM} name ${arguments}
    RESULT_VARIABLE rc OUTPUT_VARIABLE output ERROR_VARIABLE errors TIMEOUT 60)
message("${output}${errors}")
if(NOT rc STREQUAL EXPECT)
    message(FATAL_ERROR "ndxcom name ${arguments}: exit code ${rc}, expected ${EXPECT}")
endif()
if(OUTPUT)
    string(REPLACE "<work>" "${WORK}" OUTPUT "${OUTPUT}")
    if(NOT output MATCHES "${OUTPUT}")
        message(FATAL_ERROR "the output does not match '${OUTPUT}'")
    endif()
endif()
file(GLOB_RECURSE written ${WORK}/config/* ${WORK}/home/*)
if(written)
    message(FATAL_ERROR "settings written into the user's folders: ${written}")
endif()
