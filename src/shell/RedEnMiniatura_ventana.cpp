// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RedEnMiniatura_ventana.h"

#include <QPainter>
#include <algorithm>
#include <cstdint>

#include "model/Falla.h"
#include "shell/ComparaVersiones.h"

namespace shell {

namespace {

constexpr int LadoMinimo = 180, LadoUsual = 300;  // [pixels at 96 dpi]
constexpr std::int16_t AnchoDeLinea = 2;          // [pixels]

}  // namespace

RedEnMiniatura::RedEnMiniatura(QWidget* padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void RedEnMiniatura::Pon(const model::VersionAnterior* version)
{
    const model::VersionAnterior nueva = version == nullptr ? model::VersionAnterior{} : *version;
    if (nueva == puesta) return;
    puesta = nueva;
    f = {};
    s = {};
    model::Sentencia([&] {
        if (puesta.archivos.empty()) return;
        s = ProyectoDe(puesta);
        editor::Abre(f, s, {LadoUsual, LadoUsual});
        f.fondo.ImagenVisible = false;
        f.vista.NombresVisibles = false;  // there is room for those of the icons alone
        f.vista.AnchoLinea = AnchoDeLinea;
    });
    update();
}

QSize RedEnMiniatura::sizeHint() const
{
    return {LadoUsual, LadoUsual};
}

QSize RedEnMiniatura::minimumSizeHint() const
{
    return {LadoMinimo, LadoMinimo};
}

/// The sheet is square: the drawing has as many units across as down.
void RedEnMiniatura::paintEvent(QPaintEvent* /*evento*/)
{
    const int lado = std::min(width(), height());
    QPainter sobre(this);
    sobre.fillRect(rect(), Qt::white);
    const QRectF donde((width() - lado) / 2.0, (height() - lado) / 2.0, lado, lado);
    if (!puesta.archivos.empty()) {
        f.vista.lienzo = {lado, lado};
        f.vista.recentra = f.vista.reescala = true;
        editor::Redibuja(f, s);
        editor::PonEscala(f.vista, f.vista.sldEscala * 5 / 4);  // names reach beyond their icons
        editor::Redibuja(f, s);
        pintor.Pinta(sobre, f, donde);
    }
    sobre.setPen(palette().color(QPalette::Mid));
    sobre.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace shell
