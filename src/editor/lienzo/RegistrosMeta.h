// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "editor/lienzo/LienzoMeta.h"

// The records of a Windows metafile and what stands in them. No length and no index of the file is trusted.
namespace editor {

inline constexpr int LadoMaximo = 16384;  ///< of a picture or bitmap [pixels]

/// Little-endian numbers of a piece of the file. Beyond its end they are 0.
class Palabras {
  public:
    explicit Palabras(std::string_view pedazo) : bytes(pedazo) {}

    [[nodiscard]] std::uint16_t Sin(std::size_t lugar) const
    {
        return static_cast<std::uint16_t>(Byte(lugar) | (Byte(lugar + 1) << 8U));
    }
    [[nodiscard]] std::int16_t Con(std::size_t lugar) const { return static_cast<std::int16_t>(Sin(lugar)); }
    [[nodiscard]] std::uint32_t Larga(std::size_t lugar) const
    {
        return std::uint32_t{Sin(lugar)} | (std::uint32_t{Sin(lugar + 2)} << 16U);
    }
    [[nodiscard]] unsigned Byte(std::size_t lugar) const
    {
        return lugar < bytes.size() ? static_cast<unsigned char>(bytes[lugar]) : 0U;
    }
    [[nodiscard]] std::string_view Desde(std::size_t lugar) const
    {
        return bytes.substr(std::min(lugar, bytes.size()));
    }
    [[nodiscard]] std::size_t Largo() const { return bytes.size(); }

    /// A point whose ordinate comes first, as most records have it.
    [[nodiscard]] PuntoMeta PuntoYX(std::size_t lugar) const
    {
        return {double(Con(lugar + 2)), double(Con(lugar))};
    }
    [[nodiscard]] PuntoMeta PuntoXY(std::size_t lugar) const
    {
        return {double(Con(lugar)), double(Con(lugar + 2))};
    }
    /// Bottom, right, top, left.
    [[nodiscard]] RectanguloMeta Rectangulo(std::size_t lugar) const
    {
        const double abajo = Con(lugar), derecha = Con(lugar + 2), arriba = Con(lugar + 4),
                     izquierda = Con(lugar + 6);
        return {izquierda, arriba, derecha - izquierda, abajo - arriba};
    }
    [[nodiscard]] ColorMeta Color(std::size_t lugar) const
    {
        return {static_cast<std::uint8_t>(Byte(lugar)), static_cast<std::uint8_t>(Byte(lugar + 1)),
                static_cast<std::uint8_t>(Byte(lugar + 2))};
    }

  private:
    std::string_view bytes;
};

enum Funcion : std::uint16_t {
    SaveDC = 0x001E,
    RestoreDC = 0x0127,
    SetBkMode = 0x0102,
    SetPolyFillMode = 0x0106,
    SetTextAlign = 0x012E,
    SelectObject = 0x012D,
    DeleteObject = 0x01F0,
    SetBkColor = 0x0201,
    SetTextColor = 0x0209,
    SetWindowOrg = 0x020B,
    SetWindowExt = 0x020C,
    LineTo = 0x0213,
    MoveTo = 0x0214,
    CreatePen = 0x02FA,
    CreateFont = 0x02FB,
    CreateBrush = 0x02FC,
    CreatePalette = 0x00F7,
    CreatePatternBrush = 0x01F9,
    CreateDibPatternBrush = 0x0142,
    CreateRegion = 0x06FF,
    Polygon = 0x0324,
    Polyline = 0x0325,
    PolyPolygon = 0x0538,
    Ellipse = 0x0418,
    Rectangle = 0x041B,
    RoundRect = 0x061C,
    Arc = 0x0817,
    Pie = 0x081A,
    Chord = 0x0830,
    TextOut = 0x0521,
    ExtTextOut = 0x0A32,
    DibBitBlt = 0x0940,
    DibStretchBlt = 0x0B41,
    StretchDib = 0x0F43,
};

/// What stands between the heads and the end, record by record.
class Registros {
  public:
    explicit Registros(std::string_view resto) : bytes(resto) {}
    /// Returns false at the end and at the first record that doesn't fit.
    bool Siguiente()
    {
        const Palabras cabeza(bytes);
        const std::size_t largo = std::size_t{cabeza.Larga(0)} * 2;
        constexpr std::size_t MinimoRegistro = 3;  // [words]
        if (bytes.size() < MinimoRegistro * 2 || largo < MinimoRegistro * 2 || largo > bytes.size())
            return false;
        funcion = cabeza.Sin(4);
        datos = bytes.substr(6, largo - 6);
        bytes.remove_prefix(largo);
        fin = funcion == 0;
        return !fin;
    }
    std::uint16_t funcion = 0;
    bool fin = false;  ///< the record that ends the file has been read
    std::string_view datos{};

  private:
    std::string_view bytes;
};
/// What a record says of a pen, a brush, a font.
PlumaMeta LeePluma(const Palabras& p);
PincelMeta LeePincel(const Palabras& p);
LetraMeta LeeLetra(const Palabras& p);

/// Points of a record from a place on, as many as are said and are there.
std::vector<PuntoMeta> LeePuntos(const Palabras& p, std::size_t lugar, std::size_t cuantos);

/// A bitmap without the head of a file, with one: as far as its own head can be trusted.
std::string ConCabezaDeArchivo(std::string_view dib);

}  // namespace editor
