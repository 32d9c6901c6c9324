// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/Arreglo.h"
#include "model/Red.h"

// What it rains and in which steps; the tables of rain.
namespace model {

/// Input form of the rain. Unscoped, since a form is an index too: named as FormaLluvia::Real all the same.
enum FormaLluvia : std::int16_t { Escrita = 0, DeLista = 1, SeriePDR = 2, PorUEH = 3, Real = 4 };

/// Temporal distributions 5, 6 and 7 are the personal tables 1, 2 and 3.
inline constexpr std::int16_t PrimeraPersonal = 5;

/// What it rains. A plain value.
struct Tormenta {
    float PpTormenta = 0;                          ///< depth P [mm]
    std::int16_t DurTormenta = 0;                  ///< duration D [min]
    std::int16_t RecTormenta = 0;                  ///< recurrence R [years]
    std::int16_t FormaPp = FormaLluvia::Escrita;   ///< FormaLluvia
    std::int16_t DistriPp = 0;                     ///< temporal distribution 0..7
    std::int16_t TablaPDR = 0;                     ///< P-D-R table in use, 0..3
    Arreglo<float> PpUEH = Ceros<float>(MaxUEHs);  ///< rainfall of each UEH in this storm [mm], by number
    Arreglo<float> PpReal = Ceros<float>(0);       ///< depth of each block of the hyetograph [mm], from 1
    std::int16_t NroPpReal = 0;                    ///< blocks in PpReal
};

/// In which steps a run goes, and for how long.
struct Pasos {
    std::int16_t PasoPp = 10;  ///< model step [min]
    std::int16_t PasoQ = 10;   ///< output step of flows [min]
    float N0Dur = 10;          ///< time simulated beyond the storm's end [min]
};

/// The storms of a series, and which of them is under way.
struct Serie {
    std::int16_t NroSeriePDR = 0;              ///< storms of the series
    std::int16_t IndSerie = 0;                 ///< storm under computation, 1 in a single run
    Arreglo<float> SerieP{};                   ///< [mm], from 1
    Arreglo<std::int16_t> SerieD{}, SerieR{};  ///< [min], [years], from 1
    bool SaltarTormenta = false;               ///< the storm in hand is deselected
    double HoraInicio = 0;                     ///< start of the series [s of the host's clock]
};

/// Takes storm `numero` of a series as the storm in hand. Throws Falla 9.
inline void TomaTormenta(Tormenta& t, const Serie& serie, int numero)
{
    t.PpTormenta = serie.SerieP(numero);
    t.DurTormenta = serie.SerieD(numero);
    t.RecTormenta = serie.SerieR(numero);
}

/// Tables of rain that all projects share.
struct TablasDeLluvia {
    std::array<std::int16_t, 4> NroFilasTabla{};  ///< rows of tables 0..3, of whichever file was read last
    Matriz<float> DisPerso{};  ///< row: personal table 0..3; column: period from 1 [% of P]
    std::array<std::int16_t, 4> DurMinPer{},
        DurMaxPer{};  ///< durations for which a personal table holds [min]
    std::array<std::string, 4> NotasDisPer{};
    Matriz<std::int16_t> TablasP{}, TablasD{}, TablasR{};  ///< row: P-D-R table 0..4; column: storm from 1
    std::array<std::string, 4> NotasPDR{};
};

/// The storm spread over time.
struct Hietograma {
    std::int16_t NroBloquesPp = 0;            ///< blocks of the temporal distribution
    Arreglo<float> PpAcum = Ceros<float>(0);  ///< cumulative [%], then cumulative depth at a block's end [mm]
    Arreglo<float> IntensidadPp = Ceros<float>(0);  ///< percentage of a block, then its intensity [mm/min]
    float PpAcumPrevia = 0;                         ///< depth delivered so far by PpDelPaso [mm]
};

}  // namespace model
