# SPDX-License-Identifier: GPL-3.0-or-later
#
# Run by CPack over the files of a Debian package before they are packed: programs and texts as that distribution keeps
# them.

if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()
set(raiz ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
find_program(gzip gzip REQUIRED)
find_program(strip strip REQUIRED)

file(GLOB programas ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/*)
execute_process(COMMAND ${strip} --remove-section=.comment ${programas} COMMAND_ERROR_IS_FATAL ANY)

# The licence is on every Debian; `copyright` says where.
file(REMOVE ${raiz}/doc/siro/LICENSE)

string(TIMESTAMP fecha "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${raiz}/doc/siro/changelog "siro (${CPACK_PACKAGE_VERSION}) stable; urgency=medium

  * What has changed is in CHANGELOG.md.

 -- ${CPACK_PACKAGE_CONTACT}  ${fecha}
")

file(MAKE_DIRECTORY ${raiz}/lintian/overrides)
file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/../paquete/lintian ${raiz}/lintian/overrides/siro)

file(GLOB_RECURSE textos ${raiz}/man/*.1)
execute_process(COMMAND ${gzip} -9nf ${raiz}/doc/siro/changelog ${textos} COMMAND_ERROR_IS_FATAL ANY)
