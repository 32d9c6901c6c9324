// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Lista.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"
#include "rainfall/EstadosDePp.h"

// Rules of the storm dialog: input form, depth, duration and recurrence of the storm, its temporal
// distribution, the two time steps of the model. What its controls hold is a record; each event of the window
// is a routine.
namespace rainfall {

inline constexpr std::string_view TituloDlgPp = "Carga de Datos de Precipitación";

/// Caption of the options of the form, and of the two steps; both frames are always shown.
inline constexpr std::string_view MarcoFormas = "Forma de ingreso de la lluvia";
inline constexpr std::string_view MarcoPasos = "Pasos de tiempo";

/// Captions of optDistriPp; the index is DistriPp.
inline constexpr auto DistribucionesPp = std::to_array<std::string_view>({
    "Lluvia de intensidad constante",
    "Distribución de López Cadenas, SECSCM: ",
    "Distribución tormenta Ruvera 12/5/92 (1)",
    "Distribución tormenta Ruvera 12/5/92 (2)",
    "Distribución tormenta Ruvera 23-24/4/98",
    "Opción de distribución personalizada 1. Debe cargar la Tabla.",
    "Opción de distribución personalizada 2. Debe cargar la Tabla.",
    "Opción de distribución personalizada 3. Debe cargar la Tabla.",
});

/// Captions of optTablaPDR; the index is TablaPDR.
inline constexpr auto TablasPDR = std::to_array<std::string_view>({
    "Tabla de la cuenca de Ruvera",
    "Tabla personalizada 1",
    "Tabla personalizada 2",
    "Tabla personalizada 3",
});

/// Items of cmbPasoPp and cmbPasoQ [min].
inline constexpr auto PasosDeTiempo =
    std::to_array<std::int16_t>({5, 10, 15, 20, 30, 60, 120, 180, 240, 300, 360, 540, 720});

/// Texts that wait for cmdAplicar. Those of the lists may be other than their items.
struct TextosDePp {
    std::string txtPp = "60";             ///< depth [mm]
    std::string txtDur = "60";            ///< duration [min]
    std::string cmbRec{};                 ///< recurrence [years]
    std::string cmbPasoPp{}, cmbPasoQ{};  ///< steps [min]
};

/// What the dialog's controls hold, and with it the hidden instance of the form.
struct dlgPp : TextosDePp {
    EstadosDePp estados{};
    int optformaPp = -1, optDistriPp = -1, optTablaPDR = -1;  ///< option ticked, from 0; -1: none
    std::vector<std::string> itemsRec{}, itemsPaso{};         ///< of cmbRec; of cmbPasoPp and cmbPasoQ
    forms::Lista cmbPDR{};                                    ///< stored storms
    forms::Lista FilePpReal{};
    std::string lblDurMin{}, lblDurMax{}, lblNumPer{}, lblMiFilePpReal{};

    /// The real storm read last. It outlives the closing of the dialog, since no run-wide variable names its
    /// file and the charts ask for its notes.
    model::TormentaReal tormenta{};

    TextosDePp mostrados{};  ///< as they were shown or applied last
    bool abierta = false;

