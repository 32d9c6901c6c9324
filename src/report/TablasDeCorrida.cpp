// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "model/Avisos.h"
#include "model/Tormenta.h"
#include "report/Filas.h"

// What the run of a storm left.
namespace report {
namespace {

using checks::ComponenteCorrido;
using checks::Hallazgo;
using checks::RenglonBalance;

// --- rain ---

/// Blocks of a storm, so many together.
struct Bloques {
    int desde = 0, hasta = 0;
    double minutos = 0;            ///< of each block
    double lamina = 0, total = 0;  ///< of these, up to their end [mm]
};

constexpr int MuchosRenglones = 48;

std::vector<Bloques> BloquesDe(const Fuente& f)
{
    std::vector<Bloques> todos;
    if (f.una == nullptr) return todos;
    const model::Tormenta& t = f.una->calculo.Tormenta;
    const int cuantos = std::min<int>(f.una->calculo.Hietograma.NroBloquesPp, t.PpReal.Tope());
    if (cuantos < 1) return todos;
    const int juntos = (cuantos + MuchosRenglones - 1) / MuchosRenglones;
    double total = 0;
    for (int k = 1; k <= cuantos; ++k) {
        if ((k - 1) % juntos == 0)
            todos.push_back({.desde = k, .minutos = static_cast<double>(t.DurTormenta) / cuantos});
        total += t.PpReal(k);
        todos.back().hasta = k;
        todos.back().lamina += t.PpReal(k);
        todos.back().total = total;
    }
    return todos;
}

// clang-format off
constexpr auto DeLluvia = std::to_array<ColumnaDe<Bloques>>({
    {"Desde", "min", false, [](const Fuente& f, const Bloques& b) { return f.n.Con((b.desde - 1) * b.minutos, 0); }},
    {"Hasta", "min", false, [](const Fuente& f, const Bloques& b) { return f.n.Con(b.hasta * b.minutos, 0); }},
    {"Lámina", "mm", false, [](const Fuente& f, const Bloques& b) { return f.n.Con(b.lamina, 2); }},
    {"Acumulada", "mm", false, [](const Fuente& f, const Bloques& b) { return f.n.Con(b.total, 2); }},
    {"Intensidad", "mm/h", false, [](const Fuente& f, const Bloques& b) {
         return f.n.Con(b.lamina / ((b.hasta - b.desde + 1) * b.minutos) * 60, 2); }},
});
// clang-format on

std::vector<Tabla> Lluvia(const Fuente& f)
{
    const std::vector<Bloques> bloques = BloquesDe(f);
    Tabla t = TablaDe<Bloques>(f, "Hietograma de la tormenta", std::span(DeLluvia), bloques);
    if (!bloques.empty() && bloques.front().hasta > 1)
        t.nota = "Cada renglón reúne " + std::to_string(bloques.front().hasta) + " bloques de la tormenta.";
    return Sola(std::move(t));
}

std::vector<Tabla> LluviaPorUEH(const Fuente& f)
{
    Tabla t{.titulo = "Lámina de lluvia de cada UEH",
            .columnas = {Encabezado("UEH", "", true), Encabezado("Lámina", "mm", false)}};
    if (f.una == nullptr) return {};
    const auto& P = f.una->calculo.Tormenta.PpUEH;
    for (const ComponenteCorrido& c : f.una->corrido->componentes)
        if (c.ueh != nullptr && c.fila >= 1 && c.fila <= P.Tope())
            t.filas.push_back({std::string(c.nombre), f.n.Escrita(P(c.fila))});
    return Sola(std::move(t));
}

// --- results ---

using DelComponente = const ComponenteCorrido*;

// clang-format off
constexpr auto DePicos = std::to_array<ColumnaDe<DelComponente>>({
    {"Componente", "", true, [](const Fuente&, const DelComponente& c) { return c == nullptr ? "Cuenca" : std::string(c->nombre); }},
    {"Área", "km2", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Área", "km2"); }},
    {"Q_{p} entra", "m3/s", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Qp entra", "m3/s"); }},
    {"Q_{p} sale", "m3/s", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Qp sale", "m3/s"); }},
    {"t_{p} sale", "min", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "tp sale", "min"); }},
    {"V sale", "m3", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "V sale", "m3"); }},
    {"q esp.", "m3/s/km2", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "q esp.", "m3/s/km2"); }},
    {"Coef. escorr.", "%", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Coef. escorr.", "%"); }},
});
// clang-format on

