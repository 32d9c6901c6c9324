// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "editor/Dibujo.h"
#include "model/SiroDeclarado.h"

// All that a user can do to the network in the graphic editor. Mouse, menu, keys and tests call the same
// routines. Each leaves the drawing redone; faults go to the caller.
namespace editor {

struct frmUEHs;

// --- placing ---

/// Places a component of the kind that the mode places, at a point, and asks its name. Where another of its
/// kind is at exactly this position, or the name is cancelled, it is deleted again by its own rule. Returns
/// false in the other modes. Throws Falla 9 beyond the limit of its kind.
bool Coloca(frmUEHs& f, model::Siro& s, Punto en);
/// A click of the reach being drawn, the first one being its downstream end. The 21st click finishes the
/// reach and is its last vertex. Throws Falla 9 beyond the limit of the reaches.
void ClicCauce(frmUEHs& f, model::Siro& s, Punto en);
/// Finishes the reach being drawn: object, name, defaults. A reach whose name is cancelled stays without a
/// name and sets marcaCauce. Requires ClicsCauce above 1.
void TerminaCauce(frmUEHs& f, model::Siro& s);
/// Does something that saves the network and reads it again; the reach being drawn, which no file holds, is
/// in hand afterwards as it was. Throws what `cuerpo` throws.
void ConservaTrazo(frmUEHs& f, model::Siro& s, const std::function<void()>& cuerpo);

// --- selecting and dragging ---

/// Press of the left button in select mode: selects, grabs a vertex, arms a drag. A press on nothing clears
/// the selection.
void Selecciona(frmUEHs& f, model::Siro& s, Punto p);
/// The pointer moves with the left button held since `Selecciona`: an icon follows it, a rubber band does; a
/// link that comes to its destination is asked for and ends the drag.
void MueveArrastre(frmUEHs& f, model::Siro& s, Punto p);
/// The left button is released: a vertex takes the place of the pointer; the mouth of a reach on the head of
/// another asks whether it drains into it.
void TerminaArrastre(frmUEHs& f, model::Siro& s, Punto p);

// --- deleting ---

/// Delete key: the selected components, reach, UEH, Represa, Lago, each by its own rule.
void BorraSeleccionados(frmUEHs& f, model::Siro& s);
/// The selected component, if any, by the rule of its kind; T has an icon. A reach, a Represa or a Lago that
/// something drains into is refused. The network is saved and read again.
void BorraCauce(frmUEHs& f, model::Siro& s);
template <typename T>
void Borra(frmUEHs& f, model::Siro& s);
/// Deletes every component after a question, in memory only, and the file of the Represas' outflow tables.
void BorraTodo(frmUEHs& f, model::Siro& s);

/// Divides the selected reach at its grabbed vertex; nothing happens at its first and its last one.
void mnu_DivideCauce(frmUEHs& f, model::Siro& s);

}  // namespace editor
