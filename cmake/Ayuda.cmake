# SPDX-License-Identifier: GPL-3.0-or-later
#
# The help compiled into one file beside its pages, where the system can do it. The program asks for it only where
# there is a viewer, and its pages are enough.

find_program(SIRO_CHMCMD chmcmd DOC "Compiler of help, of the Free Pascal tools")
find_program(SIRO_ICONV iconv)
set(SIRO_AYUDA_COMPILADA "")
if(NOT SIRO_CHMCMD OR NOT SIRO_ICONV)
    message(STATUS "Compiled help: no, chmcmd isn't there; its pages alone")
    return()
endif()
message(STATUS "Compiled help: with ${SIRO_CHMCMD}")

file(GLOB paginas CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/Ayuda/*)
set(SIRO_AYUDA_COMPILADA ${PROJECT_BINARY_DIR}/ayuda/AyudaSIRO.chm)
add_custom_command(
    OUTPUT ${SIRO_AYUDA_COMPILADA}
    COMMAND ${CMAKE_COMMAND} -D PAGINAS=${PROJECT_SOURCE_DIR}/data/Ayuda -D LUGAR=${PROJECT_BINARY_DIR}/ayuda
        -D CHMCMD=${SIRO_CHMCMD} -D ICONV=${SIRO_ICONV} -P ${CMAKE_CURRENT_LIST_DIR}/CompilaAyuda.cmake
    DEPENDS ${paginas} ${CMAKE_CURRENT_LIST_DIR}/CompilaAyuda.cmake
    COMMENT "Compiling the help"
    VERBATIM)
add_custom_target(siro_ayuda ALL DEPENDS ${SIRO_AYUDA_COMPILADA})
