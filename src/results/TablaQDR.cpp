// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TablaQDR.h"

#include <algorithm>
#include <numeric>

#include "forms/Procedencia.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"
#include "results/SerieDeTormentas.h"

namespace results {

using model::NumeroATexto;
using model::Siro;

namespace {

/// Columns by what they hold, from 0.
enum Columna : std::size_t { Nombre, Numero, P, D, R, PrimerResultado };

constexpr int Decimales = 2;

struct Rotulo {
    std::string_view encabezado, formato;  ///< the latter of its numbers in a workbook
};
constexpr std::array<Rotulo, PrimerResultado> RotulosQDR{
    {{"Componente ", ""}, {"Nro.", "0"}, {"P[mm]", "0.0##"}, {"D[min]", "0"}, {"R[años]", "0"}}};

Rotulo RotuloDe(std::size_t columna)
{
    if (columna < PrimerResultado) return RotulosQDR[columna];
    const engine::ColumnaDeSerie& resultado = engine::ColumnasDeSerie[columna - PrimerResultado];
    return {resultado.encabezado, resultado.formato};
}

constexpr std::int16_t MinimoDeTormentas = 2;
constexpr std::string_view RotuloTotal = "Escorrentía total ";  // its blank is part of it

std::string Entero(std::int16_t n)
{
    return NumeroATexto(std::int32_t{n});
}

/// A number with a fraction is rounded to two decimals; no result is an empty cell.
std::string Texto(const engine::ValorDeSerie& valor)
{
    if (const auto* x = std::get_if<float>(&valor)) return NumeroATexto(model::Redondea(*x, Decimales));
    if (const auto* n = std::get_if<std::int32_t>(&valor)) return NumeroATexto(*n);
    return {};
}

void AgregaTitulo(TablaQDR& t, const std::string& texto)
{
    FilaQDR fila{ClaseFila::Titulo, {}};
    fila.celdas.fill(texto);
    t.filas.push_back(std::move(fila));
}

void PonTitulos(TablaQDR& t, const Siro& s)
{
    AgregaTitulo(t, ArchivoDeProyecto(s));
    AgregaTitulo(t, s.Configuracion.TituloProyecto);
    AgregaTitulo(t, "Ubicación: " + s.Configuracion.Ubicacion + " - Cuenca: " + s.Configuracion.Cuenca);
    AgregaTitulo(t, "SubCuenca: " + s.Configuracion.Subcuenca);
    AgregaTitulo(t, "Operador: " + s.Configuracion.Operador + " - " + forms::FechaDelDia(s));
}

void PonTormenta(FilaQDR& fila, const Siro& s)
{
    fila.celdas[P] = NumeroATexto(s.Tormenta.PpTormenta);
    fila.celdas[D] = Entero(s.Tormenta.DurTormenta);
    fila.celdas[R] = Entero(s.Tormenta.RecTormenta);
}

void PonResultados(FilaQDR& fila, auto&& valor)
{
    for (std::size_t c = PrimerResultado; c < NroColumnasQDR; ++c)
        fila.celdas[c] = Texto(valor(engine::ColumnasDeSerie[c - PrimerResultado]));
}

FilaQDR FilaDeComponente(const Siro& s)
{
    FilaQDR fila{ClaseFila::Componente, {}};
    fila.celdas[Nombre] = NombreComponente(s);
    fila.celdas[Numero] = Entero(s.Control.IndComp);
    PonTormenta(fila, s);
    PonResultados(fila, [&](const engine::ColumnaDeSerie& c) {
        return DelComponente(c, s.Resultados, s.Red.NroUEHs(), s.Control.IndComp, s.Serie.IndSerie);
    });
    return fila;
}

/// Goes through the storms of the series: `antes` for each, then `pasa` for one that the filter lets pass.
/// Returns false where a storm of depth or duration 0 ends the filling.
template <typename Antes, typename Pasa>
bool RecorreSerie(Siro& s, Antes&& antes, Pasa&& pasa)
{
    bool excluida = false;
    for (s.Serie.IndSerie = 1; s.Serie.IndSerie <= s.Serie.NroSeriePDR;
         s.Serie.IndSerie = model::Suma16(s.Serie.IndSerie, 1)) {
        antes();
        FiltroTormenta(s, excluida);
        if (TormentaNula(s)) return false;
        if (!excluida) pasa();
    }
    return true;
}

/// Rows of the component IndComp. Returns false where the filling ends.
bool AgregaComponente(TablaQDR& t, Siro& s)
{
    return RecorreSerie(
        s, [] {}, [&] { t.filas.push_back(FilaDeComponente(s)); });
}

/// Rows of the basin. The label comes before the filter, so that a last storm left out leaves it alone.
void AgregaTotales(TablaQDR& t, Siro& s)
{
    t.filas.push_back({ClaseFila::Cierre, {}});
    RecorreSerie(
        s, [&] { t.filas.back().celdas[Nombre] = RotuloTotal; },
        [&] {
            FilaQDR& fila = t.filas.back();
            fila.clase = ClaseFila::Total;
            PonTormenta(fila, s);
            PonResultados(fila, [&](const engine::ColumnaDeSerie& c) {
                return c.deLaCuenca(s.Resultados, s.Serie.IndSerie);
            });
            t.filas.push_back({ClaseFila::Cierre, {}});
        });
}

// --- order ---

bool SeOrdena(ClaseFila clase)
{
    return clase == ClaseFila::Componente || clase == ClaseFila::Total;
}

/// What a cell is sorted by: the number that it is, else its text.
struct Clave {
    bool vacia = true;
    double numero = 0;
    std::string_view texto{};
};

Clave ClaveDe(const FilaQDR& fila, std::size_t columna)
{
    const std::string& celda = fila.celdas[columna];
    if (celda.empty()) return {};
    if (columna == Nombre) return {false, 0, celda};
    return {false, model::Val(celda), {}};
}

/// Whether `a` stands before `b`; an empty cell before none.
bool Precede(const Clave& a, const Clave& b, Sentido sentido)
{
    if (a.vacia || b.vacia) return !a.vacia && b.vacia;
    const Clave& menor = sentido == Sentido::Ascendente ? a : b;
    const Clave& mayor = sentido == Sentido::Ascendente ? b : a;
    if (menor.numero != mayor.numero) return menor.numero < mayor.numero;
    return menor.texto < mayor.texto;
}

void Ordena(TablaQDR& t)
{
    t.mostradas.resize(t.filas.size());
    std::iota(t.mostradas.begin(), t.mostradas.end(), std::size_t{0});
    if (t.columnaOrden < 0) return;

    std::vector<Clave> claves;
    claves.reserve(t.filas.size());
    for (const FilaQDR& fila : t.filas)
        claves.push_back(ClaveDe(fila, static_cast<std::size_t>(t.columnaOrden)));
    for (auto desde = t.mostradas.begin(); desde != t.mostradas.end();) {
        const ClaseFila clase = t.filas[*desde].clase;
        const auto hasta =
            std::find_if(desde, t.mostradas.end(), [&](std::size_t i) { return t.filas[i].clase != clase; });
        if (SeOrdena(clase))
            std::stable_sort(desde, hasta, [&](std::size_t a, std::size_t b) {
                return Precede(claves[a], claves[b], t.sentido);
            });
        desde = hasta;
    }
}

/// Fills the table by `cuerpo`; whatever there is then is put on show, after a fault too.
template <typename Cuerpo>
void Llena(TablaQDR& t, const Siro& s, Cuerpo&& cuerpo)
{
    t.filas.clear();
    try {
        if (s.Resultados.NroComponentes >= 1) {
            PonTitulos(t, s);
            cuerpo();
        }
    } catch (const model::Falla&) {
        Ordena(t);
        throw;
    }
    Ordena(t);
}

}  // namespace

std::array<std::string_view, NroColumnasQDR> EncabezadosQDR()
{
    std::array<std::string_view, NroColumnasQDR> encabezados;
    for (std::size_t c = 0; c < NroColumnasQDR; ++c)
        encabezados[c] = RotuloDe(c).encabezado;
    return encabezados;
}

void LlenaTodas(TablaQDR& t, Siro& s)
{
    Llena(t, s, [&] {
        for (s.Control.IndComp = 1; s.Control.IndComp <= s.Resultados.NroComponentes;
             s.Control.IndComp = model::Suma16(s.Control.IndComp, 1))
            if (!AgregaComponente(t, s)) return;
        AgregaTotales(t, s);
    });
}

void LlenaUna(TablaQDR& t, Siro& s)
{
    Llena(t, s, [&] {
        if (!AgregaComponente(t, s)) return;
        t.filas.push_back({ClaseFila::Separacion, {}});
        AgregaTotales(t, s);
    });
}

void PulsaEncabezado(TablaQDR& t, int columna)
{
    if (columna < 0 || static_cast<std::size_t>(columna) >= NroColumnasQDR) return;
    if (t.columnaOrden != columna) {
        t.columnaOrden = columna;
        t.sentido = Sentido::Ascendente;
    } else if (t.sentido == Sentido::Ascendente)
        t.sentido = Sentido::Descendente;
    else {
        t.columnaOrden = -1;
        t.sentido = Sentido::Ascendente;
    }
    Ordena(t);
}

forms::Planilla ComoPlanilla(const TablaQDR& t)
{
    forms::Planilla planilla;
    for (std::size_t c = 0; c < NroColumnasQDR; ++c)
        planilla.columnas.push_back(
            {std::string(RotuloDe(c).encabezado), c == Nombre, std::string(RotuloDe(c).formato)});
    for (const std::size_t i : t.mostradas) {
        const FilaQDR& fila = t.filas[i];
        if (fila.clase == ClaseFila::Titulo) planilla.titulos.push_back(fila.celdas[Nombre]);
        if (SeOrdena(fila.clase)) planilla.filas.emplace_back(fila.celdas.begin(), fila.celdas.end());
    }
    return planilla;
}

std::string BloqueComoTexto(const TablaQDR& t, const BloqueQDR& bloque)
{
    std::string texto;
    const std::size_t finColumnas = std::min(bloque.ultimaColumna + 1, NroColumnasQDR);
    for (std::size_t i = bloque.primeraFila; i <= bloque.ultimaFila && i < t.mostradas.size(); ++i) {
        const FilaQDR& fila = t.filas[t.mostradas[i]];
        const std::size_t fin =
            fila.clase == ClaseFila::Titulo ? std::min(bloque.primeraColumna + 1, finColumnas) : finColumnas;
        for (std::size_t c = bloque.primeraColumna; c < fin; ++c) {
            if (c > bloque.primeraColumna) texto += '\t';
            texto += fila.celdas[c];
        }
        texto += model::SaltoLinea;
    }
    return texto;
}

void AlPulsarEncabezado(FormaTablaQDR& f, int columna)
{
    PulsaEncabezado(f.MSFlexGridTablaSaleQDR, columna);
}

void OKButton(FormaTablaQDR& f)
{
    f.abierta = false;
}

bool HayPlanillaPDR(const Siro& s)
{
    return s.Serie.NroSeriePDR >= MinimoDeTormentas;
}

}  // namespace results
