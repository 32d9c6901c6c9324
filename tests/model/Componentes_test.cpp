// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Componentes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "RedDePrueba.h"
#include "apoyo/Compara.h"
#include "model/Clases.h"
#include "model/Falla.h"
#include "model/Siro.h"

using namespace model;

namespace {

struct Componentes : ConRed {};

// =======================================================================================================
// The name inside
// =======================================================================================================

TEST_F(Componentes, UnNombreQueSaleDeLaCarpetaEsUnArchivoDanado)
{
    for (const char* const nombre : {"../X", "a/b", "a\\b", "..", "a\x02", "a\x81"}) {
        OlvidaAvisos();
        Pon("_UEHs.vlm", Junta({"\"" + std::string(nombre) + "\"", "0", "0", "0", "0"}));
        LeeUEHs(s);
        EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo") << nombre;
        EXPECT_EQ(Avisos(),
                  (std::vector<Mensaje>{
                      {"Hay problemas con el archivo de datos o el archivo está dañado. Si es un "
                       "prorgamador avanzado, intente ingresar directamente al archivo y corregir el "
                       "problema",
                       "", Icono::Exclamacion}}))
            << nombre;
    }
}

// =======================================================================================================
// Containers
// =======================================================================================================

TEST(ArreglosDeComponentes, LaUEH71LlegaAlLimiteEnSuPrimerAccesoYNoAntes)
{
    Siro s;
    for (int n = 1; n <= 71; ++n)
        s.Red.ColUEHs.Agrega({.NombreUEH = "u-" + std::to_string(n)});
    EXPECT_EQ(s.Red.UEHs(70).NombreUEH, "u-70");
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.UEHs(71); }), 9);
    EXPECT_EQ(s.Red.ColUEHs.Item(71).NombreUEH, "u-71");
}

TEST(ArreglosDeComponentes, LaRepresa21LlegaAlLimiteEnSuPrimerAccesoYNoAntes)
{
    Siro s;
    for (int n = 1; n <= 21; ++n)
        s.Red.ColRepresas.Agrega({.NombreRepresa = "r-" + std::to_string(n)});
    EXPECT_EQ(s.Red.Represas(20).NombreRepresa, "r-20");
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.Represas(21); }), 9);
    EXPECT_EQ(s.Red.ColRepresas.Item(21).NombreRepresa, "r-21");
}

TEST(ArreglosDeComponentes, CaucesYLagosTerminanEn70)
{
    Siro s;
    for (int n = 1; n <= 71; ++n) {
        s.Red.ColCauces.Agrega({});
        s.Red.ColLagos.Agrega({});
    }
    s.Red.Cauces(70).LongCauce = 5;
    s.Red.Lagos(70).HInicialEmb = 6;
    EXPECT_EQ(s.Red.ColCauces.Item(70).LongCauce, 5);  // array and collection hold the same object
    EXPECT_EQ(s.Red.ColLagos.Item(70).HInicialEmb, 6);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.Cauces(71); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.Lagos(71); }), 9);
}

TEST(ArreglosDeComponentes, UnaRanuraVaciaNoTieneComponente)
{
    Siro s;
    s.Red.ColUEHs.Agrega({});
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.UEHs(0); }), 91);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.UEHs(2); }), 91);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Red.UEHs(-1); }), 9);
}

TEST(ArreglosDeComponentes, LosDeLluviaYVerticesTienenElLimiteDeLasUEHsYCien)
{
    Siro s;
    EXPECT_EQ(s.Tormenta.PpUEH.Tope(), 70);
    EXPECT_EQ(s.Red.NroVertices.Tope(), 100);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { s.Tormenta.PpUEH(71) = 1; }), 9);
}

TEST(ArreglosDeComponentes, UnaUEHNuevaNaceConSuMetDirectoYNadieLoLlena)
{
    const UEH nueva;
    EXPECT_FALSE(nueva.MetDirecto.Met1.has_value());
    EXPECT_FALSE(nueva.MetDirecto.Met2.has_value());
    ProyectoDePrueba p;
    p.Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
    LeeUEHs(p.s);
    EXPECT_FALSE(p.s.Red.UEHs(1).MetDirecto.Met1.has_value());
    EXPECT_FALSE(p.s.Red.UEHs(1).MetDirecto.Met2.has_value());
}

