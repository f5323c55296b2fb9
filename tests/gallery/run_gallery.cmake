# Renders the whole gallery and checks the pictures and the index. EMULATOR,
# when set, runs the program (wine for the Windows build). Every run is
# without a display and without a platform named: --help, --list and
# --screenshot find the offscreen platform by themselves.
file(REMOVE_RECURSE ${OUT})
set(headless ${CMAKE_COMMAND} -E env --unset=QT_QPA_PLATFORM --unset=DISPLAY
             --unset=WAYLAND_DISPLAY)
execute_process(COMMAND ${headless} ${EMULATOR} ${GALLERY} --help OUTPUT_VARIABLE help RESULT_VARIABLE rc
                ERROR_VARIABLE err)
if(NOT rc EQUAL 0 OR NOT help MATCHES "--screenshot <DIR>")
    message(FATAL_ERROR "ndxcom-gallery --help failed (${rc}):\n${help}\n${err}")
endif()
execute_process(COMMAND ${headless} ${EMULATOR} ${GALLERY} --list OUTPUT_VARIABLE listing RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "ndxcom-gallery --list failed (${rc})")
endif()
# Sample arguments hold semicolons, CMake's list separator.
string(REPLACE ";" "," listing "${listing}")
string(REGEX MATCHALL "[^\n]+" lines "${listing}")
list(LENGTH lines count)
if(count LESS 200)
    message(FATAL_ERROR "the gallery lists ${count} dialogs, expected about two hundred")
endif()

execute_process(COMMAND ${headless} ${EMULATOR} ${GALLERY} --screenshot ${OUT} --language ${LANGUAGE}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "ndxcom-gallery --screenshot failed (${rc}):\n${out}\n${err}")
endif()

file(READ ${OUT}/index.html index)
set(missing 0)
foreach(line IN LISTS lines)
    string(REGEX REPLACE "\t.*" "" stem "${line}")
    set(png ${OUT}/${stem}.png)
    if(NOT EXISTS ${png})
        message(SEND_ERROR "no picture for ${stem}")
        math(EXPR missing "${missing} + 1")
        continue()
    endif()
    file(SIZE ${png} size)
    file(READ ${png} magic LIMIT 8 HEX)
    if(size LESS 1000 OR NOT magic STREQUAL "89504e470d0a1a0a")
        message(SEND_ERROR "${stem}.png is not a real picture (${size} bytes)")
    endif()
    string(FIND "${index}" "src=\"${stem}.png\"" at)
    if(at EQUAL -1)
        message(SEND_ERROR "index.html does not show ${stem}.png")
    endif()
endforeach()
message(STATUS "${count} dialogs, ${missing} without a picture")
