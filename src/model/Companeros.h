// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// The files of a project beyond those that every project has: its study, P_Estudio.json, its series,
// P_serie_*.csv, the runs that it keeps, a directory P_corridas. They come and go with the project; one
// without them has nothing to do with any of this.
namespace model {

struct Siro;

inline constexpr std::string_view TerminacionEstudio = "_Estudio.json";

/// Those of a project among the files of its directory: names, sorted; the directory of its runs, which is
/// looked for on the disk and counts where it holds a file, is last and ends in the separator.
std::vector<std::string> CompanerosDe(const Siro& s, const std::string& directorio,
                                      const std::vector<std::string>& archivos, std::string_view proyecto);

/// The same of every project of the directory, by its configuration file.
std::map<std::string, std::vector<std::string>> CompanerosPorConf(const Siro& s,
                                                                  const std::string& directorio,
                                                                  const std::vector<std::string>& archivos);

/// Copies those of a project to another name, all but the runs. Throws Falla 76, 75.
void CopiaCompaneros(const Siro& s, const std::string& directorio, const std::string& viejo,
                     const std::string& nuevo);

/// Gives another name to one of them. Returns it: "P_Estudio.json.anterior", with a number where that is
/// taken. Throws Falla 53, 76, 75 and leaves it where it is.
std::string ApartaCompanero(const Siro& s, const std::string& directorio, const std::string& nombre);

/// Ahead of a project that is new: what another one of its name has left is set aside, and that is told.
/// Returns false, after telling so, where that can't be done.
bool ApartaCompaneros(const Siro& s, const std::string& directorio, const std::string& proyecto);

/// Into the trash, or off the disk where there is none; of a directory its files, the empty one stays. Throws
/// Falla 53, 76, 75.
void Tira(const Siro& s, const std::string& directorio, const std::string& nombre);

}  // namespace model
