// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "model/Disco.h"
#include "model/VersionAnterior.h"

// The last states of each project's files, as its saves found them: one file each in a folder of the user's,
// never beside the project. They outlive the project.
namespace model {

/// How many are kept of a project; the oldest goes first.
inline constexpr int MaximoDeVersiones = 10;

/// A user wants ten states that he has left, not ten keystrokes: what is written within this time of the last
/// version belongs to the same save, and the study, which is written at each change, makes a version of its
/// own this long after the last one. [s]
inline constexpr std::int64_t MismoGuardado = 3, PausaDelEstudio = 900;

/// Where versions are kept.
struct Anteriores {
    Disco disco{};          ///< without ConAnteriores
    std::string carpeta{};  ///< is made at the first version; empty: nothing is kept
    std::function<std::int64_t()> ahora = [] { return std::int64_t{0}; };  ///< [s since 1970, UTC]
};

/// The folder within the user's own directory.
std::string CarpetaDeAnteriores(const std::string& dirDelUsuario);

/// A disk over that of `a` that keeps what a project's files hold before they are replaced, copied over or
/// deleted. A project that isn't there yet, and a save that changes nothing, have nothing to keep. Where a
/// version can't be written the save goes on, and `avisa` gets to know why, behind the save and once.
Disco ConAnteriores(const Anteriores& a, std::function<void(const std::string&)> avisa);

/// The same for a file that goes another way than through the disk, into the trash. Tells nothing.
void GuardaAntesDe(const Anteriores& a, const std::string& ruta);

/// The versions of a project, the newest first; damaged ones too.
std::vector<FichaDeVersion> VersionesDe(const Anteriores& a, const std::string& proyecto);

/// The projects of which there are versions, sorted, those that are gone too.
std::vector<std::string> ProyectosConVersiones(const Anteriores& a);

/// Reads a version. Throws Falla 53, 76, 75, with the reason where it is damaged.
VersionAnterior LeeVersion(const Anteriores& a, const FichaDeVersion& ficha);

/// The files of a project as they are now. Throws Falla 76, 75.
VersionAnterior VersionPresente(const Disco& disco, const std::string& proyecto);

/// Keeps a version, unless the newest holds the same; an older one that does gives way to it, and so does the
/// oldest beyond the number. A damaged one is left where it is. Throws Falla 76, 75 and keeps nothing.
void GuardaVersion(const Anteriores& a, const VersionAnterior& version);

/// The files of a project that bringing a version back replaces or deletes: names, sorted. Storms that
/// several projects share by now are left as they are, and none is deleted. Throws Falla 76, 75.
struct CambiosDeVuelta {
    std::vector<CambioArchivo> reemplaza{};
    std::vector<std::string> borra{};
};
CambiosDeVuelta CambiosDe(const VersionAnterior& presente, const VersionAnterior& version,
                          const std::vector<std::string>& delDirectorio);

/// Puts the files of a version in the place of the present ones, all of them or none, once those are kept as
/// a version themselves. Then deletes those that the project didn't have. Throws Falla 76, 75, with the
/// project as it was.
void TraeDeVuelta(const Anteriores& a, const VersionAnterior& version);

/// Writes the files of a version into another folder, all of them or none. Returns the path of the
/// configuration file; empty, with nothing written, where one of them stands there already. Throws Falla 76,
/// 75.
std::string EscribeAparte(const Disco& disco, const VersionAnterior& version, const std::string& directorio);

}  // namespace model
