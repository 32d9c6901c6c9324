// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "RedDePrueba.h"
#include "apoyo/Compara.h"
#include "model/Componentes.h"
#include "model/Falla.h"
#include "model/Siro.h"

using namespace model;

namespace {

struct GuardaComponentes : ConRed {};

TEST_F(GuardaComponentes, CargarYGuardarDejaLosMismosBytes)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.cauces[1][7] = "1";  // c-2 has one tributary of order 1 and takes its order
    Lee(red.Bytes(), VerticesDeEjemplo);
    GuardaRed(s);
    EXPECT_TRUE(apoyo::MismoTexto(red.Bytes(), Uehs()));
    EXPECT_TRUE(apoyo::MismoTexto(VerticesDeEjemplo, VerCau()));
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_VerCau.vlm")});
    EXPECT_EQ(anfitrion->redibujos, 1);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 2);
}

TEST_F(GuardaComponentes, GuardarUnSoloCauceInformaLaRutaDeLosVertices)
{
    s.Red.ColCauces.Agrega({.numCauce = 1, .NombreCauce = "c-1"});
    s.Red.XVertice.Dimensiona(70, 1);
    s.Red.YVertice.Dimensiona(70, 1);
    GuardaRed(s);
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_VerCau.vlm")});
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Arroyo_VerCau.vlm"));
    EXPECT_EQ(Uehs(),
              "\"Arroyo\"\r\n1\r\n"
              "1\r\n\"c-1\"\r\n0\r\n0\r\n\"\"\r\n0\r\n0\r\n1\r\n0\r\n0\r\n#FALSE#\r\n"
              "0\r\n0\r\n0\r\n");
    EXPECT_EQ(VerCau(), "");
}

TEST_F(GuardaComponentes, UnMetodoSinFijarSeEscribeComoRenglonVacio)
{
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1"});
    GuardaRed(s);
    EXPECT_EQ(Uehs(),
              "\"Arroyo\"\r\n0\r\n0\r\n0\r\n1\r\n"
              "0\r\n\"l-1\"\r\n\"\"\r\n\r\n0\r\n0\r\n0\r\n0\r\n\"\"\r\n0\r\n0\r\n");
    EXPECT_EQ(s.Red.Lagos(1).Metodo, "");
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(GuardaComponentes, LosNumerosSeEscribenComoEstanEnLosObjetos)
{
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1", .numLAGO = 55, .Metodo = "Muskingum"});
    GuardaRed(s);
    EXPECT_NE(Uehs().find("1\r\n55\r\n\"l-1\""), std::string::npos);
    EXPECT_EQ(s.Red.Lagos(1).numLAGO, 1);  // and the load numbers anew
}

TEST_F(GuardaComponentes, LosFlotantesSeEscribenConSieteDigitos)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Area = 1.0F / 3, .LongitudMax = 12345678, .VelMedia = 1E-5F});
    GuardaRed(s);
    EXPECT_NE(Uehs().find("\r\n0.3333333\r\n\"\"\r\n1.234568E+07\r\n1E-05\r\n"), std::string::npos);
}

TEST_F(GuardaComponentes, UnNombreConComaSobreviveYUnoConComillasNo)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-a, b", .Metodo = "Directo"});
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-\"c\"", .Metodo = "Directo"});
    GuardaRed(s);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-a, b");
    EXPECT_EQ(s.Red.UEHs(2).NombreUEH, "u-");
}

TEST_F(GuardaComponentes, TrasQuitarElCauce2De3ElTerceroEsElSegundo)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 1), RegistroCauce("c-2", 1), RegistroCauce("c-3", 1)}}
            .Bytes(),
        "1,1\r\n2,2\r\n3,3\r\n");
    // The editor's part: the object leaves the collection, the drawing's rows move down.
    s.Red.ColCauces.Quita(2);
    s.Red.NroVertices(2) = s.Red.NroVertices(3);
    s.Red.XVertice(2, 1) = s.Red.XVertice(3, 1);
    s.Red.YVertice(2, 1) = s.Red.YVertice(3, 1);
    GuardaRed(s);
    EXPECT_EQ(s.Red.NroCauces(), 2);  // taken from the collection
    EXPECT_NE(Uehs().find("\r\n3\r\n\"c-3\""), std::string::npos);
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-3");
    EXPECT_EQ(s.Red.Cauces(2).numCauce, 2);
    EXPECT_EQ(s.Red.XVertice(2, 1), 3);
}

