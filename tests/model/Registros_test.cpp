// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Registros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Numeros.h"
#include "model/Texto.h"

using apoyo::DiscoPrueba;
using apoyo::MismoTexto;
using apoyo::NumeroDeFalla;
using namespace model;

namespace {

/// All fields of a file, the quoted ones in the marks «».
std::vector<std::string> Campos(std::string_view bytes)
{
    LectorRegistros lector{std::string(bytes)};
    std::vector<std::string> campos;
    while (!lector.Fin()) {
        const Campo campo = lector.Siguiente();
        campos.push_back(campo.entreComillas ? "«" + std::string(campo.bytes) + "»"
                                             : std::string(campo.bytes));
    }
    return campos;
}

using Lista = std::vector<std::string>;

// --- where fields end ---

TEST(LectorRegistros, ComaYFinDeLineaCierranElCampo)
{
    EXPECT_EQ(Campos("a,b\r\nc"), (Lista{"a", "b", "c"}));
    EXPECT_EQ(Campos("a,b\r\nc\r\n"), (Lista{"a", "b", "c"}));
    EXPECT_EQ(Campos("a\rb\nc\r\nd"), (Lista{"a", "b", "c", "d"}));
    EXPECT_EQ(Campos("a\n\rb"), (Lista{"a", "", "b"}));
    EXPECT_EQ(Campos("a\r\r\nb"), (Lista{"a", "", "b"}));
    EXPECT_EQ(Campos("a\r"), Lista{"a"});
    EXPECT_EQ(Campos("a\n"), Lista{"a"});
}

TEST(LectorRegistros, CamposVacios)
{
    EXPECT_EQ(Campos(",b"), (Lista{"", "b"}));
    EXPECT_EQ(Campos("a,,b"), (Lista{"a", "", "b"}));
    EXPECT_EQ(Campos("a\r\n\r\nb"), (Lista{"a", "", "b"}));
    EXPECT_EQ(Campos("a,\r\n"), (Lista{"a", ""}));
    EXPECT_EQ(Campos("\r\n"), Lista{""});
    EXPECT_EQ(Campos("  \t "), Lista{""});
    EXPECT_EQ(Campos("a\r\n "), (Lista{"a", ""}));
}

TEST(LectorRegistros, DetrasDeLaUltimaComaHayUnCampo)
{
    EXPECT_EQ(Campos("a,"), (Lista{"a", ""}));
    EXPECT_EQ(Campos(","), (Lista{"", ""}));
    EXPECT_EQ(Campos("\"a\","), (Lista{"«a»", ""}));
    EXPECT_EQ(Campos("a,\r\n"), (Lista{"a", ""}));
    EXPECT_EQ(Campos("a, "), (Lista{"a", ""}));
    EXPECT_EQ(Campos("1,\"a,"), (Lista{"1", "«a,»"}));  // that comma is text
    LectorRegistros lector("7,");
    EXPECT_EQ(lector.Numero16(), 7);
    const std::size_t lugar = lector.Lugar();
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(lector.Fin());
        EXPECT_EQ(lector.Numero16(), 0);
        EXPECT_TRUE(lector.Fin());
        lector.Vuelve(lugar);
    }
}

TEST(LectorRegistros, NoHayCampoDetrasDelUltimoFinDeLinea)
{
    EXPECT_EQ(Campos(""), Lista{});
    EXPECT_EQ(Campos("a\r\n"), Lista{"a"});
    EXPECT_EQ(Campos("a\r\n\r\n"), (Lista{"a", ""}));
    LectorRegistros lector("a\r\n");
    EXPECT_EQ(lector.Texto(), "a");
    EXPECT_TRUE(lector.Fin());
    EXPECT_EQ(NumeroDeFalla([&] { lector.Siguiente(); }), 62);
    EXPECT_EQ(NumeroDeFalla([&] { lector.Texto(); }), 62);
    EXPECT_EQ(NumeroDeFalla([&] { lector.Numero16(); }), 62);
    EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 62);
    EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 62);
    EXPECT_EQ(NumeroDeFalla([&] { lector.Logico(); }), 62);
}

