// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/Arreglo.h"

// What a run leaves: the order of computation, hydrographs, peaks, volumes, coefficients.
namespace model {

inline constexpr int MaxSalidas = 10;  ///< outfalls whose names are kept

/// What a run leaves. A row is the component's place in Secuencia (1..NroUEHs the UEHs by number, above them
/// the order of computation of the last run), a column an output step or a storm.
struct Resultados {
    // --- order of computation ---
    std::int16_t NroComponentes = 0;
    std::vector<std::string> Secuencia{};  ///< names 1..NroComponentes; slot 0 unused
    std::int16_t NroSalidas = 0;
    std::array<std::string, MaxSalidas + 1> Salidas{};  ///< names of the outfalls, from 1

    // --- flows and volumes ---
    std::int16_t NroPasosQ = 0;     ///< output steps of the run
    Matriz<float> QSale{};          ///< outflow [m3/s]; column: output step
    Matriz<float> QEntra{};         ///< inflow [m3/s]; rows NroUEHs+1..NroComponentes+1; column: output step
    Matriz<float> PpUEHPaso{};      ///< rainfall [mm]; row: UEH; column: model step
    Matriz<float> QMax{};           ///< peak outflow [m3/s]; column: storm
    Matriz<std::int32_t> EscUEH{};  ///< runoff volume without base flow [m3]; row: UEH; column: storm
    Matriz<float> CoefEscUEH{};     ///< runoff coefficient [%]; row: UEH; column: storm
    Arreglo<std::int32_t> EscTotal{};      ///< runoff volume of the basin [m3], by storm
    Arreglo<float> CoefEscTotal{};         ///< runoff coefficient of the basin [%], by storm
    Arreglo<float> VolUEH{};               ///< volume at the foot of each UEH [m3]
    Arreglo<std::int32_t> VolBaseUEH{};    ///< base volume of each UEH [m3]
    Arreglo<float> CoefUEH{};              ///< runoff coefficient of each UEH in this storm [%]
    Arreglo<float> PasosInfiltra{};        ///< infiltration clock of each UEH [model steps]
    Matriz<float> HRepresa{}, SRepresa{};  ///< height [m], storage [m3]; row: Represa number; column: step
    Matriz<float> HLago{}, SLago{};        ///< the same of the Lagos
    float VolEntra = 0, VolSale = 0;       ///< volumes of the component routed last [m3]

    // --- what a series keeps of its storms ---
    /// Room for storms 1..tormentas, all 0.
    void DimensionaTormentas(int NroUEHs, int tormentas)
    {
        QMax.Dimensiona(NroComponentes, tormentas);
        EscUEH.Dimensiona(NroUEHs, tormentas);
        CoefEscUEH.Dimensiona(NroUEHs, tormentas);
        CoefEscTotal.Dimensiona(tormentas);
        EscTotal.Dimensiona(tormentas);
    }
    /// Takes over what another run of as many components left of its storm `suya`.
    void TraeTormenta(const Resultados& de, int suya, int tormenta)
    {
        const auto trae = [&](auto& mia, const auto& otra) {
            for (int fila = mia.PrimeraFila(); fila <= mia.UltimaFila(); ++fila)
                mia(fila, tormenta) = otra(fila, suya);
        };
        trae(QMax, de.QMax);
        trae(EscUEH, de.EscUEH);
        trae(CoefEscUEH, de.CoefEscUEH);
        EscTotal(tormenta) = de.EscTotal(suya);
        CoefEscTotal(tormenta) = de.CoefEscTotal(suya);
    }
};

}  // namespace model
