// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Tramos.h"

#include <cmath>
#include <string_view>
#include <vector>

#include "engine/Muskingum.h"
#include "engine/Resumen.h"
#include "engine/Totales.h"
#include "model/Numeros.h"

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
constexpr float SumaModerada = 1e36F;  // sums of a few hundred such flows stay within 32-bit floats

void SumaAfluente(Corrida& c, int fila, int afluente)
{
    Siro& s = c.s;
    if (SumaSegura(s.Resultados.QEntra, fila, s.Resultados.QSale, afluente, s.Resultados.NroPasosQ))
        return SumaFila(s.Resultados.QEntra.Fila(fila), s.Resultados.QSale.Fila(afluente),
                        {1, s.Resultados.NroPasosQ});
    for (int p = 1; p <= s.Resultados.NroPasosQ; ++p)
        c.Intenta([&] {
            s.Resultados.QEntra(fila, p) =
                Simple(double{s.Resultados.QEntra(fila, p)} + s.Resultados.QSale(afluente, p));
        });
}

void JuntaAfluentes(Corrida& c, int fila)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(fila);
    for (const Aportes::AfluenteUEH& u : afluentes.UEHs) {
        SumaAfluente(c, fila, u.fila);
        c.Intenta(
            [&] { c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.Red.ColUEHs.Item(u.item).Q0Recesion); });
    }
    for (const auto* filas : {&afluentes.Cauces, &afluentes.Represas, &afluentes.Lagos})
        for (const int f : *filas)
            SumaAfluente(c, fila, f);
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
    const bool bien = CoeficientesMuskingum(c, cauce.Cauce_k_Musk, cauce.Cauce_n_Musk,
                                            [&](auto cuerpo) { c.Intenta(cuerpo); });
    return bien || Rechaza(c, TextoMuskingum(cauce.NombreCauce));
}

// --- Direct ---

void PropagaDirecta(Corrida& c, int fila)
{
    Siro& s = c.s;
    // Until the flood gets to the end of the reach the flow there is the initial one.
    for (int j = 1; j <= c.RetardoPasos; ++j)
        c.Intenta([&] { s.Resultados.QSale(fila, j) = c.QBaseEntra; });

    const bool segura =
        s.Resultados.NroPasosQ >= 1 && c.RetardoPasos >= 0 && fila <= s.Resultados.QSale.UltimaFila() &&
        s.Resultados.QSale.TopeColumna() >= s.Resultados.NroPasosQ + c.RetardoPasos &&
        fila >= s.Resultados.QEntra.PrimeraFila() && fila <= s.Resultados.QEntra.UltimaFila() &&
        s.Resultados.QEntra.TopeColumna() >= s.Resultados.NroPasosQ &&
        MayorAbsoluto(s.Resultados.QEntra.Fila(fila), 1, s.Resultados.NroPasosQ) < SumaModerada &&
        MayorAbsoluto(s.Resultados.QSale.Fila(fila), 0, s.Resultados.QSale.TopeColumna()) < SumaModerada;
    if (segura)
        return SumaFila(s.Resultados.QSale.Fila(fila) + c.RetardoPasos, s.Resultados.QEntra.Fila(fila),
                        {1, s.Resultados.NroPasosQ});
    for (int paso = 1; paso <= s.Resultados.NroPasosQ; ++paso)
        c.Intenta([&] {
            const std::int16_t q = Suma16(static_cast<std::int16_t>(paso), c.RetardoPasos);
            s.Resultados.QSale(fila, q) =
                Simple(double{s.Resultados.QSale(fila, q)} + s.Resultados.QEntra(fila, paso));
        });
}

// --- Muskingum ---

