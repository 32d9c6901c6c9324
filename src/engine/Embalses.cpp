// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Embalses.h"

#include <cmath>
#include <string_view>

#include "engine/EmbalseEnMano.h"
#include "engine/Muskingum.h"
#include "engine/Piscina.h"
#include "engine/Resumen.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Numeros.h"

namespace engine {

using model::Cociente;
using model::ComponenteActual;
using model::NumeroATexto;
using model::Redondea;
using model::Simple;
using model::Siro;

namespace {

constexpr std::string_view MetodoMuskingum = "Muskingum";
constexpr std::string_view MetodoPiscina = "Piscina Nivelada";
constexpr std::string_view MetodoRungeKutta = "Runge Kutta";

constexpr std::string_view EncabezadoPiscina =
    "k - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]";
constexpr std::string_view EncabezadoRungeKutta = "k    t     qe(i, k)    dH1   dH2  dH3   q(i, k)";

constexpr int MaximoVueltas = 1000;

// The Lago keeps "la Lago" and "Qentra[mm]" as they stand.
constexpr ClaseEmbalse ClaseRepresa = {
    "Represa",
    "Per.k  t[min]  Qentra[m3/s] Qsale[m3/s]   H[m]     Vol.Alm.[m3]",
    "Error...Verifique función Altura Superficie de la Represa",
    " de la Represa ",
    "Error <Proceso_en_Represa>, inconsistencia en el cálculo de <2S/dt + Q> en propagación Represa ",
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
    "Error <Proceso_en_Lago>, inconsistencia en el cálculo de <2S/dt + Q> en propagación Lago ",
    hydraulics::SdeHLago,
    hydraulics::HdeSLago,
    hydraulics::AdeHLago,
    hydraulics::QdeHLago,
    hydraulics::HdeQalmaLago,
};

// --- detail sheet and result table ------------------------------------------------------------------------

/// The line that names component and method, in the sheet and ahead of the table.
std::string LineaMetodo(const Corrida& c, const EmbalseEnMano& e)
{
    return "Componente: " + std::string(e.clase.nombre) + " " +
           c.s.Secuencia[static_cast<std::size_t>(e.fila)] + "     Método de Propagación: " + e.metodo;
}

void AbreDetalle(Corrida& c, const EmbalseEnMano& e, std::string_view encabezado)
{
    if (!c.ConTexto) return;
    c.s.TextoPizarra.append("\r\nPlanilla detallada de cálculo de propagación en ")
        .append(e.clase.nombre)
        .append(" \r\n")
        .append(encabezado)
        .append("\r\n")
        .append(LineaMetodo(c, e));
}

void CierraDetalle(Corrida& c, const EmbalseEnMano& e)
{
    if (c.ConTexto)
        c.s.TextoPizarra.append("\r\n Fin detalle cálculo proaga en ").append(e.clase.nombre).append(" ");
}

/// Table, peak and volumes, row by row from step 0.
void ResumePasoAPaso(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    for (int paso = 0; paso <= s.NroPasosQ; ++paso) {
        const auto k = static_cast<std::int16_t>(paso);
        const std::int16_t t = Minutos(k, s.PasoQ);
        const float entra = s.QEntra(e.fila, k), sale = s.QSale(e.fila, k);
        if (s.SalidaPizarra) {
            c.Linea.Vacia();
            c.Linea.Pone("\r\n ").Izquierda(std::int32_t{k}, 7).Izquierda(std::int32_t{t}, 7);
            c.Linea.Izquierda(Redondea(entra, 3), 11).Izquierda(Redondea(sale, 3), 13);
            c.Linea.Izquierda(Redondea(e.H(e.numero, k), 2), 10).Izquierda(Redondea(e.S(e.numero, k), 0), 10);
            s.TextoPizarra.append(c.Linea.Texto());
        }
        if (sale > s.QMax(e.fila, s.IndSerie)) s.QMax(e.fila, s.IndSerie) = sale;
        s.VolEntra = Simple(1.0 * s.PasoQ * entra * 60 + s.VolEntra);
        s.VolSale = Simple(1.0 * s.PasoQ * sale * 60 + s.VolSale);
    }
}

void EscribeTabla(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    s.VolEntra = 0;
    s.VolSale = 0;
    if (s.SalidaPizarra)
        s.TextoPizarra.append("\r\n\r\n").append(LineaMetodo(c, e)).append("\r\n").append(e.clase.columnas);
    if (!s.SalidaPizarra && ResumenSeguro(c, e.fila))
        Resume(c, e.fila, {0, s.NroPasosQ});
    else
        ResumePasoAPaso(c, e);
    if (!s.SalidaPizarra) return;
    EscribeResumen(c, e.fila);
    s.TextoPizarra += "\r\n";
    s.Anfitrion.AmpliaPizarra(s.TextoPizarra);
}

// --- inflow -----------------------------------------------------------------------------------------------

void SumaAfluente(Corrida& c, const EmbalseEnMano& e, int afluente)
{
    Siro& s = c.s;
    if (SumaSegura(s.QEntra, e.fila, s.QSale, afluente, s.NroPasosQ))
        return SumaFila(s.QEntra.Fila(e.fila), s.QSale.Fila(afluente), {1, s.NroPasosQ});
    for (int k = 1; k <= s.NroPasosQ; ++k)
        s.QEntra(e.fila, k) = Simple(double{s.QSale(afluente, k)} + s.QEntra(e.fila, k));
}

void JuntaAfluentes(Corrida& c, const EmbalseEnMano& e)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(e.fila);
    for (const int u : afluentes.UEHs) {
        SumaAfluente(c, e, u);
        c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.UEHs(u).Q0Recesion);
    }
    for (const int f : afluentes.Cauces)
        SumaAfluente(c, e, f);
}

