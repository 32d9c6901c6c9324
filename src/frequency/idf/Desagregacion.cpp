// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/idf/Desagregacion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frequency/idf/Familias.h"

namespace frequency::idf {
namespace {

constexpr double Dia = 1440, Hora = 60;  // [min]

double DickPeschke(const Datos& /*datos*/, double d)
{
    return std::pow(d / Dia, 0.25);
}

/// Of the mean intensity of the day: exactly the index in an hour, and 1 in 28 hours.
double Torrencialidad(const Datos& datos, double d)
{
    const double ultima = std::pow(28.0, 0.1);
    return std::pow(datos.c[0], (ultima - std::pow(d / Hora, 0.1)) / (ultima - 1));
}

double Instruccion1990(const Datos& datos, double d)
{
    return d / Dia * Torrencialidad(datos, d);
}

/// The same with the exponents as they are printed, and a recording gauge's curve where there is one.
double Instruccion2016(const Datos& datos, double d)
{
    const double fa = std::pow(datos.c[0], 3.5287 - 2.5287 * std::pow(d / Hora, 0.1));
    const double fb = datos.c[1] * RazonDe(datos.razones, d) * Dia / d;
    return d / Dia * (fb > fa ? fb : fa);
}

double Dit(const Datos& datos, double d)
{
    return d / Dia * std::exp(datos.c[0] * (PersistenciaDit(Dia) - PersistenciaDit(d)));
}

double PorRazones(const Datos& datos, double d)
{
    return RazonDe(datos.razones, d);
}

constexpr Pedido Torrente{"I1Id", "torrencialidad, la intensidad de una hora sobre la del día", 1, 20, 0};

constexpr std::array Todas{
    Desagregacion{
        "dick-peschke",
        "Dick-Peschke",
        {},
        0,
        false,
        false,
        DickPeschke,
        5,
        Dia,
        "P(d) = P24 (d/1440)^0.25",
        "Dick y Peschke, en Guevara 1991; Manual de hidrología, hidráulica y drenaje, MTC del Perú 2011",
        "De 5 a 1440 min; una misma forma en todo lugar"},
    Desagregacion{"5.2-ic",
                  "5.2-IC de 1990",
                  {{Torrente}},
                  1,
                  false,
                  true,
                  Instruccion1990,
                  5,
                  Dia,
                  "I = Id (I1/Id)^x, x = (28^0.1 - t^0.1) / (28^0.1 - 1), Id = Pd/24, t en horas",
                  "Instrucción de Carreteras 5.2-IC, MOPU 1990; Témez 1978",
                  "De 5 min a 24 h; I1/Id se lee en el mapa de la instrucción, de 8 a 12 en España"},
    Desagregacion{"5.2-ic-2016",
                  "5.2-IC de 2016",
                  {{Torrente, {"kb", "de un día a 24 horas, para la curva del pluviógrafo", 1, 2, 1.13}}},
                  2,
                  false,
                  true,
                  Instruccion2016,
                  5,
                  Dia,
                  "I = Id max(Fa, Fb), Id = Pd KA/24, Fa = (I1/Id)^x, x = 3.5287 - 2.5287 t^0.1, t en horas; "
                  "Fb = kb I(t)/I(24) de "
                  "un pluviógrafo cercano",
                  "Norma 5.2-IC, orden FOM/298/2016, apartado 2.2.2",
                  "De 5 min a 24 h. Sin la curva de un pluviógrafo (las razones) vale Fa sola"},
    Desagregacion{
        "dit",
        "Modelo DIT",
        {{{"B", "de la duración, el de la región", 0.01, 1, 0}}},
        1,
        false,
        false,
        Dit,
        5,
        Dia,
        "i(d)/i(1440) = exp(B ((ln 1440)^(5/3) - (ln d)^(5/3)))",
        "Caamaño Nelli y Dasso 2003, Lluvias de diseño, Universitas; fichas del INA-SCIRSA, 2024 y 2025",
        "De 5 a 1440 min, en la región de la que es B"},
    Desagregacion{"razones",
                  "Razones propias",
                  {},
                  0,
                  true,
                  false,
                  PorRazones,
                  1,
                  2880,
                  "P(d) = razón(d) P24; entre dos razones, una recta de logaritmos",
                  "La que dé quien las pone, por ejemplo Campos Aranda 1978",
                  "Entre la menor y la mayor de las duraciones dadas"},
};

constexpr std::string_view FuenteFichas = "Rico, Guillén, Eder, Elcano y Terré, INA-SCIRSA";
constexpr std::array Fichas{
    EstacionDit{"Salta Aero (Salta)", 0.380, 0.150, 5.179, "Rico y otros 2025, INA-CIRSA y UCASAL"},
    EstacionDit{"La Suela (Córdoba)", 0.365, 0.148, 5.116, FuenteFichas},
    EstacionDit{"Pampa de Olaen (Córdoba)", 0.352, 0.141, 5.023, FuenteFichas},
    EstacionDit{"Altas Cumbres, La Posta (Córdoba)", 0.267, 0.157, 5.192, FuenteFichas},
};

double FactorDeArea(double area, double /*propio*/)
{
    return area < 1 ? 1 : 1 - std::log10(area) / 15;
}

double FactorPropio(double /*area*/, double propio)
{
    return propio;
}

constexpr std::array Areales{
    Reduccion{"5.2-ic", "KA de la 5.2-IC", FactorDeArea, "KA = 1 si A < 1 km2; si no, KA = 1 - log10(A)/15",
              "Témez 1991; norma 5.2-IC, orden FOM/298/2016, apartado 2.2.2.3", false},
    Reduccion{"propia", "Factor propio", FactorPropio, "P de la cuenca = KA P del punto",
              "La de quien lo pone", true},
};

template <typename Lista>
auto* DeClave(const Lista& lista, std::string_view clave)
{
    const auto cual =
        std::find_if(lista.begin(), lista.end(), [&](const auto& x) { return x.clave == clave; });
    return cual == lista.end() ? nullptr : &*cual;
}

}  // namespace

std::span<const Desagregacion> Desagregaciones()
{
    return Todas;
}

const Desagregacion* DesagregacionDeClave(std::string_view clave)
{
    return DeClave(Todas, clave);
}

std::span<const EstacionDit> EstacionesDit()
{
    return Fichas;
}

std::span<const Reduccion> Reducciones()
{
    return Areales;
}

const Reduccion* ReduccionDeClave(std::string_view clave)
{
    return DeClave(Areales, clave);
}

double RazonDe(std::span<const study::Razon> razones, double duracion)
{
    const auto despues = std::find_if(razones.begin(), razones.end(),
                                      [&](const study::Razon& r) { return r.duracion >= duracion; });
    if (despues == razones.end()) return std::numeric_limits<double>::quiet_NaN();
    if (despues->duracion == duracion) return despues->razon;
    if (despues == razones.begin()) return std::numeric_limits<double>::quiet_NaN();
    const auto antes = despues - 1;
    const double parte = std::log(duracion / antes->duracion) / std::log(despues->duracion / antes->duracion);
    return antes->razon * std::pow(despues->razon / antes->razon, parte);
}

}  // namespace frequency::idf
