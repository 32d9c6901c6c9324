// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/taller/dlgAjuste.h"
#include "forms/CampoNumerico.h"

// What the steps share that ask for something of many runs. P is the study's part that says what, M the
// page's record.
namespace calibration {

/// A number field: what it takes, what its step of undo is called, where text and number stand.
template <typename M, typename P>
struct CampoDePedido {
    forms::ReglaNumero regla;
    std::string_view leyenda;
    std::string M::*texto;
    void (*pone)(P& pedido, double x);
    bool (*vale)(double x) = nullptr;  ///< what the number must be besides
};

/// A change of the study's part, as one step that undoing takes back.
template <typename P>
void CambiaPedido(dlgAjuste& f, std::string_view leyenda, P study::Ajuste::*parte,
                  const std::function<void(P&)>& cambio)
{
    Cambia(f, leyenda, [&](study::Ajuste& a) { cambio(a.*parte); });
}

/// A field is left. Returns false where its text is refused, which has been told.
template <typename M, typename P>
bool SaleDelCampo(M& m, dlgAjuste& f, std::span<const CampoDePedido<M, P>> campos, P study::Ajuste::*parte,
                  std::string_view control)
{
    const auto campo =
        std::find_if(campos.begin(), campos.end(), [&](const auto& c) { return c.regla.control == control; });
    if (campo == campos.end()) return true;
    std::string& texto = m.*(campo->texto);
    if (!forms::AlSalir(f.s, campo->regla, texto)) return false;
    const double x = *forms::NumeroDeCampo(texto);
    if (campo->vale != nullptr && !campo->vale(x)) {
        forms::MuestraRechazo(f.s, campo->regla.rechazo, campo->regla.mensaje);
        return false;
    }
    CambiaPedido<P>(f, campo->leyenda, parte, [&](P& pedido) { campo->pone(pedido, x); });
    return true;
}

/// Place of a key in a table of rows; `siNo` where it isn't there.
int LugarDe(const auto& filas, std::string_view clave, int siNo = 0)
{
    const auto i = std::ranges::find(filas, clave, [](const auto& fila) { return fila.clave; });
    return i == filas.end() ? siNo : static_cast<int>(i - filas.begin());
}

/// Item of a list that bears a name; the first one, which stands for "the first", where none does.
inline int ItemDe(const std::vector<std::string>& items, const std::string& nombre)
{
    const auto i = std::find(items.begin() + 1, items.end(), nombre);
    return nombre.empty() || i == items.end() ? 0 : static_cast<int>(i - items.begin());
}

/// The name of an item of such a list; empty: the first one.
inline std::string DeItem(const std::vector<std::string>& items, int cual)
{
    return cual > 0 ? items.at(static_cast<std::size_t>(cual)) : std::string();
}

/// Sentences, a line each.
inline std::string Linea(const std::vector<std::string>& frases)
{
    std::string t;
    for (const std::string& frase : frases)
        t += (t.empty() ? "• " : "\n• ") + frase;
    return t;
}

}  // namespace calibration
