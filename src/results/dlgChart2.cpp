// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart2.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "model/Resultados.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "results/EjeTiempo.h"
#include "results/SerieDeTormentas.h"
#include "results/dlgChart1.h"

namespace results {

using forms::Evento;
using forms::Grafico;
using forms::Serie;
using forms::TipoGrafico;
using forms::TipoSerie;
using model::NumeroATexto;
using model::Siro;

namespace {

constexpr std::int16_t UltimaFormaConDeslizadores = model::FormaLluvia::DeLista;

constexpr std::string_view PasosDesiguales =  // kept as it stands
    "Error, el paso de salida (Q) debe ser múltiplo del paso de cálculo (Pp). Verifique la carga en "
    "\\Entradas\\Preicpitaciones...";
constexpr std::string_view Nota = "SIRO: Modelo hidrológico de simulación lluvia-caudal";
constexpr std::string_view TextoInicia = "inicia";
constexpr std::string_view SinObservado = "No mostrar";
constexpr std::string_view EnSuPaso = "Cada valor observado está en el paso de salida más cercano a su hora.";
constexpr std::string_view NombresCambiados =
    "Los nombres Qentra y Qsale de la leyenda están cambiados: la curva llamada Qentra es la salida.";

std::string Texto(std::int16_t n)
{
    return NumeroATexto(std::int32_t{n});
}

// --- kinds of component ---

/// What a series shows.
enum class Dato : std::uint8_t { QSale, QEntra, PpUEHPaso, HRepresa, HLago };

struct FilaSerie {
    Dato dato;
    std::string_view leyenda;
    bool ejeSecundario;
};

/// The chart of a kind of component, which the prefix of a name tells.
struct FilaGrafico {
    std::string_view prefijo;
    TipoGrafico tipo;
    std::string_view ejeYSecundario;
    std::size_t nroSeries;
    std::array<FilaSerie, 3> series;
    std::string_view salvedad = {};  ///< what its picture or file has to say besides
};

// clang-format off
// The legends of dams and lakes stand swapped against what the series draw: kept as they stand.
constexpr auto Graficos = std::to_array<FilaGrafico>({
    {model::DeClase<model::UEH>::prefijo, TipoGrafico::Combinacion, EjePrecipitacion, 2,
     {{{Dato::QSale, "Qsale", false}, {Dato::PpUEHPaso, "Pp", true}, {}}}},
    {model::DeClase<model::Cauce>::prefijo, TipoGrafico::Linea, EjeCaudal, 2,
     {{{Dato::QSale, "Qsale", false}, {Dato::QEntra, "Qentra", false}, {}}}},
    {model::DeClase<model::Represa>::prefijo, TipoGrafico::Linea, "H Embalse [m]", 3,
     {{{Dato::QSale, "Qentra", false}, {Dato::HRepresa, "HEmbalse", true}, {Dato::QEntra, "Qsale", false}}},
     NombresCambiados},
    {model::DeClase<model::Lago>::prefijo, TipoGrafico::Linea, "H Embalse [m]", 3,
     {{{Dato::QSale, "Qentra", false}, {Dato::HLago, "HEmbalse", true}, {Dato::QEntra, "Qsale", false}}},
     NombresCambiados},
});
// A name without one of these prefixes is never computed: its outflow stands alone.
constexpr FilaGrafico SinGrafico = {"", TipoGrafico::Linea, "", 1, {{{Dato::QSale, "Qsale", false}, {}, {}}}};
// clang-format on

const FilaGrafico& GraficoDe(std::string_view nombre)
{
    const auto* const fila = std::find_if(Graficos.begin(), Graficos.end(), [&](const FilaGrafico& c) {
        return nombre.starts_with(c.prefijo);
    });
    return fila == Graficos.end() ? SinGrafico : *fila;
}

/// Number of the Represa or Lago of a name. 0, a row of zeros in every array, where there is none any more:
/// another project may have been opened since the run.
std::int16_t NumeroDeEmbalse(const model::Red& red, std::string_view nombre)
{
    if (const int n = model::NumeroDe<model::Represa>(red, nombre)) return red.ColRepresas.Item(n).numRepresa;
    if (const int n = model::NumeroDe<model::Lago>(red, nombre)) return red.ColLagos.Item(n).numLAGO;
    return 0;
}

// --- cells ---

/// The rows of one component.
struct Filas {
    const Siro& s;
    std::int16_t componente;
    std::int16_t embalse;  ///< number of the Represa or Lago
    std::int16_t r;        ///< output steps in a model step
};

/// Rain of output step i [mm]: that of its model step, shared out evenly.
double Lluvia(const Filas& filas, std::int16_t i)
{
    const Siro& s = filas.s;
    if (model::Producto16(i, s.Pasos.PasoQ) >= model::Suma16(s.Tormenta.DurTormenta, s.Pasos.PasoPp))
        return 0;
    const std::int16_t b = model::Piso16(model::Cociente(filas.r + i - 1, filas.r));
    return double{s.Resultados.PpUEHPaso(filas.componente, b)} / filas.r;
}

double Celda(const Filas& filas, Dato dato, std::int16_t i)
{
    constexpr int Decimales = 3;  // of the outflow [m3/s]
    const Siro& s = filas.s;
    switch (dato) {
    case Dato::QSale:
        return model::Redondea(s.Resultados.QSale(filas.componente, i), Decimales);
    case Dato::QEntra:
        return s.Resultados.QEntra(filas.componente, i);
    case Dato::PpUEHPaso:
        return Lluvia(filas, i);
    case Dato::HRepresa:
        return s.Resultados.HRepresa(filas.embalse, i);
    case Dato::HLago:
        return s.Resultados.HLago(filas.embalse, i);
    }
    return 0;
}

/// A series of N rows; the outflow is known up to NroPasosQ.
Serie Columna(const Filas& filas, const FilaSerie& fila, std::int16_t N)
{
    Serie serie{TipoSerie::Linea2D, std::string(fila.leyenda), fila.ejeSecundario, {}};
    const std::int16_t conocidas = fila.dato == Dato::QSale ? std::min(N, filas.s.Resultados.NroPasosQ) : N;
    serie.celdas.resize(static_cast<std::size_t>(N));
    for (int i = 1; i <= conocidas; ++i)
        serie.celdas[static_cast<std::size_t>(i) - 1] = Celda(filas, fila.dato, static_cast<std::int16_t>(i));
    return serie;
}

/// Output steps in a model step; nothing where that isn't a whole number. Throws Falla 11 for a PasoQ of 0.
std::optional<std::int16_t> RelacionDePasos(const Siro& s)
{
    const double r = model::Cociente(s.Pasos.PasoPp, s.Pasos.PasoQ);
    if (r != std::floor(r)) return {};
    return model::Entero16(r);
}

std::string Titulo(const Siro& s, const std::string& nombre)
{
    const auto fin = s.Resultados.Salidas.begin() + 1 +
                     std::clamp<std::int16_t>(s.Resultados.NroSalidas, 0, model::MaxSalidas);
    const bool esSalida = std::find(s.Resultados.Salidas.begin() + 1, fin, nombre) != fin;
    std::string titulo = esSalida ? "Componente Final: " : "Componente: ";
    titulo.append(Texto(s.Control.IndComp)).append(", ").append(nombre);
    titulo.append("   Pp= ")
        .append(NumeroATexto(s.Tormenta.PpTormenta))
        .append("mm;  D= ")
        .append(Texto(s.Tormenta.DurTormenta));
    titulo.append(" min ;   ");
    if (s.Tormenta.RecTormenta != 0)
        titulo.append("Recurrencia = ").append(Texto(s.Tormenta.RecTormenta)).append(" años   ");
    return titulo.append("paso = ").append(Texto(s.Pasos.PasoQ)).append(" min");
}

/// Draws the component, or tells why not.
void Dibuja(dlgChart2& f, const Siro& s, std::int16_t N, std::int16_t paso)
{
    const std::string& nombre = NombreComponente(s);
    const FilaGrafico& clase = GraficoDe(nombre);
    const std::optional<std::int16_t> r = RelacionDePasos(s);
    if (!r) return model::Advierte(s, std::string(PasosDesiguales));

    Grafico grafico = f.Grafico;
    grafico.tipo = clase.tipo;
    grafico.magnitudX = MagnitudEjeX;
    grafico.ejeX = TituloEjeX(f.MinutosEjeX);
    grafico.ejeY = EjeCaudal;
    grafico.ejeYSecundario = clase.ejeYSecundario;
    grafico.marcasEjeX = false;
    grafico.categorias.clear();
    for (int i = 1; i <= N; ++i)
        grafico.categorias.push_back(Categoria(static_cast<std::int16_t>(i), paso, f.MinutosEjeX));

    const Filas filas{s, s.Control.IndComp, NumeroDeEmbalse(s.Red, nombre), *r};
    grafico.series.clear();
    for (std::size_t k = 0; k < clase.nroSeries; ++k)
        grafico.series.push_back(Columna(filas, clase.series[k], N));
    if (clase.tipo == TipoGrafico::Combinacion)
        for (std::size_t k = 1; k < clase.nroSeries; ++k)
            grafico.series[k].tipo = TipoSerie::Escalon2D;

    grafico.salvedad = clase.salvedad;
    f.Grafico = std::move(grafico);
    f.componente = nombre;
    f.lblTitulo = Titulo(s, nombre);
    f.lblNota = Nota;
    f.conObservado = false;
    PonObservado(f);
}

/// Runs the storm in hand over the network in memory.
bool Corre(dlgChart2& f, Siro& s)
{
    if (s.Control.SalidaPizarra) s.Anfitrion.PonPizarra(TextoInicia);
    engine::ConstruyeHietograma(s);
    if (s.Tormenta.PpTormenta == 0 && s.Tormenta.DurTormenta == 0) s.Anfitrion.Termina();
    const bool completa = engine::ProcesoPrincipal(s, {.GuardaTexto = true}, f.memoria);
    Redibuja(f, s);
    return completa;
}

}  // namespace

void Deslizador::Pon(int nuevo)
{
    valor = std::clamp(nuevo, minimo, maximo);
}

void Abre(dlgChart2& f, Siro& s)
{
    if (f.abierta) {
        f.vista.deslizadores = s.Tormenta.FormaPp <= UltimaFormaConDeslizadores;
        return;
    }
    dlgChart2 nueva;
    nueva.Observados = std::move(f.Observados);
    nueva.observado = std::move(f.observado);
    f = std::move(nueva);
    if (s.Resultados.NroPasosQ == 0 || s.Resultados.NroComponentes < 1 ||
        s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR)
        return;
    f.abierta = true;
    f.lblPp = "Pp";
    f.lblDur = "D ";
    f.Grafico.leyendaVisible = true;
    f.Grafico.ejeY = EjeCaudal;
    f.Grafico.ejeYSecundario = EjePrecipitacion;
    f.lstCompos = Componentes(s.Resultados);
    AcotaIndComp(s);
    if (static_cast<std::size_t>(s.Control.IndComp) <= f.lstCompos.size())
        f.lstComposIndice = s.Control.IndComp - 1;
    lstCompos_Click(f, s);
    Evento(s, [&] { f.sldPp.Pon(model::Entero32(s.Tormenta.PpTormenta)); });
    f.sldDur.Pon(s.Tormenta.DurTormenta);
}

void lstCompos_Click(dlgChart2& f, Siro& s)
{
    if (s.Resultados.NroComponentes < 1) f.abierta = false;
    if (!f.abierta || f.lstComposIndice < 0) return;
    TomaComponente(s, f.lstCompos, static_cast<std::size_t>(f.lstComposIndice));
    Redibuja(f, s);
}

void Redibuja(dlgChart2& f, Siro& s)
{
    AcotaIndComp(s);
    f.vista.deslizadores = s.Tormenta.FormaPp <= UltimaFormaConDeslizadores;
    if (s.Resultados.NroPasosQ <= 0) {
        f.abierta = false;
        return;
    }
    AlGraficoPp(f, s, s.Resultados.NroPasosQ, s.Pasos.PasoQ);
}

void AlGraficoPp(dlgChart2& f, const Siro& s, std::int16_t N, std::int16_t paso)
{
    if (N == 0) return;
    f.ultimoN = N;
    f.ultimoPaso = paso;
    ++f.llenados;
    Evento(s, [&] { Dibuja(f, s, N, paso); });
}

bool sldDur_Mueve(dlgChart2& f, Siro& s, int valor)
{
    f.sldDur.Pon(valor);
    s.Tormenta.DurTormenta = static_cast<std::int16_t>(f.sldDur.valor);
    return Corre(f, s);
}

bool sldPp_Mueve(dlgChart2& f, Siro& s, int valor)
{
    f.sldPp.Pon(std::max<int>(valor, s.Pasos.PasoPp));
    s.Tormenta.PpTormenta = static_cast<float>(f.sldPp.valor);
    return Corre(f, s);
}

void PonObservado(dlgChart2& f)
{
    if (std::exchange(f.conObservado, false)) f.Grafico.series.pop_back();
    f.Grafico.salvedad = GraficoDe(f.componente).salvedad;
    f.cmbObservado.clear();
    f.cmbObservadoIndice = 0;
    const std::vector<Observado> observados =
        f.Observados ? f.Observados(f.componente) : std::vector<Observado>{};
    if (observados.empty()) return;
    f.cmbObservado.emplace_back(SinObservado);
    for (const Observado& o : observados)
        f.cmbObservado.push_back(o.evento);
    // An event that this component has nothing of leaves the first one that it has.
    const auto elegido = std::find_if(observados.begin(), observados.end(),
                                      [&](const Observado& o) { return o.evento == f.observado; });
    if (f.observado == std::string{}) return;
    const Observado& o = elegido == observados.end() ? observados.front() : *elegido;
    f.cmbObservadoIndice = static_cast<int>(&o - observados.data()) + 1;
    forms::PuntosEnPasos puntos = forms::EnPasos(
        o.caudales, static_cast<std::size_t>(std::max<std::int16_t>(f.ultimoN, 0)), f.ultimoPaso);
    puntos.serie.leyenda = "Observado: " + o.evento;
    f.Grafico.series.push_back(std::move(puntos.serie));
    f.conObservado = true;
    if (!f.Grafico.salvedad.empty()) f.Grafico.salvedad += ' ';
    f.Grafico.salvedad += EnSuPaso;
    if (puntos.fuera > 0)
        f.Grafico.salvedad += " Lecturas que no se muestran: " + std::to_string(puntos.fuera) + ".";
}

void cmbObservado_Click(dlgChart2& f, int indice)
{
    if (indice < 0 || static_cast<std::size_t>(indice) >= f.cmbObservado.size()) return;
    f.observado = indice == 0 ? std::string{} : f.cmbObservado[static_cast<std::size_t>(indice)];
    PonObservado(f);
}

void cmdHsMin(dlgChart2& f, const Siro& s)
{
    f.MinutosEjeX = !f.MinutosEjeX;
    AlGraficoPp(f, s, f.ultimoN, f.ultimoPaso);
}

void AntesDeImprimir(dlgChart2& f)
{
    f.vistaGuardada = f.vista;
    f.vista = {.comandos = false, .lista = false, .deslizadores = false, .graficoAncho = true};
}

void DespuesDeImprimir(dlgChart2& f)
{
    f.vista = f.vistaGuardada;
}

bool mnuHidrogramas(Siro& s)
{
    bool hay = false;
    Evento(s, [&] { hay = HayTormentaConBloques(s); });
    if (!hay) return false;
    if (s.Control.SalidaPizarra) s.Anfitrion.AbrePizarra();
    AcotaIndComp(s);
    return s.Resultados.NroPasosQ > 0;
}

}  // namespace results
