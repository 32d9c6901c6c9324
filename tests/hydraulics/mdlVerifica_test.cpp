// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/mdlVerifica.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apoyo/Compara.h"
#include "hydraulics/TablasDePrueba.h"
#include "model/Texto.h"

namespace hydraulics {
namespace {

using apoyo::MismoTexto;
using apoyo::Suceso;
using model::Icono;
using model::Mensaje;

/// A line of the sheet of heights and outflows: index, blanks, height, outflow.
std::string RenglonHQ(const std::string& i, const std::string& h, const std::string& q)
{
    return "\r\n" + model::AjustaIzquierda(" " + i, 6) + "      " + model::AjustaIzquierda(" " + h, 12) +
           model::AjustaIzquierda(" " + q, 12);
}

/// Two Represas: the first has H 0..100 m, A 0..50 ha, S 0..1000 m3 on a straight line, the second no rows.
class Verificacion : public testing::Test, public pruebas::EstadoConEmbalses {
  protected:
    Verificacion()
    {
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = "/proy";
        disco.PonDirectorio("/proy");
        PonRHAS("0,0,0\r\n100,50,1000\r\n", 2);
    }
    void PonRHAS(const std::string& renglones, int filas)
    {
        disco.Pon("/proy/Arroyo_RHAS.vlm", "\"*r-uno\"," + std::to_string(filas) + ",\"*\"\r\n" + renglones +
                                               "\"*r-dos\",0,\"*\"\r\n");
    }
    void PonRHQ(const std::string& renglones, int filas)
    {
        disco.Pon("/proy/Arroyo_RHQ.vlm",
                  "\"*r-uno\"," + std::to_string(filas) + "\r\n" + renglones + "\"*r-dos\",0\r\n");
    }
    void Responde(std::deque<std::string> textos) { anfitrion->textos = std::move(textos); }
    /// Only the first Represa is there.
    void DejaUna() { s.Red.ColRepresas.Quita(2); }
    [[nodiscard]] std::vector<Mensaje> Peticiones() const
    {
        return anfitrion->Mensajes(Suceso::Clase::Peticion);
    }
    [[nodiscard]] std::vector<std::string> Renglones() const
    {
        std::vector<std::string> renglones;
        std::string_view texto = s.Control.TextoPizarra;
        while (!texto.empty()) {
            texto.remove_prefix(2);
            const std::size_t fin = std::min(texto.find("\r\n"), texto.size());
            renglones.emplace_back(texto.substr(0, fin));
            texto.remove_prefix(fin);
        }
        return renglones;
    }
    [[nodiscard]] bool PizarraMostrada() const
    {
        return s.Control.SalidaPizarra && anfitrion->marcaPizarra && anfitrion->pizarrasAbiertas == 1 &&
               anfitrion->pizarra == s.Control.TextoPizarra;
    }
};

// --- common ---

TEST_F(Verificacion, SinRepresasNingunoHaceNada)
{
    s.Red.ColRepresas.Anuncia(0);
    VerificaHSV(s);
    VerificaHQ(s);
    EXPECT_TRUE(Callado());
    EXPECT_EQ(s.Control.TextoPizarra, "");
    EXPECT_FALSE(s.Control.SalidaPizarra);
}

TEST_F(Verificacion, LasComasDelPasoSeHacenPuntos)
{
    std::string texto = "0,25";
    NormalizaDecimal(texto);
    EXPECT_EQ(texto, "0.25");
}

// --- height, area, storage ---

TEST_F(Verificacion, PideLaRepresaYLaOpcionConSusTextos)
{
    Responde({"1", "0"});
    VerificaHSV(s);
    EXPECT_EQ(Peticiones(),
              (std::vector<Mensaje>{
                  {"¿Número de Represa", "Verificación de funciones HSV en Represas: Nro. de Represa"},
                  {"Opciones: \r\n1- Tabla h, A(h), S(h)\r\n"
                   "2- Verificar todas las funciones S(h), h(S), A(h), h(A)\r\n0- Salir",
                   "Lista y verificación de funciones HSV en Represa"}}));
}

TEST_F(Verificacion, LaOpcion0TerminaSinMostrarLaPizarra)
{
    for (const char* opcion : {"0", "", "x"}) {
        Responde({"1", opcion});
        VerificaHSV(s);
        EXPECT_EQ(s.Control.TextoPizarra, "");
        EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
        EXPECT_FALSE(s.Control.SalidaPizarra);
    }
}

TEST_F(Verificacion, OtraOpcionMuestraLaPizarraComoEsta)
{
    s.Control.TextoPizarra = "antes";
    Responde({"1", "3"});
    VerificaHSV(s);
    EXPECT_EQ(s.Control.TextoPizarra, "antes");
    EXPECT_TRUE(PizarraMostrada());
}

TEST_F(Verificacion, UnNumeroSinRepresaEsFallaYTermina)
{
    for (const auto& [numero, mensaje] :
         {std::pair{"3", "Error Nro. 91Variable de objeto no establecida ,Verifique"},
          std::pair{"", "Error Nro. 91Variable de objeto no establecida ,Verifique"},
          std::pair{"21", "Error Nro. 9El subíndice está fuera del intervalo ,Verifique"},
          std::pair{"40000", "Error Nro. 6Desbordamiento ,Verifique"}}) {
        anfitrion->sucesos.clear();
        Responde({numero, "1", "1"});
        VerificaHSV(s);
        EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{mensaje, "", Icono::Ninguno}}));
        EXPECT_EQ(Peticiones().size(), 1U);
        EXPECT_EQ(s.Control.TextoPizarra, "");
    }
}

