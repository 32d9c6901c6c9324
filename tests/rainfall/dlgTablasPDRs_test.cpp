// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablasPDRs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"

namespace rainfall {
namespace {

using model::Icono;
using model::Mensaje;
using model::Siro;
using Textos = std::vector<std::string>;

const Mensaje NroMalo = {"Ingrese un valor numérico entero entre 0 y 999 ", "", Icono::Ninguno};
const Mensaje Inconsistentes = {
    "Hay datos inconsistentes. Las filas de tormentas PDR deben ser crecientes en P, D y R. Las Duraciones: "
    "5, 10, "
    "15, 20, 30, 60, 90, 120, 180, 300, 360, 540, 720 ó 1440). Las Recurrrencias: 2, 5, 10, 20, 25, 40, 50, "
    "100, "
    "200, 500, 1000, 2000, 5000, 10000). Verifique",
    "Advertencia !!!", Icono::Exclamacion};
const Mensaje Desbordamiento = {"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno};
const std::string Ruta = "/trabajo/TablasPDRs_pdr.vlm";

class DialogoTablasPDRs : public testing::Test {
  protected:
    DialogoTablasPDRs()
    {
        s.Anfitrion = anfitrion.Puerta();
        PonProyectoDeLluvia(s, disco);
        s.Tormenta.FormaPp = 2;
        rainfall::Abre(pp, s);
    }
    void Abre(int tabla)
    {
        optTablaPDR_Click(pp, tabla);
        rainfall::Abre(f, pp, s);
    }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }
    forms::Grilla& G() { return f.MSFlexGridTablaPDRs; }
    Textos Fila(int j) { return {G().Texto({j, 1}), G().Texto({j, 2}), G().Texto({j, 3})}; }
    void PonNro(const std::string& n)
    {
        f.txtNroPDRs = n;
        EXPECT_TRUE(txtNroPDRs_AlSalir(f, s));
    }
    /// Opens table 2, gives it these rows, tabs between cells, and applies.
    void Aplica(int n, const std::string& filas)
    {
        anfitrion->sucesos.clear();
        Abre(2);
        PonNro(std::to_string(n));
        forms::Pega(G(), s, filas);
        Aplica();
    }
    void Aplica()
    {
        disco.OlvidaLlamadas();
        cmdAplicar(f, pp, s);
        escrito = !disco.Llamadas().empty();
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    dlgTablasPDRs f;
    bool escrito = false;
};

TEST(TextosDeDlgTablasPDRs, LasLeyendasEstanLetraPorLetra)
{
    const auto fila = [](const char* nombre) { return RotuloDe(LeyendasDlgTablasPDRs, nombre); };
    EXPECT_EQ(TituloDlgTablasPDRs, "Tablas de Precipitación [mm] - Duración [min] - Recurrencia [años]");
    EXPECT_EQ(fila("cmbNroTablaPDRs").leyenda, "Tabla   Nro.:");
    EXPECT_EQ(fila("cmbNroTablaPDRs").ayuda,
              "Seleccione '0' para la Tabla por Defecto (Región del VIRSo, Sorelo, Argentina). O seleccine "
              "1, 2 o 3 "
              "para cargar o corregir tablas personalizadas de Pp-D-R regionales");
    EXPECT_EQ(fila("txtNroPDRs").leyenda, "Número de tormentas Pp-D-R:");
    EXPECT_EQ(fila("txtNotas").leyenda, "Observaciones / Notas:");
    EXPECT_EQ(fila("MSFlexGridTablaPDRs").leyenda,
              "Precipitación  P[mm], Duración D[min], Recurrencia R[años]");
    EXPECT_EQ(fila("MSFlexGridTablaPDRs").ayuda,
              "Cargue los datos siguiendo en forma ordenada y creciente segun el ejemplo de la Tabla '0'");
    EXPECT_EQ(fila("cmdBorraTablaDisPer").leyenda, "Borrar Tabla");
    EXPECT_EQ(fila("MarcoNotas").leyenda, "Notas:");
    EXPECT_EQ(
        NotasFijasPDRs[0],
        "Las Tablas Pp-D-R o tablas de Precipitación, Duración, Recurrencia, caractérizan una región en "
        "estudio.");
    EXPECT_EQ(
        NotasFijasPDRs[1],
        "Permiten ingresar como entradas un conjunto de tormentas sintéticas, de duración y recurrencia "
        "crecientes. El modelo efectúa corridas integradas para estimar los hidrogramas de cada tormenta. "
        "Produce como resultados tablas resúmenes y gráficos de Caudales máximos y Escorrentías en  función "
        "de "
        "la Duración D y de la Recurrencia R. (Gráficos Qp-D-R  y  E-D-R)");
    EXPECT_EQ(
        NotasFijasPDRs[2],
        "Dispone en la Opción '0' la Tabla para la región del Valle Inferior del Río Sorelo, VIRSo  (Ruvera, "
        "Argentina),  y puede construir hasta 3 tablas personalizadas.");
}

// --- opening ---

TEST_F(DialogoTablasPDRs, AlAbrirMuestraLaTablaDeLaOpcionDeDlgPp)
{
    Abre(1);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.cmbNroTablaPDRs.items, (Textos{"0", "1", "2", "3"}));
    EXPECT_EQ(f.Tabla(), 1);
    EXPECT_TRUE(f.editable);
    EXPECT_EQ(f.txtNotas, "t1");
    EXPECT_EQ(f.txtNroPDRs, "1");
    EXPECT_EQ(Fila(1), (Textos{"25", "45", "10"}));
    Textos titulos;
    for (const auto& columna : G().columnas)
        titulos.push_back(columna.titulo);
    EXPECT_EQ(titulos, (Textos{"Nro.  ", " Pp [mm]  ", "D [min]  ", "R [años]  "}));
}

TEST_F(DialogoTablasPDRs, SinArchivoSeAbreVaciaYSePuedeEscribir)
{
    disco.Quita(Ruta);
    Abre(3);
    EXPECT_EQ(f.txtNroPDRs, "0");
    PonNro("1");
    forms::Pega(G(), s, "10\t5\t2\n");
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(disco.Bytes(Ruta), "0,0,0,1\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n10,5,2\r\n");
}

TEST_F(DialogoTablasPDRs, OtraTablaMarcaSuOpcionEnDlgPp)
{
    Abre(1);
    f.cmbNroTablaPDRs.indice = 0;
    cmbNroTablaPDRs_Click(f, pp, s);
    EXPECT_EQ(pp.optTablaPDR, 0);
    EXPECT_FALSE(f.editable);
    EXPECT_EQ(f.txtNotas, "t0");
    EXPECT_EQ(G().NroFilas(), 2);
}

// --- table 0 ---

TEST_F(DialogoTablasPDRs, LaTablaCeroNoSeEdita)
{
    Abre(0);
    for (const auto& columna : G().columnas)
        EXPECT_FALSE(columna.editable);
    forms::Escribe(G(), s, "9");
    EXPECT_EQ(Fila(1), (Textos{"30", "60", "2"}));
    f.txtNroPDRs = "x";
    EXPECT_TRUE(txtNroPDRs_AlSalir(f, s));
    f.txtNotas = "otras";
    txtNotas_Change(f, s);
    EXPECT_EQ(s.TablasDeLluvia.NotasPDR[0], "t0");
    const std::string antes = disco.Bytes(Ruta);
    cmdBorraTablaDisPer(f, s);
    EXPECT_EQ(G().NroFilas(), 2);
    EXPECT_EQ(disco.Bytes(Ruta), antes);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoTablasPDRs, AceptarNoCierraSiElDiscoRechazaLaTabla)
{
    Aplica(1, "10\t5\t2");
    const std::string antes = disco.Bytes(Ruta);
    disco.Protege(Ruta);
    OKButton(f, pp, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(disco.Bytes(Ruta), antes);
    disco.Protege(Ruta, false);
    OKButton(f, pp, s);
    EXPECT_FALSE(f.abierta);
}

TEST_F(DialogoTablasPDRs, AplicarLaTablaCeroCargaLaSerieYNoEscribe)
{
    Abre(0);
    disco.OlvidaLlamadas();
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(disco.Llamadas().empty());
    EXPECT_EQ(s.Serie.NroSeriePDR, 2);
    EXPECT_EQ(s.Serie.SerieP(2), 40.0F);
    EXPECT_EQ(s.Serie.SerieD(2), 90);
    EXPECT_EQ(s.Serie.SerieR(2), 5);
    EXPECT_EQ(pp.txtPp, "30");
    EXPECT_EQ(pp.txtDur, "60");
    EXPECT_EQ(pp.cmbRec, "2");
    EXPECT_EQ(s.Tormenta.PpTormenta, 30.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(s.Tormenta.RecTormenta, 2);
}

// --- controls ---

TEST_F(DialogoTablasPDRs, ElNumeroDeTormentasEsEnteroDe0A999)
{
    Abre(1);
    for (const char* malo : {"-1", "1000", "1.5", "", "a"}) {
        anfitrion->sucesos.clear();
        f.txtNroPDRs = malo;
        EXPECT_FALSE(txtNroPDRs_AlSalir(f, s)) << malo;
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{NroMalo}) << malo;
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[1], 1);
    }
    anfitrion->sucesos.clear();
    PonNro("999");
    EXPECT_EQ(G().NroFilas(), 999);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[1], 999);
    EXPECT_EQ(G().Texto({999, 0}), "999");
    EXPECT_EQ(Fila(1), (Textos{"25", "45", "10"}));
    EXPECT_EQ(Fila(2), (Textos{"", "", ""}));
    PonNro("0");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoTablasPDRs, LasNotasSonDeLaTablaEnMano)
{
    Abre(2);
    f.txtNotas = "nuevas";
    txtNotas_Change(f, s);
    EXPECT_EQ(s.TablasDeLluvia.NotasPDR[2], "nuevas");
}

TEST_F(DialogoTablasPDRs, IrYVolverConFilasSinAplicarNoFalla)
{
    Abre(3);
    PonNro("40");
    f.cmbNroTablaPDRs.indice = 1;
    cmbNroTablaPDRs_Click(f, pp, s);
    f.cmbNroTablaPDRs.indice = 3;
    cmbNroTablaPDRs_Click(f, pp, s);
    EXPECT_EQ(G().NroFilas(), 40);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoTablasPDRs, BorrarVaciaLaTablaYEscribeEnseguidaSinPreguntar)
{
    Abre(1);
    cmdBorraTablaDisPer(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_EQ(f.txtNroPDRs, "0");
    EXPECT_EQ(f.txtNotas, "");
    EXPECT_EQ(disco.Bytes(Ruta), "2,0,0,0\r\n\"t0\"\r\n30,60,2\r\n40,90,5\r\n\"\"\r\n\"t2\"\r\n\"t3\"\r\n");
}

// --- apply: cells ---

TEST_F(DialogoTablasPDRs, UnaPersonalSeEscribeConLasCuatroYCargaLaSerie)
{
    Aplica(2, "30\t60\t2\n45\t120\t2\n");
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(disco.Bytes(Ruta),
              "2,1,2,0\r\n\"t0\"\r\n30,60,2\r\n40,90,5\r\n\"t1\"\r\n25,45,10\r\n\"t2\"\r\n30,60,2\r\n"
              "45,120,2\r\n\"t3\"\r\n");
    EXPECT_EQ(s.Serie.NroSeriePDR, 2);
    EXPECT_EQ(s.Serie.SerieD(2), 120);
    EXPECT_EQ(pp.txtPp, "30");
}

TEST_F(DialogoTablasPDRs, DoceCon7QuedaEnLaSerieYTreceEnElArchivo)
{
    Aplica(1, "12,7\t60\t2\n");
    EXPECT_EQ(s.Serie.SerieP(1), 12.7F);
    EXPECT_EQ(s.TablasDeLluvia.TablasP(2, 1), 13);
    EXPECT_EQ(pp.txtPp, "12.7");
    EXPECT_EQ(s.Tormenta.PpTormenta, 12.7F);
    Abre(2);
    EXPECT_EQ(Fila(1), (Textos{"13", "60", "2"}));
}

TEST_F(DialogoTablasPDRs, UnaLaminaNegativaQueYaEstabaNoPasa)
{
    Aplica(1, "1\t60\t2");
    G().Pon({1, 1}, "-1");
    Aplica();
    EXPECT_FALSE(escrito);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Inconsistentes});
}

