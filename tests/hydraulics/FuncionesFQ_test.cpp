// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/FuncionesFQ.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

#include "apoyo/Compara.h"

namespace hydraulics {
namespace {

using model::FormaFQ;

/// A form with numbers of its own: what it gives at 3 m, 1 m above H min, and how it is listed.
struct CasoForma {
    FuncionFQ funcion;
    float en3;
    const char* expresion;
};

const CasoForma Formas[] = {
    // 10 + 2·1^0.5; 10 + 2 + 3·1 + 4·1²
    {{FormaFQ::Potencia, 2, 0.5F, 4, 2, 5},
     12,
     "Q[m3/s]= 2 * (H[m]-HMin[m])^0.5     ; para, 2[m] <=H[m]<= 5"},
    {{FormaFQ::Parabola, 2, 3, 4, 2, 5},
     19,
     "Q[m3/s]= 2 + 3 * (H[m]-HMin[m]) + 4 * H[m]^2     ; para, 2[m] <=H[m]<= 5"},
};

TEST(FuncionesFQ, CadaFormaSumaSuFormulaYSeLista)
{
    for (const CasoForma& caso : Formas) {
        EXPECT_EQ(caso.funcion.Agrega(10, 3), caso.en3) << caso.expresion;
        EXPECT_EQ(caso.funcion.Expresion(), caso.expresion);
        EXPECT_TRUE(caso.funcion.Alcanza(2) && caso.funcion.Alcanza(5));
        EXPECT_FALSE(caso.funcion.Alcanza(1.5F) || caso.funcion.Alcanza(5.5F));
    }
}

TEST(FuncionesFQ, LasPrimerasCuatroSonPotenciasSinC)
{
    for (std::size_t i = 0; i < model::FuncionesFQ.size(); ++i) {
        const model::FuncionDeRepresa& f = model::FuncionesFQ[i];
        EXPECT_EQ(f.forma, i < 4 ? FormaFQ::Potencia : FormaFQ::Parabola) << i;
        EXPECT_TRUE(f.Lleva(1) && f.Lleva(2) && f.Lleva(4) && f.Lleva(5)) << i;
        EXPECT_EQ(f.Lleva(3), i >= 4) << i;
    }
}

TEST(FuncionesFQ, EnUsoEstanLasTildadasEnOrden)
{
    model::Represa r;
    r.chkFQ = {0, 1, 0, 2, 0, 0, 1, -1};
    r.FQa = {1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<float> a;
    for (const FuncionFQ& f : FuncionesEnUso(r))
        a.push_back(f.a);
    EXPECT_EQ(a, (std::vector<float>{2, 7}));
}

TEST(FuncionesFQ, DondePuedeFallarNoTieneCota)
{
    const FuncionFQ inversa{FormaFQ::Potencia, 1, -1, 0, 2, 5};
    EXPECT_TRUE(std::isinf(inversa.MayorAporte(0, 10)));
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { (void)inversa.Agrega(0, 2); }), 5);
    EXPECT_EQ(inversa.MayorAporte(2.5F, 10), 2);
    EXPECT_EQ(inversa.MayorAporte(6, 10), 0) << "out of its range";
}

RC_GTEST_PROP(FuncionesFQ, NingunAportePasaSuCota, ())
{
    const auto numero = [](int minimo, int maximo) {
        return 0.25F * static_cast<float>(*rc::gen::inRange(4 * minimo, 4 * maximo + 1));
    };
    const auto forma = *rc::gen::element(FormaFQ::Potencia, FormaFQ::Parabola);
    const float minimo = numero(0, 5), maximo = minimo + numero(0, 5);
    const FuncionFQ f{forma, numero(-9, 9), numero(-3, 3), numero(-9, 9), minimo, maximo};
    const float desde = numero(0, 10), hasta = desde + numero(0, 5),
                h = desde + numero(0, 1) * (hasta - desde);
    const double cota = f.MayorAporte(desde, hasta);
    if (!f.Alcanza(h) || std::isinf(cota)) return;
    RC_ASSERT(std::fabs(f.Agrega(0, h)) <= static_cast<float>(cota * (1 + 1e-12)));
}

}  // namespace
}  // namespace hydraulics