TEST_F(GuardaComponentes, LosVerticesSeGuardanPorNumeroYNoPorColeccion)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 1), RegistroCauce("c-2", 2)}}.Bytes(),
        "1,1\r\n2,2\r\n3,3\r\n");
    std::swap(s.Red.ColCauces.Item(1), s.Red.ColCauces.Item(2));
    GuardaRed(s);
    EXPECT_EQ(VerCau(), "1,1\r\n2,2\r\n3,3\r\n");
    EXPECT_EQ(s.Red.XVertice(1, 2), 2);  // c-2, now the first, says that it has two
}

TEST_F(GuardaComponentes, LasOtrasCuentasSalenDeSusVariables)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Metodo = "Directo"});
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-2", .Metodo = "Directo"});
    s.Red.ColUEHs.Anuncia(1);
    GuardaRed(s);
    EXPECT_EQ(Uehs().substr(0, 16), "\"Arroyo\"\r\n0\r\n1\r\n");
    EXPECT_NE(Uehs().find("u-2"), std::string::npos);  // the collection is written whole
}

TEST_F(GuardaComponentes, ElOrdenSeCalculaAntesDeGuardar)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 0, "c-3"), RegistroCauce("c-2", 0, "c-3"),
                                RegistroCauce("c-3")}}
            .Bytes(),
        "");
    GuardaRed(s);
    EXPECT_EQ(s.Red.Cauces(3).OrdenCauce, 2);
}

// --- an empty network ---

TEST_F(GuardaComponentes, SinComponentesSeBorranLosDosArchivosSinAviso)
{
    Pon("_UEHs.vlm", "viejo");
    Pon("_VerCau.vlm", "viejo");
    disco.Pon("/proy/Arroyo_RHQ.vlm", "queda");
    GuardaRed(s);
    EXPECT_EQ(disco.Archivos(), std::vector<std::string>{"/proy/Arroyo_RHQ.vlm"});
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(anfitrion->redibujos, 0);
}

