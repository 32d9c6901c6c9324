// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsTabla.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor/RedGuardadaDePrueba.h"

namespace editor {
namespace {

using Textos = std::vector<std::string>;

class TablaDeParametros : public testing::Test, public pruebas::ProyectoGuardado {
  protected:
    [[nodiscard]] const forms::Grilla& G() const { return f.MSFlexGridTablaUEHs; }
    [[nodiscard]] const Textos& Fila(int fila) const
    {
        return G().filas[static_cast<std::size_t>(fila) - 1].celdas;
    }
    /// Rows that bear titles, from 1.
    [[nodiscard]] std::vector<int> Titulos() const
    {
        std::vector<int> filas;
        for (int fila = 1; fila <= G().NroFilas(); ++fila)
            if (G().filas[static_cast<std::size_t>(fila) - 1].esTitulo) filas.push_back(fila);
        return filas;
    }
    dlgUEHsTabla f;
};

const Textos TitulosCauces = {"",          "",         "",      "",        "",        "Vértices", "Ind.Vért.",
                              "Vel.Media", "Longitud", "Orden", "k Musk.", "x Musk.", "",         ""};
const Textos TitulosUEHs = {"",          "",          "",          "",     "",      "Area",     "Long. Máx",
                            "Vel.Media", "Infil.'a'", "Infil.'b'", "Humd", "Q ini", "'K' Rec.", "Retens.Z"};
const Textos TitulosLagos = {"", "", "", "", "", "k Musk.", "Hmin", "HMáx", "HInicio", "", "", "", "", ""};
const Textos TitulosRepresas = {"",        "",  "",  "",  "",     "k Musk.", "Opc.Tabla",
                                "Función", "a", "b", "c", "Hmin", "HMáx",    "HInicio"};

TEST_F(TablaDeParametros, LosTextosSonLosDados)
{
    EXPECT_EQ(TituloDlgUEHsTabla, "Tabla de datos de Entradas: Parámetros Físicos de las UHEs");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgUEHsTabla, "cmdActualizar").leyenda, "&Actualizar cambios");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgUEHsTabla, "OKButton").leyenda, "&Cerrar");
}

