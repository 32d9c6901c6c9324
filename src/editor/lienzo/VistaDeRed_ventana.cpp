// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/VistaDeRed_ventana.h"

#include <QPainter>

#include "editor/Vista.h"
#include "model/Siro.h"

namespace editor {

namespace {

constexpr std::int16_t AnchoDeLinea = 2;  // [pixels]
constexpr float TamanoDeIcono = 16;       // [drawing units]

}  // namespace

VistaDeRed::VistaDeRed(QWidget* padre) : QWidget(padre), s(std::make_unique<model::Siro>())
{
    f.vista.AnchoLinea = AnchoDeLinea;
    f.vista.TamIcono = TamanoDeIcono;
    f.vista.NombresVisibles = false;  // of the reaches: the sheet is small
}

VistaDeRed::~VistaDeRed() = default;

void VistaDeRed::Muestra(const std::optional<RedGuardada>& red)
{
    s->Red = {};
    f.trazo = {};
    Repone(Historia{.presente = red}, s->Red, f.trazo);
    update();
}

void VistaDeRed::paintEvent(QPaintEvent* /*evento*/)
{
    f.vista.lienzo = {width(), height()};
    f.vista.recentra = f.vista.reescala = true;
    Redibuja(f, *s);
    PonEscala(f.vista, f.vista.sldEscala * 5 / 4);  // names reach beyond their icons
    Redibuja(f, *s);
    QPainter papel(this);
    pintor.Pinta(papel, f, rect());
    papel.setPen(palette().color(QPalette::Mid));
    papel.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace editor
