// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlHAS.h"

#include "hydraulics/Interpola.h"
#include "hydraulics/Textos.h"

namespace hydraulics {

namespace {

/// Looks x up in column X of the component's table and reads column Y.
template <typename TX, typename TY, typename... Resta>
double Lee(const CompActual& c, Busqueda busqueda, const model::Matriz<TX>& X, const model::Matriz<TY>& Y,
           float x, Resta... restaY)
{
    return ValorOConsulta(c, busqueda, Interpola(ColumnasDe(X, Y, c.filas, c.numero), x, restaY...));
}

}  // namespace

double SdeH(const CompActual& c, float h)
{
    return Lee(c, {Funcion::SdeHRepresa, Funcion::SdeHLago}, c.tablaH, c.tablaS, h);
}

double HdeS(const CompActual& c, float volumen)
{
    return Lee(c, {Funcion::HdeSRepresa, Funcion::HdeSLago}, c.tablaS, c.tablaH, volumen, RestaSimple);
}

double AdeH(const CompActual& c, float h)
{
    return model::Simple(Lee(c, {Funcion::AdeHRepresa, Funcion::AdeHLago}, c.tablaH, c.tablaA, h));
}

double HdeARepresa(const CompActual& r, float area)
{
    return model::Simple(Lee(r, {Funcion::HdeARepresa, Funcion::HdeARepresa}, r.tablaA, r.tablaH, area));
}

}  // namespace hydraulics
