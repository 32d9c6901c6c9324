// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "forms/LineaEnPantalla.h"
#include "model/Clases.h"
#include "model/Resultados.h"
#include "model/Tormenta.h"
#include "results/mapa/Rotulos.h"

// What the map shows of a run: a copy of network and hydrographs, which no later editing changes.
namespace results {

/// A component where it is drawn, with its outflow. Places are in drawing units.
struct ComponenteDelMapa {
    model::Clase clase = model::Clase::UEH;
    std::string nombre{};
    /// Of a reach its vertices, upstream from its mouth, which lies on the head of the reach that it drains
    /// into; of the others the middle of the icon, and where its link ends unless it drains nowhere.
    std::vector<forms::Pixel> linea{};
    std::vector<float> Q{};  ///< [m3/s], by output step from 0 for step 1; empty: the run has none of it

    [[nodiscard]] bool EsCauce() const { return clase == model::Clase::Cauce; }
    /// At an output step, from 1. 0 beyond its steps.
    [[nodiscard]] double Caudal(int paso) const;
    /// Its greatest flow [m3/s], and the first step that has it; 0 where it has no flow.
    [[nodiscard]] double Pico() const { return Caudal(pasoPico); }
    int pasoPico = 0;
};

struct RedDeCorrida {
    std::vector<ComponenteDelMapa> componentes{};  ///< reaches, then UEHs, Lagos, Represas, as painted
    int pasos = 0;                                 ///< output steps, shown from 1 on
    int minutos = 0;                               ///< length of one [min]
    Caja extension{};                              ///< of all that is drawn [drawing units]

    [[nodiscard]] double Mayor() const;  ///< greatest of the peaks [m3/s]
};

/// The copy. Components whose rows or vertices aren't in memory are drawn as far as they are.
RedDeCorrida CopiaDeCorrida(const model::Red& red, const model::Pasos& pasos, const model::Resultados& r);

}  // namespace results
