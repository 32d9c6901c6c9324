// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "model/Resultados.h"

// The results that a series keeps of its storms, a row each: tables, abacus and CSV walk it.
namespace engine {

/// A result of a series; nothing where the run left none, since another table or project may have been read
/// after it.
using ValorDeSerie = std::variant<std::monostate, float, std::int32_t>;

template <typename T>
ValorDeSerie ValorDe(const model::Matriz<T>& matriz, int fila, int tormenta)
{
    if (fila < matriz.PrimeraFila() || fila > matriz.UltimaFila()) return {};
    if (tormenta < 0 || tormenta > matriz.TopeColumna()) return {};
    return matriz(fila, tormenta);
}
template <typename T>
ValorDeSerie ValorDe(const model::Arreglo<T>& arreglo, int tormenta)
{
    if (tormenta < 0 || tormenta > arreglo.Tope()) return {};
    return arreglo(tormenta);
}

/// A result that a series keeps of its storms, as the tables, the abacus and the CSV show it.
struct ColumnaDeSerie {
    std::string_view encabezado;      ///< of its column, with the unit
    std::string_view formato;         ///< of its numbers in a workbook
    std::string_view enCsv;           ///< its name there
    std::string_view magnitud, ejeY;  ///< its name and its axis in the abacus
    bool soloUEHs;                    ///< components above the UEHs have none
    ValorDeSerie (*deComponente)(const model::Resultados& r, int fila, int tormenta);
    ValorDeSerie (*deLaCuenca)(const model::Resultados& r, int tormenta);
};

// clang-format off
inline constexpr auto ColumnasDeSerie = std::to_array<ColumnaDeSerie>({
    {"Qp[m3/s]", "0.00", "qmax", "Caudal Máximo", "Caudal Máximo [m3/s]", false,
     [](const model::Resultados& r, int fila, int t) { return ValorDe(r.QMax, fila, t); },
     [](const model::Resultados&, int) { return ValorDeSerie{}; }},
    {"E[m3]", "#,##0", "esc", "Escorrentía", "Escorrentía [m3]", true,
     [](const model::Resultados& r, int fila, int t) { return ValorDe(r.EscUEH, fila, t); },
     [](const model::Resultados& r, int t) { return ValorDe(r.EscTotal, t); }},
    {"C[%]", "0.00", "coef", "Coef.Escorr.", "Coeficiente Escorrentía [%]", true,
     [](const model::Resultados& r, int fila, int t) { return ValorDe(r.CoefEscUEH, fila, t); },
     [](const model::Resultados& r, int t) { return ValorDe(r.CoefEscTotal, t); }},
});
// clang-format on

/// The result of a component in a storm; nothing above the UEHs where only they have it.
inline ValorDeSerie DelComponente(const ColumnaDeSerie& c, const model::Resultados& r, int NroUEHs, int fila,
                                  int tormenta)
{
    return c.soloUEHs && fila > NroUEHs ? ValorDeSerie{} : c.deComponente(r, fila, tormenta);
}

}  // namespace engine
