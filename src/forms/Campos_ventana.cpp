// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Campos_ventana.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace forms {
namespace {

/// While a mouse button is down the press hasn't become a click yet: the check waits for it.
constexpr int EsperaDelRaton = 20;  // [ms]

bool EsSalida(const QFocusEvent& evento)
{
    switch (evento.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return false;
    default:
        return true;
    }
}

void SeleccionaTodo(QWidget& control)
{
    if (auto* const campo = qobject_cast<QLineEdit*>(&control)) campo->selectAll();
    if (auto* const lista = qobject_cast<QComboBox*>(&control);
        lista != nullptr && lista->lineEdit() != nullptr)
        lista->lineEdit()->selectAll();
}

}  // namespace

void Campos::Agrega(QWidget& control, std::function<bool()> revisa)
{
    campos.push_back({&control, std::move(revisa)});
    control.installEventFilter(this);
}

Campos::Campo* Campos::Busca(const QObject* objeto)
{
    const auto campo =
        std::find_if(campos.begin(), campos.end(), [&](const Campo& c) { return c.control == objeto; });
    return objeto == nullptr || campo == campos.end() ? nullptr : &*campo;
}

bool Campos::Revisa(Campo campo)
{
    std::erase(pendientes, campo.control);
    revisando = true;
    bool pasa = false;
    entorno.Atiende([&] { pasa = campo.revisa(); });
    if (!entorno.Terminando()) {
        AlRevisar();
        if (!pasa && !campo.control.isNull()) {
            campo.control->setFocus(Qt::OtherFocusReason);
            SeleccionaTodo(*campo.control);
        }
    }
    revisando = false;
    return pasa;
}

bool Campos::Compromete()
{
    if (revisando || !RevisaDejados()) return false;
    Campo* const enMano = Busca(QApplication::focusWidget());
    return enMano == nullptr || Revisa(*enMano);
}

/// In their order, but the one that has the focus, up to the first that is refused.
bool Campos::RevisaDejados()
{
    const auto dejado = [](const QPointer<QWidget>& control) {
        return control != QApplication::focusWidget();
    };
    for (auto uno = std::ranges::find_if(pendientes, dejado); uno != pendientes.end();
         uno = std::ranges::find_if(pendientes, dejado)) {
        Campo* const campo = Busca(*uno);
        pendientes.erase(uno);
        // On a page that was turned over meanwhile it still counts; put away by its form, or with it, no
        // more.
        const bool cuenta =
            campo != nullptr && !campo->control->isHidden() && campo->control->window()->isVisible();
        if (cuenta && !Revisa(*campo)) return false;
    }
    return true;
}

void Campos::RevisaMasTarde(int espera)
{
    if (std::exchange(citado, true)) return;
    QTimer::singleShot(espera, this, [this] {
        citado = false;
        if (revisando) return;
        if (QApplication::mouseButtons() != Qt::NoButton)
            RevisaMasTarde(EsperaDelRaton);
        else
            RevisaDejados();
    });
}

bool Campos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (revisando || entorno.Terminando()) return QObject::eventFilter(objeto, evento);
    const bool sale = evento->type() == QEvent::FocusOut && EsSalida(*static_cast<QFocusEvent*>(evento));
    if (Campo* const campo = sale || evento->type() == QEvent::KeyPress ? Busca(objeto) : nullptr) {
        if (std::ranges::find(pendientes, campo->control) == pendientes.end())
            pendientes.push_back(campo->control);
        // Queued: a box inside a change of focus would swallow the click that caused it.
        if (sale) RevisaMasTarde(0);
    }
    return QObject::eventFilter(objeto, evento);
}

}  // namespace forms