    // By the name of a control of the table.
    EstadoControl& Estado(std::string_view c) { return estados.at(forms::LugarDe(ControlesDlgPp, c)); }
    [[nodiscard]] const EstadoControl& Estado(std::string_view c) const
    {
        return estados.at(forms::LugarDe(ControlesDlgPp, c));
    }
    [[nodiscard]] bool Habilitado(std::string_view c) const { return Estado(c).habilitado; }
    [[nodiscard]] bool Visible(std::string_view c) const { return Estado(c).visible; }
};

/// A text that waits for cmdAplicar, and the number in use that it is for. One without a message isn't
/// checked by its row when it is left.
using CampoPp = forms::CampoNumerico<TextosDePp, forms::NumeroDeSiro>;

// clang-format off
inline constexpr auto CamposDeTormenta = std::to_array<CampoPp>({
    {{.control = "txtPp", .maximo = 999, .mensaje = "Ingrese un valor numérico, entero o decimal, entre 0 y 999",
      .vacioEsCero = true, .rechazo = forms::Rechazo::Advertencia},
     &TextosDePp::txtPp, forms::EnSiro<&model::Siro::Tormenta, &model::Tormenta::PpTormenta>},
    {{.control = "txtDur", .maximo = 14400, .mensaje = "Ingrese un valor numérico, entero o decimal, entre 0 y 14400",
      .vacioEsCero = true, .rechazo = forms::Rechazo::Advertencia, .alRechazar = "1440"},
     &TextosDePp::txtDur, forms::EnSiro<&model::Siro::Tormenta, &model::Tormenta::DurTormenta>},
    {{.control = "cmbRec"}, &TextosDePp::cmbRec, forms::EnSiro<&model::Siro::Tormenta, &model::Tormenta::RecTormenta>},
});
inline constexpr auto CamposDePasos = std::to_array<CampoPp>({
    {{.control = "cmbPasoPp"}, &TextosDePp::cmbPasoPp, forms::EnSiro<&model::Siro::Pasos, &model::Pasos::PasoPp>},
    {{.control = "cmbPasoQ"}, &TextosDePp::cmbPasoQ, forms::EnSiro<&model::Siro::Pasos, &model::Pasos::PasoQ>},
});
// clang-format on

/// The hyetograph that a chart is asked for.
struct PedidoHietograma {
    std::int16_t N = 0;     ///< blocks
    std::int16_t paso = 0;  ///< length of a block [min]
    std::string titulo{};
    float P = 0;         ///< [mm]
    std::int16_t D = 0;  ///< [min]
    bool operator==(const PedidoHietograma&) const = default;
};

// A fault in an event is told in a box and ends the event, the dialog staying as it is.

/// Opening: the controls from the run-wide values, "60" for a depth or a duration of 0. Reads the project's
/// list of storms in forms 0 and 1, which leaves its last storm in the run-wide values while the fields keep
/// theirs.
void Abre(dlgPp& f, model::Siro& s);

/// The window becomes active coming from another window of the program.
void AlActivarse(dlgPp& f, model::Siro& s);

/// One of the forms opened from here was closed. What it put into the three fields of the storm stays.
void AlVolver(dlgPp& f, model::Siro& s);

/// Limits of the personal distribution in use, which form 0 shows. They change while one of those forms is
/// open.
void MuestraValidez(dlgPp& f, const model::Siro& s);

/// Shows the dialog's state for the first ticked form, which becomes FormaPp.
void EstadoFormaPp(dlgPp& f, model::Siro& s);

// Clicks on options; i is the index of the option.
void optformaPp_Click(dlgPp& f, model::Siro& s, int i);
void optDistriPp_Click(dlgPp& f, model::Siro& s, int i);
void optTablaPDR_Click(dlgPp& f, int i);

// Clicks in lists act on the item selected; with none they do nothing.
void cmbPDR_Click(dlgPp& f, model::Siro& s);
void FilePpReal_Click(dlgPp& f, model::Siro& s);

/// Leaving a field, by its control's name. Returns false where the text is refused and the focus stays. The
/// number of a refused depth or duration is in use all the same; an output step that doesn't fit is replaced
/// and the focus moves on.
bool AlSalir(dlgPp& f, model::Siro& s, std::string_view control);

/// Takes the storm, the distribution and the steps into the run-wide values. Without depth or duration it
/// says so and closes the dialog, distribution and steps being as they were.
void cmdAplicar(dlgPp& f, model::Siro& s);
void OKButton(dlgPp& f, model::Siro& s);
void CancelButton(dlgPp& f);

/// Whether it holds what neither was shown nor is in use, and would be lost with the dialog. Form and
/// distribution are in use from the click on.
bool SinAplicar(const dlgPp& f, const model::Siro& s);

/// Adds the storm of the three fields to the list and stores the list.
void cmdPDR(dlgPp& f, model::Siro& s);
/// Takes the selected storm off the list and stores the list.
void cmdBorraPDR(dlgPp& f, model::Siro& s);

/// Applies and builds the hyetograph. Returns the chart to be opened; nothing without a storm or without
/// blocks.
std::optional<PedidoHietograma> cmdVerGrafico(dlgPp& f, model::Siro& s);
/// Applies, builds the hyetograph and lists it on the Slate where that is on.
void cmdVerTablaPt(dlgPp& f, model::Siro& s);

/// Title of the charts of the storm in hand: the notes of a real storm, otherwise the project's title.
std::string TituloDeTormenta(const dlgPp& f, const model::Siro& s);

}  // namespace rainfall