TEST(LectorRegistros, LosBlancosQueRodeanUnCampoSinComillasSeCaen)
{
    EXPECT_EQ(Campos("  a b \t,\tc\r\n d "), (Lista{"a b", "c", "d"}));
    EXPECT_EQ(Campos("a\"b\",c"), (Lista{"a\"b\"", "c"}));  // quotes inside are text like any
}

TEST(LectorRegistros, EntreComillasTodoEsTexto)
{
    EXPECT_EQ(Campos("\"a, b\r\nc\",d"), (Lista{"«a, b\r\nc»", "d"}));
    EXPECT_EQ(Campos("\"  a  \"\r\nb"), (Lista{"«  a  »", "b"}));
    EXPECT_EQ(Campos("\"\",\"\""), (Lista{"«»", "«»"}));
    EXPECT_EQ(Campos("  \"a\" ,b"), (Lista{"«a»", "b"}));
}

TEST(LectorRegistros, LoQueSigueALasComillasSePasaPorAlto)
{
    EXPECT_EQ(Campos("\"a\" basura,b"), (Lista{"«a»", "b"}));
    EXPECT_EQ(Campos("\"a\"basura\r\nb"), (Lista{"«a»", "b"}));
    EXPECT_EQ(Campos("\"a\"\"b\",c"), (Lista{"«a»", "c"}));  // a doubled quote is no quote inside
    EXPECT_EQ(Campos("\"a\"basura"), Lista{"«a»"});
    EXPECT_EQ(Campos("\"a\" \"b,c\""), (Lista{"«a»", "c\""}));
}

TEST(LectorRegistros, UnaComillaSinCierreTomaElRestoDelArchivo)
{
    EXPECT_EQ(Campos("1,\"a,b\r\nc\r\n"), (Lista{"1", "«a,b\r\nc\r\n»"}));
    EXPECT_EQ(Campos("\""), Lista{"«»"});
    EXPECT_EQ(Campos("a,\""), (Lista{"a", "«»"}));
}

// 1 MiB is the last length that a field has; behind a longer one there is no more file.
TEST(LectorRegistros, UnCampoDeMasDeUnMegaEsElFinDelArchivo)
{
    const std::string mega(std::size_t{1} << 20, 'x');
    for (const std::string comilla : {"", "\""}) {
        LectorRegistros cabe(comilla + mega + comilla + ",b");
        EXPECT_EQ(cabe.Siguiente().bytes.size(), mega.size());
        EXPECT_EQ(cabe.Texto(), "b");
        LectorRegistros largo("a," + comilla + mega + "x" + comilla + ",b");
        EXPECT_EQ(largo.Texto(), "a");
        EXPECT_EQ(NumeroDeFalla([&] { largo.Siguiente(); }), 62);
        EXPECT_TRUE(largo.Fin());
        EXPECT_EQ(NumeroDeFalla([&] { largo.Siguiente(); }), 62);
    }
}

TEST(LectorRegistros, LosBytesNulosSonTexto)
{
    EXPECT_EQ(Campos(std::string_view("a\0b,\0", 5)), (Lista{std::string("a\0b", 3), std::string(1, '\0')}));
}

// --- what a field is ---

TEST(LectorRegistros, TextoEsCualquierCampoComoUtf8)
{
    LectorRegistros lector("\"r\xEDo\",r\xEDo ,12,#TRUE#,,\"\x80\x81\"");
    EXPECT_EQ(lector.Texto(), "río");
    EXPECT_EQ(lector.Texto(), "río");
    EXPECT_EQ(lector.Texto(), "12");
    EXPECT_EQ(lector.Texto(), "#TRUE#");
    EXPECT_EQ(lector.Texto(), "");
    EXPECT_EQ(lector.Texto(), "€\u0081");
}

/// Fields that are no number, of whatever type one is wanted.
const Lista NoSonNumeros = {"\"12\"", "\"\"", "12x",    "x12",  "1 2",  ".",   "-",     "E5",
                            "1E",     "abc",  "#TRUE#", "0x10", "1..2", "nan", "12\xA0"};

