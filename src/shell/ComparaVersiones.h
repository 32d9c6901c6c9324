// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/Disco.h"
#include "model/Siro.h"
#include "model/VersionAnterior.h"

// What two versions of a project's files differ in: components by name and field, other files line by line.
namespace shell {

/// A disk that holds the files of a version where they stood, and takes no write.
model::Disco DiscoDe(const model::VersionAnterior& version);

/// A state of its own with the project of a version in it, as it would be opened; what its readers would tell
/// isn't told.
model::Siro ProyectoDe(const model::VersionAnterior& version);

/// A component's fields: caption, value as the overview of all parameters shows it.
using CamposDeComponente = std::vector<std::pair<std::string, std::string>>;

/// A version as it is compared.
struct VersionLeida {
    model::VersionAnterior version{};
    std::map<std::string, CamposDeComponente> componentes{};  ///< by kind and name: "UEH u-1"
};
VersionLeida Lee(model::VersionAnterior version);

/// Something that isn't the same in two versions.
struct Diferencia {
    std::string donde{};  ///< component, or name of a file
    std::string que{};    ///< field, line
    std::string uno{}, otro{};
    bool operator==(const Diferencia&) const = default;
};

struct Diferencias {
    std::vector<Diferencia> filas{};
    std::string resumen{};  ///< in a line: "2 componentes cambian, 1 más; Quelmar_Conf.vlm"; "Igual"
};

/// What `otra` has that `una` hasn't, and the other way round. A file of which more than a dozen lines differ
/// has a row for all of them.
Diferencias Compara(const VersionLeida& una, const VersionLeida& otra);

}  // namespace shell