TEST(ArreglosDeComponentes, UnComponenteNuevoEstaEnCero)
{
    const Cauce c;
    EXPECT_EQ(c.numCauce + c.numVertices + c.IndiceParInicial + c.OrdenCauce, 0);
    EXPECT_EQ(c.NombreCauce + c.Cauce_aa, "");
    EXPECT_EQ(c.LongCauce + c.VelMediaCauce + c.Cauce_k_Musk + c.Cauce_n_Musk, 0);
    EXPECT_FALSE(c.optDirMusk);
    EXPECT_FALSE(Represa{}.optTabla);
    EXPECT_EQ(Lago{}.YCauce, 0);
}

// =======================================================================================================
// Reading
// =======================================================================================================

TEST_F(Componentes, UnProyectoSinArchivosEsUnaRedVaciaSinAviso)
{
    s.Red.ColCauces.Agrega({});
    CadaClase(s.Red, [](auto& coleccion) { coleccion.Anuncia(3); });
    LeeUEHs(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(Cuentas(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(Tamanos(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Arroyo_UEHs.vlm"));
    EXPECT_EQ(anfitrion->verificacionHabilitada, 0);
}

TEST_F(Componentes, CadaCampoDeUnCauceLlegaASuPropiedad)
{
    LeeEjemplo();
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Red.NroCauces(), 2);
    EXPECT_TRUE(s.Red.Cauces(2) == (Cauce{.numCauce = 2,
                                          .numVertices = 3,
                                          .IndiceParInicial = 3,
                                          .NombreCauce = "c-2",
                                          .Cauce_aa = "",
                                          .LongCauce = 800,
                                          .VelMediaCauce = 1.25F,
                                          .Cauce_k_Musk = 20.5F,
                                          .Cauce_n_Musk = 0.2F,
                                          .OrdenCauce = 1,
                                          .optDirMusk = true}));
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-2");
}

TEST_F(Componentes, CadaCampoDeUnaUEHLlegaASuPropiedad)
{
    LeeEjemplo();
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_TRUE(s.Red.UEHs(1) == (UEH{.NombreUEH = "u-1",
                                      .Area = 250.5F,
                                      .Referencia = "ladera, norte",
                                      .LongitudMax = 1500,
                                      .VelMedia = 0.75F,
                                      .Metodo = "Directo",
                                      .numUEH = 1,
                                      .IconoUEHx = 100,
                                      .IconoUEHy = 110.5F,
                                      .XCauce = 90,
                                      .YCauce = 95.25F,
                                      .Cauce_aa = "c-1",
                                      .KostiakovA = 0.5F,
                                      .KostiakovB = 0.25F,
                                      .RetensionZ = 5.5F,
                                      .Q0Recesion = 0.125F,
                                      .KRecesion = 12,
                                      .KostiakovI = 30}));
}

TEST_F(Componentes, CadaCampoDeUnaRepresaLlegaASuPropiedad)
{
    LeeEjemplo();
    EXPECT_EQ(s.Red.NroRepresas(), 1);
    EXPECT_TRUE(s.Red.Represas(1) == (Represa{.NombreRepresa = "r-1",
                                              .numRepresa = 1,
                                              .IconoRepresaX = 300,
                                              .IconoRepresaY = 310,
                                              .Metodo = "Piscina Nivelada",
                                              .XCauce = 290,
                                              .YCauce = 295.5F,
                                              .Cauce_aa = "c-2",
                                              .FQa = {101, 102, 103, 104, 105, 106, 107, 108},
                                              .FQb = {201, 202, 203, 204, 205, 206, 207, 208},
                                              .FQc = {0, 0, 0, 0, 305, 306, 307, 308},
                                              .Represa_k_Musk = 60,
                                              .Represa_n_Musk = 0.3F,
                                              .FQmin = {401, 402, 403, 404, 405, 406, 407, 408},
                                              .FQMax = {501, 502, 503, 504, 505, 506, 507, 508},
                                              .chkFQ = {1, 0, 1, 0, 1, 0, 1, 0},
                                              .optTabla = true,
                                              .HInicialEmb = 2.5F}));
}

TEST_F(Componentes, CadaCampoDeUnLagoLlegaASuPropiedad)
{
    LeeEjemplo();
    EXPECT_EQ(s.Red.NroLagos(), 1);
    EXPECT_TRUE(s.Red.Lagos(1) == (Lago{.NombreLAGO = "l-1",
                                        .numLAGO = 1,
                                        .Referencia = "mallin",
                                        .IconoLAGOx = 400,
                                        .IconoLAGOy = 410.5F,
                                        .XCauce = 390,
                                        .YCauce = 395.25F,
                                        .Metodo = "Runge Kutta",
                                        .Cauce_aa = "c-1",
                                        .Lago_k_Musk = 45,
                                        .HInicialEmb = 1.5F}));
}

TEST_F(Componentes, ElYCauceDeUnLagoVuelveComoEstaEnElArchivo)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.lagos[0][7] = "-0.1234567";
    Lee(red.Bytes(), VerticesDeEjemplo);
    EXPECT_EQ(s.Red.Lagos(1).YCauce, -0.1234567F);
    GuardaRed(s);
    EXPECT_EQ(s.Red.Lagos(1).YCauce, -0.1234567F);
    EXPECT_NE(Uehs().find("\r\n-0.1234567\r\n"), std::string::npos);
}

TEST_F(Componentes, UnNombreSinPrefijoSeCargaComoLosDemas)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.cauces[0][1] = "\"arroyo\"";
    Lee(red.Bytes(), VerticesDeEjemplo);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "arroyo");
    EXPECT_EQ(Avisos(), Cajas{});
}

TEST_F(Componentes, LosVerticesVanPorNumeroDeCauceDesdeUno)
{
    LeeEjemplo();
    EXPECT_EQ(s.Red.NroVertices(1), 2);
    EXPECT_EQ(s.Red.NroVertices(2), 3);
    const auto fila = [](const Matriz<float>& m, int i) {
        return std::vector<float>(m.Fila(i), m.Fila(i) + 4);
    };
    EXPECT_EQ(fila(s.Red.XVertice, 1), (std::vector<float>{0, 1, 3.5F, 0}));
    EXPECT_EQ(fila(s.Red.YVertice, 1), (std::vector<float>{0, 2, -4, 0}));
    EXPECT_EQ(fila(s.Red.XVertice, 2), (std::vector<float>{0, 5, 7, 9}));
    EXPECT_EQ(fila(s.Red.YVertice, 2), (std::vector<float>{0, 6, 8, 10.25F}));
}

TEST_F(Componentes, LosArreglosDeVerticesVanHastaElCauce70YLaMayorCuenta)
{
    LeeEjemplo();
    for (const Matriz<float>* m : {&s.Red.XVertice, &s.Red.YVertice}) {
        EXPECT_EQ(m->PrimeraFila(), 0);
        EXPECT_EQ(m->UltimaFila(), 70);
        EXPECT_EQ(m->TopeColumna(), 3);
    }
    Lee(ArchivoDeRed{.uehs = {RegistroUEH("u-1")}}.Bytes(), "");
    EXPECT_EQ(s.Red.XVertice.TopeColumna(), 0);  // from 0 anew in every load
}

TEST_F(Componentes, UnCauceSinVerticesNoOcupaRenglon)
{
    const ArchivoDeRed red{
        .cauces = {RegistroCauce("c-1", 1), RegistroCauce("c-2", 0), RegistroCauce("c-3", 1)}};
    Lee(red.Bytes(), "1,2\r\n3,4\r\n");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Red.XVertice(3, 1), 3);
    GuardaRed(s);
    EXPECT_EQ(VerCau(), "1,2\r\n3,4\r\n");
}

