// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/SignoDecimal_ventana.h"

#include <QActionGroup>
#include <QLocale>
#include <QMenu>

namespace forms {
namespace {

/// Whether the desktop's sign is in use.
constexpr char Ajuste[] = "planilla/signoDelEscritorio";

SignoDecimal DelEscritorio()
{
    return {QLocale::system().decimalPoint() == QLatin1String(",") ? ',' : '.'};
}

bool EligioElDelEscritorio(Entorno& entorno)
{
    return entorno.Ajustes().value(QLatin1String(Ajuste), false).toBool();
}

}  // namespace

SignoDecimal SignoElegido(Entorno& entorno)
{
    return EligioElDelEscritorio(entorno) ? DelEscritorio() : SignoDecimal{};
}

void AgregaSignoDecimal(QMenu& menu, Entorno& entorno)
{
    QMenu* const signos = menu.addMenu(QStringLiteral("S&igno decimal al copiar y en CSV"));
    signos->setObjectName(QStringLiteral("mnuSignoDecimal"));
    auto* const grupo = new QActionGroup(signos);
    const auto agrega = [&](const char* nombre, const QString& leyenda, bool escritorio) {
        QAction* const accion = signos->addAction(leyenda);
        accion->setObjectName(QString::fromUtf8(nombre));
        accion->setCheckable(true);
        accion->setChecked(EligioElDelEscritorio(entorno) == escritorio);
        grupo->addAction(accion);
        QObject::connect(accion, &QAction::triggered, &menu, [&entorno, escritorio] {
            entorno.Ajustes().setValue(QLatin1String(Ajuste), escritorio);
        });
    };
    agrega("mnuSignoPunto", QStringLiteral("&Punto: 1.5"), false);
    agrega(
        "mnuSignoEscritorio",
        QStringLiteral("El del &escritorio: 1%1").arg(QLatin1Char(DelEscritorio().signo)) + QLatin1Char('5'),
        true);
}

}  // namespace forms
