// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <string>

#include "model/Disco.h"

namespace runs {

/// Files as they were read: path, bytes.
using ArchivosLeidos = std::map<std::string, std::shared_ptr<const std::string>>;

/// Remembers the model's files that are read through a disk, from the last reading of a configuration on,
/// which is what the load of a project begins with: so that what a run read can be kept as it was. Its
/// copies, and the disks that it gave, share one memory, on any thread.
class Testigo {
  public:
    Testigo();
    /// The same disk, watched.
    [[nodiscard]] model::Disco Sobre(model::Disco disco) const;
    [[nodiscard]] ArchivosLeidos Leidos() const;
    /// Since that configuration was read [s]; 0 where there was none.
    [[nodiscard]] double Segundos() const;

  private:
    struct Estado;
    std::shared_ptr<Estado> estado;
};

}  // namespace runs
