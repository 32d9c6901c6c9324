// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/Escritura.h"

#include <gtest/gtest.h>

#include "empirical/Formulas.h"

namespace empirical {
namespace {

using Lista = std::vector<Trozo>;

TEST(Escritura, LosExponentesSeElevanYLasVariablesSeInclinan)
{
    EXPECT_EQ(Trozos("2 · S^{S − 0.05} + 1"), (Lista{{"2 · ", false, false},
                                                     {"S", false, true},
                                                     {"S", true, true},
                                                     {" − 0.05", true, false},
                                                     {" + 1", false, false}}));
    EXPECT_EQ(Trozos("L^{3} / H"),
              (Lista{{"L", false, true}, {"3", true, false}, {" / ", false, false}, {"H", false, true}}));
}

TEST(Escritura, LoQueNoEsExponenteQuedaComoEsta)
{
    EXPECT_EQ(Trozos("a}b^c"), (Lista{{"a}b^c", false, false}}));
    EXPECT_EQ(Trozos("2^{3"), (Lista{{"2", false, false}, {"3", true, false}}));
    EXPECT_TRUE(Trozos("").empty());
}

TEST(Escritura, EnLasFormulasNoQuedanMarcas)
{
    const auto revisa = [](std::string_view expresion) {
        for (const Trozo& trozo : Trozos(expresion))
            EXPECT_EQ(trozo.texto.find_first_of("^{}"), std::string::npos) << expresion;
    };
    for (const FormulaQp& formula : FormulasQp())
        revisa(formula.expresion);
    for (const FormulaTc& formula : FormulasTc())
        revisa(formula.expresion);
}

}  // namespace
}  // namespace empirical
