// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Area_ventana.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QMenu>
#include <QStyle>
#include <algorithm>

#include "forms/Pantalla_ventana.h"

namespace shell {
namespace {

constexpr int PrimerasConTecla = 9;

void AgregaOrden(QMenu& menu, const char* nombre, const QString& leyenda, const QString& ayuda,
                 std::function<void()> rutina)
{
    QAction* const accion = menu.addAction(leyenda);
    accion->setObjectName(QString::fromLatin1(nombre));
    accion->setStatusTip(ayuda);
    QObject::connect(accion, &QAction::triggered, &menu, std::move(rutina));
}

/// A title as the caption of a menu entry; the first ones are reached by their number.
QString Leyenda(int numero, QString titulo)
{
    titulo.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return numero > PrimerasConTecla ? titulo : QStringLiteral("&%1 %2").arg(numero).arg(titulo);
}

}  // namespace

Area::Area(QWidget* padre) : QMdiArea(padre)
{
    setObjectName(QStringLiteral("AreaVentanas"));
    setAccessibleName(QStringLiteral("Ventanas de resultados"));
    setActivationOrder(QMdiArea::ActivationHistoryOrder);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setBackground(palette().brush(QPalette::Mid));
}

QMdiSubWindow* Area::Hija(const QWidget& ventana) const
{
    for (QMdiSubWindow* hija : subWindowList())
        if (hija->widget() == &ventana) return hija;
    return nullptr;
}

/// What the window asks for, and a good part of the room unless it has a size already.
QSize Area::PrimerTamano(const QWidget& ventana) const
{
    const QSize pedido = ventana.testAttribute(Qt::WA_Resized) ? ventana.size() : viewport()->size() * 2 / 3;
    return pedido.expandedTo(ventana.sizeHint()).boundedTo(viewport()->size());
}

/// Room for a window within its frame [pixels].
QSize Area::Lugar() const
{
    const int borde = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return viewport()->size() - QSize(2 * borde, borde + style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

void Area::Presenta(QWidget& ventana)
{
    QMdiSubWindow* hija = Hija(ventana);
    forms::CabeEn(ventana, Lugar());
    if (hija == nullptr) {
        hija = addSubWindow(&ventana);
        hija->setAttribute(Qt::WA_DeleteOnClose, false);  // its window belongs to someone else
        hija->setObjectName(QStringLiteral("marco_") + ventana.objectName());
        ventana.installEventFilter(this);
        hija->installEventFilter(this);
        hija->resize(PrimerTamano(ventana));
    }
    ventana.show();
    if (hija->isMinimized() || hija->isShaded()) hija->showNormal();
    hija->show();
    // How much room its controls take is known for sure only once they are on show.
    if (!hija->isMaximized())
        hija->resize(hija->size().boundedTo(viewport()->size()).expandedTo(hija->minimumSizeHint()));
    // Where it was left may be outside by now, and a new one is put beside the others though it doesn't fit.
    const QPoint ultimo(viewport()->width() - hija->width(), viewport()->height() - hija->height());
    if (!hija->isMaximized())
        hija->move(std::clamp(hija->x(), 0, std::max(0, ultimo.x())),
                   std::clamp(hija->y(), 0, std::max(0, ultimo.y())));
    setActiveSubWindow(hija);
}

void Area::Saca(QWidget& ventana)
{
    QMdiSubWindow* const hija = Hija(ventana);
    if (hija == nullptr) return;
    ventana.removeEventFilter(this);
    removeSubWindow(&ventana);
    removeSubWindow(hija);
    delete hija;
    MuestraInicio();
}

// A window that closes itself leaves an empty frame, which goes with it. One that is minimized is hidden too.
bool Area::eventFilter(QObject* objeto, QEvent* evento)
{
    const bool deHija = qobject_cast<QMdiSubWindow*>(objeto) != nullptr;
    if (deHija && (evento->type() == QEvent::Show || evento->type() == QEvent::Hide)) MuestraInicio();
    auto* const ventana = deHija ? nullptr : qobject_cast<QWidget*>(objeto);
    if (evento->type() == QEvent::Hide && ventana != nullptr && ventana->isHidden()) {
        QMdiSubWindow* const hija = Hija(*ventana);
        if (hija != nullptr && !hija->isMinimized() && !hija->isShaded()) {
            hija->hide();
            ActivaLaUltima();
        }
    }
    return QMdiArea::eventFilter(objeto, evento);
}

void Area::PonInicio(QWidget& unInicio)
{
    inicio = &unInicio;
    inicio->setParent(this);
    inicio->setGeometry(viewport()->geometry());
    MuestraInicio();
}

void Area::resizeEvent(QResizeEvent* evento)
{
    QMdiArea::resizeEvent(evento);
    if (inicio != nullptr) inicio->setGeometry(viewport()->geometry());
}

void Area::MuestraInicio()
{
    if (inicio == nullptr) return;
    const QList<QMdiSubWindow*> hijas = subWindowList();
    const bool vacia = std::ranges::all_of(hijas, [](const QMdiSubWindow* hija) { return hija->isHidden(); });
    inicio->setVisible(vacia);
    if (vacia) inicio->raise();
}

void Area::ActivaLaUltima()
{
    QList<QMdiSubWindow*> hijas = subWindowList(QMdiArea::ActivationHistoryOrder);
    hijas.removeIf([](const QMdiSubWindow* hija) { return hija->isHidden(); });
    if (!hijas.isEmpty()) setActiveSubWindow(hijas.constLast());
}

void Area::LlenaMenu(QMenu& menu)
{
    AgregaOrden(menu, "mnuVentanaCascada", QStringLiteral("&Cascada"),
                QStringLiteral("Pone las ventanas una sobre otra, con sus títulos a la vista"),
                [this] { cascadeSubWindows(); });
    AgregaOrden(menu, "mnuVentanaMosaico", QStringLiteral("&Mosaico"),
                QStringLiteral("Pone las ventanas una junto a otra"), [this] { tileSubWindows(); });
    menu.addSeparator();
    QObject::connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { ListaVentanas(menu); });
}

void Area::ListaVentanas(QMenu& menu)
{
    for (QAction* accion : menu.actions())
        if (accion->isCheckable()) delete accion;
    int numero = 0;
    for (QMdiSubWindow* hija : subWindowList()) {
        if (hija->isHidden()) continue;
        QAction* const accion = menu.addAction(Leyenda(++numero, hija->windowTitle()));
        accion->setObjectName(QStringLiteral("mnuVentana_%1").arg(numero));
        accion->setCheckable(true);
        accion->setChecked(hija == activeSubWindow());
        QObject::connect(accion, &QAction::triggered, hija, [this, hija] { Presenta(*hija->widget()); });
    }
}

}  // namespace shell
