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
    dejado = nullptr;
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
    if (revisando) return false;
    if (Campo* const campo = Busca(dejado); campo != nullptr && !Revisa(*campo)) return false;
    Campo* const enMano = Busca(QApplication::focusWidget());
    return enMano == nullptr || Revisa(*enMano);
}

void Campos::RevisaDejado()
{
    if (revisando || dejado.isNull()) return;
    if (QApplication::mouseButtons() != Qt::NoButton) {
        QTimer::singleShot(EsperaDelRaton, this, [this] { RevisaDejado(); });
        return;
    }
    if (Campo* const campo = Busca(dejado); campo != nullptr && campo->control->isVisible()) Revisa(*campo);
}

bool Campos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (revisando || entorno.Terminando()) return QObject::eventFilter(objeto, evento);
    if (evento->type() == QEvent::FocusOut && EsSalida(*static_cast<QFocusEvent*>(evento))) {
        if (Campo* const campo = Busca(objeto)) {
            dejado = campo->control;
            // Queued: a box inside a change of focus would swallow the click that caused it.
            QTimer::singleShot(0, this, [this] { RevisaDejado(); });
        }
    }
    if (evento->type() == QEvent::FocusIn && objeto == dejado) dejado = nullptr;
    return QObject::eventFilter(objeto, evento);
}

}  // namespace forms
