// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmPp2_ventana.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/Textos_ventana.h"

namespace shell {
namespace {

constexpr int LetrasDeAncho = 64;
constexpr int EsperaDePantalla = 200;  // [ms] at most, for the window to come up

}  // namespace

void PintaYa()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

frmPp2_ventana::frmPp2_ventana(frmPp2& reglas, QWidget* padre)
    : QWidget(padre, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), f(reglas)
{
    setObjectName(QStringLiteral("frmPp2"));
    auto* const pila = new QVBoxLayout(this);
    lblPrimero = new QLabel(this);
    lblSegundo = new QLabel(this);
    ProgressBar1 = new QProgressBar(this);
    lblPrimero->setObjectName(QStringLiteral("lblPrimero"));
    lblSegundo->setObjectName(QStringLiteral("lblSegundo"));
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    ProgressBar1->setAccessibleName(QStringLiteral("Avance de la serie"));
    pila->addWidget(lblPrimero);
    pila->addWidget(lblSegundo);
    pila->addWidget(ProgressBar1);
    setMinimumWidth(fontMetrics().averageCharWidth() * LetrasDeAncho);
}

void frmPp2_ventana::Muestra()
{
    setWindowTitle(forms::Q(f.titulo));
    forms::Pon(*lblPrimero, f.primero);
    forms::Pon(*lblSegundo, f.segundo);
    ProgressBar1->setVisible(f.porcentaje >= 0);
    ProgressBar1->setValue(f.porcentaje);
    if (f.abierta != isVisible()) setVisible(f.abierta);
    if (!f.abierta) return;
    const QDeadlineTimer plazo(EsperaDePantalla);
    do {
        PintaYa();
    } while (f.abierta && windowHandle() != nullptr && !windowHandle()->isExposed() && !plazo.hasExpired());
    repaint();
}

void frmPp2_ventana::closeEvent(QCloseEvent* evento)
{
    f.abierta = false;
    evento->accept();
}

}  // namespace shell