TEST_F(Componentes, UnArchivoDeVerticesQueNoCoincideSeLeeMalSinAviso)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 1), RegistroCauce("c-2", 1)}}.Bytes(),
        "1,2\r\n3,4\r\n5,6\r\n");  // c-1 had two
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Red.XVertice(2, 1), 3);
}

TEST_F(Componentes, UnaCuentaDeVerticesNegativaNoLeeNinguno)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", -4), RegistroCauce("c-2", 1)}}.Bytes(), "1,2\r\n");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Red.NroVertices(1), -4);
    EXPECT_EQ(s.Red.XVertice(2, 1), 1);
}

TEST_F(Componentes, ElNombreDentroDelArchivoRigeParaLosVertices)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.nombre = "\"Otro\"";
    Pon("_UEHs.vlm", red.Bytes());
    Pon("_VerCau.vlm", "0,0\r\n0,0\r\n0,0\r\n0,0\r\n0,0\r\n");
    disco.Pon("/proy/Otro_VerCau.vlm", VerticesDeEjemplo);
    LeeUEHs(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Otro");
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Otro_VerCau.vlm"));
    EXPECT_EQ(s.Red.XVertice(2, 3), 9);
}

TEST_F(Componentes, SinArchivoDeVerticesQuedaLaColeccionYLaCuentaCaeACero)
{
    Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
    LeeUEHs(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(Cuentas(), (std::vector<int>{0, 1, 1, 1}));
    EXPECT_EQ(Tamanos(), (std::vector<int>{2, 1, 1, 1}));
    EXPECT_EQ(anfitrion->verificacionHabilitada, 0);  // the load ended there
}

TEST_F(Componentes, LaCargaQuitaLaSeleccion)
{
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = 5;
    LeeUEHs(s);
    EXPECT_EQ(s.Seleccion.CauceSel + s.Seleccion.CauceAnterior + s.Seleccion.UEHSel + s.Seleccion.RepresaSel +
                  s.Seleccion.LagoSel,
              0);
}

TEST_F(Componentes, ConUnaRepresaSeHabilitanLasVerificaciones)
{
    LeeEjemplo();
    EXPECT_EQ(anfitrion->verificacionHabilitada, 1);
    Lee(ArchivoDeRed{.uehs = {RegistroUEH("u-1")}}.Bytes(), "");
    EXPECT_EQ(anfitrion->verificacionHabilitada, 1);
}

TEST_F(Componentes, LosNumerosDelArchivoNoValenYSeNumeraDeNuevo)
{
    ArchivoDeRed red;
    for (const char* const nombre : {"c-9", "c-4", "c-7"})
        red.cauces.push_back(RegistroCauce(nombre, 0, "", 33));
    red.uehs = {RegistroUEH("u-a"), RegistroUEH("u-b")};
    red.represas = {RegistroRepresa("r-a"), RegistroRepresa("r-b")};
    red.lagos = {RegistroLago("l-a"), RegistroLago("l-b")};
    Lee(red.Bytes(), "");
    EXPECT_EQ(s.Red.Cauces(3).NombreCauce, "c-7");
    EXPECT_EQ(s.Red.Cauces(3).numCauce, 3);
    EXPECT_EQ(s.Red.UEHs(2).numUEH, 2);
    EXPECT_EQ(s.Red.Represas(2).numRepresa, 2);
    EXPECT_EQ(s.Red.Lagos(2).numLAGO, 2);
}

TEST_F(Componentes, UnRenglonVacioEsTextoVacioOCero)
{
    ArchivoDeRed red = RedDeEjemplo();
    for (Renglones* r : {&red.cauces[0], &red.uehs[0], &red.represas[0], &red.lagos[0]})
        std::fill(r->begin() + 2, r->end(), "");
    Lee(red.Bytes(), "5,6\r\n7,8\r\n9,10\r\n");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_TRUE(s.Red.UEHs(1) == (UEH{.NombreUEH = "u-1", .numUEH = 1}));
    EXPECT_TRUE(s.Red.Lagos(1) == (Lago{.NombreLAGO = "l-1", .numLAGO = 1}));
    EXPECT_TRUE(s.Red.Represas(1) == (Represa{.NombreRepresa = "r-1", .numRepresa = 1}));
    EXPECT_TRUE(s.Red.Cauces(1) == (Cauce{.numCauce = 1, .NombreCauce = "c-1"}));
}

TEST_F(Componentes, UnaFraccionEnUnEnteroSeRedondeaAlPar)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.cauces[0][7] = "2.5";
    red.cauces[1][7] = "3.5";
    Lee(red.Bytes(), VerticesDeEjemplo);
    EXPECT_EQ(s.Red.Cauces(1).OrdenCauce, 2);
    EXPECT_EQ(s.Red.Cauces(2).OrdenCauce, 4);
}

