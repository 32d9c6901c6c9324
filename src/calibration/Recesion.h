// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Red.h"
#include "study/Ajuste.h"

// Base flow by hand: a piece of the recession limb, straight over logarithms, gives the constants of the
// units' own recession.
namespace calibration {

/// Q = Q0·2.7183^(-t/K), as the engine has it, t [h] since the storm's start. A linear reservoir (Barnes,
/// The structure of discharge-recession curves, Trans. Am. Geophys. Union 20, 1939, pp. 721-725).
struct AjusteDeRecesion {
    double Q0 = 0;         ///< [m3/s]
    double K = 0;          ///< [h]
    double residuo = 0;    ///< root mean square of ln(observed) - ln(fitted)
    double r2 = 0;         ///< of the straight line, 0..1
    int lecturas = 0;      ///< above 0, within the piece
    std::string motivo{};  ///< why there is none, a sentence; empty: there is one
};

/// Least squares over the logarithms of the flows [m3/s] from one time to another [min], both included.
AjusteDeRecesion AjustaRecesion(std::span<const study::Punto> caudales, double desde, double hasta);

/// The flow of the line at a time [m3/s at min].
double CaudalDeRecesion(const AjusteDeRecesion& ajuste, double minuto);

/// The part of the readings that a recession is likely in: the last half of the time from the peak on.
study::Ventana RamaDeRecesion(std::span<const study::Punto> caudales);

/// What a unit is to have.
struct BaseDeUnidad {
    std::string unidad{};
    double area = 0;  ///< [ha]
    float Q0 = 0;     ///< [m3/s]
    float K = 0;      ///< [h]
    bool operator==(const BaseDeUnidad&) const = default;
};

struct Reparto {
    std::vector<BaseDeUnidad> unidades{};  ///< upstream of the component, or itself, in the network's order
    std::string aviso{};                   ///< what is to be known, sentences
    std::string motivo{};                  ///< why there is none, a sentence; empty: there is one
};

/// Q0 shared by area among the units whose water comes to a component, all with the same K.
Reparto RepartoDe(const model::Red& red, std::string_view componente, const AjusteDeRecesion& ajuste);

/// Gives the units what they are to have. Returns how many it changed.
int Aplica(model::Red& red, const Reparto& reparto);

}  // namespace calibration
