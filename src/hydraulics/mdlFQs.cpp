// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlFQs.h"

#include <algorithm>
#include <optional>

#include "hydraulics/Biseccion.h"
#include "hydraulics/ComponenteEnMano.h"
#include "hydraulics/FuncionesFQ.h"
#include "hydraulics/Interpola.h"
#include "hydraulics/Textos.h"
#include "model/Avisos.h"

namespace hydraulics {

using model::Lago;
using model::NroFuncionesFQ;
using model::Represa;
using model::Siro;

namespace {

/// Kinds of coefficient in FQCoef, as the overview table counts them.
enum Coeficiente : std::size_t { CoefA = 1, CoefB = 2, CoefC = 3, CoefMin = 4, CoefMax = 5 };

/// The common handler of the four functions of Q and H: a fault is reported and the result left unset.
template <typename Cuerpo>
float OCeroConInforme(const Siro& s, Cuerpo&& cuerpo)
{
    float valor = 0;
    model::Sentencia([&] { valor = cuerpo(); }, model::AvisaArchivo(s));
    return valor;
}

template <typename TX, typename TY>
float DescargaDeTabla(const Siro& s, Funcion funcion, const std::string& nombre,
                      const Columnas<TX, TY>& tabla, float h)
{
    if (tabla.n < 1) return 0;  // unlike the lookups of storage, silent
    return model::Simple(ValorOConsulta(s, funcion, nombre, Interpola(tabla, h)));
}

float AlturaOFin(const Siro& s, Funcion funcion, const std::string& nombre,
                 const std::optional<float>& altura)
{
    if (!altura) TerminaSinFin(s, funcion, nombre);
    return altura.value_or(0.0F);
}

void CopiaFQs(Siro& s, const Represa& r)
{
    for (int i = 1; i <= NroFuncionesFQ; ++i)
        s.Red.FQActiva(r.numRepresa, i) = r.chkFQ[static_cast<std::size_t>(i) - 1];
    auto& coeficientes = s.Red.FQCoef[static_cast<std::size_t>(r.numRepresa)];
    for (std::size_t i = 0; i < NroFuncionesFQ; ++i) {
        auto& c = coeficientes[i + 1];
        c[CoefA] = r.FQa[i];
        c[CoefB] = r.FQb[i];
        if (i >= NroFuncionesPotencia) c[CoefC] = r.FQc[i];
        c[CoefMin] = r.FQmin[i];
        c[CoefMax] = r.FQMax[i];
    }
}

}  // namespace

void CargaFQs(Siro& s)
{
    s.Red.FQActiva.Dimensiona(s.Red.NroRepresas, NroFuncionesFQ);
    s.Red.FQCoef.assign(static_cast<std::size_t>(s.Red.NroRepresas) + 1, {});
    for (const Represa& r : s.Red.ColRepresas)
        CopiaFQs(s, r);
}

float QdeHRepresa(Siro& s, float h)
{
    return OCeroConInforme(s, [&] {
        const Represa& r = RepresaEnMano(s);
        if (!r.optTabla) return FuncionesEnUso(r).Descarga(h);
        return DescargaDeTabla(
            s, Funcion::QdeHRepresa, r.NombreRepresa,
            ColumnasDe(s.Red.RepresaQH, s.Red.RepresaQQ, s.Red.RepresaFilasHQ, r.numRepresa), h);
    });
}

float QdeHLago(Siro& s, float h)
{
    return OCeroConInforme(s, [&] {
        const Lago& l = LagoEnMano(s);
        return DescargaDeTabla(s, Funcion::QdeHLago, l.NombreLAGO,
                               ColumnasDe(s.Red.LagoH, s.Red.LagoQ, s.Red.LagoFilas, l.numLAGO), h);
    });
}

RangoAlturas RangoFunciones(const Represa& represa)
{
    RangoAlturas rango;
    if (represa.chkFQ[0] == 1) rango = {represa.FQmin[0], represa.FQMax[0]};
    for (std::size_t i = 1; i < NroFuncionesFQ; ++i) {
        if (represa.chkFQ[i] != 1) continue;
        rango.minimo = std::min(rango.minimo, represa.FQmin[i]);
        rango.maximo = std::max(rango.maximo, represa.FQMax[i]);
    }
    return rango;
}

float HdeQalmaRepresa(Siro& s, float q)
{
    return OCeroConInforme(s, [&] {
        const Represa& r = RepresaEnMano(s);
        RangoAlturas rango = RangoFunciones(r);
        if (r.optTabla) {
            const int n = s.Red.RepresaFilasHQ(r.numRepresa);
            if (n < 1) return 0.0F;
            rango = {s.Red.RepresaQH(r.numRepresa, 1), s.Red.RepresaQH(r.numRepresa, n)};
        }
        return AlturaOFin(
            s, Funcion::HdeQalmaRepresa, r.NombreRepresa,
            BisecaAltura(rango.minimo, rango.maximo, q, [&](float h) { return QdeHRepresa(s, h); }));
    });
}

float HdeQalmaLago(Siro& s, float q)
{
    return OCeroConInforme(s, [&] {
        const Lago& l = LagoEnMano(s);
        const int n = s.Red.LagoFilas(l.numLAGO);
        if (n < 1) return 0.0F;
        return AlturaOFin(s, Funcion::HdeQalmaLago, l.NombreLAGO,
                          BisecaAltura(s.Red.LagoH(l.numLAGO, 1), s.Red.LagoH(l.numLAGO, n), q,
                                       [&](float h) { return QdeHLago(s, h); }));
    });
}

}  // namespace hydraulics
