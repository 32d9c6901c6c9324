# SPDX-License-Identifier: GPL-3.0-or-later
install(TARGETS siro-lote RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(SIRO_GUI)
    install(TARGETS siro RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES src/shell/iconos/siro.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
install(DIRECTORY data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/siro)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
