# Writes the manual page OUTPUT after TEMPLATE, with the options that PROGRAM --help prints.
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE ".*\nOptions:" "" help "${help}")
string(REGEX REPLACE "\n   +([^ -])" " \\1" help "${help}")
string(REPLACE "-" "\\-" help "${help}")
string(REGEX REPLACE "\n  ([^\n]*[^ \n])  +([^\n]*)" "\n.TP\n.B \\1\n\\2" OPTIONS "${help}")
string(STRIP "${OPTIONS}" OPTIONS)
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
