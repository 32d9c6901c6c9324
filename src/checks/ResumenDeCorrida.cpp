// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/ResumenDeCorrida.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>

#include "checks/AvisosDeCorrida.h"
#include "checks/Rebose.h"
#include "engine/Totales.h"
#include "hydraulics/mdlFQs.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

namespace {

using Celda = std::optional<double>;

constexpr double HectareasPorKm2 = 100;
constexpr std::string_view NombreDeLaCuenca = "Cuenca";
constexpr int BalanceDelComponente = 105, BalanceDeLaCuenca = 106;  // findings

/// Steps that the Slate sums and seeks the peak in: pools have theirs from the beginning of the storm on.
engine::Tramo TramoDe(const Corrido& c, const ComponenteCorrido& comp)
{
    return {comp.embalse ? 0 : 1, c.UltimoPaso()};
}

// --- peaks ---

struct Pico {
    double caudal = 0;  ///< [m3/s]
    int paso = -1;      ///< output step; -1: no flow is above 0
};

std::optional<Pico> PicoDe(const Corrido& c, const model::Matriz<float>& Q, const ComponenteCorrido& comp)
{
    const engine::Tramo tramo = TramoDe(c, comp);
    const float* q = Q.Fila(comp.fila);
    const float mayor = engine::Mayor(q, tramo.desde, tramo.hasta);
    const auto paso = static_cast<int>(std::find(q + tramo.desde, q + tramo.hasta + 1, mayor) - q);
    return Pico{double{mayor}, paso > tramo.hasta ? -1 : paso};
}

std::optional<Pico> PicoDeEntrada(const DeQuien& d)
{
    if (d.comp == nullptr || d.comp->ueh != nullptr || d.fila == 0) return {};
    return PicoDe(*d.u.corrido, d.u.r().QEntra, *d.comp);
}

/// That of all outfalls together.
std::optional<Pico> PicoDeLaCuenca(const DeQuien& d)
{
    if (d.salidas.empty()) return {};
    if (d.salidas.size() == 1) return PicoDe(*d.u.corrido, d.u.r().QSale, *d.salidas.front());
    Pico mayor;
    for (int p = 1; p <= d.u.corrido->UltimoPaso(); ++p) {
        double suma = 0;
        for (const ComponenteCorrido* const salida : d.salidas)
            suma += d.u.r().QSale(salida->fila, p);
        if (suma > mayor.caudal) mayor = {suma, p};
    }
    return mayor;
}

std::optional<Pico> PicoDeSalida(const DeQuien& d)
{
    if (d.comp == nullptr) return PicoDeLaCuenca(d);
    if (d.fila == 0) return {};
    return PicoDe(*d.u.corrido, d.u.r().QSale, *d.comp);
}

Celda Caudal(const std::optional<Pico>& pico)
{
    return pico ? Celda(pico->caudal) : Celda();
}

/// A flow that never rises above 0 has no time of its peak.
Celda Minuto(const DeQuien& d, const std::optional<Pico>& pico)
{
    if (!pico || pico->paso < 0 || pico->caudal == 0) return {};
    return pico->paso * d.u.corrido->Segundos() / 60;
}

// --- volumes ---

Celda VolumenQueEntra(const DeQuien& d)
{
    if (d.comp == nullptr || d.comp->ueh != nullptr || d.fila == 0) return {};
    return VolumenDeResumen(*d.u.corrido, d.u.r().QEntra, *d.comp);
}

Celda VolumenQueSale(const DeQuien& d)
{
    if (d.comp != nullptr)
        return d.fila == 0 ? Celda() : VolumenDeResumen(*d.u.corrido, d.u.r().QSale, *d.comp);
    if (d.salidas.empty()) return {};
    double suma = 0;
    for (const ComponenteCorrido* const salida : d.salidas)
        suma += VolumenDeResumen(*d.u.corrido, d.u.r().QSale, *salida);
    return suma;
}

Celda ErrorDeBalance(const DeQuien& d)
{
    if (d.comp != nullptr && d.fila == 0) return {};
    return d.balance->Error();
}

/// A share of nothing is none.
Celda ErrorPorCiento(const DeQuien& d)
{
    if (d.comp != nullptr && d.fila == 0) return {};
    if (std::max(d.balance->entra, d.balance->sale) <= 0) return {};
    return d.balance->PorCiento();
}

// --- heights ---

/// A pool that has a table and whose method leaves heights.
const EmbalseCorrido* ConAlturas(const DeQuien& d)
{
    if (d.comp == nullptr || !d.comp->embalse || d.fila == 0) return nullptr;
    const EmbalseCorrido& e = *d.comp->embalse;
    const bool hay = e.metodo != MetodoEmbalse::Ninguno && e.TieneTabla() &&
                     e.H.Alcanza(e.tablas.numero, d.u.corrido->UltimoPaso());
    return hay ? &e : nullptr;
}

/// Muskingum's method has no height at step 0.
Celda AlturaMaxima(const DeQuien& d)
{
    const EmbalseCorrido* const e = ConAlturas(d);
    if (e == nullptr) return {};
    const float* H = e->H.Fila(e->tablas.numero);
    const int desde = e->metodo == MetodoEmbalse::Muskingum ? 1 : 0;
    return *std::max_element(H + desde, H + d.u.corrido->UltimoPaso() + 1);
}

/// Whether more flows out, by Muskingum's method, than the outflow of a height gives: how high the water
/// stands isn't known then.
bool SinAlturaQueValga(const DeQuien& d, const EmbalseCorrido& e, double tope)
{
    constexpr double Holgura = 1e-3;
    if (e.metodo != MetodoEmbalse::Muskingum) return false;
    const double mayor = e.Descarga(static_cast<float>(tope));
    return PicoDeSalida(d)->caudal > mayor * (1 + Holgura);
}

/// Water that the table doesn't hold stands above its top, though a level pool doesn't show it.
Celda Revancha(const DeQuien& d)
{
    const EmbalseCorrido* const e = ConAlturas(d);
    if (e == nullptr) return {};
    const Celda tope = TopeDescrito(*e);
    if (!tope || SinAlturaQueValga(d, *e, *tope)) return {};
    const double libre = *tope - *AlturaMaxima(d);
    const auto rebose = ReboseDe(*d.u.corrido, *d.comp, Valor(Umbral::AlturaDeTope));
    return rebose ? std::min(libre, *tope - e->Tope() - rebose->altura) : libre;
}

// --- by area, by rain ---

Celda AreaDrenada(const DeQuien& d)
{
    return d.area > 0 ? Celda(d.area) : Celda();
}

Celda CaudalEspecifico(const DeQuien& d)
{
    const auto pico = PicoDeSalida(d);
    if (!pico || d.area <= 0) return {};
    return pico->caudal / d.area;
}

/// Where it hasn't rained, or on nothing, there is none.
Celda Coeficiente(const DeQuien& d)
{
    const model::Tormenta& t = d.u.calculo.Tormenta;
    const auto llueve = [&](int fila) { return fila >= 1 && fila <= t.PpUEH.Tope() && t.PpUEH(fila) > 0; };
    if (d.comp == nullptr) {
        bool algo = false;
        for (const ComponenteCorrido& c : d.u.corrido->componentes)
            algo = algo || (c.ueh != nullptr && c.ueh->Area > 0 && llueve(c.fila));
        return algo && d.u.r().CoefEscTotal.Tope() >= 1 ? Celda(d.u.r().CoefEscTotal(1)) : Celda();
    }
    if (d.comp->ueh == nullptr || d.comp->ueh->Area <= 0 || !llueve(d.fila)) return {};
    return d.fila <= d.u.r().CoefUEH.Tope() ? Celda(d.u.r().CoefUEH(d.fila)) : Celda();
}

// --- series ---

Celda DeTormenta(const DeQuien& d, auto&& lee)
{
    return d.tormenta > 0 ? Celda(lee(d.u.serie, d.tormenta)) : Celda();
}

Celda CoeficienteDeSerie(const DeQuien& d)
{
    const auto& C = d.u.r().CoefEscUEH;
    if (d.tormenta == 0 || d.fila > d.u.red.NroUEHs() || !C.Alcanza(d.fila, d.tormenta)) return {};
    return C(d.fila, d.tormenta);
}

// --- what is red ---

bool Descuadra(const DeQuien& d, double /*valor*/)
{
    const int regla = d.nombre.empty() ? BalanceDeLaCuenca : BalanceDelComponente;
    return std::any_of(d.u.avisos.begin(), d.u.avisos.end(),
                       [&](const Hallazgo& h) { return h.numero == regla && h.componente == d.nombre; });
}

bool BajoCero(const DeQuien& /*d*/, double valor)
{
    return valor < 0;
}

// clang-format off
constexpr auto DeUnaTormenta = std::to_array<ColumnaDeResumen>({
    {"Qp entra", "m3/s", "Caudal máximo que entra", 3, false,
     [](const DeQuien& d) { return Caudal(PicoDeEntrada(d)); }},
    {"Qp sale", "m3/s", "Caudal máximo que sale; de la cuenca, el de todas sus salidas juntas", 3, false,
     [](const DeQuien& d) { return Caudal(PicoDeSalida(d)); }},
    {"tp entra", "min", "Minutos desde el comienzo de la tormenta hasta el caudal máximo que entra", 0, true,
     [](const DeQuien& d) { return Minuto(d, PicoDeEntrada(d)); }},
    {"tp sale", "min", "Minutos desde el comienzo de la tormenta hasta el caudal máximo que sale", 0, true,
     [](const DeQuien& d) { return Minuto(d, PicoDeSalida(d)); }},
    {"V entra", "m3", "Volumen que entra: suma de Q·paso·60, como en la Pizarra", 0, false, VolumenQueEntra},
    {"V sale", "m3", "Volumen que sale: suma de Q·paso·60, como en la Pizarra; de la cuenca, el de todas sus salidas", 0, false, VolumenQueSale},
    {"Error", "m3", "Error de balance: lo que entra menos lo que sale, se pierde, se almacena o corta el final; en rojo si el balance no cierra", 0, true, ErrorDeBalance, Descuadra},
    {"Error", "%", "El mismo, de lo que entra o, si es más, de lo que sale", 3, true, ErrorPorCiento, Descuadra},
    {"H máx", "m", "Altura mayor del agua", 2, true, AlturaMaxima},
    {"Revancha", "m", "Tope de la tabla de alturas o, si es más bajo, de la descarga, menos H máx; bajo 0, en rojo, el agua que no cabe", 2, true, Revancha, BajoCero},
    {"Área", "km2", "Área drenada: suma de las UEHs que drenan por el componente; de la cuenca, todas", 3, false, AreaDrenada},
    {"q esp.", "m3/s/km2", "Caudal específico: caudal máximo que sale dividido por el área drenada", 3, false, CaudalEspecifico},
    {"Coef. escorr.", "%", "Lo que escurre sin caudal base, de lo que llueve; de las UEHs y de la cuenca", 2, false, Coeficiente},
});

constexpr auto DeSerie = std::to_array<ColumnaDeResumen>({
    {"Qp", "m3/s", "El mayor de los caudales máximos de la serie", 3, false,
     [](const DeQuien& d) { return d.tormenta > 0 ? Celda(d.u.r().QMax(d.fila, d.tormenta)) : Celda(); }},
    {"Tormenta", "Nro.", "La tormenta de la serie que lo da", 0, true,
     [](const DeQuien& d) { return d.tormenta > 0 ? Celda(d.tormenta) : Celda(); }},
    {"P", "mm", "Lámina de esa tormenta", 1, true,
     [](const DeQuien& d) { return DeTormenta(d, [](const model::Serie& s, int n) { return double{s.SerieP(n)}; }); }},
    {"D", "min", "Duración de esa tormenta", 0, true,
     [](const DeQuien& d) { return DeTormenta(d, [](const model::Serie& s, int n) { return double{1} * s.SerieD(n); }); }},
    {"R", "años", "Recurrencia de esa tormenta", 0, true,
     [](const DeQuien& d) { return DeTormenta(d, [](const model::Serie& s, int n) { return double{1} * s.SerieR(n); }); }},
    {"Coef. escorr.", "%", "Coeficiente de escorrentía de esa tormenta; de las UEHs", 2, false, CoeficienteDeSerie},
});
// clang-format on

std::string Encabezado(const ColumnaDeResumen& c)
{
    return std::string(c.titulo) + " [" + std::string(c.unidad) + "]";
}

std::string Formato(const ColumnaDeResumen& c)
{
    return c.decimales == 0 ? "#,##0" : "0." + std::string(static_cast<std::size_t>(c.decimales), '0');
}

void PonColumnas(Resumen& resumen, bool serie)
{
    resumen.planilla.columnas.push_back({"Componente", true, {}});
    for (const ColumnaDeResumen& c : ColumnasDeResumen(serie))
        resumen.planilla.columnas.push_back({Encabezado(c), false, Formato(c)});
}

/// Components whose hydrographs are those of a row; a series keeps none.
std::vector<std::string> HidrogramasDe(const DeQuien& d)
{
    if (d.u.esSerie) return {};
    if (d.comp != nullptr) return d.fila > 0 ? std::vector{d.nombre} : std::vector<std::string>{};
    std::vector<std::string> salidas;
    for (const ComponenteCorrido* const salida : d.salidas)
        salidas.emplace_back(salida->nombre);
    return salidas;
}

void AgregaFila(Resumen& resumen, const DeQuien& d)
{
    std::vector<std::string>& celdas = resumen.planilla.filas.emplace_back();
    std::vector<bool>& rojas = resumen.rojas.emplace_back(1, false);
    celdas.push_back(d.nombre.empty() ? std::string(NombreDeLaCuenca) : d.nombre);
    for (const ColumnaDeResumen& c : ColumnasDeResumen(d.u.esSerie)) {
        const Celda valor = c.valor(d);
        celdas.push_back(valor ? CifraDeResumen(*valor, c.decimales, c.conCero) : std::string());
        rojas.push_back(valor && c.roja != nullptr && c.roja(d, *valor));
    }
    resumen.nombres.push_back(d.nombre);
    resumen.hidrogramas.push_back(HidrogramasDe(d));
}

std::vector<DeQuien> DeLaTormenta(const UltimaCorrida& u)
{
    const Corrido& c = *u.corrido;
    const std::vector<double> areas = AreasDrenadas(c);
    std::vector<std::size_t> orden(c.componentes.size());
    for (std::size_t i = 0; i < orden.size(); ++i)
        orden[i] = i;
    const auto lugar = [&](std::size_t i) {
        return c.componentes[i].fila > 0 ? c.componentes[i].fila : std::numeric_limits<int>::max();
    };
    std::stable_sort(orden.begin(), orden.end(),
                     [&](std::size_t a, std::size_t b) { return lugar(a) < lugar(b); });

    std::vector<DeQuien> filas;
    DeQuien cuenca{.u = u, .balance = &u.balance->cuenca};
    for (const std::size_t i : orden) {
        const ComponenteCorrido& comp = c.componentes[i];
        if (comp.ueh != nullptr) cuenca.area += comp.ueh->Area / HectareasPorKm2;
        if (comp.fila > 0 && c.EsSalida(comp)) cuenca.salidas.push_back(&comp);
        filas.push_back({.u = u,
                         .nombre = std::string(comp.nombre),
                         .fila = comp.fila,
                         .comp = &comp,
                         .balance = &u.balance->componentes[i],
                         .area = areas[i]});
    }
    filas.push_back(cuenca);
    return filas;
}

/// Storm of the greatest peak of a row, the first of equal ones; 0 where there is none above 0.
int TormentaMayor(const UltimaCorrida& u, int fila)
{
    int mayor = 0;
    for (int n = 1; n <= u.serie.NroSeriePDR && u.r().QMax.Alcanza(fila, n); ++n)
        if (u.r().QMax(fila, n) > (mayor > 0 ? u.r().QMax(fila, mayor) : 0.0F)) mayor = n;
    return mayor;
}

/// The basin's peak is that of its outfall, where it has one alone.
std::vector<DeQuien> DeLaSerie(const UltimaCorrida& u)
{
    const model::Resultados& r = u.r();
    std::vector<DeQuien> filas;
    int salida = 0;
    for (int fila = 1; fila <= r.NroComponentes && fila < static_cast<int>(r.Secuencia.size()); ++fila) {
        const std::string& nombre = r.Secuencia[static_cast<std::size_t>(fila)];
        if (r.NroSalidas == 1 && nombre == r.Salidas[1]) salida = fila;
        filas.push_back({.u = u, .nombre = nombre, .fila = fila, .tormenta = TormentaMayor(u, fila)});
    }
    if (salida > 0) filas.push_back({.u = u, .fila = salida, .tormenta = TormentaMayor(u, salida)});
    return filas;
}

}  // namespace

