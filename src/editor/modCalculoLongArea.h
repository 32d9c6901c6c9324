// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "editor/Dibujo.h"
#include "model/SiroDeclarado.h"

// Length of a polyline, perimeter and area of a polygon, measured over the drawing or its background image.
// Nothing of it changes the network.
namespace editor {

struct Medicion {
    std::int16_t NroPuntosMedida = 0;
    std::vector<float> XMedida{}, YMedida{};  ///< points, from 1 [drawing units]
    float LongitudMedida = 0;                 ///< [m]
    float AreaMedida = 0;                     ///< [ha]; its sign tells the direction of drawing
    std::string lblLongArea{};                ///< last measurement

    /// n from 1.
    [[nodiscard]] Punto En(std::size_t n) const { return {XMedida[n], YMedida[n]}; }
};

/// A click with btn_toolbarLongArea down. Throws Falla 6 beyond 32767 points.
void AgregaPuntoMedida(Medicion& m, Punto p);

/// Asks whether the figure is to be closed, works out LongitudMedida and AreaMedida, shows them and forgets
/// the points. Without points nothing happens. The area bears the sign of the direction of drawing: trapezium
/// form of the shoelace sum.
void CalculaLongArea(Medicion& m, const model::Siro& s);

}  // namespace editor
