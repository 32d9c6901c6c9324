// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Tables of the Represas and Lagos: a block per component, found by "*" and the component's name. A reader
// replaces its arrays altogether; a missing block gives 0 rows to its component and to all that follow.
// A writer replaces its file whole, or leaves it as it was, and returns which.
// Failures are reported through the host, never thrown. S passes through a 32-bit float.
namespace model {

struct Siro;

void LeeTablaHSVRepresa(Siro& s);  ///< RepresaFilasHAS, RepresaH, RepresaA, RepresaS from <Proyecto>_RHAS.vlm
void LeeTablaHQRepresa(Siro& s);   ///< RepresaFilasHQ, RepresaQH, RepresaQQ from <Proyecto>_RHQ.vlm
void LeeTablaHSVQLago(Siro& s);    ///< LagoFilas, LagoH, LagoA, LagoS, LagoQ from <Proyecto>_LHASQ.vlm

bool GuardaTablaHSVRepresa(Siro& s);
bool GuardaTablaHQRepresa(Siro& s);
bool GuardaTablaHSVQLago(Siro& s);

/// A table file of the project.
enum class ArchivoDeTablas : std::uint8_t { RHAS, RHQ, LHASQ };

/// A block as its header in the file tells it.
struct BloqueDeTabla {
    std::string nombre{};
    std::int16_t filas = 0;
    bool operator==(const BloqueDeTabla&) const = default;
};

/// Name of the file in the project's directory.
std::string NombreDeArchivo(const Siro& s, ArchivoDeTablas archivo);

/// The blocks of a file in its order, nothing where it can't be read: its reader has told why.
std::vector<BloqueDeTabla> BloquesDe(const Siro& s, ArchivoDeTablas archivo);

/// Gives the first block of a name in each of these files another one, all of them or none; every other byte
/// stays. A file that isn't there, has no such block, or one of the new name already, is left alone. Returns
/// whether any was changed. Throws Falla 76, 75.
bool RenombraBloques(const Siro& s, std::span<const ArchivoDeTablas> archivos, std::string_view viejo,
                     std::string_view nuevo);

}  // namespace model
