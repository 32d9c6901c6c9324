#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   tools/paquete/prueba.sh [BUILD] [BASE]
#
# Installs the Debian package of a build tree (build/paquete, where nothing is given) into a Debian made for it, uses it
# there as a user without rights, and takes it away again. Needs root and debootstrap. BASE is a directory with a bare
# Debian to start from; it is made where it isn't there, and kept. Without it one is made and thrown away.
#
# The last line is "N passed, N failed"; the exit status tells the same.

set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
construido=${1:-build/paquete}
base=${2-}
distribucion=bookworm
# The one user of that Debian.
casa=/srv/prueba
principal='^SIRO - Modelo Hidrol'

pasan=0
fallan=0
paso() {
    if [[ $1 -eq 0 ]]; then
        pasan=$((pasan + 1))
        echo "ok      $2"
    else
        fallan=$((fallan + 1))
        echo "FAILED  $2"
    fi
}
# vale TEXT COMMAND...
vale() {
    local que=$1
    shift
    "$@"
    paso $? "$que"
}
no() { ! "$@"; }

paquetes=("$construido"/paquete/siro_*.deb)
[[ -f ${paquetes[0]} && ${#paquetes[@]} -eq 1 ]] || { echo "One package is wanted in $construido/paquete" >&2; exit 1; }
deb=${paquetes[0]}
lote=$construido/src/batch/siro-lote
[[ -x $lote ]] || { echo "No $lote" >&2; exit 1; }
[[ $(id -u) -eq 0 ]] || { echo "Only root makes a Debian to install into" >&2; exit 1; }

lugar=$(mktemp -d "${TMPDIR:-/var/tmp}/siro-paquete-XXXXXX")
raiz=$lugar/raiz
montados=()
procesos=()
limpia() {
    local p
    for p in "${procesos[@]}"; do kill "$p" 2>/dev/null; done
    wait 2>/dev/null
    for ((p = ${#montados[@]} - 1; p >= 0; --p)); do umount -l "${montados[p]}"; done
    # Never through a mount that is still there.
    rm -rf --one-file-system "$lugar"
}
trap limpia EXIT
trap 'exit 1' INT TERM

if [[ -n $base && -d $base ]]; then
    cp -a "$base" "$raiz" || exit 1
else
    echo "Making a bare Debian" >&2
    debootstrap --variant=minbase "$distribucion" "$raiz" >"$lugar/debootstrap.log" 2>&1 || {
        tail -n 5 "$lugar/debootstrap.log" >&2
        exit 1
    }
    [[ -z $base ]] || cp -a "$raiz" "$base" || exit 1
fi
# No service starts inside, whatever a package asks for.
printf '#!/bin/sh\nexit 101\n' >"$raiz/usr/sbin/policy-rc.d"
chmod 755 "$raiz/usr/sbin/policy-rc.d"
cp /etc/resolv.conf "$raiz/etc/resolv.conf"
mount -t proc proc "$raiz/proc" && montados+=("$raiz/proc")
mount --bind /dev "$raiz/dev" && montados+=("$raiz/dev")

dentro() { chroot "$raiz" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
usuario() {
    chroot --userspec=prueba:prueba "$raiz" env -i PATH=/usr/bin:/bin HOME=$casa LC_ALL=C.UTF-8 \
        XDG_RUNTIME_DIR=$casa/.ejecucion "$@"
}
apt() { dentro apt-get -qq -y --no-install-recommends -o Dpkg::Use-Pty=0 "$@" >>"$lugar/apt.log" 2>&1; }
# Everything that isn't a user's, a log or apt's own; what an index of the system remembers counts by its name.
fotografia() {
    (cd "$raiz" && find . -xdev \( -path .$casa -o -path ./var/log -o -path ./var/cache -o -path ./var/lib/apt \
        -o -path ./tmp -o -path ./dev -o -path ./proc -o -path ./var/lib/dpkg -o -path ./root \) -prune -o -print | sort)
}

dentro useradd -m -d $casa prueba
usuario mkdir -m 700 $casa/.ejecucion
mkdir "$raiz$casa/paquete"
cp "$deb" "$raiz$casa/paquete/siro.deb"
datos=$casa/.local/share/SIRO/siro

# --- With nothing but what the package itself asks for ----------------------------------------------------------------
apt update
vale "it installs with what it depends on" apt install $casa/paquete/siro.deb
vale "dpkg finds all of its files as they were packed" dentro sh -c 'test -z "$(dpkg --verify siro)"'
vale "every library of the programs is there" dentro sh -c '! ldd /usr/bin/siro /usr/bin/siro-lote /usr/bin/siro-memoria | grep "not found"'
vale "the manual pages are there" test -f "$raiz/usr/share/man/es/man1/siro-lote.1.gz" -a -f "$raiz/usr/share/man/man1/siro.1.gz"

# The same storm here and there, from the delivered sample project; there the program's own directory can't be written.
mkdir "$lugar/aqui"
cp -R data "$lugar/aqui/siro"
"$lote" una "$lugar/aqui/siro/Proyectos/Quelmar_Conf.vlm" --trabajo "$lugar/aqui/siro" --distribucion 5 \
    --resultados "$lugar/aqui/q.csv" --pizarra >"$lugar/aqui/pizarra" 2>/dev/null
usuario cp -R /usr/share/siro/Proyectos $casa/
usuario siro-lote una $casa/Proyectos/Quelmar_Conf.vlm --distribucion 5 --resultados $casa/q.csv --pizarra \
    >"$lugar/pizarra" 2>"$lugar/lote.log"
paso $? "siro-lote runs the sample storm: status 0"
vale "its results are the bytes of the build tree's" cmp "$lugar/aqui/q.csv" "$raiz$casa/q.csv"
sin_hora() { sed -E 's#[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}#hora#' "$1" | grep -v Proyectos; }
vale "the text of its Slate too" cmp <(sin_hora "$lugar/aqui/pizarra") <(sin_hora "$lugar/pizarra")
vale "its files lie in the user's own directory" test -s "$raiz$datos/SalePizarra1_tem.txt" -a -s "$raiz$datos/TablasPDRs_pdr.vlm"
usuario siro-lote serie $casa/Proyectos/Quelmar_Conf.vlm --tabla 1 --resultados $casa/s.csv 2>>"$lugar/lote.log"
paso $? "siro-lote runs a series by the delivered table"
"$lote" serie "$lugar/aqui/siro/Proyectos/Quelmar_Conf.vlm" --trabajo "$lugar/aqui/siro" --tabla 1 \
    --resultados "$lugar/aqui/s.csv" 2>/dev/null
vale "with the bytes of the build tree's" cmp "$lugar/aqui/s.csv" "$raiz$casa/s.csv"
rm -rf "$raiz$casa/.local"
vale "it is purged" apt purge siro
vale "and no file of its name is left" test -z "$(cd "$raiz" && find . -xdev -path ".$casa" -prune -o -path ./proc -prune \
    -o -path ./dev -prune -o -iname '*siro*' -print)"

# --- On a desktop ---------------------------------------------------------------------------------------------------------
apt install xvfb openbox xdotool xdg-utils shared-mime-info desktop-file-utils libfile-mimeinfo-perl libglib2.0-bin x11-utils xchm
# A viewer of compiled help that no desktop knows of until later.
visor=$raiz/usr/share/applications/xchm.desktop
mv "$visor" "$lugar/"
dentro update-desktop-database
vale "what a desktop has is there" test -x "$raiz/usr/bin/xdotool" -a -f "$lugar/xchm.desktop"
fotografia >"$lugar/antes"
vale "it installs again" apt install $casa/paquete/siro.deb

conf=$casa/Proyectos/Quelmar_Conf.vlm
vale "a project is a SIRO project by its name" \
    test "$(usuario xdg-mime query filetype $conf)" = application/x-siro-proyecto
vale "for other tools too" \
    test "$(usuario gio info -a standard::content-type $conf | sed -n 's/.*content-type: //p')" = application/x-siro-proyecto
vale "its components are none" \
    test "$(usuario xdg-mime query filetype "${conf%Conf.vlm}UEHs.vlm")" != application/x-siro-proyecto
vale "siro opens it" test "$(usuario xdg-mime query default application/x-siro-proyecto)" = siro.desktop

pantalla=:$((60 + RANDOM % 30))
dentro Xvfb $pantalla -screen 0 1280x800x24 -nolisten tcp >"$lugar/xvfb.log" 2>&1 &
procesos+=($!)
en_pantalla() { usuario DISPLAY=$pantalla "$@"; }
espera() {
    local i
    for ((i = 0; i < 120; ++i)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.5
    done
    return 1
}
ventana() { en_pantalla xdotool search --onlyvisible --name "$1"; }
tecla() { en_pantalla xdotool key "$@"; }
foto() { command -v import >/dev/null && DISPLAY=$pantalla import -window root "$construido/paquete/$1.png" 2>/dev/null; }
espera en_pantalla xdpyinfo
en_pantalla openbox >"$lugar/openbox.log" 2>&1 &
procesos+=($!)
espera en_pantalla xdotool get_num_desktops

# The program may be busy when the key comes: what waits for it says when it has been taken.
en_pantalla siro >"$lugar/siro.log" 2>&1 &
programa=$!
procesos+=($programa)
vale "siro starts as a user without rights" espera ventana "$principal"
vale "its first start has filled the user's directory" \
    test -s "$raiz$datos/Proyectos/Quelmar_Conf.vlm" -a -s "$raiz$datos/Ayuda/indice.html" -a -s "$raiz$datos/distriPp_dpt.vlm"
vale "and written nothing where it is installed" test ! -e "$raiz/usr/bin/VelmirDir.vlm"
en_pantalla xdotool search --onlyvisible --name "$principal" windowactivate --sync 2>/dev/null
sleep 1
tecla F1
sleep 3
foto ayuda
vale "without a viewer of compiled help the program goes on" kill -0 $programa
en_pantalla xdotool search --onlyvisible --name "$principal" windowactivate --sync 2>/dev/null
tecla ctrl+q
vale "and ends" espera no kill -0 $programa

# A double click on the sample project, as a desktop does it.
en_pantalla xdg-open "$datos/Proyectos/Quelmar_Conf.vlm" >"$lugar/xdg-open.log" 2>&1 &
programa=$!
procesos+=($programa)
vale "a project opened by the desktop starts siro" espera ventana "$principal"
# The project has been moved there: that is told.
espera ventana '^SIRO$'
en_pantalla xdotool search --onlyvisible --name '^SIRO$' windowactivate --sync
tecla Return
vale "with that project" espera grep -q 'Quelmar' "$raiz$datos/VelmirDir.vlm"
sleep 1
foto proyecto
clase=$(en_pantalla xprop -id "$(ventana "$principal" | head -n 1)" WM_CLASS)
vale "the window is the menu entry's: $clase" test "${clase#*\"siro\"}" != "$clase"

mv "$lugar/xchm.desktop" "$visor"
dentro update-desktop-database
en_pantalla xdotool search --onlyvisible --name "$principal" windowactivate --sync 2>/dev/null
tecla F1
vale "with a viewer the compiled help opens in it" espera ventana 'Ayuda de SIRO'
sleep 1
foto ayuda_compilada
suya=$(ventana 'Ayuda de SIRO' | head -n 1)
[[ -z $suya ]] || en_pantalla xdotool windowclose "$suya" 2>/dev/null
en_pantalla xdotool search --onlyvisible --name "$principal" windowactivate --sync 2>/dev/null
tecla ctrl+q
vale "siro ends" espera no ventana "$principal"

# --- Taken away ------------------------------------------------------------------------------------------------------------
mv "$visor" "$lugar/"
vale "it is purged again" apt purge siro
fotografia >"$lugar/despues"
vale "and nothing of it is left" no grep -i siro "$lugar/despues"
comm -13 "$lugar/antes" "$lugar/despues" >"$lugar/de_mas"
vale "nor anything else that wasn't there: $(wc -l <"$lugar/de_mas")" test ! -s "$lugar/de_mas"
head -n 20 "$lugar/de_mas"
vale "what the user has made stays" test -s "$raiz$datos/VelmirDir.vlm"

[[ $fallan -eq 0 ]] || { mkdir -p "$construido/paquete/diarios"; cp "$lugar"/*.log "$construido/paquete/diarios"; }
echo "$pasan passed, $fallan failed"
[[ $fallan -eq 0 ]]
