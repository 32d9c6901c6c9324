// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Impresion_ventana.h"

#include <QApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QStyle>
#include <QWidget>

#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

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

void Imprime(Entorno& entorno, const Trabajo& trabajo, const PintorDeHojas& pinta)
{
    const std::unique_ptr<QPrinter> impresora = entorno.Impresora();
    if (impresora == nullptr) return model::Informa(entorno.s, SinImpresora);
    impresora->setDocName(Q(trabajo.nombre));
    impresora->setPageOrientation(trabajo.apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter pintor;
    if (!pintor.begin(impresora.get())) return model::Informa(entorno.s, NoImprime);
    pintor.setRenderHint(QPainter::LosslessImageRendering);
    const QRectF hoja = impresora->pageLayout().paintRectPixels(impresora->resolution());
    pinta(pintor, QRectF({0, 0}, hoja.size()), *impresora);
}

QPixmap ImagenParaPapel(QWidget& ventana)
{
    const EnPapel papel(ventana);
    QPixmap imagen(ventana.size() * PuntosDeImpresion);
    imagen.setDevicePixelRatio(PuntosDeImpresion);
    ventana.render(&imagen);
    imagen.setDevicePixelRatio(1);
    return imagen;
}

void ImprimeVentana(Entorno& entorno, QWidget& ventana, const Impreso& impreso)
{
    const QPixmap imagen = ImagenParaPapel(ventana);
    const auto pinta = [&](QPainter& pintor, const QRectF& hoja, QPrinter& /*impresora*/) {
        constexpr int LetraChica = 8;  // [points]
        QFont letra = ventana.font();
        letra.setPointSize(LetraChica);
        pintor.setFont(letra);
        const double renglon = pintor.fontMetrics().lineSpacing();
        const double alPie = renglon * static_cast<double>(impreso.alPie.size());
        const QSizeF lugar =
            QSizeF(ventana.size()).scaled({hoja.width(), hoja.height() - alPie}, Qt::KeepAspectRatio);
        const double izquierda = (hoja.width() - lugar.width()) / 2;
        pintor.drawPixmap(QRectF({izquierda, 0}, lugar), imagen, QRectF({0, 0}, QSizeF(imagen.size())));
        QRectF debajo(izquierda, lugar.height(), lugar.width(), renglon);
        for (const std::string& texto : impreso.alPie) {
            pintor.drawText(debajo, Qt::AlignVCenter | Qt::AlignLeft, Q(texto));
            debajo.translate(0, renglon);
        }
    };
    Imprime(entorno, {impreso.nombre, ventana.width() > ventana.height()}, pinta);
}

}  // namespace forms
