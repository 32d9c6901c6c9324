// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/Dibujo.h"
#include "editor/Historia.h"
#include "model/Siro.h"

// Rules of the graphic editor of the network. Points of the canvas, buttons and keys come in, a list of
// primitives comes out; the selection stands in the run-wide state.
namespace editor {

inline constexpr std::string_view TituloFrmUEHs =
    "Diagrama de Unidades Hidrológicas de Estudio y sus componentes";

/// Buttons of ToolbarUEHs.
enum class Boton : std::uint8_t {
    Selecciona,
    UEH,
    Cauce,
    Represa,
    LAGO,
    LongArea,
    BorraTodo,
    SUEH,
    GuardaUEHs,
    Salir,
};

/// A button, its key, and whether it sets the mode.
struct FilaBoton {
    Boton boton;
    std::string_view clave;
    bool modo;
    std::string_view ayuda;  ///< what its tip says
};

// clang-format off
inline constexpr auto BotonesUEHs = std::to_array<FilaBoton>({
    {Boton::Selecciona, "btn_toolbarSelecciona", true,  "Seleccionar y mover"},
    {Boton::UEH,        "btn_toolbarUEH",        true,  "Agregar UHE"},
    {Boton::Cauce,      "btn_toolbarCauce",      true,  "Dibujar Cauce, de aguas abajo hacia aguas arriba"},
    {Boton::Represa,    "btn_toolbarRepresa",    true,  "Agregar Represa"},
    {Boton::LAGO,       "btn_toolbarLAGO",       true,  "Agregar Lago/Laguna"},
    {Boton::LongArea,   "btn_toolbarLongArea",   true,  "Medir longitud o área"},
    {Boton::BorraTodo,  "btn_toolbarBorraTodo",  false, "Borrar todos los componentes"},
    {Boton::SUEH,       "btn_toolbarSUEH",       false, ""},
    {Boton::GuardaUEHs, "btn_toolbarGuardaUEHs", false, "Guardar"},
    {Boton::Salir,      "btn_toolbarSalir",      false, "Salir"},
});
// clang-format on
inline constexpr std::size_t NroBotones = BotonesUEHs.size();
static_assert([] {
    for (std::size_t i = 0; i < NroBotones; ++i)
        if (BotonesUEHs[i].boton != static_cast<Boton>(i)) return false;
    return static_cast<std::size_t>(Boton::Salir) + 1 == NroBotones;
}());

/// What the window must open when an event is over.
enum class Pedido : std::uint8_t {
    Menu,          ///< the pop-up menu mnu_DibujoSec, at the pointer
    FormaUEH,      ///< properties of a UEH
    FormaCauce,    ///< properties of a reach
    FormaRepresa,  ///< properties of a Represa
    FormaLago,     ///< properties of a Lago
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

/// What a drag with the left button does, or would do if the pointer moved.
enum class Arrastra : std::uint8_t {
    Nada,
    Vertice,
    IconoUEH,
    IconoRepresa,
    IconoLago,
    EnlaceUEH,
    EnlaceRepresa,
    EnlaceLago
};

/// Size of a window or a control [pixels].
struct Tamano {
    int ancho = 0, alto = 0;
    bool operator==(const Tamano&) const = default;
};

/// What became of loading an image file.
enum class CargaDeImagen {
    Entera,
    Incompleta,  ///< the file ends before its picture does: there is what it holds of it, be it nothing
    Ilegible,
    MetarchivoMejorado,  ///< an .emf that is called .wmf
    Excesiva,            ///< a drawing of so many records, or so slow ones, that it was given up
    Cancelada,           ///< by the user
};

struct ImagenCargada {
    CargaDeImagen fin = CargaDeImagen::Ilegible;
    Tamano tamano{};  ///< 0 by 0 where there is no picture
};

/// A place on the canvas [pixels].
struct Pixel {
    double x = 0, y = 0;
    bool operator==(const Pixel&) const = default;
};

inline constexpr int EscalaMinima = 1, EscalaMaxima = 1000;  ///< of sldEscala [%]
inline constexpr int TopeBarra = 100;  ///< the scroll bars run from -TopeBarra to TopeBarra

/// Extents of the drawing [drawing units]; upside down while nothing is drawn.
struct Extension {
    float XMax = -99999, XMin = 99999, YMax = -99999, YMin = 99999;
    void Abarca(Punto p);
    [[nodiscard]] bool HayAlgo() const { return XMax >= XMin && YMax >= YMin; }
    bool operator==(const Extension&) const = default;
};

struct frmUEHs {
    // --- controls ---
    bool abierta = false;
    bool principalVisible = true;                ///< the main window shows
    Tamano ventana{};                            ///< the window [pixels]
    Tamano lienzo{};                             ///< picDibujo [pixels]
    std::array<bool, NroBotones> botones{true};  ///< buttons that are down, by Boton
    int sldEscala = 100;                         ///< zoom, 1 to 1000 [%]
    int ScrEscalaHor = 0, ScrEscalaVer = 0;      ///< movement since the last centring [% of the canvas]
    std::string lblX{}, lblY{};                  ///< point under the pointer [drawing units]
    std::string lblEstado{};
    std::string lblLongArea{};             ///< last measurement
    std::string lblIndicacion{};           ///< what the next click does
    std::string cmdImagenUEHs = "Imágen";  ///< its caption
    Puntero puntero = Puntero::Flecha;
    /// Forms and menus that the window must open now, in order; the window takes them off.
    std::vector<Pedido> pedidos{};

