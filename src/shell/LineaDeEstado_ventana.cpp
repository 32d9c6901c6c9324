// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LineaDeEstado_ventana.h"

#include <QIcon>
#include <QPixmap>
#include <QStatusBar>
#include <QToolButton>

#include "forms/Textos_ventana.h"

namespace shell {

using forms::Q;

namespace {

constexpr int CaracteresMinimos = 20;  // of the storm, where the window is narrow

}  // namespace

LineaDeEstado::LineaDeEstado(QStatusBar& barra)
    : tormenta(new Renglon(&barra)), avisos(new QToolButton(&barra))
{
    tormenta->setObjectName(QStringLiteral("lblTormentaEnMano"));
    tormenta->setAccessibleName(QStringLiteral("Tormenta en mano"));
    avisos->setObjectName(QStringLiteral("cmdAvisos"));
    avisos->setAutoRaise(true);
    avisos->setAccessibleName(QStringLiteral("Avisos de la corrida"));
    avisos->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    avisos->setFocusPolicy(Qt::TabFocus);
    // As high from the start as with what it will show, so that no window below the bar is pushed then.
    QPixmap hueco(avisos->iconSize());
    hueco.fill(Qt::transparent);
    PonAvisos("0", hueco, "");
    avisos->setFixedHeight(avisos->sizeHint().height());
    QObject::connect(avisos, &QToolButton::clicked, &barra, [this] { AlPedirAvisos(); });
    barra.addPermanentWidget(tormenta);
    barra.addPermanentWidget(avisos);
}

void LineaDeEstado::PonTormenta(const std::string& texto)
{
    tormenta->Pon(Q(texto));
}

void LineaDeEstado::PonAvisos(const std::string& texto, const QIcon& icono, const std::string& ayuda)
{
    avisos->setText(Q(texto));
    avisos->setIcon(icono);
    avisos->setToolTip(Q(ayuda));
    avisos->setAccessibleDescription(Q(ayuda));
}

void LineaDeEstado::Renglon::Pon(const QString& texto)
{
    if (texto == entero) return;
    entero = texto;
    setToolTip(texto);
    setAccessibleDescription(texto);
    Corta();
    updateGeometry();
}

QSize LineaDeEstado::Renglon::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(entero) + 2 * margin() + 2, QLabel::sizeHint().height()};
}

QSize LineaDeEstado::Renglon::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * CaracteresMinimos, QLabel::minimumSizeHint().height()};
}

void LineaDeEstado::Renglon::resizeEvent(QResizeEvent* evento)
{
    QLabel::resizeEvent(evento);
    Corta();
}

void LineaDeEstado::Renglon::Corta()
{
    setText(fontMetrics().elidedText(entero, Qt::ElideRight, width()));
}

}  // namespace shell
