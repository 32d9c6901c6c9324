// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "forms/LineaEnPantalla.h"

// Where the labels of a map stand, so that none covers another.
namespace results {

/// A box on the canvas [pixels].
struct Caja {
    double x = 0, y = 0, ancho = 0, alto = 0;
    /// Boxes that only share an edge don't touch.
    [[nodiscard]] bool Toca(const Caja& otra) const
    {
        return x < otra.x + otra.ancho && otra.x < x + ancho && y < otra.y + otra.alto && otra.y < y + alto;
    }
    [[nodiscard]] bool Encierra(const Caja& otra) const
    {
        return otra.x >= x && otra.y >= y && otra.x + otra.ancho <= x + ancho &&
               otra.y + otra.alto <= y + alto;
    }
    bool operator==(const Caja&) const = default;
};

/// A label that wants a place.
struct RotuloPedido {
    forms::Pixel en{};            ///< what it belongs to
    double aparte = 0;            ///< distance that it keeps from there, on both axes
    std::vector<Caja> tamanos{};  ///< `ancho` and `alto` of its texts, from the fullest to the shortest
};

/// One that has found its place.
struct RotuloPuesto {
    std::size_t pedido = 0;  ///< in the list of those asked for
    std::size_t texto = 0;   ///< in its `tamanos`
    Caja caja{};
    bool operator==(const RotuloPuesto&) const = default;
};

/// What lies on the map already.
struct Estorbos {
    std::vector<Caja> obstaculos{};  ///< symbols, arrows
    std::vector<Caja> evitables{};   ///< pieces of reaches
};

/// Places labels one by one in the order given, those that matter most first: to the right of what they
/// belong to, else left, below, above, then at the corners; the fullest text that has room. A place lies
/// within the frame, and on no label placed before and no obstacle, nor on what it would rather leave free;
/// where there is no such place, its shortest text lies on that. One without any stays out.
std::vector<RotuloPuesto> ColocaRotulos(const std::vector<RotuloPedido>& pedidos, const Caja& marco,
                                        const Estorbos& estorbos);

}  // namespace results
