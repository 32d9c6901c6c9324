// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart2.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "engine/RedDeUEHs.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"

namespace results {
namespace {

using forms::EscalaCategorias;
using forms::Grafico;
using forms::Serie;
using forms::TipoGrafico;
using forms::TipoSerie;

using model::Icono;
using model::Mensaje;
using model::Siro;
using Celdas = std::vector<double>;
using Textos = std::vector<std::string>;

// --- results written by hand ---

/// Five output steps of 10 min in model steps of 20 min, so r = 2; a storm of 30 mm in 30 min. Rows: u-1,
/// c-1, l-1, r-2, of which r-2 is the second Represa and the outfall.
class GraficoQ : public testing::Test {
  protected:
    GraficoQ()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Resultados.Secuencia = {"", "u-1", "c-1", "l-1", "r-2"};
        s.Resultados.NroComponentes = 4;
        s.Red.ColUEHs.Anuncia(1);
        s.Red.ColCauces.Anuncia(1);
        s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .numRepresa = 1});
        s.Red.ColRepresas.Agrega({.NombreRepresa = "r-2", .numRepresa = 2});
        s.Red.ColLagos.Agrega({.NombreLAGO = "l-1", .numLAGO = 1});
        s.Resultados.Salidas[1] = "r-2";
        s.Resultados.NroSalidas = 1;
        s.Tormenta.PpTormenta = 30;
        s.Tormenta.DurTormenta = 30;
        s.Pasos.PasoPp = 20;
        s.Pasos.PasoQ = 10;
        s.Resultados.NroPasosQ = 5;
        s.Tormenta.NroPpReal = 1;
        LlenaResultados();
    }
    /// At step i: outflow of row c, c + i/8; inflow 10c + i; heights 100 + i and 200 + i.
    void LlenaResultados()
    {
        s.Resultados.QSale.Dimensiona(4, 6);
        s.Resultados.QEntra.Dimensiona(2, 5, 6);
        s.Resultados.PpUEHPaso.Dimensiona(1, 4);
        s.Resultados.HRepresa.Dimensiona(2, 6);
        s.Resultados.HLago.Dimensiona(1, 6);
        for (int i = 1; i <= 5; ++i) {
            for (int c = 1; c <= 4; ++c)
                s.Resultados.QSale(c, i) = static_cast<float>(c) + static_cast<float>(i) / 8;
            for (int c = 2; c <= 4; ++c)
                s.Resultados.QEntra(c, i) = static_cast<float>(10 * c + i);
            s.Resultados.HRepresa(2, i) = static_cast<float>(100 + i);
            s.Resultados.HLago(1, i) = static_cast<float>(200 + i);
        }
        s.Resultados.PpUEHPaso(1, 1) = 20;
        s.Resultados.PpUEHPaso(1, 2) = 10;
        s.Resultados.PpUEHPaso(1, 3) = 8;  // beyond the rows that may show it
    }
    void AbreEn(std::int16_t componente)
    {
        s.Control.IndComp = componente;
        OKButton(f);
        Abre(f, s);
    }
    const Serie& SerieNro(std::size_t n) const { return f.Grafico.series.at(n - 1); }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgChart2 f;
};

TEST_F(GraficoQ, UnaUEHMuestraSuCaudalYSuLluviaRepartidaEnLosPasosDeSalida)
{
    AbreEn(1);
    EXPECT_EQ(f.Grafico.tipo, TipoGrafico::Combinacion);
    ASSERT_EQ(f.Grafico.series.size(), 2U);
    EXPECT_EQ(SerieNro(1), (Serie{TipoSerie::Linea2D, "Qsale", false, {1.125, 1.25, 1.375, 1.5, 1.625}}));
    // 20 mm over rows 1 and 2, 10 mm over rows 3 and 4; row 5 is at 50 min, not below 30 + 20.
    EXPECT_EQ(SerieNro(2), (Serie{TipoSerie::Escalon2D, "Pp", true, {10, 10, 5, 5, 0}}));
    EXPECT_EQ(f.Grafico.ejeY, "Caudal [m3/s]");
    EXPECT_EQ(f.Grafico.ejeYSecundario, "Precipitación [mm]");
    EXPECT_TRUE(f.Grafico.leyendaVisible);
    EXPECT_FALSE(f.Grafico.marcasEjeX);
}

// --- observed flows that are handed in ---

