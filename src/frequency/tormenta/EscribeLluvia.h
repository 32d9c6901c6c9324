// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "frequency/tormenta/Planes.h"
#include "model/SiroDeclarado.h"

// Rain goes into the files that a run reads. Tables and distributions are shared by all projects: what they
// held is told before, and kept for the way back. Files are replaced whole or stay as they are; texts are
// sentences with their full stop.
namespace frequency {

/// A file as it was and as it has been written, which is what brings it back.
struct CambioDeLluvia {
    std::string ruta{};
    std::optional<std::string> antes{};  ///< its bytes; none: there was no such file
    std::string despues{};
    std::string destino{};  ///< what was written: "Tabla P-D-R 2"
    bool operator==(const CambioDeLluvia&) const = default;
};

struct Escritura {
    CambioDeLluvia cambio{};
    std::string error{};  ///< why nothing was written; empty: it was
};

/// What would be replaced: number of rows and notes of a table of storms 1..3 or a personal
/// distribution 1..3.
struct EnElArchivo {
    int filas = 0;
    std::string notas{};
    std::string error{};  ///< why the file can't be written: it isn't there, or it can't be read to its end
};

EnElArchivo HayEnTabla(const model::Siro& s, int tabla);
EnElArchivo HayEnDistribucion(const model::Siro& s, int distribucion);

/// Replaces a table of storms, or a distribution, by a plan without error; the others stay.
Escritura EscribeTabla(const model::Siro& s, const PlanDeTabla& plan, int tabla);
Escritura EscribeDistribucion(const model::Siro& s, const PlanDeDistribucion& plan, int distribucion);

// --- a recorded storm ---

/// A recorded storm of the project.
struct Grabada {
    std::vector<double> laminas{};  ///< of its intervals [mm]
    double paso = 0;                ///< [min]
    double total = 0;               ///< [mm], as the program adds it
    std::string error{};
};

Grabada LeeGrabada(const model::Siro& s, const std::string& archivo);

/// Writes a recorded storm times `lamina` over its depth as another one of the project, with a line in its
/// notes. `destino` ends in _pt.vlm, is none of the delivered storms and is replaced where it is there.
Escritura EscalaGrabada(const model::Siro& s, const std::string& origen, const std::string& destino,
                        double lamina);

/// Brings a file back to what it held, to the byte. Returns why it can't: above all, that another program
/// has changed it since.
std::string Deshace(const model::Siro& s, const CambioDeLluvia& cambio);

}  // namespace frequency
