// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>
#include <string_view>

// Functions whose least value is known, for methods of search.
namespace calibration::casos {

/// A function of the unit cube: its box, its least value, and where a search is taken to have found it.
struct FuncionDePrueba {
    std::string_view nombre;
    std::string_view fuente;
    std::size_t dimensiones;
    double minimo, maximo;  ///< of every dimension
    double optimo;          ///< its least value in the box
    double cerca;           ///< so much above it is found: below its next local minimum
    double (*f)(std::span<const double> x);

    [[nodiscard]] double De(std::span<const double> u) const
    {
        std::array<double, 12> x{};
        for (std::size_t d = 0; d < u.size(); ++d)
            x[d] = minimo + (maximo - minimo) * u[d];
        return f({x.data(), u.size()});
    }
};

inline double Esfera(std::span<const double> x)
{
    double suma = 0;
    for (const double xi : x)
        suma += xi * xi;
    return suma;
}

inline double Rosenbrock(std::span<const double> x)
{
    double suma = 0;
    for (std::size_t i = 0; i + 1 < x.size(); ++i) {
        const double a = x[i + 1] - x[i] * x[i], b = 1 - x[i];
        suma += 100 * a * a + b * b;
    }
    return suma;
}

inline double GoldsteinPrice(std::span<const double> p)
{
    const double x = p[0], y = p[1];
    const double a = x + y + 1, b = 2 * x - 3 * y;
    return (1 + a * a * (19 - 14 * x + 3 * x * x - 14 * y + 6 * x * y + 3 * y * y)) *
           (30 + b * b * (18 - 32 * x + 12 * x * x + 48 * y - 36 * x * y + 27 * y * y));
}

inline double Griewank(std::span<const double> x)
{
    double suma = 0, producto = 1;
    for (std::size_t i = 0; i < x.size(); ++i) {
        suma += x[i] * x[i] / 4000;
        producto *= std::cos(x[i] / std::sqrt(static_cast<double>(i + 1)));
    }
    return suma - producto + 1;
}

inline double Rastrigin(std::span<const double> x)
{
    double suma = 10 * static_cast<double>(x.size());
    for (const double xi : x)
        suma += xi * xi - 10 * std::cos(2 * std::numbers::pi * xi);
    return suma;
}

inline double SeisJorobas(std::span<const double> p)
{
    const double x = p[0] * p[0], y = p[1] * p[1];
    return (4 - 2.1 * x + x * x / 3) * x + p[0] * p[1] + (-4 + 4 * y) * y;
}

inline double Hartmann6(std::span<const double> x)
{
    constexpr double alfa[4] = {1, 1.2, 3, 3.2};
    constexpr double A[4][6] = {{10, 3, 17, 3.5, 1.7, 8},
                                {0.05, 10, 17, 0.1, 8, 14},
                                {3, 3.5, 1.7, 10, 17, 8},
                                {17, 8, 0.05, 10, 0.1, 14}};
    constexpr double P[4][6] = {{0.1312, 0.1696, 0.5569, 0.0124, 0.8283, 0.5886},
                                {0.2329, 0.4135, 0.8307, 0.3736, 0.1004, 0.9991},
                                {0.2348, 0.1451, 0.3522, 0.2883, 0.3047, 0.6650},
                                {0.4047, 0.8828, 0.8732, 0.5743, 0.1091, 0.0381}};
    double suma = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        double distancia = 0;
        for (std::size_t j = 0; j < x.size(); ++j)
            distancia += A[i][j] * (x[j] - P[i][j]) * (x[j] - P[i][j]);
        suma -= alfa[i] * std::exp(-distancia);
    }
    return suma;
}

inline constexpr std::string_view DixonSzego =
    "Dixon, Szegö, \"Towards Global Optimization 2\", North-Holland 1978, p. 1-15";

/// The box of each is no mirror of its optimum, where that lies in the middle otherwise: a method that leans
/// towards the middle would look good.
inline constexpr std::array FuncionesDePrueba{
    FuncionDePrueba{"esfera", "suma de cuadrados", 6, -5, 8, 0, 1e-3, Esfera},
    FuncionDePrueba{"Rosenbrock", "Rosenbrock, The Computer Journal 3, 1960", 2, -5, 8, 0, 1e-3, Rosenbrock},
    FuncionDePrueba{"Goldstein-Price", DixonSzego, 2, -2, 2, 3, 1e-2, GoldsteinPrice},
    FuncionDePrueba{"seis jorobas", DixonSzego, 2, -3, 4, -1.031628, 1e-3, SeisJorobas},
    FuncionDePrueba{"Hartmann-6", DixonSzego, 6, 0, 1, -3.32237, 1e-2, Hartmann6},
    FuncionDePrueba{"Rastrigin", "Rastrigin 1974; Törn, Žilinskas 1989", 2, -4, 5, 0, 1e-2, Rastrigin},
    FuncionDePrueba{"Griewank", "Griewank, JOTA 34, 1981", 2, -8, 10, 0, 1e-3, Griewank},
};

}  // namespace calibration::casos
