// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEH2.h"

#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"

namespace editor {
namespace {

struct FormaUEH : RedDeFichas {
    FormaUEH() { Abre(f, s); }
    /// Types a name in one go, as a paste does.
    bool Escribe(const std::string& nombre)
    {
        f.txtNombreUEH = nombre;
        return ArreglaNombre(f, s);
    }
    bool Nombra(const std::string& nombre) { return Escribe(nombre) && AlSalir(f, s, "txtNombreUEH"); }
    void Elige(std::string_view destino) { lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, destino)); }
    std::pair<float, float> Punto(int n) { return {s.Red.UEHs(n).XCauce, s.Red.UEHs(n).YCauce}; }

    dlgUEH2 f;
};

// --- texts ---

TEST(TextosDeDlgUEH2, TituloYLeyendasEstanLetraPorLetra)
{
    EXPECT_EQ(TituloDlgUEH2, "Propiedades de UHE (Unidad Hidrológica Elemental)");
    const std::vector<std::pair<std::string, std::string>> leyendas = {
        {"lblNroUEH", "Nro. UEH:"},
        {"lblNombreUEH", "Nombre UEH:"},
        {"txtNombreUEH", "Modificar Nombre UEH:"},
        {"txtArea", "Area [has]:"},
        {"lstMetodo", "Propagación/Método:"},
        {"lstCauceAA", "Drena a:"},
        {"txtReferencia", "Referencias:"},
        {"txtLongMax", "Longitud Máxima al Cauce [m]: "},
        {"txtVelMedia", "Velocidad Media  \"gota\" en ladera:"},
        {"lblDrenaCauceAA", "Drena al Cauce:"},
        {"txtRetension_Z", "Retensión Superficial Z [mm]:"},
        {"txtKostiakov_a", "I [mm] = a * t[min]^"},
        {"txtKostiakov_i", "T inicial [min]"},
        {"txtQ0Recesion", "Qinicial ="},
        {"txtKRecesion", "k [hs]="},
        {"OKButton", "Aceptar"},
        {"CancelButton", "Cancelar"},
        {"fraIdentificacion", "Identificación de la Unidad de Estudios Hidrológicos"},
        {"fraAreaMetodo", "Area de aportes y método de cálculo / propagación"},
        {"fraPropagacion", "Parámetros de propagación"},
        {"fraRetencion", "Intercepción - Almacenamiento superficial "},
        {"fraInfiltracion", "Infiltración: Parámetros de Kostiakov"},
        {"fraRecesion", "Abatimiento o Recesión: Parámetros de Singh y Stall"},
        {"lblFormulaRecesion", "Q [m3/s] = Qi [m3/s]* e "},
        {"lblExponenteRecesion", "- t/k"},
    };
    for (const auto& [control, leyenda] : leyendas)
        EXPECT_EQ(RotuloDe(RotulosDlgUEH2, control), leyenda);
}

TEST(TextosDeDlgUEH2, LaUnidadQueLaLeyendaNoDiceVaAparte)
{
    EXPECT_EQ(forms::UnidadAparte("Qinicial =", "m3/s"), "[m3/s]");
    EXPECT_EQ(forms::UnidadAparte("k [hs]=", "hs"), "");
    EXPECT_EQ(forms::UnidadAparte("", ""), "");
}

// --- opening ---

TEST_F(FormaUEH, SinSeleccionMuestraLaPrimera)
{
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    EXPECT_EQ(f.lstUEHs, (Lista{{"u-1", "u-2", "u-3"}, 0}));
    EXPECT_EQ(f.lblNroUEH, "1");
    EXPECT_EQ(f.lblNombreUEH, "u-1");
    EXPECT_EQ(f.txtNombreUEH, "u-1");
}

