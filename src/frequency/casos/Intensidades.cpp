// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "frequency/casos/Filas.h"
#include "frequency/idf/Curvas.h"

namespace frequency::casos {
namespace {

using idf::Coeficientes;

/// A printed table: intensities of each recurrence, by duration.
struct Impresa {
    std::vector<double> duraciones{};
    std::vector<std::pair<double, std::vector<double>>> porRecurrencia{};
};

/// A family's curves beside a printed table; x is the duration, its recurrences in a row.
Comparacion Tabla(const char* familia, const Coeficientes& coeficientes, const Impresa& tabla)
{
    const idf::Familia& f = *idf::FamiliaDeClave(familia);
    Comparacion c;
    for (std::size_t i = 0; i < tabla.duraciones.size(); ++i)
        for (const auto& [T, intensidades] : tabla.porRecurrencia) {
            c.x.push_back(tabla.duraciones[i]);
            c.impreso.push_back(intensidades[i]);
            c.nuestro.push_back(std::exp(f.logIntensidad(coeficientes, tabla.duraciones[i], T)));
        }
    return c;
}

// --- Entre Ríos ---

const std::vector<double> DuracionesZamanillo{10, 15, 30, 60, 120, 180, 360, 720, 1440};
const Impresa Concordia{DuracionesZamanillo,
                        {{2, {114, 93, 63, 40, 25, 19, 12, 7, 4}},
                         {5, {145, 118, 79, 51, 32, 24, 15, 9, 6}},
                         {10, {173, 142, 95, 61, 38, 29, 18, 11, 7}},
                         {20, {208, 169, 114, 73, 46, 35, 22, 13, 8}},
                         {25, {220, 180, 121, 78, 49, 37, 23, 14, 9}},
                         {50, {263, 215, 144, 93, 58, 44, 27, 17, 10}}}};
const Impresa Parana{DuracionesZamanillo,
                     {{2, {104, 86, 59, 39, 25, 19, 12, 7, 5}},
                      {5, {128, 106, 73, 48, 31, 24, 15, 9, 6}},
                      {10, {151, 125, 86, 57, 36, 28, 17, 11, 7}},
                      {20, {177, 146, 101, 66, 43, 33, 20, 13, 8}},
                      {25, {186, 154, 106, 70, 45, 34, 21, 13, 8}},
                      {50, {218, 181, 125, 82, 53, 40, 25, 16, 10}}}};
constexpr std::string_view Zamanillo =
    "E. A. Zamanillo y otros (2008), Tormentas de diseño para la provincia de Entre Ríos, UTN Concordia, "
    "tablas 3.2 "
    "y 3.4";

// --- Santa Fe ---

const Impresa SantaFe{{10, 20, 30, 60, 120, 240, 360, 720, 1080, 1440},
                      {{2, {106.3, 86.8, 73.9, 52.1, 34.0, 21.1, 15.6, 9.3, 6.8, 5.4}},
                       {5, {118.0, 96.4, 82.0, 57.9, 37.8, 23.4, 17.4, 10.3, 7.5, 6.0}},
                       {10, {127.7, 104.3, 88.8, 62.6, 40.9, 25.3, 18.8, 11.1, 8.1, 6.5}},
                       {25, {141.8, 115.8, 98.5, 69.5, 45.4, 28.1, 20.9, 12.3, 9.0, 7.2}},
                       {50, {153.4, 125.3, 106.7, 75.3, 49.1, 30.4, 22.6, 13.4, 9.8, 7.8}},
                       {100, {166.1, 135.6, 115.4, 81.5, 53.2, 32.9, 24.4, 14.5, 10.6, 8.4}},
                       {200, {179.7, 146.8, 124.9, 88.2, 57.6, 35.6, 26.4, 15.6, 11.4, 9.1}},
                       {500, {199.5, 163.0, 138.7, 97.9, 63.9, 39.5, 29.4, 17.4, 12.7, 10.2}}}};
constexpr std::string_view Marcus =
    "R. Marcus y otros (2019), Curvas IDF de la estación del CIM-FICH, serie 1986-2016, Cuadernos del "
    "CURIHAM 25, "
    "tabla 4 y su ecuación";

/// Sherman's coefficients fitted to the printed intensities.
Coeficientes AjusteDeSantaFe()
{
    std::vector<idf::Punto> puntos;
    for (const auto& [T, intensidades] : SantaFe.porRecurrencia)
        for (std::size_t i = 0; i < intensidades.size(); ++i)
            puntos.push_back({SantaFe.duraciones[i], T, intensidades[i]});
    const auto ajuste = idf::Ajusta(*idf::FamiliaDeClave("sherman"), puntos, idf::Criterio::Logaritmos);
    constexpr double Nada = std::numeric_limits<double>::quiet_NaN();
    return ajuste.coeficientes.empty() ? Coeficientes{Nada, Nada, Nada, Nada} : ajuste.coeficientes.front().c;
}

// --- DIT ---

const std::vector<double> DuracionesDelIna{60, 120, 180, 360, 1440};
const Impresa Salta{DuracionesDelIna,
                    {{2, {36.8, 23.1, 17.1, 10.0, 2.9}},
                     {5, {50.6, 31.8, 23.7, 13.9, 4.1}},
                     {10, {59.9, 37.5, 27.9, 16.2, 4.8}},
                     {25, {71.7, 44.9, 33.4, 19.4, 5.7}},
                     {50, {80.4, 50.4, 37.4, 21.8, 6.4}}}};
const Impresa LaSuela{DuracionesDelIna,
                      {{2, {35.3, 22.2, 16.6, 9.7, 2.9}},
                       {5, {47.9, 30.1, 22.5, 13.2, 4.0}},
                       {10, {56.3, 35.5, 26.5, 15.5, 4.7}},
                       {25, {66.9, 42.1, 31.5, 18.4, 5.5}},
                       {50, {74.8, 47.1, 35.1, 20.6, 6.2}}}};
const Impresa Olaen{DuracionesDelIna,
                    {{2, {34.6, 22.2, 16.8, 10.1, 3.2}},
                     {5, {46.4, 29.9, 22.6, 13.6, 4.3}},
                     {10, {54.3, 34.9, 26.4, 15.9, 5.0}},
                     {25, {64.2, 41.3, 31.2, 18.8, 6.0}},
                     {50, {71.4, 46.0, 34.8, 20.9, 6.6}}}};
const Impresa AltasCumbres{DuracionesDelIna,
                           {{2, {34.7, 21.3, 15.6, 8.8, 2.5}},
                            {5, {43.6, 26.6, 19.5, 11.1, 3.1}},
                            {10, {48.9, 29.9, 22.0, 12.4, 3.5}},
                            {25, {55.4, 34.0, 24.9, 14.1, 4.0}},
                            {50, {60.1, 36.8, 27.0, 15.3, 4.3}}}};

Comparacion Ficha(std::size_t estacion, const Impresa& tabla)
{
    const idf::EstacionDit& e = idf::EstacionesDit()[estacion];
    return Tabla("dit", {e.A, e.B, e.C}, tabla);
}

// --- disaggregation ---

/// Intensities [mm/h] of durations [min] that a way makes of a depth of 24 hours or of a day.
Comparacion DeUnaLamina(const char* clave, const idf::Datos& datos, double lamina,
                        std::vector<double> duraciones, std::vector<double> impreso)
{
    Comparacion c{std::move(duraciones), std::move(impreso), {}};
    for (const double d : c.x)
        c.nuestro.push_back(idf::DesagregacionDeClave(clave)->parte(datos, d) * lamina * 60 / d);
    return c;
}

constexpr double PataDiaria = 88.21, PataHora = 35.67, PataArea = 380;  // [mm], [mm/h], [km2]

/// The example's basin: its day's rain reduced by the area, its curve of 1 h, its time of concentration.
Comparacion Pata(const char* clave)
{
    const double lamina = PataDiaria * idf::ReduccionDeClave("5.2-ic")->factor(PataArea, 0);
    return DeUnaLamina(clave, {{PataHora / (lamina / 24), 1.13}, {}}, lamina, {2.32 * 60}, {20.65});
}

// --- rows ---

constexpr std::string_view MilimetrosPorHora = "intensidad [mm/h]", Minutos = "duración [min]";
constexpr std::string_view PorqueDit =
    "B, con tres cifras, vale hasta 0.5 % a la hora; el término phi es una aproximación del cuantil normal";
constexpr std::string_view FichaCordoba =
    "A. Rico, N. Guillén, M. Eder, G. Elcano y M. F. Terré (2024 y 2025), fichas de curvas IDF, INA-SCIRSA, "
    "Córdoba";
constexpr std::string_view HojaDeTemez =
    "Método racional modificado de Témez, hoja de cálculo de la cuenca Pata, T = 50 años (publicada en "
    "Scribd, "
    "394204220)";
constexpr std::string_view Chow1423 =
    "V. T. Chow, D. R. Maidment y L. W. Mays (1988), Applied Hydrology, McGraw-Hill, ejemplo 14.4.1, tabla "
    "14.4.1";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Sherman, tabla de Concordia", Zamanillo,
     "k = 652,4, a = 0,26, b = 5, c = 0,71; seis recurrencias, 2 a 50 años", MilimetrosPorHora, Minutos, 1.0,
     "las intensidades se imprimen enteras y los exponentes con dos cifras", false,
     [] {
         return Tabla("sherman", {652.4, 0.26, 5, 0.71}, Concordia);
     }},
    {"Sherman, tabla de Paraná", Zamanillo,
     "k = 601, a = 0,23, b = 6, c = 0,69; seis recurrencias, 2 a 50 años", MilimetrosPorHora, Minutos, 1.0,
     "las intensidades se imprimen enteras y los exponentes con dos cifras", false,
     [] {
         return Tabla("sherman", {601, 0.23, 6, 0.69}, Parana);
     }},
    {"Sherman, ajuste de Santa Fe, exponentes", Marcus,
     "80 intensidades, de 10 a 1440 min y de 2 a 500 años; mínimos cuadrados de los logaritmos", "exponente",
     "1 el de T, 2 el de d + b", 0.005, "media unidad de la última cifra", false,
     [] {
         const Coeficientes c = AjusteDeSantaFe();
         return Comparacion{{1, 2}, {0.11, 0.79}, {c[1], c[3]}};
     }},
    {"Sherman, ajuste de Santa Fe, corrimiento", Marcus, "las mismas 80 intensidades", "b [min]",
     "coeficiente", 0.1, "las intensidades se imprimen con un decimal: la fuente ajustó otras, sin redondear",
     false,
     [] {
         return Comparacion{{1}, {24.43}, {AjusteDeSantaFe()[2]}};
     }},
    {"Wenzel, diez años en Denver", Chow1423,
     "k = 96,6, f = 13,90, e = 0,97 [pulg/h], sin recurrencia; de 10 a 120 min", "intensidad [pulg/h]",
     Minutos, 0.0005, "media unidad de la última cifra", false,
     [] {
         return Tabla(
             "wenzel", {96.6, 0, 13.90, 0.97},
             {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 120},
              {{10, {4.158, 3.002, 2.357, 1.943, 1.655, 1.443, 1.279, 1.149, 1.044, 0.956, 0.883, 0.820}}}});
     }},
    {"DIT, Salta Aero",
     "A. Rico y otros (2025), Lluvias para diseño hidrológico, relación IDF, Salta, INA-CIRSA y UCASAL",
     "A = 0,380, B = 0,150, C = 5,179; de 2 a 50 años", MilimetrosPorHora, Minutos, 0.4, PorqueDit, false,
     [] { return Ficha(0, Salta); }},
    {"DIT, La Suela", FichaCordoba, "A = 0,365, B = 0,148, C = 5,116; de 2 a 50 años", MilimetrosPorHora,
     Minutos, 0.4, PorqueDit, false, [] { return Ficha(1, LaSuela); }},
    {"DIT, Pampa de Olaen", FichaCordoba, "A = 0,352, B = 0,141, C = 5,023; de 2 a 50 años",
     MilimetrosPorHora, Minutos, 0.4, PorqueDit, false, [] { return Ficha(2, Olaen); }},
    {"DIT, Altas Cumbres", FichaCordoba, "A = 0,267, B = 0,157, C = 5,192; de 2 a 50 años", MilimetrosPorHora,
     Minutos, 0.4, PorqueDit, false, [] { return Ficha(3, AltasCumbres); }},
    {"Dick-Peschke, Naranjillos",
     "Curvas IDF de Naranjillos por Dick y Peschke, hoja de cálculo, T = 30 años "
     "(publicada en Scribd, 408649939)",
     "5,2438 mm/h en 24 h, que son 125,85 mm; de 1 a 18 h", MilimetrosPorHora, Minutos, 0.001,
     "una unidad de la última cifra de la intensidad de 24 h, que vale diez en la de una hora", false,
     [] {
         return DeUnaLamina("dick-peschke", {}, 5.2438 * 24, {60, 120, 180, 240, 300, 360, 480, 720, 1080},
                            {56.8592, 33.8087, 24.9436, 20.1027, 17.0049, 14.8316, 11.9532, 8.8189, 6.5065});
     }},
    {"5.2-IC, factor areal KA", HojaDeTemez, "88,21 mm en el punto, 380 km2", "lámina de la cuenca [mm]",
     "caso", 0.0005, "media unidad de la última cifra", false,
     [] {
         return Comparacion{
             {1}, {73.039}, {PataDiaria * idf::ReduccionDeClave("5.2-ic")->factor(PataArea, 0)}};
     }},
    {"5.2-IC de 1990, cuenca Pata", HojaDeTemez, "73,039 mm en el día, 35,67 mm/h en una hora, 2,32 h",
     MilimetrosPorHora, Minutos, 0.005, "media unidad de la última cifra", false,
     [] { return Pata("5.2-ic"); }},
    {"5.2-IC de 2016, cuenca Pata", HojaDeTemez,
     "la misma, con los exponentes 3,5287 y 2,5287 que la norma de 2016 imprime", MilimetrosPorHora, Minutos,
     0.005, "media unidad de la última cifra; la fuente usa la fórmula de 1990", false,
     [] { return Pata("5.2-ic-2016"); }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDeIntensidades()
{
    return Filas;
}

}  // namespace frequency::casos
