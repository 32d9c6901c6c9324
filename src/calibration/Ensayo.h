// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "calibration/Busqueda.h"
#include "study/Philox.h"

// What the methods of search have in common.
namespace calibration {

/// A piece of a search: it measures points, as many as it may, and keeps them.
class Ensayo {
  public:
    Ensayo(const Costo& unCosto, std::size_t unTope) : costo(unCosto), tope(unTope) {}
    /// Whether another point may be measured.
    [[nodiscard]] bool Sigue() const { return !dejado && hechas.size() < tope; }
    /// The cost of a point; infinity where it may not be measured any more.
    double Mide(std::span<const double> punto);

    [[nodiscard]] bool Dejado() const { return dejado; }
    std::vector<Evaluacion> hechas{};

  private:
    const Costo& costo;
    const std::size_t tope;
    bool dejado = false;
};

/// A search on its way: what it has spent, and its pieces.
class Marcha {
  public:
    Marcha(const PedidoDeBusqueda& unPedido, const Reparto& unReparto) : pedido(unPedido), reparto(unReparto)
    {
    }
    [[nodiscard]] std::size_t Quedan() const { return pedido.corridas - hecha.evaluaciones.size(); }
    [[nodiscard]] bool Sigue() const { return !dejada && Quedan() > 0; }
    /// Pieces that may measure so many points each, whatever is left shared out evenly below that. What they
    /// measured follows in their order.
    void Reparte(std::size_t cuantas, std::size_t tope,
                 const std::function<void(std::size_t, Ensayo&)>& pieza);
    /// Measures points in pieces; fewer where the evaluations don't suffice.
    std::vector<Evaluacion> Mide(const std::vector<std::vector<double>>& puntos);
    /// What was found, with its end.
    Busqueda Fin(bool converge);

  private:
    const PedidoDeBusqueda& pedido;
    const Reparto& reparto;
    Busqueda hecha{};
    bool dejada = false;
};

/// The numbers of a piece: `vuelta` and `pieza` below 2^32.
study::Sorteo SorteoDe(std::uint64_t semilla, std::size_t vuelta, std::size_t pieza);
/// 0..n-1, all alike.
std::size_t AlAzar(study::Sorteo& sorteo, std::size_t n);
/// Points of the unit cube, one in each of as many layers of every dimension. McKay, Beckman, Conover,
/// "A comparison of three methods for selecting values of input variables", Technometrics 21(2), 1979.
std::vector<std::vector<double>> HipercuboLatino(std::size_t cuantos, std::size_t dimensiones,
                                                 study::Sorteo& sorteo);
/// The cheapest first; equal ones as they stand.
void Ordena(std::vector<Evaluacion>& evaluaciones);

}  // namespace calibration
