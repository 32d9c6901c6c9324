# SPDX-License-Identifier: GPL-3.0-or-later
#
# Sourced: makes wine's prefix once and keeps its server while the sourcing script runs, so that the start of a program
# costs no more than its own.

export WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/siro-wine}
mkdir -p "$WINEPREFIX"
[[ -d $WINEPREFIX/drive_c/windows ]] || tools/windows/vino.sh wineboot -i >/dev/null 2>&1
servidor=$(command -v wineserver || echo /usr/lib/wine/wineserver)
WINEDEBUG=-all "$servidor" -p >/dev/null 2>&1
trap '"$servidor" -k' EXIT
# The first program starts those that serve all others, and they keep its streams open for as long as they stay.
tools/windows/vino.sh cmd /c exit >/dev/null 2>&1 </dev/null