std::vector<Tabla> Picos(const Fuente& f)
{
    if (f.una == nullptr) return {};
    std::vector<DelComponente> todos = EnOrden(f.d);
    todos.push_back(nullptr);
    Tabla t = TablaDe<DelComponente>(f, "Resultados de la tormenta", std::span(DePicos), todos);
    t.nota = f.NotaDeVejez();
    return Sola(std::move(t));
}

// clang-format off
constexpr auto DeBalance = std::to_array<ColumnaDe<RenglonBalance>>({
    {"Componente", "", true, [](const Fuente&, const RenglonBalance& b) { return b.componente.empty() ? "Cuenca" : std::string(b.componente); }},
    {"Entra", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.entra, 0); }},
    {"Sale", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.sale, 0); }},
    {"Se pierde", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.perdido, 0); }},
    {"Queda", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.almacenado, 0); }},
    {"Corta el final", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.cortado, 0); }},
    {"Error", "m3", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.Error(), 0); }},
    {"Error", "%", false, [](const Fuente& f, const RenglonBalance& b) { return f.n.Con(b.PorCiento(), 3); }},
});
// clang-format on

std::vector<Tabla> Balances(const Fuente& f)
{
    if (f.una == nullptr) return {};
    std::vector<RenglonBalance> todos = f.una->balance->componentes;
    todos.push_back(f.una->balance->cuenca);
    Tabla t = TablaDe<RenglonBalance>(f, "Balance de agua", std::span(DeBalance), todos);
    t.nota = f.NotaDeVejez();
    return Sola(std::move(t));
}

// --- Represas and Lagos ---

/// Output step at which the water stands highest, the first of them.
int PasoDelMaximo(const Fuente& f, const ComponenteCorrido& c)
{
    const float* const H = c.embalse->H.Fila(c.embalse->tablas.numero);
    const int desde = c.embalse->metodo == checks::MetodoEmbalse::Muskingum ? 1 : 0;
    return static_cast<int>(std::max_element(H + desde, H + f.una->corrido->UltimoPaso() + 1) - H);
}

std::string MinutoDelMaximo(const Fuente& f, const DelComponente& c)
{
    return f.ConAlturas(*c) ? f.n.Con(PasoDelMaximo(f, *c) * f.una->corrido->Segundos() / 60, 0) : "-";
}

std::string MayorAlmacenamiento(const Fuente& f, const DelComponente& c)
{
    const auto H = f.DelResumen(c, "H máx", "m");
    return H ? f.n.Con(c->embalse->Almacenamiento(static_cast<float>(*H)), 0) : "-";
}

/// Part of the inflow's peak that the storage takes away [%].
std::string Laminacion(const Fuente& f, const DelComponente& c)
{
    const auto entra = f.DelResumen(c, "Qp entra", "m3/s"), sale = f.DelResumen(c, "Qp sale", "m3/s");
    return entra && sale && *entra > 0 ? f.n.Con(100 * (1 - *sale / *entra), 1) : "-";
}

std::string Tope(const Fuente& f, const DelComponente& c)
{
    const auto tope = checks::TopeDescrito(*c->embalse);
    return tope ? f.n.Con(*tope, 2) : "-";
}

// clang-format off
constexpr auto DeEmbalses = std::to_array<ColumnaDe<DelComponente>>({
    {"Componente", "", true, [](const Fuente&, const DelComponente& c) { return std::string(c->nombre); }},
    {"H inicial", "m", false, [](const Fuente& f, const DelComponente& c) { return f.n.Con(c->embalse->HInicial, 2); }},
    {"H máx", "m", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "H máx", "m"); }},
    {"t(H máx)", "min", false, MinutoDelMaximo},
    {"S máx", "m3", false, MayorAlmacenamiento},
    {"Tope", "m", false, Tope},
    {"Revancha", "m", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Revancha", "m"); }},
    {"Q_{p} entra", "m3/s", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Qp entra", "m3/s"); }},
    {"Q_{p} sale", "m3/s", false, [](const Fuente& f, const DelComponente& c) { return f.CeldaDelResumen(c, "Qp sale", "m3/s"); }},
    {"Laminación", "%", false, Laminacion},
});
// clang-format on

