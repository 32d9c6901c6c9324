// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "checks/ResumenDeCorrida.h"
#include "checks/UltimaCorrida.h"
#include "forms/Cuadro.h"
#include "forms/Procedencia.h"
#include "forms/Rotulo.h"

// Rules of the window of a run's summary: what it says of the run, its table, which hydrographs a row leads
// to.
namespace results {

using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

inline constexpr std::string_view TituloDlgResumen = "Resumen de la corrida";

inline constexpr auto RotulosDlgResumen = std::to_array<forms::FilaRotulo>({
    {"lblProyecto", "Proyecto:"},
    {"lblTormenta", "Lluvia:"},
    {"lblCuando", "Corrida:"},
    {"lblAvisos", "Avisos:"},
    {"lblHuella", "Huella:",
     "Quien tiene la misma huella corrió la misma red con la misma tormenta y la misma versión, y tiene los "
     "mismos "
     "resultados"},
    {"cmdCopiarHuella", "Copiar la hue&lla", "Copia la huella de la corrida"},
    {"tblResumen", "Componentes", {}, "Resumen de la corrida, una fila por componente"},
    {"cmdHidrograma", "&Hidrograma", "Abre el hidrograma de la fila elegida; también doble clic o Intro"},
    {"cmdComparar", "C&omparar", "Lleva las filas elegidas a un solo gráfico"},
    {"cmdImprimir", "I&mprimir"},
    {"OKButton", "&Cerrar"},
});

struct dlgResumen {
    bool abierta = false;
    Corrida corrida{};  ///< the one on show; none: nothing has been run
    checks::Resumen resumen{};
    forms::Cuadro tblResumen{};
    std::string lblProyecto{}, lblTormenta{}, lblCuando{}, lblAvisos{}, lblHuella{};
    std::string lblQueHacer{};  ///< why there is no table, or not that of hydrographs, and what to do
};

/// Takes a run; the order that the user chose stays where the columns are the same.
void Pon(dlgResumen& f, Corrida corrida);

/// A heading was clicked. The basin stays in the last row.
void AlPulsarEncabezado(dlgResumen& f, int columna);

/// Components whose hydrographs some rows lead to, each once, in the order of the rows.
std::vector<std::string> Hidrogramas(const dlgResumen& f, const std::vector<std::size_t>& filas);

/// The table as it is on show with what it says of its run above it.
forms::Planilla ComoPlanilla(const dlgResumen& f);

/// Name and title of the project of a run.
std::string ProyectoDe(const checks::UltimaCorrida& u);

/// Project, storm, date, version and hash of a run, a line each.
std::vector<std::string> RenglonesDe(const checks::UltimaCorrida& u);

void OKButton(dlgResumen& f);

}  // namespace results
