// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "model/Numeros.h"
#include "model/Represa.h"

// The outflow functions of a Represa at work: formula, bound and text of each form.
namespace hydraulics {

/// One outflow function that is in use: an outlet, a gate, a spillway.
struct FuncionFQ {
    model::FormaFQ forma{};
    float a = 0, b = 0, c = 0;     ///< [m3/s] for a height in [m]
    float minimo = 0, maximo = 0;  ///< range of heights, both included [m]; it counts from the lower one

    [[nodiscard]] bool Alcanza(float h) const { return minimo <= h && h <= maximo; }

    /// Q plus what this function lets out at height h within its range, rounded to 32 bits.
    /// Throws Falla 5 for 0 to a negative power, Falla 6 where a power or the sum is outside its type.
    [[nodiscard]] float Agrega(float Q, float h) const;

    /// The greatest amount that it can add between two heights [m3/s], infinite where it can fault.
    [[nodiscard]] double MayorAporte(float desde, float hasta) const;

    /// The formula with its numbers, as the verification lists it.
    [[nodiscard]] std::string Expresion() const;
};

/// The functions of a Represa that are in use, in order: the flag is exactly 1.
struct FuncionesEnUso {
    explicit FuncionesEnUso(const model::Represa& r)
    {
        for (std::size_t i = 0; i < r.chkFQ.size(); ++i)
            if (r.chkFQ[i] == 1)
                funciones[cuantas++] = {
                    model::FuncionesFQ[i].forma, r.FQa[i], r.FQb[i], r.FQc[i], r.FQmin[i], r.FQMax[i]};
    }
    [[nodiscard]] auto begin() const { return funciones.begin(); }
    [[nodiscard]] auto end() const { return funciones.begin() + static_cast<std::ptrdiff_t>(cuantas); }

    /// Outflow at height h [m3/s]: the functions whose range holds h add up, in order, each sum rounded to 32
    /// bits. Throws Falla 5, 6.
    [[nodiscard]] float Descarga(float h) const
    {
        float Q = 0;
        for (const FuncionFQ& f : *this)
            if (f.Alcanza(h)) Q = f.Agrega(Q, h);
        return Q;
    }

  private:
    std::array<FuncionFQ, model::NroFuncionesFQ> funciones{};
    std::size_t cuantas = 0;
};

}  // namespace hydraulics
