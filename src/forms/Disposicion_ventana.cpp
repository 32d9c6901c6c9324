// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Disposicion_ventana.h"

namespace forms {
namespace {

template <typename Caja>
Caja* Llena(Caja* caja, const Partes& partes)
{
    for (const Parte& parte : partes)
        if (parte.control != nullptr)
            caja->addWidget(parte.control, parte.estira, parte.lugar);
        else if (parte.disposicion != nullptr)
            caja->addLayout(parte.disposicion, parte.estira);
        else if (parte.hueco > 0)
            caja->addSpacing(parte.hueco);
        else
            caja->addStretch(1);
    return caja;
}

}  // namespace

QHBoxLayout* Disposicion::EnFila(const Partes& partes)
{
    return Llena(new QHBoxLayout, partes);
}

QVBoxLayout* Disposicion::EnPila(const Partes& partes)
{
    return Llena(new QVBoxLayout, partes);
}

QGridLayout* Disposicion::EnRejilla(const std::vector<Partes>& filas, std::initializer_list<int> columnas)
{
    auto* const rejilla = new QGridLayout;
    int fila = 0;
    for (const Partes& partes : filas) {
        if (partes.empty()) rejilla->setRowStretch(fila, 1);
        int columna = 0;
        for (const Parte& parte : partes) {
            const int cuantas = &parte == &partes.back() ? -1 : 1;
            if (parte.control != nullptr)
                rejilla->addWidget(parte.control, fila, columna, 1, cuantas, parte.lugar);
            if (parte.disposicion != nullptr)
                rejilla->addLayout(parte.disposicion, fila, columna, 1, cuantas, parte.lugar);
            if (parte.estira > 0) rejilla->setRowStretch(fila, parte.estira);
            ++columna;
        }
        ++fila;
    }
    int columna = 0;
    for (const int cuanto : columnas)
        rejilla->setColumnStretch(columna++, cuanto);
    return rejilla;
}

}  // namespace forms