TEST_F(TablaDeParametros, UnProyectoVacioDaSoloLosTitulosDeLosBloques)
{
    s.Configuracion.TituloProyecto = "Cuenca alta";
    Abre(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblProyecto, "Arroyo");
    EXPECT_EQ(f.lblTitulo, "Cuenca alta");
    EXPECT_EQ(f.lblFileProyecto, "Arroyo_Conf.vlm");
    ASSERT_EQ(G().NroFilas(), 4);
    EXPECT_EQ(Fila(1), TitulosCauces);
    EXPECT_EQ(Fila(2), TitulosUEHs);
    EXPECT_EQ(Fila(3), TitulosLagos);
    EXPECT_EQ(Fila(4), TitulosRepresas);
    EXPECT_EQ(Titulos(), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(TablaDeParametros, TieneCatorceColumnasConEncabezadoEnLasCincoPrimeras)
{
    Abre(f, s);
    ASSERT_EQ(G().NroColumnas(), 14);
    const Textos encabezado = {"Componente", "Nro.", "       Nombre   ", "     Afluente de",
                               "    Método    "};
    for (int i = 0; i < 14; ++i)
        EXPECT_EQ(G().Texto({0, i}), i < 5 ? encabezado[static_cast<std::size_t>(i)] : "");
    EXPECT_EQ(G().columnas[0].alineacion, forms::Alineacion::Centro);
}

TEST_F(TablaDeParametros, LosCaucesYLasUEHsMuestranSusDatos)
{
    Agrega(model::Cauce{.NombreCauce = "c-alto",
                        .Cauce_aa = "c-bajo",
                        .LongCauce = 1200,
                        .VelMediaCauce = 1.5F,
                        .Cauce_k_Musk = 20,
                        .Cauce_n_Musk = 0.2F});
    Agrega(model::Cauce{.NombreCauce = "c-bajo", .optDirMusk = true});
    Agrega(model::UEH{.NombreUEH = "u-1",
                      .Area = 250.5F,
                      .LongitudMax = 1500,
                      .VelMedia = 0.75F,
                      .Metodo = "Directo",
                      .Cauce_aa = "c-alto",
                      .KostiakovA = 0.5F,
                      .KostiakovB = 0.25F,
                      .RetensionZ = 5.5F,
                      .Q0Recesion = 0.125F,
                      .KRecesion = 12,
                      .KostiakovI = 30});
    Guarda();
    Abre(f, s);
    EXPECT_EQ(Titulos(), (std::vector<int>{1, 4, 6, 7}));
    EXPECT_EQ(Fila(2), (Textos{"Cauce", "1", "c-alto", "c-bajo", "Muskingum", "2", "1", "1.5", "1200", "1",
                               "20", "0.2", "", ""}));
    EXPECT_EQ(Fila(3)[4], "Directo");
    // "Humd" is the prior wetness.
    EXPECT_EQ(Fila(5)[10], "30");
    EXPECT_EQ(Fila(4)[10], "Humd");
    EXPECT_EQ(Fila(5), (Textos{"UEH", "1", "u-1", "c-alto", "Directo", "250.5", "1500", "0.75", "0.5", "0.25",
                               "30", "0.125", "12", "5.5"}));
}

TEST_F(TablaDeParametros, UnLagoMuestraLaPrimeraYLaUltimaAlturaDeSuTabla)
{
    Agrega(model::Lago{.NombreLAGO = "l-1", .Metodo = "Muskingum", .Lago_k_Musk = 15, .HInicialEmb = 2});
    Agrega(model::Lago{.NombreLAGO = "l-2", .Metodo = "Runge Kutta"});
    Guarda();
    disco.Pon("/proy/Arroyo_LHASQ.vlm",
              "\"*l-1\",2,\"*\",\"*\"\r\n1.5,2,100,0\r\n4.25,3,200,0.5\r\n\"*l-2\",0,\"*\",\"*\"\r\n");
    Abre(f, s);
    EXPECT_EQ(Fila(4), (Textos{"Lag./Mallin", "1", "l-1", "", "Muskingum", "15", "1.5", "4.25", "2", "", "",
                               "", "", ""}));
    EXPECT_EQ(Fila(5),
              (Textos{"Lag./Mallin", "2", "l-2", "", "Runge Kutta", "0", "0", "0", "0", "", "", "", "", ""}));
}

TEST_F(TablaDeParametros, DosRepresasTienenDieciseisFilas)
{
    model::Represa r{
        .NombreRepresa = "r-1", .Metodo = "Piscina Nivelada", .Represa_k_Musk = 7, .HInicialEmb = 3};
    r.chkFQ[0] = 1;
    r.FQa[0] = 1.5F;
    r.FQb[0] = 2;
    r.FQmin[0] = 10;
    r.FQMax[0] = 20;
    r.chkFQ[4] = 1;
    r.FQa[4] = 4;
    r.FQb[4] = 5;
    r.FQc[4] = 6;
    r.FQmin[4] = 12;
    r.FQMax[4] = 22;
    Agrega(r);
    Agrega(model::Represa{.NombreRepresa = "r-2", .Metodo = "Muskingum", .optTabla = true});
    Guarda();
    Abre(f, s);
    ASSERT_EQ(G().NroFilas(), 4 + 16);
    EXPECT_EQ(Fila(5), (Textos{"Represa", "1", "r-1", "", "Piscina Nivelada", "7", "Falso", "1", "1.5", "2",
                               "0", "10", "20", "3"}));
    EXPECT_EQ(Fila(6), (Textos{"Represa", "1", "", "", "", "", "", "0", "0", "0", "0", "0", "0", ""}));
    EXPECT_EQ(Fila(9), (Textos{"Represa", "1", "", "", "", "", "", "1", "4", "5", "6", "12", "22", ""}));
    EXPECT_EQ(Fila(13)[1], "2");
    EXPECT_EQ(Fila(13)[6], "Verdadero");
    EXPECT_EQ(Fila(20)[1], "2");
    EXPECT_EQ(Fila(20)[2], "");
}

TEST_F(TablaDeParametros, ActualizarMuestraLoGuardadoYNoLoQueEstaEnMemoria)
{
    Agrega(model::UEH{.NombreUEH = "u-1", .Area = 10});
    Guarda();
    Abre(f, s);
    s.Red.UEHs(1).Area = 99;
    cmdActualizar(f, s);
    EXPECT_EQ(Fila(3)[5], "10");
    s.Red.UEHs(1).Area = 99;
    Guarda();
    cmdActualizar(f, s);
    EXPECT_EQ(Fila(3)[5], "99");
    EXPECT_EQ(G().NroFilas(), 5);
}

TEST_F(TablaDeParametros, NadaSePuedeCambiar)
{
    Agrega(model::UEH{.NombreUEH = "u-1", .Area = 10});
    Guarda();
    Abre(f, s);
    const auto antes = G().filas;
    forms::Mueve(f.MSFlexGridTablaUEHs, {3, 5});
    forms::Escribe(f.MSFlexGridTablaUEHs, s, "7");
    forms::Teclea(f.MSFlexGridTablaUEHs, forms::Tecla::Suprimir);
    forms::Teclea(f.MSFlexGridTablaUEHs, forms::Tecla::Enter);
    forms::Pega(f.MSFlexGridTablaUEHs, s, "7");
    EXPECT_EQ(G().filas, antes);
}

TEST_F(TablaDeParametros, LasCeldasSeEligenYSeCopian)
{
    Agrega(model::UEH{.NombreUEH = "u-1", .Area = 10, .LongitudMax = 20});
    Guarda();
    Abre(f, s);
    forms::Mueve(f.MSFlexGridTablaUEHs, {2, 5});
    forms::Mueve(f.MSFlexGridTablaUEHs, {3, 6}, true);
    EXPECT_EQ(forms::Copia(G(), false), "Area\tLong. Máx\n10\t20\n");
    forms::Mueve(f.MSFlexGridTablaUEHs, {3, 5});
    EXPECT_EQ(forms::Copia(G(), false), "10\n");
}

TEST_F(TablaDeParametros, CerrarCierra)
{
    Abre(f, s);
    OKButton(f);
    EXPECT_FALSE(f.abierta);
}

}  // namespace
}  // namespace editor