// --- limits ---

template <typename F>
std::vector<Renglones> Muchos(int n, F registro)
{
    std::vector<Renglones> registros;
    for (int i = 1; i <= n; ++i)
        registros.push_back(registro(i));
    return registros;
}

TEST_F(Componentes, HastaElLimiteNoHayAviso)
{
    ArchivoDeRed red;
    red.cauces = Muchos(70, [](int i) { return RegistroCauce("c-" + std::to_string(i), 1); });
    red.uehs = Muchos(70, [](int i) { return RegistroUEH("u-" + std::to_string(i)); });
    red.represas = Muchos(20, [](int i) { return RegistroRepresa("r-" + std::to_string(i)); });
    red.lagos = Muchos(70, [](int i) { return RegistroLago("l-" + std::to_string(i)); });
    std::string vertices;
    for (int i = 1; i <= 70; ++i)
        vertices += std::to_string(i) + ",0\r\n";
    Lee(red.Bytes(), vertices);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(Cuentas(), (std::vector<int>{70, 70, 20, 70}));
    EXPECT_EQ(s.Red.XVertice(70, 1), 70);
}

TEST_F(Componentes, LaUEH71DaUnAvisoYSusCamposVanAlObjeto)
{
    ArchivoDeRed red{.uehs = Muchos(72, [](int i) { return RegistroUEH("u-" + std::to_string(i)); })};
    Lee(red.Bytes(), "");
    EXPECT_EQ(Avisos(), Veces(2, CajaSubindice));  // 71 and 72
    EXPECT_EQ(s.Red.NroUEHs(), 72);
    EXPECT_EQ(s.Red.ColUEHs.Item(71).NombreUEH, "u-71");
    EXPECT_EQ(s.Red.ColUEHs.Item(72).numUEH, 72);
    EXPECT_EQ(s.Red.ColUEHs.Item(72).RetensionZ, 5.5F);
}

