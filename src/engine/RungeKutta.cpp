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
    const std::string texto = "La superficie a(h) obtenida para h= " + NumeroATexto(s.Resultados.HActual) +
                              std::string(e.clase.areaDe) + e.nombre + " es CERO. ¿Desea continuar?" +
                              std::string(final);
    const std::string repetida = std::string(e.clase.areaDe).append(final);
    if (!model::Consulta(s, texto, e.clase.tituloArea, repetida)) s.Anfitrion.Termina();
}

/// One stage of the scheme: rise of the water [m] in a whole step at height h under the inflow I.
float EtapaRungeKutta(Siro& s, const EmbalseEnMano& e, float h, float I, std::string_view finalPregunta)
{
    s.Resultados.HActual = h;
    const float Q = e.clase.QdeH(s, s.Resultados.HActual);
    s.Resultados.ACalc = Simple(e.clase.AdeH(s, s.Resultados.HActual));
    constexpr double MetrosPorHectarea = 10000.0;
    if (s.Resultados.ACalc > 0)
        return Simple((double{I} - Q) / (s.Resultados.ACalc * MetrosPorHectarea) * s.Pasos.PasoQ * 60.0);
    PreguntaPorArea(s, e, finalPregunta);
    s.Resultados.ACalc = 0;
    return 0;
}

}  // namespace

void PropagaRungeKutta(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    s.Resultados.IndPaso = 0;
    s.Resultados.HActual = e.HInicial;
    float Hk = s.Resultados.HActual;
    s.Resultados.QEntra(e.fila, 0) = c.QBaseEntra;
    (void)e.tablaH(e.numero, e.filasTabla(e.numero));  // top and bottom have to be there, though unused
    (void)e.tablaH(e.numero, 1);
    AbreDetalle(c, e, EncabezadoRungeKutta);
    e.H(e.numero, 0) = s.Resultados.HActual;
    e.S(e.numero, 0) = s.Resultados.SActual;  // of the last routing of the run: kept as it stands
    EscribeDetalle(c, e, 0, {0, 0, 0});
    for (int k = 1; k <= s.Resultados.NroPasosQ; ++k) {
        s.Resultados.IndPaso = static_cast<std::int16_t>(k);
        const float I1 = s.Resultados.QEntra(e.fila, k - 1);
        const float d = Simple(double{s.Resultados.QEntra(e.fila, k)} - s.Resultados.QEntra(e.fila, k - 1));
        const float I2 = Simple(double{d} / 3 + I1);
        const float I3 = Simple(2.0 * d / 3 + I1);
        const float dH1 = EtapaRungeKutta(s, e, Hk, I1, "  ");
        const float dH2 = EtapaRungeKutta(s, e, Simple(double{dH1} / 3 + Hk), I2, " ");
        const float dH3 = EtapaRungeKutta(s, e, Simple(2.0 * dH2 / 3 + Hk), I3, "  ");
        const float dH = Simple(double{dH3} * 3 / 4 + double{dH1} / 4);
        Hk = Simple(double{Hk} + dH);
        s.Resultados.HActual = Hk;
        s.Resultados.QSale(e.fila, k) = e.clase.QdeH(s, s.Resultados.HActual);
        e.H(e.numero, k) = s.Resultados.HActual;
        s.Resultados.SActual = Simple(e.clase.SdeH(s, s.Resultados.HActual));
        e.S(e.numero, k) = s.Resultados.SActual;
        EscribeDetalle(c, e, s.Resultados.IndPaso, {dH1, dH2, dH3});
    }
    CierraDetalle(c, e);
}

}  // namespace engine
