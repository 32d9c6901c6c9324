// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Fuente.h"

#include <algorithm>
#include <cstddef>

#include "checks/AvisosDeSerie.h"
#include "model/Siro.h"

namespace report {
namespace {

using checks::ComponenteCorrido;
using checks::MetodoEmbalse;

constexpr std::size_t MuchosElegidos = 12;
constexpr double HectareasPorKm2 = 100;

const model::Red& RedDe(const Datos& d)
{
    static const model::Red vacia{};
    if (d.tormenta != nullptr) return d.tormenta->red;
    return d.serie != nullptr ? d.serie->red : vacia;
}

bool Esta(const std::vector<std::string>& nombres, std::string_view nombre)
{
    return std::find(nombres.begin(), nombres.end(), nombre) != nombres.end();
}

}  // namespace

Fuente::Fuente(const Datos& datos, const Eleccion& eleccion)
    : d(datos),
      e(eleccion),
      n{eleccion.decimal, eleccion.miles},
      estudio(datos.estudio, datos.grabada),
      red(RedDe(datos))
{
    if (d.tormenta != nullptr && d.tormenta->balance && d.tormenta->corrido) {
        una = d.tormenta.get();
        areas = checks::AreasDrenadas(*una->corrido);
        EligeDeUna();
    }
    if (d.serie != nullptr && d.serie->serie.NroSeriePDR > 0 && d.serie->r().NroComponentes > 0) {
        serie = d.serie.get();
        EligeDeSerie();
    }
}

void Fuente::EligeDeUna()
{
    for (const ComponenteCorrido* const c : EnOrden(d)) {
        const bool esSalida = una->corrido->EsSalida(*c);
        if (esSalida && salida == nullptr) salida = c;
        const bool va = e.componentes.empty() ? (esSalida || c->embalse) && elegidos.size() < MuchosElegidos
                                              : Esta(e.componentes, c->nombre);
        if (va) elegidos.push_back(c);
    }
}

void Fuente::EligeDeSerie()
{
    const model::Resultados& r = serie->r();
    const auto haySalidas = static_cast<std::size_t>(std::clamp<int>(r.NroSalidas, 0, model::MaxSalidas));
    const std::vector<std::string> salidas(r.Salidas.begin() + 1,
                                           r.Salidas.begin() + 1 + static_cast<std::ptrdiff_t>(haySalidas));
    for (std::size_t k = 1; k < r.Secuencia.size(); ++k) {
        const std::string& nombre = r.Secuencia[k];
        const bool va = e.componentes.empty() ? (Esta(salidas, nombre) || nombre.starts_with("r-") ||
                                                 nombre.starts_with("l-")) &&
                                                    elegidosDeSerie.size() < MuchosElegidos
                                              : Esta(e.componentes, nombre);
        if (va) elegidosDeSerie.push_back(nombre);
    }
    model::Siro s;
    s.Configuracion = d.configuracion;
    s.Red = serie->red;
    s.Pasos = serie->pasos;
    s.Serie = serie->serie;
    tormentas = checks::TormentasDeSerie(s).numeros;
}

checks::DeQuien Fuente::Quien(const ComponenteCorrido* c) const
{
    checks::DeQuien q{.u = *una, .balance = &una->balance->cuenca, .area = AreaDeCuenca()};
    if (c == nullptr) {
        for (const ComponenteCorrido* const otro : EnOrden(d))
            if (una->corrido->EsSalida(*otro)) q.salidas.push_back(otro);
        return q;
    }
    const auto i = static_cast<std::size_t>(c - una->corrido->componentes.data());
    q.nombre = c->nombre;
    q.fila = c->fila;
    q.comp = c;
    q.balance = &una->balance->componentes[i];
    q.area = areas[i];
    return q;
}

std::optional<double> Fuente::DelResumen(const ComponenteCorrido* c, std::string_view titulo,
                                         std::string_view unidad) const
{
    if (una == nullptr) return {};
    for (const checks::ColumnaDeResumen& columna : checks::ColumnasDeResumen(false))
        if (columna.titulo == titulo && columna.unidad == unidad) return columna.valor(Quien(c));
    return {};
}

std::string Fuente::CeldaDelResumen(const ComponenteCorrido* c, std::string_view titulo,
                                    std::string_view unidad) const
{
    const std::optional<double> valor = DelResumen(c, titulo, unidad);
    for (const checks::ColumnaDeResumen& columna : checks::ColumnasDeResumen(false))
        if (valor && columna.titulo == titulo && columna.unidad == unidad)
            return n.Con(*valor, columna.decimales, columna.conCero);
    return "-";
}

bool Fuente::ConAlturas(const ComponenteCorrido& c) const
{
    return c.embalse && DelResumen(&c, "H máx", "m").has_value();
}

std::vector<const ComponenteCorrido*> Fuente::Embalses() const
{
    std::vector<const ComponenteCorrido*> embalses;
    if (una == nullptr) return embalses;
    for (const ComponenteCorrido* const c : EnOrden(d))
        if (c->embalse) embalses.push_back(c);
    return embalses;
}

std::string Fuente::NotaDeVejez() const
{
    return d.cambios.empty() ? std::string()
                             : "Resultados anteriores a un cambio: " + n.EnTexto(d.cambios) + ".";
}

double Fuente::AreaDeCuenca() const
{
    double area = 0;
    for (const model::UEH& u : red.ColUEHs)
        area += u.Area / HectareasPorKm2;
    return area;
}

std::string Enumera(const std::vector<std::string>& nombres)
{
    std::string t;
    for (std::size_t i = 0; i < nombres.size(); ++i)
        t += (i == 0 ? "" : i + 1 == nombres.size() ? " y " : ", ") + nombres[i];
    return t;
}

}  // namespace report
