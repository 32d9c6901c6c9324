// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Piscina.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace engine {

using model::Simple;

namespace {

constexpr std::string_view EncabezadoPiscina =
    "k - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]";

/// The steps by the lookups of the tables and functions, with their questions.
void RecorreConConsultas(Corrida& c, const EmbalseEnMano& e, float T, Nodo n)
{
    const auto busca = [&](float W) -> const Nodo& {
        // asked for its questions alone, where the last storage lies outside the table
        (void)hydraulics::HdeS(e, c.SActual);
        BisecaPiscina(e, e.Alturas(), W, [&](float h) {
            c.SActual = Simple(hydraulics::SdeH(e, h));
            n = NodoEn(h, c.SActual, hydraulics::QdeH(e, h), c.s.Pasos.PasoQ);
            return n.u;
        });
        return n;
    };
    RecorrePiscina<FilasComprobadas>(c, e, T, busca);
}

}  // namespace

void NoConverge(const EmbalseEnMano& e)
{
    const std::string palabra(e.palabra);
    model::Advierte(e.anfitrion,
                    "Error <Proceso_en_" + palabra +
                        ">, inconsistencia en el cálculo de <2S/dt + Q> en propagación " + palabra + " " +
                        e.nombre +
                        ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie "
                        "-volumen de embalse",
                    "Error,...");
    e.anfitrion.Termina();
}

void PropagaPiscina(Corrida& c, const EmbalseEnMano& e)
{
    model::Resultados& r = c.s.Resultados;
    Nodo n{.h = e.HInicial};
    n.s = c.SActual = Simple(hydraulics::SdeH(e, n.h));
    r.QEntra(e.fila, 0) = c.QBaseEntra;
    const float T = Simple(double{DobleAlmacenamiento(n.s, c.s.Pasos.PasoQ)} - r.QSale(e.fila, 0));
    (void)e.Alturas();  // top and bottom have to be there
    AbreDetalle(c, e, EncabezadoPiscina);
    n.q = hydraulics::QdeH(e, n.h);
    e.H(e.numero, 0) = n.h;
    e.S(e.numero, 0) = n.s;
    r.QSale(e.fila, 0) = n.q;
    EscribeDetalle(c, e, {0, {0, T, 0}, n.h, n.s});
    if (!PiscinaRapida(c, e, T, n)) RecorreConConsultas(c, e, T, n);
    CierraDetalle(c, e);
}

}  // namespace engine
