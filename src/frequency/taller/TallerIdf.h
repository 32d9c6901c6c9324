// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "frequency/idf/Curvas.h"
#include "frequency/taller/dlgTaller.h"
#include "model/SiroDeclarado.h"

// Rules of the fourth step: where curves of intensity come from, how, and what they say.
namespace frequency {

inline constexpr auto RotulosTallerIdf = std::to_array<forms::FilaRotulo>({
    {"MarcoOrigen", "De dónde"},
    {"cmbOrigen", "&Origen:",
     "De qué salen las curvas: máximos diarios desagregados, máximos de varias duraciones, coeficientes "
     "conocidos"},
    {"cmbDe", "Máximos d&e:", "Estación de la que son las curvas"},
    {"cmbDesagregacion", "&Desagregación:", "Cómo se reparte la lluvia de un día en duraciones menores"},
    {"lblDesagregacion", "Fórmula de la desagregación"},
    {"txtFactor", "Factor a 24 &h:", "De la lectura diaria a 24 horas; no se aplica dos veces"},
    {"grdRazones", "Razones",
     "Parte de la lámina de 24 horas que cae en cada duración; se puede pegar de una planilla"},
    {"MarcoCurvas", "Curvas"},
    {"cmbFamilia", "&Familia:", "Forma de las curvas"},
    {"lblFamilia", "Fórmula de las curvas"},
    {"cmbCriterio", "Se ajusta &por:", "Qué cuadrados se hacen mínimos"},
    {"grdLibre", "Coeficientes por recurrencia", "Una fila por recurrencia; se puede pegar de una planilla"},
    {"MarcoCoeficientes", "Coeficientes"},
    {"cmbRegion", "De la ficha de:", "Pone los coeficientes publicados de una estación del modelo DIT"},
    {"txtCoef0", "Primer coeficiente"},
    {"txtCoef1", "Segundo coeficiente"},
    {"txtCoef2", "Tercer coeficiente"},
    {"txtCoef3", "Cuarto coeficiente"},
    {"MarcoArea", "Por el área"},
    {"cmbReduccion", "&Reducción:", "De la lámina de un punto a la de la cuenca"},
    {"lblReduccion", "Fórmula de la reducción"},
    {"txtArea", "&Área:", "De la cuenca"},
    {"txtKA", "Factor &KA:", "Mayor que 0 y a lo sumo 1"},
    {"cmbVista", "&Tabla:", "Qué muestra la tabla"},
    {"chkLogaritmos", "E&jes logarítmicos"},
    {"tblCurvas", "Curvas de intensidad"},
    {"lamCurvas", "Curvas de intensidad"},
    {"lblNotas", "Lo que hay que saber de las curvas"},
});

/// A list and what is picked of it.
struct ListaDeTaller {
    std::vector<std::string> items{};
    int indice = 0;
    [[nodiscard]] std::size_t Lugar() const { return indice < 0 ? 0 : static_cast<std::size_t>(indice); }
};

/// What the table shows.
enum class VistaDeCurvas { Laminas, Intensidades, Residuos };

inline constexpr std::size_t CoeficientesDeIdf = idf::MaxCoeficientes;

struct TallerIdf {
    ListaDeTaller cmbOrigen{}, cmbDe{}, cmbDesagregacion{}, cmbFamilia{}, cmbCriterio{}, cmbRegion{};
    ListaDeTaller cmbReduccion{}, cmbVista{};
    std::string lblDesagregacion{}, lblFamilia{}, lblReduccion{};  ///< rich text
    std::string txtFactor{}, txtArea{}, txtKA{};
    std::array<std::string, CoeficientesDeIdf> txtCoef{};
    std::array<std::string, CoeficientesDeIdf> lblCoef{};  ///< captions; empty: there is no such field
    forms::Grilla grdRazones{}, grdLibre{};
    bool chkLogaritmos = true;
    forms::Cuadro tblCurvas{};
    std::string lblNotas{};
    forms::Grafico Grafico{};
    idf::Curvas curvas{};
};

TallerIdf NuevaTallerIdf();
void Toma(TallerIdf& m, const dlgTaller& f);

// --- which controls there are, by the study ---

bool PideDesagregacion(const dlgTaller& f);
bool PideMaximos(const dlgTaller& f);
bool PideRazones(const dlgTaller& f);
bool PideLibre(const dlgTaller& f);
bool PideRegion(const dlgTaller& f);
bool PideArea(const dlgTaller& f);
bool PideKA(const dlgTaller& f);

// --- events: each a change of the study ---

void cmbOrigen_Click(const TallerIdf& m, dlgTaller& f);
void cmbDe_Click(const TallerIdf& m, dlgTaller& f);
void cmbDesagregacion_Click(const TallerIdf& m, dlgTaller& f);
void cmbFamilia_Click(const TallerIdf& m, dlgTaller& f);
void cmbCriterio_Click(const TallerIdf& m, dlgTaller& f);
void cmbRegion_Click(const TallerIdf& m, dlgTaller& f);
void cmbReduccion_Click(const TallerIdf& m, dlgTaller& f);
/// Leaving a field. Returns false where its text is refused, which has been told; an empty one is a number
/// that nobody has told yet.
bool txtIdf_AlSalir(TallerIdf& m, dlgTaller& f, const model::Siro& s, std::string_view control);
void grdRazones_Asienta(TallerIdf& m, dlgTaller& f);
void grdLibre_Asienta(TallerIdf& m, dlgTaller& f);

// --- events that change only what is on show ---

void cmbVista_Click(TallerIdf& m, const dlgTaller& f);
void chkLogaritmos_Click(TallerIdf& m, const dlgTaller& f, bool tildada);

/// Fills words, table and chart from the curves; table and chart alone.
void MuestraCurvas(TallerIdf& m, const dlgTaller& f);
void MuestraVista(TallerIdf& m, const dlgTaller& f);

/// "Quelmar", or where the coefficients are from.
std::string TemaDeCurvas(const TallerIdf& m, const dlgTaller& f);
/// The table on show with its titles.
forms::Planilla PlanillaDeCurvas(const TallerIdf& m, const dlgTaller& f);

}  // namespace frequency
