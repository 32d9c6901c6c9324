// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Busqueda.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "calibration/Ensayo.h"
#include "calibration/casos/Funciones.h"
#include "study/Philox.h"

namespace calibration {
namespace {

Reparto EnOrden(const Costo& costo)
{
    return [costo](std::size_t cuantas, const auto& pieza) {
        for (std::size_t k = 0; k < cuantas; ++k)
            pieza(k, costo);
    };
}

Costo De(const casos::FuncionDePrueba& f)
{
    return [&f](std::span<const double> u) { return f.De(u); };
}

/// In how many of twelve seeds the optimum is found within the budget.
int Encuentra(const std::string& metodo, const casos::FuncionDePrueba& f, std::size_t corridas,
              std::size_t complejos = 5)
{
    int veces = 0;
    for (std::uint64_t semilla = 1; semilla <= 12; ++semilla) {
        const Busqueda b = MetodoDeBusquedaDe(metodo)->busca(
            {.dimensiones = f.dimensiones, .corridas = corridas, .complejos = complejos, .semilla = semilla},
            EnOrden(De(f)));
        if (b.Mejor()->costo < f.optimo + f.cerca) ++veces;
    }
    return veces;
}

const casos::FuncionDePrueba& Funcion(std::string_view nombre)
{
    return *std::find_if(casos::FuncionesDePrueba.begin(), casos::FuncionesDePrueba.end(),
                         [&](const auto& f) { return f.nombre == nombre; });
}

TEST(Busqueda, LasFuncionesTienenSuOptimoImpreso)
{
    // Dixon and Szegö 1978; Hartmann's place to the digits of Picheny, Wagner, Ginsbourger 2013.
    const auto vale = [](std::string_view nombre, std::vector<double> x) { return Funcion(nombre).f(x); };
    EXPECT_DOUBLE_EQ(vale("Goldstein-Price", {0, -1}), 3);
    EXPECT_NEAR(vale("seis jorobas", {0.0898, -0.7126}), -1.0316, 5e-5);
    EXPECT_NEAR(vale("Hartmann-6", {0.20169, 0.150011, 0.476874, 0.275332, 0.311652, 0.6573}), -3.32237,
                5e-6);
    EXPECT_EQ(vale("Rosenbrock", {1, 1}), 0);
    EXPECT_EQ(vale("Rastrigin", {0, 0}), 0);
    EXPECT_EQ(vale("Griewank", {0, 0}), 0);
    EXPECT_EQ(vale("esfera", {0, 0, 0, 0, 0, 0}), 0);
}

TEST(Busqueda, SceUaEncuentraElOptimoConCualquierSemilla)
{
    // As the authors report of all their trials on such functions of few optima.
    for (const char* nombre :
         {"esfera", "Rosenbrock", "Goldstein-Price", "seis jorobas", "Hartmann-6", "Rastrigin"})
        EXPECT_EQ(Encuentra("sce", Funcion(nombre), 5000), 12) << nombre;
}

TEST(Busqueda, ConMasComplejosSceUaEsMasSegura)
{
    const int con2 = Encuentra("sce", Funcion("Griewank"), 20000, 2);
    const int con20 = Encuentra("sce", Funcion("Griewank"), 20000, 20);
    EXPECT_LT(con2, con20);
    EXPECT_GE(con20, 9);
}

TEST(Busqueda, SubplexEncuentraElOptimoConCualquierSemilla)
{
    for (const casos::FuncionDePrueba& f : casos::FuncionesDePrueba)
        EXPECT_EQ(Encuentra("subplex", f, 5000), 12) << f.nombre;
}

TEST(Busqueda, DdsLlegaCercaConPocasCorridas)
{
    for (const char* nombre : {"Goldstein-Price", "seis jorobas", "Rastrigin"})
        EXPECT_EQ(Encuentra("dds", Funcion(nombre), 5000), 12) << nombre;
    // It moves along the axes mostly: a curved valley is not for it.
    EXPECT_LT(Encuentra("dds", Funcion("Rosenbrock"), 5000), 6);
}

class CadaMetodo : public testing::TestWithParam<const char*> {
  protected:
    const MetodoDeBusqueda& metodo = *MetodoDeBusquedaDe(GetParam());
};

TEST_P(CadaMetodo, NuncaPasaDelPresupuestoNiDelCubo)
{
    const casos::FuncionDePrueba& f = Funcion("Rastrigin");
    for (std::size_t corridas = 1; corridas < 260; corridas += corridas < 40 ? 1 : 37) {
        std::size_t medidas = 0;
        const Busqueda b =
            metodo.busca({.dimensiones = 2, .corridas = corridas}, EnOrden([&](std::span<const double> u) {
                             ++medidas;
                             for (const double x : u) {
                                 EXPECT_GE(x, 0);
                                 EXPECT_LE(x, 1);
                             }
                             return f.De(u);
                         }));
        EXPECT_EQ(b.evaluaciones.size(), medidas);
        EXPECT_LE(medidas, corridas);
        if (b.fin == FinDeBusqueda::Presupuesto) {
            EXPECT_EQ(medidas, corridas);
        }
    }
}

TEST_P(CadaMetodo, DaLoMismoEnCualquierOrdenYEnVariosHilos)
{
    const casos::FuncionDePrueba& f = Funcion("Hartmann-6");
    const PedidoDeBusqueda pedido{.dimensiones = f.dimensiones, .corridas = 1500, .semilla = 7};
    const Reparto alReves = [&](std::size_t cuantas, const auto& pieza) {
        for (std::size_t k = cuantas; k-- > 0;)
            pieza(k, De(f));
    };
    const Reparto enHilos = [&](std::size_t cuantas, const auto& pieza) {
        std::atomic<std::size_t> sigue = 0;
        std::vector<std::jthread> hilos;
        for (int h = 0; h < 3; ++h)
            hilos.emplace_back([&] {
                for (std::size_t k = sigue++; k < cuantas; k = sigue++)
                    pieza(k, De(f));
            });
    };
    const Busqueda una = metodo.busca(pedido, EnOrden(De(f)));
    for (const Busqueda& otra : {metodo.busca(pedido, alReves), metodo.busca(pedido, enHilos)}) {
        ASSERT_EQ(una.evaluaciones.size(), otra.evaluaciones.size());
        for (std::size_t i = 0; i < una.evaluaciones.size(); ++i) {
            EXPECT_EQ(una.evaluaciones[i].punto, otra.evaluaciones[i].punto) << i;
            EXPECT_EQ(una.evaluaciones[i].costo, otra.evaluaciones[i].costo) << i;
        }
    }
    PedidoDeBusqueda conOtra = pedido;
    conOtra.semilla = 8;
    EXPECT_NE(metodo.busca(conOtra, EnOrden(De(f))).Mejor()->punto, una.Mejor()->punto);
}

TEST_P(CadaMetodo, DejadaATiempoGuardaLaMejor)
{
    const casos::FuncionDePrueba& f = Funcion("Goldstein-Price");
    for (const std::size_t hasta : {1U, 30U, 157U}) {
        std::size_t medidas = 0;
        double mejor = std::numeric_limits<double>::infinity();
        const Busqueda b = metodo.busca({.dimensiones = 2}, EnOrden([&](std::span<const double> u) {
                                            if (medidas == hasta) return std::nan("");
                                            ++medidas;
                                            const double costo = f.De(u);
                                            mejor = std::min(mejor, costo);
                                            return costo;
                                        }));
        EXPECT_EQ(b.fin, FinDeBusqueda::Cancelada);
        EXPECT_EQ(b.evaluaciones.size(), hasta);
        EXPECT_EQ(b.Mejor()->costo, mejor);
    }
}

TEST_P(CadaMetodo, PruebaPrimeroElInicio)
{
    const std::vector<double> inicio{0.25, 0.75};
    const Busqueda b =
        metodo.busca({.dimensiones = 2, .corridas = 60, .inicio = inicio}, EnOrden(De(Funcion("Rastrigin"))));
    EXPECT_EQ(b.evaluaciones.front().punto, inicio);
}

TEST_P(CadaMetodo, SaleDeUnaMesetaYAguantaQueNadaSirva)
{
    // Where nothing runs off, every point costs the same or can't be scored.
    const auto meseta = [](std::span<const double> u) {
        const double x = u[0] - 0.1, y = u[1] - 0.15, z = u[2] - 0.2;
        return u[0] > 0.4 || u[1] > 0.4 ? 1 : x * x + y * y + z * z;
    };
    for (std::uint64_t semilla = 1; semilla <= 6; ++semilla)
        EXPECT_LT(metodo.busca({.dimensiones = 3, .corridas = 2000, .semilla = semilla}, EnOrden(meseta))
                      .Mejor()
                      ->costo,
                  1e-3);
    const auto nada = [](std::span<const double>) { return std::numeric_limits<double>::infinity(); };
    const Busqueda b = metodo.busca({.dimensiones = 3, .corridas = 500}, EnOrden(nada));
    EXPECT_LE(b.evaluaciones.size(), 500U);
    EXPECT_TRUE(std::isinf(b.Mejor()->costo));
}

INSTANTIATE_TEST_SUITE_P(Busqueda, CadaMetodo, testing::Values("sce", "subplex", "dds"),
                         [](const auto& p) { return std::string(p.param); });

TEST(Busqueda, UnHipercuboLatinoTieneUnPuntoPorCapa)
{
    study::Sorteo sorteo(3, 0);
    const auto puntos = HipercuboLatino(40, 3, sorteo);
    for (std::size_t d = 0; d < 3; ++d) {
        std::set<int> capas;
        for (const auto& p : puntos)
            capas.insert(static_cast<int>(p[d] * 40));
        EXPECT_EQ(capas.size(), 40U);
    }
    EXPECT_NE(puntos[0], puntos[1]);
}

TEST(Busqueda, UnaClaveDesconocidaNoEsUnMetodo)
{
    EXPECT_EQ(MetodoDeBusquedaDe("azar"), nullptr);
    EXPECT_EQ(MetodosDeBusqueda().front().clave, "sce");
}

}  // namespace
}  // namespace calibration
