// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "batch/AnfitrionLote.h"

// The verbs beside una and serie, a row each: what they are called, how they are used, what they do.
namespace batch {

/// The words behind a verb.
using Palabras = std::span<const char* const>;

struct VerboSinCorrida {
    std::string_view nombre;
    std::string_view uso;  ///< how to call it, in lines that end in LF
    /// Does it, and returns the exit status. Where the words are wrong it says why, as a sentence without a
    /// full stop, in `motivo` and does nothing else.
    int (*corre)(Palabras palabras, const Salidas& salidas, std::string& motivo);
};

/// The verb that a command line begins with; null where that is una, serie or anything else.
const VerboSinCorrida* VerboDe(int argc, const char* const* argv);

/// Does what a command line asks of its verb: the help, or the verb itself. Returns the exit status.
int CorreVerbo(const VerboSinCorrida& verbo, Palabras palabras, const Salidas& salidas);

/// Runs the published cases and shows them as text, or as JSON. Status 1 where one is out of tolerance.
int CorreVerifica(Palabras palabras, const Salidas& salidas, std::string& motivo);

}  // namespace batch
