// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "model/Falla.h"

// Paths of the real disk: UTF-8 outside, the system's own kind here.
namespace model {

/// Throws Falla 75 for a path that the system would take for another one, with the reason where Windows has
/// it. No other way leads from a text to a path or back: the standard library's own takes the bytes of a text
/// for another encoding there.
std::filesystem::path Camino(const std::string& ruta);
/// Empty where a name holds what is no text at all.
std::string TextoDe(const std::filesystem::path& camino);

/// The directory that a path names its file in.
std::string DirectorioDe(const std::string& ruta);

bool EsDirectorio(const std::filesystem::path& camino);
/// Whether the directory that a path names its file in is there.
bool HayDirectorioDe(const std::filesystem::path& camino);

/// Whether a folder lies inside another or is the same one; both without links.
bool EstaDentro(const std::filesystem::path& dentro, const std::filesystem::path& carpeta);

/// Fault 75, with what the system has to tell about the file.
Falla FallaDeAcceso(const std::filesystem::path& camino);

/// Throws Falla 53, 76, 75 unless there is a plain file to be read or deleted.
void ExigeArchivo(const std::filesystem::path& camino);

/// No file of a project comes near the first; a larger one is read as little as a directory is. What is
/// copied may be an image. [bytes]
inline constexpr std::uintmax_t MaximoLeido = std::uintmax_t{64} << 20,
                                MaximoCopiado = std::uintmax_t{256} << 20;

/// The whole file. Throws Falla 53, 76, 75; 75 also for one above `maximo`.
std::string LeeArchivo(const std::filesystem::path& camino, std::uintmax_t maximo = MaximoCopiado);

}  // namespace model
