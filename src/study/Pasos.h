// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Rotulo.h"
#include "study/Abierto.h"

// Rules of a window with steps on the study of the project in hand: the step, undo and redo, how the study's
// file stands. What else is in hand, and the pages, are each window's own.
namespace study {

inline constexpr auto RotulosDePasos = std::to_array<forms::FilaRotulo>({
    {"cmdDeshacer", "Deshacer", "Vuelve atrás el último cambio (Ctrl+Z)"},
    {"cmdRehacer", "Rehacer", "Repite el cambio deshecho (Ctrl+Y)"},
    {"cmdArchivo", "&Reintentar", "Vuelve a guardar el estudio; uno dañado se aparta con otro nombre"},
    {"cmdImprimirTabla", "Imprimir &tabla", "Imprime entera la tabla de este paso"},
    {"cmdImprimirPagina", "Imprimir &página", "Imprime este paso como se ve, con su gráfico"},
    {"OKButton", "Ce&rrar"},
});

/// Rows of a window of its own ahead of those that all windows with steps have.
template <std::size_t N>
constexpr auto ConRotulosDePasos(const std::array<forms::FilaRotulo, N>& propios)
{
    std::array<forms::FilaRotulo, N + RotulosDePasos.size()> todos{};
    std::copy(propios.begin(), propios.end(), todos.begin());
    std::copy(RotulosDePasos.begin(), RotulosDePasos.end(), todos.begin() + N);
    return todos;
}

struct Pasos {
    explicit Pasos(Abierto& suEstudio) : estudio(suEstudio) {}
    virtual ~Pasos() = default;
    Pasos(const Pasos&) = delete;
    Pasos& operator=(const Pasos&) = delete;

    /// Fills the lists of what is in hand, which stays within what there is.
    virtual void TomaEnMano() {}

    Abierto& estudio;  ///< of the project in hand
    bool abierta = false;
    int paso = 0;                             ///< from 0
    std::string cmdDeshacer{}, cmdRehacer{};  ///< captions
    std::string lblArchivo{};                 ///< what is wrong with the study's file
    bool danado = false;                      ///< it can't be read
};

/// Fills lists and captions.
void Toma(Pasos& f);
/// A change that undoing takes back; the caption says what it was, "Quitar la estación". Nothing without a
/// project.
void CambiaEstudio(Pasos& f, std::string_view leyenda, const std::function<void(Estudio&)>& cambio);
void cmdDeshacer(Pasos& f);
void cmdRehacer(Pasos& f);
/// Tries the study's file again; puts one that can't be read aside.
void cmdArchivo(Pasos& f);
void OKButton(Pasos& f);

/// Why no page can be shown; empty: a project is open.
std::string FaltaProyecto(const Pasos& f);

/// Item i of a list; none: null.
template <typename T>
const T* Item(const std::vector<T>& lista, int i)
{
    return i >= 0 && std::cmp_less(i, lista.size()) ? &lista[static_cast<std::size_t>(i)] : nullptr;
}

/// The same, made where there isn't one.
template <typename T>
T& ItemPuesto(std::vector<T>& lista, int i)
{
    if (lista.empty()) lista.emplace_back();
    return lista[std::min(static_cast<std::size_t>(std::max(i, 0)), lista.size() - 1)];
}

/// An item that there is, from 0; 0 where there is none.
inline int Dentro(int i, std::size_t cuantos)
{
    return std::clamp(i, 0, std::max(0, static_cast<int>(cuantos) - 1));
}

}  // namespace study
