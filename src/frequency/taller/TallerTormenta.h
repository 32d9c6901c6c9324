// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "frequency/taller/dlgTaller.h"
#include "frequency/tormenta/Diseno.h"
#include "frequency/tormenta/EscribeLluvia.h"
#include "model/SiroDeclarado.h"

// Rules of the last step: a storm of the curves, spread over time by a pattern, and its way into the tables
// that a run reads.
namespace frequency {

inline constexpr auto RotulosTallerTormenta = std::to_array<forms::FilaRotulo>({
    {"MarcoTormenta", "Tormenta"},
    {"cmbPatron", "&Patrón:", "Cómo se reparte la lluvia en el tiempo"},
    {"lblPatron", "Fórmula, fuente y límites del patrón"},
    {"txtDuracion", "&Duración:", "De la tormenta"},
    {"txtPaso", "Pas&o:", "De los períodos; la duración es un múltiplo de él"},
    {"txtRecurrencia", "&Recurrencia:", "De la lámina que dan las curvas"},
    {"txtLamina", "&Lámina:", "Vacía: la de las curvas del paso 4"},
    {"txtAvance", "A&vance r:", "Momento del pico, como parte de la duración"},
    {"cmbCuartil", "C&uartil:", "En el que cae lo más de la lluvia"},
    {"cmbProbabilidad", "Pro&babilidad:", "De que a cada momento haya caído más"},
    {"txtPeriodos", "Per&íodos:", "Lluvia de cada uno, en cualquier unidad, con espacios entre ellos"},
    {"cmbArchivo", "Re&gistrada:", "Tormenta real del proyecto, de la que sale el patrón o que se escala"},
    {"MarcoModelo", "Al modelo"},
    {"cmbTabla", "&Tabla P-D-R:", "La que se llena; es de todos los proyectos"},
    {"chkConfigura", "Sólo las de la &configuración",
     "Las duraciones y recurrencias tildadas en la configuración del proyecto; si no, todas"},
    {"cmdLlenar", "&Llenar tabla P-D-R...", "Con las láminas de las curvas, en mm enteros"},
    {"cmbDistribucion", "Distri&bución:", "La personal que se escribe; es de todos los proyectos"},
    {"cmdEscribir", "&Escribir distribución...", "Con este patrón, en porcentajes enteros"},
    {"cmdEscalar", "E&scalar registrada...",
     "Escribe la tormenta registrada, llevada a la lámina, como otra"},
    {"cmdDeshacerEscritura", "Deshacer...", "Devuelve al archivo lo que tenía"},
    {"tblTormenta", "Hietograma"},
    {"lamTormenta", "Hietograma"},
    {"lblAvisos", "Avisos de la tormenta"},
});

struct TallerTormenta {
    std::vector<std::string> patrones{}, recurrencias{}, cuartiles{}, probabilidades{}, archivos{}, tablas{};
    int patron = 0, cuartil = 0, probabilidad = 0, archivo = -1, tabla = 0, distribucion = 0;
    std::string txtDuracion{}, txtPaso{}, txtRecurrencia{}, txtLamina{}, txtAvance{}, txtPeriodos{};
    bool chkConfigura = false;
    std::string lblPatron{}, lblAvisos{}, cmdDeshacerEscritura{};
    forms::Cuadro cuadro{};
    forms::Grafico Grafico{};

    FuentesDeTormenta fuentes{};
    study::Taller hechas{};  ///< what the curves were made of
    Diseno diseno{};
    std::vector<CambioDeLluvia> escrituras{};  ///< of this session, which can be taken back from the last on
    std::string escrito{};                     ///< what was done last, a sentence
};

TallerTormenta NuevaTallerTormenta();
void Toma(TallerTormenta& m, const dlgTaller& f, const model::Siro& s);

/// What the pattern in hand is made of.
const Patron& PatronEnMano(const TallerTormenta& m);

// --- choices; each is a step of undo ---
void cmbPatron_Click(dlgTaller& f, int cual);
void cmbCuartil_Click(dlgTaller& f, int cual);
void cmbProbabilidad_Click(dlgTaller& f, int cual);
void cmbArchivo_Click(const TallerTormenta& m, dlgTaller& f, int cual);
void cmbTabla_Click(dlgTaller& f, int cual);
void cmbDistribucion_Click(dlgTaller& f, int cual);
/// Leaving a field. Returns false where its text is refused, which has been told.
bool txtNumero_AlSalir(TallerTormenta& m, dlgTaller& f, const model::Siro& s, std::string_view control);
bool txtPeriodos_AlSalir(const TallerTormenta& m, dlgTaller& f, const model::Siro& s);

// --- into the model: each asks first, naming what is replaced ---
void cmdLlenar(TallerTormenta& m, dlgTaller& f, model::Siro& s);
void cmdEscribir(TallerTormenta& m, dlgTaller& f, model::Siro& s);
/// Asks for the name of the storm that is written.
void cmdEscalar(TallerTormenta& m, dlgTaller& f, model::Siro& s);
void cmdDeshacerEscritura(TallerTormenta& m, dlgTaller& f, model::Siro& s);

forms::Planilla PlanillaDeTormenta(const TallerTormenta& m, const dlgTaller& f);

}  // namespace frequency
