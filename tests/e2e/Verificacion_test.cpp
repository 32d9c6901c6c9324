// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two verification commands on the Represas of the delivered sample project, which they only read.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "hydraulics/mdlVerifica.h"
#include "model/Componentes.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace {

using apoyo::MismoTexto;

struct Columna {
    std::string_view texto;
    std::size_t ancho;
};

/// A line of columns, each number with a blank ahead.
std::string Renglon(const std::vector<Columna>& columnas)
{
    std::string renglon = "\r\n";
    for (const auto& [texto, ancho] : columnas)
        renglon += model::AjustaIzquierda(" " + std::string(texto), ancho);
    return renglon;
}

std::string RenglonHAS(std::string_view h, std::string_view A, std::string_view S)
{
    return Renglon({{h, 10}, {A, 15}, {S, 10}});
}

std::string RenglonHQ(std::string_view i, std::string_view h, std::string_view Q)
{
    return Renglon({{i, 6}}) + "      " + Renglon({{h, 12}, {Q, 12}}).substr(2);
}

class VerificacionDeLaMuestra : public testing::Test {
  protected:
    VerificacionDeLaMuestra()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.DirProyecto = std::string(SIRO_DATA_DIR) + "/Proyectos";
        s.Proyecto.NombreProyecto = "Quelmar";
        model::LeeUEHs(s);
    }
    void NadaSeDijo() const
    {
        EXPECT_TRUE(anfitrion->Avisos().empty());
        EXPECT_TRUE(anfitrion->Preguntas().empty());
        EXPECT_EQ(anfitrion->pizarra, s.Control.TextoPizarra);
    }
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
};

TEST_F(VerificacionDeLaMuestra, HayDosRepresasYLosComandosSeHabilitan)
{
    EXPECT_EQ(s.Red.NroRepresas(), 2);
    EXPECT_EQ(anfitrion->verificacionHabilitada, 1);
}

// Every height is a row of the table.
TEST_F(VerificacionDeLaMuestra, LaTablaDeQuelmarCadaCuatroMetros)
{
    anfitrion->textos = {"1", "1", "4"};
    hydraulics::VerificaHSV(s);
    const std::string esperado =
        "\r\nTabla de Altura h, Superficie A(h) y Almacenamiento S(h)"
        "\r\nRepresa: r-Quelmar"
        "\r\n h[m]      A[has]       S[m3]" +
        RenglonHAS("0", "1.5", "12000") + RenglonHAS("4", "5.7", "144000") +
        RenglonHAS("8", "12.5", "504000") + RenglonHAS("12", "20.9", "1170000") +
        RenglonHAS("16", "30.6", "2197500") + RenglonHAS("20", "41.3", "3632000") +
        RenglonHAS("24", "52.8", "5511000");
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra));
    NadaSeDijo();
}

// Steps of 11/50, 39.9/50 and 1848250/50: 0.22 m, 0.8 ha, 36965 m3. Second line: A = 0.8 + 1.1 * 0.22,
// S = 4000 + 13500 * 0.22; from 1.6 ha (1.6 - 0.8)/1.1 m; from 40965 m3 1 + (40965 - 17500)/29000 m.
TEST_F(VerificacionDeLaMuestra, TodasLasFuncionesDeCalfun)
{
    anfitrion->textos = {"2", "2"};
    hydraulics::VerificaHSV(s);
    const std::string comienzo =
        "\r\nVerificar todas las funciones S(h), h(S), A(h) y h(A) de la Represa r-Calfún"
        "\r\n h[m]   A[has]   S[m3]          A(has)     h[m]           S(m3)     h(m)    " +
        Renglon({{"0", 7}, {"0.8", 10}, {"4000", 13}, {"0.8", 13}, {"0", 15}, {"4000", 10}, {"0", 15}}) +
        Renglon({{"0.22", 7},
                 {"1.042", 10},
                 {"6970", 13},
                 {"1.6", 13},
                 {"0.73", 15},
                 {"40965", 10},
                 {"1.81", 15}});
    EXPECT_TRUE(MismoTexto(comienzo, std::string_view(s.Control.TextoPizarra).substr(0, comienzo.size())));
    NadaSeDijo();
}

// r-Quelmar: 0.13 * h^0.5 from 0 to 24 m and 50 * (h - 14)^1.5 from 14 m on; r-Calfún: rows of its table.
TEST_F(VerificacionDeLaMuestra, LosCaudalesDeLasDos)
{
    anfitrion->textos = {"5", "1"};
    hydraulics::VerificaHQ(s);
    const std::string esperado =
        "\r\nFUNCIONES H-Q EN REPRESAS"
        "\r\nREPRESA: r-Quelmar"
        "\r\nQ[m3/s]= 0.13 * (H[m]-HMin[m])^0.5     ; para, 0[m] <=H[m]<= 24"
        "\r\nQ[m3/s]= 50 * (H[m]-HMin[m])^1.5     ; para, 14[m] <=H[m]<= 24"
        "\r\n     i      H[m]       Q[m]" +
        RenglonHQ("0", "0", "0") + RenglonHQ("1", "5", "0.2906888") + RenglonHQ("2", "10", "0.4110961") +
        RenglonHQ("3", "15", "50.50349") + RenglonHQ("4", "20", "735.4283") +
        "\r\nREPRESA: r-Calfún"
        "\r\n     i      H[m]       Q[m]" +
        RenglonHQ("0", "0", "0") + RenglonHQ("1", "1", "0.018") + RenglonHQ("2", "2", "0.025") +
        RenglonHQ("3", "3", "0.031") + RenglonHQ("4", "4", "0.036") + RenglonHQ("5", "5", "0.04") +
        RenglonHQ("6", "6", "0.044") + RenglonHQ("7", "7", "16.048") + RenglonHQ("8", "8", "45.306") +
        RenglonHQ("9", "9", "83.192") + RenglonHQ("10", "10", "128.057") + RenglonHQ("11", "11", "178.945");
    EXPECT_TRUE(MismoTexto(esperado, s.Control.TextoPizarra));
    NadaSeDijo();
    ASSERT_EQ(anfitrion->Mensajes(apoyo::Suceso::Clase::Peticion).size(), 2U);
    EXPECT_EQ(anfitrion->Mensajes(apoyo::Suceso::Clase::Peticion)[0].texto,
              "HMáximo = 24    HMinimo = 0     Rango = 24  Ingrese un incrementao de altura dH, en la Presa "
              "r-Quelmar");
}

}  // namespace
