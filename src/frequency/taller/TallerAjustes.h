// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Rotulo.h"
#include "frequency/Analisis.h"
#include "frequency/taller/dlgTaller.h"
#include "model/SiroDeclarado.h"
#include "study/Avance.h"

// Rules of the third step: the laws fitted to the series in hand, how far each can be trusted, the one that
// the user takes.
namespace frequency {

inline constexpr auto RotulosTallerAjustes = std::to_array<forms::FilaRotulo>({
    {"cmbMetodo", "Mé&todo:", "Con qué se estiman los parámetros de las leyes"},
    {"txtSemilla", "Se&milla:", "La misma semilla da las mismas bandas y los mismos p"},
    {"txtMuestras", "M&uestras:", "Del remuestreo que da bandas y p; 0: sin él"},
    {"cmbPosicion",
     "&Posición:", "La a de (i - a)/(n + 1 - 2a), de los puntos en los papeles de probabilidad"},
    {"cmbBajos", "&Valores bajos:", "Cómo los toma la log-Pearson III por momentos"},
    {"txtAsimetria", "As&imetría regional:",
     "De los logaritmos, de -3 a 3, para la log-Pearson III por momentos; vacía: la de la muestra sola"},
    {"txtEcm",
     "EC&M:", "Error cuadrático medio de la asimetría regional; 0.302 el del mapa del Bulletin 17B"},
    {"cmbEnMano", "&Ley en mano:", "De ella son las bandas de la tabla y de los gráficos"},
    {"cmdCalcular", "Ca&lcular bandas", "Sortea las muestras de cada ley, las ajusta y da bandas y p"},
    {"barAvance", "Avance del remuestreo"},
    {"CancelButton", "&Cancelar", "Deja el remuestreo; los ajustes quedan sin bandas (Esc)"},
    {"fichas", "Tablas"},
    {"tblCuantiles", "Láminas por recurrencia [mm]"},
    {"tblBondad", "Bondad del ajuste"},
    {"tblParametros", "Parámetros de las leyes"},
    {"cmbGrafico", "&Gráfico:"},
    {"cmdLeyes", "Le&yes", "Cuáles se ajustan; con menos, las bandas tardan menos"},
    {"chkSola", "Sólo la ley en ma&no"},
    {"lamAjustes", "Ajustes"},
    {"lblRecomendacion", "Recomendación:"},
    {"cmbElegida", "Ley &elegida:", "La que siguen los pasos 4 y 5; queda con el estudio"},
    {"txtMotivo", "M&otivo:", "Por qué se eligió, en sus palabras; queda con el estudio"},
    {"cmdRecomendada", "Tomar la &recomendada", "Elige la ley recomendada y anota la razón"},
});

/// Tables and charts to choose from.
inline constexpr std::array<std::string_view, 3> FichasDeAjustes{"Láminas", "Bondad", "Parámetros"};
inline constexpr std::array<std::string_view, 3> GraficosDeAjustes{"Papel de Gumbel", "Papel log-normal",
                                                                   "Cocientes de momentos L"};

/// What an analysis is made of: another one is asked for where it differs.
struct PedidoDeAjustes {
    std::vector<study::Maximo> maximos{};
    Metodo metodo = Metodo::MomentosL;
    std::vector<const Ley*> leyes{};
    std::uint64_t semilla = 1;
    int muestras = 0;
    std::string bajos{};  ///< as the study keeps them
    std::optional<double> asimetria{};
    double ecmAsimetria = 0;
    bool operator==(const PedidoDeAjustes&) const = default;
};

enum class Estado : std::uint8_t {
    Nada,           ///< nothing has been fitted
    Ajustando,      ///< under way; what is on show is of what was asked for before
    SinBandas,      ///< the fits are there, bands and p aren't, and nobody works at them
    Remuestreando,  ///< they are under way
    Completo,
};

struct TallerAjustes {
    PedidoDeAjustes pedido{};  ///< of what is under way, or was made last
    std::optional<Analisis> analisis{};
    std::string temaDelAnalisis{};
    Estado estado = Estado::Nada;
    study::EstadoDeAvance avance{};  ///< of samples, of all laws
    std::string lblEstado{};

    int metodo = static_cast<int>(Metodo::MomentosL);
    std::string txtSemilla{}, txtMuestras{}, txtMotivo{}, txtAsimetria{}, txtEcm{};
    int posicion = 0, bajos = 0;
    std::vector<std::string> metodos{}, posiciones{}, tratos{}, leyes{}, elegibles{}, graficos{};
    std::vector<bool> ajustadas{};  ///< by law
    int enMano = 0;                 ///< law, from 0
    int elegida = 0;                ///< 0: none
    int grafico = 0, ficha = 0;
    bool chkSola = false;
    std::string lblRecomendacion{}, lblElegida{};
    forms::Cuadro tblCuantiles{}, tblBondad{}, tblParametros{};
    forms::Grafico Grafico{};
};

TallerAjustes NuevaTallerAjustes();

/// Fields and choice from the study. Returns whether another analysis is to be made.
bool Toma(TallerAjustes& m, const dlgTaller& f);

// --- an analysis under way ---
void Empieza(TallerAjustes& m, const dlgTaller& f);
/// The fits are there, bands still to come where any were asked for.
void TomaAjustes(TallerAjustes& m, const dlgTaller& f, Analisis analisis);
void TomaCompleto(TallerAjustes& m, const dlgTaller& f, Analisis analisis);
/// Given up, by the user or because another one begins: the fits stay without bands.
void Cancela(TallerAjustes& m);

// --- what the user changes ---
void cmbMetodo_Click(TallerAjustes& m, int cual);
/// A law is to be fitted or not; one at least is.
void cmdLeyes_Click(TallerAjustes& m, std::size_t ley, bool tildada);
bool txtNumero_AlSalir(TallerAjustes& m, dlgTaller& f, const model::Siro& s, std::string_view control);
void cmbPosicion_Click(dlgTaller& f, int cual);
void cmbBajos_Click(dlgTaller& f, int cual);
/// Whether low values and the region's skew have a say.
bool TrataBajos(const TallerAjustes& m);
void cmbEnMano_Click(TallerAjustes& m, const dlgTaller& f, int cual);
void cmbGrafico_Click(TallerAjustes& m, const dlgTaller& f, int cual);
void chkSola_Click(TallerAjustes& m, const dlgTaller& f, bool tildada);
void cmbElegida_Click(const TallerAjustes& m, dlgTaller& f, int cual);
bool txtMotivo_AlSalir(const TallerAjustes& m, dlgTaller& f);
void cmdRecomendada(const TallerAjustes& m, dlgTaller& f);

/// The table in sight.
forms::Cuadro& EnFicha(TallerAjustes& m);

}  // namespace frequency
