// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Diagramas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "frequency/casos/Muestras.h"

namespace {

using namespace frequency;

Analisis DePortPirie(int cuantas, double cero = 1)
{
    Serie s;
    for (std::size_t i = 0; i < casos::PortPirie.size(); ++i)
        s.maximos.push_back({1923 + static_cast<int>(i), casos::PortPirie[i] * (i < 5 ? cero : 1)});
    PedidoDeAnalisis pedido;
    pedido.remuestreo.cuantas = cuantas;
    pedido.leyes = {&Gumbel, &Gev};
    return *Analiza(s, pedido);
}

/// Closed forms: Hosking 1990, table 1 and equations of the GEV; Hosking and Wallis 1997, appendix A.
TEST(Diagramas, LasRazonesSonLasDeHosking)
{
    const auto cerca = [](const RazonesL& t, double t3, double t4) {
        EXPECT_NEAR(t.t3, t3, 2e-6);
        EXPECT_NEAR(t.t4, t4, 2e-6);
    };
    cerca(RazonesDe(Gumbel, {50, 9, 0}), 0.169925, 0.150375);
    cerca(RazonesDe(Exponencial, {50, 9, 0}), 1.0 / 3, 1.0 / 6);
    cerca(RazonesDe(PearsonIII, {50, 9, 0}), 0, 0.122602);
    for (const double k : {-0.2, 0.1, 0.4}) {
        const auto d = [&](double base) { return 1 - std::pow(base, -k); };
        cerca(RazonesDe(Gev, {50, 9, k}), 2 * d(3) / d(2) - 3, (5 * d(4) - 10 * d(3) + 6 * d(2)) / d(2));
    }
}

/// Hosking and Wallis 1997, table A.3: t4 as a polynomial of t3, right to 5e-4.
TEST(Diagramas, LasCurvasSonLosPolinomiosDeHoskingYWallis)
{
    for (const Curva& c : DiagramaDe(DePortPirie(0), nullptr).leyes) {
        EXPECT_TRUE(c.puntos.size() == 1 || c.puntos.size() == 41U);
        EXPECT_TRUE(std::is_sorted(c.puntos.begin(), c.puntos.end(), [](const Punto& a, const Punto& b) {
            return a.x < b.x;
        })) << c.ley->clave;
        for (const Punto& p : c.puntos) {
            const double t = p.x, t2 = t * t;
            if (std::abs(t) > 0.6) continue;
            if (c.ley == &Gev) {
                EXPECT_NEAR(p.y,
                            0.10701 + 0.11090 * t + 0.84838 * t2 - 0.06669 * t2 * t + 0.00567 * t2 * t2 -
                                0.04208 * t2 * t2 * t + 0.03763 * t2 * t2 * t2,
                            5e-4);
            }
            if (c.ley == &LogNormal3) {
                EXPECT_NEAR(p.y,
                            0.12282 + 0.77518 * t2 + 0.12279 * t2 * t2 - 0.13638 * t2 * t2 * t2 +
                                0.11368 * t2 * t2 * t2 * t2,
                            5e-4);
            }
            if (c.ley == &PearsonIII) {
                EXPECT_NEAR(p.y,
                            0.12240 + 0.30115 * t2 + 0.95812 * t2 * t2 - 0.57488 * t2 * t2 * t2 +
                                0.19383 * t2 * t2 * t2 * t2,
                            5e-4);
            }
        }
    }
}

TEST(Diagramas, LaNubeEsDeUnaLeyYSuElipseTieneElNoventaPorCiento)
{
    const Analisis a = DePortPirie(1000);
    const DiagramaL d = DiagramaDe(a, &a.ajustes[0]);
    ASSERT_EQ(d.nube.size(), 1000U);
    ASSERT_EQ(d.elipse.size(), 73U);
    EXPECT_EQ(d.muestra.x, a.muestra.directos.l.t3);
    const auto dentro = [&](const Punto& p) {  // of a convex outline: on its left all along
        for (std::size_t i = 1; i < d.elipse.size(); ++i) {
            const Punto &u = d.elipse[i - 1], &v = d.elipse[i];
            if ((v.x - u.x) * (p.y - u.y) - (v.y - u.y) * (p.x - u.x) < 0) return false;
        }
        return true;
    };
    const auto cuantos = std::count_if(d.nube.begin(), d.nube.end(), dentro);
    EXPECT_GT(cuantos, 860);
    EXPECT_LT(cuantos, 940);
    EXPECT_TRUE(dentro({0.1699 * 0.95, 0.1504 * 0.95}));
    EXPECT_TRUE(DiagramaDe(DePortPirie(0), &a.ajustes[0]).elipse.size() == 73U);
    const Analisis sin = DePortPirie(0);
    EXPECT_TRUE(DiagramaDe(sin, &sin.ajustes[0]).nube.empty());
}

/// On its own paper a law is a straight line.
TEST(Diagramas, EnSuPapelUnaLeyEsUnaRecta)
{
    const Analisis a = DePortPirie(200);
    const PapelDeProbabilidad papel = PapelDe(a, Ejes::DeGumbel, 0.44);
    ASSERT_EQ(papel.datos.size(), 65U);
    EXPECT_EQ(papel.anios.size(), 65U);
    EXPECT_EQ(papel.datos.back().y, 4.69);
    EXPECT_EQ(papel.anios.back(), 1934);
    EXPECT_NEAR(papel.datos[0].x, -std::log(-std::log(0.56 / 65.12)), 1e-12);
    const Parametros& p = *a.ajustes[0].estimado.p;
    ASSERT_EQ(papel.leyes.size(), 2U);
    for (const Punto& q : papel.leyes[0].curva.puntos)
        EXPECT_NEAR(q.y, p[0] + p[1] * q.x, 1e-9);
    ASSERT_EQ(papel.leyes[1].banda5.size(), 14U);
    EXPECT_LT(papel.leyes[1].banda5[3].y, papel.leyes[1].banda95[3].y);
    EXPECT_TRUE(std::is_sorted(papel.marcas.begin(), papel.marcas.end(),
                               [](const auto& u, const auto& v) { return u.x < v.x; }));
    EXPECT_NEAR(PapelDe(a, Ejes::DeLogNormal).datos[32].x, 0, 1e-12);  // the middle one of 65
}

/// A dry year has no place over logarithms; among the others it stands at 0.
TEST(Diagramas, LosAniosSinLluviaNoEstanEnLosLogaritmos)
{
    const Analisis a = DePortPirie(0, 0);
    const PapelDeProbabilidad gumbel = PapelDe(a, Ejes::DeGumbel), log = PapelDe(a, Ejes::DeLogNormal);
    ASSERT_EQ(gumbel.datos.size(), 65U);
    EXPECT_EQ(gumbel.datos[4].y, 0);
    EXPECT_EQ(log.datos.size(), 60U);
    EXPECT_EQ(log.anios.size(), 60U);
    EXPECT_EQ(log.datos.back().y, gumbel.datos.back().y);
    for (const CurvaDePapel& c : log.leyes)
        for (const Punto& p : c.curva.puntos)
            EXPECT_GT(p.y, 0);
    EXPECT_EQ(gumbel.leyes[0].curva.puntos.front().y, 0);
}

}  // namespace