TEST_F(Componentes, LaRepresa21DaUnAvisoYSusCamposVanAlObjeto)
{
    ArchivoDeRed red{.represas = Muchos(21, [](int i) { return RegistroRepresa("r-" + std::to_string(i)); })};
    Lee(red.Bytes(), "");
    EXPECT_EQ(Avisos(), Cajas{CajaSubindice});
    EXPECT_EQ(s.Red.ColRepresas.Item(21).HInicialEmb, 2.5F);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 1);
}

TEST_F(Componentes, ElLago71DaUnAvisoYSusCamposVanAlObjeto)
{
    ArchivoDeRed red{.lagos = Muchos(71, [](int i) { return RegistroLago("l-" + std::to_string(i)); })};
    Lee(red.Bytes(), "");
    EXPECT_EQ(Avisos(), Cajas{CajaSubindice});
    EXPECT_EQ(s.Red.ColLagos.Item(71).HInicialEmb, 1.5F);
}

TEST_F(Componentes, CadaVerticeDelCauce71DaUnAvisoYNoConsumeSuPar)
{
    // 1 to 70 have no vertices; 71 has 2 that can't be stored, so that the pairs stay for nobody.
    ArchivoDeRed red{
        .cauces = Muchos(71, [](int i) { return RegistroCauce("c-" + std::to_string(i), i == 71 ? 2 : 0); })};
    Lee(red.Bytes(), "");  // an empty file isn't read past its end
    EXPECT_EQ(Avisos(), Veces(1, CajaSubindice) + Veces(2, CajaSubindice));
    EXPECT_EQ(s.Red.NroCauces(), 71);
    EXPECT_EQ(s.Red.NroVertices(71), 2);
    EXPECT_EQ(s.Red.ColCauces.Item(71).Cauce_k_Musk, 20.5F);
    EXPECT_EQ(s.Red.XVertice.TopeColumna(), 2);
}

