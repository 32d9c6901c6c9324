// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/AnalisisDeSensibilidad.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "study/Avance.h"

// Rules of the third step: by which method, of which measure, at what cost; the indices and what they mean.
namespace calibration {

inline constexpr auto RotulosAjusteSensibilidad = std::to_array<forms::FilaRotulo>({
    {"MarcoMetodo", "Método"},
    {"cmbMetodo",
     "&Método:", "De a uno es barato; Morris separa los que importan; Sobol reparte la varianza"},
    {"lblMetodo", "Qué hace el método"},
    {"txtTrayectorias", "Tra&yectorias:", "De Morris: caminos por la grilla, de 2 a 100000"},
    {"txtNiveles", "Ni&veles:", "De Morris: de cada parámetro; un número par, casi siempre 4"},
    {"cmbBase", "M&uestras:", "De Sobol: una potencia de dos; con más, intervalos más angostos"},
    {"txtSemilla", "&Semilla:", "La misma semilla da los mismos resultados"},
    {"MarcoMedida", "De qué"},
    {"cmbQue", "Me&dida:", "El número de cada corrida que se compara"},
    {"cmbPuntaje", "Pu&ntaje:", "Contra lo observado en el componente durante el evento"},
    {"lblPuntaje", "Fórmula del puntaje"},
    {"cmbComponente", "C&omponente:", "Del que se mide"},
    {"cmbDeEvento", "Lluvia de&l evento:", "De un estudio sin eventos, la tormenta en mano"},
    {"cmdCorrer", "Anali&zar", "Corre el proyecto las veces que hagan falta"},
    {"lblCosto", "Cuántas corridas, y cuánto tardan"},
    {"barAvance", "Avance de las corridas"},
    {"CancelButton", "&Cancelar", "Deja las corridas; lo que se ve queda como estaba (Esc)"},
    {"tblIndices", "Índices de sensibilidad"},
    {"lamSensibilidad", "Sensibilidad"},
    {"lblAvisos", "Lo que los índices dicen"},
});

struct AjusteSensibilidad {
    std::optional<AnalisisDeSensibilidad> analisis{};
    EnManoDeAjuste del{}, pedido{};  ///< what it was asked under; the same of what is under way
    std::string tema{};              ///< of the analysis on show
    bool corriendo = false;
    study::EstadoDeAvance avance{};
    std::vector<std::string> reparos{};  ///< why it couldn't be asked
    std::string lblEstado{}, lblAvisos{}, lblCosto{};
    std::string lblMetodo{}, lblPuntaje{};  ///< rich text
    double segundos = 0;                    ///< of a run
    std::string medidos{};                  ///< what those seconds are of

    std::string txtTrayectorias{}, txtNiveles{}, txtSemilla{};
    std::vector<std::string> metodos{}, bases{}, ques{}, puntajes{}, componentes{}, eventos{};
    int metodo = 0, base = 0, que = 0, puntaje = 0, componente = 0, evento = 0;
    forms::Cuadro tblIndices{};
    forms::Grafico Grafico{};
};

/// What is run, on a thread of its own.
struct PedidoDeSensibilidad {
    runs::Modelo modelo{};
    study::Ajuste ajuste{};
};

AjusteSensibilidad NuevaAjusteSensibilidad();
void Toma(AjusteSensibilidad& m, const dlgAjuste& f);
/// What the page lacks; empty: nothing.
std::string FaltaSensibilidad(const dlgAjuste& f);

// --- which controls there are, by the study ---
bool EsDeMorris(const dlgAjuste& f);
bool EsDeSobol(const dlgAjuste& f);
bool EsDePuntaje(const dlgAjuste& f);

// --- runs under way ---
/// What is asked; nothing where something keeps it from being asked, which is told on the page.
std::optional<PedidoDeSensibilidad> Empieza(AjusteSensibilidad& m, const dlgAjuste& f);
void Termina(AjusteSensibilidad& m, const dlgAjuste& f, AnalisisDeSensibilidad analisis);
/// Given up: what is on show stays.
void Cancela(AjusteSensibilidad& m, const dlgAjuste& f);

// --- what the user changes; leaving a field returns false where its text is refused, which has been told ---
bool txtNumero_AlSalir(AjusteSensibilidad& m, dlgAjuste& f, std::string_view control);
void cmbMetodo_Click(dlgAjuste& f, int cual);
void cmbBase_Click(dlgAjuste& f, int cual);
void cmbQue_Click(dlgAjuste& f, int cual);
void cmbPuntaje_Click(const AjusteSensibilidad& m, dlgAjuste& f, int cual);
void cmbComponente_Click(const AjusteSensibilidad& m, dlgAjuste& f, int cual);
void cmbDeEvento_Click(const AjusteSensibilidad& m, dlgAjuste& f, int cual);

forms::Planilla PlanillaDeSensibilidad(const AjusteSensibilidad& m);

}  // namespace calibration
