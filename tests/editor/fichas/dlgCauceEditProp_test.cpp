// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgCauceEditProp.h"

#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"

namespace editor {
namespace {

struct FormaCauce : RedDeFichas {
    FormaCauce() { AbreEn(1); }
    void AbreEn(std::int16_t numero)
    {
        s.Seleccion.CauceSel = numero;
        Abre(f, s);
    }
    bool Nombra(const std::string& nombre)
    {
        f.txtNombreCauce = nombre;
        return ArreglaNombre(f, s) && AlSalir(f, s, "txtNombreCauce");
    }
    void Elige(std::string_view destino) { lstTributaCauce_Click(f, s, LineaDe(f.lstTributaCauce, destino)); }

    dlgCauceEditProp f;
};

// --- texts ---

TEST(TextosDeDlgCauceEditProp, TituloLeyendasYAyudasEstanLetraPorLetra)
{
    EXPECT_EQ(TituloDlgCauceEditProp, "Propiedades de un tramo de Cauce");
    const std::vector<std::pair<std::string, std::string>> leyendas = {
        {"lstCauces", "Selección de Cauce:"},
        {"lblNroCauce", "Nro. de Cauce :"},
        {"lblNombreCauce", "Nombre Cauce :"},
        {"lblCantVer", "Cantidad de Vértices :"},
        {"txtNombreCauce", "Nombre del Cauce"},
        {"lstTributaCauce", "Tributa al Cauce/Laguna/Represa :"},
        {"txtLongCauce", "Longitud [m]"},
        {"lblOrdenCauce", "Orden del Cauce :"},
        {"lbl_LongCauceDibujo", "Obtenida del diagrama y Escala de dibujo"},
        {"optMusk", "por Muskingum"},
        {"optDirecta", "Directa"},
        {"txtVelMediaCauce", "Velocidad Media [m/s]"},
        {"txtCauce_k_Musk", "Cte. K de Muskingum [min]:"},
        {"txtCauce_n_Musk", "Cte.  x  de Muskingum:"},
        {"OKButton", "Aceptar"},
        {"CancelButton", "Cancelar"},
    };
    for (const auto& [control, leyenda] : leyendas)
        EXPECT_EQ(RotuloDe(RotulosDlgCauceEditProp, control), leyenda);
    EXPECT_EQ(
        forms::RotuloDe(RotulosDlgCauceEditProp, "lbl_LongCauceDibujo").ayuda,
        "Si el diagrama es representativo y la escala adoptada correcta, puede adoptar esta Longitud en "
        "el campo de la izquierda");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgCauceEditProp, "txtCauce_n_Musk").ayuda,
              "Coeficiente 'x' de Muskingum. 0<=x>0,5 ");
}

// --- opening ---

TEST_F(FormaCauce, MuestraElSeleccionadoConSusPropiedades)
{
    model::Cauce& c = s.Red.Cauces(2);
    c.LongCauce = 800;
    c.VelMediaCauce = 1.25F;
    c.Cauce_k_Musk = 20.5F;
    c.Cauce_n_Musk = 0.2F;
    c.OrdenCauce = 3;
    AbreEn(2);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lstCauces, (Lista{{"c-1", "c-2", "c-3"}, 1}));
    EXPECT_EQ(f.lblNroCauce, "2");
    EXPECT_EQ(f.lblNombreCauce, "c-2");
    EXPECT_EQ(f.txtNombreCauce, "c-2");
    EXPECT_EQ(f.lblCantVer, "2");
    EXPECT_EQ(f.lblOrdenCauce, "3");
    EXPECT_EQ(f.txtLongCauce, "800");
    EXPECT_EQ(f.txtVelMediaCauce, "1.25");
    EXPECT_EQ(f.txtCauce_k_Musk, "20.5");
    EXPECT_EQ(f.txtCauce_n_Musk, "0.2");
    EXPECT_TRUE(f.optMusk);
    EXPECT_FALSE(f.optDirecta);
}

TEST_F(FormaCauce, ElDelFormularioEstaEnSuPropiaListaDeDestinos)
{
    EXPECT_EQ(f.lstTributaCauce.items,
              (Textos{"c-1", "c-2", "c-3", "r-1", "r-2", "l-1", "l-2", "Ninguno", "0"}));
    EXPECT_EQ(f.lstTributaCauce.indice, 8);
    Elige("c-1");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-1");
    EXPECT_TRUE(Avisos().empty());
    OKButton(f, s);
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{16, 18})) << "its own last vertex";
}

TEST_F(FormaCauce, SinSeleccionMuestraElPrimeroYSinCaucesQuedaCerrada)
{
    AbreEn(0);
    EXPECT_EQ(s.Seleccion.CauceSel, 1);
    EXPECT_EQ(f.lblNombreCauce, "c-1");
    s.Red.ColCauces.Vacia();
    AbreEn(0);
    EXPECT_FALSE(f.abierta);
}

// --- length of the drawing ---

TEST_F(FormaCauce, LaLongitudDibujadaSumaLosTramos)
{
    // 3-4-5 triangles: 5 to (13, 14), then 5 to (16, 18).
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 1), 10);
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 12.5), 125);
}