TEST_F(Componentes, ElCauce101PasaTambienElLimiteDeNroVertices)
{
    ArchivoDeRed red{.cauces = Muchos(101, [](int i) {
                         return RegistroCauce("c-" + std::to_string(i), i == 101 ? 7 : 0);
                     })};
    Lee(red.Bytes(), "");
    // 31 reaches without a slot; at 101 the count has no place, and neither the test whether it is the
    // largest nor the bound of the walk over its vertices can be worked out.
    EXPECT_EQ(Avisos(), Veces(31 + 1 + 2, CajaSubindice));
    EXPECT_EQ(s.Red.ColCauces.Item(101).numVertices, 7);
    EXPECT_EQ(s.Red.ColCauces.Item(101).optDirMusk, true);
}

TEST_F(Componentes, UnaCuentaDeVerticesEnormeEnsanchaElDibujo)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 32767)}}.Bytes(), "1,2\r\n");
    EXPECT_EQ(Avisos(), Cajas{CajaDanado});
    EXPECT_EQ(s.Red.XVertice.TopeColumna(), 32767);
    EXPECT_EQ(s.Red.XVertice(1, 1), 1);
}

// --- fields at fault ---

TEST_F(Componentes, UnCampoEnFallaQuedaSinEfectoYLaCargaSigueConElSiguiente)
{
    ArchivoDeRed red = RedDeEjemplo();
    red.cauces[0][0] = "x";           // its number, thrown away
    red.cauces[0][5] = "\"rapido\"";  // VelMediaCauce
    red.cauces[1][10] = "si";         // optDirMusk
    red.uehs[0][2] = "1E39";          // Area
    red.represas[0][9] = "40000";     // chkFQ1
    red.lagos[0][10] = "#TRUE#";      // HInicialEmb
    Lee(red.Bytes(), VerticesDeEjemplo);
    EXPECT_EQ(Avisos(), (Cajas{CajaTipos, CajaTipos, CajaTipos, CajaDesborde, CajaDesborde, CajaTipos}));
    EXPECT_EQ(s.Red.Cauces(1).VelMediaCauce, 0);
    EXPECT_EQ(s.Red.Cauces(1).LongCauce, 800);
    EXPECT_FALSE(s.Red.Cauces(2).optDirMusk);
    EXPECT_EQ(s.Red.UEHs(1).Area, 0);
    EXPECT_EQ(s.Red.UEHs(1).Referencia, "ladera, norte");
    EXPECT_EQ(s.Red.Represas(1).chkFQ[0], 0);
    EXPECT_EQ(s.Red.Represas(1).chkFQ[2], 1);
    EXPECT_EQ(s.Red.Lagos(1).HInicialEmb, 0);
    EXPECT_EQ(Cuentas(), (std::vector<int>{2, 1, 1, 1}));
}

TEST_F(Componentes, UnaCuentaEnFallaValeCeroYDesplazaLoQueSigue)
{
    Renglones campos = ArchivoDeRed{}.Campos();  // name, 0, 0, 0, 0
    campos[2] = "muchas";                        // NroUEHs
    Lee(Junta(campos), "");
    EXPECT_EQ(Avisos(), Cajas{CajaTipos});
    EXPECT_EQ(Cuentas(), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(Componentes, UnaCuentaNegativaNoLeeRegistrosYQueda)
{
    Lee("\"Arroyo\"\r\n-3\r\n0\r\n-1\r\n0\r\n", "");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(Cuentas(), (std::vector<int>{-3, 0, -1, 0}));
    EXPECT_EQ(anfitrion->verificacionHabilitada, 0);
}

TEST_F(Componentes, UnaCuentaMayorQueLosRegistrosLeeHastaElFinal)
{
    Renglones campos = RedDeEjemplo().Campos();
    campos[campos.size() - 12] = "32767";  // NroLagos, before the 11 fields of the only one
    Lee(Junta(campos), VerticesDeEjemplo);
    EXPECT_EQ(Avisos(), Cajas{CajaDanado});
    EXPECT_EQ(Cuentas(), (std::vector<int>{2, 1, 1, 32767}));
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 2);  // the second was made and met the end
    EXPECT_EQ(s.Red.Lagos(2).numLAGO, 2);
}

TEST_F(Componentes, UnaCuentaMenorQueLosRegistrosDejaElResto)
{
    ArchivoDeRed red{.lagos = {RegistroLago("l-1"), RegistroLago("l-2")}};
    Renglones campos = red.Campos();
    campos[4] = "1";
    Lee(Junta(campos), "");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 1);
}