std::span<const ColumnaDeResumen> ColumnasDeResumen(bool serie)
{
    if (serie) return DeSerie;
    return DeUnaTormenta;
}

std::vector<DeQuien> FilasDeResumen(const UltimaCorrida& u)
{
    if (u.esSerie) return DeLaSerie(u);
    return u.balance ? DeLaTormenta(u) : std::vector<DeQuien>{};
}

Resumen ResumenDe(const UltimaCorrida& u)
{
    Resumen resumen;
    PonColumnas(resumen, u.esSerie);
    for (const DeQuien& d : FilasDeResumen(u))
        AgregaFila(resumen, d);
    return resumen;
}

std::optional<double> AlmacenamientoMaximo(const DeQuien& d)
{
    const EmbalseCorrido* const e = ConAlturas(d);
    if (e == nullptr || !e->S.Alcanza(e->tablas.numero, d.u.corrido->UltimoPaso())) return {};
    const float* S = e->S.Fila(e->tablas.numero);
    const int desde = e->metodo == MetodoEmbalse::Muskingum ? 1 : 0;
    return *std::max_element(S + desde, S + d.u.corrido->UltimoPaso() + 1);
}

std::string CifraDeResumen(double x, int decimales, bool conCero)
{
    const double redondo = model::Redondea(x, decimales);
    if (redondo == 0 && x != 0 && !conCero) {
        constexpr int Cifras = 2;
        std::array<char, 32> corto{};
        const auto fin =
            std::to_chars(corto.data(), corto.data() + corto.size(), x, std::chars_format::general, Cifras);
        return {corto.data(), fin.ptr};
    }
    std::array<char, 400> texto{};
    const double sinSigno = redondo == 0 ? 0 : redondo;  // of a negative zero
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), sinSigno,
                                   std::chars_format::fixed, decimales);
    return {texto.data(), fin.ptr};
}

