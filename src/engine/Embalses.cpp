// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Embalses.h"

#include <string_view>

#include "engine/EmbalseEnMano.h"
#include "engine/Muskingum.h"
#include "engine/Totales.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Numeros.h"

namespace engine {

using model::ComponenteActual;
using model::Simple;
using model::Siro;

namespace {

constexpr std::string_view MetodoMuskingum = "Muskingum";
constexpr std::string_view MetodoPiscina = "Piscina Nivelada";
constexpr std::string_view MetodoRungeKutta = "Runge Kutta";

// The Lago keeps "la Lago" and "Qentra[mm]" as they stand.
constexpr ClaseEmbalse ClaseRepresa = {
    "Represa",
    "Per.k  t[min]  Qentra[m3/s] Qsale[m3/s]   H[m]     Vol.Alm.[m3]",
    "Error...Verifique función Altura Superficie de la Represa",
    " de la Represa ",
    "Error <Proceso_en_Represa>, inconsistencia en el cálculo de <2S/dt + Q> "
    "en propagación Represa ",
    hydraulics::SdeHRepresa,
    hydraulics::HdeSRepresa,
    hydraulics::AdeHRepresa,
    hydraulics::QdeHRepresa,
    hydraulics::HdeQalmaRepresa,
};
constexpr ClaseEmbalse ClaseLago = {
    "Lago",
    "Per.k  t[min]  Qentra[mm] Qsale[m3/s]   H[m]     Vol.Alm.[m3]",
    "Error...Verifique función Altura Superficie de la Lago",
    " de la Lago ",
    "Error <Proceso_en_Lago>, inconsistencia en el cálculo de <2S/dt + Q> en "
    "propagación Lago ",
    hydraulics::SdeHLago,
    hydraulics::HdeSLago,
    hydraulics::AdeHLago,
    hydraulics::QdeHLago,
    hydraulics::HdeQalmaLago,
};

// --- inflow ---

void SumaAfluente(Corrida& c, const EmbalseEnMano& e, int afluente)
{
    model::Resultados& r = c.s.Resultados;
    if (c.Alcanzan() && SumaFila(r.QEntra.Fila(e.fila), r.QSale.Fila(afluente), r.NroPasosQ)) return;
    for (int k = 1; k <= r.NroPasosQ; ++k)
        r.QEntra(e.fila, k) = Simple(double{r.QSale(afluente, k)} + r.QEntra(e.fila, k));
}

void JuntaAfluentes(Corrida& c, const EmbalseEnMano& e)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(e.fila);
    for (const Aportes::AfluenteUEH& u : afluentes.UEHs) {
        SumaAfluente(c, e, u.fila);
        // that of the row's UEH, unlike in a reach: kept as it stands
        c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.Red.UEHs(u.fila).Q0Recesion);
    }
    for (const int f : afluentes.Cauces)
        SumaAfluente(c, e, f);
}

// --- methods ---

bool PropagaMuskingum(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    constexpr double X = 0;  // the Represa's own weight has no effect
    if (!c.Musk.Prepara(e.K, X, s.Pasos.PasoQ, [](auto cuerpo) { cuerpo(); })) {
        model::Advierte(s, TextoMuskingum(e.nombre));
        return false;
    }
    for (int k = 1; k <= s.Resultados.NroPasosQ; ++k) {
        s.Resultados.IndPaso = static_cast<std::int16_t>(k);
        c.Musk.Paso(s.Resultados, e.fila, k);
        e.H(e.numero, k) = e.clase.HdeQalma(s, s.Resultados.QSale(e.fila, k));
        s.Resultados.HActual = e.H(e.numero, k);
        e.S(e.numero, k) = Simple(e.clase.SdeH(s, s.Resultados.HActual));
    }
    return true;
}

/// The frame of both kinds. Returns false where the routine is left before the table.
bool PropagaEmbalse(Corrida& c, const EmbalseEnMano& e)
{
    JuntaAfluentes(c, e);
    if (e.metodo == MetodoMuskingum) {
        if (!PropagaMuskingum(c, e)) return false;
    } else if (e.metodo == MetodoPiscina) {
        PropagaPiscina(c, e);
    } else {
        PropagaRungeKutta(c, e);
    }
    EscribeTabla(c, e);
    return true;
}

bool MetodoConocido(const std::string& metodo)
{
    return metodo == MetodoMuskingum || metodo == MetodoPiscina || metodo == MetodoRungeKutta;
}

/// Tells that a component names no method; "represa" is kept for a Lago.
void AvisaMetodo(const Siro& s, const std::string& nombre)
{
    model::Advierte(s,
                    "Error, Seleccione el método de propagación de la represa "
                    "en el formulario de Propiedades" +
                        nombre + ". ");
}

}  // namespace

void Proceso_en_Represa(Corrida& c, int fila)
{
    Siro& s = c.s;
    int item = 0;
    for (model::Represa& r : s.Red.ColRepresas) {
        s.CompActual = {ComponenteActual::Clase::Represa, ++item};
        // An earlier Represa without a method stops this one too: kept as it stands.
        if (!MetodoConocido(r.Metodo)) return AvisaMetodo(s, r.NombreRepresa);
        c.QBaseEntra = 0;
        if (r.NombreRepresa != s.Resultados.Secuencia[static_cast<std::size_t>(fila)]) continue;
        const bool sigue =
            PropagaEmbalse(c, {ClaseRepresa, r.NombreRepresa, r.Metodo, r.numRepresa, fila, r.Represa_k_Musk,
                               r.HInicialEmb, s.Resultados.HRepresa, s.Resultados.SRepresa, s.Red.RepresaH,
                               s.Red.RepresaS, s.Red.RepresaFilasHAS});
        if (!sigue) return;
    }
}

void Proceso_en_Lago(Corrida& c, int fila)
{
    Siro& s = c.s;
    int item = 0;
    for (model::Lago& l : s.Red.ColLagos) {
        s.CompActual = {ComponenteActual::Clase::Lago, ++item};
        if (!MetodoConocido(l.Metodo)) return AvisaMetodo(s, l.NombreLAGO);
        c.QBaseEntra = 0;
        if (l.NombreLAGO != s.Resultados.Secuencia[static_cast<std::size_t>(fila)]) continue;
        const bool sigue = PropagaEmbalse(
            c, {ClaseLago, l.NombreLAGO, l.Metodo, l.numLAGO, fila, l.Lago_k_Musk, l.HInicialEmb,
                s.Resultados.HLago, s.Resultados.SLago, s.Red.LagoH, s.Red.LagoS, s.Red.LagoFilas});
        if (!sigue) return;
    }
}

}  // namespace engine
