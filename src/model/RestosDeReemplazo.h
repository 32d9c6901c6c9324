// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "model/CambioArchivo.h"
#include "model/LlamadasDisco.h"

// What a replacement of files leaves in its folder while it lasts, temporaries and lists: their names, and
// how one that was cut short is finished.
namespace model {

/// Name of a temporary, ".siro-4711-1-0.tmp", or of the list of a replacement, ".siro-4711-1.lista".
struct NombreResto {
    long proceso = 0;
    long turno = 0;   ///< replacement of this process in this folder, from 1
    long pieza = -1;  ///< file of the replacement, from 0; -1: the list

    [[nodiscard]] std::string Texto() const;
    bool operator==(const NombreResto&) const = default;
};

/// Reads such a name; any other file's is none.
std::optional<NombreResto> LeeNombreResto(std::string_view nombre);

/// For as long as it lives, a replacement of this process is at work: a recovery on another thread leaves
/// what is its own alone.
class ReemplazoEnObra {
  public:
    ReemplazoEnObra() = default;
    ~ReemplazoEnObra() { Toma(0); }
    ReemplazoEnObra(ReemplazoEnObra&& otro) noexcept : lugar(std::exchange(otro.lugar, nullptr)) {}
    ReemplazoEnObra(const ReemplazoEnObra&) = delete;
    ReemplazoEnObra& operator=(const ReemplazoEnObra&) = delete;
    /// It bears another number now; 0: none.
    void Toma(long turno);

  private:
    std::atomic<long>* lugar = nullptr;  ///< among those of the process
};

/// The list: the names that the temporaries 0, 1, 2 ... are to bear, a line each.
std::string TextoDeLista(const std::vector<std::string>& nombres);

/// Reads a list. Nothing where it isn't whole, or where it names what is no file of its own folder.
std::optional<std::vector<std::string>> LeeLista(std::string_view bytes);

/// Puts a temporary in the place of a file. Where the folder lets the file's name be given to nothing else,
/// as a shared one does with what another user owns, the bytes go into the file where it stands.
std::error_code PoneTemporal(const LlamadasDisco& llamadas, const std::filesystem::path& temporal,
                             const std::filesystem::path& destino);

/// Takes names out of what an earlier replacement left unfinished, once they hold what is newer: finishing it
/// would put the older bytes over them. What belongs to another program that is running is left to it.
void OlvidaPendientes(const LlamadasDisco& llamadas, const std::filesystem::path& carpeta,
                      const std::vector<std::string>& nombres);

/// See Disco::Recupera. What belongs to another program that is running is left to it.
Recuperacion RecuperaCarpeta(const LlamadasDisco& llamadas, const std::string& directorio);

}  // namespace model
