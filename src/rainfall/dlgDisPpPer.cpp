// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgDisPpPer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "forms/Evento.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "rainfall/VistaLluvia.h"

namespace rainfall {

using forms::Evento;
using model::NumeroATexto;
using model::PrimeraPersonal;
using model::Siro;

namespace {

constexpr int NroTablas = 3;

constexpr int ColumnaTiempo = 1;
constexpr int ColumnaParcial = 2;
constexpr int ColumnaAcumulada = 3;
constexpr auto Editables = std::to_array<forms::ColumnaEditable>({{ColumnaParcial}});
constexpr forms::ReglasGrilla ReglasTabla{
    .encabezado = "^Período  |> T acumulado[%]  |>P parcial[%]  |>P acumulada[%]  ",
    .editables = Editables,
    .columnasFijas = 1};

constexpr double CierreMinimo = 99.99;   // [%]
constexpr double CierreMaximo = 100.01;  // [%]

// What an emptied table holds for.
constexpr std::int16_t DurMinVacia = 5;     // [min]
constexpr std::int16_t DurMaxVacia = 1440;  // [min]

constexpr std::string_view MinimaMayor =  // kept as it stands
    "El Límite inferior elegido es mayor al límite inferior seleccionado.";
constexpr std::string_view MaximaMenor =
    "El Límite superior elegido es menor al límite inferior seleccionado.";
constexpr std::string_view ErrorDeCierre =
    "Error de Cierre, la suma de Precipitaciones parciales debe ser 100%. Verifique los datos ingresados";

constexpr forms::ReglaNumero ReglaNroPer = forms::ReglaDeCuenta("txtNroPer");

std::size_t Ranura(const dlgDisPpPer& f)
{
    return static_cast<std::size_t>(f.Tabla());
}

// --- limits ---

forms::Lista NuevaLista(std::span<const std::int16_t> duraciones)
{
    forms::Lista lista;
    for (const std::int16_t d : duraciones)
        lista.items.push_back(NumeroATexto(d));
    return lista;
}

/// The first item where none is of that duration.
void Elige(forms::Lista& lista, std::int16_t d)
{
    if (!lista.Elige(NumeroATexto(d))) lista.indice = 0;
}

std::int16_t Minima(const dlgDisPpPer& f)
{
    return model::DuracionesMinimas[static_cast<std::size_t>(std::max(f.cmbDurMin.indice, 0))];
}

std::int16_t Maxima(const dlgDisPpPer& f)
{
    return model::DuracionesMaximas[static_cast<std::size_t>(std::max(f.cmbDurMax.indice, 0))];
}

// --- table ---

/// Room for n periods of any table.
void Ensancha(Siro& s, int n)
{
    auto& tabla = s.TablasDeLluvia.DisPerso;
    model::Ajusta(tabla, NroTablas, std::max(tabla.TopeColumna(), n + 1));
}

/// Time at the end of period j of n in percent of the duration, cut to two decimals.
double TiempoAcumulado(int j, int n)
{
    constexpr double Centesimos = 100;
    return std::floor(j * 100.0 / n * Centesimos) / Centesimos;
}

/// Periods and their times. Shares that were there stay.
void PonFilas(dlgDisPpPer& f, std::int16_t n)
{
    forms::Grilla& g = f.MSFlexGridDisPerso;
    forms::PonNroFilas(g, n);
    for (int j = 1; j <= n; ++j) {
        g.Pon({j, 0}, NumeroATexto(j));
        g.Pon({j, ColumnaTiempo}, NumeroATexto(TiempoAcumulado(j, n)));
    }
}

void Suma(dlgDisPpPer& f)
{
    forms::Grilla& g = f.MSFlexGridDisPerso;
    float suma = 0;
    for (int j = 1; j <= g.NroFilas(); ++j) {
        suma = model::Simple(double{suma} + double{model::Simple(g.Numero({j, ColumnaParcial}))});
        g.Pon({j, ColumnaAcumulada}, NumeroATexto(suma));
    }
}

void TomaCeldas(dlgDisPpPer& f, Siro& s, const forms::Efecto& efecto)
{
    for (const forms::Celda c : efecto.asentadas)
        if (c.columna == ColumnaParcial)
            s.TablasDeLluvia.DisPerso(f.Tabla(), c.fila) = model::Simple(f.MSFlexGridDisPerso.Numero(c));
    if (!efecto.asentadas.empty()) Suma(f);
}

/// Takes up the cell that is still being typed.
void Asienta(dlgDisPpPer& f, Siro& s)
{
    TomaCeldas(f, s, forms::Deja(f.MSFlexGridDisPerso));
}

std::array<DistribucionesLeidas::Tabla, NroTablas> EnMemoria(const Siro& s)
{
    std::array<DistribucionesLeidas::Tabla, NroTablas> tablas;
    for (std::size_t k = 1; k <= NroTablas; ++k) {
        auto& tabla = tablas[k - 1] = {s.TablasDeLluvia.NotasDisPer[k],
                                       s.TablasDeLluvia.DurMinPer[k],
                                       s.TablasDeLluvia.DurMaxPer[k],
                                       {}};
        for (int j = 1; j <= s.TablasDeLluvia.NroFilasTabla[k]; ++j)
            tabla.partes.push_back(s.TablasDeLluvia.DisPerso(static_cast<int>(k), j));
    }
    return tablas;
}

/// What the tables hold now is what their file holds.
void RecuerdaTablas(dlgDisPpPer& f, const Siro& s)
{
    f.leidas = {EnMemoria(s), f.MSFlexGridDisPerso.filas};
}

void MuestraTabla(dlgDisPpPer& f, Siro& s)
{
    const std::int16_t n = s.TablasDeLluvia.NroFilasTabla[Ranura(f)];
    f.txtNotas = s.TablasDeLluvia.NotasDisPer[Ranura(f)];
    f.txtNroPer = NumeroATexto(n);
    Elige(f.cmbDurMin, s.TablasDeLluvia.DurMinPer[Ranura(f)]);
    Elige(f.cmbDurMax, s.TablasDeLluvia.DurMaxPer[Ranura(f)]);
    f.MSFlexGridDisPerso = forms::NuevaGrilla(ReglasTabla);
    Ensancha(s, n);
    PonFilas(f, n);
    for (int j = 1; j <= n; ++j)
        f.MSFlexGridDisPerso.Pon({j, ColumnaParcial}, NumeroATexto(s.TablasDeLluvia.DisPerso(f.Tabla(), j)));
    Suma(f);
    f.leidas.filas = f.MSFlexGridDisPerso.filas;
}

/// Whether the table in hand may be written. What is wrong is told, and the cursor stands on it.
bool Cierra(dlgDisPpPer& f, const Siro& s)
{
    forms::Grilla& g = f.MSFlexGridDisPerso;
    const int n = g.NroFilas();
    int mala = 1;
    while (mala <= n && g.EsNumero({mala, ColumnaParcial}))
        ++mala;
    const bool numerica = mala > n;
    const double total = n == 0 ? 0 : g.Numero({n, ColumnaAcumulada});
    const bool cierra = n == 0 || (total >= CierreMinimo && total <= CierreMaximo);
    if (!cierra) model::Advierte(s, std::string(ErrorDeCierre), {});
    if (numerica && cierra) return true;
    forms::Mueve(g, {numerica ? 1 : mala, ColumnaParcial});
    f.foco.control = "MSFlexGridDisPerso";
    return false;
}

/// Returns false where the tables had to be written and couldn't be, which has been told.
bool Aplica(dlgDisPpPer& f, Siro& s)
{
    Asienta(f, s);
    if (!Cierra(f, s)) return true;
    if (!model::GuardaTablaDisPer(s)) return false;
    RecuerdaTablas(f, s);
    return true;
}

}  // namespace

void Abre(dlgDisPpPer& f, const dlgPp& pp, Siro& s)
{
    Evento(s, [&] {
        f = dlgDisPpPer{.abierta = true};
        model::LeeTablaDisTemPer(s);
        f.cmbDurMin = NuevaLista(model::DuracionesMinimas);
        f.cmbDurMax = NuevaLista(model::DuracionesMaximas);
        f.cmbNroTablaDisPpPer = {{"1", "2", "3"}, 0};
        if (pp.optDistriPp >= PrimeraPersonal)
            f.cmbNroTablaDisPpPer.indice = pp.optDistriPp - PrimeraPersonal;
        MuestraTabla(f, s);
        RecuerdaTablas(f, s);
    });
}

void cmbNroTablaDisPpPer_Click(dlgDisPpPer& f, dlgPp& pp, Siro& s)
{
    optDistriPp_Click(pp, s, PrimeraPersonal + f.cmbNroTablaDisPpPer.indice);
    Evento(s, [&] { MuestraTabla(f, s); });
}

void txtNotas_Change(const dlgDisPpPer& f, Siro& s)
{
    s.TablasDeLluvia.NotasDisPer[Ranura(f)] = f.txtNotas;
}

void cmbDurMin_Click(const dlgDisPpPer& f, Siro& s)
{
    if (Minima(f) > Maxima(f)) model::Advierte(s, std::string(MinimaMayor), {});
    s.TablasDeLluvia.DurMinPer[Ranura(f)] = Minima(f);
}

void cmbDurMax_Click(const dlgDisPpPer& f, Siro& s)
{
    s.TablasDeLluvia.DurMaxPer[Ranura(f)] = Maxima(f);
}

bool cmbDurMax_AlSalir(const dlgDisPpPer& f, const Siro& s)
{
    const bool pasa = Minima(f) <= Maxima(f);
    if (!pasa) model::Advierte(s, std::string(MaximaMenor), {});
    return pasa;
}

bool txtNroPer_AlSalir(dlgDisPpPer& f, Siro& s)
{
    if (!forms::AlSalir(s, ReglaNroPer, f.txtNroPer)) return false;
    Evento(s, [&] {
        Asienta(f, s);
        const std::int16_t n = model::Entero16(model::Val(f.txtNroPer));
        s.TablasDeLluvia.NroFilasTabla[Ranura(f)] = n;
        Ensancha(s, n);
        forms::ComoUnPaso(f.MSFlexGridDisPerso, [&] {
            PonFilas(f, n);
            Suma(f);
        });
    });
    return true;
}

void AlAsentar(dlgDisPpPer& f, Siro& s, const forms::Efecto& efecto)
{
    Evento(s, [&] {
        if (efecto.otrasFilas) {
            const auto n = static_cast<std::int16_t>(f.MSFlexGridDisPerso.NroFilas());
            s.TablasDeLluvia.NroFilasTabla[Ranura(f)] = n;
            f.txtNroPer = NumeroATexto(n);
            Ensancha(s, n);
        }
        TomaCeldas(f, s, efecto);
    });
}

void cmdBorraTablaDisPer(dlgDisPpPer& f, Siro& s)
{
    Evento(s, [&] {
        const std::size_t k = Ranura(f);
        s.TablasDeLluvia.NroFilasTabla[k] = 0;
        s.TablasDeLluvia.NotasDisPer[k].clear();
        s.TablasDeLluvia.DurMinPer[k] = DurMinVacia;
        s.TablasDeLluvia.DurMaxPer[k] = DurMaxVacia;
        forms::ComoUnPaso(f.MSFlexGridDisPerso, [&] { MuestraTabla(f, s); });
        f.cmbDurMin.indice = 0;
        f.cmbDurMax.indice = static_cast<int>(model::DuracionesMaximas.size()) - 1;
        if (model::GuardaTablaDisPer(s)) RecuerdaTablas(f, s);
    });
}

void cmdAplicar(dlgDisPpPer& f, Siro& s)
{
    Evento(s, [&] { Aplica(f, s); });
}

void OKButton(dlgDisPpPer& f, Siro& s)
{
    bool guardada = true;
    Evento(s, [&] { guardada = Aplica(f, s); });
    f.abierta = !guardada;  // what couldn't be saved is nowhere but here
}

void CancelButton(dlgDisPpPer& f)
{
    f.abierta = false;
}

bool SinAplicar(const dlgDisPpPer& f, const Siro& s)
{
    return f.abierta && (f.MSFlexGridDisPerso.filas != f.leidas.filas ||
                         f.txtNroPer != NumeroATexto(s.TablasDeLluvia.NroFilasTabla[Ranura(f)]) ||
                         f.leidas.tablas != EnMemoria(s));
}

forms::Grafico Vista(const dlgDisPpPer& f)
{
    return GraficoDeTabla(f.MSFlexGridDisPerso, {.columnaX = ColumnaTiempo,
                                                 .columnaY = ColumnaParcial,
                                                 .ejeX = "T acumulado [%]",
                                                 .ejeY = "P parcial [%]"});
}

}  // namespace rainfall
