// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "forms/Formulario_ventana.h"
#include "forms/Grafico.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "rainfall/Piezas_ventana.h"

class QBoxLayout;
class QGroupBox;
class QPushButton;

namespace rainfall {

/// What the forms that the storm dialog opens have in common: a table with its chart beside it, below them a
/// row of buttons that ends with apply, accept and cancel.
class FormaDeTabla_ventana : public forms::Formulario {
  public:
    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();

    /// The form has shown what an event made of it; the dialog behind it shows what that has changed there.
    std::function<void()> AlMostrarse = [] {};

  protected:
    using Rutina = std::function<void()>;

    FormaDeTabla_ventana(forms::Entorno& alrededor, std::string_view nombre, std::string_view titulo,
                         std::span<const forms::FilaRotulo> leyendas, QWidget* padre);

    /// The form's own opening, which returns whether it is open, and its closing without an effect.
    virtual bool AbreForma() = 0;
    virtual void Cancela() = 0;
    void AlCerrar() override;

    /// Makes `tabla` and `lamina`, in their frame; their names are their captions' too.
    QGroupBox* HazTabla(forms::Grilla& grilla, std::string_view nombre, std::string_view nombreLamina);
    /// Adds a button to a row.
    QPushButton* Agrega(QBoxLayout& fila, std::string_view nombre, Rutina rutina);
    /// Ends the row of buttons.
    void AgregaFinales(QBoxLayout& fila, Rutina aplicar, Rutina aceptar);
    /// The last part of what `Muestra` does.
    void MuestraTabla(const forms::Grafico& vista, forms::Foco& foco, bool abierta);

    Piezas piezas;
    forms::TablaGrilla* tabla = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
