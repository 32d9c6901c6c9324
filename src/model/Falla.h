// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace model {

/// Number that a run-time fault bears in the boxes that report it.
enum class NumeroFalla : std::int16_t {
    Argumento = 5,
    Desbordamiento = 6,
    Subindice = 9,
    DivisionPorCero = 11,
    Tipos = 13,
    ArchivoNoEsta = 53,
    FinDeArchivo = 62,
    AccesoRuta = 75,
    RutaNoEsta = 76,
    ObjetoNoEstablecido = 91,
};

/// A run-time fault, thrown where it arises. It comes from numbers, indexes, types, paths and absent
/// components only; an expected failure is never a Falla.
struct Falla {
    NumeroFalla numero;
    std::string_view nota{};  ///< what the box says besides, a text of the program's; most faults have none
    bool operator==(const Falla&) const = default;
};

/// What the host throws when the program must end at once: the caller at the very top catches it.
/// Nothing below catches it, so that no statement runs after it.
struct FinDelPrograma {
    int estado = 0;  ///< exit status of the process
};

/// Returns the description of a fault as the boxes show it.
std::string_view DescripcionFalla(NumeroFalla numero);

}  // namespace model