/// u-1 was observed in two events, c-1 in one.
std::vector<Observado> DosEventos(const std::string& componente)
{
    if (componente == "u-1") return {{"Marzo", {{0, 9}, {10, 1}, {23, 2.5}, {70, 3}}}, {"Abril", {{50, 7}}}};
    if (componente == "c-1") return {{"Abril", {{30, 4}}}};
    return {};
}

TEST_F(GraficoQ, SinNadaObservadoTodoQuedaComoEstaba)
{
    AbreEn(1);
    const Grafico antes = f.Grafico;
    f.Observados = [](const std::string&) { return std::vector<Observado>{}; };
    AbreEn(1);
    EXPECT_EQ(f.Grafico, antes);
    EXPECT_TRUE(f.cmbObservado.empty());
}

TEST_F(GraficoQ, LoObservadoSeMuestraComoPuntosYSeElige)
{
    f.Observados = DosEventos;
    AbreEn(1);
    ASSERT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(SerieNro(3), (Serie{TipoSerie::Puntos2D,
                                  "Observado: Marzo",
                                  false,
                                  {1, 2.5, forms::CeldaVacia, forms::CeldaVacia, forms::CeldaVacia}}));
    EXPECT_EQ(f.cmbObservado, (Textos{"No mostrar", "Marzo", "Abril"}));
    EXPECT_EQ(f.cmbObservadoIndice, 1);
    EXPECT_EQ(f.Grafico.salvedad,
              "Cada valor observado está en el paso de salida más cercano a su hora. "
              "Lecturas que no se muestran: 2.");
    cmbObservado_Click(f, 2);
    EXPECT_EQ(SerieNro(3).leyenda, "Observado: Abril");
    EXPECT_EQ(SerieNro(3).celdas[4], 7);
    cmbObservado_Click(f, 0);
    EXPECT_EQ(f.Grafico.series.size(), 2U);
    EXPECT_EQ(f.Grafico.salvedad, "");
    EXPECT_EQ(f.cmbObservadoIndice, 0);
    lstCompos_Click(f, s);
    EXPECT_EQ(f.Grafico.series.size(), 2U) << "what was switched off stays off";
    cmbObservado_Click(f, 1);
    EXPECT_EQ(SerieNro(3).leyenda, "Observado: Marzo");
}

TEST_F(GraficoQ, OtroComponenteTieneLoSuyoYElQueNoTieneNadaNingunaLista)
{
    f.Observados = DosEventos;
    AbreEn(1);
    f.lstComposIndice = 1;
    lstCompos_Click(f, s);
    ASSERT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(SerieNro(3).leyenda, "Observado: Abril");
    EXPECT_EQ(SerieNro(3).celdas[2], 4);
    f.lstComposIndice = 2;
    lstCompos_Click(f, s);
    EXPECT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(SerieNro(3).leyenda, "Qsale");
    EXPECT_TRUE(f.cmbObservado.empty());
    f.Observados = [](const std::string& c) { return DosEventos(c == "l-1" ? "u-1" : c); };
    PonObservado(f);
    EXPECT_EQ(f.Grafico.series.size(), 4U);
    PonObservado(f);
    EXPECT_EQ(f.Grafico.series.size(), 4U);
    EXPECT_TRUE(f.Grafico.salvedad.starts_with("Los nombres Qentra y Qsale")) << f.Grafico.salvedad;
}

TEST_F(GraficoQ, UnCauceMuestraLoQueSaleYLoQueEntra)
{
    AbreEn(2);
    EXPECT_EQ(f.Grafico.tipo, TipoGrafico::Linea);
    ASSERT_EQ(f.Grafico.series.size(), 2U);
    EXPECT_EQ(SerieNro(1), (Serie{TipoSerie::Linea2D, "Qsale", false, {2.125, 2.25, 2.375, 2.5, 2.625}}));
    EXPECT_EQ(SerieNro(2), (Serie{TipoSerie::Linea2D, "Qentra", false, {21, 22, 23, 24, 25}}));
    EXPECT_EQ(f.Grafico.ejeYSecundario, "Caudal [m3/s]");
}

