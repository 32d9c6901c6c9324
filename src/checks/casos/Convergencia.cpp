// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Familias.h"
#include "checks/casos/SolucionContinua.h"

namespace checks::casos {

namespace {

constexpr int Cada = 20, Hasta = 240;  // [min], of the continuous solutions
constexpr float KLineal = 60;          // [min]

/// What the continuous solution is of: 0 to 100 m3/s in 60 min, back to 0 at 180 min.
double Crecida(double t)
{
    return std::max(0.0, std::min(100 * t / 60, 100 * (180 - t) / 120));
}

/// S = K·O as a tower that lets out 0.1 m3/s for each metre of water.
void PonLineal(Banco& banco, std::string_view metodo)
{
    constexpr double Alto = 1000;           // [m]
    const double area = 60 * KLineal / 10;  // [m2]
    banco.PonRepresa("0", metodo, {{0, area / 10000, 0, 0}, {Alto, area / 10000, area * Alto, Alto / 10}})
        .Represa_k_Musk = KLineal;
}

/// Walls around a hectare, and an outflow function Q = 0.2·H^1.5.
void PonVertedero(Banco& banco, std::string_view metodo)
{
    model::Represa& r = banco.PonRepresa("0", metodo, {{0, 1, 0, 0}, {100, 1, 1000000, 0}});
    r.optTabla = false;
    r.chkFQ[0] = 1;
    r.FQa[0] = 0.2F;
    r.FQb[0] = 1.5F;
    r.FQMax[0] = 100;
}

struct Embalse {
    void (*pon)(Banco&, std::string_view metodo);
    const std::array<double, Hasta / Cada>& continua;
};
constexpr Embalse Lineal{PonLineal, continua::Lineal}, Vertedero{PonVertedero, continua::Vertedero};

/// Outflow [m3/s] each 20 min, by steps that divide them.
std::vector<double> Sale(const Embalse& e, std::string_view metodo, int paso)
{
    Banco banco;
    e.pon(banco, metodo);
    std::vector<double> entra;
    for (int t = 0; t <= Hasta; t += paso)
        entra.push_back(Crecida(t));
    const std::vector<double> todos = SaleDeRepresa(banco, entra, static_cast<std::int16_t>(paso));
    std::vector<double> sale;
    for (int t = Cada; t <= Hasta; t += Cada)
        sale.push_back(todos[static_cast<std::size_t>(t / paso)]);
    return sale;
}

Comparacion ConLaContinua(const Embalse& e, std::string_view metodo, int paso)
{
    Comparacion c{{}, {e.continua.begin(), e.continua.end()}, Sale(e, metodo, paso)};
    for (int t = Cada; t <= Hasta; t += Cada)
        c.x.push_back(t);
    return c;
}

double ErrorMaximo(const Embalse& e, std::string_view metodo, int paso)
{
    const std::vector<double> sale = Sale(e, metodo, paso);
    double error = 0;
    for (std::size_t k = 0; k < sale.size(); ++k)
        error = std::max(error, std::abs(sale[k] - e.continua[k]));
    return error;
}

/// By how much the error falls where the step is halved; `impreso` is 2 to the order of the method.
Comparacion Orden(const Embalse& e, std::string_view metodo, double impreso)
{
    Comparacion c;
    for (const int paso : {5, 10}) {
        c.x.push_back(paso);
        c.impreso.push_back(impreso);
        c.nuestro.push_back(ErrorMaximo(e, metodo, 2 * paso) / ErrorMaximo(e, metodo, paso));
    }
    return c;
}

constexpr std::string_view FuenteLineal =
    "solución cerrada de dO/dt = (I - O)/K por tramos rectos de la entrada, calculada aparte en "
    "tests/checks/solucion_continua.py";
constexpr std::string_view FuenteVertedero =
    "dH/dt = (I - Q)/A con pasos de 1 s por Runge-Kutta de cuarto orden, calculada aparte en "
    "tests/checks/solucion_continua.py";
constexpr std::string_view EntradaLineal =
    "embalse lineal con K = 60 min, vacío; crecida triangular de 100 m3/s a los 60 min y 180 min de base; "
    "paso de 5 min";
constexpr std::string_view EntradaVertedero =
    "paredes alrededor de 1 ha y Q = 0.2·H^1.5, vacío; crecida triangular de 100 m3/s a los 60 min y 180 min "
    "de base; paso de 5 min";
constexpr std::string_view EntradaOrden = "lo mismo con pasos de 5, 10 y 20 min";
constexpr std::string_view CaudalDeSalida = "caudal de salida [m3/s]", Minutos = "tiempo [min]";
constexpr std::string_view Razon = "error con el paso doble / error", Paso = "paso [min]";
constexpr std::string_view PorqueSegundo =
    "segundo orden: 100 m3/s por (5/60)^2/12, y la altura se busca hasta 5 mm";
constexpr std::string_view PorqueTercero = "tercer orden: 100 m3/s por (5/60)^3/24, y cuentas de 32 bits";
constexpr std::string_view PorqueRazon = "la razón es la del orden del método cuando el paso tiende a 0";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Embalse lineal continuo, Muskingum con x = 0", FuenteLineal, EntradaLineal, CaudalDeSalida, Minutos,
     0.06, PorqueSegundo, true, [] { return ConLaContinua(Lineal, Muskingum, 5); }},
    {"Embalse lineal continuo, piscina nivelada", FuenteLineal, EntradaLineal, CaudalDeSalida, Minutos, 0.07,
     PorqueSegundo, true, [] { return ConLaContinua(Lineal, Piscina, 5); }},
    {"Embalse lineal continuo, Runge-Kutta", FuenteLineal, EntradaLineal, CaudalDeSalida, Minutos, 0.003,
     PorqueTercero, true, [] { return ConLaContinua(Lineal, RungeKutta, 5); }},
    {"Embalse con vertedero continuo, piscina nivelada", FuenteVertedero, EntradaVertedero, CaudalDeSalida,
     Minutos, 0.07, PorqueSegundo, true, [] { return ConLaContinua(Vertedero, Piscina, 5); }},
    {"Embalse con vertedero continuo, Runge-Kutta", FuenteVertedero, EntradaVertedero, CaudalDeSalida,
     Minutos, 0.003, PorqueTercero, true, [] { return ConLaContinua(Vertedero, RungeKutta, 5); }},
    {"Orden de Muskingum con x = 0", FuenteLineal, EntradaOrden, Razon, Paso, 0.4, PorqueRazon, true,
     [] { return Orden(Lineal, Muskingum, 4); }},
    {"Orden de la piscina nivelada", FuenteLineal, EntradaOrden, Razon, Paso, 0.4, PorqueRazon, true,
     [] { return Orden(Lineal, Piscina, 4); }},
    {"Orden de Runge-Kutta", FuenteLineal, EntradaOrden, Razon, Paso, 1.2, PorqueRazon, true,
     [] { return Orden(Lineal, RungeKutta, 8); }},
});

}  // namespace

std::span<const FilaDeCaso> Convergencia()
{
    return Filas;
}

}  // namespace checks::casos
