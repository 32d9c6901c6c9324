// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "rainfall/dlgPp.h"

// Rules of the table of a storm that isn't uniform over the basin: a depth for each UEH, one duration and
// recurrence for all. The depths live in PpUEH as long as the program runs.
namespace rainfall {

inline constexpr std::string_view TituloDlgTablaPpUEHs =
    "Distribución areal de la Precipitación: Tabla P-D-R por UEHs";

// clang-format off
inline constexpr auto LeyendasDlgTablaPpUEHs = std::to_array<forms::FilaRotulo>({
    {"txtDPpUEHs",       "Duración [min]:"},
    {"txtRPpUEHs",       "Recurrencia [años]:"},
    {"MSFlexGridPpUEHs", "Datos de Precipitación P[mm], Duración D[min] y Recurrencia R[años] ",
     "Ingresar los datos tabulados para la función de descarga en la forma H[m]-Q[m3/s]"},  // kept as it stands
    {"laminaPpUEHs",     "Precipitación de cada UEH"},
    {"cmdBorraTablaHQ",  "Borrar Tabla"},
    {"cmdAplicar",       "&Aplicar"},
    {"OKButton",         "Ce&rrar"},
    {"CancelButton",     "&Cancelar"},
});
// clang-format on

/// Characters that the two fields keep.
inline constexpr int LargoCampoPpUEHs = 5;

/// What the form showed as it opened, or was applied last.
struct PpUEHsAplicadas {
    std::string D{}, R{};
    std::vector<forms::FilaGrilla> filas{};
    bool operator==(const PpUEHsAplicadas&) const = default;
};

struct dlgTablaPpUEHs {
    bool abierta = false;
    /// Duration [min] and recurrence [years]. They outlive the closing of the window.
    std::string txtDPpUEHs = "0", txtRPpUEHs = "0";
    std::string DValida = "0", RValida = "0";  ///< what the two held when they were last left
    forms::Grilla MSFlexGridPpUEHs{};
    PpUEHsAplicadas aplicadas{};
    forms::Foco foco{};
};

// A fault in an event is told in a box and ends it.

/// Opening: reads the project's components; a row for each UEH.
void Abre(dlgTablaPpUEHs& f, model::Siro& s);

/// Leaving a field, by its control's name. Returns false where the text is refused and the focus stays.
bool AlSalir(dlgTablaPpUEHs& f, const model::Siro& s, std::string_view control);

/// Empties the depths of the table; PpUEH stays until the next apply.
void cmdBorraTablaHQ(dlgTablaPpUEHs& f, const model::Siro& s);

/// Takes the depths into PpUEH where each is a number. Duration, recurrence and the first depth above 0
/// become those of dlgPp.
void cmdAplicar(dlgTablaPpUEHs& f, dlgPp& pp, model::Siro& s);
/// Applies, and closes whatever came of it.
void OKButton(dlgTablaPpUEHs& f, dlgPp& pp, model::Siro& s);
/// A duration or a recurrence that its field would refuse is given up.
void CancelButton(dlgTablaPpUEHs& f);

/// Whether it holds what wasn't applied.
bool SinAplicar(const dlgTablaPpUEHs& f);

/// Depth of each UEH as it is typed.
forms::Grafico Vista(const dlgTablaPpUEHs& f);

}  // namespace rainfall
