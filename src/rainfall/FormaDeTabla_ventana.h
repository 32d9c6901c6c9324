// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

#include "forms/Formulario_ventana.h"
#include "forms/Grafico.h"
#include "forms/Grilla_ventana.h"

namespace rainfall {

/// What the forms that the storm dialog opens have in common: a table with its chart beside it, below them a
/// row of buttons that ends with apply, accept and cancel.
class FormaDeTabla_ventana : public forms::Formulario {
  public:
    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();

    /// Gives the table the width of its columns and room for ten rows at least, and the window a size in
    /// which nothing is cut.
    void Acomoda();

    /// The form shows what an event made of it; the dialog behind it shows what that has changed there.
    std::function<void()> AlMostrarse = [] {};

  protected:
    FormaDeTabla_ventana(forms::Entorno& alrededor, const forms::DescripcionDeVentana& descripcion,
                         QWidget* padre);

    /// The form's own opening, and its closing without an effect.
    virtual void AbreForma() = 0;
    virtual void Cancela() = 0;
    void AlCerrar() override;

    /// Makes `tabla` in its frame with its chart beside it. Where an event of the grid settles cells, the
    /// record is told first.
    QGroupBox* MarcoDeTabla(forms::Grilla& grilla, std::string_view nombre, std::string_view nombreCurva,
                            std::function<forms::Grafico()> vista,
                            std::function<void(const forms::Efecto&)> alAsentar = {});
    /// The row of buttons: the form's own, room, and the last ones.
    QLayout* Botones(forms::Partes partes, std::function<void()> aplicar, std::function<void()> aceptar);
    QPushButton* BotonCancelar();
    /// A frame beside the given ones, named after what it holds.
    QGroupBox* MarcoDe(std::string_view control, QLayout* dentro);

    forms::TablaGrilla* tabla = nullptr;
};

}  // namespace rainfall
