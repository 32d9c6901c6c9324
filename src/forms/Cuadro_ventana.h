// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>
#include <QVariant>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Entorno_ventana.h"

class QMenu;

namespace forms {

/// Shows a table of results: whole rows are selected, headings sort, long cells go over several lines, a menu
/// copies and saves. A double click or Enter chooses a row. The table must outlive the view.
class TablaCuadro : public QTableView {
  public:
    /// `nombre`: object name; `titulo`: what a reader of the screen says, and the name proposed for files.
    TablaCuadro(Entorno& alrededor, const Cuadro& cuadro, std::string_view nombre, std::string_view titulo);
    ~TablaCuadro() override;

    /// Widths of the columns [letters], 0 for those that share what is left over. Columns beyond them are in
    /// what is saved but not on show.
    void PonColumnas(std::vector<int> letras);

    // Rows by their places in the table, columns from 0.
    std::function<void(int columna)> AlPulsarEncabezado = [](int) {};
    std::function<void(std::size_t fila)> AlElegir = [](std::size_t) {};
    /// Other rows are selected, or none.
    std::function<void()> AlMoverse = [] {};
    /// What a cell has beside its text, by the toolkit's roles: icon, alignment, colour.
    std::function<QVariant(std::size_t fila, int columna, int papel)> Adorno = [](std::size_t, int, int) {
        return QVariant();
    };
    /// Entries of the menu ahead of its own.
    std::function<void(QMenu& menu)> AlArmarMenu = [](QMenu&) {};
    /// What is copied whole and saved.
    std::function<Planilla()> DaPlanilla;

    /// Shows the table as it stands now; the cursor and what the user looks at stay where they are.
    void Muestra();
    /// Rows selected, in the order on show.
    [[nodiscard]] std::vector<std::size_t> Elegidas() const;
    /// Row with the cursor; none: the number of rows.
    [[nodiscard]] std::size_t Actual() const;

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void selectionChanged(const QItemSelection& nueva, const QItemSelection& vieja) override;

  private:
    class Modelo;

    void PonEncabezado();
    void ReparteAncho();
    void Copia() const;
    void Elige(const QModelIndex& indice);

    Entorno& entorno;
    const Cuadro& c;
    std::string_view titulo;
    std::vector<int> letras{};
    std::unique_ptr<Modelo> modelo;
};

}  // namespace forms
