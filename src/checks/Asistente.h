// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "checks/Arregla.h"
#include "model/Cauce.h"
#include "model/Lago.h"
#include "model/Red.h"
#include "model/Represa.h"
#include "model/Tormenta.h"
#include "model/UEH.h"

// What is said beside a field while its number is typed: what the number means for a run. A sentence or two
// with units; the empty text where there is nothing to say. Nobody is asked or told anything on the way.
namespace checks {

/// The output step that a run of one storm takes [min].
inline std::int16_t PasoDeCorrida(const model::Pasos& pasos)
{
    return std::min(pasos.PasoQ, pasos.PasoPp);
}

/// Muskingum's window 2Kx <= dt <= 2K(1-x) for a step [min] with the pair's own numbers; outside of it the K
/// that lies within for this x, and where the exact sum of the coefficients refuses the pair the nearest one
/// that it lets through. `conX`: x is a field; otherwise it counts as 0 and isn't spoken of.
std::string ApunteDeMuskingum(ParMuskingum par, std::int16_t PasoQ, bool conX);

/// Travel time T on the slope of a UEH, as a run rounds it, and how many output steps that is.
std::string ApunteDeTraslado(const model::UEH& u, const model::Pasos& pasos);

/// Travel time of a reach and, routed Direct, the whole output steps by which it delays the flood.
std::string ApunteDeViaje(const model::Cauce& c, const model::Pasos& pasos);

/// Storage and outflow at the initial height, by the lookups of a run; outside a table, how far that goes.
std::string ApunteDeAltura(const model::Red& red, const model::Represa& r);
std::string ApunteDeAltura(const model::Red& red, const model::Lago& l);

/// That H counts from H min, and what each outflow function in use lets out at a height [m], none known where
/// it isn't there.
std::string ApunteDeFunciones(const model::Represa& r, std::optional<float> altura);

/// Where the rain of a storm goes on a UEH [mm].
struct Reparto {
    double lluvia = 0, retenida = 0, infiltrada = 0, escurrida = 0;
};
/// The same steps and formulas as a run's over the rain that `engine::Calcula` makes of the storm; nothing
/// where it doesn't rain, or where a run would be at fault. A series is no storm.
std::optional<Reparto> RepartoDe(const model::UEH& u, const model::Tormenta& tormenta,
                                 const model::Pasos& pasos, const model::TablasDeLluvia& tablas);

/// The curve number for which P [mm] of rain gives Q [mm] of runoff, 0 < Q <= P: Q = (P-0.2S)²/(P+0.8S),
/// S = 25400/CN-254 mm, solved for CN. Source: NRCS, National Engineering Handbook, Part 630, chapter 10,
/// 2004.
double NumeroDeCurva(double P, double Q);

/// Both for the storm in hand: what the surface keeps of it; what infiltrates, what runs off, and the curve
/// number with the same runoff.
std::string ApunteDeRetencion(const std::optional<Reparto>& reparto);
std::string ApunteDeEscorrentia(const std::optional<Reparto>& reparto);

}  // namespace checks
