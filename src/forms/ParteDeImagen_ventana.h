// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;
class QPixmap;
class QRectF;

namespace forms {

/// Paints what of an image that fills `donde` lies within `marco`: at a large zoom the whole would be many
/// times larger.
void PintaParte(QPainter& pintor, const QPixmap& imagen, const QRectF& donde, const QRectF& marco);

}  // namespace forms
