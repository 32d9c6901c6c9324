// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <type_traits>

#include "editor/Cauces.h"
#include "model/Clases.h"
#include "model/Siro.h"

// What of the network the user has in hand: the components that are selected in the drawing, or in a form.
namespace editor {

/// Number of the selected component of a kind; 0: none.
template <typename T>
auto& Elegido(auto& seleccion)
{
    if constexpr (std::is_same_v<T, model::UEH>)
        return seleccion.UEHSel;
    else if constexpr (std::is_same_v<T, model::Cauce>)
        return seleccion.CauceSel;
    else if constexpr (std::is_same_v<T, model::Lago>)
        return seleccion.LagoSel;
    else
        return seleccion.RepresaSel;
}

/// The selected component of a kind. Throws Falla 9 or 91 where none is.
template <typename T>
T& EnMano(model::Siro& s)
{
    return model::Todos<T>(s.Red).Ranura(Elegido<T>(s.Seleccion));
}

/// Whether a kind has a component selected that is there.
template <typename T>
bool HayEnMano(const model::Siro& s)
{
    int cuenta = model::Todos<T>(s.Red).Cuenta();
    if constexpr (std::is_same_v<T, model::Cauce>) cuenta = CaucesEnteros(s.Red);
    const int n = Elegido<T>(s.Seleccion);
    return n > 0 && n <= cuenta;
}

/// How many kinds have a component selected.
inline int CuantosElegidos(const model::Seleccion& sel)
{
    return (sel.CauceSel > 0) + (sel.UEHSel > 0) + (sel.RepresaSel > 0) + (sel.LagoSel > 0);
}

/// Whether a network has no component.
inline bool RedVacia(const model::Red& red)
{
    int cuantos = 0;
    model::CadaComponente(red, [&](const auto&) { ++cuantos; });
    return cuantos == 0;
}

/// CauceSel, CauceAnterior, UEHSel, RepresaSel, LagoSel, VerticeSel := 0.
inline void LimpiaSeleccion(model::Siro& s)
{
    s.Seleccion = {};
}

}  // namespace editor
