// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace shell {

/// The program: style, language, its own directory, the desktop. Returns its exit status.
/// Words: a configuration file to be opened, "--sin-portada" to start without the splash's wait.
int Programa(int& argc, char** argv);

}  // namespace shell
