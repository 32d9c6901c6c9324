// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgDisPpPer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "engine/modDistriPp.h"
#include "model/ArchivosTormenta.h"

namespace rainfall {
namespace {

using forms::Tecla;
using model::Icono;
using model::Mensaje;
using model::Siro;
using Textos = std::vector<std::string>;

const Mensaje NroMalo = {"Ingrese un valor numérico entero entre 0 y 999 ", "", Icono::Ninguno};
const Mensaje ErrorDeCierre = {
    "Error de Cierre, la suma de Precipitaciones parciales debe ser 100%. Verifique los datos ingresados", "",
    Icono::Exclamacion};
const std::string Ruta = "/trabajo/distriPp_dpt.vlm";

class DialogoDisPpPer : public testing::Test {
  protected:
    DialogoDisPpPer()
    {
        s.Anfitrion = anfitrion.Puerta();
        PonProyectoDeLluvia(s, disco);
        s.Tormenta.DistriPp = 5;
        rainfall::Abre(pp, s);
    }
    void Abre(int tabla = 1)
    {
        optDistriPp_Click(pp, s, 4 + tabla);
        rainfall::Abre(f, pp, s);
    }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }
    forms::Grilla& G() { return f.MSFlexGridDisPerso; }
    Textos Columna(int columna)
    {
        Textos textos;
        for (int j = 1; j <= G().NroFilas(); ++j)
            textos.push_back(G().Texto({j, columna}));
        return textos;
    }
    void Pega(const std::string& columna)
    {
        forms::Mueve(G(), {1, 2});
        AlAsentar(f, s, forms::Pega(G(), s, columna));
    }
    void PonNro(const std::string& n)
    {
        f.txtNroPer = n;
        EXPECT_TRUE(txtNroPer_AlSalir(f, s));
    }
    bool SeEscribe()
    {
        disco.OlvidaLlamadas();
        cmdAplicar(f, s);
        return !disco.Llamadas().empty();
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    dlgDisPpPer f;
};

TEST(TextosDeDlgDisPpPer, LasLeyendasEstanLetraPorLetra)
{
    const auto leyenda = [](const char* nombre) { return RotuloDe(LeyendasDlgDisPpPer, nombre).leyenda; };
    EXPECT_EQ(TituloDlgDisPpPer, "Distribución temporal de la Precipitación: Tabla P-t Personalizada");
    EXPECT_EQ(leyenda("cmbNroTablaDisPpPer"), "Tabla de distribución Personal Nro.:");
    EXPECT_EQ(leyenda("txtNotas"), "Observaciones / Notas:");
    EXPECT_EQ(leyenda("txtNroPer"), "Ingrese el Número de Perídos de Intensidad Constante de Pp:");
    EXPECT_EQ(leyenda("cmbDurMin"), "Duración Mínima:");
    EXPECT_EQ(leyenda("cmbDurMax"), "Duración Máxima:");
    EXPECT_EQ(leyenda("MarcoValidez"), "Perído de Validez");
    EXPECT_EQ(leyenda("lblValidez"), "Distribución temporal válida p/ Duraciones D[hs] de tormentas entre:");
    EXPECT_EQ(leyenda("MSFlexGridDisPerso"), "Ppción. parcial  P[%], en período t [%], (Duración D=100%)");
    EXPECT_EQ(leyenda("cmdBorraTablaDisPer"), "Borrar Tabla");
    EXPECT_EQ(leyenda("cmdAplicar"), "&Aplicar");
    EXPECT_EQ(leyenda("OKButton"), "Ce&rrar");
    EXPECT_EQ(leyenda("CancelButton"), "&Cancelar");
}

// --- opening ---

TEST_F(DialogoDisPpPer, AlAbrirMuestraLaTablaDeLaOpcionDeDlgPp)
{
    Abre(2);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.cmbNroTablaDisPpPer.items, (Textos{"1", "2", "3"}));
    EXPECT_EQ(f.Tabla(), 2);
    EXPECT_EQ(f.txtNotas, "n2");
    EXPECT_EQ(f.txtNroPer, "3");
    EXPECT_EQ(Columna(0), (Textos{"1", "2", "3"}));
    EXPECT_EQ(Columna(1), (Textos{"33.33", "66.66", "100"}));
    EXPECT_EQ(Columna(2), (Textos{"50", "30", "20"}));
    EXPECT_EQ(Columna(3), (Textos{"50", "80", "100"}));
    EXPECT_TRUE(G().columnas[2].editable);
    EXPECT_FALSE(G().columnas[3].editable);
    Textos titulos;
    for (const auto& columna : G().columnas)
        titulos.push_back(columna.titulo);
    EXPECT_EQ(titulos, (Textos{"Período  ", " T acumulado[%]  ", "P parcial[%]  ", "P acumulada[%]  "}));
}

TEST_F(DialogoDisPpPer, LosLimitesEligenElItemIgualOElPrimero)
{
    Abre(1);  // 30 to 120
    EXPECT_EQ(f.cmbDurMin.items.size(), 14U);
    EXPECT_EQ(f.cmbDurMin.items.front(), "5");
    EXPECT_EQ(f.cmbDurMax.items.size(), 14U);
    EXPECT_EQ(f.cmbDurMax.items.front(), "10");
    EXPECT_EQ(f.cmbDurMax.items[12], "1440");
    EXPECT_EQ(f.cmbDurMax.items[13], "1440");
    EXPECT_EQ(f.cmbDurMin.indice, 4);
    EXPECT_EQ(f.cmbDurMax.indice, 5);
    Abre(2);  // 0 to 360
    EXPECT_EQ(f.cmbDurMin.indice, 0);
    EXPECT_EQ(f.cmbDurMax.indice, 9);
    s.TablasDeLluvia.DurMaxPer[2] = 1440;
    cmbNroTablaDisPpPer_Click(f, pp, s);
    EXPECT_EQ(f.cmbDurMax.indice, 12);
    EXPECT_TRUE(Avisos().empty());  // nothing is told while the form fills itself
}

TEST_F(DialogoDisPpPer, SinArchivoSeAbrenTresTablasVaciasSinMensaje)
{
    disco.Quita(Ruta);
    Abre(3);
    EXPECT_EQ(f.txtNroPer, "0");
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_TRUE(Avisos().empty());
    PonNro("2");
    EXPECT_EQ(Columna(1), (Textos{"50", "100"}));
    Pega("40\n60\n");
    EXPECT_TRUE(SeEscribe());
    EXPECT_EQ(disco.Bytes(Ruta), "0,0,2\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n40\r\n60\r\n");
}

TEST_F(DialogoDisPpPer, AbrirLeeSiempreSusPropiasCuentas)
{
    model::LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[2], 0);
    Abre(2);
    EXPECT_EQ(f.txtNroPer, "3");
}

