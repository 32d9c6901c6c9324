// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "forms/Planilla_ventana.h"

class QContextMenuEvent;
class QMenu;
class QTableView;

namespace forms {

/// What the menu of a table that nobody edits does.
struct MenuDeTabla {
    std::string archivo{};  ///< proposed for its files
    DaPlanilla planilla{};
    std::function<void()> Copia{};  ///< the selection; runs inside an event
    std::function<void(int columna)> Ordena{};
    std::function<void(QMenu& menu)> Antes = [](QMenu&) {};  ///< entries of the form's own, on top
};

/// Opens the menu where it was asked for, by the mouse or by its key, until it is closed.
void AbreMenu(Entorno& entorno, QTableView& tabla, const QContextMenuEvent& evento, const MenuDeTabla& m);

}  // namespace forms
