// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgRecesion.h"

#include <algorithm>
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
    f.lblResultado = f.ajuste.motivo.empty()
                         ? "Q0 = " + Numero(f.ajuste.Q0) + " m3/s, K = " + Numero(f.ajuste.K) + " h, con " +
                               std::to_string(f.ajuste.lecturas) + " lecturas; residuo de ln Q " +
                               Numero(f.ajuste.residuo) + " (en caudal, un factor " +
                               Numero(1 + f.ajuste.residuo) + "), r² = " + Numero(f.ajuste.r2)
                         : f.ajuste.motivo;
    f.lblAviso = f.reparto.motivo == f.ajuste.motivo ? std::string{} : f.reparto.motivo;
    f.lblAviso += f.reparto.aviso;
    forms::Planilla p{{std::string(TituloDlgRecesion), f.tema},
                      {{"Unidad", true}, {"Área [ha]"}, {"Q0 [m3/s]"}, {"K [h]"}},
                      {}};
    for (const BaseDeUnidad& u : f.reparto.unidades)
        p.filas.push_back({u.unidad, Numero(u.area), Numero(u.Q0), Numero(u.K)});
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
    f.lblAviso = !hecho           ? "No se aplicó: el editor no se abrió."
                 : cambiadas == 0 ? "Las unidades ya tenían esos valores."
                                  : "Cambiaron " + std::to_string(cambiadas) +
                                        " unidades en el editor, sin guardar; Ctrl+Z las vuelve atrás allí.";
}

void OKButton(dlgRecesion& f)
{
    f.abierta = false;
}

}  // namespace calibration
