// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "rainfall/dlgPp.h"

// Rules of the editor of the tables of synthetic storms that a series goes through: a storm a row, by depth,
// duration and recurrence. Table 0 is the region's and can only be looked at; tables 1 to 3 are personal.
namespace rainfall {

inline constexpr std::string_view TituloDlgTablasPDRs =
    "Tablas de Precipitación [mm] - Duración [min] - Recurrencia [años]";

// clang-format off
inline constexpr auto LeyendasDlgTablasPDRs = std::to_array<forms::FilaRotulo>({
    {"cmbNroTablaPDRs",     "Tabla   Nro.:", "Seleccione '0' para la Tabla por Defecto (Región del VIRSo, Sorelo, Argentina). O seleccine 1, 2 o 3 para cargar o corregir tablas personalizadas de Pp-D-R regionales"},  // kept as it stands
    {"txtNroPDRs",          "Número de tormentas Pp-D-R:"},
    {"txtNotas",            "Observaciones / Notas:"},
    {"lblNotas",            "Observaciones / Notas:"},
    {"MSFlexGridTablaPDRs", "Precipitación  P[mm], Duración D[min], Recurrencia R[años]", "Cargue los datos siguiendo en forma ordenada y creciente segun el ejemplo de la Tabla '0'"},
    {"laminaTablasPDRs",    "Hietograma de la tormenta de la fila"},
    {"cmdBorraTablaDisPer", "Borrar Tabla"},
    {"MarcoNotas",          "Notas:"},
    {"cmdAplicar",          "&Aplicar"},
    {"OKButton",            "Ce&rrar"},
    {"CancelButton",        "&Cancelar"},
});
// clang-format on

/// Fixed texts of the frame of notes.
inline constexpr auto NotasFijasPDRs = std::to_array<std::string_view>({
    "Las Tablas Pp-D-R o tablas de Precipitación, Duración, Recurrencia, caractérizan una región en estudio.",
    "Permiten ingresar como entradas un conjunto de tormentas sintéticas, de duración y recurrencia "
    "crecientes. El modelo efectúa corridas integradas para estimar los hidrogramas de cada tormenta. "
    "Produce como resultados tablas resúmenes y gráficos de Caudales máximos y Escorrentías en  función de "
    "la Duración D y de la Recurrencia R. (Gráficos Qp-D-R  y  E-D-R)",
    "Dispone en la Opción '0' la Tabla para la región del Valle Inferior del Río Sorelo, VIRSo  (Ruvera, "
    "Argentina),  y puede construir hasta 3 tablas personalizadas.",
});

/// Durations [min] and recurrences [years] that a row may have.
inline constexpr auto DuracionesPDR = std::to_array<std::int16_t>(
    {5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1440, 2880, 1080});
inline constexpr auto RecurrenciasPDR =
    std::to_array<std::int16_t>({2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000});

/// The tables and the rows in sight, as they were read or written last.
struct TablasPDRLeidas {
    struct Tabla {
        std::string notas{};
        std::vector<std::array<std::int16_t, 3>> tormentas{};  ///< P [mm], D [min], R [years]
        bool operator==(const Tabla&) const = default;
    };
    std::array<Tabla, 4> tablas{};
    std::vector<forms::FilaGrilla> filas{};
};

struct dlgTablasPDRs {
    bool abierta = false;
    forms::Lista cmbNroTablaPDRs{};  ///< item i is table i
    bool editable = false;           ///< any table but 0: its notes are typed, otherwise shown
    std::string txtNroPDRs{};
    std::string txtNotas{};
    forms::Grilla MSFlexGridTablaPDRs{};
    TablasPDRLeidas leidas{};
    forms::Foco foco{};

    /// Table in hand, 0 to 3.
    [[nodiscard]] int Tabla() const { return cmbNroTablaPDRs.indice; }
};

// A fault in an event is told in a box and ends it.

/// Opening: reads the tables and shows the one whose option is ticked in dlgPp.
void Abre(dlgTablasPDRs& f, const dlgPp& pp, model::Siro& s);

/// A table was picked: its option in dlgPp is ticked.
void cmbNroTablaPDRs_Click(dlgTablasPDRs& f, dlgPp& pp, model::Siro& s);

void txtNotas_Change(const dlgTablasPDRs& f, model::Siro& s);

/// Leaving the number of storms. Returns false where it is refused and the focus stays; that of table 0 isn't
/// looked at.
bool txtNroPDRs_AlSalir(dlgTablasPDRs& f, model::Siro& s);

/// The grid has changed: where a step has put other rows in place, their number follows.
void AlAsentar(dlgTablasPDRs& f, model::Siro& s, const forms::Efecto& efecto);

/// Empties the table in hand and writes all four at once; table 0 stays.
void cmdBorraTablaDisPer(dlgTablasPDRs& f, model::Siro& s);

/// Loads the table in hand into the series of the run. A personal one is checked, and the four are written
/// where it passes. The first storm becomes that of dlgPp.
void cmdAplicar(dlgTablasPDRs& f, dlgPp& pp, model::Siro& s);
/// Applies, and closes whatever came of it.
void OKButton(dlgTablasPDRs& f, dlgPp& pp, model::Siro& s);
void CancelButton(dlgTablasPDRs& f);

/// Whether the file doesn't hold what the form and the tables in memory do.
bool SinAplicar(const dlgTablasPDRs& f, const model::Siro& s);

/// Hyetograph of the storm that the cursor is on, by the temporal distribution and at the step in use; an
/// empty chart where the row tells no storm.
forms::Grafico Vista(const dlgTablasPDRs& f, const model::Siro& s);

}  // namespace rainfall
