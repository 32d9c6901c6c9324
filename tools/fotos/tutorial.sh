#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   tools/fotos/tutorial.sh    takes the pictures of the tutorial anew, while the test that follows it runs
#
# The test is UnDia (tests/e2e): what the pictures show is what it does and checks.

set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. .ci/paquetes.sh
necesita construye estudio escritorio pantalla
construye dev pruebas_e2e

taller=/var/tmp/SIRO
crudas=$(mktemp -d)
rm -rf "$taller"
mkdir -m 700 "$taller"
trap 'rm -rf "$taller" "$crudas"' EXIT
SIRO_FOTOS=$crudas SIRO_TALLER=$taller build/dev/tests/e2e/pruebas_e2e --gtest_filter='UnDia.*'

# foto NAME COLOURS OPTIONS...: no wider than a page of the help; few colours make a small file.
foto() {
    local nombre=$1 colores=$2
    shift 2
    convert "$crudas/$nombre.png" +repage "$@" -resize '680x>' +dither -colors "$colores" -strip \
        -define png:compression-level=9 "data/Ayuda/$nombre.png"
    echo "$nombre $(stat -c %s "data/Ayuda/$nombre.png")"
}
foto tutorial_nuevo 32
foto tutorial_imagen 48 -gravity NorthWest -crop 760x330+0+0 +repage
foto tutorial_mapa 20 -gravity NorthWest -crop 560x420+150+70 +repage -resize 460x -blur 0x0.5
foto tutorial_red 48
foto tutorial_ueh 48
foto tutorial_cauce 48
foto tutorial_represa 48
foto tutorial_has 48
foto tutorial_tormenta 48
foto tutorial_pizarra 32
foto tutorial_hidrograma 48
foto tutorial_salida 48
foto tutorial_recurrencias 48 -gravity NorthWest -crop 1110x330+0+0 +repage
foto tutorial_abaco 48
foto tutorial_planilla 48
foto tutorial_formulas 40
foto tutorial_eliminar 32
