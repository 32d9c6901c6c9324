// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/ArchivosTormenta.h"
#include "model/SiroDeclarado.h"
#include "rainfall/ImportaTormenta.h"
#include "rainfall/dlgPp.h"

// Rules of the editor of recorded storms: depths at a constant step with their calendar time, a file each.
// What it holds of a storm's depths are the run-wide PpReal and NroPpReal.
namespace rainfall {

inline constexpr std::string_view TituloDlgPpReal = "Edición de Tormentas Reales (Pp-t)";

// clang-format off
inline constexpr auto LeyendasDlgPpReal = std::to_array<forms::FilaRotulo>({
    {"FilePpReal",            "", "Pulse en el cuadro de lista para seleccionar otra tormenta ", "Archivos de tormentas"},
    {"lblMiFilePpReal",       "Tormenta:"},
    {"cmdNuevaPpReal",        "Agregar una  tormenta nueva"},
    {"txtNotas",              "Notas:"},
    {"txtDateI",              "Inicial:", "Formato dd/mm/aaaa  - Ingrese 0 ó nulo para \"01/01/1001\", se interpretará sin fecha válida"},
    {"txtTimeI",              "", "Formato hh:mm", "Hora inicial"},
    {"txtDateF",              "Final:", "Formato dd/mm/aaaa  "},
    {"txtTimeF",              "", "Formato hh:mm", "Hora final"},
    {"cmbPasot",              "Paso t [min]:", "Elija un paso de tiempo adecuado [minutos]"},
    {"txtNroPpReal",          "Nro. de intervalos:"},
    {"optNroPpReal_0",        "Opción de fijar fecha y hora final (calcula nro. intervalos...)"},
    {"optNroPpReal_1",        "Opción fijar nro. intervalos (calcula fecha y hora final...)"},
    {"MSFlexGridTablaPpReal", "Tormenta Pp[mm] - t [min]", "Cargue los datos de precipitación siguiendo el orden de entradas (columna 3)"},
    {"cmdVerGrafico",         "Gráfico"},
    {"cmdBorraTablaDisPer",   "Borrar Tabla"},
    {"laminaPpReal",          "Hietograma de la tabla"},
    {"cmdImporta",            "Importar CSV...", "Toma fecha, hora y lámina de un registro de lluvia, como el de un pluviógrafo"},
    {"cmdAplicar",            "&Aplicar"},
    {"OKButton",              "Ce&rrar"},
    {"CancelButton",          "&Cancelar"},
});
// clang-format on

/// Items of cmbPasot at most.
inline constexpr std::size_t MaxPasosTormenta = 16;

/// Options of what follows from what.
enum : int { OpcionFijaFinal = 0, OpcionFijaNro = 1 };

/// What the file of a storm holds, as it was read or written last.
struct TormentaLeida {
    model::TormentaReal tormenta{};
    std::string txtNroPpReal{};
    std::vector<forms::FilaGrilla> filas{};
    bool operator==(const TormentaLeida&) const = default;
};

struct dlgPpReal {
    bool abierta = false;
    model::TormentaReal tormenta{};  ///< file name, notes, step, dates and times
    bool Protegida = false;          ///< one of the delivered storms
    forms::Lista FilePpReal{};
    std::string lblMiFilePpReal{};
    std::string cmbPasot{};  ///< step [min]; it may be one of the file that no item has
    std::vector<std::string> itemsPasot{};
    std::string txtNroPpReal{};
    int optNroPpReal = -1;  ///< option ticked, from 0; -1: none
    forms::Grilla MSFlexGridTablaPpReal{};
    TormentaLeida leida{};
    forms::Foco foco{};

    /// The end is typed; otherwise the number of intervals is.
    [[nodiscard]] bool FinalEditable() const { return optNroPpReal == OpcionFijaFinal; }
};

// Each command takes up first the cell that is still being typed. A fault in an event is told in a box and
// ends it.

/// Opening, on the storm that dlgPp shows, or on the default one.
void Abre(dlgPpReal& f, const dlgPp& pp, model::Siro& s);

/// The window becomes active: the form of the rain is that of real storms, and the storm that dlgPp shows is
/// read again.
void AlActivarse(dlgPpReal& f, dlgPp& pp, model::Siro& s);

/// Reads the storm selected.
void FilePpReal_Click(dlgPpReal& f, model::Siro& s);

/// Asks for a name and makes a storm without intervals; a storm of that name is overwritten. Where it can't
/// be written, the form stays as it was.
void cmdNuevaPpReal(dlgPpReal& f, model::Siro& s);

/// Leaving a date, a time or the number of intervals, by its control's name. Returns false where the text is
/// refused and the focus stays.
bool AlSalir(dlgPpReal& f, model::Siro& s, std::string_view control);

/// A step was picked; it is the list's text.
void cmbPasot_Click(dlgPpReal& f, model::Siro& s);
void optNroPpReal_Click(dlgPpReal& f, int i);

/// Cells of the table have settled.
void AlAsentar(dlgPpReal& f, model::Siro& s, const forms::Efecto& efecto);

/// The chart of the table: blocks, step, notes, depth and duration.
PedidoHietograma cmdVerGrafico(dlgPpReal& f, model::Siro& s);

/// Empties the storm, deletes its file where the user says so, and writes the storm that is in hand then.
void cmdBorraTablaDisPer(dlgPpReal& f, const dlgPp& pp, model::Siro& s);

/// The storm becomes that of dlgPp, and is written unless it is protected.
void cmdAplicar(dlgPpReal& f, dlgPp& pp, model::Siro& s);
/// Applies, writes once more, protected or not, and closes: kept as it stands.
void OKButton(dlgPpReal& f, dlgPp& pp, model::Siro& s);
/// Nothing is written; the arrays keep what was typed.
void CancelButton(dlgPpReal& f);

/// Whether the file in hand doesn't hold what the form does.
bool SinAplicar(const dlgPpReal& f);

/// An imported record takes the place of the storm's dates, step and depths. Nothing is written yet.
void TomaImportada(dlgPpReal& f, model::Siro& s, const TormentaImportada& importada);

/// Hyetograph of the table as it is typed.
forms::Grafico Vista(const dlgPpReal& f);

}  // namespace rainfall
