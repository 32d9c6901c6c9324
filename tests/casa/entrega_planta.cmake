# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plants one slip, CASO, into a copy under LUGAR of what is delivered in RAIZ and asks that entrega.cmake finds it:
#
#   cmake -D CASO=<name> -D RAIZ=<root of the tree> -D LUGAR=<scratch folder> -P entrega_planta.cmake
#
# CASO "nada" plants none: the tree has to pass.

cmake_minimum_required(VERSION 3.25)

set(arbol ${LUGAR}/entrega_${CASO})
file(REMOVE_RECURSE ${arbol})
file(COPY ${RAIZ}/paquete DESTINATION ${arbol})
file(COPY ${RAIZ}/src/batch/Usos.cpp DESTINATION ${arbol}/src/batch)
file(COPY ${RAIZ}/src/memoria/OrdenMemoria.cpp DESTINATION ${arbol}/src/memoria)
file(COPY ${RAIZ}/src/model/Configuracion.h DESTINATION ${arbol}/src/model)

function(cambia archivo de a)
    file(READ ${arbol}/${archivo} texto)
    string(REPLACE "${de}" "${a}" otro "${texto}")
    if(otro STREQUAL texto)
        message(FATAL_ERROR "${archivo}: \"${de}\" isn't there to be changed")
    endif()
    file(WRITE ${arbol}/${archivo} "${otro}")
endfunction()

set(se_espera "")
if(CASO STREQUAL "nada")
elseif(CASO STREQUAL "opcion_nueva")
    cambia(src/batch/Usos.cpp "  --tabla K " "  --otra X  que nadie explica\n  --tabla K ")
    set(se_espera "paquete/man/siro-lote.1: lacks --otra\npaquete/man/es/siro-lote.1: lacks --otra")
elseif(CASO STREQUAL "opcion_inventada")
    cambia(paquete/man/es/siro-lote.1 "\\-\\-hilos" "\\-\\-cuerdas")
    set(se_espera
        "paquete/man/es/siro-lote.1: lacks --hilos\npaquete/man/es/siro-lote.1: the program has no --cuerdas")
elseif(CASO STREQUAL "tipo")
    cambia(paquete/siro.desktop "x-siro-proyecto" "x-otro")
    set(se_espera "paquete/siro.desktop: doesn't name application/x-siro-proyecto")
elseif(CASO STREQUAL "terminacion")
    cambia(paquete/siro.xml "*_Conf.vlm" "*_conf.vlm")
    set(se_espera "paquete/siro.xml: project files end in \"_Conf.vlm\"")
else()
    message(FATAL_ERROR "unknown case ${CASO}")
endif()

execute_process(
    COMMAND ${CMAKE_COMMAND} -D RAIZ=${arbol} -P ${CMAKE_CURRENT_LIST_DIR}/entrega.cmake
    RESULT_VARIABLE resultado
    ERROR_VARIABLE dicho)
string(REGEX MATCHALL "paquete/(man|siro)[^\n]*" faltas "${dicho}")
list(JOIN faltas "\n" faltas)
if(CASO STREQUAL "nada")
    if(NOT resultado EQUAL 0)
        message(FATAL_ERROR "a clean tree is refused:\n${dicho}")
    endif()
elseif(resultado EQUAL 0)
    message(FATAL_ERROR "not noticed: ${CASO}")
elseif(NOT faltas STREQUAL se_espera)
    message(FATAL_ERROR "expected:\n${se_espera}\ntold:\n${faltas}")
endif()
