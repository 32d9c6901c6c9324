// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "engine/EmbalseEnMano.h"
#include "engine/Piscina.h"
#include "model/Numeros.h"

namespace engine {

using model::Cociente;
using model::Simple;
using model::Siro;

namespace {

constexpr std::string_view EncabezadoPiscina =
    "k - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]";
constexpr int MaximoVueltas = 1000;

/// 2S/dt [m3/s]: two divisions, each rounded to 32 bits.
float DobleAlmacenamiento(const Siro& s, float S)
{
    return Simple(double{Simple(Cociente(2.0 * S, s.Pasos.PasoQ))} / 60);
}

void NoConverge(const Siro& s, const EmbalseEnMano& e)
{
    model::Advierte(
        s,
        std::string(e.clase.rutina) + e.nombre +
            ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de "
            "embalse",
        "Error,...");
    s.Anfitrion.Termina();
}

/// Values of the level pool between steps.
struct Piscina {
    float T = 0;  ///< 2S/dt - Q [m3/s]
    float U = 0;  ///< 2S/dt + Q at the last height tried [m3/s]
    float I = 0;  ///< I1 + I2 [m3/s]
    float Q = 0;  ///< outflow [m3/s]
};

/// Halves the bracket of heights until U meets the target W; HActual, SActual, Q and U are those of the last
/// midpoint, also where the bracket was too narrow to begin.
void Biseca(Corrida& c, const EmbalseEnMano& e, float W, Piscina& v)
{
    Siro& s = c.s;
    float hi = e.tablaH(e.numero, e.filasTabla(e.numero)), lo = e.tablaH(e.numero, 1);
    int vueltas = 0;
    while (Simple(std::fabs(double{hi} - lo)) > AnchoFinal) {
        if (++vueltas > MaximoVueltas) NoConverge(s, e);
        s.Resultados.HActual = Simple((double{hi} - lo) / 2 + lo);
        s.Resultados.SActual = Simple(e.clase.SdeH(s, s.Resultados.HActual));
        v.Q = e.clase.QdeH(s, s.Resultados.HActual);
        v.U = Simple(double{DobleAlmacenamiento(s, s.Resultados.SActual)} + v.Q);
        if (v.U > W)
            hi = s.Resultados.HActual;
        else
            lo = s.Resultados.HActual;
    }
}

}  // namespace

void PropagaPiscina(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    Piscina v;
    s.Resultados.HActual = e.HInicial;
    s.Resultados.SActual = Simple(e.clase.SdeH(s, s.Resultados.HActual));
    s.Resultados.QEntra(e.fila, 0) = c.QBaseEntra;
    v.T = Simple(double{DobleAlmacenamiento(s, s.Resultados.SActual)} - s.Resultados.QSale(e.fila, 0));
    (void)e.tablaH(e.numero, e.filasTabla(e.numero));  // top and bottom have to be there
    (void)e.tablaH(e.numero, 1);
    AbreDetalle(c, e, EncabezadoPiscina);
    v.Q = e.clase.QdeH(s, s.Resultados.HActual);
    s.Resultados.IndPaso = 0;
    e.H(e.numero, 0) = s.Resultados.HActual;
    e.S(e.numero, 0) = s.Resultados.SActual;
    s.Resultados.QSale(e.fila, 0) = v.Q;
    EscribeDetalle(c, e, 0, {v.I, v.T, v.U});
    if (!PiscinaRapida(c, e, v.T)) {
        for (int k = 1; k <= s.Resultados.NroPasosQ; ++k) {
            s.Resultados.IndPaso = static_cast<std::int16_t>(k);
            v.I = Simple(double{s.Resultados.QEntra(e.fila, k)} + s.Resultados.QEntra(e.fila, k - 1));
            const float W = Simple(double{v.T} + v.I);
            // asked for its questions alone, where the last storage lies outside the table
            (void)e.clase.HdeS(s, s.Resultados.SActual);
            Biseca(c, e, W, v);
            e.H(e.numero, k) = s.Resultados.HActual;
            e.S(e.numero, k) = s.Resultados.SActual;
            v.T = Simple(W - 2.0 * v.Q);
            s.Resultados.QSale(e.fila, k) = v.Q;
            EscribeDetalle(c, e, s.Resultados.IndPaso, {v.I, v.T, v.U});
        }
    }
    CierraDetalle(c, e);
}

}  // namespace engine
