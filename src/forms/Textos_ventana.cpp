// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Textos_ventana.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalBlocker>

namespace forms {

QString Q(std::string_view texto)
{
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

std::string DeQ(const QString& texto)
{
    return texto.toUtf8().toStdString();
}

QStringList Q(const std::vector<std::string>& textos)
{
    QStringList lista;
    lista.reserve(static_cast<qsizetype>(textos.size()));
    for (const std::string& texto : textos)
        lista.append(Q(texto));
    return lista;
}

void Pon(QLabel& rotulo, std::string_view texto)
{
    if (const QString nuevo = Q(texto); rotulo.text() != nuevo) rotulo.setText(nuevo);
}

void Pon(QLineEdit& campo, std::string_view texto)
{
    const QSignalBlocker silencio(campo);
    if (const QString nuevo = Q(texto); campo.text() != nuevo) campo.setText(nuevo);
}

void Pon(QAbstractButton& boton, bool marcado)
{
    const QSignalBlocker silencio(boton);
    boton.setChecked(marcado);
}

void Pon(QListWidget& lista, const std::vector<std::string>& items, int indice)
{
    const QSignalBlocker silencio(lista);
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i)
        textos.append(lista.item(i)->text());
    if (const QStringList nuevos = Q(items); textos != nuevos) {
        lista.clear();
        lista.addItems(nuevos);
    }
    if (lista.currentRow() != indice) lista.setCurrentRow(indice);
}

namespace {

void PonItems(QComboBox& lista, const std::vector<std::string>& items)
{
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i)
        textos.append(lista.itemText(i));
    const QStringList nuevos = Q(items);
    if (textos == nuevos) return;
    lista.clear();
    lista.addItems(nuevos);
}

}  // namespace

void Pon(QComboBox& lista, const std::vector<std::string>& items, int indice)
{
    const QSignalBlocker silencio(lista);
    PonItems(lista, items);
    if (lista.currentIndex() != indice) lista.setCurrentIndex(indice);
}

void Pon(QComboBox& lista, const std::vector<std::string>& items, std::string_view texto)
{
    const QSignalBlocker silencio(lista);
    PonItems(lista, items);
    const QString nuevo = Q(texto);
    lista.setCurrentIndex(lista.findText(nuevo, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (lista.currentText() != nuevo) lista.setEditText(nuevo);
}

void PonOpcion(QRadioButton& opcion, bool marcada)
{
    const QSignalBlocker silencio(opcion);
    // An option that excludes the others refuses to be cleared, and none of them may be ticked.
    opcion.setAutoExclusive(false);
    opcion.setChecked(marcada);
    opcion.setAutoExclusive(true);
}

void Refleja(QLineEdit& campo, std::string& texto)
{
    QObject::connect(&campo, &QLineEdit::textEdited, &campo,
                     [&texto](const QString& nuevo) { texto = DeQ(nuevo); });
}

void Refleja(QComboBox& lista, std::string& texto)
{
    QObject::connect(&lista, &QComboBox::editTextChanged, &lista,
                     [&texto](const QString& nuevo) { texto = DeQ(nuevo); });
}

}  // namespace forms
