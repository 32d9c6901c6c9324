// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Tramos.h"

#include <cmath>
#include <string_view>
#include <vector>

#include "engine/Muskingum.h"
#include "engine/Resumen.h"
#include "engine/Totales.h"
#include "model/Cauce.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Cauce;
using model::Cociente;
using model::Entero16;
using model::Redondea;
using model::Simple;
using model::Siro;
using model::Suma16;

namespace {

constexpr std::string_view SinLongitud[] = {
    "El parámetro de Longitud de Cauce del tramo ",
    " es '0'. Debe asignar un valor correcto a este parámetro desde el Editor de UEHs "};
constexpr std::string_view SinVelocidad[] = {
    "El parámetro de Velocidad Media de propagación Directa en el tramo ",
    " es '0'. Debe asignar un valor correcto a este parámetro desde el Editor de UEHs "};

void JuntaAfluentes(Corrida& c, int fila)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(fila);
    const auto intenta = [&](auto cuerpo) { c.Intenta(cuerpo); };
    for (const Aportes::AfluenteUEH& u : afluentes.UEHs) {
        SumaAfluente(c, fila, u.fila, intenta);
        intenta(
            [&] { c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.Red.ColUEHs.Item(u.item).Q0Recesion); });
    }
    for (const auto* filas : {&afluentes.Cauces, &afluentes.Represas, &afluentes.Lagos})
        for (const int f : *filas)
            SumaAfluente(c, fila, f, intenta);
}

bool Rechaza(const Corrida& c, std::string texto)
{
    model::Advierte(c.s, std::move(texto));
    return false;
}

bool Rechaza(const Corrida& c, const std::string_view (&texto)[2], const Cauce& cauce)
{
    return Rechaza(c, std::string(texto[0]) + cauce.NombreCauce + std::string(texto[1]));
}

/// Delay of a Direct reach in output steps; the longest so far lengthens QSale, though not the run.
bool PreparaDirecta(Corrida& c, const Cauce& cauce)
{
    Siro& s = c.s;
    if (cauce.LongCauce == 0) return Rechaza(c, SinLongitud, cauce);
    if (cauce.VelMediaCauce == 0) return Rechaza(c, SinVelocidad, cauce);
    c.Intenta([&] { c.TiempoViaje = Entero16(Cociente(cauce.LongCauce, cauce.VelMediaCauce) / 60); });
    c.Intenta([&] { c.RetardoPasos = Entero16(Cociente(c.TiempoViaje, s.Pasos.PasoQ)); });
    if (c.RetardoMax < c.RetardoPasos) {
        c.RetardoMax = c.RetardoPasos;
        c.Intenta([&] {
            s.Resultados.QSale.Redimensiona(Suma16(Suma16(s.Resultados.NroPasosQ, 1), c.RetardoMax));
        });
    }
    return true;
}

bool Prepara(Corrida& c, const Cauce& cauce)
{
    if (cauce.optDirMusk) return PreparaDirecta(c, cauce);
    const bool bien = c.Musk.Prepara(cauce.Cauce_k_Musk, cauce.Cauce_n_Musk, c.s.Pasos.PasoQ,
                                     [&](auto cuerpo) { c.Intenta(cuerpo); });
    return bien || Rechaza(c, TextoMuskingum(cauce.NombreCauce));
}

// --- Direct ---

void PropagaDirecta(Corrida& c, int fila)
{
    model::Resultados& r = c.s.Resultados;
    // Until the flood gets to the end of the reach the flow there is the initial one.
    for (int j = 1; j <= c.RetardoPasos; ++j)
        c.Intenta([&] { r.QSale(fila, j) = c.QBaseEntra; });
    const int retardo = c.RetardoPasos;
    if (c.Alcanzan() && retardo >= 0 && r.QSale.TopeColumna() >= r.NroPasosQ + retardo &&
        SumaFila(r.QSale.Fila(fila) + retardo, r.QEntra.Fila(fila), r.NroPasosQ))
        return;
    for (int paso = 1; paso <= r.NroPasosQ; ++paso)
        c.Intenta([&] {
            const std::int16_t q = Suma16(static_cast<std::int16_t>(paso), c.RetardoPasos);
            r.QSale(fila, q) = Simple(double{r.QSale(fila, q)} + r.QEntra(fila, paso));
        });
}