std::vector<Tabla> Embalses(const Fuente& f)
{
    Tabla t = TablaDe<DelComponente>(f, "Niveles y laminación de represas y lagos", std::span(DeEmbalses),
                                     f.Embalses());
    t.nota =
        "Tope: el de la tabla de alturas o, si es más bajo, el de la descarga. Revancha: tope menos H máx; "
        "bajo cero, "
        "el agua no cabe en lo descripto.";
    if (const std::string vejez = f.NotaDeVejez(); !vejez.empty()) t.nota += " " + vejez;
    return Sola(std::move(t));
}

// --- notices ---

// clang-format off
constexpr auto DeAvisos = std::to_array<ColumnaDe<Hallazgo>>({
    {"Gravedad", "", true, [](const Fuente&, const Hallazgo& h) { return std::string(checks::Nombre(h.gravedad)); }},
    {"Componente", "", true, [](const Fuente&, const Hallazgo& h) { return ONada(h.componente); }},
    {"Qué", "", true, [](const Fuente& f, const Hallazgo& h) { return f.n.EnTexto(h.que); }},
    {"Cuánto", "", true, [](const Fuente& f, const Hallazgo& h) { return f.n.EnTexto(ONada(h.cuanto)); }},
    {"Qué hacer", "", true, [](const Fuente& f, const Hallazgo& h) { return f.n.EnTexto(ONada(h.remedio)); }},
});
// clang-format on

std::vector<Tabla> Avisos(const Fuente& f)
{
    if (f.d.tormenta == nullptr) return {};
    return Sola(TablaDe<Hallazgo>(f, "Avisos de la corrida", std::span(DeAvisos), f.d.tormenta->avisos));
}

std::vector<Tabla> AvisosDeSerie(const Fuente& f)
{
    if (f.d.serie == nullptr) return {};
    return Sola(TablaDe<Hallazgo>(f, "Avisos de la serie", std::span(DeAvisos), f.d.serie->avisos));
}

// --- formulas ---

/// The model's peak at the outfall [m3/s]; 0: there is none.
double PicoDelModelo(const Fuente& f)
{
    return f.salida == nullptr ? 0 : f.DelResumen(f.salida, "Qp sale", "m3/s").value_or(0);
}

double SuperficieDeSalida(const Fuente& f)
{
    return f.salida == nullptr ? f.AreaDeCuenca() : f.DelResumen(f.salida, "Área", "km2").value_or(0);
}

/// Exponents in brackets where they need them: "S^(1/2)".
std::string EnRenglon(const Fuente& f, std::string_view expresion)
{
    std::string t(expresion);
    for (std::size_t i = t.find("^{"); i != std::string::npos; i = t.find("^{", i)) {
        const std::size_t fin = std::min(t.find('}', i), t.size() - 1);
        t[i + 1] = '(';
        t[fin] = ')';
    }
    return f.n.EnTexto(t);
}

/// A caption that goes on from the one above it, by itself.
std::string NombreDeFormula(std::string_view leyenda)
{
    const std::size_t desde = std::min(leyenda.find_first_not_of(' '), leyenda.size());
    return (desde > 0 ? "Myer, " : "") + std::string(leyenda.substr(desde));
}

/// Above that no flow of a river means anything [m3/s].
constexpr double SinSentido = 1e6;

std::vector<Tabla> Empiricas(const Fuente& f)
{
    const double S = SuperficieDeSalida(f), modelo = PicoDelModelo(f);
    if (S <= 0) return {};
    Tabla t{.titulo = "Fórmulas empíricas de caudal máximo, con S = " + f.n.Con(S, 3) + " km²",
            .columnas = {Encabezado("Fórmula", "", true), Encabezado("Expresión", "", true),
                         Encabezado("Q_{p}", "m3/s", false), Encabezado("Sobre el modelo", "%", false)}};
    for (const empirical::FormulaQp& q : empirical::FormulasQp()) {
        double Q = 0;
        const bool hay = q.Vale(S) && model::Sentencia([&] { Q = q.caudal(S); }) && Q < SinSentido;
        t.filas.push_back({NombreDeFormula(q.leyenda), EnRenglon(f, q.expresion),
                           hay ? f.n.Con(Q, 1) : "no vale",
                           hay && modelo > 0 ? f.n.Con(100 * Q / modelo, 0) : "-"});
    }
    t.nota =
        "S: superficie, en km². Son fórmulas de otras regiones y sirven para comparar órdenes de magnitud.";
    if (modelo > 0)
        t.nota += " Caudal máximo del modelo en " + std::string(f.salida->nombre) + ": " +
                  f.CeldaDelResumen(f.salida, "Qp sale", "m3/s") + " m³/s.";
    return {std::move(t)};
}

