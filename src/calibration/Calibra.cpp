// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Calibra.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <mutex>

#include "calibration/Diagnostico.h"
#include "calibration/Juicio.h"
#include "runs/Campos.h"

namespace calibration {
namespace {

constexpr std::size_t MasMotivos = 10;

/// Sets as the search sees them: a place of the unit cube on a grid of ten thousandths, which is less than
/// moves a run.
using Lugar = std::vector<std::int32_t>;
constexpr double Reja = 10000;

Lugar LugarDe(std::span<const double> u)
{
    Lugar lugar;
    for (const double x : u)
        lugar.push_back(static_cast<std::int32_t>(std::lround(x * Reja)));
    return lugar;
}

std::vector<double> ValoresDe(const runs::Modelo& modelo, const Lugar& lugar)
{
    std::vector<double> valores;
    for (std::size_t i = 0; i < lugar.size(); ++i)
        valores.push_back(ValorDe(modelo.parametros[i], lugar[i] / Reja));
    return valores;
}

/// The values of the network, where they lie within the ranges; none where a parameter has no single one.
std::optional<std::vector<double>> Inicio(const runs::Modelo& modelo)
{
    std::vector<double> u;
    for (const study::Parametro& p : modelo.parametros) {
        const auto antes = ValorDeLaRed(p, modelo);
        if (!antes || *antes < p.minimo || *antes > p.maximo) return {};
        u.push_back(LugarEnRango(p, *antes));
    }
    return u;
}

/// The runs of a search: what each set costs, worked out once, and who is told of it.
class Sala {
  public:
    Sala(const PedidoDeCalibracion& unPedido, std::vector<study::Evento> unosEventos,
         const study::Avance& unAvance, const std::function<void(const VistaDeCalibracion&)>& unaMira)
        : pedido(unPedido),
          eventos(std::move(unosEventos)),
          puntaje(*PuntajeDe(unPedido.como.puntaje)),
          avance(unAvance),
          mira(unaMira)
    {
        vista.total = static_cast<std::size_t>(pedido.como.corridas);
    }

    [[nodiscard]] Reparto EnHilos()
    {
        return [this](std::size_t cuantas, const auto& pieza) {
            runs::CorreMiembros(pedido.modelo, cuantas, pedido.hilos,
                                [&](std::size_t k, runs::Corredor& corredor) {
                                    pieza(k, [&](std::span<const double> u) { return Mide(u, corredor); });
                                });
        };
    }
    [[nodiscard]] const std::map<Lugar, Fallo>& Sabidos() const { return sabidos; }

  private:
    double Mide(std::span<const double> u, runs::Corredor& corredor)
    {
        const Lugar lugar = LugarDe(u);
        {
            const std::lock_guard guarda(cerrojo);
            if (dejada || (avance && !avance(vista.hechas, vista.total))) {
                dejada = true;
                return std::numeric_limits<double>::quiet_NaN();
            }
            ++vista.hechas;
            const auto sabido = sabidos.find(lugar);
            if (sabido != sabidos.end()) return sabido->second.costo;
        }
        const std::vector<double> valores = ValoresDe(pedido.modelo, lugar);
        Fallo fallo = CostoDe(puntaje, pedido.modelo, eventos, valores, corredor);
        const std::lock_guard guarda(cerrojo);
        const double costo = fallo.costo;
        sabidos.emplace(lugar, std::move(fallo));
        if (costo < menor) {
            menor = costo;
            vista.mejor = valores;
            vista.mejoras.emplace_back(vista.hechas, PuntajeDeCosto(puntaje, costo));
            if (mira) mira(vista);
        }
        return costo;
    }