TEST_F(FormaUEH, MuestraLaSeleccionadaConSusPropiedades)
{
    s.Red.UEHs(2) = {.NombreUEH = "u-2",
                     .Area = 250.5F,
                     .Referencia = "ladera, norte",
                     .LongitudMax = 1500,
                     .VelMedia = 0.05F,
                     .Metodo = "Directo",
                     .numUEH = 2,
                     .Cauce_aa = "r-2",
                     .KostiakovA = 0.5F,
                     .KostiakovB = 0.25F,
                     .RetensionZ = 5.5F,
                     .Q0Recesion = 0.125F,
                     .KRecesion = 12,
                     .KostiakovI = 30};
    s.Seleccion.UEHSel = 2;
    Abre(f, s);
    EXPECT_EQ(f.lstUEHs.indice, 1);
    EXPECT_EQ(f.lblNroUEH, "2");
    EXPECT_EQ(f.txtArea, "250.5");
    EXPECT_EQ(f.txtReferencia, "ladera, norte");
    EXPECT_EQ(f.txtLongMax, "1500");
    EXPECT_EQ(f.txtVelMedia, "0.05");
    EXPECT_EQ(f.txtRetension_Z, "5.5");
    EXPECT_EQ(f.txtKostiakov_a, "0.5");
    EXPECT_EQ(f.txtKostiakov_b, "0.25");
    EXPECT_EQ(f.txtKostiakov_i, "30");
    EXPECT_EQ(f.txtQ0Recesion, "0.125");
    EXPECT_EQ(f.txtKRecesion, "12");
    EXPECT_EQ(f.lstMetodo, (Lista{{"Directo"}, 0}));
    EXPECT_EQ(f.lblMetodo, "Directo");
    EXPECT_EQ(f.lblDrenaCauceAA, "r-2");
    EXPECT_EQ(f.lstCauceAA, (Lista{{"c-1", "c-2", "c-3", "r-1", "r-2", "l-1", "l-2", "Ninguno", "0"}, 4}));
}