struct CasoCelda {
    const char* fila;
    bool pasa;
    int columna;  ///< where the cursor goes; 0: it stays in column 1
};

TEST_F(DialogoTablasPDRs, CadaColumnaTieneSusLimites)
{
    for (const CasoCelda& caso : {CasoCelda{"0\t60\t2", true, 0},
                                  {"9999\t60\t2", true, 0},
                                  {"10000\t60\t2", false, 1},
                                  {"9999.5\t60\t2", false, 1},
                                  {"\t60\t2", false, 1},
                                  {"10\t61\t2", false, 0},
                                  {"10\t60.5\t2", false, 0},
                                  {"10\t\t2", false, 2},
                                  {"10\t60\t3", false, 0},
                                  {"10\t60\t", false, 3},
                                  {"\t\t2", false, 2}}) {
        Aplica(1, caso.fila);
        EXPECT_EQ(escrito, caso.pasa) << caso.fila;
        EXPECT_EQ(Avisos(), caso.pasa ? std::vector<Mensaje>{} : std::vector<Mensaje>{Inconsistentes})
            << caso.fila;
        EXPECT_EQ(G().actual.columna, caso.columna == 0 ? 1 : caso.columna) << caso.fila;
    }
}

TEST_F(DialogoTablasPDRs, CadaDuracionYCadaRecurrenciaDeLaListaPasan)
{
    for (const int d : {5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1440, 2880, 1080}) {
        Aplica(1, "10\t" + std::to_string(d) + "\t2");
        EXPECT_TRUE(escrito) << d;
    }
    for (const int r : {2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000}) {
        Aplica(1, "10\t60\t" + std::to_string(r));
        EXPECT_TRUE(escrito) << r;
    }
}

