// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "forms/CampoNumerico.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Rotulo.h"

class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace rainfall {

/// Makes the controls of a form as its table of captions tells. They belong to the window.
class Piezas {
  public:
    Piezas(QWidget& duenna, std::span<const forms::FilaRotulo> tabla) : ventana(duenna), leyendas(tabla) {}

    QLineEdit* Campo(std::string_view nombre) const;
    /// A list to pick from; with `conTexto` its text may be one that no item has.
    QComboBox* Lista(std::string_view nombre, bool conTexto = false) const;
    /// A button that Enter in a field doesn't press.
    QPushButton* Boton(std::string_view nombre) const;
    QRadioButton* Opcion(std::string_view nombre) const;
    QGroupBox* Marco(std::string_view nombre) const;
    /// Caption of a control, which its mnemonic leads to.
    QLabel* Rotulo(std::string_view nombre, QWidget& control) const;
    /// A label whose text comes from the record, one that wraps.
    QLabel* Texto(std::string_view nombre) const;

    [[nodiscard]] forms::FilaRotulo De(std::string_view nombre) const;

    /// Gives a control its name, its hint and what a reader of the screen says.
    void Nombra(QWidget& control, std::string_view nombre) const;

    /// A table in its frame with its chart beside it.
    QGroupBox* TablaConLamina(forms::TablaGrilla& tabla, forms::Lamina& lamina) const;

  private:
    QWidget& ventana;
    std::span<const forms::FilaRotulo> leyendas;
};

/// Gives a table the width of its columns and room for ten rows at least, and a window a size in which
/// nothing is cut.
void Acomoda(QWidget& ventana, forms::TablaGrilla& tabla);

/// Sends the focus where the record wants it, once.
void LlevaFoco(QWidget& ventana, forms::Foco& foco);

}  // namespace rainfall
