// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "frequency/PruebasDeMuestra.h"
#include "frequency/taller/dlgTaller.h"

// Rules of the second step: whether the series in hand is what a fit takes it for.
namespace frequency {

inline constexpr auto RotulosTallerPruebas = std::to_array<forms::FilaRotulo>({
    {"tblPruebas", "Pruebas de la muestra", "Elija una prueba para ver su gráfico, qué hacer y su fuente"},
    {"lblVeredicto", "Veredicto:"},
    {"lblRemedio", "Qué hacer:"},
    {"lblFuente", "Fuente:"},
    {"lamPruebas", "Prueba de la muestra"},
});

struct TallerPruebas {
    std::vector<Prueba> pruebas{};
    forms::Cuadro tblPruebas{};
    std::size_t prueba = 0;  ///< in hand
    std::string lblPrueba{}, lblVeredicto{}, lblRemedio{}, lblFuente{};
    forms::Grafico Grafico{};
};

void Toma(TallerPruebas& m, const dlgTaller& f);
/// Takes a test in hand, by its row.
void tblPruebas_Mueve(TallerPruebas& m, const dlgTaller& f, std::size_t fila);
void AlPulsarEncabezado(TallerPruebas& m, int columna);

/// What a test looks at: the series with its trend (Sen 1968), the medians of its halves, its limits of
/// outliers; each year against the next.
forms::Grafico GraficoDePrueba(const Prueba& prueba, const study::SerieDeMaximos& s);

}  // namespace frequency
