// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "runs/Campos.h"

// Rules of the second step: the quantities that move, how far, and what they are drawn from.
namespace calibration {

inline constexpr auto RotulosAjusteParametros = std::to_array<forms::FilaRotulo>({
    {"MarcoParametro", "Parámetro en mano"},
    {"cmbComponentes", "&Componentes:",
     "Un nombre, o un patrón como u-* que mueve juntos a todos los que nombra; tormenta: la lluvia"},
    {"cmbCampo", "Ca&mpo:", "El dato de esos componentes que se mueve"},
    {"cmbModo", "Mo&do:", "Valor: toma el lugar del que tiene; factor: lo multiplica; suma: se le agrega"},
    {"txtMinimo", "Mí&nimo:", "Desde dónde se busca y se sortea"},
    {"txtMaximo", "Má&ximo:", "Hasta dónde se busca y se sortea"},
    {"chkLogaritmica", "Escala &logarítmica", "Se busca y se sortea por su logaritmo"},
    {"chkActivo", "Part&icipa", "Los que no participan quedan como la red los tiene"},
    {"lblActual", "Ahora:"},
    {"MarcoSorteo", "De dónde se sortea"},
    {"cmbDistribucion", "Dist&ribución:", "De sus valores en la incertidumbre; la búsqueda no la mira"},
    {"txtCentro", "Centr&o:", "Moda, media o mediana; vacío: la mitad del rango"},
    {"txtDispersion", "D&esvío:", "Vacío: la sexta parte del rango"},
    {"txtValores", "&Valores:", "Con su peso detrás de dos puntos: 10:1; 20:3; 30"},
    {"cmdProponer", "&Proponer", "Agrega los parámetros que suelen moverse en una red como ésta"},
    {"cmdAgregar", "&Agregar", "Un parámetro más"},
    {"cmdDuplicar", "D&uplicar", "Una copia del parámetro en mano"},
    {"cmdQuitar", "&Quitar", "Quita el parámetro en mano; se puede deshacer"},
    {"cmdSubir", "&Subir", "El parámetro en mano pasa delante del anterior"},
    {"cmdBajar", "&Bajar", "El parámetro en mano pasa detrás del siguiente"},
    {"cmdPegar", "Pe&gar", "Agrega los que hay en el portapapeles, copiados de esta tabla o de una planilla"},
    {"tblParametros", "Parámetros que se mueven"},
    {"lamParametros", "Distribución"},
    {"lblAvisos", "Avisos de los parámetros"},
});

struct AjusteParametros {
    int enMano = 0;  ///< from 0
    forms::Cuadro tblParametros{};
    std::string txtComponentes{}, txtMinimo{}, txtMaximo{}, txtCentro{}, txtDispersion{}, txtValores{};
    std::vector<std::string> componentes{}, campos{}, modos{}, distribuciones{};
    std::vector<const runs::Campo*> losCampos{};  ///< of `campos`
    int campo = -1, modo = 0, distribucion = 0;
    bool chkLogaritmica = false, chkActivo = false;
    std::string lblUnidad{}, lblActual{}, lblAvisos{}, lblCentro{}, lblDispersion{};
    bool conCentro = false, conDispersion = false, conValores = false;
    forms::Grafico Grafico{};
};

AjusteParametros NuevaAjusteParametros();
void Toma(AjusteParametros& m, const dlgAjuste& f);
/// The parameter in hand; none: null.
const study::Parametro* ParametroEnMano(const AjusteParametros& m, const dlgAjuste& f);

// --- the list ---
void tblParametros_Mueve(AjusteParametros& m, const dlgAjuste& f, std::size_t fila);
void cmdProponer(AjusteParametros& m, dlgAjuste& f);
void cmdAgregar(AjusteParametros& m, dlgAjuste& f);
void cmdDuplicar(AjusteParametros& m, dlgAjuste& f);
void cmdQuitar(AjusteParametros& m, dlgAjuste& f);
/// One place up (-1) or down (1).
void cmdMover(AjusteParametros& m, dlgAjuste& f, int hacia);
/// Adds the parameters of a block with the table's columns; what it can't take is told, and nothing is
/// added.
void cmdPegar(AjusteParametros& m, dlgAjuste& f, std::string_view bloque);

// --- the one in hand. Leaving a field returns false where its text is refused, which has been told ---
bool txtComponentes_AlSalir(AjusteParametros& m, dlgAjuste& f);
bool txtNumero_AlSalir(AjusteParametros& m, dlgAjuste& f, std::string_view control);
bool txtValores_AlSalir(AjusteParametros& m, dlgAjuste& f);
void cmbCampo_Click(const AjusteParametros& m, dlgAjuste& f, int cual);
void cmbModo_Click(const AjusteParametros& m, dlgAjuste& f, int cual);
void cmbDistribucion_Click(const AjusteParametros& m, dlgAjuste& f, int cual);
void chkLogaritmica_Click(const AjusteParametros& m, dlgAjuste& f, bool tildada);
void chkActivo_Click(const AjusteParametros& m, dlgAjuste& f, bool tildada);

forms::Planilla PlanillaDeParametros(const dlgAjuste& f);

// --- what is proposed ---
/// The range and the scale that suit a parameter by what the network has and the editor admits.
void ProponRango(study::Parametro& p, const dlgAjuste& f);
/// What is usually moved in a network: of the UEHs Kostiakov's a and b, Z, the velocity of the slope and,
/// where there is base flow, Q0 and K. Length and velocity act as their quotient: only one of them is there.
std::vector<study::Parametro> Propuestos(const dlgAjuste& f);
/// A number with the three digits that count, as a person would write it.
double Redondo(double x);
/// "10:1; 20:3; 30" as values with their weights, 1 where none is told; nothing where the text is none.
std::optional<std::vector<study::ValorPosible>> ValoresDe(std::string_view texto);

}  // namespace calibration
