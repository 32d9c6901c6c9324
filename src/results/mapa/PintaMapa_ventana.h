// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QPixmap>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <vector>

#include "forms/MarcoDeImagen.h"
#include "results/mapa/MapaDeCorrida.h"

class QPainter;

namespace results {

/// The background image, and where it lies; none: a null image.
struct FondoDeMapa {
    QPixmap imagen{};
    forms::MarcoDeImagen marco{};
};

/// The map in layers: what is below the water and above it, the legend included, changes with the view alone,
/// and is worked out once for it; the water changes with the time. All paint on a white sheet whatever the
/// desktop's colours.
class PintorDeMapa {
  public:
    /// Works out what depends on the view: lines on the canvas, arrows, labels. `lienzo`: all that is painted
    /// on, whose right part the legend takes.
    void Prepara(const MapaDeCorrida& f, const VistaDeMapa& v, QSizeF lienzo, const QFont& letra);

    /// The part that the network has [pixels], of a canvas of this size.
    static Caja MarcoDeRed(QSizeF lienzo, const QFont& letra);

    // --- the layers, from the lowest to the highest ---
    void PintaFondo(QPainter& pintor, const MapaDeCorrida& f, const FondoDeMapa& fondo) const;
    void PintaAgua(QPainter& pintor, const MapaDeCorrida& f) const;
    void PintaRotulos(QPainter& pintor, const MapaDeCorrida& f) const;

    /// Labels that stand on the map, as they read, and where.
    [[nodiscard]] const std::vector<RotuloPuesto>& Puestos() const { return puestos; }
    [[nodiscard]] const QString& Texto(const RotuloPuesto& puesto) const;
    /// Labels that found no room.
    [[nodiscard]] int Afuera() const { return static_cast<int>(pedidos.size() - puestos.size()); }

  private:
    struct Flecha {
        forms::MedioDeLinea medio{};
        double lado = 0;
    };
    void PreparaRotulos(const MapaDeCorrida& f);
    [[nodiscard]] Estorbos EstorbosDe(const MapaDeCorrida& f) const;
    void PintaAfuera(QPainter& pintor) const;
    void PintaLeyenda(QPainter& pintor, const MapaDeCorrida& f) const;
    void PintaClave(QPainter& pintor, QPointF en) const;

    VistaDeMapa vista{};
    QSizeF lienzo{};
    QFont letra{};
    Caja marco{};
    std::vector<QPolygonF> lineas{};  ///< on the canvas, by component
    std::vector<Flecha> flechas{};
    std::vector<std::vector<QString>> textos{};  ///< of the labels asked for, as `pedidos`
    std::vector<RotuloPedido> pedidos{};
    std::vector<RotuloPuesto> puestos{};
};

}  // namespace results
