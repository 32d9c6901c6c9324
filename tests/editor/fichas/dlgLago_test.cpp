// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgLago.h"

#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"
#include "model/TablasEmbalse.h"

namespace editor {
namespace {

struct FormaLago : RedDeFichas {
    FormaLago() { AbreEn(0); }
    void AbreEn(std::int16_t numero)
    {
        s.Seleccion.LagoSel = numero;
        Abre(f, s);
    }
    bool Nombra(const std::string& nombre)
    {
        f.txtNombreLAGO = nombre;
        return ArreglaNombre(f, s) && AlSalir(f, s, "txtNombreLAGO");
    }
    void Elige(std::string_view destino) { lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, destino)); }
    bool PonAltura(const std::string& texto)
    {
        anfitrion->sucesos.clear();
        f.txtHInicialEmb = texto;
        return AlSalir(f, s, "txtHInicialEmb");
    }
    std::pair<float, float> Punto(int n) { return {s.Red.Lagos(n).XCauce, s.Red.Lagos(n).YCauce}; }

    dlgLago f;
};

// --- texts ---

TEST(TextosDeDlgLago, TituloYLeyendasEstanLetraPorLetra)
{
    EXPECT_EQ(TituloDlgLago, "Propiedades de LAG (Depresiones , Mallines, Lagos y Lagunas)");
    const std::vector<std::pair<std::string, std::string>> leyendas = {
        {"lstLAGOs", "Laguna:"},
        {"lblNroLago", "Nro. Laguna:"},
        {"lblNombreLago", "Nombre Laguna:"},
        {"txtNombreLAGO", "Modificar Nombre Lag.:"},
        {"txtReferencia", "Referencia:"},
        {"lstCauceAA", "Drena al Cauce:"},
        {"lstMetodo", "Propagación/Método:"},
        {"txtHInicialEmb", "Altura Inicial Embalse [m]"},
        {"cmdParametros", "Cargar Parámetros Físicos"},
        {"fraIdentificacion", "Identificación de la depresión, mallín, laguna, lago"},
        {"fraAreaMetodo", "Area de aportes y método de cálculo / propagación"},
        {"OKButton", "Aceptar"},
        {"CancelButton", "Cancelar"},
    };
    for (const auto& [control, leyenda] : leyendas)
        EXPECT_EQ(RotuloDe(RotulosDlgLago, control), leyenda);
}

// --- opening ---

TEST_F(FormaLago, SinSeleccionMuestraElPrimeroConSusPropiedades)
{
    s.Red.Lagos(1).Referencia = "mallin";
    s.Red.Lagos(1).Metodo = "Muskingum";
    s.Red.Lagos(1).Lago_k_Musk = 45.5F;
    s.Red.Lagos(1).HInicialEmb = 1.5F;
    AbreEn(0);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Seleccion.LagoSel, 1);
    EXPECT_EQ(f.lstLAGOs, (Lista{{"l-1", "l-2"}, 0}));
    EXPECT_EQ(f.lblNroLago, "1");
    EXPECT_EQ(f.lblNombreLago, "l-1");
    EXPECT_EQ(f.txtNombreLAGO, "l-1");
    EXPECT_EQ(f.txtReferencia, "mallin");
    EXPECT_EQ(f.txtLago_k, "45.5");
    EXPECT_EQ(f.txtHInicialEmb, "1.5");
    EXPECT_EQ(f.lblMetodo, "Muskingum");
    EXPECT_EQ(f.lstMetodo, (Lista{{"Piscina Nivelada", "Muskingum", "Runge Kutta"}, 1}));
    EXPECT_EQ(f.lstCauceAA, (Lista{{"Ninguno", "0", "c-1", "c-2", "c-3"}, 2}));
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(FormaLago, SinLagosQuedaCerrada)
{
    s.Red.ColLagos.Vacia();
    AbreEn(0);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Seleccion.LagoSel, 0);
}

// --- state of the table ---

