// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Formulario_ventana.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <string>
#include <utility>

#include "forms/Pantalla_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace forms {
namespace {

constexpr std::string_view TituloSinAplicar = "Cambios sin aplicar";
constexpr std::string_view PreguntaSinAplicar =
    "Lo que se escribió en esta ventana no se ha aplicado y se perdería. ¿Desea cerrarla igual ?";

QString Clave(const QWidget& ventana)
{
    return QStringLiteral("ventanas/") + ventana.objectName();
}

/// What has the frame: the window itself, or the one that holds it in the main window.
const QWidget& Marco(const QWidget& ventana)
{
    const auto* const hija = qobject_cast<const QMdiSubWindow*>(ventana.parentWidget());
    return hija == nullptr ? ventana : *hija;
}

/// Whether it fills the main window, or lies in it as an icon or a mere title.
bool ConMarcoEspecial(const QWidget& ventana)
{
    const auto* const hija = qobject_cast<const QMdiSubWindow*>(ventana.parentWidget());
    return hija != nullptr && (hija->isMaximized() || hija->isMinimized() || hija->isShaded());
}

}  // namespace

void RecuperaLugar(QWidget& ventana, QSettings& ajustes)
{
    const QByteArray lugar = ajustes.value(Clave(ventana)).toByteArray();
    if (lugar.isEmpty()) return;
    if (auto* const hija = qobject_cast<QMdiSubWindow*>(ventana.parentWidget()))
        hija->restoreGeometry(lugar);
    else
        ventana.restoreGeometry(lugar);
}

void GuardaLugar(const QWidget& ventana, QSettings& ajustes)
{
    if (ConMarcoEspecial(ventana)) return;
    ajustes.setValue(Clave(ventana), Marco(ventana).saveGeometry());
}

void GuardaLugares(QSettings& ajustes)
{
    for (const QWidget* const ventana : QApplication::allWidgets()) {
        const bool deEstas = dynamic_cast<const Ventana*>(ventana) != nullptr ||
                             dynamic_cast<const Formulario*>(ventana) != nullptr;
        if (deEstas && ventana->isVisible()) GuardaLugar(*ventana, ajustes);
    }
}

void MarcaTitulo(QWidget& ventana, bool conTrabajo)
{
    if (ventana.isWindowModified() == conTrabajo) return;
    const QString marca = QStringLiteral("[*]");
    QString titulo = ventana.windowTitle();
    // The toolkit warns of a mark for which the title has no place.
    if (conTrabajo) ventana.setWindowTitle(titulo + marca);
    ventana.setWindowModified(conTrabajo);
    if (!conTrabajo) ventana.setWindowTitle(titulo.remove(marca));
}

Formulario::Formulario(Entorno& alrededor, const DescripcionDeVentana& descripcion, QWidget* padre)
    : QDialog(padre), Constructor(alrededor, descripcion.rotulos)
{
    setObjectName(Q(descripcion.nombre));
    setWindowTitle(Q(descripcion.titulo));
}

void Formulario::Muestra()
{
    Constructor::Muestra();
    LlevaFoco(*this);
    if (SeCerro() && isVisible()) done(QDialog::Accepted);
}

void Formulario::reject()
{
    if (entorno.Terminando()) return QDialog::reject();
    campos.Olvida();
    entorno.Atiende([this] {
        if (HayTrabajo() && !model::Consulta(entorno.s, std::string(PreguntaSinAplicar), TituloSinAplicar))
            return;
        AlCerrar();
    });
}

bool Formulario::HayTrabajo()
{
    bool hay = false;
    model::Sentencia([&] { hay = isVisible() && SinAplicar(); });
    return hay;
}

bool Formulario::event(QEvent* evento)
{
    // Whatever is typed is painted: the mark follows.
    if (evento->type() == QEvent::UpdateRequest && !entorno.Terminando()) MarcaTitulo(*this, HayTrabajo());
    return AtiendeF1(*this, *evento) || QDialog::event(evento);
}

void Formulario::setVisible(bool visible)
{
    if (visible && !isVisible()) CabeEnPantalla(*this);
    QDialog::setVisible(visible);
}

void Formulario::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) RecuperaLugar(*this, entorno.Ajustes());
    QDialog::showEvent(evento);  // one without a place is put over its owner
    if (!evento->spontaneous()) TraeALaPantalla(*this);
}

void Formulario::hideEvent(QHideEvent* evento)
{
    if (!evento->spontaneous()) GuardaLugar(*this, entorno.Ajustes());
    QDialog::hideEvent(evento);
}

Ventana::Ventana(Entorno& alrededor, const DescripcionDeVentana& descripcion, QWidget* padre)
    : QWidget(padre), Constructor(alrededor, descripcion.rotulos)
{
    setObjectName(Q(descripcion.nombre));
    setWindowTitle(Q(descripcion.titulo));
}

void Ventana::Muestra()
{
    Constructor::Muestra();
    if (SeCerro() && isVisible()) close();
}

bool Ventana::event(QEvent* evento)
{
    return AtiendeF1(*this, *evento) || QWidget::event(evento);
}

void Ventana::closeEvent(QCloseEvent* evento)
{
    if (!entorno.Terminando()) entorno.Atiende([this] { AlCerrar(); });
    evento->accept();
}

void Ventana::setVisible(bool visible)
{
    if (visible && !isVisible() && isWindow()) CabeEnPantalla(*this);
    QWidget::setVisible(visible);
}

void Ventana::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous() && !std::exchange(enSuLugar, true)) {
        RecuperaLugar(*this, entorno.Ajustes());
        TraeALaPantalla(*this);
    }
    QWidget::showEvent(evento);
}

void Ventana::hideEvent(QHideEvent* evento)
{
    if (!evento->spontaneous()) {
        GuardaLugar(*this, entorno.Ajustes());
        if (isHidden() && !ConMarcoEspecial(*this)) enSuLugar = false;
    }
    QWidget::hideEvent(evento);
}

}  // namespace forms
