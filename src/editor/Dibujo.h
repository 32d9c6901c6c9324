// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Clases.h"

// What the canvas paints: a list of primitives in painting order, in logical coordinates. The canvas knows
// nothing of the network and the rules know nothing of pixels, bitmaps or fonts.
namespace editor {

/// A point of the drawing, in its logical coordinates: x to the right, y downwards [drawing units].
struct Punto {
    float X = 0, Y = 0;
    bool operator==(const Punto&) const = default;
};

/// Length of the straight line between two points [drawing units].
inline double Largo(Punto a, Punto b)
{
    const double dx = double{1} * b.X - a.X;
    const double dy = double{1} * b.Y - a.Y;
    return std::sqrt(dx * dx + dy * dy);
}

using model::Clase;

/// What a primitive stands for, from which the canvas takes its colour.
enum class Papel : std::uint8_t {
    Cauce,          ///< a reach: blue
    EnlaceUEH,      ///< line from a UEH to where it drains
    EnlaceRepresa,  ///< the same of a Represa
    EnlaceLago,     ///< the same of a Lago
    Nombre,         ///< name of a component
    Orden,          ///< order of a reach
    NombreCauce,    ///< name of a reach
    Sentido,        ///< arrow of a reach's flow
    SinAcople,      ///< ends of two reaches that touch without a link
    MarcaVertice,   ///< vertex of the selected reach: grey
    VerticeTomado,  ///< the grabbed vertex: red
    Asa,            ///< handle from which a link is drawn
    Medida,         ///< measured line: purple, red 200, green 0, blue 200
    Banda,          ///< rubber band of a drag
    Imagen,         ///< background image
    Icono,          ///< icon of a component
};

/// One thing to be painted; which of its fields count depends on `forma`.
struct Primitiva {
    enum class Forma : std::uint8_t {
        Polilinea,  ///< `cuantos` points from `desde`, width `ancho`; a single point is a dot
        Icono,      ///< of a component of the kind `clase`; fills the box at `en`, `tamano` by `alto`
        Texto,      ///< its upper left corner at `en`
        Cuadrado,   ///< centred at `en`, side `tamano` [pixels]
        Imagen,     ///< upper left corner at `en`, `tamano` wide and `alto` high
    };
    Forma forma = Forma::Polilinea;
    Papel papel = Papel::Cauce;
    Clase clase = Clase::UEH;
    bool seleccionado = false;  ///< the icon in its alternate colour
    std::int16_t ancho = 1;     ///< width of the line [pixels]
    Punto en{};
    float tamano = 0, alto = 0;
    std::size_t desde = 0, cuantos = 0;  ///< in the list's points, or in its characters
    bool operator==(const Primitiva&) const = default;
};

/// A list of primitives that keeps its memory from one drawing to the next.
class Dibujo {
  public:
    void Vacia()
    {
        primitivas.clear();
        puntos.clear();
        letras.clear();
    }
    [[nodiscard]] const std::vector<Primitiva>& Primitivas() const { return primitivas; }
    /// Points of a polyline; they hold until the next drawing.
    [[nodiscard]] std::span<const Punto> Puntos(const Primitiva& p) const
    {
        return std::span(puntos).subspan(p.desde, p.cuantos);
    }
    /// Characters of a text, UTF-8; they hold until the next drawing.
    [[nodiscard]] std::string_view Letras(const Primitiva& p) const
    {
        return std::string_view(letras).substr(p.desde, p.cuantos);
    }

    /// The box of the icon: upper left corner and side.
    void Icono(Clase clase, Punto esquina, float lado, bool seleccionado)
    {
        primitivas.push_back({.forma = Primitiva::Forma::Icono,
                              .papel = Papel::Icono,
                              .clase = clase,
                              .seleccionado = seleccionado,
                              .en = esquina,
                              .tamano = lado,
                              .alto = lado});
    }
    void Texto(Papel papel, Punto en, std::string_view texto)
    {
        primitivas.push_back({.forma = Primitiva::Forma::Texto,
                              .papel = papel,
                              .en = en,
                              .desde = letras.size(),
                              .cuantos = texto.size()});
        letras += texto;
    }
    /// `lado` in pixels.
    void Cuadrado(Papel papel, Punto en, float lado)
    {
        primitivas.push_back({.forma = Primitiva::Forma::Cuadrado, .papel = papel, .en = en, .tamano = lado});
    }
    void Imagen(Punto esquina, float ancho, float alto)
    {
        primitivas.push_back({.forma = Primitiva::Forma::Imagen,
                              .papel = Papel::Imagen,
                              .en = esquina,
                              .tamano = ancho,
                              .alto = alto});
    }
    /// Opens a polyline, to which `Agrega` adds points. `ancho` in pixels.
    void Polilinea(Papel papel, std::int16_t ancho)
    {
        primitivas.push_back({.papel = papel, .ancho = ancho, .desde = puntos.size()});
    }
    /// Adds a point to the polyline opened last.
    void Agrega(Punto p)
    {
        puntos.push_back(p);
        ++primitivas.back().cuantos;
    }
    void Linea(Papel papel, std::int16_t ancho, Punto a, Punto b)
    {
        Polilinea(papel, ancho);
        Agrega(a);
        Agrega(b);
    }

  private:
    std::vector<Primitiva> primitivas{};
    std::vector<Punto> puntos{};
    std::string letras{};
};

}  // namespace editor
