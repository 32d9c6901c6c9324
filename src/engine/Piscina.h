// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "engine/EmbalseEnMano.h"
#include "engine/Memoria.h"
#include "hydraulics/Biseccion.h"
#include "model/Numeros.h"

// The arithmetic of the level pool, with whatever its heights are looked for and its rows are read by.
namespace engine {

/// Bracket of heights at which the level pool's bisection ends [m], a 32-bit float.
inline constexpr float AnchoFinal = 0.005F;

/// 2S/dt [m3/s]: two divisions, each rounded to 32 bits. Throws Falla 11 for a step of 0.
inline float DobleAlmacenamiento(float S, std::int16_t PasoQ)
{
    return model::Simple(double{model::Simple(model::Cociente(2.0 * S, PasoQ))} / 60);
}

/// Storage and outflow at height h, and the 2S/dt + Q that they make.
inline Nodo NodoEn(float h, float S, float Q, std::int16_t PasoQ)
{
    return {h, S, Q, model::Simple(double{DobleAlmacenamiento(S, PasoQ)} + Q)};
}

/// Tells that the heights can't be halved down to AnchoFinal, and ends the program.
void NoConverge(const EmbalseEnMano& e);

/// Halves the table's heights until 2S/dt + Q meets the target W: `n` becomes what `en(height)` gives at the
/// last midpoint, and stays where the bracket was too narrow to begin.
template <typename En>
void BisecaPiscina(const EmbalseEnMano& e, float W, Nodo& n, En&& en)
{
    const auto altura = hydraulics::BisecaAltura(e.Base(), e.Tope(), AnchoFinal, [&](float h) {
        n = en(h);
        return n.u > W;
    });
    if (!altura) NoConverge(e);
}

/// The rows of a pool's steps, every index checked.
struct FilasComprobadas {
    FilasComprobadas(Corrida& c, const EmbalseEnMano& embalse) : r(c.s.Resultados), e(embalse) {}
    [[nodiscard]] float Entra(int k) const { return r.QEntra(e.fila, k); }
    [[nodiscard]] float& Sale(int k) const { return r.QSale(e.fila, k); }
    [[nodiscard]] float& H(int k) const { return e.H(e.numero, k); }
    [[nodiscard]] float& S(int k) const { return e.S(e.numero, k); }
    model::Resultados& r;
    const EmbalseEnMano& e;
};

/// The same as they lie in memory. Requires them to reach to NroPasosQ.
struct FilasProbadas {
    FilasProbadas(Corrida& c, const EmbalseEnMano& e)
        : entra(c.s.Resultados.QEntra.Fila(e.fila)),
          sale(c.s.Resultados.QSale.Fila(e.fila)),
          h(e.H.Fila(e.numero)),
          s(e.S.Fila(e.numero))
    {
    }
    [[nodiscard]] float Entra(int k) const { return entra[k]; }
    [[nodiscard]] float& Sale(int k) const { return sale[k]; }
    [[nodiscard]] float& H(int k) const { return h[k]; }
    [[nodiscard]] float& S(int k) const { return s[k]; }
    const float* entra;
    float *sale, *h, *s;
};

/// Walks the steps 1..NroPasosQ from T = 2S/dt - Q. `busca(W, n)` makes of the node of the step before that
/// of the target W.
template <typename Filas, typename Busca>
void RecorrePiscina(Corrida& c, const EmbalseEnMano& e, float T, Nodo n, Busca&& busca)
{
    const Filas filas(c, e);
    for (int k = 1; k <= c.s.Resultados.NroPasosQ; ++k) {
        const float I = model::Simple(double{filas.Entra(k)} + filas.Entra(k - 1));
        const float W = model::Simple(double{T} + I);
        busca(W, n);
        filas.H(k) = n.h;
        filas.S(k) = c.SActual = n.s;
        T = model::Simple(W - 2.0 * n.q);
        filas.Sale(k) = n.q;
        EscribeDetalle(c, e, {static_cast<std::int16_t>(k), {I, T, n.u}, n.h});
    }
}

/// All steps from node `n` with curves and midpoints worked out beforehand: bit for bit what the lookups
/// give. Returns false, and does nothing, where a question can't be ruled out.
bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T, const Nodo& n);

}  // namespace engine