TEST_F(DialogoTablasPDRs, LaUltimaCeldaRecordadaTieneElCursor)
{
    Aplica(3, "10\t60\t2\n\t60\t2\n\t60\t2\n");
    EXPECT_EQ(G().actual, (forms::Celda{3, 1}));
    EXPECT_EQ(f.foco.control, "MSFlexGridTablaPDRs");
}

TEST_F(DialogoTablasPDRs, UnErrorDejaLaSerieComoSeCargoYNoLlevaNadaADlgPp)
{
    pp.txtPp = "1";
    Aplica(2, "10\t60\t2\n20\t61\t2\n");
    EXPECT_EQ(s.Serie.NroSeriePDR, 2);
    EXPECT_EQ(s.Serie.SerieP(2), 20.0F);
    EXPECT_EQ(s.Serie.SerieD(2), 61);
    EXPECT_EQ(s.TablasDeLluvia.TablasD(2, 2), 61);
    EXPECT_EQ(pp.txtPp, "1");
    EXPECT_FALSE(escrito);
}

TEST_F(DialogoTablasPDRs, UnaDuracionFueraDeSuTipoEsFalla)
{
    Aplica(1, "10\t40000\t2");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Desbordamiento});
    EXPECT_FALSE(escrito);
}

// --- apply: order ---