TEST_F(FormaUEH, SinUEHsQuedaCerrada)
{
    s.Red.ColUEHs.Vacia();
    s.Seleccion.UEHSel = 0;
    Abre(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
}

// --- number fields ---

const std::vector<CasoLimite> LimitesUEH = {
    {"txtArea", "99998.99", "99999", "99999.01", "Ingrese un valor numérico entero o decimal menor de 99999"},
    {"txtKostiakov_a", "29.99", "30", "30.01", "Ingrese un valor numérico entero o decimal menor de 30"},
    {"txtKostiakov_b", "0.99", "1", "1.01", "Ingrese un valor numérico decimal entre 0 y 1"},
    {"txtKostiakov_i", "999.9", "1000", "1000.1", "Ingrese un valor numérico decimal entre 0 y 1000"},
    {"txtKRecesion", "9998.9", "9999", "9999.1", "Ingrese un valor numérico decimal entre 0 y 9999"},
    {"txtLongMax", "49999.9", "50000", "50000.1", "Ingrese un valor numérico menor de 50000"},
    {"txtQ0Recesion", "999.9", "1000", "1000.1", "Ingrese un valor numérico entero o decimal menor de 1000"},
    {"txtRetension_Z", "39.99", "40", "40.01", "Ingrese un valor numérico entero o decimal menor de 40"},
    {"txtVelMedia", "14.99", "15", "15.01", "Ingrese un valor numérico entero o decimal menor de 15"},
};

struct LimiteUEH : FormaUEH, testing::WithParamInterface<CasoLimite> {};

TEST_P(LimiteUEH, AceptaHastaElLimiteYRechazaDespuesConSuMensaje)
{
    VerificaLimite(f, s, anfitrion, GetParam(), MiembroDe<dlgUEH2>(CamposDlgUEH2, GetParam().control),
                   model::Icono::Exclamacion);
}
INSTANTIATE_TEST_SUITE_P(Campos, LimiteUEH, testing::ValuesIn(LimitesUEH), NombreDeCaso);

TEST_F(FormaUEH, NoHayMasCamposNumericos)
{
    EXPECT_EQ(CamposDlgUEH2.size(), LimitesUEH.size());
}

TEST_F(FormaUEH, LosOtrosControlesSeDejanSinMas)
{
    f.txtReferencia = "abc, con coma";
    EXPECT_TRUE(AlSalir(f, s, "txtReferencia"));
    EXPECT_EQ(f.txtReferencia, "abc, con coma");
    EXPECT_TRUE(Avisos().empty());
}

// --- name ---

TEST_F(FormaUEH, AlEscribirElNombreSeLePoneElPrefijoYSeCorta)
{
    EXPECT_TRUE(Escribe("ladera"));
    EXPECT_EQ(f.txtNombreUEH, "u-ladera");
    EXPECT_TRUE(Escribe("12345678901234567890"));
    EXPECT_EQ(f.txtNombreUEH, "u-1234567890123");
    EXPECT_TRUE(Escribe("u-34567890123456"));
    EXPECT_EQ(f.txtNombreUEH, "u-3456789012345");
    EXPECT_TRUE(Escribe(""));
    EXPECT_EQ(f.txtNombreUEH, "u-");
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-1") << "nothing is stored while typing";
}

TEST_F(FormaUEH, AlSalirTambienSePoneElPrefijo)
{
    f.txtNombreUEH = "ladera";
    EXPECT_TRUE(AlSalir(f, s, "txtNombreUEH"));
    EXPECT_EQ(f.txtNombreUEH, "u-ladera");
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-ladera");
}

TEST_F(FormaUEH, ElNombreDeOtraEsInvalidoYaAlEscribirYNoSeGuarda)
{
    EXPECT_FALSE(Escribe("u-2"));
    EXPECT_EQ(f.txtNombreUEH, "Invalido");
    EXPECT_EQ(f.foco, (forms::Foco{"txtNombreUEH", true}));
    EXPECT_TRUE(AlSalir(f, s, "txtNombreUEH"));
    EXPECT_EQ(f.txtNombreUEH, "Invalido") << "no prefix is put before the form's own text";
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-1");
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-1");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(FormaUEH, ElNombreDeOtraRetieneElFocoAlSalir)
{
    f.txtNombreUEH = "3";
    EXPECT_FALSE(AlSalir(f, s, "txtNombreUEH"));
    EXPECT_EQ(f.txtNombreUEH, "Invalido");
    EXPECT_EQ(f.foco, (forms::Foco{"txtNombreUEH", true}));
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-1");
}

TEST_F(FormaUEH, LaTeclaQueSigueAUnInvalidoEmpiezaUnNombreSinVolverASeleccionar)
{
    EXPECT_FALSE(Escribe("u-2"));
    EXPECT_TRUE(Escribe("x"));  // it takes the place of the selected text
    EXPECT_EQ(f.txtNombreUEH, "u-x");
    EXPECT_EQ(f.foco, forms::Foco{});
}

TEST_F(FormaUEH, DosNombresIgualesTrasElCorteChocan)
{
    s.Red.UEHs(2).NombreUEH = "u-1234567890123";
    EXPECT_FALSE(Escribe("u-1234567890123-otra"));
    EXPECT_EQ(f.txtNombreUEH, "Invalido");
}

TEST_F(FormaUEH, ElNombrePropioNoEsDeOtra)
{
    EXPECT_TRUE(Nombra("u-1"));
    EXPECT_EQ(f.txtNombreUEH, "u-1");
    EXPECT_EQ(anfitrion->redibujos, 0) << "nothing has changed";
}

TEST_F(FormaUEH, ElNombreDeUnCauceNoEsDeOtraUEH)
{
    s.Red.Cauces(1).NombreCauce = "u-9";
    EXPECT_TRUE(Nombra("u-9"));
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-9");
}

TEST_F(FormaUEH, ElNuevoNombreReemplazaAlViejoComoDestinoSalvoEnUEHs)
{
    s.Red.UEHs(2).Cauce_aa = s.Red.Cauces(1).Cauce_aa = s.Red.Represas(2).Cauce_aa = s.Red.Lagos(2).Cauce_aa =
        "u-1";
    EXPECT_TRUE(Nombra("norte"));
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-norte");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "u-norte");
    EXPECT_EQ(s.Red.Represas(2).Cauce_aa, "u-norte");
    EXPECT_EQ(s.Red.Lagos(2).Cauce_aa, "u-norte");
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "u-1");
    EXPECT_EQ(f.lblNombreUEH, "u-norte");
    EXPECT_EQ(f.lstUEHs, (Lista{{"u-norte", "u-2", "u-3"}, 0}));
    EXPECT_EQ(anfitrion->redibujos, 1);
}

TEST_F(FormaUEH, ElNombreCambiadoQuedaAunqueSeCancele)
{
    Nombra("norte");
    CancelButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-norte");
}

// --- destination ---

TEST_F(FormaUEH, ElDestinoElegidoValeEnSeguida)
{
    struct Caso {
        const char* entrada;
        const char* Cauce_aa;
        std::pair<float, float> punto;
    };
    for (const Caso& caso :
         {Caso{"r-2", "r-2", {71, 72}}, Caso{"l-1", "l-1", {81, 82}}, Caso{"Ninguno", "", {0, 0}},
          Caso{"l-2", "l-2", {81, 82}}, Caso{"0", "0", {0, 0}}}) {
        Elige(caso.entrada);
        EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, caso.Cauce_aa) << caso.entrada;
        EXPECT_EQ(Punto(1), caso.punto) << caso.entrada;
        EXPECT_EQ(f.lblDrenaCauceAA, caso.Cauce_aa);
    }
    EXPECT_EQ(anfitrion->redibujos, 5);
}

