// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

#include "frequency/tormenta/Patron.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

constexpr std::array<const Patron*, 11> Todos{&BloquesAlternos, &Chicago, &Equilibrada, &ScsI,
                                              &ScsIA,           &ScsII,   &ScsIII,      &Huff,
                                              &Noaa14,          &Propia,  &Registrada};

bool EsEntero(double x)
{
    return std::isfinite(x) && x == std::floor(x);
}

std::string ErrorDeTiempos(const PedidoDeTormenta& p)
{
    if (!EsEntero(p.duracion) || p.duracion < 1 || p.duracion > MaximoDeDuracion)
        return "La duración debe ser un número entero de minutos entre 1 y 14400.";
    if (!EsEntero(p.paso) || p.paso < 1) return "El paso debe ser un número entero de minutos, 1 o más.";
    if (std::fmod(p.duracion, p.paso) != 0) return "La duración debe ser un múltiplo del paso.";
    if (p.duracion / p.paso > static_cast<double>(MaximoDePeriodos))
        return "Son más de 999 períodos: hace falta un paso más largo.";
    return {};
}

std::string ErrorDe(const Patron& patron, const PedidoDeTormenta& p)
{
    if (std::string tiempos = ErrorDeTiempos(p); !tiempos.empty()) return tiempos;
    if (!std::isfinite(p.total) || p.total <= 0) return "La lámina debe ser mayor que 0.";
    if (UsaCurvas(patron) && !p.lamina) return "Este patrón se hace de curvas de intensidad y no las hay.";
    if (patron.hechura == Hechura::CurvasYAvance && !(p.avance > 0 && p.avance < 1))
        return "El avance debe estar entre 0 y 1.";
    if (TieneCuartiles(patron) && (p.cuartil < 1 || p.cuartil > 4)) return "El cuartil debe ser 1, 2, 3 o 4.";
    if (patron.hechura == Hechura::CuartilYProbabilidad &&
        (p.probabilidad < 10 || p.probabilidad > 90 || p.probabilidad % 10 != 0))
        return "La probabilidad debe ser 10, 20, 30, 40, 50, 60, 70, 80 o 90 %.";
    if (patron.hechura != Hechura::Periodos) return {};
    if (p.periodos.empty()) return "La tormenta de la que sale el patrón no tiene períodos.";
    if (std::any_of(p.periodos.begin(), p.periodos.end(), [](double x) { return !(x >= 0); }))
        return "Un período de la tormenta de la que sale el patrón es negativo.";
    return {};
}

std::vector<std::string> AvisosDe(const Patron& patron, const PedidoDeTormenta& p)
{
    std::vector<std::string> avisos;
    if (patron.propia > 0 && p.duracion != patron.propia)
        avisos.push_back("El patrón es de " + model::NumeroATexto(patron.propia) + " min y se llevó a " +
                         model::NumeroATexto(p.duracion) + " min: su fuente no respalda ese uso.");
    if (patron.hasta > 0 && (p.duracion < patron.desde || p.duracion > patron.hasta))
        avisos.push_back("El patrón es de " + model::NumeroATexto(patron.desde) + " a " +
                         model::NumeroATexto(patron.hasta) + " min y se llevó a " +
                         model::NumeroATexto(p.duracion) + " min: su fuente no respalda ese uso.");
    if (p.paso * patron.propia < patron.pasoMenor * p.duracion)
        avisos.push_back(
            "El paso es más corto que el de la tabla del patrón: entre sus valores se interpola.");
    return avisos;
}

/// Depths that add up to the total: what has fallen by the end of each step is a multiple of the last bit of
/// the total, so that no sum of them is rounded.
std::vector<double> Ajustadas(const std::vector<double>& pesos, double suma, double total)
{
    const double unidad = std::ldexp(1.0, std::ilogb(total) - (std::numeric_limits<double>::digits - 1));
    std::vector<double> laminas;
    double antes = 0, acumulado = 0;
    for (const double peso : pesos) {
        acumulado += peso;
        const double hasta = std::nearbyint(total * (acumulado / suma) / unidad) * unidad;
        laminas.push_back(hasta - antes);
        antes = hasta;
    }
    return laminas;
}

}  // namespace

std::span<const Patron* const> Patrones()
{
    return Todos;
}

const Patron* PatronDeClave(std::string_view clave)
{
    const auto* const i =
        std::find_if(Todos.begin(), Todos.end(), [&](const Patron* p) { return p->clave == clave; });
    return i == Todos.end() ? nullptr : *i;
}

bool TieneCuartiles(const Patron& patron)
{
    return patron.hechura == Hechura::Cuartil || patron.hechura == Hechura::CuartilYProbabilidad;
}

bool UsaCurvas(const Patron& patron)
{
    return patron.hechura == Hechura::Curvas || patron.hechura == Hechura::CurvasYAvance;
}

Reparto Reparte(const Patron& patron, const PedidoDeTormenta& pedido)
{
    Reparto r;
    r.error = ErrorDe(patron, pedido);
    if (!r.error.empty()) return r;
    std::vector<double> pesos = patron.pesos(pedido, static_cast<std::size_t>(pedido.duracion / pedido.paso));
    // Where straight lines meet, a difference may come out a last bit below 0.
    const double redondeo = -1e-12 * std::accumulate(pesos.begin(), pesos.end(), 0.0);
    if (std::any_of(pesos.begin(), pesos.end(), [&](double x) { return !(x >= redondeo); }))
        r.error = "La lámina de las curvas decrece con la duración: no sirven para un patrón.";
    for (double& peso : pesos)
        peso = std::max(peso, 0.0);
    const double suma = std::accumulate(pesos.begin(), pesos.end(), 0.0);
    if (r.error.empty() && (!(suma > 0) || !std::isfinite(suma)))
        r.error = "La tormenta de la que sale el patrón no tiene lluvia.";
    if (!r.error.empty()) return r;
    r.laminas = Ajustadas(pesos, suma, pedido.total);
    r.avisos = AvisosDe(patron, pedido);
    return r;
}

std::vector<double> PesosDeMasa(std::size_t n, const std::function<double(double parte)>& hasta)
{
    std::vector<double> pesos;
    double antes = hasta(0);
    for (std::size_t i = 1; i <= n; ++i) {
        const double ahora = hasta(static_cast<double>(i) / static_cast<double>(n));
        pesos.push_back(ahora - antes);
        antes = ahora;
    }
    return pesos;
}

std::vector<double> PesosDeTabla(std::size_t n, std::span<const double> acumulada)
{
    return PesosDeMasa(n, [&](double parte) {
        const double lugar = parte * static_cast<double>(acumulada.size() - 1);
        const auto k = std::min(static_cast<std::size_t>(lugar), acumulada.size() - 2);
        return std::lerp(acumulada[k], acumulada[k + 1], lugar - static_cast<double>(k));
    });
}

}  // namespace frequency
