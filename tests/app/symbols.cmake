# Compares what LIBRARY exports, as NM tells, with LIST; with the environment variable VARN_UPDATE_SYMBOLS set, writes that.
# Weak symbols, which come and go with compiler and optimisation, are not promised.
execute_process(COMMAND ${NM} --dynamic --defined-only --demangle --format=posix ${LIBRARY}
    COMMAND sed -E "/ [Wu] [0-9a-f]/d; s/ [A-Za-z] [0-9a-f]* ?[0-9a-f]*$//" COMMAND sort -u OUTPUT_VARIABLE symbols)
if(DEFINED ENV{VARN_UPDATE_SYMBOLS})
    file(WRITE ${LIST} "${symbols}")
endif()
file(WRITE ${LIBRARY}.symbols "${symbols}")
execute_process(COMMAND diff -u ${LIST} ${LIBRARY}.symbols RESULT_VARIABLE result)
if(result)
    message(FATAL_ERROR
        "${LIBRARY} does not export what ${LIST} says. If it is meant: VARN_UPDATE_SYMBOLS=1 ctest -R symbols")
endif()
