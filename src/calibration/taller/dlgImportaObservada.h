// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/ImportaObservada.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// Rules of the form that shows what observed values a text has before the observation takes them.
namespace calibration {

inline constexpr std::string_view TituloDlgImportaObservada = "Importar valores observados";

inline constexpr auto RotulosDlgImportaObservada = std::to_array<forms::FilaRotulo>({
    {"lblArchivo", "De:"},
    {"cmbColumna", "&Columna:", "La que tiene los valores"},
    {"cmbUnidad", "&Unidad:", "Se llevan a m3/s o a m"},
    {"cmbTiempo", "&Tiempo en:", "Lo que cuenta la primera columna desde el inicio de la tormenta"},
    {"txtDesde", "&Desde:", "Primer minuto que se toma; vacío: todos"},
    {"txtHasta", "&Hasta:", "Último minuto que se toma; vacío: todos"},
    {"lblTiempo", "Tiempo:"},
    {"tblValores", "Valores que tomaría la observación"},
    {"tblDudosos", "Renglones dudosos", "Qué tienen, y qué se hace con ellos"},
    {"lamImportada", "Valores"},
    {"lblAvisos", "Lo que el texto tiene de particular"},
    {"OKButton", "&Importar", "La observación en mano toma estos valores; se puede deshacer"},
    {"CancelButton", "Cancelar"},
});

struct dlgImportaObservada {
    bool abierta = false, aceptada = false;
    std::string bytes{};
    std::string lblArchivo{}, lblTiempo{};
    PedidoDeObservada pedido{};
    std::vector<std::string> columnas{}, unidades{}, tiempos{"minutos", "horas"};
    int columna = 0, unidad = 0, tiempo = 0;
    std::string txtDesde{}, txtHasta{};
    ImportacionDeObservada importacion{};
    forms::Cuadro tblValores{}, tblDudosos{};
    std::string lblAvisos{};
    forms::Grafico Grafico{};
};

/// Lets the user choose a file. Returns false where the choice was cancelled, or the file can't be read,
/// which is told.
bool AbreArchivo(dlgImportaObservada& f, const dlgAjuste& ajuste, const model::Siro& s);
/// Takes a text that was copied.
void AbreTexto(dlgImportaObservada& f, const dlgAjuste& ajuste, std::string texto);

void cmbColumna_Click(dlgImportaObservada& f, int cual);
void cmbUnidad_Click(dlgImportaObservada& f, int cual);
void cmbTiempo_Click(dlgImportaObservada& f, int cual);
/// Leaving one of the times. Returns false where its text is refused, which has been told.
bool txtTiempo_AlSalir(dlgImportaObservada& f, const model::Siro& s);

/// The observation in hand takes the values, and the event the moment that they count from where it has none.
void OKButton(dlgImportaObservada& f, dlgAjuste& ajuste);
void CancelButton(dlgImportaObservada& f);

}  // namespace calibration
