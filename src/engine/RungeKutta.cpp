// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EmbalseEnMano.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::NumeroATexto;
using model::Simple;

namespace {

constexpr std::string_view EncabezadoRungeKutta = "k    t     qe(i, k)    dH1   dH2  dH3   q(i, k)";

/// Asks what to do where the surface at height h is 0. Yes goes on with 0, No ends the program. The blanks at
/// the end of the question differ by stage. "la Lago" is kept as it stands.
void PreguntaPorArea(const EmbalseEnMano& e, float h, std::string_view final)
{
    const std::string clase = " de la " + std::string(e.palabra);
    const std::string texto = "La superficie a(h) obtenida para h= " + NumeroATexto(h) + clase + " " +
                              e.nombre + " es CERO. ¿Desea continuar?" + std::string(final);
    const std::string repetida = (clase + " ").append(final);
    if (!model::Consulta(e.anfitrion, texto, "Error...Verifique función Altura Superficie" + clase, repetida))
        e.anfitrion.Termina();
}

/// One stage of the scheme: rise of the water [m] in a whole step at height h under the inflow I.
float EtapaRungeKutta(const Corrida& c, const EmbalseEnMano& e, float h, float I,
                      std::string_view finalPregunta)
{
    const float Q = hydraulics::QdeH(e, h);
    const float A = Simple(hydraulics::AdeH(e, h));  // [ha]
    constexpr double MetrosPorHectarea = 10000.0;
    if (A > 0) return Simple((double{I} - Q) / (A * MetrosPorHectarea) * c.s.Pasos.PasoQ * 60.0);
    PreguntaPorArea(e, h, finalPregunta);
    return 0;
}

}  // namespace

void PropagaRungeKutta(Corrida& c, const EmbalseEnMano& e)
{
    model::Resultados& r = c.s.Resultados;
    float H = e.HInicial;
    r.QEntra(e.fila, 0) = c.QBaseEntra;
    (void)e.Alturas();  // top and bottom have to be there, though unused
    AbreDetalle(c, e, EncabezadoRungeKutta);
    e.H(e.numero, 0) = H;
    e.S(e.numero, 0) = c.SActual;  // of the last routing of the run: kept as it stands
    EscribeDetalle(c, e, {0, {0, 0, 0}, H, c.SActual});
    for (int k = 1; k <= r.NroPasosQ; ++k) {
        const float I1 = r.QEntra(e.fila, k - 1);
        const float d = Simple(double{r.QEntra(e.fila, k)} - I1);
        const float I2 = Simple(double{d} / 3 + I1);
        const float I3 = Simple(2.0 * d / 3 + I1);
        const float dH1 = EtapaRungeKutta(c, e, H, I1, "  ");
        const float dH2 = EtapaRungeKutta(c, e, Simple(double{dH1} / 3 + H), I2, " ");
        const float dH3 = EtapaRungeKutta(c, e, Simple(2.0 * dH2 / 3 + H), I3, "  ");
        const float dH = Simple(double{dH3} * 3 / 4 + double{dH1} / 4);
        H = Simple(double{H} + dH);
        r.QSale(e.fila, k) = hydraulics::QdeH(e, H);
        e.H(e.numero, k) = H;
        c.SActual = Simple(hydraulics::SdeH(e, H));
        e.S(e.numero, k) = c.SActual;
        EscribeDetalle(c, e, {static_cast<std::int16_t>(k), {dH1, dH2, dH3}, H, c.SActual});
    }
    CierraDetalle(c, e);
}

}  // namespace engine
