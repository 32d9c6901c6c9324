// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteSensibilidad.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <thread>
#include <utility>

#include "calibration/EscribeSensibilidad.h"
#include "calibration/Puntajes.h"
#include "calibration/taller/AjusteIncertidumbre.h"
#include "calibration/taller/GraficoDeSensibilidad.h"
#include "calibration/taller/PedidosDeAjuste.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "runs/ModeloDe.h"

namespace calibration {

namespace {

constexpr int MenorBase = 16, MayorBase = 65536;

using Campo = CampoDePedido<AjusteSensibilidad, study::Sensibilidad>;
constexpr auto CamposDeSensibilidad = std::to_array<Campo>({
    {{.control = "txtTrayectorias",
      .minimo = 2,
      .maximo = 100000,
      .mensaje = "Las trayectorias son un entero de 2 a 100000.",
      .clase = forms::ClaseNumero::Entero},
     "Trayectorias de Morris",
     &AjusteSensibilidad::txtTrayectorias,
     [](study::Sensibilidad& s, double x) { s.trayectorias = static_cast<int>(x); }},
    {{.control = "txtNiveles",
      .minimo = 2,
      .maximo = 100,
      .mensaje = "Los niveles son un entero par de 2 a 100.",
      .clase = forms::ClaseNumero::Entero},
     "Niveles de Morris",
     &AjusteSensibilidad::txtNiveles,
     [](study::Sensibilidad& s, double x) { s.niveles = static_cast<int>(x); },
     [](double x) { return std::fmod(x, 2) == 0; }},
    {{.control = "txtSemilla",
      .minimo = 0,
      .maximo = 4294967295.0,
      .mensaje = "La semilla es un entero de 0 a 4294967295.",
      .clase = forms::ClaseNumero::Entero},
     "Semilla",
     &AjusteSensibilidad::txtSemilla,
     [](study::Sensibilidad& s, double x) { s.semilla = static_cast<std::uint64_t>(x); }},
});

const study::Sensibilidad& ComoDe(const dlgAjuste& f)
{
    return AjusteDe(f).sensibilidad;
}

void CambiaComo(dlgAjuste& f, std::string_view leyenda,
                const std::function<void(study::Sensibilidad&)>& cambio)
{
    CambiaPedido(f, leyenda, &study::Ajuste::sensibilidad, cambio);
}

bool Caduco(const AjusteSensibilidad& m, const dlgAjuste& f)
{
    const study::Ajuste &antes = m.del.ajuste, &ahora = AjusteDe(f);
    return m.del.cargas != f.cargas || antes.eventos != ahora.eventos ||
           antes.parametros != ahora.parametros || antes.sensibilidad != ahora.sensibilidad;
}

std::string Duracion(double segundos)
{
    constexpr double Minuto = 60, Poco = 0.1, Redondo = 10;
    if (segundos < Poco) return "menos de 0.1 s";
    if (segundos < Redondo) return "unos " + model::NumeroATexto(model::Redondea(segundos, 1)) + " s";
    if (segundos < 2 * Minuto) return "unos " + model::NumeroATexto(std::round(segundos)) + " s";
    return "unos " + model::NumeroATexto(std::round(segundos / Minuto)) + " min";
}

std::size_t Activos(const study::Ajuste& a)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(a.parametros, [](const study::Parametro& p) { return p.activo; }));
}

/// How long a run takes is measured once for each network and storm.
void PonCosto(AjusteSensibilidad& m, const dlgAjuste& f)
{
    m.lblCosto.clear();
    const study::Ajuste& a = AjusteDe(f);
    const std::size_t corridas = CorridasDeSensibilidad(Activos(a), a.sensibilidad);
    if (corridas == 0 || !FaltaSensibilidad(f).empty()) return;
    const std::string de = std::to_string(f.cargas) + '\n' + a.sensibilidad.medida.evento;
    if (m.medidos != de || m.segundos <= 0) {
        const runs::ModeloDeProyecto proyecto = runs::ModeloDe(ProyectoDe(f), a);
        m.segundos = proyecto.reparos.empty() ? SegundosPorCorrida(proyecto.modelo, a) : 0;
        m.medidos = de;
    }
    m.lblCosto = std::to_string(corridas) + " corridas";
    const auto hilos = std::max(1U, std::thread::hardware_concurrency());
    if (m.segundos > 0) m.lblCosto += ", " + Duracion(m.segundos * static_cast<double>(corridas) / hilos);
}