// --- Muskingum ---

/// The recursion without a check per step, into a row of its own; used only if every flow stays in the type.
bool MuskingumRapido(Corrida& c, int fila)
{
    if (!c.Alcanzan()) return false;
    model::Resultados& r = c.s.Resultados;
    const int n = r.NroPasosQ;
    c.memoria.columna.resize(static_cast<std::size_t>(n) + 1);
    double* __restrict t = c.memoria.columna.data();
    const float* __restrict entra = r.QEntra.Fila(fila);
    float* sale = r.QSale.Fila(fila);
    const Muskingum m = c.Musk;
    for (int p = 2; p <= n; ++p)
        t[p] = m.Aporte(sale[p], entra[p], entra[p - 1]);
    float q = entra[1];
    for (int p = 2; p <= n; ++p) {
        q = static_cast<float>(m.Sale(t[p], q));
        t[p] = q;
    }
    // A flow outside the type leaves no finite one behind it.
    if (!std::isfinite(q)) return false;
    sale[1] = entra[1];
    for (int p = 2; p <= n; ++p)
        sale[p] = static_cast<float>(t[p]);
    return true;
}

void PropagaMuskingum(Corrida& c, int fila)
{
    if (MuskingumRapido(c, fila)) return;
    for (int p = 1; p <= c.s.Resultados.NroPasosQ; ++p)
        c.Intenta([&] { c.Musk.Paso(c.s.Resultados, fila, p); });
}

// --- table and summary ---

void ResumePasoAPaso(Corrida& c, int fila)
{
    Siro& s = c.s;
    model::Resultados& r = s.Resultados;
    r.VolEntra = 0;
    r.VolSale = 0;
    for (int paso = 1; paso <= r.NroPasosQ; ++paso) {
        const auto p = static_cast<std::int16_t>(paso);
        c.Intenta([&] {
            const std::int16_t t = Minutos(p, s.Pasos.PasoQ);
            const float entra = Redondea(r.QEntra(fila, p), 3), sale = Redondea(r.QSale(fila, p), 3);
            c.Linea.Vacia();
            c.Linea.Izquierda(std::int32_t{p}, 7).Izquierda(std::int32_t{t}, 7);
            c.Linea.Izquierda(entra, 11).Izquierda(sale, 10);
        });
        if (s.Control.SalidaPizarra) s.Control.TextoPizarra.append("\r\n ").append(c.Linea.Texto());
        c.Intenta([&] { SubePico(s, fila, p); });
        c.Intenta([&] { r.VolEntra = Simple(SumaVolumen(r.VolEntra, r.QEntra(fila, p), s.Pasos.PasoQ)); });
        c.Intenta([&] { r.VolSale = Simple(SumaVolumen(r.VolSale, r.QSale(fila, p), s.Pasos.PasoQ)); });
    }
}

bool PropagaTramo(Corrida& c, int fila, const Cauce& cauce)
{
    Siro& s = c.s;
    if (s.Control.SalidaPizarra)
        s.Control.TextoPizarra += "\r\nComponente: Tramo de Cauce " + cauce.NombreCauce +
                                  "\r\nPer.k  t[min]  Qentra[m3/s] Qsale[m3/s] ";
    JuntaAfluentes(c, fila);
    if (!Prepara(c, cauce)) return false;
    if (cauce.optDirMusk)
        PropagaDirecta(c, fila);
    else
        PropagaMuskingum(c, fila);
    if (s.Control.SalidaPizarra || !Resume(c, fila, {1, s.Resultados.NroPasosQ})) ResumePasoAPaso(c, fila);
    if (s.Control.SalidaPizarra) {
        c.Intenta([&] { EscribeResumen(c, fila); });
        s.Control.TextoPizarra += "\r\n";
        s.Anfitrion.AmpliaPizarra(s.Control.TextoPizarra);
    }
    return true;
}

}  // namespace

bool ProcesoEnCauce(Corrida& c, int fila)
{
    for (const int item : c.Afluentes->Propios(fila)) {
        c.QBaseEntra = 0;
        if (!PropagaTramo(c, fila, c.s.Red.ColCauces.Item(item))) return false;
    }
    return true;
}

}  // namespace engine
