// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// How projects come and go. A project is no directory and has no list of its files: it is the family of files
// that bear its name as a prefix inside one directory, and it is there when its configuration file is.
namespace model {

struct Siro;

inline constexpr std::string_view ArchivoPuntero = "VelmirDir.vlm";

// --- the pointer to the last project ---

/// Sets DirTrabajo from DirEjecutable, takes DirProyecto and NombreProyecto from the pointer file and writes
/// it anew. With ConfPendiente set the project must have its configuration there. Whatever fails is silent
/// and leaves no project in the default directory, "Proyectos" under DirTrabajo. From a network path only the
/// writing is done.
void LeePuntero(Siro& s);

/// Writes DirProyecto and NombreProyecto to the pointer file in DirTrabajo. Throws Falla 76, 75.
void GuardaPuntero(Siro& s);

/// Shows the project's titles in the main window and records the project as the last one. Throws Falla
/// 76, 75.
void MuestraProyecto(Siro& s);

/// Finishes what a program that was killed in a save has begun in a folder, removes what else it left there,
/// and tells which files it finished. Before the folder's files are read.
void RecuperaGuardado(const Siro& s, const std::string& directorio);

/// Empties components, selection, counts and the names of project and directories, then reads the pointer:
/// so the last project's name is the current one.
void LimpiaProyecto(Siro& s);

// --- the commands of the main menu ---

/// A project's name holds digits, letters without accents, and "@". The empty one passes.
bool NombreProyectoValido(std::string_view nombre);

/// Asks for a name and makes it the current project's; what a project of that name has left beside its own
/// files is set aside. Nothing of the project is written here: that is done
/// when its configuration, which ProyectoNuevo announces, is confirmed. A name that exists is told and stays
/// the current one. A file fault other than a missing file is told and ends the program. Returns whether
/// there is a new project, whose configuration is to be opened.
bool mnuNuevoProyecto(Siro& s);

/// Asks for a configuration file and opens its project. Faults never end the program.
void mnuAbrirProyecto(Siro& s);

/// The same with a file that has been chosen already. Its path is whole and has the platform's separators.
void AbreProyectoDe(Siro& s, std::string_view ruta);

/// Claims the project in hand for this program and reads its configuration, which may name another one in its
/// place: then that one is claimed. Faults are told.
void LeeConfReclamada(Siro& s);

/// What a path says of a project: DirProyecto, NombreProyecto, and DirProyectoConf, the path up to its first
/// separator. Returns false, with no project, where the path doesn't end in "_Conf.vlm".
bool TomaRutaProyecto(Siro& s, std::string_view ruta);

/// Opens the project that the pointer names.
void mnu_ultimoarchivo1(Siro& s);

/// Asks for a name and copies the current project's files to it, but for the runs that it keeps, all of them
/// or none; from then on it is the current project. Files that the project hasn't got are passed over. Faults
/// as in mnuNuevoProyecto.
void mnuGuardarProyectoComo(Siro& s);

// --- deleting ---

/// What the dialog's controls hold.
struct dlgEliminarProyecto {
    std::string DirProyecto{};                                     ///< the directory shown
    std::vector<std::string> filProyectoEliminar{};                ///< configuration files in it, sorted
    std::string lblProyectoAEliminar = "Ninguno";                  ///< the file picked
    std::map<std::string, std::vector<std::string>> companeros{};  ///< of each of those files: Companeros.h
    std::string lblTambien{};  ///< what of them goes with the file picked; empty: nothing
    bool abierto = true;

    /// Fills the list; a directory that has gone lists nothing.
    void Abre(const Siro& s);
    /// A click on a file of the list.
    void filProyectoEliminar_AlPulsar(std::string_view archivo);
    /// Asks, then deletes the file picked and every file whose name begins with what stands before the
    /// picked one's first "_" and ends in ".vlm", those of other projects included, and what else belongs to
    /// any of these projects; where nothing stands there it tells so and deletes nothing. What is deleted
    /// goes to the trash where there is one. Only then the dialog closes; NombreProyecto stays. Throws Falla
    /// 53, 76, 75 and leaves the dialog open.
    void OKButton(Siro& s);
};

}  // namespace model
