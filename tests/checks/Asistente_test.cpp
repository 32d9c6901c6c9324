// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Asistente.h"

#include <gtest/gtest.h>

#include "checks/CorridaDePrueba.h"

// What is said beside a field. Numbers are worked out apart, with 40 digits but for the sum of the
// coefficients, which is that of 32-bit floats.
namespace checks {
namespace {

using pruebas::CorridaDePrueba;

struct CasoMuskingum {
    float K, x;
    std::int16_t paso;
    bool conX;
    const char* texto;
};

// 12, 21 and 60 min with x 0.2, 3.2 min with 0, don't add up to 1; near 21 min neither does 21.01, but 20.99
// does.
TEST(Asistente, MuskingumDiceLaVentanaYElParQueVale)
{
    for (const CasoMuskingum& c : std::to_array<CasoMuskingum>({
             {24, 0.2F, 10, true, "Ventana de Muskingum: 2Kx = 9.6 ≤ paso 10 min ≤ 2K(1-x) = 38.4 min."},
             {20, 0, 10, true, "Ventana de Muskingum: 2Kx = 0 ≤ paso 10 min ≤ 2K = 40 min."},
             {12, 0.2F, 10, true,
              "Ventana de Muskingum: 2Kx = 4.8 ≤ paso 10 min ≤ 2K(1-x) = 19.2 min. Pero los coeficientes no "
              "suman 1 y la corrida se detiene: vale K = 12.01 min con x = 0.2."},
             {21, 0.2F, 10, true,
              "Ventana de Muskingum: 2Kx = 8.4 ≤ paso 10 min ≤ 2K(1-x) = 33.6 min. Pero los coeficientes no "
              "suman 1 y la corrida se detiene: vale K = 20.99 min con x = 0.2."},
             {40, 0.2F, 10, true,
              "Fuera de la ventana de Muskingum: 2Kx = 16 > paso 10 min; con x = 0.2, K de 6.25 a 25 min."},
             {60, 0.2F, 10, true,
              "Fuera de la ventana de Muskingum: 2Kx = 24 > paso 10 min; con x = 0.2, K de 6.25 a 25 min. "
              "Además los coeficientes no suman 1 y la corrida se detiene."},
             {6, 0.2F, 10, true,
              "Fuera de la ventana de Muskingum: 2K(1-x) = 9.6 < paso 10 min; con x = 0.2, K de 6.25 a 25 "
              "min."},
             // 10 / 1.4 = 7.142857..., 10 / 0.6 = 16.666...: rounded into the window.
             {7, 0.3F, 10, true,
              "Fuera de la ventana de Muskingum: 2K(1-x) = 9.8 < paso 10 min; con x = 0.3, K de 7.15 a 16.66 "
              "min."},
             {80, 0.4F, 10, false, "Ventana de Muskingum: paso 10 min ≤ 2K = 160 min."},
             {3.2F, 0, 5, false, "Los coeficientes no suman 1 y la corrida se detiene: vale K = 3.21 min."},
             {4, 0.4F, 10, false, "Fuera de la ventana de Muskingum: 2K = 8 < paso 10 min; K desde 5 min."},
         }))
        EXPECT_EQ(ApunteDeMuskingum({c.K, c.x}, c.paso, c.conX), c.texto) << c.K << ' ' << c.x;
}

// What the line offers is what a run takes.
TEST(Asistente, ElParOfrecidoPasaYElRechazadoNo)
{
    EXPECT_FALSE(PasaMuskingum({12, 0.2F}, 10));
    EXPECT_TRUE(PasaMuskingum({12.01F, 0.2F}, 10));
    EXPECT_TRUE(EnVentana({6.25F, 0.2F}, 10));
    EXPECT_TRUE(EnVentana({25, 0.2F}, 10));
    EXPECT_FALSE(EnVentana({25.01F, 0.2F}, 10));
    EXPECT_FALSE(EnVentana({6.24F, 0.2F}, 10));
    EXPECT_TRUE(EnVentana({16.66F, 0.3F}, 10));
    EXPECT_FALSE(EnVentana({16.67F, 0.3F}, 10));
    EXPECT_FALSE(EnVentana({7.14F, 0.3F}, 10));
}

// 800 m at 1 m/s: 13.33 min, 13 as the run has it. 1500 m: 25 min, 2.5 steps, of which a Direct reach makes
// 2, the even one. The step of a run isn't longer than the model's.
TEST(Asistente, TiempoDeTraslado)
{
    model::UEH u{.LongitudMax = 800, .VelMedia = 1};
    EXPECT_EQ(ApunteDeTraslado(u, {.PasoPp = 10, .PasoQ = 10}), "Traslado T = 13 min: 1.3 pasos de 10 min.");
    EXPECT_EQ(ApunteDeTraslado(u, {.PasoPp = 5, .PasoQ = 10}), "Traslado T = 13 min: 2.6 pasos de 5 min.");
    u.VelMedia = 0;
    EXPECT_EQ(ApunteDeTraslado(u, {}), "");
    u = {.LongitudMax = 50000, .VelMedia = 0.001F};  // 833333 min
    EXPECT_EQ(ApunteDeTraslado(u, {}), "");

    model::Cauce c;
    c.LongCauce = 1500;
    c.VelMediaCauce = 1;
    c.optDirMusk = true;
    EXPECT_EQ(ApunteDeViaje(c, {}), "Viaje T = 25 min: la crecida se atrasa 2 pasos de 10 min.");
    c.optDirMusk = false;
    EXPECT_EQ(ApunteDeViaje(c, {}), "Viaje T = 25 min: 2.5 pasos de 10 min, que por Muskingum no cuentan.");
    c.VelMediaCauce = 0;
    EXPECT_EQ(ApunteDeViaje(c, {}), "");
}

// Walls of 2 ha from 100 to 104 m, 3 m3/s a metre: at 101.5 m 30000 m3 and 4.5 m3/s.
TEST(Asistente, AlturaDeRepresaYDeLago)
{
    CorridaDePrueba p;
    model::Represa& r = p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(2, 3, 4));
    p.PonLago("l-1", "Piscina Nivelada", CorridaDePrueba::Prisma(2, 3, 4));
    p.PonLago("l-2", "Piscina Nivelada", {});
    model::Lago& l = p.s.Red.ColLagos.Item(1);  // which a second one may have moved
    p.LlenaTablas();
    r.HInicialEmb = l.HInicialEmb = 101.5F;
    const std::string dentro = "Con 101.5 m: almacenamiento 30000 m3; descarga 4.5 m3/s.";
    EXPECT_EQ(ApunteDeAltura(p.s.Red, r), dentro);
    EXPECT_EQ(ApunteDeAltura(p.s.Red, l), dentro);
    for (const float h : {0.0F, 104.25F}) {
        r.HInicialEmb = h;
        EXPECT_EQ(ApunteDeAltura(p.s.Red, r),
                  "Fuera de las tablas: almacenamiento de 100 a 104 m, descarga de 100 a 104 m.");
    }
    EXPECT_EQ(ApunteDeAltura(p.s.Red, p.s.Red.ColLagos.Item(2)),
              "Con 0 m: almacenamiento sin tabla; descarga sin tabla.");
    p.s.Red.RepresaFilasHQ(1) = 3;  // the outflow ends at 102 m
    r.HInicialEmb = 103;
    EXPECT_EQ(ApunteDeAltura(p.s.Red, r),
              "Con 103 m: almacenamiento 60000 m3; descarga fuera de su tabla (de 100 a 102 m).");
    EXPECT_TRUE(p.anfitrion->sucesos.empty());
}

// F1 = 2 * 1.5^1.5 = 3.67423..., F6 = 1 + 2*0.5 + 4*0.25 = 3 m3/s; F2 isn't ticked, F3 doesn't reach.
TEST(Asistente, FuncionesDeDescarga)
{
    CorridaDePrueba p;
    model::Represa& r = p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(2, 3, 4));
    p.LlenaTablas();
    r.HInicialEmb = 101.5F;
    r.chkFQ = {1, 0, 1, 0, 0, 1, 0, 0};
    r.FQa = {2, 9, 9, 0, 0, 1, 0, 0};
    r.FQb = {1.5F, 1, 1, 0, 0, 2, 0, 0};
    r.FQc[5] = 4;
    r.FQmin = {100, 100, 103, 0, 0, 101, 0, 0};
    r.FQMax.fill(104);
    EXPECT_EQ(ApunteDeFunciones(r, 101.5F), "");  // by table
    r.optTabla = false;
    EXPECT_EQ(ApunteDeFunciones(r, 101.5F),
              "H cuenta desde H mín. Con 101.5 m, F1: H = 1.5 m, 3.674 m3/s; F6: H = 0.5 m, 3 m3/s.");
    EXPECT_EQ(ApunteDeFunciones(r, 99.0F), "H cuenta desde H mín. Con 99 m, ninguna descarga.");
    EXPECT_EQ(ApunteDeFunciones(r, {}), "H cuenta desde H mín.");
    EXPECT_EQ(ApunteDeAltura(p.s.Red, r), "Con 101.5 m: almacenamiento 30000 m3; descarga 6.674 m3/s.");
    // 0 to a negative power
    r.FQb[0] = -1;
    EXPECT_EQ(ApunteDeFunciones(r, 100.0F),
              "H cuenta desde H mín. Con 100 m, F1: H = 0 m, no se puede calcular.");
    EXPECT_EQ(ApunteDeAltura(p.s.Red,
                             [&] {
                                 r.HInicialEmb = 100;
                                 return r;
                             }()),
              "Con 100 m: almacenamiento 0 m3; descarga no se puede calcular.");
    r.chkFQ = {};
    EXPECT_EQ(ApunteDeFunciones(r, 101.5F), "");
    EXPECT_TRUE(p.anfitrion->sucesos.empty());
}

