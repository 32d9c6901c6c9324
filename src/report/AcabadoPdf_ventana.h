// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <vector>

// What Qt leaves out of a PDF: its outline and the links within it, put behind its end as an incremental
// update (ISO 32000-1, 7.5.6).
namespace report {

/// A line of the outline. Lengths are points from the page's lower left corner; pages count from 0.
struct MarcadorPdf {
    QString titulo{};
    int nivel = 1;  ///< 1 at most one deeper than the line before
    int pagina = 0;
    double alto = 0;
};
/// A place on a page that leads to a line of the outline.
struct EnlacePdf {
    int pagina = 0;
    QRectF caja{};  ///< left, bottom, width, height
    int marcador = 0;
};

/// The file with both, and with `fecha`, "20110403102030", in place of the time at which it was made. One
/// that isn't as expected comes back as it was.
QByteArray Acaba(const QByteArray& pdf, const std::vector<MarcadorPdf>& marcadores,
                 const std::vector<EnlacePdf>& enlaces, const QByteArray& fecha);

}  // namespace report
