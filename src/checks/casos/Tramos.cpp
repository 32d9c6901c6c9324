// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Chow1988.h"
#include "checks/casos/Familias.h"
#include "engine/Muskingum.h"

namespace checks::casos {

namespace {

constexpr int FilaDelTramo = 2;

/// K of Chow's example [min]: 2.3 h is 138 min, whose three coefficients don't add up to 1 in 32 bits; those
/// of the next float do.
float KDeChow()
{
    return std::nextafter(138.0F, 139.0F);
}

/// Outflow [m3/s] of a reach by Muskingum's method from step 1; the first is the inflow.
std::vector<double> SaleDelTramo(std::span<const double> entra, float K, double x)
{
    Banco banco;
    model::Cauce& tramo = banco.PonCauce("0");
    tramo.Cauce_k_Musk = K;
    tramo.Cauce_n_Musk = static_cast<float>(x);
    banco.Entra("c-1", entra, 60);
    std::vector<double> sale = Columna(banco.Corre().Resultados.QSale, FilaDelTramo, entra.size());
    sale.erase(sale.begin());
    return sale;
}

Comparacion TramoDeChow()
{
    std::vector<double> entra;
    for (const double q : chow::EntraMuskingum)
        entra.push_back(q * chow::PieCubico);
    const std::vector<double> sale = SaleDelTramo(entra, KDeChow(), chow::PesoMuskingum);
    Comparacion c;
    double deMas = chow::EntraMuskingum[0] - chow::SaleMuskingum[0];
    for (std::size_t k = 0; k < sale.size(); ++k) {
        c.x.push_back(static_cast<double>(k) + 1);
        c.impreso.push_back(chow::SaleMuskingum[k]);
        c.nuestro.push_back(sale[k] / chow::PieCubico - deMas);
        deMas *= chow::CoeficientesMuskingum[2];
    }
    return c;
}

/// The three coefficients of a reach with a step of an hour.
std::vector<double> Coeficientes(float K, double x)
{
    engine::Muskingum m;
    m.Prepara(K, static_cast<float>(x), 60, [](auto cuerpo) { cuerpo(); });
    return {m.C0Musk, m.C1Musk, m.C2Musk};
}

Comparacion CoeficientesDeChow()
{
    return {{1, 2, 3},
            {chow::CoeficientesMuskingum.begin(), chow::CoeficientesMuskingum.end()},
            Coeficientes(KDeChow(), chow::PesoMuskingum)};
}

constexpr float KDePonce = 60;  // [min]
constexpr double PesoDePonce = 0.2;
constexpr auto EntraDePonce =
    std::to_array<double>({12, 30, 50, 100, 145, 160, 140, 75, 55, 45, 35, 25, 15, 12});

Comparacion CoeficientesDePonce()
{
    return {{1, 2, 3}, {0.231, 0.538, 0.231}, Coeficientes(KDePonce, PesoDePonce)};
}

Comparacion PicoDePonce()
{
    return UnaCifra(SaleDelTramo(EntraDePonce, KDePonce, PesoDePonce), 6, 150.353);
}

/// A reach of 1800 m at 1 m/s hands on what comes in, 30 min later.
Comparacion TramoDirecto()
{
    constexpr auto Entra = std::to_array<double>({2, 6, 11, 7, 4, 1, 0, 0, 0});
    Banco banco;
    model::Cauce& tramo = banco.PonCauce("0");
    tramo.optDirMusk = true;
    tramo.LongCauce = 1800;
    tramo.VelMediaCauce = 1;
    banco.Entra("c-1", Entra, 10);
    return {{0, 10, 20, 30, 40, 50, 60, 70, 80, 90},
            {0, 0, 0, 0, 2, 6, 11, 7, 4, 1},
            Columna(banco.Corre().Resultados.QSale, FilaDelTramo, Entra.size())};
}

constexpr std::string_view FuenteChow =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 8.4.1, tabla "
    "8.4.1";
constexpr std::string_view FuentePonce =
    "V. M. Ponce, San Diego State University, CIV E 445 Applied Hydrology, tarea 11, problema 1 (2008), y su "
    "solución (2014): C 0.231, 0.538, 0.231, y 150.353 m3/s a las 6 h";
constexpr std::string_view EntradaPonce =
    "K = 1 h, x = 0.2, paso de 1 h; entrada 12, 30, 50, 100, 145, 160, 140, 75, 55, 45, 35, 25, 15, 12 m3/s";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Muskingum, coeficientes de Chow", FuenteChow, "K = 2.3 h, x = 0.15, paso de 1 h", "coeficiente",
     "C1, C2, C3", 0.00005, "media unidad de la última cifra impresa", false, CoeficientesDeChow},
    {"Muskingum, crecida de Chow", FuenteChow,
     "K = 2.3 h, x = 0.15, paso de 1 h; 20 caudales de 90 a 691 pie3/s. El libro empieza con una salida de "
     "85 "
     "y el programa con la entrada de 93: los 8 se descuentan con el peso C3 que les queda",
     "caudal de salida [pie3/s]", "tiempo [h]", 0.51, "media unidad de la última cifra impresa", false,
     TramoDeChow},
    {"Muskingum, coeficientes de Ponce", FuentePonce, EntradaPonce, "coeficiente", "C0, C1, C2", 0.0005,
     "media unidad de la última cifra impresa", false, CoeficientesDePonce},
    {"Muskingum, pico de Ponce", FuentePonce, EntradaPonce, "caudal de salida máximo [m3/s]", "tiempo [h]",
     0.00075, "media unidad de la última cifra impresa, y la mitad por la lluvia en 32 bits", false,
     PicoDePonce},
    {"Propagación directa, 1800 m a 1 m/s", "a mano: el hidrograma se corre L/V",
     "entrada 2, 6, 11, 7, 4, 1 m3/s cada 10 min; 30 min de viaje", "caudal de salida [m3/s]", "tiempo [min]",
     0.0001, "la lluvia acumulada en 32 bits", true, TramoDirecto},
});

}  // namespace

std::span<const FilaDeCaso> Tramos()
{
    return Filas;
}

}  // namespace checks::casos