TEST_F(Componentes, UnParEnFallaSeConsumeEnteroYNoGuardaNada)
{
    Lee(ArchivoDeRed{.cauces = {RegistroCauce("c-1", 4)}}.Bytes(), "1,2\r\nx,4\r\n5,\"y\"\r\n7,8\r\n");
    EXPECT_EQ(Avisos(), Veces(2, CajaTipos));
    EXPECT_EQ(s.Red.XVertice(1, 2), 0);
    EXPECT_EQ(s.Red.YVertice(1, 2), 0);
    EXPECT_EQ(s.Red.XVertice(1, 3), 0);
    EXPECT_EQ(s.Red.XVertice(1, 4), 7);
}

// --- damaged and unreadable files ---

TEST_F(Componentes, UnArchivoTruncadoAvisaUnaVezYDejaUnaRedParcial)
{
    Renglones campos = RedDeEjemplo().Campos();
    campos.resize(2 + 11 + 3);  // name, count, c-1, and three fields of c-2
    Lee(Junta(campos), VerticesDeEjemplo);
    EXPECT_EQ(Avisos(), Cajas{CajaDanado});
    EXPECT_EQ(Cuentas(), (std::vector<int>{2, 0, 0, 0}));
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-2");
    EXPECT_EQ(s.Red.Cauces(2).numVertices, 3);
    EXPECT_EQ(s.Red.Cauces(2).VelMediaCauce, 0);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Arroyo_UEHs.vlm"));
}

TEST_F(Componentes, UnArchivoVacioEstaDanado)
{
    Lee("", "");
    EXPECT_EQ(Avisos(), Cajas{CajaDanado});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
}

TEST_F(Componentes, UnArchivoDeVerticesCortoAvisaYTermina)
{
    Lee(RedDeEjemplo().Bytes(), "1,2\r\n3.5,-4\r\n5,6\r\n7");
    EXPECT_EQ(Avisos(), Cajas{CajaDanado});
    EXPECT_EQ(s.Red.NroCauces(), 2);
    EXPECT_EQ(s.Red.XVertice(2, 1), 5);
    EXPECT_EQ(s.Red.XVertice(2, 2), 0);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 0);
}

