// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "model/Falla.h"
#include "model/Siro.h"

namespace model {

inline constexpr std::string_view TituloAdvertencia = "Advertencia !";

/// Shows a box with OK and the exclamation icon.
void Advierte(const Siro& s, std::string texto, std::string_view titulo = TituloAdvertencia);

/// Shows a box with OK in the plain style, without a title of its own.
void Informa(const Siro& s, std::string texto);

/// Asks with Yes and No and the exclamation icon. Returns true for Yes. `repetida`: of a question that a run
/// may ask many times, what it is known by whatever component it is about.
bool Consulta(const Siro& s, std::string texto, std::string_view titulo, std::string repetida = {});

/// The engine's report of a fault: "Error Nro. 6 ,DesbordamientoVerifique".
std::string TextoFallaMotor(const Falla& falla);

/// The report of the readers and writers: "Error Nro. 6Desbordamiento ,Verifique".
std::string TextoFallaArchivo(const Falla& falla);

/// One statement of a routine whose handler reports a fault and resumes at the next one. Returns false where
/// the statement was at fault; it is then left without effect.
template <typename Cuerpo, typename Informe>
bool Sentencia(Cuerpo&& cuerpo, Informe&& informa)
{
    try {
        std::forward<Cuerpo>(cuerpo)();
        return true;
    } catch (const Falla& falla) {
        std::forward<Informe>(informa)(falla);
        return false;
    }
}

}  // namespace model
