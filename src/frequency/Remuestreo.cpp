// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Remuestreo.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <exception>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "study/Philox.h"

namespace frequency {
namespace {

/// What one sample of the law gives.
struct Miembro {
    PorRecurrencia cuantiles{};
    Bondad bondad{};
    RazonesL razones{};
};

/// What samples are drawn from, and how they are fitted.
struct Fuente {
    const Ley& ley;
    const Parametros& p;
    Metodo metodo;
    double p0;
    std::size_t anios;
    Tratamiento tratamiento;
};

Fuente FuenteDe(const Ley& ley, const Estimado& e, Metodo metodo, const Muestra& m)
{
    const Alcance alcance = AlcanceDe(e, m);
    Fuente fuente{ley, *e.p, metodo, alcance.p0, m.Anios(), m.tratamiento};
    if (m.tratamiento.bajos == Bajos::Boletin17C) fuente.tratamiento.cuantos = m.Anios() - alcance.x.size();
    return fuente;
}

std::optional<Miembro> HazMiembro(const Fuente& de, study::Sorteo sorteo)
{
    constexpr std::size_t Menos = 5;  // years with rain that a fit needs to mean anything
    try {
        std::vector<double> x(de.anios);
        for (double& xi : x)
            xi = Cuantil(de.ley, de.p, de.p0, sorteo.Uniforme());
        Muestra m = HazMuestra(std::move(x));
        if (m.x.size() < Menos) return {};
        m.tratamiento = de.tratamiento;
        const Estimado e = Ajusta(de.ley, m, de.metodo);
        if (!e.p) return {};
        const Alcance alcance = AlcanceDe(e, m);
        const MomentosL& l = m.directos.l;
        Miembro miembro{CuantilesDe(de.ley, *e.p, alcance.p0),
                        BondadDe(de.ley, *e.p, alcance.x, alcance.bajos),
                        {l.t3, l.t4}};
        for (const double q : miembro.cuantiles)
            if (!std::isfinite(q)) return {};
        return miembro;
    } catch (const std::exception&) {  // a special function outside its domain
        return {};
    }
}

using Miembros = std::vector<std::optional<Miembro>>;

/// Nothing where `avance` stops it.
std::optional<Miembros> HazMiembros(const std::function<std::optional<Miembro>(std::size_t k)>& haz,
                                    const PedidoDeRemuestreo& pedido, const Avance& avance)
{
    Miembros todos(static_cast<std::size_t>(std::max(0, pedido.cuantas)));
    std::atomic<std::size_t> siguiente = 0;
    std::atomic<bool> detenido = false;
    const auto trabaja = [&](const Avance& pregunta) {
        for (std::size_t k = siguiente++; k < todos.size() && !detenido; k = siguiente++) {
            if (pregunta && !pregunta(k, todos.size())) detenido = true;
            if (!detenido) todos[k] = haz(k);
        }
    };
    const int nucleos = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    const int hilos = pedido.hilos > 0 ? pedido.hilos : nucleos;
    std::vector<std::jthread> ayudantes;
    try {
        for (int i = 1; i < hilos; ++i)
            ayudantes.emplace_back(trabaja, Avance{});
    } catch (const std::system_error&) {  // no more threads: those that run do the work
    }
    trabaja(avance);
    ayudantes.clear();
    if (detenido) return {};
    return todos;
}

/// Quantile q of sorted values, linear between neighbours.
double CuantilDe(const std::vector<double>& x, double q)
{
    const double lugar = q * static_cast<double>(x.size() - 1);
    const auto i = static_cast<std::size_t>(lugar);
    if (i + 1 >= x.size()) return x.back();
    return x[i] + (lugar - static_cast<double>(i)) * (x[i + 1] - x[i]);
}

}  // namespace

PorRecurrencia CuantilesDe(const Ley& ley, const Parametros& p, double p0)
{
    PorRecurrencia q{};
    for (std::size_t i = 0; i < q.size(); ++i)
        q[i] = Cuantil(ley, p, p0, 1 - 1.0 / model::Recurrencias[i]);
    return q;
}

std::optional<Remuestreo> Remuestrea(const Ley& ley, const Estimado& e, Metodo metodo, const Muestra& m,
                                     const PedidoDeRemuestreo& pedido, const Avance& avance)
{
    constexpr double Bajo = 0.05, Alto = 0.95;
    const Fuente fuente = FuenteDe(ley, e, metodo, m);
    const auto haz = [&](std::size_t k) { return HazMiembro(fuente, study::Sorteo(pedido.semilla, k)); };
    const auto todos = HazMiembros(haz, pedido, avance);
    if (!todos) return {};
    std::vector<const Miembro*> sirven;
    for (const auto& miembro : *todos)
        if (miembro) sirven.push_back(&*miembro);
    Remuestreo r;
    r.sirven = static_cast<int>(sirven.size());
    if (!r.Hay()) return r;
    for (const Miembro* miembro : sirven)
        r.razones.push_back(miembro->razones);
    for (std::size_t t = 0; t < r.banda5.size(); ++t) {
        std::vector<double> q;
        for (const Miembro* miembro : sirven)
            q.push_back(miembro->cuantiles[t]);
        std::sort(q.begin(), q.end());
        r.banda5[t] = CuantilDe(q, Bajo);
        r.banda95[t] = CuantilDe(q, Alto);
    }
    const Alcance alcance = AlcanceDe(e, m);
    const Bondad de = BondadDe(ley, *e.p, alcance.x, alcance.bajos);
    for (double Bondad::*cual : {&Bondad::ks, &Bondad::ad, &Bondad::chi2, &Bondad::ppcc}) {
        double lejos = 1;
        for (const Miembro* miembro : sirven) {
            const double suyo = miembro->bondad.*cual;
            lejos += cual == &Bondad::ppcc ? suyo <= de.*cual : suyo >= de.*cual;
        }
        r.p.*cual = lejos / (1 + static_cast<double>(sirven.size()));
    }
    return r;
}

}  // namespace frequency
