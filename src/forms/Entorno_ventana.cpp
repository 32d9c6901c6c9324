// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Entorno_ventana.h"

#include <QApplication>
#include <QDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWindow>
#include <algorithm>

#include "model/Avisos.h"

namespace forms {
namespace {

/// The modal dialog on show, where there is one.
QDialog* FormularioModal()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

void PresentaEnEscritorio(QWidget& ventana)
{
    QDialog* const dueno = FormularioModal();
    if (dueno != nullptr && ventana.parentWidget() != dueno) ventana.setParent(dueno, Qt::Window);
    ventana.show();
    ventana.raise();
    ventana.activateWindow();
}

std::unique_ptr<QPrinter> ImpresoraDelSistema()
{
    // A QPrinter without a printer calls itself valid and writes PDF: only this tells.
    const QPrinterInfo porDefecto = QPrinterInfo::defaultPrinter();
    if (porDefecto.isNull()) return nullptr;
    return std::make_unique<QPrinter>(porDefecto, QPrinter::HighResolution);
}

QWidget* VentanaDe(const QWindow* ventana)
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (ventana != nullptr && widget->windowHandle() == ventana) return widget;
    return nullptr;
}

}  // namespace

Entorno::Entorno(model::Siro& estadoSiro)
    : s(estadoSiro),
      Presenta(PresentaEnEscritorio),
      Impresora(ImpresoraDelSistema),
      ajustes(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("SIRO"), QStringLiteral("siro"))
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this](QWindow* ventana) { CambioDeVentana(VentanaDe(ventana)); });
}

int Entorno::Ejecuta(QDialog& dialogo)
{
    if (terminando) throw model::FinDelPrograma{estado};
    const int resultado = dialogo.exec();
    if (terminando) throw model::FinDelPrograma{estado};
    return resultado;
}

void Entorno::Termina(int estadoFinal)
{
    terminando = true;
    estado = estadoFinal;
    QCoreApplication::exit(estado);
}

void Entorno::Informa(const model::Falla& falla)
{
    model::Informa(s, model::TextoFallaMotor(falla));
}

void Entorno::AlActivarse(QWidget& ventana, std::function<void()> rutina)
{
    vigiladas.push_back({&ventana, std::move(rutina)});
}

void Entorno::CambioDeVentana(QWidget* activa)
{
    if (activa == nullptr || activa->windowType() == Qt::Popup || activa->windowType() == Qt::ToolTip) return;
    const bool deLoSuyo = std::find(ultima.begin(), ultima.end(), activa) != ultima.end();
    const bool hayAnterior = !ultima.empty();
    ultima.clear();
    for (QWidget* w = activa; w != nullptr; w = w->parentWidget())
        ultima.emplace_back(w);
    if (deLoSuyo || !hayAnterior) return;

    std::erase_if(vigiladas, [](const Vigilada& v) { return v.ventana.isNull(); });
    const auto vigilada = std::find_if(vigiladas.begin(), vigiladas.end(),
                                       [&](const Vigilada& v) { return v.ventana == activa; });
    if (vigilada == vigiladas.end()) return;
    const std::function<void()> rutina = vigilada->rutina;
    Atiende(rutina);
}

}  // namespace forms
