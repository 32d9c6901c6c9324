// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Calibra.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "study/Avance.h"

// Rules of the fourth step: the search of the set of values that comes closest to what was observed.
namespace calibration {

inline constexpr auto RotulosAjusteCalibracion = std::to_array<forms::FilaRotulo>({
    {"MarcoBusqueda", "Cómo se busca"},
    {"cmbMetodo", "Méto&do:", "Con qué se busca el mejor conjunto de valores"},
    {"cmbPuntaje", "Punta&je:", "De los eventos que calibran, por sus pesos y los de sus observaciones"},
    {"txtCorridas", "C&orridas:", "A lo sumo; la búsqueda puede terminar antes"},
    {"txtComplejos", "Comp&lejos:", "De SCE-UA: cuantos más, más segura y más lenta"},
    {"txtSemilla", "Se&milla:", "La misma semilla da los mismos resultados"},
    {"txtCercania",
     "Cerca&nía:", "Cuánto puede faltarle a un conjunto para contar como casi igual al mejor, en el puntaje"},
    {"cmdBuscar", "B&uscar", "Corre la búsqueda; la red no cambia"},
    {"barAvance", "Avance de la búsqueda"},
    {"CancelButton", "&Cancelar", "Termina la búsqueda y se queda con lo mejor hasta ahí (Esc)"},
    {"cmdAplicar", "&Aplicar", "Pone el mejor conjunto en la red, en el editor; se puede deshacer allí"},
    {"cmdGuardar", "&Guardar corridas...", "Todas las corridas de la búsqueda, en CSV"},
    {"cmbGrafico", "Grá&fico:"},
    {"tblParametros", "Parámetros hallados"},
    {"tblPuntajes", "Puntaje de cada evento"},
    {"lamCalibracion", "Calibración"},
    {"lblAvisos", "Lo que la búsqueda dice"},
});

inline constexpr std::array<std::string_view, 2> GraficosDeCalibracion{"Puntaje por corrida",
                                                                       "Mejor hidrograma"};
inline constexpr std::array<std::string_view, 2> FichasDeCalibracion{"Parámetros", "Eventos"};

/// What a search hands over: how far it has come, and at last what it found.
struct EntregaDeCalibracion {
    VistaDeCalibracion vista{};
    std::optional<Calibrado> fin{};
};

struct AjusteCalibracion {
    std::shared_ptr<const PedidoDeCalibracion> pedido{};  ///< of what is under way, or on show
    VistaDeCalibracion vista{};
    std::optional<Calibrado> calibrado{};
    std::vector<study::Parametro> parametros{};  ///< of the study, when it was asked
    std::vector<study::Evento> eventos{};
    int cargas = 0;
    int aplicada = -1;  ///< the loading of the project that the best set was put into
    std::string tema{};
    bool corriendo = false;
    study::EstadoDeAvance avance{};
    std::vector<std::string> reparos{};  ///< why it couldn't be asked
    std::string lblEstado{}, lblAvisos{};

    std::string txtCorridas{}, txtComplejos{}, txtSemilla{}, txtCercania{};
    std::vector<std::string> metodos{}, puntajes{}, graficos{};
    int metodo = 0, puntaje = 0, grafico = 0, ficha = 0;
    forms::Cuadro tblParametros{}, tblPuntajes{};
    forms::Grafico Grafico{};
};

AjusteCalibracion NuevaAjusteCalibracion();
void Toma(AjusteCalibracion& m, const dlgAjuste& f);
/// What the page lacks; empty: nothing.
std::string FaltaCalibracion(const dlgAjuste& f);

// --- a search under way ---
/// What is asked; null where something keeps it from being asked, which is told on the page.
std::shared_ptr<const PedidoDeCalibracion> Empieza(AjusteCalibracion& m, const dlgAjuste& f);
/// A better set.
void Mira(AjusteCalibracion& m, const dlgAjuste& f, VistaDeCalibracion vista);
/// Its end: the sets near the best one are kept with the study, as one step that undoing takes back.
void Termina(AjusteCalibracion& m, dlgAjuste& f, Calibrado calibrado, std::string_view fecha);
/// Given up before there was anything.
void Cancela(AjusteCalibracion& m, const dlgAjuste& f);

// --- what the user changes; leaving a field returns false where its text is refused, which has been told ---
bool txtNumero_AlSalir(AjusteCalibracion& m, dlgAjuste& f, std::string_view control);
void cmbMetodoDeBusqueda_Click(dlgAjuste& f, int cual);
void cmbPuntajeDeBusqueda_Click(dlgAjuste& f, int cual);
void cmbGrafico_Click(AjusteCalibracion& m, const dlgAjuste& f, int cual);
/// Whether the number of complexes has a say.
bool HayComplejos(const AjusteCalibracion& m);

/// Whether the best set can be put into the network: there is one, of the network as it is now.
bool SePuedeAplicar(const AjusteCalibracion& m, const dlgAjuste& f);
void cmdAplicar(AjusteCalibracion& m, dlgAjuste& f);

/// Every run of the search.
forms::Planilla PlanillaDeCorridas(const AjusteCalibracion& m);
/// The table in sight.
forms::Planilla PlanillaDeCalibracion(const AjusteCalibracion& m);

}  // namespace calibration
