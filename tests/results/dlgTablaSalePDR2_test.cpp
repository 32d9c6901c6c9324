// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR2.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/Disco.h"
#include "results/SerieDePrueba.h"

namespace results {
namespace {

using Textos = std::vector<std::string>;

class TablaDeUno : public pruebas::SerieDePrueba {
  protected:
    static constexpr std::size_t NroTitulos = 5;

    [[nodiscard]] Textos Mostradas() const
    {
        const TablaQDR& tabla = f.MSFlexGridTablaSaleQDR;
        Textos textos;
        for (std::size_t i = NroTitulos; i < tabla.mostradas.size(); ++i) {
            std::string texto;
            for (const std::string& celda : tabla.filas.at(tabla.mostradas[i]).celdas)
                texto += celda + "|";
            textos.push_back(texto);
        }
        return textos;
    }
    void AbreEn(std::int16_t componente)
    {
        s.Control.IndComp = componente;
        Abre(f, s);
    }
    void Elige(int indice)
    {
        f.lstComposIndice = indice;
        lstCompos_Click(f, s);
    }
    const Textos Totales = {"||||||||",
                            "Escorrentía total ||20|60|10||5001|50.12|",
                            "Escorrentía total ||30|120|10||5002|50.25|",
                            "Escorrentía total ||25|60|25||5003|50.38|",
                            "Escorrentía total ||35|120|25||5004|50.5|",
                            "||||||||"};
    [[nodiscard]] Textos ConTotales(Textos filas) const
    {
        filas.insert(filas.end(), Totales.begin(), Totales.end());
        return filas;
    }
    const Textos DeU2 = {"u-2|2|20|60|10|21.12|2001|42.12|", "u-2|2|30|120|10|22.12|2002|42.25|",
                         "u-2|2|25|60|25|23.12|2003|42.38|", "u-2|2|35|120|25|24.12|2004|42.5|"};
    const Textos DeC1 = {"c-1|3|20|60|10|31.12|||", "c-1|3|30|120|10|32.12|||", "c-1|3|25|60|25|33.12|||",
                         "c-1|3|35|120|25|34.12|||"};

    dlgTablaSalePDR2 f;
};

TEST_F(TablaDeUno, AbreConElComponenteDeMano)
{
    EXPECT_EQ(TituloDlgTablaSalePDR2,
              "Serie de Tormentas Sintéticas: Resumen Qp-D-R - E-D-R - CE-D-R por Componente");
    AbreEn(2);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "u-2", "c-1"}));
    EXPECT_EQ(f.lstComposIndice, 1);
    EXPECT_EQ(Mostradas(), ConTotales(DeU2));
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.filas[0].celdas[7], model::Ruta("/proyectos", "Prueba_Conf.vlm"));
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.filas[4].celdas[0], "Operador: Yo - 03/04/2011");
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.filas[9].clase, ClaseFila::Separacion);
    EXPECT_EQ(s.Control.IndComp, 2);
    EXPECT_EQ(s.Serie.IndSerie, 5);
}

TEST_F(TablaDeUno, ElComponenteDeManoQuedaEntreLosQueHay)
{
    struct Fila {
        std::int16_t antes, despues;
    };
    for (const auto& [antes, despues] : {Fila{0, 1}, Fila{3, 3}, Fila{4, 1}, Fila{-1, 1}}) {
        AbreEn(antes);
        EXPECT_EQ(s.Control.IndComp, despues) << antes;
        EXPECT_EQ(f.lstComposIndice, despues - 1) << antes;
    }
}

TEST_F(TablaDeUno, SinComponentesSeCierra)
{
    s.Resultados.NroComponentes = 0;
    AbreEn(1);
    EXPECT_FALSE(f.abierta);
    s.Resultados.NroComponentes = 3;
    AbreEn(1);
    s.Resultados.NroComponentes = 0;
    Elige(1);
    EXPECT_FALSE(f.abierta);
}