void PonDichos(AjusteSensibilidad& m, const dlgAjuste& f)
{
    m.lblEstado.clear();
    if (m.corriendo)
        m.lblEstado = m.analisis ? "Corriendo: lo que se ve es de antes." : "Corriendo...";
    else if (m.analisis && Caduco(m, f))
        m.lblEstado = "Lo que se ve es de antes: los datos cambiaron.";
    if (!m.reparos.empty())
        m.lblAvisos = Linea(m.reparos);
    else if (m.analisis)
        m.lblAvisos = Linea(EnPalabras(*m.analisis));
    else
        m.lblAvisos = "Pulse Analizar: se corre el proyecto con otros valores de los parámetros del paso 2.";
}

/// Words, formula and source below one another.
std::string Ficha(std::string_view dice, std::string_view formula, std::string_view fuente)
{
    return std::string(dice) + (dice.empty() ? "" : "<br>") + "<i>" + std::string(formula) +
           "</i><br><small>" + std::string(fuente) + ".</small>";
}

void PonListas(AjusteSensibilidad& m, const dlgAjuste& f)
{
    const study::Ajuste& a = AjusteDe(f);
    m.eventos = {a.eventos.empty() ? "(la tormenta en mano)" : "(el primero)"};
    for (const study::Evento& e : a.eventos)
        if (e.papel != "fuera" && !e.nombre.empty()) m.eventos.push_back(e.nombre);
    const std::string_view que = a.sensibilidad.medida.que;
    m.componentes = {que == "puntaje" ? "(el primero observado)"
                     : que == "nivel" ? "(la primera represa o laguna)"
                                      : "(la primera salida)"};
    model::CadaComponente(ProyectoDe(f).Red,
                          [&](const auto& c) { m.componentes.push_back(model::Nombre(c)); });
}

void PonAnalisis(AjusteSensibilidad& m)
{
    m.Grafico = {};
    forms::Planilla p{
        {std::string(TituloDlgAjuste) + ": sensibilidad", m.tema}, {{"N.º"}, {"Parámetro"}}, {}};
    if (m.analisis) {
        const forms::Planilla suya = PlanillaDe(*m.analisis);
        p.titulos.insert(p.titulos.end(), suya.titulos.begin(), suya.titulos.end());
        p.columnas = suya.columnas;
        p.filas = suya.filas;
        m.Grafico = GraficoDe(*m.analisis);
        m.Grafico.titulo = suya.titulos.front() + "\n" + m.tema;
    }
    forms::PonFilas(m.tblIndices, std::move(p));
}

}  // namespace

AjusteSensibilidad NuevaAjusteSensibilidad()
{
    AjusteSensibilidad m;
    for (const MetodoDeSensibilidad& x : MetodosDeSensibilidad())
        m.metodos.emplace_back(x.nombre);
    for (const ClaseDeMedida& x : ClasesDeMedida())
        m.ques.emplace_back(x.nombre);
    for (const Puntaje& p : Puntajes())
        m.puntajes.emplace_back(p.nombre);
    for (int base = MenorBase; base <= MayorBase; base *= 2)
        m.bases.push_back(std::to_string(base));
    return m;
}

void Toma(AjusteSensibilidad& m, const dlgAjuste& f)
{
    // Another project's analysis says nothing of this one.
    const std::string proyecto = ProyectoDe(f).Proyecto.NombreProyecto;
    if (m.analisis && m.tema != proyecto && !m.tema.starts_with(proyecto + ",")) m.analisis.reset();
    const study::Sensibilidad& s = ComoDe(f);
    PonListas(m, f);
    m.metodo = LugarDe(MetodosDeSensibilidad(), s.metodo);
    m.que = LugarDe(ClasesDeMedida(), s.medida.que);
    m.puntaje = LugarDe(Puntajes(), s.medida.puntaje);
    m.componente = ItemDe(m.componentes, s.medida.componente);
    m.evento = ItemDe(m.eventos, s.medida.evento);
    const auto base = std::ranges::find(m.bases, std::to_string(s.base));
    m.base = base == m.bases.end() ? -1 : static_cast<int>(base - m.bases.begin());
    m.txtTrayectorias = std::to_string(s.trayectorias);
    m.txtNiveles = std::to_string(s.niveles);
    m.txtSemilla = std::to_string(s.semilla);
    const MetodoDeSensibilidad& metodo = MetodosDeSensibilidad()[static_cast<std::size_t>(m.metodo)];
    m.lblMetodo = Ficha(metodo.dice, metodo.formula, metodo.fuente);
    const Puntaje& puntaje = Puntajes()[static_cast<std::size_t>(m.puntaje)];
    m.lblPuntaje = Ficha("", puntaje.formula, puntaje.fuente);
    m.reparos.clear();
    PonCosto(m, f);
    PonAnalisis(m);
    PonDichos(m, f);
}

