# The closed libraries of the board, a row each: its name, its header in platform/include, and how the names of its
# functions begin, where a header tells of two.
set(FPD_BOARD_LIBRARIES
    "apipc2 apipc.h apipc_"
    "apcard apipc.h apcard_"
    "flashx flashx.h"
    "sysconf sysconf.h"
    "netstatus netstatus.h")

# They are linked by their names. Who has them says where; else the linker gets their symbols from stubs that are
# made of the headers, and only the device has the real ones.
set(FPD_BOARD_LIBRARY_PATH "" CACHE PATH "Folder of the board's closed libraries; empty: stubs of them")

foreach(row IN LISTS FPD_BOARD_LIBRARIES)
  string(REGEX REPLACE " +" ";" row "${row}")
  list(POP_FRONT row name header prefix)
  if(FPD_BOARD_LIBRARY_PATH)
    find_library(FPD_BOARD_${name} ${name} PATHS ${FPD_BOARD_LIBRARY_PATH} NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    target_link_libraries(fpd_platform_board PUBLIC ${FPD_BOARD_${name}})
    continue()
  endif()
  set(stub ${CMAKE_CURRENT_BINARY_DIR}/stubs/${name}.cpp)
  set(include ${CMAKE_CURRENT_SOURCE_DIR}/include/${header})
  set(script ${CMAKE_CURRENT_SOURCE_DIR}/board/MakeStub.cmake)
  add_custom_command(OUTPUT ${stub} DEPENDS ${include} ${script} VERBATIM
    COMMAND ${CMAKE_COMMAND} -DHEADER=${include} -DPREFIX=${prefix} -DSTUB=${stub} -P ${script})
  add_library(fpd_stub_${name} SHARED EXCLUDE_FROM_ALL ${stub})
  target_compile_options(fpd_stub_${name} PRIVATE -w)
  set_target_properties(fpd_stub_${name} PROPERTIES OUTPUT_NAME ${name}
                        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/stubs)
  target_link_libraries(fpd_platform_board PUBLIC fpd_stub_${name})
endforeach()