    const PedidoDeCalibracion& pedido;
    const std::vector<study::Evento> eventos;
    const Puntaje& puntaje;
    const study::Avance& avance;
    const std::function<void(const VistaDeCalibracion&)>& mira;
    std::mutex cerrojo{};
    std::map<Lugar, Fallo> sabidos{};
    VistaDeCalibracion vista{};
    double menor = std::numeric_limits<double>::infinity();
    bool dejada = false;
};

/// One parameter alone, the others at their best: how far it may go towards an end of its range and stay near
/// the best score, by halving. Each place and its cost; no number where it was given up.
std::vector<Evaluacion> Sonda(const Evaluacion& mejor, std::size_t parametro, double cercania,
                              const Costo& costo)
{
    std::vector<Evaluacion> medidas;
    for (const double extremo : {0.0, 1.0}) {
        double cerca = mejor.punto[parametro], lejos = extremo;
        for (std::size_t k = 0; k < SondasPorParametro / 2; ++k) {
            Evaluacion e = mejor;
            e.punto[parametro] = k == 0 ? extremo : (cerca + lejos) / 2;
            e.costo = costo(e.punto);
            (e.costo <= mejor.costo + cercania ? cerca : lejos) = e.punto[parametro];
            medidas.push_back(std::move(e));
        }
    }
    return medidas;
}

/// The search, and its probes out of the same budget.
Busqueda Busca(const PedidoDeCalibracion& p, const Reparto& reparto, std::vector<double>& sondas)
{
    constexpr std::size_t ParteDeSondas = 4;
    const std::size_t n = p.modelo.parametros.size(), total = static_cast<std::size_t>(p.como.corridas);
    const std::size_t cuantas = SondasPorParametro * n <= total / ParteDeSondas ? SondasPorParametro * n : 0;
    Busqueda b = MetodoDeBusquedaDe(p.como.metodo)
                     ->busca({.dimensiones = n,
                              .corridas = total - cuantas,
                              .complejos = static_cast<std::size_t>(std::max(p.como.complejos, 1)),
                              .semilla = p.como.semilla,
                              .inicio = Inicio(p.modelo)},
                             reparto);
    if (cuantas == 0 || b.fin == FinDeBusqueda::Cancelada || b.evaluaciones.empty()) return b;
    const Evaluacion mejor = *b.Mejor();
    std::vector<std::vector<Evaluacion>> medidas(n);
    reparto(n,
            [&](std::size_t i, const Costo& costo) { medidas[i] = Sonda(mejor, i, p.como.cercania, costo); });
    for (const auto& deUno : medidas)
        for (const Evaluacion& e : deUno) {
            if (std::isnan(e.costo)) {
                b.fin = FinDeBusqueda::Cancelada;
                sondas.clear();
                return b;
            }
            b.evaluaciones.push_back(e);
            sondas.push_back(e.costo);
        }
    return b;
}

/// The score at each observation of the events that aren't left out, with two sets.
void PonSitios(const PedidoDeCalibracion& p, std::span<const study::Evento> eventos,
               const std::optional<std::vector<double>>& antes, Calibrado& c)
{
    const Puntaje& puntaje = *PuntajeDe(p.como.puntaje);
    runs::Corredor corredor(p.modelo);
    for (std::size_t i = 0; i < eventos.size(); ++i) {
        if (eventos[i].papel == "fuera") continue;
        const std::size_t desde = c.sitios.size();
        for (const bool despues : {false, true}) {
            if (!despues && !antes) continue;
            const engine::Calculo& calculo = corredor.Corre(despues ? c.Mejor() : *antes, i);
            const bool sirve = runs::MotivoDe(calculo).empty();
            for (std::size_t k = 0; k < eventos[i].observaciones.size(); ++k) {
                const study::Observacion& o = eventos[i].observaciones[k];
                if (c.sitios.size() == desde + k)
                    c.sitios.push_back({.evento = eventos[i].nombre,
                                        .componente = o.componente,
                                        .papel = eventos[i].papel,
                                        .peso = eventos[i].peso * o.peso});
                PuntajeDeSitio& s = c.sitios[desde + k];
                const Emparejados e = ParesDe(calculo, p.modelo.lluvias[i].pasos, o);
                (despues ? s.despues : s.antes) = sirve ? puntaje.valor(e.pares) : std::nullopt;
                if (!despues) continue;
                s.palabras = sirve ? EnPalabras(e.pares) : std::string{};
                s.pares = CuantosPares(e);
            }
        }
    }
}

/// The mean over the events of a role.
std::optional<double> Objetivo(const PedidoDeCalibracion& p, std::vector<study::Evento> eventos,
                               std::string_view papel, const std::vector<double>& valores)
{
    bool hay = false;
    for (study::Evento& e : eventos) {
        hay = hay || e.papel == papel;
        e.papel = e.papel == papel ? "calibra" : "fuera";
    }
    if (!hay) return {};
    const Puntaje& puntaje = *PuntajeDe(p.como.puntaje);
    runs::Corredor corredor(p.modelo);
    const double costo = CostoDe(puntaje, p.modelo, eventos, valores, corredor).costo;
    return std::isfinite(costo) ? std::optional(PuntajeDeCosto(puntaje, costo)) : std::nullopt;
}

std::optional<std::vector<double>> ValoresDeLaRed(const runs::Modelo& modelo)
{
    std::vector<double> valores;
    for (const study::Parametro& p : modelo.parametros) {
        const auto v = ValorDeLaRed(p, modelo);
        if (!v) return {};
        valores.push_back(*v);
    }
    return valores;
}

void PonCorridas(const PedidoDeCalibracion& p, const Busqueda& b, const std::map<Lugar, Fallo>& sabidos,
                 Calibrado& c)
{
    const Puntaje& puntaje = *PuntajeDe(p.como.puntaje);
    double menor = std::numeric_limits<double>::infinity();
    for (const Evaluacion& e : b.evaluaciones) {
        const Lugar lugar = LugarDe(e.punto);
        c.corridas.push_back({ValoresDe(p.modelo, lugar), PuntajeDeCosto(puntaje, e.costo)});
        if (e.costo < menor) {
            menor = e.costo;
            c.cualEsMejor = c.corridas.size() - 1;
        }
        if (std::isfinite(e.costo)) continue;
        ++c.fallidas;
        const std::string& motivo = sabidos.at(lugar).motivo;
        if (!motivo.empty() && c.motivos.size() < MasMotivos &&
            std::find(c.motivos.begin(), c.motivos.end(), motivo) == c.motivos.end())
            c.motivos.push_back(motivo);
    }
}

}  // namespace

std::vector<std::string> ReparosDe(const PedidoDeCalibracion& p)
{
    std::vector<std::string> reparos = runs::ReparosDe(p.modelo);
    const auto eventos = ReparosDeEventos(p.modelo, p.eventos);
    reparos.insert(reparos.end(), eventos.begin(), eventos.end());
    if (p.modelo.parametros.empty()) reparos.emplace_back("Ningún parámetro está activo.");
    if (PuntajeDe(p.como.puntaje) == nullptr)
        reparos.push_back("No hay un puntaje \"" + p.como.puntaje + "\".");
    if (MetodoDeBusquedaDe(p.como.metodo) == nullptr)
        reparos.push_back("No hay un método de búsqueda \"" + p.como.metodo + "\".");
    if (p.como.corridas < 1) reparos.emplace_back("El presupuesto es menor que una corrida.");
    return reparos;
}

std::optional<Calibrado> Calibra(const PedidoDeCalibracion& p, const study::Avance& avance,
                                 const std::function<void(const VistaDeCalibracion&)>& mira)
{
    std::vector<study::Evento> eventos;
    for (const study::Evento& e : p.eventos) {
        eventos.push_back(e);
        for (study::Observacion& o : eventos.back().observaciones)
            o = EnCaudal(std::move(o));
    }
    Sala sala(p, eventos, avance, mira);
    std::vector<double> sondas;
    const Busqueda b = Busca(p, sala.EnHilos(), sondas);
    if (b.evaluaciones.empty()) return {};

    Calibrado c;
    c.fin = b.fin;
    PonCorridas(p, b, sala.Sabidos(), c);
    const auto antes = ValoresDeLaRed(p.modelo);
    PonSitios(p, eventos, antes, c);
    if (antes) c.antes = Objetivo(p, eventos, "calibra", *antes);
    if (antes) c.validacionAntes = Objetivo(p, eventos, "valida", *antes);
    c.validacion = Objetivo(p, eventos, "valida", c.Mejor());
    Diagnostica(p, b, sondas, c);
    return c;
}

study::Calibracion ParaElEstudio(const PedidoDeCalibracion& p, const Calibrado& c, std::string fecha)
{
    study::Calibracion como = p.como;
    como.campos.clear();
    for (const Hallado& h : c.parametros)
        como.campos.push_back(h.clave);
    como.cercanos = c.cercanos;
    como.fecha = std::move(fecha);
    return como;
}

}  // namespace calibration
