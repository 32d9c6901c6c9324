// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart3.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "forms/LecturaGrafico.h"
#include "model/Disco.h"
#include "results/SerieDePrueba.h"

namespace results {
namespace {

using forms::CeldaVacia;
using forms::EscalaCategorias;
using forms::Marca;
using forms::TipoGrafico;
using forms::TipoSerie;
using Textos = std::vector<std::string>;
using Duraciones = std::vector<std::int16_t>;

class Abaco : public pruebas::SerieDePrueba {
  protected:
    using Curva = forms::Serie;

    void AbreEn(std::int16_t componente)
    {
        s.Control.IndComp = componente;
        Abre(f, s);
    }
    void Elige(int componente)
    {
        f.lstComposIndice = componente;
        lstCompos_Click(f, s);
    }
    void EligeMagnitud(int item)
    {
        f.lstPQECIndice = item;
        lstPQEC_Click(f, s);
    }
    static Curva CurvaDe(const std::string& R, std::vector<double> celdas)
    {
        return {TipoSerie::Linea2D, R, false, std::move(celdas)};
    }
    /// What a 32-bit float of this value is in a cell.
    static double F(double x) { return double{static_cast<float>(x)}; }

    dlgChart3 f;
};

// --- opening ---

TEST_F(Abaco, AbreConElCaudalMaximoDelComponenteDeMano)
{
    AbreEn(2);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(TituloDlgChart3, "Serie de Tormentas Sintéticas: Resumen de Qpico, Escorrentía y Coef.Esc.");
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "u-2", "c-1"}));
    EXPECT_EQ(f.lstComposIndice, 1);
    EXPECT_EQ(f.lstPQEC, (Textos{"Caudal Máximo", "Escorrentía", "Coef.Escorr."}));
    EXPECT_EQ(f.lstPQECIndice, 0);
    EXPECT_EQ(f.ListaD, (Duraciones{60, 120}));
    EXPECT_EQ(f.ListaR, (Duraciones{10, 25}));
    EXPECT_EQ(f.Grafico.tipo, TipoGrafico::Linea);
    EXPECT_TRUE(f.Grafico.leyendaVisible);
    EXPECT_TRUE(f.Grafico.marcasEjeX);
    EXPECT_EQ(f.Grafico.ejeX, "Duración Tormenta D[minutos]");
    EXPECT_EQ(f.Grafico.ejeY, "Caudal Máximo [m3/s]");
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
    // 20 + n + 0.125: the tie goes to the even digit
    ASSERT_EQ(f.Grafico.series.size(), 2U);
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {F(21.12), F(22.12)}));
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("25", {F(23.12), F(24.12)}));
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Abaco, LosRotulosALaLetra)
{
    AbreEn(3);  // an outfall, and no word of it
    EXPECT_EQ(f.lblTitulo, "Serie de Tormentas Sintéticas: Gráficos Qp-D-R  -  E-D-R  -  CE-D-R");
    EXPECT_EQ(f.lblNota, "Un título  " + model::Ruta("/proyectos", "Prueba_Conf.vlm"));
    EXPECT_EQ(f.lblNotaVelmir, "SIRO: Modelo hidrológico de simulación lluvia-caudal");
    EXPECT_EQ(f.Notas, "Notas en AlGraficoPp");
    EXPECT_EQ(f.Grafico.titulo, "c-1");
}

TEST_F(Abaco, SinSerieQuedaVacia)
{
    s.Serie.NroSeriePDR = 0;
    AbreEn(1);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(f.lstCompos.empty());
    EXPECT_TRUE(f.lstPQEC.empty());
    EXPECT_EQ(f.Grafico, forms::Grafico{});
    EXPECT_EQ(f.lblNota, "");
    lstCompos_Click(f, s);
    lstPQEC_Click(f, s);
    EXPECT_EQ(f.Grafico, forms::Grafico{});
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Abaco, SinComponentesSeCierra)
{
    s.Resultados.NroComponentes = 0;
    AbreEn(1);
    EXPECT_FALSE(f.abierta);
}

TEST_F(Abaco, UnaSerieDeUnaTormentaNoTraeDatos)
{
    s.Serie.NroSeriePDR = 1;
    AbreEn(1);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(f.Grafico.categorias.empty());
    EXPECT_TRUE(f.Grafico.series.empty());
    EXPECT_EQ(f.lblTitulo, "");
    EXPECT_EQ(f.lblNota, "Un título  " + model::Ruta("/proyectos", "Prueba_Conf.vlm"));
    EXPECT_EQ(f.lblNotaVelmir, "SIRO: Simulación lluvia-caudal");
    EXPECT_EQ(f.Grafico.ejeX, "Duración Tormenta D[minutos]");
    EXPECT_EQ(f.Grafico.ejeY, "Caudal Máximo [m3/s]");
    EXPECT_EQ(f.Notas, "Notas en Inicializa");
    EXPECT_EQ(f.lstCompos.size(), 3U);
}

