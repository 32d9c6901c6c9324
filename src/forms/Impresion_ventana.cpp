// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Impresion_ventana.h"

#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QWidget>

#include "model/Avisos.h"

namespace forms {
namespace {

constexpr char SinImpresora[] =
    "No hay ninguna impresora instalada. Instale una impresora y elíjala como predeterminada.";
constexpr char NoImprime[] = "La impresora no acepta el trabajo. Verifique que esté encendida y conectada.";

/// Dots of the image per dot of the screen: sharp on paper, and no more than a few megabytes.
constexpr qreal Finura = 3;

}  // namespace

void Imprime(Entorno& entorno, const Pintor& pinta, bool apaisada)
{
    const std::unique_ptr<QPrinter> impresora = entorno.Impresora();
    if (impresora == nullptr) return model::Informa(entorno.s, SinImpresora);
    impresora->setPageOrientation(apaisada ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter pintor;
    if (!pintor.begin(impresora.get())) return model::Informa(entorno.s, NoImprime);
    pintor.setRenderHint(QPainter::LosslessImageRendering);
    const QRectF hoja = impresora->pageLayout().paintRectPixels(impresora->resolution());
    pinta(pintor, QRectF({0, 0}, hoja.size()));
}

void ImprimeVentana(Entorno& entorno, QWidget& ventana)
{
    QPixmap imagen(ventana.size() * Finura);
    imagen.setDevicePixelRatio(Finura);
    ventana.render(&imagen);
    const auto pinta = [&](QPainter& pintor, const QRectF& hoja) {
        const QSizeF lugar = QSizeF(ventana.size()).scaled(hoja.size(), Qt::KeepAspectRatio);
        pintor.drawPixmap(QRectF({(hoja.width() - lugar.width()) / 2, 0}, lugar), imagen,
                          QRectF({0, 0}, QSizeF(imagen.size())));
    };
    Imprime(entorno, pinta, ventana.width() > ventana.height());
}

}  // namespace forms
