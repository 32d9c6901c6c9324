# SPDX-License-Identifier: GPL-3.0-or-later
#
# What is delivered around the programs agrees with them, in the tree RAIZ:
#
#   cmake -D RAIZ=<root of the tree> -P entrega.cmake
#
# Fails with a line per slip: an option of siro-lote or siro-memoria that a page of the manual lacks or makes up, a type that the menu
# entry opens and nobody declares, a name of project files that isn't the program's.

cmake_minimum_required(VERSION 3.25)

set(faltas)
macro(falta archivo motivo)
    list(APPEND faltas "${archivo}: ${motivo}")
endmacro()
function(lee archivo salida)
    file(READ ${RAIZ}/${archivo} texto)
    string(REGEX REPLACE "[][;]" " " texto "${texto}")
    set(${salida} "${texto}" PARENT_SCOPE)
endfunction()

# --- Options: those of the usage, line by line, are those of each page ---------------------------------------------------
macro(compara_opciones uso nombre)
    lee(${uso} programa)
    string(REGEX MATCHALL "\n  --[a-z-]+(, --[a-z-]+)*" renglones "${programa}")
    string(REGEX MATCHALL "--[a-z-]+" opciones "${renglones}")
    list(REMOVE_DUPLICATES opciones)
    list(SORT opciones)
    if(NOT opciones)
        message(FATAL_ERROR "No option is found in the usage")
    endif()
    foreach(pagina IN ITEMS paquete/man/${nombre}.1 paquete/man/es/${nombre}.1)
        lee(${pagina} texto)
        string(REPLACE "\\-" "-" texto "${texto}")
        string(REGEX MATCHALL "\n[.]TP\n[.]B[IR]? [^\n]*" renglones "${texto}")
        string(REGEX MATCHALL "--[a-z-]+" explicadas "${renglones}")
        foreach(opcion IN LISTS opciones)
            if(NOT opcion IN_LIST explicadas)
                falta(${pagina} "lacks ${opcion}")
            endif()
        endforeach()
        foreach(opcion IN LISTS explicadas)
            if(NOT opcion IN_LIST opciones)
                falta(${pagina} "the program has no ${opcion}")
            endif()
        endforeach()
    endforeach()
endmacro()
compara_opciones(src/batch/Usos.cpp siro-lote)
compara_opciones(src/memoria/OrdenMemoria.cpp siro-memoria)

# --- The type of projects ------------------------------------------------------------------------------------------------
set(tipo application/x-siro-proyecto)
foreach(archivo IN ITEMS paquete/siro.desktop paquete/siro.xml paquete/org.siro.siro.metainfo.xml.in)
    lee(${archivo} texto)
    if(NOT texto MATCHES "${tipo}")
        falta(${archivo} "doesn't name ${tipo}")
    endif()
endforeach()
lee(src/model/Configuracion.h texto)
string(REGEX MATCH "TerminacionConf = \"([^\"]*)\"" _ "${texto}")
set(terminacion "${CMAKE_MATCH_1}")
lee(paquete/siro.xml texto)
if(NOT terminacion OR NOT texto MATCHES "<glob pattern=\"[*]${terminacion}\" case-sensitive=\"true\"/>")
    falta(paquete/siro.xml "project files end in \"${terminacion}\"")
endif()

if(faltas)
    list(JOIN faltas "\n" texto)
    message(FATAL_ERROR "${texto}")
endif()
