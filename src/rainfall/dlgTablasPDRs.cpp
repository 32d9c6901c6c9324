// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablasPDRs.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "engine/modDistriPp.h"
#include "forms/Evento.h"
#include "model/ArchivosTormenta.h"
#include "model/Arreglo.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace rainfall {

using forms::Evento;
using model::Entero16;
using model::NumeroATexto;
using model::Simple;
using model::Siro;

namespace {

constexpr int UltimaFilaTablas = 4;  // of the arrays of the tables; none is kept in it
constexpr double MaximaP = 9999;     // [mm]

constexpr int ColumnaP = 1;
constexpr int ColumnaD = 2;
constexpr int ColumnaR = 3;
constexpr auto Editables = std::to_array<forms::ColumnaEditable>({{ColumnaP}, {ColumnaD}, {ColumnaR}});
constexpr forms::ReglasGrilla ReglasTabla{
    .encabezado = "^Nro.  |> Pp [mm]  |>D [min]  |>R [años]  ", .editables = Editables, .columnasFijas = 1};

constexpr std::string_view TituloInconsistentes = "Advertencia !!!";
constexpr std::string_view Inconsistentes =  // it lacks durations that pass: kept as it stands
    "Hay datos inconsistentes. Las filas de tormentas PDR deben ser crecientes en P, D y R. Las Duraciones: "
    "5, 10, 15, 20, 30, 60, 90, 120, 180, 300, 360, 540, 720 ó 1440). Las Recurrrencias: 2, 5, 10, 20, 25, "
    "40, 50, 100, 200, 500, 1000, 2000, 5000, 10000). Verifique";

constexpr forms::ReglaNumero ReglaNroPDRs = forms::ReglaDeCuenta("txtNroPDRs");

std::size_t Ranura(const dlgTablasPDRs& f)
{
    return static_cast<std::size_t>(f.Tabla());
}

/// Room for n storms of any table.
void Ensancha(Siro& s, int n)
{
    for (auto* tabla : {&s.TablasDeLluvia.TablasP, &s.TablasDeLluvia.TablasD, &s.TablasDeLluvia.TablasR})
        model::Ajusta(*tabla, UltimaFilaTablas, std::max(tabla->TopeColumna(), n + 1));
}

void PonFilas(dlgTablasPDRs& f, std::int16_t n)
{
    forms::PonNroFilas(f.MSFlexGridTablaPDRs, n);
    for (int j = 1; j <= n; ++j)
        f.MSFlexGridTablaPDRs.Pon({j, 0}, NumeroATexto(j));
}

auto EnMemoria(const Siro& s)
{
    decltype(TablasPDRLeidas::tablas) tablas{};
    for (std::size_t k = 0; k < tablas.size(); ++k) {
        tablas[k].notas = s.TablasDeLluvia.NotasPDR[k];
        const int fila = static_cast<int>(k);
        for (int j = 1; j <= s.TablasDeLluvia.NroFilasTabla[k]; ++j)
            tablas[k].tormentas.push_back({s.TablasDeLluvia.TablasP(fila, j),
                                           s.TablasDeLluvia.TablasD(fila, j),
                                           s.TablasDeLluvia.TablasR(fila, j)});
    }
    return tablas;
}

/// What the tables hold now is what their file holds.
void RecuerdaTablas(dlgTablasPDRs& f, const Siro& s)
{
    f.leidas = {EnMemoria(s), f.MSFlexGridTablaPDRs.filas};
}

void MuestraTabla(dlgTablasPDRs& f, Siro& s)
{
    const std::int16_t n = s.TablasDeLluvia.NroFilasTabla[Ranura(f)];
    f.editable = f.Tabla() != 0;
    f.txtNotas = s.TablasDeLluvia.NotasPDR[Ranura(f)];
    f.txtNroPDRs = NumeroATexto(n);
    forms::Grilla& g = f.MSFlexGridTablaPDRs = forms::NuevaGrilla(ReglasTabla);
    for (const forms::ColumnaEditable& editable : Editables)
        forms::PonEditable(g, editable.columna, f.editable);
    Ensancha(s, n);
    PonFilas(f, n);
    for (int j = 1; j <= n; ++j) {
        g.Pon({j, ColumnaP}, NumeroATexto(s.TablasDeLluvia.TablasP(f.Tabla(), j)));
        g.Pon({j, ColumnaD}, NumeroATexto(s.TablasDeLluvia.TablasD(f.Tabla(), j)));
        g.Pon({j, ColumnaR}, NumeroATexto(s.TablasDeLluvia.TablasR(f.Tabla(), j)));
    }
    f.leidas.filas = g.filas;
}

// --- apply ---

/// What is wrong with a table so far.
struct Revision {
    bool error = false;
    std::optional<forms::Celda> celda{};  ///< remembered last
};

/// Rows that the storms of the run are taken from.
void CargaDefecto(const dlgTablasPDRs& f, Siro& s)
{
    const forms::Grilla& g = f.MSFlexGridTablaPDRs;
    for (int j = 1; j <= s.Serie.NroSeriePDR; ++j) {
        s.Serie.SerieP(j) = Simple(g.Numero({j, ColumnaP}));
        s.Serie.SerieD(j) = Entero16(g.Numero({j, ColumnaD}));
        s.Serie.SerieR(j) = Entero16(g.Numero({j, ColumnaR}));
    }
}

void CargaP(const dlgTablasPDRs& f, Siro& s, Revision& revision)
{
    const forms::Grilla& g = f.MSFlexGridTablaPDRs;
    for (int j = 1; j <= s.Serie.NroSeriePDR; ++j) {
        const forms::Celda c{j, ColumnaP};
        const double p = g.Numero(c);
        if (!g.EsNumero(c) || p < 0 || p > MaximaP) revision = {true, c};
        s.Serie.SerieP(j) = Simple(p);
    }
}

/// Durations or recurrences: one of a list each. Only a cell that is no number is remembered.
void CargaDeLista(const dlgTablasPDRs& f, int columna, std::span<const std::int16_t> validos,
                  model::Arreglo<std::int16_t>& serie, Revision& revision)
{
    const forms::Grilla& g = f.MSFlexGridTablaPDRs;
    for (int j = 1; j <= g.NroFilas(); ++j) {
        const forms::Celda c{j, columna};
        const double valor = g.Numero(c);
        if (!g.EsNumero(c)) revision = {true, c};
        if (std::none_of(validos.begin(), validos.end(), [&](std::int16_t v) { return v == valor; }))
            revision.error = true;
        serie(j) = Entero16(valor);
    }
}

/// The table as it is kept: whole numbers, depths too.
void GuardaEnTablas(const dlgTablasPDRs& f, Siro& s)
{
    const forms::Grilla& g = f.MSFlexGridTablaPDRs;
    const int k = f.Tabla();
    Ensancha(s,
             *std::max_element(s.TablasDeLluvia.NroFilasTabla.begin(), s.TablasDeLluvia.NroFilasTabla.end()));
    for (int j = 1; j <= g.NroFilas(); ++j) {
        s.TablasDeLluvia.TablasP(k, j) = Entero16(g.Numero({j, ColumnaP}));
        s.TablasDeLluvia.TablasD(k, j) = Entero16(g.Numero({j, ColumnaD}));
        s.TablasDeLluvia.TablasR(k, j) = Entero16(g.Numero({j, ColumnaR}));
    }
}

/// Whether depths and durations don't fall among storms of one recurrence. A lower recurrence after a higher
/// one is no fault: kept as it stands.
bool Crece(const Siro& s, int k, int n)
{
    for (int j = 2; j <= n; ++j) {
        if (s.TablasDeLluvia.TablasR(k, j) != s.TablasDeLluvia.TablasR(k, j - 1)) continue;
        if (s.TablasDeLluvia.TablasP(k, j) < s.TablasDeLluvia.TablasP(k, j - 1) ||
            s.TablasDeLluvia.TablasD(k, j) < s.TablasDeLluvia.TablasD(k, j - 1))
            return false;
    }
    return true;
}

/// Loads and checks a personal table. Returns false where it is at fault.
bool CargaPersonal(dlgTablasPDRs& f, Siro& s)
{
    Revision revision;
    CargaP(f, s, revision);
    CargaDeLista(f, ColumnaD, DuracionesPDR, s.Serie.SerieD, revision);
    CargaDeLista(f, ColumnaR, RecurrenciasPDR, s.Serie.SerieR, revision);
    GuardaEnTablas(f, s);
    if (!Crece(s, f.Tabla(), f.MSFlexGridTablaPDRs.NroFilas())) revision.error = true;
    if (!revision.error) return true;
    model::Advierte(s, std::string(Inconsistentes), TituloInconsistentes);
    if (revision.celda) forms::Mueve(f.MSFlexGridTablaPDRs, *revision.celda);
    f.foco.control = "MSFlexGridTablaPDRs";
    return false;
}

void LlevaPrimera(dlgPp& pp, Siro& s)
{
    pp.txtPp = NumeroATexto(s.Serie.SerieP(1));
    pp.txtDur = NumeroATexto(s.Serie.SerieD(1));
    pp.cmbRec = NumeroATexto(s.Serie.SerieR(1));
    s.Tormenta.PpTormenta = s.Serie.SerieP(1);
    s.Tormenta.DurTormenta = s.Serie.SerieD(1);
    s.Tormenta.RecTormenta = s.Serie.SerieR(1);
}

/// Returns false where the tables had to be written and couldn't be, which has been told.
bool Aplica(dlgTablasPDRs& f, dlgPp& pp, Siro& s)
{
    bool guardada = true;
    forms::Deja(f.MSFlexGridTablaPDRs);
    const auto n = static_cast<std::int16_t>(f.MSFlexGridTablaPDRs.NroFilas());
    s.Serie.NroSeriePDR = n;
    s.Serie.SerieP.Dimensiona(n);
    s.Serie.SerieD.Dimensiona(n);
    s.Serie.SerieR.Dimensiona(n);
    if (f.Tabla() == 0) {
        CargaDefecto(f, s);
    } else {
        if (!CargaPersonal(f, s)) return true;
        guardada = model::GuardaTablaPDRs(s);
        if (guardada) RecuerdaTablas(f, s);
    }
    if (s.Serie.NroSeriePDR >= 1) LlevaPrimera(pp, s);
    return guardada;
}

}  // namespace

