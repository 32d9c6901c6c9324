// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerMaximos.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "frequency/ImportaMaximos.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

constexpr int FilasLibres = 100, FilasAlMenos = 200;

constexpr auto ColumnasEditables = std::to_array<forms::ColumnaEditable>({
    {0, 2200, "El año debe estar entre 1500 y 2200."},
    {1, 1e5, "El máximo no puede pasar de 100000 mm."},
    {2, 366, "Un año tiene 366 días a lo sumo."},
});

constexpr forms::ReglasGrilla ReglasMaximos{.encabezado = ">  Año  |>  Máximo [mm]  |>  Días con registro  ",
                                            .editables = ColumnasEditables,
                                            .enterPoneCero = false};

using Texto = std::string TallerMaximos::*;

struct CampoDeTexto {
    std::string_view control, leyenda;
    Texto texto;
    std::string study::Estacion::*en;
};
constexpr auto CamposDeTexto = std::to_array<CampoDeTexto>({
    {"txtNombre", "Nombre de la estación", &TallerMaximos::txtNombre, &study::Estacion::nombre},
    {"txtFuente", "Fuente de la estación", &TallerMaximos::txtFuente, &study::Estacion::fuente},
    {"txtNotas", "Notas de la estación", &TallerMaximos::txtNotas, &study::Estacion::notas},
});

/// A number that may be missing.
struct CampoOpcional {
    forms::ReglaNumero regla;
    std::string_view leyenda;
    Texto texto;
    std::optional<double> study::Estacion::*en;
};
constexpr auto CamposOpcionales = std::to_array<CampoOpcional>({
    {{.control = "txtLatitud",
      .unidad = "°",
      .minimo = -90,
      .maximo = 90,
      .mensaje = "La latitud va de -90 a 90 grados."},
     "Latitud de la estación",
     &TallerMaximos::txtLatitud,
     &study::Estacion::latitud},
    {{.control = "txtLongitud",
      .unidad = "°",
      .minimo = -180,
      .maximo = 180,
      .mensaje = "La longitud va de -180 a 180 grados."},
     "Longitud de la estación",
     &TallerMaximos::txtLongitud,
     &study::Estacion::longitud},
    {{.control = "txtAltitud",
      .unidad = "m",
      .minimo = -500,
      .maximo = 9000,
      .mensaje = "La altitud va de -500 a 9000 m."},
     "Altitud de la estación",
     &TallerMaximos::txtAltitud,
     &study::Estacion::altitud},
});

constexpr forms::ReglaNumero ReglaDuracion{.control = "txtDuracion",
                                           .unidad = "min",
                                           .minimo = 1,
                                           .maximo = 14400,
                                           .mensaje = "La duración va de 1 a 14400 minutos (10 días)."};

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

std::optional<double> Celda(const forms::FilaGrilla& fila, std::size_t columna)
{
    return forms::NumeroDeCampo(fila.celdas[columna]);
}

void PonMaximos(forms::Grilla& g, const std::vector<study::Maximo>& maximos)
{
    const int n = static_cast<int>(maximos.size());
    forms::PonNroFilas(g, 0);
    forms::PonNroFilas(g, std::max(n + FilasLibres, FilasAlMenos));
    for (int i = 0; i < n; ++i) {
        const study::Maximo& m = maximos[static_cast<std::size_t>(i)];
        g.Pon({i + 1, 0}, std::to_string(m.anio));
        g.Pon({i + 1, 1}, Numero(m.valor));
        if (m.dias) g.Pon({i + 1, 2}, std::to_string(*m.dias));
    }
}

/// A number without decimals; none: nothing.
std::optional<int> Entero(const forms::FilaGrilla& fila, std::size_t columna)
{
    const auto x = Celda(fila, columna);
    return x && *x == std::floor(*x) ? std::optional(static_cast<int>(*x)) : std::nullopt;
}

/// What keeps a row from being a maximum; empty: nothing, or there is nothing in it.
std::string Reparo(const forms::FilaGrilla& fila)
{
    const auto anio = Celda(fila, 0), valor = Celda(fila, 1), dias = Celda(fila, 2);
    if (anio && !Entero(fila, 0)) return "el año no es un número entero";
    if (anio && !valor) return "falta el máximo";
    if (valor && !anio) return "falta el año";
    if (dias && !Entero(fila, 2)) return "los días no son un número entero";
    return {};
}

std::string FilasIncompletas(const forms::Grilla& g)
{
    std::string t;
    for (std::size_t i = 0; i < g.filas.size(); ++i)
        if (const std::string reparo = Reparo(g.filas[i]); !reparo.empty())
            t += "• Fila " + std::to_string(i + 1) + ": " + reparo + ".\n";
    return t;
}