struct CasoReparto {
    float Z, a, b, inicial;
    double retenida, infiltrada, escurrida;
};

// 60 mm in an hour, six steps of 10 mm.
TEST(Asistente, RepartoDeLaTormenta)
{
    CorridaDePrueba p;
    for (const CasoReparto& c : std::to_array<CasoReparto>({
             {5, 2, 0.5F, 30, 5, 8.019214810906923, 46.980785189093077},
             {12, 3.5F, 0.45F, 0, 12, 18.487540351621708, 29.512459648378292},
             {0, 0, 0.5F, 0, 0, 0, 60},
             {40, 30, 0.9F, 0, 40, 20, 0},
         })) {
        model::UEH u = p.s.Red.ColUEHs.Item(1);
        u.RetensionZ = c.Z;
        u.KostiakovA = c.a;
        u.KostiakovB = c.b;
        u.KostiakovI = c.inicial;
        const auto reparto = RepartoDe(u, p.s.Tormenta, p.s.Pasos, p.s.TablasDeLluvia);
        ASSERT_TRUE(reparto);
        EXPECT_NEAR(reparto->lluvia, 60, 1e-5);
        EXPECT_NEAR(reparto->retenida, c.retenida, 1e-5);
        EXPECT_NEAR(reparto->infiltrada, c.infiltrada, 1e-5);  // b = 0.45 is a 32-bit float here
        EXPECT_NEAR(reparto->escurrida, c.escurrida, 1e-5);
    }
}

