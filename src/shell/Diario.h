// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/RedEscrita.h"
#include "forms/Contenido.h"
#include "model/Disco.h"

// The journal of unsaved work: a file in the user's directory for each running program, there only while
// something isn't saved. Whoever finds one whose program runs no more finds what was being done when it
// ended.
namespace shell {

/// What is unsaved at a moment.
struct Diario {
    std::string proyecto{};  ///< name of its project
    std::string conf{};      ///< configuration file of it
    std::string cuando{};    ///< in the machine's general format
    /// The project's files as the program knew them: path, what it held by Huellas.h.
    std::map<std::string, std::size_t> huellas{};
    std::optional<editor::RedEscrita> red{};  ///< of a drawing that isn't saved
    std::vector<forms::Contenido> formas{};   ///< open forms with what isn't applied
    [[nodiscard]] bool Vacio() const { return !red && formas.empty(); }
    bool operator==(const Diario&) const = default;
};

inline constexpr std::string_view FinDeDiario = ".diario";

/// The file: a line that tells what it is, a line with the SHA-256 of what follows, texts each with its
/// length ahead. Forms beyond 4 MiB are left out, all but their titles.
std::string Compone(Diario diario);

/// Reads it. Throws Falla 75, with a note for the user, where not every byte is as it was written, and where
/// a later version wrote it.
Diario LeeDiario(std::string_view bytes);

/// A journal that was found.
struct DiarioHallado {
    std::string ruta{};
    Diario diario{};
    std::string dano{};  ///< why it can't be read; empty: it can
};

/// Journals of a folder, the newest last, that `toma` takes for this program: it returns false for one whose
/// program is running. A folder that isn't there has none.
std::vector<DiarioHallado> BuscaDiarios(const model::Disco& disco, const std::string& carpeta,
                                        const std::function<bool(const std::string& ruta)>& toma);

/// Name of a new journal: when, "20261123-005012-345", and the number of the process.
std::string NombreDeDiario(std::string_view cuando, long proceso);

/// Puts a journal into the folder of those that were given up, under the other ones, where the last twenty
/// are kept. Throws Falla 76, 75 and leaves it where it was.
void ApartaDiario(const model::Disco& disco, const std::string& ruta);

}  // namespace shell