std::string AvisosDe(const TallerMaximos& m, const study::SerieDeMaximos& s)
{
    const Serie serie = Revisada(s);
    std::string t = FilasIncompletas(m.grdMaximos);
    for (const auto* const lista : {&serie.errores, &serie.avisos})
        for (const std::string& aviso : *lista)
            t += "• " + aviso + "\n";
    if (!t.empty()) t.pop_back();
    return t.empty() ? std::to_string(s.maximos.size()) + " máximos; nada que observar." : t;
}

}  // namespace

TallerMaximos NuevaTallerMaximos()
{
    TallerMaximos m;
    m.grdMaximos = forms::NuevaGrilla(ReglasMaximos);
    PonMaximos(m.grdMaximos, {});
    return m;
}

void Toma(TallerMaximos& m, const dlgTaller& f)
{
    const study::Estacion* const e = EstacionEnMano(f);
    const study::Estacion estacion = e == nullptr ? study::Estacion{} : *e;
    for (const CampoDeTexto& campo : CamposDeTexto)
        m.*campo.texto = estacion.*campo.en;
    for (const CampoOpcional& campo : CamposOpcionales) {
        const std::optional<double> x = estacion.*campo.en;
        m.*campo.texto = x ? Numero(*x) : std::string();
    }
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    const study::SerieDeMaximos serie = s == nullptr ? study::SerieDeMaximos{} : *s;
    m.txtDuracion = Numero(serie.duracion);
    m.chkDiaria = serie.lecturaDiaria;
    // What is typed stays as it was typed while it says the same.
    if (MaximosDe(m.grdMaximos) != serie.maximos) PonMaximos(m.grdMaximos, serie.maximos);
    m.lblAvisos = AvisosDe(m, serie);
    m.Grafico = GraficoDeMaximos(serie);
    m.Grafico.titulo = TituloDe(f);
}

bool txtTexto_AlSalir(const TallerMaximos& m, dlgTaller& f, std::string_view control)
{
    const study::Estacion* const e = EstacionEnMano(f);
    for (const CampoDeTexto& campo : CamposDeTexto)
        if (campo.control == control && m.*campo.texto != (e == nullptr ? std::string() : e->*campo.en))
            Cambia(f, campo.leyenda, [&](study::Taller& t) { EstacionDe(f, t).*campo.en = m.*campo.texto; });
    return true;
}

namespace {

bool Duracion_AlSalir(TallerMaximos& m, dlgTaller& f, const model::Siro& s)
{
    if (!forms::AlSalir(s, ReglaDuracion, m.txtDuracion)) return false;
    const double nueva = *forms::NumeroDeCampo(m.txtDuracion);
    const study::SerieDeMaximos* const serie = SerieEnMano(f);
    if (nueva == (serie == nullptr ? study::SerieDeMaximos{} : *serie).duracion) return true;
    const study::Estacion* const e = EstacionEnMano(f);
    const auto esEsa = [nueva](const study::SerieDeMaximos& otra) { return otra.duracion == nueva; };
    if (e != nullptr && std::any_of(e->series.begin(), e->series.end(), esEsa)) {
        forms::MuestraRechazo(s, ReglaDuracion.rechazo, "La estación ya tiene una serie de esa duración.");
        return false;
    }
    Cambia(f, "Duración de la serie", [&](study::Taller& t) { SerieDe(f, t).duracion = nueva; });
    return true;
}

}  // namespace

bool txtNumero_AlSalir(TallerMaximos& m, dlgTaller& f, const model::Siro& s, std::string_view control)
{
    if (control == ReglaDuracion.control) return Duracion_AlSalir(m, f, s);
    const study::Estacion* const e = EstacionEnMano(f);
    for (const CampoOpcional& campo : CamposOpcionales) {
        if (campo.regla.control != control) continue;
        std::string& texto = m.*campo.texto;
        if (!texto.empty() && !forms::AlSalir(s, campo.regla, texto)) return false;
        const std::optional<double> x = forms::NumeroDeCampo(texto);
        if (x != (e == nullptr ? std::nullopt : e->*campo.en))
            Cambia(f, campo.leyenda, [&](study::Taller& t) { EstacionDe(f, t).*campo.en = x; });
    }
    return true;
}

void chkDiaria_Click(dlgTaller& f, bool tildada)
{
    Cambia(f, tildada ? "Lectura diaria" : "Sin lectura diaria",
           [&](study::Taller& t) { SerieDe(f, t).lecturaDiaria = tildada; });
}

void cmdNuevaEstacion(dlgTaller& f)
{
    Cambia(f, "Nueva estación",
           [](study::Taller& t) { t.estaciones.push_back({.series = {study::SerieDeMaximos{}}}); });
    cmbEstacion_Click(f, static_cast<int>(f.estaciones.size()) - 1);
}