TEST_F(Componentes, SinDirectorioCadaSentenciaAvisa)
{
    s.Proyecto.DirProyecto = "/ido";
    LeeUEHs(s);
    // The opening, the name, the four counts; then the opening of the vertices.
    EXPECT_EQ(Avisos(), Veces(7, CajaSinRuta));
    EXPECT_EQ(Cuentas(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/ido", "Arroyo_VerCau.vlm"));
}

TEST_F(Componentes, ConUnArchivoDeVerticesIlegibleCadaParAvisa)
{
    Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
    disco.PonDirectorio("/proy/Arroyo_VerCau.vlm");
    LeeUEHs(s);
    EXPECT_EQ(Avisos(), Veces(1 + 5, CajaAcceso));
    EXPECT_EQ(s.Red.NroCauces(), 2);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 1);
}

/// Kinds of fields, in the order of the component file of the example.
std::vector<char> Clases()
{
    // e: 16-bit, f: float, t: text, b: boolean
    const std::string cauce = "eteetffeffb";
    const std::string ueh = "etftfftfffftffffff";
    const std::string represa = "etfftfftb" + std::string(8, 'e') + std::string(39, 'f');
    const std::string lago = "etttfffftff";
    const std::string todos = "te" + cauce + cauce + "e" + ueh + "e" + represa + "e" + lago;
    return {todos.begin(), todos.end()};
}

TEST_F(Componentes, CadaCampoConTextoEnormeONadaAvisaALoSumoUnaVez)
{
    const Renglones campos = RedDeEjemplo().Campos();
    const std::vector<char> clases = Clases();
    ASSERT_EQ(campos.size(), clases.size());
    // Counts and vertex counts shift what follows: they have tests of their own.
    const std::vector<std::size_t> cuentas{0, 1, 4, 15, 24, 43, 100};
    for (std::size_t campo = 0; campo < campos.size(); ++campo) {
        if (std::find(cuentas.begin(), cuentas.end(), campo) != cuentas.end()) continue;
        for (const std::string valor : {"\"x\"", "x", "1E300", ""}) {
            Renglones otros = campos;
            otros[campo] = valor;
            ProyectoDePrueba p;
            p.Pon("_UEHs.vlm", Junta(otros));
            p.Pon("_VerCau.vlm", VerticesDeEjemplo);
            LeeUEHs(p.s);
            Cajas esperadas;
            const char clase = clases[campo];
            if (clase != 't' && valor.find('x') != std::string::npos) esperadas = {CajaTipos};
            if ((clase == 'e' || clase == 'f') && valor == "1E300") esperadas = {CajaDesborde};
            EXPECT_EQ(p.Avisos(), esperadas) << campo << ": " << valor;
            EXPECT_EQ(p.s.Red.NroLagos(), 1);
            EXPECT_EQ(p.Bytes("_UEHs.vlm"), Junta(otros));
        }
    }
}

/// Whether the first `largo` bytes end inside a boolean.
bool CortaUnLogico(const std::string& bytes, std::size_t largo)
{
    const std::size_t comienzo = largo == 0 ? 0 : bytes.rfind('\n', largo - 1) + 1;
    return comienzo < largo && bytes[comienzo] == '#' && bytes.find('\r', comienzo) > largo;
}

TEST_F(Componentes, ElArchivoCortadoEnCadaByteAvisaDanadoUnaVez)
{
    const std::string bytes = RedDeEjemplo().Bytes();
    for (std::size_t largo = 0; largo < bytes.size(); ++largo) {
        ProyectoDePrueba p;
        p.Pon("_UEHs.vlm", bytes.substr(0, largo));
        LeeUEHs(p.s);
        Cajas esperadas;
        if (CortaUnLogico(bytes, largo)) esperadas.push_back(CajaTipos);
        if (largo < bytes.size() - 4)
            esperadas.push_back(CajaDanado);  // the last field is "1.5": 1 is enough
        // A last field cut down to "1" or "1." is whole; there are no vertices, and that is silent.
        EXPECT_EQ(p.Avisos(), esperadas) << largo;
        ASSERT_EQ(p.Bytes("_UEHs.vlm"), bytes.substr(0, largo));
    }
}

TEST_F(Componentes, LosVerticesCortadosEnCadaByteAvisanDanadoUnaVez)
{
    const std::string bytes(VerticesDeEjemplo);
    for (std::size_t largo = 0; largo < bytes.size(); ++largo) {
        ProyectoDePrueba p;
        p.Pon("_UEHs.vlm", RedDeEjemplo().Bytes());
        p.Pon("_VerCau.vlm", bytes.substr(0, largo));
        LeeUEHs(p.s);
        // The last field is "10.25" and can be cut down to nothing, since behind a comma there is always a
        // field. Behind "3.5," stands a lone "-" once.
        const bool soloMenos = largo > 0 && bytes[largo - 1] == '-';
        Cajas esperadas;
        if (soloMenos) esperadas.push_back(CajaTipos);
        if (largo < bytes.size() - 7) esperadas.push_back(CajaDanado);
        EXPECT_EQ(p.Avisos(), esperadas) << largo;
        EXPECT_EQ(p.s.Red.NroCauces(), 2);
    }
}

}  // namespace
