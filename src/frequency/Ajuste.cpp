// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Ajuste.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>

namespace frequency {

std::span<const Ley* const> Leyes()
{
    static constexpr std::array<const Ley*, 8> Todas{&Gumbel,     &Gev,        &Exponencial,   &LogNormal2,
                                                     &LogNormal3, &PearsonIII, &LogPearsonIII, &SqrtEtmax};
    return Todas;
}

const Ley* LeyDeClave(std::string_view clave)
{
    const auto leyes = Leyes();
    const auto cual =
        std::find_if(leyes.begin(), leyes.end(), [&](const Ley* l) { return l->clave == clave; });
    return cual == leyes.end() ? nullptr : *cual;
}

std::string_view ClaveDe(Metodo metodo)
{
    constexpr std::array<std::string_view, 3> Claves{"momentos", "l", "mv"};
    return Claves[static_cast<std::size_t>(metodo)];
}

std::string_view NombreDe(Metodo metodo)
{
    constexpr std::array<std::string_view, 3> Nombres{"momentos", "momentos L", "máxima verosimilitud"};
    return Nombres[static_cast<std::size_t>(metodo)];
}

namespace {

Estimado SinControl(const Ley& ley, const Muestra& m, Metodo metodo)
{
    switch (metodo) {
    case Metodo::Momentos:
        return ley.porMomentos(m);
    case Metodo::MomentosL:
        return ley.porMomentosL(m);
    case Metodo::Verosimilitud:
        return ley.porVerosimilitud(ley, m);
    }
    return {};
}

}  // namespace

Alcance AlcanceDe(const Estimado& e, const Muestra& m)
{
    if (!e.bajos) return {m.P0(), 0, m.x};
    const auto fuera = static_cast<std::size_t>(std::lround(*e.bajos * static_cast<double>(m.Anios())));
    return {0, *e.bajos, std::span(m.x).subspan(fuera - m.secos)};
}

double Cuantil(const Ley& ley, const Parametros& p, double p0, double F)
{
    if (p0 <= 0) return ley.cuantil(p, F);
    return F <= p0 ? 0 : ley.cuantil(p, (F - p0) / (1 - p0));
}

double Probabilidad(const Ley& ley, const Parametros& p, double p0, double x)
{
    if (p0 <= 0) return ley.probabilidad(p, x);
    return x < 0 ? 0 : p0 + (1 - p0) * ley.probabilidad(p, x);
}

Estimado Ajusta(const Ley& ley, const Muestra& m, Metodo metodo)
{
    const Estimado sin{{}, "El ajuste no tiene solución"};
    try {
        Estimado e = SinControl(ley, m, metodo);
        if (!e.p) return e;
        for (std::size_t i = 0; i < ley.cuantos; ++i) {
            const double valor = (*e.p)[i];
            if (!std::isfinite(valor) || (ley.parametros[i].papel == Papel::Escala && valor <= 0)) return sin;
        }
        return e;
    } catch (const std::exception&) {
        return sin;
    }
}

}  // namespace frequency