void cmdQuitaEstacion(dlgTaller& f)
{
    if (EstacionEnMano(f) == nullptr) return;
    Cambia(f, "Quitar la estación",
           [&](study::Taller& t) { t.estaciones.erase(t.estaciones.begin() + f.estacion); });
}

void cmdNuevaSerie(dlgTaller& f)
{
    constexpr std::array Usuales{1440.0, 60.0, 30.0, 120.0, 10.0, 360.0, 720.0, 15.0, 180.0, 5.0, 2880.0};
    double nueva = 0;
    Cambia(f, "Nueva duración", [&](study::Taller& t) {
        SerieDe(f, t);
        std::vector<study::SerieDeMaximos>& series = EstacionDe(f, t).series;
        const auto falta = [&](double d) {
            return std::none_of(series.begin(), series.end(), [d](const auto& s) { return s.duracion == d; });
        };
        const auto usual = std::find_if(Usuales.begin(), Usuales.end(), falta);
        nueva = usual != Usuales.end() ? *usual : std::floor(series.back().duracion) + 1;
        series.push_back({.duracion = nueva});
        std::stable_sort(series.begin(), series.end(),
                         [](const auto& a, const auto& b) { return a.duracion < b.duracion; });
    });
    const study::Estacion* const e = EstacionEnMano(f);
    for (std::size_t i = 0; e != nullptr && i < e->series.size(); ++i)
        if (e->series[i].duracion == nueva) cmbSerie_Click(f, static_cast<int>(i));
}

void cmdQuitaSerie(dlgTaller& f)
{
    if (SerieEnMano(f) == nullptr) return;
    Cambia(f, "Quitar la duración", [&](study::Taller& t) {
        auto& series = EstacionDe(f, t).series;
        series.erase(series.begin() + f.serie);
    });
}

void grdMaximos_Asienta(TallerMaximos& m, dlgTaller& f)
{
    std::vector<study::Maximo> maximos = MaximosDe(m.grdMaximos);
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (s == nullptr ? maximos.empty() : maximos == s->maximos) {
        m.lblAvisos = AvisosDe(m, s == nullptr ? study::SerieDeMaximos{} : *s);
        return;
    }
    Cambia(f, "Máximos anuales", [&](study::Taller& t) { SerieDe(f, t).maximos = std::move(maximos); });
    m.grdMaximos.hechos.clear();  // from here on the workshop's own undoing takes them back
    m.grdMaximos.deshechos.clear();
}

std::vector<study::Maximo> MaximosDe(const forms::Grilla& g)
{
    std::vector<study::Maximo> maximos;
    for (const forms::FilaGrilla& fila : g.filas) {
        const auto anio = Entero(fila, 0);
        const auto valor = Celda(fila, 1);
        if (anio && valor) maximos.push_back({*anio, *valor, Entero(fila, 2)});
    }
    std::stable_sort(maximos.begin(), maximos.end(),
                     [](const auto& a, const auto& b) { return a.anio < b.anio; });
    return maximos;
}

forms::Grafico GraficoDeMaximos(const study::SerieDeMaximos& s)
{
    constexpr int Muchos = 3000;
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Año";
    g.magnitudX = "";
    g.ejeY = "Máximo [mm]";
    forms::Serie serie{.tipo = forms::TipoSerie::PuntosUnidos2D};
    if (s.maximos.empty()) return g;
    const int desde = s.maximos.front().anio, hasta = s.maximos.back().anio;
    if (hasta - desde > Muchos) return g;
    serie.celdas.assign(static_cast<std::size_t>(hasta - desde) + 1, forms::CeldaVacia);
    for (int anio = desde; anio <= hasta; ++anio)
        g.categorias.push_back(std::to_string(anio));
    for (const study::Maximo& m : s.maximos) {
        const auto fila = static_cast<std::size_t>(m.anio - desde);
        serie.celdas[fila] = m.valor;
        if (m.dias && *m.dias < DiasDeUnAnioCompleto)
            g.marcas.push_back({0, fila, std::to_string(*m.dias) + " días"});
    }
    g.series.push_back(std::move(serie));
    return g;
}

forms::Planilla PlanillaDeMaximos(const dlgTaller& f)
{
    forms::Planilla p{{std::string(TituloDlgTaller) + ": máximos anuales", TemaDe(f)},
                      {{"Año"}, {"Máximo [mm]"}, {"Días con registro"}},
                      {}};
    if (const study::SerieDeMaximos* const s = SerieEnMano(f))
        for (const study::Maximo& m : s->maximos)
            p.filas.push_back(
                {std::to_string(m.anio), Numero(m.valor), m.dias ? std::to_string(*m.dias) : std::string()});
    return p;
}

}  // namespace frequency
