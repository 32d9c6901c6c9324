// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Chow1988.h"
#include "checks/casos/Familias.h"

namespace checks::casos {

namespace {

/// Row of the component behind the one UEH of these networks.
constexpr int FilaDelEmbalse = 2;

/// Times 0, paso, 2·paso, ...
std::vector<double> Tiempos(std::size_t n, double paso)
{
    std::vector<double> t;
    for (std::size_t k = 0; k < n; ++k)
        t.push_back(paso * static_cast<double>(k));
    return t;
}

std::vector<double> En(std::vector<double> valores, double unidad)
{
    for (double& v : valores)
        v /= unidad;
    return valores;
}

// --- Chow, Maidment and Mays ---

/// The detention reservoir of one acre with vertical sides.
std::vector<Renglon> ReservorioDeUnAcre()
{
    std::vector<Renglon> tabla;
    for (std::size_t k = 0; k < chow::DescargaDelCano.size(); ++k) {
        const double pies = 0.5 * static_cast<double>(k);
        tabla.push_back({pies * chow::Pie, chow::Acre, pies * chow::PiesCuadradosPorAcre * chow::PieCubico,
                         chow::DescargaDelCano[k] * chow::PieCubico});
    }
    return tabla;
}

struct Reservorio {
    std::vector<double> sale;    ///< [cfs], from step 0
    std::vector<double> altura;  ///< [ft]
};

Reservorio ReservorioDelLibro(std::string_view metodo, bool lago)
{
    Banco banco;
    if (lago)
        banco.PonLago("0", metodo, ReservorioDeUnAcre());
    else
        banco.PonRepresa("0", metodo, ReservorioDeUnAcre());
    std::vector<double> entra;
    for (std::size_t k = 1; k < chow::Crecida.size(); ++k)
        entra.push_back(chow::Crecida[k] * chow::PieCubico);
    banco.Entra(lago ? "l-1" : "r-1", entra, 10);
    const model::Resultados r = banco.Corre().Resultados;
    return {En(Columna(r.QSale, FilaDelEmbalse, entra.size()), chow::PieCubico),
            En(Columna(lago ? r.HLago : r.HRepresa, 1, entra.size()), chow::Pie)};
}

Comparacion ConElLibro(const auto& impreso, std::vector<double> nuestro)
{
    return {Tiempos(nuestro.size(), 10), {impreso.begin(), impreso.end()}, std::move(nuestro)};
}

// --- Ponce ---

/// Inflow [m3/s] each hour from 0; then 100 to the end.
constexpr auto EntraPonce =
    std::to_array<double>({100, 150, 250, 400, 800, 1000, 900, 700, 550, 400, 300, 250, 200,
                           150, 120, 100, 100, 100, 100,  100, 100, 100, 100, 100, 100, 100});
constexpr auto SalePonce =
    std::to_array<double>({100,     110,    146,     217.6,   370.56,  582.336, 729.402, 757.641, 704.585,
                           612.751, 507.65, 414.59,  338.754, 273.252, 217.951, 174.771, 144.863, 126.918,
                           116.151, 109.69, 105.814, 103.489, 102.093, 101.256, 100.754, 100.452});
constexpr double BasePonce = 100;
constexpr float KPonce = 120;  // [min]

/// S = K·O as a tower of vertical walls that lets out 1 m3/s for each metre of water.
std::vector<Renglon> TorreLineal(double K, double alto)
{
    const double area = K * 60;  // [m2]
    return {{0, area / 10000, 0, 0}, {alto, area / 10000, area * alto, alto}};
}

Comparacion PonceLineal(std::string_view metodo)
{
    Banco banco;
    banco.PonRepresa("0", metodo, TorreLineal(KPonce, 1200)).Represa_k_Musk = KPonce;
    std::vector<double> entra;
    for (const double q : EntraPonce)
        entra.push_back(q - BasePonce);
    std::vector<double> sale = SaleDeRepresa(banco, entra, 60);
    for (double& q : sale)
        q += BasePonce;
    return {Tiempos(sale.size(), 1), {SalePonce.begin(), SalePonce.end()}, std::move(sale)};
}

Comparacion PonceTriangulo(std::string_view metodo)
{
    constexpr double Punta = 240, HastaLaPunta = 6, Base = 16;  // [m3/s], [h]
    Banco banco;
    banco.PonRepresa("0", metodo, TorreLineal(KPonce, 300)).Represa_k_Musk = KPonce;
    std::vector<double> entra;
    for (int t = 0; t <= 20; ++t) {
        const double sube = Punta * t / HastaLaPunta, baja = Punta * (Base - t) / (Base - HastaLaPunta);
        entra.push_back(std::max(0.0, std::min(sube, baja)));
    }
    return UnaCifra(SaleDeRepresa(banco, entra, 60), 8, 195.26);
}

// --- rows ---

constexpr std::string_view FuenteChow82 =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 8.2.1, tablas "
    "8.2.1 y 8.2.2";
constexpr std::string_view FuenteChow83 =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 8.3.1, tabla "
    "8.3.2";
constexpr std::string_view EntradaChow =
    "reservorio de un acre de paredes verticales, vacío al comienzo, con un caño de 5 pies por descarga; "
    "crecida triangular de 360 pie3/s a los 60 min; paso de 10 min";
constexpr std::string_view MinutosDesdeElComienzo = "tiempo [min]", Horas = "tiempo [h]";
constexpr std::string_view FuentePonce =
    "V. M. Ponce (2007), San Diego State University, ONLINE ROUTING 01 y 02, tabla del ejemplo (método de "
    "Engineering Hydrology, 1989, cap. 8)";
constexpr std::string_view FuenteTarea =
    "V. M. Ponce, San Diego State University, CIV E 445 Applied Hydrology, tarea 10, problemas 1 y 2, y su "
    "solución (2003): 195.26 m3/s a las 8 h";
constexpr std::string_view EntradaPonce =
    "embalse lineal S = K·O con K = 2 h; 26 caudales de entrada, uno por hora, de 100 a 1000 m3/s; los 100 "
    "m3/s iniciales se descuentan a la entrada y se suman a la salida, que la relación lineal permite";
constexpr std::string_view EntradaTriangulo =
    "embalse lineal con K = 2 h; crecida triangular de 240 m3/s a las 6 h y 16 h de base; paso de 1 h";
constexpr std::string_view PorqueBandaLineal =
    "la altura se busca hasta 5 mm, aquí 0.005 m3/s a lo sumo, que pasan de un paso al otro por 0.6";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Piscina nivelada, lago de un acre", FuenteChow82, EntradaChow, "caudal de salida [pie3/s]",
     MinutosDesdeElComienzo, 1.0,
     "la altura se busca hasta 5 mm, que valen 0.66 pie3/s, y otro tanto pasa de un paso al otro", false,
     [] { return ConElLibro(chow::SalePiscina, ReservorioDelLibro(Piscina, true).sale); }},
    {"Piscina nivelada, represa de un acre", FuenteChow82, EntradaChow, "caudal de salida [pie3/s]",
     MinutosDesdeElComienzo, 1.0,
     "la altura se busca hasta 5 mm, que valen 0.66 pie3/s, y otro tanto pasa de un paso al otro", false,
     [] { return ConElLibro(chow::SalePiscina, ReservorioDelLibro(Piscina, false).sale); }},
    {"Runge-Kutta de tercer orden, altura", FuenteChow83, EntradaChow, "altura del agua [pie]",
     MinutosDesdeElComienzo, 0.0051, "media unidad de la última cifra impresa", false,
     [] { return ConElLibro(chow::AlturaRungeKutta, ReservorioDelLibro(RungeKutta, true).altura); }},
    {"Runge-Kutta de tercer orden, caudal", FuenteChow83, EntradaChow, "caudal de salida [pie3/s]",
     MinutosDesdeElComienzo, 0.1,
     "media unidad de la última cifra impresa, y otro tanto por la altura que el libro redondea", false,
     [] { return ConElLibro(chow::SaleRungeKutta, ReservorioDelLibro(RungeKutta, false).sale); }},
    {"Embalse lineal de Ponce, Muskingum con x = 0", FuentePonce, EntradaPonce, "caudal de salida [m3/s]",
     Horas, 0.002, "media unidad de la última cifra impresa, más la lluvia acumulada en 32 bits", false,
     [] { return PonceLineal(Muskingum); }},
    {"Embalse lineal de Ponce, piscina nivelada", FuentePonce, EntradaPonce, "caudal de salida [m3/s]", Horas,
     0.015, PorqueBandaLineal, false, [] { return PonceLineal(Piscina); }},
    {"Crecida triangular de Ponce, Muskingum con x = 0", FuenteTarea, EntradaTriangulo,
     "caudal de salida máximo [m3/s]", Horas, 0.0055, "media unidad de la última cifra impresa", false,
     [] { return PonceTriangulo(Muskingum); }},
    {"Crecida triangular de Ponce, piscina nivelada", FuenteTarea, EntradaTriangulo,
     "caudal de salida máximo [m3/s]", Horas, 0.015, PorqueBandaLineal, false,
     [] { return PonceTriangulo(Piscina); }},
});

}  // namespace

std::span<const FilaDeCaso> EmbalsesDeLibro()
{
    return Filas;
}

}  // namespace checks::casos
