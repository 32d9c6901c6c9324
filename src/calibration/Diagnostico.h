// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "calibration/Busqueda.h"
#include "calibration/Calibrado.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

// How sure a calibration is: what the sets near the best one have in common, and what they don't.
namespace calibration {

/// Probes of a parameter alone, half of them towards each end of its range.
inline constexpr std::size_t SondasPorParametro = 12;

/// A place in the range of a parameter, 0 to 1 in its scale, as a value, and back.
double ValorDe(const study::Parametro& p, double lugar);
double LugarEnRango(const study::Parametro& p, double valor);

/// What the network has of it: its value, 1 for a factor, 0 for a sum; none where its components differ.
std::optional<double> ValorDeLaRed(const study::Parametro& p, const runs::Modelo& modelo);

/// A number in four digits, which say more than is known.
std::string EnCuatroCifras(double x);

/// What is to be known of a parameter, in a few words: "no identificable, en su mínimo"; empty: nothing.
std::string AvisoDe(const Calibrado& calibrado, std::size_t parametro);

/// Fills in parameters, near-best sets, correlations, sentences. `sondas`: the costs of the probes, parameter
/// by parameter; empty where there are none.
void Diagnostica(const PedidoDeCalibracion& pedido, const Busqueda& busqueda,
                 const std::vector<double>& sondas, Calibrado& calibrado);

}  // namespace calibration
