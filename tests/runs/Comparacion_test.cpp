// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Comparacion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/CorridaDePrueba.h"
#include "engine/mdlSeriePDR.h"
#include "results/CorridaDeMuestra.h"
#include "runs/EscribeComparacion.h"

namespace runs {
namespace {

using Textos = std::vector<std::string>;
using Valor = std::optional<double>;

/// u-1 -> c-1 of CorridaDePrueba: 60 mm in 60 min on 100 ha, all of it excess, over a slope of 60 min. A
/// triangle up to 16.6667 m3/s at minute 60, 60000 m3; c-1 brings it 10 min later. All of it goes with the
/// area.
struct Red : pruebas::CorridaDePrueba {
    model::Siro& Estado() { return s; }
    model::UEH& UEH() { return s.Red.ColUEHs.Item(1); }
    model::Cauce& Cauce() { return s.Red.ColCauces.Item(1); }
    std::shared_ptr<const checks::UltimaCorrida> Corrida()
    {
        const model::Tormenta entrada = s.Tormenta;
        engine::Calculo c = Corre();
        EXPECT_EQ(c.fin, engine::FinCalculo::Completo);
        s.Resultados = c.Resultados;
        s.Tormenta = c.Tormenta;
        return checks::UltimaCorrida::DeUna(s, entrada, true);
    }
};

const Cifra& CifraDe(const Comparacion& c, const std::string& componente, std::string_view magnitud)
{
    static const Cifra ninguna{};
    for (const Cifra& x : c.cifras)
        if (x.componente == componente && x.magnitud == magnitud) return x;
    ADD_FAILURE() << componente << " " << magnitud;
    return ninguna;
}

/// What differs, a line each.
Textos Diferencias(const Comparacion& c)
{
    Textos lineas;
    for (const Distinto& d : c.parametros) {
        std::string linea = d.componente + "|" + d.nombre + "|" + d.unidad;
        for (const std::string& v : d.valores)
            linea += "|" + v;
        lineas.push_back(linea + (d.seLee ? "" : "|no se lee"));
    }
    return lineas;
}

TEST(Comparacion, DosIgualesNoDifierenEnNada)
{
    Red red;
    const auto corrida = red.Corrida();
    const Comparacion c = Compara({{"Hoy", corrida}, {"Otra vez", corrida}});
    EXPECT_EQ(c.lados, (Textos{"Hoy", "Otra vez"}));
    EXPECT_TRUE(c.parametros.empty());
    EXPECT_TRUE(CifrasALaVista(c, true).empty());
    EXPECT_FALSE(CifrasALaVista(c, false).empty());
}

TEST(Comparacion, LaMitadMasDeSuperficieDaLaMitadMasDePico)
{
    Red hoy, urbana;
    urbana.UEH().Area = 150;
    const Comparacion c = Compara({{"Hoy", hoy.Corrida()}, {"Urbana", urbana.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"u-1|Área|ha|100|150"}));

    const Cifra& pico = CifraDe(c, "c-1", "Qp sale");
    EXPECT_EQ(pico.unidad, "m3/s");
    ASSERT_EQ(pico.valores.size(), 2u);
    EXPECT_NEAR(*pico.valores[0], 16.6667, 1e-4);
    EXPECT_NEAR(*pico.valores[1], 25.0, 1e-4);
    EXPECT_NEAR(*Diferencia(pico.valores[0], pico.valores[1]), 8.3333, 1e-4);
    EXPECT_NEAR(*PorCiento(pico.valores[0], pico.valores[1]), 50, 1e-3);

    const Cifra& hora = CifraDe(c, "c-1", "tp sale");
    EXPECT_EQ(hora.valores, (std::vector<Valor>{70, 70}));
    const Cifra& volumen = CifraDe(c, "", "V sale");
    EXPECT_NEAR(*volumen.valores[0], 60000, 1);
    EXPECT_NEAR(*volumen.valores[1], 90000, 1);
    for (const Cifra& x : c.cifras)
        EXPECT_NE(x.magnitud, "Error") << "of a run alone";

    const forms::Planilla p = PlanillaDeCifras(c, true);
    const Textos esperada{"c-1", "Qp sale", "m3/s", "16.667", "25.000", "8.333", "50.0"};
    EXPECT_NE(std::find(p.filas.begin(), p.filas.end(), esperada), p.filas.end());
    for (const auto& fila : p.filas)
        EXPECT_NE(fila[1], "tp sale") << "the same on both sides";
}

TEST(Comparacion, DiferenciaYPorCientoSonDeNumeros)
{
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Diferencia(2, 3), Valor(1));
    EXPECT_EQ(PorCiento(2, 3), Valor(50));
    EXPECT_EQ(PorCiento(-2, -3), Valor(-50)) << "below, as the difference";
    EXPECT_EQ(Diferencia(0, 3), Valor(3));
    EXPECT_EQ(PorCiento(0, 3), Valor());
    EXPECT_EQ(PorCiento(0, 0), Valor());
    EXPECT_EQ(Diferencia({}, 3), Valor());
    EXPECT_EQ(Diferencia(3, {}), Valor());
    EXPECT_EQ(PorCiento(NaN, 3), Valor());
    EXPECT_EQ(PorCiento(3, NaN), Valor());
    EXPECT_EQ(Diferencia(3, std::numeric_limits<double>::infinity()), Valor());
}

TEST(Comparacion, SinEscorrentiaEnLaPrimeraNoHayPorCiento)
{
    Red seca, mojada;
    seca.UEH().RetensionZ = 100;
    const Comparacion c = Compara({{"Seca", seca.Corrida()}, {"Mojada", mojada.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"u-1|Retención superficial Z|mm|100|0"}));
    const Cifra& pico = CifraDe(c, "c-1", "Qp sale");
    EXPECT_EQ(pico.valores[0], Valor(0));
    EXPECT_EQ(PorCiento(pico.valores[0], pico.valores[1]), Valor());
    const Cifra& hora = CifraDe(c, "c-1", "tp sale");
    EXPECT_FALSE(hora.valores[0]) << "nothing flows: there is no time";
    EXPECT_TRUE(hora.valores[1]);
}

TEST(Comparacion, LoQueUnaCorridaNoLeeSeDiceQueNoSeLee)
{
    Red una, otra;
    otra.Cauce().Cauce_k_Musk = 30;
    otra.UEH().Referencia = "medida";
    otra.Cauce().LongCauce = 1200;
    const Comparacion c = Compara({{"1", una.Corrida()}, {"2", otra.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"c-1|Longitud|m|600|1200", "c-1|Muskingum K|min|0|30|no se lee"}))
        << "a text on one side alone isn't a difference of two";
    EXPECT_EQ(CifraDe(c, "c-1", "tp sale").valores, (std::vector<Valor>{70, 80}));
}

TEST(Comparacion, UnComponenteDeUnaSolaSeDice)
{
    Red sin, con;
    con.Represa("Piscina Nivelada", Red::Prisma(2, 3, 20));
    const Comparacion c = Compara({{"Sin", sin.Corrida()}, {"Con", con.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"c-1|Drena a|-|nada|r-1", "r-1|Componente|-|no está|está"}));
    const Cifra& altura = CifraDe(c, "r-1", "H máx");
    EXPECT_FALSE(altura.valores[0]);
    ASSERT_TRUE(altura.valores[1]);
    const Cifra& guardado = CifraDe(c, "r-1", "S máx");
    ASSERT_TRUE(guardado.valores[1]);
    EXPECT_NEAR(*guardado.valores[1], 20000 * (*altura.valores[1] - 100), 150)
        << "walls: S = 10000·2·d; heights are rounded to the centimetre";
    EXPECT_FALSE(Diferencia(altura.valores[0], altura.valores[1]));
    const Cifra& salida = CifraDe(c, "", "Qp sale");
    EXPECT_LT(*salida.valores[1], *salida.valores[0]) << "the reservoir flattens";
}

TEST(Comparacion, UnaFilaDeTablaDistintaSeMuestraEntera)
{
    Red una, otra;
    una.Represa("Piscina Nivelada", {{100, 2, 0, 0}, {101, 2, 20000, 3}, {110, 2, 200000, 30}});
    otra.Represa("Piscina Nivelada",
                 {{100, 2, 0, 0}, {101, 2.5F, 22500, 3}, {110, 2, 200000, 30}, {111, 3, 230000, 40}});
    const Comparacion c = Compara({{"1", una.Corrida()}, {"2", otra.Corrida()}});
    EXPECT_EQ(Diferencias(c),
              (Textos{"r-1|Tabla H-A-S, fila 2|-|H 101 m; A 2 ha; S 20000 m3|H 101 m; A 2.5 ha; S 22500 m3",
                      "r-1|Tabla H-A-S, fila 4|-|no está|H 111 m; A 3 ha; S 230000 m3",
                      "r-1|Tabla H-Q, fila 4|-|no está|H 111 m; Q 40 m3/s"}));
}

TEST(Comparacion, UnComponenteRenombradoEsElMismo)
{
    Red una, otra;
    otra.Cauce().NombreCauce = "c-uno";
    otra.UEH().Cauce_aa = "c-uno";
    const Lados lados{{"1", una.Corrida()}, {"2", otra.Corrida()}};
    const Comparacion c = Compara(lados);
    EXPECT_EQ(Diferencias(c), (Textos{"c-1|Nombre|-|c-1|c-uno"})) << "the destination is the same component";
    ASSERT_EQ(c.componentes.size(), 2u);
    EXPECT_EQ(c.componentes[1].nombres, (Textos{"c-1", "c-uno"}));
    EXPECT_EQ(CifraDe(c, "c-1", "tp sale").valores, (std::vector<Valor>{70, 70}));
    EXPECT_TRUE(CifrasALaVista(c, true).empty());
}

TEST(Comparacion, DosConLosMismosDatosNoSeAdivinan)
{
    Red una, otra;
    una.Directo("c-2", "0");
    una.Cauce().Cauce_aa = "c-2";
    otra.Cauce().NombreCauce = "c-uno";
    otra.UEH().Cauce_aa = "c-uno";
    const Comparacion c = Compara({{"1", una.Corrida()}, {"2", otra.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"u-1|Drena a|-|c-1|c-uno", "c-1|Componente|-|está|no está",
                                      "c-2|Componente|-|está|no está", "c-uno|Componente|-|no está|está"}));
}

TEST(Comparacion, LaTormentaYLosPasosTambien)
{
    Red una, otra;
    otra.Estado().Tormenta.PpTormenta = 90;
    otra.Estado().Tormenta.RecTormenta = 50;
    otra.Estado().Pasos.PasoQ = 5;
    const Comparacion c = Compara({{"1", una.Corrida()}, {"2", otra.Corrida()}});
    EXPECT_EQ(Diferencias(c), (Textos{"|Lámina P|mm|60|90", "|Recurrencia R|años|0|50|no se lee",
                                      "|Paso de salida|min|10|5"}));
}

TEST(Comparacion, HidrogramasDePasosDistintosEnUnSoloEje)
{
    Red una, otra;
    otra.Estado().Pasos.PasoQ = 5;
    const Lados lados{{"1", una.Corrida()}, {"2", otra.Corrida()}};
    const Comparacion c = Compara(lados);
    const Superpuestos s = Hidrogramas(lados, c.componentes[1]);
    ASSERT_GE(s.minutos.size(), 28u);
    EXPECT_EQ(s.minutos[0], 5);
    EXPECT_EQ(s.minutos[1], 10);
    ASSERT_EQ(s.caudales.size(), 2u);
    EXPECT_TRUE(std::isnan(s.caudales[0][0])) << "nothing is made up between two steps";
    EXPECT_FALSE(std::isnan(s.caudales[1][0]));
    for (std::size_t i = 0; i < s.minutos.size(); ++i) {
        if (s.minutos[i] != 70) continue;
        EXPECT_NEAR(s.caudales[0][i], 16.6667, 1e-3);
        EXPECT_NEAR(s.caudales[1][i], 16.6667, 1e-3);
    }
    EXPECT_TRUE(Hidrogramas(lados, c.componentes[0], true).minutos.empty()) << "a UEH has no inflow";
}

struct DeMuestra : testing::Test {
    DeMuestra() { s.Anfitrion = anfitrion.Puerta(); }
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    pruebas::CorridaDeMuestra muestra{s};
};

TEST_F(DeMuestra, LosPicosDeLasSeriesVanPorRecurrenciaYDuracion)
{
    const auto primera = muestra.Serie();  // 20, 80, 60 mm; D 60, 120, 180 min; R 10, 20, 30 years
    s.Serie.SerieP(2) = 100;
    s.Serie.SerieR(3) = 5;
    ASSERT_EQ(engine::CorreSeriePDR(s), engine::FinSerie::Completa);
    const auto segunda = checks::UltimaCorrida::DeSerie(s, 1);
    const Lados lados{{"A", primera}, {"B", segunda}};
    const Comparacion c = Compara(lados);
    ASSERT_EQ(primera->corridas.size(), 3u);
    EXPECT_EQ(Diferencias(c),
              (Textos{"|P de D 180 min, R 5 años|mm|no está|60", "|P de D 120 min, R 20 años|mm|80|100",
                      "|P de D 180 min, R 30 años|mm|60|no está"}));

    const Emparejado& salida =
        *std::ranges::find_if(c.componentes, [](const Emparejado& e) { return e.Nombre() == "c-Quelmar5"; });
    const std::vector<PicoDeSerie> picos = PicosDeSerie(lados, salida);
    ASSERT_EQ(picos.size(), 4u);
    const int fila = static_cast<int>(std::ranges::find(primera->r().Secuencia, "c-Quelmar5") -
                                      primera->r().Secuencia.begin());
    EXPECT_EQ(picos[0].R, 5);
    EXPECT_EQ(picos[0].D, 180);
    EXPECT_EQ(picos[0].picos, (std::vector<Valor>{{}, double{segunda->r().QMax(fila, 3)}}));
    EXPECT_EQ(picos[2].R, 20);
    EXPECT_EQ(picos[2].laminas, (std::vector<Valor>{80, 100}));
    EXPECT_EQ(picos[2].picos,
              (std::vector<Valor>{double{primera->r().QMax(fila, 2)}, double{segunda->r().QMax(fila, 2)}}));
    EXPECT_GT(*PorCiento(picos[2].picos[0], picos[2].picos[1]), 0);
}

TEST_F(DeMuestra, UnaTormentaYUnaSerieSeComparanEnLoQueTienen)
{
    const auto una = muestra.Una();
    const auto serie = muestra.Serie();
    const Lados lados{{"Una", una}, {"Serie", serie}};
    const Comparacion c = Compara(lados);
    EXPECT_TRUE(HaySeries(lados));
    EXPECT_TRUE(HayTormentas(lados));
    const Cifra& pico = CifraDe(c, "c-Quelmar5", "Qp sale");
    EXPECT_TRUE(pico.valores[0]);
    EXPECT_FALSE(pico.valores[1]);
    EXPECT_FALSE(CifraDe(c, "c-Quelmar5", "Qp").valores[0]);
    EXPECT_EQ(c.parametros.front().valores, (Textos{"una tormenta", "serie de tormentas"}));
    EXPECT_FALSE(CifraDe(c, "c-Quelmar5", "Tormenta").conPorCiento) << "a number of a storm has no share";
}

TEST(EscribeComparacion, TextoJsonYCsvDicenLoMismo)
{
    Red hoy, urbana;
    urbana.UEH().Area = 150;
    const Lados lados{{"Hoy", hoy.Corrida()}, {"Con \"loteo\", 2030", urbana.Corrida()}};
    const Comparacion c = Compara(lados);
    const std::string texto = TextoDe(lados, c);
    EXPECT_NE(texto.find("u-1         Área       ha      100                150\n"), std::string::npos)
        << texto;
    EXPECT_NE(texto.find("Resultados que difieren\n"), std::string::npos);
    EXPECT_EQ(texto.find("tp sale"), std::string::npos) << "what is alike is left out";

    const std::string json = JsonDe(lados, c);
    EXPECT_NE(
        json.find(
            R"({"componente": "u-1", "nombre": "Área", "unidad": "ha", "se_lee": true, "valores": ["100", "150"]})"),
        std::string::npos);
    EXPECT_NE(json.find(R"("nombre": "Con \"loteo\", 2030")"), std::string::npos);
    EXPECT_NE(
        json.find(
            R"({"componente": "c-1", "magnitud": "tp sale", "unidad": "min", "valores": [70, 70], "diferencias": [0, 0], "por_ciento": [0, 0]})"),
        std::string::npos);
    EXPECT_NE(json.find(R"("nombres": ["c-1", "c-1"], "minutos": [10, 20, 30)"), std::string::npos);

    const std::string csv = CsvDe(lados, c);
    EXPECT_TRUE(csv.starts_with("tabla,componente,nombre,unidad,lado,valor,diferencia,por_ciento\n"));
    EXPECT_NE(csv.find("parametro,u-1,Área,ha,Hoy,100,,\n"), std::string::npos);
    EXPECT_NE(csv.find("parametro,u-1,Área,ha,\"Con \"\"loteo\"\", 2030\",150,,\n"), std::string::npos);
    EXPECT_NE(csv.find("cifra,c-1,tp sale,min,Hoy,70,,\n"), std::string::npos);
    EXPECT_NE(csv.find("cifra,c-1,tp sale,min,\"Con \"\"loteo\"\", 2030\",70,0,0\n"), std::string::npos);
}

TEST(EscribeComparacion, SinDiferenciasLoDice)
{
    Red red;
    const auto corrida = red.Corrida();
    const Lados lados{{"A", corrida}, {"B", corrida}};
    const std::string texto = TextoDe(lados, Compara(lados));
    EXPECT_NE(texto.find("Ningún parámetro difiere.\n"), std::string::npos);
    EXPECT_NE(texto.find("Ningún resultado difiere.\n"), std::string::npos);
}

}  // namespace
}  // namespace runs
