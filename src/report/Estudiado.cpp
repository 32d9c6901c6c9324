// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Estudiado.h"

#include <algorithm>

#include "frequency/tormenta/Fuentes.h"

namespace report {
namespace {

constexpr double Dia = 1440;  // [min]

const study::Estacion* EstacionDe(const study::Taller& t)
{
    for (const study::Estacion& e : t.estaciones)
        if (t.idf.estacion.empty() || e.nombre == t.idf.estacion) return &e;
    return nullptr;
}

const study::SerieDeMaximos* MaximosDe(const study::Estacion& e)
{
    const auto conValores = [](const study::SerieDeMaximos& s) { return !s.maximos.empty(); };
    for (const study::SerieDeMaximos& s : e.series)
        if (s.duracion == Dia && conValores(s)) return &s;
    const auto hallada = std::find_if(e.series.begin(), e.series.end(), conValores);
    return hallada == e.series.end() ? nullptr : &*hallada;
}

std::optional<frequency::Analisis> Analizados(const study::SerieDeMaximos& s, const study::Taller& t)
{
    const frequency::Serie serie = frequency::RevisaMaximos(s.maximos);
    if (!serie.errores.empty()) return {};
    frequency::PedidoDeAnalisis p;
    p.remuestreo.cuantas = 0;
    p.posicion = t.posicion;
    p.tratamiento = frequency::TratamientoDe(s.bajos, s.asimetria, s.ecmAsimetria);
    for (const auto m :
         {frequency::Metodo::Momentos, frequency::Metodo::MomentosL, frequency::Metodo::Verosimilitud})
        if (frequency::ClaveDe(m) == s.metodo) p.metodo = m;
    return frequency::Analiza(serie, p);
}

}  // namespace

Estudiado::Estudiado(const study::Estudio& unEstudio, const std::vector<double>& grabada)
    : taller(unEstudio.taller), ajuste(unEstudio.ajuste), estacion(EstacionDe(unEstudio.taller))
{
    if (taller == study::Taller{}) return;
    if (estacion != nullptr) maximos = MaximosDe(*estacion);
    if (maximos != nullptr) analisis = Analizados(*maximos, taller);
    frequency::idf::Curvas c = frequency::idf::Calcula(taller.idf, taller.estaciones);
    if (c.errores.empty()) curvas = std::move(c);
    frequency::FuentesDeTormenta fuentes;
    if (curvas) frequency::PonCurvas(fuentes, taller.idf, taller.estaciones);
    fuentes.grabada = grabada;
    frequency::Diseno hecha = frequency::Disena(taller.tormenta, fuentes);
    if (hecha.error.empty() && (curvas || taller.tormenta.lamina)) diseno = std::move(hecha);
}

const frequency::Ley* Estudiado::Ley() const
{
    if (!analisis) return nullptr;
    const frequency::Ley* const elegida = frequency::LeyDeClave(maximos->ley);
    return elegida != nullptr ? elegida : analisis->recomendacion.ley;
}

}  // namespace report
