// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <string>
#include <string_view>

#include "forms/Entorno_ventana.h"
#include "results/mapa/LienzoDeMapa_ventana.h"

// The map on paper and in files, as the canvas shows it; above it what it is: title, storm, time, project,
// date of the day.
namespace results {

/// What is put out.
struct MapaALaVista {
    const MapaDeCorrida& f;
    const LienzoDeMapa& lienzo;
};

/// Prints it on the default printer with no dialog.
void ImprimeMapa(forms::Entorno& entorno, const MapaALaVista& mapa);

/// Asks where and saves it; `tipo`: PNG, SVG or PDF. A disk that refuses is told.
void GuardaMapa(forms::Entorno& entorno, const MapaALaVista& mapa, std::string_view tipo);

/// The same as an image, for the clipboard.
QImage ImagenDeMapa(const forms::Entorno& entorno, const MapaALaVista& mapa);

}  // namespace results
