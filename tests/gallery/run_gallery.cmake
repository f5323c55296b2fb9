# Renders the whole gallery and checks the pictures and the index.
#   -DGALLERY=<program> -DOUT=<folder> -DLANGUAGE=<code, comma-separated codes or all>
#   -DQT_MAJOR=<5 or 6> [-DEMULATOR=<runner of a cross build's program, e.g. wine>]
# Every run is without a display and without a platform named: --help,
# --list and --screenshot find the offscreen platform by themselves.
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

# One language goes straight into OUT, several into OUT/<code>.
if(LANGUAGE STREQUAL "all")
    set(languages it en zh szh es)
else()
    string(REPLACE "," ";" languages "${LANGUAGE}")
endif()
list(LENGTH languages several)

file(READ ${OUT}/index.html index)
set(missing 0)
foreach(language IN LISTS languages)
    if(several GREATER 1)
        set(sub "${language}/")
    else()
        set(sub "")
    endif()
    string(FIND "${index}" "<option value=\"${language}\">" at)
    if(at EQUAL -1)
        message(SEND_ERROR "index.html offers no choice of ${language}")
    endif()
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "\t.*" "" stem "${line}")
        set(png ${OUT}/${sub}${stem}.png)
        if(NOT EXISTS ${png})
            message(SEND_ERROR "no picture for ${sub}${stem}")
            math(EXPR missing "${missing} + 1")
            continue()
        endif()
        file(SIZE ${png} size)
        file(READ ${png} magic LIMIT 8 HEX)
        if(size LESS 1000 OR NOT magic STREQUAL "89504e470d0a1a0a")
            message(SEND_ERROR "${sub}${stem}.png is not a real picture (${size} bytes)")
        endif()
        string(FIND "${index}" "src=\"${sub}${stem}.png\"" at)
        if(at EQUAL -1)
            message(SEND_ERROR "index.html does not show ${sub}${stem}.png")
        endif()
    endforeach()
endforeach()

# Beside each picture the Italian sources: the question's buttons, the
# resize question's text.
foreach(source "class=\"text source\">Si<br>---<br>No</td><td>presentation</td><td>question<"
               "Attenzione:<br>SCS è in Controllo Taglia !!!")
    string(FIND "${index}" "${source}" at)
    if(at EQUAL -1)
        message(SEND_ERROR "index.html lacks the Italian source ${source}")
    endif()
endforeach()

# Qt 6's offscreen platform takes a screen of a workstation's size; Qt 5's
# has its fixed 800x600 one.
if(QT_MAJOR EQUAL 6 AND NOT index MATCHES "rendered on a 1920x1080 screen")
    message(SEND_ERROR "the pictures were not rendered on a 1920x1080 screen")
endif()

# An unknown language is refused before anything is rendered.
execute_process(COMMAND ${headless} ${EMULATOR} ${GALLERY} --screenshot ${OUT}/refused --language xx
                RESULT_VARIABLE rc OUTPUT_QUIET ERROR_VARIABLE err)
if(NOT rc EQUAL 2 OR EXISTS ${OUT}/refused)
    message(SEND_ERROR "--language xx: exit status ${rc}, expected 2 and no folder:\n${err}")
endif()
message(STATUS "${count} dialogs in ${LANGUAGE}, ${missing} without a picture")
