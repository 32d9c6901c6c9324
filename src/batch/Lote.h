// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch/AnfitrionLote.h"

// siro-lote as a whole: the first word of a command line says which of its orders is meant.
namespace batch {

/// Does what a command line asks for and returns the exit status.
int Lote(int argc, const char* const* argv, const Salidas& salidas);

}  // namespace batch
