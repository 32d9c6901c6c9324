# SPDX-License-Identifier: GPL-3.0-or-later
#
# Compiles the pages of help of a folder into one file for the viewers of compiled help:
#
#   cmake -D PAGINAS=<folder of the pages> -D LUGAR=<scratch folder> -D CHMCMD=<compiler> -D ICONV=<iconv>
#       -P CompilaAyuda.cmake
#
# leaves AyudaSIRO.chm in LUGAR and fails where a page doesn't get in. Contents and index come from the pages
# themselves: the groups and links of the first one, the headings of the others.
#
# All goes in as Windows-1252, pages too: contents, titles and the words to search for have no encoding of their own
# but that of the file's language, and of its pages a viewer may take the same for granted.

cmake_minimum_required(VERSION 3.25)

set(archivo AyudaSIRO.chm)
set(inicial indice.html)
set(titulo "Ayuda de SIRO")
set(idioma "0x0C0A")  # Spanish, international order

foreach(dato IN ITEMS PAGINAS LUGAR CHMCMD ICONV)
    if(NOT ${dato})
        message(FATAL_ERROR "No ${dato}")
    endif()
endforeach()
file(REMOVE_RECURSE ${LUGAR})
file(MAKE_DIRECTORY ${LUGAR}/paginas)

# A text in UTF-8 written as Windows-1252; a character that has no place there is an error.
function(escribe_1252 nombre texto)
    file(WRITE ${LUGAR}/utf8 "${texto}")
    execute_process(COMMAND ${ICONV} -f UTF-8 -t CP1252 ${LUGAR}/utf8
        OUTPUT_FILE ${LUGAR}/paginas/${nombre} RESULT_VARIABLE resultado ERROR_VARIABLE dicho)
    if(NOT resultado EQUAL 0)
        message(FATAL_ERROR "${nombre}: not all of it is Windows-1252: ${dicho}")
    endif()
    file(REMOVE ${LUGAR}/utf8)
endfunction()

# A list is broken by a semicolon and by brackets in its entries; these stand for them meanwhile.
string(ASCII 1 punto_y_coma)
string(ASCII 2 abre)
string(ASCII 3 cierra)

# Occurrences of a pattern as a list.
function(halla texto patron salida)
    string(REPLACE ";" "${punto_y_coma}" texto "${texto}")
    string(REPLACE "[" "${abre}" texto "${texto}")
    string(REPLACE "]" "${cierra}" texto "${texto}")
    string(REGEX MATCHALL "${patron}" hallados "${texto}")
    set(${salida} "${hallados}" PARENT_SCOPE)
endfunction()

# One entry of contents or index. Without a page it is the head of a group.
function(entrada sangria nombre pagina salida)
    string(REPLACE "${punto_y_coma}" ";" nombre "${nombre}")
    string(REPLACE "${abre}" "[" nombre "${nombre}")
    string(REPLACE "${cierra}" "]" nombre "${nombre}")
    string(REPLACE "\"" "&quot;" nombre "${nombre}")
    set(texto "${sangria}<LI> <OBJECT type=\"text/sitemap\">\n${sangria}<param name=\"Name\" value=\"${nombre}\">\n")
    if(pagina)
        string(APPEND texto "${sangria}<param name=\"Local\" value=\"${pagina}\">\n")
    endif()
    set(${salida} "${${salida}}${texto}${sangria}</OBJECT>\n" PARENT_SCOPE)
endfunction()

set(cabeza "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML>\n<BODY>\n")
set(propiedades "<OBJECT type=\"text/site properties\">\n<param name=\"ImageType\" value=\"Folder\">\n</OBJECT>\n")

# --- Contents: a group per heading of the first page that has links under it --------------------------------------------
file(READ ${PAGINAS}/${inicial} indice)
set(contenido "${cabeza}${propiedades}<UL>\n")
entrada("" "SIRO" ${inicial} contenido)
halla("${indice}" "<h2>[^<]*</h2>|<a href=\"[^\"#:]+\">[^<]*</a>" piezas)
set(grupo "")
set(abierto FALSE)
foreach(pieza IN LISTS piezas)
    if(pieza MATCHES "^<h2>(.*)</h2>$")
        set(grupo "${CMAKE_MATCH_1}")
        if(abierto)
            string(APPEND contenido "</UL>\n")
        endif()
        set(abierto FALSE)
    elseif(pieza MATCHES "^<a href=\"(.*)\">(.*)</a>$")
        set(pagina ${CMAKE_MATCH_1})
        set(nombre "${CMAKE_MATCH_2}")
        if(NOT abierto)
            entrada("" "${grupo}" "" contenido)
            string(APPEND contenido "<UL>\n")
            set(abierto TRUE)
        endif()
        entrada("    " "${nombre}" ${pagina} contenido)
    endif()
endforeach()
if(abierto)
    string(APPEND contenido "</UL>\n")
endif()
escribe_1252(AyudaSIRO.hhc "${contenido}</UL>\n</BODY></HTML>\n")

