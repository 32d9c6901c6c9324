// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgTaller.h"

#include <cstddef>
#include <utility>

#include "frequency/ImportaMaximos.h"
#include "model/Numeros.h"

namespace frequency {

using study::Dentro;
using study::Item;
using study::ItemPuesto;

const study::Taller& TallerDe(const dlgTaller& f)
{
    return f.estudio.EnMano().taller;
}

EnManoDeTaller EnManoDe(const dlgTaller& f)
{
    return {TallerDe(f), f.estacion, f.serie};
}

const study::Estacion* EstacionEnMano(const dlgTaller& f)
{
    return Item(TallerDe(f).estaciones, f.estacion);
}

const study::SerieDeMaximos* SerieEnMano(const dlgTaller& f)
{
    const study::Estacion* const e = EstacionEnMano(f);
    return e == nullptr ? nullptr : Item(e->series, f.serie);
}

study::Estacion& EstacionDe(const dlgTaller& f, study::Taller& t)
{
    return ItemPuesto(t.estaciones, f.estacion);
}

study::SerieDeMaximos& SerieDe(const dlgTaller& f, study::Taller& t)
{
    return ItemPuesto(EstacionDe(f, t).series, f.serie);
}

void Cambia(dlgTaller& f, std::string_view leyenda, const std::function<void(study::Taller&)>& cambio)
{
    study::CambiaEstudio(f, leyenda, [&cambio](study::Estudio& e) { cambio(e.taller); });
}

void dlgTaller::TomaEnMano()
{
    const std::vector<study::Estacion>& todas = TallerDe(*this).estaciones;
    estacion = Dentro(estacion, todas.size());
    estaciones.clear();
    for (const study::Estacion& e : todas)
        estaciones.push_back(NombreDe(e, estaciones.size() + 1));
    series.clear();
    if (const study::Estacion* const e = EstacionEnMano(*this))
        for (const study::SerieDeMaximos& s : e->series)
            series.push_back(NombreDe(s));
    serie = Dentro(serie, series.size());
}

void cmbEstacion_Click(dlgTaller& f, int cual)
{
    f.estacion = cual;
    f.serie = 0;
    Toma(f);
}

void cmbSerie_Click(dlgTaller& f, int cual)
{
    f.serie = cual;
    Toma(f);
}

std::string FaltanMaximos(const dlgTaller& f)
{
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (s == nullptr || s->maximos.empty())
        return "Faltan los máximos anuales: escríbalos, péguelos o impórtelos en el paso 1. Hacen falta 10 "
               "años por lo menos.";
    const Serie serie = Revisada(*s);
    if (serie.errores.empty()) return {};
    std::string t = "La serie de " + NombreDe(*s) + " no se puede ajustar:";
    for (const std::string& error : serie.errores)
        t += "\n• " + error;
    return t + "\nCorríjala en el paso 1.";
}

Serie Revisada(const study::SerieDeMaximos& s)
{
    return RevisaMaximos(s.maximos);
}

std::string NombreDe(const study::Estacion& e, std::size_t numero)
{
    return e.nombre.empty() ? "Estación " + std::to_string(numero) + " (sin nombre)" : e.nombre;
}

std::string TextoDe(double x, int decimales)
{
    return model::NumeroATexto(model::Redondea(x, decimales));
}

std::string NombreDe(const study::SerieDeMaximos& s)
{
    constexpr double Hora = 60, Dia = 1440;
    std::string t = TextoDe(s.duracion) + " min";
    if (s.duracion >= Hora) t += " (" + TextoDe(s.duracion / Hora) + " h)";
    if (s.lecturaDiaria && s.duracion >= Dia) t += ", lectura diaria";
    return t;
}

std::string TituloDe(const dlgTaller& f)
{
    std::string t = TemaDe(f);
    if (const std::size_t donde = t.rfind(", máximos de "); donde != std::string::npos)
        t.replace(donde, 2, "\n");
    return t;
}

std::string TemaDe(const dlgTaller& f)
{
    const study::Estacion* const e = EstacionEnMano(f);
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (e == nullptr) return {};
    const std::string nombre = NombreDe(*e, static_cast<std::size_t>(f.estacion) + 1);
    return s == nullptr ? nombre : nombre + ", máximos de " + NombreDe(*s);
}

}  // namespace frequency
