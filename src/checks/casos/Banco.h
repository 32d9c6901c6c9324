// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Calcula.h"
#include "model/Red.h"
#include "model/Tormenta.h"

// The bench of the cases: small networks, made in a few lines and run whole.
namespace checks::casos {

/// Row of a table of Represa or Lago.
struct Renglon {
    double H = 0;  ///< [m]
    double A = 0;  ///< [ha]
    double S = 0;  ///< [m3], kept as a whole number
    double Q = 0;  ///< [m3/s]
};

inline constexpr std::string_view Piscina = "Piscina Nivelada", RungeKutta = "Runge Kutta",
                                  Muskingum = "Muskingum";

/// A network, a storm and steps under construction; components are u-1, u-2, ..., c-1, l-1, r-1 and so on.
class Banco {
  public:
    model::Red red{};
    model::Tormenta tormenta{};
    model::Pasos pasos{};

    /// A UEH that neither keeps nor takes in rain; `minutos` is its travel time.
    model::UEH& PonUEH(const std::string& destino, double area, int minutos);
    model::Cauce& PonCauce(const std::string& destino);
    /// Outflow by table, on the heights of the other columns.
    model::Represa& PonRepresa(const std::string& destino, std::string_view metodo,
                               const std::vector<Renglon>& tabla);
    model::Lago& PonLago(const std::string& destino, std::string_view metodo,
                         const std::vector<Renglon>& tabla);

    /// Rains so that a UEH which drains into the component `destino` brings it this inflow [m3/s] at the end
    /// of each step [min] from the first. An area and a travel time of its own turn 1 mm in a step into 1
    /// m3/s at its end.
    void Entra(const std::string& destino, std::span<const double> caudales, std::int16_t paso);

    /// Runs it. A run that says anything, or doesn't get to its end, throws the reason as std::runtime_error.
    engine::Calculo Corre();

    /// Puts the tables of the Represas and Lagos into the network; `Corre` does so itself.
    void LlenaTablas();

  private:
    std::vector<std::vector<Renglon>> tablasRepresas{}, tablasLagos{};
};

/// Outflow [m3/s] at the times 0, paso, 2·paso... of the one Represa of a bench, which is empty at time 0,
/// under an inflow at the same times that begins with 0. Muskingum's method takes its first step as time 0.
std::vector<double> SaleDeRepresa(Banco& banco, std::span<const double> entra, std::int16_t paso);

/// Steps 0..n of a row of results.
std::vector<double> Columna(const model::Matriz<float>& m, int fila, std::size_t n);

}  // namespace checks::casos
