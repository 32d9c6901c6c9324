// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgRepresas.h"

#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"

namespace editor {
namespace {

struct FormaRepresa : RedDeFichas {
    FormaRepresa() { AbreEn(0); }
    void AbreEn(std::int16_t numero)
    {
        s.Seleccion.RepresaSel = numero;
        Abre(f, s);
    }
    bool Nombra(const std::string& nombre)
    {
        f.txtNombreRepresa = nombre;
        return ArreglaNombre(f, s) && AlSalir(f, s, "txtNombreRepresa");
    }
    void Elige(std::string_view destino) { lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, destino)); }
    void EligeElMetodo(std::string_view metodo) { lstMetodo_Click(f, LineaDe(f.lstMetodo, metodo)); }
    bool PonAltura(const std::string& texto)
    {
        anfitrion->sucesos.clear();
        f.txtHInicialEmb = texto;
        return AlSalir(f, s, "txtHInicialEmb");
    }

    dlgRepresas f;
};

// --- texts ---

TEST(TextosDeDlgRepresas, TituloYLeyendasEstanLetraPorLetra)
{
    EXPECT_EQ(TituloDlgRepresas, "Propiedades de Represas");
    const std::vector<std::pair<std::string, std::string>> leyendas = {
        {"lstRepresas", "Represa:"},
        {"lblNroRepresa", "Nro. Represa:"},
        {"lblNombreRepresa", "Nombre Represa:"},
        {"txtNombreRepresa", "Modificar Nombre:"},
        {"lstCauceAA", "Drena al Cauce:"},
        {"lstMetodo", "Propagación:"},
        {"cmdHSV", "Editar Tabla HAS"},
        {"fraSeleccion", "Selección:"},
        {"optTablaQ", "Tabla"},
        {"optFunciones", "Funciones"},
        {"cmdTablaQ", "Edit"},
        {"fraFunciones", "        Descargas:           Q=f(H),   para  H  min <= H <= H Máx"},
        {"txtFQHmin", "H min"},
        {"txtFQHMax", "H Máx"},
        {"txtHInicialEmb", "Altura Inicial Embalse"},
        {"lblReferencia", "Ref.: Hidrología Aplicada, (Chow, 1994), pg. 249"},
        {"OKButton", "Aceptar"},
        {"CancelButton", "Cancelar"},
    };
    for (const auto& [control, leyenda] : leyendas)
        EXPECT_EQ(RotuloDe(RotulosDlgRepresas, control), leyenda);
    EXPECT_EQ(model::FuncionesFQ[0].rotulo, "Función 1: Q =  a * H^b");
    EXPECT_EQ(model::FuncionesFQ[3].rotulo, "Función 4: Q =  a * H^b");
    EXPECT_EQ(model::FuncionesFQ[4].rotulo, "Función 5: Q =  a + b*H + c*H^2");
    EXPECT_EQ(model::FuncionesFQ[7].rotulo, "Función 8: Q =  a + b*H + c*H^2");
    for (std::size_t i = 0; i < model::FuncionesFQ.size(); ++i)
        EXPECT_EQ(model::FuncionesFQ[i].rotulo[9], static_cast<char>('1' + i)) << "ó takes two bytes";
}

// --- tables after a rename ---

const std::string LineaDeTablas = "Las tablas guardadas con el nombre «r-1» ya no son de ninguna Represa.";

TEST_F(FormaRepresa, TrasCambiarElNombreUnaLineaDiceQueSusTablasQuedaronAtras)
{
    EXPECT_EQ(f.lblTablas, "");
    EXPECT_TRUE(Nombra("r-nueva"));
    EXPECT_EQ(f.lblTablas, LineaDeTablas);
    EXPECT_EQ(f.tablasDe, "r-1");
    EligeComponente(f, s, 1);  // r-2 never had any
    EXPECT_EQ(f.lblTablas, "");
    CancelButton(f, s);
    AbreEn(1);  // still so the next time
    EXPECT_EQ(f.lblTablas, LineaDeTablas);
    EXPECT_TRUE(Nombra("r-1"));
    EXPECT_EQ(f.lblTablas, "");
    EXPECT_EQ(f.tablasDe, "");
}

