# SPDX-License-Identifier: GPL-3.0-or-later
#
# The delivered pages of help in the tree RAIZ:
#
#   cmake -D RAIZ=<root of the tree> -P ayuda.cmake
#
# Fails with a line per slip: a link that leads to no file, a window without a page, a page that the first one doesn't
# name, a page without the mark of its encoding.

cmake_minimum_required(VERSION 3.25)

set(carpeta ${RAIZ}/data/Ayuda)
set(inicial indice.html)
set(faltas)
macro(falta archivo motivo)
    list(APPEND faltas "${archivo}: ${motivo}")
endmacro()

# --- Windows: every source of a window that names itself after its description has a page -----------------------------
set(sin_pagina_propia
    dlgEliminarProyecto frmAcerca  # with the main window
    frmInicio frmPp2               # nothing is asked of them
    dlgTablaSalePDR2               # with its twin
    dlgImportaTormenta             # with the storm that it makes
    dlgImportaMaximos              # with the workshop
    dlgImportaObservada            # with the workshop of fitting
    dlgRecesion)
set(ventanas dlgTabla)
file(GLOB_RECURSE fuentes RELATIVE ${RAIZ} ${RAIZ}/src/frm*.h ${RAIZ}/src/dlg*.h ${RAIZ}/src/MDIForm1.h)
foreach(fuente IN LISTS fuentes)
    get_filename_component(ventana ${fuente} NAME_WE)
    string(REGEX REPLACE "_ventana$" "" ventana ${ventana})
    list(APPEND ventanas ${ventana})
endforeach()
list(REMOVE_DUPLICATES ventanas)
list(REMOVE_ITEM ventanas ${sin_pagina_propia})
foreach(ventana IN LISTS ventanas)
    if(NOT EXISTS ${carpeta}/${ventana}.html)
        falta(data/Ayuda/${ventana}.html "no page for the window ${ventana}")
    endif()
endforeach()

# --- Pages: links, contents, encoding ----------------------------------------------------------------------------------
set(indice "")
if(EXISTS ${carpeta}/${inicial})
    file(READ ${carpeta}/${inicial} indice)
else()
    falta(data/Ayuda/${inicial} "the first page is missing")
endif()
file(GLOB paginas RELATIVE ${carpeta} ${carpeta}/*.html)
foreach(pagina IN LISTS paginas)
    file(READ ${carpeta}/${pagina} texto)
    string(FIND "${texto}" "<meta charset=\"utf-8\">" con_codigo)
    if(con_codigo EQUAL -1)
        falta(data/Ayuda/${pagina} "doesn't tell that it is UTF-8")
    endif()
    string(FIND "${indice}" "\"${pagina}\"" nombrada)
    if(nombrada EQUAL -1 AND NOT pagina STREQUAL inicial)
        falta(data/Ayuda/${pagina} "${inicial} doesn't name it")
    endif()
    string(REGEX MATCHALL "(href|src)=\"[^\"]*\"" enlaces "${texto}")
    foreach(enlace IN LISTS enlaces)
        string(REGEX REPLACE "^[a-z]+=\"([^\"#]*).*$" "\\1" destino "${enlace}")
        if(destino MATCHES "^https?://" OR destino STREQUAL "")
            continue()
        endif()
        if(NOT EXISTS ${carpeta}/${destino})
            falta(data/Ayuda/${pagina} "${destino} isn't there")
        endif()
    endforeach()
endforeach()

if(faltas)
    list(JOIN faltas "\n" texto)
    message(FATAL_ERROR "${texto}")
endif()
