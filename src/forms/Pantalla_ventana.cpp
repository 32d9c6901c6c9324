// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Pantalla_ventana.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace forms {
namespace {

constexpr int LetrasDeAlto = 6;  ///< what is left of the controls at least, in lines

/// The controls of a window that doesn't fit. It asks for all the room that they want.
class Desplazable : public QScrollArea {
  public:
    explicit Desplazable(QWidget* padre) : QScrollArea(padre)
    {
        setObjectName(QStringLiteral("Desplazable"));
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);  // it follows the focus of its controls
    }
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint() + Barra(); }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const QSize todo = widget()->minimumSizeHint() + Barra();
        return {todo.width() <= ancho ? todo.width() : ancho, fontMetrics().lineSpacing() * LetrasDeAlto};
    }

    int ancho = 0;  ///< room across [pixels]; what is wider scrolls that way too

  private:
    [[nodiscard]] QSize Barra() const { return {verticalScrollBar()->sizeHint().width(), 0}; }
};

/// Moves the first thing of a column to the end of another.
void Muda(QVBoxLayout& de, QVBoxLayout& a)
{
    const int estira = de.stretch(0);
    QLayoutItem* const cosa = de.takeAt(0);
    if (cosa->layout() != nullptr) {
        a.addLayout(cosa->layout(), estira);
        return;
    }
    if (cosa->widget() != nullptr) {
        a.addWidget(cosa->widget(), estira, cosa->alignment());
        delete cosa;
        return;
    }
    a.addItem(cosa);
}

Desplazable* DesplazableDe(QWidget& ventana)
{
    return dynamic_cast<Desplazable*>(
        ventana.findChild<QScrollArea*>(QStringLiteral("Desplazable"), Qt::FindDirectChildrenOnly));
}

void HazDesplazable(QWidget& ventana, QVBoxLayout& pila)
{
    auto* const area = new Desplazable(&ventana);
    // Below the window from the beginning, so that the order of the Tab key stays as it is.
    auto* const interior = new QWidget(area);
    area->setWidget(interior);
    auto* const adentro = new QVBoxLayout(interior);
    adentro->setContentsMargins(0, 0, 0, 0);
    adentro->setSpacing(pila.spacing());
    while (pila.count() > 1)
        Muda(pila, *adentro);
    pila.insertWidget(0, area, 1);
}

/// The frame that the desktop puts around a window; before it is there, as around the others or as is usual.
QMargins Marco(const QWidget& ventana)
{
    const auto de = [](const QWidget& w) {
        const QRect fuera = w.frameGeometry();
        const QRect dentro = w.geometry();
        return QMargins(dentro.left() - fuera.left(), dentro.top() - fuera.top(),
                        fuera.right() - dentro.right(), fuera.bottom() - dentro.bottom());
    };
    if (ventana.isVisible() && !de(ventana).isNull()) return de(ventana);
    for (const QWidget* const otra : QApplication::topLevelWidgets())
        if (otra->isVisible() && otra->windowType() != Qt::Popup && !de(*otra).isNull()) return de(*otra);
    const int borde = ventana.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return {borde, ventana.style()->pixelMetric(QStyle::PM_TitleBarHeight), borde, borde};
}

}  // namespace

void CabeEn(QWidget& ventana, QSize lugar)
{
    if (ventana.layout() == nullptr || lugar.isEmpty()) return;
    ventana.ensurePolished();
    ventana.layout()->activate();
    const QSize minimo = ventana.layout()->totalMinimumSize().expandedTo(ventana.minimumSize());
    Desplazable* area = DesplazableDe(ventana);
    if (area == nullptr) {
        auto* const pila = qobject_cast<QVBoxLayout*>(ventana.layout());
        const bool cabe = minimo.width() <= lugar.width() && minimo.height() <= lugar.height();
        if (cabe || pila == nullptr || pila->count() < 2) return;
        HazDesplazable(ventana, *pila);
        area = DesplazableDe(ventana);
        ventana.setMinimumSize(0, 0);
    }
    const QMargins bordes = ventana.layout()->contentsMargins();
    area->ancho = lugar.width() - bordes.left() - bordes.right();
    area->updateGeometry();
    ventana.layout()->activate();
}

void CabeEnPantalla(QWidget& ventana)
{
    const QSize lugar = ventana.screen()->availableGeometry().marginsRemoved(Marco(ventana)).size();
    CabeEn(ventana, lugar);
    // By itself the toolkit would give it no more than two thirds of the screen.
    if (DesplazableDe(ventana) != nullptr && !ventana.testAttribute(Qt::WA_Resized))
        ventana.resize(ventana.sizeHint().boundedTo(lugar));
}

void TraeALaPantalla(QWidget& ventana)
{
    if (!ventana.isWindow() || ventana.isMaximized() || ventana.isFullScreen()) return;
    const QRect lugar = ventana.screen()->availableGeometry().marginsRemoved(Marco(ventana));
    const QSize tamano = ventana.size().boundedTo(lugar.size());
    if (tamano != ventana.size()) ventana.resize(tamano);
    // Without a place of its own yet, the desktop gives it one. A dialog is over its owner by now.
    if (!ventana.testAttribute(Qt::WA_Moved) && qobject_cast<QDialog*>(&ventana) == nullptr) return;
    const QRect ahora = ventana.geometry();
    const QPoint ultimo = lugar.bottomRight() - QPoint(ahora.width() - 1, ahora.height() - 1);
    const QPoint donde(std::clamp(ahora.x(), lugar.x(), std::max(lugar.x(), ultimo.x())),
                       std::clamp(ahora.y(), lugar.y(), std::max(lugar.y(), ultimo.y())));
    if (donde != ahora.topLeft()) ventana.setGeometry(QRect(donde, ahora.size()));
}

}  // namespace forms