TEST_F(GuardaComponentes, SinComponentesNiArchivosNoPasaNada)
{
    GuardaRed(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_TRUE(disco.Archivos().empty());
}

TEST_F(GuardaComponentes, SinElPrimerArchivoElComandoTerminaAhi)
{
    Pon("_VerCau.vlm", "queda");
    GuardaRed(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(VerCau(), "queda");
}

TEST_F(GuardaComponentes, SiUnArchivoNoSePuedeBorrarSeInformaYQuedanLosDos)
{
    for (const char* const protegido : {"_UEHs.vlm", "_VerCau.vlm"}) {
        Pon("_UEHs.vlm", "queda");
        Pon("_VerCau.vlm", "queda también");
        disco.Protege(RutaDe(protegido));
        EXPECT_FALSE(GuardaRed(s));
        disco.Protege(RutaDe(protegido), false);
        EXPECT_EQ(Avisos(), Cajas{CajaAcceso}) << protegido;
        EXPECT_EQ(Uehs(), "queda");
        EXPECT_EQ(VerCau(), "queda también");
        OlvidaAvisos();
    }
}

TEST_F(GuardaComponentes, UnaRedVaciaPorqueSuCargaFalloNoBorraNada)
{
    Pon("_UEHs.vlm", "mal");
    Pon("_VerCau.vlm", "queda también");
    disco.FallaEn(1, NumeroFalla::AccesoRuta);
    LeeUEHs(s);
    OlvidaAvisos();
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(),
              (Cajas{{"La red está vacía porque no se pudieron leer sus archivos. Los archivos quedan como "
                      "están.",
                      "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(Uehs(), "mal");
    EXPECT_EQ(VerCau(), "queda también");
    // Read as they should be, and emptied by the user, they go as ever.
    Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
    Pon("_VerCau.vlm", VerticesDeEjemplo);
    LeeUEHs(s);
    s.Red.ColCauces.Vacia(), s.Red.ColUEHs.Vacia(), s.Red.ColLagos.Vacia(), s.Red.ColRepresas.Vacia();
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_TRUE(disco.Archivos().empty());
}

TEST_F(GuardaComponentes, LasCuentasDecidenYNoLasColecciones)
{
    Pon("_UEHs.vlm", "viejo");
    s.Red.ColCauces.Agrega({.NombreCauce = "c-1"});
    s.Red.ColCauces.Anuncia(0);  // as a load without vertices leaves it
    GuardaRed(s);
    EXPECT_TRUE(disco.Archivos().empty());
}

// --- a disk that gives way ---

/// What a save must leave as it was where it fails.
struct Memoria {
    explicit Memoria(const Siro& s)
        : cauces(s.Red.ColCauces),
          uehs(s.Red.ColUEHs),
          lagos(s.Red.ColLagos),
          represas(s.Red.ColRepresas),
          cuentas{s.Red.NroCauces(), s.Red.NroUEHs(), s.Red.NroLagos(), s.Red.NroRepresas()},
          nombre(s.Proyecto.NombreProyecto)
    {
    }
    bool operator==(const Memoria&) const = default;
    decltype(model::Red::ColCauces) cauces;
    decltype(model::Red::ColUEHs) uehs;
    decltype(model::Red::ColLagos) lagos;
    decltype(model::Red::ColRepresas) represas;
    std::vector<std::int16_t> cuentas;
    std::string nombre;
};

TEST_F(GuardaComponentes, UnoDeLosDosArchivosProtegidoDejaLosDosYLaMemoria)
{
    for (const char* const protegido : {"_UEHs.vlm", "_VerCau.vlm"}) {
        LeeEjemplo();
        s.Red.ColUEHs.Item(1).Area = 7;
        s.Red.ColCauces.Item(1).OrdenCauce = 9;  // worked out anew by every save, but not by a failed one
        const Memoria antes(s);
        OlvidaAvisos();
        disco.Protege(RutaDe(protegido));
        EXPECT_FALSE(GuardaRed(s));
        disco.Protege(RutaDe(protegido), false);
        EXPECT_EQ(Avisos(), Cajas{CajaAcceso}) << protegido;
        EXPECT_TRUE(apoyo::MismoTexto(RedDeEjemplo().Bytes(), Uehs()));
        EXPECT_TRUE(apoyo::MismoTexto(VerticesDeEjemplo, VerCau()));
        EXPECT_TRUE(Memoria(s) == antes) << protegido;
        EXPECT_EQ(anfitrion->redibujos, 0);
    }
}

TEST_F(GuardaComponentes, SinDirectorioSeAvisaUnaVez)
{
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1"});
    s.Proyecto.DirProyecto = "/ido";
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaSinRuta});
    EXPECT_EQ(s.Red.NroLagos(), 1);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 1);
}

TEST_F(GuardaComponentes, UnDiscoLlenoDejaLosArchivosYLaMemoria)
{
    LeeEjemplo();
    s.Red.ColUEHs.Item(1).Referencia = "algo más largo que lo de antes, para que no quepa";
    const Memoria antes(s);
    OlvidaAvisos();
    disco.LimitaEspacio(RedDeEjemplo().Bytes().size() + VerticesDeEjemplo.size());
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaAcceso});
    EXPECT_EQ(Uehs(), RedDeEjemplo().Bytes());
    EXPECT_EQ(VerCau(), VerticesDeEjemplo);
    EXPECT_TRUE(Memoria(s) == antes);
    // A second save that finds room goes through.
    disco.LimitaEspacio(std::string::npos);
    OlvidaAvisos();
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_VerCau.vlm")});
}

