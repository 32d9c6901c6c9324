// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

// The calls of the operating system that a whole write is made of. The platform's are in
// LlamadasDisco_posix.cpp and LlamadasDisco_windows.cpp.
namespace model {

/// One record of functions, so that a test can let the n-th call fail, or kill the program at it. An empty
/// error is success.
struct LlamadasDisco {
    using Camino = std::filesystem::path;
    /// Makes a file that isn't there yet, with owner and rights of `modelo` where that one is there, and
    /// waits until its bytes are on the disk. Where that fails nothing is left of it.
    std::function<std::error_code(const Camino& archivo, std::string_view bytes, const Camino& modelo)> Crea;
    /// Writes over a file where it stands. Room is made first, so that a full disk leaves it as it is.
    std::function<std::error_code(const Camino& archivo, std::string_view bytes)> Sobrescribe;
    /// Puts a file in the place of another, or of none, in one step.
    std::function<std::error_code(const Camino& de, const Camino& a)> Renombra;
    std::function<std::error_code(const Camino& archivo)> Borra;
    /// Waits until the names in a directory are on the disk.
    std::function<std::error_code(const Camino& directorio)> Asienta;
    /// Whether the rights of a file let this program write it.
    std::function<bool(const Camino& archivo)> DejaEscribir;
    /// Whether a process with this number is running.
    std::function<bool(long proceso)> Vive;
    long proceso = 0;  ///< number of this process
};

/// What keeps a file from being written, where the system tells it better than an error does: that it is open
/// in another program, that it is write-protected. Empty where it has nothing to tell.
std::string_view MotivoDelSistema(const std::filesystem::path& archivo);

/// The real ones. From then on a file beyond the limit of the process is refused as on a full disk.
LlamadasDisco LlamadasDelSistema();

}  // namespace model
