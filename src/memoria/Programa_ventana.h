// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace memoria {

/// siro-memoria: makes the file that the words of a command line ask for. Needs no screen. Returns the exit
/// status.
int Corre(const std::vector<std::string>& palabras);

}  // namespace memoria
