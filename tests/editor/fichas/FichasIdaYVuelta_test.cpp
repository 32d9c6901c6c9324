// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "apoyo/Compara.h"
#include "editor/fichas/FichasDePrueba.h"
#include "editor/fichas/dlgCauceEditProp.h"
#include "editor/fichas/dlgLago.h"
#include "editor/fichas/dlgRepresas.h"
#include "editor/fichas/dlgUEH2.h"

// What is put into the forms, saved from the editor and read by another program is what was put in.
namespace editor {
namespace {

struct IdaYVuelta : RedDeFichas {
    /// Saves and reads the project anew, in a program of its own.
    model::Siro Relee()
    {
        model::GuardaRed(s);
        model::Siro otro;
        otro.Anfitrion = anfitrion.Puerta();
        otro.Disco = disco.Puerta();
        otro.Proyecto.NombreProyecto = "Arroyo";
        otro.Proyecto.DirProyecto = "/proy";
        model::LeeUEHs(otro);
        return otro;
    }
    /// A value and a field: the form leaves it as a user does.
    template <typename Forma, typename Base>
    void Escribe(Forma& f, std::string Base::*texto, const char* control, const char* valor)
    {
        f.*texto = valor;
        EXPECT_TRUE(AlSalir(f, s, control)) << control;
    }
};

TEST_F(IdaYVuelta, UnaUEH)
{
    dlgUEH2 f;
    s.Seleccion.UEHSel = 2;
    Abre(f, s);
    Escribe(f, &dlgUEH2::txtNombreUEH, "txtNombreUEH", "ladera");
    Escribe(f, &dlgUEH2::txtArea, "txtArea", "250,5");
    Escribe(f, &dlgUEH2::txtLongMax, "txtLongMax", "50000");
    Escribe(f, &dlgUEH2::txtVelMedia, "txtVelMedia", "0.05");
    Escribe(f, &dlgUEH2::txtRetension_Z, "txtRetension_Z", "5.5");
    Escribe(f, &dlgUEH2::txtKostiakov_a, "txtKostiakov_a", "0.75");
    Escribe(f, &dlgUEH2::txtKostiakov_b, "txtKostiakov_b", "0.25");
    Escribe(f, &dlgUEH2::txtKostiakov_i, "txtKostiakov_i", "30");
    Escribe(f, &dlgUEH2::txtQ0Recesion, "txtQ0Recesion", "0.125");
    Escribe(f, &dlgUEH2::txtKRecesion, "txtKRecesion", "12");
    f.txtReferencia = "cumbre, ñandú";
    lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, "c-2"));
    OKButton(f, s);
    const model::UEH esperada{.NombreUEH = "u-ladera",
                              .Area = 250.5F,
                              .Referencia = "cumbre, ñandú",
                              .LongitudMax = 50000,
                              .VelMedia = 0.05F,
                              .Metodo = "Directo",
                              .numUEH = 2,
                              .XCauce = 30,
                              .YCauce = 20,
                              .Cauce_aa = "c-2",
                              .KostiakovA = 0.75F,
                              .KostiakovB = 0.25F,
                              .RetensionZ = 5.5F,
                              .Q0Recesion = 0.125F,
                              .KRecesion = 12,
                              .KostiakovI = 30};
    EXPECT_EQ(Relee().Red.UEHs(2), esperada);
}

TEST_F(IdaYVuelta, UnCauceYSusTributarios)
{
    dlgCauceEditProp f;
    s.Seleccion.CauceSel = 1;
    Abre(f, s);
    Escribe(f, &dlgCauceEditProp::txtNombreCauce, "txtNombreCauce", "salida");
    Escribe(f, &dlgCauceEditProp::txtLongCauce, "txtLongCauce", "1234.5");
    Escribe(f, &dlgCauceEditProp::txtVelMediaCauce, "txtVelMediaCauce", "15");
    Escribe(f, &dlgCauceEditProp::txtCauce_k_Musk, "txtCauce_k_Musk", "45");
    Escribe(f, &dlgCauceEditProp::txtCauce_n_Musk, "txtCauce_n_Musk", "0,5");
    lstTributaCauce_Click(f, s, LineaDe(f.lstTributaCauce, "l-2"));
    optDirecta_Click(f);
    OKButton(f, s);
    model::Siro otro = Relee();
    const model::Cauce esperado{.numCauce = 1,
                                .numVertices = 3,
                                .NombreCauce = "c-salida",
                                .Cauce_aa = "l-2",
                                .LongCauce = 1234.5F,
                                .VelMediaCauce = 15,
                                .Cauce_k_Musk = 45,
                                .Cauce_n_Musk = 0.5F,
                                .OrdenCauce = 1,
                                .optDirMusk = true};
    model::Cauce obtenido = otro.Red.Cauces(1);
    obtenido.IndiceParInicial = 0;  // the editor's drawing gives it, not the form
    EXPECT_EQ(obtenido, esperado);
    EXPECT_EQ(otro.Red.XVertice(1, 1), 81);
    EXPECT_EQ(otro.Red.YVertice(1, 1), 82);
    EXPECT_EQ(otro.Red.XVertice(1, 3), 16);
    EXPECT_EQ(otro.Red.UEHs(1).Cauce_aa, "c-salida");
    EXPECT_EQ(otro.Red.Cauces(2).Cauce_aa, "c-salida");
    EXPECT_EQ(otro.Red.Represas(1).Cauce_aa, "c-salida");
    EXPECT_EQ(otro.Red.Lagos(1).Cauce_aa, "c-salida");
}