TEST_F(FormaLago, ElRotuloDiceSiHayTabla)
{
    EXPECT_EQ(f.lblParametros, "Datos HSVQ en Tabla");
    EligeComponente(f, s, 1);
    EXPECT_EQ(f.lblParametros, "Sin datos en Tabla");
    EligeComponente(f, s, 0);
    EXPECT_EQ(f.lblParametros, "Datos HSVQ en Tabla");
}

TEST_F(FormaLago, ConUnaSolaFilaHayTabla)
{
    disco.Pon("/proy/Arroyo_LHASQ.vlm", "\"*l-1\",1,\"*\",\"*\"\r\n1,10,0,0\r\n");
    AbreEn(1);
    EXPECT_EQ(f.lblParametros, "Datos HSVQ en Tabla");
}

TEST_F(FormaLago, UnaLecturaConLaFormaAbiertaCambiaElRotulo)
{
    AbreEn(2);
    model::LeeTablaHSVQLago(s);
    AlVolver(f, s);
    EXPECT_EQ(f.lblParametros, "---");
    disco.Pon("/proy/Arroyo_LHASQ.vlm", "\"*l-1\",0,\"*\",\"*\"\r\n\"*l-2\",1,\"*\",\"*\"\r\n1,10,0,0\r\n");
    model::LeeTablaHSVQLago(s);
    AlVolver(f, s);
    EXPECT_EQ(f.lblParametros, "Datos HSVQ en Tabla");
}

TEST_F(FormaLago, ConLaFormaCerradaElRotuloQueda)
{
    CancelButton(f, s);
    s.Red.LagoFilas(1) = 0;
    AlVolver(f, s);
    EXPECT_EQ(f.lblParametros, "Datos HSVQ en Tabla");
}

TEST_F(FormaLago, ElCambioDeNombreDejaLaTablaBajoElViejo)
{
    Nombra("nuevo");
    EligeComponente(f, s, 0);
    EXPECT_EQ(f.lblParametros, "Sin datos en Tabla");
}

TEST_F(FormaLago, ElBotonPideLaTabla)
{
    EXPECT_EQ(cmdParametros(f), PedidoFicha::dlgTablaSHVQ);
    CancelButton(f, s);
    EXPECT_EQ(cmdParametros(f), PedidoFicha::Nada);
}

// --- method ---

TEST_F(FormaLago, ElDirectoDeUnLagoNuevoEsPiscinaNiveladaDesdeQueSeMuestra)
{
    for (const char* metodo : {"Directo", ""}) {
        s.Red.Lagos(1).Metodo = metodo;
        AbreEn(1);
        EXPECT_EQ(s.Red.Lagos(1).Metodo, "Piscina Nivelada") << metodo;
        EXPECT_EQ(f.lblMetodo, "Piscina Nivelada");
    }
}

TEST_F(FormaLago, ElMetodoMuestraUOcultaKYDaSuRotulo)
{
    EXPECT_FALSE(f.MuskingumVisible());
    EXPECT_EQ(f.lblLagoCofk, "Piscina Nivelada");
    lstMetodo_Click(f, 1);
    EXPECT_TRUE(f.MuskingumVisible());
    EXPECT_EQ(f.lblLagoCofk, "k[min]=");
    lstMetodo_Click(f, 2);
    EXPECT_FALSE(f.MuskingumVisible());
    EXPECT_EQ(f.lblLagoCofk, "Runge Kutta");
    OKButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).Metodo, "Runge Kutta");
}

// --- number fields ---

const std::vector<CasoLimite> LimitesLago = {
    {"txtLago_k", "99998.99", "99999", "99999.01", "Ingrese un valor numérico entre 0 y 99999 (0 y 99999)"},
};

struct LimiteLago : FormaLago, testing::WithParamInterface<CasoLimite> {};

