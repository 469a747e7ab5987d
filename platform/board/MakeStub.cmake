# cmake -DHEADER=NAME.h -DPREFIX=PREFIX -DSTUB=NAME.cpp -P MakeStub.cmake
# A library for the linker of a header's functions whose names begin like that. Nobody may call them.
cmake_minimum_required(VERSION 3.25)
file(READ ${HEADER} text)
string(REGEX REPLACE "//[^\n]*" "" text "${text}")
string(REGEX MATCHALL "\n[a-z][^\n;]*[ *]${PREFIX}[A-Za-z0-9_]*\\([^;{]*\\);" functions "${text}")
if(NOT functions)
  message(FATAL_ERROR "${HEADER}: no function begins with '${PREFIX}'")
endif()
# The end of a declaration also ends an element of CMake's list.
string(REPLACE ");" ")\n{\n    __builtin_trap();\n}\n" functions "${functions};")
string(REPLACE "\n;" "\n" functions "${functions}")
file(WRITE ${STUB} "#include \"${HEADER}\"\n\nextern \"C\" {${functions}}\n")
