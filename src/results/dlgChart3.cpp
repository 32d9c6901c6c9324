// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart3.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "engine/ColumnasDeSerie.h"
#include "forms/Evento.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "results/SerieDeTormentas.h"

namespace results {

using engine::ColumnaDeSerie;
using engine::ColumnasDeSerie;
using forms::Evento;
using model::NumeroATexto;
using model::Siro;

namespace {

constexpr int Decimales = 2;
constexpr std::int16_t PasoDelEje = 1;
constexpr std::int16_t MinimoDeTormentas = 2;  ///< a curve needs two points

constexpr std::string_view TituloRecurrencia = "R[años]";
constexpr std::string_view EjeDuracion = "Duración Tormenta D[minutos]";
constexpr std::string_view Titulo = "Serie de Tormentas Sintéticas: Gráficos Qp-D-R  -  E-D-R  -  CE-D-R";
constexpr std::string_view NotaVelmirAlAbrir = "SIRO: Simulación lluvia-caudal";
constexpr std::string_view NotaVelmir = "SIRO: Modelo hidrológico de simulación lluvia-caudal";

/// A result as a cell; empty where the run left none.
double Celda(const engine::ValorDeSerie& valor)
{
    if (const auto* x = std::get_if<float>(&valor)) return model::Redondea(*x, Decimales);
    if (const auto* n = std::get_if<std::int32_t>(&valor)) return *n;
    return forms::CeldaVacia;
}

const ColumnaDeSerie* MagnitudElegida(const dlgChart3& f)
{
    if (f.lstPQECIndice < 0 || static_cast<std::size_t>(f.lstPQECIndice) >= ColumnasDeSerie.size())
        return nullptr;
    return &ColumnasDeSerie[static_cast<std::size_t>(f.lstPQECIndice)];
}

/// Runs `cuerpo` with each storm that passes the filter in hand.
template <typename Cuerpo>
void ParaCadaTormenta(dlgChart3& f, Siro& s, Cuerpo&& cuerpo)
{
    for (s.Serie.IndSerie = 1; s.Serie.IndSerie <= s.Serie.NroSeriePDR;
         s.Serie.IndSerie = model::Suma16(s.Serie.IndSerie, 1)) {
        FiltroTormenta(s, f.Excluida);
        if (!f.Excluida) cuerpo();
    }
}

void AgregaSiFalta(std::vector<std::int16_t>& lista, std::int16_t valor)
{
    if (std::find(lista.begin(), lista.end(), valor) == lista.end()) lista.push_back(valor);
}

/// Place of a value in a list, from 0.
std::optional<std::size_t> Lugar(const std::vector<std::int16_t>& lista, std::int16_t valor)
{
    const auto hallado = std::find(lista.begin(), lista.end(), valor);
    if (hallado == lista.end()) return {};
    return static_cast<std::size_t>(hallado - lista.begin());
}

/// A curve per recurrence, all cells empty.
std::vector<forms::Serie> Curvas(const dlgChart3& f, std::size_t filas)
{
    std::vector<forms::Serie> curvas;
    for (const std::int16_t R : f.ListaR)
        curvas.push_back({forms::TipoSerie::Linea2D, NumeroATexto(std::int32_t{R}), false,
                          std::vector<double>(filas, forms::CeldaVacia)});
    return curvas;
}

/// Marks the critical duration of each recurrence: where its curve is highest, the first of equal ones. A
/// curve without rain to tell of has none.
std::vector<forms::Marca> DuracionesCriticas(const forms::Grafico& grafico)
{
    std::vector<forms::Marca> marcas;
    for (std::size_t serie = 0; serie < grafico.series.size(); ++serie) {
        const std::vector<double>& celdas = grafico.series[serie].celdas;
        std::optional<std::size_t> critica;
        double mayor = 0;
        for (std::size_t fila = 0; fila < celdas.size(); ++fila)
            if (celdas[fila] > mayor) {
                mayor = celdas[fila];
                critica = fila;
            }
        if (critica) marcas.push_back({serie, *critica, "D= " + grafico.categorias[*critica] + " min"});
    }
    return marcas;
}

std::string NotaDelProyecto(const Siro& s)
{
    return s.Configuracion.TituloProyecto + "  " + ArchivoDeProyecto(s);
}

/// Name of the component on show: what is printed and saved has no list to tell it.
std::string TituloDeComponente(const Siro& s)
{
    const auto n = static_cast<std::size_t>(s.Control.IndComp);
    return n < s.Resultados.Secuencia.size() ? s.Resultados.Secuencia[n] : std::string{};
}

void LlenaCeldas(dlgChart3& f, Siro& s, const ColumnaDeSerie& magnitud, std::vector<forms::Serie>& curvas)
{
    ParaCadaTormenta(f, s, [&] {
        if (magnitud.soloUEHs && s.Control.IndComp > s.Red.NroUEHs()) return;
        const auto serie = Lugar(f.ListaR, s.Tormenta.RecTormenta);
        const auto fila = Lugar(f.ListaD, s.Tormenta.DurTormenta);
        if (serie && fila && *fila < curvas[*serie].celdas.size())
            curvas[*serie].celdas[*fila] =
                Celda(magnitud.deComponente(s.Resultados, s.Control.IndComp, s.Serie.IndSerie));
    });
}

void Dibuja(dlgChart3& f, Siro& s)
{
    ++f.llenados;
    Inicializa(f, s);
    AlGraficoPp(f, s, static_cast<std::int16_t>(f.ListaD.size()), PasoDelEje);
}

/// Selects an item, if it is there, and takes its place as the component: the first of that name.
void EligeComponente(dlgChart3& f, Siro& s, int indice)
{
    if (indice < 0 || static_cast<std::size_t>(indice) >= f.lstCompos.size()) return;
    f.lstComposIndice = indice;
    TomaComponente(s, f.lstCompos, static_cast<std::size_t>(indice));
    f.componente = s.Control.IndComp;
}

void ListaComponentes(dlgChart3& f, const Siro& s)
{
    f.lstCompos = Componentes(s.Resultados);
    f.lstComposIndice = -1;
}

/// Each UEH that comes into the list is picked at once, so that the last one stays.
void ListaUEHs(dlgChart3& f, Siro& s)
{
    f.lstCompos.clear();
    f.lstComposIndice = -1;
    for (s.Control.IndUEH = 1; s.Control.IndUEH <= s.Red.NroUEHs();
         s.Control.IndUEH = model::Suma16(s.Control.IndUEH, 1)) {
        if (static_cast<std::size_t>(s.Control.IndUEH) >= s.Resultados.Secuencia.size())
            throw model::Falla{model::NumeroFalla::Subindice};
        f.lstCompos.push_back(s.Resultados.Secuencia[static_cast<std::size_t>(s.Control.IndUEH)]);
        EligeComponente(f, s, s.Control.IndUEH - 1);
    }
}

}  // namespace

void Abre(dlgChart3& f, Siro& s)
{
    f = dlgChart3{};
    f.abierta = true;
    if (s.Serie.NroSeriePDR == 0) return;
    if (s.Resultados.NroComponentes < 1) {
        f.abierta = false;
        return;
    }
    f.Grafico.tipo = forms::TipoGrafico::Linea;
    f.Grafico.leyendaVisible = true;
    f.Grafico.tituloLeyenda = TituloRecurrencia;
    f.Grafico.ejeY = ColumnasDeSerie.front().ejeY;
    f.Grafico.ejeX = EjeDuracion;
    f.lblNotaVelmir = NotaVelmirAlAbrir;
    f.lblNota = NotaDelProyecto(s);
    ListaComponentes(f, s);
    if (s.Control.IndComp == 0) s.Control.IndComp = 1;
    s.Control.IndComp = std::min(s.Control.IndComp, s.Resultados.NroComponentes);
    for (const ColumnaDeSerie& magnitud : ColumnasDeSerie)
        f.lstPQEC.emplace_back(magnitud.magnitud);
    f.lstPQECIndice = 0;
    Evento(s, [&] {
        EligeComponente(f, s, s.Control.IndComp - 1);
        Dibuja(f, s);
    });
}

void Inicializa(dlgChart3& f, Siro& s)
{
    f.Notas = "Notas en Inicializa";
    AcotaIndComp(s);
    f.ListaD.clear();
    f.ListaR.clear();
    if (s.Serie.NroSeriePDR < MinimoDeTormentas) return;
    ParaCadaTormenta(f, s, [&] {
        AgregaSiFalta(f.ListaD, s.Tormenta.DurTormenta);
        AgregaSiFalta(f.ListaR, s.Tormenta.RecTormenta);
    });
    // The rows stay as drawn last, and so do the columns that there are already.
    f.Grafico.series.resize(f.ListaR.size(),
                            {forms::TipoSerie::Linea2D, "", false,
                             std::vector<double>(f.Grafico.categorias.size(), forms::CeldaVacia)});
    std::erase_if(f.Grafico.marcas, [&](const forms::Marca& m) { return m.serie >= f.ListaR.size(); });
}

void AlGraficoPp(dlgChart3& f, Siro& s, std::int16_t NroD, std::int16_t paso)
{
    const ColumnaDeSerie* const magnitud = MagnitudElegida(f);
    if (NroD == 0 || magnitud == nullptr) return;
    f.Notas = "Notas en AlGraficoPp";
    const auto filas = static_cast<std::size_t>(NroD);
    if (NroD < 0 || filas > f.ListaD.size()) throw model::Falla{model::NumeroFalla::Subindice};

    f.Grafico.titulo = TituloDeComponente(s);
    f.Grafico.marcasEjeX = true;
    f.Grafico.ejeY = magnitud->ejeY;
    f.Grafico.categorias.clear();
    for (std::size_t i = 0; i < filas; ++i)
        f.Grafico.categorias.push_back(NumeroATexto(std::int32_t{model::Producto16(f.ListaD[i], paso)}));
    f.Grafico.series = Curvas(f, filas);
    LlenaCeldas(f, s, *magnitud, f.Grafico.series);
    f.Grafico.marcas = DuracionesCriticas(f.Grafico);
    f.lblTitulo = Titulo;
    f.lblNota = NotaDelProyecto(s);
    f.lblNotaVelmir = NotaVelmir;
}

void lstCompos_Click(dlgChart3& f, Siro& s)
{
    if (f.lstComposIndice < 0) return;
    Evento(s, [&] {
        EligeComponente(f, s, f.lstComposIndice);
        Dibuja(f, s);
    });
}

void lstPQEC_Click(dlgChart3& f, Siro& s)
{
    const ColumnaDeSerie* const magnitud = MagnitudElegida(f);
    if (magnitud == nullptr) return;
    Evento(s, [&] {
        if (magnitud->soloUEHs)
            ListaUEHs(f, s);
        else {
            ListaComponentes(f, s);
            EligeComponente(f, s, f.componente - 1);
        }
        Dibuja(f, s);
    });
}

void AntesDeImprimir(dlgChart3& f)
{
    f.vistaGuardada = f.vista;
    f.vista = {.comandos = false, .listas = false};
}

void DespuesDeImprimir(dlgChart3& f)
{
    f.vista = f.vistaGuardada;
}

}  // namespace results
