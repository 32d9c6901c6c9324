// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Textos.h"

#include <algorithm>
#include <array>
#include <string>

#include "model/Avisos.h"

namespace hydraulics {

namespace {

// The table of a lookup is named unevenly, endings differ by a blank, HdeARepresa speaks of the volume, and
// the lower case of the outflows asks nothing: kept as they stand.
// clang-format off
constexpr auto Textos = std::to_array<TextoConsulta>({
    {Funcion::SdeHRepresa, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la función HSV es inconsistente..."},
    {Funcion::SdeHRepresa, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar ?",
     "Error, la función HSV es inconsistente..."},
    {Funcion::SdeHLago, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento del Lago ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la función HSV es inconsistente..."},
    {Funcion::SdeHLago, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento del Lago ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar ?",
     "Error, la función HSV es inconsistente..."},
    {Funcion::HdeSRepresa, Caso::Encima,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::HdeSRepresa, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa ",
     " tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::HdeSLago, Caso::Encima,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento del Lago ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::HdeSLago, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento del Lago ",
     " tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::AdeHRepresa, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla SHV es inconsistente"},
    {Funcion::AdeHRepresa, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continaur? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::AdeHLago, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Lago ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla SHV es inconsistente"},
    {Funcion::AdeHLago, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento de la Lago ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continaur? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::HdeARepresa, Caso::Encima,
     "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento de la Represa ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::HdeARepresa, Caso::Debajo,
     "Error, la tabla Altura-Superficie-Almacenamiento de la Represa ",
     " tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HSV es inconsistente..."},
    {Funcion::QdeHRepresa, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Represa ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HQ es inconsistente..."},
    {Funcion::QdeHRepresa, Caso::Debajo,
     "Error, la tabla H-Q de la Represa ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar",
     "Error, la tabla HQ es inconsistente..."},
    {Funcion::QdeHLago, Caso::Encima,
     "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Lago ",
     ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
     "Error, la tabla HQ es inconsistente..."},
    {Funcion::QdeHLago, Caso::Debajo,
     "Error, la tabla H-Q de la Lago ",
     " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar",
     "Error, la tabla HQ es inconsistente..."},
    {Funcion::HdeQalmaRepresa, Caso::SinFin,
     "Error <Proceso_en_Represa>, inconsistencia en el cálculo de H=f(Q)> en Sub HdeQalmaRepresa ",
     ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
     "Error,..."},
    {Funcion::HdeQalmaLago, Caso::SinFin,
     "Error <Proceso_en_Lago>, inconsistencia en el cálculo de H=f(Q)> en Sub HdeQalmaLago ",
     ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
     "Error,..."},
});
// clang-format on

constexpr bool Esta(Funcion funcion, Caso caso)
{
    return std::count_if(Textos.begin(), Textos.end(),
                         [&](const TextoConsulta& t) { return t.funcion == funcion && t.caso == caso; }) == 1;
}

constexpr bool TablaEntera()
{
    for (auto f = Funcion::SdeHRepresa; f <= Funcion::HdeQalmaLago; f = Funcion{static_cast<int>(f) + 1}) {
        const bool inversa = f == Funcion::HdeQalmaRepresa || f == Funcion::HdeQalmaLago;
        if (Esta(f, Caso::Encima) == inversa || Esta(f, Caso::Debajo) == inversa ||
            Esta(f, Caso::SinFin) != inversa)
            return false;
    }
    return Textos.size() == 20;
}
static_assert(TablaEntera());

}  // namespace

const TextoConsulta& TextoDe(Funcion funcion, Caso caso)
{
    for (const TextoConsulta& t : Textos)
        if (t.funcion == funcion && t.caso == caso) return t;
    throw model::Falla{model::NumeroFalla::Argumento};
}

namespace {

const TextoConsulta& TextoDe(const CompActual& c, Busqueda busqueda, Caso caso)
{
    return TextoDe(c.clase == model::Clase::Lago ? busqueda.deLago : busqueda.deRepresa, caso);
}

std::string Une(const TextoConsulta& t, const std::string& nombre)
{
    return std::string(t.primero) + nombre + std::string(t.segundo);
}

}  // namespace

double ValorOConsulta(const CompActual& c, Busqueda busqueda, const Lectura& lectura)
{
    if (lectura.lugar == Lectura::Lugar::Dentro) return lectura.valor;
    const TextoConsulta& t =
        TextoDe(c, busqueda, lectura.lugar == Lectura::Lugar::Encima ? Caso::Encima : Caso::Debajo);
    if (!model::Consulta(c.anfitrion, Une(t, c.nombre), t.titulo, Une(t, {}))) c.anfitrion.Termina();
    return 0;
}

void TerminaSinFin(const CompActual& c, Busqueda busqueda)
{
    const TextoConsulta& t = TextoDe(c, busqueda, Caso::SinFin);
    model::Advierte(c.anfitrion, Une(t, c.nombre), t.titulo);
    c.anfitrion.Termina();
}

}  // namespace hydraulics