TEST_F(FormaRepresa, LaTeclaLlevaLasTablasAlNombreNuevo)
{
    disco.Pon("/proy/Arroyo_RHQ.vlm", "\"*r-1\",1\r\n1,2\r\n\"*r-2\",1\r\n4,5\r\n");
    Nombra("r-ñandú");
    cmdLlevaTablas(f, s);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_RHAS.vlm"),
              "\"*r-\xF1"
              "and\xFA\",3,\"*\"\r\n100.3,1,0\r\n105,2,1000\r\n110.7,3,2000\r\n");
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_RHQ.vlm"),
              "\"*r-\xF1"
              "and\xFA\",1\r\n1,2\r\n\"*r-2\",1\r\n4,5\r\n");
    EXPECT_EQ(f.tablasDe, "");
    EXPECT_EQ(f.lblTablas, "Las tablas llevan ahora el nombre «r-ñandú»: guarde la red en el editor.");
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 3);  // read again
    EXPECT_TRUE(Avisos().empty());
    AbreEn(1);
    EXPECT_EQ(f.lblTablas, "");
}

TEST_F(FormaRepresa, UnDiscoQueFallaDejaLasTablasParaOtraVez)
{
    Nombra("r-nueva");
    disco.Protege("/proy/Arroyo_RHAS.vlm");
    const std::string antes = disco.Bytes("/proy/Arroyo_RHAS.vlm");
    cmdLlevaTablas(f, s);
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_RHAS.vlm"), antes);
    EXPECT_EQ(f.tablasDe, "r-1");
    EXPECT_EQ(f.lblTablas, LineaDeTablas);
}

TEST_F(FormaRepresa, LaTablaDeOtraRepresaNoSeOfrece)
{
    s.Red.ColRepresas.Item(1).NombreRepresa = "r-otra";
    s.Red.ColRepresas.Item(2).NombreRepresa = "r-1";
    AbreEn(1);
    EXPECT_EQ(f.tablasDe, "");
}

// --- opening ---

TEST_F(FormaRepresa, SinSeleccionMuestraLaPrimeraYLeeLasTablas)
{
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Seleccion.RepresaSel, 1);
    EXPECT_EQ(f.lstRepresas, (Lista{{"r-1", "r-2"}, 0}));
    EXPECT_EQ(f.lblNroRepresa, "1");
    EXPECT_EQ(f.lblNombreRepresa, "r-1");
    EXPECT_EQ(f.txtNombreRepresa, "r-1");
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 3);
    EXPECT_EQ(f.lstCauceAA, (Lista{{"Ninguno", "0", "c-1", "c-2", "c-3"}, 2}));
    EXPECT_EQ(f.lblDrenaCauceAA, "c-1");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(FormaRepresa, SinRepresasQuedaCerrada)
{
    s.Red.ColRepresas.Vacia();
    AbreEn(0);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Seleccion.RepresaSel, 0);
}

TEST_F(FormaRepresa, MuestraCadaPropiedadEnSuCampo)
{
    model::Represa& r = s.Red.Represas(2);
    r.Metodo = "Muskingum";
    r.Represa_k_Musk = 60.5F;
    r.Represa_n_Musk = 0.3F;
    r.HInicialEmb = 2.5F;
    r.optTabla = false;
    for (std::size_t i = 0; i < 8; ++i) {
        const auto n = static_cast<float>(i + 1);
        r.FQa[i] = 100 + n;
        r.FQb[i] = 200 + n;
        r.FQc[i] = i < 4 ? 0 : 300 + n;
        r.FQmin[i] = 400.5F + n;
        r.FQMax[i] = 500 + n;
    }
    r.chkFQ = {1, 0, 2, -1, 1, 0, 0, 1};
    AbreEn(2);
    EXPECT_EQ(f.txtRepresa_k, "60.5");
    EXPECT_EQ(f.txtRepresa_n, "0.3");
    EXPECT_EQ(f.txtHInicialEmb, "2.5");
    EXPECT_EQ(f.txtFQa, (TextosFQ{"101", "102", "103", "104", "105", "106", "107", "108"}));
    EXPECT_EQ(f.txtFQb, (TextosFQ{"201", "202", "203", "204", "205", "206", "207", "208"}));
    EXPECT_EQ(f.txtFQc, (TextosFQ{"", "", "", "", "305", "306", "307", "308"}));
    EXPECT_EQ(f.txtFQHmin,
              (TextosFQ{"401.5", "402.5", "403.5", "404.5", "405.5", "406.5", "407.5", "408.5"}));
    EXPECT_EQ(f.txtFQHMax, (TextosFQ{"501", "502", "503", "504", "505", "506", "507", "508"}));
    EXPECT_EQ(f.chkFQ, (std::array{true, false, false, false, true, false, false, true}))
        << "only 1 means in use";
}

