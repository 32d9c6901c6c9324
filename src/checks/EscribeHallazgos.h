// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "checks/Hallazgo.h"

// Findings as text for whoever reads them without a window; UTF-8, LF.
namespace checks {

/// A text as one line, whatever the names in it hold.
std::string EnUnRenglon(std::string texto);

/// "error 201 Componente: qué (cuánto). Remedio", without the parts that a finding hasn't got.
std::string Linea(const Hallazgo& hallazgo);

/// "N errores, N avisos, N notas", or `sinNada` where there is none.
std::string Suma(std::span<const Hallazgo> hallazgos, std::string_view sinNada = "Sin hallazgos");

/// A line each, and the sum as the last one.
std::string EnTexto(std::span<const Hallazgo> hallazgos, std::string_view sinNada = "Sin hallazgos");

/// An array of objects, one per line, with the record's fields under their names; gravedad and arreglo by
/// their own names, all others as they are.
std::string EnJson(std::span<const Hallazgo> hallazgos);

}  // namespace checks