// --- controls ---

TEST_F(DialogoDisPpPer, OtraTablaMarcaSuOpcionEnDlgPp)
{
    Abre(1);
    f.cmbNroTablaDisPpPer.indice = 1;
    cmbNroTablaDisPpPer_Click(f, pp, s);
    EXPECT_EQ(pp.optDistriPp, 6);
    EXPECT_EQ(s.Tormenta.DistriPp, 6);
    EXPECT_EQ(f.txtNroPer, "3");
    EXPECT_EQ(Columna(2), (Textos{"50", "30", "20"}));
    f.cmbNroTablaDisPpPer.indice = 2;
    cmbNroTablaDisPpPer_Click(f, pp, s);
    EXPECT_EQ(G().NroFilas(), 0);
}

TEST_F(DialogoDisPpPer, LasNotasSonDeLaTablaEnMano)
{
    Abre(2);
    f.txtNotas = "nuevas";
    txtNotas_Change(f, s);
    EXPECT_EQ(s.TablasDeLluvia.NotasDisPer[2], "nuevas");
    EXPECT_EQ(s.TablasDeLluvia.NotasDisPer[1], "n1");
}

TEST_F(DialogoDisPpPer, UnaMinimaMayorSeAvisaYSeToma)
{
    Abre(1);
    f.cmbDurMin.indice = 6;  // 120, equal to the upper limit
    cmbDurMin_Click(f, s);
    EXPECT_TRUE(Avisos().empty());
    f.cmbDurMin.indice = 7;  // 180
    cmbDurMin_Click(f, s);
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{{"El Límite inferior elegido es mayor al límite inferior seleccionado.",
                                     "", Icono::Exclamacion}}));
    EXPECT_EQ(s.TablasDeLluvia.DurMinPer[1], 180);
}

TEST_F(DialogoDisPpPer, UnaMaximaMenorRetieneElFoco)
{
    Abre(1);
    f.cmbDurMax.indice = 3;  // 30, equal to the lower limit
    cmbDurMax_Click(f, s);
    EXPECT_EQ(s.TablasDeLluvia.DurMaxPer[1], 30);
    EXPECT_TRUE(cmbDurMax_AlSalir(f, s));
    f.cmbDurMax.indice = 2;  // 20
    cmbDurMax_Click(f, s);
    EXPECT_EQ(s.TablasDeLluvia.DurMaxPer[1], 20);
    EXPECT_FALSE(cmbDurMax_AlSalir(f, s));
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{{"El Límite superior elegido es menor al límite inferior seleccionado.",
                                     "", Icono::Exclamacion}}));
}