TEST_F(Verificacion, LaTablaVaDelMinimoAlMaximoPorElPasoPedido)
{
    Responde({"1", "1", "25"});
    VerificaHSV(s);
    ASSERT_EQ(Peticiones().size(), 3U);
    EXPECT_EQ(Peticiones()[2],
              (Mensaje{"Ingrese un valor incremental dH [m]", "Incremento de Altura de Embalse)"}));
    EXPECT_TRUE(
        MismoTexto("\r\nTabla de Altura h, Superficie A(h) y Almacenamiento S(h)"
                   "\r\nRepresa: r-uno"
                   "\r\n h[m]      A[has]       S[m3]"
                   "\r\n 0         0              0        "
                   "\r\n 25        12.5           250      "
                   "\r\n 50        25             500      "
                   "\r\n 75        37.5           750      "
                   "\r\n 100       50             1000     ",
                   s.Control.TextoPizarra));
    EXPECT_TRUE(PizarraMostrada());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Verificacion, ElPasoPorDefectoEsUnCincuentavoDelRangoConDosDecimales)
{
    PonRHAS("10,0,0\r\n11.3,1,10\r\n", 2);  // 1.3/50 = 0.026
    anfitrion->aceptaDefecto = true;
    Responde({"1", "1"});
    VerificaHSV(s);
    const std::vector<std::string> renglones = Renglones();
    ASSERT_GE(renglones.size(), 6U);
    EXPECT_EQ(renglones[4].substr(0, 10), " 10.03    ");
    EXPECT_EQ(renglones[5].substr(0, 10), " 10.06    ");
}

TEST_F(Verificacion, ElUltimoRenglonPuedeQuedarCorto)
{
    Responde({"1", "1", "40"});
    VerificaHSV(s);
    EXPECT_EQ(Renglones().size(), 3U + 3U);
    EXPECT_EQ(Renglones().back(), " 80        40             800      ");
}

TEST_F(Verificacion, UnPasoCeroDaElPrimerRenglonYSale)
{
    for (const char* paso : {"0", "", "x", "-5"}) {
        s.Control.TextoPizarra.clear();
        anfitrion->pizarrasAbiertas = 0;
        Responde({"1", "1", paso});
        VerificaHSV(s);
        EXPECT_EQ(Renglones().size(), 4U) << paso;
        EXPECT_EQ(Renglones().back(), " 0         0              0        ");
        EXPECT_TRUE(PizarraMostrada());
    }
}

TEST_F(Verificacion, UnPasoQueElTipoNoDistingueTambienSale)
{
    PonRHAS("1000000,0,0\r\n1000001,1,10\r\n", 2);
    Responde({"1", "1", "0.01"});
    VerificaHSV(s);
    EXPECT_EQ(Renglones().size(), 4U);
}

TEST_F(Verificacion, TodasLasFuncionesVanPorCincuentavos)
{
    Responde({"1", "2"});
    VerificaHSV(s);
    const std::vector<std::string> renglones = Renglones();
    ASSERT_EQ(renglones.size(), 2U + 51U);
    EXPECT_EQ(renglones[0], "Verificar todas las funciones S(h), h(S), A(h) y h(A) de la Represa r-uno");
    EXPECT_EQ(renglones[1], " h[m]   A[has]   S[m3]          A(has)     h[m]           S(m3)     h(m)    ");
    // Widths 7, 10, 13, 13, 15, 10, 15.
    EXPECT_EQ(renglones[2],
              " 0      0         0            0            0              0         0             ");
    EXPECT_EQ(renglones[3],
              " 2      1         20           1            2              20        2             ");
    EXPECT_EQ(renglones[52],
              " 100    50        1000         50           100            1000      100           ");
    EXPECT_TRUE(PizarraMostrada());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Verificacion, PasadoSuRangoUnaInversaNoSeCalculaMasYNadaSePregunta)
{
    // 0.75/50 = 0.015 rounds to 0.02, so that the area is past 0.75 from the 39th line on.
    PonRHAS("0,0,0\r\n100,0.75,1000\r\n", 2);
    Responde({"1", "2"});
    VerificaHSV(s);
    const std::vector<std::string> renglones = Renglones();
    ASSERT_EQ(renglones.size(), 2U + 51U);
    EXPECT_EQ(renglones[2 + 37].substr(30, 28), " 0.74         98.67         ");
    EXPECT_EQ(renglones[2 + 38].substr(30, 28), " 0.76         98.67         ");
    EXPECT_EQ(renglones[2 + 50].substr(30, 28), " 1            98.67         ");
    EXPECT_TRUE(anfitrion->Preguntas().empty());
}

