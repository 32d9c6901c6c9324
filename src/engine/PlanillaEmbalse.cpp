// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>

#include "engine/EmbalseEnMano.h"
#include "engine/Resumen.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Redondea;
using model::Simple;
using model::Siro;

namespace {

/// The line that names component and method, in the sheet and ahead of the table.
std::string LineaMetodo(const Corrida& c, const EmbalseEnMano& e)
{
    return "Componente: " + std::string(e.palabra) + " " +
           c.s.Resultados.Secuencia[static_cast<std::size_t>(e.fila)] +
           "     Método de Propagación: " + e.metodo;
}

/// Table, peak and volumes, row by row from step 0.
void ResumePasoAPaso(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    for (int paso = 0; paso <= s.Resultados.NroPasosQ; ++paso) {
        const auto k = static_cast<std::int16_t>(paso);
        const std::int16_t t = Minutos(k, s.Pasos.PasoQ);
        const float entra = s.Resultados.QEntra(e.fila, k), sale = s.Resultados.QSale(e.fila, k);
        if (s.Control.SalidaPizarra) {
            c.Linea.Vacia();
            c.Linea.Pone("\r\n ").Izquierda(std::int32_t{k}, 7).Izquierda(std::int32_t{t}, 7);
            c.Linea.Izquierda(Redondea(entra, 3), 11).Izquierda(Redondea(sale, 3), 13);
            c.Linea.Izquierda(Redondea(e.H(e.numero, k), 2), 10).Izquierda(Redondea(e.S(e.numero, k), 0), 10);
            s.Control.TextoPizarra.append(c.Linea.Texto());
        }
        SubePico(s, e.fila, k);
        s.Resultados.VolEntra = Simple(SumaVolumen(s.Resultados.VolEntra, entra, s.Pasos.PasoQ));
        s.Resultados.VolSale = Simple(SumaVolumen(s.Resultados.VolSale, sale, s.Pasos.PasoQ));
    }
}

}  // namespace

void AbreDetalle(Corrida& c, const EmbalseEnMano& e, std::string_view encabezado)
{
    if (!c.ConTexto) return;
    c.s.Control.TextoPizarra.append("\r\nPlanilla detallada de cálculo de propagación en ")
        .append(e.palabra)
        .append(" \r\n")
        .append(encabezado)
        .append("\r\n")
        .append(LineaMetodo(c, e));
}

void CierraDetalle(Corrida& c, const EmbalseEnMano& e)
{
    if (c.ConTexto)
        c.s.Control.TextoPizarra.append("\r\n Fin detalle cálculo proaga en ").append(e.palabra).append(" ");
}

void AgregaDetalle(Corrida& c, const EmbalseEnMano& e, std::int16_t t, const RenglonDetalle& r)
{
    const model::Resultados& resultados = c.s.Resultados;
    const float entra = resultados.QEntra(e.fila, r.k), sale = resultados.QSale(e.fila, r.k);
    c.Linea.Vacia();
    c.Linea.Pone("\r\n").Detalle(std::int32_t{r.k}, 3).Detalle(std::int32_t{t}, 3).Detalle(entra, 3);
    c.Linea.Detalle(r.columnas[0], 3).Detalle(r.columnas[1], 3).Detalle(r.columnas[2], 8).Detalle(sale, 2);
    c.Linea.Detalle(r.H, 2).Detalle(r.S, 0);
    c.s.Control.TextoPizarra.append(c.Linea.Texto());
}

void EscribeTabla(Corrida& c, const EmbalseEnMano& e)
{
    Siro& s = c.s;
    s.Resultados.VolEntra = 0;
    s.Resultados.VolSale = 0;
    if (s.Control.SalidaPizarra)
        s.Control.TextoPizarra.append("\r\n\r\n")
            .append(LineaMetodo(c, e))
            .append("\r\n")
            .append("Per.k  t[min]  Qentra[")
            .append(e.unidad)
            .append("] Qsale[m3/s]   H[m]     Vol.Alm.[m3]");
    if (s.Control.SalidaPizarra || !Resume(c, e.fila, {0, s.Resultados.NroPasosQ})) ResumePasoAPaso(c, e);
    if (!s.Control.SalidaPizarra) return;
    EscribeResumen(c, e.fila);
    s.Control.TextoPizarra += "\r\n";
    s.Anfitrion.AmpliaPizarra(s.Control.TextoPizarra);
}

}  // namespace engine
