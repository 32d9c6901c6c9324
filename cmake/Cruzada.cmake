# SPDX-License-Identifier: GPL-3.0-or-later
#
# Built for another system, the command line and the tests need no libraries that were built beforehand: headers and
# sources that Debian has for this machine will do. Where the others are there they are taken.

if(NOT CMAKE_CROSSCOMPILING)
    return()
endif()

# Of /usr/include nothing but these: the rest belongs to this machine's C library.
set(cabezas ${PROJECT_BINARY_DIR}/cabezas)
file(MAKE_DIRECTORY ${cabezas})
foreach(carpeta IN ITEMS CLI boost nlohmann)
    file(CREATE_LINK /usr/include/${carpeta} ${cabezas}/${carpeta} SYMBOLIC)
endforeach()
set(SIRO_BOOST_INCLUDE ${cabezas})
set(SIRO_JSON_INCLUDE ${cabezas})
find_package(CLI11 QUIET)
if(NOT CLI11_FOUND)
    add_library(CLI11::CLI11 INTERFACE IMPORTED)
    target_include_directories(CLI11::CLI11 INTERFACE ${cabezas})
endif()

if(NOT BUILD_TESTING)
    return()
endif()
find_package(GTest QUIET)
if(NOT GTest_FOUND)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endif()
find_package(rapidcheck QUIET)
if(NOT rapidcheck_FOUND)
    add_library(rapidcheck_gtest INTERFACE)
    target_include_directories(rapidcheck_gtest SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/tests/apoyo/sin_rapidcheck)
endif()
