// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Opciones.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using batch::Lectura;
using batch::Opciones;
using Palabras = std::vector<std::string>;

constexpr const char* Conf = "/p/Rio_Conf.vlm";

Lectura Lee(const Palabras& palabras)
{
    std::vector<const char*> argv{"siro-lote"};
    for (const auto& palabra : palabras)
        argv.push_back(palabra.c_str());
    return batch::LeeOpciones(static_cast<int>(argv.size()), argv.data());
}

/// A command line of one storm with these options behind CONF.
Lectura LeeUna(Palabras opciones)
{
    opciones.insert(opciones.begin(), {"una", Conf});
    return Lee(opciones);
}

TEST(Opciones, SinOpcionesValenLosValoresPorDefecto)
{
    const Lectura l = Lee({"una", Conf});
    ASSERT_TRUE(l.opciones) << l.motivo;
    const Opciones& o = *l.opciones;
    EXPECT_EQ(o.orden, Opciones::Orden::Una);
    EXPECT_EQ(o.conf, Conf);
    EXPECT_EQ(o.trabajo, "");
    EXPECT_EQ(o.forma, 0);
    EXPECT_EQ(o.pp, 60.0F);
    EXPECT_EQ(o.dur, 60);
    EXPECT_EQ(o.rec, 0);
    EXPECT_EQ(o.distribucion, 0);
    EXPECT_EQ(o.pasoPp, 10);
    EXPECT_EQ(o.pasoQ, 10);
    EXPECT_TRUE(o.ppUEH.empty());
    EXPECT_EQ(o.tormenta, "");
    EXPECT_EQ(o.tabla, 0);
    EXPECT_FALSE(o.pizarra);
    EXPECT_TRUE(o.respondeSi);
    EXPECT_EQ(o.hilos, 0);
    EXPECT_EQ(o.resultados, "");
}

/// A command line that is right, and what it changes in the default options.
struct CasoBueno {
    const char* nombre;
    Palabras palabras;
    void (*cambia)(Opciones&);
};

class OpcionesBuenas : public testing::TestWithParam<CasoBueno> {};

TEST_P(OpcionesBuenas, CambianSoloLoSuyo)
{
    Opciones esperadas;
    esperadas.conf = Conf;
    GetParam().cambia(esperadas);
    const Lectura l = Lee(GetParam().palabras);
    ASSERT_TRUE(l.opciones) << l.motivo;
    EXPECT_TRUE(*l.opciones == esperadas);
    EXPECT_EQ(l.motivo, "");
}

const CasoBueno CasosBuenos[] = {
    {"Serie", {"serie", Conf}, [](Opciones& o) { o.orden = Opciones::Orden::Serie; }},
    {"Avisos", {"una", Conf, "--avisos"}, [](Opciones& o) { o.avisos = true; }},
    {"AvisosEnJson",
     {"serie", Conf, "--json", "--avisos"},
     [](Opciones& o) {
         o.orden = Opciones::Orden::Serie;
         o.avisos = o.json = true;
     }},
    {"OpcionesAntesDeConf", {"una", "--dur", "90", Conf}, [](Opciones& o) { o.dur = 90; }},
    {"ConIgual", {"una", Conf, "--dur=90"}, [](Opciones& o) { o.dur = 90; }},
    {"Trabajo", {"una", Conf, "--trabajo", "a b/ñ"}, [](Opciones& o) { o.trabajo = "a b/ñ"; }},
    {"Forma1", {"una", Conf, "--forma", "1"}, [](Opciones& o) { o.forma = 1; }},
    {"Forma3", {"una", Conf, "--forma", "3"}, [](Opciones& o) { o.forma = 3; }},
    {"Forma4", {"una", Conf, "--forma", "4"}, [](Opciones& o) { o.forma = 4; }},
    {"FormaEnSerieNoCuenta",
     {"serie", Conf, "--forma", "3"},
     [](Opciones& o) {
         o.orden = Opciones::Orden::Serie;
         o.forma = 3;
     }},
    {"PpConDecimales", {"una", Conf, "--pp", "12.7"}, [](Opciones& o) { o.pp = 12.7F; }},
    {"PpConExponente", {"una", Conf, "--pp", "1.5E2"}, [](Opciones& o) { o.pp = 150; }},
    {"PpCero", {"una", Conf, "--pp", "0"}, [](Opciones& o) { o.pp = 0; }},
    {"DurCero", {"una", Conf, "--dur", "0"}, [](Opciones& o) { o.dur = 0; }},
    {"DurMayor", {"una", Conf, "--dur", "32767"}, [](Opciones& o) { o.dur = 32767; }},
    {"DurEnteraConPunto", {"una", Conf, "--dur", "90.0"}, [](Opciones& o) { o.dur = 90; }},
    {"RecMayor", {"una", Conf, "--rec", "32767"}, [](Opciones& o) { o.rec = 32767; }},
    {"Distribucion7", {"una", Conf, "--distribucion", "7"}, [](Opciones& o) { o.distribucion = 7; }},
    {"PasosMenores",
     {"una", Conf, "--paso-pp", "1", "--paso-q", "1"},
     [](Opciones& o) { o.pasoPp = o.pasoQ = 1; }},
    {"PpUEHUna", {"una", Conf, "--pp-ueh", "7"}, [](Opciones& o) { o.ppUEH = {7}; }},
    {"PpUEHVarias",
     {"una", Conf, "--pp-ueh", "0,12.5,3e1"},
     [](Opciones& o) {
         o.ppUEH = {0, 12.5F, 30};
     }},
    {"TormentaConBlanco",
     {"una", Conf, "--tormenta", "Ruvera 170276 _pt.vlm"},
     [](Opciones& o) { o.tormenta = "Ruvera 170276 _pt.vlm"; }},
    {"TormentaEntreCorchetes",
     {"una", Conf, "--tormenta", "[a,b]_pt.vlm"},
     [](Opciones& o) { o.tormenta = "[a,b]_pt.vlm"; }},
    {"Tabla3", {"una", Conf, "--tabla", "3"}, [](Opciones& o) { o.tabla = 3; }},
    {"Pizarra", {"una", Conf, "--pizarra"}, [](Opciones& o) { o.pizarra = true; }},
    {"RespondeNo", {"una", Conf, "--responde", "no"}, [](Opciones& o) { o.respondeSi = false; }},
    {"RespondeSi", {"una", Conf, "--responde", "si"}, [](Opciones&) {}},
    {"Hilos", {"una", Conf, "--hilos", "8"}, [](Opciones& o) { o.hilos = 8; }},
    {"HilosHastaMil24", {"una", Conf, "--hilos", "1024"}, [](Opciones& o) { o.hilos = 1024; }},
    {"Resultados", {"una", Conf, "--resultados", "r.csv"}, [](Opciones& o) { o.resultados = "r.csv"; }},
};