TEST_F(GraficoQ, UnLagoLlevaLasLeyendasCambiadasYSuNivelEnElEjeSecundario)
{
    AbreEn(3);
    EXPECT_EQ(f.Grafico.tipo, TipoGrafico::Linea);
    ASSERT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(SerieNro(1),
              (Serie{TipoSerie::Linea2D, "Qentra", false, {3.125, 3.25, 3.375, 3.5, 3.625}}));  // QSale
    EXPECT_EQ(SerieNro(2), (Serie{TipoSerie::Linea2D, "HEmbalse", true, {201, 202, 203, 204, 205}}));
    EXPECT_EQ(SerieNro(3), (Serie{TipoSerie::Linea2D, "Qsale", false, {31, 32, 33, 34, 35}}));  // QEntra
    EXPECT_EQ(f.Grafico.ejeYSecundario, "H Embalse [m]");
}

TEST_F(GraficoQ, UnaRepresaTomaSuNivelPorSuNumero)
{
    AbreEn(4);
    ASSERT_EQ(f.Grafico.series.size(), 3U);
    EXPECT_EQ(SerieNro(1).leyenda, "Qentra");
    EXPECT_EQ(SerieNro(1).celdas, (Celdas{4.125, 4.25, 4.375, 4.5, 4.625}));
    EXPECT_EQ(SerieNro(2).leyenda, "HEmbalse");
    EXPECT_TRUE(SerieNro(2).ejeSecundario);
    EXPECT_EQ(SerieNro(2).celdas, (Celdas{101, 102, 103, 104, 105}));
    EXPECT_EQ(SerieNro(3).leyenda, "Qsale");
    EXPECT_EQ(SerieNro(3).celdas, (Celdas{41, 42, 43, 44, 45}));
    EXPECT_EQ(f.Grafico.ejeYSecundario, "H Embalse [m]");
}

TEST_F(GraficoQ, LoQueSaleSeRedondeaA3DecimalesYLoQueEntraNo)
{
    s.Resultados.QSale(2, 1) = 1.23456F;
    s.Resultados.QSale(2, 2) = 0.0004F;
    s.Resultados.QEntra(2, 1) = 1.23456F;
    AbreEn(2);
    EXPECT_EQ(SerieNro(1).celdas[0], double{1.235F});
    EXPECT_EQ(SerieNro(1).celdas[1], 0);
    EXPECT_EQ(SerieNro(2).celdas[0], double{1.23456F});
}

TEST_F(GraficoQ, AbreEnHorasYLaPrimeraFilaEstaUnPasoDespuesDelComienzo)
{
    AbreEn(1);
    EXPECT_FALSE(f.MinutosEjeX);
    EXPECT_EQ(f.Grafico.ejeX, "horas");
    // 10/60 = 0.1666, 20/60 = 0.3333, 0.5, 0.6666, 0.8333: cut
    EXPECT_EQ(f.Grafico.categorias, (Textos{"0.16", "0.33", "0.5", "0.66", "0.83"}));
    cmdHsMin(f, s);
    EXPECT_EQ(f.Grafico.ejeX, "minutos");
    EXPECT_EQ(f.Grafico.categorias, (Textos{"10", "20", "30", "40", "50"}));
    cmdHsMin(f, s);
    EXPECT_EQ(f.Grafico.ejeX, "horas");
}

TEST_F(GraficoQ, ConPasosIgualesCadaFilaEsLaLluviaDelPaso)
{
    s.Pasos.PasoPp = 10;
    s.Resultados.PpUEHPaso(1, 3) = 7;
    s.Resultados.PpUEHPaso(1, 4) = 9;
    AbreEn(1);
    // Rows below 30 + 10 min.
    EXPECT_EQ(SerieNro(2).celdas, (Celdas{20, 10, 7, 0, 0}));
}

TEST_F(GraficoQ, PasosQueNoSonMultiplosSeDicenYNoSeDibuja)
{
    const Mensaje mensaje = {
        "Error, el paso de salida (Q) debe ser múltiplo del paso de cálculo (Pp). Verifique la carga en "
        "\\Entradas\\Preicpitaciones...",
        "Advertencia !", Icono::Exclamacion};
    AbreEn(2);
    const Grafico antes = f.Grafico;
    for (const auto paso : std::to_array<std::int16_t>({15, 5})) {  // 1.5 and the reverse, 0.5
        anfitrion->sucesos.clear();
        s.Pasos.PasoPp = paso;
        Redibuja(f, s);
        EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{mensaje}));
        EXPECT_EQ(f.Grafico, antes);
    }
}