# The same text with bare letters, to sort by.
function(sin_acentos texto salida)
    set(de "á;é;í;ó;ú;ü;ñ;Á;É;Í;Ó;Ú;Ü;Ñ")
    set(a "a;e;i;o;u;u;n;a;e;i;o;u;u;n")
    foreach(letra otra IN ZIP_LISTS de a)
        string(REPLACE "${letra}" "${otra}" texto "${texto}")
    endforeach()
    set(${salida} "${texto}" PARENT_SCOPE)
endfunction()

# A mark s1, s2 ... before each heading of a page, for the index to lead there.
function(marca_titulos texto salida)
    set(resto "${texto}")
    set(hecho "")
    set(numero 0)
    string(FIND "${resto}" "<h2>" donde)
    while(NOT donde EQUAL -1)
        math(EXPR numero "${numero} + 1")
        math(EXPR detras "${donde} + 4")
        string(SUBSTRING "${resto}" 0 ${donde} antes)
        string(SUBSTRING "${resto}" ${detras} -1 resto)
        string(APPEND hecho "${antes}<h2><a name=\"s${numero}\"></a>")
        string(FIND "${resto}" "<h2>" donde)
    endwhile()
    set(${salida} "${hecho}${resto}" PARENT_SCOPE)
endfunction()

# --- Pages, and what the index says of each: its title, and "heading (title)" ---------------------------------------------
file(GLOB paginas RELATIVE ${PAGINAS} ${PAGINAS}/*.html)
list(SORT paginas)
set(claves)
foreach(pagina IN LISTS paginas)
    file(READ ${PAGINAS}/${pagina} texto)
    string(REPLACE "<meta charset=\"utf-8\">"
        "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">" en_1252 "${texto}")
    if(en_1252 STREQUAL texto)
        message(FATAL_ERROR "${pagina} doesn't tell that it is UTF-8")
    endif()
    marca_titulos("${en_1252}" con_marcas)
    escribe_1252(${pagina} "${con_marcas}")
    halla("${texto}" "<h[12]>[^<]*</h[12]>" piezas)
    list(TRANSFORM piezas REPLACE "</?h[12]>" "")
    list(POP_FRONT piezas principal)
    set(nombres "${principal}|${pagina}")
    if(NOT pagina STREQUAL inicial)
        set(numero 0)
        foreach(pieza IN LISTS piezas)
            math(EXPR numero "${numero} + 1")
            string(REGEX REPLACE "^[0-9]+[.] " "" pieza "${pieza}")
            list(APPEND nombres "${pieza} (${principal})|${pagina}#s${numero}")
        endforeach()
    endif()
    foreach(nombre IN LISTS nombres)
        sin_acentos("${nombre}" orden)
        list(APPEND claves "${orden}|${nombre}")
    endforeach()
endforeach()
list(SORT claves CASE INSENSITIVE)
set(alfabetico "${cabeza}<UL>\n")
foreach(clave IN LISTS claves)
    string(REGEX MATCH "^[^|]*[|][^|]*[|]([^|]*)[|](.*)$" _ "${clave}")
    set(pagina ${CMAKE_MATCH_2})
    set(nombre "${CMAKE_MATCH_1}")
    entrada("" "${nombre}" ${pagina} alfabetico)
endforeach()
escribe_1252(AyudaSIRO.hhk "${alfabetico}</UL>\n</BODY></HTML>\n")

file(GLOB otros RELATIVE ${PAGINAS} ${PAGINAS}/*)
list(REMOVE_ITEM otros ${paginas})
foreach(otro IN LISTS otros)
    file(COPY ${PAGINAS}/${otro} DESTINATION ${LUGAR}/paginas)
endforeach()

# --- The project, and the compiler over it ---------------------------------------------------------------------------------
list(JOIN paginas "\n" lista)
list(JOIN otros "\n" lista_otros)
escribe_1252(AyudaSIRO.hhp "[OPTIONS]
Compatibility=1.1 or later
Compiled file=${archivo}
Contents file=AyudaSIRO.hhc
Index file=AyudaSIRO.hhk
Default topic=${inicial}
Default Window=principal
Title=${titulo}
Language=${idioma}
Full-text search=Yes
Display compile progress=No

[WINDOWS]
principal=\"${titulo}\",\"AyudaSIRO.hhc\",\"AyudaSIRO.hhk\",\"${inicial}\",\"${inicial}\",,,,,0x63520,,0x387e,,,,,,,,0

[FILES]
${lista}
${lista_otros}
")
execute_process(COMMAND ${CHMCMD} AyudaSIRO.hhp WORKING_DIRECTORY ${LUGAR}/paginas
    RESULT_VARIABLE resultado OUTPUT_VARIABLE dicho ERROR_VARIABLE dicho)
if(NOT resultado EQUAL 0 OR NOT EXISTS ${LUGAR}/paginas/${archivo})
    message(FATAL_ERROR "The help doesn't compile (${resultado}):\n${dicho}")
endif()
file(RENAME ${LUGAR}/paginas/${archivo} ${LUGAR}/${archivo})
