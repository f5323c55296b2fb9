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

foreach(f lib/libNdxCom.so.1.2.0 lib/libNdxCom.so.1 include/NdxCom/QNodrixCom
          include/NdxCom/qnodrixcom.h include/NdxCom/ndxcom_export.h
          include/NdxCom/QNodrixRegistry include/NdxCom/qnodrixregistry.h
          include/NdxCom/QFileSharing include/NdxCom/qfilesharing.h
          include/NdxCom/QNodrixMessageBox include/NdxCom/qnodrixmessagebox.h
          include/NdxCom/QNodrixHelp include/NdxCom/qnodrixhelp.h
          include/NdxCom/private/qfilesharing_p.h
          share/ndxcom/translations/ndxcom_en.qm share/ndxcom/translations/ndxcom_zh.qm
          share/ndxcom/translations/ndxcom_szh.qm share/ndxcom/translations/ndxcom_es.qm
          bin/ndxcom bin/ndxcom-gallery
          lib/cmake/NdxCom/NdxComConfig.cmake)
    if(NOT EXISTS ${PREFIX}/${f})
        message(FATAL_ERROR "not installed: ${f}")
    endif()
endforeach()

run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE} -B ${CONSUMER_BUILD} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${CONSUMER_BUILD})
run(${CONSUMER_BUILD}/consumer)