TEST_F(GuardaComponentes, UnVerticeSinLugarSeAvisaUnaVezYNadaSeEscribe)
{
    for (const char* const nombre : {"c-1", "c-2"})
        s.Red.ColCauces.Agrega({.NombreCauce = nombre});
    s.Red.NroVertices(1) = 3;
    s.Red.NroVertices(2) = 1;
    s.Red.XVertice.Dimensiona(70, 1);
    s.Red.YVertice.Dimensiona(70, 1);
    Pon("_VerCau.vlm", "viejo");
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaSubindice});  // pairs (1,2) and (1,3) lie outside
    EXPECT_EQ(disco.Archivos(), std::vector<std::string>{"/proy/Arroyo_VerCau.vlm"});
    EXPECT_EQ(VerCau(), "viejo");
}

TEST_F(GuardaComponentes, MasCaucesQueUnEnteroDe16BitsNoSeGuardan)
{
    for (int i = 0; i < 32768; ++i)
        s.Red.ColCauces.Agrega({});
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaDesborde});
    EXPECT_TRUE(disco.Archivos().empty());
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 32768);
}

TEST_F(GuardaComponentes, GuardarMasDe70CaucesConVerticesNoCambiaLosArchivos)
{
    for (int i = 1; i <= 102; ++i)
        s.Red.ColCauces.Agrega({.NombreCauce = "c-" + std::to_string(i)});
    s.Red.NroVertices(71) = 2;
    s.Red.XVertice.Dimensiona(70, 1);
    s.Red.YVertice.Dimensiona(70, 1);
    Pon("_UEHs.vlm", "viejo");
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Avisos(), Cajas{CajaSubindice});
    EXPECT_EQ(Uehs(), "viejo");
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 102);
}

TEST_F(GuardaComponentes, LaRelecturaQueFallaDejaLaRedYCierraLosNumeros)
{
    LeeEjemplo();
    s.Red.ColCauces.Item(2).numCauce = 5;
    const int cuenta = s.Red.ColCauces.Cuenta();
    for (int llamada = 1; llamada <= 2; ++llamada) {
        OlvidaAvisos();
        disco.FallaEn(llamada, NumeroFalla::AccesoRuta);
        ReleeUEHs(s);
        EXPECT_TRUE(disco.HuboFalla());
        EXPECT_EQ(Avisos(), Cajas{CajaAcceso});
        EXPECT_EQ(s.Red.ColCauces.Cuenta(), cuenta);
        EXPECT_EQ(s.Red.ColCauces.Item(2).numCauce, 2);
    }
}

// =======================================================================================================
// Round trips and the disk's failures
// =======================================================================================================

Cauce CauceAlAzar(int n)
{
    return {.numCauce = static_cast<std::int16_t>(n),
            .numVertices = *rc::gen::inRange<std::int16_t>(0, 6),
            .IndiceParInicial = *rc::gen::arbitrary<std::int16_t>(),
            .NombreCauce = TextoAlAzar(),
            .Cauce_aa = TextoAlAzar(),
            .LongCauce = SimpleAlAzar(),
            .VelMediaCauce = SimpleAlAzar(),
            .Cauce_k_Musk = SimpleAlAzar(),
            .Cauce_n_Musk = SimpleAlAzar(),
            .optDirMusk = *rc::gen::arbitrary<bool>()};
}

UEH UEHAlAzar(int n)
{
    UEH u{.NombreUEH = TextoAlAzar(), .Referencia = TextoAlAzar(), .Metodo = TextoAlAzar()};
    u.numUEH = static_cast<std::int16_t>(n);
    u.Cauce_aa = TextoAlAzar();
    for (float UEH::*x : {&UEH::Area, &UEH::LongitudMax, &UEH::VelMedia, &UEH::IconoUEHx, &UEH::IconoUEHy,
                          &UEH::XCauce, &UEH::YCauce, &UEH::KostiakovA, &UEH::KostiakovB, &UEH::RetensionZ,
                          &UEH::Q0Recesion, &UEH::KRecesion, &UEH::KostiakovI})
        u.*x = SimpleAlAzar();
    return u;
}

