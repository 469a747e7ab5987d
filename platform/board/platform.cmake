# The closed libraries of the board; the toolchain file's sysroot holds them.
set(FPD_BOARD_LIBRARIES apipc2 apcard flashx sysconf netstatus CACHE STRING "Closed libraries of the board")
target_link_libraries(fpd_platform PUBLIC ${FPD_BOARD_LIBRARIES})
