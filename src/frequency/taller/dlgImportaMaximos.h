// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "frequency/ImportaMaximos.h"
#include "frequency/taller/dlgTaller.h"
#include "model/SiroDeclarado.h"

// Rules of the form that shows what maxima a file has before the station takes them.
namespace frequency {

inline constexpr std::string_view TituloDlgImportaMaximos = "Importar máximos anuales";

inline constexpr auto RotulosDlgImportaMaximos = std::to_array<forms::FilaRotulo>({
    {"lblArchivo", "Archivo:"},
    {"cmbClase",
     "&Contiene:", "Un registro tiene una lectura por renglón, con su fecha; un archivo de máximos, un año"},
    {"cmbMes",
     "El año em&pieza en:", "El año que no empieza en enero lleva el número de aquél en que empieza"},
    {"txtDuraciones",
     "&Duraciones:", "En minutos, separadas por comas; vacío: las usuales que el registro permite"},
    {"barAvance", "Avance de la lectura"},
    {"tblSeries", "Series que tomaría la estación", "Elija una para ver sus máximos"},
    {"lblAvisos", "Lo que el archivo tiene de dudoso"},
    {"lamImportados", "Máximos anuales"},
    {"OKButton", "&Importar", "La estación en mano toma estas series; se puede deshacer"},
    {"CancelButton", "Cancelar"},
});

enum class ClaseDeArchivo : std::uint8_t { Registro, Maximos };

struct dlgImportaMaximos {
    bool abierta = false, aceptada = false;
    bool leyendo = false;
    std::string bytes{};
    std::string lblArchivo{};
    std::vector<std::string> clases{"Un registro de lluvia", "Los máximos, uno por año"};
    int clase = 0;
    std::vector<std::string> meses{};
    int mes = 0;                  ///< from 0
    std::string txtDuraciones{};  ///< of maxima by year the one that they have
    std::string barAvance{};
    Importacion importacion{};
    forms::Cuadro tblSeries{};
    std::size_t serie = 0;  ///< in hand
    std::string lblAvisos{};
    forms::Grafico Grafico{};
};

/// Lets the user choose a file and tells what it seems to be. Returns false where the choice was cancelled,
/// or the file can't be read, which is told.
bool Abre(dlgImportaMaximos& f, const model::Siro& s);

/// What is to be read by the fields as they stand.
PedidoDeImportacion PedidoDe(const dlgImportaMaximos& f);
/// The series of the file, whatever it holds; nothing where `avance` stops it.
std::optional<Importacion> Lee(const std::string& bytes, ClaseDeArchivo clase,
                               const PedidoDeImportacion& pedido, const Avance& avance);

void Empieza(dlgImportaMaximos& f);
void Avanza(dlgImportaMaximos& f, std::size_t hechos, std::size_t total);
void Termina(dlgImportaMaximos& f, Importacion importacion);
/// Leaving the durations. Returns false where their text is refused, which has been told.
bool txtDuraciones_AlSalir(dlgImportaMaximos& f, const model::Siro& s);
void tblSeries_Mueve(dlgImportaMaximos& f, std::size_t fila);

/// The station in hand takes the series, each in place of one of its duration.
void OKButton(dlgImportaMaximos& f, dlgTaller& taller);
void CancelButton(dlgImportaMaximos& f);

}  // namespace frequency
