// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "frequency/taller/dlgTaller.h"
#include "model/SiroDeclarado.h"

// Rules of the first step: stations, durations, their annual maxima typed, pasted or imported.
namespace frequency {

inline constexpr auto RotulosTallerMaximos = std::to_array<forms::FilaRotulo>({
    {"MarcoEstacion", "Estación"},
    {"txtNombre", "&Nombre:"},
    {"txtLatitud", "&Latitud:", "En grados, negativa al sur"},
    {"txtLongitud", "Long&itud:", "En grados, negativa al oeste"},
    {"txtAltitud", "&Altitud:", "Sobre el nivel del mar"},
    {"txtFuente", "&Fuente:", "De dónde son los datos: organismo, publicación, fecha"},
    {"txtNotas", "N&otas:"},
    {"cmdNuevaEstacion", "Nue&va", "Agrega otra estación al estudio"},
    {"cmdQuitaEstacion", "&Quitar", "Quita la estación con todas sus series; se puede deshacer"},
    {"MarcoSerie", "Serie"},
    {"txtDuracion", "Dura&ción:", "De la lluvia cuyo máximo de cada año está en la tabla"},
    {"chkDiaria", "Leída una vez por &día",
     "El pluviómetro se lee a una hora fija: la lluvia de 24 horas es mayor que la de un día"},
    {"cmdNuevaSerie", "Agre&gar", "Agrega a la estación una serie de máximos de otra duración"},
    {"cmdQuitaSerie", "Q&uitar", "Quita la serie; se puede deshacer"},
    {"cmdImportar", "I&mportar...", "De un registro de lluvia o de un archivo de máximos"},
    {"grdMaximos", "Máximos anuales",
     "Año, máximo [mm] y, donde se sepa, días con registro; se puede pegar de una planilla"},
    {"lamMaximos", "Máximos anuales"},
    {"lblAvisos", "Avisos de la serie"},
});

/// Fields of a station and a series that are numbers, and texts.
struct TallerMaximos {
    std::string txtNombre{}, txtLatitud{}, txtLongitud{}, txtAltitud{}, txtFuente{}, txtNotas{};
    std::string txtDuracion{};
    bool chkDiaria = false;
    forms::Grilla grdMaximos{};
    std::string lblAvisos{};
    forms::Grafico Grafico{};
};

TallerMaximos NuevaTallerMaximos();
void Toma(TallerMaximos& m, const dlgTaller& f);

/// Leaving a field. Returns false where its text is refused, which has been told.
bool txtTexto_AlSalir(const TallerMaximos& m, dlgTaller& f, std::string_view control);
bool txtNumero_AlSalir(TallerMaximos& m, dlgTaller& f, const model::Siro& s, std::string_view control);
void chkDiaria_Click(dlgTaller& f, bool tildada);

void cmdNuevaEstacion(dlgTaller& f);
void cmdQuitaEstacion(dlgTaller& f);
void cmdNuevaSerie(dlgTaller& f);
void cmdQuitaSerie(dlgTaller& f);

/// Cells have settled: the rows that are whole become the series.
void grdMaximos_Asienta(TallerMaximos& m, dlgTaller& f);

/// The rows of the grid that have a year and a value, by year.
std::vector<study::Maximo> MaximosDe(const forms::Grilla& g);

/// The series by year, years without a maximum empty, those with few days of record ringed.
forms::Grafico GraficoDeMaximos(const study::SerieDeMaximos& s);

forms::Planilla PlanillaDeMaximos(const dlgTaller& f);

}  // namespace frequency
