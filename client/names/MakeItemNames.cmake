# Writes a row {"NAME", NUMBER} for each enumerator of the menu's items: cmake -DHEADER=... -DOUT=... -P this file
file(STRINGS ${HEADER} lines REGEX "^    (MENU|MSG|PARA|EVENT)_[A-Za-z0-9_]+ = ")
list(FILTER lines EXCLUDE REGEX "_(END|OWN|OWN_ALT|TextEnd) = ")
set(rows "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^    ((MENU|MSG|PARA|EVENT)_([A-Za-z0-9_]+)) = .*" "{\"\\3\", \\1},\n" row "${line}")
  string(APPEND rows "${row}")
endforeach()
file(WRITE ${OUT} "${rows}")
