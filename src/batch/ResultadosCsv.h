// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/SiroDeclarado.h"

// Results as CSV: UTF-8, LF, a point as decimal sign, a field that a kind of component hasn't got left empty.
namespace batch {

/// Writes the hydrographs of the last run of one storm: a row per component in the order of computation and
/// per output step from 0, with flows [m3/s], height [m] and storage [m3]. Throws Falla 76, 75.
void GuardaCsvTormenta(const model::Siro& s, const std::string& ruta);

/// Writes peaks [m3/s], volumes [m3] and coefficients [%] of the last series: a row per component and per
/// storm that wasn't skipped, then the totals of the basin as component `*`. The storm in hand becomes the
/// last of the series, as the series itself leaves it. Throws Falla 76, 75.
void GuardaCsvSerie(model::Siro& s, const std::string& ruta);

/// One row of a CSV file in the making.
class FilaCsv {
  public:
    /// A text with a comma, a quote or a line break stands in quotes, its own quotes doubled.
    FilaCsv& Texto(std::string_view texto);
    /// The shortest text that gives the same 32-bit float back.
    FilaCsv& Numero(float x);
    FilaCsv& Numero(std::int32_t n);
    FilaCsv& Vacio();
    /// Appends the row and LF to a text, and starts the next row.
    void Termina(std::string& destino);

  private:
    template <typename T>
    FilaCsv& Cifras(T x);
    void Separa();
    std::string fila;
    bool primero = true;
};

}  // namespace batch
