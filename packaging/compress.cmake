# Run by CPack before it makes packages: what is read on paper comes compressed there, without a date.
file(GLOB_RECURSE papers "${CPACK_TEMPORARY_DIRECTORY}/*.1" "${CPACK_TEMPORARY_DIRECTORY}/*changelog")
foreach(paper IN LISTS papers)
    if(NOT IS_SYMLINK ${paper})
        execute_process(COMMAND gzip -9nf ${paper} COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
