// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteCalibracion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <utility>

#include "calibration/Busqueda.h"
#include "calibration/Diagnostico.h"
#include "calibration/Juicio.h"
#include "calibration/Puntajes.h"
#include "calibration/taller/PedidosDeAjuste.h"
#include "model/Numeros.h"
#include "runs/Campos.h"
#include "runs/ModeloDe.h"

namespace calibration {

namespace {

using Campo = CampoDePedido<AjusteCalibracion, study::Calibracion>;
constexpr auto CamposDeCalibracion = std::to_array<Campo>({
    {{.control = "txtCorridas",
      .minimo = 10,
      .maximo = 1e6,
      .mensaje = "Las corridas son un entero de 10 a 1000000.",
      .clase = forms::ClaseNumero::Entero},
     "Corridas de la búsqueda",
     &AjusteCalibracion::txtCorridas,
     [](study::Calibracion& c, double x) { c.corridas = static_cast<int>(x); }},
    {{.control = "txtComplejos",
      .minimo = 1,
      .maximo = 100,
      .mensaje = "Los complejos son un entero de 1 a 100.",
      .clase = forms::ClaseNumero::Entero},
     "Complejos de la búsqueda",
     &AjusteCalibracion::txtComplejos,
     [](study::Calibracion& c, double x) { c.complejos = static_cast<int>(x); }},
    {{.control = "txtSemilla",
      .minimo = 0,
      .maximo = 4294967295.0,
      .mensaje = "La semilla es un entero de 0 a 4294967295.",
      .clase = forms::ClaseNumero::Entero},
     "Semilla de la búsqueda",
     &AjusteCalibracion::txtSemilla,
     [](study::Calibracion& c, double x) { c.semilla = static_cast<std::uint64_t>(x); }},
    {{.control = "txtCercania", .minimo = 0, .maximo = 1e6, .mensaje = "La cercanía es un número desde 0."},
     "Cercanía al mejor puntaje",
     &AjusteCalibracion::txtCercania,
     [](study::Calibracion& c, double x) { c.cercania = x; }},
});

const study::Calibracion& ComoDe(const dlgAjuste& f)
{
    return AjusteDe(f).calibracion;
}

void CambiaComo(dlgAjuste& f, std::string_view leyenda,
                const std::function<void(study::Calibracion&)>& cambio)
{
    CambiaPedido(f, leyenda, &study::Ajuste::calibracion, cambio);
}

/// Whether what a search was asked under has become something else.
bool Caduco(const AjusteCalibracion& m, const dlgAjuste& f)
{
    return m.cargas != f.cargas || m.parametros != AjusteDe(f).parametros || m.eventos != AjusteDe(f).eventos;
}

std::string Cifra(const std::optional<double>& x)
{
    return x && std::isfinite(*x) ? EnCuatroCifras(*x) : std::string();
}

std::vector<std::string> TitulosDe(const AjusteCalibracion& m, std::string_view que)
{
    std::vector<std::string> titulos{std::string(TituloDlgAjuste) + ": " + std::string(que), m.tema};
    if (!m.calibrado) return titulos;
    const study::Calibracion& como = m.pedido->como;
    const Puntaje& puntaje = *PuntajeDe(como.puntaje);
    titulos.push_back(std::string(MetodoDeBusquedaDe(como.metodo)->nombre) + ", " +
                      std::to_string(m.calibrado->corridas.size()) + " corridas, semilla " +
                      std::to_string(como.semilla) + "; " + std::string(puntaje.nombre) + " " +
                      Texto(puntaje, m.calibrado->Puntaje()));
    return titulos;
}

void PonTablas(AjusteCalibracion& m)
{
    forms::Planilla p{TitulosDe(m, "parámetros"),
                      {{"Parámetro", true},
                       {"Unidad", true},
                       {"Antes"},
                       {"Mejor"},
                       {"Casi igual, de"},
                       {"a"},
                       {"Aviso", true}},
                      {}};
    forms::Planilla e{TitulosDe(m, "puntaje de cada evento"),
                      {{"Evento", true},
                       {"Componente", true},
                       {"Papel", true},
                       {"Antes"},
                       {"Después"},
                       {"En palabras", true}},
                      {}};
    for (std::size_t i = 0; m.calibrado && i < m.calibrado->parametros.size(); ++i) {
        const Hallado& h = m.calibrado->parametros[i];
        p.filas.push_back({h.nombre, h.unidad, Cifra(h.antes), Cifra(h.mejor), Cifra(h.cercaMinimo),
                           Cifra(h.cercaMaximo), AvisoDe(*m.calibrado, i)});
    }
    if (m.calibrado)
        for (const PuntajeDeSitio& s : m.calibrado->sitios)
            e.filas.push_back({s.evento, s.componente, s.papel == "valida" ? "validación" : "calibración",
                               Cifra(s.antes), Cifra(s.despues), s.palabras});
    forms::PonFilas(m.tblParametros, std::move(p));
    forms::PonFilas(m.tblPuntajes, std::move(e));
}

/// The best score up to each run that made it better, and at the last one.
forms::Grafico GraficoDePuntaje(const AjusteCalibracion& m)
{
    std::vector<std::pair<std::size_t, double>> mejoras = m.vista.mejoras;
    std::size_t hechas = m.vista.hechas;
    if (m.calibrado) {
        mejoras.clear();
        const bool masEsMejor = PuntajeDe(m.pedido->como.puntaje)->masEsMejor;
        const auto& todas = m.calibrado->corridas;
        for (std::size_t i = 0; i < todas.size(); ++i)
            if (std::isfinite(todas[i].puntaje) &&
                (mejoras.empty() || (masEsMejor ? todas[i].puntaje > mejoras.back().second
                                                : todas[i].puntaje < mejoras.back().second)))
                mejoras.emplace_back(i + 1, todas[i].puntaje);
        hechas = todas.size();
    }
    forms::Grafico g;
    if (mejoras.empty()) return g;
    if (hechas > mejoras.back().first) mejoras.emplace_back(hechas, mejoras.back().second);
    g.tipo = forms::TipoGrafico::Linea;
    forms::Serie serie{.tipo = forms::TipoSerie::PuntosUnidos2D, .leyenda = "Mejor puntaje"};
    for (const auto& [corrida, puntaje] : mejoras) {
        g.abscisas.push_back(static_cast<double>(corrida));
        g.categorias.push_back(std::to_string(corrida));
        serie.celdas.push_back(puntaje);
    }
    g.series = {std::move(serie)};
    g.ejeX = "Corrida";
    g.ejeY = PuntajeDe(m.pedido->como.puntaje)->nombre;
    return g;
}

/// Event of the search by its place in the study; none where it takes no part.
std::optional<std::size_t> EventoDeLaBusqueda(const AjusteCalibracion& m, int evento)
{
    std::size_t k = 0;
    for (std::size_t i = 0; i < m.eventos.size(); ++i) {
        if (m.eventos[i].papel == "fuera") continue;
        if (static_cast<int>(i) == evento) return k;
        ++k;
    }
    return {};
}

/// The best set's flows at the observation in hand, with what was observed there.
forms::Grafico GraficoDeHidrograma(const AjusteCalibracion& m, const dlgAjuste& f)
{
    const std::vector<double>& valores = m.calibrado ? m.calibrado->Mejor() : m.vista.mejor;
    const auto cual = EventoDeLaBusqueda(m, f.evento);
    if (valores.empty() || !cual || *cual >= m.pedido->eventos.size()) return {};
    const auto& observaciones = m.pedido->eventos[*cual].observaciones;
    if (std::cmp_greater_equal(f.observacion, observaciones.size())) return {};
    const study::Observacion o = EnCaudal(observaciones[static_cast<std::size_t>(f.observacion)]);
    runs::Corredor corredor(m.pedido->modelo);
    const engine::Calculo& calculo = corredor.Corre(valores, *cual);
    std::map<double, std::array<double, 2>> filas;
    const auto celdas = [&](double minuto) -> std::array<double, 2>& {
        return filas.try_emplace(minuto, std::array{forms::CeldaVacia, forms::CeldaVacia}).first->second;
    };
    const SerieSimulada serie = SalidaDe(calculo, o.componente, m.pedido->modelo.lluvias[*cual].pasos.PasoQ);
    for (std::size_t p = 0; p < serie.valores.size(); ++p)
        celdas(static_cast<double>(p) * serie.paso)[0] = double{serie.valores[p]};
    for (const study::Punto& p : o.puntos)
        celdas(p.minuto)[1] = p.valor;
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.series = {{.tipo = forms::TipoSerie::Linea2D, .leyenda = "Calculado"},
                {.tipo = forms::TipoSerie::Puntos2D, .leyenda = "Observado"}};
    for (const auto& [minuto, valor] : filas) {
        g.abscisas.push_back(minuto);
        g.categorias.push_back(model::NumeroATexto(minuto));
        for (std::size_t i = 0; i < valor.size(); ++i)
            g.series[i].celdas.push_back(valor[i]);
    }
    g.ejeX = "min";
    g.magnitudX = "Tiempo";
    g.ejeY = "Caudal [m3/s]";
    g.leyendaVisible = true;
    return g;
}

void PonGrafico(AjusteCalibracion& m, const dlgAjuste& f)
{
    m.Grafico = {};
    if (!m.pedido) return;
    m.Grafico = m.grafico == 0 ? GraficoDePuntaje(m) : GraficoDeHidrograma(m, f);
    m.Grafico.titulo = std::string(GraficosDeCalibracion.at(static_cast<std::size_t>(m.grafico))) + "\n" +
                       (m.grafico == 0 ? m.tema : TemaDe(f));
}

void PonDichos(AjusteCalibracion& m, const dlgAjuste& f)
{
    m.lblEstado.clear();
    if (m.corriendo)
        m.lblEstado = m.vista.mejoras.empty()
                          ? "Buscando..."
                          : "Mejor hasta ahora: " +
                                Texto(*PuntajeDe(m.pedido->como.puntaje), m.vista.mejoras.back().second);
    else if (m.calibrado && Caduco(m, f))
        m.lblEstado = m.aplicada == f.cargas
                          ? "El mejor conjunto está en la red; guárdela en el editor, o deshágalo allí."
                          : "Lo que se ve es de antes: los datos cambiaron.";
    if (!m.reparos.empty())
        m.lblAvisos = Linea(m.reparos);
    else if (m.calibrado && !m.corriendo)
        m.lblAvisos = Linea(m.calibrado->dichos);
    else
        m.lblAvisos =
            std::string(m.metodo < 0 ? "" : MetodosDeBusqueda()[static_cast<std::size_t>(m.metodo)].cuando);
}

}  // namespace

AjusteCalibracion NuevaAjusteCalibracion()
{
    AjusteCalibracion m;
    for (const MetodoDeBusqueda& x : MetodosDeBusqueda())
        m.metodos.emplace_back(x.nombre);
    for (const Puntaje& p : Puntajes())
        m.puntajes.emplace_back(p.nombre);
    m.graficos.assign(GraficosDeCalibracion.begin(), GraficosDeCalibracion.end());
    return m;
}

void Toma(AjusteCalibracion& m, const dlgAjuste& f)
{
    // Another project's search says nothing of this one.
    if (!m.corriendo && m.tema != ProyectoDe(f).Proyecto.NombreProyecto) {
        m.calibrado.reset();
        m.pedido.reset();
        m.tema = ProyectoDe(f).Proyecto.NombreProyecto;
    }
    const study::Calibracion& c = ComoDe(f);
    m.txtCorridas = std::to_string(c.corridas);
    m.txtComplejos = std::to_string(c.complejos);
    m.txtSemilla = std::to_string(c.semilla);
    m.txtCercania = model::NumeroATexto(c.cercania);
    m.metodo = LugarDe(MetodosDeBusqueda(), c.metodo, -1);
    m.puntaje = LugarDe(Puntajes(), c.puntaje, -1);
    m.reparos.clear();
    PonTablas(m);
    PonGrafico(m, f);
    PonDichos(m, f);
}

std::string FaltaCalibracion(const dlgAjuste& f)
{
    if (std::string falta = FaltaRed(f); !falta.empty()) return falta;
    const study::Ajuste& a = AjusteDe(f);
    if (std::none_of(a.eventos.begin(), a.eventos.end(),
                     [](const study::Evento& e) { return e.papel == "calibra" && !e.observaciones.empty(); }))
        return "Falta un evento con lo que se observó: agréguelo en el paso 1.";
    if (std::none_of(a.parametros.begin(), a.parametros.end(),
                     [](const study::Parametro& p) { return p.activo; }))
        return "Falta decir qué parámetros se mueven y entre qué valores: propóngalos o agréguelos en el "
               "paso 2.";
    return {};
}

std::shared_ptr<const PedidoDeCalibracion> Empieza(AjusteCalibracion& m, const dlgAjuste& f)
{
    const study::Ajuste& a = AjusteDe(f);
    runs::ModeloDeProyecto proyecto = runs::ModeloDe(ProyectoDe(f), a);
    PedidoDeCalibracion p{.modelo = std::move(proyecto.modelo), .como = a.calibracion};
    for (const std::size_t cual : proyecto.eventos)
        p.eventos.push_back(a.eventos[cual]);
    m.reparos = std::move(proyecto.reparos);
    if (m.reparos.empty()) m.reparos = ReparosDe(p);
    m.corriendo = m.reparos.empty();
    if (m.corriendo) {
        m.pedido = std::make_shared<const PedidoDeCalibracion>(std::move(p));
        m.parametros = a.parametros;
        m.eventos = a.eventos;
        m.cargas = f.cargas;
        m.tema = ProyectoDe(f).Proyecto.NombreProyecto;
        m.vista = {};
        m.avance = {};
        m.calibrado.reset();
        PonTablas(m);
        PonGrafico(m, f);
    }
    PonDichos(m, f);
    return m.corriendo ? m.pedido : nullptr;
}

void Mira(AjusteCalibracion& m, const dlgAjuste& f, VistaDeCalibracion vista)
{
    m.vista = std::move(vista);
    PonGrafico(m, f);
    PonDichos(m, f);
}

void Termina(AjusteCalibracion& m, dlgAjuste& f, Calibrado calibrado, std::string_view fecha)
{
    m.corriendo = false;
    m.calibrado = std::move(calibrado);
    const study::Calibracion nueva = ParaElEstudio(*m.pedido, *m.calibrado, std::string(fecha));
    // What is asked may have been edited meanwhile: only what was found is put beside it.
    Cambia(f, "Calibrar", [&](study::Ajuste& a) {
        a.calibracion.campos = nueva.campos;
        a.calibracion.cercanos = nueva.cercanos;
        a.calibracion.fecha = nueva.fecha;
    });
    PonTablas(m);
    PonGrafico(m, f);
    PonDichos(m, f);
}

void Cancela(AjusteCalibracion& m, const dlgAjuste& f)
{
    m.corriendo = false;
    PonDichos(m, f);
    m.lblEstado = "Cancelado antes de la primera corrida.";
}

bool txtNumero_AlSalir(AjusteCalibracion& m, dlgAjuste& f, std::string_view control)
{
    return SaleDelCampo(m, f, std::span<const Campo>(CamposDeCalibracion), &study::Ajuste::calibracion,
                        control);
}

void cmbMetodoDeBusqueda_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Método de búsqueda", [&](study::Calibracion& c) {
        c.metodo = MetodosDeBusqueda()[static_cast<std::size_t>(cual)].clave;
    });
}

