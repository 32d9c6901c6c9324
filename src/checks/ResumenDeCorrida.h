// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "forms/Planilla.h"

// The summary of a run: a row per component in the order of computation, the basin in the last one.
namespace checks {

/// What a column of a row is worked out from.
struct DeQuien {
    const UltimaCorrida& u;
    std::string nombre{};  ///< of the component; empty: the basin
    int fila = 0;          ///< in the results; 0: the run has no row for it
    // --- of a single storm ---
    const ComponenteCorrido* comp = nullptr;  ///< null: the basin
    const RenglonBalance* balance = nullptr;
    double area = 0;                                  ///< of the UEHs upstream, its own included [km2]
    std::vector<const ComponenteCorrido*> salidas{};  ///< of the basin: its outfalls that have a row
    // --- of a series ---
    int tormenta = 0;  ///< that of its greatest peak, from 1; 0: none
};

/// A column: what it says, in what unit, with how many decimals, how it is worked out. No value is an empty
/// cell.
struct ColumnaDeResumen {
    std::string_view titulo;
    std::string_view unidad;
    std::string_view explica;  ///< one sentence in Spanish
    int decimales;
    bool conCero;  ///< what rounds to 0 is shown as 0; else with two digits, so that no 0 stands for a little
    std::optional<double> (*valor)(const DeQuien& d);
    bool (*roja)(const DeQuien& d, double valor) = nullptr;  ///< a value that a run mustn't have; null: none
};

/// Columns behind that of the name: of a single storm, of a series.
std::span<const ColumnaDeResumen> ColumnasDeResumen(bool serie);

/// A summary: its cells, and what stands behind each row.
struct Resumen {
    forms::Planilla planilla{};
    std::vector<std::string> nombres{};  ///< component of each row; of the basin empty
    /// Components whose hydrographs are those of a row: its own, of the basin the outfalls. None without a
    /// row in the results, nor in a series, which keeps no hydrographs.
    std::vector<std::vector<std::string>> hidrogramas{};
    std::vector<std::vector<bool>> rojas{};  ///< by row and column, as the cells
};

/// What stands behind each row of a run's summary. Good as long as the run.
std::vector<DeQuien> FilasDeResumen(const UltimaCorrida& u);

/// The summary of a run. A run that didn't go to its end has no rows; nor has a series without storms.
Resumen ResumenDe(const UltimaCorrida& u);

/// A number with so many decimals, never "-0"; ColumnaDeResumen tells of `conCero`.
std::string CifraDeResumen(double x, int decimales, bool conCero);

// --- what columns are worked out by ---

/// Volume [m3] of a hydrograph as the Slate has it: the 32-bit sum of Q·PasoQ·60 in the order of the steps,
/// of a Represa or a Lago from step 0, of any other component from step 1. Requires results and a row.
double VolumenDeResumen(const Corrido& c, const model::Matriz<float>& Q, const ComponenteCorrido& comp);

/// Area [km2] of the UEHs that drain through each component, itself included, in the order of Corrido's. By
/// the names that they drain into; a circle is gone through once.
std::vector<double> AreasDrenadas(const Corrido& c);

/// Greatest storage [m3] of a Represa or a Lago, as its method leaves it; nothing of any other row.
std::optional<double> AlmacenamientoMaximo(const DeQuien& d);

/// Up to where a Represa or a Lago is described [m]: the top of its table, or of its outflow where that is
/// lower. Nothing without a table.
std::optional<double> TopeDescrito(const EmbalseCorrido& e);

}  // namespace checks
