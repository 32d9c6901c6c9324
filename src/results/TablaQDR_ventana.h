// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "forms/Entorno_ventana.h"
#include "results/TablaQDR.h"

namespace results {

/// Shows the grid of a series' results: titles merged, headings that sort, a menu that copies and saves.
class VistaQDR : public QTableView {
  public:
    /// `titulo`: what a reader of the screen says, and the name proposed for files.
    VistaQDR(forms::Entorno& alrededor, const TablaQDR& tabla, std::string_view titulo);
    ~VistaQDR() override;

    /// A heading was clicked; columns from 0.
    std::function<void(int columna)> AlPulsarEncabezado = [](int) {};

    /// Name of the component that the table is of; empty: of all.
    std::function<std::string()> Componente = [] { return std::string{}; };

    /// Shows the table as it stands now; what the user looks at stays in sight.
    void Muestra();

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    class Modelo;

    void PonEncabezado();
    void UneTitulos();
    void CopiaSeleccion() const;

    forms::Entorno& entorno;
    const TablaQDR& t;
    std::string_view titulo;
    std::unique_ptr<Modelo> modelo;
};

}  // namespace results
