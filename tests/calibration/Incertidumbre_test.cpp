// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Incertidumbre.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "Gemelos.h"
#include "calibration/Juicio.h"
#include "calibration/Puntajes.h"
#include "checks/AvisosDeCorrida.h"
#include "engine/Calcula.h"
#include "runs/Campos.h"
#include "runs/RedAlAzar.h"
#include "runs/Sorteos.h"

namespace calibration {
namespace {

PedidoDeIncertidumbre Pedido(int miembros)
{
    const pruebas::Gemelo g = pruebas::VariasUnidades();
    PedidoDeIncertidumbre p{.modelo = g.pedido.modelo, .eventos = g.pedido.eventos};
    p.como.miembros = miembros;
    p.como.medida.componente = "c-2";
    return p;
}

/// The values of a member, and its run by the plain way: the network changed, then computed.
std::vector<double> ValoresDe(const PedidoDeIncertidumbre& p, std::size_t k)
{
    std::vector<double> v(p.modelo.parametros.size());
    runs::Sorteos(p.modelo.parametros, p.como, p.calibracion).Valores(k, v);
    return v;
}
engine::Calculo CorridaDe(const PedidoDeIncertidumbre& p, const std::vector<double>& valores, model::Red& red)
{
    red = p.modelo.red;
    model::Tormenta tormenta = p.modelo.lluvias[0].tormenta;
    runs::Aplica(p.modelo.parametros, valores, p.modelo.lluvias[0].pasos, red, tormenta);
    return engine::Calcula(red, tormenta, p.modelo.lluvias[0].pasos);
}
const float* CaudalesDe(const engine::Calculo& c, const std::string& nombre)
{
    for (int fila = 1; fila <= c.Resultados.NroComponentes; ++fila)
        if (c.Resultados.Secuencia[static_cast<std::size_t>(fila)] == nombre)
            return c.Resultados.QSale.Fila(fila);
    return nullptr;
}
/// The inverse of the empirical distribution: the least value that a share of all doesn't pass.
double CuantilDe(std::vector<double> x, double p)
{
    std::sort(x.begin(), x.end());
    const auto i = static_cast<std::size_t>(std::ceil(p * static_cast<double>(x.size()) - 1e-9));
    return x[std::max<std::size_t>(i, 1) - 1];
}

// Every member run by itself, its results sorted: the bands are theirs but for the grid's thousandth.
TEST(Incertidumbre, LosCuantilesSonLosDeLosJuegosCorridosUnoPorUno)
{
    const PedidoDeIncertidumbre p = Pedido(200);
    const Conjunto c = *CorreConjunto(p);
    std::vector<double> picos, tiempos, volumenes, enElPaso;
    constexpr std::size_t Paso = 25;
    for (std::size_t k = 0; k < 200; ++k) {
        model::Red red;
        const engine::Calculo calculo = CorridaDe(p, ValoresDe(p, k), red);
        const float* const Q = CaudalesDe(calculo, "c-2");
        const int n = calculo.Resultados.NroPasosQ;
        const float* const pico = std::max_element(Q, Q + n + 1);
        picos.push_back(*pico);
        tiempos.push_back(5.0 * static_cast<double>(pico - Q));
        double v = 0;
        for (int i = 1; i <= n; ++i)
            v += double{Q[i]} * 300;
        volumenes.push_back(v);
        enElPaso.push_back(Q[Paso]);
    }
    EXPECT_EQ(c.miembros, 200U);
    EXPECT_EQ(c.cuentan, 200U);
    EXPECT_EQ(c.componente, "c-2");
    constexpr double Milesima = 1.0 / 1024;
    for (const double prob : {0.05, 0.5, 0.95}) {
        const auto junto = [&](const runs::Cuantiles& d, const std::vector<double>& x) {
            EXPECT_NEAR(d.Cuantil(prob), CuantilDe(x, prob), Milesima * CuantilDe(x, prob)) << prob;
        };
        junto(c.pico, picos);
        junto(c.tiempo, tiempos);
        junto(c.volumen, volumenes);
        junto(c.caudal.at(Paso), enElPaso);
    }
    double suma = 0;
    for (const double x : picos)
        suma += x;
    EXPECT_NEAR(c.pico.Media(), suma / 200, 1e-6 * suma / 200);
    EXPECT_FLOAT_EQ(static_cast<float>(c.pico.Maximo()),
                    static_cast<float>(*std::max_element(picos.begin(), picos.end())));
}

TEST(Incertidumbre, LosMismosBitsConCualquieraHilosYEnPartesJuntadasEnCualquierOrden)
{
    PedidoDeIncertidumbre p = Pedido(120);
    p.hilos = 1;
    const std::string uno = Escribe(*CorreConjunto(p));
    for (const int hilos : {2, 8}) {
        p.hilos = hilos;
        EXPECT_EQ(Escribe(*CorreConjunto(p)), uno) << hilos;
    }
    Conjunto todo;
    p.partes = 7;
    for (const std::size_t parte : {3U, 0U, 6U, 5U, 1U, 4U, 2U}) {
        p.parte = parte;
        Conjunto leido;
        ASSERT_TRUE(Lee(Escribe(*CorreConjunto(p)), leido));
        todo.Junta(leido);
    }
    EXPECT_EQ(Escribe(todo), uno);
    Conjunto nada;
    EXPECT_FALSE(Lee("", nada));
    EXPECT_FALSE(Lee(uno.substr(0, uno.size() / 2), nada));
}

TEST(Incertidumbre, SeDejaDondeSeDejaYNoQuedaNadaAMedias)
{
    PedidoDeIncertidumbre p = Pedido(1000);
    EXPECT_FALSE(CorreConjunto(p, [](std::size_t hechos, std::size_t) { return hechos < 10; }));
}

// Velocity 0 in a reach ends a run: with a quarter of the weight, it takes as many members as drew it.
TEST(Incertidumbre, LosQueNoDanResultadoSeCuentanConSuMotivoYNoEntranEnNada)
{
    PedidoDeIncertidumbre p = Pedido(80);
    p.modelo.parametros = {{.componentes = "u-*",
                            .campo = "velocidad_media",
                            .minimo = 0,
                            .maximo = 1,
                            .distribucion = "discreta",
                            .valores = {{0, 1}, {0.5, 1}, {1, 2}}}};
    const Conjunto c = *CorreConjunto(p);
    std::uint64_t malos = 0;
    std::size_t primero = 0;
    for (std::size_t k = 0; k < 80; ++k) {
        model::Red red;
        if (runs::MotivoDe(CorridaDe(p, ValoresDe(p, k), red)).empty()) continue;
        if (malos++ == 0) primero = k;
    }
    ASSERT_GT(malos, 0U);
    EXPECT_LT(malos, 80U);
    EXPECT_EQ(c.Fallaron(), malos);
    EXPECT_EQ(c.cuentan, 80 - malos);
    EXPECT_EQ(c.pico.Total(), 80 - malos);
    ASSERT_EQ(c.fallidos.size(), 1U);
    EXPECT_EQ(c.fallidos.begin()->second.primeros.front(), primero);
    const std::vector<std::string> dichos = EnPalabras(c, p.como);
    EXPECT_TRUE(std::any_of(dichos.begin(), dichos.end(), [&](const std::string& d) {
        return d.starts_with(std::to_string(malos) + " juegos no dieron resultado, el primero el " +
                             std::to_string(primero + 1) + ": ");
    }));
}

// A dam overtops in as many members as runs have the finding that the water is above its table.
TEST(Incertidumbre, UnaRepresaRebosaEnLosJuegosQueLosAvisosDicen)
{
    int conRebose = 0;
    for (std::uint32_t semilla = 1; semilla <= 40; ++semilla) {
        const pruebas::RedAlAzar azar(semilla);
        PedidoDeIncertidumbre p{.modelo = azar.m};
        p.modelo.red.ColRepresas.Ranura(1).HInicialEmb = 100.1F;
        for (int k = 1; k <= 3; ++k) {  // a small pool
            p.modelo.red.RepresaH(1, k) = p.modelo.red.RepresaQH(1, k) = 99.5F + 0.5F * static_cast<float>(k);
            p.modelo.red.RepresaS(1, k) = 50000 * (k - 1);
        }
        p.modelo.parametros = {
            {.componentes = "tormenta", .campo = "lamina", .minimo = 1, .maximo = 400},
            {.componentes = "r-*", .campo = "altura_inicial", .modo = "suma", .minimo = 0, .maximo = 0.2}};
        p.como.miembros = 20;
        p.como.medida.componente = "r-1";
        if (!runs::ReparosDe(p.modelo).empty()) continue;
        const Conjunto c = *CorreConjunto(p);
        std::uint64_t rebosan = 0, vanBien = 0;
        std::vector<double> niveles;
        for (std::size_t k = 0; k < 20; ++k) {
            model::Red red;
            const engine::Calculo calculo = CorridaDe(p, ValoresDe(p, k), red);
            if (!runs::MotivoDe(calculo).empty()) continue;
            ++vanBien;
            const float* const H = calculo.Resultados.HRepresa.Fila(1);
            niveles.push_back(*std::max_element(H, H + calculo.Resultados.NroPasosQ + 1));
            const auto avisos = checks::AvisosDeCorrida(red, p.modelo.lluvias[0].tormenta,
                                                        p.modelo.lluvias[0].pasos, {}, calculo);
            rebosan += std::any_of(
                           avisos.begin(), avisos.end(),
                           [](const checks::Hallazgo& h) { return h.numero == 103 && h.componente == "r-1"; })
                           ? 1
                           : 0;
        }
        EXPECT_EQ(c.cuentan, vanBien) << semilla;
        EXPECT_EQ(c.rebosan, rebosan) << semilla;
        if (!c.conTope) {  // by Muskingum
            EXPECT_EQ(c.nivel.Total(), 0U) << semilla;
            continue;
        }
        EXPECT_EQ(c.nivel.Total(), c.cuentan) << semilla;
        EXPECT_EQ(c.base, 100) << "the foot of its table";
        EXPECT_NEAR(c.base + c.nivel.Cuantil(0.5), CuantilDe(niveles, 0.5), 0.002) << semilla;
        conRebose += rebosan > 0 && rebosan < 20 ? 1 : 0;
    }
    EXPECT_GT(conRebose, 0) << "no network told any member from another";
}

// Each member's weight is what its own score has above the threshold.
TEST(Incertidumbre, GluePesaPorLoQueElPuntajeSuperaElUmbral)
{
    PedidoDeIncertidumbre p = Pedido(150);
    const pruebas::Gemelo g = pruebas::VariasUnidades();
    for (std::size_t i = 0; i < p.modelo.parametros.size(); ++i) {  // about the truth
        p.modelo.parametros[i].minimo = 0.7 * g.verdad[i];
        p.modelo.parametros[i].maximo = 1.3 * g.verdad[i];
    }
    p.como.glue = true;
    p.como.umbral = 0.8;
    p.como.medida.puntaje = "nse";
    ASSERT_TRUE(ReparosDe(p).empty());
    const Conjunto c = *CorreConjunto(p);
    runs::Corredor corredor(p.modelo);
    const Puntaje& nse = *PuntajeDe("nse");
    std::vector<std::pair<double, double>> pesados;  // peak, weight
    double suma = 0;
    for (std::size_t k = 0; k < 150; ++k) {
        const std::vector<double> v = ValoresDe(p, k);
        const double costo = CostoDe(nse, p.modelo, p.eventos, v, corredor).costo;
        const double peso = std::max(0.0, (1 - costo) - 0.8);
        if (peso <= 0) continue;
        model::Red red;
        const engine::Calculo calculo = CorridaDe(p, v, red);
        const float* const Q = CaudalesDe(calculo, "c-2");
        pesados.emplace_back(*std::max_element(Q, Q + calculo.Resultados.NroPasosQ + 1), peso);
        suma += peso;
    }
    ASSERT_GT(pesados.size(), 5U);
    EXPECT_LT(pesados.size(), 150U);
    EXPECT_EQ(c.cuentan, pesados.size());
    std::sort(pesados.begin(), pesados.end());
    for (const double prob : {0.05, 0.5, 0.95}) {
        double van = 0, valor = 0;
        for (const auto& [pico, peso] : pesados) {
            van += peso;
            valor = pico;
            if (van >= prob * suma) break;
        }
        EXPECT_NEAR(c.pico.Cuantil(prob), valor, valor / 1024) << prob;
    }
    double media = 0;
    for (const auto& [pico, peso] : pesados)
        media += pico * peso / suma;
    EXPECT_NEAR(c.pico.Media(), media, 1e-4 * media);
    bool dicho = false;
    for (const std::string& d : EnPalabras(c, p.como))
        dicho = dicho || d.find("banda es por parámetros") != std::string::npos;
    EXPECT_TRUE(dicho);
}

TEST(Incertidumbre, DiceLoQueLeFaltaParaPedirse)
{
    PedidoDeIncertidumbre p = Pedido(20);
    EXPECT_TRUE(ReparosDe(p).empty());
    p.como.medida.componente = "r-nadie";
    p.como.medida.evento = "otro";
    EXPECT_EQ(ReparosDe(p),
              (std::vector<std::string>{"El componente r-nadie no está en la red.",
                                        "El evento otro no está en el estudio, o quedó fuera."}));
    p = Pedido(20);
    p.modelo.parametros.clear();
    EXPECT_EQ(ReparosDe(p).size(), 1U);
    p = Pedido(20);
    p.como.glue = true;
    p.como.umbral = 1;
    EXPECT_EQ(ReparosDe(p),
              (std::vector<std::string>{
                  "El umbral no deja pasar ningún juego: el mejor valor de Nash-Sutcliffe es 1."}));
    p.como.umbral = 0.5;
    p.eventos.clear();
    EXPECT_EQ(ReparosDe(p).size(), 1U);
}

// The ends solve (p - x/n)^2 = z^2 p (1 - p) / n; worked out with mpmath to 30 digits, z of 97.5 %.
TEST(Incertidumbre, ElIntervaloBinomialEsElDeWilson)
{
    struct Caso {
        std::uint64_t si, n;
        double menor, mayor;
    };
    for (const Caso& c :
         {Caso{12, 1000, 0.00687764780640352, 0.0208572684754983}, Caso{0, 10, 0, 0.277532799862889},
          Caso{10, 10, 0.722467200137111, 1}, Caso{1, 3, 0.0614919447203962, 0.792340399197952}}) {
        const auto [menor, mayor] = IntervaloBinomial(c.si, c.n);
        EXPECT_NEAR(menor, c.menor, 1e-12);
        EXPECT_NEAR(mayor, c.mayor, 1e-12);
    }
    EXPECT_EQ(IntervaloBinomial(0, 0), (std::pair<double, double>{0, 1}));
}

}  // namespace
}  // namespace calibration