// Held against the whole run of the same UEH: the coefficient of the Slate, where all of it has run off.
TEST(Asistente, EscurreLoQueEscurreEnLaCorrida)
{
    CorridaDePrueba p;
    model::UEH& u = p.s.Red.ColUEHs.Item(1);
    u.RetensionZ = 5;
    u.KostiakovA = 2;
    u.KostiakovB = 0.5F;
    u.KostiakovI = 30;
    const auto reparto = RepartoDe(u, p.s.Tormenta, p.s.Pasos, p.s.TablasDeLluvia);
    ASSERT_TRUE(reparto);
    EXPECT_NEAR(reparto->escurrida / reparto->lluvia * 100, double{p.Corre().Resultados.CoefUEH(1)}, 0.01);
}

TEST(Asistente, LaLluviaPropiaDeLaUEHEsLaSuya)
{
    CorridaDePrueba p;
    p.s.Tormenta.FormaPp = model::FormaLluvia::PorUEH;
    p.UEH("u-2", "c-1");
    p.s.Tormenta.PpUEH(1) = 60;
    p.s.Tormenta.PpUEH(2) = 30;
    const auto reparto = RepartoDe(p.s.Red.ColUEHs.Item(2), p.s.Tormenta, p.s.Pasos, p.s.TablasDeLluvia);
    ASSERT_TRUE(reparto);
    EXPECT_NEAR(reparto->lluvia, 30, 1e-5);
}

TEST(Asistente, SinTormentaOSinEscorrentiaLoDice)
{
    CorridaDePrueba p;
    model::UEH u = p.s.Red.ColUEHs.Item(1);
    const auto deLaTormenta = [&] { return RepartoDe(u, p.s.Tormenta, p.s.Pasos, p.s.TablasDeLluvia); };
    u.RetensionZ = 5;
    u.KostiakovA = 2;
    u.KostiakovB = 0.5F;
    u.KostiakovI = 30;
    EXPECT_EQ(ApunteDeRetencion(deLaTormenta()), "De los 60 mm de la tormenta en mano retiene 5 mm.");
    EXPECT_EQ(ApunteDeEscorrentia(deLaTormenta()),
              "De los 60 mm de la tormenta en mano infiltra 8 mm y escurren 47 mm (78 %), como con CN 95.2.");
    u.RetensionZ = 40;
    u.KostiakovA = 30;
    u.KostiakovB = 0.9F;
    u.KostiakovI = 0;
    EXPECT_EQ(ApunteDeEscorrentia(deLaTormenta()),
              "De los 60 mm de la tormenta en mano infiltra 20 mm y no escurre nada.");
    const model::Tormenta tormenta = p.s.Tormenta;
    p.s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
    EXPECT_FALSE(deLaTormenta());
    p.s.Tormenta = tormenta;
    p.s.Tormenta.PpTormenta = 0;
    EXPECT_FALSE(deLaTormenta());
    EXPECT_EQ(ApunteDeRetencion(deLaTormenta()), "");
    EXPECT_EQ(ApunteDeEscorrentia(deLaTormenta()), "Sin una tormenta en mano no se sabe cuánto escurre.");
    p.s.Tormenta = {};
    EXPECT_FALSE(deLaTormenta());
    // A personal distribution without rows.
    p.s.Tormenta = tormenta;
    p.s.Tormenta.DistriPp = 6;
    EXPECT_FALSE(deLaTormenta());
    EXPECT_TRUE(p.anfitrion->sucesos.empty());
}

// Solved by bisection of Q = (P-0.2S)²/(P+0.8S), with 40 digits.
TEST(Asistente, NumeroDeCurva)
{
    EXPECT_NEAR(NumeroDeCurva(60, 46.98078518909305), 95.20579719152499, 1e-10);
    EXPECT_NEAR(NumeroDeCurva(60, 29.512459648378292), 86.46835870130562, 1e-10);
    EXPECT_NEAR(NumeroDeCurva(60, 60), 100, 1e-10);
}

}  // namespace
}  // namespace checks
