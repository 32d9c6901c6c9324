# SPDX-License-Identifier: GPL-3.0-or-later
#
# What Windows shows of a program: icon, version. The icon is made of the same drawing as everywhere.

set(SIRO_MANIFIESTO ${PROJECT_SOURCE_DIR}/paquete/windows/siro.manifest)
set(SIRO_ICONO ${PROJECT_BINARY_DIR}/siro.ico)

# siro_recursos(<executable> <description>)
function(siro_recursos SIRO_EJECUTABLE SIRO_DESCRIPCION)
    if(NOT WIN32 OR NOT SIRO_GUI) # siro-lote alone needs no tools of pictures
        return()
    endif()
    enable_language(RC)
    find_program(SIRO_RSVG rsvg-convert REQUIRED)
    find_program(SIRO_CONVERT convert REQUIRED)
    set(recursos ${PROJECT_BINARY_DIR}/${SIRO_EJECUTABLE}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/paquete/windows/siro.rc.in ${recursos} @ONLY)
    if(NOT TARGET siro_icono)
        set(dibujo ${PROJECT_SOURCE_DIR}/src/shell/iconos/siro.svg)
        set(imagenes)
        set(ordenes)
        foreach(lado IN ITEMS 16 24 32 48 64 256)
            set(imagen ${PROJECT_BINARY_DIR}/siro-${lado}.png)
            list(APPEND ordenes COMMAND ${SIRO_RSVG} --width ${lado} --height ${lado} --output ${imagen} ${dibujo})
            list(APPEND imagenes ${imagen})
        endforeach()
        add_custom_command(OUTPUT ${SIRO_ICONO} ${ordenes} COMMAND ${SIRO_CONVERT} ${imagenes} ${SIRO_ICONO}
            DEPENDS ${dibujo} VERBATIM)
        add_custom_target(siro_icono DEPENDS ${SIRO_ICONO})
    endif()
    target_sources(${SIRO_EJECUTABLE} PRIVATE ${recursos})
    set_property(SOURCE ${recursos} DIRECTORY ${PROJECT_SOURCE_DIR}/src APPEND PROPERTY OBJECT_DEPENDS ${SIRO_ICONO} ${SIRO_MANIFIESTO})
    add_dependencies(${SIRO_EJECUTABLE} siro_icono)
endfunction()
