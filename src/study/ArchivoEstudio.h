// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "study/Estudio.h"

// The text of P_Estudio.json: UTF-8, a "version", keys in Spanish. Values of observations stand in files of
// their own, Series.h. Keys that this version doesn't know are
// kept where they stand: of the whole, of the workshop, its stations, their series, its curves, its storm.
namespace study {

inline constexpr int VersionDeEstudio = 1;

/// What a file may hold: beyond that it is nobody's study.
inline constexpr std::size_t MaximoDeBytes = std::size_t{16} * 1024 * 1024;
inline constexpr int MaximaProfundidad = 32;

struct LecturaDeEstudio {
    Estudio estudio{};     ///< empty where the text is none
    int renglon = 0;       ///< where it fails, from 1
    std::string motivo{};  ///< why it is none, without capital and full stop; empty: it is one
};

/// Reads the bytes of a file. A key that isn't there, or is null, leaves its default; one that is there
/// twice, of another kind, or out of its bounds is a fault, and so is a version to come.
LecturaDeEstudio LeeEstudio(std::string_view bytes);

/// The part of a study that is a task of siro-lote too: observed floods, and what is asked of many runs.
struct LecturaDeAjuste {
    Ajuste ajuste{};       ///< empty where the text is none
    int renglon = 0;       ///< where it fails, from 1
    std::string motivo{};  ///< why it is none, without capital and full stop; empty: it is one
};

/// Reads the bytes of a file that holds what a study has under its key "ajuste", by the same rules; it needs
/// no version. Keys that aren't known stand in `resto`.
LecturaDeAjuste LeeAjuste(std::string_view bytes);

/// The text that LeeAjuste reads.
std::string EscribeAjuste(const Ajuste& ajuste);

/// The text of a study: keys always in the same order, a line per maximum, every digit that tells one number
/// from the next; what is no UTF-8 in a text is U+FFFD.
std::string EscribeEstudio(const Estudio& estudio);

/// What keeps a value from being written so that it can be read again, a bound that it leaves for one; empty
/// where nothing does.
std::string ReparoDe(const Estudio& estudio);

}  // namespace study