std::string FaltaSensibilidad(const dlgAjuste& f)
{
    return FaltaIncertidumbre(f);  // a network and something that moves
}

bool EsDeMorris(const dlgAjuste& f)
{
    return ComoDe(f).metodo == "morris";
}

bool EsDeSobol(const dlgAjuste& f)
{
    return ComoDe(f).metodo == "sobol";
}

bool EsDePuntaje(const dlgAjuste& f)
{
    return ComoDe(f).medida.que == "puntaje";
}

std::optional<PedidoDeSensibilidad> Empieza(AjusteSensibilidad& m, const dlgAjuste& f)
{
    runs::ModeloDeProyecto proyecto = runs::ModeloDe(ProyectoDe(f), AjusteDe(f));
    PedidoDeSensibilidad p{std::move(proyecto.modelo), AjusteDe(f)};
    m.reparos = std::move(proyecto.reparos);
    if (m.reparos.empty()) m.reparos = ReparosDeSensibilidad(p.modelo, p.ajuste);
    m.corriendo = m.reparos.empty();
    if (m.corriendo) m.avance = {};
    PonDichos(m, f);
    if (!m.corriendo) return {};
    m.pedido = EnManoDe(f);
    return p;
}

void Termina(AjusteSensibilidad& m, const dlgAjuste& f, AnalisisDeSensibilidad analisis)
{
    m.corriendo = false;
    m.analisis = std::move(analisis);
    m.del = m.pedido;
    const std::string& evento = m.analisis->medida.medida.evento;
    m.tema = ProyectoDe(f).Proyecto.NombreProyecto + (evento.empty() ? std::string() : ", " + evento);
    PonAnalisis(m);
    PonDichos(m, f);
}

void Cancela(AjusteSensibilidad& m, const dlgAjuste& f)
{
    m.corriendo = false;
    PonDichos(m, f);
    if (m.lblEstado.empty()) m.lblEstado = m.analisis ? "Cancelado: lo que se ve es de antes." : "Cancelado.";
}

bool txtNumero_AlSalir(AjusteSensibilidad& m, dlgAjuste& f, std::string_view control)
{
    return SaleDelCampo(m, f, std::span<const Campo>(CamposDeSensibilidad), &study::Ajuste::sensibilidad,
                        control);
}

void cmbMetodo_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Método de la sensibilidad", [&](study::Sensibilidad& s) {
        s.metodo = MetodosDeSensibilidad()[static_cast<std::size_t>(cual)].clave;
    });
}

void cmbBase_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Muestras de Sobol", [&](study::Sensibilidad& s) { s.base = MenorBase << cual; });
}

void cmbQue_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Medida de la sensibilidad", [&](study::Sensibilidad& s) {
        s.medida.que = ClasesDeMedida()[static_cast<std::size_t>(cual)].clave;
    });
}

void cmbPuntaje_Click(const AjusteSensibilidad& /*m*/, dlgAjuste& f, int cual)
{
    CambiaComo(f, "Puntaje de la sensibilidad", [&](study::Sensibilidad& s) {
        s.medida.puntaje = Puntajes()[static_cast<std::size_t>(cual)].clave;
    });
}

void cmbComponente_Click(const AjusteSensibilidad& m, dlgAjuste& f, int cual)
{
    CambiaComo(f, "Componente de la sensibilidad",
               [&](study::Sensibilidad& s) { s.medida.componente = DeItem(m.componentes, cual); });
}

void cmbDeEvento_Click(const AjusteSensibilidad& m, dlgAjuste& f, int cual)
{
    CambiaComo(f, "Evento de la sensibilidad",
               [&](study::Sensibilidad& s) { s.medida.evento = DeItem(m.eventos, cual); });
}

forms::Planilla PlanillaDeSensibilidad(const AjusteSensibilidad& m)
{
    return forms::ALaVista(m.tblIndices);
}

}  // namespace calibration
