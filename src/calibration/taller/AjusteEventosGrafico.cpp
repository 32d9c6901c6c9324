// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>

#include "calibration/Observada.h"
#include "calibration/Puntajes.h"
#include "calibration/taller/AjusteEventos.h"
#include "forms/PuntosEnPasos.h"
#include "model/Numeros.h"
#include "runs/ModeloDe.h"

namespace calibration {
namespace {

using model::NumeroATexto;

constexpr double MinutosPorHora = 60;
constexpr double MayorDibujo = 30'000;  // [min]

/// Row of a component in the order of the run; 0 where it isn't there.
int FilaDe(const model::Resultados& r, const std::string& componente)
{
    for (int i = 1; i <= r.NroComponentes && static_cast<std::size_t>(i) < r.Secuencia.size(); ++i)
        if (r.Secuencia[static_cast<std::size_t>(i)] == componente) return i;
    return 0;
}

std::size_t FilasDelGrafico(const AjusteEventos& m, const Observada& q)
{
    const double paso = m.corrida.lluvia.pasos.PasoQ;
    double filas = m.corrida.motivo.empty() ? m.corrida.resultados.NroPasosQ : 0;
    if (!q.puntos.empty() && paso > 0)
        filas = std::max(filas, std::ceil(std::clamp(q.puntos.back().minuto, 0.0, MayorDibujo) / paso));
    return static_cast<std::size_t>(filas);
}

/// Rain of each output step over the basin [mm]: the mean of the units by their areas, that of a model step
/// shared out evenly.
forms::Serie Lluvia(const CorridaDeEvento& c, const model::Red& red, std::size_t filas)
{
    forms::Serie serie{forms::TipoSerie::Escalon2D, "Lluvia media", true, std::vector<double>(filas, 0.0)};
    const model::Pasos& pasos = c.lluvia.pasos;
    double area = 0;
    for (const model::UEH& u : red.ColUEHs)
        area += u.Area;
    if (!(area > 0) || pasos.PasoPp < 1) return serie;
    const double parte = double{1} * pasos.PasoQ / pasos.PasoPp;
    for (std::size_t i = 0; i < filas; ++i) {
        const int paso = static_cast<int>(std::ceil(static_cast<double>(i + 1) * parte));
        double suma = 0;
        int numero = 0;
        for (const model::UEH& u : red.ColUEHs)
            if (++numero; c.resultados.PpUEHPaso.Alcanza(numero, paso))
                suma += u.Area * double{c.resultados.PpUEHPaso(numero, paso)};
        const bool llueve = (paso - 1) * pasos.PasoPp < c.lluvia.tormenta.DurTormenta;
        serie.celdas[i] = llueve ? suma / area * parte : 0;
    }
    return serie;
}

/// Run and observation side by side; nothing where one of them isn't there.
std::optional<Emparejados> Comparados(const CorridaDeEvento& c, const study::Observacion& o,
                                      const Observada& q)
{
    const int fila = c.motivo.empty() ? FilaDe(c.resultados, o.componente) : 0;
    if (fila == 0 || q.puntos.empty()) return {};
    const SerieSimulada simulada{
        std::span(c.resultados.QSale.Fila(fila), static_cast<std::size_t>(c.resultados.NroPasosQ) + 1),
        double{1} * c.lluvia.pasos.PasoQ};
    return Empareja(simulada, o, q.puntos);
}

std::vector<std::string> Comparacion(const CorridaDeEvento& c, const study::Observacion& o,
                                     const Observada& q)
{
    const std::optional<Emparejados> e = Comparados(c, o, q);
    if (!e) return {};
    std::vector<std::string> dichos;
    if (std::string palabras = EnPalabras(e->pares); !palabras.empty())
        dichos.push_back("La corrida, con los parámetros de ahora, " + palabras + ".");
    dichos.push_back(CuantosPares(*e));
    return dichos;
}

std::vector<std::string> FilasDudosas(const forms::Grilla& g, bool sonValores)
{
    std::vector<std::string> dichos;
    std::vector<double> minutos;
    for (std::size_t i = 0; i < g.filas.size(); ++i) {
        const bool uno = !g.filas[i].celdas[0].empty(), otro = !g.filas[i].celdas[1].empty();
        const std::string fila = "Fila " + std::to_string(i + 1) + ": ";
        if (uno != otro)
            dichos.push_back(fila + (uno ? "falta el segundo número." : "falta el primer número."));
        if (!uno || !otro || !sonValores) continue;
        const double minuto = model::Val(g.filas[i].celdas[0]);
        if (std::find(minutos.begin(), minutos.end(), minuto) != minutos.end())
            dichos.push_back(fila + "el minuto " + NumeroATexto(minuto) + " ya está: se toma el primero.");
        minutos.push_back(minuto);
    }
    return dichos;
}

std::vector<std::string> AvisosDe(const AjusteEventos& m, const dlgAjuste& f, const study::Observacion& o,
                                  const Observada& q, std::size_t fuera)
{
    std::vector<std::string> dichos;
    const auto junta = [&](std::vector<std::string> otros) {
        std::move(otros.begin(), otros.end(), std::back_inserter(dichos));
    };
    if (const auto* const danada = study::DanadaDe(f.estudio.SeriesDanadas(), o.archivo);
        danada && o.puntos.empty())
        dichos.push_back(danada->texto);
    if (!m.corrida.motivo.empty()) dichos.push_back("No hay hidrograma de la corrida. " + m.corrida.motivo);
    if (m.corrida.motivo.empty()) junta(Comparacion(m.corrida, o, q));
    if (m.corrida.motivo.empty() && !o.componente.empty() && FilaDe(m.corrida.resultados, o.componente) == 0)
        dichos.push_back("La red no tiene ningún componente " + o.componente + ".");
    if (!m.demasiados) junta(FilasDudosas(m.grdValores, true));
    junta(FilasDudosas(m.grdVentanas, false));
    junta(q.dudas);
    for (const study::Ventana& w : o.ventanas)
        if (!(w.desde <= w.hasta))
            dichos.push_back("La ventana de " + NumeroATexto(w.desde) + " a " + NumeroATexto(w.hasta) +
                             " min termina antes de empezar: no tiene ningún valor.");
    if (fuera > 0)
        dichos.push_back("El gráfico no muestra " + std::to_string(fuera) +
                         (fuera == 1 ? " lectura" : " lecturas") +
                         ": antes de la tormenta, o en el mismo paso que otra.");
    return dichos;
}

}  // namespace

void Corre(AjusteEventos& m, const dlgAjuste& f)
{
    CorridaDeEvento& c = m.corrida;
    const study::Evento* const e = EventoEnMano(f);
    if (e == nullptr) {
        c = {.motivo = "No hay ningún evento."};
        return;
    }
    study::Ajuste solo{.eventos = {*e}};
    solo.eventos.front().papel = "calibra";
    runs::ModeloDeProyecto puesto = runs::ModeloDe(ProyectoDe(f), solo);
    runs::Lluvia& lluvia = puesto.modelo.lluvias.front();
    // The file of a recorded storm may have become another one.
    const bool misma = c.cargas == f.cargas && c.origen == e->lluvia && c.motivo.empty() &&
                       c.lluvia.pasos.N0Dur == lluvia.pasos.N0Dur && e->lluvia.origen != "registrada";
    if (misma) return;
    c = {.cargas = f.cargas, .origen = e->lluvia, .lluvia = lluvia, .motivo = FaltaRed(f)};
    if (c.motivo.empty() && !puesto.reparos.empty()) c.motivo = puesto.reparos.front();
    if (!c.motivo.empty()) return;
    runs::Corredor corredor(puesto.modelo);
    const engine::Calculo& calculo = corredor.Corre({}, 0);
    c.motivo = runs::MotivoDe(calculo);
    c.resultados = calculo.Resultados;
}

void Dibuja(AjusteEventos& m, const dlgAjuste& f)
{
    const study::Observacion* const enMano = ObservacionEnMano(f);
    const study::Observacion o = enMano == nullptr ? study::Observacion{} : *enMano;
    const Observada q = ObservadaDe(o);
    const std::size_t filas = FilasDelGrafico(m, q);
    const double paso = m.corrida.lluvia.pasos.PasoQ;
    forms::Grafico g;
    g.titulo = TemaDe(f) + "\n" + o.componente;
    g.ejeX = "horas";
    g.magnitudX = "t";
    g.ejeY = "Caudal [m3/s]";
    g.ejeYSecundario = "Lluvia [mm]";
    g.leyendaVisible = true;
    g.marcasEjeX = false;
    for (std::size_t i = 1; i <= filas; ++i)
        g.categorias.push_back(
            NumeroATexto(std::floor(static_cast<double>(i) * paso / MinutosPorHora * 100) / 100));
    if (m.corrida.motivo.empty()) {
        const int fila = FilaDe(m.corrida.resultados, o.componente);
        forms::Serie corrida{forms::TipoSerie::Linea2D, "Corrida", false,
                             std::vector<double>(filas, forms::CeldaVacia)};
        for (int i = 1; fila > 0 && i <= m.corrida.resultados.NroPasosQ; ++i)
            corrida.celdas[static_cast<std::size_t>(i) - 1] = m.corrida.resultados.QSale(fila, i);
        if (fila > 0) g.series.push_back(std::move(corrida));
        g.series.push_back(Lluvia(m.corrida, ProyectoDe(f).Red, filas));
    }
    std::vector<forms::PuntoEnTiempo> puntos;
    for (const study::Punto& p : q.puntos)
        puntos.push_back({p.minuto, p.valor});
    forms::PuntosEnPasos observados = forms::EnPasos(puntos, filas, paso);
    observados.serie.leyenda = "Observado";
    if (!puntos.empty()) g.series.push_back(std::move(observados.serie));
    m.Grafico = std::move(g);
    if (const std::optional<Emparejados> e = Comparados(m.corrida, o, q))
        Pon(m.puntajes, *e, TemaDe(f) + ", " + o.componente);
    else
        Vacia(m.puntajes, "Falta una corrida, o lo observado, para comparar.");
    m.lblAvisos.clear();
    for (const std::string& aviso : AvisosDe(m, f, o, q, observados.fuera))
        m.lblAvisos.append(m.lblAvisos.empty() ? "• " : "\n• ").append(aviso);
}

}  // namespace calibration
