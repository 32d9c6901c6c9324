// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Busqueda.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "calibration/casos/Filas.h"
#include "calibration/casos/Funciones.h"

namespace calibration::casos {
namespace {

constexpr std::size_t Corridas = 5000;
constexpr std::uint64_t Semillas = 4;

/// What a search from a seed comes to.
double Hallado(const MetodoDeBusqueda& metodo, const FuncionDePrueba& f, std::uint64_t semilla)
{
    const Costo costo = [&f](std::span<const double> u) { return f.De(u); };
    const Busqueda b = metodo.busca({.dimensiones = f.dimensiones, .corridas = Corridas, .semilla = semilla},
                                    [&costo](std::size_t cuantas, const auto& pieza) {
                                        for (std::size_t k = 0; k < cuantas; ++k)
                                            pieza(k, costo);
                                    });
    return b.Mejor()->costo;
}

/// The least value of each function and the worst that any seed comes to; x is the place in the list.
Comparacion Busca(std::string_view clave, std::initializer_list<std::string_view> nombres)
{
    Comparacion c;
    for (const std::string_view nombre : nombres) {
        const auto* const f = std::ranges::find(FuncionesDePrueba, nombre, &FuncionDePrueba::nombre);
        double peor = Hallado(*MetodoDeBusquedaDe(clave), *f, 1);
        for (std::uint64_t semilla = 2; semilla <= Semillas; ++semilla)
            peor = std::max(peor, Hallado(*MetodoDeBusquedaDe(clave), *f, semilla));
        c.x.push_back(static_cast<double>(c.x.size() + 1));
        c.impreso.push_back(f->optimo);
        c.nuestro.push_back(peor);
    }
    return c;
}

constexpr std::string_view Sce =
    "Q. Duan, S. Sorooshian y V. Gupta (1992), Effective and efficient global optimization for conceptual "
    "rainfall-runoff models, Water Resour. Res. 28(4), 1015-1031; mínimos: L. C. W. Dixon y G. P. Szegö "
    "(1978), Towards Global Optimization 2, North-Holland";
constexpr std::string_view Rowan =
    "T. H. Rowan (1990), Functional stability analysis of numerical algorithms, Univ. of Texas at Austin; "
    "mínimos: L. C. W. Dixon y G. P. Szegö (1978), Towards Global Optimization 2, North-Holland";
constexpr std::string_view Dds =
    "B. A. Tolson y C. A. Shoemaker (2007), Dynamically dimensioned search algorithm for computationally "
    "efficient watershed model calibration, Water Resour. Res. 43, W01413; mínimos: L. C. W. Dixon y G. P. "
    "Szegö (1978), Towards Global Optimization 2, North-Holland";
constexpr std::string_view Seis =
    "esfera (6), Rosenbrock (2), Goldstein-Price (2), seis jorobas (2), Hartmann (6), Rastrigin (2), entre "
    "paréntesis las dimensiones; 5000 corridas, 5 complejos, semillas 1 a 4";
constexpr std::string_view Siete = "las seis y Griewank (2); 5000 corridas, semillas 1 a 4";
constexpr std::string_view Tres =
    "Goldstein-Price (2), seis jorobas (2), Rastrigin (2); 5000 corridas, semillas 1 a 4";
constexpr std::string_view Minimo = "mínimo, el peor de las semillas", Funcion = "función";
constexpr std::string_view Valle =
    "queda por debajo de todo otro mínimo local: el más cercano, de Hartmann, está 0.12 más arriba";
constexpr std::string_view ValleDeGriewank =
    "queda por debajo de todo otro mínimo local: el más cercano, de Griewank, está 0.0074 más arriba";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"SCE-UA, seis funciones de prueba", Sce, Seis, Minimo, Funcion, 0.01, Valle, false,
     [] {
         return Busca("sce",
                      {"esfera", "Rosenbrock", "Goldstein-Price", "seis jorobas", "Hartmann-6", "Rastrigin"});
     }},
    {"Subplex, siete funciones de prueba", Rowan, Siete, Minimo, Funcion, 0.005, ValleDeGriewank, false,
     [] {
         return Busca("subplex", {"esfera", "Rosenbrock", "Goldstein-Price", "seis jorobas", "Hartmann-6",
                                  "Rastrigin", "Griewank"});
     }},
    {"DDS, tres funciones de prueba", Dds, Tres, Minimo, Funcion, 0.01, Valle, false,
     [] {
         return Busca("dds", {"Goldstein-Price", "seis jorobas", "Rastrigin"});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDeBusqueda()
{
    return Filas;
}

}  // namespace calibration::casos