TEST_F(FormaCauce, LaDeUnSoloVerticeEsCero)
{
    PonVertices(3, {{50, 50}});
    EXPECT_EQ(LongitudDibujada(s.Red, 3, 10), 0);
    s.Configuracion.EscalaDibujo = "10";
    AbreEn(3);
    EXPECT_EQ(f.lbl_LongCauceDibujo, "0");
    s.Red.NroVertices(3) = 0;
    EXPECT_EQ(LongitudDibujada(s.Red, 3, 10), 0);
}

TEST_F(FormaCauce, SeRedondeaEnCadaVertice)
{
    // 0.4 and 0.4: 0 + 0.4 rounds to 0 twice, though the whole is 0.8.
    PonVertices(1, {{0, 0}, {0.4F, 0}, {0.8F, 0}});
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 100), 0);
    // 1.6 and 1.6: 2, then 3.6 rounds to 4, though the whole is 3.2.
    PonVertices(1, {{0, 0}, {1.6F, 0}, {3.2F, 0}});
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 1), 4);
    // Ties go to the even number: 0.5 to 0, and 2.5 to 2.
    PonVertices(1, {{0, 0}, {0.5F, 0}, {3, 0}});
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 1), 2);
    // And so does the product with the scale: 5 times 0.5.
    PonVertices(1, {{0, 0}, {5, 0}});
    EXPECT_EQ(LongitudDibujada(s.Red, 1, 0.5), 2);
}

TEST_F(FormaCauce, UnaLongitudFueraDeTipoEsFalla6)
{
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { LongitudDibujada(s.Red, 1, 3E8); }), 6);
}

TEST_F(FormaCauce, LaEscalaDecideElRotulo)
{
    EXPECT_EQ(f.lbl_LongCauceDibujo, "Sin Escalar") << "the scale is 0";
    s.Configuracion.EscalaDibujo = "12.5";
    AbreEn(1);
    EXPECT_EQ(f.lbl_LongCauceDibujo, "125");
    s.Configuracion.EscalaDibujo = "-1";
    AbreEn(1);
    EXPECT_EQ(f.lbl_LongCauceDibujo, "");
    EXPECT_EQ(f.txtLongCauce, "0") << "nobody copies it there";
}

// --- number fields ---

const std::vector<CasoLimite> LimitesCauce = {
    {"txtLongCauce", "49999.9", "50000", "50000.1", "Ingrese un valor numérico menor de 50000"},
    {"txtVelMediaCauce", "14.99", "15", "15.01", "Ingrese un valor numérico entero o decimal menor de 15"},
    {"txtCauce_k_Musk", "9998.9", "9999", "9999.1",
     "Ingrese un valor numérico, entero o decimal, entre 0 y 9999"},
    {"txtCauce_n_Musk", "0.49", "0.5", "0.51", "Ingrese un valor numérico decimal, entre 0 y 0.5"},
};

struct LimiteCauce : FormaCauce, testing::WithParamInterface<CasoLimite> {};

TEST_P(LimiteCauce, AceptaHastaElLimiteYRechazaDespuesConSuMensaje)
{
    VerificaLimite(f, s, anfitrion, GetParam(),
                   MiembroDe<dlgCauceEditProp>(CamposDlgCauceEditProp, GetParam().control),
                   model::Icono::Exclamacion);
}
INSTANTIATE_TEST_SUITE_P(Campos, LimiteCauce, testing::ValuesIn(LimitesCauce), NombreDeCaso);

TEST_F(FormaCauce, NoHayMasCamposNumericos)
{
    EXPECT_EQ(CamposDlgCauceEditProp.size(), LimitesCauce.size());
}

// --- name ---

TEST_F(FormaCauce, ElNombreLlevaPrefijoYQuinceCaracteres)
{
    EXPECT_TRUE(Nombra("12345678901234567890"));
    EXPECT_EQ(f.txtNombreCauce, "c-1234567890123");
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-1234567890123");
}

TEST_F(FormaCauce, ElNombreDeOtroCauceEsInvalidoYNoSeGuarda)
{
    EXPECT_FALSE(Nombra("2"));
    EXPECT_EQ(f.txtNombreCauce, "Invalido");
    EXPECT_EQ(f.foco, (forms::Foco{"txtNombreCauce", true}));
    OKButton(f, s);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-1");
}

TEST_F(FormaCauce, ElNuevoNombreVaPorTodosLosQueDrenabanAElMenosPorElMismo)
{
    s.Red.Cauces(1).Cauce_aa = "c-1";
    EXPECT_TRUE(Nombra("salida"));
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-salida");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-salida");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-salida");
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "c-salida");
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "c-salida");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-1");
    EXPECT_EQ(f.lstCauces.items, (Textos{"c-salida", "c-2", "c-3"}));
    EXPECT_EQ(f.lstTributaCauce.items.front(), "c-salida");
    EXPECT_EQ(f.lblNombreCauce, "c-salida");
}

