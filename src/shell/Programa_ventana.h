// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace shell {

/// The program: style, language, its own directory, the desktop. Returns its exit status.
/// It takes no options; a configuration file that it is started on is opened.
int Programa(int& argc, char** argv);

}  // namespace shell
