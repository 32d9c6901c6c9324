// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "forms/Cuadro.h"
#include "forms/Rotulo.h"

// Rules of the list of a run's findings: what it says of the last run, its water balance, the time that its
// peaks ask for.
namespace checks {

inline constexpr std::string_view TituloDlgAvisos = "Avisos de la corrida";
inline constexpr std::string_view TituloBalance = "Balance de agua";

inline constexpr auto RotulosDlgAvisos = std::to_array<forms::FilaRotulo>({
    {"tabPaginas", "", "", "Avisos o balance de agua"},
    {"tblAvisos", TituloDlgAvisos, "Doble clic o Intro va al componente"},
    {"tblBalance", TituloBalance, "Doble clic o Intro va al componente"},
    {"cmdAgregarTiempo", "Agregar tiempo y correr de nuevo"},
});

/// How a row of the balance looks.
enum class Cierre : std::uint8_t {
    Cierra,       ///< the error is within the limit
    EnLaLectura,  ///< beyond it, but no more than the run's own numbers leave open
    NoCierra,     ///< beyond both
    SinFila,      ///< the run has no results of the component
};

struct dlgAvisos {
    std::shared_ptr<const UltimaCorrida> corrida{};  ///< the one on show
    std::string lblCorrida{};                        ///< its storm and time, or that there is none
    std::string lblAnterior{};      ///< "De una corrida anterior: ..."; empty where it still holds
    std::string lblCuenta{};        ///< how many findings of each severity
    forms::Cuadro tblAvisos{};      ///< a row per finding of the run
    forms::Cuadro tblBalance{};     ///< the basin, then a row per component of the run
    std::vector<Cierre> cierres{};  ///< by row of tblBalance
    std::string lblSinBalance{};    ///< why there is no balance; empty where there is one

    bool pideTiempo = false;         ///< a peak stands at the last step
    std::string cmdAgregarTiempo{};  ///< caption of the button
    std::string ayudaTiempo{};       ///< what it does, or why it can't
    float minutos = 0;               ///< the time that it sets [min]; 0: it is disabled
};

/// What the program knows of its last run.
struct EstadoDeCorrida {
    std::shared_ptr<const UltimaCorrida> ultima{};  ///< looked over; nothing before the first
    bool enCurso = false;                           ///< one is being looked over
    Sello ahora{};                                  ///< of the state in memory
};

/// Shows the last run. While one is being looked over the tables are empty, and the list says so.
void Muestra(dlgAvisos& f, const EstadoDeCorrida& estado);

/// A heading of one of the tables was clicked.
void AlPulsarEncabezado(forms::Cuadro& cuadro, int columna);

/// What a row is about; of the balance a component alone, without one the basin. Nothing where there is no
/// such row.
std::optional<Hallazgo> DeFilaDeAvisos(const dlgAvisos& f, std::size_t fila);
std::optional<Hallazgo> DeFilaDeBalance(const dlgAvisos& f, std::size_t fila);

/// Whether the results of the run on show hold a hydrograph of a component.
bool HayHidrograma(const dlgAvisos& f, const std::string& componente);

/// A copy of a table for a spreadsheet or a file, with the run that it is about in its titles.
forms::Planilla ParaArchivo(const dlgAvisos& f, const forms::Cuadro& cuadro, std::string_view titulo);

/// What the key in the status bar says of a run: "2 errores, 3 avisos", or "Sin avisos"; notes where there
/// are any; whether the state in memory has changed since.
std::string TextoDeClave(const EstadoDeCorrida& estado);
/// The worst severity of it; nothing where it has no finding, or isn't known yet.
std::optional<Gravedad> PeorGravedad(const EstadoDeCorrida& estado);
/// Hint of the key: what a click does, and of which run it speaks.
std::string AyudaDeClave(const EstadoDeCorrida& estado);

}  // namespace checks
