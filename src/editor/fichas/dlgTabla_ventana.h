// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editor/fichas/dlgTabla.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class Lamina;
class TablaGrilla;
}  // namespace forms

namespace editor {

/// The editor of a table of a Represa or a Lago, its curves beside it.
class dlgTabla_ventana : public forms::Formulario {
  public:
    dlgTabla_ventana(forms::Entorno& alrededor, dlgTabla& registro, TipoTabla tipoTabla,
                     QWidget* padre = nullptr);

    /// Shows the table of the selected component until the form is closed; the labels are those of the form
    /// behind. Runs inside an event.
    void Abre(std::string lblNro, std::string lblNombre);

    /// Runs whenever the tables may have been read or written.
    std::function<void()> AlCambiarTablas = [] {};

    /// It opens with its rows in order, not applied yet.
    bool ordenada = false;

  protected:
    void AlCerrar() override;
    bool SinAplicar() override { return editor::SinAplicar(f); }

  private:
    QLayout* Encabezado();
    QLayout* Botones();
    [[nodiscard]] QSize TamanoInicial() const;
    void PonCurvas();

    dlgTabla& f;
    TipoTabla tipo;
    const DescripcionTabla& d;
    QLineEdit* txtNroFilas = nullptr;
    forms::TablaGrilla* tabla = nullptr;
    std::vector<forms::Lamina*> curvas{};
};

}  // namespace editor
