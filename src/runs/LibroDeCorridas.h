// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "model/Disco_comienzos.h"
#include "study/Ficha.h"
#include "study/Paquete.h"

// The ledger of the runs of a project, P: a file for each kept run in P_corridas beside the project's own, so
// that several programs may write at once. A file is a zip package whose first piece, not compressed, is its
// row, so that a list reads the first bytes of each file alone:
//
//     corrida.json       the row: study::Ficha
//     lluvia.json        storm, steps, series, which a run has in memory alone: study::LluviaDeCorrida
//     proyecto/...       the project's files, as the run read them
//     trabajo/...        the tables of DirTrabajo that it read
//     resultados.csv     of a storm or a series: each component's peak
//     tarea.json, resultado.json   of many runs: what was asked, what came out, as siro-lote has them
//
// Its name sorts by time, "20261123-140509-123_3f9a0c12_5b1e77aa9c31d204.zip": UTC to the millisecond, the
// beginning of the hash, and a number drawn at random, which keeps apart what several programs write.
namespace runs {

inline constexpr std::string_view PiezaFicha = "corrida.json", PiezaLluvia = "lluvia.json",
                                  PiezaResultados = "resultados.csv", PiezaTarea = "tarea.json",
                                  PiezaResultado = "resultado.json", CarpetaDeProyecto = "proyecto/",
                                  CarpetaDeTrabajo = "trabajo/";

/// Where the runs of a project are kept.
struct Libro {
    std::string dirProyecto{}, proyecto{};
    model::Disco disco = model::DiscoDelSistema();
    model::LectorDePuntas puntas = model::PuntasDelSistema();
    /// Milliseconds since 1970, UTC.
    std::function<std::int64_t()> ahora = RelojDelSistema;

    [[nodiscard]] std::string Carpeta() const;
    static std::int64_t RelojDelSistema();
};

/// A run as it is to be kept; CorridaGuardada.h makes one.
struct CorridaPorGuardar {
    study::Ficha ficha{};  ///< `cuando` is put in where it has none
    std::vector<study::Pieza> piezas{};
};

/// A file of the ledger.
struct RenglonDeLibro {
    std::string archivo{};  ///< its name
    std::uint64_t bytes = 0;
    study::Ficha ficha{};
    std::string reparo{};  ///< why it is no kept run, or no whole one, a sentence; empty: it is one
};

/// All files of the ledger, the newest first; what is no kept run is told as such and left alone. Nothing
/// where there is no folder. What a program that was killed has begun there is brought in order. Throws
/// Falla 75 where the folder can't be looked at.
std::vector<RenglonDeLibro> ListaDe(const Libro& libro);

/// Writes a run into the ledger, whole or not at all, and returns the name of its file. Throws Falla 76, 75.
std::string Guarda(const Libro& libro, CorridaPorGuardar corrida);

/// Deletes the oldest runs that aren't pinned until all files take no more than `tope` [bytes]; never
/// `salvo`, the one just written, nor what is no kept run. What can't be deleted stays. Returns how many.
int HaceLugar(const Libro& libro, std::uint64_t tope, const std::string& salvo = {});

/// What the files of the ledger take [bytes].
std::uint64_t Ocupado(const Libro& libro);

/// The pieces of a kept run. Throws Falla 53, 76, 75; 75 with what is damaged.
std::vector<study::Pieza> PiezasDe(const Libro& libro, const std::string& archivo);

/// Changes name, note, pin: the file is replaced whole. Throws as PiezasDe.
void CambiaFicha(const Libro& libro, const std::string& archivo,
                 const std::function<void(study::Ficha&)>& cambio);

/// The row out of the first and last bytes of a file.
RenglonDeLibro RenglonDe(std::string archivo, const model::Puntas& puntas);

}  // namespace runs