TEST_F(GraficoQ, UnPasoDeSalidaEnCeroEsUnaFallaYElGraficoQueda)
{
    AbreEn(2);
    const Grafico antes = f.Grafico;
    s.Pasos.PasoQ = 0;
    Redibuja(f, s);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 11 ,División por ceroVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(f.Grafico, antes);
}

TEST_F(GraficoQ, UnNombreSinObjetoSeMuestraSinNivel)
{
    s.Red.ColRepresas.Vacia();  // another project was opened since
    s.Red.ColLagos.Vacia();
    for (const auto componente : std::to_array<std::int16_t>({3, 4})) {
        AbreEn(componente);
        ASSERT_EQ(f.Grafico.series.size(), 3U);
        EXPECT_EQ(SerieNro(2).celdas, (Celdas{0, 0, 0, 0, 0}));
        EXPECT_EQ(SerieNro(3).celdas[0], 10 * componente + 1);
    }
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GraficoQ, UnNombreSinPrefijoMuestraSoloSuCaudal)
{
    s.Resultados.Secuencia[2] = "x-9";
    AbreEn(2);
    ASSERT_EQ(f.Grafico.series.size(), 1U);
    EXPECT_EQ(SerieNro(1).celdas[0], 2.125);
}

TEST_F(GraficoQ, UnaSecuenciaMasCortaQueSuCuentaEsUnaFallaYNoMas)
{
    AbreEn(1);
    s.Resultados.Secuencia.resize(2);
    s.Control.IndComp = 4;
    Redibuja(f, s);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", Icono::Ninguno}}));
}

// --- titles ---

TEST_F(GraficoQ, ElTituloDiceElComponenteYLaTormenta)
{
    AbreEn(2);
    EXPECT_EQ(f.lblTitulo, "Componente: 2, c-1   Pp= 30mm;  D= 30 min ;   paso = 10 min");
    EXPECT_EQ(f.lblNota, "SIRO: Modelo hidrológico de simulación lluvia-caudal");
}

TEST_F(GraficoQ, ElTituloDeUnaSalidaConRecurrencia)
{
    s.Tormenta.RecTormenta = 25;
    AbreEn(4);
    EXPECT_EQ(f.lblTitulo,
              "Componente Final: 4, r-2   Pp= 30mm;  D= 30 min ;   Recurrencia = 25 años   paso = 10 min");
}

TEST_F(GraficoQ, UnaSalidaMasAllaDeSuCuentaNoEsFinal)
{
    s.Resultados.NroSalidas = 0;
    AbreEn(4);
    EXPECT_TRUE(f.lblTitulo.starts_with("Componente: 4, r-2"));
}

// --- opening, list, closing ---

TEST_F(GraficoQ, AlAbrirLlenaLaListaYLosDeslizadores)
{
    s.Tormenta.PpTormenta = 62.5F;
    AbreEn(2);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lstCompos, (Textos{"u-1", "c-1", "l-1", "r-2"}));
    EXPECT_EQ(f.lstComposIndice, 1);
    EXPECT_EQ(f.lblPp, "Pp");
    EXPECT_EQ(f.lblDur, "D ");
    EXPECT_EQ(f.sldPp, (Deslizador{0, 999, 1, 5, 62}));  // a tie goes to the even millimetre
    EXPECT_EQ(f.sldDur, (Deslizador{5, 2880, 1, 5, 30}));
    EXPECT_TRUE(f.vista.deslizadores);
}

TEST_F(GraficoQ, LosDeslizadoresNoSalenDeSusTopes)
{
    s.Tormenta.PpTormenta = 1200;
    s.Tormenta.DurTormenta = 3;
    AbreEn(2);
    EXPECT_EQ(f.sldPp.valor, 999);
    EXPECT_EQ(f.sldDur.valor, 5);
    EXPECT_EQ(s.Tormenta.DurTormenta, 3);  // nothing ran
    s.Tormenta.DurTormenta = 2881;
    AbreEn(2);
    EXPECT_EQ(f.sldDur.valor, 2880);
}

TEST_F(GraficoQ, UnComponenteFueraDeLaListaEsElPrimero)
{
    for (const auto componente : std::to_array<std::int16_t>({-1, 0, 5})) {
        AbreEn(componente);
        EXPECT_EQ(s.Control.IndComp, 1) << componente;
        EXPECT_EQ(f.lstComposIndice, 0);
        EXPECT_TRUE(f.lblTitulo.starts_with("Componente: 1, u-1"));
    }
    AbreEn(4);
    EXPECT_EQ(s.Control.IndComp, 4);
}

