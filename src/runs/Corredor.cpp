// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Corredor.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <cstdint>
#include <set>
#include <tuple>
#include <utility>

#include "engine/Hilos.h"
#include "model/Numeros.h"
#include "model/Texto.h"
#include "runs/Campos.h"

namespace runs {

using study::Parametro;

namespace {

/// What a parameter takes a field to at both ends of its range, beyond what the editor admits and the network
/// has.
std::string FueraDe(const Parametro& p, const Movido& m)
{
    for (const double actual : m.actual)
        for (const double extremo : {p.minimo, p.maximo}) {
            const double x = Movida(p.modo, actual, extremo);
            if (x >= std::min(m.campo->minimo, actual) && x <= std::max(m.campo->maximo, actual)) continue;
            return "El rango de " + NombreDe(p) + " lleva un valor a " + model::NumeroATexto(x) +
                   "; se admite de " + model::NumeroATexto(m.campo->minimo) + " a " +
                   model::NumeroATexto(m.campo->maximo) + ".";
        }
    return {};
}

std::string ReparoDeRango(const Parametro& p)
{
    if (!(std::isfinite(p.minimo) && std::isfinite(p.maximo) && p.minimo < p.maximo))
        return "El mínimo de " + NombreDe(p) + " no es menor que su máximo.";
    if (p.logaritmica && p.minimo <= 0)
        return "El mínimo de " + NombreDe(p) + " no es mayor que 0, y su escala es logarítmica.";
    return {};
}

using CampoDeComponente = std::tuple<const Campo*, int>;

/// Whether a parameter moves what an earlier one moves already.
bool Repite(const Movido& m, std::set<CampoDeComponente>& movidos)
{
    bool repite = m.numeros.empty() && !movidos.emplace(m.campo, 0).second;
    for (const int numero : m.numeros)
        repite = !movidos.emplace(m.campo, numero).second || repite;
    return repite;
}

/// A run that is refused before it begins.
engine::Calculo Rechazado(std::string texto)
{
    engine::Calculo c;
    c.fin = engine::FinCalculo::Rechazado;
    c.avisos.push_back({.mensaje = {.texto = std::move(texto)}});
    return c;
}

/// The network of a thread with one storm in hand.
struct EnUnaLluvia {
    EnUnaLluvia(const Modelo& modelo, const Lluvia& lluvia)
        : calculadora(modelo.red, lluvia.pasos, {.VariasCorridas = true})
    {
        for (const Parametro& p : modelo.parametros) {
            movidos.push_back(Resuelve(p, modelo.red, lluvia.tormenta));
            mueveTormenta = mueveTormenta || DeLaTormenta(movidos.back());
        }
        calculadora.Toma(lluvia.tormenta, modelo.tablas);
    }
    static bool DeLaTormenta(const Movido& m) { return m.motivo.empty() && m.campo->clase == 't'; }

    void Pone(const Modelo& modelo, const Lluvia& lluvia, std::span<const double> valores)
    {
        if (mueveTormenta) tormenta = lluvia.tormenta;
        for (std::size_t i = 0; i < movidos.size(); ++i) {
            if (DeLaTormenta(movidos[i]))
                Pon(movidos[i], modelo.parametros[i], valores[i], lluvia.tormenta, tormenta);
            else if (movidos[i].motivo.empty())
                Pon(movidos[i], modelo.parametros[i], valores[i], calculadora.Red());
        }
        AfinaMuskingum(movidos, lluvia.pasos.PasoQ, calculadora.Red());
        if (mueveTormenta) calculadora.Toma(tormenta, modelo.tablas);
    }

