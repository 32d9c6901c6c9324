// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/modDistriPp.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "engine/Renglon.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Tormenta.h"

namespace engine {

using model::Cociente;
using model::Falla;
using model::Simple;
using model::Siro;

namespace {

constexpr std::int16_t UltimaPersonal = 7;

/// A distribution: the share of P in each block [%] and, where it isn't their running sum, the cumulative
/// share.
struct Distribucion {
    std::span<const float> porcentajes;
    std::span<const float> acumulados;  ///< empty: the running sum of the shares, in 32 bits
};

constexpr float UnBloque[] = {100};
constexpr float Lopez3[] = {20, 60, 20};
constexpr float Lopez3Acum[] = {20, 80, 100};
constexpr float Lopez4[] = {12, 20, 55, 13};
constexpr float Lopez4Acum[] = {12, 32, 87, 100};
constexpr float Lopez5[] = {9, 10, 53, 18, 10};
constexpr float Lopez6[] = {8, 9, 11, 49, 15, 8};
// Adds up to 100.0002: the last cumulative share stays above 100.
constexpr float Lopez24[] = {2.5F, 2.5F, 2.5F,    2.5F,    2.5F,    2.5F,    6,       7,
                             8,    37,   11,      6,       1,       1,       1,       1,
                             1,    1,    0.6667F, 0.6667F, 0.6667F, 0.6667F, 0.6667F, 0.6667F};
constexpr float Ruvera1[] = {34, 31, 18, 9, 8};
constexpr float Ruvera1Acum[] = {34, 65, 83, 92, 100};
constexpr float Ruvera2[] = {42, 26, 23, 7, 2};
constexpr float Ruvera2Acum[] = {42, 68, 91, 98, 100};
constexpr float Ruvera3[] = {6, 20, 18, 34, 22};
constexpr float Ruvera3Acum[] = {6, 26, 44, 78, 100};

/// López Cadenas' distribution by the storm's hours; none above 48.
Distribucion LopezCadenas(double horas)
{
    if (horas <= 2.5) return {UnBloque, UnBloque};
    if (horas >= 2.501 && horas <= 3.5) return {Lopez3, Lopez3Acum};
    if (horas >= 3.501 && horas <= 4.5) return {Lopez4, Lopez4Acum};
    if (horas >= 4.501 && horas <= 5.5) return {Lopez5, {}};
    if (horas >= 5.501 && horas <= 11.999) return {Lopez6, {}};
    if (horas >= 12 && horas <= 48) return {Lopez24, {}};
    return {};
}

/// The fixed distribution of the storm in hand; empty where there is no table for it.
Distribucion DistribucionFija(const Siro& s)
{
    switch (s.Tormenta.DistriPp) {
    case 0:
        return {UnBloque, UnBloque};
    case 1:
        return LopezCadenas(s.Tormenta.DurTormenta / 60.0);
    case 2:
        return {Ruvera1, Ruvera1Acum};
    case 3:
        return {Ruvera2, Ruvera2Acum};
    case 4:
        return {Ruvera3, Ruvera3Acum};
    default:
        return {};
    }
}

void RedimensionaBloques(Siro& s, int tope)
{
    s.Hietograma.PpAcum.Redimensiona(tope);
    s.Hietograma.IntensidadPp.Redimensiona(tope);
    s.Tormenta.PpReal.Redimensiona(tope);
}

/// Makes room for a table of n blocks; arrays that are longer keep their length and what stands there.
void LugarParaTabla(Siro& s, std::int16_t bloques)
{
    if (s.Hietograma.NroBloquesPp < bloques) RedimensionaBloques(s, bloques);
}

void AcumulaPorcentajes(Siro& s)
{
    s.Hietograma.PpAcum(1) = s.Hietograma.IntensidadPp(1);
    for (int j = 2; j <= s.Hietograma.NroBloquesPp; ++j)
        s.Hietograma.PpAcum(j) = Simple(double{s.Hietograma.IntensidadPp(j)} + s.Hietograma.PpAcum(j - 1));
}

void LlenaReal(Siro& s)
{
    s.Hietograma.NroBloquesPp = model::Piso16(Cociente(s.Tormenta.DurTormenta, s.Pasos.PasoPp));
    for (int j = 1; j <= s.Hietograma.NroBloquesPp; ++j)
        s.Hietograma.IntensidadPp(j) = Simple(Cociente(s.Tormenta.PpReal(j), s.Tormenta.PpTormenta) * 100);
    AcumulaPorcentajes(s);
}

void LlenaFija(Siro& s, const Distribucion& tabla)
{
    if (tabla.porcentajes.empty()) return;
    const auto bloques = static_cast<std::int16_t>(tabla.porcentajes.size());
    LugarParaTabla(s, bloques);
    s.Hietograma.NroBloquesPp = bloques;
    for (int j = 1; j <= bloques; ++j)
        s.Hietograma.IntensidadPp(j) = tabla.porcentajes[static_cast<std::size_t>(j) - 1];
    if (tabla.acumulados.empty()) return AcumulaPorcentajes(s);
    for (int j = 1; j <= bloques; ++j)
        s.Hietograma.PpAcum(j) = tabla.acumulados[static_cast<std::size_t>(j) - 1];
}

/// Personal table: its counts are read just before use, since another reader may have replaced them.
void LlenaPersonal(Siro& s, TablasPersonales tablas)
{
    const int tabla = s.Tormenta.DistriPp - (model::PrimeraPersonal - 1);
    if (tablas == TablasPersonales::DelDisco) model::LeeTablaDisTemPer(s);
    const std::int16_t periodos = s.TablasDeLluvia.NroFilasTabla[static_cast<std::size_t>(tabla)];
    LugarParaTabla(s, periodos);
    s.Hietograma.NroBloquesPp = periodos;
    const int tope = model::Suma16(periodos, 1);
    if (s.TablasDeLluvia.DisPerso.UltimaFila() < 0) s.TablasDeLluvia.DisPerso.Dimensiona(3, tope);
    s.TablasDeLluvia.DisPerso.Redimensiona(tope);
    for (int j = 1; j <= periodos; ++j)
        s.Hietograma.IntensidadPp(j) = s.TablasDeLluvia.DisPerso(tabla, j);
    s.Hietograma.PpAcum(1) = s.Hietograma.IntensidadPp(1);
    for (int j = 1; j <= periodos; ++j)
        s.Hietograma.PpAcum(j) = Simple(double{s.Hietograma.IntensidadPp(j)} + s.Hietograma.PpAcum(j - 1));
}

void LlenaPorcentajes(Siro& s, TablasPersonales tablas)
{
    if (s.Tormenta.FormaPp >= model::FormaLluvia::Real) return LlenaReal(s);
    if (s.Tormenta.DistriPp >= model::PrimeraPersonal && s.Tormenta.DistriPp <= UltimaPersonal)
        return LlenaPersonal(s, tablas);
    LlenaFija(s, DistribucionFija(s));
}

/// Turns block j from percentages into depth and intensity and writes its line. The line is built in any
/// case: its minutes can be at fault.
void TerminaBloque(Siro& s, int j, Renglon& linea)
{
    const double P = s.Tormenta.PpTormenta;
    s.Hietograma.PpAcum(j) = Simple(P * s.Hietograma.PpAcum(j) / 100);
    s.Hietograma.IntensidadPp(j) =
        Simple(Cociente(P * s.Hietograma.IntensidadPp(j) / (1.0 / s.Hietograma.NroBloquesPp),
                        s.Tormenta.DurTormenta) /
               100);
    if (s.Tormenta.FormaPp != model::FormaLluvia::Real)
        s.Tormenta.PpReal(j) = Simple(double{s.Hietograma.PpAcum(j)} - s.Hietograma.PpAcum(j - 1));

    const std::int16_t minutos = model::Producto16(s.Pasos.PasoPp, static_cast<std::int16_t>(j));
    linea.Vacia();
    linea.Pone("\r\n ").Izquierda(std::int32_t{j}, 5).Izquierda(std::int32_t{minutos}, 6);
    linea.Izquierda(model::Trunca2(s.Tormenta.PpReal(j)), 11)
        .Izquierda(model::Trunca2(s.Hietograma.PpAcum(j)), 25);
    linea.Izquierda(model::Trunca2(s.Hietograma.IntensidadPp(j)), 0);
    if (s.Control.SalidaPizarra) s.Anfitrion.AgregaPizarra(linea.Texto());
}

void Construye(Siro& s, TablasPersonales tablas)
{
    s.Hietograma.NroBloquesPp = model::Piso16(Cociente(s.Tormenta.DurTormenta, s.Pasos.PasoPp));
    RedimensionaBloques(s, s.Hietograma.NroBloquesPp);
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return;
    if (s.Control.SalidaPizarra) s.Anfitrion.AgregaPizarra("\r\nEntrada: PRECIPITACION");
    LlenaPorcentajes(s, tablas);
    if (s.Control.SalidaPizarra)
        s.Anfitrion.AgregaPizarra("\r\nPp= " + model::NumeroATexto(s.Tormenta.PpTormenta) + " [mm]  " +
                                  model::NumeroATexto(std::int32_t{s.Tormenta.DurTormenta}) + " [min]");
    if (s.Tormenta.FormaPp != model::FormaLluvia::Real) s.Tormenta.PpReal(0) = 0;
    if (s.Control.SalidaPizarra) {
        s.Anfitrion.AgregaPizarra("\r\nDistribución temporal de la Pp:");
        s.Anfitrion.AgregaPizarra("\r\nPer.k t[min] Pp[mm]  Pp Acumulada[mm]  Intensidad de Pp[mm/min]");
    }
    Renglon linea;
    for (int j = 1; j <= s.Hietograma.NroBloquesPp; ++j)  // there may be 32767
        TerminaBloque(s, j, linea);
    s.Tormenta.NroPpReal = s.Hietograma.NroBloquesPp;
    s.Hietograma.PpAcumPrevia = 0;
}

/// Block in which the minute PasoPp·k falls, one above the whole blocks gone by. Every operation is rounded
/// to 32 bits: the width decides at the boundaries of the blocks. Throws Falla 6 above 16 bits.
std::int16_t BloqueDelPaso(const Siro& s, std::int16_t k)
{
    const float producto = static_cast<float>(s.Pasos.PasoPp) * static_cast<float>(s.Hietograma.NroBloquesPp);
    const float bloques = producto * static_cast<float>(k) / static_cast<float>(s.Tormenta.DurTormenta);
    return model::Suma16(model::Piso16(bloques), 1);
}

double PpInterpolada(Siro& s, std::int16_t k, std::int16_t t)
{
    const bool ultimoPaso = k == std::floor(double{1} * s.Tormenta.DurTormenta / s.Pasos.PasoPp) + 1;
    const std::int16_t b = BloqueDelPaso(s, k);
    if (model::Suma16(b, 1) > s.Hietograma.NroBloquesPp) {
        const std::int16_t tope = model::Suma16(b, 2);
        s.Hietograma.PpAcum.Redimensiona(tope);
        s.Hietograma.IntensidadPp.Redimensiona(tope);
    }
    if (b > s.Hietograma.NroBloquesPp + 1) return 0;
    const float u = Simple(t - (b - 1) * Cociente(1, s.Hietograma.NroBloquesPp) * s.Tormenta.DurTormenta);
    const float c = Simple(double{u} * s.Hietograma.IntensidadPp(b) + s.Hietograma.PpAcum(b - 1));
    double pp = double{c} - s.Hietograma.PpAcumPrevia;
    if (ultimoPaso && pp + s.Hietograma.PpAcumPrevia > s.Tormenta.PpTormenta)
        pp = double{s.Tormenta.PpTormenta} - s.Hietograma.PpAcumPrevia;
    if (b <= s.Hietograma.NroBloquesPp) s.Hietograma.PpAcumPrevia = c;
    return pp;
}

}  // namespace

void ConstruyeHietograma(Siro& s, TablasPersonales tablas)
{
    model::Sentencia([&] { Construye(s, tablas); }, model::AvisaMotor(s));
}

double PpDelPaso(Siro& s, std::int16_t k)
{
    const std::int16_t t = model::Producto16(s.Pasos.PasoPp, k);
    s.Hietograma.PpAcum(0) = 0;
    s.Hietograma.IntensidadPp(0) = 0;
    const int D = s.Tormenta.DurTormenta;
    if (t - D >= s.Pasos.PasoPp) return 0;
    if (s.Tormenta.DistriPp == 0) {
        const double intensidad = Cociente(1, D) * s.Tormenta.PpTormenta;
        if (k == std::floor(Cociente(D, s.Pasos.PasoPp)) + 1)
            return intensidad * (D - (k - 1) * s.Pasos.PasoPp);
        return intensidad * s.Pasos.PasoPp;
    }
    if (s.Tormenta.DistriPp < 1 || s.Tormenta.DistriPp > UltimaPersonal) return 0;
    return PpInterpolada(s, k, t);
}

}  // namespace engine
