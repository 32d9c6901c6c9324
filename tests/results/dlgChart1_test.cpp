// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart1.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "results/EjeTiempo.h"

namespace results {
namespace {

using forms::Grafico;
using forms::TipoSerie;

using model::Icono;
using model::Mensaje;
using model::Siro;
using Textos = std::vector<std::string>;

// --- table of cells ---

struct CasoTiempo {
    std::int16_t i, paso;
    const char* minutos;
    const char* horas;
};

TEST(CategoriaDeFila, ElTiempoEsElDelFinDeLaFilaYLasHorasSeCortan)
{
    // 50 min are 0.8333 h, 55 min 0.91666 h: cut and not rounded.
    for (const CasoTiempo& caso : {CasoTiempo{1, 50, "50", "0.83"},
                                   {1, 55, "55", "0.91"},
                                   {6, 10, "60", "1"},
                                   {3, 30, "90", "1.5"},
                                   {1, 1, "1", "0.01"},
                                   {288, 5, "1440", "24"}}) {
        EXPECT_EQ(Categoria(caso.i, caso.paso, true), caso.minutos);
        EXPECT_EQ(Categoria(caso.i, caso.paso, false), caso.horas) << caso.minutos;
    }
}

TEST(CategoriaDeFila, ElTiempoEsUnProductoDe16Bits)
{
    EXPECT_EQ(Categoria(32767, 1, true), "32767");
    EXPECT_THROW(Categoria(16384, 2, true), model::Falla);
    EXPECT_THROW(Categoria(16384, 2, false), model::Falla);
}

// --- hyetograph ---

/// 100 mm in 180 min by the distribution of three blocks: 20, 60 and 20 mm.
class GraficoPp : public testing::Test {
  protected:
    GraficoPp()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = "/trabajo";
        s.Configuracion.TituloProyecto = "Arroyo de prueba";
        s.Tormenta.PpTormenta = 100;
        s.Tormenta.DurTormenta = 180;
        s.Tormenta.DistriPp = 1;
        s.Tormenta.PpReal.Redimensiona(3);
        s.Tormenta.PpReal(1) = 20;
        s.Tormenta.PpReal(2) = 60;
        s.Tormenta.PpReal(3) = 20;
        s.Tormenta.NroPpReal = 3;
    }
    Hietograma TresBloques() const { return {3, 50, "Temporal", 100, 180}; }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgChart1 f;
};

TEST_F(GraficoPp, AbreEnMinutosConSuTablaDeCeldas)
{
    Muestra(f, s, TresBloques());
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(f.MinutosEjeX);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"50", "100", "150"}));
    ASSERT_EQ(f.Grafico.series.size(), 1U);
    EXPECT_EQ(f.Grafico.series[0].celdas, (std::vector<double>{20, 60, 20}));
    EXPECT_EQ(f.Grafico.series[0].tipo, TipoSerie::Escalon2D);
    EXPECT_EQ(f.Grafico.ejeX, "minutos");
    EXPECT_EQ(f.Grafico.ejeY, "Precipitación [mm]");
    EXPECT_EQ(f.Grafico.titulo, "  Temporal  ");
    EXPECT_EQ(f.Grafico.notaAlPie, " Pp= 100mm;  D= 180 min ;   paso = 50 min");
    EXPECT_FALSE(f.Grafico.leyendaVisible);
}

TEST_F(GraficoPp, LasHorasSeCortanYNoSeRedondean)
{
    Muestra(f, s, TresBloques());
    cmdHsMin(f, s);
    EXPECT_FALSE(f.MinutosEjeX);
    // 0.8333, 1.6666 and 2.5 h
    EXPECT_EQ(f.Grafico.categorias, (Textos{"0.83", "1.66", "2.5"}));
    EXPECT_EQ(f.Grafico.ejeX, "horas");
    cmdHsMin(f, s);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"50", "100", "150"}));
}

