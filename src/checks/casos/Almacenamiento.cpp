// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Chow1988.h"
#include "checks/casos/Familias.h"
#include "hydraulics/mdlHAS.h"

namespace checks::casos {

namespace {

/// A Represa whose table holds a body's volume [m3] each `dh` [m] up to a height.
class Cuerpo {
  public:
    Cuerpo(double alto, double dh, const std::function<double(double)>& volumen)
    {
        std::vector<Renglon> tabla;
        for (int k = 0; k <= std::lround(alto / dh); ++k)
            tabla.push_back({k * dh, 1, volumen(k * dh), 0});
        banco.PonRepresa("0", Piscina, tabla);
        banco.LlenaTablas();
    }
    /// Storage [m3] at a height [m], as a run looks it up.
    [[nodiscard]] double SdeH(double h) const
    {
        return hydraulics::SdeH(hydraulics::EnMano(anfitrion, banco.red, banco.red.ColRepresas.Item(1)),
                                static_cast<float>(h));
    }

  private:
    Banco banco{};
    model::Anfitrion anfitrion{};
};

/// The acre with vertical sides, looked up halfway between the rows of each half foot.
Comparacion Prisma()
{
    using namespace chow;
    const Cuerpo acre(10 * Pie, 0.5 * Pie,
                      [](double h) { return h / Pie * PiesCuadradosPorAcre * PieCubico; });
    const auto impreso = std::to_array<double>({925.11, 1541.85, 3083.70, 6784.15, 10484.60, 12026.45});
    const auto pies = std::to_array<double>({0.75, 1.25, 2.5, 5.5, 8.5, 9.75});
    Comparacion c{{pies.begin(), pies.end()}, {impreso.begin(), impreso.end()}, {}};
    for (const double h : pies)
        c.nuestro.push_back(acre.SdeH(h * Pie));
    return c;
}

/// A cone of a radius of ten times its height: V = pi·100·h3/3.
Comparacion Cono()
{
    const Cuerpo cono(10, 0.1, [](double h) { return std::numbers::pi * 100 * h * h * h / 3; });
    Comparacion c{
        {0.95, 1.95, 2.95, 3.95, 4.95, 5.95, 6.95, 7.95, 8.95, 9.95},
        {89.78, 776.48, 2688.40, 6453.87, 12701.18, 22058.68, 35154.67, 52617.48, 75075.41, 103156.80},
        {}};
    for (const double h : c.x)
        c.nuestro.push_back(cono.SdeH(h));
    return c;
}

/// A frustum ten times as large as the printed one, a thousand times its volume; no row at its full height.
Comparacion TroncoDeCono()
{
    constexpr double Abajo = 12.5, Arriba = 17.5, Alto = 40.01;  // [m]
    const Cuerpo tronco(45, 0.25, [](double h) {
        const double r = Abajo + (Arriba - Abajo) * h / Alto;
        return std::numbers::pi * h / 3 * (Abajo * Abajo + Abajo * r + r * r);
    });
    return {{4.001}, {28.54}, {tronco.SdeH(Alto) / 1000}};
}

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Almacenamiento de un prisma",
     "por geometría: área por altura; el acre de 43 560 pie2 de Chow y otros (1988), ejemplo 8.2.1",
     "tabla cada medio pie hasta 10 pies, leída entre renglones", "volumen [m3]", "altura [pie]", 0.5,
     "la tabla guarda m3 enteros", true, Prisma},
    {"Almacenamiento de un cono", "por geometría: V = pi·r2·h/3 con r = 10·h",
     "tabla cada 0.1 m hasta 10 m, leída a mitad de camino entre renglones", "volumen [m3]", "altura [m]", 8,
     "la flecha de la cuerda, (0.1 m)2/8 por V'' = 6283 m a 10 m de altura", true, Cono},
    {"Almacenamiento de un tronco de cono",
     "HackMath.net, Frustum of a cone, problema 11811 (28.54 m3, diámetros de 3.5 y 2.5 m, altura 4.001 m)",
     "el mismo cuerpo diez veces mayor, tabla cada 0.25 m; el volumen a su altura, dividido por mil",
     "volumen [m3]", "altura [m]", 0.005, "media unidad de la última cifra impresa", false, TroncoDeCono},
});

}  // namespace

std::span<const FilaDeCaso> Almacenamiento()
{
    return Filas;
}

}  // namespace checks::casos
