// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Botones.h"
#include "editor/Cauces.h"
#include "editor/Dibujo.h"
#include "editor/Fondo.h"
#include "editor/Gesto.h"
#include "editor/Historia.h"
#include "editor/Vista.h"
#include "editor/modCalculoLongArea.h"
#include "model/SiroDeclarado.h"

// Rules of the graphic editor of the network. Points of the canvas, buttons and keys come in, a list of
// primitives comes out; the selection stands in the run-wide state.
namespace editor {

inline constexpr std::string_view TituloFrmUEHs =
    "Diagrama de Unidades Hidrológicas de Estudio y sus componentes";

/// What the window must open when an event is over.
enum class Pedido : std::uint8_t {
    Menu,          ///< the pop-up menu mnu_DibujoSec, at the pointer
    FormaUEH,      ///< properties of a UEH
    FormaCauce,    ///< properties of a reach
    FormaRepresa,  ///< properties of a Represa
    FormaLago,     ///< properties of a Lago
    TablaHAS,      ///< table of height, area and storage of a Represa, or all of a Lago's
    TablaHQ,       ///< table of height and outflow of a Represa
};

/// Keys that the editor knows.
enum class Tecla : std::uint8_t {
    F2,
    F3,
    F4,
    F5,
    F6,
    Espacio,
    Enter,
    Suprimir,
    Insertar,
    Esc,
    Deshacer,
    Rehacer
};

enum class BotonRaton : std::uint8_t { Ninguno, Izquierdo, Derecho, Medio };

/// Pointer over the canvas.
enum class Puntero : std::uint8_t { Flecha, Cruz, Espera, Mano };

/// What the controls of the editor hold, and what the user has begun, by subject.
struct frmUEHs {
    bool abierta = false;
    bool principalVisible = true;                ///< the main window shows
    Tamano ventana{};                            ///< the window [pixels]
    std::array<bool, NroBotones> botones{true};  ///< buttons that are down, by Boton
    std::string lblX{}, lblY{};                  ///< point under the pointer [drawing units]
    std::string lblEstado{};
    std::string lblIndicacion{};  ///< what the next click does
    Puntero puntero = Puntero::Flecha;
    /// Forms and menus that the window must open now, in order; the window takes them off.
    std::vector<Pedido> pedidos{};

    editor::Dibujo dibujo{};
    Vista vista{};
    Gesto gesto{};
    Trazo trazo{};
    Medicion medicion{};
    Fondo fondo{};
    Historia historia{};

    bool cambiada = false;  ///< the network in memory differs from the saved one
    bool guardada = false;  ///< the command in hand has saved the network
    bool fallida = false;   ///< the command in hand couldn't save it, and has told so
    bool enEvento = false;  ///< an event is under way

    [[nodiscard]] bool Abajo(Boton b) const { return botones[static_cast<std::size_t>(b)]; }
    void Pon(Boton b, bool abajo) { botones[static_cast<std::size_t>(b)] = abajo; }
};

// A fault in an event is told in a box; the network is put back as it was before the event.

/// Opening; `pantalla` is the size of the screen [pixels].
void Abre(frmUEHs& f, model::Siro& s, Tamano pantalla);
/// The window becomes active, loses the focus.
void AlActivarse(frmUEHs& f, model::Siro& s);
void AlPerderFoco(frmUEHs& f);
/// The window takes another size [pixels].
void Form_Resize(frmUEHs& f, Tamano ventana);
/// The frame's close button: as Esc, but an empty network closes with no question. Returns whether the
/// window may close.
bool Form_QueryUnload(frmUEHs& f, model::Siro& s);

// Mouse on the canvas; `p` is the point under the pointer.
void picDibujo_MouseDown(frmUEHs& f, model::Siro& s, BotonRaton boton, Punto p);
/// `izquierdo`: the left button is held; a release that got lost ends the drag here.
void picDibujo_MouseMove(frmUEHs& f, model::Siro& s, Punto p, bool izquierdo);
void picDibujo_MouseUp(frmUEHs& f, model::Siro& s, BotonRaton boton, Punto p);
void picDibujo_DblClick(frmUEHs& f, model::Siro& s);
/// Turns of the wheel, away from the user positive: brings the drawing nearer and keeps `p` under the
/// pointer.
void picDibujo_Rueda(frmUEHs& f, model::Siro& s, double vueltas, Punto p);

/// An arrow key moves the cross a step, right and down positive, or a long one; the first one shows it in the
/// middle of the canvas. The drawing moves along where the cross would leave the canvas.
void picDibujo_Flecha(frmUEHs& f, model::Siro& s, int derecha, int abajo, bool largo);
/// F2 to F6, the blank and Enter. With a cross the last two click there; on the last point of what is being
/// drawn or measured they double click, which finishes it.
void picDibujo_KeyDown(frmUEHs& f, model::Siro& s, Tecla tecla);
/// Delete, Insert, Esc; undo and redo.
void Form_KeyDown(frmUEHs& f, model::Siro& s, Tecla tecla);

void ToolbarUEHs_ButtonClick(frmUEHs& f, model::Siro& s, Boton boton);
void sldEscala_Mueve(frmUEHs& f, model::Siro& s, int valor);
void ScrEscalaHor_Mueve(frmUEHs& f, model::Siro& s, int valor);
void ScrEscalaVer_Mueve(frmUEHs& f, model::Siro& s, int valor);
void cmdImagenUEHs_Click(frmUEHs& f, model::Siro& s);
void cmdAnchoLineaDib_Click(frmUEHs& f, model::Siro& s);
void cmdOrdenCauce_Click(frmUEHs& f, model::Siro& s);
/// Shows the names of the reaches, or hides them.
void NombresDeCauces_Click(frmUEHs& f, model::Siro& s);

// --- between the halves of the rules ---

/// The only mode button that is down.
Boton Modo(const frmUEHs& f);
/// Puts one mode button down and raises the others.
void PonModo(frmUEHs& f, Boton modo);
/// Redoes the drawing: bound of the vertices, snap, extents, scale, origin, then the list of primitives.
/// Throws nothing.
void Redibuja(frmUEHs& f, model::Siro& s);
/// The same with nothing selected.
void RedibujaSinSeleccion(frmUEHs& f, model::Siro& s);
/// Closes the editor as it is, what isn't saved being lost.
void CierraVentana(frmUEHs& f, model::Siro& s);
/// Gives up the reach that is being drawn, if any.
void DescartaTrazo(frmUEHs& f, model::Siro& s);
/// Reads the network anew from its files, which gives up the reach that is being drawn.
void Relee(frmUEHs& f, model::Siro& s);
/// Notes the network as it is for the history's present one, with no step.
void Asienta(frmUEHs& f, const model::Siro& s);

/// A step of the history back or forth. The selection is cleared, the drawing redone and the network marked
/// as changed. Returns false where there is no such step.
bool Deshace(frmUEHs& f, model::Siro& s);
bool Rehace(frmUEHs& f, model::Siro& s);

/// An event: does it, tells a fault in a box and takes back what it has begun, notes a step of the history
/// unless a drag is under way.
void Evento(frmUEHs& f, model::Siro& s, const std::function<void()>& cuerpo);
/// An event that is no part of a drag: a drag whose release got lost ends first.
void Orden(frmUEHs& f, model::Siro& s, const std::function<void()>& cuerpo);

}  // namespace editor