/// The recursion without a check per step, into a row of its own; used only if every flow stays in the type.
bool MuskingumRapido(Corrida& c, int fila)
{
    Siro& s = c.s;
    const int n = s.Resultados.NroPasosQ;
    if (n < 1 || fila < s.Resultados.QEntra.PrimeraFila() || fila > s.Resultados.QEntra.UltimaFila() ||
        fila > s.Resultados.QSale.UltimaFila() || s.Resultados.QEntra.TopeColumna() < n ||
        s.Resultados.QSale.TopeColumna() < n)
        return false;
    const float* __restrict entra = s.Resultados.QEntra.Fila(fila);
    float* sale = s.Resultados.QSale.Fila(fila);
    std::vector<double>& parte = c.memoria.columna;
    parte.resize(static_cast<std::size_t>(n) + 1);
    const double C0 = c.C0Musk, C1 = c.C1Musk, C2 = c.C2Musk;
    double* __restrict t = parte.data();
    for (int p = 2; p <= n; ++p)
        t[p] = sale[p] + C0 * entra[p] + C1 * entra[p - 1];
    float q = entra[1];
    for (int p = 2; p <= n; ++p) {
        q = static_cast<float>(t[p] + C2 * q);
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
    Siro& s = c.s;
    if (MuskingumRapido(c, fila)) return;
    if (s.Resultados.NroPasosQ >= 1)
        c.Intenta([&] { s.Resultados.QSale(fila, 1) = s.Resultados.QEntra(fila, 1); });
    for (int p = 2; p <= s.Resultados.NroPasosQ; ++p)
        c.Intenta([&] {
            s.Resultados.QSale(fila, p) =
                Simple(s.Resultados.QSale(fila, p) + double{c.C0Musk} * s.Resultados.QEntra(fila, p) +
                       double{c.C1Musk} * s.Resultados.QEntra(fila, p - 1) +
                       double{c.C2Musk} * s.Resultados.QSale(fila, p - 1));
        });
}

// --- table and summary ---

void ResumePasoAPaso(Corrida& c, int fila)
{
    Siro& s = c.s;
    s.Resultados.VolEntra = 0;
    s.Resultados.VolSale = 0;
    for (int paso = 1; paso <= s.Resultados.NroPasosQ; ++paso) {
        const auto p = static_cast<std::int16_t>(paso);
        c.Intenta([&] {
            const std::int16_t t = Minutos(p, s.Pasos.PasoQ);
            const float entra = Redondea(s.Resultados.QEntra(fila, p), 3),
                        sale = Redondea(s.Resultados.QSale(fila, p), 3);
            c.Linea.Vacia();
            c.Linea.Izquierda(std::int32_t{p}, 7).Izquierda(std::int32_t{t}, 7);
            c.Linea.Izquierda(entra, 11).Izquierda(sale, 10);
        });
        if (s.Control.SalidaPizarra) s.Control.TextoPizarra.append("\r\n ").append(c.Linea.Texto());
        c.Intenta([&] {
            if (s.Resultados.QSale(fila, p) > s.Resultados.QMax(fila, s.Serie.IndSerie))
                s.Resultados.QMax(fila, s.Serie.IndSerie) = s.Resultados.QSale(fila, p);
        });
        c.Intenta([&] {
            s.Resultados.VolEntra =
                Simple(s.Resultados.VolEntra + 1.0 * s.Pasos.PasoQ * s.Resultados.QEntra(fila, p) * 60);
        });
        c.Intenta([&] {
            s.Resultados.VolSale =
                Simple(s.Resultados.VolSale + 1.0 * s.Pasos.PasoQ * s.Resultados.QSale(fila, p) * 60);
        });
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
    if (!s.Control.SalidaPizarra && ResumenSeguro(c, fila))
        Resume(c, fila, {1, s.Resultados.NroPasosQ});
    else
        ResumePasoAPaso(c, fila);
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
    const std::string& nombre = c.s.Resultados.Secuencia[static_cast<std::size_t>(fila)];
    for (const Cauce& cauce : c.s.Red.ColCauces) {
        c.QBaseEntra = 0;
        if (cauce.NombreCauce == nombre && !PropagaTramo(c, fila, cauce)) return false;
    }
    return true;
}

}  // namespace engine
