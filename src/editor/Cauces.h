// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "editor/Dibujo.h"
#include "model/Red.h"

// Reaches and their vertices, which the network keeps apart from them. A reach that is being drawn has
// vertices, under NroCauces, and no object yet.
namespace editor {

inline constexpr std::int16_t ClicsDeUnTrazo = 20;  ///< the click after them finishes the reach

/// The reach that is being drawn.
struct Trazo {
    std::int16_t ClicsCauce = 0;  ///< its clicks; 0: none is being drawn
    /// "borrarCauce" from the cancelled name of a reach until the next one is named, else empty.
    std::string marcaCauce{};
    bool operator==(const Trazo&) const = default;
};

/// Reaches with vertices, the one being drawn included: numbers 1 to this one.
int CaucesDibujados(const model::Red& red);
/// Reaches that have both an object and vertices: numbers 1 to this one.
int CaucesEnteros(const model::Red& red);

/// Vertex of a reach, from 1 at its downstream end. Throws Falla 9.
Punto Vertice(const model::Red& red, int cauce, int vertice);
void PonVertice(model::Red& red, int cauce, int vertice, Punto en);
/// Adds a vertex upstream of the last one; the bound of the vertices grows as needed. Throws Falla 6, 9.
void AgregaVertice(model::Red& red, int cauce, Punto en);
/// All vertices of a reach, as far as they are in memory, and others in their place.
std::vector<Punto> Linea(const model::Red& red, int cauce);
void PonLinea(model::Red& red, int cauce, const std::vector<Punto>& linea);
/// Makes the arrays hold so many vertices of each reach, at least.
void AmpliaVertices(model::Red& red, int vertices);

/// Puts vertex 1 of a reach, its lower end, at a point. One without vertices stays without. Throws Falla 9
/// where its vertices aren't in memory.
void PonPrimerVertice(model::Red& red, int cauce, Punto en);
/// Upper end of a reach, its last vertex; (0, 0) for one without vertices. Throws Falla 9 where its vertices
/// aren't in memory.
Punto UltimoVertice(const model::Red& red, int cauce);
/// Whether the upstream end of a reach is within a distance of a point, on both axes. A reach without
/// vertices has none. Throws Falla 9.
bool CabeceraCerca(const model::Red& red, int cauce, Punto p, double distancia);

/// Number of the next reach. Throws Falla 9 where the array has no slot for it.
int NumeroDeCauceNuevo(const model::Red& red);
/// Makes the object of a reach that has its vertices already, without a name, draining nowhere.
model::Cauce& CreaCauce(model::Red& red);
/// Brings numVertices and the first vertex of each reach in the flat list of all vertices up to date.
void RehaceIndices(model::Red& red);

}  // namespace editor