void cmbPuntajeDeBusqueda_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Puntaje de la búsqueda",
               [&](study::Calibracion& c) { c.puntaje = Puntajes()[static_cast<std::size_t>(cual)].clave; });
}

void cmbGrafico_Click(AjusteCalibracion& m, const dlgAjuste& f, int cual)
{
    m.grafico = cual;
    PonGrafico(m, f);
}

bool HayComplejos(const AjusteCalibracion& m)
{
    return m.metodo >= 0 && MetodosDeBusqueda()[static_cast<std::size_t>(m.metodo)].clave == "sce";
}

bool SePuedeAplicar(const AjusteCalibracion& m, const dlgAjuste& f)
{
    return m.calibrado && !m.corriendo && std::isfinite(m.calibrado->Puntaje()) && !Caduco(m, f);
}

void cmdAplicar(AjusteCalibracion& m, dlgAjuste& f)
{
    if (!SePuedeAplicar(m, f)) return;
    const runs::Modelo& modelo = m.pedido->modelo;
    const bool hecho = f.Aplica([&](model::Red& red, model::Tormenta& tormenta) {
        runs::Aplica(modelo.parametros, m.calibrado->Mejor(), modelo.lluvias.front().pasos, red, tormenta);
    });
    if (!hecho) return;
    // The network isn't the one that was searched any more: a factor must not be put in twice.
    study::Toma(f);
    m.aplicada = f.cargas;
    PonDichos(m, f);
}

forms::Planilla PlanillaDeCorridas(const AjusteCalibracion& m)
{
    forms::Planilla p{{}, {{"corrida"}}, {}};
    if (!m.calibrado) return p;
    for (const Hallado& h : m.calibrado->parametros)
        p.columnas.push_back({h.clave});
    p.columnas.push_back({"puntaje"});
    for (const CorridaHecha& c : m.calibrado->corridas) {
        std::vector<std::string> fila{std::to_string(p.filas.size() + 1)};
        for (const double x : c.valores)
            fila.push_back(model::NumeroATexto(x));
        fila.push_back(std::isfinite(c.puntaje) ? model::NumeroATexto(c.puntaje) : std::string());
        p.filas.push_back(std::move(fila));
    }
    return p;
}

forms::Planilla PlanillaDeCalibracion(const AjusteCalibracion& m)
{
    return forms::ALaVista(m.ficha == 0 ? m.tblParametros : m.tblPuntajes);
}

}  // namespace calibration
