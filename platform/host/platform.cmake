# The virtual LCD, a window system plugin for the panel on a PC.
find_package(Qt5 5.15 REQUIRED COMPONENTS FbSupport FontDatabaseSupport EventDispatcherSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FPD_FONTS REQUIRED IMPORTED_TARGET fontconfig freetype2 glib-2.0)
file(GLOB PANELLCD_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/host/panellcd/*)
add_library(panellcd MODULE ${PANELLCD_SOURCES})
target_link_libraries(panellcd PRIVATE fpd_options fpd_platform Qt5::Widgets Qt5::FbSupport Qt5::FontDatabaseSupport
                                       Qt5::EventDispatcherSupport PkgConfig::FPD_FONTS)
target_include_directories(panellcd PRIVATE ${Qt5Gui_PRIVATE_INCLUDE_DIRS} ${Qt5FbSupport_PRIVATE_INCLUDE_DIRS}
                           ${Qt5FontDatabaseSupport_PRIVATE_INCLUDE_DIRS} ${Qt5EventDispatcherSupport_PRIVATE_INCLUDE_DIRS})
set_target_properties(panellcd PROPERTIES AUTOMOC ON
                      LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/plugins/platforms)
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/host/fonts.conf ${CMAKE_BINARY_DIR}/share/fonts.conf COPYONLY)