double VolumenDeResumen(const Corrido& c, const model::Matriz<float>& Q, const ComponenteCorrido& comp)
{
    const std::array<const float*, 1> fila{Q.Fila(comp.fila)};
    std::array<float, 1> volumen{};
    engine::SumaVolumenes(fila, TramoDe(c, comp), c.pasos.PasoQ, volumen);
    return double{volumen[0]};
}

std::vector<double> AreasDrenadas(const Corrido& c)
{
    const auto& todos = c.componentes;
    std::vector<double> areas(todos.size());
    const auto receptor = [&](std::string_view destino) {
        if (!model::EsDestino(destino)) return todos.size();
        return static_cast<std::size_t>(std::find_if(todos.begin(), todos.end(),
                                                     [&](const ComponenteCorrido& r) {
                                                         return r.ueh == nullptr && r.nombre == destino;
                                                     }) -
                                        todos.begin());
    };
    std::vector<std::size_t> abajo;
    abajo.reserve(todos.size());
    for (const ComponenteCorrido& comp : todos)
        abajo.push_back(receptor(comp.destino));
    for (std::size_t i = 0; i < todos.size(); ++i) {
        if (todos[i].ueh == nullptr) continue;
        std::set<std::size_t> vistos;
        for (std::size_t k = i; k < todos.size() && vistos.insert(k).second; k = abajo[k])
            areas[k] += todos[i].ueh->Area / HectareasPorKm2;
    }
    return areas;
}

std::optional<double> TopeDescrito(const EmbalseCorrido& e)
{
    if (!e.TieneTabla()) return {};
    double tope = double{e.Tope()};
    std::optional<hydraulics::RangoAlturas> rango;
    model::Sentencia([&] { rango = hydraulics::RangoDescarga(e.tablas); });
    if (rango && rango->maximo > rango->minimo) tope = std::min(tope, double{rango->maximo});
    return tope;
}

}  // namespace checks
