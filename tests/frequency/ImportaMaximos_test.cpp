// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/ImportaMaximos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "forms/Calendario.h"

namespace frequency {
namespace {

using Textos = std::vector<std::string>;
using study::Maximo;

Importacion Importa(const std::string& bytes, const PedidoDeImportacion& pedido = {})
{
    return *ImportaMaximos(bytes, pedido);
}

/// A reading a day from a date on, by its number from 0; "" is no line.
template <typename F>
std::string Diario(int anio, int dias, F&& lamina)
{
    std::string texto = "Fecha;mm\n";
    const forms::Instante desde = *forms::ComienzoDelDia(1, 1, anio);
    for (int i = 0; i < dias; ++i)
        if (const std::string mm = lamina(i); !mm.empty())
            texto += forms::TextoFecha(desde + i * forms::MinutosPorDia) + ";" + mm + "\n";
    return texto;
}

/// Depths at a constant step from 01/03/2004 00:00 on, each told at its end.
std::string Horario(int paso, const std::vector<std::string>& laminas)
{
    std::string texto;
    forms::Instante t = *forms::ComienzoDelDia(1, 3, 2004);
    for (const std::string& mm : laminas) {
        t += paso;
        texto += forms::TextoFecha(t) + " " + forms::TextoHora(t) + ";" + mm + "\n";
    }
    return texto;
}

TEST(ImportaMaximos, DeLecturasDiariasUnMaximoPorAnioConSusDias)
{
    // 1990 and 1991 have 365 days, 1992 has 366 of which 100 are read.
    const Importacion i = Importa(Diario(1990, 365 + 365 + 100, [](int d) {
        return d == 40 ? std::string("61,5") : d == 364 ? "80" : d == 365 ? "12.5" : "0";
    }));
    EXPECT_EQ(i.errores, Textos{});
    EXPECT_EQ(i.paso, 1440);
    ASSERT_EQ(i.series.size(), 1U);
    EXPECT_EQ(i.series[0].duracion, 1440);
    EXPECT_TRUE(i.series[0].lecturaDiaria);
    EXPECT_EQ(i.series[0].maximos, (std::vector<Maximo>{{1990, 80, 365}, {1991, 12.5, 365}, {1992, 0, 100}}));
    EXPECT_EQ(i.avisos, Textos{"Registro del 01/01/1990 al 09/04/1992: 830 lecturas cada 1440 min."});
}

TEST(ImportaMaximos, ElAnioHidrologicoLlevaElNumeroDelAnioEnQueComienza)
{
    // 30/06/1990 is day 180 from 0, 01/07/1990 day 181.
    const Importacion i = Importa(Diario(1990, 730,
                                         [](int d) {
                                             return d == 180   ? std::string("30")
                                                    : d == 181 ? "40"
                                                    : d == 365 ? "50"
                                                    : d == 729 ? "7"
                                                               : "0";
                                         }),
                                  {.mesInicial = 7});
    EXPECT_EQ(i.series.at(0).maximos,
              (std::vector<Maximo>{{1989, 30, 181}, {1990, 50, 365}, {1991, 7, 184}}));
    EXPECT_EQ(i.avisos.at(1), "Cada año comienza en el mes 7 y lleva el número del año en que comienza.");
    EXPECT_EQ(Importa("01/01/1990;4", {.mesInicial = 13}).errores,
              Textos{"El mes inicial no está entre 1 y 12."});
}

TEST(ImportaMaximos, LosHuecosSeDicenYUnAnioSinLecturasNoTieneMaximo)
{
    const Importacion i = Importa(Diario(1990, 365 * 4 + 1, [](int d) {
        if (d >= 10 && d < 20) return std::string();              // ten days
        if (d >= 360 && d < 365 + 365 + 5) return std::string();  // 1991 whole
        return d == 800 ? std::string("NA") : std::string("0,0");
    }));
    EXPECT_EQ(i.series.at(0).maximos, (std::vector<Maximo>{{1990, 0, 350}, {1992, 0, 360}, {1993, 0, 365}}));
    EXPECT_EQ(i.avisos.at(1), "Faltan 386 días, en 3 tramos; el más largo va del 27/12/1990 al 05/01/1992.");
    EXPECT_EQ(i.avisos.at(2), "Años sin ninguna lectura, que quedan sin máximo: 1991.");
    EXPECT_TRUE(i.avisos.at(3).starts_with("Renglón ")) << i.avisos.at(3);
}

TEST(ImportaMaximos, SinCerosNoSeSabeLoQueSeMidio)
{
    const Importacion i = Importa("05/03/1990;12\n06/03/1990;3\n07/03/1990;4\n01/04/1992;9,25\n");
    EXPECT_EQ(i.series.at(0).maximos, (std::vector<Maximo>{{1990, 12, {}}, {1992, 9.25, {}}}));
    EXPECT_EQ(i.avisos.size(), 3U);
    EXPECT_TRUE(i.avisos.at(2).starts_with("El registro no tiene lecturas de 0")) << i.avisos.at(2);
}

TEST(ImportaMaximos, LasVentanasSeMuevenLecturaALectura)
{
    // 10 min: 1 5 9 9 2 0 0 0 20 1; of 20 min 21 (20+1), of 30 min 23 (5+9+9), of 60 min 26 (1..0), of 90
    // min 45.
    const std::string texto = Horario(10, {"1", "5", "9", "9", "2", "0", "0", "0", "20", "1"});
    const Importacion i = Importa(texto, {.duraciones = {30, 20, 60, 10, 90, 20}});
    EXPECT_EQ(i.errores, Textos{});
    std::vector<std::pair<double, double>> maximos;
    for (const study::SerieDeMaximos& s : i.series) {
        EXPECT_FALSE(s.lecturaDiaria);
        ASSERT_EQ(s.maximos.size(), 1U);
        maximos.emplace_back(s.duracion, s.maximos[0].valor);
    }
    EXPECT_EQ(maximos,
              (std::vector<std::pair<double, double>>{{10, 20}, {20, 21}, {30, 23}, {60, 31}, {90, 46}}));
    EXPECT_EQ(Importa(texto).series.size(), 9U) << "of the usual ones all that are multiples of 10";
    EXPECT_EQ(Importa(texto, {.duraciones = {25}}).errores,
              Textos{"La duración 25 min no es un múltiplo del paso del registro, 10 min."});
    EXPECT_EQ(Importa(texto, {.duraciones = {5}}).errores,
              Textos{"La duración 5 min no es un múltiplo del paso del registro, 10 min."});
    EXPECT_EQ(Importa(texto, {.duraciones = {20000}}).errores,
              Textos{"La duración 20000 min no está entre 1 y 14400 min."});
}

TEST(ImportaMaximos, LaVentanaEsDelAnioEnQueTermina)
{
    // Told at 00:00 of 2005 a depth is still of 2004.
    const Importacion i =
        Importa("31/12/2004 23:50;4\n01/01/2005 00:00;5\n01/01/2005 00:10;6\n01/01/2005 00:20;0\n",
                {.duraciones = {10, 20}});
    EXPECT_EQ(i.series.at(0).maximos, (std::vector<Maximo>{{2004, 5, 0}, {2005, 6, 0}}));
    EXPECT_EQ(i.series.at(1).maximos, (std::vector<Maximo>{{2004, 9, 0}, {2005, 11, 0}}));
}

TEST(ImportaMaximos, LosVuelcosSinPasoFijoCuentanEnSuMomento)
{
    // Tips of 0.2 mm: three within 5 min, five within 10.
    const Importacion i = Importa(
        "01/03/2004 10:00:07;0.2\n01/03/2004 10:01:30;0.2\n01/03/2004 10:04:59;0.2\n01/03/2004 10:06:10;0.2\n"
        "01/03/2004 10:09:58;0.2\n01/03/2004 12:13:14;0.2\n",
        {.duraciones = {5, 10, 180}});
    EXPECT_EQ(i.errores, Textos{});
    EXPECT_EQ(i.series.at(0).maximos, (std::vector<Maximo>{{2004, 0.6, {}}}));
    EXPECT_EQ(i.series.at(1).maximos, (std::vector<Maximo>{{2004, 1.0, {}}}));
    EXPECT_EQ(i.series.at(2).maximos, (std::vector<Maximo>{{2004, 1.2, {}}}));
    EXPECT_NE(i.avisos.at(0).find("sin paso fijo"), std::string::npos);
}

TEST(ImportaMaximos, LoQueNoEsUnRegistroSeDiceConSuRenglon)
{
    EXPECT_EQ(Importa("").errores, Textos{"El archivo no tiene ningún renglón con fecha y lámina."});
    EXPECT_EQ(Importa("01/03/2004;1\n02/03/2004;-1\n").errores, Textos{"Renglón 2: la lámina es negativa."});
    EXPECT_EQ(Importa("01/03/2004;1\n29/02/2004;1\n").errores,
              Textos{"Renglón 2: el tiempo es anterior al del renglón previo."});
    EXPECT_EQ(Importa("01/03/2004;1\n02/03/2004;200000\n").errores,
              Textos{"Hay una lámina de más de 100000 mm, el 02/03/2004."});
    EXPECT_EQ(Importa("01/03/2004;1\n01/04/2004;2\n01/05/2004;2\n").errores,
              Textos{"Entre lecturas pasa más de un día: hacen falta lecturas diarias o más seguidas."});
    EXPECT_EQ(Importa("01/03/2004;1").series.at(0).maximos, (std::vector<Maximo>{{2004, 1, {}}}));
}

TEST(ImportaMaximos, SeDetieneDondeSeLoPidan)
{
    const std::string texto = Diario(1901, 36'524, [](int d) { return std::to_string(d % 7); });
    int veces = 0;
    const auto hasta = [&](int tope) {
        veces = 0;
        return ImportaMaximos(texto, {},
                              [&](std::size_t n, std::size_t total) {
                                  EXPECT_LE(n, total);
                                  return ++veces < tope;
                              })
            .has_value();
    };
    EXPECT_TRUE(hasta(1000));
    const int todas = veces;
    EXPECT_GT(todas, 8);
    for (int tope = 1; tope <= todas; ++tope)
        EXPECT_FALSE(hasta(tope));
}

/// Against windows summed one by one, without any cleverness.
TEST(ImportaMaximos, UnAnioDeCincoMinutosDaLoMismoQueSumarCadaVentana)
{
    std::vector<std::string> laminas;
    std::vector<std::int64_t> decimos;
    std::uint64_t estado = 12345;
    for (int i = 0; i < 4000; ++i) {
        estado = estado * 6364136223846793005U + 1442695040888963407U;
        const auto azar = static_cast<int>(estado >> 33U) % 1000;
        decimos.push_back(azar < 900 ? 0 : azar - 900);
        laminas.push_back(std::to_string(decimos.back() / 10) + "," + std::to_string(decimos.back() % 10));
    }
    const Importacion i = Importa(Horario(5, laminas));
    ASSERT_EQ(i.series.size(), 11U);
    for (const study::SerieDeMaximos& s : i.series) {
        const auto k = static_cast<std::size_t>(s.duracion / 5);
        std::int64_t mayor = 0;
        for (std::size_t fin = 0; fin < decimos.size(); ++fin) {
            std::int64_t suma = 0;
            for (std::size_t j = fin + 1 > k ? fin + 1 - k : 0; j <= fin; ++j)
                suma += decimos[j];
            mayor = std::max(mayor, suma);
        }
        ASSERT_EQ(s.maximos.size(), 1U);
        EXPECT_DOUBLE_EQ(s.maximos[0].valor, static_cast<double>(mayor) / 10) << s.duracion;
    }
    EXPECT_EQ(i.series[0].maximos[0].dias, 13) << "4,000 steps are 13.9 days";
}

}  // namespace
}  // namespace frequency
