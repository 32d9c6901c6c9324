// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/SinComillas_ventana.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QValidator>

namespace forms {
namespace {

class ComillasSimples : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& texto, int& /*cursor*/) const override
    {
        texto.replace(QLatin1Char('"'), QLatin1Char('\''));
        return Acceptable;
    }
};

}  // namespace

SinComillas::SinComillas(QObject& duenno) : QObject(&duenno)
{
    qApp->installEventFilter(this);
}

bool SinComillas::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::Polish) return false;
    auto* const campo = qobject_cast<QLineEdit*>(objeto);
    const bool esDeArchivos = campo != nullptr && qobject_cast<QFileDialog*>(campo->window()) != nullptr;
    if (campo != nullptr && campo->validator() == nullptr && !esDeArchivos)
        campo->setValidator(new ComillasSimples(campo));
    return false;
}

}  // namespace forms
