# Installs the build tree BUILD below WORK, builds the project CONSUMER against what was installed, and runs it.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${ARGN}: ${result}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
# Moved, so that nothing can lean on the place it was installed to.
file(RENAME ${WORK}/prefix ${WORK}/moved)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/build -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${WORK}/moved
    -DCMAKE_CXX_FLAGS=${FLAGS} -DCMAKE_BUILD_TYPE=Debug)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/consumer)
