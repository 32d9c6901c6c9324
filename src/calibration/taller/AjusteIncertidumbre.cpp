// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteIncertidumbre.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "calibration/Juicio.h"
#include "calibration/Medidas.h"
#include "calibration/Puntajes.h"
#include "calibration/taller/GraficosDeIncertidumbre.h"
#include "calibration/taller/PedidosDeAjuste.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "runs/ModeloDe.h"

namespace calibration {

namespace {

/// The measures that have a distribution, with their units: all but the score.
std::span<const ClaseDeMedida> Medidas()
{
    return ClasesDeMedida().first(4);
}
std::string TituloDe(const ClaseDeMedida& medida)
{
    return std::string(medida.nombre) + " [" + std::string(medida.unidad) + "]";
}

struct Muestreo {
    std::string_view clave, nombre;
};
constexpr auto Muestreos = std::to_array<Muestreo>({{"lhs", "Hipercubo latino"}, {"simple", "Simple"}});

using Campo = CampoDePedido<AjusteIncertidumbre, study::Incertidumbre>;
constexpr auto CamposDeIncertidumbre = std::to_array<Campo>({
    {{.control = "txtMiembros",
      .minimo = 10,
      .maximo = 1e6,
      .mensaje = "Los juegos son un entero de 10 a 1000000.",
      .clase = forms::ClaseNumero::Entero},
     "Número de juegos",
     &AjusteIncertidumbre::txtMiembros,
     [](study::Incertidumbre& i, double x) { i.miembros = static_cast<int>(x); }},
    {{.control = "txtSemilla",
      .minimo = 0,
      .maximo = 4294967295.0,
      .mensaje = "La semilla es un entero de 0 a 4294967295.",
      .clase = forms::ClaseNumero::Entero},
     "Semilla",
     &AjusteIncertidumbre::txtSemilla,
     [](study::Incertidumbre& i, double x) { i.semilla = static_cast<std::uint64_t>(x); }},
    {{.control = "txtUmbral", .minimo = -1e6, .maximo = 1e6, .mensaje = "El umbral es un número."},
     "Umbral",
     &AjusteIncertidumbre::txtUmbral,
     [](study::Incertidumbre& i, double x) { i.umbral = x; }},
});

const study::Incertidumbre& ComoDe(const dlgAjuste& f)
{
    return AjusteDe(f).incertidumbre;
}

void CambiaComo(dlgAjuste& f, std::string_view leyenda,
                const std::function<void(study::Incertidumbre&)>& cambio)
{
    CambiaPedido(f, leyenda, &study::Ajuste::incertidumbre, cambio);
}

/// Whether what a set was asked under has become something else; the measure on show asks for no other set.
bool Caduco(const AjusteIncertidumbre& m, const dlgAjuste& f)
{
    study::Ajuste antes = m.del.ajuste;
    const study::Ajuste& ahora = AjusteDe(f);
    antes.incertidumbre.medida.que = ahora.incertidumbre.medida.que;
    return m.del.cargas != f.cargas || antes.eventos != ahora.eventos ||
           antes.parametros != ahora.parametros || antes.incertidumbre != ahora.incertidumbre ||
           antes.calibracion.cercanos != ahora.calibracion.cercanos;
}

/// Four digits that count: quantiles are known to a thousandth.
std::string Cifra(double x)
{
    constexpr int Digitos = 4;
    if (!std::isfinite(x)) return {};
    const int enteros = x == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::fabs(x)))) + 1;
    const double unidad = std::pow(10, std::max(0, enteros - Digitos));
    return model::NumeroATexto(enteros > Digitos ? std::round(x / unidad) * unidad
                                                 : model::Redondea(x, Digitos - enteros));
}

std::string Centimetros(double x)
{
    return model::NumeroATexto(model::Redondea(x, 2));
}

void PonPlanilla(AjusteIncertidumbre& m)
{
    forms::Planilla p{
        {std::string(TituloDlgAjuste) + ": cuantiles", m.temaDelConjunto}, {{"Cuantil", true}}, {}};
    struct Columna {
        const runs::Cuantiles* d = nullptr;  ///< null: the component has no such measure
        double base = 0;
    };
    std::vector<Columna> columnas;
    for (const ClaseDeMedida& medida : Medidas()) {
        const std::string corto(medida.nombre.substr(0, medida.nombre.find(' ')));
        p.columnas.push_back({corto + " [" + std::string(medida.unidad) + "]"});
        columnas.push_back(
            m.conjunto ? Columna{DistribucionDe(*m.conjunto, medida.clave), BaseDe(*m.conjunto, medida.clave)}
                       : Columna{});
    }
    const auto fila = [&](std::string rotulo, const auto& de) {
        std::vector<std::string> celdas{std::move(rotulo)};
        for (const Columna& c : columnas)
            celdas.push_back(c.d == nullptr || c.d->Total() == 0 ? std::string()
                             : c.base != 0                       ? Centimetros(c.base + de(*c.d))
                                                                 : Cifra(de(*c.d)));
        p.filas.push_back(std::move(celdas));
    };
    if (m.conjunto) {
        p.titulos.push_back(std::to_string(m.conjunto->cuentan) + " juegos que cuentan, semilla " +
                            std::to_string(m.del.ajuste.incertidumbre.semilla));
        fila("mínimo", [](const runs::Cuantiles& d) { return d.Minimo(); });
        for (const double prob : ProbabilidadesDeTabla) {
            constexpr double PorCiento = 100;
            fila(model::NumeroATexto(model::Redondea(PorCiento * prob, 1)) + " %",
                 [prob](const runs::Cuantiles& d) { return d.Cuantil(prob); });
        }
        fila("máximo", [](const runs::Cuantiles& d) { return d.Maximo(); });
        fila("media", [](const runs::Cuantiles& d) { return d.Media(); });
    }
    forms::PonFilas(m.tblCuantiles, std::move(p));
}

