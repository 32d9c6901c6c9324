// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/Dibujo.h"
#include "model/Siro.h"

// Reaches and their vertices, which the run-wide state keeps apart from them.
namespace editor {

/// Vertex of a reach, from 1 at its downstream end. Throws Falla 9.
Punto Vertice(const model::Siro& s, int cauce, int vertice);
void PonVertice(model::Siro& s, int cauce, int vertice, Punto en);
/// Adds a vertex upstream of the last one; the bound of the vertices grows as needed. Throws Falla 6, 9.
void AgregaVertice(model::Siro& s, int cauce, Punto en);

/// Whether the upstream end of a reach is within a distance of a point, on both axes. A reach without
/// vertices has none. Throws Falla 9.
bool CabeceraCerca(const model::Siro& s, int cauce, Punto p, double distancia);

/// Number of the next reach. Throws Falla 9 where the array has no slot for it.
int NumeroDeCauceNuevo(const model::Siro& s);
/// Makes the object of a reach that has its vertices already, without a name, draining nowhere.
model::Cauce& CreaCauce(model::Siro& s);
/// Brings numVertices and the first vertex of each reach in the flat list of all vertices up to date.
void RehaceIndices(model::Siro& s);

}  // namespace editor
