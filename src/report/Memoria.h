// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/Datos.h"
#include "report/Documento.h"

// The memoria de cálculo: a template's text around what a project, its study and its runs say.
namespace report {

/// The document. What a template has wrong is in its `faltas`; the rest is made all the same. The same input
/// gives the same document.
Documento Memoria(const Datos& datos, const Eleccion& eleccion, std::string_view plantilla);

/// A mark that a template may use.
struct Marca {
    std::string escrita{};  ///< "{{proyecto}}", "[[tabla uehs]]"
    std::string_view explica{};
};
/// All of them, in the order of the help.
std::vector<Marca> Marcas();

/// Command line of siro-lote that gives a run again.
std::string OrdenDeLote(const checks::UltimaCorrida& u, const std::string& archivoConf,
                        const std::string& tormentaReal = {});

}  // namespace report
