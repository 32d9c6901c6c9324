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
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

// Rules of the storm dialog: input form, depth, duration and recurrence of the storm, its temporal
// distribution, the two time steps of the model. What its controls hold is a record; each event of the window
// is a routine.
namespace rainfall {

inline constexpr std::string_view TituloDlgPp = "Carga de Datos de Precipitación";

/// Caption of the options of the form, and of the two steps; both frames are always shown.
inline constexpr std::string_view MarcoFormas = "Forma de ingreso de la lluvia";
inline constexpr std::string_view MarcoPasos = "Pasos de tiempo";

/// Controls of the dialog. An indexed control that is enabled as a whole is one of them.
enum class Control : std::uint8_t {
    optformaPp,
    txtPp,
    txtDur,
    cmbRec,
    cmbPDR,
    optDistriPp,
    optTablaPDR,
    cmbPasoPp,
    cmbPasoQ,
    FilePpReal,
    cmdAplicar,
    OKButton,
    CancelButton,
    cmdVerGrafico,
    cmdVerTablaPt,
    cmdPDR,
    cmdBorraPDR,
    cmdTablaPDR,
    cmdPpPerso,
    cmdPpReal,
    cmdCargaPDRnoUniforme,
    Frame2,  ///< section a)
    Frame3,  ///< section c)
    Frame4,  ///< section b)
    Frame5,  ///< distributions
    Frame7,  ///< real storm; it stands where Frame3 and Frame4 stand
    lblValidez,
    lblDurMin,
    lblDurMax,
    Label9_0,
    Label9_1,
    lblNumPer,
    lblMiFilePpReal,
};

/// A control, its object name, and its caption: what a button, an option's frame or a label shows, and the
/// label beside a field. None where it takes several or its text comes from the record.
struct FilaControl {
    Control control;
    std::string_view nombre;
    std::string_view leyenda;
    std::string_view ayuda = {};  ///< hint shown under the pointer
};

// clang-format off
inline constexpr auto ControlesDlgPp = std::to_array<FilaControl>({
    {Control::optformaPp,            "optformaPp",            ""},
    {Control::txtPp,                 "txtPp",                 "&Precipitación Pp [mm]:"},
    {Control::txtDur,                "txtDur",                "&Duración D [min]:"},
    {Control::cmbRec,                "cmbRec",                "&Recurrencia R [años]:"},
    {Control::cmbPDR,                "cmbPDR",                "&Lista de tormentas archivadas:"},
    {Control::optDistriPp,           "optDistriPp",           ""},
    {Control::optTablaPDR,           "optTablaPDR",           ""},
    {Control::cmbPasoPp,             "cmbPasoPp",             "Paso de &entrada (Precipitación) [min]:"},
    {Control::cmbPasoQ,              "cmbPasoQ",              "Paso de &salida (Caudales) [min]:"},
    {Control::FilePpReal,            "FilePpReal",            "Archi&vos de tormentas:"},
    {Control::cmdAplicar,            "cmdAplicar",            "&Aplicar"},
    {Control::OKButton,              "OKButton",              "&Aceptar"},
    {Control::CancelButton,          "CancelButton",          "&Cancelar"},
    {Control::cmdVerGrafico,         "cmdVerGrafico",         "&Gráfico P-t"},
    {Control::cmdVerTablaPt,         "cmdVerTablaPt",         "Ver Tabla P-t"},
    {Control::cmdPDR,                "cmdPDR",                "Cargar Tormenta a Lista b)"},
    {Control::cmdBorraPDR,           "cmdBorraPDR",           "Eliminar de Lista una tormenta ( P-t )"},
    {Control::cmdTablaPDR,           "cmdTablaPDR",           "Cargar Tabla Pp-D-R"},
    {Control::cmdPpPerso,            "cmdPpPerso",            "Cargar Tabla Personalizada "},
    {Control::cmdPpReal,             "cmdPpReal",             "Cargar lluvia Real (P-t)"},
    {Control::cmdCargaPDRnoUniforme, "cmdCargaPDRnoUniforme", "Cargar datos",
     "Abre la Tabla para carga de datos de lluvia por SubCuenca o UEH (Lluvias No uniformes en el área)"},
    {Control::Frame2,                "Frame2",                "a) Lluvia (Pp), Duración (D) y Recurrencia (R)"},
    {Control::Frame3,                "Frame3",                "c) Tabla de Pp-D-R"},
    {Control::Frame4,                "Frame4",                "b) Lista archivada"},
    {Control::Frame5,                "Frame5",                "Distribución temporal"},
    {Control::Frame7,                "Frame7",                "Lluvias Reales"},
    {Control::lblValidez,            "lblValidez",            "Validez: Duración [minutos]    Min        -    Máxima"},
    {Control::lblDurMin,             "lblDurMin",             ""},
    {Control::lblDurMax,             "lblDurMax",             ""},
    {Control::Label9_0,              "Label9_0",              "Lluvias Sintéticas de distribución areal UNIFORME"},
    {Control::Label9_1,              "Label9_1",              "Lluvias Sintéticas de distribución areal NO UNIFORME"},
    {Control::lblNumPer,             "lblNumPer",             "Intervalos:"},
    {Control::lblMiFilePpReal,       "lblMiFilePpReal",       "Tormenta:"},
});
// clang-format on

inline constexpr std::size_t NroControles = ControlesDlgPp.size();
static_assert([] {
    for (std::size_t i = 0; i < NroControles; ++i)
        if (ControlesDlgPp[i].control != static_cast<Control>(i)) return false;
    return static_cast<std::size_t>(Control::lblMiFilePpReal) + 1 == NroControles;
}());

/// Captions of optformaPp; the index is FormaPp.
inline constexpr auto FormasPp = std::to_array<std::string_view>({
    "a) Ingresar una lluvia (Pp), de Duración (D) y Recurrencia(R) y asignar una distribución temporal tipo",
    "b) Cargar una tormenta  Pp-D-R desde Lista archivada",
    "c) Cargar una tabla de Pp-D-R desde archivo",
    "d) Cargar una Pp-D-R por cada UEH",
    "Lluvias Reales",
});

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

/// What a control shows of itself beside its text.
struct EstadoControl {
    bool habilitado = true;
    bool visible = true;
    bool operator==(const EstadoControl&) const = default;
};

/// A list from which an item is picked.
struct Lista {
    std::vector<std::string> items{};
    int indice = -1;  ///< item selected, from 0; -1: none
};

/// A list whose text can be typed too.
struct ListaConTexto {
    std::vector<std::string> items{};
    std::string texto{};
};

/// Fields whose text waits for cmdAplicar, as it was shown or applied last.
struct CamposMostrados {
    std::string txtPp{}, txtDur{}, cmbRec{}, cmbPasoPp{}, cmbPasoQ{};
};

/// What the dialog's controls hold, and with it the hidden instance of the form.
struct dlgPp {
    std::array<EstadoControl, NroControles> estados{};
    std::array<bool, FormasPp.size()> optformaPp{};
    std::array<bool, DistribucionesPp.size()> optDistriPp{};
    std::array<bool, TablasPDR.size()> optTablaPDR{};
    std::string txtPp = "60";   ///< depth [mm]
    std::string txtDur = "60";  ///< duration [min]
    ListaConTexto cmbRec{};     ///< recurrence [years]
    Lista cmbPDR{};             ///< stored storms
    ListaConTexto cmbPasoPp{}, cmbPasoQ{};
    Lista FilePpReal{};
    std::string lblDurMin{}, lblDurMax{}, lblNumPer{}, lblMiFilePpReal{};

