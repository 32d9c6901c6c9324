#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   tools/windows/construye.sh           siro.exe and siro-lote.exe with all that they need: build/windows/SIRO-VERSION-win64.zip,
#                                        a portable folder, and SIRO-VERSION-win64.exe, which installs them
#   tools/windows/construye.sh --libs    only the libraries
#   tools/windows/construye.sh --lote    only siro-lote.exe, which needs none of them but NLopt and libzip
#
# From a Debian 12 with nothing installed. The libraries are built once, some 45 minutes on two cores, and kept outside the tree, in
# SIRO_WINDOWS or ~/.cache/siro-windows. SIRO_QTSVG names an archive of the source of qtsvg 6.4.2 where Debian's can't be had.

set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
. .ci/paquetes.sh
mkdir -p build
. tools/windows/dependencias.sh

muere() {
    echo "$1" >&2
    exit 1
}

librerias() {
    necesita construye estudio windows windows-qt || return 1
    local libreria
    for libreria in nlopt libzip qtbase qtsvg qcustomplot libxlsxwriter; do una "$libreria" || return 1; done
}

case ${1-} in
--libs) librerias; exit ;;
--lote)
    necesita construye estudio windows && una nlopt && una libzip || exit 1
    construye windows-lote siro-lote || exit 1
    echo "build/windows-lote/src/batch/siro-lote.exe"
    exit
    ;;
'') ;;
*) sed -n '3,12s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac

librerias || exit 1
construye windows || exit 1

# What stands beside the programs: libraries of Qt and of the compiler, plugins, the Spanish of standard boxes.
acompana() {
    local en=$1 dll gcc mingw
    gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
    mingw=/usr/x86_64-w64-mingw32/lib
    for dll in Qt6Core Qt6Gui Qt6Widgets Qt6PrintSupport Qt6Svg libQCustomPlotQt6; do
        cp "$prefijo/bin/$dll.dll" "$en" || return 1
    done
    cp "$gcc"/{libgcc_s_seh-1,libstdc++-6}.dll "$mingw"/libwinpthread-1.dll "$en" || return 1
    for dll in platforms/qwindows styles/qwindowsvistastyle imageformats/q{gif,ico,jpeg,svg} iconengines/qsvgicon; do
        mkdir -p "$en/plugins/${dll%/*}" && cp "$prefijo/plugins/$dll.dll" "$en/plugins/${dll%/*}" || return 1
    done
    mkdir -p "$en/translations" && cp /usr/share/qt6/translations/qtbase_es.qm "$en/translations" || return 1
    printf '[Paths]\r\nPrefix = .\r\nPlugins = plugins\r\nTranslations = translations\r\n' >"$en/qt.conf"
    find "$en" -name '*.dll' -exec x86_64-w64-mingw32-strip --strip-unneeded {} +
}

version=$(sed -n 's/^project(siro VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
salida=$PWD/build/windows
nombre=SIRO-$version-win64

# Portable: one folder. The delivered data stand apart, in data/: from where nobody may write they alone are copied
# into the user's directory.
portatil=$salida/portatil/$nombre
rm -rf "$salida/portatil" "$salida/instalado" "$salida/$nombre".*
cmake --install "$salida" --strip --prefix "$portatil" --component portatil >/dev/null && acompana "$portatil" ||
    muere "The portable folder can't be made"
fecha=$(git log -1 --format=%ct 2>/dev/null || date +%s)
(cd "$salida/portatil" && find "$nombre" -exec touch -d "@$fecha" {} + &&
    find "$nombre" -type f | LC_ALL=C sort | zip -9 -X -q "$salida/$nombre.zip" -@) || muere "The archive can't be made"

# Installed: programs in bin/, data in share/siro/, so that a project never lies among the programs.
cmake --install "$salida" --strip --prefix "$salida/instalado" >/dev/null && acompana "$salida/instalado/bin" ||
    muere "The installation can't be made"
(cd "$salida/instalado" && find . -type f -printf 'Delete "$INSTDIR\\%P"\n' -o -depth -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n') |
    tr / '\\' >"$salida/quita.nsh" || muere "The list of what is installed can't be made"
makensis -V2 -NOCD -INPUTCHARSET UTF8 -DVERSION="$version" -DDE="$salida/instalado" -DA="$salida/$nombre.exe" \
    -DICONO="$salida/siro.ico" -DQUITA="$salida/quita.nsh" -DLICENCIA="$PWD/LICENSE" tools/windows/siro.nsi ||
    muere "The installer can't be made"
ls -l "$salida/$nombre".*