// --- methods
// ------------------------------------------------------------------------------------------------

bool PropagaMuskingum(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    constexpr double X = 0;  // the Represa's own weight has no effect
    if (!CoeficientesMuskingum(c, e.K, X, [](auto cuerpo) { cuerpo(); })) {
        model::Advierte(s, TextoMuskingum(e.nombre));
        return false;
    }
    for (int k = 1; k <= s.NroPasosQ; ++k) {
        s.IndPaso = static_cast<std::int16_t>(k);
        if (k == 1)
            s.QSale(e.fila, 1) = s.QEntra(e.fila, 1);
        else
            s.QSale(e.fila, k) = Simple(s.QSale(e.fila, k) + double{c.C0Musk} * s.QEntra(e.fila, k) +
                                        double{c.C1Musk} * s.QEntra(e.fila, k - 1) +
                                        double{c.C2Musk} * s.QSale(e.fila, k - 1));
        e.H(e.numero, k) = e.clase.HdeQalma(s, s.QSale(e.fila, k));
        s.HActual = e.H(e.numero, k);
        e.S(e.numero, k) = Simple(e.clase.SdeH(s, s.HActual));
    }
    return true;
}

/// 2S/dt [m3/s]: two divisions, each rounded to 32 bits.
float DobleAlmacenamiento(const Siro& s, float S)
{
    return Simple(double{Simple(Cociente(2.0 * S, s.PasoQ))} / 60);
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
        s.HActual = Simple((double{hi} - lo) / 2 + lo);
        s.SActual = Simple(e.clase.SdeH(s, s.HActual));
        v.Q = e.clase.QdeH(s, s.HActual);
        v.U = Simple(double{DobleAlmacenamiento(s, s.SActual)} + v.Q);
        if (v.U > W)
            hi = s.HActual;
        else
            lo = s.HActual;
    }
}

void PropagaPiscina(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    Piscina v;
    s.HActual = e.HInicial;
    s.SActual = Simple(e.clase.SdeH(s, s.HActual));
    s.QEntra(e.fila, 0) = c.QBaseEntra;
    v.T = Simple(double{DobleAlmacenamiento(s, s.SActual)} - s.QSale(e.fila, 0));
    (void)e.tablaH(e.numero, e.filasTabla(e.numero));  // top and bottom have to be there
    (void)e.tablaH(e.numero, 1);
    AbreDetalle(c, e, EncabezadoPiscina);
    v.Q = e.clase.QdeH(s, s.HActual);
    s.IndPaso = 0;
    e.H(e.numero, 0) = s.HActual;
    e.S(e.numero, 0) = s.SActual;
    s.QSale(e.fila, 0) = v.Q;
    EscribeDetalle(c, e, 0, {v.I, v.T, v.U});
    if (!PiscinaRapida(c, e, v.T)) {
        for (int k = 1; k <= s.NroPasosQ; ++k) {
            s.IndPaso = static_cast<std::int16_t>(k);
            v.I = Simple(double{s.QEntra(e.fila, k)} + s.QEntra(e.fila, k - 1));
            const float W = Simple(double{v.T} + v.I);
            // asked for its questions alone, where the last storage lies outside the table
            (void)e.clase.HdeS(s, s.SActual);
            Biseca(c, e, W, v);
            e.H(e.numero, k) = s.HActual;
            e.S(e.numero, k) = s.SActual;
            v.T = Simple(W - 2.0 * v.Q);
            s.QSale(e.fila, k) = v.Q;
            EscribeDetalle(c, e, s.IndPaso, {v.I, v.T, v.U});
        }
    }
    CierraDetalle(c, e);
}

