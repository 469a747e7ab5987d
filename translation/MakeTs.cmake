# cmake -DTEXTS=texts.txt -DCOLUMN=N -DLANGUAGE=xx_YY -DTS=out.ts -P MakeTs.cmake
# Makes the translation file of one language of the table of all texts; column 2 is English, 3 Chinese.
cmake_minimum_required(VERSION 3.25)
file(STRINGS ${TEXTS} rows ENCODING UTF-8)
set(messages "")
foreach(row IN LISTS rows)
  if(row MATCHES "^(#.*)?$")
    continue()
  endif()
  if(NOT row MATCHES "^([^|]*[^| ]) \\| ([^|]*[^| ]) \\| ([^|]*[^| ])$")
    message(FATAL_ERROR "${TEXTS}: a row is not 'key | English | Chinese': ${row}")
  endif()
  set(key "${CMAKE_MATCH_1}")
  set(text "${CMAKE_MATCH_${COLUMN}}")
  if(key IN_LIST keys)
    message(FATAL_ERROR "${TEXTS}: the key '${key}' stands twice")
  endif()
  list(APPEND keys "${key}")
  foreach(part IN ITEMS key text)
    string(REPLACE "&" "&amp;" ${part} "${${part}}")
    string(REPLACE "<" "&lt;" ${part} "${${part}}")
    string(REPLACE ">" "&gt;" ${part} "${${part}}")
  endforeach()
  string(APPEND messages "    <message>\n        <source>${key}</source>\n"
                         "        <translation>${text}</translation>\n    </message>\n")
endforeach()
file(WRITE ${TS} "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                 "<TS version=\"2.1\" language=\"${LANGUAGE}\" sourcelanguage=\"en\">\n<context>\n"
                 "    <name>MainWindow</name>\n${messages}</context>\n</TS>\n")