Represa RepresaAlAzar(int n)
{
    Represa r{.NombreRepresa = TextoAlAzar(), .numRepresa = static_cast<std::int16_t>(n)};
    r.Metodo = TextoAlAzar();
    r.Cauce_aa = TextoAlAzar();
    for (float Represa::*x :
         {&Represa::IconoRepresaX, &Represa::IconoRepresaY, &Represa::XCauce, &Represa::YCauce,
          &Represa::Represa_k_Musk, &Represa::Represa_n_Musk, &Represa::HInicialEmb})
        r.*x = SimpleAlAzar();
    for (auto* xs : {&r.FQa, &r.FQb, &r.FQmin, &r.FQMax})
        for (float& x : *xs)
            x = SimpleAlAzar();
    for (std::size_t i = 4; i < r.FQc.size(); ++i)
        r.FQc[i] = SimpleAlAzar();
    for (std::int16_t& x : r.chkFQ)
        x = *rc::gen::arbitrary<std::int16_t>();
    r.optTabla = *rc::gen::arbitrary<bool>();
    return r;
}

Lago LagoAlAzar(int n)
{
    Lago l{.NombreLAGO = TextoAlAzar(), .numLAGO = static_cast<std::int16_t>(n), .Referencia = TextoAlAzar()};
    l.Metodo = TextoAlAzar();
    l.Cauce_aa = TextoAlAzar();
    for (float Lago::*x : {&Lago::IconoLAGOx, &Lago::IconoLAGOy, &Lago::XCauce, &Lago::YCauce,
                           &Lago::Lago_k_Musk, &Lago::HInicialEmb})
        l.*x = SimpleAlAzar();
    return l;
}

template <typename C, typename F>
void Llena(C& coleccion, F alAzar, int alMenos = 0)
{
    const int cuantos = *rc::gen::inRange(alMenos, 4);
    for (int n = 1; n <= cuantos; ++n)
        coleccion.Agrega(alAzar(n));
}

RC_GTEST_PROP(ComponentesIdaYVuelta, LoGuardadoVuelveIgual, ())
{
    ProyectoDePrueba p;
    Siro& s = p.s;
    Llena(s.Red.ColCauces, CauceAlAzar);
    Llena(s.Red.ColUEHs, UEHAlAzar, 1);
    Llena(s.Red.ColRepresas, RepresaAlAzar);
    Llena(s.Red.ColLagos, LagoAlAzar);
    int mayor = 0;
    for (const Cauce& c : s.Red.ColCauces)
        mayor = std::max(mayor, int{c.numVertices});
    s.Red.XVertice.Dimensiona(70, mayor);
    s.Red.YVertice.Dimensiona(70, mayor);
    for (const Cauce& c : s.Red.ColCauces) {
        s.Red.NroVertices(c.numCauce) = c.numVertices;
        for (int j = 1; j <= c.numVertices; ++j) {
            s.Red.XVertice(c.numCauce, j) = SimpleAlAzar();
            s.Red.YVertice(c.numCauce, j) = SimpleAlAzar();
        }
    }
    const auto cauces = s.Red.ColCauces;
    const auto uehs = s.Red.ColUEHs;
    const auto represas = s.Red.ColRepresas;
    const auto lagos = s.Red.ColLagos;
    const auto x = s.Red.XVertice;
    const auto y = s.Red.YVertice;

    GuardaRed(s);  // and reads again
    RC_ASSERT(p.Avisos() == Cajas{CajaGuardado("/proy/Arroyo_VerCau.vlm")});
    for (Cauce& c : s.Red.ColCauces)
        c.OrdenCauce = 0;
    RC_ASSERT(s.Red.ColCauces == cauces);
    RC_ASSERT(s.Red.ColUEHs == uehs);
    RC_ASSERT(s.Red.ColRepresas == represas);
    RC_ASSERT(s.Red.ColLagos == lagos);
    RC_ASSERT(s.Red.XVertice == x);
    RC_ASSERT(s.Red.YVertice == y);

    const std::string bytesUEHs = p.Bytes("_UEHs.vlm");
    const std::string bytesVerCau = p.Bytes("_VerCau.vlm");
    GuardaRed(s);
    RC_ASSERT(p.Bytes("_UEHs.vlm") == bytesUEHs);
    RC_ASSERT(p.Bytes("_VerCau.vlm") == bytesVerCau);
}