TEST_P(LimiteLago, AceptaHastaElLimiteYRechazaDespuesConSuMensaje)
{
    VerificaLimite(f, s, anfitrion, GetParam(), MiembroDe<dlgLago>(CamposDlgLago, GetParam().control),
                   model::Icono::Ninguno);
}
INSTANTIATE_TEST_SUITE_P(Campos, LimiteLago, testing::ValuesIn(LimitesLago), NombreDeCaso);

TEST_F(FormaLago, LaAlturaInicialEsCeroOEstaEntreLosExtremosDeLaTabla)
{
    for (const char* texto : {"0", "1", "1.01", "2.49", "2.5", "2,5"}) {
        EXPECT_TRUE(PonAltura(texto)) << texto;
        EXPECT_TRUE(Avisos().empty()) << texto;
    }
    const Cajas caja = {
        {"Ingrese '0' o un valor numérico entre la altura H mímima=1y la altura H "
         "máxima=2.5 dadas en la 'Tabla SHV'",
         "", model::Icono::Ninguno}};
    for (const char* texto : {"0.99", "2.51", "-1", "", "abc"}) {
        EXPECT_FALSE(PonAltura(texto)) << texto;
        EXPECT_EQ(Avisos(), caja) << texto;
        EXPECT_EQ(f.txtHInicialEmb, "0") << texto;
    }
}

TEST_F(FormaLago, UnLagoSinTablaSoloAceptaCeroComoAlturaInicial)
{
    AbreEn(2);
    EXPECT_TRUE(PonAltura("0"));
    for (const char* texto : {"0.01", "-0.01"}) {
        EXPECT_FALSE(PonAltura(texto));
        EXPECT_EQ(Avisos(),
                  (Cajas{{"Ingrese '0' o un valor numérico entre la altura H mímima=0y la altura H máxima=0 "
                          "dadas en la 'Tabla SHV'",
                          "", model::Icono::Ninguno}}));
    }
}

// --- name ---

TEST_F(FormaLago, AlNombreSeLePoneElPrefijoYSeCortaEnQuince)
{
    EXPECT_TRUE(Nombra("blanca"));
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-blanca");
    EXPECT_TRUE(Nombra("12345678901234567890"));
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-1234567890123");
}

TEST_F(FormaLago, ElNombreDeOtroEsInvalidoYNoSeGuarda)
{
    EXPECT_FALSE(Nombra("2"));
    EXPECT_EQ(f.txtNombreLAGO, "Invalido");
    EXPECT_EQ(f.foco, (forms::Foco{"txtNombreLAGO", true}));
    OKButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-1");
}

TEST_F(FormaLago, ElNuevoNombreVaPorTodosLosDestinos)
{
    s.Red.UEHs(2).Cauce_aa = s.Red.Cauces(1).Cauce_aa = s.Red.Lagos(2).Cauce_aa = s.Red.Represas(2).Cauce_aa =
        "l-1";
    EXPECT_TRUE(Nombra("alta"));
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "l-alta");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "l-alta");
    EXPECT_EQ(s.Red.Lagos(2).Cauce_aa, "l-alta");
    EXPECT_EQ(s.Red.Represas(2).Cauce_aa, "l-alta");
    EXPECT_EQ(f.lstLAGOs.items, (Textos{"l-alta", "l-2"}));
}

// --- destination ---

TEST_F(FormaLago, ElDestinoElegidoValeEnSeguida)
{
    struct Caso {
        const char* entrada;
        const char* Cauce_aa;
        std::pair<float, float> punto;
    };
    for (const Caso& caso : {Caso{"c-2", "c-2", {30, 20}}, Caso{"Ninguno", "", {0, 0}},
                             Caso{"c-3", "c-3", {60, 60}}, Caso{"0", "0", {0, 0}}}) {
        Elige(caso.entrada);
        EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, caso.Cauce_aa) << caso.entrada;
        EXPECT_EQ(Punto(1), caso.punto) << caso.entrada;
    }
}

TEST_F(FormaLago, ElDestinoSeGuardaOtraVezConLosCampos)
{
    s.Red.Lagos(1).XCauce = s.Red.Lagos(1).YCauce = 5;
    OKButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "c-1");
    EXPECT_EQ(Punto(1), (std::pair<float, float>{16, 18})) << "the reach's upper end";
}

