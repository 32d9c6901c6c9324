# SPDX-License-Identifier: GPL-3.0-or-later
#
# Sourced: makes wine's prefix once and keeps its server while the sourcing script runs, so that the start of a program
# costs no more than its own.

export WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/siro-wine}
mkdir -p "$WINEPREFIX"
# Scripts that run side by side share the server, and the last one stops it: stopped sooner, it takes the others' programs with
# it in the middle of their work, with exit status 0. What outlives a script must not hold its lock.
exec {en_uso}>"$WINEPREFIX/en-uso"
flock -s "$en_uso"
servidor=$(command -v wineserver || echo /usr/lib/wine/wineserver)
trap 'flock -n -x "$en_uso" && "$servidor" -k' EXIT
[[ -d $WINEPREFIX/drive_c/windows ]] || tools/windows/vino.sh wineboot -i >/dev/null 2>&1 {en_uso}>&-
WINEDEBUG=-all "$servidor" -p >/dev/null 2>&1 {en_uso}>&-
# The first program starts those that serve all others, and they keep its streams open for as long as they stay.
tools/windows/vino.sh cmd /c exit >/dev/null 2>&1 </dev/null {en_uso}>&-
