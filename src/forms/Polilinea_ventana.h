// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPolygonF>

class QPainter;

namespace forms {

/// Paints a polyline with the painter's pen; a single point is a dot. On a screen a polyline of many vertices
/// is painted by PintaLineaDensa.
void PintaPolilinea(QPainter& pintor, const QPolygonF& puntos);

/// The same at a third of what the pen's round joints cost: ends are round, neighbours meet in a mitre, or in
/// a square corner where the turn is sharper than a right angle. Requires a pen of an opaque colour.
void PintaLineaDensa(QPainter& pintor, const QPolygonF& puntos);

}  // namespace forms
