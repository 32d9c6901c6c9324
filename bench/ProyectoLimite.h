// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/Siro.h"

// A project as large as the program admits, the same on every machine: what the benchmarks run.
//
// A binary tree of nodes. Node i is a reach of Muskingum, the Lago that it flows into, and the UEH that
// drains to it; the Lago drains to the reach of node (i-1)/2, that of node 0 nowhere. In the last two
// sevenths of the nodes a Represa stands between UEH and reach. Lagos and Represas are level pools over
// tables of 20 rows, from 100 m to 120 m, and their volumes and flows grow with the nodes upstream, so that
// all are worked over several metres and none runs over.
namespace bench {

/// Name of the project's files.
inline constexpr const char* NombreProyecto = "Limite";

/// The size of a project.
struct Medidas {
    int nudos = 70;     ///< UEHs, Cauces and Lagos each, 1 to 70; Represas are 2/7 of them
    int vertices = 3;   ///< of each reach, 2 to 100
    bool base = false;  ///< the UEHs bring base flow in recession
    std::string metodo = "Piscina Nivelada";  ///< routing of Lagos and Represas
};

/// The storm that the project is made for: with N0Dur = 81 min it runs 150 model steps of 10 min and 301
/// output steps of 5 min, and the tail of its last rain fits into them.
struct TormentaLimite {
    float pp = 236;           ///< [mm]
    std::int16_t dur = 1420;  ///< [min]
    std::int16_t distribucion = 1;
    std::int16_t pasoPp = 10, pasoQ = 5;  ///< [min]
};

/// Storms of the series in table 0: P from 118 mm to 354 mm, R from 1 to 999, all as long as the storm.
inline constexpr std::int16_t TormentasDeLaSerie = 999;

/// Fills components and tables of the state.
void ArmaRed(model::Siro& s, const Medidas& medidas);

/// Puts the storm in hand.
void PonTormenta(model::Siro& s, const TormentaLimite& tormenta = {});

/// Writes the project and the tables that a run of it reads to a directory, which is made where it isn't
/// there. Throws std::runtime_error with the reason.
void GuardaProyecto(const std::string& dir, const Medidas& medidas);

/// State of a program whose project in that directory is open: nothing read yet but its names.
model::Siro ProyectoAbierto(const std::string& dir);

/// A project in a temporary directory that goes with the object.
class ProyectoTemporal {
  public:
    explicit ProyectoTemporal(const Medidas& medidas = {});
    ~ProyectoTemporal();
    ProyectoTemporal(const ProyectoTemporal&) = delete;
    ProyectoTemporal& operator=(const ProyectoTemporal&) = delete;
    [[nodiscard]] const std::string& Dir() const { return dir; }

  private:
    std::string dir;
};

}  // namespace bench
