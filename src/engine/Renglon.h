// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace engine {

/// A line of columns under construction. Widths are in characters; a longer text is written whole.
///
/// A run writes hundreds of thousands of numbers: each goes straight to its place in the line, and blanks go
/// by the word, so that room beyond the line's end is written too.
class Renglon {
  public:
    /// Starts the line anew and keeps its room.
    void Vacia() { largo = 0; }
    [[nodiscard]] std::string_view Texto() const { return {lugar.data(), largo}; }

    Renglon& Pone(std::string_view t)
    {
        std::copy(t.begin(), t.end(), Hueco(t.size()));
        largo += t.size();
        return *this;
    }
    Renglon& Blancos(std::size_t n) { return Hasta(PonBlancos(Hueco(n), n)); }

    /// A number, blanks on the right up to the width.
    template <typename Numero>
    Renglon& Izquierda(Numero x, std::size_t ancho)
    {
        char* p = Hueco(model::LargoNumero + ancho);
        char* fin = model::EscribeNumero(p, x);
        return Hasta(PonBlancos(fin, Faltan(static_cast<std::size_t>(fin - p), ancho)));
    }
    /// A number, blanks on the left up to the width.
    template <typename Numero>
    Renglon& Derecha(Numero x, std::size_t ancho)
    {
        char cifras[model::LargoNumero];
        const auto n = static_cast<std::size_t>(model::EscribeNumero(cifras, x) - cifras);
        char* p = Hueco(model::LargoNumero + ancho);
        p = PonBlancos(p, Faltan(n, ancho));
        std::memcpy(p, cifras, sizeof cifras);
        return Hasta(p + n);
    }
    /// A text, blanks on the left up to the width.
    Renglon& DerechaTexto(std::string_view t, std::size_t ancho)
    {
        return Blancos(Faltan(model::CuentaCaracteres(t), ancho)).Pone(t);
    }
    /// A number as the detail sheets write it, with a blank ahead unless it is negative, then `blancos`
    /// blanks.
    template <typename Numero>
    Renglon& Detalle(Numero x, std::size_t blancos)
    {
        char* p = Hueco(1 + model::LargoNumero + blancos);
        *p = ' ';
        char* fin = model::EscribeNumero(p + 1, x);
        if (p[1] == '-') fin = std::copy(p + 1, fin, p);
        return Hasta(PonBlancos(fin, blancos));
    }

  private:
    static constexpr std::string_view Palabra = "                ";

    /// Columns that a text of n characters leaves free.
    static std::size_t Faltan(std::size_t n, std::size_t ancho) { return n < ancho ? ancho - n : 0; }
    /// Writes n blanks, and up to a word of them behind.
    static char* PonBlancos(char* p, std::size_t n)
    {
        std::memcpy(p, Palabra.data(), Palabra.size());
        if (n > Palabra.size()) std::memset(p, ' ', n);
        return p + n;
    }
    /// Room for n more characters and a word of blanks.
    char* Hueco(std::size_t n)
    {
        const std::size_t hace = largo + n + Palabra.size();
        if (lugar.size() < hace) lugar.resize(2 * hace);
        return lugar.data() + largo;
    }
    Renglon& Hasta(const char* fin)
    {
        largo = static_cast<std::size_t>(fin - lugar.data());
        return *this;
    }

    std::string lugar;      ///< the line's characters, and room
    std::size_t largo = 0;  ///< of the line
};

}  // namespace engine
