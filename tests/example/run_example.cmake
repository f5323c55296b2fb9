cmake_minimum_required(VERSION 3.21)
# Called by CTest: install this build into a private prefix, build the
# example against the installed package only, walk the road.
#   NDXCOM_BUILD_DIR WORK EXAMPLE_SOURCE EXAMPLE_BUILD GENERATOR CXX CXX_FLAGS
#   PACKAGE ROAD
include(${CMAKE_CURRENT_LIST_DIR}/../package/packagecheck.cmake)

set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${NDXCOM_BUILD_DIR} --prefix ${prefix})
# Only the installed package: nothing of the build tree is on the path.
run(${CMAKE_COMMAND} -S ${EXAMPLE_SOURCE} -B ${EXAMPLE_BUILD} -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Debug
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DNDXCOM_PACKAGE=${PACKAGE})
run(${CMAKE_COMMAND} --build ${EXAMPLE_BUILD})
run(bash ${ROAD} ${EXAMPLE_BUILD}/ndxcom-mdi-example ${WORK}/road)
