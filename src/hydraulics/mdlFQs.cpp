// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlFQs.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "hydraulics/Biseccion.h"
#include "hydraulics/FuncionesFQ.h"
#include "hydraulics/Interpola.h"
#include "hydraulics/Textos.h"
#include "model/Avisos.h"

namespace hydraulics {

using model::NroFuncionesFQ;
using model::Red;
using model::Represa;

namespace {

constexpr float ToleranciaAltura = 0.001F;  // [m]

/// The common handler of the functions of Q and H: a fault is reported and the result left unset.
template <typename Cuerpo>
float OCeroConInforme(const CompActual& c, Cuerpo&& cuerpo)
{
    float valor = 0;
    model::Sentencia([&] { valor = cuerpo(); }, model::AvisaArchivo(c.anfitrion));
    return valor;
}

void CopiaFQs(Red& red, const Represa& r)
{
    for (int i = 1; i <= NroFuncionesFQ; ++i)
        red.FQActiva(r.numRepresa, i) = r.chkFQ[static_cast<std::size_t>(i) - 1];
    auto& coeficientes = red.FQCoef[static_cast<std::size_t>(r.numRepresa)];
    const std::array clases{&r.FQa, &r.FQb, &r.FQc, &r.FQmin, &r.FQMax};  // from 1 in FQCoef
    for (std::size_t i = 0; i < NroFuncionesFQ; ++i)
        for (std::size_t clase = 1; clase <= clases.size(); ++clase)
            if (model::FuncionesFQ[i].Lleva(clase)) coeficientes[i + 1][clase] = (*clases[clase - 1])[i];
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

}  // namespace

void CargaFQs(Red& red)
{
    red.FQActiva.Dimensiona(red.NroRepresas(), NroFuncionesFQ);
    red.FQCoef.assign(static_cast<std::size_t>(red.NroRepresas()) + 1, {});
    for (const Represa& r : red.ColRepresas)
        CopiaFQs(red, r);
}

float QdeH(const CompActual& c, float h)
{
    return OCeroConInforme(c, [&] {
        if (c.funciones != nullptr) return FuncionesEnUso(*c.funciones).Descarga(h);
        const auto tabla = ColumnasDe(c.tablaHQ, c.tablaQ, c.filasQ, c.numero);
        if (tabla.n < 1) return 0.0F;  // unlike the lookups of storage, silent
        return model::Simple(
            ValorOConsulta(c, {Funcion::QdeHRepresa, Funcion::QdeHLago}, Interpola(tabla, h)));
    });
}

RangoAlturas RangoDescarga(const CompActual& c)
{
    if (c.funciones != nullptr) return RangoFunciones(*c.funciones);
    return {c.tablaHQ(c.numero, 1), c.tablaHQ(c.numero, c.filasQ(c.numero))};
}

float HdeQalma(const CompActual& c, float q)
{
    return OCeroConInforme(c, [&] {
        if (c.funciones == nullptr && c.filasQ(c.numero) < 1) return 0.0F;
        const RangoAlturas rango = RangoDescarga(c);
        const auto altura = BisecaAltura(rango.minimo, rango.maximo, ToleranciaAltura,
                                         [&](float h) { return QdeH(c, h) > q; });
        if (!altura) TerminaSinFin(c, {Funcion::HdeQalmaRepresa, Funcion::HdeQalmaLago});
        return altura.value_or(0.0F);
    });
}

}  // namespace hydraulics
