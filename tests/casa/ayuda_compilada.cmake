# SPDX-License-Identifier: GPL-3.0-or-later
#
# The compiled help holds every page and picture, and tells its titles as the pages do:
#
#   cmake -D RAIZ=<root of the tree> -D LUGAR=<scratch folder> -D CHMCMD=<compiler> -D ICONV=<iconv> -D CHMLS=<lister>
#       -P ayuda_compilada.cmake
#
# and a page with a character that has no place in it is refused by name.

cmake_minimum_required(VERSION 3.25)

set(paginas ${RAIZ}/data/Ayuda)
set(guion ${RAIZ}/cmake/CompilaAyuda.cmake)
function(compila carpeta lugar salida)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -D PAGINAS=${carpeta} -D LUGAR=${lugar} -D CHMCMD=${CHMCMD} -D ICONV=${ICONV} -P ${guion}
        RESULT_VARIABLE resultado ERROR_VARIABLE dicho)
    set(${salida} "${resultado}" PARENT_SCOPE)
    set(dicho "${dicho}" PARENT_SCOPE)
endfunction()

set(lugar ${LUGAR}/ayuda_compilada)
file(REMOVE_RECURSE ${lugar})
compila(${paginas} ${lugar}/hecha resultado)
if(NOT resultado EQUAL 0)
    message(FATAL_ERROR "${dicho}")
endif()
file(MAKE_DIRECTORY ${lugar}/sacada)
execute_process(COMMAND ${CHMLS} extractall ${lugar}/hecha/AyudaSIRO.chm ${lugar}/sacada
    OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)

# As UTF-8 again, but for the line that tells the encoding and the marks of its headings, a page is what it was; anything else is the same bytes.
function(en_utf8 archivo salida)
    execute_process(COMMAND ${ICONV} -f CP1252 -t UTF-8 ${archivo} OUTPUT_VARIABLE texto COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">" "<meta charset=\"utf-8\">"
        texto "${texto}")
    string(REGEX REPLACE "<h2><a name=\"s[0-9]+\"></a>" "<h2>" texto "${texto}")
    set(${salida} "${texto}" PARENT_SCOPE)
endfunction()
file(GLOB nombres RELATIVE ${paginas} ${paginas}/*)
foreach(nombre IN LISTS nombres)
    if(NOT EXISTS ${lugar}/sacada/${nombre})
        message(FATAL_ERROR "${nombre} isn't in the compiled help")
    endif()
    if(nombre MATCHES "[.]html$")
        file(READ ${paginas}/${nombre} de_antes)
        en_utf8(${lugar}/sacada/${nombre} de_ahora)
    else()
        file(SHA256 ${paginas}/${nombre} de_antes)
        file(SHA256 ${lugar}/sacada/${nombre} de_ahora)
    endif()
    if(NOT de_antes STREQUAL de_ahora)
        message(FATAL_ERROR "${nombre} isn't the same in the compiled help")
    endif()
endforeach()

# A group, a page in it, a heading in the index, each with letters beyond ASCII.
en_utf8(${lugar}/sacada/AyudaSIRO.hhc contenido)
foreach(nombre IN ITEMS "La cuenca" "Editor gráfico de la red" "Ábaco Q-D-R de una serie")
    string(FIND "${contenido}" "<param name=\"Name\" value=\"${nombre}\">" donde)
    if(donde EQUAL -1)
        message(FATAL_ERROR "the contents lack \"${nombre}\"")
    endif()
endforeach()
en_utf8(${lugar}/sacada/AyudaSIRO.hhk indice)
string(FIND "${indice}" "value=\"Lluvia (Formatos de archivo)\">\n<param name=\"Local\" value=\"formatos.html#s2\">" donde)
if(donde EQUAL -1)
    message(FATAL_ERROR "the index doesn't lead to the second heading of a page")
endif()
foreach(nombre IN ITEMS "Órdenes (Pizarra)" "Caudal máximo [m3/s], con S en km2 (Métodos empíricos)")
    string(FIND "${indice}" "<param name=\"Name\" value=\"${nombre}\">" donde)
    if(donde EQUAL -1)
        message(FATAL_ERROR "the index lacks \"${nombre}\"")
    endif()
endforeach()

file(COPY ${paginas}/ DESTINATION ${lugar}/mala)
file(APPEND ${lugar}/mala/dlgPp.html "<p>日</p>\n")
compila(${lugar}/mala ${lugar}/no_hecha resultado)
if(resultado EQUAL 0 OR NOT dicho MATCHES "dlgPp[.]html: not all of it is Windows-1252")
    message(FATAL_ERROR "a page that can't be written as Windows-1252 gets in: ${dicho}")
endif()
