// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/Aportes.h"
#include "engine/FormulasUEH.h"
#include "model/Resultados.h"

// What runs over one network have in common: worked out by the first, kept for those that follow.
namespace engine {

/// Potential infiltration of one UEH by the reading of its clock.
struct TablaInfiltracion {
    Infiltracion de{};             ///< what it was worked out for
    std::vector<float> lamina{0};  ///< depth of a step [mm], by the clock's whole number from 1
    std::vector<Infiltracion::Potencias> potencias{{}};  ///< by the same; those of any a
    Infiltracion::PotenciaDeT fin{};                     ///< of the last step's end
};

/// The powers of a base recession, 2.7183^(-t/K), by output step from 1.
struct TablaAbatimiento {
    float K = 0;
    std::int16_t paso = 0;
    std::vector<double> potencia{1};
};

/// What the level pool gives at a height, bit for bit that of the lookups.
struct Nodo {
    float h = 0;  ///< height [m]
    float s = 0;  ///< storage [m3]
    float q = 0;  ///< outflow [m3/s]
    float u = 0;  ///< 2S/dt + Q [m3/s]
};

/// Midpoints that the bisection of one level pool can visit, in rising height from 1, and what it finds
/// there.
struct NodosPiscina {
    /// What the search goes by and what a step goes on with, side by side.
    struct Nivel {
        float u = 0, q = 0;
    };
    /// What is only written down.
    struct Embalsado {
        float h = 0, s = 0;
    };
    std::vector<float> clave{};  ///< what they are worked out from
    bool armados = false;        ///< they have been worked out
    bool sirve = false;          ///< u rises with the height, so that they can stand for the bisection
    std::vector<Nivel> nivel{};
    std::vector<Embalsado> embalsado{};
};

/// A network that was found in order without a question: its sequence, outfalls, and who drains into whom.
struct RedOrdenada {
    bool sirve = false;
    std::vector<std::string> enlaces{};  ///< names and destinations that it was worked out from
    std::int16_t NroUEHs = 0;
    std::vector<std::string> Secuencia{};
    std::array<std::string, model::MaxSalidas + 1> Salidas{};
    std::int16_t NroSalidas = 0;
    bool RedOk = false;
    Aportes afluentes{};
};

/// What the runs of a network have in common whatever the storm, kept from run to run by whoever makes
/// several. Every piece knows what it was worked out for, so that an edit of the network can't be missed.
struct Memoria {
    /// More than one run is to come: work that only pays over several is done at the first.
    bool VariasCorridas = false;
    RedOrdenada red{};
    std::vector<NodosPiscina> piscinas{};           ///< by row of Secuencia
    std::vector<float> clave{};                     ///< room for what a pool's midpoints are worked out from
    std::vector<TablaInfiltracion> infiltracion{};  ///< by UEH from 0
    std::vector<TablaAbatimiento> abatimiento{};    ///< one per constant, of the last ones
    std::vector<double> columna{};                  ///< room for one value per output step
};

}  // namespace engine
