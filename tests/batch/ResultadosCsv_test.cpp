// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ResultadosCsv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>

#include "model/Falla.h"
#include "model/Siro.h"

namespace {

using batch::FilaCsv;
using model::Siro;

std::string Fila(FilaCsv& fila)
{
    std::string texto;
    fila.Termina(texto);
    return texto;
}

std::string Texto(std::string_view t)
{
    FilaCsv fila;
    return Fila(fila.Texto(t));
}

std::string Numero(float x)
{
    FilaCsv fila;
    return Fila(fila.Numero(x));
}

TEST(FilaCsv, UnTextoLlanoVaSinComillas)
{
    EXPECT_EQ(Texto("c-Arroyo Ñandú"), "c-Arroyo Ñandú\n");
    EXPECT_EQ(Texto(""), "\n");
    EXPECT_EQ(Texto("*"), "*\n");
    EXPECT_EQ(Texto(" c "), " c \n");
}

TEST(FilaCsv, ComaComillaOSaltoDeLineaVanEntreComillas)
{
    EXPECT_EQ(Texto("c-a,b"), "\"c-a,b\"\n");
    EXPECT_EQ(Texto("c-\"a\""), "\"c-\"\"a\"\"\"\n");
    EXPECT_EQ(Texto("c-\r\na"), "\"c-\r\na\"\n");
}

// The shortest digits that give the same 32-bit float back: 0.1f is 0.1, 1/3 needs eight digits.
TEST(FilaCsv, UnFlotanteVaConLasCifrasJustas)
{
    EXPECT_EQ(Numero(0), "0\n");
    EXPECT_EQ(Numero(0.1F), "0.1\n");
    EXPECT_EQ(Numero(1.0F / 3.0F), "0.33333334\n");
    EXPECT_EQ(Numero(16777216.0F), "16777216\n");
    EXPECT_EQ(Numero(-2.5F), "-2.5\n");
    EXPECT_EQ(Numero(1e20F), "1e+20\n");
    EXPECT_EQ(Numero(std::numeric_limits<float>::max()), "3.4028235e+38\n");
}

TEST(FilaCsv, LosCamposSeSeparanPorComasTambienLosVacios)
{
    FilaCsv fila;
    EXPECT_EQ(Fila(fila.Texto("a").Vacio().Numero(-7).Vacio()), "a,,-7,\n");
    EXPECT_EQ(Fila(fila.Vacio().Vacio()), ",\n");  // a row starts anew after the last one
}

/// A disk in memory.
struct DiscoDePrueba {
    std::map<std::string, std::string> archivos;
    int escrituras = 0;
    int falla_en = 0;  ///< number of the write that fails; 0: none

