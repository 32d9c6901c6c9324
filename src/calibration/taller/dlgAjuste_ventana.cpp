// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgAjuste_ventana.h"

#include "calibration/taller/AjusteCalibracion_ventana.h"
#include "calibration/taller/AjusteEventos_ventana.h"
#include "calibration/taller/AjusteIncertidumbre_ventana.h"
#include "calibration/taller/AjusteParametros_ventana.h"
#include "calibration/taller/AjusteSensibilidad_ventana.h"

namespace calibration {

dlgAjuste_ventana::dlgAjuste_ventana(forms::Entorno& alrededor, dlgAjuste& registro, QWidget* padre)
    : Pasos_ventana(alrededor, registro, {"dlgAjuste", TituloDlgAjuste, RotulosDlgAjuste}, padre), f(registro)
{
    PonPaginas();
    QComboBox* const evento =
        ListaEnMano("cmbEvento", f.eventos, f.evento, [this](int i) { cmbEvento_Click(f, i); });
    QComboBox* const observacion = ListaEnMano("cmbObservacion", f.observaciones, f.observacion,
                                               [this](int i) { cmbObservacion_Click(f, i); });
    Arma({Rotulo("cmbEvento", evento), evento, Rotulo("cmbObservacion", observacion), observacion});
}

void dlgAjuste_ventana::PonPaginas()
{
    Agrega("1 Eventos", new AjusteEventos_ventana(entorno, f));
    Agrega("2 Parámetros", new AjusteParametros_ventana(entorno, f));
    Agrega("3 Sensibilidad", new AjusteSensibilidad_ventana(entorno, f));
    Agrega("4 Calibración", new AjusteCalibracion_ventana(entorno, f));
    Agrega("5 Incertidumbre", new AjusteIncertidumbre_ventana(entorno, f));
}

void dlgAjuste_ventana::Abre()
{
    OlvidaProyecto(f);
    Pasos_ventana::Abre();
}

}  // namespace calibration
