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
    if (SumaSegura(s.QEntra, fila, s.QSale, afluente, s.NroPasosQ))
        return SumaFila(s.QEntra.Fila(fila), s.QSale.Fila(afluente), {1, s.NroPasosQ});
    for (int p = 1; p <= s.NroPasosQ; ++p)
        c.Intenta([&] { s.QEntra(fila, p) = Simple(double{s.QEntra(fila, p)} + s.QSale(afluente, p)); });
}

void JuntaAfluentes(Corrida& c, int fila)
{
    const Aportes::Afluentes& afluentes = c.Afluentes->De(fila);
    for (const Aportes::AfluenteUEH& u : afluentes.UEHs) {
        SumaAfluente(c, fila, u.fila);
        c.Intenta([&] { c.QBaseEntra = Simple(double{c.QBaseEntra} + c.s.ColUEHs.Item(u.item).Q0Recesion); });
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
    c.Intenta([&] { c.RetardoPasos = Entero16(Cociente(c.TiempoViaje, s.PasoQ)); });
    if (c.RetardoMax < c.RetardoPasos) {
        c.RetardoMax = c.RetardoPasos;
        c.Intenta([&] { s.QSale.Redimensiona(Suma16(Suma16(s.NroPasosQ, 1), c.RetardoMax)); });
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
        c.Intenta([&] { s.QSale(fila, j) = c.QBaseEntra; });

    const bool segura = s.NroPasosQ >= 1 && c.RetardoPasos >= 0 && fila <= s.QSale.UltimaFila() &&
                        s.QSale.TopeColumna() >= s.NroPasosQ + c.RetardoPasos &&
                        fila >= s.QEntra.PrimeraFila() && fila <= s.QEntra.UltimaFila() &&
                        s.QEntra.TopeColumna() >= s.NroPasosQ &&
                        MayorAbsoluto(s.QEntra.Fila(fila), 1, s.NroPasosQ) < SumaModerada &&
                        MayorAbsoluto(s.QSale.Fila(fila), 0, s.QSale.TopeColumna()) < SumaModerada;
    if (segura) return SumaFila(s.QSale.Fila(fila) + c.RetardoPasos, s.QEntra.Fila(fila), {1, s.NroPasosQ});
    for (int paso = 1; paso <= s.NroPasosQ; ++paso)
        c.Intenta([&] {
            const std::int16_t q = Suma16(static_cast<std::int16_t>(paso), c.RetardoPasos);
            s.QSale(fila, q) = Simple(double{s.QSale(fila, q)} + s.QEntra(fila, paso));
        });
}

// --- Muskingum ---

/// The recursion without a check per step, into a row of its own; used only if every flow stays in the type.
bool MuskingumRapido(Corrida& c, int fila)
{
    Siro& s = c.s;
    const int n = s.NroPasosQ;
    if (n < 1 || fila < s.QEntra.PrimeraFila() || fila > s.QEntra.UltimaFila() ||
        fila > s.QSale.UltimaFila() || s.QEntra.TopeColumna() < n || s.QSale.TopeColumna() < n)
        return false;
    const float* __restrict entra = s.QEntra.Fila(fila);
    float* sale = s.QSale.Fila(fila);
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
    if (s.NroPasosQ >= 1) c.Intenta([&] { s.QSale(fila, 1) = s.QEntra(fila, 1); });
    for (int p = 2; p <= s.NroPasosQ; ++p)
        c.Intenta([&] {
            s.QSale(fila, p) =
                Simple(s.QSale(fila, p) + double{c.C0Musk} * s.QEntra(fila, p) +
                       double{c.C1Musk} * s.QEntra(fila, p - 1) + double{c.C2Musk} * s.QSale(fila, p - 1));
        });
}

// --- table and summary ---

void ResumePasoAPaso(Corrida& c, int fila)
{
    Siro& s = c.s;
    s.VolEntra = 0;
    s.VolSale = 0;
    for (int paso = 1; paso <= s.NroPasosQ; ++paso) {
        const auto p = static_cast<std::int16_t>(paso);
        c.Intenta([&] {
            const std::int16_t t = Minutos(p, s.PasoQ);
            const float entra = Redondea(s.QEntra(fila, p), 3), sale = Redondea(s.QSale(fila, p), 3);
            c.Linea.Vacia();
            c.Linea.Izquierda(std::int32_t{p}, 7).Izquierda(std::int32_t{t}, 7);
            c.Linea.Izquierda(entra, 11).Izquierda(sale, 10);
        });
        if (s.SalidaPizarra) s.TextoPizarra.append("\r\n ").append(c.Linea.Texto());
        c.Intenta([&] {
            if (s.QSale(fila, p) > s.QMax(fila, s.IndSerie)) s.QMax(fila, s.IndSerie) = s.QSale(fila, p);
        });
        c.Intenta([&] { s.VolEntra = Simple(s.VolEntra + 1.0 * s.PasoQ * s.QEntra(fila, p) * 60); });
        c.Intenta([&] { s.VolSale = Simple(s.VolSale + 1.0 * s.PasoQ * s.QSale(fila, p) * 60); });
    }
}

bool PropagaTramo(Corrida& c, int fila, const Cauce& cauce)
{
    Siro& s = c.s;
    if (s.SalidaPizarra)
        s.TextoPizarra += "\r\nComponente: Tramo de Cauce " + cauce.NombreCauce +
                          "\r\nPer.k  t[min]  Qentra[m3/s] Qsale[m3/s] ";
    JuntaAfluentes(c, fila);
    if (!Prepara(c, cauce)) return false;
    if (cauce.optDirMusk)
        PropagaDirecta(c, fila);
    else
        PropagaMuskingum(c, fila);
    if (!s.SalidaPizarra && ResumenSeguro(c, fila))
        Resume(c, fila, {1, s.NroPasosQ});
    else
        ResumePasoAPaso(c, fila);
    if (s.SalidaPizarra) {
        c.Intenta([&] { EscribeResumen(c, fila); });
        s.TextoPizarra += "\r\n";
        s.Anfitrion.AmpliaPizarra(s.TextoPizarra);
    }
    return true;
}

}  // namespace

bool ProcesoEnCauce(Corrida& c, int fila)
{
    const std::string& nombre = c.s.Secuencia[static_cast<std::size_t>(fila)];
    for (const Cauce& cauce : c.s.ColCauces) {
        c.QBaseEntra = 0;
        if (cauce.NombreCauce == nombre && !PropagaTramo(c, fila, cauce)) return false;
    }
    return true;
}

}  // namespace engine
