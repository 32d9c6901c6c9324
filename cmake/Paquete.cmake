# SPDX-License-Identifier: GPL-3.0-or-later
#
# What CPack makes of an installation: a Debian package; an archive of the portable folder is made of its component.

set(SIRO_CONTACTO "SIRO <siro@siro.example>" CACHE STRING "Who maintains the package: name <address>")

set(CPACK_VERBATIM_VARIABLES TRUE)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME siro)
set(CPACK_PACKAGE_VENDOR SIRO)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "flood hydrographs of small basins")
set(CPACK_PACKAGE_CONTACT "${SIRO_CONTACTO}")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/paquete)
set(CPACK_STRIP_FILES TRUE)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/TextosDebian.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS TRUE)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "SIRO turns a storm over a small basin into the flood hydrograph and the peak
discharge of every point of its network: elementary hydrological units, channel
reaches, dams with their reservoirs, lakes.
.
The desktop program, in Spanish, draws the basin over its map, settles storms
and shows hydrographs; siro-lote makes the same runs without a window, and
siro-memoria writes the calculation report of a project.")
if(SIRO_GUI)
    # What no executable names: the Spanish of standard boxes, and the fonts of the forms.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core, fonts-liberation")
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
    set(CPACK_DEBIAN_PACKAGE_SUGGESTS "xchm | kchmviewer, qt6-wayland")
endif()
include(CPack)
