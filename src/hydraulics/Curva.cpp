// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Curva.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "hydraulics/Biseccion.h"
#include "hydraulics/ComponenteEnMano.h"
#include "hydraulics/Interpola.h"
#include "hydraulics/mdlFQs.h"

namespace hydraulics {

using model::Siro;
using Clase = model::ComponenteActual::Clase;

namespace {

/// Sums of outflows [m3/s] up to here are safely inside a 32-bit float, whatever way they are rounded.
constexpr double MaximaSuma = 1e38;

/// Below this height [m] 32-bit floats stand closer than the tolerance of the bisection, which then ends.
constexpr float MaximaAltura = 16384;

bool Cabe(std::int32_t a, std::int32_t b)
{
    return std::fabs(double{1} * a - b) <= std::numeric_limits<std::int32_t>::max();
}
bool Cabe(float /*a*/, float /*b*/)
{
    return true;
}

// The line from a row gives the row itself, except that it loses the sign of a zero.
bool EsCeroNegativo(std::int32_t /*y*/)
{
    return false;
}
bool EsCeroNegativo(float y)
{
    return y == 0 && std::signbit(y);
}

/// Rows 1..n of a column; none where there aren't as many.
template <typename T>
std::span<const T> Renglones(std::span<const T> columna, int n)
{
    if (n < 1 || static_cast<std::size_t>(n) >= columna.size()) return {};
    return columna.subspan(1, static_cast<std::size_t>(n));
}

template <typename T>
CurvaLineal CurvaDe(const Columnas<float, T>& t)
{
    const auto X = Renglones(t.X, t.n);
    const auto Y = Renglones(t.Y, t.n);
    return X.size() == Y.size() ? CurvaLineal(X, Y) : CurvaLineal();
}

Columnas<float, float> TablaDescarga(const Siro& s)
{
    if (s.CompActual.clase == Clase::Lago)
        return ColumnasDe(s.Red.LagoH, s.Red.LagoQ, s.Red.LagoFilas, LagoEnMano(s).numLAGO);
    return ColumnasDe(s.Red.RepresaQH, s.Red.RepresaQQ, s.Red.RepresaFilasHQ, RepresaEnMano(s).numRepresa);
}

/// Works out something for the component in hand. A fault on the way gives `nada`: the plain lookup meets it
/// again, and reports it, when it is called.
template <typename Cuerpo, typename T>
T ONada(Cuerpo&& cuerpo, T nada)
{
    try {
        return cuerpo();
    } catch (const model::Falla&) {
        return nada;
    }
}

/// The greatest amount that a function can add between two heights, infinite where it can fault.
double MayorAporte(const FuncionFQ& f, float minimo, float maximo)
{
    const double desde = double{std::max(minimo, f.minimo)} - f.minimo;
    const double hasta = double{std::min(maximo, f.maximo)} - f.minimo;
    if (desde > hasta) return 0;
    if (!f.esPotencia)
        return std::fabs(double{f.a}) + std::fabs(double{f.b}) * hasta +
               std::fabs(double{f.c}) * hasta * hasta;
    if (f.b < 0 && desde == 0) return std::numeric_limits<double>::infinity();
    return std::fabs(double{f.a}) * std::pow(f.b < 0 ? desde : hasta, double{f.b});
}

double SumaDeAportes(const FuncionesEnUso& funciones, float minimo, float maximo)
{
    double suma = 0;
    for (const FuncionFQ& f : funciones)
        suma += MayorAporte(f, minimo, maximo);
    // A power that is infinite times 0 is no number.
    return std::isnan(suma) ? std::numeric_limits<double>::infinity() : suma;
}

}  // namespace

template <typename T>
void CurvaLineal::Prepara(std::span<const float> columnaX, std::span<const T> columnaY)
{
    const std::size_t n = columnaX.size();
    for (std::size_t k = 0; k < n; ++k) {
        if (EsCeroNegativo(columnaY[k])) return;
        if (k > 0 && !(columnaX[k] > columnaX[k - 1] && Cabe(columnaY[k], columnaY[k - 1]))) return;
    }
    alturas.assign(columnaX.begin(), columnaX.end());
    alturas.push_back(std::numeric_limits<float>::infinity());
    tramos.resize(n);
    for (std::size_t k = 0; k < n; ++k) {
        tramos[k].valor = static_cast<double>(columnaY[k]);
        if (k + 1 < n)
            tramos[k].pendiente = Resta(columnaY[k + 1], columnaY[k]) / Resta(columnaX[k + 1], columnaX[k]);
    }
}

CurvaLineal::CurvaLineal(std::span<const float> alturasTabla, std::span<const std::int32_t> valores)
{
    Prepara(alturasTabla, valores);
}

CurvaLineal::CurvaLineal(std::span<const float> alturasTabla, std::span<const float> valores)
{
    Prepara(alturasTabla, valores);
}

Intervalo CurvaLineal::Alturas() const
{
    if (tramos.empty()) return {};
    return {alturas.front(), alturas[tramos.size() - 1]};
}

double CurvaLineal::MayorAbsoluto() const
{
    double mayor = 0;
    for (const Tramo& tramo : tramos)
        mayor = std::max(mayor, std::fabs(tramo.valor));
    return mayor;
}

CurvaLineal CurvaAlmacenamiento(const Siro& s)
{
    return ONada(
        [&] {
            if (s.CompActual.clase == Clase::Lago)
                return CurvaDe(ColumnasDe(s.Red.LagoH, s.Red.LagoS, s.Red.LagoFilas, LagoEnMano(s).numLAGO));
            return CurvaDe(ColumnasDe(s.Red.RepresaH, s.Red.RepresaS, s.Red.RepresaFilasHAS,
                                      RepresaEnMano(s).numRepresa));
        },
        CurvaLineal());
}

CurvaLineal CurvaArea(const Siro& s)
{
    return ONada(
        [&] {
            if (s.CompActual.clase == Clase::Lago)
                return CurvaDe(ColumnasDe(s.Red.LagoH, s.Red.LagoA, s.Red.LagoFilas, LagoEnMano(s).numLAGO));
            return CurvaDe(ColumnasDe(s.Red.RepresaH, s.Red.RepresaA, s.Red.RepresaFilasHAS,
                                      RepresaEnMano(s).numRepresa));
        },
        CurvaLineal());
}

Intervalo AlmacenamientosSinPreguntas(const Siro& s)
{
    return ONada(
        [&]() -> Intervalo {
            const bool esLago = s.CompActual.clase == Clase::Lago;
            const auto t = esLago
                               ? ColumnasDe(s.Red.LagoS, s.Red.LagoH, s.Red.LagoFilas, LagoEnMano(s).numLAGO)
                               : ColumnasDe(s.Red.RepresaS, s.Red.RepresaH, s.Red.RepresaFilasHAS,
                                            RepresaEnMano(s).numRepresa);
            for (int k = 2; k <= t.n; ++k) {  // each difference that a lookup may take is taken here
                (void)Resta(RenglonDe(t.X, k), RenglonDe(t.X, k - 1));
                (void)RestaSimple(RenglonDe(t.Y, k), RenglonDe(t.Y, k - 1));
            }
            return {double{1} * RenglonDe(t.X, 1), double{1} * RenglonDe(t.X, t.n)};
        },
        Intervalo{});
}

CurvaDescarga::CurvaDescarga(const Siro& s)
{
    ONada(
        [&] {
            if (s.CompActual.clase == Clase::Represa && !RepresaEnMano(s).optTabla) {
                forma = FuncionesEnUso(RepresaEnMano(s));
                return true;
            }
            const auto tabla = TablaDescarga(s);
            if (tabla.n < 1)
                forma = SinTabla{};
            else
                forma = CurvaDe(tabla);
            return true;
        },
        false);
}

bool CurvaDescarga::SinPreguntas(float minimo, float maximo) const
{
    if (const auto* tabla = std::get_if<CurvaLineal>(&forma)) return tabla->Alturas().Abarca(minimo, maximo);
    if (const auto* funciones = std::get_if<FuncionesEnUso>(&forma))
        return SumaDeAportes(*funciones, minimo, maximo) <= MaximaSuma;
    return std::holds_alternative<SinTabla>(forma);
}

double CurvaDescarga::Cota(float minimo, float maximo) const
{
    if (const auto* tabla = std::get_if<CurvaLineal>(&forma)) return tabla->MayorAbsoluto();
    if (const auto* funciones = std::get_if<FuncionesEnUso>(&forma))
        return SumaDeAportes(*funciones, minimo, maximo);
    return 0;
}

CurvaInversa::CurvaInversa(const Siro& s) : descarga(s)
{
    const RangoAlturas rango = ONada(
        [&]() -> RangoAlturas {
            if (s.CompActual.clase == Clase::Represa && !RepresaEnMano(s).optTabla)
                return RangoFunciones(RepresaEnMano(s));
            const auto tabla = TablaDescarga(s);
            if (tabla.n < 1) return {};  // a bracket of no width gives 0, as it has to
            return {RenglonDe(tabla.X, 1), RenglonDe(tabla.X, tabla.n)};
        },
        RangoAlturas{});
    minimo = rango.minimo;
    maximo = rango.maximo;
    sirve = std::max(std::fabs(minimo), std::fabs(maximo)) < MaximaAltura && minimo <= maximo &&
            descarga.SinPreguntas(minimo, maximo);
}

float CurvaInversa::Valor(float q) const
{
    int fila = 0;
    return BisecaAltura(minimo, maximo, q, [&](float h) { return descarga.Valor(h, fila); }).value_or(0.0F);
}

}  // namespace hydraulics
