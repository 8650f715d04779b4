# Makes the linker's version script SCRIPT from the list of names EXPORTS.
file( READ ${EXPORTS} names )
string( REGEX REPLACE "([A-Za-z0-9_]+)" "        \\1;" names "${names}" )
file( WRITE ${SCRIPT} "{\n    global:\n${names}    local:\n        *;\n};\n" )