TEST_F(Abaco, DosTormentasSonUnaSerie)
{
    s.Serie.NroSeriePDR = 2;
    AbreEn(1);
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {F(11.12), F(12.12)})}));
}

// A walk through all components leaves the number behind the last one.
TEST_F(Abaco, ElComponenteDeManoQuedaEntreLosQueHay)
{
    struct Fila {
        std::int16_t antes, despues;
    };
    for (const auto& [antes, despues] :
         {Fila{0, 1}, Fila{1, 1}, Fila{3, 3}, Fila{4, 3}, Fila{99, 3}, Fila{-1, 1}}) {
        AbreEn(antes);
        EXPECT_EQ(s.Control.IndComp, despues) << antes;
        if (antes >= 0) {
            EXPECT_EQ(f.lstComposIndice, despues - 1) << antes;
        }
        EXPECT_EQ(f.Grafico.series.at(0).celdas.at(0), F(10 * despues + 1.12)) << antes;
    }
}

TEST_F(Abaco, ElFiltroCambiaLaTormentaDeManoYLosBuclesElIndice)
{
    s.Tormenta.PpTormenta = 99;
    AbreEn(1);
    EXPECT_EQ(s.Tormenta.PpTormenta, 35);
    EXPECT_EQ(s.Tormenta.DurTormenta, 120);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_EQ(s.Serie.IndSerie, 5);
}

// --- durations, recurrences, cells ---

TEST_F(Abaco, SinElTildeDeUnaRecurrenciaSuCurvaDesapareceYLasOtrasQuedan)
{
    DestildaR(R10);
    AbreEn(1);
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("25", {F(13.12), F(14.12)})}));
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
}

TEST_F(Abaco, UnTildeQueCambiaConLaVentanaAbiertaSeVeAlElegir)
{
    AbreEn(1);
    DestildaD(D60);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
    Elige(0);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"120"}));
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {F(12.12)}), CurvaDe("25", {F(14.12)})}));
    s.frmConfigura.CheckD[D60] = 1;
    Elige(0);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
}

TEST_F(Abaco, SinNingunTildeNoQuedaNingunaCurva)
{
    AbreEn(1);
    s.frmConfigura.CheckR.fill(0);
    Elige(0);
    EXPECT_TRUE(f.Grafico.series.empty());
    EXPECT_TRUE(f.Grafico.marcas.empty());
    EXPECT_EQ(f.Notas, "Notas en Inicializa");
}

TEST_F(Abaco, LasDuracionesVanEnElOrdenEnQueAparecen)
{
    Carga({{30, 120, 25}, {20, 60, 25}, {10, 120, 2}, {5, 90, 2}});
    LlenaResultados();
    AbreEn(1);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"120", "60", "90"}));
    ASSERT_EQ(f.Grafico.series.size(), 2U);
    // no storm of 90 min in 25 years, none of 60 min in 2: a gap each
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("25", {F(11.12), F(12.12), CeldaVacia}));
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("2", {F(13.12), CeldaVacia, F(14.12)}));
}

TEST_F(Abaco, UnaDuracionMenorQueElPasoQuedaFuera)
{
    Carga({{10, 44, 10}, {20, 45, 10}, {30, 60, 10}});
    LlenaResultados();
    s.Pasos.PasoPp = 45;
    AbreEn(1);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"45", "60"}));
}

TEST_F(Abaco, DeDosTormentasIgualesQuedaLaUltima)
{
    Carga({{20, 60, 10}, {21, 120, 10}, {22, 60, 10}});
    LlenaResultados();
    AbreEn(1);
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {F(13.12), F(12.12)})}));
}

TEST_F(Abaco, ElRedondeoVaAlPar)
{
    s.Resultados.QMax(1, 1) = 11.125F;
    s.Resultados.QMax(1, 2) = 11.375F;
    s.Resultados.QMax(1, 3) = 0.004F;
    s.Resultados.QMax(1, 4) = 1.23456F;
    AbreEn(1);
    EXPECT_EQ(f.Grafico.series,
              (std::vector{CurvaDe("10", {F(11.12), F(11.38)}), CurvaDe("25", {0, F(1.23)})}));
}

// The flag of the storm before decides on one without depth; here the first such storm passes, the second
// not.
TEST_F(Abaco, UnaTormentaNulaSigueLaSuerteDeLaAnterior)
{
    Carga({{20, 60, 10}, {0, 90, 10}, {30, 120, 25}, {0, 180, 10}});
    LlenaResultados();
    DestildaD(D120);
    AbreEn(1);
    EXPECT_EQ(f.ListaD, (Duraciones{60, 90}));
    EXPECT_TRUE(f.Excluida);
}

