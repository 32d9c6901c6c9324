// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MenuDeTabla_ventana.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTableView>

namespace forms {

void AbreMenu(Entorno& entorno, QTableView& tabla, const QContextMenuEvent& evento, const MenuDeTabla& m)
{
    const bool porTeclado = evento.reason() == QContextMenuEvent::Keyboard;
    const QModelIndex actual = tabla.currentIndex();
    const int columna = porTeclado ? actual.column()
                                   : tabla.columnAt(tabla.viewport()->mapFromGlobal(evento.globalPos()).x());
    QMenu menu(&tabla);
    menu.setObjectName(QStringLiteral("mnuTabla"));
    m.Antes(menu);
    if (!menu.isEmpty()) menu.addSeparator();
    QAction* const copia = menu.addAction(QStringLiteral("&Copiar la selección"));
    copia->setObjectName(QStringLiteral("mnuCopiaSeleccion"));
    copia->setShortcut(QKeySequence::Copy);
    copia->setEnabled(tabla.selectionModel()->hasSelection());
    QObject::connect(copia, &QAction::triggered, &tabla, [&] { entorno.Atiende(m.Copia); });
    AgregaPlanilla(menu, entorno, m.archivo, m.planilla);
    menu.addSeparator();
    QAction* const ordena = menu.addAction(QStringLiteral("&Ordenar por esta columna"));
    ordena->setObjectName(QStringLiteral("mnuOrdena"));
    ordena->setEnabled(columna >= 0);
    QObject::connect(ordena, &QAction::triggered, &tabla, [&] { m.Ordena(columna); });
    menu.exec(porTeclado ? tabla.viewport()->mapToGlobal(tabla.visualRect(actual).center())
                         : evento.globalPos());
}

}  // namespace forms
