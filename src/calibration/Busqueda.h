// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

// The search of the point of the unit cube that costs least, by as few evaluations as it takes. What a method
// finds depends on the seed and not on how its pieces are spread over threads.
namespace calibration {

/// What a point costs: less is better, infinity where it can't be said. No number: the search was given up.
using Costo = std::function<double(std::span<const double>)>;

/// Has pieces of work done that know nothing of one another, in any order and on any threads, and returns
/// once all are. Each is handed the cost by which it is to judge.
using Reparto =
    std::function<void(std::size_t cuantas, const std::function<void(std::size_t k, const Costo& costo)>&)>;

struct PedidoDeBusqueda {
    std::size_t dimensiones = 1;
    std::size_t corridas = 5000;  ///< evaluations, at most
    std::size_t complejos = 5;    ///< of SCE-UA
    std::uint64_t semilla = 1;
    std::optional<std::vector<double>> inicio{};  ///< a point that is tried first, whichever the method
};

struct Evaluacion {
    std::vector<double> punto{};
    double costo = 0;
};

enum class FinDeBusqueda : std::uint8_t {
    Presupuesto,  ///< all evaluations are spent
    Converge,     ///< the points lie together, or nothing got better for long
    Cancelada,    ///< given up
};

struct Busqueda {
    std::vector<Evaluacion> evaluaciones{};  ///< all of them, in an order that doesn't depend on threads
    FinDeBusqueda fin = FinDeBusqueda::Presupuesto;

    /// The first of the cheapest ones; null where there is none.
    [[nodiscard]] const Evaluacion* Mejor() const;
};

struct MetodoDeBusqueda {
    std::string_view clave;   ///< "sce"
    std::string_view nombre;  ///< "SCE-UA"
    std::string_view fuente;  ///< author, year, title
    std::string_view cuando;  ///< what it is good for, a sentence
    Busqueda (*busca)(const PedidoDeBusqueda& pedido, const Reparto& reparto);
};

/// All of them; the first is the default.
std::span<const MetodoDeBusqueda> MetodosDeBusqueda();
/// Null where there is none of that key.
const MetodoDeBusqueda* MetodoDeBusquedaDe(std::string_view clave);

/// Shuffled complex evolution: complexes of 2n + 1 points evolve apart for 2n + 1 steps and are shuffled.
/// Ends where the points lie together within 0.001 of the ranges (geometric mean), or the best one got better
/// by less than 0.1 % in ten shuffles. Duan, Sorooshian, Gupta, "Effective and efficient global optimization
/// for conceptual rainfall-runoff models", WRR 28(4), 1992; their figures of the parameters: "Optimal use of
/// the SCE-UA global optimization method", J. Hydrol. 158, 1994.
Busqueda BuscaSce(const PedidoDeBusqueda& pedido, const Reparto& reparto);

/// Dynamically dimensioned search: the best point is moved in fewer and fewer directions, by a normal of 0.2
/// of the range. One evaluation after another. Tolson, Shoemaker, "Dynamically dimensioned search algorithm
/// for computationally efficient watershed model calibration", WRR 43, W01413, 2007.
Busqueda BuscaDds(const PedidoDeBusqueda& pedido, const Reparto& reparto);

/// Simplexes on subspaces (Rowan, "Functional stability analysis of numerical algorithms", 1990, as NLopt has
/// it), from the best points of a Latin hypercube, to 0.001 of the range; then from further ones.
Busqueda BuscaSubplex(const PedidoDeBusqueda& pedido, const Reparto& reparto);

}  // namespace calibration
