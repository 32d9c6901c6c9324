// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/idf/Familias.h"

#include <algorithm>
#include <cmath>

namespace frequency::idf {
namespace {

constexpr CoeficienteDeFamilia K{"k", "escala", 1e-6, 1e9, true};
constexpr CoeficienteDeFamilia ExponenteT{"a", "exponente de la recurrencia", 0, 2, false};
constexpr CoeficienteDeFamilia Corrimiento{"b", "corrimiento de la duración [min]", 0, 1e4, false};
constexpr CoeficienteDeFamilia ExponenteD{"c", "exponente de la duración", 0.01, 5, false};

double Sherman(const Coeficientes& c, double d, double T)
{
    return std::log(c[0]) + c[1] * std::log(T) - c[3] * std::log(d + c[2]);
}

double Bernard(const Coeficientes& c, double d, double T)
{
    return std::log(c[0]) + c[1] * std::log(T) - c[2] * std::log(d);
}

double Talbot(const Coeficientes& c, double d, double T)
{
    return std::log(c[0]) + c[1] * std::log(T) - std::log(d + c[2]);
}

double Wenzel(const Coeficientes& c, double d, double T)
{
    return std::log(c[0]) + c[1] * std::log(T) - std::log(std::pow(d, c[3]) + c[2]);
}

double Dit(const Coeficientes& c, double d, double T)
{
    return c[0] * FactorDit(T) - c[1] * PersistenciaDit(d) + c[2];
}

double Libre(const Coeficientes& c, double d, double /*T*/)
{
    return std::log(c[0]) - c[2] * std::log(d + c[1]);
}

constexpr std::array Todas{
    Familia{"sherman",
            "Sherman",
            {K, ExponenteT, Corrimiento, ExponenteD},
            4,
            false,
            3,
            {{{1000, 0.2, 10, 0.8}, {1000, 0.2, 0.5, 0.7}, {1000, 0.2, 60, 1}}},
            Sherman,
            "i = k T^a / (d + b)^c",
            "Sherman 1931, Trans. ASCE 95; Aparicio 1997, Fundamentos de hidrología de superficie",
            "Una misma potencia de T para toda recurrencia: las leyes de cola corta se apartan de ella en "
            "las más "
            "altas"},
    Familia{"bernard",
            "Bernard",
            {K, ExponenteT, {"n", "exponente de la duración", 0.01, 5, false}},
            3,
            false,
            2,
            {{{1000, 0.2, 0.75}, {1000, 0.2, 0.5}, {1000, 0.2, 0.9}}},
            Bernard,
            "i = k T^a / d^n",
            "Bernard 1932, Trans. ASCE 96",
            "Una recta en papel logarítmico: exagera las duraciones de pocos minutos"},
    Familia{"talbot",
            "Talbot",
            {K, ExponenteT, Corrimiento},
            3,
            false,
            2,
            {{{1000, 0.2, 10}, {1000, 0.2, 1}, {1000, 0.2, 60}}},
            Talbot,
            "i = k T^a / (d + b)",
            "Chow, Maidment y Mays 1988, sección 14.2",
            "Para duraciones cortas, de 5 a 120 min: más allá la lámina casi no crece"},
    Familia{"wenzel",
            "Wenzel",
            {K,
             ExponenteT,
             {"f", "sumando del denominador", 0, 1e4, false},
             {"e", "exponente de la duración", 0.01, 5}},
            4,
            false,
            3,
            {{{1000, 0.2, 8, 0.8}, {1000, 0.2, 1, 0.7}, {1000, 0.2, 30, 1}}},
            Wenzel,
            "i = k T^a / (d^e + f)",
            "Wenzel 1982; Chow, Maidment y Mays 1988, sección 14.2",
            "Una misma potencia de T para toda recurrencia"},
    Familia{"dit",
            "DIT",
            {{{"A", "de la recurrencia", 0, 5, false},
              {"B", "de la duración", 0, 5, false},
              {"C", "de la estación", -50, 50, false}}},
            3,
            false,
            2,
            {{{0.4, 0.15, 5}, {0.4, 0.15, 5}, {0.4, 0.15, 5}}},
            Dit,
            "ln i = A phi - B (ln d)^(5/3) + C, phi = 2.584458 (ln T)^(3/8) - 2.252573",
            "Caamaño Nelli y Dasso 2003, Lluvias de diseño, Universitas; fichas del INA-SCIRSA, 2024 y 2025",
            "Láminas de ley log-normal, duraciones de 5 a 1440 min"},
    Familia{"libre",
            "Libre",
            {{{"a", "escala", 1e-6, 1e9, true}, Corrimiento, ExponenteD}},
            3,
            true,
            3,
            {{{1000, 10, 0.8}, {1000, 0.5, 0.7}, {1000, 60, 1}}},
            Libre,
            "i = a / (d + b)^c, con a, b, c de cada T",
            "Chow, Maidment y Mays 1988, sección 14.2",
            "Nada impide que las curvas de dos recurrencias se crucen: vea el control de cruces"},
};

}  // namespace

std::span<const Familia> Familias()
{
    return Todas;
}

const Familia* FamiliaDeClave(std::string_view clave)
{
    const auto* const cual =
        std::find_if(Todas.begin(), Todas.end(), [&](const Familia& f) { return f.clave == clave; });
    return cual == Todas.end() ? nullptr : cual;
}

double FactorDit(double recurrencia)
{
    return 2.584458 * std::pow(std::log(recurrencia), 3.0 / 8.0) - 2.252573;
}

double PersistenciaDit(double duracion)
{
    return std::pow(std::log(duracion), 5.0 / 3.0);
}

}  // namespace frequency::idf
