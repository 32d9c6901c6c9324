// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// How the depth of a storm is spread over its duration: the patterns, a row each. To add one is to write its
// weights in a file beside this one and to name its row below.
namespace frequency {

/// Greatest depth [mm] that falls in so many minutes: the curves of intensity, for one recurrence.
using LaminaPorDuracion = std::function<double(double minutos)>;

/// A storm as it is asked for.
struct PedidoDeTormenta {
    LaminaPorDuracion lamina{};      ///< of the patterns that are made of the curves
    double total = 0;                ///< depth of the storm [mm], above 0
    double duracion = 0;             ///< [min], whole, 1..14400
    double paso = 0;                 ///< [min], whole; the duration is a multiple of it
    double avance = 0.375;           ///< time of the peak as a part of the duration, between 0 and 1
    int cuartil = 1;                 ///< quarter of the duration that most of the rain falls in, 1..4
    int probabilidad = 50;           ///< that a storm has more by then, 10, 20, ... 90 [%]
    std::vector<double> periodos{};  ///< rain of the periods of a storm at hand, in any unit
};

/// What a pattern is made of besides depth, duration and step.
enum class Hechura { Curvas, CurvasYAvance, Tabla, Cuartil, CuartilYProbabilidad, Periodos };

struct Patron {
    std::string_view clave;  ///< as the command line and the study name it
    std::string_view nombre;
    std::string_view formula;  ///< what falls until t, or how the increments are placed
    std::string_view fuente;
    std::string_view limites;  ///< where it shouldn't be used
    Hechura hechura = Hechura::Curvas;
    double propia = 0;            ///< duration that it was drawn for [min]; 0: any
    double desde = 0, hasta = 0;  ///< durations that it was drawn for [min], where it is more than one
    double pasoMenor = 0;         ///< its table has no finer step [min]; 0: none
    /// Rain of n steps in any unit, none below 0.
    std::vector<double> (*pesos)(const PedidoDeTormenta& pedido, std::size_t n);
};

extern const Patron BloquesAlternos, Chicago, Equilibrada, ScsI, ScsIA, ScsII, ScsIII, Huff, Noaa14, Propia,
    Registrada;

/// All of them, in the order of the lists.
std::span<const Patron* const> Patrones();

/// The pattern of a key; none: null.
const Patron* PatronDeClave(std::string_view clave);

/// Whether it has a pattern for each quarter.
bool TieneCuartiles(const Patron& patron);

/// Whether it needs `PedidoDeTormenta::lamina`.
bool UsaCurvas(const Patron& patron);

/// A storm spread over time.
struct Reparto {
    std::vector<double> laminas{};  ///< of each step [mm]; their sum in order is the depth, to the last bit
    std::vector<std::string> avisos{};  ///< limits that were left
    std::string error{};                ///< why there is none; texts are sentences with their full stop
};

inline constexpr std::size_t MaximoDePeriodos = 999;  ///< of a personal distribution and of a real storm
inline constexpr double MaximoDeDuracion = 14400;     ///< of a storm [min]

Reparto Reparte(const Patron& patron, const PedidoDeTormenta& pedido);

/// Rain of n steps as differences of what has fallen by the end of each; `hasta` takes the part of the
/// duration that has gone, 0..1.
std::vector<double> PesosDeMasa(std::size_t n, const std::function<double(double parte)>& hasta);

/// The same of a table of what has fallen at equal distances, its first at 0, straight lines between them.
std::vector<double> PesosDeTabla(std::size_t n, std::span<const double> acumulada);

}  // namespace frequency
