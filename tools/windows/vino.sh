#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
#
# vino.sh PROGRAM [ARGUMENTS]: runs a program of Windows under wine, in a prefix of the build's own, without its window
# system and without its own messages.

: "${WINEPREFIX:=${XDG_CACHE_HOME:-$HOME/.cache}/siro-wine}"
export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' DISPLAY=
exec "$(command -v wine64-stable || command -v wine64 || echo /usr/lib/wine/wine64)" "$@"
