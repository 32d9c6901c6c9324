// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"
#include "editor/fichas/dlgCauceEditProp.h"
#include "editor/fichas/dlgLago.h"
#include "editor/fichas/dlgRepresas.h"
#include "editor/fichas/dlgUEH2.h"

// What the property forms say of the numbers in their fields, which nobody has stored yet.
namespace editor {
namespace {

struct Apuntes : RedDeFichas {};

TEST_F(Apuntes, DelCauceSegunElMetodoElegido)
{
    s.Seleccion.CauceSel = 1;
    dlgCauceEditProp f;
    Abre(f, s);
    f.txtLongCauce = "1500";
    f.txtVelMediaCauce = "1";
    f.txtCauce_k_Musk = "24";
    f.txtCauce_n_Musk = "0,2";
    optMusk_Click(f);
    EXPECT_EQ(ApunteMuskingum(f, s), "Ventana de Muskingum: 2Kx = 9.6 ≤ paso 10 min ≤ 2K(1-x) = 38.4 min.");
    EXPECT_EQ(ApunteViaje(f, s), "Viaje T = 25 min: 2.5 pasos de 10 min, que por Muskingum no cuentan.");
    optDirecta_Click(f);
    EXPECT_EQ(ApunteMuskingum(f, s), "");
    EXPECT_EQ(ApunteViaje(f, s), "Viaje T = 25 min: la crecida se atrasa 2 pasos de 10 min.");
    EXPECT_EQ(s.Red.Cauces(1).LongCauce, 0);  // typed, not stored
}

TEST_F(Apuntes, ConUnTextoQueNoValeOLaFormaCerradaNoDicenNada)
{
    s.Seleccion.CauceSel = 1;
    dlgCauceEditProp f;
    Abre(f, s);
    optMusk_Click(f);
    f.txtVelMediaCauce = "1";
    f.txtLongCauce = "600";
    f.txtCauce_k_Musk = "24";
    for (const char* const malo : {"", "0.6", "abc", "1e999", "-0.1"}) {
        f.txtCauce_n_Musk = malo;
        EXPECT_EQ(ApunteMuskingum(f, s), "") << malo;
        EXPECT_NE(ApunteViaje(f, s), "") << malo;
    }
    f.txtCauce_n_Musk = "0.2";
    EXPECT_NE(ApunteMuskingum(f, s), "");
    CancelButton(f, s);
    EXPECT_EQ(ApunteMuskingum(f, s), "");
    EXPECT_EQ(ApunteViaje(f, s), "");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Apuntes, DeLaUEHLaTormentaEnManoConLoEscrito)
{
    s.Seleccion.UEHSel = 1;
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 60;
    dlgUEH2 f;
    Abre(f, s);
    f.txtLongMax = "800";
    f.txtVelMedia = "1";
    f.txtRetension_Z = "5";
    f.txtKostiakov_a = "2";
    f.txtKostiakov_b = "0.5";
    f.txtKostiakov_i = "30";
    EXPECT_EQ(ApunteTraslado(f, s), "Traslado T = 13 min: 1.3 pasos de 10 min.");
    EXPECT_EQ(ApunteRetencion(f, s), "De los 60 mm de la tormenta en mano retiene 5 mm.");
    EXPECT_EQ(ApunteInfiltracion(f, s),
              "De los 60 mm de la tormenta en mano infiltra 8 mm y escurren 47 mm (78 %), como con CN 95.2.");
    f.txtKostiakov_b = "1.5";
    EXPECT_EQ(ApunteInfiltracion(f, s), "");
    f.txtKostiakov_b = "0.5";
    s.Tormenta.PpTormenta = 0;
    EXPECT_EQ(ApunteRetencion(f, s), "");
    EXPECT_EQ(ApunteInfiltracion(f, s), "Sin una tormenta en mano no se sabe cuánto escurre.");
    EXPECT_TRUE(Avisos().empty());
}

// Between 105 and 110.7 m the table goes from 1000 to 2000 m3: at 107.85 m, the middle, 1500. F2 = 2·(107.85
// - 100)^1 = 15.7 m3/s.
TEST_F(Apuntes, DeLaRepresaConLasFuncionesEscritas)
{
    s.Seleccion.RepresaSel = 1;
    dlgRepresas f;
    Abre(f, s);
    optFunciones_Click(f);
    chkFQ_Click(f, 2, true);
    f.txtFQa[1] = "2";
    f.txtFQb[1] = "1";
    f.txtFQHmin[1] = "100";
    f.txtFQHMax[1] = "110";
    f.txtHInicialEmb = "107,85";
    EXPECT_EQ(ApunteAltura(f, s), "Con 107.85 m: almacenamiento 1500 m3; descarga 15.7 m3/s.");
    EXPECT_EQ(ApunteFunciones(f, s), "H cuenta desde H mín. Con 107.85 m, F2: H = 7.85 m, 15.7 m3/s.");
    f.txtHInicialEmb = "";
    EXPECT_EQ(ApunteAltura(f, s), "");
    EXPECT_EQ(ApunteFunciones(f, s), "H cuenta desde H mín.");
    f.txtHInicialEmb = "107.85";
    f.txtFQa[1] = "1e999";  // outside its type
    EXPECT_TRUE(model::Sentencia([&] { ApunteAltura(f, s); }) == false || ApunteAltura(f, s).empty());
    optTablaQ_Click(f);
    f.txtFQa[1] = "2";
    EXPECT_EQ(ApunteFunciones(f, s), "");
    f.txtHInicialEmb = "111";
    EXPECT_EQ(ApunteAltura(f, s),
              "Con 111 m: almacenamiento fuera de su tabla (de 100.3 a 110.7 m); descarga sin tabla.");
    // x plays no part with a pool.
    // The table of outflow is the file's, though nothing has read it into the network.
    disco.Pon("/proy/Arroyo_RHQ.vlm", "\"*r-1\",2\r\n100,0\r\n110,40\r\n");
    AlVolver(f, s);
    f.txtHInicialEmb = "105";
    EXPECT_EQ(ApunteAltura(f, s), "Con 105 m: almacenamiento 1000 m3; descarga 20 m3/s.");
    EXPECT_EQ(s.Red.RepresaFilasHQ.Tope() >= 1 ? s.Red.RepresaFilasHQ(1) : 0, 0);
    // x plays no part with a pool.
    lstMetodo_Click(f, LineaDe(f.lstMetodo, "Muskingum"));
    f.txtRepresa_k = "80";
    f.txtRepresa_n = "0.4";
    EXPECT_EQ(ApunteMuskingum(f, s), "Ventana de Muskingum: paso 10 min ≤ 2K = 160 min.");
    lstMetodo_Click(f, LineaDe(f.lstMetodo, "Runge Kutta"));
    EXPECT_EQ(ApunteMuskingum(f, s), "");
    EXPECT_TRUE(Avisos().empty());
}

// At 1.75 m, the middle of 1 and 2.5 m: half of 5000 m3 and of 3 m3/s.
TEST_F(Apuntes, DelLagoPorSuTabla)
{
    s.Seleccion.LagoSel = 1;
    dlgLago f;
    Abre(f, s);
    f.txtHInicialEmb = "1.75";
    EXPECT_EQ(ApunteAltura(f, s), "Con 1.75 m: almacenamiento 2500 m3; descarga 1.5 m3/s.");
    f.txtHInicialEmb = "x";
    EXPECT_EQ(ApunteAltura(f, s), "");
    lstMetodo_Click(f, LineaDe(f.lstMetodo, "Muskingum"));
    f.txtLago_k = "4";
    EXPECT_EQ(ApunteMuskingum(f, s),
              "Fuera de la ventana de Muskingum: 2K = 8 < paso 10 min; K desde 5 min.");
    EXPECT_TRUE(Avisos().empty());
}

}  // namespace
}  // namespace editor
