# How every target is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

# Results must not depend on the optimiser: a fused multiply-add rounds once where the formulas
# round twice.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
                    -Werror -ffp-contract=off)

find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# The headers that most files of a kind include. The debug build compiles them with each file, so
# that no file relies on what another one includes.
set(ZEB_QT_HEADERS <QtWidgets>)
set(ZEB_TEST_HEADERS <gtest/gtest.h>)

# zeb_precompile(<target> <header...>)
function(zeb_precompile target)
  if(ZEB_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

set(ZEB_GENERATED_DIR ${CMAKE_BINARY_DIR}/generated)
configure_file(${CMAKE_CURRENT_LIST_DIR}/zeb_version.h.in ${ZEB_GENERATED_DIR}/zeb_version.h @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/archive_passwords.h.in
               ${ZEB_GENERATED_DIR}/archive_passwords.h @ONLY)
