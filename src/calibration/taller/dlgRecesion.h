// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Recesion.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the form that separates the base flow by hand: two times on the recession limb of the observation
// in hand, the straight line between them, what each unit would take of it.
namespace calibration {

inline constexpr std::string_view TituloDlgRecesion = "Caudal base sobre la recesión";

inline constexpr auto RotulosDlgRecesion = std::to_array<forms::FilaRotulo>({
    {"txtDesde", "&Desde:", "Primer minuto de la recesión, desde el inicio de la tormenta"},
    {"txtHasta", "&Hasta:", "Último minuto de la recesión"},
    {"lblFormula",
     "Q = Q0·e^(-t/K), t desde el inicio de la tormenta; recta por mínimos cuadrados sobre los logaritmos"},
    {"lblResultado", "Resultado del ajuste"},
    {"lamRecesion", "Recesión observada y recta ajustada"},
    {"tblUnidades", "Unidades aguas arriba", "Q0 se reparte según el área; K es la misma para todas"},
    {"lblAviso", "Avisos"},
    {"cmdAplicar", "&Aplicar",
     "Las unidades toman Q0 y K en el editor, como un solo paso de deshacer; no guarda"},
    {"OKButton", "Ce&rrar"},
});

struct dlgRecesion {
    bool abierta = false;
    std::vector<study::Punto> caudales{};  ///< of the observation in hand
    std::string componente{}, tema{};
    std::string txtDesde{}, txtHasta{};
    AjusteDeRecesion ajuste{};
    Reparto reparto{};
    std::string lblResultado{}, lblAviso{};
    forms::Cuadro tblUnidades{};
    forms::Grafico Grafico{};
};

/// Takes the observation in hand, and the piece of its recession that is likely.
void Abre(dlgRecesion& f, const dlgAjuste& ajuste);
/// Leaving one of the times. Returns false where its text is refused, which has been told.
bool txtTiempo_AlSalir(dlgRecesion& f, const dlgAjuste& ajuste, const model::Siro& s);
/// The units take what they are to have, in the editor.
void cmdAplicar(dlgRecesion& f, dlgAjuste& ajuste);
void OKButton(dlgRecesion& f);

}  // namespace calibration
