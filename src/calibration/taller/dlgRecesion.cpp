// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgRecesion.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

#include "calibration/Observada.h"
#include "forms/CampoNumerico.h"
#include "model/Numeros.h"

namespace calibration {
namespace {

std::string Numero(double x)
{
    return model::NumeroATexto(static_cast<float>(x));
}

/// Four figures: no fit by hand has more.
std::string Cifras(double x)
{
    constexpr int Cuantas = 4;
    std::array<char, 32> lugar{};
    char* const fin = lugar.data() + lugar.size();
    return {lugar.data(), std::to_chars(lugar.data(), fin, x, std::chars_format::general, Cuantas).ptr};
}

/// Base flow is a part of what was observed: where the line is above that, it isn't one.
std::string PorEncima(const dlgRecesion& f, double desde, double hasta)
{
    constexpr double Holgura = 1.1;
    std::size_t cuantas = 0;
    double primera = 0;
    for (const study::Punto& p : f.caudales) {
        const bool afuera = p.minuto >= 0 && (p.minuto < desde || p.minuto > hasta);
        if (!afuera || CaudalDeRecesion(f.ajuste, p.minuto) <= Holgura * p.valor) continue;
        if (cuantas++ == 0) primera = p.minuto;
    }
    if (cuantas == 0) return {};
    return "La recta pasa por encima de lo observado en " + std::to_string(cuantas) +
           (cuantas == 1 ? " lectura" : " lecturas") + ", la primera en el minuto " + Numero(primera) +
           ": allí no puede ser el caudal base. ";
}

void PonGrafico(dlgRecesion& f, double desde, double hasta)
{
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.titulo = f.tema;
    g.ejeX = "minutos";
    g.magnitudX = "t";
    g.ejeY = "Caudal [m3/s]";
    g.ejeYLogaritmico = true;
    g.leyendaVisible = true;
    forms::Serie observado{forms::TipoSerie::Puntos2D, "Observado", false, {}},
        recta{forms::TipoSerie::Linea2D, "Recesión ajustada", false, {}};
    for (const study::Punto& p : f.caudales) {
        if (!(p.valor > 0)) continue;
        g.categorias.push_back(Numero(p.minuto));
        g.abscisas.push_back(p.minuto);
        observado.celdas.push_back(p.valor);
        const bool dentro = f.ajuste.motivo.empty() && p.minuto >= desde && p.minuto <= hasta;
        recta.celdas.push_back(dentro ? CaudalDeRecesion(f.ajuste, p.minuto) : forms::CeldaVacia);
    }
    if (!observado.celdas.empty()) g.series = {std::move(observado), std::move(recta)};
    f.Grafico = std::move(g);
}

void Calcula(dlgRecesion& f, const dlgAjuste& ajuste)
{
    const double desde = forms::NumeroDeCampo(f.txtDesde).value_or(0),
                 hasta = forms::NumeroDeCampo(f.txtHasta).value_or(0);
    f.ajuste = AjustaRecesion(f.caudales, desde, hasta);
    f.reparto = RepartoDe(ProyectoDe(ajuste).Red, f.componente, f.ajuste);
    f.lblResultado = f.ajuste.motivo;
    if (f.ajuste.motivo.empty())
        f.lblResultado = "Q0 = " + Cifras(f.ajuste.Q0) + " m3/s, K = " + Cifras(f.ajuste.K) + " h, con " +
                         std::to_string(f.ajuste.lecturas) + " lecturas; residuo de ln Q " +
                         Cifras(f.ajuste.residuo) + " (en caudal, un factor " +
                         Cifras(std::exp(f.ajuste.residuo)) + "), r² = " + Cifras(f.ajuste.r2);
    f.lblAviso = f.reparto.motivo == f.ajuste.motivo ? std::string{} : f.reparto.motivo;
    if (f.ajuste.motivo.empty()) f.lblAviso += PorEncima(f, desde, hasta);
    f.lblAviso += f.reparto.aviso;
    forms::Planilla p{{std::string(TituloDlgRecesion), f.tema},
                      {{"Unidad", true}, {"Área [ha]"}, {"Q0 [m3/s]"}, {"K [h]"}},
                      {}};
    for (const BaseDeUnidad& u : f.reparto.unidades)
        p.filas.push_back({u.unidad, Numero(u.area), Cifras(u.Q0), Cifras(u.K)});
    forms::PonFilas(f.tblUnidades, std::move(p));
    PonGrafico(f, desde, hasta);
}

}  // namespace

void Abre(dlgRecesion& f, const dlgAjuste& ajuste)
{
    f = {};
    f.abierta = true;
    if (const study::Observacion* const o = ObservacionEnMano(ajuste)) {
        f.caudales = ObservadaDe(*o).puntos;
        f.componente = o->componente;
    }
    f.tema = TemaDe(ajuste) + ", " + f.componente;
    const study::Ventana rama = RamaDeRecesion(f.caudales);
    f.txtDesde = Numero(rama.desde);
    f.txtHasta = Numero(rama.hasta);
    Calcula(f, ajuste);
}

bool txtTiempo_AlSalir(dlgRecesion& f, const dlgAjuste& ajuste, const model::Siro& s)
{
    const auto desde = forms::NumeroDeCampo(f.txtDesde), hasta = forms::NumeroDeCampo(f.txtHasta);
    if (!desde || !hasta || *desde >= *hasta) {
        forms::MuestraRechazo(s, forms::Rechazo::Exclamacion,
                              "Desde y hasta son minutos, el primero menor que el segundo.");
        return false;
    }
    Calcula(f, ajuste);
    return true;
}

void cmdAplicar(dlgRecesion& f, dlgAjuste& ajuste)
{
    int cambiadas = 0;
    const bool hecho = ajuste.Aplica(
        [&](model::Red& red, model::Tormenta& /*tormenta*/) { cambiadas = Aplica(red, f.reparto); });
    f.lblAviso = !hecho ? "No se aplicó: el editor no se abrió."
                 : cambiadas == 0
                     ? "Las unidades ya tenían esos valores."
                     : (cambiadas == 1 ? std::string("Cambió 1 unidad")
                                       : "Cambiaron " + std::to_string(cambiadas) + " unidades") +
                           " en el editor, sin guardar; Ctrl+Z las vuelve atrás allí.";
}

void OKButton(dlgRecesion& f)
{
    f.abierta = false;
}

}  // namespace calibration
