// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace engine {

/// A line of columns under construction. Widths are in characters; a longer text is written whole.
class Renglon {
  public:
    /// Starts the line anew and keeps its room.
    void Vacia() { texto.clear(); }
    [[nodiscard]] const std::string& Texto() const { return texto; }

    Renglon& Pone(std::string_view t)
    {
        texto.append(t);
        return *this;
    }
    Renglon& Blancos(std::size_t n)
    {
        texto.append(n, ' ');
        return *this;
    }
    /// A number, blanks on the right up to the width.
    template <typename Numero>
    Renglon& Izquierda(Numero x, std::size_t ancho)
    {
        char cifras[model::LargoNumero];
        const auto largo = static_cast<std::size_t>(model::EscribeNumero(cifras, x) - cifras);
        texto.append(cifras, largo);
        if (largo < ancho) texto.append(ancho - largo, ' ');
        return *this;
    }
    /// A number, blanks on the left up to the width.
    template <typename Numero>
    Renglon& Derecha(Numero x, std::size_t ancho)
    {
        char cifras[model::LargoNumero];
        const auto largo = static_cast<std::size_t>(model::EscribeNumero(cifras, x) - cifras);
        if (largo < ancho) texto.append(ancho - largo, ' ');
        texto.append(cifras, largo);
        return *this;
    }
    /// A text, blanks on the left up to the width.
    Renglon& DerechaTexto(std::string_view t, std::size_t ancho)
    {
        const std::size_t largo = model::CuentaCaracteres(t);
        if (largo < ancho) texto.append(ancho - largo, ' ');
        texto.append(t);
        return *this;
    }
    /// A number as the detail sheets write it, with a blank ahead unless it is negative, then `blancos`
    /// blanks.
    template <typename Numero>
    Renglon& Detalle(Numero x, std::size_t blancos)
    {
        char cifras[model::LargoNumero];
        const char* fin = model::EscribeNumero(cifras, x);
        if (cifras[0] != '-') texto.push_back(' ');
        texto.append(cifras, static_cast<std::size_t>(fin - cifras));
        texto.append(blancos, ' ');
        return *this;
    }

  private:
    std::string texto;
};

}  // namespace engine
