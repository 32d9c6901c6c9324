// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/CambioArchivo.h"

// A project's files at one time, as one value and as the bytes of one file.
namespace model {

/// The files of a project at one time.
struct VersionAnterior {
    std::string proyecto{};                 ///< its directory, separator, its name
    std::vector<CambioArchivo> archivos{};  ///< sorted by name; a name stands for its path
    bool operator==(const VersionAnterior&) const = default;
};

/// Bytes that the files of a version may take together; what is larger isn't kept. A series of flows at each
/// minute of ten years takes about half of it.
inline constexpr std::size_t MaximoDeVersion = std::size_t{48} << 20;

/// Directory of a project's path, and its name.
std::string DirectorioDeProyecto(std::string_view proyecto);
std::string NombreDeProyecto(std::string_view proyecto);

/// Which project a file is of, by the names of all files of its directory: that of a configuration file whose
/// name, up to "_", the file's begins with, the longest of them. Recorded storms and the list of single
/// storms are the project's where the directory has one project only. Empty: of none.
std::string ProyectoDeArchivo(std::string_view archivo, const std::vector<std::string>& delDirectorio);

/// Whether a file is of the study alone: P_Estudio.json, P_serie_*.csv.
bool EsDeEstudio(std::string_view archivo);

/// The bytes of a version: a line of its own kind, one with the checksum of all that follows, the project,
/// how many files, a line of length and name for each, and then their bytes. Throws Falla 75, with the
/// reason, for what is too large or no version at all.
std::string EscribeVersion(const VersionAnterior& version);

/// The head of a file of this kind over what is to follow it: its two first lines, and then that.
std::string ConHuella(const std::string& cuerpo);

/// Reads them. Throws Falla 75, with the reason, where they aren't whole, or where a name leads to what is
/// no file of that project.
VersionAnterior LeeVersion(std::string_view bytes);

/// What the name of a version's file tells: "0123456789abcdef-00000012-1795314300-0123456789abcdef.anterior".
struct FichaDeVersion {
    std::uint64_t clave = 0;   ///< of the project's path
    std::uint64_t turno = 0;   ///< counts the versions of a project, from 1; clocks may go back
    std::int64_t momento = 0;  ///< when it was kept [s since 1970, UTC]
    std::uint64_t huella = 0;  ///< of its bytes
    bool operator==(const FichaDeVersion&) const = default;
    [[nodiscard]] std::string Archivo() const;
};

/// Reads such a name; any other file's is none.
std::optional<FichaDeVersion> LeeFicha(std::string_view archivo);

/// FNV-1a, 64 bits (Fowler, Noll, Vo; offset basis 14695981039346656037, prime 1099511628211).
std::uint64_t HuellaFnv(std::string_view bytes);

}  // namespace model
