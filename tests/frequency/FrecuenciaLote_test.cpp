// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/FrecuenciaLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "model/Disco.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(std::vector<const char*> palabras)
{
    palabras.insert(palabras.begin(), {"siro-lote", "frecuencia"});
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) { r.estandar += texto; };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(palabras.size()), palabras.data(), salidas);
    return r;
}

/// Forty years in a file of the test's own.
class FrecuenciaLote : public ::testing::Test {
  protected:
    apoyo::CarpetaTemporal carpeta{};
    std::string ruta = carpeta.Ruta("maximos.csv");

    void SetUp() override { Escribe("1990;0.5"); }

    void Escribe(const std::string& ultimo)
    {
        std::string t = "anio;mm\n";
        for (int i = 0; i < 39; ++i)
            t += std::to_string(1950 + i) + ";" + std::to_string(45 + (i * 29) % 41 + (i % 7 == 0 ? 30 : 0)) +
                 "\n";
        if (ultimo != "1990;0.5")
            t += ultimo + "\n";
        else
            t += "1989;88,5\n";
        model::DiscoDelSistema().Escribe(ruta, t);
    }
};

TEST_F(FrecuenciaLote, DaTextoJsonYCsvDeLoMismo)
{
    const Respuesta texto = Lote({ruta.c_str(), "--remuestras", "100"});
    EXPECT_EQ(texto.estado, batch::EstadoCompleto) << texto.errores;
    EXPECT_EQ(texto.errores, "");
    for (const char* parte :
         {"Máximos anuales [mm]: 40, de 1950 a 1989\n", "\nPruebas de la muestra, al 5 %\n",
          "\nAjuste por momentos L\n", "\nLámina [mm] por recurrencia [años]\n", "banda, 95 %",
          "\nRecomendación\n", "SQRT-ETmax"})
        EXPECT_NE(texto.estandar.find(parte), std::string::npos) << parte << texto.estandar;

    const Respuesta csv = Lote({ruta.c_str(), "--csv", "--remuestras", "100"});
    EXPECT_EQ(csv.estado, batch::EstadoCompleto);
    EXPECT_TRUE(csv.estandar.starts_with("ley,metodo,recurrencia,cuantil,banda5,banda95\ngumbel,l,2,"));
    const auto renglones = std::count(csv.estandar.begin(), csv.estandar.end(), '\n');
    EXPECT_EQ((renglones - 1) % 14, 0);
    EXPECT_GE(renglones, 1 + 7 * 14);

    const Respuesta json = Lote({ruta.c_str(), "--json", "--remuestras", "100"});
    const std::size_t desde = csv.estandar.find("gumbel,l,100,") + 13;
    const std::string cuantil = csv.estandar.substr(desde, csv.estandar.find(',', desde) - desde);
    EXPECT_NE(json.estandar.find(cuantil), std::string::npos) << cuantil;
    EXPECT_TRUE(json.estandar.starts_with("{\"metodo\":\"l\",\"semilla\":1,\"remuestras\":100,"));
    EXPECT_TRUE(json.estandar.ends_with("}}\n"));
}

TEST_F(FrecuenciaLote, LaSemillaYNoLosHilosCambiaLosBytes)
{
    const Respuesta uno = Lote({ruta.c_str(), "--csv", "--remuestras", "100", "--hilos", "1"});
    EXPECT_EQ(uno.estandar, Lote({ruta.c_str(), "--csv", "--remuestras", "100", "--hilos", "4"}).estandar);
    EXPECT_NE(uno.estandar, Lote({ruta.c_str(), "--csv", "--remuestras", "100", "--semilla", "2"}).estandar);
}

TEST_F(FrecuenciaLote, UnaSolaLey)
{
    const Respuesta r = Lote({ruta.c_str(), "--csv", "--remuestras", "0", "--ley", "gumbel"});
    EXPECT_EQ(std::count(r.estandar.begin(), r.estandar.end(), '\n'), 15);
    EXPECT_EQ(r.estandar.find("gev"), std::string::npos);
}