TEST_F(Abaco, LoQueLaCorridaNoDejoQuedaVacioSinAvisos)
{
    Carga({{20, 60, 10}, {30, 120, 10}, {25, 60, 25}, {35, 120, 25}, {40, 180, 25}});
    AbreEn(1);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120", "180"}));
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("25", {F(13.12), F(14.12), CeldaVacia}));
    EligeMagnitud(1);
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("25", {2003, 2004, CeldaVacia}));
    EligeMagnitud(2);
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("25", {F(42.38), F(42.5), CeldaVacia}));
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Abaco, SinNingunaCorridaTodasLasCeldasQuedanVacias)
{
    s.Resultados.QMax = {};
    AbreEn(1);
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {CeldaVacia, CeldaVacia}));
    EXPECT_TRUE(f.Grafico.marcas.empty());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(Abaco, UnaSerieQueNoEstaSeAvisa)
{
    s.Serie.SerieD.Dimensiona(2);
    AbreEn(1);
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<model::Mensaje>{{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique"}}));
    EXPECT_TRUE(f.Grafico.series.empty());
}

// --- the two entries ---

TEST_F(Abaco, AlGraficoPpTomaLasPrimerasDuracionesPorElPaso)
{
    AbreEn(1);
    AlGraficoPp(f, s, 1, 3);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"180"}));
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {F(11.12)}), CurvaDe("25", {F(13.12)})}));
    const forms::Grafico antes = f.Grafico;
    AlGraficoPp(f, s, 0, 1);
    EXPECT_EQ(f.Grafico, antes);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { AlGraficoPp(f, s, 3, 1); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { AlGraficoPp(f, s, -1, 1); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { AlGraficoPp(f, s, 2, 547); }), 6);  // 60 · 547 = 32820
}

TEST_F(Abaco, InicializaPoneTantasColumnasComoRecurrencias)
{
    AbreEn(1);
    Carga({{20, 60, 10}, {30, 60, 50}, {40, 60, 100}});
    Inicializa(f, s);
    ASSERT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(f.Grafico.series[1], CurvaDe("25", {F(13.12), F(14.12)}));  // as drawn last
    EXPECT_EQ(f.Grafico.series[2], CurvaDe("", {CeldaVacia, CeldaVacia}));
    EXPECT_EQ(f.Notas, "Notas en Inicializa");
    s.Control.IndComp = 7;
    s.Serie.NroSeriePDR = 1;
    Inicializa(f, s);
    EXPECT_EQ(s.Control.IndComp, 1);
    EXPECT_TRUE(f.ListaD.empty());
    EXPECT_TRUE(f.ListaR.empty());
    EXPECT_EQ(f.Grafico.series.size(), 3U);  // stops before the columns
}

// --- lists ---

TEST_F(Abaco, ElegirUnComponenteLoDibuja)
{
    AbreEn(1);
    Elige(2);
    EXPECT_EQ(s.Control.IndComp, 3);
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {F(31.12), F(32.12)}));
    EXPECT_EQ(f.Grafico.titulo, "c-1");
}

TEST_F(Abaco, SinNadaElegidoNoPasaNada)
{
    AbreEn(2);
    const forms::Grafico antes = f.Grafico;
    Elige(-1);
    EXPECT_EQ(s.Control.IndComp, 2);
    EXPECT_EQ(f.Grafico, antes);
    EligeMagnitud(-1);
    EXPECT_EQ(f.Grafico, antes);
}

TEST_F(Abaco, DeDosNombresIgualesSeTomaElPrimero)
{
    s.Resultados.Secuencia = {"", "u-1", "u-1", "c-1"};
    AbreEn(1);
    Elige(1);
    EXPECT_EQ(s.Control.IndComp, 1);
}

TEST_F(Abaco, ElegirMasAllaDeLosComponentesTomaElUltimo)
{
    AbreEn(1);
    s.Resultados.NroComponentes = 2;  // another network was read since the list was filled
    Elige(2);
    EXPECT_EQ(s.Control.IndComp, 2);
    s.Resultados.NroComponentes = 0;
    Elige(0);
    EXPECT_EQ(s.Control.IndComp, 1);
}

TEST_F(Abaco, LaEscorrentiaOfreceSoloLasUEHsYEligeLaUltima)
{
    AbreEn(3);
    EligeMagnitud(1);
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "u-2"}));
    EXPECT_EQ(f.lstComposIndice, 1);
    EXPECT_EQ(s.Control.IndComp, 2);
    EXPECT_EQ(f.Grafico.ejeY, "Escorrentía [m3]");
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {2001, 2002}), CurvaDe("25", {2003, 2004})}));
    Elige(0);
    EXPECT_EQ(s.Control.IndComp, 1);
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {1001, 1002}));
}

