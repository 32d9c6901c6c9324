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

// Rules of the editor of the three personal temporal distributions: the share of a storm's rain in each of a
// number of periods of equal length, in percent.
namespace rainfall {

inline constexpr std::string_view TituloDlgDisPpPer =
    "Distribución temporal de la Precipitación: Tabla P-t Personalizada";

// clang-format off
inline constexpr auto LeyendasDlgDisPpPer = std::to_array<forms::FilaRotulo>({
    {"cmbNroTablaDisPpPer", "Tabla de distribución Personal Nro.:"},
    {"txtNotas",            "Observaciones / Notas:"},
    {"txtNroPer",           "Ingrese el Número de Perídos de Intensidad Constante de Pp:"},  // kept as it stands
    {"MarcoValidez",        "Perído de Validez"},                                            // likewise
    {"lblValidez",          "Distribución temporal válida p/ Duraciones D[hs] de tormentas entre:"},  // they are minutes
    {"cmbDurMin",           "Duración Mínima:"},
    {"cmbDurMax",           "Duración Máxima:"},
    {"MSFlexGridDisPerso",  "Ppción. parcial  P[%], en período t [%], (Duración D=100%)"},
    {"laminaDisPpPer",      "Hietograma de la tabla"},
    {"cmdBorraTablaDisPer", "Borrar Tabla"},
    {"cmdAplicar",          "&Aplicar"},
    {"OKButton",            "Ce&rrar"},
    {"CancelButton",        "&Cancelar"},
});
// clang-format on

/// The three tables and the rows in sight, as they were read or written last.
struct DistribucionesLeidas {
    struct Tabla {
        std::string notas{};
        std::int16_t durMin = 0, durMax = 0;  ///< [min]
        std::vector<float> partes{};          ///< of each period [% of P]
        bool operator==(const Tabla&) const = default;
    };
    std::array<Tabla, 3> tablas{};
    std::vector<forms::FilaGrilla> filas{};
};

struct dlgDisPpPer {
    bool abierta = false;
    forms::Lista cmbNroTablaDisPpPer{};  ///< item i is table i + 1
    std::string txtNotas{};
    std::string txtNroPer{};
    forms::Lista cmbDurMin{}, cmbDurMax{};
    forms::Grilla MSFlexGridDisPerso{};
    DistribucionesLeidas leidas{};
    forms::Foco foco{};

    /// Table in hand, 1 to 3.
    [[nodiscard]] int Tabla() const { return cmbNroTablaDisPpPer.indice + 1; }
};

// Each command takes up first the cell that is still being typed. A fault in an event is told in a box and
// ends it.

/// Opening: reads the tables and shows the one whose option is ticked in dlgPp.
void Abre(dlgDisPpPer& f, const dlgPp& pp, model::Siro& s);

/// A table was picked: its option in dlgPp is ticked.
void cmbNroTablaDisPpPer_Click(dlgDisPpPer& f, dlgPp& pp, model::Siro& s);

void txtNotas_Change(const dlgDisPpPer& f, model::Siro& s);

// Limits were picked.
void cmbDurMin_Click(const dlgDisPpPer& f, model::Siro& s);
void cmbDurMax_Click(const dlgDisPpPer& f, model::Siro& s);

// Leaving a field. Returns false where it is refused and the focus stays.
bool cmbDurMax_AlSalir(const dlgDisPpPer& f, const model::Siro& s);
bool txtNroPer_AlSalir(dlgDisPpPer& f, model::Siro& s);

/// Cells of the table have settled.
void AlAsentar(dlgDisPpPer& f, model::Siro& s, const forms::Efecto& efecto);

/// Empties the table in hand and writes all three at once.
void cmdBorraTablaDisPer(dlgDisPpPer& f, model::Siro& s);

/// Writes all three tables where the one in hand is numeric throughout and adds up to 100 %.
void cmdAplicar(dlgDisPpPer& f, model::Siro& s);
/// Applies, and closes whatever came of it.
void OKButton(dlgDisPpPer& f, model::Siro& s);
/// What was typed stays in memory until the tables are read again.
void CancelButton(dlgDisPpPer& f);

/// Whether the file doesn't hold what the form and the tables in memory do.
bool SinAplicar(const dlgDisPpPer& f, const model::Siro& s);

/// Hyetograph of the table as it is typed.
forms::Grafico Vista(const dlgDisPpPer& f);

}  // namespace rainfall
