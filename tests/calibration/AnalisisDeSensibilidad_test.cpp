// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/AnalisisDeSensibilidad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "calibration/Gemelos.h"
#include "engine/Calcula.h"
#include "runs/Campos.h"

namespace calibration {
namespace {

using pruebas::Gemelo;

study::Ajuste AjusteDe(const Gemelo& g, study::Sensibilidad pedido = {})
{
    return {.eventos = g.pedido.eventos, .parametros = g.pedido.modelo.parametros, .sensibilidad = pedido};
}

/// The network and the storm with values of the parameters, run by the engine alone.
engine::Calculo CorreAMano(const runs::Modelo& m, const std::vector<double>& valores, std::size_t lluvia)
{
    model::Red red = m.red;
    model::Tormenta tormenta = m.lluvias[lluvia].tormenta;
    runs::Aplica(m.parametros, valores, m.lluvias[0].pasos, red, tormenta);
    return engine::Calcula(red, tormenta, m.lluvias[lluvia].pasos);
}

std::vector<float> CaudalesDe(const engine::Calculo& c, const std::string& componente)
{
    const model::Resultados& r = c.Resultados;
    for (int fila = 1; fila <= r.NroComponentes; ++fila)
        if (r.Secuencia[static_cast<std::size_t>(fila)] == componente)
            return {r.QSale.Fila(fila), r.QSale.Fila(fila) + r.NroPasosQ + 1};
    return {};
}

std::string Todas(const std::vector<std::string>& frases)
{
    std::string t;
    for (const std::string& f : frases)
        t += f + "\n";
    return t;
}

std::vector<std::uint64_t> Bits(const AnalisisDeSensibilidad& a)
{
    std::vector<std::uint64_t> bits;
    for (const std::vector<double>& fila : a.filas)
        for (const double x : fila)
            bits.push_back(std::bit_cast<std::uint64_t>(x));
    return bits;
}

// --- measures ---

TEST(Medidas, LasDeUnHidrogramaYSuPuntaje)
{
    const Gemelo g = pruebas::VariasUnidades();
    const runs::Modelo& m = g.pedido.modelo;
    const std::string& evento = m.lluvias[1].nombre;
    const engine::Calculo c = CorreAMano(m, g.verdad, 1);
    const std::vector<float> q = CaudalesDe(c, "c-1");
    const auto mayor = std::max_element(q.begin(), q.end());
    double suma = 0;
    for (std::size_t p = 1; p < q.size(); ++p)
        suma += double{q[p]};
    ASSERT_GT(*mayor, 1);
    const auto mide = [&](study::Medida medida) {
        medida.evento = evento;
        const MedidaPuesta puesta = PonMedida(medida, m, g.pedido.eventos);
        EXPECT_EQ(puesta.motivo, "");
        EXPECT_EQ(puesta.lluvia, 1);
        return Mide(puesta, c).value_or(-1);
    };
    EXPECT_EQ(mide({.que = "pico", .componente = "c-1"}), double{*mayor});
    EXPECT_EQ(mide({.que = "tiempo", .componente = "c-1"}), 5.0 * static_cast<double>(mayor - q.begin()));
    EXPECT_NEAR(mide({.que = "volumen", .componente = "c-1"}), suma * 300, 1e-9 * suma * 300);
    // The outfall is c-2; what was observed there is what the network does with these values.
    const std::vector<float> salida = CaudalesDe(c, "c-2");
    EXPECT_EQ(mide({.que = "pico"}), double{*std::max_element(salida.begin(), salida.end())});
    EXPECT_EQ(mide({.que = "puntaje", .componente = "c-2", .puntaje = "nse"}), 1);
    EXPECT_EQ(mide({.que = "puntaje", .puntaje = "rmse"}), 0);  // of the first observation
    EXPECT_EQ(PonMedida({.que = "puntaje", .componente = "c-2"}, m, g.pedido.eventos).nombre,
              "el puntaje (Nash-Sutcliffe) de c-2");
}

TEST(Medidas, LoQueNoSePuedeMedirSeDice)
{
    const Gemelo g = pruebas::VariasUnidades();
    const auto motivo = [&](const study::Medida& medida, bool conEventos = true) {
        return PonMedida(medida, g.pedido.modelo,
                         conEventos ? g.pedido.eventos : std::vector<study::Evento>{})
            .motivo;
    };
    EXPECT_EQ(motivo({.que = "altura"}), "No hay ninguna medida \"altura\".");
    EXPECT_EQ(motivo({.componente = "c-9"}), "La red no tiene ningún componente c-9.");
    EXPECT_EQ(motivo({.evento = "1998"}), "No hay ningún evento 1998 que se corra.");
    EXPECT_EQ(motivo({.que = "nivel"}),
              "La red no tiene ninguna represa ni laguna cuyo nivel se pueda medir.");
    EXPECT_EQ(motivo({.que = "nivel", .componente = "c-1"}),
              "El nivel es de una represa o una laguna; c-1 no lo es.");
    EXPECT_EQ(motivo({.que = "puntaje", .puntaje = "r2"}), "No hay ningún puntaje \"r2\".");
    EXPECT_EQ(motivo({.que = "puntaje"}, false), "Un puntaje pide un evento con observaciones.");
    EXPECT_EQ(motivo({.que = "puntaje", .componente = "u-3"}),
              "El evento Tormenta de 90 min no tiene observaciones de u-3.");
}

// --- analyses ---

// Each bar ends where a run with that one value ends.
TEST(AnalisisDeSensibilidad, ElTornadoEsUnaCorridaPorExtremo)
{
    const Gemelo g = pruebas::UnaUnidad();
    const runs::Modelo& m = g.pedido.modelo;
    const AnalisisDeSensibilidad a = *AnalizaSensibilidad(m, AjusteDe(g, {.metodo = "tornado"}), 2);
    ASSERT_EQ(a.filas.size(), 7);
    EXPECT_EQ(a.corridas, 15);
    // What the network has: Unidad() of Gemelos.h.
    const std::vector<double> actual{12, 4, double{0.7F}, 0, double{0.8F}, double{0.4F}, 15};
    const auto pico = [&](const std::vector<double>& valores) {
        const std::vector<float> q = CaudalesDe(CorreAMano(m, valores, 0), "u-1");
        return double{*std::max_element(q.begin(), q.end())};
    };
    EXPECT_EQ(a.actual, pico(actual));
    for (std::size_t i = 0; i < 7; ++i) {
        std::vector<double> menos = actual, mas = actual;
        menos[i] = m.parametros[i].minimo;
        mas[i] = m.parametros[i].maximo;
        EXPECT_EQ(a.filas[i][0], pico(menos)) << i;
        EXPECT_EQ(a.filas[i][1], pico(mas)) << i;
    }
    // The Kostiakov a of 0.3 lets nearly all of the rain run off, that of 10 none.
    EXPECT_EQ(PorImportancia(*MetodoDeSensibilidadDe("tornado"), a.filas)[0], 1);
    EXPECT_NE(Todas(EnPalabras(a)).find("El pico depende sobre todo de u-1.kostiakov_a ("), std::string::npos)
        << Todas(EnPalabras(a));
}

TEST(AnalisisDeSensibilidad, LosMismosBitsConCualquierCantidadDeHilos)
{
    const Gemelo g = pruebas::VariasUnidades();
    for (const char* metodo : {"morris", "sobol"}) {
        const study::Ajuste ajuste =
            AjusteDe(g, {.metodo = metodo, .trayectorias = 6, .base = 16, .semilla = 9});
        const AnalisisDeSensibilidad uno = *AnalizaSensibilidad(g.pedido.modelo, ajuste, 1);
        EXPECT_TRUE(uno.reparos.empty()) << Todas(uno.reparos);
        EXPECT_EQ(uno.corridas, CorridasDeSensibilidad(12, ajuste.sensibilidad));
        EXPECT_EQ(uno.corridas, std::string(metodo) == "morris" ? 6 * 13 : 16 * 14);
        EXPECT_EQ(uno.filas.size(), 12);
        for (const int hilos : {2, 8})
            EXPECT_EQ(Bits(*AnalizaSensibilidad(g.pedido.modelo, ajuste, hilos)), Bits(uno)) << hilos;
    }
}

// A recession without base flow does nothing, and the volume doesn't know how fast water runs.
TEST(AnalisisDeSensibilidad, LoQueNoTieneEfectoSeNombra)
{
    Gemelo g = pruebas::UnaUnidad();
    runs::Modelo& m = g.pedido.modelo;
    m.red.ColUEHs.Item(1).Q0Recesion = 0;
    std::erase_if(m.parametros, [](const study::Parametro& p) { return p.campo == "q0_recesion"; });
    for (const char* metodo : {"tornado", "morris", "sobol"}) {
        const AnalisisDeSensibilidad a =
            *AnalizaSensibilidad(m, AjusteDe(g, {.metodo = metodo, .base = 64}), 2);
        const std::vector<std::size_t> sin = SinEfecto(*MetodoDeSensibilidadDe(metodo), a.filas);
        EXPECT_TRUE(std::find(sin.begin(), sin.end(), 5) != sin.end()) << metodo;
        const std::string dicho = Todas(EnPalabras(a));
        EXPECT_NE(dicho.find("Sin efecto: "), std::string::npos) << dicho;
        EXPECT_NE(dicho.find("u-1.k_recesion"), std::string::npos) << dicho;
    }
}

TEST(AnalisisDeSensibilidad, SiNadaCambiaLoDice)
{
    Gemelo g = pruebas::UnaUnidad();
    runs::Modelo& m = g.pedido.modelo;
    m.red.ColUEHs.Item(1).Q0Recesion = 0;
    m.parametros = {pruebas::gemelos::Mueve("u-1", "k_recesion", 1, 60, true)};
    for (const char* metodo : {"tornado", "morris"})
        EXPECT_EQ(Todas(EnPalabras(*AnalizaSensibilidad(m, AjusteDe(g, {.metodo = metodo}), 1))),
                  "El pico no cambia con ningún parámetro.\n");
}

// Where all the rain is retained there is no peak whose time could be compared.
TEST(AnalisisDeSensibilidad, LasCorridasSinMedidaSeCuentan)
{
    Gemelo g = pruebas::UnaUnidad();
    runs::Modelo& m = g.pedido.modelo;
    m.red.ColUEHs.Item(1).Q0Recesion = 0;
    m.lluvias[0].tormenta.PpTormenta = 15;
    m.red.ColUEHs.Item(1).KostiakovA = 0.5F;
    m.red.ColUEHs.Item(1).RetensionZ = 2;
    m.parametros = {pruebas::gemelos::Mueve("u-1", "retencion_z", 0, 20),
                    pruebas::gemelos::Mueve("u-1", "velocidad_media", 0.1, 3, true)};
    const study::Medida medida{.que = "puntaje", .puntaje = "tiempo_pico"};
    const AnalisisDeSensibilidad a =
        *AnalizaSensibilidad(m, AjusteDe(g, {.metodo = "tornado", .medida = medida}), 2);
    ASSERT_EQ(a.fallas.size(), 1) << Todas(a.reparos);
    EXPECT_EQ(a.fallas[0].veces, 1);
    EXPECT_EQ(a.fallas[0].primera, 2);
    EXPECT_TRUE(std::isnan(a.filas[0][1]) && std::isnan(a.filas[0][2]));
    EXPECT_FALSE(std::isnan(a.filas[0][0]) || std::isnan(a.filas[1][2]));
    EXPECT_NE(Todas(EnPalabras(a))
                  .find("Falló 1 de 5 corridas (la primera, la 3), que la cuenta deja afuera: "
                        "La medida no está definida."),
              std::string::npos)
        << Todas(EnPalabras(a));
}

TEST(AnalisisDeSensibilidad, UnValorComunDeComponentesDistintosSeDice)
{
    Gemelo g = pruebas::VariasUnidades();
    g.pedido.modelo.parametros = {pruebas::gemelos::Mueve("u-*", "kostiakov_a", 1, 9)};
    model::UEH& u = g.pedido.modelo.red.ColUEHs.Item(2);
    u.KostiakovA = 5.5F;  // the others 4: the mean of the three is 4.5
    EXPECT_EQ(RangosDe(g.pedido.modelo, 0)[0].actual, 4.5);
    const AnalisisDeSensibilidad a =
        *AnalizaSensibilidad(g.pedido.modelo, AjusteDe(g, {.metodo = "tornado"}), 1);
    ASSERT_EQ(a.notas.size(), 1);
    EXPECT_EQ(a.notas[0],
              "u-*.kostiakov_a (valor) da a varios componentes un valor común: hoy van de 4 a 5.5.");
}

TEST(AnalisisDeSensibilidad, SeDejaYSeNiega)
{
    const Gemelo g = pruebas::UnaUnidad();
    int veces = 0;
    const auto hasta3 = [&veces](std::size_t, std::size_t) { return ++veces < 3; };
    EXPECT_FALSE(AnalizaSensibilidad(g.pedido.modelo, AjusteDe(g), 2, hasta3));
    study::Ajuste malo = AjusteDe(g, {.metodo = "sobol", .medida = {.componente = "c-7"}, .base = 1000});
    const AnalisisDeSensibilidad a = *AnalizaSensibilidad(g.pedido.modelo, malo, 2);
    EXPECT_EQ(Todas(EnPalabras(a)),
              "La base de Sobol es una potencia de dos, de 16 a 1048576.\n"
              "La red no tiene ningún componente c-7.\n");
    EXPECT_EQ(SegundosPorCorrida(g.pedido.modelo, malo), 0);
    EXPECT_GT(SegundosPorCorrida(g.pedido.modelo, AjusteDe(g)), 0);
}

}  // namespace
}  // namespace calibration
