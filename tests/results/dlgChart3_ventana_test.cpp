// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart3_ventana.h"

#include <QLabel>
#include <QPushButton>

#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Lamina_ventana.h"
#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/SerieDePrueba.h"
#include "results/dlgTablaSalePDR_ventana.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;
using forms::ListaParaElegir;

class VentanaAbaco : public pruebas::SerieDePrueba {
  protected:
    ListaParaElegir& Lista(const char* nombre) { return Control<ListaParaElegir>(ventana, nombre); }
    void Elige(const char* nombre, int item)
    {
        ListaParaElegir& lista = Lista(nombre);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          lista.visualItemRect(lista.item(item)).center());
    }
    forms::Lamina& Grafico() { return Control<forms::Lamina>(ventana, "Grafico"); }
    /// What the chart tells of its first category.
    std::string PrimeraFila()
    {
        Grafico().setFocus();
        QTest::keyClick(&Grafico(), Qt::Key_Home);
        return Grafico().Lectura();
    }
    std::string Rotulo(const char* nombre) { return DeQ(Control<QLabel>(ventana, nombre).text()); }

    forms::Entorno entorno{s};
    dlgChart3 f{};
    dlgChart3_ventana ventana{entorno, f};
};

TEST_F(VentanaAbaco, AbreConSusListasRotulosYBotones)
{
    s.Control.IndComp = 2;
    ventana.Abre();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(DeQ(ventana.windowTitle()), TituloDlgChart3);
    EXPECT_EQ(Lista("lstCompos").count(), 3);
    EXPECT_EQ(Lista("lstCompos").currentRow(), 1);
    EXPECT_EQ(DeQ(Lista("lstPQEC").item(1)->text()), "Escorrentía");
    EXPECT_EQ(Lista("lstPQEC").currentRow(), 0);
    EXPECT_EQ(Rotulo("lblTitulo"), "Serie de Tormentas Sintéticas: Gráficos Qp-D-R  -  E-D-R  -  CE-D-R");
    EXPECT_EQ(Rotulo("lblNota"), "Un título  /proyectos/Prueba_Conf.vlm");
    EXPECT_EQ(Rotulo("lblNotaVelmir"), "SIRO: Modelo hidrológico de simulación lluvia-caudal");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdXmas").text()), "+DivideEjeX");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdXmenos").text()), "-DivideEjeX");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdImprimir").text()), "&Imprimir");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "OKButton").text()), "&Cerrar");
}

TEST_F(VentanaAbaco, DibujaElComponenteElegido)
{
    s.Control.IndComp = 1;
    ventana.Abre();
    const std::string antes = PrimeraFila();
    EXPECT_NE(antes.find("= 11.12 m3/s"), std::string::npos) << antes;  // storm 1
    EXPECT_NE(antes.find("= 13.12 m3/s"), std::string::npos) << antes;  // storm 3
    Elige("lstCompos", 2);
    EXPECT_EQ(f.lstComposIndice, 2);
    const std::string despues = PrimeraFila();
    EXPECT_NE(despues.find("= 31.12 m3/s"), std::string::npos) << despues;
    Lista("lstCompos").setFocus();
    QTest::keyClick(&Lista("lstCompos"), Qt::Key_Up);
    EXPECT_EQ(f.lstComposIndice, 1);
    EXPECT_NE(PrimeraFila().find("= 21.12 m3/s"), std::string::npos);
}

TEST_F(VentanaAbaco, ElMismoComponenteOtraVezSigueALasCasillas)
{
    s.Control.IndComp = 1;
    ventana.Abre();
    DestildaR(R10);
    Elige("lstCompos", 0);
    EXPECT_EQ(f.Grafico.series.size(), 1U);
    const std::string lectura = PrimeraFila();
    EXPECT_EQ(lectura.find("= 11.12 m3/s"), std::string::npos) << lectura;
    EXPECT_NE(lectura.find("= 13.12 m3/s"), std::string::npos) << lectura;
}