// --- method ---

TEST_F(FormaRepresa, UnMetodoVacioODesconocidoEsPiscinaNiveladaDesdeQueSeMuestra)
{
    for (const char* metodo : {"", "Directo", "muskingum"}) {
        s.Red.Represas(1).Metodo = metodo;
        AbreEn(1);
        EXPECT_EQ(s.Red.Represas(1).Metodo, "Piscina Nivelada") << metodo;
        EXPECT_EQ(f.lblMetodo, "Piscina Nivelada");
        CancelButton(f, s);
        EXPECT_EQ(s.Red.Represas(1).Metodo, "Piscina Nivelada");
    }
}

TEST_F(FormaRepresa, ElMetodoMuestraUOcultaLosCamposYDaSusRotulos)
{
    EXPECT_EQ(f.lstMetodo, (Lista{{"Piscina Nivelada", "Muskingum", "Runge Kutta"}, 0}));
    EXPECT_FALSE(f.MuskingumVisible());
    EXPECT_EQ(f.lblRepresaCofk, "Piscina Nivelada");
    EXPECT_EQ(f.lblRepresaCofn, "");
    EligeElMetodo("Muskingum");
    EXPECT_TRUE(f.MuskingumVisible());
    EXPECT_EQ(f.lblRepresaCofk, "k[min]=");
    EXPECT_EQ(f.lblRepresaCofn, "x=");
    EXPECT_EQ(f.lblMetodo, "Muskingum");
    EligeElMetodo("Runge Kutta");
    EXPECT_FALSE(f.MuskingumVisible());
    EXPECT_EQ(f.lblRepresaCofk, "Runge Kutta");
    EXPECT_EQ(s.Red.Represas(1).Metodo, "Piscina Nivelada") << "stored with the fields";
    OKButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).Metodo, "Runge Kutta");
}

TEST_F(FormaRepresa, UnMetodoFueraDeLaListaNoSeToma)
{
    lstMetodo_Click(f, 3);
    lstMetodo_Click(f, -1);
    EXPECT_EQ(f.lblMetodo, "Piscina Nivelada");
    EXPECT_EQ(f.lstMetodo.indice, 0);
}

TEST_F(FormaRepresa, LosCamposOcultosConservanSuValor)
{
    s.Red.Represas(1).Represa_k_Musk = 33;
    s.Red.Represas(1).Represa_n_Musk = 0.25F;
    AbreEn(1);
    OKButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).Represa_k_Musk, 33);
    EXPECT_EQ(s.Red.Represas(1).Represa_n_Musk, 0.25F);
}

// --- table or functions ---

TEST_F(FormaRepresa, PorTablaSeEditaLaTablaYNoLasFunciones)
{
    s.Red.Represas(1).chkFQ.fill(1);
    AbreEn(1);
    EXPECT_TRUE(f.optTablaQ);
    EXPECT_FALSE(f.optFunciones);
    EXPECT_TRUE(f.cmdTablaQHabilitado());
    EXPECT_FALSE(f.chkFQHabilitado());
    for (int i = 1; i <= 8; ++i)
        EXPECT_FALSE(f.FuncionHabilitada(i)) << i;
}

