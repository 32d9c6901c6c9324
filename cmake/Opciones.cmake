# SPDX-License-Identifier: GPL-3.0-or-later
#
# siro_opciones: the one place where language, warnings and switches are set. Every target links it.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Debug, Release, RelWithDebInfo or MinSizeRel" FORCE)
endif()

add_library(siro_opciones INTERFACE)
target_compile_features(siro_opciones INTERFACE cxx_std_20)
target_include_directories(siro_opciones INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(MSVC)
    target_compile_options(siro_opciones INTERFACE /utf-8 /W4 /WX /fp:precise)
else()
    # Rounding is behaviour: a fused multiply-add on another processor would change a last bit.
    target_compile_options(siro_opciones INTERFACE
        -ffp-contract=off
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
        -Werror)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # Version 12 sees overlapping copies in "literal" + std::string + "literal" where there are none.
        target_compile_options(siro_opciones INTERFACE -Wno-restrict)
    endif()
    if(MINGW)
        # False alarms of version 12 in writes to std::string, seen under this compiler alone.
        target_compile_options(siro_opciones INTERFACE -Wno-stringop-overflow)
    endif()
endif()

if(SIRO_SANITIZE OR SIRO_FUZZ)
    # float-cast-overflow belongs to neither group by itself; here a number that doesn't fit is a fault to be raised.
    set(siro_sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_compile_options(siro_opciones INTERFACE ${siro_sanitizers})
    target_link_options(siro_opciones INTERFACE ${siro_sanitizers})
endif()

if(SIRO_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "SIRO_FUZZ needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    target_compile_options(siro_opciones INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(SIRO_COBERTURA)
    # Atomic counters, since a series runs its storms on several threads.
    target_compile_options(siro_opciones INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(siro_opciones INTERFACE --coverage)
endif()
