// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "engine/EmbalseSolo.h"
#include "engine/Tramos.h"

// Worked examples of Ven Te Chow, David R. Maidment and Larry W. Mays, "Applied Hydrology", McGraw-Hill 1988,
// chapter 8: the figures as the book's tables give them, in feet and cubic feet per second.
namespace engine {
namespace {

using pruebas::RedAMano;
using pruebas::RenglonHASQ;

constexpr double Pie = 0.3048;                 // [m]
constexpr double PieCubico = Pie * Pie * Pie;  // [m3]
constexpr double Acre = 0.40468564224;         // [ha]
constexpr double PiesCuadradosPorAcre = 43560;

/// Table 8.2.1: outflow [cfs] of the 5-ft pipe for each half foot of water from 0 to 10 ft.
constexpr double DescargaDelCano[] = {0,   3,   8,   17,  30,  43,  60,  78,  97,  117, 137,
                                      156, 173, 190, 205, 218, 231, 242, 253, 264, 275};

/// Inflow [cfs] each 10 min from 0, in both reservoir examples.
constexpr double Crecida[] = {0, 60, 120, 180, 240, 300, 360, 320, 280, 240, 200, 160, 120, 80, 40, 0};

/// The detention reservoir of one acre with vertical sides, in metric units.
std::vector<RenglonHASQ> ReservorioDeUnAcre()
{
    std::vector<RenglonHASQ> tabla;
    for (std::size_t k = 0; k < std::size(DescargaDelCano); ++k) {
        const double pies = 0.5 * static_cast<double>(k);
        tabla.push_back({static_cast<float>(pies * Pie), static_cast<float>(Acre),
                         static_cast<std::int32_t>(std::lround(pies * PiesCuadradosPorAcre * PieCubico)),
                         static_cast<float>(DescargaDelCano[k] * PieCubico)});
    }
    return tabla;
}

/// Routes the flood through the reservoir, empty at first, as a Lago or a Represa.
struct ReservorioDelLibro : RedAMano {
    explicit ReservorioDelLibro(const std::string& metodo, bool lago)
    {
        const std::string nombre = lago ? "l-uno" : "r-uno";
        PonUEH("u-1", nombre);
        if (lago)
            PonLago(nombre, metodo, ReservorioDeUnAcre());
        else
            PonRepresa(nombre, metodo, ReservorioDeUnAcre());
        const int pasos = static_cast<int>(std::size(Crecida)) - 1;
        Dimensiona(pasos);
        for (int k = 1; k <= pasos; ++k)
            s.Resultados.QSale(1, k) = static_cast<float>(Crecida[k] * PieCubico);
        Propaga(nombre);
        for (int k = 0; k <= pasos; ++k) {
            sale.push_back(s.Resultados.QSale(2, k) / PieCubico);
            altura.push_back((lago ? s.Resultados.HLago(1, k) : s.Resultados.HRepresa(1, k)) / Pie);
        }
    }
    std::vector<double> sale;    ///< [cfs], from step 0
    std::vector<double> altura;  ///< [ft]
};

// Example 8.2.1, table 8.2.2: level pool routing, each 10 min from 0. The bracket of heights closes at 5 mm,
// 0.0164 ft; the pipe lets out at most 40 cfs more for each foot, so that a step is within 0.66 cfs of the
// exact solution, and as much comes over from the step before through 2S/dt - Q: 1 cfs in all, on a peak of
// 270.
TEST(EjemplosDeLibro, PiscinaNiveladaDeUnAcre)
{
    const double libro[] = {0,     2.4,   17.1,  61.1,  123.2, 182.2, 230.3, 259.3,
                            270.0, 267.4, 254.9, 235.2, 206.8, 168.5, 124.1, 79.8};
    for (const bool lago : {false, true}) {
        const ReservorioDelLibro reservorio("Piscina Nivelada", lago);
        ASSERT_EQ(reservorio.sale.size(), std::size(libro));
        for (std::size_t k = 0; k < std::size(libro); ++k)
            EXPECT_NEAR(reservorio.sale[k], libro[k], 1.0) << "step " << k;
        EXPECT_TRUE(reservorio.anfitrion->sucesos.empty());
    }
}

// Example 8.3.1, table 8.3.2: third-order Runge-Kutta on the same reservoir, depth [ft] and outflow [cfs].
// The scheme is the book's own, so that no more than the rounding of its figures may stand between: half of
// the last digit, and as much again for the 0.01 ft of a depth in the outflow's interpolation.
TEST(EjemplosDeLibro, RungeKuttaDeUnAcre)
{
    const double alturas[] = {0,    0.40, 1.53, 3.08, 4.69, 6.28, 7.98, 9.27,
                              9.75, 9.63, 9.06, 8.17, 7.05, 5.85, 4.66, 3.54};
    const double caudales[] = {0,     2.4,   17.9,  62.8,  124.5, 182.6, 230.4, 258.9,
                               269.5, 266.8, 254.3, 234.7, 206.4, 167.8, 123.5, 79.7};
    for (const bool lago : {false, true}) {
        const ReservorioDelLibro reservorio("Runge Kutta", lago);
        ASSERT_EQ(reservorio.sale.size(), std::size(caudales));
        for (std::size_t k = 0; k < std::size(caudales); ++k) {
            EXPECT_NEAR(reservorio.altura[k], alturas[k], 0.0051) << "step " << k;
            EXPECT_NEAR(reservorio.sale[k], caudales[k], 0.1) << "step " << k;
        }
        EXPECT_TRUE(reservorio.anfitrion->sucesos.empty());
    }
}

/// Routes the hydrograph of example 8.4.1 through a reach of that K [min].
struct TramoDelLibro : RedAMano {
    explicit TramoDelLibro(float K)
    {
        const float entra[] = {93,  137, 208, 320, 442, 546, 630, 678, 691, 675,
                               634, 571, 477, 390, 329, 247, 184, 134, 108, 90};
        s.Pasos.PasoQ = s.Pasos.PasoPp = 60;
        PonUEH("u-1", "c-1");
        auto& tramo = PonCauce("c-1", "");
        tramo.Cauce_k_Musk = K;
        tramo.Cauce_n_Musk = 0.15F;
        Dimensiona(static_cast<int>(std::size(entra)));
        PonCaudales("u-1", {std::begin(entra), std::end(entra)});
        termino = ProcesoEnCauce(corrida, 2);
    }
    bool termino = false;
};

// Example 8.4.1, table 8.4.1: Muskingum with K = 2.3 h, X = 0.15, dt = 1 h [cfs]; C1 = 0.0631, C2 = 0.3442,
// C3 = 0.5927. The book begins with an outflow of 85 below the inflow of 93; here the first outflow is the
// inflow. The method is linear, so that those 8 cfs are handed on as 8·C3^(j-1): with them taken off, what is
// left is the rounding of the book's whole numbers.
TEST(EjemplosDeLibro, MuskingumDeDosHorasYPico)
{
    const double libro[] = {85,  91,  114, 159, 233, 324, 420, 509, 578, 623,
                            642, 635, 603, 546, 479, 413, 341, 274, 215, 170};
    // 2.3 h is 138 min; its three coefficients don't add up to 1 in 32 bits, those of the next float do.
    TramoDelLibro tramo(std::nextafter(138.0F, 139.0F));
    ASSERT_TRUE(tramo.termino);
    EXPECT_TRUE(tramo.anfitrion->sucesos.empty());
    EXPECT_NEAR(tramo.corrida.Musk.C0Musk, 0.0631, 0.00005);
    EXPECT_NEAR(tramo.corrida.Musk.C1Musk, 0.3442, 0.00005);
    EXPECT_NEAR(tramo.corrida.Musk.C2Musk, 0.5927, 0.00005);
    for (int j = 1; j <= 20; ++j) {
        const double deMas = (93 - 85) * std::pow(0.5927, j - 1);
        EXPECT_NEAR(tramo.s.Resultados.QSale(2, j) - deMas, libro[j - 1], 0.51) << "hour " << j;
    }
}

TEST(EjemplosDeLibro, LaKDelLibroSeRechazaPorRedondeo)
{
    // 0.06313645, 0.34419551 and 0.59266800 in 32 bits add up to 1 - 2^-24.
    TramoDelLibro tramo(138);
    EXPECT_FALSE(tramo.termino);
    ASSERT_EQ(tramo.anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(
        tramo.anfitrion->Avisos()[0].texto,
        "Error, Los parámetros de Muskingum utilizados en el tramo de caucec-1 son erróneos. Verifique, o "
        "cambie a propagación Directa desde el Editor de UEHs ");
}

}  // namespace
}  // namespace engine
