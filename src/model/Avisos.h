// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "model/Anfitrion.h"
#include "model/Falla.h"

namespace model {

inline constexpr std::string_view TituloAdvertencia = "Advertencia !";

/// Shows a box with OK and the exclamation icon.
void Advierte(const Anfitrion& anfitrion, std::string texto, std::string_view titulo = TituloAdvertencia);

/// Shows a box with OK in the plain style, without a title of its own.
void Informa(const Anfitrion& anfitrion, std::string texto);

/// Asks with Yes and No and the exclamation icon. Returns true for Yes. `repetida`: of a question that a run
/// may ask many times, what it is known by whatever component it is about.
bool Consulta(const Anfitrion& anfitrion, std::string texto, std::string_view titulo,
              std::string repetida = {});

/// The engine's report of a fault: "Error Nro. 6 ,DesbordamientoVerifique".
std::string TextoFallaMotor(const Falla& falla);

/// The report of the readers and writers: "Error Nro. 6Desbordamiento ,Verifique".
std::string TextoFallaArchivo(const Falla& falla);

/// What becomes of a fault: a box tells it in the words of whoever met it; without words it is passed over.
struct Manejador {
    const Anfitrion* anfitrion = nullptr;
    std::string (*palabras)(const Falla&) = nullptr;

    void operator()(const Falla& falla) const
    {
        if (palabras != nullptr) Informa(*anfitrion, palabras(falla));
    }
};

inline Manejador AvisaMotor(const Anfitrion& anfitrion)
{
    return {&anfitrion, TextoFallaMotor};
}
inline Manejador AvisaArchivo(const Anfitrion& anfitrion)
{
    return {&anfitrion, TextoFallaArchivo};
}

/// One statement of a routine whose handler sees to a fault and resumes at the next one: in silence, unless a
/// handler is given. Returns false where the statement was at fault; it is then left without effect.
template <typename Cuerpo, typename Maneja = Manejador>
bool Sentencia(Cuerpo&& cuerpo, Maneja&& maneja = {})
{
    try {
        std::forward<Cuerpo>(cuerpo)();
        return true;
    } catch (const Falla& falla) {
        std::forward<Maneja>(maneja)(falla);
        return false;
    }
}

}  // namespace model
