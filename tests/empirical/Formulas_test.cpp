// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/Formulas.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <string_view>

namespace empirical {
namespace {

struct TextosQp {
    std::string_view control, leyenda, ayuda;
};

// clang-format off
constexpr auto Esperados = std::to_array<TextosQp>({
    {"txtQCreager", "Creager", "Qp = 0,55 * C * S^(S-0,05)  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpSanti100", "Santi R=100años", "Qp =33 S^(0,5)  ; S= Superficie [Km2] "},
    {"txtQpSanti500", "Santi R=500años", "Qp =50 S^(0,5)  ; S= Superficie [Km2] "},
    {"txtQpSanti1000", "Santi R=1000años", "Qp =66 S^(0,5)  ; S= Superficie [Km2] "},
    {"txtQpMyerC30", "Myer, C=30", "Qp=1,75 * 30 * S^0.5    ; S= Superficie [Km2] "},
    {"txtQpMyerC100", "            C=100", "Qp=1,75 * 100 * S^0.5    ; S= Superficie [Km2] "},
    {"txtQpScimeni", "Scimeni (S<1000Km2)", "Qp = S * (600/(S+10 )+1)     ; S= Superficie [Km2] "},
    {"txtQpPagliaro", "Pagliaro", "Qp = S * ( 2900 / ( 90+S )  )   ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpGauguillet", "Gauguillet", "Qp =  ( 25 * S ) / ( 90 + S )   ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpFanning", "Fanning", "Qp =  2.5 S^5,6   ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpDickens", "Dickens", "Qp = 6,9 * S^(3/4)  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpQuijano", "Quijano", "Qp = 17 * S^(2/3)  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpZapata", "Zapata", "Qp = 21 * S^0,6  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpKuicklingO", "Kuickling, Ordinarias", "Qp =  S * ( ( 1246 / (S+440 ) ) + 0,22  )   ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpKuicklingE", "Kuickling, Extra-Ordinarias", "Qp = S * ( ( 3596 / (S+958 ) ) + 0,08  )  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpRyves", "Rives", "Qp = 8,5 * S^(2/3)  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpValentini", "Valentini", "Qp = 27 * S^0.5  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
    {"txtQpGutmann", "Gutmann", "Qp = S * ( 2832 / ( S+96 ) )  ; S= Superficie [Km2]  ; Coeficiente C= 30"},
});
// clang-format on

TEST(FormulasDeCaudal, SusTextosALaLetraYEnOrden)
{
    ASSERT_EQ(FormulasQp().size(), Esperados.size());
    for (std::size_t k = 0; k < Esperados.size(); ++k) {
        EXPECT_EQ(FormulasQp()[k].control, Esperados[k].control);
        EXPECT_EQ(FormulasQp()[k].leyenda, Esperados[k].leyenda);
        EXPECT_EQ(FormulasQp()[k].ayuda, Esperados[k].ayuda);
    }
}

TEST(FormulasDeCaudal, ElRotuloDeKuicklingOrdinariasTieneLaAyudaDeZapataYLosDemasLaSuya)
{
    for (const FormulaQp& formula : FormulasQp()) {
        if (formula.control == "txtQpKuicklingO") {
            EXPECT_EQ(formula.ayudaRotulo, "Qp = 21 * S^0,6  ; S= Superficie [Km2]  ; Coeficiente C= 30");
        } else
            EXPECT_EQ(formula.ayudaRotulo, formula.ayuda) << formula.control;
    }
}

TEST(FormulasDeCaudal, SoloScimeniYPagliaroTienenLimites)
{
    struct Fila {
        double S;
        bool scimeni, pagliaro;
    };
    for (const auto& [S, scimeni, pagliaro] :
         {Fila{0.1, true, false}, Fila{19.99, true, false}, Fila{20, true, true}, Fila{20.01, true, true},
          Fila{999.99, true, true}, Fila{1000, true, true}, Fila{1000.01, false, false},
          Fila{10000, false, false}})
        for (const FormulaQp& formula : FormulasQp()) {
            const bool vale = formula.control == "txtQpScimeni"    ? scimeni
                              : formula.control == "txtQpPagliaro" ? pagliaro
                                                                   : true;
            EXPECT_EQ(formula.Vale(S), vale) << formula.control << " " << S;
        }
}

TEST(FormulasDeTiempo, SusTextosALaLetraYEnOrden)
{
    ASSERT_EQ(FormulasTc().size(), 3U);
    EXPECT_EQ(FormulasTc()[0].control, "lblTcCalifornia");
    EXPECT_EQ(FormulasTc()[0].leyenda, "California Culverts");
    EXPECT_EQ(FormulasTc()[0].ayuda,
              "Tc = 60 * [ (0,87 * L^3  /  H )^0,385] ; L= Longitud del cauce "
              "principal [Km]; H= Desnivel máximo en la cuenca [m]");
    EXPECT_EQ(FormulasTc()[1].control, "lblTcVentura");
    EXPECT_EQ(FormulasTc()[1].leyenda, "Ventura");
    EXPECT_EQ(FormulasTc()[1].ayuda,
              "Tc = 60 * 0.1272 * [(S^0,5)  / ( L^0,5)]   ; L= Longitud del cauce "
              "principal [Km]; S= Superficie de la cuenca [Km2]");
    EXPECT_EQ(FormulasTc()[2].control, "lblTcSCSUS");
    EXPECT_EQ(FormulasTc()[2].leyenda, "SCS-US");
    EXPECT_EQ(FormulasTc()[2].ayuda,
              "Tc = 60 * 0,1947 * (3.3 * L / i )^0,77  ; L= Longitud del cauce más "
              "largo [Km]  ; i= pendiente cauce más largo [%]");
    EXPECT_FALSE(FormulasTc()[0].pidePendiente);
    EXPECT_FALSE(FormulasTc()[1].pidePendiente);
    EXPECT_TRUE(FormulasTc()[2].pidePendiente);
}

// What is drawn tells what is computed: balanced, and of its own row.
TEST(Expresiones, CadaFormulaTieneLaSuyaConSusSignosCerrados)
{
    std::set<std::string_view> vistas;
    const auto comprueba = [&](std::string_view expresion) {
        EXPECT_TRUE(vistas.insert(expresion).second) << expresion;
        int llaves = 0, parentesis = 0;
        for (const char c : expresion) {
            llaves += (c == '{') - (c == '}');
            parentesis += (c == '(') - (c == ')');
            EXPECT_GE(llaves, 0) << expresion;
            EXPECT_GE(parentesis, 0) << expresion;
        }
        EXPECT_EQ(llaves, 0) << expresion;
        EXPECT_EQ(parentesis, 0) << expresion;
    };
    for (const FormulaQp& formula : FormulasQp()) {
        comprueba(formula.expresion);
        EXPECT_NE(formula.expresion.find('S'), std::string_view::npos);
    }
    for (const FormulaTc& formula : FormulasTc())
        comprueba(formula.expresion);
}

}  // namespace
}  // namespace empirical
