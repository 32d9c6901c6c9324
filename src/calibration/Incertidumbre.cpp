// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Incertidumbre.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <mutex>
#include <span>
#include <utility>

#include "calibration/Juicio.h"
#include "calibration/Medidas.h"
#include "calibration/Puntajes.h"
#include "checks/AvisosDeCorrida.h"
#include "checks/Corrido.h"
#include "checks/Rebose.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "runs/Campos.h"
#include "runs/ModeloDe.h"
#include "runs/Sorteos.h"

namespace calibration {

namespace {

constexpr double Segundos = 60;  // of a minute

/// The heights of a Represa or a Lago; nothing of any other component.
std::span<const float> NivelesDe(const model::Red& red, const model::Resultados& r, const std::string& nombre)
{
    const auto de = [&](const model::Matriz<float>& H, int numero) -> std::span<const float> {
        if (numero < 1 || !H.Alcanza(numero, r.NroPasosQ)) return {};
        return {H.Fila(numero), static_cast<std::size_t>(r.NroPasosQ) + 1};
    };
    if (const int n = model::NumeroDe<model::Represa>(red, nombre); n > 0) return de(r.HRepresa, n);
    return de(r.HLago, model::NumeroDe<model::Lago>(red, nombre));
}

/// The foot of the table of a Represa or a Lago [m]; 0 where it has none.
double PieDe(const model::Red& red, const std::string& nombre)
{
    const auto de = [](const model::Matriz<float>& H, int numero) {
        return numero > 0 && H.Alcanza(numero, 1) ? double{H(numero, 1)} : 0;
    };
    if (const int n = model::NumeroDe<model::Represa>(red, nombre); n > 0) return de(red.RepresaH, n);
    return de(red.LagoH, model::NumeroDe<model::Lago>(red, nombre));
}

/// What all members share.
struct Encargo {
    const PedidoDeIncertidumbre& p;
    runs::Sorteos sorteos;
    std::size_t lluvia = 0;
    const Puntaje* puntaje = nullptr;     ///< of GLUE; null: members weigh the same
    double margen = 0;                    ///< cost at which a member weighs nothing
    std::vector<runs::Movido> movidos{};  ///< of parameters that change what a pool is; none: it stays
};

/// A member's weight; 0: it doesn't count. A run that can't be used is told in `motivo`.
runs::Peso PesoDe(const Encargo& e, std::span<const double> valores, runs::Corredor& corredor,
                  std::string& motivo)
{
    if (e.puntaje == nullptr) return 1;
    const Fallo fallo = CostoDe(*e.puntaje, e.p.modelo, e.p.eventos, valores, corredor);
    motivo = fallo.motivo;
    const double parte = std::clamp((e.margen - fallo.costo) / e.margen, 0.0, 1.0);
    if (!motivo.empty() || !(parte > 0)) return 0;
    return std::max<runs::Peso>(1, static_cast<runs::Peso>(std::llround(parte * runs::PesoMayor)));
}

/// Whether the water of a run rises above the table of a pool; nothing where it has none that tells.
std::optional<bool> Rebosa(const Encargo& e, std::span<const double> valores, const engine::Calculo& calculo,
                           const std::string& nombre)
{
    const runs::Lluvia& lluvia = e.p.modelo.lluvias[e.lluvia];
    model::Red otra;
    if (!e.movidos.empty()) {
        otra = e.p.modelo.red;
        for (std::size_t i = 0; i < e.movidos.size(); ++i)
            if (e.movidos[i].campo != nullptr)
                runs::Pon(e.movidos[i], e.p.modelo.parametros[i], valores[i], otra);
    }
    const checks::Corrido corrido(e.movidos.empty() ? e.p.modelo.red : otra, lluvia.tormenta, lluvia.pasos,
                                  calculo);
    for (const checks::ComponenteCorrido& c : corrido.componentes) {
        if (c.nombre != nombre || !c.embalse) continue;
        const bool conTope = c.embalse->metodo == checks::MetodoEmbalse::Piscina ||
                             c.embalse->metodo == checks::MetodoEmbalse::RungeKutta;
        if (!conTope || c.fila == 0 || !c.embalse->TieneTabla() || !corrido.TieneResultados()) return {};
        return checks::ReboseDe(corrido, c, checks::Valor(checks::Umbral::AlturaDeTope)).has_value();
    }
    return {};
}

/// Adds a run to a set. Returns why it can't be; empty: it has been.
std::string Suma(const Encargo& e, std::span<const double> valores, const engine::Calculo& calculo,
                 runs::Peso peso, Conjunto& c)
{
    const model::Resultados& r = calculo.Resultados;
    const std::string& pedido = e.p.como.medida.componente;
    c.paso = e.p.modelo.lluvias[e.lluvia].pasos.PasoQ;
    c.componente = pedido.empty() && r.NroSalidas > 0 ? r.Salidas[1] : pedido;
    const std::span<const float> Q = SalidaDe(calculo, pedido, c.paso).valores;
    if (Q.size() < 2) return "La corrida no deja el hidrograma del componente.";
    if (c.caudal.size() < Q.size()) c.caudal.resize(Q.size());
    double volumen = 0;
    for (std::size_t i = 0; i < Q.size(); ++i) {
        c.caudal[i].Suma(Q[i], peso);
        if (i > 0) volumen += double{Q[i]} * c.paso * Segundos;
    }
    const auto pico = std::max_element(Q.begin(), Q.end());
    c.pico.Suma(*pico, peso);
    c.tiempo.Suma(static_cast<float>(static_cast<double>(pico - Q.begin()) * c.paso), peso);
    c.volumen.Suma(static_cast<float>(volumen), peso);
    ++c.cuentan;
    const std::span<const float> H = NivelesDe(e.p.modelo.red, r, c.componente);
    if (H.empty()) return {};
    c.embalse = true;
    const std::optional<bool> rebosa = Rebosa(e, valores, calculo, c.componente);
    if (!rebosa) return {};  // by Muskingum's method a pool has no level
    c.conTope = true;
    c.base = PieDe(e.p.modelo.red, c.componente);
    c.nivel.Suma(*std::max_element(H.begin(), H.end()) - static_cast<float>(c.base), peso);
    if (!*rebosa) return {};
    ++c.rebosan;
    c.pesoQueRebosa += peso;
    return {};
}

void CorreMiembro(const Encargo& e, std::size_t k, runs::Corredor& corredor, Conjunto& c)
{
    std::vector<double> valores(e.p.modelo.parametros.size());
    e.sorteos.Valores(k, valores);
    ++c.miembros;
    std::string motivo;
    const runs::Peso peso = PesoDe(e, valores, corredor, motivo);
    if (motivo.empty() && peso > 0) {
        const engine::Calculo& calculo = corredor.Corre(valores, e.lluvia);
        motivo = runs::MotivoDe(calculo);
        if (motivo.empty()) motivo = Suma(e, valores, calculo, peso, c);
    }
    if (motivo.empty()) return;
    c.fallidos[motivo].Junta({1, {k}});
}

Encargo EncargoDe(const PedidoDeIncertidumbre& p)
{
    Encargo e{p, runs::Sorteos(p.modelo.parametros, p.como, p.calibracion)};
    e.lluvia = runs::LluviaDe(p.modelo, p.como.medida.evento);
    if (p.como.glue) {
        e.puntaje = PuntajeDe(p.como.medida.puntaje);
        e.margen = e.puntaje->masEsMejor ? e.puntaje->mejor - p.como.umbral : std::fabs(p.como.umbral);
    }
    bool cambian = false;
    for (const study::Parametro& x : p.modelo.parametros) {
        runs::Movido m = runs::Resuelve(x, p.modelo.red, p.modelo.lluvias[e.lluvia].tormenta);
        const bool dePileta = m.campo != nullptr && (m.campo->clase == 'r' || m.campo->clase == 'l');
        cambian = cambian || dePileta;
        if (!dePileta) m.campo = nullptr;
        e.movidos.push_back(std::move(m));
    }
    if (!cambian) e.movidos.clear();
    return e;
}

std::string Cifra(double x)
{
    constexpr double Cien = 100, Diez = 10;
    const double a = std::fabs(x);
    return model::NumeroATexto(model::Redondea(x, a >= Cien ? 0 : a >= Diez ? 1 : a >= 1 ? 2 : 3));
}

std::string Por(double x)
{
    constexpr double PorCiento = 100;
    return model::NumeroATexto(model::Redondea(PorCiento * x, 1)) + " %";
}

}  // namespace

std::vector<std::string> ReparosDe(const PedidoDeIncertidumbre& p)
{
    std::vector<std::string> reparos;
    if (p.modelo.parametros.empty())
        reparos.emplace_back("Ningún parámetro participa: proponga o agregue alguno en el paso 2.");
    const auto agrega = [&reparos](const std::vector<std::string>& otros) {
        reparos.insert(reparos.end(), otros.begin(), otros.end());
    };
    agrega(runs::ReparosDeSorteo(p.modelo.parametros, p.calibracion));
    const std::string& nombre = p.como.medida.componente;
    if (!nombre.empty() && !EstaEnRed(p.modelo.red, nombre))
        reparos.push_back("El componente " + nombre + " no está en la red.");
    if (runs::LluviaDe(p.modelo, p.como.medida.evento) >= p.modelo.lluvias.size())
        reparos.push_back("El evento " + p.como.medida.evento + " no está en el estudio, o quedó fuera.");
    if (!p.como.glue) return reparos;
    const Puntaje* const puntaje = PuntajeDe(p.como.medida.puntaje);
    if (puntaje == nullptr)
        reparos.push_back("El puntaje " + p.como.medida.puntaje + " no se conoce.");
    else if (puntaje->masEsMejor ? p.como.umbral >= puntaje->mejor : p.como.umbral == 0)
        reparos.push_back("El umbral no deja pasar ningún juego: el mejor valor de " +
                          std::string(puntaje->nombre) + " es " + model::NumeroATexto(puntaje->mejor) + ".");
    agrega(ReparosDeEventos(p.modelo, p.eventos));
    return reparos;
}

void Fallidos::Junta(const Fallidos& otros)
{
    cuantos += otros.cuantos;
    std::vector<std::size_t> todos;
    std::ranges::merge(primeros, otros.primeros, std::back_inserter(todos));
    todos.resize(std::min(todos.size(), MaximoDePrimeros));
    primeros = std::move(todos);
}

void Conjunto::Junta(const Conjunto& otro)
{
    if (componente.empty()) componente = otro.componente;
    if (evento.empty()) evento = otro.evento;
    paso = std::max(paso, otro.paso);
    if (otro.conTope) base = otro.base;
    embalse = embalse || otro.embalse;
    conTope = conTope || otro.conTope;
    if (caudal.size() < otro.caudal.size()) caudal.resize(otro.caudal.size());
    for (std::size_t i = 0; i < otro.caudal.size(); ++i)
        caudal[i].Junta(otro.caudal[i]);
    pico.Junta(otro.pico);
    tiempo.Junta(otro.tiempo);
    volumen.Junta(otro.volumen);
    nivel.Junta(otro.nivel);
    miembros += otro.miembros;
    cuentan += otro.cuentan;
    rebosan += otro.rebosan;
    pesoQueRebosa += otro.pesoQueRebosa;
    for (const auto& [motivo, suyos] : otro.fallidos)
        fallidos[motivo].Junta(suyos);
}

std::uint64_t Conjunto::Fallaron() const
{
    std::uint64_t n = 0;
    for (const auto& [motivo, suyos] : fallidos)
        n += suyos.cuantos;
    return n;
}

double Conjunto::Rebose() const
{
    return pico.Total() > 0 ? static_cast<double>(pesoQueRebosa) / static_cast<double>(pico.Total()) : 0;
}

std::optional<Conjunto> CorreConjunto(const PedidoDeIncertidumbre& p, const study::Avance& avance)
{
    const Encargo e = EncargoDe(p);
    const std::size_t todos = e.sorteos.Miembros();
    const std::size_t mios = todos > p.parte ? (todos - p.parte + p.partes - 1) / p.partes : 0;
    std::mutex cerrojo;
    std::map<const runs::Corredor*, std::unique_ptr<Conjunto>> porHilo;
    const auto suyo = [&](const runs::Corredor& corredor) -> Conjunto& {
        const std::lock_guard guarda(cerrojo);
        std::unique_ptr<Conjunto>& c = porHilo[&corredor];
        if (!c) c = std::make_unique<Conjunto>();
        return *c;
    };
    const bool entero = runs::CorreMiembros(
        p.modelo, mios, p.hilos,
        [&](std::size_t i, runs::Corredor& corredor) {
            CorreMiembro(e, p.parte + i * p.partes, corredor, suyo(corredor));
        },
        avance);
    if (!entero) return {};
    Conjunto todo;
    for (const auto& [corredor, c] : porHilo)
        todo.Junta(*c);
    todo.evento = p.modelo.lluvias[e.lluvia].nombre;
    return todo;
}

std::pair<double, double> IntervaloBinomial(std::uint64_t si, std::uint64_t n)
{
    if (n == 0) return {0, 1};
    constexpr double z = 1.959963984540054;  // of 97.5 %
    const double N = static_cast<double>(n), p = static_cast<double>(si) / N, z2 = z * z;
    const double centro = (p + z2 / (2 * N)) / (1 + z2 / N);
    const double ancho = z / (1 + z2 / N) * std::sqrt(p * (1 - p) / N + z2 / (4 * N * N));
    return {si == 0 ? 0 : std::max(0.0, centro - ancho), si == n ? 1 : std::min(1.0, centro + ancho)};
}

const runs::Cuantiles* DistribucionDe(const Conjunto& c, std::string_view que)
{
    if (que == "pico") return &c.pico;
    if (que == "tiempo") return &c.tiempo;
    if (que == "volumen") return &c.volumen;
    return que == "nivel" && c.conTope ? &c.nivel : nullptr;
}

double BaseDe(const Conjunto& c, std::string_view que)
{
    return que == "nivel" ? c.base : 0;
}

std::string_view UnidadDeMedida(std::string_view que)
{
    for (const ClaseDeMedida& medida : ClasesDeMedida())
        if (medida.clave == que && !medida.unidad.empty()) return medida.unidad;
    return "-";
}

std::vector<std::string> EnPalabras(const Conjunto& c, const study::Incertidumbre& como)
{
    std::vector<std::string> t;
    const std::string deN = " de " + std::to_string(c.cuentan);
    if (c.cuentan > 0) {
        constexpr double Bajo = 0.05, Alto = 0.95;
        t.push_back("Con 90 % de los juegos el pico de " + c.componente + " queda entre " +
                    Cifra(c.pico.Cuantil(Bajo)) + " y " + Cifra(c.pico.Cuantil(Alto)) +
                    " m3/s, y llega entre " + Cifra(c.tiempo.Cuantil(Bajo)) + " y " +
                    Cifra(c.tiempo.Cuantil(Alto)) + " min.");
        if (c.embalse && c.conTope && como.glue)
            t.push_back(c.componente + " rebosa en " + std::to_string(c.rebosan) + deN +
                        " juegos, que tienen el " + Por(c.Rebose()) + " del peso.");
        if (c.embalse && c.conTope && !como.glue) {
            const auto [menor, mayor] = IntervaloBinomial(c.rebosan, c.cuentan);
            t.push_back(c.componente + " rebosa en " + std::to_string(c.rebosan) + deN +
                        " juegos: " + Por(c.Rebose()) + ", entre " + Por(menor) + " y " + Por(mayor) +
                        " con 95 % de confianza.");
        }
        if (c.embalse && !c.conTope)
            t.push_back("De " + c.componente +
                        " no se sabe si rebosa: se calcula por Muskingum, que no mira "
                        "su tabla, o no tiene tabla.");
    }
    const std::uint64_t fallaron = c.Fallaron();
    if (como.glue)
        t.push_back("Cuentan " + std::to_string(c.cuentan) + " de " + std::to_string(c.miembros) +
                    " juegos, los que pasan el umbral. La banda es por parámetros: no dice entre qué valores "
                    "se observará un caudal.");
    for (const auto& [motivo, suyos] : c.fallidos)
        t.push_back(
            std::to_string(suyos.cuantos) + (suyos.cuantos == 1 ? " juego no dio" : " juegos no dieron") +
            " resultado, el primero el " + std::to_string(suyos.primeros.front() + 1) + ": " + motivo);
    if (fallaron > 0 && fallaron == c.miembros) t.emplace_back("Ningún juego dio resultado.");
    return t;
}

}  // namespace calibration
