// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Contenido_ventana.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>
#include <optional>

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

std::optional<QString> ValorDe(const QWidget& control)
{
    if (const auto* const campo = qobject_cast<const QLineEdit*>(&control)) return campo->text();
    if (const auto* const lista = qobject_cast<const QComboBox*>(&control)) return lista->currentText();
    if (const auto* const lista = qobject_cast<const QListWidget*>(&control))
        return lista->currentItem() == nullptr ? QString() : lista->currentItem()->text();
    const auto* const boton = qobject_cast<const QAbstractButton*>(&control);
    if (boton != nullptr && boton->isCheckable()) return QString(QLatin1Char(boton->isChecked() ? '1' : '0'));
    return {};
}

QString LeyendaDe(const QWidget& control)
{
    const auto* const boton = qobject_cast<const QAbstractButton*>(&control);
    const QString leyenda = boton == nullptr ? control.accessibleName() : boton->text();
    return QString(leyenda).remove(QLatin1Char('&')).trimmed();
}

TablaEscrita CeldasDe(const TablaGrilla& tabla)
{
    TablaEscrita escrita{DeQ(tabla.objectName()), DeQ(LeyendaDe(tabla)), {}};
    const QAbstractItemModel& modelo = *tabla.model();
    std::vector<std::string>& titulos = escrita.filas.emplace_back();
    for (int j = 0; j < modelo.columnCount(); ++j)
        titulos.push_back(DeQ(modelo.headerData(j, Qt::Horizontal).toString().simplified()));
    for (int i = 0; i < modelo.rowCount(); ++i) {
        std::vector<std::string>& fila = escrita.filas.emplace_back();
        for (int j = 0; j < modelo.columnCount(); ++j)
            fila.push_back(DeQ(modelo.index(i, j).data().toString()));
    }
    return escrita;
}

bool SinAplicar(const QWidget& ventana)
{
    return ventana.isVisible() && ventana.isWindowModified() &&
           dynamic_cast<const Formulario*>(&ventana) != nullptr;
}

}  // namespace

Contenido TomaContenido(const QWidget& ventana)
{
    Contenido contenido{.ventana = DeQ(ventana.objectName()),
                        .titulo = DeQ(ventana.windowTitle().remove(QStringLiteral("[*]"))),
                        .campos = {},
                        .tablas = {}};
    for (const QWidget* const control : ventana.findChildren<QWidget*>()) {
        // The parts of a control, and those of windows above this one, are nothing of its own.
        if (control->objectName().isEmpty() || control->objectName().startsWith(QLatin1String("qt_")) ||
            control->window() != &ventana)
            continue;
        if (const auto* const tabla = dynamic_cast<const TablaGrilla*>(control))
            contenido.tablas.push_back(CeldasDe(*tabla));
        else if (const std::optional<QString> valor = ValorDe(*control))
            contenido.campos.push_back({DeQ(control->objectName()), DeQ(LeyendaDe(*control)), DeQ(*valor)});
    }
    return contenido;
}

std::vector<Contenido> ContenidosSinAplicar()
{
    std::vector<Contenido> contenidos;
    for (const QWidget* const ventana : QApplication::topLevelWidgets())
        if (SinAplicar(*ventana)) contenidos.push_back(TomaContenido(*ventana));
    return contenidos;
}

bool HaySinAplicar()
{
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    return std::any_of(ventanas.begin(), ventanas.end(),
                       [](const QWidget* ventana) { return SinAplicar(*ventana); });
}

}  // namespace forms