TEST_F(FormaUEH, ElPuntoDeUnCauceSePoneRecienAlGuardar)
{
    Elige("r-1");
    Elige("c-2");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-2");
    EXPECT_EQ(Punto(1), (std::pair<float, float>{71, 72}));
    OKButton(f, s);
    EXPECT_EQ(Punto(1), (std::pair<float, float>{30, 20}));
}

TEST_F(FormaUEH, CancelarTrasElegirDestinoLoConserva)
{
    Elige("l-2");
    CancelButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "l-2");
    EXPECT_EQ(Punto(1), (std::pair<float, float>{81, 82}));
}

TEST_F(FormaUEH, UnaUEHPuedeQuedarSinDestino)
{
    s.Red.UEHs(1).XCauce = s.Red.UEHs(1).YCauce = 5;
    s.Red.UEHs(1).Cauce_aa.clear();
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
    EXPECT_EQ(Punto(1), (std::pair<float, float>{0, 0})) << "an empty destination has its point at 0, 0";
}

TEST_F(FormaUEH, UnDestinoDesconocidoQuedaConSuPunto)
{
    s.Red.UEHs(1).Cauce_aa = "c-9";
    s.Red.UEHs(1).XCauce = 5;
    Abre(f, s);
    EXPECT_EQ(f.lstCauceAA.indice, -1);
    EXPECT_EQ(f.lblDrenaCauceAA, "c-9");
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-9");
    EXPECT_EQ(Punto(1), (std::pair<float, float>{5, 0}));
}

TEST_F(FormaUEH, UnClicFueraDeLaListaNoHaceNada)
{
    lstCauceAA_Click(f, s, -1);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-1");
    EligeComponente(f, s, -1);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
}

// --- storing ---

TEST_F(FormaUEH, PasarAOtraGuardaLosCamposYMuestraLaOtra)
{
    f.txtArea = "12.5";
    f.txtReferencia = "alta";
    f.txtKRecesion = "7";
    EligeComponente(f, s, 2);
    EXPECT_EQ(s.Red.UEHs(1).Area, 12.5F);
    EXPECT_EQ(s.Red.UEHs(1).Referencia, "alta");
    EXPECT_EQ(s.Red.UEHs(1).KRecesion, 7);
    EXPECT_EQ(s.Seleccion.UEHSel, 3);
    EXPECT_EQ(f.txtNombreUEH, "u-3");
    EXPECT_EQ(f.txtArea, "0");
    EXPECT_EQ(f.lstUEHs.indice, 2);
}

