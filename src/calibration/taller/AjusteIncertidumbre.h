// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Incertidumbre.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "study/Avance.h"

// Rules of the fifth step: members drawn, run and reduced; the band of a hydrograph, the distribution of a
// measure, how often a dam overtops.
namespace calibration {

inline constexpr auto RotulosAjusteIncertidumbre = std::to_array<forms::FilaRotulo>({
    {"MarcoSorteo", "Qué se sortea"},
    {"txtMiembros", "&Juegos:", "De valores de los parámetros; cada uno es una corrida, de 10 a 1000000"},
    {"cmbMuestreo",
     "M&uestreo:", "El hipercubo latino reparte los juegos por todo el rango de cada parámetro"},
    {"txtSemilla", "Se&milla:", "La misma semilla da los mismos juegos y los mismos resultados"},
    {"MarcoMirada", "Qué se mira"},
    {"cmbDeEvento", "Lluvia de&l evento:", "De un estudio sin eventos, la tormenta en mano"},
    {"cmbComponente", "C&omponente:", "Del que se guardan hidrograma, pico, tiempo, volumen y nivel"},
    {"MarcoGlue", "Con lo observado"},
    {"chkGlue", "Pe&sar por el ajuste (GLUE)",
     "Cada juego pesa por cuánto su puntaje supera el umbral; los que no llegan no cuentan"},
    {"cmbPuntaje", "Pu&ntaje:", "De los eventos que calibran, por sus pesos"},
    {"txtUmbral", "Um&bral:", "Puntaje desde el que un juego cuenta"},
    {"cmdCorrer", "Correr jue&gos", "Sortea los juegos, los corre y los resume"},
    {"barAvance", "Avance de las corridas"},
    {"CancelButton", "&Cancelar", "Deja las corridas; lo que se ve queda como estaba (Esc)"},
    {"cmbGrafico", "Grá&fico:"},
    {"cmbMedida", "Me&dida:", "De la que el gráfico muestra cómo se reparte"},
    {"tblCuantiles", "Cuantiles de los juegos"},
    {"lamIncertidumbre", "Incertidumbre"},
    {"lblAvisos", "Lo que los juegos dicen"},
});

inline constexpr std::array<std::string_view, 2> GraficosDeIncertidumbre{"Banda del hidrograma",
                                                                         "Distribución"};

struct AjusteIncertidumbre {
    std::optional<Conjunto> conjunto{};
    EnManoDeAjuste del{}, pedido{};  ///< what it was asked under; the same of what is under way
    std::string temaDelConjunto{};
    bool corriendo = false;
    study::EstadoDeAvance avance{};
    std::vector<std::string> reparos{};  ///< why it couldn't be asked
    std::string lblEstado{}, lblAvisos{};

    std::string txtMiembros{}, txtSemilla{}, txtUmbral{};
    bool chkGlue = false;
    std::vector<std::string> muestreos{}, eventos{}, componentes{}, puntajes{}, graficos{}, medidas{};
    int muestreo = 0, evento = 0, componente = 0, puntaje = 0, grafico = 0, medida = 0;
    forms::Cuadro tblCuantiles{};
    forms::Grafico Grafico{};
};

AjusteIncertidumbre NuevaAjusteIncertidumbre();
void Toma(AjusteIncertidumbre& m, const dlgAjuste& f);
/// What the page lacks; empty: nothing.
std::string FaltaIncertidumbre(const dlgAjuste& f);

// --- members under way ---
/// What is asked; nothing where something keeps it from being asked, which is told on the page.
std::optional<PedidoDeIncertidumbre> Empieza(AjusteIncertidumbre& m, const dlgAjuste& f);
void Termina(AjusteIncertidumbre& m, const dlgAjuste& f, Conjunto conjunto);
/// Given up: what is on show stays.
void Cancela(AjusteIncertidumbre& m, const dlgAjuste& f);

// --- what the user changes; leaving a field returns false where its text is refused, which has been told ---
bool txtNumero_AlSalir(AjusteIncertidumbre& m, dlgAjuste& f, std::string_view control);
void cmbMuestreo_Click(dlgAjuste& f, int cual);
void cmbDeEvento_Click(const AjusteIncertidumbre& m, dlgAjuste& f, int cual);
void cmbComponente_Click(const AjusteIncertidumbre& m, dlgAjuste& f, int cual);
void cmbPuntaje_Click(dlgAjuste& f, int cual);
void chkGlue_Click(dlgAjuste& f, bool tildada);
void cmbMedida_Click(dlgAjuste& f, int cual);
void cmbGrafico_Click(AjusteIncertidumbre& m, int cual);

forms::Planilla PlanillaDeIncertidumbre(const AjusteIncertidumbre& m);

}  // namespace calibration
