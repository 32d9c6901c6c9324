// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/ResumenDeCorrida.h"
#include "checks/UltimaCorrida.h"
#include "report/Cifras.h"
#include "report/Datos.h"
#include "report/Estudiado.h"

namespace report {

/// What the marks of a template are worked out from: data and choice, with what several of them need worked
/// out once. Views of both, which stay as they are meanwhile.
class Fuente {
  public:
    Fuente(const Datos& datos, const Eleccion& eleccion);
    Fuente(const Fuente&) = delete;
    Fuente& operator=(const Fuente&) = delete;

    const Datos& d;
    const Eleccion& e;
    const Cifras n;
    const Estudiado estudio;

    /// The run of the storm, where it went to its end; else null.
    const checks::UltimaCorrida* una = nullptr;
    /// The run of the series, where it has results; else null.
    const checks::UltimaCorrida* serie = nullptr;
    /// That of the storm's run, of the series', or an empty one.
    const model::Red& red;
    std::vector<double> areas{};  ///< drained [km2], in the order of una->corrido's components
    /// Components on show, of those that the run has: in the order of computation.
    std::vector<const checks::ComponenteCorrido*> elegidos{};
    std::vector<std::string> elegidosDeSerie{};         ///< the same of the series, by name
    std::vector<int> tormentas{};                       ///< numbers of the storms of the series that were run
    const checks::ComponenteCorrido* salida = nullptr;  ///< first outfall of the storm's run that has a row

    /// A cell of the summary of the storm's run by its column's title and unit; of the basin for null.
    [[nodiscard]] std::optional<double> DelResumen(const checks::ComponenteCorrido* c,
                                                   std::string_view titulo, std::string_view unidad) const;
    /// The same as it is written; "-" where there is none.
    [[nodiscard]] std::string CeldaDelResumen(const checks::ComponenteCorrido* c, std::string_view titulo,
                                              std::string_view unidad) const;
    /// Whether the storm's run has heights of a Represa or a Lago.
    [[nodiscard]] bool ConAlturas(const checks::ComponenteCorrido& c) const;
    /// All Represas and Lagos of the storm's run that have a row.
    [[nodiscard]] std::vector<const checks::ComponenteCorrido*> Embalses() const;
    /// What has to stand below results: that they are of an earlier state. Empty: they hold.
    [[nodiscard]] std::string NotaDeVejez() const;
    /// Area of all UEHs [km2].
    [[nodiscard]] double AreaDeCuenca() const;

  private:
    void EligeDeUna();
    void EligeDeSerie();
    [[nodiscard]] checks::DeQuien Quien(const checks::ComponenteCorrido* c) const;
};

/// Names of the outfalls of a run, with ", " and " y " between them.
std::string Enumera(const std::vector<std::string>& nombres);

}  // namespace report
