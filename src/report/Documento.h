// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

// A document as plain values, whoever writes it: blocks one after another, already numbered. All text is
// UTF-8 and stands as it is to be read; whoever writes it escapes it.
namespace report {

// --- text ---

enum class Altura : std::uint8_t { Linea, Arriba, Abajo };

/// A stretch of text in one manner.
struct Tramo {
    std::string texto{};
    bool negrita = false, cursiva = false;
    Altura altura = Altura::Linea;  ///< raised, lowered
    bool operator==(const Tramo&) const = default;
};
using Texto = std::vector<Tramo>;

inline Texto Llano(std::string texto)
{
    return texto.empty() ? Texto{} : Texto{{std::move(texto)}};
}
/// Without its manners.
std::string EnLlano(const Texto& texto);

// --- blocks ---

/// First page.
struct Portada {
    std::string titulo{}, subtitulo{};
    std::vector<std::pair<std::string, std::string>> renglones{};  ///< what, and its value
    std::string autor{}, fecha{};
    bool operator==(const Portada&) const = default;
};

/// Table of contents of the headings, which all stand in the document's blocks.
struct Indice {
    std::string titulo{};
    bool operator==(const Indice&) const = default;
};

struct Titulo {
    int nivel = 1;         ///< 1..3
    std::string numero{};  ///< "2.1"
    std::string texto{};
    std::string ancla{};  ///< unique: ASCII letters, digits, hyphens
    bool operator==(const Titulo&) const = default;
};

struct Parrafo {
    Texto texto{};
    bool aviso = false;  ///< what a reader mustn't miss
    bool operator==(const Parrafo&) const = default;
};

struct Lista {
    bool numerada = false;
    std::vector<Texto> renglones{};
    bool operator==(const Lista&) const = default;
};

/// A formula in a line of its own.
struct Formula {
    Texto texto{};
    bool operator==(const Formula&) const = default;
};

struct ColumnaDeTabla {
    Texto titulo{};
    std::string unidad{};   ///< "m3/s"; empty: none
    bool izquierda = true;  ///< else to the right, as numbers stand
    bool operator==(const ColumnaDeTabla&) const = default;
};

/// A table; its head is repeated on every page that it goes on to.
struct Tabla {
    int numero = 0;  ///< from 1 through the document
    std::string titulo{};
    std::vector<ColumnaDeTabla> columnas{};
    std::vector<std::vector<std::string>> filas{};  ///< as many cells as columns
    std::string nota{};                             ///< below it; empty: none
    bool operator==(const Tabla&) const = default;
};

/// What a figure shows: whoever draws it has the data. A figure without components is of the basin.
struct Figura {
    enum class Clase : std::uint8_t {
        Red,         ///< the network over its image, with names
        Hietograma,  ///< of the run's storm
        Hidrograma,  ///< of the components: one with inflow and outflow, several overlaid
        Abaco,       ///< of the series: peak of a component by duration, a curve per recurrence
        Frecuencia,  ///< of the study: maxima and the law taken on probability paper
        Idf,         ///< of the study: intensity by duration, a curve per recurrence
        Embalse,     ///< height over time of a Represa or a Lago, with the top of its table
        CurvasHASQ,  ///< storage and outflow of a Represa or a Lago by height
    };
    Clase clase = Clase::Red;
    std::vector<std::string> componentes{};
    bool operator==(const Figura&) const = default;
};

struct FiguraPuesta {
    int numero = 0;  ///< from 1 through the document
    std::string titulo{};
    Figura figura{};
    bool operator==(const FiguraPuesta&) const = default;
};

struct SaltoDePagina {
    bool operator==(const SaltoDePagina&) const = default;
};

using Bloque =
    std::variant<Portada, Indice, Titulo, Parrafo, Lista, Formula, Tabla, FiguraPuesta, SaltoDePagina>;

// --- all of it ---

enum class Hoja : std::uint8_t { A4, Carta };

/// Size of a sheet [mm].
struct Medidas {
    double ancho = 210, alto = 297;
};
constexpr Medidas MedidasDe(Hoja hoja)
{
    return hoja == Hoja::A4 ? Medidas{210, 297} : Medidas{215.9, 279.4};
}
inline constexpr double Margen = 25;  ///< on all four sides [mm]

/// A slip of a template.
struct Falta {
    int linea = 0;         ///< from 1; 0: of all of it
    std::string motivo{};  ///< a Spanish sentence with its full stop
    bool operator==(const Falta&) const = default;
};

struct Documento {
    std::string titulo{}, autor{};
    std::string fecha{};  ///< of the run, as ISO 8601 "2011-04-03T10:20:30"; empty: not known
    std::string pie{};    ///< at the foot of every page, ahead of its number
    std::string logo{};   ///< bytes of a picture: PNG, JPEG, SVG; empty: none
    Hoja hoja = Hoja::A4;
    std::vector<Bloque> bloques{};
    std::vector<Falta> faltas{};  ///< of the template, to be told; each stands in the pages too, in its place
    bool operator==(const Documento&) const = default;
};

// --- pictures ---

/// A figure drawn.
struct Imagen {
    std::string svg{};           ///< a whole SVG document; empty: nothing could be drawn
    std::string png{};           ///< the same for readers without SVG; empty: none
    double ancho = 0, alto = 0;  ///< that it is to have on paper [mm]
};
using Dibujante = std::function<Imagen(const Figura& figura)>;

/// "image/png", "image/jpeg", "image/svg+xml" by the bytes themselves; empty: none of them.
std::string_view TipoDeImagen(std::string_view bytes);
/// Width and height of a picture [its own units]; nothing above 0 where the bytes don't tell.
Medidas MedidasDeImagen(std::string_view bytes);

}  // namespace report
