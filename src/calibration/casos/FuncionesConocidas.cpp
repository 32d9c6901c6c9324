// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/casos/FuncionesConocidas.h"

#include <array>
#include <cmath>

namespace calibration::casos {

FuncionConocida Ishigami()
{
    return {std::vector<Rango>(3, {-std::numbers::pi, std::numbers::pi, false, 0}),
            [](const std::vector<double>& x) {
                constexpr double A = 7, B = 0.1;
                return std::sin(x[0]) + A * std::pow(std::sin(x[1]), 2) +
                       B * std::pow(x[2], 4) * std::sin(x[0]);
            }};
}

FuncionConocida FuncionG()
{
    return {std::vector<Rango>(8), [](const std::vector<double>& x) {
                constexpr std::array<double, 8> A{0, 1, 4.5, 9, 99, 99, 99, 99};
                double g = 1;
                for (std::size_t i = 0; i < x.size(); ++i)
                    g *= (std::abs(4 * x[i] - 2) + A[i]) / (1 + A[i]);
                return g;
            }};
}

FuncionConocida FuncionDeMorris()
{
    return {std::vector<Rango>(20), [](const std::vector<double>& x) {
                std::vector<double> w(x.size());
                for (std::size_t i = 0; i < x.size(); ++i) {
                    const bool curva = i == 2 || i == 4 || i == 6;
                    w[i] = 2 * ((curva ? 1.1 * x[i] / (x[i] + 0.1) : x[i]) - 0.5);
                }
                double y = 0;
                for (std::size_t i = 0; i < 10; ++i)
                    y += 20 * w[i];
                for (std::size_t i = 0; i < 6; ++i)
                    for (std::size_t j = i + 1; j < 6; ++j)
                        y -= 15 * w[i] * w[j];
                for (std::size_t i = 0; i < 5; ++i)
                    for (std::size_t j = i + 1; j < 5; ++j)
                        for (std::size_t l = j + 1; l < 5; ++l)
                            y -= 10 * w[i] * w[j] * w[l];
                return y + 5 * w[0] * w[1] * w[2] * w[3];
            }};
}

std::vector<std::vector<double>> IndicesDe(std::string_view metodo, const FuncionConocida& funcion,
                                           const study::Sensibilidad& pedido)
{
    const MetodoDeSensibilidad& m = *MetodoDeSensibilidadDe(metodo);
    const Plan plan = m.plan(funcion.rangos, pedido);
    std::vector<double> valores;
    for (std::size_t k = 0; k < plan.cuantos; ++k)
        valores.push_back(funcion.f(plan.punto(k)));
    return m.calcula(funcion.rangos.size(), pedido, valores);
}

}  // namespace calibration::casos