std::vector<Tabla> Concentracion(const Fuente& f)
{
    if (!f.e.tc) return {};
    empirical::DatosTc datos = *f.e.tc;
    if (datos.S <= 0) datos.S = SuperficieDeSalida(f);
    Tabla t{.titulo = "Tiempos de concentración",
            .columnas = {Encabezado("Fórmula", "", true), Encabezado("Expresión", "", true),
                         Encabezado("T_{c}", "min", false)},
            .nota = "S = " + f.n.Con(datos.S, 3) + " km², L = " + f.n.Corta(datos.L) +
                    " km, H = " + f.n.Corta(datos.H) + " m, i = " + f.n.Corta(datos.i) + " %."};
    for (const empirical::FormulaTc& q : empirical::FormulasTc()) {
        double minutos = 0;
        const bool hay = (!q.pidePendiente || datos.i > 0) &&
                         model::Sentencia([&] { minutos = q.tiempo(datos); }) && minutos > 0;
        t.filas.push_back(
            {std::string(q.leyenda), EnRenglon(f, q.expresion), hay ? f.n.Con(minutos, 1) : "no vale"});
    }
    return {std::move(t)};
}

// --- verification ---

using checks::Caso;
// clang-format off
constexpr auto DeCasos = std::to_array<ColumnaDe<Caso>>({
    {"Caso", "", true, [](const Fuente&, const Caso& c) { return std::string(c.nombre); }},
    {"Se compara", "", true, [](const Fuente& f, const Caso& c) { return f.n.EnTexto(c.magnitud); }},
    {"Fuente", "", false, [](const Fuente& f, const Caso& c) { return f.n.Corta(c.impreso); }},
    {"Programa", "", false, [](const Fuente& f, const Caso& c) { return f.n.Corta(c.nuestro); }},
    {"Tolerancia", "", false, [](const Fuente& f, const Caso& c) { return f.n.Corta(c.tolerancia); }},
    {"Estado", "", true, [](const Fuente&, const Caso& c) { return std::string(c.Fuera() ? "FUERA" : "bien"); }},
});
// clang-format on

std::vector<Tabla> Verificacion(const Fuente& f)
{
    return Sola(
        TablaDe<Caso>(f, "Casos publicados, corridos con el programa", std::span(DeCasos), f.d.casos));
}

constexpr auto Filas = std::to_array<FilaDeTabla>({
    {"lluvia", "el hietograma: lámina e intensidad de cada bloque", "No hay una tormenta corrida.", Lluvia},
    {"lluvia_uehs", "la lámina de lluvia de cada UEH", "No hay una tormenta corrida.", LluviaPorUEH},
    {"resultados", "caudales máximos, tiempos y volúmenes de todos los componentes y de la cuenca",
     "No hay resultados de una tormenta.", Picos},
    {"balance", "el balance de agua de cada componente y de la cuenca", "No hay un balance de agua.",
     Balances},
    {"embalses", "de cada represa y cada lago, niveles, revancha, caudal laminado",
     "No hay represas ni lagos con resultados.", Embalses},
    {"avisos", "los avisos de la corrida de la tormenta", "La corrida no dio avisos.", Avisos},
    {"avisos_serie", "los avisos de la serie", "La serie no dio avisos.", AvisosDeSerie},
    {"empiricas", "las fórmulas empíricas de caudal máximo, junto al modelo",
     "La cuenca no tiene superficie.", Empiricas},
    {"concentracion", "los tiempos de concentración, si se dieron sus datos",
     "No se dieron los datos de los tiempos de concentración.", Concentracion},
    {"verificacion", "los casos publicados, corridos", "No se corrieron los casos publicados.", Verificacion},
});

}  // namespace

std::span<const FilaDeTabla> TablasDeCorrida()
{
    return Filas;
}

}  // namespace report
