// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Graficos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "checks/Corrido.h"
#include "frequency/Analisis.h"
#include "frequency/Ley.h"
#include "frequency/idf/Curvas.h"
#include "frequency/taller/GraficosDeTaller.h"
#include "model/Clases.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"
#include "report/Estudiado.h"

namespace report {
namespace {

using checks::ComponenteCorrido;
using checks::UltimaCorrida;
using forms::Grafico;
using forms::Serie;
using forms::TipoSerie;

using Corrida = std::shared_ptr<const UltimaCorrida>;

constexpr std::size_t MaxCurvas = 12;   // on one chart: more can't be told apart
constexpr std::size_t PocasCurvas = 7;  // told apart by the colours of few lines
constexpr double MinutosDeHora = 60;
constexpr int EnMinutos = 180;  // the longest time that is told in minutes

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

/// A whole number as it stands, others with so many decimals at most.
std::string Corto(double x, int decimales)
{
    return Numero(model::Redondea(x, decimales));
}

// --- what a run has ---

const ComponenteCorrido* Busca(const Corrida& u, std::string_view nombre)
{
    if (u == nullptr || !u->corrido) return nullptr;
    for (const ComponenteCorrido& c : u->corrido->componentes)
        if (c.nombre == nombre) return &c;
    return nullptr;
}

/// Rows at the output steps: places and names in hours, or in minutes where the run is short.
void PonTiempos(Grafico& g, const UltimaCorrida& u)
{
    const bool minutos = u.r().NroPasosQ * u.pasos.PasoQ <= EnMinutos;
    g.ejeX = minutos ? "t [min]" : "t [h]";
    for (int i = 1; i <= u.r().NroPasosQ; ++i) {
        const double t = i * double{1} * u.pasos.PasoQ / (minutos ? 1 : MinutosDeHora);
        g.abscisas.push_back(t);
        g.categorias.push_back(Corto(t, 2));
    }
}

/// Steps 1 to the last of a row; nothing where the table hasn't got them.
std::optional<std::vector<double>> Fila(const UltimaCorrida& u, const model::Matriz<float>& valores, int fila)
{
    const int pasos = u.r().NroPasosQ;
    if (fila < 1 || pasos < 1 || !valores.Alcanza(fila, pasos)) return {};
    const float* const q = valores.Fila(fila);
    return std::vector<double>(q + 1, q + 1 + pasos);
}

/// A ring at the highest cell of the last series, with what is beside it.
void MarcaPico(Grafico& g, const std::string& rotulo)
{
    const std::vector<double>& celdas = g.series.back().celdas;
    const auto pico = std::max_element(celdas.begin(), celdas.end());
    if (pico == celdas.end() || !(*pico > 0)) return;
    g.marcas.push_back({g.series.size() - 1, static_cast<std::size_t>(pico - celdas.begin()), rotulo});
}

// --- a figure each ---

std::optional<Grafico> DeHietograma(const Datos& datos, const Figura& /*figura*/)
{
    const Corrida& u = datos.tormenta;
    if (u == nullptr) return {};
    const model::Tormenta& t = u->calculo.Tormenta;
    if (t.NroPpReal < 1 || t.PpReal.Tope() < t.NroPpReal) return {};
    Grafico g;
    const double bloque = double{1} * u->entrada.DurTormenta / t.NroPpReal;
    const bool minutos = u->entrada.DurTormenta <= EnMinutos;
    g.ejeX = minutos ? "t [min]" : "t [h]";
    g.ejeY = "Precipitación [mm]";
    Serie lluvia{.tipo = TipoSerie::Escalon2D};
    for (int i = 1; i <= t.NroPpReal; ++i) {
        g.categorias.push_back(Corto(i * bloque / (minutos ? 1 : MinutosDeHora), 2));
        lluvia.celdas.push_back(t.PpReal(i));
    }
    g.series.push_back(std::move(lluvia));
    return g;
}

void PonHidrograma(Grafico& g, const UltimaCorrida& u, const ComponenteCorrido& c, bool entra, bool solo)
{
    auto q = Fila(u, entra ? u.r().QEntra : u.r().QSale, c.fila);
    if (!q || g.series.size() >= MaxCurvas) return;
    const double pico = *std::max_element(q->begin(), q->end());
    const std::string que = entra ? "entra" : "sale";
    const std::string nombre(c.nombre);
    g.series.push_back({TipoSerie::Linea2D, solo ? "Q " + que : nombre, false, std::move(*q)});
    MarcaPico(g, (solo ? std::string() : nombre + " ") + Corto(pico, 2) + " m³/s");
}

std::optional<Grafico> DeHidrograma(const Datos& datos, const Figura& figura)
{
    Grafico g{.tipo = forms::TipoGrafico::Linea};
    const bool solo = figura.componentes.size() == 1;
    for (const std::string& nombre : figura.componentes) {
        const ComponenteCorrido* const c = Busca(datos.tormenta, nombre);
        if (c == nullptr || c->fila < 1) continue;
        if (g.abscisas.empty()) PonTiempos(g, *datos.tormenta);
        if (solo && c->ueh == nullptr) PonHidrograma(g, *datos.tormenta, *c, true, true);
        PonHidrograma(g, *datos.tormenta, *c, false, solo);
    }
    if (g.series.empty()) return {};
    g.ejeY = "Caudal [m³/s]";
    g.leyendaVisible = g.series.size() > 1;
    g.muchasLineas = g.series.size() > PocasCurvas;
    if (g.muchasLineas) g.marcas.clear();  // the legend names them; the table has their peaks
    return g;
}

std::optional<Grafico> DeEmbalse(const Datos& datos, const Figura& figura)
{
    if (figura.componentes.empty()) return {};
    const ComponenteCorrido* const c = Busca(datos.tormenta, figura.componentes.front());
    if (c == nullptr || !c->embalse) return {};
    auto alturas = Fila(*datos.tormenta, c->embalse->H, c->embalse->tablas.numero);
    if (!alturas) return {};
    Grafico g{.tipo = forms::TipoGrafico::Linea};
    PonTiempos(g, *datos.tormenta);
    g.ejeY = "Altura [m]";
    g.leyendaVisible = true;
    const double mayor = *std::max_element(alturas->begin(), alturas->end());
    g.series.push_back({TipoSerie::Linea2D, "Nivel", false, std::move(*alturas)});
    MarcaPico(g, Corto(mayor, 2) + " m");
    if (c->embalse->TieneTabla())
        g.series.push_back({TipoSerie::Linea2D, "Tope de la tabla", false,
                            std::vector<double>(g.abscisas.size(), c->embalse->Tope())});
    return g;
}

std::optional<Grafico> DeCurvasHASQ(const Datos& datos, const Figura& figura)
{
    const Corrida& u = datos.tormenta;
    if (figura.componentes.empty()) return {};
    const ComponenteCorrido* const c = Busca(u, figura.componentes.front());
    if (c == nullptr || !c->embalse || !c->embalse->TieneTabla()) return {};
    const checks::EmbalseCorrido& e = *c->embalse;
    Grafico g{.tipo = forms::TipoGrafico::Linea};
    g.ejeX = "Altura [m]";
    g.ejeY = "Almacenamiento [m³]";
    g.ejeYSecundario = "Descarga [m³/s]";
    g.leyendaVisible = true;
    Serie S{.tipo = TipoSerie::Linea2D, .leyenda = "Almacenamiento"};
    Serie Q{.tipo = TipoSerie::Linea2D, .leyenda = "Descarga", .ejeSecundario = true};
    constexpr int Partes = 60;  // where an outflow function bends
    const float primera = e.tablas.tablaH(e.tablas.numero, 1), tope = e.Tope();
    for (int i = 0; i <= Partes; ++i) {
        const float h = primera + (tope - primera) * static_cast<float>(i) / Partes;
        g.abscisas.push_back(h);
        g.categorias.push_back(Corto(h, 2));
        S.celdas.push_back(e.Almacenamiento(h));
        Q.celdas.push_back(e.Descarga(h));
    }
    if (!(tope > primera)) return {};
    constexpr double Hectometro = 1e6;  // [m3], from which on its cube is the unit
    if (S.celdas.back() >= Hectometro) {
        g.ejeY = "Almacenamiento [hm³]";
        for (double& celda : S.celdas)
            celda /= Hectometro;
    }
    g.series = {std::move(S), std::move(Q)};
    return g;
}

/// Row of a component in the results of a series; 0: it has none.
int FilaDeSerie(const UltimaCorrida& u, const std::string& nombre)
{
    const auto& secuencia = u.r().Secuencia;
    const auto hallado = std::find(secuencia.begin(), secuencia.end(), nombre);
    return hallado == secuencia.end() ? 0 : static_cast<int>(hallado - secuencia.begin());
}

/// Peaks by recurrence, then by duration. A storm that wasn't run left none.
using Picos = std::map<std::int16_t, std::map<std::int16_t, double>>;
Picos PicosDe(const UltimaCorrida& u, int fila)
{
    Picos picos;
    for (int t = 1; t <= u.serie.NroSeriePDR; ++t)
        if (u.r().QMax.Alcanza(fila, t) && u.r().QMax(fila, t) > 0)
            picos[u.serie.SerieR(t)][u.serie.SerieD(t)] = u.r().QMax(fila, t);
    return picos;
}

std::optional<Grafico> DeAbaco(const Datos& datos, const Figura& figura)
{
    const Corrida& u = datos.serie;
    if (u == nullptr || figura.componentes.empty()) return {};
    const int fila = FilaDeSerie(*u, figura.componentes.front());
    if (fila < 1) return {};
    std::vector<frequency::CurvaDeGrafico> curvas;
    for (const auto& [recurrencia, porDuracion] : PicosDe(*u, fila)) {
        frequency::CurvaDeGrafico curva{TipoSerie::PuntosUnidos2D, Numero(recurrencia) + " años", {}};
        for (const auto& [duracion, pico] : porDuracion)
            curva.puntos.push_back({std::log10(duracion), pico});
        curvas.push_back(std::move(curva));
    }
    if (curvas.empty()) return {};
    Grafico g{.tipo = forms::TipoGrafico::Linea};
    g.ejeX = "Duración de la tormenta [min]";
    g.ejeY = "Caudal máximo [m³/s]";
    g.leyendaVisible = g.muchasLineas = true;
    g.tituloLeyenda = "Recurrencia";
    frequency::PonCurvas(g, curvas, [](double x) { return Corto(std::pow(10, x), 0); });
    for (const double x : g.abscisas)
        g.rotulosX.push_back({x, Corto(std::pow(10, x), 0)});
    return g;
}

std::optional<Grafico> DeFrecuencia(const Datos& datos, const Figura& /*figura*/)
{
    const Estudiado e(datos.estudio, datos.grabada);
    if (!e.analisis) return {};
    const frequency::Ley* const elegida = frequency::LeyDeClave(e.maximos->ley);
    const frequency::Ley* const ley = elegida != nullptr ? elegida : e.analisis->recomendacion.ley;
    const auto& ajustes = e.analisis->ajustes;
    const auto suyo = std::find_if(ajustes.begin(), ajustes.end(),
                                   [&](const frequency::AjusteDeLey& f) { return f.ley == ley; });
    if (suyo == ajustes.end()) return {};
    return frequency::GraficoDePapel(*e.analisis,
                                     {frequency::Ejes::DeGumbel, &*suyo, true, e.taller.posicion});
}

std::optional<Grafico> DeIdf(const Datos& datos, const Figura& /*figura*/)
{
    constexpr std::array Dibujadas{2, 5, 10, 25, 50, 100};
    const Estudiado e(datos.estudio, datos.grabada);
    if (!e.curvas) return {};
    const frequency::idf::Curvas& c = *e.curvas;
    std::vector<frequency::CurvaDeGrafico> curvas;
    for (const int T : Dibujadas) {
        frequency::CurvaDeGrafico curva{TipoSerie::Linea2D, Numero(T) + " años", {}};
        for (const int d : model::Duraciones)
            if (const double i = frequency::idf::Intensidad(c, d, T); std::isfinite(i) && i > 0)
                curva.puntos.push_back({std::log10(d), i});
        if (!curva.puntos.empty()) curvas.push_back(std::move(curva));
    }
    if (curvas.empty()) return {};
    Grafico g{.tipo = forms::TipoGrafico::Linea};
    g.ejeX = "Duración [min]";
    g.ejeY = "Intensidad [mm/h]";
    g.ejeYLogaritmico = g.leyendaVisible = g.muchasLineas = true;
    g.tituloLeyenda = "Recurrencia";
    frequency::PonCurvas(g, curvas, [](double x) { return Corto(std::pow(10, x), 0); });
    for (const int d : {10, 60, 1440, 5, 30, 360, 180, 720, 120, 20, 2880, 90, 15, 240})
        g.rotulosX.push_back({std::log10(d), Numero(d)});
    return g;
}

/// A kind of figure: its title, ahead of the names of its components, and its chart.
struct FilaDeFigura {
    Figura::Clase clase;
    std::string_view titulo;
    std::optional<Grafico> (*grafico)(const Datos&, const Figura&);
};
constexpr auto Filas = std::to_array<FilaDeFigura>({
    {Figura::Clase::Red, "Red de la cuenca",
     [](const Datos&, const Figura&) { return std::optional<Grafico>{}; }},
    {Figura::Clase::Hietograma, "Hietograma de la tormenta", DeHietograma},
    {Figura::Clase::Hidrograma, "Hidrograma", DeHidrograma},
    {Figura::Clase::Abaco, "Ábaco de caudales máximos", DeAbaco},
    {Figura::Clase::Frecuencia, "Máximos anuales y ley adoptada", DeFrecuencia},
    {Figura::Clase::Idf, "Curvas de intensidad, duración y recurrencia", DeIdf},
    {Figura::Clase::Embalse, "Nivel del embalse", DeEmbalse},
    {Figura::Clase::CurvasHASQ, "Almacenamiento y descarga por altura", DeCurvasHASQ},
});

const FilaDeFigura& FilaDe(Figura::Clase clase)
{
    return *std::find_if(Filas.begin(), Filas.end(), [&](const FilaDeFigura& f) { return f.clase == clase; });
}

/// The run that a figure is of; null: of none.
const UltimaCorrida* SuCorrida(const Datos& datos, Figura::Clase clase)
{
    if (clase == Figura::Clase::Frecuencia || clase == Figura::Clase::Idf) return nullptr;
    if (clase == Figura::Clase::Abaco) return datos.serie.get();
    return datos.tormenta != nullptr ? datos.tormenta.get() : datos.serie.get();
}

}  // namespace

std::string ConSigno(std::string_view texto, char decimal)
{
    const auto esCifra = [&](std::size_t i) {
        return i < texto.size() && texto[i] >= '0' && texto[i] <= '9';
    };
    std::string t(texto);
    for (std::size_t i = 1; i < t.size(); ++i)
        if (t[i] == '.' && esCifra(i - 1) && esCifra(i + 1)) t[i] = decimal;
    return t;
}

std::vector<std::string> Encabezado(const Datos& datos, const Figura& figura, char decimal)
{
    std::string titulo(FilaDe(figura.clase).titulo);
    for (std::size_t i = 0; i < figura.componentes.size() && i < MaxCurvas; ++i)
        titulo += (i == 0 ? ": " : ", ") + figura.componentes[i];
    const UltimaCorrida* const u = SuCorrida(datos, figura.clase);
    std::string tema, deDonde = datos.configuracion.TituloProyecto;
    if (u != nullptr) {
        if (figura.clase != Figura::Clase::CurvasHASQ) tema = ConSigno(u->sello.tormenta, decimal);
        deDonde = u->sello.nombre + " · corrida del " + u->cuando;
    }
    std::vector<std::string> renglones{std::move(titulo), std::move(tema), std::move(deDonde)};
    std::erase_if(renglones, [](const std::string& r) { return r.empty(); });
    return renglones;
}

std::optional<Grafico> GraficoDe(const Datos& datos, const Figura& figura, char decimal)
{
    auto g = FilaDe(figura.clase).grafico(datos, figura);
    if (!g) return {};
    for (std::string& c : g->categorias)
        c = ConSigno(c, decimal);
    for (forms::Marca& m : g->marcas)
        m.rotulo = ConSigno(m.rotulo, decimal);
    for (forms::RotuloDeEje& r : g->rotulosX)
        r.texto = ConSigno(r.texto, decimal);
    return g;
}

}  // namespace report
