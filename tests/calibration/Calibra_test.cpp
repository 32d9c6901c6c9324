// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Calibra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "calibration/Gemelos.h"
#include "calibration/Juicio.h"
#include "engine/Calcula.h"
#include "runs/Campos.h"

namespace calibration {
namespace {

using pruebas::Gemelo;

bool Dice(const Calibrado& c, const std::string& que)
{
    return std::any_of(c.dichos.begin(), c.dichos.end(),
                       [&](const std::string& d) { return d.find(que) != std::string::npos; });
}

/// The unit of the twin with these parameters alone, the others as they truly are.
Gemelo Solo(const std::vector<std::string>& campos)
{
    Gemelo g = pruebas::UnaUnidad();
    runs::Modelo& m = g.pedido.modelo;
    runs::Aplica(m.parametros, g.verdad, m.lluvias[0].pasos, m.red, m.lluvias[0].tormenta);
    std::vector<study::Parametro> quedan;
    std::vector<double> verdad;
    for (std::size_t i = 0; i < m.parametros.size(); ++i)
        if (std::find(campos.begin(), campos.end(), m.parametros[i].campo) != campos.end()) {
            quedan.push_back(m.parametros[i]);
            verdad.push_back(g.verdad[i]);
        }
    m.parametros = quedan;
    g.verdad = verdad;
    // Away from the truth, so that the search has something to do.
    std::vector<double> otros;
    for (const study::Parametro& p : quedan)
        otros.push_back(p.minimo + 0.9 * (p.maximo - p.minimo));
    runs::Aplica(m.parametros, otros, m.lluvias[0].pasos, m.red, m.lluvias[0].tormenta);
    return g;
}

TEST(Calibra, UnGemeloSeEncuentraDentroDelDosPorCiento)
{
    Gemelo g = Solo({"kostiakov_a", "velocidad_media", "k_recesion"});
    g.pedido.como.corridas = 1200;
    for (const char* metodo : {"sce", "subplex"}) {
        g.pedido.como.metodo = metodo;
        const Calibrado c = *Calibra(g.pedido);
        EXPECT_GT(c.Puntaje(), 0.9999) << metodo;
        for (std::size_t i = 0; i < g.verdad.size(); ++i) {
            if (c.parametros[i].identificable) {
                EXPECT_NEAR(c.parametros[i].mejor, g.verdad[i], 0.02 * g.verdad[i])
                    << metodo << " " << c.parametros[i].nombre;
            }
            EXPECT_LE(c.parametros[i].cercaMinimo, g.verdad[i]);
            EXPECT_GE(c.parametros[i].cercaMaximo, g.verdad[i]);
        }
        // The flood itself tells loss and speed; the recession of a small base flow hardly weighs.
        EXPECT_TRUE(c.parametros[0].identificable && c.parametros[1].identificable) << metodo;
        EXPECT_LT(*c.antes, 0.5);
        EXPECT_TRUE(c.atados.empty());
    }
}

TEST(Calibra, DeVariasUnidadesLosIdentificablesSeEncuentranYLosDemasSeDicen)
{
    const Gemelo g = pruebas::VariasUnidades();
    const Calibrado c = *Calibra(g.pedido);
    EXPECT_LE(c.corridas.size(), 5000U);
    std::size_t hallados = 0;
    for (std::size_t i = 0; i < g.verdad.size(); ++i) {
        const bool atado = std::any_of(c.atados.begin(), c.atados.end(),
                                       [&](const Atados& a) { return a.a == i || a.b == i; });
        if (!c.parametros[i].identificable || atado) {
            EXPECT_TRUE(Dice(c, c.parametros[i].nombre)) << c.parametros[i].nombre;
            continue;
        }
        ++hallados;
        EXPECT_NEAR(c.parametros[i].mejor, g.verdad[i], 0.02 * g.verdad[i]) << c.parametros[i].nombre;
    }
    EXPECT_GE(hallados, 6U);
}

TEST(Calibra, LoQueNoTieneEfectoSeDice)
{
    Gemelo g = Solo({"kostiakov_a"});
    g.pedido.modelo.red.ColUEHs.Item(1).Q0Recesion = 0;  // then the recession does nothing
    g.pedido.modelo.parametros.push_back(pruebas::gemelos::Mueve("u-1", "k_recesion", 1, 60, true));
    g.verdad.push_back(8);
    g.pedido.eventos.clear();
    pruebas::gemelos::Observa(g, {"u-1"}, 0);
    g.pedido.como.corridas = 300;
    const Calibrado c = *Calibra(g.pedido);
    EXPECT_FALSE(c.parametros[0].sinEfecto);
    EXPECT_TRUE(c.parametros[0].identificable);
    EXPECT_TRUE(c.parametros[1].sinEfecto);
    EXPECT_FALSE(c.parametros[1].identificable);
    EXPECT_TRUE(Dice(c, "u-1.k_recesion (valor) no tiene ningún efecto"));
}

TEST(Calibra, LargoYVelocidadSeMuevenJuntos)
{
    Gemelo g = Solo({"velocidad_media"});
    g.pedido.modelo.parametros.push_back(pruebas::gemelos::Mueve("u-1", "longitud_max", 1000, 16000, true));
    g.verdad.push_back(4000);
    g.pedido.como.corridas = 1500;
    const Calibrado c = *Calibra(g.pedido);
    ASSERT_EQ(c.atados.size(), 1U);
    EXPECT_GT(c.atados[0].r, 0.95);
    EXPECT_NEAR(c.parametros[1].mejor / c.parametros[0].mejor, 4000 / 0.5, 0.02 * 4000 / 0.5);
    EXPECT_TRUE(Dice(c, "se mueven juntos"));
}

TEST(Calibra, ElMejorEnElBordeSeDice)
{
    Gemelo g = Solo({"velocidad_media"});
    g.pedido.modelo.parametros[0].minimo = 1;  // the truth is 0.5
    g.pedido.como.corridas = 200;
    const Calibrado c = *Calibra(g.pedido);
    EXPECT_EQ(c.parametros[0].borde, -1);
    EXPECT_TRUE(Dice(c, "está en el mínimo de su rango"));
}

TEST(Calibra, DaLosMismosBitsConCualquierNumeroDeHilos)
{
    for (const MetodoDeBusqueda& metodo : MetodosDeBusqueda()) {
        Gemelo g = pruebas::UnaUnidad(0.05);
        g.pedido.como.metodo = metodo.clave;
        g.pedido.como.corridas = 400;
        g.pedido.hilos = 1;
        const Calibrado uno = *Calibra(g.pedido);
        for (const int hilos : {2, 8}) {
            g.pedido.hilos = hilos;
            const Calibrado otro = *Calibra(g.pedido);
            ASSERT_EQ(uno.corridas.size(), otro.corridas.size());
            for (std::size_t i = 0; i < uno.corridas.size(); ++i) {
                EXPECT_EQ(uno.corridas[i].valores, otro.corridas[i].valores);
                EXPECT_EQ(uno.corridas[i].puntaje, otro.corridas[i].puntaje);
            }
            EXPECT_EQ(uno.cercanos, otro.cercanos);
            EXPECT_EQ(uno.dichos, otro.dichos);
        }
    }
}

TEST(Calibra, ElPuntajeEsElDeUnaCorridaConEsosValores)
{
    Gemelo g = pruebas::VariasUnidades(0.1);
    g.pedido.como.corridas = 100;
    g.pedido.eventos[0].peso = 3;
    g.pedido.eventos[0].observaciones[1].peso = 0.5;
    const Calibrado c = *Calibra(g.pedido);
    double suma = 0;
    runs::Modelo m = g.pedido.modelo;
    runs::Aplica(m.parametros, c.Mejor(), m.lluvias[0].pasos, m.red, m.lluvias[0].tormenta);
    for (std::size_t i = 0; i < 2; ++i) {
        const engine::Calculo calculo = engine::Calcula(m.red, m.lluvias[i].tormenta, m.lluvias[i].pasos);
        double deEvento = 0, pesos = 0;
        std::size_t sitio = 4 * i;
        for (const study::Observacion& o : g.pedido.eventos[i].observaciones) {
            const double nse = *PuntajeDe("nse")->valor(ParesDe(calculo, m.lluvias[i].pasos, o).pares);
            EXPECT_EQ(c.sitios.at(sitio++).despues, nse);
            deEvento += o.peso * nse;
            pesos += o.peso;
        }
        suma += g.pedido.eventos[i].peso * deEvento / pesos;
    }
    EXPECT_NEAR(c.Puntaje(), suma / 4, 1e-12);
    EXPECT_EQ(c.corridas.size(), 100U);
    EXPECT_GE(c.Puntaje(), *c.antes);
}

TEST(Calibra, LosEventosDeValidacionNoPesanYSuPuntajeSeDice)
{
    Gemelo g = pruebas::VariasUnidades();
    g.pedido.como.corridas = 60;
    g.pedido.eventos[1].papel = "valida";
    const Calibrado con = *Calibra(g.pedido);
    ASSERT_TRUE(con.validacion);
    EXPECT_EQ(con.sitios.size(), 8U);
    EXPECT_TRUE(Dice(con, "En los eventos de validación"));
    g.pedido.eventos[1].papel = "fuera";
    const Calibrado sin = *Calibra(g.pedido);
    EXPECT_EQ(con.Mejor(), sin.Mejor());
    EXPECT_FALSE(sin.validacion);
    EXPECT_EQ(sin.sitios.size(), 4U);
}

TEST(Calibra, LasCorridasSinPuntajeSonLasPeoresYSeCuentan)
{
    Gemelo g = Solo({"velocidad_media", "kostiakov_a"});
    // A unit without a velocity is refused.
    g.pedido.modelo.parametros[1] = pruebas::gemelos::Mueve("u-1", "velocidad_media", 0, 1);
    g.pedido.como.corridas = 200;
    const Calibrado c = *Calibra(g.pedido);
    EXPECT_GT(c.fallidas, 0U);
    EXPECT_LT(c.fallidas, c.corridas.size());
    EXPECT_FALSE(c.motivos.empty());
    EXPECT_GT(c.Mejor()[1], 0);
    EXPECT_TRUE(Dice(
        c, "corrida no dio puntaje y cuenta como la peor. Tormenta de 90 min: La corrida fue rechazada"));
}

TEST(Calibra, CanceladaGuardaLaMejorHastaAhi)
{
    Gemelo g = pruebas::UnaUnidad();
    std::size_t preguntas = 0;
    double visto = 0;
    const auto c = Calibra(
        g.pedido,
        [&](std::size_t hechas, std::size_t total) {
            EXPECT_EQ(total, 5000U);
            EXPECT_LE(hechas, total);
            return ++preguntas <= 120;
        },
        [&](const VistaDeCalibracion& v) { visto = v.mejoras.back().second; });
    ASSERT_TRUE(c);
    EXPECT_EQ(c->fin, FinDeBusqueda::Cancelada);
    EXPECT_EQ(c->corridas.size(), 120U);
    EXPECT_EQ(c->Puntaje(), visto);
    EXPECT_TRUE(Dice(*c, "se interrumpió a las 120 corridas"));
    EXPECT_FALSE(Calibra(g.pedido, [](std::size_t, std::size_t) { return false; }));
}

TEST(Calibra, ElEstudioGuardaDoscientosJuegosALoSumo)
{
    Gemelo g = Solo({"kostiakov_a", "velocidad_media"});
    g.pedido.como.corridas = 1500;
    g.pedido.como.cercania = 0.5;
    const Calibrado c = *Calibra(g.pedido);
    EXPECT_GT(c.cuantosCercanos, 200U);
    const study::Calibracion como = ParaElEstudio(g.pedido, c, "2026-01-02 10:00");
    EXPECT_EQ(como.cercanos.size(), 200U);
    EXPECT_EQ(como.cercanos.front().valores, c.Mejor());
    EXPECT_EQ(como.cercanos.front().puntaje, c.Puntaje());
    for (std::size_t i = 1; i < como.cercanos.size(); ++i) {
        EXPECT_LE(como.cercanos[i].puntaje, como.cercanos[i - 1].puntaje);
        EXPECT_GE(como.cercanos[i].puntaje, c.Puntaje() - 0.5);
    }
    EXPECT_EQ(como.campos, (std::vector<std::string>{"u-1.kostiakov_a.valor", "u-1.velocidad_media.valor"}));
    EXPECT_EQ(como.fecha, "2026-01-02 10:00");
}

TEST(Calibra, LoQueFaltaSeDiceAntes)
{
    const auto reparo = [](const auto& cambia) {
        Gemelo g = pruebas::UnaUnidad();
        cambia(g.pedido);
        const auto r = ReparosDe(g.pedido);
        return r.size() == 1 ? r.front() : std::to_string(r.size());
    };
    EXPECT_EQ(reparo([](auto&) {}), "0");
    EXPECT_EQ(reparo([](auto& p) { p.como.metodo = "azar"; }), "No hay un método de búsqueda \"azar\".");
    EXPECT_EQ(reparo([](auto& p) { p.como.puntaje = "r2"; }), "No hay un puntaje \"r2\".");
    EXPECT_EQ(reparo([](auto& p) { p.como.corridas = 0; }), "El presupuesto es menor que una corrida.");
    EXPECT_EQ(reparo([](auto& p) { p.modelo.parametros.clear(); }), "Ningún parámetro está activo.");
    EXPECT_NE(reparo([](auto& p) { p.eventos[0].papel = "valida"; }).find("papel de calibrar"),
              std::string::npos);
    EXPECT_EQ(reparo([](auto& p) {
                  p.eventos.push_back(p.eventos[0]);
                  p.eventos[1].observaciones[0].componente = "u-9";
                  p.modelo.lluvias.push_back(p.modelo.lluvias[0]);
              }),
              "El evento Tormenta de 90 min tiene valores observados en u-9, que no está en la red.");
}

TEST(Calibra, NivelesSePasanACaudalPorSuCurva)
{
    // Q = 4 h^2 through all three points; above the last one there is no flow to compare with.
    Gemelo conCaudales = pruebas::UnaUnidad();
    study::Observacion& o = conCaudales.pedido.eventos[0].observaciones[0];
    std::erase_if(o.puntos, [](const study::Punto& p) { return p.valor > 400 || p.valor < 0.04; });
    ASSERT_GT(o.puntos.size(), 20U);
    Gemelo conNiveles = conCaudales;
    study::Observacion& n = conNiveles.pedido.eventos[0].observaciones[0];
    n.magnitud = "nivel";
    n.curva = {{0.1, 0.04}, {1, 4}, {10, 400}};
    for (study::Punto& p : n.puntos)
        p.valor = std::sqrt(p.valor / 4);
    n.puntos.push_back({n.puntos.back().minuto + 1, 11});
    for (Gemelo* g : {&conCaudales, &conNiveles})
        g->pedido.como.corridas = 60;
    const Calibrado deCaudales = *Calibra(conCaudales.pedido), deNiveles = *Calibra(conNiveles.pedido);
    EXPECT_EQ(deCaudales.Mejor(), deNiveles.Mejor());
    EXPECT_NEAR(deCaudales.Puntaje(), deNiveles.Puntaje(), 1e-9);
}

}  // namespace
}  // namespace calibration
