// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/Dibujo.h"
#include "model/Siro.h"

// All that a user can do to the network in the graphic editor. Mouse, menu, keys and tests call the same
// routines. Each leaves the drawing redone; faults go to the caller.
namespace editor {

struct frmUEHs;

// --- placing ---

/// Places a component at a point: same place as another of its kind, name, defaults.
void ColocaUEH(frmUEHs& f, model::Siro& s, Punto en);
void ColocaRepresa(frmUEHs& f, model::Siro& s, Punto en);
void ColocaLago(frmUEHs& f, model::Siro& s, Punto en);
/// A click of the reach being drawn, the first one being its downstream end.
void ClicCauce(frmUEHs& f, model::Siro& s, Punto en);
/// Finishes the reach being drawn: object, name, defaults. Requires ClicsCauce above 1.
void TerminaCauce(frmUEHs& f, model::Siro& s);

// --- selecting and dragging ---

/// Press of the left button in select mode: selects, grabs a vertex, arms a drag.
void Selecciona(frmUEHs& f, model::Siro& s, Punto en);
/// The pointer moves with the left button held since `Selecciona`.
void MueveArrastre(frmUEHs& f, model::Siro& s, Punto en);
/// The left button is released.
void TerminaArrastre(frmUEHs& f, model::Siro& s, Punto en);

// --- deleting ---

/// Delete key: the selected components, reach, UEH, Represa, Lago, each by its own rule.
void BorraSeleccionados(frmUEHs& f, model::Siro& s);
/// Deletes every component after a question.
void BorraTodo(frmUEHs& f, model::Siro& s);

// --- commands of the pop-up menu; each requires what enables it there ---

void mnu_acoplaUEHaCauce(frmUEHs& f, model::Siro& s);
void mnu_acoplaUEHaLago(frmUEHs& f, model::Siro& s);
void mnu_acoplaUEHaRepresa(frmUEHs& f, model::Siro& s);
void mnu_desacoplaUEH(frmUEHs& f, model::Siro& s);
void mnu_DivideCauce(frmUEHs& f, model::Siro& s);
void mnu_acoplaCauce1aCauce2(frmUEHs& f, model::Siro& s);
void mnu_acoplaCauceaLago(frmUEHs& f, model::Siro& s);
void mnu_acoplaCauceaRepresa(frmUEHs& f, model::Siro& s);
void mnu_desacoplaCauce(frmUEHs& f, model::Siro& s);
void mnu_acoplaLAGOaCauce(frmUEHs& f, model::Siro& s);
void mnu_desacoplaLAGO(frmUEHs& f, model::Siro& s);
void mnu_acoplaRepresaaCauce(frmUEHs& f, model::Siro& s);
void mnu_desacoplaRepresa(frmUEHs& f, model::Siro& s);

}  // namespace editor