TEST_F(FormaRepresa, PorFuncionesSeEditanLasMarcadas)
{
    s.Red.Represas(1).optTabla = false;
    s.Red.Represas(1).chkFQ = {1, 0, 0, 0, 1, 0, 0, 0};
    AbreEn(1);
    EXPECT_TRUE(f.optFunciones);
    EXPECT_FALSE(f.optTablaQ);
    EXPECT_FALSE(f.cmdTablaQHabilitado());
    EXPECT_TRUE(f.chkFQHabilitado());
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(f.FuncionHabilitada(i), i == 1 || i == 5) << i;
    chkFQ_Click(f, 8, true);
    chkFQ_Click(f, 1, false);
    EXPECT_TRUE(f.FuncionHabilitada(8));
    EXPECT_FALSE(f.FuncionHabilitada(1));
    optTablaQ_Click(f);
    EXPECT_TRUE(f.cmdTablaQHabilitado());
    EXPECT_FALSE(f.FuncionHabilitada(8));
    optFunciones_Click(f);
    EXPECT_TRUE(f.FuncionHabilitada(8));
    EXPECT_FALSE(f.cmdTablaQHabilitado());
}

TEST_F(FormaRepresa, SoloLasFuncionesCincoAOchoTienenC)
{
    for (const CampoFQ& campo : CamposFQ)
        for (std::size_t i = 0; i < model::FuncionesFQ.size(); ++i)
            EXPECT_EQ(campo.Tiene(i), campo.control != "txtFQc" || i >= 4) << campo.control << i;
    f.txtFQc.fill("7");
    OKButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).FQc, (std::array<float, 8>{0, 0, 0, 0, 7, 7, 7, 7}));
}

TEST_F(FormaRepresa, LosBotonesPidenLaTablaQueAbren)
{
    EXPECT_EQ(cmdHSV(f), PedidoFicha::dlgTablaSHV);
    EXPECT_EQ(cmdTablaQ(f), PedidoFicha::dlgTablaFQ);
    optFunciones_Click(f);
    EXPECT_EQ(cmdTablaQ(f), PedidoFicha::Nada);
    CancelButton(f, s);
    EXPECT_EQ(cmdHSV(f), PedidoFicha::Nada);
}

// --- number fields ---

const std::vector<CasoLimite> LimitesRepresa = {
    {"txtRepresa_k", "99998.99", "99999", "99999.01",
     "Ingrese un valor numérico entre 0 y 99999 (0 y 99999)"},
    {"txtRepresa_n", "0.49", "0.5", "0.51",
     "Ingrese un valor numérico decimal entre 0 y 0,5 (0 y 0.5, para separador de punto)"},
};

struct LimiteRepresa : FormaRepresa, testing::WithParamInterface<CasoLimite> {};

TEST_P(LimiteRepresa, AceptaHastaElLimiteYRechazaDespuesConSuMensaje)
{
    VerificaLimite(f, s, anfitrion, GetParam(), MiembroDe<dlgRepresas>(CamposDlgRepresas, GetParam().control),
                   model::Icono::Ninguno);
}
INSTANTIATE_TEST_SUITE_P(Campos, LimiteRepresa, testing::ValuesIn(LimitesRepresa), NombreDeCaso);

TEST_F(FormaRepresa, LaAlturaInicialEsCeroOEstaEntreLosExtremosDeLaTabla)
{
    for (const char* texto : {"0", "0.0", "100.3", "100.31", "105", "110.69", "110.7", "110,7"}) {
        EXPECT_TRUE(PonAltura(texto)) << texto;
        EXPECT_TRUE(Avisos().empty()) << texto;
        EXPECT_EQ(f.foco, forms::Foco{}) << texto;
    }
    EXPECT_EQ(f.txtHInicialEmb, "110.7") << "the comma became a point";
    const Cajas caja = {
        {"Ingrese '0' o un valor numérico entre la altura H mímima=100.3y la altura H "
         "máxima=110.7 dadas en la 'Tabla SHV'",
         "", model::Icono::Ninguno}};
    for (const char* texto : {"100", "100.29", "110.71", "-105", "1E39", "1E999", "", "abc", "105m"}) {
        EXPECT_FALSE(PonAltura(texto)) << texto;
        EXPECT_EQ(Avisos(), caja) << texto;
        EXPECT_EQ(f.txtHInicialEmb, "0") << texto;
    }
}

