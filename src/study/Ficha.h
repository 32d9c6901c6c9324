// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a kept run says of itself, and what it rained in it, as JSON: UTF-8, a "version", keys in Spanish,
// unknown ones kept. The files of a kept run, and what else it holds: runs/LibroDeCorridas.h.
namespace study {

/// The peak of an outfall.
struct PicoDeSalida {
    std::string componente{};
    double caudal = 0;               ///< [m3/s]
    std::optional<double> minuto{};  ///< when, from the storm's beginning [min]; of a series there is none
    std::string tormenta{};          ///< of a series: the storm that makes it, in words
    bool operator==(const PicoDeSalida&) const = default;
};

/// The row of a kept run.
struct Ficha {
    std::string proyecto{};          ///< its name
    std::string clase{};             ///< "una", "serie", "conjunto", "ajuste", "sensibilidad"
    std::string cuando{};            ///< local date and time, "2026-11-23 14:05:09"
    std::string quien{};             ///< operator of the configuration
    std::string tormenta{};          ///< storm and steps in words
    std::string huellaEntradas{};    ///< hash of network, rain and steps, 64 digits
    std::string huella{};            ///< hash of the run, checks/Huella.h; of many runs that of the task
    std::string huellaResultados{};  ///< hash of the results alone
    std::vector<PicoDeSalida> salidas{};
    std::string resumen{};                   ///< of many runs: what came out, a sentence
    int errores = 0, avisos = 0, notas = 0;  ///< notices of the run by weight
    double segundos = 0;                     ///< that it took
    std::string programa{};                  ///< version of the program
    std::string nombre{}, nota{};            ///< the user's
    bool fijada = false;                     ///< isn't deleted to make room
    std::string resto{};                     ///< keys that this version doesn't know, as JSON; kept
    bool operator==(const Ficha&) const = default;
};

inline constexpr int VersionDeFicha = 1;

struct LecturaDeFicha {
    Ficha ficha{};         ///< empty where the text is none
    int renglon = 0;       ///< where it fails, from 1
    std::string motivo{};  ///< why it is none, without capital and full stop; empty: it is one
};
LecturaDeFicha LeeFicha(std::string_view bytes);
/// Keys always in the same order; what is no UTF-8 in a text is U+FFFD.
std::string EscribeFicha(const Ficha& ficha);

/// What a run had in memory alone: storm, steps, and the storms of a series. Numbers are those of
/// model::Tormenta, model::Pasos, model::Serie: 32-bit floats and 16-bit integers, each exactly.
struct LluviaDeCorrida {
    int forma = 0, distribucion = 0, tabla = 0;        ///< FormaPp, DistriPp, TablaPDR
    double lamina = 0;                                 ///< [mm]
    int duracion = 0, recurrencia = 0;                 ///< [min], [years]
    std::vector<double> porUEH{};                      ///< [mm], from slot 0
    std::vector<double> bloques{};                     ///< depth of each block [mm], from slot 0
    int nroBloques = 0;                                ///< of them that count
    int pasoPp = 0, pasoQ = 0;                         ///< [min]
    double tiempoAgregado = 0;                         ///< behind the storm's end [min]
    std::vector<double> serieP{}, serieD{}, serieR{};  ///< [mm], [min], [years], from slot 0; none: no series
    bool operator==(const LluviaDeCorrida&) const = default;
};
struct LecturaDeLluvia {
    LluviaDeCorrida lluvia{};
    int renglon = 0;
    std::string motivo{};
};
LecturaDeLluvia LeeLluvia(std::string_view bytes);
std::string EscribeLluvia(const LluviaDeCorrida& lluvia);

}  // namespace study
