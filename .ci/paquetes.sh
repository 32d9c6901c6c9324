# SPDX-License-Identifier: GPL-3.0-or-later
#
# Sourced by run, test and .ci/run from the root of the tree.

# necesita PURPOSE...: installs the packages of paquetes.txt for these purposes that are missing, and nothing else.
# Where there is no Debian the tools are taken to be there already.
necesita() {
    command -v dpkg-query >/dev/null 2>&1 && command -v apt-get >/dev/null 2>&1 || return 0
    local proposito paquete faltan=() estado como=()
    while read -r proposito paquete; do
        [[ " $* " == *" $proposito "* ]] || continue
        estado=$(dpkg-query -W -f '${db:Status-Status}\n' "$paquete" 2>/dev/null | head -n 1) || true
        [[ $estado == installed ]] || faltan+=("$paquete")
    done < <(grep -v '^#' paquetes.txt)
    [[ ${#faltan[@]} -gt 0 ]] || return 0

    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "Missing packages, and neither root nor sudo to install them:" >&2
            echo "    apt-get install --no-install-recommends ${faltan[*]}" >&2
            return 1
        fi
        como=(sudo)
    fi
    como+=(env DEBIAN_FRONTEND=noninteractive apt-get)
    echo "Installing ${faltan[*]}" >&2
    # The lists are fetched only where the packages can't be had with those at hand.
    "${como[@]}" -q install -y --no-install-recommends "${faltan[@]}" >&2 && return 0
    "${como[@]}" -q update >&2 && "${como[@]}" -q install -y --no-install-recommends "${faltan[@]}" >&2
}

# construye PRESET [target...]: configures and builds build/PRESET, with ccache where it is there.
construye() {
    local preset=$1
    shift
    if command -v ccache >/dev/null 2>&1; then
        export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}
    fi
    # A preset that names its compiler is not moved by this.
    export CXX=${CXX:-g++}
    cmake --preset "$preset" >"build/$preset.configura.log" 2>&1 || {
        cat "build/$preset.configura.log" >&2
        return 1
    }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
