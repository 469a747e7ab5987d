# Compiler settings shared by every target: fpd_options carries them.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(FPD_CCACHE ccache)
if(FPD_CCACHE)
  # A precompiled header is only cacheable when ccache is told to look inside it.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${FPD_CCACHE})
endif()

# Lines in a debugger and in a sanitizer's report; all of the variables would double what is written and linked.
string(REPLACE "-g" "-g1" CMAKE_CXX_FLAGS_RELWITHDEBINFO "${CMAKE_CXX_FLAGS_RELWITHDEBINFO}")
string(REPLACE "-g" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")

add_library(fpd_options INTERFACE)
target_include_directories(fpd_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/platform/include)
target_compile_options(fpd_options INTERFACE -Wall -Wextra -Werror
                       $<$<BOOL:${FPD_CCACHE}>:-fpch-preprocess>)
target_compile_definitions(fpd_options INTERFACE QT_MESSAGELOGCONTEXT)

set(FPD_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")
if(FPD_SANITIZE)
  # Without any optimisation the instrumented programs are too slow for tests that look at the clock.
  target_compile_options(fpd_options INTERFACE -O1 -fsanitize=${FPD_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(fpd_options INTERFACE -fsanitize=${FPD_SANITIZE})
endif()