TEST(ComponentesSinDisco, LaCargaSobreviveALaFallaDeCadaLlamada)
{
    // Reading one file fails: its opening and what is read of it, then the other file as ever.
    const std::vector<Cajas> esperadas{
        {},                        // none yet: places count from 1
        Veces(1 + 5, CajaAcceso),  // _UEHs: opening, name, four counts; _VerCau has nobody to read for
        Veces(1 + 5, CajaAcceso),  // _VerCau: opening, five pairs
        {},                        // no third call
    };
    for (int llamada = 1; llamada <= 3; ++llamada) {
        ProyectoDePrueba p;
        p.Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
        p.Pon("_VerCau.vlm", VerticesDeEjemplo);
        p.disco.FallaEn(llamada, NumeroFalla::AccesoRuta);
        LeeUEHs(p.s);
        EXPECT_EQ(p.disco.HuboFalla(), llamada < 3);
        EXPECT_EQ(p.Avisos(), esperadas[static_cast<std::size_t>(llamada)]) << llamada;
    }
}

TEST(ComponentesSinDisco, ElGuardadoDejaTodoViejoOTodoNuevoAnteLaFallaDeCadaLlamada)
{
    for (const NumeroFalla numero : {NumeroFalla::AccesoRuta, NumeroFalla::RutaNoEsta}) {
        int llamada = 0;
        for (bool hubo = true; hubo;) {
            ++llamada;
            ASSERT_LT(llamada, 20);
            ProyectoDePrueba p;
            p.Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
            p.Pon("_VerCau.vlm", VerticesDeEjemplo);
            LeeUEHs(p.s);
            p.s.Red.ColUEHs.Item(1).Area = 7;
            const Memoria antes(p.s);
            p.disco.FallaEn(llamada, numero);
            const bool guardada = GuardaRed(p.s);
            hubo = p.disco.HuboFalla();
            EXPECT_EQ(guardada, !hubo);
            EXPECT_EQ(p.Avisos().size(), 1U);
            if (guardada) {
                EXPECT_EQ(p.Avisos(), Cajas{CajaGuardado("/proy/Arroyo_VerCau.vlm")});
                EXPECT_NE(p.Bytes("_UEHs.vlm"), RedDeEjemplo().Bytes());
            } else {
                EXPECT_EQ(p.Avisos(), Cajas{numero == NumeroFalla::AccesoRuta ? CajaAcceso : CajaSinRuta});
                EXPECT_EQ(p.Bytes("_UEHs.vlm"), RedDeEjemplo().Bytes());
                EXPECT_EQ(p.Bytes("_VerCau.vlm"), VerticesDeEjemplo);
                EXPECT_TRUE(Memoria(p.s) == antes);
            }
        }
        EXPECT_EQ(llamada, 2);  // one call replaces both, and what it wrote is read from memory
    }
}

TEST(ComponentesSinDisco, ElBorradoDeUnaRedVaciaDejaTodoOQuitaTodoAnteLaFallaDeCadaLlamada)
{
    int llamada = 0;
    for (bool hubo = true; hubo;) {
        ++llamada;
        ASSERT_LT(llamada, 20);
        ProyectoDePrueba p;
        p.Pon("_UEHs.vlm", "uno");
        p.Pon("_VerCau.vlm", "dos");
        p.disco.FallaEn(llamada, NumeroFalla::AccesoRuta);
        const bool borrada = GuardaRed(p.s);
        hubo = p.disco.HuboFalla();
        EXPECT_EQ(borrada, !hubo);
        EXPECT_EQ(p.Avisos(), hubo ? Cajas{CajaAcceso} : Cajas{});
        if (hubo) {
            EXPECT_EQ(p.Bytes("_UEHs.vlm"), "uno") << llamada;
            EXPECT_EQ(p.Bytes("_VerCau.vlm"), "dos") << llamada;
        } else {
            EXPECT_TRUE(p.disco.Archivos().empty());
        }
    }
    EXPECT_EQ(llamada, 4);  // what the first one holds, and two deletions
}

}  // namespace
