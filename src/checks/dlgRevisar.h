// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "checks/Hallazgo.h"
#include "forms/Cuadro.h"
#include "forms/Rotulo.h"
#include "model/Red.h"
#include "model/SiroDeclarado.h"

// Rules of the window of the check before a run: all findings in a table, which severities are seen, which of
// them have a mend, whether they are still those of the project in hand.
namespace checks {

inline constexpr std::string_view TituloDlgRevisar = "Revisar proyecto";

/// Columns of the table.
enum class ColumnaHallazgo : std::uint8_t { Gravedad, Numero, Componente, Que, Cuanto, Remedio, Arreglo };

inline constexpr auto RotulosDlgRevisar = std::to_array<forms::FilaRotulo>({
    {"tblHallazgos", "Hallazgos", "Doble clic o Intro va al lugar en que se corrige"},
    {"chkGravedad_0", "&Errores",
     "Muestra los errores: la corrida se detiene, pregunta o da un resultado falso"},
    {"chkGravedad_1", "&Avisos", "Muestra los avisos: valores que conviene revisar"},
    {"chkGravedad_2", "&Notas", "Muestra las notas"},
    {"txtCuenca", "C&uenca medida [ha]:",
     "Superficie medida de la cuenca, para compararla con la suma de las UEHs; vacía: no se compara"},
    {"cmdRevisar", "&Revisar de nuevo", "Lee otra vez los archivos del proyecto y revisa todo"},
    {"cmdIr", "&Ir al lugar", "Abre la ficha, la tabla o el dibujo en que se corrige lo elegido"},
    {"cmdCorregir", "C&orregir",
     "Hace en el dibujo lo que dice la columna Arreglo de las filas elegidas; Ctrl+Z en el editor lo "
     "deshace"},
    {"cmdImprimir", "I&mprimir"},
    {"OKButton", "&Cerrar"},
});

struct dlgRevisar {
    bool abierta = false;
    std::vector<Hallazgo> hallazgos{};  ///< a row of the table each
    forms::Cuadro tblHallazgos{};
    std::array<bool, NombresGravedad.size()> chkGravedad{true, true, true};  ///< severities on show
    std::string txtCuenca{};  ///< the basin as it was measured [ha]; empty: not known
    std::string lblCuenta{};  ///< how many of each severity
    std::string lblDe{};      ///< which project, as saved or as drawn
    std::string lblHecho{};   ///< what a mend has done
    std::string proyecto{};   ///< path of the project checked, without its ending
    std::string estado{};     ///< EstadoEnMemoria at the check
};

/// Opening, and every check after it. `dibujo`: components that aren't saved, or nullptr.
void RevisaTodo(dlgRevisar& f, const model::Siro& s, const model::Colecciones* dibujo);

/// What a check depends on as far as it is in memory: project, network, storm, steps, as one text.
std::string EstadoEnMemoria(const model::Siro& s, const model::Colecciones* dibujo);

/// Shows the findings of a severity, or hides them.
void chkGravedad_Click(dlgRevisar& f, Gravedad gravedad, bool seVe);

/// A heading was clicked.
void AlPulsarEncabezado(dlgRevisar& f, int columna);

/// Leaving the field of the basin. Returns false where the text is refused, which has been told.
bool txtCuenca_Sale(dlgRevisar& f, const model::Siro& s);

/// Findings of some rows that a mend in the drawing takes away; those of tables, which are put in order in a
/// form of their own, only where `deTabla`.
std::vector<Hallazgo> ConArreglo(const dlgRevisar& f, const std::vector<std::size_t>& filas, bool deTabla);

/// After `cuantos` mends in the drawing.
void AlCorregir(dlgRevisar& f, int cuantos);

void OKButton(dlgRevisar& f);

}  // namespace checks
