// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>

#include "model/Numeros.h"
#include "model/UEH.h"

// What becomes of the rain on a UEH, each formula once: for the way that checks
// every statement and for the fast loops, where none of them can be at fault.
namespace engine {

/// Turns mm/min on hectares into m3/s; the constant, not 1/6.
inline constexpr double FactorCaudal = 0.166667;
/// The base of the recession as written, not e.
inline constexpr double BaseAbatimiento = 2.7183;

/// R is what the surface keeps of a step's rain [mm]; `restante`, what it can
/// still keep, falls by it. Throws Falla 6 once R is stored.
inline void Retiene(float Pp, float& restante, float& R)
{
    if (restante == 0) {
        R = 0;
    } else if (Pp < restante) {
        R = Pp;
        restante = model::Simple(double{restante} - R);
    } else {
        R = restante;
        restante = 0;
    }
}

/// Potential infiltration of a UEH and all that it depends on: Kostiakov's
/// curve F = a·t^b (1932), at the time shifted by the soil's prior wetness.
struct Infiltracion {
    float a = 0;            ///< [mm/min^b]
    float b = 0;            ///< exponent
    float inicial = 0;      ///< infiltration already gone by [min]
    std::int16_t paso = 0;  ///< model step [min]

    Infiltracion() = default;
    Infiltracion(const model::UEH& u, std::int16_t PasoPp)
        : a(u.KostiakovA), b(u.KostiakovB), inicial(u.KostiakovI), paso(PasoPp)
    {
    }
    bool operator==(const Infiltracion&) const = default;

    /// A power of a time [min]; none yet where the time is no number.
    struct PotenciaDeT {
        double t = std::numeric_limits<double>::quiet_NaN();
        double potencia = 0;
    };
    /// Those of a step's beginning and end.
    struct Potencias {
        double antes = 0, despues = 0;
    };
    /// Of the step that the clock tells, from 1. `fin` is what the step before left there, since this one
    /// begins where that ended, or none; it is left what the next one wants. Throws Falla 5, 6.
    Potencias PotenciasDe(double reloj, PotenciaDeT& fin) const
    {
        const double t = reloj * paso + inicial;
        const double potencia = model::Potencia(t, b);
        const double antes = fin.t == t - paso ? fin.potencia : model::Potencia(t - paso, b);
        fin = {t, potencia};
        return {antes, potencia};
    }
    /// Depth [mm] of a step. Throws Falla 6.
    [[nodiscard]] float Lamina(const Potencias& p) const
    {
        const float I = model::Simple(a * (p.despues - p.antes));
        return I < 0 ? 0 : I;
    }
    float Lamina(double reloj, PotenciaDeT& fin) const { return Lamina(PotenciasDe(reloj, fin)); }
    [[nodiscard]] float Lamina(double reloj) const
    {
        PotenciaDeT ninguna;
        return Lamina(reloj, ninguna);
    }
    /// No depth of 16 bits of steps can be at fault, nor come near the limit of
    /// its type.
    [[nodiscard]] bool EsModerada() const
    {
        constexpr float CoeficienteModerado = 1e9F, ExponenteModerado = 4, TiempoModerado = 1e6F;
        return a >= -CoeficienteModerado && a <= CoeficienteModerado && b >= 0 && b <= ExponenteModerado &&
               inicial >= 0 && inicial <= TiempoModerado;
    }
};

/// Flow [m3/s, 64 bits] of the excess E [mm] of a step [min] on an area [ha].
/// Throws Falla 11.
inline double CaudalDelExceso(float E, std::int16_t PasoPp, float Area)
{
    return model::Cociente(E, PasoPp) * FactorCaudal * Area;
}

/// What comes to the foot of a slope t minutes after a flow without end began
/// to fall on it, as long as t is below the travel time T [min]: a line up to
/// that flow. Throws Falla 11.
struct SubidaDeLadera {
    double pendiente;  ///< [m3/s per min]

    SubidaDeLadera(float caudal, std::int16_t T) : pendiente(model::Cociente(caudal, T)) {}
    double operator()(double t) const { return pendiente * t; }  ///< [m3/s, 64 bits]
};

/// Share of the base flow that is left after some minutes; K in hours. Throws
/// Falla 5, 6, 11.
inline double Abatimiento(float K, double minutos)
{
    return model::Potencia(BaseAbatimiento, model::Cociente(-minutos, double{K} * 60));
}

/// A base volume [m3] and that of one more step of base flow: rounded with
/// every step. Throws Falla 6.
inline std::int32_t SumaBase(std::int32_t volumen, float Qb, std::int16_t PasoQ)
{
    return model::Entero32(volumen + double{Qb} * PasoQ * 60);
}

}  // namespace engine
