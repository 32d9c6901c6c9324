// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Apunte_ventana.h"

namespace forms {

Apunte::Apunte(int cuantasLineas) : lineas(cuantasLineas)
{
    constexpr double Parte = 0.9;  // of the size of other letters
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont letra = font();
    letra.setPointSizeF(letra.pointSizeF() * Parte);
    setFont(letra);
}

void Apunte::Pon(const QString& texto)
{
    if (text() == texto) return;
    setText(texto);
    setToolTip(texto);
}

QSize Apunte::sizeHint() const
{
    return {0, lineas * fontMetrics().lineSpacing() + 2 * margin()};
}

}  // namespace forms
