// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerTormenta.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"
#include "study/Abierto.h"

namespace frequency {
namespace {

constexpr const char* Tablas = "/trabajo/TablasPDRs_pdr.vlm";
constexpr const char* Distribuciones = "/trabajo/distriPp_dpt.vlm";

/// A study with the delivered relation as its curves, and the delivered tables.
struct TallerDeTormenta : testing::Test {
    TallerDeTormenta()
    {
        disco.PonDirectorio("/proy");
        disco.Pon(Tablas, apoyo::BytesDeArchivo(SIRO_DOCS "/../data/TablasPDRs_pdr.vlm"));
        disco.Pon(Distribuciones, apoyo::BytesDeArchivo(SIRO_DOCS "/../data/distriPp_dpt.vlm"));
        disco.Pon("/proy/Chica_pt.vlm",
                  "\"\"\r\n2,60\r\n\"04/03/2001\",\"10:00\"\r\n\"04/03/2001\",\"12:00\"\r\n10\r\n30\r\n");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = "Quelmar";
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.DirTrabajo = "/trabajo";
        s.Proyecto.ProyectoNuevo = false;
        estudio.Sigue();
        Cambia(f, "Curvas", [](study::Taller& t) {
            t.idf.origen = "coeficientes";
            t.idf.coeficientes = {{"k", 822}, {"a", 0.2}, {"b", 10}, {"c", 0.8}};
        });
        Toma();
    }
    void Toma() { frequency::Toma(m, f, s); }
    void Pon(std::string_view control, std::string TallerTormenta::*texto, const std::string& valor)
    {
        m.*texto = valor;
        EXPECT_TRUE(txtNumero_AlSalir(m, f, s, control)) << control;
        Toma();
    }
    void PonPatron(std::string_view clave)
    {
        for (std::size_t i = 0; i < Patrones().size(); ++i)
            if (Patrones()[i]->clave == clave) cmbPatron_Click(f, static_cast<int>(i));
        Toma();
    }
    [[nodiscard]] const study::TormentaDeDiseno& Tormenta() const { return TallerDe(f).tormenta; }

    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    study::Abierto estudio{s};
    dlgTaller f{estudio};
    TallerTormenta m = NuevaTallerTormenta();
};

TEST_F(TallerDeTormenta, MuestraElPatronYLoQueElMotorCorre)
{
    EXPECT_EQ(m.diseno.error, "");
    EXPECT_NEAR(m.diseno.lamina, 73.2051, 1e-4);  // 822·50^0.2/130^0.8·2
    ASSERT_EQ(m.cuadro.planilla.filas.size(), 12U);
    EXPECT_EQ(m.cuadro.planilla.filas[5],
              (std::vector<std::string>{"60", "27.27", "45.99", "163.62", "37", "27.09"}));
    ASSERT_EQ(m.Grafico.series.size(), 2U);
    EXPECT_NEAR(m.Grafico.series[0].celdas[5], 27.27, 0.005);
    EXPECT_NEAR(m.Grafico.series[1].celdas[5], 0.37 * 73.2051, 0.001);
    EXPECT_NE(m.lblPatron.find("Chow, Maidment y Mays (1988)"), std::string::npos);
    EXPECT_NE(m.lblAvisos.find("se aparta hasta 0.7 % de la lámina (0.5 mm)"), std::string::npos)
        << m.lblAvisos;
}

TEST_F(TallerDeTormenta, CadaEleccionEsUnPasoQueSeDeshace)
{
    PonPatron("chicago");
    EXPECT_EQ(PatronEnMano(m).hechura, Hechura::CurvasYAvance);
    Pon("txtAvance", &TallerTormenta::txtAvance, "0,5");
    EXPECT_EQ(Tormenta().avance, 0.5);
    Pon("txtRecurrencia", &TallerTormenta::txtRecurrencia, "100");
    EXPECT_NEAR(m.diseno.lamina, 84.0905, 1e-4);  // 822·100^0.2/130^0.8·2
    Pon("txtLamina", &TallerTormenta::txtLamina, "50");
    EXPECT_EQ(m.diseno.lamina, 50);
    Pon("txtLamina", &TallerTormenta::txtLamina, "");
    EXPECT_EQ(Tormenta().lamina, std::nullopt);
    cmdDeshacer(f);
    cmdDeshacer(f);
    cmdDeshacer(f);
    EXPECT_EQ(Tormenta().recurrencia, 50);
    cmdDeshacer(f);
    EXPECT_EQ(Tormenta().avance, 0.375);
    cmdDeshacer(f);
    EXPECT_EQ(Tormenta().patron, "bloques");
}

TEST_F(TallerDeTormenta, LoQueUnCampoNoAdmiteSeDice)
{
    const auto rechaza = [&](std::string_view control, std::string TallerTormenta::*texto,
                             const char* valor) {
        m.*texto = valor;
        EXPECT_FALSE(txtNumero_AlSalir(m, f, s, control)) << control;
        return anfitrion->Avisos().back().texto;
    };
    EXPECT_EQ(rechaza("txtDuracion", &TallerTormenta::txtDuracion, "0"),
              "La duración va de 1 a 14400 minutos enteros.");
    EXPECT_EQ(rechaza("txtDuracion", &TallerTormenta::txtDuracion, "12.5"),
              "La duración va de 1 a 14400 minutos enteros.");
    EXPECT_EQ(rechaza("txtAvance", &TallerTormenta::txtAvance, "1"), "El avance va de 0.01 a 0.99.");
    EXPECT_EQ(rechaza("txtLamina", &TallerTormenta::txtLamina, "mucho"),
              "La lámina va de 0.1 a 9999 mm; vacía, la de las curvas.");
    m.txtPeriodos = "10 x";
    EXPECT_FALSE(txtPeriodos_AlSalir(m, f, s));
    EXPECT_EQ(anfitrion->Avisos().back().texto, "El período \"x\" no es un número, 0 o mayor.");
    EXPECT_EQ(Tormenta(), study::TormentaDeDiseno{});
}

TEST_F(TallerDeTormenta, UnaDuracionQueNoEsMultiploDelPasoNoPierdeNada)
{
    Pon("txtPaso", &TallerTormenta::txtPaso, "50");
    EXPECT_EQ(m.lblAvisos, "La duración debe ser un múltiplo del paso.");
    EXPECT_TRUE(m.cuadro.planilla.filas.empty());
    Pon("txtDuracion", &TallerTormenta::txtDuracion, "150");
    EXPECT_EQ(m.cuadro.planilla.filas.size(), 3U);
}

TEST_F(TallerDeTormenta, LosPeriodosPropiosSeEscribenComoSea)
{
    PonPatron("propia");
    m.txtPeriodos = "1,5 3;4,5";
    ASSERT_TRUE(txtPeriodos_AlSalir(m, f, s));
    Toma();
    // Quarters of 1/6, 1/3 and 1/2: the four halves take what is left of 100.
    EXPECT_EQ(m.diseno.plan.porcentajes, (std::vector<std::int16_t>{4, 4, 4, 4, 8, 8, 8, 8, 13, 13, 13, 13}));
}

TEST_F(TallerDeTormenta, LlenarLaTablaPreguntaDiciendoLoQueSeReemplaza)
{
    const std::string antes = disco.Bytes(Tablas);
    anfitrion->respuestas = {false};
    cmdLlenar(m, f, s);
    EXPECT_EQ(disco.Bytes(Tablas), antes);
    ASSERT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_EQ(
        anfitrion->Preguntas()[0].texto,
        "La tabla P-D-R 1 tiene 12 tormentas (Serie corta de prueba, con la misma relación que la Tabla 0), "
        "que "
        "se reemplazan. Es de todos los proyectos. ¿La llena con 238 tormentas?\n\nEl redondeo a mm enteros "
        "cambia a lo más 3.5 %: la de 5 min y 10 años, 12.44 mm, queda en 12.");
    EXPECT_TRUE(TallerDe(f).derivados.empty());
    cmdLlenar(m, f, s);
    EXPECT_EQ(HayEnTabla(s, 1).filas, 238);
    EXPECT_EQ(
        TallerDe(f).derivados,
        (std::vector<study::Derivado>{{"03/04/2011 10:20:30", "Tabla P-D-R 1",
                                       "Láminas de curvas Sherman (k 822, a 0.2, b 10, c 0.8), coeficientes "
                                       "escritos, en mm enteros"}}));
    EXPECT_EQ(m.cmdDeshacerEscritura, "Deshacer: Tabla P-D-R 1...");
    cmdDeshacerEscritura(m, f, s);
    EXPECT_EQ(disco.Bytes(Tablas), antes);
    EXPECT_TRUE(TallerDe(f).derivados.empty());
    EXPECT_TRUE(m.escrituras.empty());
}

TEST_F(TallerDeTormenta, LaConfiguracionEligeDuracionesYRecurrencias)
{
    s.Configuracion.ListaDur = {0, 10, 60};
    s.Configuracion.ListaRec = {0, 2, 100};
    m.chkConfigura = true;
    cmdLlenar(m, f, s);
    EXPECT_EQ(HayEnTabla(s, 1).filas, 4);
}

TEST_F(TallerDeTormenta, LaSerieEnUsoEsLaQueQuedaEnElArchivo)
{
    s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
    s.Tormenta.TablaPDR = 1;
    model::LeeTablaPDRs(s);
    EXPECT_EQ(s.Serie.NroSeriePDR, 12);
    cmdLlenar(m, f, s);
    EXPECT_EQ(s.Serie.NroSeriePDR, 238);
    cmdDeshacerEscritura(m, f, s);
    EXPECT_EQ(s.Serie.NroSeriePDR, 12);
}

TEST_F(TallerDeTormenta, EscribirLaDistribucionYVolver)
{
    const std::string antes = disco.Bytes(Distribuciones);
    cmbDistribucion_Click(f, 2);
    Toma();
    cmdEscribir(m, f, s);
    ASSERT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_TRUE(
        anfitrion->Preguntas()[0].texto.starts_with("La distribución personal 3 tiene 12 períodos ("));
    model::LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[3], 12);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 6), 37);
    EXPECT_EQ(s.TablasDeLluvia.DurMinPer[3], 120);
    EXPECT_TRUE(s.TablasDeLluvia.NotasDisPer[3].starts_with("Bloques alternos; 73.205 mm en 120 min"));
    disco.Pon(Distribuciones, "otra cosa");
    cmdDeshacerEscritura(m, f, s);
    EXPECT_NE(anfitrion->Avisos().back().texto.find("ya no es como quedó"), std::string::npos);
    EXPECT_EQ(disco.Bytes(Distribuciones), "otra cosa");
    EXPECT_EQ(m.escrituras.size(), 1U);
    EXPECT_EQ(TallerDe(f).derivados.size(), 1U);
    EXPECT_NE(antes, disco.Bytes(Distribuciones));
}