TEST_F(Verificacion, UnRangoChicoTienePasoCeroYUnSoloRenglon)
{
    PonRHAS("10,1,0\r\n10.2,2,1000\r\n", 2);  // 0.2/50 = 0.004
    Responde({"1", "2"});
    VerificaHSV(s);
    EXPECT_EQ(Renglones().size(), 3U);
}

TEST_F(Verificacion, UnaRepresaSinFilasTieneUnRenglonDeCeros)
{
    Responde({"2", "2"});
    VerificaHSV(s);
    ASSERT_EQ(Renglones().size(), 3U);
    EXPECT_EQ(Renglones()[2],
              " 0      0         0            0            0              0         0             ");
    EXPECT_TRUE(anfitrion->Preguntas().empty());
    s.Control.TextoPizarra.clear();
    Responde({"2", "1", ""});
    VerificaHSV(s);
    EXPECT_EQ(Renglones().size(), 4U);
}

TEST_F(Verificacion, LaSegundaVezSeAgregaALoQueHay)
{
    Responde({"1", "1", "50", "1", "1", "50"});
    VerificaHSV(s);
    const std::string primera = s.Control.TextoPizarra;
    VerificaHSV(s);
    EXPECT_EQ(s.Control.TextoPizarra, primera + primera);
}

TEST_F(Verificacion, LaTablaSeLeeDeNuevoDelDisco)
{
    s.Red.RepresaH(1, 1) = 99;
    Responde({"1", "1", "100"});
    VerificaHSV(s);
    EXPECT_EQ(s.Red.RepresaH(1, 1), 0.0F);
}

TEST_F(Verificacion, DosRepresasDelMismoNombreTienenLaMismaTabla)
{
    s.Red.Represas(2).NombreRepresa = "r-uno";
    Responde({"1", "1", "50"});
    VerificaHSV(s);
    const std::string primera = std::exchange(s.Control.TextoPizarra, {});
    Responde({"2", "1", "50"});
    VerificaHSV(s);
    EXPECT_EQ(s.Control.TextoPizarra, primera);
    EXPECT_EQ(Renglones().size(), 6U);
}

// --- height, outflow ---

TEST_F(Verificacion, ListaLaTablaDeCaudales)
{
    PonRHQ("10,0\r\n11,2.5\r\n12,8\r\n", 3);
    s.Red.Represas(1).optTabla = true;
    DejaUna();
    Responde({"0.5"});
    VerificaHQ(s);
    EXPECT_EQ(Peticiones(),
              (std::vector<Mensaje>{{"HMáximo = 12    HMinimo = 10     Rango = 2  Ingrese un incrementao "
                                     "de altura dH, en la Presa r-uno",
                                     "Represar-uno: Tabla Altura H -Caudal Salida Q "}}));
    EXPECT_TRUE(MismoTexto(
        "\r\nFUNCIONES H-Q EN REPRESAS"
        "\r\nREPRESA: r-uno"
        "\r\n     i      H[m]       Q[m]" +
            RenglonHQ("0", "10", "0") + RenglonHQ("1", "10.5", "1.25") + RenglonHQ("2", "11", "2.5") +
            RenglonHQ("3", "11.5", "5.25") + RenglonHQ("4", "12", "8"),
        s.Control.TextoPizarra));
    EXPECT_TRUE(PizarraMostrada());
}

TEST_F(Verificacion, ElIncrementoOfrecidoEsUnDecimo)
{
    PonRHQ("10,0\r\n10.25,2.5\r\n", 2);
    s.Red.Represas(1).optTabla = true;
    DejaUna();
    anfitrion->aceptaDefecto = true;
    VerificaHQ(s);
    const std::vector<std::string> renglones = Renglones();
    ASSERT_EQ(renglones.size(), 3U + 3U);
    // Unrounded, in 32 bits.
    EXPECT_EQ("\r\n" + renglones[4], RenglonHQ("1", "10.1", "1.000004"));
    EXPECT_EQ("\r\n" + renglones[5], RenglonHQ("2", "10.2", "2.000008"));
}