/// What was observed at the component during the event of a set.
std::vector<study::Punto> Observados(const AjusteIncertidumbre& m)
{
    for (const study::Evento& e : m.del.ajuste.eventos)
        for (const study::Observacion& o : e.observaciones)
            if (e.nombre == m.conjunto->evento && o.componente == m.conjunto->componente)
                return EnCaudal(o).puntos;
    return {};
}

void PonGrafico(AjusteIncertidumbre& m)
{
    m.Grafico = {};
    if (!m.conjunto || m.conjunto->cuentan == 0) return;
    const ClaseDeMedida& medida = Medidas()[static_cast<std::size_t>(m.medida)];
    const runs::Cuantiles* const d = DistribucionDe(*m.conjunto, medida.clave);
    if (m.grafico == 0)
        m.Grafico = GraficoDeBanda(*m.conjunto, Observados(m));
    else if (d != nullptr)
        m.Grafico = GraficoDeMedida(*d, BaseDe(*m.conjunto, medida.clave), TituloDe(medida));
    m.Grafico.titulo = (m.grafico == 0 ? m.del.ajuste.incertidumbre.glue ? std::string("Banda por parámetros")
                                                                         : std::string("Banda de los juegos")
                                       : std::string(medida.nombre)) +
                       "\n" + m.temaDelConjunto;
}

void PonDichos(AjusteIncertidumbre& m, const dlgAjuste& f)
{
    m.lblEstado.clear();
    if (m.corriendo)
        m.lblEstado = m.conjunto ? "Corriendo: lo que se ve es de antes." : "Corriendo los juegos...";
    else if (m.conjunto && Caduco(m, f))
        m.lblEstado = "Lo que se ve es de antes: los datos cambiaron.";
    if (!m.reparos.empty())
        m.lblAvisos = Linea(m.reparos);
    else if (m.conjunto)
        m.lblAvisos = Linea(EnPalabras(*m.conjunto, m.del.ajuste.incertidumbre));
    else
        m.lblAvisos = "Pulse Correr juegos: cada uno toma sus parámetros de las distribuciones del paso 2.";
}

void PonListas(AjusteIncertidumbre& m, const dlgAjuste& f)
{
    const study::Ajuste& a = AjusteDe(f);
    m.eventos = {a.eventos.empty() ? "(la tormenta en mano)" : "(el primero)"};
    for (const study::Evento& e : a.eventos)
        if (e.papel != "fuera" && !e.nombre.empty()) m.eventos.push_back(e.nombre);
    m.componentes = {"(la primera salida)"};
    model::CadaComponente(ProyectoDe(f).Red,
                          [&](const auto& c) { m.componentes.push_back(model::Nombre(c)); });
}

}  // namespace

AjusteIncertidumbre NuevaAjusteIncertidumbre()
{
    AjusteIncertidumbre m;
    for (const Muestreo& x : Muestreos)
        m.muestreos.emplace_back(x.nombre);
    for (const Puntaje& p : Puntajes())
        m.puntajes.emplace_back(p.nombre);
    for (const ClaseDeMedida& x : Medidas())
        m.medidas.push_back(TituloDe(x));
    m.graficos.assign(GraficosDeIncertidumbre.begin(), GraficosDeIncertidumbre.end());
    return m;
}

void Toma(AjusteIncertidumbre& m, const dlgAjuste& f)
{
    // Another project's set says nothing of this one.
    const std::string proyecto = ProyectoDe(f).Proyecto.NombreProyecto;
    if (m.conjunto && !m.temaDelConjunto.starts_with(proyecto + ",")) m.conjunto.reset();
    const study::Incertidumbre& i = ComoDe(f);
    PonListas(m, f);
    m.txtMiembros = std::to_string(i.miembros);
    m.txtSemilla = std::to_string(i.semilla);
    m.txtUmbral = model::NumeroATexto(i.umbral);
    m.chkGlue = i.glue;
    m.muestreo = LugarDe(Muestreos, i.muestreo);
    m.evento = ItemDe(m.eventos, i.medida.evento);
    m.componente = ItemDe(m.componentes, i.medida.componente);
    m.puntaje = -1;
    for (std::size_t k = 0; k < Puntajes().size(); ++k)
        if (Puntajes()[k].clave == i.medida.puntaje) m.puntaje = static_cast<int>(k);
    m.medida = 0;
    for (std::size_t k = 0; k < Medidas().size(); ++k)
        if (Medidas()[k].clave == i.medida.que) m.medida = static_cast<int>(k);
    m.reparos.clear();
    PonPlanilla(m);
    PonGrafico(m);
    PonDichos(m, f);
}

