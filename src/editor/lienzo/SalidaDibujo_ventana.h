// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <string_view>

#include "editor/frmUEHs.h"
#include "editor/lienzo/PintaDibujo_ventana.h"
#include "forms/Entorno_ventana.h"

// The drawing on paper and in files, as the canvas shows it; a line below it tells project and day.
namespace editor {

/// What is put out: the editor's record, who paints it, and the canvas's size.
struct DibujoALaVista {
    const frmUEHs& f;
    PintorDibujo& pintor;
    QSize lienzo;
};

/// Prints it on the default printer with no dialog.
void ImprimeDibujo(forms::Entorno& entorno, const DibujoALaVista& dibujo);

/// Asks where and saves it; `tipo`: PNG, SVG or PDF. A disk that refuses is told.
void ExportaDibujo(forms::Entorno& entorno, const DibujoALaVista& dibujo, std::string_view tipo);

}  // namespace editor