TEST_F(GraficoQ, UnaCorridaNuevaNoRefrescaLaVentanaAbiertaSinoPorSusMandos)
{
    AbreEn(1);
    cmdHsMin(f, s);
    const Grafico antes = f.Grafico;
    s.Tormenta.PpTormenta = 99;
    s.Resultados.QSale(1, 1) = 12345;
    Abre(f, s);
    EXPECT_EQ(f.Grafico, antes);
    EXPECT_TRUE(f.MinutosEjeX);
    lstCompos_Click(f, s);
    EXPECT_NE(f.Grafico, antes);
    EXPECT_NE(f.lblTitulo.find("Pp= 99mm"), std::string::npos);
}

TEST_F(GraficoQ, SeCierraAlAbrirSinResultadosSinComponentesOEnUnaSerie)
{
    s.Resultados.NroPasosQ = 0;
    AbreEn(1);
    EXPECT_FALSE(f.abierta);
    s.Resultados.NroPasosQ = 5;
    s.Tormenta.FormaPp = 2;
    AbreEn(1);
    EXPECT_FALSE(f.abierta);
    s.Tormenta.FormaPp = 0;
    s.Resultados.NroComponentes = 0;
    AbreEn(1);
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(f.Grafico.series.empty());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GraficoQ, ElegirUnComponenteLoDibuja)
{
    AbreEn(1);
    f.lstComposIndice = 3;
    lstCompos_Click(f, s);
    EXPECT_EQ(s.Control.IndComp, 4);
    EXPECT_TRUE(f.lblTitulo.starts_with("Componente Final: 4, r-2"));
    f.lstComposIndice = -1;
    lstCompos_Click(f, s);
    EXPECT_EQ(s.Control.IndComp, 4);
}

TEST_F(GraficoQ, ElegirConMenosComponentesQuedaEnElUltimo)
{
    AbreEn(1);
    s.Resultados.NroComponentes = 3;
    f.lstComposIndice = 3;
    lstCompos_Click(f, s);
    EXPECT_EQ(s.Control.IndComp, 3);
    s.Resultados.NroComponentes = 0;
    lstCompos_Click(f, s);
    EXPECT_FALSE(f.abierta);
}

TEST_F(GraficoQ, RedibujarSinPasosCierra)
{
    AbreEn(1);
    s.Resultados.NroPasosQ = 0;
    Redibuja(f, s);
    EXPECT_FALSE(f.abierta);
}

TEST_F(GraficoQ, DesdeLaForma2EnAdelanteNoHayDeslizadores)
{
    for (const auto forma : std::to_array<std::int16_t>({0, 1, 3, 4})) {
        s.Tormenta.FormaPp = forma;
        AbreEn(1);
        EXPECT_EQ(f.vista.deslizadores, forma <= 1) << forma;
    }
}

TEST_F(GraficoQ, DividirElEjeXDuplicaLasDivisionesYSobreviveAlRedibujo)
{
    AbreEn(1);
    EXPECT_TRUE(f.Grafico.escala.automatica);
    cmdXmas(f);
    cmdXmas(f);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 4, 2, true}));
    Redibuja(f, s);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 4, 2, true}));
    cmdXmenos(f);
    EXPECT_EQ(f.Grafico.escala, (EscalaCategorias{false, 2, 1, true}));
}

TEST_F(GraficoQ, ImprimirOcultaLosMandosYLosDevuelve)
{
    s.Tormenta.FormaPp = 4;  // its sliders are hidden and must stay so
    AbreEn(1);
    const VistaChart2 antes = f.vista;
    AntesDeImprimir(f);
    EXPECT_EQ(f.vista, (VistaChart2{false, false, false, true}));
    DespuesDeImprimir(f);
    EXPECT_EQ(f.vista, antes);
    OKButton(f);
    EXPECT_FALSE(f.abierta);
}

// --- the menu's command ---

