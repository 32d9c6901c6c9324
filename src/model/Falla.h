// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

// Faults: where they come from, what they are called, and how a routine goes on at its next statement. What a
// box says of them stands in Avisos.h.
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

/// One statement of a routine whose handler sees to a fault and resumes at the next one: in silence, unless a
/// handler is given. Returns false where the statement was at fault; it is then left without effect.
template <typename Cuerpo, typename Maneja = void (*)(const Falla&)>
bool Sentencia(
    Cuerpo&& cuerpo, Maneja&& maneja = [](const Falla&) {})
{
    try {
        std::forward<Cuerpo>(cuerpo)();
        return true;
    } catch (const Falla& falla) {
        std::forward<Maneja>(maneja)(falla);
        return false;
    }
}

/// The handler of what works on a file that need not be there: any other fault goes on its way.
inline void SalvoQueFalte(const Falla& falla)
{
    if (falla.numero != NumeroFalla::ArchivoNoEsta) throw falla;
}

}  // namespace model