    /// The real storm read last. It outlives the closing of the dialog, since no run-wide variable names its
    /// file and the charts ask for its notes.
    model::TormentaReal tormenta{};

    CamposMostrados mostrados{};
    std::optional<Control> foco{};  ///< control that a refusal keeps the focus in
    bool todoSeleccionado = false;  ///< with all of its text selected
    bool abierta = false;

    EstadoControl& Estado(Control c) { return estados[static_cast<std::size_t>(c)]; }
    [[nodiscard]] const EstadoControl& Estado(Control c) const
    {
        return estados[static_cast<std::size_t>(c)];
    }
    [[nodiscard]] bool Habilitado(Control c) const { return Estado(c).habilitado; }
    [[nodiscard]] bool Visible(Control c) const { return Estado(c).visible; }
};

/// A number field that is checked when it is left.
struct CampoPp {
    Control control;
    std::string dlgPp::*texto;
    forms::ReglaNumero regla;
};

inline constexpr auto CamposPp = std::to_array<CampoPp>({
    {Control::txtPp,
     &dlgPp::txtPp,
     {.maximo = 999,
      .mensaje = "Ingrese un valor numérico, entero o decimal, entre 0 y 999",
      .vacioEsCero = true,
      .caja = forms::CajaRechazo::Advertencia}},
    {Control::txtDur,
     &dlgPp::txtDur,
     {.maximo = 14400,
      .mensaje = "Ingrese un valor numérico, entero o decimal, entre 0 y 14400",
      .vacioEsCero = true,
      .caja = forms::CajaRechazo::Advertencia,
      .alRechazar = "1440"}},
});

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

// While one of those forms is open, what it changes beside this record is followed here.
/// Limits of the personal distribution in use, which form 0 shows.
void MuestraValidez(dlgPp& f, const model::Siro& s);
/// Files of real storms; the one selected stays so while it is there.
void TomaTormentas(dlgPp& f, const std::vector<std::string>& archivos);

/// Shows the dialog's state for the first ticked form, which becomes FormaPp.
void EstadoFormaPp(dlgPp& f, model::Siro& s);

// Clicks on options; i is the index of the option.
void optformaPp_Click(dlgPp& f, model::Siro& s, std::size_t i);
void optDistriPp_Click(dlgPp& f, model::Siro& s, std::size_t i);
void optTablaPDR_Click(dlgPp& f, std::size_t i);

// Clicks in lists act on the item selected; with none they do nothing.
void cmbPDR_Click(dlgPp& f, model::Siro& s);
void FilePpReal_Click(dlgPp& f, model::Siro& s);

// Leaving a field. Returns false where the text is refused and the focus stays.
bool txtPp_AlSalir(dlgPp& f, model::Siro& s);
bool txtDur_AlSalir(dlgPp& f, model::Siro& s);
bool cmbPasoPp_AlSalir(dlgPp& f, const model::Siro& s);
/// An output step that doesn't fit is replaced and the focus moves on.
bool cmbPasoQ_AlSalir(dlgPp& f, model::Siro& s);

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