TEST_F(GraficoQ, ElMenuPideTormentaBloquesYPasos)
{
    s.Control.IndComp = 9;
    EXPECT_TRUE(mnuHidrogramas(s));
    EXPECT_EQ(s.Control.IndComp, 1);
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
    s.Control.SalidaPizarra = true;
    EXPECT_TRUE(mnuHidrogramas(s));
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
    for (std::int16_t* campo : {&s.Resultados.NroPasosQ, &s.Tormenta.NroPpReal, &s.Tormenta.DurTormenta}) {
        const std::int16_t antes = *campo;
        *campo = 0;
        EXPECT_FALSE(mnuHidrogramas(s));
        *campo = antes;
    }
    s.Tormenta.PpTormenta = 0;
    EXPECT_FALSE(mnuHidrogramas(s));
}

// --- sliders ---

/// One UEH of 6 ha, whole runoff, one step of delay: 60 mm in 30 min are 20 mm in each step of 10 min, and
/// 20/10·0.166667·6 = 2.000004 m3/s, 2 in the cells.
class Deslizadores : public testing::Test {
  protected:
    Deslizadores()
    {
        red.PonUEH("u-1", "c-1");
        red.PonCauce("c-1", "0");
    }
    void Corre()
    {
        engine::ConstruyeHietograma(s);
        ASSERT_TRUE(engine::ProcesoPrincipal(s, false));
        Abre(f, s);
        red.anfitrion->sucesos.clear();
    }
    Celdas Caudal(std::size_t pasos) const { return Primeras(0, pasos); }
    Celdas Lluvia(std::size_t pasos) const { return Primeras(1, pasos); }
    Celdas Primeras(std::size_t serie, std::size_t pasos) const
    {
        Celdas celdas = f.Grafico.series.at(serie).celdas;
        celdas.resize(pasos, -1);
        return celdas;
    }

    pruebas::RedDeUEHs red;
    Siro& s = red.s;
    dlgChart2 f;
};

TEST_F(Deslizadores, ElDeLaDuracionCorreDeNuevoConEsaDuracion)
{
    Corre();
    ASSERT_EQ(Caudal(4), (Celdas{2, 2, 2, 0}));
    ASSERT_EQ(Lluvia(4), (Celdas{20, 20, 20, 0}));
    sldDur_Mueve(f, s, 60);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(f.sldDur.valor, 60);
    // 10 mm in each of six steps; 60 + 20 min are eight rows.
    EXPECT_EQ(f.Grafico.categorias.size(), 8U);
    EXPECT_EQ(Caudal(7), (Celdas{1, 1, 1, 1, 1, 1, 0}));
    EXPECT_EQ(f.lblTitulo, "Componente: 1, u-1   Pp= 60mm;  D= 60 min ;   paso = 10 min");
    EXPECT_TRUE(red.anfitrion->sucesos.empty());
}

TEST_F(Deslizadores, ElDeLaLluviaCorreDeNuevoConEsaLluvia)
{
    Corre();
    sldPp_Mueve(f, s, 120);
    EXPECT_EQ(s.Tormenta.PpTormenta, 120);
    EXPECT_EQ(Caudal(4), (Celdas{4, 4, 4, 0}));
    EXPECT_EQ(Lluvia(4), (Celdas{40, 40, 40, 0}));
}

TEST_F(Deslizadores, ElDeLaLluviaVuelveAlPasoPp)
{
    Corre();
    sldPp_Mueve(f, s, 9);
    EXPECT_EQ(f.sldPp.valor, 10);
    EXPECT_EQ(s.Tormenta.PpTormenta, 10);
    sldPp_Mueve(f, s, 10);
    EXPECT_EQ(f.sldPp.valor, 10);
    sldPp_Mueve(f, s, 11);
    EXPECT_EQ(s.Tormenta.PpTormenta, 11);
    s.Pasos.PasoPp = s.Pasos.PasoQ = 60;
    sldPp_Mueve(f, s, 20);  // with steps of 60 min no storm of 20 mm
    EXPECT_EQ(s.Tormenta.PpTormenta, 60);
    EXPECT_EQ(f.sldPp.valor, 60);
}

TEST_F(Deslizadores, ElDeLaDuracionNoMiraElPasoPp)
{
    Corre();
    sldDur_Mueve(f, s, 5);
    EXPECT_EQ(s.Tormenta.DurTormenta, 5);  // below the model step of 10 min
    sldDur_Mueve(f, s, 4);
    EXPECT_EQ(s.Tormenta.DurTormenta, 5);  // the slider's own end
}