TEST_F(TablaDeUno, ElegirUnComponenteLoMuestra)
{
    AbreEn(1);
    Elige(2);
    EXPECT_EQ(s.Control.IndComp, 3);
    EXPECT_EQ(Mostradas(), ConTotales(DeC1));
    Elige(-1);
    EXPECT_EQ(s.Control.IndComp, 3);
}

TEST_F(TablaDeUno, AlVolverMuestraElDeLaListaYSigueALasCasillas)
{
    AbreEn(2);
    s.Control.IndComp = 4;  // where the table of all components leaves it
    DestildaR(R25);
    cmdAplicarCambios(f, s);
    EXPECT_EQ(s.Control.IndComp, 2);
    EXPECT_EQ(Mostradas(),
              (Textos{DeU2[0], DeU2[1], Totales[0], Totales[1], Totales[2], "Escorrentía total ||||||||"}));
}

TEST_F(TablaDeUno, UnNombreQueYaNoEstaEsElPrimero)
{
    AbreEn(3);
    s.Resultados.Secuencia[3] = "c-2";
    cmdAplicarCambios(f, s);
    EXPECT_EQ(s.Control.IndComp, 1);
    EXPECT_EQ(Mostradas()[0], "u-1|1|20|60|10|11.12|1001|41.12|");
    s.Resultados.Secuencia.clear();
    cmdAplicarCambios(f, s);
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    s.Resultados.Secuencia = {"", "u-1", "u-2", "c-1"};
    s.Resultados.NroComponentes = 2;
    cmdAplicarCambios(f, s);
    EXPECT_EQ(s.Control.IndComp, 1);
}

TEST_F(TablaDeUno, UnaTormentaSinLaminaTerminaElLlenado)
{
    s.Serie.SerieP(1) = 0;
    AbreEn(2);
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.filas.size(), NroTitulos);
    s.Serie.SerieP(1) = 20;
    s.Serie.SerieP(2) = 0;
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Mostradas(), (Textos{DeU2[0]}));
}

TEST_F(TablaDeUno, UnaDuracionMenorQueElPasoQuedaFuera)
{
    s.Pasos.PasoPp = 61;
    AbreEn(2);
    EXPECT_EQ(Mostradas(), (Textos{DeU2[1], DeU2[3], Totales[0], Totales[2], Totales[4], Totales[5]}));
}

TEST_F(TablaDeUno, LoQueLaCorridaNoDejoQuedaVacioSinAvisos)
{
    Carga({{20, 60, 10}, {30, 120, 10}, {25, 60, 25}, {35, 120, 25}, {40, 180, 25}});
    AbreEn(1);
    EXPECT_EQ(Mostradas()[4], "u-1|1|40|180|25||||");
    EXPECT_EQ(Mostradas()[10], "Escorrentía total ||40|180|25||||");
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(TablaDeUno, SeOrdenaConLaSeparacionEnSuSitioYSigueAsiConOtroComponente)
{
    AbreEn(2);
    AlPulsarEncabezado(f, 2);
    AlPulsarEncabezado(f, 2);
    EXPECT_EQ(Mostradas(), (Textos{DeU2[3], DeU2[1], DeU2[2], DeU2[0], Totales[0], Totales[4], Totales[2],
                                   Totales[3], Totales[1], Totales[5]}));
    Elige(2);
    EXPECT_EQ(Mostradas()[0], DeC1[3]);
    AlPulsarEncabezado(f, 2);
    EXPECT_EQ(Mostradas(), ConTotales(DeC1));
}

TEST_F(TablaDeUno, LaSeparacionNoSeGuarda)
{
    AbreEn(3);
    const std::string texto = ComoTexto(ComoPlanilla(f.MSFlexGridTablaSaleQDR));
    EXPECT_NE(texto.find("c-1\t3\t35\t120\t25\t34.12\t\t\r\nEscorrentía total \t\t20"), std::string::npos);
}

}  // namespace
}  // namespace results