TEST_F(FormaLago, UnDestinoQueNoEstaEnLaListaQueda)
{
    s.Red.Lagos(1).Cauce_aa = "r-1";
    s.Red.Lagos(1).XCauce = 71;
    AbreEn(1);
    EXPECT_EQ(f.lstCauceAA.indice, -1);
    OKButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "r-1");
    EXPECT_EQ(s.Red.Lagos(1).XCauce, 71);
}

// --- storing ---

TEST_F(FormaLago, AceptarGuardaCadaCampoEnSuPropiedadLimpiaLaSeleccionYCierra)
{
    s.Seleccion.RepresaSel = 1;
    f.txtReferencia = "  a, 'b' ";
    lstMetodo_Click(f, 1);
    f.txtLago_k = "45,5";
    f.txtHInicialEmb = "1.5";
    OKButton(f, s);
    const model::Lago esperado{.NombreLAGO = "l-1",
                               .numLAGO = 1,
                               .Referencia = "  a, 'b' ",
                               .IconoLAGOx = 81,
                               .IconoLAGOy = 82,
                               .XCauce = 16,
                               .YCauce = 18,
                               .Metodo = "Muskingum",
                               .Cauce_aa = "c-1",
                               .Lago_k_Musk = 45.5F,
                               .HInicialEmb = 1.5F};
    EXPECT_EQ(s.Red.Lagos(1), esperado);
    EXPECT_EQ(s.Seleccion.LagoSel, 0);
    EXPECT_EQ(s.Seleccion.RepresaSel, 0);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->redibujos, 1);
}

TEST_F(FormaLago, ElegirOtroGuardaLosCamposYMuestraElOtro)
{
    f.txtReferencia = "mallin";
    f.txtLago_k = "12";
    EligeComponente(f, s, 1);
    EXPECT_EQ(s.Red.Lagos(1).Referencia, "mallin");
    EXPECT_EQ(s.Red.Lagos(1).Lago_k_Musk, 12);
    EXPECT_EQ(s.Seleccion.LagoSel, 2);
    EXPECT_EQ(f.lblNombreLago, "l-2");
    EXPECT_EQ(f.txtReferencia, "");
}

TEST_F(FormaLago, CancelarCierraSinGuardarLosCampos)
{
    f.txtReferencia = "mallin";
    f.txtLago_k = "12";
    CancelButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).Referencia, "");
    EXPECT_EQ(s.Red.Lagos(1).Lago_k_Musk, 0);
    EXPECT_FALSE(f.abierta);
}

TEST_F(FormaLago, UnTextoSinNumeroGuardaCero)
{
    s.Red.Lagos(1).HInicialEmb = s.Red.Lagos(1).Lago_k_Musk = 2;
    AbreEn(1);
    f.txtHInicialEmb = "abc";
    f.txtLago_k = "";
    OKButton(f, s);
    EXPECT_EQ(s.Red.Lagos(1).HInicialEmb, 0);
    EXPECT_EQ(s.Red.Lagos(1).Lago_k_Musk, 0);
}

TEST_F(FormaLago, LaTablaDeUnNombreCambiadoSeLlevaConSuTecla)
{
    f.txtNombreLAGO = "l-nuevo";
    EXPECT_TRUE(AlSalir(f, s, "txtNombreLAGO"));
    EXPECT_EQ(f.lblTablas, "Las tablas guardadas con el nombre «l-1» ya no son de ningún Lago.");
    cmdLlevaTablas(f, s);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_LHASQ.vlm"),
              "\"*l-nuevo\",2,\"*\",\"*\"\r\n1,10,0,0\r\n2.5,20,5000,3\r\n");
    EXPECT_EQ(f.lblParametros, ConDatosEnTabla);
    EXPECT_EQ(f.tablasDe, "");
}

}  // namespace
}  // namespace editor
