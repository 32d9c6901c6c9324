// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "frequency/tormenta/Patron.h"
#include "frequency/tormenta/Planes.h"
#include "study/Taller.h"

// The storm of the workshop, from what the study says of it to what the engine will run.
namespace frequency {

/// What the storm is made from, besides that.
struct FuentesDeTormenta {
    LaminaPorRecurrencia curvas{};  ///< none: depth has to be typed
    std::string deDonde{};          ///< what the curves are: "curvas Sherman de Quelmar"
    std::string sinCurvas{};        ///< why there are none
    std::vector<double> grabada{};  ///< intervals of the recorded storm that the pattern is
    std::string sinGrabada{};       ///< why there are none
};

struct Diseno {
    const Patron* patron = nullptr;
    double lamina = 0;            ///< of the storm [mm]
    double paso = 0;              ///< [min]
    Reparto reparto{};            ///< as the pattern has it
    PlanDeDistribucion plan{};    ///< as a personal distribution holds it
    std::vector<double> motor{};  ///< as the engine runs that [mm]
    std::vector<std::string> avisos{};
    std::string error{};   ///< why there is none; texts are sentences with their full stop
    std::string origen{};  ///< what it is and where it came from: of notes and the report
};

Diseno Disena(const study::TormentaDeDiseno& t, const FuentesDeTormenta& fuentes);

/// Periods typed with blanks, semicolons or line ends between them; a decimal comma is one. Empty, and
/// `error` says which isn't a number.
std::vector<double> PeriodosDe(std::string_view texto, std::string& error);

/// What a storm's table of a series, made of the same curves, comes from.
std::string OrigenDeTabla(const FuentesDeTormenta& fuentes);

// --- told ---

/// A step of the storm.
struct PasoDeDiseno {
    double hasta = 0;       ///< its end [min]
    double lamina = 0;      ///< [mm]
    double acumulada = 0;   ///< [mm]
    double intensidad = 0;  ///< [mm/h]
    int porcentaje = 0;     ///< in the distribution, whole
    double motor = 0;       ///< as the engine runs it [mm]
};
std::vector<PasoDeDiseno> PasosDe(const Diseno& d);

/// What rounding to whole percentages does: "lo más lejos, 0.6 % de la lámina (0.5 mm)".
std::string TextoDelRedondeo(const Diseno& d);

// As text, CSV and JSON: UTF-8, LF, a point as decimal sign.
std::string TextoDe(const Diseno& d);
std::string CsvDe(const Diseno& d);
std::string JsonDe(const Diseno& d);

}  // namespace frequency
