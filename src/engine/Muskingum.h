// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/Numeros.h"
#include "model/Resultados.h"

namespace engine {

/// Muskingum's method (McCarthy 1938): O = C0·I + C1·I' + C2·O', the primed ones of the step before.
struct Muskingum {
    float DenMusk = 0;                         ///< denominator [min]
    float C0Musk = 0, C1Musk = 0, C2Musk = 0;  ///< coefficients

    /// Works out denominator and coefficients for K [min] and x, with dt = PasoQ [min]. Returns false where
    /// the denominator is 0 or the three coefficients, each a 32-bit float, don't add up to 1 exactly: kept
    /// although rounding alone can bring that about. `intenta` runs each statement.
    template <typename Intenta>
    bool Prepara(double K, double x, std::int16_t PasoQ, Intenta intenta)
    {
        const double medioPaso = 0.5 * PasoQ;
        intenta([&] { DenMusk = model::Simple(K - K * x + medioPaso); });
        if (DenMusk == 0) return false;
        intenta([&] { C0Musk = model::Simple((medioPaso - K * x) / DenMusk); });
        intenta([&] { C1Musk = model::Simple((K * x + medioPaso) / DenMusk); });
        intenta([&] { C2Musk = model::Simple((K - K * x - medioPaso) / DenMusk); });
        return static_cast<float>(double{C0Musk} + C1Musk + C2Musk) == 1;
    }

    /// What stands in the outflow already and what the inflow of two steps adds to it [m3/s, 64 bits].
    [[nodiscard]] double Aporte(float sale, float entra, float entraAntes) const
    {
        return sale + double{C0Musk} * entra + double{C1Musk} * entraAntes;
    }
    /// That with the outflow of the step before: the outflow [m3/s, 64 bits].
    [[nodiscard]] double Sale(double aporte, float saleAntes) const
    {
        return aporte + double{C2Musk} * saleAntes;
    }
    /// Outflow of the component at a row at step k; the first step passes as it is. Throws Falla 6, 9.
    void Paso(model::Resultados& r, int fila, int k) const
    {
        if (k == 1)
            r.QSale(fila, 1) = r.QEntra(fila, 1);
        else
            r.QSale(fila, k) = model::Simple(Sale(
                Aporte(r.QSale(fila, k), r.QEntra(fila, k), r.QEntra(fila, k - 1)), r.QSale(fila, k - 1)));
    }
};

/// Text of the box for a component whose Muskingum parameters are refused; no blank ahead of the name.
inline std::string TextoMuskingum(const std::string& nombre)
{
    return "Error, Los parámetros de Muskingum utilizados en el tramo de cauce" + nombre +
           " son erróneos. Verifique, o cambie a propagación Directa desde el Editor de UEHs ";
}

}  // namespace engine
