// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgTaller_ventana.h"

#include "frequency/taller/TallerAjustes_ventana.h"
#include "frequency/taller/TallerIdf_ventana.h"
#include "frequency/taller/TallerMaximos_ventana.h"
#include "frequency/taller/TallerPruebas_ventana.h"
#include "frequency/taller/TallerTormenta_ventana.h"

namespace frequency {

dlgTaller_ventana::dlgTaller_ventana(forms::Entorno& alrededor, dlgTaller& registro, QWidget* padre)
    : Pasos_ventana(alrededor, registro, {"dlgTaller", TituloDlgTaller, RotulosDlgTaller}, padre), f(registro)
{
    PonPaginas();
    QComboBox* const estacion =
        ListaEnMano("cmbEstacion", f.estaciones, f.estacion, [this](int i) { cmbEstacion_Click(f, i); });
    QComboBox* const serie =
        ListaEnMano("cmbSerie", f.series, f.serie, [this](int i) { cmbSerie_Click(f, i); });
    Arma({Rotulo("cmbEstacion", estacion), estacion, Rotulo("cmbSerie", serie), serie});
}

void dlgTaller_ventana::PonPaginas()
{
    Agrega("1 Máximos", new TallerMaximos_ventana(entorno, f));
    Agrega("2 Pruebas", new TallerPruebas_ventana(entorno, f));
    Agrega("3 Ajustes", new TallerAjustes_ventana(entorno, f));
    Agrega("4 IDF", new TallerIdf_ventana(entorno, f));
    Agrega("5 Tormenta", new TallerTormenta_ventana(entorno, f));
}

}  // namespace frequency
