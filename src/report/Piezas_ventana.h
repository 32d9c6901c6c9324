// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <functional>
#include <memory>
#include <vector>

#include "report/Documento.h"

class QCPPainter;
class QTextLayout;

// What pages are made of: pieces that aren't cut, one below the other.
namespace report {

// Everything on a page is measured in dots of 1440 to the inch, 20 to the point, so that letters have whole
// sizes.
inline constexpr int PuntosPorPulgada = 1440;
inline constexpr double Punto = PuntosPorPulgada / 72.0;
inline constexpr double Milimetro = PuntosPorPulgada / 25.4;

struct Pieza {
    double antes = 0;             ///< room above, which the top of a page doesn't ask for
    double alto = 0;              ///< without it
    bool conLaSiguiente = false;  ///< never stands last on a page
    bool salto = false;           ///< a page begins with it
    bool apaisada = false;        ///< on a page that lies
    int titulo = -1;              ///< of the headings, from 0; -1: it is none
    int renglonDeIndice = -1;     ///< heading that this line of the table of contents names
    /// Paints it with its upper left corner at the margin, so far down.
    std::function<void(QCPPainter& pintor, double y)> pinta{};
    std::shared_ptr<const Pieza> cabeza{};  ///< goes above it where a page begins with it
};

inline constexpr QRgb ColorDeTexto = 0xFF202020, ColorTenue = 0xFF606060, ColorDeRaya = 0xFF9AA0A6,
                      ColorDeCabeza = 0xFFECEFF1, ColorDeAviso = 0xFFFFF4E0, ColorDeBarra = 0xFFB35C00;

/// Letters of a size [points].
QFont LetraDe(double puntos, bool negrita = false, bool cursiva = false);
/// From line to line.
double Renglon(const QFont& letra);

/// Text set in lines of a width, the last ones as long as they come.
struct Compuesto {
    std::shared_ptr<QTextLayout> lineas{};
    QFont letra{};
    [[nodiscard]] int Cuantas() const;
    [[nodiscard]] double Alto() const { return Cuantas() * Renglon(letra); }
    /// The widest of them.
    [[nodiscard]] double Ancho() const;
    void PintaLinea(QCPPainter& pintor, int cual, double x, double y) const;
    void Pinta(QCPPainter& pintor, double x, double y) const;
};
Compuesto Compone(const Texto& texto, const QFont& letra, double ancho,
                  Qt::Alignment alineado = Qt::AlignLeft);

using Piezas = std::vector<Pieza>;

/// How text stands.
struct Parte {
    double sangria = 0, antes = 0;
    bool aviso = false;
    std::string guion{};  ///< ahead of its first line, within the indent
};
/// A line a piece; a page neither ends with the first of several nor begins with the last.
void AgregaTexto(Piezas& piezas, const Compuesto& texto, const Parte& parte, double ancho);

/// A table in pieces, a row each; smaller, lying or in parts where it is too wide. `ancho`, `acostado`: of
/// the text on an upright page and on one that lies.
void AgregaTabla(Piezas& piezas, const Tabla& tabla, double ancho, double acostado);

}  // namespace report