std::string FaltaIncertidumbre(const dlgAjuste& f)
{
    if (const std::string falta = FaltaRed(f); !falta.empty()) return falta;
    const auto& todos = AjusteDe(f).parametros;
    if (std::none_of(todos.begin(), todos.end(), [](const study::Parametro& p) { return p.activo; }))
        return "Falta decir qué parámetros se mueven y entre qué valores: propóngalos o agréguelos en el "
               "paso 2.";
    return {};
}

std::optional<PedidoDeIncertidumbre> Empieza(AjusteIncertidumbre& m, const dlgAjuste& f)
{
    const study::Ajuste& a = AjusteDe(f);
    runs::ModeloDeProyecto proyecto = runs::ModeloDe(ProyectoDe(f), a);
    PedidoDeIncertidumbre p{
        .modelo = std::move(proyecto.modelo), .como = a.incertidumbre, .calibracion = a.calibracion};
    for (const std::size_t cual : proyecto.eventos) {
        p.eventos.push_back(a.eventos[cual]);
        for (study::Observacion& o : p.eventos.back().observaciones)
            o = EnCaudal(std::move(o));
    }
    m.reparos = std::move(proyecto.reparos);
    if (m.reparos.empty()) m.reparos = ReparosDe(p);
    m.corriendo = m.reparos.empty();
    if (m.corriendo) m.avance = {};
    PonDichos(m, f);
    if (!m.corriendo) return {};
    m.pedido = EnManoDe(f);
    return p;
}

void Termina(AjusteIncertidumbre& m, const dlgAjuste& f, Conjunto conjunto)
{
    m.corriendo = false;
    m.conjunto = std::move(conjunto);
    m.del = m.pedido;
    m.temaDelConjunto = ProyectoDe(f).Proyecto.NombreProyecto + ", " + m.conjunto->componente +
                        (m.conjunto->evento.empty() ? std::string() : ", " + m.conjunto->evento);
    PonPlanilla(m);
    PonGrafico(m);
    PonDichos(m, f);
}

void Cancela(AjusteIncertidumbre& m, const dlgAjuste& f)
{
    m.corriendo = false;
    PonDichos(m, f);
    if (m.lblEstado.empty()) m.lblEstado = m.conjunto ? "Cancelado: lo que se ve es de antes." : "Cancelado.";
}

bool txtNumero_AlSalir(AjusteIncertidumbre& m, dlgAjuste& f, std::string_view control)
{
    return SaleDelCampo(m, f, std::span<const Campo>(CamposDeIncertidumbre), &study::Ajuste::incertidumbre,
                        control);
}

void cmbMuestreo_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Muestreo", [&](study::Incertidumbre& i) {
        i.muestreo = Muestreos.at(static_cast<std::size_t>(cual)).clave;
    });
}

void cmbDeEvento_Click(const AjusteIncertidumbre& m, dlgAjuste& f, int cual)
{
    CambiaComo(f, "Evento de la incertidumbre", [&](study::Incertidumbre& i) {
        i.medida.evento = cual > 0 ? m.eventos.at(static_cast<std::size_t>(cual)) : std::string();
    });
}

void cmbComponente_Click(const AjusteIncertidumbre& m, dlgAjuste& f, int cual)
{
    CambiaComo(f, "Componente de la incertidumbre", [&](study::Incertidumbre& i) {
        i.medida.componente = cual > 0 ? m.componentes.at(static_cast<std::size_t>(cual)) : std::string();
    });
}

void cmbPuntaje_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Puntaje de los pesos", [&](study::Incertidumbre& i) {
        i.medida.puntaje = Puntajes()[static_cast<std::size_t>(cual)].clave;
    });
}

void chkGlue_Click(dlgAjuste& f, bool tildada)
{
    CambiaComo(f, tildada ? "Pesar por el ajuste" : "Todos pesan igual",
               [&](study::Incertidumbre& i) { i.glue = tildada; });
}

void cmbGrafico_Click(AjusteIncertidumbre& m, int cual)
{
    m.grafico = cual;
    PonGrafico(m);
}

void cmbMedida_Click(dlgAjuste& f, int cual)
{
    CambiaComo(f, "Medida de la incertidumbre", [&](study::Incertidumbre& i) {
        i.medida.que = Medidas()[static_cast<std::size_t>(cual)].clave;
    });
}

forms::Planilla PlanillaDeIncertidumbre(const AjusteIncertidumbre& m)
{
    return forms::ALaVista(m.tblCuantiles);
}

}  // namespace calibration