TEST_F(DialogoTablasPDRs, DentroDeUnaRecurrenciaNoBajanNiLaminaNiDuracion)
{
    Aplica(2, "20\t60\t2\n19\t90\t2\n");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Inconsistentes});
    Aplica(2, "20\t60\t2\n21\t30\t2\n");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Inconsistentes});
    Aplica(2, "20\t60\t2\n20\t60\t2\n");
    EXPECT_TRUE(escrito);
    Aplica(2, "20.4\t60\t2\n20\t60\t2\n");  // both are kept as 20
    EXPECT_TRUE(escrito);
}

TEST_F(DialogoTablasPDRs, EntreRecurrenciasPuedenBajarYLaRecurrenciaTambien)
{
    Aplica(3, "20\t60\t2\n40\t180\t2\n25\t60\t5\n");
    EXPECT_TRUE(escrito);
    Aplica(2, "20\t60\t5\n10\t30\t2\n");
    EXPECT_TRUE(escrito);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoTablasPDRs, SinTormentasPasaEscribeYLaSerieQuedaVacia)
{
    pp.txtPp = "1";
    Abre(1);
    PonNro("0");
    OKButton(f, pp, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Serie.NroSeriePDR, 0);
    EXPECT_EQ(pp.txtPp, "1");
    EXPECT_TRUE(disco.Bytes(Ruta).starts_with("2,0,0,0\r\n"));
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoTablasPDRs, CerrarCierraTambienConErrorYCancelarNoEscribe)
{
    Abre(1);
    const std::string antes = disco.Bytes(Ruta);
    forms::Pega(G(), s, "1\t1\t1\n");
    OKButton(f, pp, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Inconsistentes});
    EXPECT_FALSE(f.abierta);
    Abre(1);
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(disco.Bytes(Ruta), antes);
}

