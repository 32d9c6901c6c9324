// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <memory>
#include <string>

namespace shell {

/// The claim of this program on the project that it has open: a file beside the project's, or in the user's
/// own directory where that folder takes no file. One that a program has left which runs no more doesn't
/// count.
class Candado {
  public:
    /// Claims the project of a configuration file in place of the one before; the empty path claims none.
    /// Returns which program has it already, or the empty text.
    std::string Toma(const std::string& conf);

  private:
    std::unique_ptr<QLockFile> candado;
    std::string tomado;
};

}  // namespace shell