void Abre(dlgTablasPDRs& f, const dlgPp& pp, Siro& s)
{
    Evento(s, [&] {
        f = dlgTablasPDRs{.abierta = true};
        model::LeeTablaPDRs(s);
        f.cmbNroTablaPDRs = {{"0", "1", "2", "3"}, 0};
        f.cmbNroTablaPDRs.indice = std::max(pp.optTablaPDR, 0);
        MuestraTabla(f, s);
        RecuerdaTablas(f, s);
    });
}

void cmbNroTablaPDRs_Click(dlgTablasPDRs& f, dlgPp& pp, Siro& s)
{
    optTablaPDR_Click(pp, f.Tabla());
    Evento(s, [&] { MuestraTabla(f, s); });
}

void txtNotas_Change(const dlgTablasPDRs& f, Siro& s)
{
    if (f.editable) s.TablasDeLluvia.NotasPDR[Ranura(f)] = f.txtNotas;
}

bool txtNroPDRs_AlSalir(dlgTablasPDRs& f, Siro& s)
{
    if (!f.editable) return true;
    if (!forms::AlSalir(s, ReglaNroPDRs, f.txtNroPDRs)) return false;
    Evento(s, [&] {
        const std::int16_t n = Entero16(model::Val(f.txtNroPDRs));
        forms::ComoUnPaso(f.MSFlexGridTablaPDRs, [&] { PonFilas(f, n); });
        s.TablasDeLluvia.NroFilasTabla[Ranura(f)] = n;
        Ensancha(s, n);
    });
    return true;
}