    void PonEn(Siro& s)
    {
        s.Disco.Escribe = [this](const std::string& ruta, std::string_view bytes) {
            Cuenta();
            archivos[ruta] = bytes;
        };
        s.Disco.Agrega = [this](const std::string& ruta, std::string_view bytes) {
            Cuenta();
            archivos[ruta] += bytes;
        };
    }
    void Cuenta()
    {
        if (++escrituras == falla_en) throw model::Falla{model::NumeroFalla::AccesoRuta};
    }
};

/// One component of each kind and two output steps of 5 min.
Siro UnoDeCada()
{
    Siro s;
    model::UEH ueh;
    ueh.NombreUEH = "u-1";
    ueh.numUEH = 1;
    s.Red.ColUEHs.Agrega(ueh);
    model::Cauce cauce;
    cauce.NombreCauce = "c-1,a";
    cauce.numCauce = 1;
    s.Red.ColCauces.Agrega(cauce);
    model::Lago lago;
    lago.NombreLAGO = "l-1";
    lago.numLAGO = 1;
    s.Red.ColLagos.Agrega(lago);
    model::Represa represa;
    represa.NombreRepresa = "r-1";
    represa.numRepresa = 1;
    s.Red.ColRepresas.Agrega(represa);
    s.Resultados.NroComponentes = 4;
    s.Resultados.Secuencia = {"", "u-1", "r-1", "c-1,a",
                              "l-1"};  // an order of computation, not that of the kinds
    s.Resultados.NroPasosQ = 2;
    s.Pasos.PasoQ = 5;
    s.Resultados.QSale.Dimensiona(4, 3);
    s.Resultados.QEntra.Dimensiona(2, 5, 3);
    s.Resultados.HRepresa.Dimensiona(1, 3);
    s.Resultados.SRepresa.Dimensiona(1, 3);
    s.Resultados.HLago.Dimensiona(1, 3);
    s.Resultados.SLago.Dimensiona(1, 3);
    for (int p = 0; p <= 2; ++p) {
        const auto x = static_cast<float>(p);
        for (int c = 1; c <= 4; ++c)
            s.Resultados.QSale(c, p) = x + static_cast<float>(c) / 4;
        for (int c = 2; c <= 4; ++c)
            s.Resultados.QEntra(c, p) = x + 100;
        s.Resultados.HRepresa(1, p) = x + 10;
        s.Resultados.SRepresa(1, p) = x + 1000;
        s.Resultados.HLago(1, p) = x + 20;
        s.Resultados.SLago(1, p) = x + 2000;
    }
    return s;
}

constexpr const char* CsvUnoDeCada =
    "componente,p,minutos,qentra,qsale,h,s\n"
    "u-1,0,0,,0.25,,\n"
    "u-1,1,5,,1.25,,\n"
    "u-1,2,10,,2.25,,\n"
    "r-1,0,0,100,0.5,10,1000\n"
    "r-1,1,5,101,1.5,11,1001\n"
    "r-1,2,10,102,2.5,12,1002\n"
    "\"c-1,a\",0,0,100,0.75,,\n"
    "\"c-1,a\",1,5,101,1.75,,\n"
    "\"c-1,a\",2,10,102,2.75,,\n"
    "l-1,0,0,100,1,20,2000\n"
    "l-1,1,5,101,2,21,2001\n"
    "l-1,2,10,102,3,22,2002\n";

TEST(CsvTormenta, UnaFilaPorComponenteYPasoEnElOrdenDeCalculo)
{
    Siro s = UnoDeCada();
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvTormenta(s, "/r.csv");
    EXPECT_EQ(disco.archivos["/r.csv"], CsvUnoDeCada);
}

TEST(CsvTormenta, SinComponentesQuedaLaCabeza)
{
    Siro s;
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvTormenta(s, "/r.csv");
    EXPECT_EQ(disco.archivos["/r.csv"], "componente,p,minutos,qentra,qsale,h,s\n");
}

TEST(CsvTormenta, LosMinutosPasanDe16Bits)
{
    Siro s = UnoDeCada();
    s.Pasos.PasoQ = 20000;
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvTormenta(s, "/r.csv");
    EXPECT_NE(disco.archivos["/r.csv"].find("u-1,2,40000,"), std::string::npos);
}

TEST(CsvTormenta, LoQueUnArregloNoTieneQuedaVacio)
{
    Siro s = UnoDeCada();
    s.Resultados.HLago.Dimensiona(1, 1);      // no step 2
    s.Resultados.SLago = {};                  // never allocated
    s.Resultados.QEntra.Dimensiona(2, 3, 3);  // no row of l-1
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvTormenta(s, "/r.csv");
    const std::string& csv = disco.archivos["/r.csv"];
    EXPECT_NE(csv.find("l-1,1,5,,2,0,\n"), std::string::npos) << csv;
    EXPECT_NE(csv.find("l-1,2,10,,3,,\n"), std::string::npos) << csv;
}

// 9000 rows of more than 30 characters exceed what is kept back at once.
TEST(CsvTormenta, UnArchivoLargoVaPorTrozosYEntero)
{
    Siro s = UnoDeCada();
    s.Resultados.NroPasosQ = 8999;
    s.Pasos.PasoQ = 1;
    s.Resultados.QSale.Dimensiona(4, 9000);
    for (int p = 0; p <= 8999; ++p)
        s.Resultados.QSale(1, p) = static_cast<float>(p) / 3;
    s.Resultados.NroComponentes = 1;
    DiscoDePrueba disco;
    disco.PonEn(s);
    s.Resultados.Secuencia[1] = "u-con un nombre";
    batch::GuardaCsvTormenta(s, "/r.csv");
    const std::string& csv = disco.archivos["/r.csv"];
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 9001);
    EXPECT_GT(disco.escrituras, 2);
    EXPECT_TRUE(csv.ends_with("u-con un nombre,8999,8999,,2999.6667,,\n"));
}

