// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"
#include "results/dlgChart1.h"

// Rules of the main window: its menu and its toolbar as tables, the project's labels, and what each command
// asks for before it opens a window or starts a run. What the window shows is a record.
namespace shell {

inline constexpr std::string_view TituloMDIForm1 =  // with its two blanks
    "SIRO - Modelo Hidrológico de  simulación de crecidas";
inline constexpr std::string_view TituloSinProyecto = "Proyecto Inexistente...";
inline constexpr std::string_view TextoSinProyecto =
    "No existe un Proyecto asociado. Debe cargar un Proyecto desde el Menu Opciones de Configuración o bien "
    "crear un proyecto nuevo";
inline constexpr std::string_view TituloAvanceUna = "SIRO procesando...";
inline constexpr std::string_view TextoAvanceUna = "Un momento...";
inline constexpr std::string_view TituloContinuar = "Desea continuar ?";
inline constexpr std::string_view TextoContinuar =  // the odd bracket is kept
    "Este proceso puede demandar varios minutos, siendo mayor cuanto mayor sea el número y duración de "
    "tormentas y menor sea el paso del modelo. No podrá cancelarse una vez iniciado.\r\n"
    "Se sugiere probar primero con unas pocas tormentas PDR de corta a mediana duración. Pruebe desactivar "
    "tormentas desde las fichas de <Recurrencias> y de <DuracionPp> del <Menú\\Opciones\\Opciones de "
    "Configuración>; luego de las pruebas, aumente la cantidad de tormentas a las necesidades de su "
    "proyecto\r\n"
    "Una vez iniciado, el proceso de cálculo solo puede abortarse con <Ctrl<+<Alt>+<Del>";

/// A run is long, and shows the progress window, above this duration [min] or from this number of steps on.
inline constexpr std::int16_t DurCorridaLarga = 240;
inline constexpr std::int16_t PasosCorridaLarga = 201;

/// Windows that the commands open.
enum class Ventana : std::uint8_t {
    frmUEHs,
    dlgUEHsEditTabla,
    dlgUEHsTabla,
    dlgPp,
    frmPp,
    dlgChart2,
    dlgChart3,
    dlgTablaSalePDR,
    dlgTablaSalePDR2,
    dlgEmpiricas,
    Avisos,
    Resumen,
    Comparar,
    CompararCorridas,
    Mapa,
    Revisar,
    Verificar,
    Corridas,
    Taller,
    Ajuste,
    Memoria,
    dlgAnteriores,
    frmConfigura,
    dlgEliminarProyecto,
    frmAcerca,
    Busca,
};

/// What the commands ask of the desktop beyond the host. A member that is left as it is does nothing.
struct Mandos {
    /// Opens a window, or brings it to the front; a modal one until it is closed.
    std::function<void(Ventana)> Abre = [](Ventana) {};
    /// The same without waiting for a modal one.
    std::function<void(Ventana)> AbreSinEsperar = [](Ventana) {};
    std::function<void(Ventana)> Cierra = [](Ventana) {};
    /// Brings the editor of the network to the front where it is open. Returns whether it was.
    std::function<bool()> AlzaEditor = [] { return false; };
    std::function<void(const results::Hietograma&)> AbreHietograma = [](const results::Hietograma&) {};
    /// Notes of the real storm in hand.
    std::function<std::string()> NotasDeTormenta = [] { return std::string{}; };
    /// A storm has been run: `entrada`, as it was before. `completa`: the run went to its end.
    std::function<void(const model::Tormenta& entrada, bool completa)> TrasCorrer = [](const model::Tormenta&,
                                                                                       bool) {};
    /// A series has been run.
    std::function<void()> TrasSerie = [] {};
    /// The project in hand has been saved under another name, unless the user thought better of it.
    std::function<void()> TrasGuardarComo = [] {};
    /// The user ends the program.
    std::function<void()> AlSalir = [] {};
    std::function<void(bool espera)> PunteroDeEspera = [](bool) {};
    /// Hands a file to the system's viewer. Returns whether it took it.
    std::function<bool(const std::string& ruta)> AbreConElSistema = [](const std::string&) { return false; };
    /// Shows a page of the delivered help in a window of its own.
    std::function<void(const std::string& ruta)> AbrePaginaDeAyuda = [](const std::string&) {};
};

/// Entries of the menu whose state changes while the program runs.
enum class Variable : std::uint8_t {
    Ninguna,
    mnuGuardarProyectoComo,
    mnu_ultimoarchivo1,
    mnu_prueba_funcionesSHVrepresas,
    mnu_prueba_funcionesHQrepresas,
    mnuPizarra1,
};
inline constexpr std::size_t NroVariables = 6;

/// State of such an entry.
struct EstadoEntrada {
    bool habilitada = true;
    bool marcada = false;
    std::string leyenda{};  ///< in place of the table's; of mnu_ultimoarchivo1: none, not shown
    bool operator==(const EstadoEntrada&) const = default;
};

/// Labels of the project, and the caption before each.
// clang-format off
inline constexpr auto RotulosMDIForm1 = std::to_array<forms::FilaRotulo>({
    {"lblProyecto",     "Proyecto:"},
    {"lblTitulo",       "Título:"},
    {"lblMiDirTrabajo", "Directorio: "},
    {"lblFileProyecto", "Archivo de Proyecto:"},
    {"lblCuenca",       "Cuenca/UEH:"},
    {"lblSubCuenca",    "SubCuenca/UEH:"},
    {"lblUbicacion",    "Ubicación:"},
    {"lblFilesTrabajo", "Archivos de trabajo:"},
});
// clang-format on
/// Those of them that grow under the pointer.
inline constexpr auto RotulosQueCrecen = std::to_array<std::string_view>(
    {"lblTitulo", "lblMiDirTrabajo", "lblCuenca", "lblSubCuenca", "lblUbicacion"});

/// What the main window shows.
struct MDIForm1 {
    std::string titulo{};
    std::array<std::string, RotulosMDIForm1.size()> rotulos{};
    std::array<EstadoEntrada, NroVariables> estados{};
    bool VerPizarra = false;  ///< the toolbar's button is down; a plain button never stays so

