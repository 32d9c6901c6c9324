// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgTaller.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "frequency/ImportaMaximos.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

/// Item i of a list; none: null.
template <typename T>
const T* Item(const std::vector<T>& lista, int i)
{
    return i >= 0 && std::cmp_less(i, lista.size()) ? &lista[static_cast<std::size_t>(i)] : nullptr;
}

/// The same, made where there isn't one.
template <typename T>
T& ItemPuesto(std::vector<T>& lista, int i)
{
    if (lista.empty()) lista.emplace_back();
    return lista[std::min(static_cast<std::size_t>(std::max(i, 0)), lista.size() - 1)];
}

int Dentro(int i, std::size_t cuantos)
{
    return std::clamp(i, 0, std::max(0, static_cast<int>(cuantos) - 1));
}

}  // namespace

const study::Taller& TallerDe(const dlgTaller& f)
{
    return f.estudio.EnMano().taller;
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
    if (!FaltaProyecto(f).empty()) return;
    study::Taller nuevo = TallerDe(f);
    cambio(nuevo);
    f.estudio.CambiaTaller(std::string(leyenda), std::move(nuevo));
    Toma(f);
}

void cmdDeshacer(dlgTaller& f)
{
    f.estudio.Deshace();
    Toma(f);
}

void cmdRehacer(dlgTaller& f)
{
    f.estudio.Rehace();
    Toma(f);
}

void cmdArchivo(dlgTaller& f)
{
    if (f.danado)
        f.estudio.ApartaDanado();
    else
        f.estudio.Reintenta();
    Toma(f);
}

void Toma(dlgTaller& f)
{
    const std::vector<study::Estacion>& estaciones = TallerDe(f).estaciones;
    f.estacion = Dentro(f.estacion, estaciones.size());
    f.estaciones.clear();
    for (const study::Estacion& e : estaciones)
        f.estaciones.push_back(NombreDe(e, f.estaciones.size() + 1));
    f.series.clear();
    if (const study::Estacion* const e = EstacionEnMano(f))
        for (const study::SerieDeMaximos& s : e->series)
            f.series.push_back(NombreDe(s));
    f.serie = Dentro(f.serie, f.series.size());
    const auto leyenda = [](std::string_view orden, const std::string& que) {
        return que.empty() ? std::string(orden) : std::string(orden) + ": " + que;
    };
    f.cmdDeshacer = leyenda("Deshacer", f.estudio.PorDeshacer());
    f.cmdRehacer = leyenda("Rehacer", f.estudio.PorRehacer());
    f.lblArchivo = f.estudio.Archivo().texto;
    f.danado = f.estudio.Archivo().clase == study::EstadoDeArchivo::Clase::Danado;
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

void OKButton(dlgTaller& f)
{
    f.abierta = false;
}

std::string FaltaProyecto(const dlgTaller& f)
{
    if (f.estudio.Archivo().clase != study::EstadoDeArchivo::Clase::SinProyecto) return {};
    return "No hay un proyecto abierto. El taller guarda sus datos junto a los del proyecto: abra uno, o "
           "cree "
           "uno nuevo, desde el menú Archivo.";
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
