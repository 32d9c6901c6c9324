// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteEventos.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include "calibration/ImportaObservada.h"
#include "calibration/Observada.h"
#include "checks/Sello.h"
#include "forms/CampoNumerico.h"
#include "forms/MomentoDeRegistro.h"
#include "forms/ReglasGrilla.h"
#include "model/ArchivosTormenta.h"
#include "model/Clases.h"
#include "model/Falla.h"
#include "model/Numeros.h"

namespace calibration {
namespace {

using study::Ajuste;
using study::Evento;
using study::Observacion;
using study::Punto;

constexpr int FilasLibres = 50, FilasAlMenos = 100;
constexpr std::size_t MaximoEnGrilla = 5000;
constexpr double MayorPeso = 1e6;

constexpr auto Papeles = std::to_array<std::string_view>({"calibra", "valida", "fuera"});
constexpr auto Origenes = std::to_array<std::string_view>({"proyecto", "registrada", "lamina"});
constexpr auto Magnitudes = std::to_array<std::string_view>({"caudal", "nivel"});
constexpr auto Interpolaciones = std::to_array<std::string_view>({"log", "lineal"});
constexpr int Distribuciones = 8;

template <typename Claves>
int LugarDe(const Claves& claves, std::string_view clave)
{
    const auto hallada = std::find(claves.begin(), claves.end(), clave);
    return hallada == claves.end() ? 0 : static_cast<int>(hallada - claves.begin());
}

template <typename Claves>
std::string ClaveDe(const Claves& claves, int cual)
{
    return std::string(
        claves[static_cast<std::size_t>(std::clamp(cual, 0, static_cast<int>(claves.size()) - 1))]);
}

// --- fields ---

using Texto = std::string AjusteEventos::*;

template <typename Dueno>
struct CampoDeTexto {
    std::string_view control, leyenda;
    Texto texto;
    std::string Dueno::*en;
};
constexpr auto TextosDeEvento = std::to_array<CampoDeTexto<Evento>>({
    {"txtNombre", "Nombre del evento", &AjusteEventos::txtNombre, &Evento::nombre},
    {"txtInicio", "Inicio del evento", &AjusteEventos::txtInicio, &Evento::inicio},
});
constexpr auto TextosDeObservacion = std::to_array<CampoDeTexto<Observacion>>({
    {"txtFuente", "Fuente de la observación", &AjusteEventos::txtFuente, &Observacion::fuente},
    {"txtNotas", "Notas de la observación", &AjusteEventos::txtNotas, &Observacion::notas},
});

/// A number of the event in hand, or of its observation.
struct CampoDeNumero {
    forms::ReglaNumero regla;
    std::string_view leyenda;
    Texto texto;
    double (*lee)(const Evento&, const Observacion&);
    void (*pone)(const dlgAjuste&, Ajuste&, double);
};
constexpr auto Numeros = std::to_array<CampoDeNumero>({
    {{.control = "txtPesoEvento", .maximo = MayorPeso, .mensaje = "El peso va de 0 a 1000000."},
     "Peso del evento",
     &AjusteEventos::txtPesoEvento,
     [](const Evento& e, const Observacion&) { return e.peso; },
     [](const dlgAjuste& f, Ajuste& a, double x) { EventoDe(f, a).peso = x; }},
    {{.control = "txtLamina", .unidad = "mm", .maximo = 5000, .mensaje = "La lámina va de 0 a 5000 mm."},
     "Lámina del evento",
     &AjusteEventos::txtLamina,
     [](const Evento& e, const Observacion&) { return e.lluvia.lamina; },
     [](const dlgAjuste& f, Ajuste& a, double x) { EventoDe(f, a).lluvia.lamina = x; }},
    {{.control = "txtDuracion",
      .unidad = "min",
      .minimo = 1,
      .maximo = 20000,
      .mensaje = "La duración va de 1 a 20000 minutos enteros.",
      .clase = forms::ClaseNumero::Entero},
     "Duración del evento",
     &AjusteEventos::txtDuracion,
     [](const Evento& e, const Observacion&) { return double{1} * e.lluvia.duracion; },
     [](const dlgAjuste& f, Ajuste& a, double x) { EventoDe(f, a).lluvia.duracion = static_cast<int>(x); }},
    {{.control = "txtPromedio",
      .unidad = "min",
      .maximo = 1440,
      .mensaje = "Los minutos del promedio van de 0 (valores de su instante) a 1440."},
     "Promedio de los valores",
     &AjusteEventos::txtPromedio,
     [](const Evento&, const Observacion& o) { return o.promedio; },
     [](const dlgAjuste& f, Ajuste& a, double x) { ObservacionDe(f, a).promedio = x; }},
    {{.control = "txtPesoObservacion", .maximo = MayorPeso, .mensaje = "El peso va de 0 a 1000000."},
     "Peso de la observación",
     &AjusteEventos::txtPesoObservacion,
     [](const Evento&, const Observacion& o) { return o.peso; },
     [](const dlgAjuste& f, Ajuste& a, double x) { ObservacionDe(f, a).peso = x; }},
});

Evento EventoCopiado(const dlgAjuste& f)
{
    const Evento* const e = EventoEnMano(f);
    return e == nullptr ? Evento{} : *e;
}

Observacion ObservacionCopiada(const dlgAjuste& f)
{
    const Observacion* const o = ObservacionEnMano(f);
    return o == nullptr ? Observacion{} : *o;
}

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

// --- grids ---

constexpr auto EditablesDeValores = std::to_array<forms::ColumnaEditable>({{.columna = 0}, {.columna = 1}});
constexpr auto EditablesDeVentanas = std::to_array<forms::ColumnaEditable>(
    {{.columna = 0}, {.columna = 1}, {2, MayorPeso, "El peso no puede pasar de 1000000."}});
constexpr forms::ReglasGrilla ReglasValores{
    .encabezado = ">  Minuto  |>  Caudal [m3/s]  ", .editables = EditablesDeValores, .enterPoneCero = false};
constexpr forms::ReglasGrilla ReglasVentanas{.encabezado = ">  Desde [min]  |>  Hasta [min]  |>  Peso  ",
                                             .editables = EditablesDeVentanas,
                                             .enterPoneCero = false};
constexpr forms::ReglasGrilla ReglasCurva{.encabezado = ">  Nivel [m]  |>  Caudal [m3/s]  ",
                                          .editables = EditablesDeValores,
                                          .enterPoneCero = false};

using Fila = std::vector<double>;

void PonFilas(forms::Grilla& g, const std::vector<Fila>& filas)
{
    forms::PonNroFilas(g, 0);
    forms::PonNroFilas(g, std::max(static_cast<int>(filas.size()) + FilasLibres, FilasAlMenos));
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (std::size_t c = 0; c < filas[i].size(); ++c)
            g.Pon({static_cast<int>(i) + 1, static_cast<int>(c)}, Numero(filas[i][c]));
}

/// The rows whose first `hacenFalta` cells are numbers, by the first.
std::vector<Fila> FilasDe(const forms::Grilla& g, std::size_t hacenFalta)
{
    std::vector<Fila> filas;
    for (const forms::FilaGrilla& fila : g.filas) {
        Fila numeros;
        for (const std::string& celda : fila.celdas) {
            const auto x = forms::NumeroDeCampo(celda);
            if (!x) break;
            numeros.push_back(*x);
        }
        if (numeros.size() >= hacenFalta) filas.push_back(std::move(numeros));
    }
    std::stable_sort(filas.begin(), filas.end(), [](const Fila& a, const Fila& b) { return a[0] < b[0]; });
    return filas;
}

/// Two at one time can't be told apart: the first one is taken.
std::vector<Punto> PuntosDe(const forms::Grilla& g)
{
    std::vector<Punto> puntos;
    for (const Fila& fila : FilasDe(g, 2))
        if (puntos.empty() || puntos.back().minuto < fila[0]) puntos.push_back({fila[0], fila[1]});
    return puntos;
}

std::vector<study::Ventana> VentanasDe(const forms::Grilla& g)
{
    std::vector<study::Ventana> ventanas;
    for (const Fila& fila : FilasDe(g, 2))
        ventanas.push_back({fila[0], fila[1], fila.size() > 2 ? fila[2] : 1});
    return ventanas;
}

std::vector<study::PuntoDeCurva> CurvaDe(const forms::Grilla& g)
{
    std::vector<study::PuntoDeCurva> curva;
    for (const Fila& fila : FilasDe(g, 2))
        curva.push_back({fila[0], std::max(0.0, fila[1])});
    return curva;
}

void PonGrillas(AjusteEventos& m, const Observacion& o)
{
    m.grdValores.columnas[1].titulo = o.magnitud == "nivel" ? "  Nivel [m]  " : "  Caudal [m3/s]  ";
    m.demasiados = o.puntos.size() > MaximoEnGrilla;
    std::vector<Fila> filas;
    for (std::size_t i = 0; i < std::min(o.puntos.size(), MaximoEnGrilla); ++i)
        filas.push_back({o.puntos[i].minuto, o.puntos[i].valor});
    // What is typed stays as it was typed while it says the same.
    if (m.demasiados || PuntosDe(m.grdValores) != o.puntos) PonFilas(m.grdValores, filas);
    for (const int columna : {0, 1})
        forms::PonEditable(m.grdValores, columna, !m.demasiados);
    filas.clear();
    for (const study::Ventana& w : o.ventanas)
        filas.push_back({w.desde, w.hasta, w.peso});
    if (VentanasDe(m.grdVentanas) != o.ventanas) PonFilas(m.grdVentanas, filas);
    filas.clear();
    for (const study::PuntoDeCurva& p : o.curva)
        filas.push_back({p.nivel, p.caudal});
    if (CurvaDe(m.grdCurva) != o.curva) PonFilas(m.grdCurva, filas);
    m.lblValores = o.puntos.empty() ? "Sin valores: impórtelos, péguelos o escríbalos."
                   : m.demasiados
                       ? std::to_string(o.puntos.size()) + " valores; la tabla muestra los primeros " +
                             std::to_string(MaximoEnGrilla) + " y no los cambia."
                       : std::to_string(o.puntos.size()) + " valores.";
}

/// From here on the workshop's own undoing takes back what was typed.
void OlvidaPasos(forms::Grilla& g)
{
    g.hechos.clear();
    g.deshechos.clear();
}

// --- lists ---

std::vector<std::string> ComponentesDe(const model::Red& red)
{
    std::vector<std::string> nombres;
    model::CadaComponente(red, [&](const auto& c) { nombres.push_back(model::Nombre(c)); });
    return nombres;
}

/// Place of a text in a list, where it is put if it isn't there: what the study has is always on show.
int Puesto(std::vector<std::string>& lista, const std::string& texto)
{
    if (texto.empty()) return -1;
    const auto hallado = std::find(lista.begin(), lista.end(), texto);
    if (hallado == lista.end()) return lista.push_back(texto), static_cast<int>(lista.size()) - 1;
    return static_cast<int>(hallado - lista.begin());
}

std::vector<std::string> TormentasDe(const dlgAjuste& f)
{
    std::vector<std::string> nombres;
    model::Sentencia([&] { nombres = model::ListaTormentas(f.s); });
    return nombres;
}

std::string NombreLibre(const Ajuste& a, const std::string& comienzo)
{
    for (std::size_t n = a.eventos.size() + 1;; ++n) {
        const std::string nombre = comienzo + std::to_string(n);
        if (std::none_of(a.eventos.begin(), a.eventos.end(),
                         [&](const Evento& e) { return e.nombre == nombre; }))
            return nombre;
    }
}

void PonEvento(dlgAjuste& f, std::string_view leyenda, Evento nuevo)
{
    const auto lugar = AjusteDe(f).eventos.empty() ? 0 : f.evento + 1;
    Cambia(f, leyenda, [&](Ajuste& a) { a.eventos.insert(a.eventos.begin() + lugar, std::move(nuevo)); });
    cmbEvento_Click(f, lugar);
}

bool Inicio_Vale(AjusteEventos& m, const model::Siro& s)
{
    if (m.txtInicio.empty()) return true;
    const auto momento = forms::MomentoDeRegistro(m.txtInicio);
    if (momento) {
        m.txtInicio = TextoDeMomento(*momento);
        return true;
    }
    forms::MuestraRechazo(s, forms::Rechazo::Exclamacion,
                          "El inicio es una fecha con su hora, como 2019-03-04 12:00 o 04/03/2019 12:00.");
    return false;
}

}  // namespace

AjusteEventos NuevaAjusteEventos()
{
    AjusteEventos m;
    m.grdValores = forms::NuevaGrilla(ReglasValores);
    m.grdVentanas = forms::NuevaGrilla(ReglasVentanas);
    m.grdCurva = forms::NuevaGrilla(ReglasCurva);
    for (forms::Grilla* const g : {&m.grdValores, &m.grdVentanas, &m.grdCurva})
        PonFilas(*g, {});
    for (int i = 0; i < Distribuciones; ++i)
        m.distribuciones.push_back(checks::NombreDeDistribucion(static_cast<std::int16_t>(i)));
    return m;
}

void Toma(AjusteEventos& m, const dlgAjuste& f)
{
    const Evento e = EventoCopiado(f);
    const Observacion o = ObservacionCopiada(f);
    for (const auto& campo : TextosDeEvento)
        m.*campo.texto = e.*campo.en;
    for (const auto& campo : TextosDeObservacion)
        m.*campo.texto = o.*campo.en;
    for (const CampoDeNumero& campo : Numeros)
        m.*campo.texto = Numero(campo.lee(e, o));
    m.papel = LugarDe(Papeles, e.papel);
    m.origen = LugarDe(Origenes, e.lluvia.origen);
    m.tormentas = TormentasDe(f);
    m.tormenta = Puesto(m.tormentas, e.lluvia.archivo);
    m.distribucion = e.lluvia.distribucion;
    m.componentes = ComponentesDe(ProyectoDe(f).Red);
    m.componente = Puesto(m.componentes, o.componente);
    m.magnitud = LugarDe(Magnitudes, o.magnitud);
    m.interpolacion = LugarDe(Interpolaciones, o.interpolacion);
    PonGrillas(m, o);
    Corre(m, f);
    Dibuja(m, f);
}

bool txt_AlSalir(AjusteEventos& m, dlgAjuste& f, const model::Siro& s, std::string_view control)
{
    if (control == "txtInicio" && !Inicio_Vale(m, s)) return false;
    const Evento e = EventoCopiado(f);
    const Observacion o = ObservacionCopiada(f);
    for (const auto& campo : TextosDeEvento)
        if (campo.control == control && m.*campo.texto != e.*campo.en)
            Cambia(f, campo.leyenda, [&](Ajuste& a) { EventoDe(f, a).*campo.en = m.*campo.texto; });
    for (const auto& campo : TextosDeObservacion)
        if (campo.control == control && m.*campo.texto != o.*campo.en)
            Cambia(f, campo.leyenda, [&](Ajuste& a) { ObservacionDe(f, a).*campo.en = m.*campo.texto; });
    for (const CampoDeNumero& campo : Numeros) {
        if (campo.regla.control != control) continue;
        if (!forms::AlSalir(s, campo.regla, m.*campo.texto)) return false;
        const double x = *forms::NumeroDeCampo(m.*campo.texto);
        if (x != campo.lee(e, o)) Cambia(f, campo.leyenda, [&](Ajuste& a) { campo.pone(f, a, x); });
    }
    return true;
}

void cmbPapel_Click(dlgAjuste& f, int cual)
{
    Cambia(f, "Papel del evento", [&](Ajuste& a) { EventoDe(f, a).papel = ClaveDe(Papeles, cual); });
}

void cmbOrigen_Click(dlgAjuste& f, int cual)
{
    Cambia(f, "Lluvia del evento",
           [&](Ajuste& a) { EventoDe(f, a).lluvia.origen = ClaveDe(Origenes, cual); });
}

void cmbTormenta_Click(const AjusteEventos& m, dlgAjuste& f, int cual)
{
    if (const std::string* const nombre = study::Item(m.tormentas, cual))
        Cambia(f, "Tormenta del evento", [&](Ajuste& a) { EventoDe(f, a).lluvia.archivo = *nombre; });
}

void cmbDistribucion_Click(dlgAjuste& f, int cual)
{
    Cambia(f, "Distribución del evento",
           [&](Ajuste& a) { EventoDe(f, a).lluvia.distribucion = std::clamp(cual, 0, Distribuciones - 1); });
}

void cmbComponente_Click(const AjusteEventos& m, dlgAjuste& f, int cual)
{
    if (const std::string* const nombre = study::Item(m.componentes, cual))
        Cambia(f, "Componente observado", [&](Ajuste& a) { ObservacionDe(f, a).componente = *nombre; });
}

void cmbMagnitud_Click(dlgAjuste& f, int cual)
{
    Cambia(f, "Magnitud observada",
           [&](Ajuste& a) { ObservacionDe(f, a).magnitud = ClaveDe(Magnitudes, cual); });
}

void cmbInterpolacion_Click(dlgAjuste& f, int cual)
{
    Cambia(f, "Interpolación de la curva",
           [&](Ajuste& a) { ObservacionDe(f, a).interpolacion = ClaveDe(Interpolaciones, cual); });
}

void cmdNuevoEvento(dlgAjuste& f)
{
    Evento nuevo{.nombre = NombreLibre(AjusteDe(f), "Evento ")};
    nuevo.observaciones.push_back({.componente = PrimeraSalida(ProyectoDe(f).Red)});
    PonEvento(f, "Nuevo evento", std::move(nuevo));
}

void cmdDuplicaEvento(dlgAjuste& f)
{
    if (EventoEnMano(f) == nullptr) return;
    Evento copia = EventoCopiado(f);
    copia.nombre += " (copia)";
    PonEvento(f, "Duplicar el evento", std::move(copia));
}

void cmdQuitaEvento(dlgAjuste& f)
{
    if (EventoEnMano(f) == nullptr) return;
    Cambia(f, "Quitar el evento", [&](Ajuste& a) { a.eventos.erase(a.eventos.begin() + f.evento); });
}

void cmdMueveEvento(dlgAjuste& f, int paso)
{
    const int destino = f.evento + paso;
    if (EventoEnMano(f) == nullptr || study::Item(AjusteDe(f).eventos, destino) == nullptr) return;
    const int observacion = f.observacion;
    Cambia(f, paso < 0 ? "Subir el evento" : "Bajar el evento", [&](Ajuste& a) {
        std::swap(a.eventos[static_cast<std::size_t>(f.evento)],
                  a.eventos[static_cast<std::size_t>(destino)]);
    });
    cmbEvento_Click(f, destino);
    cmbObservacion_Click(f, observacion);
}

void cmdNuevaObservacion(dlgAjuste& f)
{
    Cambia(f, "Nueva observación", [&](Ajuste& a) {
        EventoDe(f, a).observaciones.push_back({.componente = PrimeraSalida(ProyectoDe(f).Red)});
    });
    cmbObservacion_Click(f, static_cast<int>(f.observaciones.size()) - 1);
}

void cmdQuitaObservacion(dlgAjuste& f)
{
    if (ObservacionEnMano(f) == nullptr) return;
    Cambia(f, "Quitar la observación", [&](Ajuste& a) {
        auto& observaciones = EventoDe(f, a).observaciones;
        observaciones.erase(observaciones.begin() + f.observacion);
    });
}

void grdValores_Asienta(AjusteEventos& m, dlgAjuste& f)
{
    std::vector<Punto> puntos = PuntosDe(m.grdValores);
    if (m.demasiados || puntos == ObservacionCopiada(f).puntos) return Dibuja(m, f);
    Cambia(f, "Valores observados", [&](Ajuste& a) { ObservacionDe(f, a).puntos = std::move(puntos); });
    OlvidaPasos(m.grdValores);
}

void grdVentanas_Asienta(AjusteEventos& m, dlgAjuste& f)
{
    std::vector<study::Ventana> ventanas = VentanasDe(m.grdVentanas);
    if (ventanas == ObservacionCopiada(f).ventanas) return;
    Cambia(f, "Ventanas de la observación",
           [&](Ajuste& a) { ObservacionDe(f, a).ventanas = std::move(ventanas); });
    OlvidaPasos(m.grdVentanas);
}

void grdCurva_Asienta(AjusteEventos& m, dlgAjuste& f)
{
    std::vector<study::PuntoDeCurva> curva = CurvaDe(m.grdCurva);
    if (curva == ObservacionCopiada(f).curva) return;
    Cambia(f, "Curva de gasto", [&](Ajuste& a) { ObservacionDe(f, a).curva = std::move(curva); });
    OlvidaPasos(m.grdCurva);
}

std::string PrimeraSalida(const model::Red& red)
{
    std::string salida, primero;
    model::CadaComponente(red, [&](const auto& c) {
        if (primero.empty()) primero = model::Nombre(c);
        if (salida.empty() && !model::EsDestino(c.Cauce_aa)) salida = model::Nombre(c);
    });
    return salida.empty() ? primero : salida;
}

forms::Planilla PlanillaDeEventos(const AjusteEventos& m, const dlgAjuste& f)
{
    const Observacion o = ObservacionCopiada(f);
    const Observada q = ObservadaDe(o);
    forms::Planilla p{{std::string(TituloDlgAjuste) + ": valores observados", TemaDe(f) + ", " + NombreDe(o)},
                      {{"Minuto"}, {m.magnitudes[static_cast<std::size_t>(m.magnitud)]}, {"Caudal [m3/s]"}},
                      {}};
    for (const Punto& punto : o.puntos) {
        const auto suyo = std::find_if(q.puntos.begin(), q.puntos.end(),
                                       [&](const Punto& otro) { return otro.minuto == punto.minuto; });
        p.filas.push_back({Numero(punto.minuto), Numero(punto.valor),
                           suyo == q.puntos.end() ? std::string() : Numero(suyo->valor)});
    }
    return p;
}

}  // namespace calibration
