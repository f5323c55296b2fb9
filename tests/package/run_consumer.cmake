# Called by CTest: install, configure the consumer, build it, run it.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        string(REPLACE ";" " " cmd "${ARGN}")
        message(FATAL_ERROR "failed (${rc}): ${cmd}")
    endif()
endfunction()

file(REMOVE_RECURSE ${PREFIX} ${CONSUMER_BUILD})
run(${CMAKE_COMMAND} --install ${NDXCOM_BUILD_DIR} --prefix ${PREFIX})

# The library and the programs as each system names them.
if(WINDOWS)
    set(binaries bin/libNdxCom.dll lib/libNdxCom.dll.a bin/ndxcom.exe bin/ndxcom-gallery.exe)
else()
    set(binaries lib/libNdxCom.so.1.2.0 lib/libNdxCom.so.1 bin/ndxcom bin/ndxcom-gallery)
endif()
foreach(f ${binaries} include/NdxCom/QNodrixCom
          include/NdxCom/qnodrixcom.h include/NdxCom/ndxcom_export.h
          include/NdxCom/QNodrixRegistry include/NdxCom/qnodrixregistry.h
          include/NdxCom/QFileSharing include/NdxCom/qfilesharing.h
          include/NdxCom/QNodrixMessageBox include/NdxCom/qnodrixmessagebox.h
          include/NdxCom/QNodrixHelp include/NdxCom/qnodrixhelp.h
          include/NdxCom/private/qfilesharing_p.h
          share/ndxcom/translations/ndxcom_en.qm share/ndxcom/translations/ndxcom_zh.qm
          share/ndxcom/translations/ndxcom_szh.qm share/ndxcom/translations/ndxcom_es.qm
          lib/cmake/NdxCom/NdxComConfig.cmake)
    if(NOT EXISTS ${PREFIX}/${f})
        message(FATAL_ERROR "not installed: ${f}")
    endif()
endforeach()

# A cross build (Windows from Linux) hands its toolchain and its Qt on; the
# consumer then runs through the emulator, with the installed DLL first on
# the search path.
set(cross)
if(TOOLCHAIN)
    list(APPEND cross -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
if(QT_PREFIX AND WINDOWS)
    list(APPEND cross -DQt6_DIR=${QT_PREFIX}/lib/cmake/Qt6)
endif()
run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE} -B ${CONSUMER_BUILD} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} ${cross} -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${CONSUMER_BUILD})
if(EMULATOR)
    string(REPLACE "/" "\\" dlls "Z:${PREFIX}/bin")
    set(ENV{NDXCOM_WINE_DLL_PATH} "${dlls}")
endif()
if(WINDOWS)
    run(${EMULATOR} ${CONSUMER_BUILD}/consumer.exe)
else()
    run(${CONSUMER_BUILD}/consumer)
endif()