    engine::Calculadora calculadora;
    std::vector<Movido> movidos{};  ///< by parameter
    bool mueveTormenta = false;
    model::Tormenta tormenta{};
};

/// Whether a row of 32-bit floats has one that is no number, or none that is finite.
bool SinNumero(const float* fila, int desde, int hasta)
{
    constexpr std::uint32_t Exponente = 0x7F800000;
    bool hay = false;
    for (int i = desde; i <= hasta; ++i)
        hay |= (std::bit_cast<std::uint32_t>(fila[i]) & Exponente) == Exponente;
    return hay;
}

bool SinNumero(const model::Matriz<float>& m, int filas, int hasta)
{
    for (int fila = 1; fila <= filas; ++fila)
        if (m.Alcanza(fila, hasta) && SinNumero(m.Fila(fila), 0, hasta)) return true;
    return false;
}

}  // namespace

std::vector<std::string> ReparosDe(const Modelo& modelo)
{
    std::vector<std::string> reparos;
    const auto dice = [&](std::string texto) {
        if (!texto.empty() && std::ranges::find(reparos, texto) == reparos.end())
            reparos.push_back(std::move(texto));
    };
    if (modelo.lluvias.empty()) dice("No hay ninguna tormenta que correr.");
    for (const Lluvia& lluvia : modelo.lluvias) {
        std::set<CampoDeComponente> movidos;
        for (const Parametro& p : modelo.parametros) {
            const Movido m = Resuelve(p, modelo.red, lluvia.tormenta);
            if (!m.motivo.empty()) {
                dice(m.motivo);
                continue;
            }
            std::string rango = ReparoDeRango(p);
            dice(rango.empty() ? FueraDe(p, m) : std::move(rango));
            if (Repite(m, movidos)) dice(NombreDe(p) + " mueve lo que otro parámetro mueve ya.");
        }
    }
    return reparos;
}

struct Corredor::Estado {
    explicit Estado(const Modelo& unModelo) : modelo(unModelo), lluvias(unModelo.lluvias.size()) {}
    const Modelo& modelo;
    std::vector<std::unique_ptr<EnUnaLluvia>> lluvias;  ///< by number; null until it is run
    engine::Calculo rechazado{};
};

Corredor::Corredor(const Modelo& modelo) : estado(std::make_unique<Estado>(modelo)) {}

Corredor::~Corredor() = default;

const engine::Calculo& Corredor::Corre(std::span<const double> valores, std::size_t lluvia)
{
    const Modelo& modelo = estado->modelo;
    for (std::size_t i = 0; i < modelo.parametros.size(); ++i)
        if (!std::isfinite(valores[i])) {
            estado->rechazado =
                Rechazado("El valor de " + NombreDe(modelo.parametros[i]) + " no es un número.");
            return estado->rechazado;
        }
    auto& una = estado->lluvias[lluvia];
    if (!una) una = std::make_unique<EnUnaLluvia>(modelo, modelo.lluvias[lluvia]);
    una->Pone(modelo, modelo.lluvias[lluvia], valores);
    return una->calculadora.Corre();
}

std::string MotivoDe(const engine::Calculo& calculo)
{
    if (calculo.fin != engine::FinCalculo::Completo) {
        std::string motivo = calculo.fin == engine::FinCalculo::Rechazado ? "La corrida fue rechazada:"
                                                                          : "La corrida terminó antes:";
        for (std::size_t i = 0; i < calculo.avisos.size(); ++i)
            motivo += (i > 0 ? " / " : " ") + calculo.avisos[i].mensaje.texto;
        return motivo;
    }
    const model::Resultados& r = calculo.Resultados;
    if (SinNumero(r.QSale, r.NroComponentes, r.NroPasosQ)) return "Un caudal no es un número finito.";
    for (const auto* m : {&r.HRepresa, &r.HLago, &r.SRepresa, &r.SLago})
        if (SinNumero(*m, m->UltimaFila(), r.NroPasosQ))
            return "Una altura o un almacenamiento no es un número finito.";
    return {};
}

bool CorreMiembros(const Modelo& modelo, std::size_t cuantos, int hilos,
                   const std::function<void(std::size_t, Corredor&)>& haz, const study::Avance& avance)
{
    std::atomic<std::size_t> siguiente{0}, hechos{0};
    std::atomic<bool> dejado{false};
    const auto trabaja = [&](bool aparte) {
        Corredor corredor(modelo);
        while (!dejado) {
            const std::size_t miembro = siguiente++;
            if (miembro >= cuantos) return;
            if (!aparte && avance && !avance(hechos, cuantos)) {
                dejado = true;
                return;
            }
            haz(miembro, corredor);
            ++hechos;
        }
    };
    engine::EnHilos(hilos, cuantos, [&](bool aparte) {
        try {
            trabaja(aparte);
        } catch (...) {
            dejado = true;
            throw;
        }
    });
    if (!dejado && avance) avance(cuantos, cuantos);
    return !dejado;
}

}  // namespace runs