TEST_F(FormaCauce, NombrarUnCauceSinNombreNoLeAcoplaLosQueNoTienenDestino)
{
    s.Red.Cauces(3).NombreCauce.clear();
    AbreEn(3);
    EXPECT_TRUE(Nombra("nuevo"));
    EXPECT_EQ(s.Red.Cauces(3).NombreCauce, "c-nuevo");
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "");
}

TEST_F(FormaCauce, UnNombreLargoQueNadieTocaQuedaAlAceptarYSeCortaAlDejarSuCampo)
{
    s.Red.Cauces(1).NombreCauce = "c-12345678901-.-b";
    AbreEn(1);
    EligeComponente(f, s, 1);
    EligeComponente(f, s, 0);
    OKButton(f, s);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-12345678901-.-b");
    AbreEn(1);
    EXPECT_TRUE(AlSalir(f, s, "txtNombreCauce"));
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-12345678901-.");
}

TEST_F(FormaCauce, UnNombreEscritoYNoDejadoSeGuardaAlAceptarYLosTributariosLoSiguen)
{
    f.txtNombreCauce = "salida";
    OKButton(f, s);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-salida");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-salida");
}

// --- method ---

TEST_F(FormaCauce, LasDosOpcionesSeExcluyenYNadaMas)
{
    f.txtCauce_k_Musk = "3";
    optDirecta_Click(f);
    EXPECT_TRUE(f.optDirecta);
    EXPECT_FALSE(f.optMusk);
    OKButton(f, s);
    EXPECT_TRUE(s.Red.Cauces(1).optDirMusk);
    EXPECT_EQ(s.Red.Cauces(1).Cauce_k_Musk, 3) << "the Muskingum fields count with either";
    AbreEn(1);
    EXPECT_TRUE(f.optDirecta);
    optMusk_Click(f);
    EXPECT_TRUE(f.optMusk);
    EXPECT_FALSE(f.optDirecta);
    OKButton(f, s);
    EXPECT_FALSE(s.Red.Cauces(1).optDirMusk);
}

// --- destination ---

TEST_F(FormaCauce, ElDestinoElegidoValeEnSeguida)
{
    Elige("r-1");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "r-1");
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{71, 72}));
    Elige("l-2");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "l-2");
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{81, 82}));
    Elige("Ninguno");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "");
    Elige("0");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "0");
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{81, 82})) << "none leaves the vertex where it is";
    EXPECT_EQ(anfitrion->redibujos, 4);
    CancelButton(f, s);
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "0");
}

TEST_F(FormaCauce, UnCauceComoDestinoMueveElVerticeAlDibujarOAlGuardar)
{
    Elige("c-3");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-3");
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{10, 10}));
    EXPECT_EQ(anfitrion->redibujos, 1);
    EligeComponente(f, s, 1);
    EXPECT_EQ(PrimerVertice(1), (std::pair<float, float>{60, 60}));
}

TEST_F(FormaCauce, UnCicloNoSeRechaza)
{
    Elige("c-2");  // c-2 drains to c-1
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-2");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(FormaCauce, LaLongitudDibujadaSigueAlVerticeMovido)
{
    s.Configuracion.EscalaDibujo = "1";
    AbreEn(3);  // (50, 50) to (60, 60): 14.14
    EXPECT_EQ(f.lbl_LongCauceDibujo, "14");
    Elige("r-1");  // (71, 72) to (60, 60): √(121 + 144) = 16.28
    EXPECT_EQ(f.lbl_LongCauceDibujo, "16");
}

// --- storing ---

TEST_F(FormaCauce, AceptarGuardaCadaCampoEnSuPropiedadLimpiaLaSeleccionYCierra)
{
    s.Seleccion.UEHSel = 2;
    f.txtLongCauce = "850";
    f.txtVelMediaCauce = "1,5";
    f.txtCauce_k_Musk = "45";
    f.txtCauce_n_Musk = "0.3";
    optDirecta_Click(f);
    OKButton(f, s);
    const model::Cauce esperado{.numCauce = 1,
                                .numVertices = 3,
                                .NombreCauce = "c-1",
                                .Cauce_aa = "0",
                                .LongCauce = 850,
                                .VelMediaCauce = 1.5F,
                                .Cauce_k_Musk = 45,
                                .Cauce_n_Musk = 0.3F,
                                .optDirMusk = true};
    EXPECT_EQ(s.Red.Cauces(1), esperado);
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_FALSE(f.abierta);
}

TEST_F(FormaCauce, PasarAOtroGuardaYMuestraElOtro)
{
    f.txtLongCauce = "850";
    EligeComponente(f, s, 2);
    EXPECT_EQ(s.Red.Cauces(1).LongCauce, 850);
    EXPECT_EQ(s.Seleccion.CauceSel, 3);
    EXPECT_EQ(f.lblNombreCauce, "c-3");
    EXPECT_EQ(f.txtLongCauce, "0");
}

TEST_F(FormaCauce, CancelarNoGuardaYLimpiaLaSeleccion)
{
    s.Seleccion.UEHSel = 2;
    f.txtLongCauce = "850";
    CancelButton(f, s);
    EXPECT_EQ(s.Red.Cauces(1).LongCauce, 0);
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->redibujos, 1);
}

}  // namespace
}  // namespace editor
