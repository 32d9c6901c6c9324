// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Sensibilidad.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "calibration/casos/Filas.h"
#include "calibration/casos/FuncionesConocidas.h"

namespace calibration::casos {
namespace {

constexpr std::size_t MuEstrella = 0, Primero = 0, Total = 3;

/// First orders of all inputs, then their totals.
Comparacion Sobol(const FuncionConocida& funcion, std::vector<double> conocidos)
{
    Comparacion c;
    const auto filas = IndicesDe("sobol", funcion, {.base = 4096});
    for (const std::size_t columna : {Primero, Total})
        for (const std::vector<double>& fila : filas) {
            c.x.push_back(static_cast<double>(c.x.size() + 1));
            c.nuestro.push_back(fila[columna]);
        }
    c.impreso = std::move(conocidos);
    return c;
}

Comparacion Morris(std::vector<double> conocidos)
{
    Comparacion c;
    for (const std::vector<double>& fila : IndicesDe("morris", FuncionDeMorris(), {.trayectorias = 1000})) {
        c.x.push_back(static_cast<double>(c.x.size() + 1));
        c.nuestro.push_back(fila[MuEstrella]);
    }
    c.impreso = std::move(conocidos);
    c.impreso.resize(c.x.size());
    return c;
}

constexpr std::string_view DeIshigami =
    "T. Ishigami y T. Homma (1990), An importance quantification technique in uncertainty analysis for "
    "computer models, ISUMA 90, 398-403; índices por integración";
constexpr std::string_view DeG =
    "A. Saltelli e I. M. Sobol' (1995), About the use of rank transformation in sensitivity analysis of "
    "model output, Reliab. Eng. Syst. Saf. 50, 225-239; índices por integración";
constexpr std::string_view DeMorris =
    "M. D. Morris (1991), Factorial sampling plans for preliminary computational experiments, "
    "Technometrics 33(2), 161-174, sección 4; medias sobre toda la grilla";
constexpr std::string_view Entrada3 = "a = 7, b = 0.1; 4096 muestras, 20480 puntos, semilla 1";
constexpr std::string_view Entrada8 =
    "a = 0, 1, 4.5, 9 y cuatro veces 99; 4096 muestras, 40960 puntos, "
    "semilla 1";
constexpr std::string_view Entrada20 =
    "los coeficientes que la fuente sortea valen 0; cuatro niveles, 1000 "
    "trayectorias, semilla 1";
constexpr std::string_view PorMuestreo =
    "un error típico de tantas muestras al azar; las de la sucesión de Sobol dan menos";
constexpr std::string_view TresErrores = "tres errores típicos de una media de 1000 efectos: 3·75.2/√1000";

constexpr std::string_view DeSobol = "índices de primer orden, después los totales", Entrada = "entrada";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Sobol, función de Ishigami", DeIshigami, Entrada3, DeSobol, Entrada, 0.023, PorMuestreo, true,
     [] {
         return Sobol(Ishigami(), {0.3139051911478115, 0.4424111447900408, 0, 0.5575888552099592,
                                   0.4424111447900408, 0.2436836640621477});
     }},
    {"Sobol, función g", DeG, Entrada8, DeSobol, Entrada, 0.019, PorMuestreo, true,
     [] {
         return Sobol(FuncionG(),
                      {0.7161921688790334, 0.1790480422197584, 0.0236757741778193, 0.0071619216887903,
                       0.0000716192168879, 0.0000716192168879, 0.0000716192168879, 0.0000716192168879,
                       0.7871441266592751, 0.2421981928182385, 0.0343169101540828, 0.0104603870652395,
                       0.0001049490519195, 0.0001049490519195, 0.0001049490519195, 0.0001049490519195});
     }},
    {"Morris, función de 20 entradas", DeMorris, Entrada20, "μ*, media de los efectos sin signo", Entrada,
     7.1, TresErrores, true,
     [] {
         return Morris({63.856415186988364, 63.856415186988364, 50.818520480522196, 63.856415186988364,
                        50.539371501017875, 43.269883988294325, 33.31103678929766, 40, 40, 40});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDeSensibilidad()
{
    return Filas;
}

}  // namespace calibration::casos