TEST_F(Verificacion, DeLasFuncionesListaLasExpresionesDeLasActivas)
{
    PonFuncion(1, 2, 1.5F, 0, 0, 4);
    PonFuncion(5, 1, 0.5F, 0.25F, 2, 6);
    PonFuncion(2, 9, 9, 9, 9, 9);
    s.Red.Represas(1).chkFQ[1] = 0;
    DejaUna();
    Responde({"2"});
    VerificaHQ(s);
    // At 4 both add up: 2*4^1.5 + 1 + 0.5*2 + 0.25*2^2 = 19; at 2 the power is 2*2^1.5 and the parabola 1.
    EXPECT_TRUE(
        MismoTexto("\r\nFUNCIONES H-Q EN REPRESAS"
                   "\r\nREPRESA: r-uno"
                   "\r\nQ[m3/s]= 2 * (H[m]-HMin[m])^1.5     ; para, 0[m] <=H[m]<= 4"
                   "\r\nQ[m3/s]= 1 + 0.5 * (H[m]-HMin[m]) + 0.25 * H[m]^2     ; para, 2[m] <=H[m]<= 6"
                   "\r\n     i      H[m]       Q[m]" +
                       RenglonHQ("0", "0", "0") + RenglonHQ("1", "2", "6.656854") +
                       RenglonHQ("2", "4", "19") + RenglonHQ("3", "6", "7"),
                   s.Control.TextoPizarra));
}

TEST_F(Verificacion, SinLaPrimeraFuncionElRangoEmpiezaEnCero)
{
    PonFuncion(2, 1, 1, 0, 100, 110);
    DejaUna();
    Responde({"110"});
    VerificaHQ(s);
    EXPECT_EQ(Peticiones()[0].texto.substr(0, 52), "HMáximo = 110    HMinimo = 0     Rango = 110  Ingre");
}

TEST_F(Verificacion, UnIncrementoDemasiadoChicoSeAvisaYSePideUnaVezMas)
{
    PonFuncion(1, 1, 1, 0, 0, 100);
    DejaUna();
    Responde({"0.0999", "0.0625"});
    VerificaHQ(s);
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"El intervalo elegido para H es muy pequeño...",
                                                          "Elija un intervalo mayor", Icono::Ninguno}}));
    EXPECT_EQ(Peticiones().size(), 2U);
    EXPECT_EQ(Peticiones()[0], Peticiones()[1]);
    EXPECT_EQ(Renglones().size(), 4U + 1601U);  // the second answer is taken as it is
}

TEST_F(Verificacion, MilRenglonesJustosPasan)
{
    PonFuncion(1, 1, 1, 0, 0, 125);
    DejaUna();
    Responde({"0.125"});
    VerificaHQ(s);
    EXPECT_TRUE(anfitrion->Avisos().empty());
    EXPECT_EQ(Renglones().size(), 4U + 1001U);
}

TEST_F(Verificacion, UnIncrementoCeroEsFalla11)
{
    PonFuncion(1, 1, 1, 0, 0, 10);
    for (const char* paso : {"0", "", "x"}) {
        anfitrion->sucesos.clear();
        Responde({paso});
        VerificaHQ(s);
        EXPECT_EQ(anfitrion->Avisos(),
                  (std::vector<Mensaje>{{"Error Nro. 11División por cero ,Verifique", "", Icono::Ninguno}}));
        EXPECT_EQ(Peticiones().size(), 1U);
        EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
    }
}

TEST_F(Verificacion, CeroComoSegundaRespuestaDaUnSoloRenglon)
{
    PonFuncion(1, 1, 1, 0, 0, 100);
    DejaUna();
    Responde({"0.01", ""});
    VerificaHQ(s);
    EXPECT_EQ(Renglones().size(), 4U + 1U);
}

TEST_F(Verificacion, CadaRepresaSePideYSeListaEnSuOrden)
{
    PonRHQ("10,0\r\n12,8\r\n", 2);
    s.Red.Represas(1).optTabla = s.Red.Represas(2).optTabla = true;
    Responde({"2", "1"});
    VerificaHQ(s);
    const std::vector<std::string> renglones = Renglones();
    ASSERT_EQ(renglones.size(), 1U + 4U + 3U);
    EXPECT_EQ(renglones[1], "REPRESA: r-uno");
    EXPECT_EQ(renglones[5], "REPRESA: r-dos");
    EXPECT_EQ("\r\n" + renglones[7], RenglonHQ("0", "0", "0"));
    EXPECT_EQ(
        Peticiones()[1].texto,
        "HMáximo = 0    HMinimo = 0     Rango = 0  Ingrese un incrementao de altura dH, en la Presa r-dos");
}

}  // namespace
}  // namespace hydraulics
