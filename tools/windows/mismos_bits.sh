#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# tools/windows/mismos_bits.sh [HOW MANY]: random projects, 1,000 of them unless told, run by siro-lote here and by
# siro-lote.exe under wine; status, streams and files have to be equal, drive and place of the project apart.

set -u
cd "$(dirname "${BASH_SOURCE[0]}")/../.." || exit 1
. .ci/paquetes.sh
mkdir -p build
. tools/windows/dependencias.sh
necesita construye estudio prueba windows && una nlopt && una libzip && construye lote siro-lote && construye windows-nucleo siro-lote || exit 1

. tools/windows/servidor.sh
PYTHONDONTWRITEBYTECODE=1 python3 tests/oraculo/mismos_bytes.py --uno "$PWD/build/lote/src/batch/siro-lote" \
    --otro "$PWD/tools/windows/vino.sh $PWD/build/windows-nucleo/src/batch/siro-lote.exe" \
    --windows --semillas "1-${1:-1000}" --jobs "$(nproc)"
