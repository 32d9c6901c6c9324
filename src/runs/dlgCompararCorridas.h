// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "forms/Cuadro.h"
#include "forms/Grafico.h"
#include "forms/Lista.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "runs/Comparacion.h"
#include "runs/CorreAparte.h"
#include "study/Avance.h"

// Rules of the window that puts runs and projects side by side: its sides, what each of its pages shows.
namespace runs {

inline constexpr std::string_view TituloDlgCompararCorridas = "Comparar corridas o proyectos";

/// Its pages, in their order.
inline constexpr auto PaginasDeComparacion =
    std::to_array<std::string_view>({"Parámetros que difieren", "Resultados", "Hidrogramas", "Series"});

inline constexpr auto RotulosDlgCompararCorridas = std::to_array<forms::FilaRotulo>({
    {"cmbOrigen", "Lado &nuevo:", "La última corrida, otro proyecto o una corrida guardada de este"},
    {"cmdAgregar", "&Agregar", "Agrega ese lado a los que se comparan"},
    {"cmbTormenta", "&Tormenta:", "Con la que se corren los proyectos; las corridas guardadas traen la suya"},
    {"lstLados", "&Lados:", "El primero es aquel con el que se comparan los demás", "Lados que se comparan"},
    {"cmdSubir", "&Subir", "Pone el lado elegido antes"},
    {"cmdQuitar", "&Quitar", "Deja de comparar el lado elegido"},
    {"barAvance", "Avance de la corrida"},
    {"CancelButton", "Cance&lar", "Deja de correr lo que falta (Esc)"},
    {"tblParametros", "Parámetros que difieren"},
    {"tblResultados", "Resultados"},
    {"chkDistintas", "Sólo lo que &difiere", "Deja fuera los resultados iguales en todos los lados"},
    {"lstCompos", "C&omponente:", "El de los hidrogramas y las series", "Componente"},
    {"lstComposSerie", "", "El de los hidrogramas y las series", "Componente"},
    {"chkEntra", "Caudal que &entra", "Muestra el caudal que entra, no el que sale; las UEHs no tienen"},
    {"cmdHsMin", "&Ver t [Horas] / Ver t [Minutos]"},
    {"cmbRecurrencia", "&Recurrencia:", "La de las curvas del gráfico"},
    {"tblSerie", "Caudales máximos por tormenta"},
    {"cmdXlsx", "Guardar como &XLSX...", "Guarda todas las tablas en un libro, una hoja cada una"},
    {"cmdImprimir", "&Imprimir", "Imprime la tabla o el gráfico a la vista"},
    {"OKButton", "&Cerrar"},
});

/// Where a side comes from.
struct Origen {
    enum class Clase { Ultima, Proyecto, Guardada };
    Clase clase = Clase::Ultima;
    std::string archivo{};  ///< path of the configuration, file of the ledger
    std::string nombre{};   ///< of the column
    bool operator==(const Origen&) const = default;
};

/// A side as it was chosen.
struct LadoElegido {
    Origen origen{};
    int tormenta = 0;                                        ///< item of cmbTormenta, of a project
    std::shared_ptr<const checks::UltimaCorrida> corrida{};  ///< none: it has still to be run
    std::vector<std::string> reparos{};                      ///< what there is to be said of its run
    [[nodiscard]] bool Falta() const { return corrida == nullptr; }
};

struct dlgCompararCorridas {
    bool abierta = false;
    std::vector<Origen> origenes{};  ///< by item of cmbOrigen
    forms::Lista cmbOrigen{};
    forms::Lista cmbTormenta{};  ///< the storm in hand, recorded ones
    std::vector<LadoElegido> lados{};
    forms::Lista lstLados{};
    study::EstadoDeAvance avance{};
    std::string lblQueHacer{};  ///< what is missing, or what a run had to say

    Lados corridos{};  ///< those of `lados`, in their order
    Comparacion comparacion{};
    bool chkDistintas = true;
    forms::Cuadro tblParametros{}, tblResultados{}, tblSerie{};
    forms::Lista lstCompos{};
    bool chkEntra = false, minutos = false;
    forms::Lista cmbRecurrencia{};
    forms::Grafico Hidrogramas{}, Abaco{};
    std::string tema{};                       ///< component and storm
    std::string lblHidrograma{}, lblSerie{};  ///< why there is no chart
};

/// Opening: where sides may come from, of what the project in hand keeps too; the storms for projects. Sides
/// of an earlier opening stay. With none the last run is the first, if there is one.
void Abre(dlgCompararCorridas& f, const model::Siro& s,
          const std::shared_ptr<const checks::UltimaCorrida>& ultima);

/// The side of cmbOrigen; of another project with its configuration. Returns false where it is there already.
bool Agrega(dlgCompararCorridas& f, Origen origen,
            const std::shared_ptr<const checks::UltimaCorrida>& ultima = nullptr);
void cmdSubir(dlgCompararCorridas& f);
void cmdQuitar(dlgCompararCorridas& f);

/// The next side that has to be run; none: its number is that of the sides.
std::size_t PorCorrer(const dlgCompararCorridas& f);
/// What is to be done for it, on any thread.
using TrabajoDeLado = std::function<CorridaAparte(const study::Avance& avance)>;
TrabajoDeLado TrabajoDe(const dlgCompararCorridas& f, std::size_t lado, const model::Siro& s);
/// Its run is there; one that couldn't be run is taken out and told.
void Toma(dlgCompararCorridas& f, std::size_t lado, CorridaAparte hecha);
/// Those that have still to be run are taken out.
void Cancela(dlgCompararCorridas& f);

void chkDistintas_Click(dlgCompararCorridas& f, bool marcada);
void lstCompos_Click(dlgCompararCorridas& f);
void chkEntra_Click(dlgCompararCorridas& f, bool marcada);
void cmdHsMin(dlgCompararCorridas& f);
void cmbRecurrencia_Click(dlgCompararCorridas& f);

/// Tables as they are on show, with what they are of above them.
forms::Planilla ParaGuardar(const dlgCompararCorridas& f, forms::Planilla planilla);
/// Each page's table, by the order of the pages; a page that has nothing to show has none.
std::vector<std::pair<std::string, forms::Planilla>> Hojas(const dlgCompararCorridas& f);

}  // namespace runs
