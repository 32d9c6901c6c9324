// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace editor {

/// Writes a metafile record by record.
class DibujaMetarchivo {
  public:
    DibujaMetarchivo& Registro(std::uint16_t funcion, std::initializer_list<int> palabras,
                               std::string_view bytes = {})
    {
        std::string datos;
        for (const int palabra : palabras)
            Palabra(datos, palabra);
        datos.append(bytes);
        if (datos.size() % 2 != 0) datos += '\0';
        Larga(cuerpo, static_cast<std::uint32_t>(datos.size() / 2 + 3));
        Palabra(cuerpo, funcion);
        cuerpo += datos;
        return *this;
    }
    /// Bytes of the file. With a frame where its inch isn't 0.
    [[nodiscard]] std::string Bytes(int ancho = 0, int alto = 0, int pulgada = 0) const
    {
        std::string archivo;
        if (pulgada != 0) {
            Larga(archivo, 0x9AC6CDD7);
            for (const int palabra : {0, 0, 0, ancho, alto, pulgada, 0, 0, 0})
                Palabra(archivo, palabra);
        }
        for (const int palabra : {1, 9, 0x300})
            Palabra(archivo, palabra);
        Larga(archivo, static_cast<std::uint32_t>(cuerpo.size() / 2 + 12));
        Palabra(archivo, 16);
        Larga(archivo, 64);
        Palabra(archivo, 0);
        archivo += cuerpo;
        Larga(archivo, 3);
        Palabra(archivo, 0);
        return archivo;
    }

  private:
    static void Palabra(std::string& bytes, int n)
    {
        const auto palabra = static_cast<std::uint16_t>(n);
        bytes += static_cast<char>(palabra & 0xFFU);
        bytes += static_cast<char>(palabra >> 8U);
    }
    static void Larga(std::string& bytes, std::uint32_t n)
    {
        Palabra(bytes, static_cast<int>(n & 0xFFFFU));
        Palabra(bytes, static_cast<int>(n >> 16U));
    }
    std::string cuerpo{};
};

/// A square of 100 units: blue ground, a red polygon over its left half, a green ellipse, a line, a text with
/// accents, a bitmap of two pixels.
inline DibujaMetarchivo DibujoDeMuestra()
{
    using namespace std::string_view_literals;
    DibujaMetarchivo d;
    d.Registro(0x020B, {0, 0}).Registro(0x020C, {100, 100});
    d.Registro(0x02FA, {5, 0, 0, 0, 0});            // 0: no outline
    d.Registro(0x02FC, {0, 0x0000, 0x00FF, 0});     // 1: blue
    d.Registro(0x02FC, {0, 0x00FF, 0x0000, 0});     // 2: red
    d.Registro(0x02FC, {0, 0xFF00, 0x0000, 0});     // 3: green
    d.Registro(0x02FA, {0, 4, 0, 0x0000, 0x0000});  // 4: black, 4 wide
    d.Registro(0x02FB, {-12, 0, 0, 0, 700, 0, 0, 0, 0}, "Arial\0"sv);
    d.Registro(0x012D, {0}).Registro(0x012D, {1}).Registro(0x041B, {100, 100, 0, 0});
    d.Registro(0x012D, {2}).Registro(0x0324, {4, 0, 0, 50, 0, 50, 100, 0, 100});
    d.Registro(0x012D, {3}).Registro(0x0418, {30, 90, 10, 70});
    d.Registro(0x012D, {4}).Registro(0x0214, {95, 5}).Registro(0x0213, {95, 95});
    d.Registro(0x0102, {1})
        .Registro(0x012D, {5})
        .Registro(0x0521, {9}, "R\xEDo \xD1\x61nd\xFA\0\x28\0\x05\0"sv);
    constexpr std::string_view DosPixeles =
        "\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "\xFF\xFF\xFF\0\0\0\0\0"sv;
    d.Registro(0x0B41, {0x0020, 0x00CC, 1, 2, 0, 0, 10, 20, 60, 60}, DosPixeles);
    return d;
}

}  // namespace editor