TEST_F(DialogoTablasPDRs, SinAplicarEstaLoQueElArchivoNoTiene)
{
    for (const int tabla : {0, 1, 2, 3}) {
        Abre(tabla);
        EXPECT_FALSE(SinAplicar(f, s));
    }
    Abre(1);
    forms::Pega(G(), s, "26\t45\t10\n");  // 45 min is none of the durations
    EXPECT_TRUE(SinAplicar(f, s));
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Inconsistentes});
    EXPECT_TRUE(SinAplicar(f, s));
    for (const int tabla : {0, 1}) {  // the refused rows are in memory, whichever table is in sight
        f.cmbNroTablaPDRs.indice = tabla;
        cmbNroTablaPDRs_Click(f, pp, s);
        EXPECT_TRUE(SinAplicar(f, s));
    }
    forms::Pega(G(), s, "26\t60\t10\n");
    cmdAplicar(f, pp, s);
    EXPECT_FALSE(SinAplicar(f, s));
    f.txtNotas = "otras";
    txtNotas_Change(f, s);
    EXPECT_TRUE(SinAplicar(f, s));
    f.cmbNroTablaPDRs.indice = 0;  // applying it loads the run and writes nothing
    cmbNroTablaPDRs_Click(f, pp, s);
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(SinAplicar(f, s));
    CancelButton(f);
    EXPECT_FALSE(SinAplicar(f, s));
}

// --- chart ---

TEST_F(DialogoTablasPDRs, LaVistaEsElHietogramaDeLaFilaDelCursor)
{
    s.Tormenta.DistriPp = 2;  // 34, 31, 18, 9, 8 %
    s.Pasos.PasoPp = 10;
    Abre(0);
    forms::Mueve(G(), {2, 1});  // 40 mm in 90 min
    const forms::Grafico vista = Vista(f, s);
    EXPECT_EQ(vista.titulo, "P= 40 mm   D= 90 min   R= 5 años");
    EXPECT_EQ(vista.ejeX, "t [min]   -   P= 40 mm   D= 90 min   R= 5 años");
    EXPECT_EQ(vista.categorias, (Textos{"18", "36", "54", "72", "90"}));
    ASSERT_EQ(vista.series.at(0).celdas.size(), 5U);
    EXPECT_FLOAT_EQ(static_cast<float>(vista.series[0].celdas[0]), 13.6F);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 0);  // the state in use is let be
}

TEST_F(DialogoTablasPDRs, UnaFilaSinTormentaNoTieneHietograma)
{
    Abre(2);
    EXPECT_TRUE(Vista(f, s).series.at(0).celdas.empty());
    PonNro("1");
    EXPECT_TRUE(Vista(f, s).series.at(0).celdas.empty());
    G().Pon({1, 1}, "10");
    G().Pon({1, 2}, "99999");
    EXPECT_TRUE(Vista(f, s).series.at(0).celdas.empty());
    EXPECT_TRUE(Avisos().empty());
}

}  // namespace
}  // namespace rainfall