TEST(LectorRegistros, UnCampoQueNoEsNumeroEsFallaYSeConsume)
{
    for (const std::string& campo : NoSonNumeros) {
        LectorRegistros lector(campo + ",7," + campo + ",8," + campo + ",9");
        EXPECT_EQ(NumeroDeFalla([&] { lector.Numero16(); }), 13) << campo;
        EXPECT_EQ(lector.Numero16(), 7) << campo;
        EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 13) << campo;
        EXPECT_EQ(lector.NumeroSimple(), 8) << campo;
        EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 13) << campo;
        EXPECT_EQ(lector.NumeroSimple(), 9) << campo;
    }
}

TEST(LectorRegistros, Numero16RedondeaYTieneLimites)
{
    struct Caso {
        std::string_view campo;
        int n;
        int falla;
    };
    for (const Caso& c : std::vector<Caso>{{"12", 12, 0},
                                           {" +12 ", 12, 0},
                                           {"-7", -7, 0},
                                           {" ", 0, 0},
                                           {"12.5", 12, 0},
                                           {"13.5", 14, 0},
                                           {"-0.5", 0, 0},
                                           {"1E3", 1000, 0},
                                           {"1d2", 100, 0},
                                           {"32767", 32767, 0},
                                           {"32767.49", 32767, 0},
                                           {"32767.5", 0, 6},
                                           {"32768", 0, 6},
                                           {"-32768.5", -32768, 0},
                                           {"-32769", 0, 6},
                                           {"1E999", 0, 6}}) {
        LectorRegistros lector(std::string(c.campo) + ",5");
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(lector.Numero16(), c.n) << c.campo; }), c.falla) << c.campo;
        EXPECT_EQ(lector.Numero16(), 5) << c.campo;
    }
}

TEST(LectorRegistros, NumeroSimpleEnSusLimites)
{
    LectorRegistros lector("3.4028235E38,3.4028236E38,-1D39,1E-60,,.5,0.1,1E309");
    EXPECT_EQ(lector.NumeroSimple(), std::numeric_limits<float>::max());
    EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 6);  // the tie is 3.40282356779733...E38
    EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 6);
    EXPECT_EQ(lector.NumeroSimple(), 0);
    EXPECT_EQ(lector.NumeroSimple(), 0);
    EXPECT_EQ(lector.NumeroSimple(), 0.5F);
    EXPECT_EQ(lector.NumeroSimple(), 0.1F);
    EXPECT_EQ(NumeroDeFalla([&] { lector.NumeroSimple(); }), 6);
}

TEST(LectorRegistros, NumeroSimplePasaPorSesentaYCuatroBits)
{
    // 1 + 2^-24 is the tie between 1 and its upper neighbour. A text above it by less than 64 bits can tell
    // becomes the tie itself, and then the even 1; read straight into 32 bits it would be the neighbour.
    LectorRegistros lector("1.0000000596046447753906251");
    EXPECT_EQ(lector.NumeroSimple(), 1.0F);
}

TEST(LectorRegistros, Logico)
{
    struct Caso {
        std::string_view campo;
        bool valor;
        int falla;
    };
    for (const Caso& c : std::vector<Caso>{{"#TRUE#", true, 0},
                                           {" #FALSE# ", false, 0},
                                           {"", false, 0},
                                           {"1", true, 0},
                                           {"-0.001", true, 0},
                                           {"0", false, 0},
                                           {"-0.0", false, 0},
                                           {"#true#", false, 13},
                                           {"TRUE", false, 13},
                                           {"#TRUE", false, 13},
                                           {"\"#TRUE#\"", false, 13},
                                           {"\"1\"", false, 13},
                                           {"\"\"", false, 13},
                                           {"1E999", false, 6},
                                           {"1x", false, 13}}) {
        LectorRegistros lector(std::string(c.campo) + "\r\n#TRUE#");
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(lector.Logico(), c.valor) << c.campo; }), c.falla) << c.campo;
        EXPECT_TRUE(lector.Logico()) << c.campo;
    }
}

// --- records and places ---