/// Asks what to do where the surface at HActual is 0. Yes goes on with 0, No ends the program. The blanks at
/// the end of the question differ by stage.
void PreguntaPorArea(const Siro& s, const EmbalseEnMano& e, std::string_view final)
{
    const std::string texto = "La superficie a(h) obtenida para h= " + NumeroATexto(s.HActual) +
                              std::string(e.clase.areaDe) + e.nombre + " es CERO. ¿Desea continuar?" +
                              std::string(final);
    if (!model::Consulta(s, texto, e.clase.tituloArea)) s.Anfitrion.Termina();
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
    model::Advierte(
        s, "Error, Seleccione el método de propagación de la represa en el formulario de Propiedades" +
               nombre + ". ");
}

}  // namespace

void EscribeDetalle(Corrida& c, const EmbalseEnMano& e, std::int16_t k, const ColumnasDelMetodo& columnas)
{
    Siro& s = c.s;
    const std::int16_t t = Minutos(k, s.PasoQ);
    const float entra = s.QEntra(e.fila, k), sale = s.QSale(e.fila, k);
    if (!c.ConTexto) return;
    c.Linea.Vacia();
    c.Linea.Pone("\r\n").Detalle(std::int32_t{k}, 3).Detalle(std::int32_t{t}, 3).Detalle(entra, 3);
    c.Linea.Detalle(columnas[0], 3).Detalle(columnas[1], 3).Detalle(columnas[2], 8).Detalle(sale, 2);
    c.Linea.Detalle(s.HActual, 2).Detalle(s.SActual, 0);
    s.TextoPizarra.append(c.Linea.Texto());
}

void Proceso_en_Represa(Corrida& c, int fila)
{
    Siro& s = c.s;
    int item = 0;
    for (model::Represa& r : s.ColRepresas) {
        s.CompActual = {ComponenteActual::Clase::Represa, ++item};
        // An earlier Represa without a method stops this one too: kept as it stands.
        if (!MetodoConocido(r.Metodo)) return AvisaMetodo(s, r.NombreRepresa);
        c.QBaseEntra = 0;
        if (r.NombreRepresa != s.Secuencia[static_cast<std::size_t>(fila)]) continue;
        const bool sigue = PropagaEmbalse(
            c, {ClaseRepresa, r.NombreRepresa, r.Metodo, r.numRepresa, fila, r.Represa_k_Musk, r.HInicialEmb,
                s.HRepresa, s.SRepresa, s.RepresaH, s.RepresaS, s.RepresaFilasHAS});
        if (!sigue) return;
    }
}

void Proceso_en_Lago(Corrida& c, int fila)
{
    Siro& s = c.s;
    int item = 0;
    for (model::Lago& l : s.ColLagos) {
        s.CompActual = {ComponenteActual::Clase::Lago, ++item};
        if (!MetodoConocido(l.Metodo)) return AvisaMetodo(s, l.NombreLAGO);
        c.QBaseEntra = 0;
        if (l.NombreLAGO != s.Secuencia[static_cast<std::size_t>(fila)]) continue;
        const bool sigue =
            PropagaEmbalse(c, {ClaseLago, l.NombreLAGO, l.Metodo, l.numLAGO, fila, l.Lago_k_Musk,
                               l.HInicialEmb, s.HLago, s.SLago, s.LagoH, s.LagoS, s.LagoFilas});
        if (!sigue) return;
    }
}

}  // namespace engine
