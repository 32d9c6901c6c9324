# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plants one slip, CASO, into a small tree of help under LUGAR and asks that ayuda.cmake finds that one and no other:
#
#   cmake -D CASO=<name> -D LUGAR=<scratch folder> -P ayuda_planta.cmake
#
# CASO "nada" plants none: the tree has to pass.

cmake_minimum_required(VERSION 3.25)

set(raiz ${LUGAR}/ayuda_${CASO})
set(paginas ${raiz}/data/Ayuda)
set(cabeza "<meta charset=\"utf-8\"><link rel=\"stylesheet\" href=\"estilo.css\">\n")
file(REMOVE_RECURSE ${raiz})
file(WRITE ${raiz}/src/rainfall/dlgPp.h "")
file(WRITE ${raiz}/src/editor/frmUEHs_ventana.h "")
file(WRITE ${raiz}/src/shell/frmPp2_ventana.h "")  # needs no page
file(WRITE ${paginas}/estilo.css "")
set(indice "${cabeza}")
foreach(pagina IN ITEMS dlgPp frmUEHs dlgTabla)
    file(WRITE ${paginas}/${pagina}.html "${cabeza}<a href=\"indice.html#lluvia\">x</a> <a href=\"https://example.org/y\">y</a>\n")
    string(APPEND indice "<a href=\"${pagina}.html\">${pagina}</a>\n")
endforeach()
file(WRITE ${paginas}/indice.html "${indice}")

set(se_espera "")
if(CASO STREQUAL "nada")
elseif(CASO STREQUAL "enlace")
    file(APPEND ${paginas}/dlgPp.html "<a href=\"noesta.html#aca\">x</a>\n")
    set(se_espera "data/Ayuda/dlgPp.html: noesta.html isn't there")
elseif(CASO STREQUAL "imagen")
    file(APPEND ${paginas}/dlgPp.html "<img src=\"foto.png\">\n")
    set(se_espera "data/Ayuda/dlgPp.html: foto.png isn't there")
elseif(CASO STREQUAL "ventana")
    file(WRITE ${raiz}/src/results/dlgChart9.h "")
    set(se_espera "data/Ayuda/dlgChart9.html: no page for the window dlgChart9")
elseif(CASO STREQUAL "sin_nombrar")
    file(WRITE ${paginas}/suelta.html "${cabeza}")
    set(se_espera "data/Ayuda/suelta.html: indice.html doesn't name it")
elseif(CASO STREQUAL "sin_codigo")
    file(WRITE ${paginas}/dlgPp.html "<p>ñ</p>\n")
    set(se_espera "data/Ayuda/dlgPp.html: doesn't tell that it is UTF-8")
else()
    message(FATAL_ERROR "unknown case ${CASO}")
endif()

execute_process(
    COMMAND ${CMAKE_COMMAND} -D RAIZ=${raiz} -P ${CMAKE_CURRENT_LIST_DIR}/ayuda.cmake
    RESULT_VARIABLE resultado
    ERROR_VARIABLE dicho)
string(REGEX MATCHALL "data/Ayuda/[^\n]*" faltas "${dicho}")
if(CASO STREQUAL "nada")
    if(NOT resultado EQUAL 0)
        message(FATAL_ERROR "a clean tree is refused:\n${dicho}")
    endif()
elseif(resultado EQUAL 0)
    message(FATAL_ERROR "not noticed: ${CASO}")
elseif(NOT faltas STREQUAL se_espera)
    message(FATAL_ERROR "expected:\n${se_espera}\ntold:\n${faltas}")
endif()
