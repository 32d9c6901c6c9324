// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Maximos.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using frequency::LeeMaximos;
using frequency::Serie;
using Textos = std::vector<std::string>;

/// Twelve good years from 1990, with other lines instead of some.
std::string Doce(int cual = -1, const std::string& renglon = {})
{
    std::string t;
    for (int i = 0; i < 12; ++i)
        t += (i == cual ? renglon : std::to_string(1990 + i) + ";" + std::to_string(50 + 7 * (i % 5))) + "\n";
    return t;
}

std::string PrimerError(const std::string& texto)
{
    const Serie s = LeeMaximos(texto);
    return s.errores.empty() ? "" : s.errores.front();
}

TEST(Maximos, SeLeenEnTodasSusFormas)
{
    const Serie s = LeeMaximos(
        "\xEF\xBB\xBF"
        "Año;Pmax [mm]\r\n1999;61,5\r\n12/03/1990;50.25\r\n1991-11-02;7\r\n\r\n# "
        "nota\r\n1992\t80\r\n1993,90.5\r\n"
        "1994 ; 1e2 \r\n1995;1\r\n1996;2\r\n5-1-1997;3\r\n\"1998\";4");
    EXPECT_EQ(s.errores, Textos{});
    ASSERT_EQ(s.maximos.size(), 10U);
    EXPECT_EQ(s.maximos[0].anio, 1990);
    EXPECT_EQ(s.maximos[0].valor, 50.25);
    EXPECT_EQ(s.maximos[1].anio, 1991);
    EXPECT_EQ(s.maximos[3].valor, 90.5);
    EXPECT_EQ(s.maximos[4].valor, 100);
    EXPECT_EQ(s.maximos[9].valor, 61.5);
}

TEST(Maximos, LoQueEstaMalSeDiceConSuRenglon)
{
    EXPECT_EQ(PrimerError(Doce()), "");
    EXPECT_EQ(PrimerError(Doce(3, "1993;-4")), "Renglón 4: el valor es negativo.");
    EXPECT_EQ(PrimerError(Doce(3, "1993;mucho")), "Renglón 4: \"mucho\" no es un número.");
    EXPECT_EQ(PrimerError(Doce(3, "1993;inf")), "Renglón 4: \"inf\" no es un número.");
    EXPECT_EQ(PrimerError(Doce(3, "1993;nan")), "Renglón 4: \"nan\" no es un número.");
    EXPECT_EQ(PrimerError(Doce(3, "1993;1e9")), "Renglón 4: el valor pasa de 100000 mm.");
    EXPECT_EQ(PrimerError(Doce(3, "ayer;4")), "Renglón 4: \"ayer\" no es un año ni una fecha.");
    EXPECT_EQ(PrimerError(Doce(3, "31/13/1993;4")), "Renglón 4: \"31/13/1993\" no es un año ni una fecha.");
    EXPECT_EQ(PrimerError(Doce(3, "93;4")), "Renglón 4: el año 93 no está entre 1500 y 2200.");
    EXPECT_EQ(PrimerError(Doce(3, "1993")), "Renglón 4: faltan las dos columnas, año y valor.");
    EXPECT_EQ(PrimerError(Doce(3, "1994;55")), "Renglón 5: el año 1994 ya está en el renglón 4.");
    EXPECT_EQ(PrimerError(Doce(3, "1993;50;367")),
              "Renglón 4: los días con registro van de 0 a 366, y dice \"367\".");
    EXPECT_EQ(PrimerError(Doce(3, "1993;50;muchos")),
              "Renglón 4: los días con registro van de 0 a 366, y dice \"muchos\".");
    EXPECT_EQ(PrimerError(Doce(3, "1993;50;300;7")),
              "Renglón 4: sobran columnas: van año, valor y, si se sabe, días con registro.");
}

TEST(Maximos, LosDiasConRegistroVanEnLaTerceraColumna)
{
    const Serie s =
        LeeMaximos("Año;mm;días\n" + Doce(3, "1993;50,5;329") + "2002\t12.5\t365\n2003,4.5,366\n2004;7;\n");
    EXPECT_EQ(s.errores, Textos{});
    ASSERT_EQ(s.maximos.size(), 15U);
    EXPECT_EQ(s.maximos[3], (frequency::Maximo{1993, 50.5, 329}));
    EXPECT_EQ(s.maximos[4].dias, std::nullopt);
    EXPECT_EQ(s.maximos[12], (frequency::Maximo{2002, 12.5, 365}));
    EXPECT_EQ(s.maximos[13], (frequency::Maximo{2003, 4.5, 366}));
    EXPECT_EQ(s.maximos[14], (frequency::Maximo{2004, 7, {}}));
    EXPECT_EQ(s.avisos.front(),
              "Años con menos de 330 días de registro, cuyo máximo puede faltar: 1993 (329).");
}