TEST(LectorRegistros, VuelveAUnLugar)
{
    LectorRegistros lector("a,b,c");
    lector.Siguiente();
    const std::size_t lugar = lector.Lugar();
    EXPECT_EQ(lector.Texto(), "b");
    EXPECT_EQ(lector.Texto(), "c");
    EXPECT_TRUE(lector.Fin());
    lector.Vuelve(lugar);
    EXPECT_FALSE(lector.Fin());
    EXPECT_EQ(lector.Texto(), "b");
}

TEST(LectorRegistros, UnRegistroConFallaSeConsumeEntero)
{
    for (const std::string_view registro : {"x,1,2", "1,x,2", "1,2,x", "1,x,y"}) {
        LectorRegistros lector(std::string(registro) + "\r\n9");
        EXPECT_EQ(NumeroDeFalla([&] {
                      lector.Registro(3, [&] {
                          lector.Numero16();
                          lector.Numero16();
                          lector.Numero16();
                      });
                  }),
                  13)
            << registro;
        EXPECT_EQ(lector.Numero16(), 9) << registro;
    }
}

TEST(LectorRegistros, LaPrimeraFallaDelRegistroEsLaQueSale)
{
    LectorRegistros lector("40000,x\r\nx,40000\r\n");
    const auto lee = [&] {
        lector.Registro(2, [&] {
            lector.Numero16();
            lector.Numero16();
        });
    };
    EXPECT_EQ(NumeroDeFalla(lee), 6);
    EXPECT_EQ(NumeroDeFalla(lee), 13);
    EXPECT_TRUE(lector.Fin());
}

TEST(LectorRegistros, UnRegistroQueElArchivoCorta)
{
    LectorRegistros sinFalla("1,2");
    EXPECT_EQ(NumeroDeFalla([&] {
                  sinFalla.Registro(3, [&] {
                      for (int i = 0; i < 3; ++i)
                          sinFalla.Numero16();
                  });
              }),
              62);
    EXPECT_TRUE(sinFalla.Fin());

    // A field of the wrong type before the end: that comes first.
    LectorRegistros conFalla("x,2");
    EXPECT_EQ(NumeroDeFalla([&] {
                  conFalla.Registro(3, [&] {
                      for (int i = 0; i < 3; ++i)
                          conFalla.Numero16();
                  });
              }),
              13);
    EXPECT_TRUE(conFalla.Fin());
}

TEST(LectorRegistros, UnRegistroSinFallaTomaLoQueSeLee)
{
    LectorRegistros lector("1,\"a\"\r\n2");
    std::string texto;
    lector.Registro(2, [&] {
        EXPECT_EQ(lector.Numero16(), 1);
        texto = lector.Texto();
    });
    EXPECT_EQ(texto, "a");
    EXPECT_EQ(lector.Numero16(), 2);
}

TEST(LectorRegistros, LosCamposDeUnRegistroSeGuardanJuntosONinguno)
{
    LectorRegistros lector("1,\"a\",#TRUE#,2.5\r\n7,\"b\",x,3\r\n9,\"c\"");
    std::int16_t n = 0;
    std::string texto;
    bool marca = false;
    float x = 0;
    const auto lee = [&] { lector.Registro([&](auto& r) { r.Campos(n, texto, marca, x); }); };
    const auto leido = [&] { return std::tuple(int{n}, texto, marca, x); };
    const std::tuple primero(1, std::string("a"), true, 2.5F);
    lee();
    EXPECT_EQ(leido(), primero);
    EXPECT_EQ(NumeroDeFalla(lee), 13);
    EXPECT_EQ(leido(), primero);
    EXPECT_EQ(NumeroDeFalla(lee), 62);
    EXPECT_EQ(leido(), primero);
    EXPECT_TRUE(lector.Fin());
}

// --- writer ---

const std::string Archivo = Ruta("proy", "a.vlm");

/// A writer on a disk of its own, the file open.
struct Escritor : ::testing::Test {
    Escritor() { disco.PonDirectorio("proy"); }
    DiscoPrueba disco;
    model::Disco puerta = disco.Puerta();
    EscritorRegistros escritor{puerta};
};

