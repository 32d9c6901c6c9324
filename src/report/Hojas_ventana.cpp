// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Hojas_ventana.h"

#include <qcustomplot.h>

#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "report/Maqueta_ventana.h"

namespace report {

struct Hojas::Parte {
    explicit Parte(Entrega::Pedido uno)
        : pedido(std::move(uno)),
          figuras(pedido.datos, pedido.decimal, pedido.fondo),
          maqueta(pedido.documento, figuras)
    {
    }
    const Entrega::Pedido pedido;
    Figuras figuras;
    Maqueta maqueta;
};

Hojas::Hojas(QWidget* padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

Hojas::~Hojas() = default;

void Hojas::Muestra(Entrega::Pedido pedido)
{
    parte = std::make_unique<Parte>(std::move(pedido));
    Pasa(0);
}

void Hojas::Pasa(int cuantas)
{
    if (parte == nullptr) return;
    pagina = std::clamp(pagina + cuantas, 0, Paginas() - 1);
    hoja = {};
    setAccessibleDescription(QStringLiteral("Página %1 de %2").arg(pagina + 1).arg(Paginas()));
    update();
}

int Hojas::Paginas() const
{
    return parte == nullptr ? 0 : parte->maqueta.Paginas();
}

void Hojas::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    if (parte == nullptr) {
        pintor.setPen(palette().color(QPalette::PlaceholderText));
        pintor.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                        QStringLiteral("Vista previa muestra aquí las páginas."));
        return;
    }
    const QSizeF papel = parte->maqueta.Tamano(pagina);
    const QSizeF tamano = papel.scaled(QSizeF(size()) - QSizeF(2, 2), Qt::KeepAspectRatio);
    const double finura = devicePixelRatioF();
    if (const QSize puntos = (tamano * finura).toSize(); hoja.size() != puntos) {
        hoja = QImage(puntos, QImage::Format_RGB32);
        hoja.fill(Qt::white);
        QCPPainter enHoja;
        enHoja.begin(&hoja);
        enHoja.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                              QPainter::SmoothPixmapTransform);
        enHoja.scale(puntos.width() / papel.width(), puntos.height() / papel.height());
        parte->maqueta.Pinta(pagina, enHoja);
    }
    const QRectF sitio(QPointF((width() - tamano.width()) / 2, 1), tamano);
    pintor.drawImage(sitio, hoja);
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawRect(sitio);
}

void Hojas::wheelEvent(QWheelEvent* evento)
{
    Pasa(evento->angleDelta().y() < 0 ? 1 : -1);
    evento->accept();
}

}  // namespace report