    // --- drawing ---
    editor::Dibujo dibujo{};
    std::int16_t AnchoLinea = 0;         ///< width of the lines [pixels]
    float TamIcono = 10;                 ///< size s of the icons [drawing units]
    std::int16_t ToleranciaVertice = 0;  ///< [drawing units]
    std::int32_t EscalaBase = 800;       ///< size of the drawing at 100 % [drawing units]
    Extension extension{};
    Punto origen{};                           ///< upper left corner of the canvas
    bool recentra = false, reescala = false;  ///< what the next drawing does first; it clears them
    int movidoHor = 0, movidoVer = 0;         ///< movement of the scroll bars not yet applied [%]
    bool OrdenVisible = false;
    bool NombresVisibles = true;  ///< of the reaches
    bool ImagenVisible = false;
    Tamano imagen{};           ///< size of the image that is on [pixels]
    std::string rutaImagen{};  ///< its path

    // --- what a gesture has begun ---
    std::int16_t ClicsCauce = 0;  ///< clicks of the reach being drawn
    /// "borrarCauce" from the cancelled name of a reach until the next one is named, else empty.
    std::string marcaCauce{};
    Arrastra arrastra = Arrastra::Nada;
    bool izquierdoAbajo = false;  ///< the left button is held since it went down on the canvas
    bool arrastrado = false;      ///< the pointer has moved since then
    Punto presion{};              ///< where the left button went down
    Punto agarre{};               ///< there, from the position of the icon that the drag moves
    Punto iconoAntes{};           ///< position of that icon before the drag
    Punto ultimo{};               ///< where the pointer was last
    std::vector<Punto> banda{};   ///< rubber band, a polyline; empty: none
    std::optional<Punto> cruz{};  ///< cross that the arrow keys move in place of the pointer; nothing: none
    std::optional<Punto> asidero{};  ///< point that a pan with the middle button keeps under the pointer

    // --- measuring ---
    std::int16_t NroPuntosMedida = 0;
    std::vector<float> XMedida{}, YMedida{};  ///< points, from 1 [drawing units]
    float LongitudMedida = 0;                 ///< [m]
    float AreaMedida = 0;                     ///< [ha]; its sign tells the direction of drawing

    // --- undo ---
    editor::Historia historia{};
    bool cambiada = false;  ///< the network in memory differs from the saved one
    bool guardada = false;  ///< the command in hand has saved the network
    bool fallida = false;   ///< the command in hand couldn't save it, and has told so
    bool enEvento = false;  ///< an event is under way

    /// Loads an image file. The window fills it in.
    std::function<ImagenCargada(const std::string& ruta)> CargaImagen = [](const std::string&) {
        return ImagenCargada{};
    };

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
/// Nothing has been drawn.
bool RedVacia(const model::Siro& s);
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
/// Width of the canvas, and its height [drawing units].
float AnchoLogico(const frmUEHs& f);
/// ToleranciaVertice at the present zoom. Throws Falla 6.
std::int16_t ToleranciaPresente(const frmUEHs& f);
/// CauceSel, CauceAnterior, UEHSel, RepresaSel, LagoSel, VerticeSel := 0.
void LimpiaSeleccion(model::Siro& s);
/// Redoes the drawing: bound of the vertices, snap, extents, scale, origin, then the list of primitives.
/// Throws nothing.
void Redibuja(frmUEHs& f, model::Siro& s);
/// Reaches that have both an object and vertices: numbers 1 to this one. A reach that is being drawn has
/// vertices under NroCauces and no object yet.
int CaucesEnteros(const model::Siro& s);
/// Closes the editor as it is, what isn't saved being lost.
void CierraVentana(frmUEHs& f, model::Siro& s);
/// Gives up the reach that is being drawn, if any.
void DescartaTrazo(frmUEHs& f, model::Siro& s);

/// An event: does it, tells a fault in a box and takes back what it has begun, notes a step of the history
/// unless a drag is under way.
void Evento(frmUEHs& f, model::Siro& s, const std::function<void()>& cuerpo);
/// An event that is no part of a drag: a drag whose release got lost ends first.
void Orden(frmUEHs& f, model::Siro& s, const std::function<void()>& cuerpo);

// --- between rules and window ---

/// Point of the drawing at a pixel of the canvas, and back.
Punto DePixel(const frmUEHs& f, double x, double y);
Pixel APixel(const frmUEHs& f, Punto p);

}  // namespace editor