TEST_F(FormaRepresa, SinTablaLaAlturaInicialSoloPuedeSerCero)
{
    AbreEn(2);
    EXPECT_TRUE(PonAltura("0"));
    EXPECT_FALSE(PonAltura("0.01"));
    EXPECT_EQ(Avisos(), (Cajas{{"Ingrese '0' o un valor numérico entre la altura H mímima=0y la altura H "
                                "máxima=0 dadas en la 'Tabla SHV'",
                                "", model::Icono::Ninguno}}));
}

TEST_F(FormaRepresa, LosCamposDeLasFuncionesNoRechazanNada)
{
    f.txtFQa[0] = "1,5";
    f.txtFQHMax[7] = "abc";
    EXPECT_TRUE(AlSalir(f, s, "txtFQa"));
    EXPECT_TRUE(AlSalir(f, s, "txtFQHMax"));
    EXPECT_EQ(f.txtFQa[0], "1.5");
    EXPECT_EQ(f.txtFQHMax[7], "abc");
    EXPECT_TRUE(Avisos().empty());
}

// --- name ---

TEST_F(FormaRepresa, AlNombreSeLePoneElPrefijoYSeCortaEnQuince)
{
    EXPECT_TRUE(Nombra("presa"));
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-presa");
    EXPECT_TRUE(Nombra("12345678901234567890"));
    EXPECT_EQ(f.txtNombreRepresa, "r-1234567890123");
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-1234567890123");
}

TEST_F(FormaRepresa, ElNombreDeOtraEsInvalidoYNadaCambia)
{
    s.Red.UEHs(2).Cauce_aa = "r-1";
    EXPECT_FALSE(Nombra("r-2"));
    EXPECT_EQ(f.txtNombreRepresa, "Invalido");
    EXPECT_EQ(f.foco, (forms::Foco{"txtNombreRepresa", true}));
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-1");
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "r-1");
    OKButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-1");
}

TEST_F(FormaRepresa, ElNuevoNombreVaPorTodosLosDestinosYLaListaSeLlenaDeNuevo)
{
    s.Red.UEHs(2).Cauce_aa = s.Red.Cauces(1).Cauce_aa = s.Red.Lagos(2).Cauce_aa = s.Red.Represas(2).Cauce_aa =
        "r-1";
    EXPECT_TRUE(Nombra("alta"));
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "r-alta");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "r-alta");
    EXPECT_EQ(s.Red.Lagos(2).Cauce_aa, "r-alta");
    EXPECT_EQ(s.Red.Represas(2).Cauce_aa, "r-alta");
    EXPECT_EQ(f.lstRepresas, (Lista{{"r-alta", "r-2"}, 0}));
    EXPECT_EQ(f.lblNombreRepresa, "r-alta");
}

TEST_F(FormaRepresa, ElCambioDeNombreDejaLaTablaBajoElViejo)
{
    Nombra("alta");
    AbreEn(1);
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 0);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_RHAS.vlm").substr(0, 6), "\"*r-1\"");
}

// --- destination ---

TEST_F(FormaRepresa, ElDestinoElegidoValeEnSeguida)
{
    struct Caso {
        const char* entrada;
        const char* Cauce_aa;
        std::pair<float, float> punto;
    };
    for (const Caso& caso : {Caso{"c-2", "c-2", {30, 20}}, Caso{"Ninguno", "", {0, 0}},
                             Caso{"c-3", "c-3", {60, 60}}, Caso{"0", "0", {0, 0}}}) {
        Elige(caso.entrada);
        const model::Represa& r = s.Red.Represas(1);
        EXPECT_EQ(r.Cauce_aa, caso.Cauce_aa) << caso.entrada;
        EXPECT_EQ((std::pair{r.XCauce, r.YCauce}), caso.punto) << caso.entrada;
        EXPECT_EQ(f.lblDrenaCauceAA, caso.Cauce_aa);
    }
    EXPECT_EQ(anfitrion->redibujos, 4);
    EXPECT_TRUE(Avisos().empty()) << "two components may drain to one reach";
}

