// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "model/SiroDeclarado.h"

// What stands in the room of the main window while no window does: the projects of late, how to begin, and of
// the open project what is done and what is missing. Rules only; texts are in Spanish.
namespace shell {

/// A project that has been opened, made or saved under another name.
struct ProyectoReciente {
    std::string ruta{};    ///< its configuration file
    std::string cuenca{};  ///< as its configuration tells it
    std::string cuando{};  ///< date and time, as shown
    bool operator==(const ProyectoReciente&) const = default;
};
inline constexpr std::size_t MaximoRecientes = 10;

/// Puts a project ahead of the others, in place of what was known of it; the eleventh falls out.
void AnotaReciente(std::vector<ProyectoReciente>& lista, const ProyectoReciente& proyecto);

/// The configuration file of the project in hand; empty where there is none, or it hasn't been saved yet.
std::string ConfEnMano(const model::Siro& s);

/// Something to press: two lines, the second one plain.
struct Entrada {
    std::string titulo{};
    std::string detalle{};
    bool habilitada = true;
    bool operator==(const Entrada&) const = default;
};

/// Of a project of the list: its name; date, basin and folder. Disabled where its file can't be read any
/// more.
Entrada EntradaDe(const model::Disco& disco, const ProyectoReciente& proyecto);

/// The sample project's configuration file; empty where it isn't there.
std::string ProyectoDeMuestra(const model::Siro& s);
/// Whether the tutorial's page of help is there.
bool HayTutorial(const model::Siro& s);

/// How many components the files of the project in hand hold. Read on a state of its own, without a word.
struct RedGuardada {
    int UEHs = 0, cauces = 0, represas = 0, lagos = 0;
    bool operator==(const RedGuardada&) const = default;
};
RedGuardada RedEnDisco(const model::Siro& s);

/// What is known of the last run of the session.
struct CorridaHecha {
    bool hay = false;
    bool deOtro = false;    ///< of another project
    std::string cuando{};   ///< date and time
    std::string difiere{};  ///< what has changed since; empty: it still holds
    std::string avisos{};   ///< how many findings it has, in words; empty: not known yet
};

enum class EstadoPaso : std::uint8_t { Hecho, Repetir, Falta };

/// A step on the way from a project to its results.
struct Paso {
    Entrada entrada{};
    EstadoPaso estado = EstadoPaso::Falta;
    std::string_view menu{};  ///< the entry of the menu that does it
    bool operator==(const Paso&) const = default;
};

/// Configuration, network, storm, run. Requires an open project.
std::vector<Paso> PasosDelProyecto(const model::Siro& s, const RedGuardada& red, const CorridaHecha& corrida);

}  // namespace shell
