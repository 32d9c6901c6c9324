// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Grafico.h"
#include "report/Datos.h"
#include "report/Documento.h"

// The figures of a memoria as charts.
namespace report {

/// What a figure bears above it, line by line, the first one its title: component, storm, project and date.
std::vector<std::string> Encabezado(const Datos& datos, const Figura& figura, char decimal);

/// The chart; nothing for the network, and where the data have none of it.
std::optional<forms::Grafico> GraficoDe(const Datos& datos, const Figura& figura, char decimal);

/// A text with the point of each number in it as the decimal sign that was chosen.
std::string ConSigno(std::string_view texto, char decimal);

}  // namespace report