TEST(Maximos, VariasDuracionesVanUnaAlLadoDeLaOtra)
{
    const frequency::Tabla t = frequency::LeeTabla(
        "Año;5;15 min;1 h;Días;24 horas\n1990;10;20;30;365;40\n1991;11;;31;300;41,5\n1992;12;22;32\n");
    EXPECT_EQ(t.errores, Textos{});
    ASSERT_EQ(t.series.size(), 4U);
    EXPECT_EQ(t.series[0].duracion, 5);
    EXPECT_EQ(t.series[1].duracion, 15);
    EXPECT_EQ(t.series[2].duracion, 60);
    EXPECT_EQ(t.series[3].duracion, 1440);
    EXPECT_EQ(t.series[0].maximos,
              (std::vector<frequency::Maximo>{{1990, 10, 365}, {1991, 11, 300}, {1992, 12, {}}}));
    EXPECT_EQ(t.series[1].maximos, (std::vector<frequency::Maximo>{{1990, 20, 365}, {1992, 22, {}}}));
    EXPECT_EQ(t.series[3].maximos, (std::vector<frequency::Maximo>{{1990, 40, 365}, {1991, 41.5, 300}}));
    EXPECT_EQ(t.avisos, Textos{"Años sin dato: 2."});

    const std::string varias = "Año;5 min;60 min\n1990;1;2\n1990;3;4\n1991;5;6;7\n";
    EXPECT_EQ(frequency::LeeTabla(varias).errores,
              (Textos{"Renglón 4: sobran columnas: hay 2 duraciones.",
                      "Renglón 3: el año 1990 ya está en el renglón 2.",
                      "Renglón 3: el año 1990 ya está en el renglón 2."}));
    EXPECT_EQ(LeeMaximos("Año;5 min;60 min\n1990;1;2\n").errores,
              Textos{"El archivo tiene máximos de estas duraciones [min]: 5, 60. Elija una de ellas."});
    EXPECT_EQ(LeeMaximos("Año;5 min;60 min\n1990;1;2\n", 60).maximos,
              (std::vector<frequency::Maximo>{{1990, 2, {}}}));
    EXPECT_EQ(frequency::LeeTabla("ayer;4\n").errores,
              Textos{"Renglón 1: \"ayer\" no es un año ni una fecha."});
}

TEST(Maximos, LasMuestrasQueNoSeAjustan)
{
    EXPECT_EQ(PrimerError(""), "Hay 0 máximos y hacen falta 10 por lo menos.");
    EXPECT_EQ(PrimerError("1990;4\n1991;5\n"), "Hay 2 máximos y hacen falta 10 por lo menos.");
    std::string iguales, muchos;
    for (int i = 0; i < 12; ++i)
        iguales += std::to_string(1990 + i) + ";50\n";
    EXPECT_EQ(PrimerError(iguales), "Todos los valores son iguales: no hay nada que ajustar.");
    for (int i = 0; i < 10000; ++i)
        muchos += std::to_string(1500 + i % 700) + ";" + std::to_string(i + 1) + "\n";
    const Serie s = LeeMaximos(muchos);
    ASSERT_EQ(s.errores.size(), 1U);
    EXPECT_TRUE(s.errores[0].starts_with("Hay 10000 máximos: más de 1000 años no son de un pluviómetro."));
    std::string malos;
    for (int i = 0; i < 50; ++i)
        malos += "1990;-1\n";
    EXPECT_EQ(LeeMaximos(malos).errores.size(), 21U);
    EXPECT_EQ(LeeMaximos(malos).errores.back(), "Y 31 más.");
}

/// A year without rain is a year: it is told, and so is what becomes of it.
TEST(Maximos, UnAnioSinLluviaSeAdmiteYSeDice)
{
    const Serie s = LeeMaximos(Doce(3, "1993;0"));
    EXPECT_EQ(s.errores, Textos{});
    ASSERT_FALSE(s.avisos.empty());
    EXPECT_EQ(
        s.avisos.front(),
        "Años sin lluvia: 1 de 12 (1993). Las leyes se ajustan a los otros, y F = p0 + (1 - p0) G con p0 "
        "= 0.0833. Si en alguno falta el dato, déjelo vacío.");
    std::string secos;
    for (int i = 0; i < 12; ++i)
        secos += std::to_string(1990 + i) + (i < 9 ? ";0\n" : ";50\n");
    EXPECT_EQ(PrimerError(secos), "Hay 3 máximos mayores que 0 y hacen falta 10 por lo menos.");
    std::vector<frequency::Maximo> maximos;
    for (int i = 0; i < 12; ++i)
        maximos.push_back({1990 + i, i < 2 ? 0.0 : 40.0 + i});
    EXPECT_EQ(frequency::RevisaMaximos(maximos).errores, Textos{});
    maximos[0].valor = -1;
    maximos[1].valor = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(frequency::RevisaMaximos(maximos).errores,
              (Textos{"Año 1990: el valor no es un número, o es negativo.",
                      "Año 1991: el valor no es un número, o es negativo."}));
}

TEST(Maximos, LosHuecosSeDicen)
{
    std::string t = Doce(3, "1993;") + "2010;33\n";
    const Serie s = LeeMaximos(t);
    EXPECT_EQ(s.errores, Textos{});
    ASSERT_EQ(s.avisos.size(), 3U);
    EXPECT_EQ(s.avisos[0],
              "Faltan años: 1993, 2002 a 2009. Se ajusta con los que hay; es correcto si faltan por azar y "
              "no por una "
              "crecida.");
    EXPECT_TRUE(s.avisos[1].starts_with("Con 12 años, las recurrencias de más de 24 años")) << s.avisos[1];
    EXPECT_EQ(s.avisos[2], "Años sin dato: 1.");
}

TEST(Maximos, BytesCualesquieraNoRompenNada)
{
    std::string t;
    for (int i = 0; i < 5000; ++i)
        t += static_cast<char>((i * 7919 + i / 13) % 256);
    EXPECT_FALSE(LeeMaximos(t).errores.empty());
    EXPECT_FALSE(LeeMaximos(std::string(1000, '\0')).errores.empty());
    EXPECT_FALSE(LeeMaximos(std::string(100, '-') + ";1").errores.empty());
}

}  // namespace
