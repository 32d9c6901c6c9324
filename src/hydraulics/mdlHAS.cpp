// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlHAS.h"

#include "hydraulics/ComponenteEnMano.h"
#include "hydraulics/Interpola.h"
#include "hydraulics/Textos.h"

namespace hydraulics {

using model::Lago;
using model::Represa;
using model::Siro;

double SdeHRepresa(Siro& s, float h)
{
    const Represa& r = RepresaEnMano(s);
    const auto tabla = ColumnasDe(s.Red.RepresaH, s.Red.RepresaS, s.Red.RepresaFilasHAS, r.numRepresa);
    return ValorOConsulta(s, Funcion::SdeHRepresa, r.NombreRepresa, Interpola(tabla, h));
}

double SdeHLago(Siro& s, float h)
{
    const Lago& l = LagoEnMano(s);
    const auto tabla = ColumnasDe(s.Red.LagoH, s.Red.LagoS, s.Red.LagoFilas, l.numLAGO);
    return ValorOConsulta(s, Funcion::SdeHLago, l.NombreLAGO, Interpola(tabla, h));
}

double HdeSRepresa(Siro& s, float volumen)
{
    const Represa& r = RepresaEnMano(s);
    const auto tabla = ColumnasDe(s.Red.RepresaS, s.Red.RepresaH, s.Red.RepresaFilasHAS, r.numRepresa);
    return ValorOConsulta(s, Funcion::HdeSRepresa, r.NombreRepresa, Interpola(tabla, volumen, RestaSimple));
}

double HdeSLago(Siro& s, float volumen)
{
    const Lago& l = LagoEnMano(s);
    const auto tabla = ColumnasDe(s.Red.LagoS, s.Red.LagoH, s.Red.LagoFilas, l.numLAGO);
    return ValorOConsulta(s, Funcion::HdeSLago, l.NombreLAGO, Interpola(tabla, volumen, RestaSimple));
}

double AdeHRepresa(Siro& s, float h)
{
    const Represa& r = RepresaEnMano(s);
    const auto tabla = ColumnasDe(s.Red.RepresaH, s.Red.RepresaA, s.Red.RepresaFilasHAS, r.numRepresa);
    return model::Simple(ValorOConsulta(s, Funcion::AdeHRepresa, r.NombreRepresa, Interpola(tabla, h)));
}

double AdeHLago(Siro& s, float h)
{
    const Lago& l = LagoEnMano(s);
    const auto tabla = ColumnasDe(s.Red.LagoH, s.Red.LagoA, s.Red.LagoFilas, l.numLAGO);
    return model::Simple(ValorOConsulta(s, Funcion::AdeHLago, l.NombreLAGO, Interpola(tabla, h)));
}

double HdeARepresa(Siro& s, float area)
{
    const Represa& r = RepresaEnMano(s);
    const auto tabla = ColumnasDe(s.Red.RepresaA, s.Red.RepresaH, s.Red.RepresaFilasHAS, r.numRepresa);
    return model::Simple(ValorOConsulta(s, Funcion::HdeARepresa, r.NombreRepresa, Interpola(tabla, area)));
}

}  // namespace hydraulics