void AlAsentar(dlgTablasPDRs& f, Siro& s, const forms::Efecto& efecto)
{
    if (!efecto.otrasFilas) return;
    const auto n = static_cast<std::int16_t>(f.MSFlexGridTablaPDRs.NroFilas());
    s.TablasDeLluvia.NroFilasTabla[Ranura(f)] = n;
    f.txtNroPDRs = NumeroATexto(n);
    Ensancha(s, n);
}

void cmdBorraTablaDisPer(dlgTablasPDRs& f, Siro& s)
{
    if (!f.editable) return;
    Evento(s, [&] {
        s.TablasDeLluvia.NroFilasTabla[Ranura(f)] = 0;
        s.TablasDeLluvia.NotasPDR[Ranura(f)].clear();
        forms::ComoUnPaso(f.MSFlexGridTablaPDRs, [&] { MuestraTabla(f, s); });
        model::GuardaTablaPDRs(s);
    });
}

void cmdAplicar(dlgTablasPDRs& f, dlgPp& pp, Siro& s)
{
    Evento(s, [&] { Aplica(f, pp, s); });
}

void OKButton(dlgTablasPDRs& f, dlgPp& pp, Siro& s)
{
    bool guardada = true;
    Evento(s, [&] { guardada = Aplica(f, pp, s); });
    f.abierta = !guardada;  // what couldn't be saved is nowhere but here
}