TEST_F(FormaRepresa, GuardarNoTocaElDestino)
{
    s.Red.Represas(1).XCauce = 5;
    OKButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "c-1");
    EXPECT_EQ(s.Red.Represas(1).XCauce, 5);
}

// --- storing ---

TEST_F(FormaRepresa, AceptarGuardaCadaCampoEnSuPropiedadLimpiaLaSeleccionYCierra)
{
    EligeElMetodo("Muskingum");
    f.txtRepresa_k = "60,5";
    f.txtRepresa_n = "0.3";
    f.txtHInicialEmb = "105";
    optFunciones_Click(f);
    for (int i = 1; i <= 8; ++i) {
        chkFQ_Click(f, i, i % 2 == 1);
        const auto lugar = static_cast<std::size_t>(i) - 1;
        f.txtFQa[lugar] = std::to_string(100 + i);
        f.txtFQb[lugar] = std::to_string(200 + i) + "x";
        f.txtFQc[lugar] = std::to_string(300 + i);
        f.txtFQHmin[lugar] = std::to_string(400 + i) + ",5";
        f.txtFQHMax[lugar] = i == 8 ? "nada" : std::to_string(500 + i);
    }
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = s.Seleccion.LagoSel = s.Seleccion.VerticeSel =
        s.Seleccion.CauceAnterior = 1;
    OKButton(f, s);
    model::Represa esperada{.NombreRepresa = "r-1",
                            .numRepresa = 1,
                            .IconoRepresaX = 71,
                            .IconoRepresaY = 72,
                            .Metodo = "Muskingum",
                            .Cauce_aa = "c-1",
                            .FQa = {101, 102, 103, 104, 105, 106, 107, 108},
                            .FQb = {201, 202, 203, 204, 205, 206, 207, 208},
                            .FQc = {0, 0, 0, 0, 305, 306, 307, 308},
                            .Represa_k_Musk = 60.5F,
                            .Represa_n_Musk = 0.3F,
                            .FQmin = {401.5F, 402.5F, 403.5F, 404.5F, 405.5F, 406.5F, 407.5F, 408.5F},
                            .FQMax = {501, 502, 503, 504, 505, 506, 507, 0},
                            .chkFQ = {1, 0, 1, 0, 1, 0, 1, 0},
                            .optTabla = false,
                            .HInicialEmb = 105};
    EXPECT_EQ(s.Red.Represas(1), esperada);
    for (const std::int16_t seleccion :
         {s.Seleccion.RepresaSel, s.Seleccion.LagoSel, s.Seleccion.UEHSel, s.Seleccion.CauceSel,
          s.Seleccion.CauceAnterior, s.Seleccion.VerticeSel})
        EXPECT_EQ(seleccion, 0);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->redibujos, 1);
}

TEST_F(FormaRepresa, ElegirOtraGuardaLosCamposYMuestraLaOtra)
{
    f.txtRepresa_k = "12";
    optFunciones_Click(f);
    EligeComponente(f, s, 1);
    EXPECT_EQ(s.Red.Represas(1).Represa_k_Musk, 12);
    EXPECT_FALSE(s.Red.Represas(1).optTabla);
    EXPECT_EQ(s.Seleccion.RepresaSel, 2);
    EXPECT_EQ(f.lblNombreRepresa, "r-2");
    EXPECT_EQ(f.txtRepresa_k, "0");
    EXPECT_TRUE(f.optTablaQ);
    EXPECT_EQ(f.lstCauceAA.indice, 0);
}

TEST_F(FormaRepresa, CancelarCierraSinGuardarLosCampos)
{
    f.txtRepresa_k = "12";
    optFunciones_Click(f);
    CancelButton(f, s);
    EXPECT_EQ(s.Red.Represas(1).Represa_k_Musk, 0);
    EXPECT_TRUE(s.Red.Represas(1).optTabla);
    EXPECT_FALSE(f.abierta);
}

}  // namespace
}  // namespace editor
