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
    FilasComprobadas(Corrida& corrida, const EmbalseEnMano& embalse) : c(corrida), e(embalse) {}
    static float Suma(float a, float b) { return model::Simple(double{a} + b); }
    static float RestaDoble(float a, float b) { return model::Simple(a - 2.0 * b); }
    [[nodiscard]] float Entra(int k) const { return c.s.Resultados.QEntra(e.fila, k); }
    void Sale(int k, float Q) const { c.s.Resultados.QSale(e.fila, k) = Q; }
    void Embalsa(int k, const Nodo& n) const
    {
        e.H(e.numero, k) = n.h;
        e.S(e.numero, k) = n.s;
        c.SActual = n.s;
    }
    Corrida& c;
    const EmbalseEnMano& e;
};

/// The same as they lie in memory, in the arithmetic of 32 bits, whose bits a sum in 64 bits rounded to 32
/// has too. Requires the rows, and the minutes of the steps, to reach to NroPasosQ.
struct FilasProbadas {
    static constexpr bool Comprueba = false;
    FilasProbadas(Corrida& c, const EmbalseEnMano& e)
        : entra(c.s.Resultados.QEntra.Fila(e.fila)),
          sale(c.s.Resultados.QSale.Fila(e.fila)),
          h(e.H.Fila(e.numero)),
          s(e.S.Fila(e.numero))
    {
    }
    static float Suma(float a, float b) { return a + b; }
    static float RestaDoble(float a, float b) { return a - 2 * b; }
    [[nodiscard]] float Entra(int k) const { return entra[k]; }
    void Sale(int k, float Q) const { sale[k] = Q; }
    void Embalsa(int k, const Nodo& n) const
    {
        h[k] = n.h;
        s[k] = n.s;
    }
    const float* entra;
    float *sale, *h, *s;
};

/// The same where nobody can read heights and storages.
struct FilasSinEmbalse : FilasProbadas {
    using FilasProbadas::FilasProbadas;
    void Embalsa(int, const Nodo&) const {}
};

/// Walks the steps from `desde` to NroPasosQ with T = 2S/dt - Q of the step before; `busca(W)` gives the node
/// of the target W.
template <typename Filas, typename Busca>
void RecorrePiscina(Corrida& c, const EmbalseEnMano& e, float T, Busca& busca, int desde = 1)
{
    const Filas filas(c, e);
    const int pasos = c.s.Resultados.NroPasosQ;
    for (int k = desde; k <= pasos; ++k) {
        const float I = Filas::Suma(filas.Entra(k), filas.Entra(k - 1));
        const float W = Filas::Suma(T, I);
        const Nodo n = busca(W);
        filas.Embalsa(k, n);
        const float siguiente = Filas::RestaDoble(W, n.q);
        if constexpr (!Filas::Comprueba)  // what has left the type on the way shows in the last of the three
            if (!std::isfinite(siguiente)) return RecorrePiscina<FilasComprobadas>(c, e, T, busca, k);
        T = siguiente;
        filas.Sale(k, n.q);
        if (Filas::Comprueba || c.ConTexto)
            EscribeDetalle(c, e, {static_cast<std::int16_t>(k), {I, T, n.u}, n.h, n.s});
    }
}

/// All steps from node `n` with curves and midpoints worked out beforehand: bit for bit what the lookups
/// give. Returns false, and does nothing, where a question can't be ruled out.
bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T, const Nodo& n);

}  // namespace engine