TEST_F(IdaYVuelta, UnaRepresa)
{
    dlgRepresas f;
    Abre(f, s);
    Escribe(f, &dlgRepresas::txtHInicialEmb, "txtHInicialEmb", "110.5");
    Escribe(f, &dlgRepresas::txtNombreRepresa, "txtNombreRepresa", "presa alta");
    lstMetodo_Click(f, 1);
    Escribe(f, &dlgRepresas::txtRepresa_k, "txtRepresa_k", "99999");
    Escribe(f, &dlgRepresas::txtRepresa_n, "txtRepresa_n", "0.25");
    optFunciones_Click(f);
    for (int i = 1; i <= 8; ++i) {
        chkFQ_Click(f, i, i != 3);
        const auto lugar = static_cast<std::size_t>(i) - 1;
        f.txtFQa[lugar] = "1." + std::to_string(i);
        f.txtFQb[lugar] = "2." + std::to_string(i);
        f.txtFQc[lugar] = "-3." + std::to_string(i);
        f.txtFQHmin[lugar] = "4" + std::to_string(i);
        f.txtFQHMax[lugar] = "5" + std::to_string(i);
    }
    lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, "c-3"));
    OKButton(f, s);
    const model::Represa esperada{.NombreRepresa = "r-presa alta",
                                  .numRepresa = 1,
                                  .IconoRepresaX = 71,
                                  .IconoRepresaY = 72,
                                  .Metodo = "Muskingum",
                                  .XCauce = 60,
                                  .YCauce = 60,
                                  .Cauce_aa = "c-3",
                                  .FQa = {1.1F, 1.2F, 1.3F, 1.4F, 1.5F, 1.6F, 1.7F, 1.8F},
                                  .FQb = {2.1F, 2.2F, 2.3F, 2.4F, 2.5F, 2.6F, 2.7F, 2.8F},
                                  .FQc = {0, 0, 0, 0, -3.5F, -3.6F, -3.7F, -3.8F},
                                  .Represa_k_Musk = 99999,
                                  .Represa_n_Musk = 0.25F,
                                  .FQmin = {41, 42, 43, 44, 45, 46, 47, 48},
                                  .FQMax = {51, 52, 53, 54, 55, 56, 57, 58},
                                  .chkFQ = {1, 1, 0, 1, 1, 1, 1, 1},
                                  .optTabla = false,
                                  .HInicialEmb = 110.5F};
    EXPECT_EQ(Relee().Red.Represas(1), esperada);
}

TEST_F(IdaYVuelta, UnLago)
{
    dlgLago f;
    Abre(f, s);
    Escribe(f, &dlgLago::txtHInicialEmb, "txtHInicialEmb", "2.5");
    Escribe(f, &dlgLago::txtNombreLAGO, "txtNombreLAGO", "blanca");
    f.txtReferencia = "mallín";
    lstMetodo_Click(f, 2);
    Escribe(f, &dlgLago::txtLago_k, "txtLago_k", "0.5");
    lstCauceAA_Click(f, s, LineaDe(f.lstCauceAA, "0"));
    OKButton(f, s);
    const model::Lago esperado{.NombreLAGO = "l-blanca",
                               .numLAGO = 1,
                               .Referencia = "mallín",
                               .IconoLAGOx = 81,
                               .IconoLAGOy = 82,
                               .Metodo = "Runge Kutta",
                               .Cauce_aa = "0",
                               .Lago_k_Musk = 0.5F,
                               .HInicialEmb = 2.5F};
    EXPECT_EQ(Relee().Red.Lagos(1), esperado);
}

/// Any number of hundredths within the limits of its field comes back.
TEST_F(IdaYVuelta, CualquierValorQueUnCampoAcepta)
{
    EXPECT_TRUE(rc::check([this] {
        dlgUEH2 f;
        s.Seleccion.UEHSel = 1;
        Abre(f, s);
        std::vector<float> valores;
        for (const auto& campo : CamposDlgUEH2) {
            const auto centesimas = static_cast<int>(campo.regla.maximo * 100);
            const double valor = *rc::gen::inRange(0, centesimas + 1) / 100.0;
            f.*campo.texto = model::NumeroATexto(valor);
            RC_ASSERT(AlSalir(f, s, campo.regla.control));
            valores.push_back(static_cast<float>(valor));
        }
        OKButton(f, s);
        const model::UEH leida = Relee().Red.UEHs(1);
        for (std::size_t i = 0; i < valores.size(); ++i)
            RC_ASSERT((leida.*CamposDlgUEH2[i].valor) == valores[i]);
    }));
}

}  // namespace
}  // namespace editor