    EstadoEntrada& Estado(Variable v) { return estados[static_cast<std::size_t>(v)]; }
    [[nodiscard]] const EstadoEntrada& Estado(Variable v) const
    {
        return estados[static_cast<std::size_t>(v)];
    }
    /// Text of a label of the table, by its name.
    std::string& Texto(std::string_view rotulo)
    {
        return rotulos.at(forms::LugarDe(RotulosMDIForm1, rotulo));
    }
};

using Rutina = void (*)(MDIForm1& f, model::Siro& s, const Mandos& m);

/// An entry of the menu. Without a name it is a separator; without a routine it heads a submenu or does
/// nothing.
struct FilaMenu {
    std::string_view nombre;
    std::string_view leyenda;
    std::string_view padre;  ///< name of the menu that holds it; none: the menu bar
    Rutina rutina = nullptr;
    bool pideProyecto = false;  ///< refuses, telling so, without a project
    Variable variable = Variable::Ninguna;
    std::string_view tecla{};  ///< keyboard shortcut
    std::string_view ayuda{};  ///< shown in the status line
};

/// A button of the toolbar. Without a key it is a separator.
struct FilaBarra {
    std::string_view clave;
    std::string_view menu;  ///< entry whose caption is the button's tip; none: the key itself
    Rutina rutina = nullptr;
};

// The tables, in the order on screen.
[[nodiscard]] std::span<const FilaMenu> MenuMDIForm1();
[[nodiscard]] std::span<const FilaBarra> tbToolBar();
/// A caption without the mark of its access key.
std::string SinTecla(std::string_view leyenda);
/// Tip of a button.
std::string AyudaDeBoton(const FilaBarra& boton);

// --- opening, labels, closing ---

/// Opening: title, and which entries are available.
void Abre(MDIForm1& f);
/// Refreshes the labels and records the project as the last one; a pointer that can't be written is silent.
void carga_lbl_proyecto(MDIForm1& f, model::Siro& s);
/// Whether a label shows its whole text with the pointer at x, y [1/15 pixel from its corner].
bool RotuloCrece(double x, double y);
/// Records the project as the last one and ends the program. Never returns.
void Cierra(model::Siro& s);

// --- commands ---

/// What is told of the end, and then the end. Never returns.
void mnuSalir(MDIForm1& f, model::Siro& s, const Mandos& m);
/// Whether a project is named; without one it tells so.
bool ExigeProyecto(const model::Siro& s);
/// Names a new project and opens its configuration, which stores it; nothing opens where the name is refused.
void mnuNuevoProyecto(MDIForm1& f, model::Siro& s, const Mandos& m);
void mnuDirCrea(MDIForm1& f, model::Siro& s, const Mandos& m);
/// The configuration until it is closed, then the labels.
void mnuOpcionesConfigurar(MDIForm1& f, model::Siro& s, const Mandos& m);
/// Brings an open editor to the front. Else empties the network and opens the editor; without a project the
/// network is emptied all the same, and the editor closes.
void mnufrmUEHs(MDIForm1& f, model::Siro& s, const Mandos& m);
void mnufrmPp(MDIForm1& f, model::Siro& s, const Mandos& m);
/// Runs the storm in hand and opens its hydrographs; nothing without a project or in a series.
void mnuCorre1(MDIForm1& f, model::Siro& s, const Mandos& m);
/// Asks, runs the series on all cores and opens its chart; nothing without a project, a series or storms.
void mnuCorre2(MDIForm1& f, model::Siro& s, const Mandos& m);
/// Opens the Slate with the text of the last run, or closes it.
void mnuPizarra1(MDIForm1& f, model::Siro& s, const Mandos& m);
/// The button of the toolbar, which only opens or refreshes it.
void VerPizarra(MDIForm1& f, model::Siro& s, const Mandos& m);
void mnuGraficoPp(MDIForm1& f, model::Siro& s, const Mandos& m);
void mnuHidrogramas(MDIForm1& f, model::Siro& s, const Mandos& m);
/// The compiled help through the system's viewer, or else the delivered pages; with neither it tells the
/// fault and ends the program.
void mnuHelpContents(MDIForm1& f, model::Siro& s, const Mandos& m);
/// The delivered page of a window, by the window's object name, or else the first page. Nothing where there
/// is neither: a key that has nothing to show must not cost the user his work.
void AyudaDeVentana(const model::Siro& s, const Mandos& m, std::string_view ventana);

}  // namespace shell
