# Run by CPack before it makes packages: what is read on paper comes compressed there, without a date.
file(GLOB_RECURSE papers "${CPACK_TEMPORARY_DIRECTORY}/*/man/*.1" "${CPACK_TEMPORARY_DIRECTORY}/*/doc/*/changelog")
foreach(paper IN LISTS papers)
    execute_process(COMMAND gzip -9nf ${paper} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
