// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "forms/Entorno_ventana.h"
#include "forms/Grilla.h"

namespace forms {

/// Shows a grid and hands it keys, clicks and blocks of a spreadsheet. What can be edited is light, the rest
/// grey. The grid must outlive the view.
class TablaGrilla : public QTableView {
  public:
    /// `nombre`: object name; `titulo`: what a reader of the screen says.
    TablaGrilla(Entorno& alrededor, Grilla& mostrada, std::string_view nombre, std::string_view titulo);
    ~TablaGrilla() override;

    /// Runs behind every event that may have changed a cell, with what it settled.
    std::function<void(const Efecto&)> AlCambiar = [](const Efecto&) {};

    /// Undoing and doing again where the grid has no step of its own; none: nothing happens.
    std::function<void()> DeshaceFuera{}, RehaceFuera{};

    /// Tip of a cell, or of a column's title in row 0; an empty one: that of the view.
    std::function<std::string(Celda)> AyudaDe = [](Celda) { return std::string(); };

    /// Shows the grid as it stands now.
    void Muestra();

  protected:
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery consulta) const override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

  private:
    class Modelo;

    /// Returns whether the focus goes on to the next control.
    template <typename Cuerpo>
    bool Suceso(Cuerpo&& cuerpo);
    void Mueve(Celda celda, bool extiende);
    void Escribe(const QString& texto);
    bool TeclaDeOrden(const QKeyEvent& evento);
    bool TeclaDeCelda(const QKeyEvent& evento);
    bool TeclaDeHoja(const QKeyEvent& evento);
    void TeclaDeGrilla(Tecla tecla, bool extiende);
    void Copia(bool conTitulos);
    void Pega();
    void Deshace();
    void Rehace();
    void SeleccionaTodo();
    void PonSeleccion();
    void AjustaColumnas();

    Entorno& entorno;
    Grilla& grilla;
    std::unique_ptr<Modelo> modelo;
};

}  // namespace forms