TEST_F(FrecuenciaLote, SinRemuestrasNoHayBandas)
{
    const Respuesta r = Lote({ruta.c_str(), "--csv", "--remuestras", "0", "--metodo", "mv"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto);
    EXPECT_NE(r.estandar.find("\ngev,mv,10000,"), std::string::npos);
    EXPECT_NE(r.estandar.find(",,\n"), std::string::npos);
}

TEST_F(FrecuenciaLote, LosDatosMalosSonUnEstadoYUnRenglonCadaUno)
{
    Escribe("1989;-3\nayer;5");
    const Respuesta r = Lote({ruta.c_str()});
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(r.estandar, "");
    EXPECT_EQ(
        r.errores,
        "siro-lote: Renglón 41: el valor es negativo.\nsiro-lote: Renglón 42: \"ayer\" no es un año ni una "
        "fecha.\n");
    const Respuesta falta = Lote({"no_esta.csv"});
    EXPECT_EQ(falta.estado, batch::EstadoInterrumpido);
    EXPECT_TRUE(falta.errores.starts_with("siro-lote: no se puede leer ")) << falta.errores;
}

TEST_F(FrecuenciaLote, PonderaLaAsimetriaYTomaLosValoresBajos)
{
    const Respuesta r =
        Lote({ruta.c_str(), "--metodo", "momentos", "--ley", "logpearson3", "--remuestras", "0", "--bajos",
              "17c", "--asimetria", "-0.3", "--ecm-asimetria", "0.2", "--json"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto) << r.errores;
    EXPECT_NE(r.estandar.find(", ponderada con la regional -0.3\""), std::string::npos) << r.estandar;
    Escribe("1989;0.4");
    const Respuesta b = Lote({ruta.c_str(), "--metodo", "momentos", "--ley", "logpearson3", "--remuestras",
                              "100", "--bajos", "17b"});
    EXPECT_NE(b.estandar.find("Bulletin 17B deja aparte 1 valor bajo (menos de 46); la"), std::string::npos)
        << b.estandar;
    EXPECT_NE(b.estandar.find("deja aparte valores bajos: su AICc no se compara"), std::string::npos)
        << b.estandar;
    Escribe("1989;0");
    const Respuesta seco = Lote({ruta.c_str(), "--remuestras", "0"});
    EXPECT_EQ(seco.estado, batch::EstadoCompleto) << seco.errores;
    EXPECT_NE(seco.estandar.find("Años sin lluvia: 1 de 40 (1989)."), std::string::npos) << seco.estandar;
}

/// The pictures that a law is chosen by, as numbers: the last of 40 on Gumbel's paper by Gringorten's
/// position.
TEST_F(FrecuenciaLote, ElJsonTraeLosDiagramas)
{
    const Respuesta r = Lote({ruta.c_str(), "--json", "--remuestras", "100", "--posicion", "0.44"});
    const std::string_view t = r.estandar;
    const std::size_t papel = t.find("\"posicion\":0.44,\"papelGumbel\":{\"datos\":[["),
                      fin = t.find("]]", papel);
    ASSERT_NE(papel, std::string_view::npos) << t;
    const std::size_t ultimo = t.rfind('[', fin) + 1;
    const double x = -std::log(-std::log((40 - 0.44) / 40.12));
    EXPECT_NEAR(std::stod(std::string(t.substr(ultimo, fin - ultimo))), x, 1e-9);
    for (const char* clave : {"\"diagramaL\":{\"muestra\":[", "\"elipse\":[[", "\"papelLogNormal\":{"})
        EXPECT_NE(t.find(clave), std::string_view::npos) << clave;
}

TEST_F(FrecuenciaLote, LaOrdenErroneaSeExplica)
{
    const auto motivo = [](const std::vector<const char*>& palabras) {
        const Respuesta r = Lote(palabras);
        EXPECT_EQ(r.estado, batch::EstadoOrdenErronea);
        EXPECT_NE(r.errores.find("\n\nUso: siro-lote frecuencia ARCHIVO"), std::string::npos) << r.errores;
        return r.errores.substr(0, r.errores.find('\n'));
    };
    EXPECT_EQ(motivo({}), "siro-lote: Falta ARCHIVO");
    EXPECT_EQ(motivo({"a.csv", "--metodo", "ojo"}), "siro-lote: --metodo: debe ser momentos, l o mv");
    EXPECT_EQ(motivo({"a.csv", "--remuestras", "50"}), "siro-lote: --remuestras: debe ser 0, o 100 o más");
    EXPECT_EQ(motivo({"a.csv", "--semilla", "-1"}),
              "siro-lote: --semilla: debe ser un número entero entre 0 y 4294967295");
    EXPECT_EQ(motivo({"a.csv", "--posicion", "1"}),
              "siro-lote: --posicion: debe ser un número entre 0 y 0.5");
    EXPECT_EQ(motivo({"a.csv", "--bajos", "17d"}), "siro-lote: --bajos: debe ser 17b o 17c");
    EXPECT_EQ(motivo({"a.csv", "--asimetria", "9"}),
              "siro-lote: --asimetria: debe ser un número entre -3 y 3");
    EXPECT_EQ(motivo({"a.csv", "--bajos", "17b"}),
              "siro-lote: --bajos y --asimetria van con --metodo momentos");
    EXPECT_EQ(motivo({"a.csv", "--json", "--csv"}), "siro-lote: --json y --csv no van juntos");
    EXPECT_EQ(motivo({"a.csv", "--pizarra"}), "siro-lote: No se esperaba --pizarra");
    EXPECT_EQ(motivo({"a.csv", "--ley", "weibull"}), "siro-lote: no hay una ley \"weibull\"");
    EXPECT_EQ(motivo({"a.csv", "b.csv"}), "siro-lote: No se esperaba b.csv");
}

TEST_F(FrecuenciaLote, MuestraSuUso)
{
    const Respuesta r = Lote({"--help"});
    EXPECT_EQ(r.estado, batch::EstadoCompleto);
    EXPECT_TRUE(r.estandar.starts_with("Uso: siro-lote frecuencia ARCHIVO")) << r.estandar;
}

/// Forty years of a reading a day: the maximum of each is that of Escribe(), on a day of its own; the last
/// year has half of its days.
std::string Registro()
{
    std::string t = "Fecha;mm\n";
    for (int anio = 1950; anio < 1990; ++anio)
        for (int mes = 1; mes <= (anio == 1989 ? 6 : 12); ++mes)
            for (int dia = 1; dia <= 28; ++dia) {
                const int i = anio - 1950;
                const int mm =
                    mes == 1 + i % 6 && dia == 1 + i % 28 ? 45 + (i * 29) % 41 + (i % 7 == 0 ? 30 : 0) : 0;
                t += std::to_string(dia) + "/" + std::to_string(mes) + "/" + std::to_string(anio) + ";" +
                     std::to_string(mm) + "\n";
            }
    return t;
}

TEST_F(FrecuenciaLote, DeUnRegistroSalenLosMismosMaximos)
{
    const std::string registro = carpeta.Ruta("registro.csv");
    model::DiscoDelSistema().Escribe(registro, Registro());
    std::string maximos = "anio;mm\n";
    for (int i = 0; i < 40; ++i)
        maximos += std::to_string(1950 + i) + ";" +
                   std::to_string(45 + (i * 29) % 41 + (i % 7 == 0 ? 30 : 0)) + "\n";
    model::DiscoDelSistema().Escribe(ruta, maximos);

    const Respuesta de = Lote({"--registro", registro.c_str(), "--csv", "--remuestras", "0"});
    EXPECT_EQ(de.estado, batch::EstadoCompleto) << de.errores;
    EXPECT_EQ(de.estandar, Lote({ruta.c_str(), "--csv", "--remuestras", "0"}).estandar);

    const Respuesta texto = Lote({"--registro", registro.c_str(), "--remuestras", "0"});
    EXPECT_NE(texto.estandar.find("Registro del 01/01/1950 al 28/06/1989: 13272 lecturas cada 1440 min."),
              std::string::npos)
        << texto.estandar;
    EXPECT_NE(texto.estandar.find("1989 (168)"), std::string::npos);

    const Respuesta sinEl =
        Lote({"--registro", registro.c_str(), "--remuestras", "0", "--dias-minimos", "200"});
    EXPECT_NE(sinEl.estandar.find("Máximos anuales [mm]: 39, de 1950 a 1988\n"), std::string::npos)
        << sinEl.estandar;
    EXPECT_NE(sinEl.estandar.find("Años con menos de 200 días de registro, que no se ajustan: 1989."),
              std::string::npos);

    const Respuesta julio = Lote({"--registro", registro.c_str(), "--remuestras", "0", "--mes-inicial", "7"});
    EXPECT_NE(julio.estandar.find("Máximos anuales [mm]: 40, de 1949 a 1988\n"), std::string::npos)
        << julio.estandar;

    const Respuesta dosDias =
        Lote({"--registro", registro.c_str(), "--remuestras", "0", "--duracion", "1500"});
    EXPECT_EQ(dosDias.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(dosDias.errores,
              "siro-lote: La duración 1500 min no es un múltiplo del paso del registro, 1440 min.\n");
}

TEST_F(FrecuenciaLote, UnaDeVariasDuracionesSeElige)
{
    std::string varias = "Año;30 min;1 h;Días\n";
    for (int i = 0; i < 30; ++i)
        varias += std::to_string(1950 + i) + ";" + std::to_string(20 + i % 9) + ";" +
                  std::to_string(30 + i % 11) + ";365\n";
    model::DiscoDelSistema().Escribe(ruta, varias);
    EXPECT_EQ(Lote({ruta.c_str(), "--remuestras", "0"}).errores,
              "siro-lote: El archivo tiene máximos de estas duraciones [min]: 30, 60. Elija una de ellas.\n");
    const Respuesta una = Lote({ruta.c_str(), "--remuestras", "0", "--duracion", "60"});
    EXPECT_EQ(una.estado, batch::EstadoCompleto) << una.errores;
}

TEST_F(FrecuenciaLote, LasOpcionesDelRegistroTienenSusLimites)
{
    for (const std::vector<const char*>& malas :
         std::vector<std::vector<const char*>>{{},
                                               {ruta.c_str(), "--registro", "x.csv"},
                                               {ruta.c_str(), "--mes-inicial", "7"},
                                               {"--registro", "x.csv", "--mes-inicial", "13"},
                                               {"--registro", "x.csv", "--duracion", "0"},
                                               {"--registro", "x.csv", "--dias-minimos", "367"}})
        EXPECT_EQ(Lote(malas).estado, batch::EstadoOrdenErronea);
    const Respuesta falta = Lote({"--registro", "no_hay.csv"});
    EXPECT_EQ(falta.estado, batch::EstadoInterrumpido);
    EXPECT_NE(falta.errores.find("no se puede leer"), std::string::npos);
}

}  // namespace
