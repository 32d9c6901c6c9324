// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "model/Falla.h"

namespace apoyo {

/// A disk in memory with directories, which can refuse what a real one refuses: the n-th call, a write that
/// fills it, a write-protected path. Its copies and every door that it gave share one state.
///
///     DiscoPrueba disco;
///     disco.Pon("/proy/A_Conf.vlm", bytes);      // makes the directory too
///     s.Disco = disco.Puerta();
///     disco.FallaEn(3, NumeroFalla::AccesoRuta);  // the third call from now on
class DiscoPrueba {
  public:
    enum class Clase {
        Lee,
        Escribe,
        Agrega,
        HayDirectorio,
        CreaDirectorio,
        Lista,
        Borra,
        Copia,
        Reemplaza,
        Recupera
    };
    /// A call as it came through the door, the failed ones too; of a replacement the first file.
    struct Llamada {
        Clase clase;
        std::string ruta;
        bool operator==(const Llamada&) const = default;
    };

    DiscoPrueba();
    /// What the program under test gets.
    [[nodiscard]] model::Disco Puerta() const;

    // What the test itself does to the disk: neither counted nor ever refused.
    void PonDirectorio(const std::string& ruta);  ///< with those above it
    void Pon(const std::string& ruta, std::string_view bytes);
    void Quita(const std::string& ruta);  ///< a file, or a directory with all that it holds
    [[nodiscard]] bool Esta(const std::string& ruta) const;
    /// Contents of a file; the test fails where it isn't there.
    [[nodiscard]] std::string Bytes(const std::string& ruta) const;
    [[nodiscard]] std::vector<std::string> Archivos() const;  ///< paths of all files, sorted

    /// Write-protects a file, or a directory: nothing in it is made, written or deleted.
    void Protege(const std::string& ruta, bool protegido = true);
    /// Bytes that all files together can take. A write beyond is Falla 75 and stores what fits, but nothing
    /// where it replaces a file whole.
    void LimitaEspacio(std::size_t bytes);

    /// The n-th call from now on fails, n from 1, and leaves the disk as it is. HayDirectorio can't raise a
    /// fault: it then says no.
    void FallaEn(int n, model::NumeroFalla numero);
    /// That call and all after it.
    void FallaDesde(int n, model::NumeroFalla numero);
    void DejaDeFallar();
    /// Whether a call has been made to fail since FallaEn or FallaDesde.
    [[nodiscard]] bool HuboFalla() const;

    [[nodiscard]] const std::vector<Llamada>& Llamadas() const;
    void OlvidaLlamadas();

  private:
    struct Estado;
    std::shared_ptr<Estado> estado;
};

}  // namespace apoyo
