#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
#   tools/mismos_bits.sh [COMPILER/PROCESSOR ...]
#
# siro-lote built by each compiler for each processor, by default g++ and clang++ for x86-64, which has no fused
# multiply-add, and for haswell, which has one; its results over the sample and random projects by their hashes
# (tests/oraculo/huellas.py). A line per build; exit status 1 where one gives other bits, or none was run.

set -u
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
export PYTHONDONTWRITEBYTECODE=1

combinaciones=("$@")
[[ $# -gt 0 ]] || combinaciones=(g++/x86-64 g++/haswell clang++/x86-64 clang++/haswell)
corridas=0
estado=0
for combinacion in "${combinaciones[@]}"; do
    compilador=${combinacion%/*} procesador=${combinacion#*/}
    lugar=build/bits/${compilador//+/p}-$procesador
    if [[ $procesador == haswell ]] && ! grep -qw fma /proc/cpuinfo; then
        printf '%-24s not run: no such processor here\n' "$combinacion"
        continue
    fi
    mkdir -p "$lugar"
    if ! { cmake -S . -B "$lugar" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSIRO_GUI=OFF -DSIRO_ESTUDIO=OFF -DSIRO_JUNTA=ON -DBUILD_TESTING=OFF \
        -DCMAKE_CXX_COMPILER="$compilador" -DCMAKE_CXX_FLAGS="-march=$procesador" &&
        cmake --build "$lugar" --target siro-lote; } >"$lugar/salida.log" 2>&1; then
        printf '%-24s not built: see %s/salida.log\n' "$combinacion" "$lugar"
        estado=1
        continue
    fi
    resultado=$(python3 tests/oraculo/huellas.py --siro-lote "$lugar/src/batch/siro-lote") || estado=1
    fusiones=$(objdump -d "$lugar/src/batch/siro-lote" | grep -cE '\bvfn?m(add|sub)' || true)
    printf '%-24s %s, %s fused instructions\n' "$combinacion" "$(tail -n 1 <<<"$resultado")" "$fusiones"
    corridas=$((corridas + 1))
done
[[ $estado -eq 0 && $corridas -gt 0 ]]