void CancelButton(dlgTablasPDRs& f)
{
    f.abierta = false;
}

bool SinAplicar(const dlgTablasPDRs& f, const Siro& s)
{
    return f.abierta && (f.MSFlexGridTablaPDRs.filas != f.leidas.filas ||
                         f.txtNroPDRs != NumeroATexto(s.TablasDeLluvia.NroFilasTabla[Ranura(f)]) ||
                         f.leidas.tablas != EnMemoria(s));
}

// --- chart ---

namespace {

constexpr std::string_view EjeTiempo = "t [min]";
constexpr std::string_view EjeLamina = "Pp [mm]";

/// Builds the hyetograph of a storm in a state of its own, so that the one in use stays as it is.
Siro Ensayo(const Siro& s, double p, double d)
{
    Siro ensayo;
    ensayo.Disco = s.Disco;
    ensayo.Proyecto.DirTrabajo = s.Proyecto.DirTrabajo;
    ensayo.Proyecto.DirProyecto = s.Proyecto.DirProyecto;
    ensayo.Tormenta.DistriPp = s.Tormenta.DistriPp;
    ensayo.Pasos.PasoPp = s.Pasos.PasoPp;
    ensayo.Tormenta.PpTormenta = Simple(p);
    ensayo.Tormenta.DurTormenta = Entero16(d);
    engine::ConstruyeHietograma(ensayo);
    return ensayo;
}

forms::Grafico Hietograma(const Siro& ensayo)
{
    forms::Grafico grafico;
    forms::Serie lluvia;
    for (int j = 1; j <= ensayo.Tormenta.NroPpReal; ++j) {
        grafico.categorias.push_back(NumeroATexto(
            model::Redondea(1.0 * ensayo.Tormenta.DurTormenta * j / ensayo.Tormenta.NroPpReal, 1)));
        lluvia.celdas.push_back(ensayo.Tormenta.PpReal(j));
    }
    grafico.series.push_back(std::move(lluvia));
    return grafico;
}

}  // namespace

forms::Grafico Vista(const dlgTablasPDRs& f, const Siro& s)
{
    forms::Grafico grafico;
    const forms::Grilla& g = f.MSFlexGridTablaPDRs;
    const int fila = g.actual.fila;
    if (g.Esta({fila, ColumnaP})) {
        const auto p = forms::NumeroDeCampo(g.Texto({fila, ColumnaP}));
        const auto d = forms::NumeroDeCampo(g.Texto({fila, ColumnaD}));
        if (p && d && *p > 0 && *d > 0) {
            // A number outside its type is told when the table is applied.
            model::Sentencia([&] { grafico = Hietograma(Ensayo(s, *p, *d)); });
            grafico.titulo = "P= " + g.Texto({fila, ColumnaP}) + " mm   D= " + g.Texto({fila, ColumnaD}) +
                             " min   R= " + g.Texto({fila, ColumnaR}) + " años";
        }
    }
    if (grafico.series.empty()) grafico.series.emplace_back();
    // Beside a table a chart shows no title.
    grafico.ejeX = grafico.titulo.empty() ? std::string(EjeTiempo)
                                          : std::string(EjeTiempo).append("   -   ").append(grafico.titulo);
    grafico.ejeY = EjeLamina;
    return grafico;
}

}  // namespace rainfall
