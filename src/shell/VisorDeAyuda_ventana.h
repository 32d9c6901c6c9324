// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The desktop's viewer of compiled help, where there is one.
namespace shell {

/// Whether the desktop has a program for files of compiled help. Where only the desktop itself can tell, it
/// is taken to have one.
bool HayVisorDeAyuda();

/// Shows a file of compiled help with that program. Returns whether it was started; false where there is
/// none, for a desktop without one would take the file to a browser, or leave it without a word.
bool AbreConVisorDeAyuda(const std::string& ruta);

}  // namespace shell