TEST_F(Escritor, CadaTipoComoSeEscribe)
{
    escritor.Abre(Archivo);
    escritor.Texto("río, \"c\"").Numero(std::int32_t{-7}).Numero(0.05F).FinRegistro();
    escritor.Logico(true).Logico(false).FinRegistro();
    escritor.Numero(12345678.0F).Texto("").Numero(std::int32_t{2147483647}).FinRegistro();
    escritor.Vacio().FinRegistro();
    escritor.Vacio().Vacio().Numero(-0.0F).FinRegistro();
    escritor.FinRegistro();
    escritor.Texto("Ω€").FinRegistro();
    escritor.Registro([](auto& r) { r.Campos(std::string("a"), std::int16_t{-3}, 4, 0.5F, true); });
    escritor.Cierra();
    EXPECT_TRUE(
        MismoTexto("\"r\xEDo, \"c\"\",-7,0.05\r\n"
                   "#TRUE#,#FALSE#\r\n"
                   "1.234568E+07,\"\",2147483647\r\n"
                   "\r\n"
                   ",,0\r\n"
                   "\r\n"
                   "\"?\x80\"\r\n"
                   "\"a\",-3,4,0.5,#TRUE#\r\n",
                   disco.Bytes(Archivo)));
}

struct EscritorPorPiezas : ::testing::Test {
    EscritorPorPiezas() { disco.PonDirectorio("proy"); }
    DiscoPrueba disco;
    const model::Disco puerta = disco.Puerta();
    EscritorRegistros escritor{puerta, Salida::PorPiezas};
};

TEST_F(EscritorPorPiezas, AbrirReemplazaElArchivoEnseguida)
{
    disco.Pon(Archivo, "viejo");
    escritor.Abre(Archivo);
    EXPECT_EQ(disco.Bytes(Archivo), "");
    escritor.Cierra();
    EXPECT_EQ(disco.Bytes(Archivo), "");
}

TEST_F(EscritorPorPiezas, TrasAbrirEnFalsoCadaRegistroFallaIgual)
{
    const std::string lejos = Ruta("otro", "a.vlm");
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Abre(lejos); }), 76);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(NumeroDeFalla([&] { escritor.Texto("a").FinRegistro(); }), 76);
        escritor.Cierra();  // as a handler does that closes all files; the cause stays
    }
    EXPECT_FALSE(disco.Esta(lejos));

    disco.Protege("proy");
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Abre(Archivo); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { escritor.FinRegistro(); }), 75);

    // And a good open afterwards is a new start: nothing of the failed records is left.
    disco.Protege("proy", false);
    escritor.Abre(Archivo);
    escritor.Numero(std::int32_t{1}).FinRegistro();
    escritor.Cierra();
    EXPECT_EQ(disco.Bytes(Archivo), "1\r\n");
}

TEST_F(Escritor, UnRegistroAMediasNoPasaAlSiguiente)
{
    escritor.Abre(Archivo);
    escritor.Texto("a").Texto("b");
    escritor.Cierra();
    EXPECT_EQ(disco.Bytes(Archivo), "");
    escritor.Abre(Archivo);
    escritor.Texto("c").FinRegistro();
    escritor.Cierra();
    EXPECT_EQ(disco.Bytes(Archivo), "\"c\"\r\n");
}

TEST_F(Escritor, TrasCerrarCadaRegistroFalla)
{
    escritor.Abre(Archivo);
    escritor.Cierra();
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Texto("a").FinRegistro(); }), 75);
    EXPECT_EQ(disco.Bytes(Archivo), "");
}

TEST_F(EscritorPorPiezas, UnArchivoLargoSaleEnPiezasYEntero)
{
    escritor.Abre(Archivo);
    std::string esperado;
    for (std::int32_t i = 0; i < 30000; ++i) {
        escritor.Numero(i).Texto("vértice").FinRegistro();
        esperado += std::to_string(i) + ",\"v\xE9rtice\"\r\n";
    }
    EXPECT_LT(disco.Llamadas().size(), 20U);  // 507 kB in pieces of 64
    EXPECT_GT(disco.Llamadas().size(), 5U);
    escritor.Cierra();
    EXPECT_TRUE(MismoTexto(esperado, disco.Bytes(Archivo)));
}