TEST(CsvTormenta, UnDiscoQueFallaDaSuFalla)
{
    for (const int cual : {1, 2}) {
        Siro s = UnoDeCada();
        DiscoDePrueba disco;
        disco.falla_en = cual;
        disco.PonEn(s);
        EXPECT_THROW(batch::GuardaCsvTormenta(s, "/r.csv"), model::Falla) << cual;
    }
}

/// Three storms, the second one shorter than the model step and so skipped.
Siro SerieDeTres()
{
    Siro s = UnoDeCada();
    s.Tormenta.FormaPp = 2;
    s.Pasos.PasoPp = 10;
    s.Serie.NroSeriePDR = 3;
    s.Serie.SerieP.Dimensiona(3);
    s.Serie.SerieD.Dimensiona(3);
    s.Serie.SerieR.Dimensiona(3);
    const float p[] = {0, 60, 61, 62.5F};
    const std::int16_t d[] = {0, 45, 7, 75};
    const std::int16_t r[] = {0, 3, 4, 7};
    s.Resultados.QMax.Dimensiona(4, 3);
    s.Resultados.EscUEH.Dimensiona(1, 3);
    s.Resultados.CoefEscUEH.Dimensiona(1, 3);
    s.Resultados.EscTotal.Dimensiona(3);
    s.Resultados.CoefEscTotal.Dimensiona(3);
    for (int n = 1; n <= 3; ++n) {
        s.Serie.SerieP(n) = p[n];
        s.Serie.SerieD(n) = d[n];
        s.Serie.SerieR(n) = r[n];
        for (int c = 1; c <= 4; ++c)
            s.Resultados.QMax(c, n) = static_cast<float>(10 * n) + static_cast<float>(c) / 10;
        s.Resultados.EscUEH(1, n) = 20000000 + n;
        s.Resultados.CoefEscUEH(1, n) = 30.5F;
        s.Resultados.EscTotal(n) = -n;
        s.Resultados.CoefEscTotal(n) = 40.25F;
    }
    s.Serie.IndSerie = 4;
    return s;
}

// 45 and 75 min, 3 and 7 years are among no boxes of the configuration, so that only the step can skip a
// storm.
TEST(CsvSerie, UnaFilaPorComponenteYTormentaNoSaltadaYAlFinLaCuenca)
{
    Siro s = SerieDeTres();
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvSerie(s, "/r.csv");
    EXPECT_EQ(disco.archivos["/r.csv"],
              "componente,storm,p,d,r,qmax,esc,coef\n"
              "u-1,1,60,45,3,10.1,20000001,30.5\n"
              "u-1,3,62.5,75,7,30.1,20000003,30.5\n"
              "r-1,1,60,45,3,10.2,,\n"
              "r-1,3,62.5,75,7,30.2,,\n"
              "\"c-1,a\",1,60,45,3,10.3,,\n"
              "\"c-1,a\",3,62.5,75,7,30.3,,\n"
              "l-1,1,60,45,3,10.4,,\n"
              "l-1,3,62.5,75,7,30.4,,\n"
              "*,1,60,45,3,,-1,40.25\n"
              "*,3,62.5,75,7,,-3,40.25\n");
}

TEST(CsvSerie, DejaElIndiceDeLaSerieComoEstaba)
{
    Siro s = SerieDeTres();
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvSerie(s, "/r.csv");
    EXPECT_EQ(s.Serie.IndSerie, 4);
}

TEST(CsvSerie, TodasSaltadasDejanLaCabeza)
{
    Siro s = SerieDeTres();
    s.Pasos.PasoPp = 100;
    DiscoDePrueba disco;
    disco.PonEn(s);
    batch::GuardaCsvSerie(s, "/r.csv");
    EXPECT_EQ(disco.archivos["/r.csv"], "componente,storm,p,d,r,qmax,esc,coef\n");
}

}  // namespace
