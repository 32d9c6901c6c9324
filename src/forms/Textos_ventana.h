// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

// From what a form's record holds to what its controls show. A control takes only what differs, so that the
// cursor stays where the user has it, and tells nobody, so that what the program sets calls no handler.
namespace forms {

/// UTF-8 to Qt and back.
QString Q(std::string_view texto);
std::string DeQ(const QString& texto);
QStringList Q(const std::vector<std::string>& textos);

void Pon(QLabel& rotulo, std::string_view texto);
void Pon(QLineEdit& campo, std::string_view texto);
void Pon(QAbstractButton& boton, bool marcado);
/// Items and the one selected, from 0; -1: none.
void Pon(QListWidget& lista, const std::vector<std::string>& items, int indice);
void Pon(QComboBox& lista, const std::vector<std::string>& items, int indice);
/// Items and the text of a list that can be typed into.
void Pon(QComboBox& lista, const std::vector<std::string>& items, std::string_view texto);

/// An option of several of which one at most is ticked.
void PonOpcion(QRadioButton& opcion, bool marcada);

/// From the control to the record: each edit of the user is in the text at once, so that showing the record
/// never wipes what is being typed.
void Refleja(QLineEdit& campo, std::string& texto);
void Refleja(QComboBox& lista, std::string& texto);

}  // namespace forms