TEST_F(FormaUEH, AceptarGuardaCadaCampoEnSuPropiedadLimpiaLaSeleccionYCierra)
{
    s.Seleccion.CauceSel = 2;
    s.Seleccion.LagoSel = 1;
    f.txtArea = "1.5";
    f.txtLongMax = "2";
    f.txtVelMedia = "0.05";
    f.txtRetension_Z = "4";
    f.txtKostiakov_a = "5";
    f.txtKostiakov_b = "0.6";
    f.txtKostiakov_i = "7";
    f.txtQ0Recesion = "8";
    f.txtKRecesion = "9";
    f.txtReferencia = "cima";
    OKButton(f, s);
    const model::UEH esperada{.NombreUEH = "u-1",
                              .Area = 1.5F,
                              .Referencia = "cima",
                              .LongitudMax = 2,
                              .VelMedia = 0.05F,
                              .Metodo = "Directo",
                              .numUEH = 1,
                              .XCauce = 16,
                              .YCauce = 18,
                              .Cauce_aa = "c-1",
                              .KostiakovA = 5,
                              .KostiakovB = 0.6F,
                              .RetensionZ = 4,
                              .Q0Recesion = 8,
                              .KRecesion = 9,
                              .KostiakovI = 7};
    EXPECT_EQ(s.Red.UEHs(1), esperada);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(s.Seleccion.LagoSel, 1) << "only the two are cleared";
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->redibujos, 1);
    EXPECT_EQ(disco.Archivos().size(), 2U) << "the form saves nothing";
}

TEST_F(FormaUEH, CancelarNoGuardaLosCampos)
{
    s.Seleccion.CauceSel = 2;
    f.txtArea = "12.5";
    CancelButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Area, 0);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_FALSE(f.abierta);
}

TEST_F(FormaUEH, SeGuardaElNumeroConQueEmpiezaElTexto)
{
    f.txtArea = "12,5 has";
    f.txtLongMax = "abc";
    f.txtVelMedia = "";
    s.Red.UEHs(1).LongitudMax = s.Red.UEHs(1).VelMedia = 3;
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Area, 12.5F);
    EXPECT_EQ(s.Red.UEHs(1).LongitudMax, 0);
    EXPECT_EQ(s.Red.UEHs(1).VelMedia, 0);
}

TEST_F(FormaUEH, UnNumeroFueraDeTipoEsFalla6YLaFormaSigueAbierta)
{
    f.txtArea = "1E39";
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { OKButton(f, s); }), 6);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
}

TEST_F(FormaUEH, UnNombreEscritoYNoDejadoSeGuardaConSusReglasAlAceptar)
{
    f.txtNombreUEH = "norte";
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-norte");
    Abre(f, s);
    f.txtNombreUEH = "u-2";
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-norte");
}

TEST_F(FormaUEH, UnMetodoDeOtroOrigenQuedaHastaElegirElUnico)
{
    s.Red.UEHs(1).Metodo = "Otro";
    Abre(f, s);
    EXPECT_EQ(f.lblMetodo, "Otro");
    EXPECT_EQ(f.lstMetodo.indice, -1);
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Metodo, "Otro");
    Abre(f, s);
    lstMetodo_Click(f, 1);
    EXPECT_EQ(f.lstMetodo.indice, -1) << "no such entry";
    lstMetodo_Click(f, 0);
    EXPECT_EQ(f.lblMetodo, "Directo");
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Metodo, "Directo");
}

// --- plot ---

TEST_F(FormaUEH, LaCurvaSigueALosCampos)
{
    f.txtKostiakov_a = "3";
    f.txtKostiakov_b = "0,5";
    f.txtKostiakov_i = "25";
    EXPECT_EQ(CurvaDeCampos(f), CurvaKostiakov(3, 0.5, 25));
}

TEST_F(FormaUEH, ConUnCampoRechazadoNoHayCurva)
{
    for (const auto campo : {&dlgUEH2::txtKostiakov_a, &dlgUEH2::txtKostiakov_b, &dlgUEH2::txtKostiakov_i}) {
        f.txtKostiakov_a = f.txtKostiakov_b = f.txtKostiakov_i = "1";
        EXPECT_TRUE(CurvaDeCampos(f));
        for (const char* texto : {"", "x", "-1", "1001"}) {
            f.*campo = texto;
            EXPECT_FALSE(CurvaDeCampos(f)) << texto;
        }
    }
}

}  // namespace
}  // namespace editor
