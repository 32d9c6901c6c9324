// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "checks/Hallazgo.h"
#include "model/Red.h"

namespace checks {

/// Does the mend that a finding names, and nothing but that. Returns false, with the network as it was, where
/// the finding names none or what it is about isn't there any more. `PasoQ`: output step [min].
bool Arregla(model::Red& red, const Hallazgo& hallazgo, std::int16_t PasoQ);

/// Muskingum's K [min] and weight x.
struct ParMuskingum {
    float K = 0;
    float x = 0;
    friend bool operator==(const ParMuskingum&, const ParMuskingum&) = default;
};

/// Whether a run takes the pair: the same test in the same floats.
bool PasaMuskingum(ParMuskingum par, std::int16_t PasoQ);

/// Whether no coefficient is negative: 2Kx <= dt <= 2K(1-x), both ends included but for the rounding of a
/// 32-bit float.
bool EnVentana(ParMuskingum par, std::int16_t PasoQ);

/// The pair in the window that a run takes and that is nearest to another, hundredths of a minute away at
/// most by 20 %, or if none is by thousandths of x up to 0.05 where x may move. Nothing where there is none.
std::optional<ParMuskingum> MuskingumCercano(ParMuskingum par, std::int16_t PasoQ, bool conX);

/// Whether the table of H, A, S or of H, Q of a component can be mended by putting its rows in order: heights
/// then rise strictly, and no other column falls.
bool SeOrdena(const std::vector<std::vector<double>>& columnas);

/// The rows 1 to n of a column of the tables of component `numero`; empty where they aren't there.
template <typename T>
std::vector<double> ColumnaDe(const model::Matriz<T>& m, const model::Arreglo<std::int16_t>& filas,
                              int numero)
{
    if (numero < 0 || numero > filas.Tope()) return {};
    const int n = filas(numero);
    if (n < 1 || !m.Alcanza(numero, n)) return {};
    return {m.Fila(numero) + 1, m.Fila(numero) + 1 + n};
}

/// Heights where both the table of storage and the outflow of a Represa or a Lago are known [m]; nothing
/// where there is no such height. Outflow functions are known everywhere.
struct Alturas {
    double desde = 0, hasta = 0;
};
std::optional<Alturas> AlturasConocidas(const model::Red& red, const model::Represa& r);
std::optional<Alturas> AlturasConocidas(const model::Red& red, const model::Lago& l);

}  // namespace checks
