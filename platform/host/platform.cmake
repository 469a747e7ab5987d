# The virtual LCD, a window system plugin for the panel on a PC.
find_package(Qt5 5.15 REQUIRED COMPONENTS FbSupport FontDatabaseSupport EventDispatcherSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FPD_FONTS REQUIRED IMPORTED_TARGET fontconfig freetype2 glib-2.0)
file(GLOB PANELLCD_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/host/panellcd/*)
add_library(panellcd MODULE EXCLUDE_FROM_ALL ${PANELLCD_SOURCES})
target_link_libraries(panellcd PRIVATE fpd_options fpd_platform_host Qt5::Widgets Qt5::FbSupport Qt5::FontDatabaseSupport
                                       Qt5::EventDispatcherSupport PkgConfig::FPD_FONTS)
target_include_directories(panellcd PRIVATE ${Qt5Gui_PRIVATE_INCLUDE_DIRS} ${Qt5FbSupport_PRIVATE_INCLUDE_DIRS}
                           ${Qt5FontDatabaseSupport_PRIVATE_INCLUDE_DIRS} ${Qt5EventDispatcherSupport_PRIVATE_INCLUDE_DIRS})
set_target_properties(panellcd PROPERTIES AUTOMOC ON
                      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/plugins/platforms)
set(FPD_FONT_CACHE "<cachedir prefix=\"xdg\">fontconfig</cachedir>")
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/shared/fonts.conf ${CMAKE_BINARY_DIR}/share/fonts.conf @ONLY)

# A program for the board is tried on a PC with libraries of the closed ones' names that speak to the emulator, and
# with one to be preloaded for the keypad's device.
set(FPD_TRIAL_LIBRARIES apipc2:apipc apcard:apcard flashx:flashx sysconf:sysconf netstatus:netstatus keypad:trial/keypad)
add_custom_target(fpd-trial DEPENDS panellcd)
foreach(row IN LISTS FPD_TRIAL_LIBRARIES)
  string(REPLACE ":" ";" row ${row})
  list(POP_FRONT row name source)
  add_library(fpd_trial_${name} SHARED EXCLUDE_FROM_ALL ${CMAKE_CURRENT_SOURCE_DIR}/host/${source}.cpp)
  target_link_libraries(fpd_trial_${name} PRIVATE fpd_platform_host ${CMAKE_DL_LIBS})
  # The program has functions of the same names as those behind them.
  target_link_options(fpd_trial_${name} PRIVATE -Wl,--exclude-libs,ALL -Wl,-z,defs)
  set_target_properties(fpd_trial_${name} PROPERTIES OUTPUT_NAME ${name}
                        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/trial)
  add_dependencies(fpd-trial fpd_trial_${name})
endforeach()
