// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Curva.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "hydraulics/Interpola.h"

namespace hydraulics {

namespace {

/// Sums of outflows [m3/s] up to here are safely inside a 32-bit float, whatever way they are rounded.
constexpr double MaximaSuma = 1e38;

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

/// Works out something for a component. A fault on the way gives `nada`: the plain lookup meets it again, and
/// reports it, when it is called.
template <typename Cuerpo, typename T>
T ONada(Cuerpo&& cuerpo, T nada)
{
    model::Sentencia([&] { nada = cuerpo(); });
    return nada;
}

/// Whether the functions can neither fault nor leave the type between two heights.
bool SumaModerada(const FuncionesEnUso& funciones, float minimo, float maximo)
{
    double suma = 0;
    for (const FuncionFQ& f : funciones)
        suma += f.MayorAporte(minimo, maximo);
    return suma <= MaximaSuma;  // a power that is infinite times 0 is no number
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

CurvaLineal CurvaAlmacenamiento(const CompActual& c)
{
    return ONada([&] { return CurvaDe(ColumnasDe(c.tablaH, c.tablaS, c.filas, c.numero)); }, CurvaLineal());
}

Intervalo AlmacenamientosSinPreguntas(const CompActual& c)
{
    return ONada(
        [&]() -> Intervalo {
            const auto t = ColumnasDe(c.tablaS, c.tablaH, c.filas, c.numero);
            for (int k = 2; k <= t.n; ++k) {  // each difference that a lookup may take is taken here
                (void)Resta(RenglonDe(t.X, k), RenglonDe(t.X, k - 1));
                (void)RestaSimple(RenglonDe(t.Y, k), RenglonDe(t.Y, k - 1));
            }
            return {double{1} * RenglonDe(t.X, 1), double{1} * RenglonDe(t.X, t.n)};
        },
        Intervalo{});
}

CurvaDescarga::CurvaDescarga(const CompActual& c)
{
    if (c.funciones != nullptr) {
        forma = FuncionesEnUso(*c.funciones);
        return;
    }
    const auto tabla = ONada([&] { return ColumnasDe(c.tablaHQ, c.tablaQ, c.filasQ, c.numero); },
                             Columnas<float, float>{.n = 1});
    if (tabla.n < 1)
        forma = SinTabla{};
    else
        forma = CurvaDe(tabla);
}

bool CurvaDescarga::SinPreguntas(float minimo, float maximo) const
{
    if (const auto* tabla = std::get_if<CurvaLineal>(&forma)) return tabla->Alturas().Abarca(minimo, maximo);
    if (const auto* funciones = std::get_if<FuncionesEnUso>(&forma))
        return SumaModerada(*funciones, minimo, maximo);
    return std::holds_alternative<SinTabla>(forma);
}

}  // namespace hydraulics
