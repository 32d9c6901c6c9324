# SPDX-License-Identifier: GPL-3.0-or-later
#
# Sourced: the libraries that SIRO stands on, built for Windows from the sources of Debian.
#
# Each is built once and kept outside the tree, in SIRO_WINDOWS or ~/.cache/siro-windows: prefijo/ is where they are installed,
# fuente/ and obra/ where they are unpacked and built, hecho/NAME-KEY tells that one is there. KEY is a digest of the function that
# builds it, of the toolchain's file and of its patches: who changes one of them builds anew.

deposito=${SIRO_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/siro-windows}
prefijo=$deposito/prefijo
export SIRO_WINDOWS_PREFIJO=$prefijo
aqui=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

clave() { { declare -f "$1" instala cmake_win; cat "$aqui/mingw.cmake" "$aqui/parches/$1"-* 2>/dev/null; } | sha256sum | cut -c1-12; }

# Source packages are fetched with lists of their own: those of the machine often have none, and aren't touched.
listas() {
    local apt=$deposito/apt f
    [[ -s $apt/listo ]] && return 0
    mkdir -p "$apt/partes" "$apt/lists/partial" "$apt/cache/archives/partial" || return 1
    for f in /etc/apt/sources.list.d/*.sources; do
        [[ -e $f ]] && sed 's/^Types:.*/Types: deb-src/' "$f" >"$apt/partes/${f##*/}"
    done
    for f in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ -e $f ]] && sed -n 's/^deb /deb-src /p' "$f" >"$apt/partes/$(basename "$f" .list)-fuente.list"
    done
    fuentes update >&2 && touch "$apt/listo.tmp" && date >"$apt/listo"
}
fuentes() {
    apt-get -q -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$deposito/apt/partes" \
        -o Dir::State::lists="$deposito/apt/lists" -o Dir::Cache="$deposito/apt/cache" "$@"
}

# fuente PACKAGE: unpacks its source once and sets $carpeta to where it lies.
fuente() {
    carpeta=$deposito/fuente/$1
    [[ -d $carpeta ]] && return 0
    listas || return 1
    rm -rf "$carpeta.baja" && mkdir -p "$carpeta.baja" &&
        (cd "$carpeta.baja" && APT_CONFIG=/dev/null fuentes source "$1" >&2 && mv ./*/ "$carpeta") &&
        rm -rf "$carpeta.baja"
}

cmake_win() { cmake -G Ninja -DCMAKE_TOOLCHAIN_FILE="$aqui/mingw.cmake" -DSIRO_WINDOWS_PREFIJO="$prefijo" \
    -DCMAKE_INSTALL_PREFIX="$prefijo" -DCMAKE_BUILD_TYPE=Release "$@"; }

# instala FOLDER [cmake options]: configures, builds and installs what lies there.
instala() {
    local de=$1 en
    en=$deposito/obra/$(basename "$de")
    shift
    rm -rf "$en"
    cmake_win -S "$de" -B "$en" "$@" && cmake --build "$en" && cmake --install "$en"
}

# una NAME: runs the function of that name where its result isn't there yet; its output goes to a file, its time to the screen.
una() {
    local nombre=$1 desde=$SECONDS marca
    marca=$deposito/hecho/$1-$(clave "$1")
    [[ -e $marca ]] && return 0
    mkdir -p "$deposito"/{hecho,fuente,obra,registro}
    echo "--- $nombre" >&2
    if ! "$1" >"$deposito/registro/$nombre.log" 2>&1; then
        tail -n 30 "$deposito/registro/$nombre.log" >&2
        echo "$nombre can't be built; the whole of it is in $deposito/registro/$nombre.log" >&2
        return 1
    fi
    rm -f "$deposito/hecho/$nombre"-*
    touch "$marca"
    echo "$((SECONDS - desde)) s" >&2
}

cmake_qt() { echo "/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"; }

# Without what SIRO doesn't use; image formats, fonts and regular expressions from the copies inside Qt.
# Its pointer of tablets needs a header that Debian's source leaves out.
qtbase() {
    fuente qt6-base || return 1
    instala "$carpeta" -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(cmake_qt)" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DBUILD_SHARED_LIBS=ON \
        -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_opengl=OFF -DINPUT_opengl=no \
        -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF -DFEATURE_testlib=OFF -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF \
        -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_freetype=OFF -DFEATURE_system_pcre2=OFF \
        -DFEATURE_system_zlib=OFF
}

# The source of qtsvg that SIRO_QTSVG names, or Debian's.
qtsvg() {
    if [[ -n ${SIRO_QTSVG-} ]]; then
        carpeta=$deposito/fuente/qtsvg
        mkdir -p "$carpeta" && tar -xf "$SIRO_QTSVG" -C "$carpeta" --strip-components=1 || return 1
    else
        fuente qt6-svg || return 1
    fi
    instala "$carpeta" -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(cmake_qt)" \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DBUILD_SHARED_LIBS=ON
}

qcustomplot() {
    fuente qcustomplot || return 1
    instala "$carpeta" -DUSE_QT_VERSION=6 -DBUILD_SHARED_LIBS=ON -DCMAKE_WINDOWS_EXPORT_ALL_SYMBOLS=ON \
        -DCMAKE_CXX_FLAGS=-DQCUSTOMPLOT_COMPILE_LIBRARY -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(cmake_qt)"
}

# Its own patch opens files by their UTF-8 names; as it comes it undoes the test for Windows under this compiler.
libxlsxwriter() {
    rm -rf "$deposito/fuente/libxlsxwriter"
    fuente libxlsxwriter || return 1
    patch -d "$carpeta" -p1 <"$aqui/parches/libxlsxwriter-utf8.patch" || return 1
    instala "$carpeta" -DBUILD_SHARED_LIBS=OFF -DCMAKE_C_FLAGS=-w
}

# For siro-lote too. Of its routines those in C alone, and no bindings to other languages.
nlopt() {
    fuente nlopt || return 1
    instala "$carpeta" -DBUILD_SHARED_LIBS=OFF -DNLOPT_CXX=OFF -DNLOPT_PYTHON=OFF -DNLOPT_OCTAVE=OFF -DNLOPT_MATLAB=OFF \
        -DNLOPT_GUILE=OFF -DNLOPT_SWIG=OFF -DNLOPT_TESTS=OFF -DCMAKE_C_FLAGS=-w
}

# For siro-lote too. Nothing but what zip files are deflated with, and random numbers from Windows itself.
libzip() {
    fuente libzip || return 1
    instala "$carpeta" -DBUILD_SHARED_LIBS=OFF -DBUILD_TOOLS=OFF -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF \
        -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF -DENABLE_OPENSSL=OFF -DENABLE_WINDOWS_CRYPTO=OFF \
        -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF -DENABLE_ZSTD=OFF -DCMAKE_C_FLAGS=-w
}