TEST_F(GraficoPp, LaPrimeraFilaEstaUnPasoDespuesDelComienzo)
{
    Muestra(f, s, {1, 10, "", 100, 180});
    EXPECT_EQ(f.Grafico.categorias, (Textos{"10"}));
    EXPECT_EQ(f.Grafico.titulo, "    ");
}

TEST_F(GraficoPp, SinBloquesNoPasaNada)
{
    Muestra(f, s, TresBloques());
    const Grafico antes = f.Grafico;
    AlGraficoPp(f, s, 0, 10);
    EXPECT_EQ(f.Grafico, antes);
}

TEST_F(GraficoPp, EnUnaSerieSeCierraAlAbrir)
{
    s.Tormenta.FormaPp = 2;
    Muestra(f, s, TresBloques());
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(f.Grafico.categorias.empty());
}

TEST_F(GraficoPp, AbiertaGuardaElEjeElegidoYMuestraLaNuevaTormenta)
{
    Muestra(f, s, TresBloques());
    cmdHsMin(f, s);
    Muestra(f, s, {2, 60, "Otra", 80, 120});
    EXPECT_FALSE(f.MinutosEjeX);
    EXPECT_EQ(f.Grafico.categorias, (Textos{"1", "2"}));
    EXPECT_EQ(f.Grafico.titulo, "  Otra  ");
    OKButton(f);
    EXPECT_FALSE(f.abierta);
    Muestra(f, s, TresBloques());  // a new window begins in minutes
    EXPECT_TRUE(f.MinutosEjeX);
}

TEST_F(GraficoPp, UnBloqueQueYaNoEstaSeDiceYElGraficoQueda)
{
    Muestra(f, s, TresBloques());
    const Grafico antes = f.Grafico;
    s.Tormenta.PpReal.Redimensiona(2);
    cmdHsMin(f, s);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(f.Grafico, antes);
}

// --- the menu's command ---

TEST_F(GraficoPp, ElMenuConstruyeElHietogramaConElPasoDeLosBloques)
{
    s.Tormenta.NroPpReal = 0;
    s.Pasos.PasoPp = 10;
    const auto pedido = mnuGraficoPp(s, "notas");
    ASSERT_TRUE(pedido);
    EXPECT_EQ(*pedido, (Hietograma{3, 60, "Arroyo de prueba", 100, 180}));  // 180 min in 3 blocks
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
}

TEST_F(GraficoPp, ElTituloDeUnaTormentaRealSonSusNotas)
{
    s.Tormenta.FormaPp = 4;
    s.Pasos.PasoPp = 60;
    const auto pedido = mnuGraficoPp(s, "Temporal");
    ASSERT_TRUE(pedido);
    EXPECT_EQ(*pedido, (Hietograma{3, 60, "Temporal", 100, 180}));
}

TEST_F(GraficoPp, SinTormentaElMenuCalla)
{
    s.Tormenta.PpTormenta = 0;
    EXPECT_FALSE(mnuGraficoPp(s, ""));
    s.Tormenta.PpTormenta = 100;
    s.Tormenta.DurTormenta = 0;
    EXPECT_FALSE(mnuGraficoPp(s, ""));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GraficoPp, LosBloquesDeMedioMinutoNoSeMuestran)
{
    // A real storm of 1 min in two blocks needs no table: the test looks at the quotient alone. 1/2 goes to
    // 0, the even whole number; 3/2 to 2.
    s.Tormenta.DurTormenta = 1;
    s.Tormenta.NroPpReal = 2;
    EXPECT_FALSE(HayTormentaConBloques(s));
    s.Tormenta.DurTormenta = 3;
    EXPECT_TRUE(HayTormentaConBloques(s));
    s.Tormenta.NroPpReal = 0;
    EXPECT_FALSE(HayTormentaConBloques(s));
}

TEST_F(GraficoPp, ConLaPizarraAbiertaElMenuLaTraeAlFrente)
{
    s.Control.SalidaPizarra = true;
    ASSERT_TRUE(mnuGraficoPp(s, ""));
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
    EXPECT_TRUE(anfitrion->pizarra.starts_with("\r\nEntrada: PRECIPITACION"));
}

}  // namespace
}  // namespace results
