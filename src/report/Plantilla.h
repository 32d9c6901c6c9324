// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "report/Documento.h"

// The text of a memoria, as a plain file with marks that anybody may edit: its grammar, its parts, where it
// is.
//
//   %% a comment                                 # heading, ## heading, ### heading {key}
//   - item     1. item                           = a formula in a line of its own
//   **bold** *slanted* ^{raised} _{lowered}      {{value}} inside a text      \* a star that is one
//   [[tabla X]] [[figura X]] [[formula X]] [[portada]] [[indice]] [[pagina]]      [[si X]] [[si no X]] ...
//   [[fin]]
namespace report {

/// A line or a paragraph of a template.
struct Renglon {
    enum class Clase : std::uint8_t { Titulo, Parrafo, Vineta, Numerado, Formula, Mando };
    Clase clase = Clase::Parrafo;
    int linea = 0;        ///< from 1
    int nivel = 0;        ///< of a heading
    std::string clave{};  ///< of a heading; empty: none. Of a command its word: "tabla", "si no"
    std::string texto{};  ///< with marks in it. Of a command what it names: "represas"
    bool operator==(const Renglon&) const = default;
};

struct Plantilla {
    std::vector<Renglon> renglones{};
    std::vector<Falta> faltas{};
};

/// Takes a template apart, line by line; a text that isn't UTF-8 is taken for Windows-1252, and told. What
/// its marks name is looked at where they are worked out.
Plantilla LeePlantilla(std::string_view bytes);

/// A chapter that can be left out: a heading of the first level that has a key.
struct Capitulo {
    std::string clave{}, titulo{};
    bool operator==(const Capitulo&) const = default;
};
std::vector<Capitulo> CapitulosDe(std::string_view plantilla);

/// A text with its manners worked out. `valor` gives what stands for {{name}}, and tells whether there is
/// such a mark.
using ValorDeMarca = std::function<bool(std::string_view nombre, std::string& valor)>;
Texto TextoConMarcas(const Renglon& renglon, const ValorDeMarca& valor, std::vector<Falta>& faltas);

// --- where it is ---

inline constexpr std::string_view CarpetaDePlantillas = "Plantillas", ArchivoDePlantilla = "memoria.txt";

/// The template that the program brings along.
std::string_view PlantillaDeFabrica();

/// The user's own, "Plantillas/memoria.txt" of the program's own directory, or else the one brought along.
/// Throws Falla 75 where it is there and can't be read.
std::string PlantillaEnUso(const model::Disco& disco, const std::string& dirTrabajo);

/// Puts the one brought along there, unless the user has one. Returns its path. Throws Falla 76, 75.
std::string PreparaPlantilla(const model::Disco& disco, const std::string& dirTrabajo);

}  // namespace report
