// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "model/Anfitrion.h"
#include "model/Falla.h"

// What is told in boxes: warnings, notices, questions, and faults in the words of whoever met them.
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

/// Handler of a fault that tells it in a box.
struct Manejador {
    const Anfitrion& anfitrion;
    std::string (*palabras)(const Falla&);

    void operator()(const Falla& falla) const { Informa(anfitrion, palabras(falla)); }
};

inline Manejador AvisaMotor(const Anfitrion& anfitrion)
{
    return {anfitrion, TextoFallaMotor};
}
inline Manejador AvisaArchivo(const Anfitrion& anfitrion)
{
    return {anfitrion, TextoFallaArchivo};
}

}  // namespace model
