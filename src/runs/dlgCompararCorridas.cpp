// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCompararCorridas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <set>
#include <utility>

#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "runs/EscribeComparacion.h"
#include "runs/LibroDeCorridas.h"

namespace runs {

using model::NumeroATexto;
using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

namespace {

constexpr std::size_t MaxGuardadas = 200;  // in the list, the newest: the ledger's own window has them all
constexpr std::size_t MaxCurvas = 12;      // on one chart: more can't be told apart
constexpr std::size_t CurvasDeSerie = 6;   // as many as leave the legend room beside the table
constexpr std::int16_t PorBloques = 7;     // the temporal distribution that a recorded storm is run with
constexpr std::string_view DeOtro = "Otro proyecto...", LaUltima = "La última corrida",
                           EnMano = "La tormenta en mano", VariasRecurrencias = "Varias";

std::string ProyectoDe(const std::string& conf)
{
    const std::string archivo = conf.substr(conf.find_last_of("/\\") + 1);
    return archivo.substr(0, archivo.size() - std::min(archivo.size(), model::TerminacionConf.size()));
}

Libro LibroDe(const model::Siro& s)
{
    return {.dirProyecto = s.Proyecto.DirProyecto, .proyecto = s.Proyecto.NombreProyecto};
}

void ListaOrigenes(dlgCompararCorridas& f, const model::Siro& s, bool hayUltima)
{
    f.origenes.clear();
    std::vector<std::string> items;
    const auto agrega = [&](Origen origen, std::string item) {
        f.origenes.push_back(std::move(origen));
        items.push_back(std::move(item));
    };
    if (hayUltima) agrega({Origen::Clase::Ultima, "", std::string(LaUltima)}, std::string(LaUltima));
    if (!s.Proyecto.NombreProyecto.empty()) {
        const std::string conf =
            model::Ruta(s.Proyecto.DirProyecto, model::ArchivoConf(s.Proyecto.NombreProyecto));
        agrega({Origen::Clase::Proyecto, conf, s.Proyecto.NombreProyecto},
               "El proyecto " + s.Proyecto.NombreProyecto + ", como está guardado");
    }
    agrega({Origen::Clase::Proyecto, "", ""}, std::string(DeOtro));
    std::vector<RenglonDeLibro> guardadas;
    if (!s.Proyecto.NombreProyecto.empty()) model::Sentencia([&] { guardadas = ListaDe(LibroDe(s)); });
    for (const RenglonDeLibro& r : guardadas) {
        if (items.size() > MaxGuardadas) break;
        if (!r.reparo.empty() || (r.ficha.clase != "una" && r.ficha.clase != "serie")) continue;
        const std::string nombre = r.ficha.nombre.empty() ? r.ficha.cuando : r.ficha.nombre;
        agrega({Origen::Clase::Guardada, r.archivo, nombre},
               "Guardada: " + nombre + " (" + r.ficha.tormenta + ")");
    }
    f.cmbOrigen.PonItems(std::move(items));
    if (f.cmbOrigen.indice < 0) f.cmbOrigen.indice = 0;
}

/// Recorded storms of the folders that the compared projects lie in.
void ListaTormentas(dlgCompararCorridas& f, const model::Siro& s)
{
    std::set<std::string> carpetas{s.Proyecto.DirProyecto}, tormentas;
    for (const LadoElegido& l : f.lados)
        if (l.origen.clase == Origen::Clase::Proyecto)
            carpetas.insert(l.origen.archivo.substr(0, l.origen.archivo.find_last_of("/\\")));
    for (const std::string& carpeta : carpetas) {
        std::vector<std::string> archivos;
        if (!carpeta.empty()) model::Sentencia([&] { archivos = s.Disco.Lista(carpeta); });
        for (const std::string& archivo : archivos)
            if (archivo.ends_with(model::TerminacionTormenta)) tormentas.insert(archivo);
    }
    std::vector<std::string> items{std::string(EnMano)};
    items.insert(items.end(), tormentas.begin(), tormentas.end());
    f.cmbTormenta.PonItems(std::move(items));
    if (f.cmbTormenta.indice < 0) f.cmbTormenta.indice = 0;
}

/// Sets the storm that a project is run through.
std::function<void(model::Siro& s)> PonTormenta(const model::Siro& s, const std::string& registrada)
{
    if (!registrada.empty())
        return [registrada, pasoQ = s.Pasos.PasoQ](model::Siro& otra) {
            model::TormentaReal real;
            real.nombre = registrada;
            model::LeePpReal(otra, real);
            otra.Tormenta.FormaPp = model::FormaLluvia::Real;
            otra.Tormenta.DistriPp = PorBloques;
            otra.Pasos.PasoPp = real.PasoPpReal;
            otra.Pasos.PasoQ = std::min(pasoQ, real.PasoPpReal);
        };
    return [tormenta = s.Tormenta, pasos = s.Pasos, serie = s.Serie](model::Siro& otra) {
        otra.Tormenta = tormenta;
        otra.Pasos.PasoPp = pasos.PasoPp;
        otra.Pasos.PasoQ = pasos.PasoQ;
        otra.Serie = serie;
    };
}

// --- what is shown ---

/// The pair of the component that is chosen; none: null.
const Emparejado* Elegido(const dlgCompararCorridas& f)
{
    const auto i = static_cast<std::size_t>(f.lstCompos.indice);
    return f.lstCompos.indice >= 0 && i < f.comparacion.componentes.size() ? &f.comparacion.componentes[i]
                                                                           : nullptr;
}

std::string TormentaDe(const dlgCompararCorridas& f)
{
    if (f.corridos.empty()) return {};
    const std::string& primera = f.corridos.front().corrida->sello.tormenta;
    const bool igual =
        std::ranges::all_of(f.corridos, [&](const Lado& l) { return l.corrida->sello.tormenta == primera; });
    return igual ? primera : "tormentas distintas";
}

/// Below the component: the storm, and the day of the runs.
std::string BajoElTitulo(const dlgCompararCorridas& f)
{
    const std::string& cuando = f.corridos.front().corrida->cuando;
    return "\n" + TormentaDe(f) + ", " + cuando.substr(0, cuando.find(' '));
}

std::string Minutos(double minuto, bool enMinutos)
{
    constexpr double PorHora = 60;
    return NumeroATexto(enMinutos ? minuto : model::Redondea(minuto / PorHora, 2));
}

/// A ring and the side's name at the peak of a curve.
void MarcaPico(forms::Grafico& g, std::size_t serie)
{
    const std::vector<double>& celdas = g.series[serie].celdas;
    std::optional<std::size_t> pico;
    for (std::size_t i = 0; i < celdas.size(); ++i)
        if (celdas[i] > (pico ? celdas[*pico] : 0)) pico = i;
    if (pico) g.marcas.push_back({serie, *pico, g.series[serie].leyenda});
}

forms::Grafico GraficoDeHidrogramas(const dlgCompararCorridas& f, const Emparejado& e)
{
    forms::Grafico g{.tipo = forms::TipoGrafico::Linea};
    g.titulo = e.Nombre() + (f.chkEntra ? ", caudal que entra" : ", caudal que sale") + BajoElTitulo(f);
    g.magnitudX = "t";
    g.ejeX = f.minutos ? "minutos" : "horas";
    g.ejeY = "Caudal [m3/s]";
    g.leyendaVisible = g.muchasLineas = true;
    g.marcasEjeX = false;
    const Superpuestos s = runs::Hidrogramas(f.corridos, e, f.chkEntra);
    for (const double minuto : s.minutos) {
        g.categorias.push_back(Minutos(minuto, f.minutos));
        g.abscisas.push_back(f.minutos ? minuto : minuto / 60);
    }
    for (std::size_t k = 0; k < s.caudales.size() && k < MaxCurvas; ++k) {
        const auto hay = std::ranges::any_of(s.caudales[k], [](double q) { return !std::isnan(q); });
        if (!hay) continue;
        g.series.push_back({forms::TipoSerie::Linea2D, f.corridos[k].nombre, false, s.caudales[k]});
        MarcaPico(g, g.series.size() - 1);
    }
    return g;
}

std::vector<std::int16_t> RecurrenciasDe(const std::vector<PicoDeSerie>& picos)
{
    std::set<std::int16_t> todas;
    for (const PicoDeSerie& p : picos)
        todas.insert(p.R);
    return {todas.begin(), todas.end()};
}

/// As many as have room with all sides, spread evenly, the least and the greatest among them.
std::vector<std::int16_t> Repartidas(const std::vector<std::int16_t>& todas, std::size_t lados)
{
    const std::size_t caben = std::max<std::size_t>(1, CurvasDeSerie / std::max<std::size_t>(1, lados));
    if (todas.size() <= caben) return todas;
    if (caben == 1) return {todas.back()};
    std::vector<std::int16_t> algunas;
    for (std::size_t i = 0; i < caben; ++i)
        algunas.push_back(todas[i * (todas.size() - 1) / (caben - 1)]);
    return algunas;
}

forms::Grafico GraficoDeSerie(const dlgCompararCorridas& f, const Emparejado& e,
                              const std::vector<PicoDeSerie>& picos)
{
    forms::Grafico g{.tipo = forms::TipoGrafico::Linea};
    g.titulo = e.Nombre() + ", caudal máximo de la serie" + BajoElTitulo(f);
    g.ejeX = "Duración [min]";
    g.ejeY = "Caudal máximo [m3/s]";
    g.leyendaVisible = g.muchasLineas = true;
    std::vector<std::int16_t> recurrencias = RecurrenciasDe(picos);
    const int elegida = f.cmbRecurrencia.indice;
    if (elegida > 0 && static_cast<std::size_t>(elegida) <= recurrencias.size())
        recurrencias = {recurrencias[static_cast<std::size_t>(elegida) - 1]};
    else
        recurrencias = Repartidas(recurrencias, f.corridos.size());
    std::set<std::int16_t> duraciones;
    for (const PicoDeSerie& p : picos)
        duraciones.insert(p.D);
    for (const std::int16_t D : duraciones)
        g.categorias.push_back(NumeroATexto(D));
    for (const std::int16_t R : recurrencias)
        for (std::size_t k = 0; k < f.corridos.size(); ++k) {
            std::vector<double> celdas(duraciones.size(), forms::CeldaVacia);
            for (const PicoDeSerie& p : picos) {
                const auto lugar = std::distance(duraciones.begin(), duraciones.find(p.D));
                if (p.R == R && p.picos[k]) celdas[static_cast<std::size_t>(lugar)] = *p.picos[k];
            }
            if (std::ranges::all_of(celdas, forms::EstaVacia)) continue;
            g.series.push_back({forms::TipoSerie::Linea2D,
                                f.corridos[k].nombre + ", R " + NumeroATexto(R) + " años", false, celdas});
        }
    return g;
}

void MuestraComponente(dlgCompararCorridas& f)
{
    const Emparejado* const e = Elegido(f);
    f.tema = e == nullptr ? "" : e->Nombre() + ", " + TormentaDe(f);
    f.Hidrogramas = e == nullptr ? forms::Grafico{} : GraficoDeHidrogramas(f, *e);
    f.lblHidrograma = !f.Hidrogramas.series.empty() ? ""
                      : f.chkEntra ? "Ningún lado tiene el caudal que entra a ese componente."
                                   : "Ningún lado tiene el hidrograma de ese componente. Una serie no los "
                                     "guarda: para verlos corra una tormenta sola (F4, F5).";
    std::vector<PicoDeSerie> picos;
    if (e != nullptr) picos = PicosDeSerie(f.corridos, *e);
    std::vector<std::string> items{std::string(VariasRecurrencias)};
    for (const std::int16_t R : RecurrenciasDe(picos))
        items.push_back(NumeroATexto(R) + " años");
    f.cmbRecurrencia.PonItems(std::move(items));
    if (f.cmbRecurrencia.indice < 0) f.cmbRecurrencia.indice = 0;
    f.lblSerie =
        picos.empty()
            ? "Ningún lado es una serie: corra una (F4, F6), o agregue proyectos con una serie en mano."
            : "";
    f.Abaco = e == nullptr || picos.empty() ? forms::Grafico{} : GraficoDeSerie(f, *e, picos);
    forms::PonFilas(f.tblSerie, PlanillaDeSerie(f.comparacion, picos, e == nullptr ? "" : e->Nombre()));
}

/// A name for each side that no other one bears.
std::string NombreLibre(const dlgCompararCorridas& f, const std::string& nombre)
{
    const auto esta = [&](const std::string& otro) {
        return std::ranges::any_of(f.lados, [&](const LadoElegido& l) { return l.origen.nombre == otro; });
    };
    if (!esta(nombre)) return nombre;
    for (int n = 2;; ++n)
        if (std::string otro = nombre + " (" + std::to_string(n) + ")"; !esta(otro)) return otro;
}

/// The outfall, or whatever there is: what the charts show first.
void EligeComponente(dlgCompararCorridas& f)
{
    if (f.lstCompos.indice >= 0 || f.corridos.empty()) return;
    const model::Resultados& r = f.corridos.front().corrida->r();
    if (r.NroSalidas < 1 || !f.lstCompos.Elige(r.Salidas[1])) f.lstCompos.indice = 0;
}

void Refresca(dlgCompararCorridas& f)
{
    std::vector<std::string> nombres, avisos;
    f.corridos.clear();
    for (const LadoElegido& l : f.lados) {
        nombres.push_back(l.origen.nombre + (l.Falta() ? " (falta correr)" : ""));
        if (!l.Falta()) f.corridos.push_back({l.origen.nombre, l.corrida});
        for (const std::string& reparo : l.reparos)
            avisos.push_back(l.origen.nombre + ": " + reparo);
    }
    f.lstLados.indice = std::min(f.lstLados.indice, static_cast<int>(nombres.size()) - 1);
    f.lstLados.items = std::move(nombres);
    f.comparacion = f.corridos.empty() ? Comparacion{} : Compara(f.corridos);
    forms::PonFilas(f.tblParametros, PlanillaDeParametros(f.comparacion));
    forms::PonFilas(f.tblResultados, PlanillaDeCifras(f.comparacion, f.chkDistintas));
    std::vector<std::string> compos;
    for (const Emparejado& e : f.comparacion.componentes)
        compos.push_back(e.Nombre());
    f.lstCompos.PonItems(std::move(compos));
    EligeComponente(f);
    MuestraComponente(f);
    std::string texto;
    for (const std::string& aviso : avisos)
        texto += (texto.empty() ? "" : "\n") + aviso;
    if (texto.empty() && f.lados.size() < 2) texto = "Agregue dos lados por lo menos.";
    f.lblQueHacer = texto;
}

}  // namespace

void Abre(dlgCompararCorridas& f, const model::Siro& s, const Corrida& ultima)
{
    f.abierta = true;
    ListaOrigenes(f, s, ultima != nullptr);
    ListaTormentas(f, s);
    if (f.lados.empty() && ultima != nullptr) {
        Agrega(f, {Origen::Clase::Ultima, "", std::string(LaUltima)}, ultima);
        return;
    }
    Refresca(f);
}

bool Agrega(dlgCompararCorridas& f, Origen origen, const Corrida& ultima)
{
    LadoElegido nuevo{.origen = std::move(origen), .tormenta = f.cmbTormenta.indice};
    if (nuevo.origen.nombre.empty()) nuevo.origen.nombre = ProyectoDe(nuevo.origen.archivo);
    if (nuevo.origen.clase == Origen::Clase::Ultima) {
        if (ultima == nullptr) return false;
        nuevo.corrida = ultima;
        nuevo.origen.nombre = ultima->sello.nombre + ", última corrida";
    }
    const bool esta = std::ranges::any_of(f.lados, [&](const LadoElegido& l) {
        return l.origen.clase == nuevo.origen.clase && l.origen.archivo == nuevo.origen.archivo &&
               l.tormenta == nuevo.tormenta && l.corrida == nuevo.corrida;
    });
    if (esta) return false;
    nuevo.origen.nombre = NombreLibre(f, nuevo.origen.nombre);
    f.lados.push_back(std::move(nuevo));
    f.lstLados.indice = static_cast<int>(f.lados.size()) - 1;
    Refresca(f);
    return true;
}

void cmdSubir(dlgCompararCorridas& f)
{
    const auto i = static_cast<std::size_t>(f.lstLados.indice);
    if (f.lstLados.indice < 1 || i >= f.lados.size()) return;
    std::swap(f.lados[i], f.lados[i - 1]);
    --f.lstLados.indice;
    Refresca(f);
}

void cmdQuitar(dlgCompararCorridas& f)
{
    if (f.lstLados.indice < 0 || static_cast<std::size_t>(f.lstLados.indice) >= f.lados.size()) return;
    f.lados.erase(f.lados.begin() + f.lstLados.indice);
    Refresca(f);
}

std::size_t PorCorrer(const dlgCompararCorridas& f)
{
    return static_cast<std::size_t>(std::ranges::find_if(f.lados, &LadoElegido::Falta) - f.lados.begin());
}

TrabajoDeLado TrabajoDe(const dlgCompararCorridas& f, std::size_t lado, const model::Siro& s)
{
    const LadoElegido& l = f.lados[lado];
    if (l.origen.clase == Origen::Clase::Guardada)
        return [libro = LibroDe(s), archivo = l.origen.archivo](const study::Avance&) {
            return CorreGuardada(libro, archivo);
        };
    const auto cual = static_cast<std::size_t>(std::max(0, l.tormenta));
    const std::string registrada =
        cual > 0 && cual < f.cmbTormenta.items.size() ? f.cmbTormenta.items[cual] : std::string();
    ProyectoAparte p{.conf = l.origen.archivo,
                     .disco = model::DiscoDelSistema(),
                     .dirTrabajo = s.Proyecto.DirTrabajo,
                     .cuando = s.Anfitrion.FechaHora(),
                     .ponTormenta = PonTormenta(s, registrada)};
    return [p = std::move(p)](const study::Avance& avance) { return CorreAparte(p, avance); };
}

void Toma(dlgCompararCorridas& f, std::size_t lado, CorridaAparte hecha)
{
    if (lado >= f.lados.size()) return;
    LadoElegido& l = f.lados[lado];
    if (hecha.corrida != nullptr) {
        l.corrida = std::move(hecha.corrida);
        l.reparos = std::move(hecha.reparos);
        return Refresca(f);
    }
    std::string texto;
    for (const std::string& reparo : hecha.reparos)
        texto += (texto.empty() ? "" : "\n") + l.origen.nombre + ": " + reparo;
    f.lados.erase(f.lados.begin() + static_cast<std::ptrdiff_t>(lado));
    Refresca(f);
    if (!texto.empty()) f.lblQueHacer = texto;
}

void Cancela(dlgCompararCorridas& f)
{
    std::erase_if(f.lados, [](const LadoElegido& l) { return l.Falta(); });
    Refresca(f);
}

void chkDistintas_Click(dlgCompararCorridas& f, bool marcada)
{
    f.chkDistintas = marcada;
    forms::PonFilas(f.tblResultados, PlanillaDeCifras(f.comparacion, f.chkDistintas));
}

void lstCompos_Click(dlgCompararCorridas& f)
{
    MuestraComponente(f);
}

void chkEntra_Click(dlgCompararCorridas& f, bool marcada)
{
    f.chkEntra = marcada;
    MuestraComponente(f);
}

void cmdHsMin(dlgCompararCorridas& f)
{
    f.minutos = !f.minutos;
    MuestraComponente(f);
}

void cmbRecurrencia_Click(dlgCompararCorridas& f)
{
    MuestraComponente(f);
}

forms::Planilla ParaGuardar(const dlgCompararCorridas& f, forms::Planilla planilla)
{
    planilla.titulos.insert(planilla.titulos.end(), f.comparacion.procedencia.begin(),
                            f.comparacion.procedencia.end());
    return planilla;
}

std::vector<std::pair<std::string, forms::Planilla>> Hojas(const dlgCompararCorridas& f)
{
    std::vector<std::pair<std::string, forms::Planilla>> hojas;
    const auto agrega = [&](std::string_view nombre, forms::Planilla planilla) {
        hojas.emplace_back(nombre, ParaGuardar(f, std::move(planilla)));
    };
    agrega("Parámetros", f.tblParametros.planilla);
    agrega("Resultados", PlanillaDeCifras(f.comparacion));
    const Emparejado* const e = Elegido(f);
    if (e == nullptr) return hojas;
    const Superpuestos s = runs::Hidrogramas(f.corridos, *e, f.chkEntra);
    if (!s.minutos.empty())
        agrega("Hidrogramas", PlanillaDeHidrogramas(f.comparacion, s, f.Hidrogramas.titulo));
    if (!f.tblSerie.planilla.filas.empty()) agrega("Series", f.tblSerie.planilla);
    return hojas;
}

}  // namespace runs