TEST_F(Abaco, ElCoeficienteTambien)
{
    AbreEn(3);
    EligeMagnitud(2);
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "u-2"}));
    EXPECT_EQ(f.Grafico.ejeY, "Coeficiente Escorrentía [%]");
    // 42.125, 42.25, 42.375, 42.5
    EXPECT_EQ(f.Grafico.series,
              (std::vector{CurvaDe("10", {F(42.12), F(42.25)}), CurvaDe("25", {F(42.38), F(42.5)})}));
}

TEST_F(Abaco, VolverAlCaudalOfreceTodosYConservaElElegido)
{
    AbreEn(3);
    EligeMagnitud(1);
    Elige(0);
    EligeMagnitud(0);
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "u-2", "c-1"}));
    EXPECT_EQ(f.lstComposIndice, 0);
    EXPECT_EQ(f.Grafico.ejeY, "Caudal Máximo [m3/s]");
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {F(11.12), F(12.12)}));
}

TEST_F(Abaco, SinUEHsLaEscorrentiaDejaSoloLosRotulos)
{
    s.Resultados.Secuencia = {"", "c-1"};
    s.Resultados.NroComponentes = 1;
    s.Red.ColUEHs.Anuncia(0);
    LlenaResultados();
    AbreEn(1);
    EligeMagnitud(1);
    EXPECT_TRUE(f.lstCompos.empty());
    EXPECT_EQ(f.lstComposIndice, -1);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
    EXPECT_EQ(f.Grafico.series, (std::vector{CurvaDe("10", {CeldaVacia, CeldaVacia}),
                                             CurvaDe("25", {CeldaVacia, CeldaVacia})}));
    EXPECT_TRUE(f.Grafico.marcas.empty());
}

TEST_F(Abaco, SiLaListaYElComponenteNoCoincidenNoHayCeldas)
{
    AbreEn(1);
    EligeMagnitud(1);
    s.Control.IndComp = 3;  // another window moved on
    AlGraficoPp(f, s, 2, 1);
    EXPECT_EQ(f.Grafico.series[0], CurvaDe("10", {CeldaVacia, CeldaVacia}));
    EXPECT_EQ(f.Grafico.categorias, (Textos{"60", "120"}));
}

// --- critical durations ---

TEST_F(Abaco, MarcaLaDuracionCriticaDeCadaRecurrencia)
{
    s.Resultados.QMax(1, 1) = 50;  // 60 min, 10 years
    AbreEn(1);
    EXPECT_EQ(f.Grafico.marcas, (std::vector<Marca>{{0, 0, "D= 60 min"}, {1, 1, "D= 120 min"}}));
}

TEST_F(Abaco, DeDosMaximosIgualesMarcaElPrimeroYDeUnaCurvaEnCeroNinguno)
{
    s.Resultados.QMax(1, 1) = s.Resultados.QMax(1, 2) = 7;
    s.Resultados.QMax(1, 3) = s.Resultados.QMax(1, 4) = 0;
    AbreEn(1);
    EXPECT_EQ(f.Grafico.marcas, (std::vector<Marca>{{0, 0, "D= 60 min"}}));
}

// --- commands ---

TEST_F(Abaco, DivideElEjeYSeCierra)
{
    AbreEn(1);
    cmdXmas(f);
    cmdXmas(f);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 4, 2, true}));
    cmdXmenos(f);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 2, 1, true}));
    Elige(1);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 2, 1, true}));
    OKButton(f);
    EXPECT_FALSE(f.abierta);
}

TEST_F(Abaco, ImprimeSinComandosNiListasYLosDevuelve)
{
    AbreEn(1);
    const VistaChart3 antes = f.vista;
    AntesDeImprimir(f);
    EXPECT_EQ(f.vista, (VistaChart3{.comandos = false, .listas = false}));
    DespuesDeImprimir(f);
    EXPECT_EQ(f.vista, antes);
    EXPECT_TRUE(antes.comandos && antes.listas);
}

TEST_F(Abaco, SeGuardaComoTextoDeCampos)
{
    Carga({{20, 60, 10}, {30, 120, 10}, {25, 60, 25}});
    LlenaResultados();
    AbreEn(1);
    EligeMagnitud(1);
    EXPECT_EQ(forms::ComoCsv(forms::CeldasComoPlanilla(f.Grafico)),
              "\"Duración Tormenta D[minutos]\",\"R= 10 años [m3]\",\"R= 25 años "
              "[m3]\"\r\n60,2001,2003\r\n120,2002,\r\n");
}

}  // namespace
}  // namespace results
