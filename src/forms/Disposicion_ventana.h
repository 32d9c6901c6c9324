// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>
#include <initializer_list>
#include <vector>

// Where the controls of a window stand, as nested lists of parts. Controls are given their window in this
// order, which is that of the Tab key.
namespace forms {

/// A control, a layout, or neither: room.
struct Parte {
    Parte(QWidget* unControl, int cuanto = 0, Qt::Alignment suLugar = {})
        : control(unControl), estira(cuanto), lugar(suLugar)
    {
    }
    Parte(QLayout* unaDisposicion, int cuanto = 0, Qt::Alignment suLugar = {})
        : disposicion(unaDisposicion), estira(cuanto), lugar(suLugar)
    {
    }
    explicit Parte(int pixeles) : hueco(pixeles) {}

    QWidget* control = nullptr;
    QLayout* disposicion = nullptr;
    int estira = 0;  ///< share of the room that is left over, in a grid of the height
    Qt::Alignment lugar{};
    int hueco = 0;  ///< [pixels]; 0: what is left over
};
using Partes = std::vector<Parte>;

/// What the windows arrange their controls with.
struct Disposicion {
    /// Room: so many pixels; with none what is left over, and in a grid an empty cell.
    static Parte Hueco(int pixeles = 0) { return Parte(pixeles); }
    static QHBoxLayout* EnFila(const Partes& partes);
    static QVBoxLayout* EnPila(const Partes& partes);
    /// A grid by its rows, whose last part goes as far as the grid does, and the shares of its columns. An
    /// empty row takes the height that is left over.
    static QGridLayout* EnRejilla(const std::vector<Partes>& filas, std::initializer_list<int> columnas = {});

    /// Shows a label's text in bold.
    template <typename T>
    static T* EnNegrita(T* rotulo)
    {
        QFont letra = rotulo->font();
        letra.setBold(true);
        rotulo->setFont(letra);
        return rotulo;
    }
    /// Keeps the place of what a form hides, so that nothing jumps.
    template <typename T>
    static T* ConservaLugar(T* widget)
    {
        QSizePolicy politica = widget->sizePolicy();
        politica.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(politica);
        return widget;
    }
};

}  // namespace forms
