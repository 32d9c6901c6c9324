// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "model/Falla.h"

// All that a run or a rule asks of the world: boxes, questions, the Slate, progress, the end of the program.
namespace model {

/// Picture of a message box.
enum class Icono { Ninguno, Exclamacion, Pregunta };

/// A box or a question as the user gets it. An empty title is the program's own name.
struct Mensaje {
    std::string texto{};
    std::string titulo{};
    Icono icono = Icono::Ninguno;
    /// Of a question that a run may ask many times: its words without the names and numbers in them, the same
    /// for all components. Nothing of it is shown, and it makes no message another one.
    std::string repetida{};
    bool operator==(const Mensaje& otro) const
    {
        return texto == otro.texto && titulo == otro.titulo && icono == otro.icono;
    }
};

/// A box that asks for a line of text.
struct Peticion {
    std::string texto{};
    std::string titulo{};
    std::string defecto{};
};

/// What the user wants of unsaved work before a command that could lose it.
enum class Resguardo { Guardar, SeguirSinGuardar, Cancelar };

/// What a command is about to do to the network, which may stand unsaved in the editor.
enum class Riesgo {
    OtroProyecto,   ///< takes another project: the editor closes
    ReleeRed,       ///< reads the network from its files again
    MueveProyecto,  ///< deletes the project's files or takes them to another directory
};

/// All that rules and runs ask of the world. The desktop, the batch program and the tests each fill it in;
/// a member that is left as it is does nothing, but that `Termina` throws.
struct Anfitrion {
    /// Shows a box with OK.
    std::function<void(const Mensaje&)> Avisa = [](const Mensaje&) {};
    /// Asks with Yes and No. Returns true for Yes.
    std::function<bool(const Mensaje&)> Pregunta = [](const Mensaje&) { return true; };
    /// Asks with OK and Cancel. Returns true for OK.
    std::function<bool(const Mensaje&)> Confirma = [](const Mensaje&) { return true; };
    /// Asks with "Guardar", "Seguir sin guardar" and "Cancelar"; closing the box cancels.
    std::function<Resguardo(const Mensaje&)> PideResguardo = [](const Mensaje&) {
        return Resguardo::SeguirSinGuardar;
    };
    /// Asks for a text. Returns the empty text where the user cancels.
    std::function<std::string(const Peticion&)> PideTexto = [](const Peticion&) { return std::string{}; };
    /// Offers the files that a filter lets through, "Description |*pattern". Returns the path of the one
    /// chosen, with the platform's separators, or the empty text where the user cancels.
    std::function<std::string(std::string_view titulo, std::string_view filtro)> EligeArchivo =
        [](std::string_view, std::string_view) { return std::string{}; };
    /// Asks where a file is to be saved; the filter is as above, `nombre` the file name proposed. Returns its
    /// path, with the ending of the filter where the user typed none, or the empty text where the user
    /// cancels. That a file is there already has been settled with the user.
    std::function<std::string(std::string_view titulo, std::string_view filtro, std::string_view nombre)>
        EligeDestino = [](std::string_view, std::string_view, std::string_view) { return std::string{}; };
    /// Ends the program at once, with nothing more saved. Must not return: it throws FinDelPrograma or
    /// leaves the process.
    std::function<void()> Termina = [] { throw FinDelPrograma{}; };

    /// The tick of the Slate's menu entry, and a way to set it.
    std::function<bool()> MarcaPizarra = [] { return false; };
    std::function<void(bool)> PonMarcaPizarra = [](bool) {};
    /// Opens the Slate's window and brings it to the front.
    std::function<void()> AbrePizarra = [] {};
    /// The text in the Slate's box.
    std::function<std::string()> LeePizarra = [] { return std::string{}; };
    /// Puts a text into the Slate's box in place of what it holds.
    std::function<void(std::string_view)> PonPizarra = [](std::string_view) {};
    /// Puts the whole text of a run into the box; the text begins with what the box holds, so that a host
    /// need only append the rest.
    std::function<void(const std::string&)> AmpliaPizarra = [](const std::string&) {};
    /// Appends to what the box holds.
    std::function<void(std::string_view)> AgregaPizarra = [](std::string_view) {};

    /// Progress of a series: opens the window with its title, shows two texts and a percentage, closes it.
    std::function<void(std::string_view titulo)> AbreAvance = [](std::string_view) {};
    std::function<void(std::string_view primero, std::string_view segundo)> TextosAvance =
        [](std::string_view, std::string_view) {};
    std::function<void(int porcentaje)> BarraAvance = [](int) {};
    std::function<void()> CierraAvance = [] {};

    /// Opens the table of a series' results.
    std::function<void()> AbreTablaSerie = [] {};
    /// Shows the project's titles in the main window's labels.
    std::function<void()> carga_lbl_proyecto = [] {};
    /// Makes the menu entry that saves the project under another name available.
    std::function<void()> HabilitaGuardarComo = [] {};
    /// Makes the two verification commands of the main menu available.
    std::function<void()> HabilitaVerificacion = [] {};
    /// Settles with the user, where need be, what becomes of a drawing that isn't saved. Returns whether the
    /// command may go on; where not, nothing must have happened yet.
    std::function<bool(Riesgo)> ResguardaDibujo = [](Riesgo) { return true; };
    /// Claims a project, told by the path of its configuration file, for this program in place of the one
    /// claimed before. Returns who else has it open, or the empty text.
    std::function<std::string(const std::string& conf)> ReclamaProyecto = [](const std::string&) {
        return std::string{};
    };
    /// Puts a file into the desktop's trash. Returns false where it has none that takes it: the file is then
    /// still there.
    std::function<bool(const std::string& ruta)> TiraAPapelera = [](const std::string&) { return false; };
    /// Draws the editor anew.
    std::function<void()> RedibujaEditor = [] {};

    /// Present date and time in the machine's general format.
    std::function<std::string()> FechaHora = [] { return std::string{}; };
    /// Seconds of a clock that never goes back.
    std::function<double()> Reloj = [] { return 0.0; };
};

}  // namespace model
