# Builds for another processor with Debian's cross compiler and the packages that packaging/sysroot has unpacked.
#   cmake --preset arm64 | armhf        FPD_ARCH is Debian's name of the processor
set(FPD_ARCH arm64 CACHE STRING "Debian's name of the processor to build for: arm64, armhf")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES FPD_ARCH)
set(FPD_TRIPLET_arm64 aarch64-linux-gnu)
set(FPD_TRIPLET_armhf arm-linux-gnueabihf)
set(FPD_PROCESSOR_arm64 aarch64)
set(FPD_PROCESSOR_armhf armv7l)
set(triplet ${FPD_TRIPLET_${FPD_ARCH}})

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${FPD_PROCESSOR_${FPD_ARCH}})
set(CMAKE_LIBRARY_ARCHITECTURE ${triplet})
set(CMAKE_CXX_COMPILER ${triplet}-g++)
set(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot/${FPD_ARCH})
get_filename_component(CMAKE_SYSROOT ${CMAKE_SYSROOT} ABSOLUTE)
if(NOT EXISTS ${CMAKE_SYSROOT})
  message(FATAL_ERROR "There is no ${CMAKE_SYSROOT}: \"packaging/sysroot ${FPD_ARCH}\" makes it")
endif()

# Programs are this machine's, all else is the board's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR} ${CMAKE_SYSROOT}/usr/lib/${triplet}/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig)

# Of the translator's tools only programs are needed.
file(GLOB Qt5LinguistTools_DIR /usr/lib/*/cmake/Qt5LinguistTools)