TEST_F(TallerDeTormenta, UnaTormentaRegistradaSeEscalaALaRecurrencia)
{
    EXPECT_EQ(m.archivos, (std::vector<std::string>{"Chica_pt.vlm"}));
    cmbArchivo_Click(m, f, 0);
    Toma();
    anfitrion->aceptaDefecto = true;
    cmdEscalar(m, f, s);
    // The record lasts two hours: 822·50^0.2/130^0.8·2 mm over its 40.
    const Grabada g = LeeGrabada(s, "Chica 73 mm_pt.vlm");
    EXPECT_EQ(g.error, "");
    EXPECT_NEAR(g.total, 73.2051, 1e-4);
    EXPECT_NEAR(g.laminas[1] / g.laminas[0], 3, 1e-6);
    EXPECT_EQ(TallerDe(f).derivados.at(0).destino, "Tormenta Chica 73 mm_pt.vlm");
    EXPECT_EQ(m.archivos.size(), 2U);
    cmdEscalar(m, f, s);
    EXPECT_EQ(anfitrion->Preguntas().back().texto,
              "La tormenta Chica 73 mm_pt.vlm ya está en el proyecto. ¿La reemplaza?");
    PonPatron("registrada");
    EXPECT_EQ(m.diseno.plan.porcentajes[0], 4);
    cmdDeshacerEscritura(m, f, s);
    cmdDeshacerEscritura(m, f, s);
    EXPECT_FALSE(disco.Esta("/proy/Chica 73 mm_pt.vlm"));
}

TEST_F(TallerDeTormenta, SinCurvasNiLaminaSeDiceQueFalta)
{
    Cambia(f, "Sin curvas", [](study::Taller& t) { t.idf = {}; });
    Toma();
    EXPECT_TRUE(m.diseno.error.starts_with("Este patrón se hace de curvas de intensidad y no las hay."))
        << m.diseno.error;
    cmdLlenar(m, f, s);
    EXPECT_EQ(anfitrion->Avisos().back().texto, "Faltan las curvas: hágalas en el paso 4.");
    PonPatron("huff");
    EXPECT_TRUE(m.diseno.error.starts_with("Falta la lámina: escríbala, o haga las curvas."))
        << m.diseno.error;
    Pon("txtLamina", &TallerTormenta::txtLamina, "40");
    EXPECT_EQ(m.diseno.error, "");
}

}  // namespace
}  // namespace frequency
