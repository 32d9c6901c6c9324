// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

#include "frequency/casos/Filas.h"
#include "frequency/tormenta/Patron.h"

namespace frequency::casos {
namespace {

constexpr double Dia = 1440;

/// What has fallen by the end of each step, 0 first.
std::vector<double> Acumulada(const Patron& patron, const PedidoDeTormenta& pedido)
{
    const std::vector<double> laminas = Reparte(patron, pedido).laminas;
    std::vector<double> acumulada(laminas.size() + 1);
    std::partial_sum(laminas.begin(), laminas.end(), acumulada.begin() + 1);
    return acumulada;
}

std::vector<double> DeUnDia(const Patron& patron, double paso)
{
    return Acumulada(patron, {.total = 1, .duracion = Dia, .paso = paso});
}

using Ordenadas = std::vector<std::pair<double, double>>;  ///< time, part of the day's rain

Comparacion DeTabla(const Patron& patron, double paso, double pasosPorUnidad, const Ordenadas& impresas)
{
    const std::vector<double> acumulada = DeUnDia(patron, paso);
    Comparacion c;
    for (const auto& [tiempo, parte] : impresas) {
        c.x.push_back(tiempo);
        c.impreso.push_back(parte);
        c.nuestro.push_back(acumulada.at(static_cast<std::size_t>(std::lround(tiempo * pasosPorUnidad))));
    }
    return c;
}

/// Hours of the book, which all are whole steps of 3 min.
Comparacion DelLibro(const Patron& patron, const Ordenadas& impresas)
{
    constexpr double Paso = 3, PasosPorHora = 20;
    return DeTabla(patron, Paso, PasosPorHora, impresas);
}

/// The greatest part of the day's rain in so many minutes, at steps of 2 min.
Comparacion Anidadas(const Patron& patron, const Ordenadas& impresas)
{
    constexpr double Paso = 2;
    const std::vector<double> acumulada = DeUnDia(patron, Paso);
    Comparacion c;
    for (const auto& [minutos, parte] : impresas) {
        const auto ancho = static_cast<std::size_t>(minutos / Paso);
        double mayor = 0;
        for (std::size_t i = ancho; i < acumulada.size(); ++i)
            mayor = std::max(mayor, acumulada[i] - acumulada[i - ancho]);
        c.x.push_back(minutos);
        c.impreso.push_back(parte);
        c.nuestro.push_back(mayor);
    }
    return c;
}

Comparacion PorPaso(const Patron& patron, const PedidoDeTormenta& pedido, std::vector<double> impreso)
{
    Comparacion c;
    c.nuestro = Reparte(patron, pedido).laminas;
    c.impreso = std::move(impreso);
    for (std::size_t i = 1; i <= c.impreso.size(); ++i)
        c.x.push_back(static_cast<double>(i) * pedido.paso);
    return c;
}

/// The depth of a curve that is told as an intensity by hour.
PedidoDeTormenta DosHoras(double (*intensidad)(double minutos))
{
    PedidoDeTormenta p{.duracion = 120, .paso = 10};
    p.lamina = [intensidad](double d) { return intensidad(d) * d / 60; };
    p.total = p.lamina(p.duracion);
    return p;
}

constexpr std::string_view Chow =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, capítulo 14, "
    "distribuciones de lluvia del SCS";
constexpr std::string_view Parte = "parte de la lluvia de 24 h", Hora = "hora";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Bloques alternos, dos horas en Denver",
     "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 14.4.1, tabla "
     "14.4.1",
     "i = 96.6/(d^0.97 + 13.90) [pulg/h], 120 min, paso de 10 min", "lámina del paso [pulg]", "t [min]",
     0.0006, "media unidad de la última cifra, y la resta de láminas redondeadas", false,
     [] {
         return PorPaso(BloquesAlternos,
                        DosHoras([](double d) { return 96.6 / (std::pow(d, 0.97) + 13.90); }),
                        {0.024, 0.033, 0.050, 0.084, 0.178, 0.693, 0.308, 0.117, 0.063, 0.040, 0.028, 0.021});
     }},
    {"Chicago, la integral de sus intensidades",
     "C. J. Keifer y H. H. Chu (1957), Synthetic storm pattern for drainage design, J. Hydraul. Div. ASCE "
     "83(HY4)",
     "i = 1000/(d + 10)^0.8 [mm/h], 120 min, paso de 10 min, avance 0.375", "lámina del paso [mm]", "t [min]",
     1e-9, "la masa es exacta; la integral se hizo con 30 cifras", true,
     [] {
         return PorPaso(Chicago, DosHoras([](double d) { return 1000 / std::pow(d + 10, 0.8); }),
                        {0.9990734814237603, 1.3282587228012164, 2.0114221373347703, 4.228025645915372,
                         14.958384250767423, 6.632486272896198, 3.337425802241754, 2.2079234407309767,
                         1.6499403019152248, 1.3202282210111358, 1.1032768465237117, 0.9498884257518626});
     }},
    {"NOAA Atlas 14, cuartiles y probabilidades de 6 h",
     "Bonnin y otros (2006), NOAA Atlas 14, volumen 2, versión 2.1, apéndice A.1, tabla de 6 h",
     "a un cuarto, medio y tres cuartos de la duración: cuartil 1 con 10 y 50 %, cuartil 3 con 50 y 90 %",
     "parte de la lluvia [%]", "ordenada", 0.05, "media unidad de la última cifra", false,
     [] {
         Comparacion c;
         for (const auto& [cuartil, probabilidad] : {std::pair(1, 10), {1, 50}, {3, 50}, {3, 90}}) {
             const std::vector<double> hasta = Acumulada(Noaa14, {.total = 100,
                                                                  .duracion = 360,
                                                                  .paso = 90,
                                                                  .cuartil = cuartil,
                                                                  .probabilidad = probabilidad});
             c.nuestro.insert(c.nuestro.end(), hasta.begin() + 1, hasta.end() - 1);
         }
         c.impreso = {84.4, 99.7, 100, 53.9, 84.0, 95.4, 14.7, 39.4, 79.9, 4.7, 20.4, 66.6};
         for (std::size_t i = 1; i <= c.impreso.size(); ++i)
             c.x.push_back(static_cast<double>(i));
         return c;
     }},
    {"SCS tipo I", Chow, "22 ordenadas", Parte, Hora, 0.0065, "el libro da otra tabulación del mismo tipo",
     false,
     [] {
         return DelLibro(ScsI,
                         {{2, .035},    {4, .076},     {6, .125},    {7, .156},    {8, .194},    {8.5, .219},
                          {9, .254},    {9.5, .303},   {9.75, .362}, {10, .515},   {10.5, .583}, {11, .624},
                          {11.5, .654}, {11.75, .669}, {12, .682},   {12.5, .706}, {13, .727},   {13.5, .748},
                          {14, .767},   {16, .830},    {20, .926},   {24, 1}});
     }},
    {"SCS tipo IA", Chow, "22 ordenadas", Parte, Hora, 0.0021, "el libro da otra tabulación del mismo tipo",
     false,
     [] {
         return DelLibro(ScsIA,
                         {{2, .050},    {4, .116},     {6, .206},    {7, .268},    {8, .425},    {8.5, .480},
                          {9, .520},    {9.5, .550},   {9.75, .564}, {10, .577},   {10.5, .601}, {11, .624},
                          {11.5, .645}, {11.75, .655}, {12, .664},   {12.5, .683}, {13, .701},   {13.5, .719},
                          {14, .736},   {16, .800},    {20, .906},   {24, 1}});
     }},
    {"SCS tipo II", Chow,
     "21 ordenadas; falta la de 11.75 h, que en el libro es 0.357 y no concuerda con las láminas anidadas",
     Parte, Hora, 0.0011, "media unidad de la última cifra, y rectas entre ordenadas", false,
     [] {
         return DelLibro(
             ScsII,
             {{2, .022},    {4, .048},    {6, .080},    {7, .098},    {8, .120},  {8.5, .133},  {9, .147},
              {9.5, .163},  {9.75, .172}, {10, .181},   {10.5, .204}, {11, .235}, {11.5, .283}, {12, .663},
              {12.5, .735}, {13, .772},   {13.5, .799}, {14, .820},   {16, .880}, {20, .952},   {24, 1}});
     }},
    {"SCS tipo II, láminas anidadas",
     "USDA-NRCS (2019), National Engineering Handbook, parte 630, capítulo 4, figura 4-31",
     "la mayor lluvia de cada duración dentro de las 24 h, en pasos de 2 min", Parte, "duración [min]",
     0.0021, "ordenadas cada 0.1 h, con rectas entre ellas", false,
     [] {
         return Anidadas(
             ScsII, {{10, .201}, {30, .380}, {60, .454}, {120, .538}, {180, .595}, {360, .707}, {720, .841}});
     }},
    {"SCS tipo III", Chow, "21 ordenadas; falta la de 11.75 h, que en el libro va por la recta", Parte, Hora,
     0.0025, "el libro da otra tabulación del mismo tipo", false,
     [] {
         return DelLibro(
             ScsIII,
             {{2, .020},    {4, .043},    {6, .072},    {7, .089},    {8, .115},  {8.5, .130},  {9, .148},
              {9.5, .167},  {9.75, .178}, {10, .189},   {10.5, .216}, {11, .250}, {11.5, .298}, {12, .500},
              {12.5, .702}, {13, .751},   {13.5, .785}, {14, .811},   {16, .886}, {20, .957},   {24, 1}});
     }},
    {"SCS tipo III, cada 5 min",
     "Ciudad de Austin (Texas), Drainage Criteria Manual, sección 2.5.1, tabla 2-6", "34 ordenadas", Parte,
     "t [min]", 0.0001, "una unidad de la última cifra", false,
     [] {
         constexpr double Paso = 5;
         return DeTabla(
             ScsIII, Paso, 1 / Paso,
             {{30, .0050},   {60, .0100},   {75, .0125},   {485, .1163},  {490, .1185},  {495, .1208},
              {500, .1233},  {505, .1258},  {510, .1284},  {515, .1311},  {520, .1339},  {525, .1367},
              {530, .1397},  {535, .1427},  {540, .1458},  {545, .1490},  {550, .1522},  {555, .1555},
              {560, .1589},  {970, .8903},  {975, .8924},  {980, .8944},  {985, .8964},  {990, .8984},
              {995, .9003},  {1000, .9022}, {1005, .9041}, {1010, .9059}, {1015, .9078}, {1020, .9095},
              {1025, .9113}, {1030, .9129}, {1035, .9146}, {1040, .9162}});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDePatrones()
{
    return Filas;
}

}  // namespace frequency::casos