TEST_F(Deslizadores, UnaTormentaMasCortaQueElPasoPpLlueveEnRFilasALoSumo)
{
    // Steps of 20 and 10 min, r = 2: the 60 mm fall in the first model step, half in each of its rows.
    s.Pasos.PasoPp = 20;
    for (const auto duracion : std::to_array<std::int16_t>({5, 10, 15, 19})) {
        s.Tormenta.DurTormenta = duracion;
        Corre();
        Celdas lluvia = f.Grafico.series.at(1).celdas;
        ASSERT_GE(lluvia.size(), 3U);
        EXPECT_FLOAT_EQ(static_cast<float>(lluvia[0]), 30) << duracion;
        EXPECT_FLOAT_EQ(static_cast<float>(lluvia[1]), 30) << duracion;
        for (std::size_t i = 2; i < lluvia.size(); ++i)
            EXPECT_EQ(lluvia[i], 0) << duracion;
    }
}

TEST_F(Deslizadores, SinLluviaPeroConDuracionCorreYNoTermina)
{
    Corre();
    s.Tormenta.PpTormenta = 0;
    sldDur_Mueve(f, s, 60);
    EXPECT_FALSE(red.anfitrion->Termino());
    EXPECT_EQ(Caudal(3), (Celdas{0, 0, 0}));
    // The slider itself reaches 0 with a model step of 0 only.
    s.Pasos.PasoPp = 0;
    sldPp_Mueve(f, s, 0);
    EXPECT_EQ(s.Tormenta.PpTormenta, 0);
    EXPECT_FALSE(red.anfitrion->Termino());
}

TEST_F(Deslizadores, SinLluviaNiDuracionElProgramaTermina)
{
    Corre();
    s.Pasos.PasoPp = 0;
    s.Tormenta.DurTormenta = 0;
    EXPECT_THROW(sldPp_Mueve(f, s, 0), model::FinDelPrograma);
    EXPECT_TRUE(red.anfitrion->Termino());
}

TEST_F(Deslizadores, ConLaPizarraAbiertaSuTextoEmpiezaDeNuevoConInicia)
{
    Corre();
    s.Control.SalidaPizarra = true;
    red.anfitrion->pizarra = "la corrida anterior";
    sldDur_Mueve(f, s, 60);
    EXPECT_TRUE(red.anfitrion->pizarra.starts_with("inicia\r\nEntrada: PRECIPITACION"));
    EXPECT_EQ(s.Control.TextoPizarra, red.anfitrion->pizarra);
}

TEST_F(Deslizadores, ConLaPizarraCerradaSuTextoQuedaYElArchivoSeEscribe)
{
    Corre();
    red.anfitrion->pizarra = "la corrida anterior";
    ASSERT_FALSE(red.disco.Esta("/trabajo/SalePizarra1_tem.txt"));
    sldPp_Mueve(f, s, 120);
    EXPECT_TRUE(red.anfitrion->pizarra.starts_with("la corrida anterior"));
    EXPECT_EQ(red.anfitrion->pizarra.find("inicia"), std::string::npos);
    EXPECT_TRUE(red.disco.Esta("/trabajo/SalePizarra1_tem.txt"));
}

TEST_F(Deslizadores, NadaSeVuelveALeerDelDisco)
{
    Corre();
    red.disco.OlvidaLlamadas();
    sldPp_Mueve(f, s, 100);
    for (const auto& llamada : red.disco.Llamadas())
        EXPECT_NE(llamada.clase, apoyo::DiscoPrueba::Clase::Lee) << llamada.ruta;
}

TEST_F(Deslizadores, MuchosMovimientosDanLoMismoQueUnaCorridaSola)
{
    Corre();
    f.lstComposIndice = 1;
    lstCompos_Click(f, s);
    for (const int dur : {40, 90, 15, 120, 45})
        sldDur_Mueve(f, s, dur);
    sldPp_Mueve(f, s, 75);

    pruebas::RedDeUEHs otra;
    otra.PonUEH("u-1", "c-1");
    otra.PonCauce("c-1", "0");
    otra.s.Tormenta.PpTormenta = 75;
    otra.s.Tormenta.DurTormenta = 45;
    engine::ConstruyeHietograma(otra.s);
    ASSERT_TRUE(engine::ProcesoPrincipal(otra.s, false));
    otra.s.Control.IndComp = 2;
    dlgChart2 g;
    Abre(g, otra.s);
    EXPECT_EQ(f.Grafico, g.Grafico);
    EXPECT_EQ(f.lblTitulo, g.lblTitulo);
}

}  // namespace
}  // namespace results
