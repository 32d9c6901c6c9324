// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ParteDeImagen_ventana.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>

namespace forms {

void PintaParte(QPainter& pintor, const QPixmap& imagen, const QRectF& donde, const QRectF& marco)
{
    const QRectF visto = donde.intersected(marco);
    if (imagen.isNull() || visto.isEmpty() || donde.isEmpty()) return;
    const double ex = imagen.width() / donde.width(), ey = imagen.height() / donde.height();
    const QRectF parte((visto.x() - donde.x()) * ex, (visto.y() - donde.y()) * ey, visto.width() * ex,
                       visto.height() * ey);
    if (pintor.paintEngine()->type() != QPaintEngine::SVG) return pintor.drawPixmap(visto, imagen, parte);
    // A drawing in such a file takes no part of an image, and would stretch the whole: it is cut out first,
    // in whole pixels.
    const QRect entera = parte.toAlignedRect().intersected(imagen.rect());
    pintor.drawPixmap(QRectF(donde.x() + entera.x() / ex, donde.y() + entera.y() / ey, entera.width() / ex,
                             entera.height() / ey),
                      imagen.copy(entera), QRectF({0, 0}, QSizeF(entera.size())));
}

}  // namespace forms
