// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <utility>

#include "engine/Aportes.h"
#include "engine/Memoria.h"
#include "engine/Muskingum.h"
#include "engine/Renglon.h"
#include "engine/Totales.h"
#include "model/Arreglo.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

/// Working values of one run of the main process, which its stages hand on to one another. All start at 0.
///
/// The handler of the main process reports a fault and resumes at the next statement: `Intenta` runs one
/// statement under it. Hot loops are run unchecked where it is proved that no statement of theirs can fail.
struct Corrida {
    Corrida(model::Siro& estado, Memoria& loRecordado) : s(estado), memoria(loRecordado) {}

    model::Siro& s;
    Memoria& memoria;

    // --- UEHs ---
    float AreaTotal = 0;                        ///< [ha]
    std::int16_t RelacionPasos = 0;             ///< output steps in a model step
    std::int16_t NroPasosPp = 0;                ///< bound of the model step loop, itself not run
    model::Arreglo<float> RetencionRestante{};  ///< retention still to fill [mm], by UEH
    model::Arreglo<float> PpMediaPaso{};        ///< rainfall of the basin [mm], by model step
    float SumaPp = 0;                           ///< rainfall of the basin [mm]
    std::int32_t VolBaseTotal = 0;              ///< [m3]
    std::int32_t EscTotalCalc = 0;              ///< [m3]
    float CoefTotal = 0;                        ///< runoff coefficient of the basin [%]

    // --- reaches, Lagos, Represas ---
    float QBaseEntra = 0;          ///< initial flow of the UEHs that drain straight into the component [m3/s]
    float SActual = 0;             ///< storage that any routing worked out last [m3]
    std::int16_t TiempoViaje = 0;  ///< [min]
    std::int16_t RetardoPasos = 0;  ///< [output steps]
    std::int16_t RetardoMax = 0;    ///< largest delay so far [output steps]
    Muskingum Musk{};               ///< of the component routed last by that method

    /// TextoPizarra is built. Off only where nobody can read it.
    bool ConTexto = true;
    /// VolEntra and VolSale are worked out. Off only where nobody can read them.
    bool ConVolumenes = true;
    /// Who drains into whom, once the order of computation stands.
    const Aportes* Afluentes = nullptr;
    Renglon Linea{};  ///< the line in hand

    /// Runs one statement; reports a fault and returns false where it is at fault.
    template <typename Cuerpo>
    bool Intenta(Cuerpo&& cuerpo)
    {
        return model::Sentencia(std::forward<Cuerpo>(cuerpo), model::AvisaMotor(s));
    }
    /// The test of an if or a loop: false where it is at fault.
    template <typename Prueba>
    bool Vale(Prueba&& prueba)
    {
        bool vale = false;
        Intenta([&] { vale = prueba(); });
        return vale;
    }
    /// The results reach as far as network, steps and storm in hand go: no row of Secuencia, no step up to
    /// NroPasosQ and no storm IndSerie lies outside QSale, QEntra and QMax, and minutes stay within 16 bits.
    /// A fast loop has then only its numbers to prove.
    [[nodiscard]] bool Alcanzan() const;
    /// The same, and for what is kept by UEH.
    [[nodiscard]] bool UEHsAlcanzan() const;
};

/// Adds the outflow of a row of Secuencia to the inflow of another, `intenta` running the statement of each
/// step.
void SumaAfluente(Corrida& c, int fila, int afluente, auto&& intenta)
{
    model::Resultados& r = c.s.Resultados;
    if (c.Alcanzan() && SumaFila(r.QEntra.Fila(fila), r.QSale.Fila(afluente), r.NroPasosQ)) return;
    for (int p = 1; p <= r.NroPasosQ; ++p)
        intenta([&] { r.QEntra(fila, p) = model::Simple(double{r.QEntra(fila, p)} + r.QSale(afluente, p)); });
}

/// The k-th multiple of a step [min], in 16 bits. Throws Falla 6.
inline std::int16_t Minutos(std::int16_t k, std::int16_t paso)
{
    return model::Producto16(k, paso);
}

}  // namespace engine
