# SPDX-License-Identifier: GPL-3.0-or-later
#
# Where things go. An installation is found from its executables alone, so it may be moved as a whole:
#
#   by default            bin/, share/siro/ with the data, and what desktops and manuals look for under share/
#   component portatil    programs and data in one folder, the program's own where it can be written. On Windows, where many
#                         start it from a folder that can't be, what is delivered lies apart in data/ and is copied from there

# Windows shows none of the pages of a compiled help that came from elsewhere: there the program shows them itself.
if(SIRO_GUI AND NOT WIN32)
    include(cmake/Ayuda.cmake)
endif()

# siro_instala(<programs> <data> <texts> options...): the programs with what they need, and what tells of them.
function(siro_instala dir_programas dir_datos dir_textos)
    install(TARGETS siro-lote RUNTIME DESTINATION ${dir_programas} ${ARGN})
    install(DIRECTORY data/ DESTINATION ${dir_datos} ${ARGN} 
        PATTERN README.md EXCLUDE PATTERN .gitattributes EXCLUDE
        PATTERN Plantillas EXCLUDE) # the programs have it inside; a file there is the user's, and no upgrade's to replace
    install(FILES README.md README.es.md CHANGELOG.md LICENSE paquete/copyright DESTINATION ${dir_textos} ${ARGN})
    install(FILES data/README.md DESTINATION ${dir_textos} RENAME datos.md ${ARGN})
    if(SIRO_GUI)
        install(TARGETS siro RUNTIME DESTINATION ${dir_programas} ${ARGN})
        if(TARGET siro-memoria)
            install(TARGETS siro-memoria RUNTIME DESTINATION ${dir_programas} ${ARGN})
        endif()
        if(SIRO_AYUDA_COMPILADA)
            install(FILES ${SIRO_AYUDA_COMPILADA} DESTINATION ${dir_datos}/Ayuda ${ARGN})
        endif()
    endif()
endfunction()

siro_instala(${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_DATADIR}/siro ${CMAKE_INSTALL_DOCDIR})
if(WIN32)
    siro_instala(. data textos COMPONENT portatil EXCLUDE_FROM_ALL)
    return() # no manual pages, no desktop of the free systems
endif()
siro_instala(. . textos COMPONENT portatil EXCLUDE_FROM_ALL)

install(FILES paquete/man/siro-lote.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES paquete/man/es/siro-lote.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/es/man1)

# What a desktop shows of the program: menu, icon, the type of its projects.
if(SIRO_GUI)
    install(FILES paquete/man/siro.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES paquete/man/es/siro.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/es/man1)
    if(TARGET siro-memoria)
        install(FILES paquete/man/siro-memoria.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
        install(FILES paquete/man/es/siro-memoria.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/es/man1)
    endif()
    install(FILES paquete/siro.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES paquete/siro.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

    string(TIMESTAMP fecha_iso "%Y-%m-%d" UTC)
    configure_file(paquete/org.siro.siro.metainfo.xml.in org.siro.siro.metainfo.xml @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/org.siro.siro.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

    set(dibujo ${PROJECT_SOURCE_DIR}/src/shell/iconos/siro.svg)
    set(dir_iconos ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${dibujo} DESTINATION ${dir_iconos}/scalable/apps)
    find_program(SIRO_RSVG rsvg-convert DOC "Makes pictures of a fixed size of the icon")
    if(SIRO_RSVG)
        set(imagenes)
        foreach(lado IN ITEMS 48 128)
            set(imagen ${PROJECT_BINARY_DIR}/iconos/${lado}/siro.png)
            file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/iconos/${lado})
            add_custom_command(OUTPUT ${imagen}
                COMMAND ${SIRO_RSVG} --width ${lado} --height ${lado} --output ${imagen} ${dibujo}
                DEPENDS ${dibujo} VERBATIM)
            install(FILES ${imagen} DESTINATION ${dir_iconos}/${lado}x${lado}/apps)
            list(APPEND imagenes ${imagen})
        endforeach()
        add_custom_target(siro_iconos ALL DEPENDS ${imagenes})
    endif()
endif()
