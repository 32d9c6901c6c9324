// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgComparar.h"

#include <algorithm>
#include <utility>

#include "engine/Totales.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "results/EjeTiempo.h"

namespace results {

using checks::ComponenteCorrido;

namespace {

constexpr std::string_view SinCorrida =
    "Todavía no se corrió nada: defina la tormenta (F4) y corra el proceso (F5).";
constexpr std::string_view DeSerieDeTormentas =
    "La última corrida fue una serie, que no guarda hidrogramas: corra una tormenta sola (F4, F5).";
constexpr std::string_view SinResultados =
    "La corrida no llegó a su fin y no dejó hidrogramas. Los avisos de la corrida (menú Estudio) dicen por "
    "qué.";
constexpr std::string_view SinElegidos = "Elija en la lista los componentes que quiere comparar.";
constexpr std::string_view SinCurvas = "Marque Salida o Entrada; las UEHs no tienen entrada.";

std::string Cuantos(std::size_t n)
{
    return model::NumeroATexto(static_cast<std::int32_t>(n));
}

bool ConHidrogramas(const dlgComparar& f)
{
    return f.corrida != nullptr && f.corrida->balance.has_value();
}

const ComponenteCorrido* Busca(const dlgComparar& f, std::string_view nombre)
{
    const auto& todos = f.corrida->corrido->componentes;
    const auto hallado = std::find_if(todos.begin(), todos.end(), [&](const ComponenteCorrido& c) {
        return c.fila > 0 && c.nombre == nombre;
    });
    return hallado != todos.end() ? &*hallado : nullptr;
}

bool EsRepresa(std::string_view nombre)
{
    return nombre.starts_with(model::DeClase<model::Represa>::prefijo);
}

bool EsSalida(const dlgComparar& f, std::string_view nombre)
{
    const ComponenteCorrido* const c = Busca(f, nombre);
    return c != nullptr && f.corrida->corrido->EsSalida(*c);
}

std::vector<std::string> Elegidos(const dlgComparar& f)
{
    std::vector<std::string> nombres;
    for (std::size_t i = 0; i < f.lstCompos.size(); ++i)
        if (f.elegidos[i]) nombres.push_back(f.lstCompos[i]);
    return nombres;
}

/// A hydrograph on the chart.
struct Curva {
    const ComponenteCorrido* comp;
    bool entra;
};

std::vector<Curva> Curvas(const dlgComparar& f)
{
    std::vector<Curva> curvas;
    for (const std::string& nombre : Elegidos(f)) {
        const ComponenteCorrido* const c = Busca(f, nombre);
        if (f.chkEntra && c->ueh == nullptr) curvas.push_back({c, true});
        if (f.chkSale) curvas.push_back({c, false});
    }
    return curvas;
}

bool Caben(const dlgComparar& f)
{
    return Curvas(f).size() <= static_cast<std::size_t>(MaxCurvas);
}

/// Chooses as many as have room, in the order given. Returns how many.
std::size_t Elige(dlgComparar& f, const std::vector<std::string>& nombres)
{
    f.elegidos.assign(f.lstCompos.size(), false);
    std::size_t cuantos = 0;
    for (const std::string& nombre : nombres) {
        const auto item = std::find(f.lstCompos.begin(), f.lstCompos.end(), nombre) - f.lstCompos.begin();
        if (item == std::ssize(f.lstCompos)) continue;
        f.elegidos[static_cast<std::size_t>(item)] = true;
        if (Caben(f)) {
            ++cuantos;
            continue;
        }
        f.elegidos[static_cast<std::size_t>(item)] = false;
        break;
    }
    return cuantos;
}

void Redibuja(dlgComparar& f, std::string_view nota = {});

/// The chosen ones, and a note where there were more.
void EligeYAvisa(dlgComparar& f, const std::vector<std::string>& nombres, std::string_view que)
{
    const std::size_t cuantos = Elige(f, nombres);
    const std::string nota = "Caben " + std::to_string(MaxCurvas) + " curvas: se muestran " +
                             Cuantos(cuantos) + " de " + Cuantos(nombres.size()) + " " + std::string(que) +
                             ".";
    Redibuja(f, cuantos < nombres.size() ? nota : std::string());
}

// --- the chart ---

forms::Serie SerieDe(const dlgComparar& f, const Curva& curva)
{
    const model::Resultados& r = f.corrida->r();
    const float* q = (curva.entra ? r.QEntra : r.QSale).Fila(curva.comp->fila);
    return {forms::TipoSerie::Linea2D,
            std::string(curva.comp->nombre) + (curva.entra ? " entra" : " sale"),
            false,
            {q + 1, q + 1 + r.NroPasosQ}};
}

/// A ring and the curve's name at its peak; a dry one has none.
void MarcaPico(forms::Grafico& grafico, std::size_t serie)
{
    const std::vector<double>& celdas = grafico.series[serie].celdas;
    const auto pico = std::max_element(celdas.begin(), celdas.end());
    if (pico == celdas.end() || *pico <= 0) return;
    grafico.marcas.push_back(
        {serie, static_cast<std::size_t>(pico - celdas.begin()), grafico.series[serie].leyenda});
}

forms::Grafico GraficoDe(const dlgComparar& f)
{
    forms::Grafico grafico{.tipo = forms::TipoGrafico::Linea};
    grafico.magnitudX = MagnitudEjeX;
    grafico.ejeX = TituloEjeX(f.MinutosEjeX);
    grafico.ejeY = EjeCaudal;
    grafico.marcasEjeX = false;
    grafico.leyendaVisible = true;
    grafico.muchasLineas = true;
    if (!ConHidrogramas(f)) return grafico;
    // A time beyond 16 bits has no category, and none is drawn.
    model::Sentencia([&] {
        for (int i = 1; i <= f.corrida->r().NroPasosQ; ++i)
            grafico.categorias.push_back(
                Categoria(static_cast<std::int16_t>(i), f.corrida->pasos.PasoQ, f.MinutosEjeX));
    });
    for (const Curva& curva : Curvas(f)) {
        grafico.series.push_back(SerieDe(f, curva));
        grafico.series.back().celdas.resize(grafico.categorias.size());
        MarcaPico(grafico, grafico.series.size() - 1);
    }
    return grafico;
}

std::string_view QueHacer(const dlgComparar& f)
{
    if (f.corrida == nullptr) return SinCorrida;
    if (f.corrida->esSerie) return DeSerieDeTormentas;
    if (!ConHidrogramas(f)) return SinResultados;
    if (Elegidos(f).empty()) return SinElegidos;
    return Curvas(f).empty() ? SinCurvas : std::string_view();
}

void Redibuja(dlgComparar& f, std::string_view nota)
{
    f.Grafico = GraficoDe(f);
    f.lblTitulo = f.corrida != nullptr ? f.corrida->sello.tormenta : std::string();
    f.lblNota = nota.empty() ? QueHacer(f) : nota;
}

/// Takes a change back where its curves have no room.
void CambiaSiCabe(dlgComparar& f, auto&& cambia, const std::string& que)
{
    const dlgComparar antes = f;
    cambia();
    if (Caben(f)) return Redibuja(f);
    f.elegidos = antes.elegidos;
    f.chkSale = antes.chkSale;
    f.chkEntra = antes.chkEntra;
    Redibuja(f, "Caben " + std::to_string(MaxCurvas) +
                    " curvas: deje de elegir algún componente para agregar " + que + ".");
}

/// Represas, those with the greatest inflow first.
std::vector<std::string> Represas(const dlgComparar& f)
{
    std::vector<std::pair<float, std::string>> todas;
    const model::Resultados& r = f.corrida->r();
    for (const std::string& nombre : f.lstCompos)
        if (EsRepresa(nombre))
            todas.emplace_back(engine::Mayor(r.QEntra.Fila(Busca(f, nombre)->fila), 0, r.NroPasosQ), nombre);
    std::stable_sort(todas.begin(), todas.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<std::string> nombres;
    for (const auto& [mayor, nombre] : todas)
        nombres.push_back(nombre);
    return nombres;
}

std::vector<std::string> Salidas(const dlgComparar& f)
{
    std::vector<std::string> nombres;
    std::copy_if(f.lstCompos.begin(), f.lstCompos.end(), std::back_inserter(nombres),
                 [&](const std::string& nombre) { return EsSalida(f, nombre); });
    return nombres;
}

void PonComponentes(dlgComparar& f)
{
    f.lstCompos.clear();
    if (!ConHidrogramas(f)) return;
    std::vector<const ComponenteCorrido*> todos;
    for (const ComponenteCorrido& c : f.corrida->corrido->componentes)
        if (c.fila > 0) todos.push_back(&c);
    std::sort(todos.begin(), todos.end(), [](const auto* a, const auto* b) { return a->fila < b->fila; });
    for (const ComponenteCorrido* const c : todos)
        f.lstCompos.emplace_back(c->nombre);
}

}  // namespace

void Pon(dlgComparar& f, Corrida corrida)
{
    const std::vector<std::string> antes = Elegidos(f);
    f.corrida = std::move(corrida);
    PonComponentes(f);
    Elige(f, antes);
    const std::vector<std::string> salidas = Salidas(f);
    f.haySalida = !salidas.empty();
    f.hayRepresas = std::any_of(f.lstCompos.begin(), f.lstCompos.end(), EsRepresa);
    if (Elegidos(f).empty()) Elige(f, salidas);
    Redibuja(f);
}

void Compara(dlgComparar& f, const std::vector<std::string>& componentes)
{
    f.chkSale = true;
    f.chkEntra = false;
    EligeYAvisa(f, componentes, "componentes");
}

void lstCompos_Tilda(dlgComparar& f, std::size_t item, bool elegido)
{
    if (item >= f.lstCompos.size()) return;
    CambiaSiCabe(
        f, [&] { f.elegidos[item] = elegido; }, f.lstCompos[item]);
}

void chkSale_Click(dlgComparar& f, bool marcada)
{
    CambiaSiCabe(
        f, [&] { f.chkSale = marcada; }, "las salidas");
}

void chkEntra_Click(dlgComparar& f, bool marcada)
{
    CambiaSiCabe(
        f, [&] { f.chkEntra = marcada; }, "las entradas");
}

void cmdRepresas(dlgComparar& f)
{
    if (!f.hayRepresas) return;
    f.chkSale = f.chkEntra = true;
    EligeYAvisa(f, Represas(f), "represas, las de mayor caudal de entrada");
}

void cmdSalida(dlgComparar& f)
{
    if (f.haySalida) Compara(f, Salidas(f));
}

void cmdNinguno(dlgComparar& f)
{
    Elige(f, {});
    Redibuja(f);
}

void cmdHsMin(dlgComparar& f)
{
    f.MinutosEjeX = !f.MinutosEjeX;
    Redibuja(f);
}

}  // namespace results
