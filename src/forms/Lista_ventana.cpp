// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Lista_ventana.h"

#include <QKeyEvent>

namespace forms {

ListaParaElegir::ListaParaElegir(QWidget* padre) : QListWidget(padre)
{
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { Elige(row(item)); });
}

void ListaParaElegir::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        evento->accept();
        if (currentRow() >= 0) Elige(currentRow());
        return;
    default:
        break;
    }
    const int antes = currentRow();
    QListWidget::keyPressEvent(evento);
    if (currentRow() < 0 || currentRow() == antes) return;
    if (conFlechas)
        Elige(currentRow());
    else
        porElegir = currentRow();
}

void ListaParaElegir::Elige(int fila)
{
    porElegir = -1;
    AlElegir(fila);
}

}  // namespace forms
