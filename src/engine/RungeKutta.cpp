// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EmbalseEnMano.h"
#include "model/Numeros.h"

namespace engine {

using model::NumeroATexto;
using model::Simple;
using model::Siro;

namespace {

constexpr std::string_view EncabezadoRungeKutta = "k    t     qe(i, k)    dH1   dH2  dH3   q(i, k)";

/// Asks what to do where the surface at HActual is 0. Yes goes on with 0, No ends the program. The blanks at
/// the end of the question differ by stage.
void PreguntaPorArea(const Siro& s, const EmbalseEnMano& e, std::string_view final)
{
    const std::string texto = "La superficie a(h) obtenida para h= " + NumeroATexto(s.HActual) +
                              std::string(e.clase.areaDe) + e.nombre + " es CERO. ¿Desea continuar?" +
                              std::string(final);
    const std::string repetida = std::string(e.clase.areaDe).append(final);
    if (!model::Consulta(s, texto, e.clase.tituloArea, repetida)) s.Anfitrion.Termina();
}

/// One stage of the scheme: rise of the water [m] in a whole step at height h under the inflow I.
float EtapaRungeKutta(Siro& s, const EmbalseEnMano& e, float h, float I, std::string_view finalPregunta)
{
    s.HActual = h;
    const float Q = e.clase.QdeH(s, s.HActual);
    s.ACalc = Simple(e.clase.AdeH(s, s.HActual));
    constexpr double MetrosPorHectarea = 10000.0;
    if (s.ACalc > 0) return Simple((double{I} - Q) / (s.ACalc * MetrosPorHectarea) * s.PasoQ * 60.0);
    PreguntaPorArea(s, e, finalPregunta);
    s.ACalc = 0;
    return 0;
}

}  // namespace

void PropagaRungeKutta(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    s.IndPaso = 0;
    s.HActual = e.HInicial;
    float Hk = s.HActual;
    s.QEntra(e.fila, 0) = c.QBaseEntra;
    (void)e.tablaH(e.numero, e.filasTabla(e.numero));  // top and bottom have to be there, though unused
    (void)e.tablaH(e.numero, 1);
    AbreDetalle(c, e, EncabezadoRungeKutta);
    e.H(e.numero, 0) = s.HActual;
    e.S(e.numero, 0) = s.SActual;  // of the last routing of the run: kept as it stands
    EscribeDetalle(c, e, 0, {0, 0, 0});
    for (int k = 1; k <= s.NroPasosQ; ++k) {
        s.IndPaso = static_cast<std::int16_t>(k);
        const float I1 = s.QEntra(e.fila, k - 1);
        const float d = Simple(double{s.QEntra(e.fila, k)} - s.QEntra(e.fila, k - 1));
        const float I2 = Simple(double{d} / 3 + I1);
        const float I3 = Simple(2.0 * d / 3 + I1);
        const float dH1 = EtapaRungeKutta(s, e, Hk, I1, "  ");
        const float dH2 = EtapaRungeKutta(s, e, Simple(double{dH1} / 3 + Hk), I2, " ");
        const float dH3 = EtapaRungeKutta(s, e, Simple(2.0 * dH2 / 3 + Hk), I3, "  ");
        const float dH = Simple(double{dH3} * 3 / 4 + double{dH1} / 4);
        Hk = Simple(double{Hk} + dH);
        s.HActual = Hk;
        s.QSale(e.fila, k) = e.clase.QdeH(s, s.HActual);
        e.H(e.numero, k) = s.HActual;
        s.SActual = Simple(e.clase.SdeH(s, s.HActual));
        e.S(e.numero, k) = s.SActual;
        EscribeDetalle(c, e, s.IndPaso, {dH1, dH2, dH3});
    }
    CierraDetalle(c, e);
}

}  // namespace engine
