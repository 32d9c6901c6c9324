#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   tools/fotos/fotos.sh [DIRECTORY]    takes the pictures of docs/img and of the help anew, from the program as it is built in build/release
#
# Starts a screen of its own (Xvfb, openbox), opens the sample project and does with the keyboard what the pictures show.

set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. .ci/paquetes.sh
destino=$(realpath "${1:-docs/img}")
necesita construye estudio escritorio pantalla
construye release siro
construye bench proyecto_limite
mkdir -p "$destino"

taller=/var/tmp/SIRO
rm -rf "$taller"
mkdir -m 700 "$taller"
procesos=()
cierra() {
    [[ ${#procesos[@]} -eq 0 ]] || kill "${procesos[@]}" 2>/dev/null || true
    rm -rf "$taller"
}
trap cierra EXIT

export DISPLAY=:97 HOME=$taller XDG_CONFIG_HOME=$taller XDG_DATA_HOME=$taller XDG_RUNTIME_DIR=$taller \
    QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
Xvfb "$DISPLAY" -screen 0 1366x768x24 -nolisten tcp >/dev/null 2>&1 &
procesos+=($!)
sleep 1
openbox >/dev/null 2>&1 &
procesos+=($!)
sleep 1

cp -R data "$taller/siro"
cp build/release/src/shell/siro "$taller/siro/siro"
build/bench/bench/proyecto_limite "$taller/limite" --vertices 100 >/dev/null

activa() { xdotool getactivewindow getwindowname 2>/dev/null || true; }
# espera TITLE: until the window of this title has the focus.
espera() {
    local i
    for i in $(seq 200); do
        [[ $(activa) == "$1" ]] && { sleep 0.4; return; }
        sleep 0.05
    done
    echo "waited in vain for \"$1\"; there is \"$(activa)\"" >&2
    exit 1
}
tecla() { xdotool key --delay 60 "$@"; sleep 0.4; }
teclea() { xdotool type --delay 10 "$1"; }
# foto NAME [WIDTH]: few colours, so that a picture is small; those with a map are smaller in size too.
foto() {
    sleep 0.6
    import -window root "$taller/foto.png"
    convert "$taller/foto.png" -trim +repage ${2:+-resize "$2"} +dither -colors 96 -define png:compression-level=9 \
        "$destino/$1.png"
    echo "$1 $(stat -c %s "$destino/$1.png")"
}
principal="SIRO - Modelo Hidrológico de  simulación de crecidas"
abre() {
    tecla ctrl+o
    espera Abrir
    teclea "$1"
    tecla Return
    sleep 0.8
    [[ $(activa) != SIRO ]] || tecla Return
    espera "$principal"
}

"$taller/siro/siro" >/dev/null 2>&1 &
procesos+=($!)
espera "$principal"
xdotool getactivewindow windowsize 1340 700 windowmove 12 30
abre "$taller/siro/Proyectos/Quelmar_Conf.vlm"

# The storm, 80 mm in 120 min.
tecla F4
espera "Carga de Datos de Precipitación"
tecla alt+p ctrl+a
teclea 80
tecla alt+d ctrl+a
teclea 120
tecla Tab
foto tormenta
tecla Return
espera "$principal"

tecla F7
tecla F5
espera "La tabla de resultados es muy extensa"
tecla Return
espera "$principal"
foto hidrograma
tecla F7 F7
foto pizarra
tecla F7
tecla F8
foto hietograma

# The editor: the sample project with and without its map, nearer, and a network as large as the program admits.
tecla F3
editor="Diagrama de Unidades Hidrológicas de Estudio y sus componentes"
espera "$editor"
foto editor
xdotool mousemove 700 380
tecla ctrl+i
foto editor_mapa 800
xdotool click --repeat 8 --delay 60 4
foto editor_cerca 800
tecla Escape
espera "Resguardo de datos de componentes UEHs"
tecla n
espera "$principal"
abre "$taller/limite/Limite_Conf.vlm"
tecla F3
espera "$editor"
foto editor_limite

# The manual's, as wide as a page of the help.
if [[ $destino == "$PWD/docs/img" ]]; then
    for nombre in editor tormenta hidrograma pizarra; do
        convert "docs/img/$nombre.png" -resize 680 +dither -colors 64 -strip -define png:compression-level=9 \
            "data/Ayuda/$nombre.png"
    done
fi
