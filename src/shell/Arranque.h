// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "shell/MDIForm1.h"

// How the program starts: its state, the splash, the project of the last time.
namespace shell {

inline constexpr std::string_view ProyectoPorDefecto = "Quelmar";
inline constexpr double SegundosPortada = 1.5;

/// The splash, as far as the start has to do with it. A member that is left as it is does nothing.
struct Portada {
    std::function<void(const std::string& version)> Abre = [](const std::string&) {};
    /// Lets the desktop paint and handle what has come.
    std::function<void()> AtiendeSucesos = [] {};
    std::function<void()> Cierra = [] {};
};

/// Text of the splash for a version "major.minor.revision".
std::string TextoVersion(std::string_view version);

/// Before the main window: the state of a fresh start, the splash for as long as it stands on the host's
/// clock, and the pointer file read anew.
void Prepara(model::Siro& s, const Portada& portada, std::string_view version,
             double segundosPortada = SegundosPortada);

/// With the main window: it opens, offers the last project in its menu, and there is no project.
void AlAbrirse(MDIForm1& f, model::Siro& s);

}  // namespace shell
