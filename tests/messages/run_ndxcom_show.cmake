# Called by CTest: runs `ndxcom show` unattended in a private home and checks
# its exit code and, with SCREENSHOT, the picture it wrote.
#   -DNDXCOM=<program> -DWORK=<folder> -DEXPECT=<exit code> [-DSCREENSHOT=<name>]
#   [-DOUTPUT=<regular expression the output must match>]
#   [-DCATALOGUE=<a .qm installed as the only catalogue, ndxcom_en.qm>]
#   -DARGS=<arguments, separated by '|'>
file(REMOVE_RECURSE ${WORK})
foreach(sub home cache config runtime)
    file(MAKE_DIRECTORY ${WORK}/${sub})
endforeach()
file(CHMOD ${WORK}/runtime DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
# Nothing of the real home is read or written, fontconfig's cache included.
set(ENV{HOME} ${WORK}/home)
set(ENV{XDG_CACHE_HOME} ${WORK}/cache)
set(ENV{XDG_CONFIG_HOME} ${WORK}/config)
set(ENV{XDG_RUNTIME_DIR} ${WORK}/runtime)
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{QT_QPA_PLATFORMTHEME} "")
if(CATALOGUE)
    configure_file(${CATALOGUE} ${WORK}/translations/ndxcom_en.qm COPYONLY)
    set(ENV{NDXCOM_TRANSLATIONS} ${WORK}/translations)
endif()

string(REPLACE "|" ";" arguments "${ARGS}")
if(SCREENSHOT)
    list(APPEND arguments --screenshot ${WORK}/${SCREENSHOT})
endif()
execute_process(COMMAND ${EMULATOR} ${NDXCOM} show ${arguments}
    RESULT_VARIABLE rc OUTPUT_VARIABLE output ERROR_VARIABLE errors TIMEOUT 60)
message("${output}${errors}")
if(NOT rc STREQUAL EXPECT)
    message(FATAL_ERROR "ndxcom show ${arguments}: exit code ${rc}, expected ${EXPECT}")
endif()

if(OUTPUT AND NOT output MATCHES "${OUTPUT}")
    message(FATAL_ERROR "the output does not match '${OUTPUT}'")
endif()

if(SCREENSHOT)
    set(png ${WORK}/${SCREENSHOT})
    if(NOT EXISTS ${png})
        message(FATAL_ERROR "no screenshot at ${png}")
    endif()
    file(SIZE ${png} size)
    file(READ ${png} signature LIMIT 8 HEX)
    if(size LESS 100 OR NOT signature STREQUAL "89504e470d0a1a0a")
        message(FATAL_ERROR "${png} is not a PNG picture (${size} bytes, ${signature})")
    endif()
    if(NOT output MATCHES "boxes = 1\n")
        message(FATAL_ERROR "expected exactly one box")
    endif()
endif()
