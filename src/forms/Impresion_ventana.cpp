// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Impresion_ventana.h"

#include <QApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QStyle>
#include <QWidget>

#include "model/Avisos.h"

namespace forms {
namespace {

constexpr char SinImpresora[] =
    "No hay ninguna impresora instalada. Instale una impresora y elíjala como predeterminada.";
constexpr char NoImprime[] = "La impresora no acepta el trabajo. Verifique que esté encendida y conectada.";

/// The colours of paper for a window, while the object lives.
class EnPapel {
  public:
    explicit EnPapel(QWidget& unaVentana)
        : ventana(unaVentana),
          antes(unaVentana.palette()),
          propios(unaVentana.testAttribute(Qt::WA_SetPalette)),
          cambia(antes.color(QPalette::Window).lightness() < antes.color(QPalette::WindowText).lightness())
    {
        if (cambia) ventana.setPalette(QApplication::style()->standardPalette());
    }
    ~EnPapel()
    {
        if (cambia) ventana.setPalette(propios ? antes : QPalette());
    }
    EnPapel(const EnPapel&) = delete;
    EnPapel& operator=(const EnPapel&) = delete;

  private:
    QWidget& ventana;
    QPalette antes;
    bool propios, cambia;
};

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
    const EnPapel papel(ventana);
    QPixmap imagen(ventana.size() * PuntosDeImpresion);
    imagen.setDevicePixelRatio(PuntosDeImpresion);
    ventana.render(&imagen);
    const auto pinta = [&](QPainter& pintor, const QRectF& hoja) {
        const QSizeF lugar = QSizeF(ventana.size()).scaled(hoja.size(), Qt::KeepAspectRatio);
        pintor.drawPixmap(QRectF({(hoja.width() - lugar.width()) / 2, 0}, lugar), imagen,
                          QRectF({0, 0}, QSizeF(imagen.size())));
    };
    Imprime(entorno, pinta, ventana.width() > ventana.height());
}

}  // namespace forms
