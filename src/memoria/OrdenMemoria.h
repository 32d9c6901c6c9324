// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Opciones.h"
#include "report/Datos.h"

// The command line of siro-memoria.
namespace memoria {

/// What it asks for. Paths stand as they were typed.
struct Orden {
    batch::Opciones tormenta{}, serie{};  ///< as siro-lote una and serie have them
    bool conTormenta = true, conSerie = false;
    bool conImagen = true;                 ///< under the network, where the project has one
    std::string formato{};                 ///< pdf, odt, html
    std::string archivo{};                 ///< path of the file
    std::string logo{};                    ///< path of a picture; empty: none
    std::string plantilla{};               ///< path of a template; empty: the one in use
    report::Eleccion eleccion{};           ///< without its logo; chapters left out come of those named
    std::vector<std::string> capitulos{};  ///< keys; empty: all
};

/// A command line as it was understood: what to do, or what to say in its place.
struct Lectura {
    std::optional<Orden> orden{};
    std::string motivo{};  ///< why the command line is wrong; empty where help was asked for
};

/// How to call the program, in lines that end in LF.
std::string_view Uso();

/// Reads a command line, the program's own name first. What isn't the memoria's own goes the way of
/// siro-lote's.
Lectura LeeOrden(const std::vector<std::string>& palabras);

}  // namespace memoria