TEST_F(VentanaAbaco, LaEscorrentiaDejaEnLaListaSoloLasUEHs)
{
    s.Control.IndComp = 3;
    ventana.Abre();
    Elige("lstPQEC", 1);
    EXPECT_EQ(Lista("lstCompos").count(), 2);
    EXPECT_EQ(Lista("lstCompos").currentRow(), 1);
    EXPECT_NE(PrimeraFila().find("= 2001 m3"), std::string::npos);
    Elige("lstPQEC", 0);
    EXPECT_EQ(Lista("lstCompos").count(), 3);
    EXPECT_EQ(Lista("lstCompos").currentRow(), 1);
}

TEST_F(VentanaAbaco, DivideElEjeYSeCierra)
{
    ventana.Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdXmas"));
    EXPECT_EQ(f.Grafico.escala.divisionesPorRotulo, 2);
    Pulsa(Control<QPushButton>(ventana, "cmdXmenos"));
    EXPECT_EQ(f.Grafico.escala.divisionesPorRotulo, 1);
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    ventana.Abre();
    ventana.close();
    EXPECT_FALSE(f.abierta);
}

TEST_F(VentanaAbaco, SeImprimeSinComandosNiListasYTodoVuelve)
{
    apoyo::ImpresoraDePrueba impresora;
    bool conControles = true;
    QSize alImprimir;
    entorno.Impresora = [&] {
        alImprimir = Grafico().size();
        conControles = Lista("lstCompos").isVisible() || Lista("lstPQEC").isVisible() ||
                       Control<QPushButton>(ventana, "OKButton").isVisible();
        return impresora.Puerta()();
    };
    s.Control.IndComp = 1;
    ventana.Abre();
    const QSize antes = Grafico().size();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_FALSE(conControles);
    // The room of what is hidden is the chart's.
    EXPECT_GT(alImprimir.width(), antes.width());
    EXPECT_GT(alImprimir.height(), antes.height());
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_EQ(impresora.Titulo(),
              "Serie de Tormentas Sintéticas - Resumen de Qpico, Escorrentía y Coef.Esc. - u-1");
    EXPECT_NE(impresora.Texto(1).find("Proyecto: Prueba - Un título"), std::string::npos);
    // White, as the chart's ground is, takes most of the page.
    const QImage hoja = impresora.Hoja(1, 40);
    int blancos = 0;
    const QRect pintable = impresora.Pintable(40);
    for (int y = pintable.top(); y < pintable.bottom(); ++y)
        blancos += hoja.pixelColor(pintable.center().x() + 7, y).lightness() > 250;
    EXPECT_GT(blancos, pintable.height() / 2);
    EXPECT_TRUE(Lista("lstCompos").isVisible());
    EXPECT_TRUE(Control<QPushButton>(ventana, "OKButton").isVisible());
}

TEST_F(VentanaAbaco, LaSeleccionQuedaCuandoUnaPlanillaMovioElComponente)
{
    s.Control.IndComp = 2;
    ventana.Abre();
    dlgTablaSalePDR registro;
    dlgTablaSalePDR_ventana tabla(entorno, registro);
    tabla.Abre();  // goes through all components, and beyond the last
    ASSERT_NE(s.Control.IndComp, 2);
    Elige("lstPQEC", 0);
    EXPECT_EQ(Lista("lstCompos").currentRow(), 1);
    EXPECT_EQ(f.Grafico.titulo, "u-2");
    EXPECT_EQ(s.Control.IndComp, 2);
}

TEST_F(VentanaAbaco, SinSerieQuedaVaciaYSinComponentesNoSeAbre)
{
    s.Serie.NroSeriePDR = 0;
    ventana.Abre();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(Lista("lstCompos").count(), 0);
    EXPECT_EQ(PrimeraFila(), "");
    ventana.close();
    s.Serie.NroSeriePDR = 4;
    s.Resultados.NroComponentes = 0;
    ventana.Abre();
    EXPECT_FALSE(ventana.isVisible());
}

}  // namespace
}  // namespace results