TEST_F(DialogoDisPpPer, ElNumeroDePeriodosEsEnteroDe0A999)
{
    Abre(1);
    for (const char* malo : {"-1", "1000", "1.5", "", "a"}) {
        anfitrion->sucesos.clear();
        f.txtNroPer = malo;
        EXPECT_FALSE(txtNroPer_AlSalir(f, s)) << malo;
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{NroMalo}) << malo;
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[1], 2);
    }
    anfitrion->sucesos.clear();
    PonNro("999");
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[1], 999);
    EXPECT_EQ(G().NroFilas(), 999);
    EXPECT_EQ(G().Texto({1, 1}), "0.1");  // 0.1001 cut
    EXPECT_EQ(G().Texto({999, 1}), "100");
    PonNro("0");
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoDisPpPer, OtroNumeroRehaceLosTiemposYConservaLosParciales)
{
    Abre(1);
    PonNro("3");
    EXPECT_EQ(Columna(1), (Textos{"33.33", "66.66", "100"}));
    EXPECT_EQ(Columna(2), (Textos{"40", "60", ""}));
    EXPECT_EQ(Columna(3), (Textos{"40", "100", "100"}));
}

// --- table ---

TEST_F(DialogoDisPpPer, DejarUnaCeldaTomaElParcialYSuma)
{
    Abre(1);
    forms::Escribe(G(), s, "3");
    forms::Escribe(G(), s, ",");
    forms::Escribe(G(), s, "5");
    AlAsentar(f, s, forms::Teclea(G(), Tecla::Enter));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 1), 3.5F);
    EXPECT_EQ(Columna(3), (Textos{"3.5", "63.5"}));
    EXPECT_EQ(G().actual, (forms::Celda{2, 2}));
    AlAsentar(f, s, forms::Teclea(G(), Tecla::Suprimir));
    AlAsentar(f, s, forms::Teclea(G(), Tecla::Enter));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 2), 0.0F);
    EXPECT_EQ(Columna(3), (Textos{"3.5", "3.5"}));
    EXPECT_EQ(G().actual, (forms::Celda{1, 2}));
}

TEST_F(DialogoDisPpPer, LaVistaMuestraElParcialDeCadaPeriodo)
{
    Abre(2);
    const forms::Grafico vista = Vista(f);
    EXPECT_EQ(vista.categorias, (Textos{"33.33", "66.66", "100"}));
    EXPECT_EQ(vista.series.at(0).celdas, (std::vector<double>{50, 30, 20}));
}

// --- closure ---

struct CasoCierre {
    const char* columna;
    bool pasa;
};

TEST_F(DialogoDisPpPer, LaSumaCierraDe9999A10001)
{
    Abre(1);
    for (const CasoCierre& caso : {CasoCierre{"40\n59.99\n", true},
                                   {"40\n60.01\n", true},
                                   {"40\n59.98\n", false},
                                   {"40\n60.02\n", false},
                                   {"50\n50\n", true}}) {
        anfitrion->sucesos.clear();
        Pega(caso.columna);
        EXPECT_EQ(SeEscribe(), caso.pasa) << caso.columna;
        EXPECT_EQ(Avisos().empty(), caso.pasa) << caso.columna;
    }
}

TEST_F(DialogoDisPpPer, UnErrorDeCierreVaALaPrimeraFilaYNoEscribe)
{
    Abre(2);
    const std::string antes = disco.Bytes(Ruta);
    forms::Mueve(G(), {3, 2});
    forms::Escribe(G(), s, "9");
    cmdAplicar(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{ErrorDeCierre});
    EXPECT_EQ(G().actual, (forms::Celda{1, 2}));
    EXPECT_EQ(f.foco.control, "MSFlexGridDisPerso");
    EXPECT_EQ(disco.Bytes(Ruta), antes);
}

TEST_F(DialogoDisPpPer, LaPrimeraCeldaSinNumeroSeRecuerda)
{
    Abre(2);
    Pega("100\n\n\n");
    forms::Mueve(G(), {1, 2});
    EXPECT_FALSE(SeEscribe());
    EXPECT_TRUE(Avisos().empty());  // the sum does close
    EXPECT_EQ(G().actual, (forms::Celda{2, 2}));
    Pega("90\n5\n\n");
    EXPECT_FALSE(SeEscribe());
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{ErrorDeCierre});
    EXPECT_EQ(G().actual, (forms::Celda{3, 2}));
}

TEST_F(DialogoDisPpPer, SinPeriodosPasaYEscribeUnaTablaVacia)
{
    Abre(1);
    PonNro("0");
    EXPECT_TRUE(SeEscribe());
    EXPECT_TRUE(Avisos().empty());
    EXPECT_TRUE(disco.Bytes(Ruta).starts_with("0,3,0\r\n\"n1\"\r\n30,120\r\n\"n2\""));
}

