// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>

#include "engine/EmbalseEnMano.h"
#include "engine/Memoria.h"
#include "hydraulics/Biseccion.h"
#include "hydraulics/mdlFQs.h"
#include "model/Numeros.h"
#include "model/Siro.h"

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

/// Halves the heights of a table until 2S/dt + Q, which `U(height)` gives, meets the target W. Asks for
/// nothing where the bracket is too narrow to begin.
template <typename Funcion>
void BisecaPiscina(const EmbalseEnMano& e, hydraulics::RangoAlturas rango, float W, Funcion&& U)
{
    const auto pasa = [&](float h) { return U(h) > W; };
    if (!hydraulics::BisecaAltura(rango.minimo, rango.maximo, AnchoFinal, pasa)) NoConverge(e);
}

/// The rows of a pool's steps, every index and every store checked.
struct FilasComprobadas {
    static constexpr bool Comprueba = true;
    static float Guarda(double x) { return model::Simple(x); }
    FilasComprobadas(Corrida& c, const EmbalseEnMano& embalse) : r(c.s.Resultados), e(embalse) {}
    [[nodiscard]] float Entra(int k) const { return r.QEntra(e.fila, k); }
    [[nodiscard]] float& Sale(int k) const { return r.QSale(e.fila, k); }
    [[nodiscard]] float& H(int k) const { return e.H(e.numero, k); }
    [[nodiscard]] float& S(int k) const { return e.S(e.numero, k); }
    model::Resultados& r;
    const EmbalseEnMano& e;
};

/// The same as they lie in memory. Requires them, and the minutes of the steps, to reach to NroPasosQ.
struct FilasProbadas {
    static constexpr bool Comprueba = false;
    static float Guarda(double x) { return static_cast<float>(x); }
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

/// Walks the steps from `desde` to NroPasosQ with T = 2S/dt - Q of the step before; `busca(W)` gives the node
/// of the target W.
template <typename Filas, typename Busca>
void RecorrePiscina(Corrida& c, const EmbalseEnMano& e, float T, Busca& busca, int desde = 1)
{
    const Filas filas(c, e);
    for (int k = desde; k <= c.s.Resultados.NroPasosQ; ++k) {
        const float I = Filas::Guarda(double{filas.Entra(k)} + filas.Entra(k - 1));
        const float W = Filas::Guarda(double{T} + I);
        const Nodo n = busca(W);
        const double siguiente = W - 2.0 * n.q;
        if constexpr (!Filas::Comprueba)  // what has left the type on the way shows in the last of the three
            if (!std::isfinite(static_cast<float>(siguiente)))
                return RecorrePiscina<FilasComprobadas>(c, e, T, busca, k);
        filas.H(k) = n.h;
        filas.S(k) = n.s;
        if (Filas::Comprueba || c.ConTexto) c.SActual = n.s;
        T = Filas::Guarda(siguiente);
        filas.Sale(k) = n.q;
        if (Filas::Comprueba || c.ConTexto)
            EscribeDetalle(c, e, {static_cast<std::int16_t>(k), {I, T, n.u}, n.h});
    }
    if (const int ultimo = c.s.Resultados.NroPasosQ; ultimo >= desde) c.SActual = filas.S(ultimo);
}

/// All steps from node `n` with curves and midpoints worked out beforehand: bit for bit what the lookups
/// give. Returns false, and does nothing, where a question can't be ruled out.
bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T, const Nodo& n);

}  // namespace engine
