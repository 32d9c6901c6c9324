// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "editor/fichas/Kostiakov.h"
#include "editor/fichas/dlgTabla.h"
#include "forms/Grafico.h"

// The small plots beside the fields and the tables of the forms. The rows of a chart stand at even distances:
// curves are sampled at round numbers, so that the scale is true and can be read.
namespace editor {

/// Infiltration over time, with the storm's beginning marked; axes alone where there is no curve.
forms::Grafico GraficoDe(const std::optional<CurvaInfiltracion>& curva);

/// A curve of a table, straight between its points. A point that doesn't lie to the right of
/// those before it is left out, and so is one beyond 32-bit floats.
forms::Grafico GraficoDe(const CurvaTabla& curva);

}  // namespace editor