// --- commands ---

TEST_F(DialogoDisPpPer, DoceYMedioSeGuardaConDecimalesYVuelveEntero)
{
    Abre(1);
    Pega("12.5\n87.5\n");
    EXPECT_EQ(Columna(3), (Textos{"12.5", "100"}));
    cmdAplicar(f, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_TRUE(disco.Bytes(Ruta).starts_with("2,3,0\r\n\"n1\"\r\n30,120\r\n12.5\r\n87.5\r\n\"n2\""));
    EXPECT_EQ(Columna(2), (Textos{"12.5", "87.5"}));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 1), 12.5F);
    Abre(1);
    EXPECT_EQ(Columna(2), (Textos{"12", "88"}));  // ties go to the even number
}

TEST_F(DialogoDisPpPer, LaCorridaUsaLosNumerosEnteros)
{
    Abre(1);
    Pega("12.5\n87.5\n");
    OKButton(f, s);
    s.Tormenta.DistriPp = 5;
    s.Tormenta.FormaPp = 0;
    s.Tormenta.PpTormenta = 50;
    s.Tormenta.DurTormenta = 60;
    s.Pasos.PasoPp = 30;
    engine::ConstruyeHietograma(s);
    ASSERT_EQ(s.Tormenta.NroPpReal, 2);
    EXPECT_EQ(s.Tormenta.PpReal(1), 6.0F);   // 12 % of 50 mm, not 6.25
    EXPECT_EQ(s.Tormenta.PpReal(2), 44.0F);  // 88 %
}

TEST_F(DialogoDisPpPer, CerrarAplicaYCierraAunqueNoCierreLaSuma)
{
    Abre(1);
    Pega("1\n2\n");
    OKButton(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{ErrorDeCierre});
    EXPECT_FALSE(f.abierta);
}

TEST_F(DialogoDisPpPer, CancelarNoEscribeYLosValoresQuedanEnMemoria)
{
    Abre(1);
    const std::string antes = disco.Bytes(Ruta);
    Pega("1\n2\n");
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(disco.Bytes(Ruta), antes);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 2), 2.0F);
    Abre(1);
    EXPECT_EQ(Columna(2), (Textos{"40", "60"}));
}

TEST_F(DialogoDisPpPer, SinAplicarEstaLoQueElArchivoNoTiene)
{
    for (const int tabla : {1, 2, 3}) {
        Abre(tabla);
        EXPECT_FALSE(SinAplicar(f, s));
    }
    Abre(1);
    f.txtNroPer = "3";
    EXPECT_TRUE(SinAplicar(f, s));
    PonNro("3");
    EXPECT_TRUE(SinAplicar(f, s));
    PonNro("2");
    forms::Escribe(G(), s, "1");
    EXPECT_TRUE(SinAplicar(f, s));
    Pega("50\n40\n");
    cmdAplicar(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{ErrorDeCierre});
    EXPECT_TRUE(SinAplicar(f, s));
    f.cmbNroTablaDisPpPer.indice = 1;  // the first table's shares wait while the second is in sight
    cmbNroTablaDisPpPer_Click(f, pp, s);
    EXPECT_TRUE(SinAplicar(f, s));
    cmdAplicar(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    f.cmbDurMin.indice = 1;
    cmbDurMin_Click(f, s);
    EXPECT_TRUE(SinAplicar(f, s));
    disco.FallaDesde(1, model::NumeroFalla::AccesoRuta);
    cmdAplicar(f, s);
    EXPECT_TRUE(SinAplicar(f, s));
    cmdBorraTablaDisPer(f, s);
    EXPECT_TRUE(SinAplicar(f, s));
    disco.DejaDeFallar();
    cmdBorraTablaDisPer(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    Abre(1);
    EXPECT_FALSE(SinAplicar(f, s));
}

TEST_F(DialogoDisPpPer, BorrarVaciaLaTablaYEscribeEnseguidaSinPreguntar)
{
    Abre(2);
    cmdBorraTablaDisPer(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(f.txtNroPer, "0");
    EXPECT_EQ(f.txtNotas, "");
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_EQ(f.cmbDurMin.indice, 0);
    EXPECT_EQ(f.cmbDurMax.indice, 13);
    EXPECT_EQ(disco.Bytes(Ruta),
              "2,0,0\r\n\"n1\"\r\n30,120\r\n40\r\n60\r\n\"\"\r\n5,1440\r\n\"n3\"\r\n0,0\r\n");
}

TEST_F(DialogoDisPpPer, UnaFallaAlEscribirSeInformaUnaVezYAceptarNoCierra)
{
    Abre(1);
    disco.Protege(Ruta);
    OKButton(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique", "", Icono::Ninguno}}));
}

}  // namespace
}  // namespace rainfall