TEST_F(EscritorPorPiezas, ConElDiscoLlenoQuedaUnArchivoAcortado)
{
    disco.LimitaEspacio(5);
    escritor.Abre(Archivo);
    escritor.Texto("abcdefgh").FinRegistro();
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Cierra(); }), 75);
    EXPECT_EQ(disco.Bytes(Archivo), "\"abcd");
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Cierra(); }), 0);  // nothing is sent twice
    EXPECT_EQ(disco.Bytes(Archivo), "\"abcd");
}

TEST_F(EscritorPorPiezas, UnaPiezaQueFallaEsFallaDelRegistroEnCurso)
{
    escritor.Abre(Archivo);
    disco.FallaEn(1, NumeroFalla::AccesoRuta);
    int fallas = 0;
    for (int i = 0; i < 10000; ++i)
        fallas += NumeroDeFalla([&] { escritor.Texto("0123456789").FinRegistro(); }) == 75;
    EXPECT_EQ(fallas, 1);
    escritor.Cierra();
    // 14 bytes a record; what the failed piece held is gone: 4682 records are the first that pass 65536
    // bytes.
    EXPECT_EQ(disco.Bytes(Archivo).size(), 14U * (10000 - 4682));
}

TEST_F(Escritor, EnteroNadaSaleAntesDelCierreYElViejoQuedaSiFalla)
{
    disco.Pon(Archivo, "viejo");
    escritor.Abre(Archivo);
    escritor.Texto(std::string(100000, 'x')).FinRegistro();
    EXPECT_TRUE(disco.Llamadas().empty());
    disco.LimitaEspacio(50000);
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Cierra(); }), 75);
    EXPECT_EQ(disco.Bytes(Archivo), "viejo");
    EXPECT_EQ(NumeroDeFalla([&] { escritor.Cierra(); }), 0);  // nothing is sent twice
    EXPECT_EQ(disco.Bytes(Archivo), "viejo");
}

// --- both together ---

std::string TextoSinComillas()
{
    return DeWindows1252(*rc::gen::container<std::string>(
        rc::gen::suchThat(rc::gen::arbitrary<char>(), [](char c) { return c != '"'; })));
}

RC_GTEST_PROP(Registros, LoEscritoVuelve, ())
{
    DiscoPrueba disco;
    const model::Disco puerta = disco.Puerta();
    EscritorRegistros escritor(puerta);
    const std::string texto = TextoSinComillas();
    const auto n = *rc::gen::arbitrary<std::int16_t>();
    const auto x = *rc::gen::arbitrary<float>();
    const auto b = *rc::gen::arbitrary<bool>();
    RC_PRE(std::isfinite(x));
    escritor.Abre("a");
    escritor.Texto(texto).Numero(std::int32_t{n}).Numero(x).FinRegistro();
    escritor.Logico(b).Vacio().FinRegistro();
    escritor.Cierra();

    LectorRegistros lector(disco.Bytes("a"));
    RC_ASSERT(lector.Texto() == texto);
    RC_ASSERT(lector.Numero16() == n);
    // Seven digits don't always tell two neighbours apart, but the number read is written the same again.
    const std::string escrito = NumeroATexto(x);
    if (std::fabs(Val(escrito)) <= std::numeric_limits<float>::max())
        RC_ASSERT(NumeroATexto(lector.NumeroSimple()) == escrito);
    else
        lector.Siguiente();  // the largest rounded up
    RC_ASSERT(lector.Logico() == b);
    RC_ASSERT(lector.NumeroSimple() == 0);
    RC_ASSERT(lector.Fin());
}

RC_GTEST_PROP(Registros, CualquierArchivoSeLeeHastaElFin, (const std::string& bytes))
{
    LectorRegistros lector(bytes);
    std::size_t campos = 0;
    while (!lector.Fin()) {
        const std::size_t lugar = lector.Lugar();
        lector.Siguiente();
        RC_ASSERT(lector.Lugar() > lugar);
        RC_ASSERT(lector.Lugar() <= bytes.size() + 1);
        ++campos;
    }
    RC_ASSERT(campos <= bytes.size() + 1);
}

}  // namespace
