// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgImportaMaximos.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "forms/CampoNumerico.h"
#include "forms/ReglasGrilla.h"
#include "frequency/taller/TallerMaximos.h"
#include "model/Avisos.h"
#include "model/Camino.h"
#include "model/Siro.h"

namespace frequency {
namespace {

constexpr double UnDia = 1440, MayorDuracion = 14400;  // [min]

/// Durations of a text, in minutes, parted by commas, semicolons or blanks; nothing where one of them is
/// none.
std::optional<std::vector<double>> DuracionesDe(std::string texto)
{
    for (char& c : texto)
        if (c == ';' || c == ' ') c = ',';
    std::vector<double> duraciones;
    for (const std::string_view pedazo : forms::Pedazos(texto, ',')) {
        if (pedazo.empty()) continue;
        const auto x = forms::NumeroDeCampo(pedazo);
        if (!x || *x <= 0 || *x > MayorDuracion) return {};
        duraciones.push_back(*x);
    }
    return duraciones;
}

/// Maxima by year, of the durations that the file tells or of one that the user does.
Importacion DeMaximos(const std::string& bytes, double duracion)
{
    Tabla leida = LeeTabla(bytes);
    std::erase_if(leida.series, [](const auto& serie) { return serie.maximos.empty(); });
    Importacion i;
    i.avisos = leida.avisos;
    if (leida.series.empty()) {
        i.errores = leida.errores.empty() ? LeeMaximos(bytes).errores : leida.errores;
        return i;
    }
    // What the series itself has wrong is seen, and mended, where it is edited.
    i.avisos.insert(i.avisos.begin(), leida.errores.begin(), leida.errores.end());
    i.series = std::move(leida.series);
    if (!leida.conDuraciones) i.series.front().duracion = duracion;
    for (study::SerieDeMaximos& serie : i.series)
        std::stable_sort(serie.maximos.begin(), serie.maximos.end(),
                         [](const auto& a, const auto& b) { return a.anio < b.anio; });
    return i;
}

/// A year a line, each of its own.
bool ParecenMaximos(const std::string& bytes)
{
    const Tabla leida = LeeTabla(bytes);
    return !leida.repetidos && std::any_of(leida.series.begin(), leida.series.end(),
                                           [](const auto& serie) { return !serie.maximos.empty(); });
}

std::string Dias(const study::SerieDeMaximos& s)
{
    int menor = -1;
    for (const study::Maximo& m : s.maximos)
        if (m.dias && (menor < 0 || *m.dias < menor)) menor = *m.dias;
    return menor < 0 ? std::string() : std::to_string(menor);
}

std::vector<std::string> Fila(const study::SerieDeMaximos& s)
{
    const auto mayor = std::max_element(s.maximos.begin(), s.maximos.end(),
                                        [](const auto& a, const auto& b) { return a.valor < b.valor; });
    if (mayor == s.maximos.end()) return {TextoDe(s.duracion), "0", "", "", "", "", ""};
    return {TextoDe(s.duracion),
            std::to_string(s.maximos.size()),
            std::to_string(s.maximos.front().anio),
            std::to_string(s.maximos.back().anio),
            TextoDe(mayor->valor),
            std::to_string(mayor->anio),
            Dias(s)};
}

std::string EnRenglones(const std::vector<std::string>& textos)
{
    std::string t;
    for (const std::string& texto : textos)
        t += (t.empty() ? "• " : "\n• ") + texto;
    return t;
}

}  // namespace

bool Abre(dlgImportaMaximos& f, const model::Siro& s)
{
    const std::string ruta =
        s.Anfitrion.EligeArchivo("Importar máximos anuales", "Registros y máximos |*.csv *.txt *.dat *.tsv");
    if (ruta.empty()) return false;
    f = {};
    f.meses = {"enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
               "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};
    if (!model::Sentencia([&] { f.bytes = s.Disco.Lee(ruta); }, model::AvisaArchivo(s))) return false;
    f.lblArchivo = ruta;
    f.clase = ParecenMaximos(f.bytes) ? 1 : 0;
    f.abierta = true;
    return true;
}

PedidoDeImportacion PedidoDe(const dlgImportaMaximos& f)
{
    return {f.mes + 1, DuracionesDe(f.txtDuraciones).value_or(std::vector<double>{})};
}

std::optional<Importacion> Lee(const std::string& bytes, ClaseDeArchivo clase,
                               const PedidoDeImportacion& pedido, const Avance& avance)
{
    if (clase == ClaseDeArchivo::Registro) return ImportaMaximos(bytes, pedido, avance);
    return DeMaximos(bytes, pedido.duraciones.empty() ? UnDia : pedido.duraciones.front());
}

void Empieza(dlgImportaMaximos& f)
{
    f.leyendo = true;
    f.barAvance = "Leyendo...";
}

void Avanza(dlgImportaMaximos& f, std::size_t hechos, std::size_t total)
{
    constexpr std::size_t Todo = 100;
    if (total > 0) f.barAvance = "Leyendo, " + std::to_string(hechos * Todo / total) + " %";
}

void Termina(dlgImportaMaximos& f, Importacion importacion)
{
    f.leyendo = false;
    f.importacion = std::move(importacion);
    forms::Planilla p{
        {std::string(TituloDlgImportaMaximos), f.lblArchivo},
        {{"Duración [min]"}, {"Años"}, {"Primero"}, {"Último"}, {"Mayor [mm]"}, {"Del año"}, {"Menos días"}},
        {}};
    for (const study::SerieDeMaximos& s : f.importacion.series)
        p.filas.push_back(Fila(s));
    forms::PonFilas(f.tblSeries, std::move(p));
    f.lblAvisos = EnRenglones(f.importacion.errores.empty() ? f.importacion.avisos : f.importacion.errores);
    tblSeries_Mueve(f, f.serie);
}

bool txtDuraciones_AlSalir(dlgImportaMaximos& f, const model::Siro& s)
{
    if (DuracionesDe(f.txtDuraciones)) return true;
    forms::MuestraRechazo(s, forms::Rechazo::Exclamacion,
                          "Las duraciones son minutos, de más de 0 a 14400, separados por comas.");
    return false;
}

void tblSeries_Mueve(dlgImportaMaximos& f, std::size_t fila)
{
    f.serie = fila < f.importacion.series.size() ? fila : 0;
    if (f.importacion.series.empty()) {
        f.Grafico = {};
        return;
    }
    const study::SerieDeMaximos& s = f.importacion.series[f.serie];
    f.Grafico = GraficoDeMaximos(s);
    f.Grafico.titulo = "Máximos de " + NombreDe(s);
}

void OKButton(dlgImportaMaximos& f, dlgTaller& taller)
{
    Cambia(taller, "Importar máximos", [&](study::Taller& t) {
        study::Estacion& e = EstacionDe(taller, t);
        for (const study::SerieDeMaximos& nueva : f.importacion.series) {
            const auto suya = std::find_if(e.series.begin(), e.series.end(),
                                           [&](const auto& s) { return s.duracion == nueva.duracion; });
            if (suya == e.series.end()) {
                e.series.push_back(nueva);
                continue;
            }
            suya->maximos = nueva.maximos;
            suya->lecturaDiaria = nueva.lecturaDiaria;
        }
        std::stable_sort(e.series.begin(), e.series.end(),
                         [](const auto& a, const auto& b) { return a.duracion < b.duracion; });
    });
    f.aceptada = true;
    f.abierta = false;
}

void CancelButton(dlgImportaMaximos& f)
{
    f.abierta = false;
}

}  // namespace frequency