INSTANTIATE_TEST_SUITE_P(Filas, OpcionesBuenas, testing::ValuesIn(CasosBuenos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST(Opciones, SetentaLaminasSonElTope)
{
    std::string laminas = "1";
    for (int i = 2; i <= 70; ++i)
        laminas += ",1";
    const Lectura l = LeeUna({"--pp-ueh", laminas});
    ASSERT_TRUE(l.opciones) << l.motivo;
    EXPECT_EQ(l.opciones->ppUEH.size(), 70U);
    EXPECT_FALSE(LeeUna({"--pp-ueh", laminas + ",1"}).opciones);
}

/// A command line that is wrong, and words that its reason bears.
struct CasoMalo {
    const char* nombre;
    Palabras palabras;
    const char* motivo;
};

class OpcionesMalas : public testing::TestWithParam<CasoMalo> {};

TEST_P(OpcionesMalas, DicenPorQue)
{
    const Lectura l = Lee(GetParam().palabras);
    EXPECT_FALSE(l.opciones);
    EXPECT_NE(l.motivo.find(GetParam().motivo), std::string::npos) << l.motivo;
}

const CasoMalo CasosMalos[] = {
    {"Nada", {}, "Falta la orden"},
    {"OtraOrden", {"dos", Conf}, "dos"},
    {"OrdenEnMayusculas", {"UNA", Conf}, "UNA"},
    {"SoloLaOrden", {"una"}, "Falta CONF"},
    {"ConfVacio", {"una", ""}, "Falta CONF"},
    {"ConfSinTerminacion", {"una", "Rio.vlm"}, "_Conf.vlm"},
    {"ConfEnMinusculas", {"una", "Rio_conf.vlm"}, "_Conf.vlm"},
    {"DosConf", {"una", Conf, "Otro_Conf.vlm"}, "Otro_Conf.vlm"},
    {"DosOrdenes", {"una", Conf, "serie"}, "serie"},
    {"OpcionDesconocida", {"una", Conf, "--lluvia", "3"}, "--lluvia"},
    {"OpcionAntesDeLaOrden", {"--pp", "3", "una", Conf}, "--pp"},
    {"SinValor", {"una", Conf, "--pp"}, "--pp"},
    {"DosVeces", {"una", Conf, "--pp", "3", "--pp", "4"}, "--pp"},
    {"PizarraConValor", {"una", Conf, "--pizarra=mucha"}, "--pizarra"},
    {"PpTexto", {"una", Conf, "--pp", "mucha"}, "--pp"},
    {"PpNegativa", {"una", Conf, "--pp", "-5"}, "--pp"},
    {"PpConUnidad", {"una", Conf, "--pp", "60mm"}, "--pp"},
    {"PpConComa", {"una", Conf, "--pp", "60,5"}, "--pp"},
    {"PpVacia", {"una", Conf, "--pp", ""}, "--pp"},
    {"PpInfinita", {"una", Conf, "--pp", "inf"}, "--pp"},
    {"PpNan", {"una", Conf, "--pp", "nan"}, "--pp"},
    {"PpFueraDeSimple", {"una", Conf, "--pp", "1e39"}, "--pp"},
    {"PpFueraDeDoble", {"una", Conf, "--pp", "1e999"}, "--pp"},
    {"PpHexadecimal", {"una", Conf, "--pp", "0x10"}, "--pp"},
    {"DurNegativa", {"una", Conf, "--dur", "-1"}, "--dur"},
    {"DurGrande", {"una", Conf, "--dur", "32768"}, "--dur"},
    {"DurFraccion", {"una", Conf, "--dur", "60.5"}, "--dur"},
    {"DurTexto", {"una", Conf, "--dur", "hora"}, "--dur"},
    {"RecNegativa", {"una", Conf, "--rec", "-1"}, "--rec"},
    {"RecGrande", {"una", Conf, "--rec", "32768"}, "--rec"},
    {"RecFraccion", {"una", Conf, "--rec", "0.5"}, "--rec"},
    {"Forma2", {"una", Conf, "--forma", "2"}, "--forma"},
    {"Forma2EnSerie", {"serie", Conf, "--forma", "2"}, "--forma"},
    {"Forma5", {"una", Conf, "--forma", "5"}, "--forma"},
    {"FormaNegativa", {"una", Conf, "--forma", "-1"}, "--forma"},
    {"FormaTexto", {"una", Conf, "--forma", "real"}, "--forma"},
    {"Distribucion8", {"una", Conf, "--distribucion", "8"}, "--distribucion"},
    {"DistribucionNegativa", {"una", Conf, "--distribucion", "-1"}, "--distribucion"},
    {"PasoPpCero", {"una", Conf, "--paso-pp", "0"}, "--paso-pp"},
    {"PasoPpFraccion", {"una", Conf, "--paso-pp", "7.5"}, "--paso-pp"},
    {"PasoPpGrande", {"una", Conf, "--paso-pp", "32768"}, "--paso-pp"},
    {"PasoQCero", {"una", Conf, "--paso-q", "0"}, "--paso-q"},
    {"PasoQNegativo", {"una", Conf, "--paso-q", "-10"}, "--paso-q"},
    {"PpUEHNegativa", {"una", Conf, "--pp-ueh", "3,-0.5"}, "--pp-ueh"},
    {"PpUEHVacia", {"una", Conf, "--pp-ueh", ""}, "--pp-ueh"},
    {"PpUEHHueco", {"una", Conf, "--pp-ueh", "1,,2"}, "--pp-ueh"},
    {"PpUEHComaFinal", {"una", Conf, "--pp-ueh", "1,2,"}, "--pp-ueh"},
    {"PpUEHTexto", {"una", Conf, "--pp-ueh", "1,x"}, "--pp-ueh"},
    {"Tabla4", {"serie", Conf, "--tabla", "4"}, "--tabla"},
    {"RespondeOtraCosa", {"una", Conf, "--responde", "tal vez"}, "--responde"},
    {"JsonSinAvisos", {"una", Conf, "--json"}, "--json"},
    {"HilosNegativos", {"serie", Conf, "--hilos", "-1"}, "--hilos"},
    {"HilosDeMas", {"serie", Conf, "--hilos", "1025"}, "--hilos"},
    {"HilosFraccion", {"serie", Conf, "--hilos", "1.5"}, "--hilos"},
    {"HilosTexto", {"serie", Conf, "--hilos", "todos"}, "--hilos"},
    {"OpcionErroneaEnSerieTambien", {"serie", Conf, "--paso-pp", "0"}, "--paso-pp"},
};

INSTANTIATE_TEST_SUITE_P(Filas, OpcionesMalas, testing::ValuesIn(CasosMalos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

TEST(Opciones, PedirAyudaNoEsUnError)
{
    for (const char* ayuda : {"--help", "-h", "--ayuda"}) {
        for (const auto& palabras :
             {Palabras{ayuda}, Palabras{"una", ayuda}, Palabras{"serie", Conf, ayuda}}) {
            const Lectura l = Lee(palabras);
            EXPECT_FALSE(l.opciones) << ayuda;
            EXPECT_EQ(l.motivo, "") << ayuda;
        }
    }
}

TEST(Opciones, ElUsoNombraTodasLasOpciones)
{
    const std::string uso(batch::Uso());
    for (const char* opcion : {"una ", "serie ", "--trabajo", "--forma", "--pp ", "--dur", "--rec",
                               "--distribucion", "--paso-pp", "--paso-q", "--pp-ueh", "--tormenta", "--tabla",
                               "--pizarra", "--responde", "--hilos", "--resultados", "--avisos", "--json"})
        EXPECT_NE(uso.find(opcion), std::string::npos) << opcion;
    EXPECT_EQ(uso.back(), '\n');
    EXPECT_EQ(uso.find('\r'), std::string::npos);
}

}  // namespace
