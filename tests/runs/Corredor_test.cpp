// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Corredor.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>
#include <mutex>
#include <set>
#include <thread>

#include "runs/Campos.h"
#include "runs/RedAlAzar.h"

namespace runs {
namespace {

using pruebas::RedAlAzar;

testing::AssertionResult MismosBits(const engine::Calculo& a, const engine::Calculo& b)
{
    const model::Resultados &x = a.Resultados, &y = b.Resultados;
    if (a.fin != b.fin) return testing::AssertionFailure() << "one ended otherwise";
    if (a.avisos.size() != b.avisos.size()) return testing::AssertionFailure() << "other notices";
    for (std::size_t i = 0; i < a.avisos.size(); ++i)
        if (!(a.avisos[i].mensaje == b.avisos[i].mensaje) || a.avisos[i].veces != b.avisos[i].veces)
            return testing::AssertionFailure() << "another notice " << b.avisos[i].mensaje.texto;
    if (x.NroPasosQ != y.NroPasosQ || x.Secuencia != y.Secuencia)
        return testing::AssertionFailure() << "another length or order";
    if (!(x.QSale == y.QSale && x.QEntra == y.QEntra && x.QMax == y.QMax && x.PpUEHPaso == y.PpUEHPaso))
        return testing::AssertionFailure() << "flows differ";
    if (!(x.HRepresa == y.HRepresa && x.SRepresa == y.SRepresa && x.HLago == y.HLago && x.SLago == y.SLago))
        return testing::AssertionFailure() << "heights or storages differ";
    if (!(x.VolUEH == y.VolUEH && x.VolBaseUEH == y.VolBaseUEH && x.EscUEH == y.EscUEH &&
          x.CoefEscTotal == y.CoefEscTotal && x.VolEntra == y.VolEntra && x.VolSale == y.VolSale))
        return testing::AssertionFailure() << "volumes differ";
    if (!(a.Tormenta.PpUEH == b.Tormenta.PpUEH && a.Hietograma.IntensidadPp == b.Hietograma.IntensidadPp))
        return testing::AssertionFailure() << "the rain differs";
    return testing::AssertionSuccess();
}

/// What a run by hand gives: the network and the storm edited, engine::Calcula.
engine::Calculo AMano(const Modelo& m, const std::vector<double>& valores, std::size_t lluvia)
{
    model::Red red = m.red;
    model::Tormenta t = m.lluvias[lluvia].tormenta;
    for (std::size_t i = 0; i < m.parametros.size(); ++i) {
        const study::Parametro& p = m.parametros[i];
        const auto x = [&](double actual) {
            return p.modo == "valor"  ? valores[i]
                   : p.modo == "suma" ? actual + valores[i]
                                      : actual * valores[i];
        };
        const auto mueve = [&](float& campo) { campo = static_cast<float>(x(double{campo})); };
        if (p.campo == "kostiakov_a")
            for (model::UEH& u : red.ColUEHs)
                mueve(u.KostiakovA);
        else if (p.campo == "kostiakov_b")
            for (model::UEH& u : red.ColUEHs)
                mueve(u.KostiakovB);
        else if (p.campo == "kostiakov_i")
            for (model::UEH& u : red.ColUEHs)
                mueve(u.KostiakovI);
        else if (p.campo == "k_recesion")
            mueve(red.UEHs(1).KRecesion);
        else if (p.campo == "velocidad_media")
            for (model::UEH& u : red.ColUEHs)
                mueve(u.VelMedia);
        else if (p.campo == "longitud") {
            for (model::Cauce& c : red.ColCauces)
                if (c.optDirMusk) mueve(c.LongCauce);
        } else if (p.campo == "altura_inicial")
            mueve(red.Represas(1).HInicialEmb);
        else if (p.campo == "fq5_b")
            mueve(red.Represas(1).FQb[4]);
        else if (p.campo == "lamina")
            mueve(t.PpTormenta);
        else if (p.campo == "duracion")
            t.DurTormenta = static_cast<std::int16_t>(std::round(x(t.DurTormenta)));
        else
            ADD_FAILURE() << p.campo;
    }
    return engine::Calcula(red, t, m.lluvias[lluvia].pasos, m.tablas);
}

RC_GTEST_PROP(ElCorredor, TieneLosBitsDeUnaRedEditadaAMano, (std::uint32_t semilla))
{
    RedAlAzar azar(semilla);
    auto& parametros = azar.m.parametros;
    parametros = {
        azar.Parametro("u-*", "kostiakov_a", 0.5, 6),     azar.Parametro("u-1", "k_recesion", 1, 20),
        azar.Parametro("u-?", "velocidad_media", 0.1, 2), azar.Parametro("c-*", "longitud", 100, 5000),
        azar.Parametro("r-1", "fq5_b", 0.5, 1.5),         azar.Parametro("tormenta", "lamina", 20, 90),
        azar.Parametro("tormenta", "duracion", 30, 200)};
    if (azar.m.red.Represas(1).Metodo != "Muskingum")
        parametros.push_back(azar.Parametro("r-1", "altura_inicial", 100, 101));
    Corredor corredor(azar.m);
    for (int vez = 0; vez < 6; ++vez) {
        std::vector<double> valores;
        for (const study::Parametro& p : parametros)
            valores.push_back(azar.Real(p.minimo, p.maximo));
        for (std::size_t lluvia = 0; lluvia < azar.m.lluvias.size(); ++lluvia) {
            const engine::Calculo mano = AMano(azar.m, valores, lluvia);
            RC_ASSERT(mano.fin == engine::FinCalculo::Completo);
            RC_ASSERT(MismosBits(mano, corredor.Corre(valores, lluvia)));
        }
    }
}

/// Powers of t^b are kept while only a moves: not a moment longer.
RC_GTEST_PROP(ElCorredor, GuardaLasPotenciasSoloMientrasSeMueveA, (std::uint32_t semilla))
{
    RedAlAzar azar(semilla);
    const auto valor = [](std::string_view de, std::string_view campo, double minimo, double maximo) {
        study::Parametro p;
        p.componentes = de;
        p.campo = campo;
        p.modo = "valor";
        p.minimo = minimo;
        p.maximo = maximo;
        return p;
    };
    azar.m.parametros = {valor("u-*", "kostiakov_a", 0.5, 6), valor("u-*", "kostiakov_b", 0.2, 0.9),
                         valor("u-*", "kostiakov_i", 0, 60), valor("tormenta", "duracion", 30, 200)};
    std::vector<double> valores;
    for (const study::Parametro& p : azar.m.parametros)
        valores.push_back(azar.Real(p.minimo, p.maximo));
    Corredor corredor(azar.m);
    for (int vez = 0; vez < 12; ++vez) {
        const std::size_t cual = vez % 2 == 0 ? 0 : static_cast<std::size_t>(azar.Real(0, 3.999));
        valores[cual] = azar.Real(azar.m.parametros[cual].minimo, azar.m.parametros[cual].maximo);
        const testing::AssertionResult mismos =
            MismosBits(AMano(azar.m, valores, 0), corredor.Corre(valores, 0));
        RC_LOG(mismos.message());
        RC_ASSERT(mismos);
    }
}

// About a third of all K are refused by a run for the rounding of their coefficients alone.
TEST(ElCorredor, NingunKDeMuskingumSeRechazaPorElRedondeo)
{
    RedAlAzar azar(4);
    azar.m.red.ColCauces.Item(3).optDirMusk = false;
    azar.m.parametros = {{.componentes = "c-3", .campo = "musk_k", .minimo = 6, .maximo = 20},
                         {.componentes = "c-3", .campo = "musk_x", .minimo = 0, .maximo = 0.3}};
    Corredor corredor(azar.m);
    int rechazados = 0;
    for (int vez = 0; vez < 200; ++vez) {
        const std::vector<double> valores{double{azar.Real(6, 20)}, double{azar.Real(0, 0.3)}};
        model::Red red = azar.m.red;
        model::Tormenta tormenta = azar.m.lluvias[0].tormenta;
        red.Cauces(3).Cauce_k_Musk = static_cast<float>(valores[0]);
        red.Cauces(3).Cauce_n_Musk = static_cast<float>(valores[1]);
        rechazados += MotivoDe(engine::Calcula(red, tormenta, azar.m.lluvias[0].pasos)).empty() ? 0 : 1;
        Aplica(azar.m.parametros, valores, azar.m.lluvias[0].pasos, red, tormenta);
        EXPECT_NEAR(red.Cauces(3).Cauce_k_Musk / valores[0], 1, 1e-5);
        const engine::Calculo& c = corredor.Corre(valores, 0);
        EXPECT_EQ(MotivoDe(c), "") << valores[0] << " " << valores[1];
        EXPECT_TRUE(MismosBits(engine::Calcula(red, tormenta, azar.m.lluvias[0].pasos), c));
    }
    EXPECT_GT(rechazados, 20);
}

// Members one after another, each in the arrays of the one before, on any thread: the same bits as alone.
TEST(CorreMiembros, DaLosMismosBitsConUnoDosYOchoHilos)
{
    RedAlAzar azar(7);
    azar.m.red.UEHs(1) = {.NombreUEH = "u-1",
                          .Area = 100,
                          .LongitudMax = 600,
                          .VelMedia = 0.5F,
                          .numUEH = 1,
                          .Cauce_aa = "c-1",
                          .KostiakovA = 1,
                          .KostiakovB = 0.4F};
    azar.m.lluvias[0].tormenta.DurTormenta = 60;
    azar.m.parametros = {
        {.componentes = "u-*", .campo = "kostiakov_a", .modo = "factor", .minimo = 0.5, .maximo = 2},
        {.componentes = "tormenta", .campo = "lamina", .minimo = 20, .maximo = 90}};
    ASSERT_TRUE(ReparosDe(azar.m).empty());
    const auto picos = [&](int hilos) {
        std::vector<float> q(40);
        EXPECT_TRUE(CorreMiembros(azar.m, q.size(), hilos, [&](std::size_t k, Corredor& corredor) {
            const auto x = static_cast<double>(k);
            const model::Resultados& r = corredor.Corre(std::vector{0.5 + x / 30, 20 + x}, 0).Resultados;
            q[k] = r.QMax(1, 1);
        }));
        return q;
    };
    const std::vector<float> uno = picos(1);
    EXPECT_GT(std::set<float>(uno.begin(), uno.end()).size(), 20U);
    EXPECT_EQ(picos(2), uno);
    EXPECT_EQ(picos(8), uno);
}

TEST(CorreMiembros, CadaUnoUnaVezYElAvanceEnElHiloDeQuienLlama)
{
    const RedAlAzar azar(3);
    std::mutex cerrojo;
    std::multiset<std::size_t> hechos;
    std::size_t visto = 0;
    const auto yo = std::this_thread::get_id();
    EXPECT_TRUE(CorreMiembros(
        azar.m, 50, 4,
        [&](std::size_t k, Corredor&) {
            const std::lock_guard guarda(cerrojo);
            hechos.insert(k);
        },
        [&](std::size_t van, std::size_t total) {
            EXPECT_EQ(std::this_thread::get_id(), yo);
            EXPECT_EQ(total, 50U);
            EXPECT_GE(van, visto);
            visto = van;
            return true;
        }));
    EXPECT_EQ(visto, 50U);
    EXPECT_EQ(hechos.size(), 50U);
    EXPECT_EQ(std::set<std::size_t>(hechos.begin(), hechos.end()).size(), 50U);
}

TEST(CorreMiembros, SeDejaEnUnaDecimaDeSegundo)
{
    const RedAlAzar azar(3);
    std::atomic<std::size_t> corridos{0};
    std::chrono::steady_clock::time_point dejado;
    EXPECT_FALSE(CorreMiembros(
        azar.m, 1000000, 2,
        [&](std::size_t, Corredor& corredor) {
            corredor.Corre({}, 0);
            ++corridos;
        },
        [&](std::size_t van, std::size_t) {
            dejado = std::chrono::steady_clock::now();
            return van < 5;
        }));
    EXPECT_LT(std::chrono::steady_clock::now() - dejado, std::chrono::milliseconds(100));
    EXPECT_LT(corridos, 1000U);
}

TEST(ElCorredor, UnValorQueNoEsNumeroSeRechazaConSuMotivo)
{
    RedAlAzar azar(5);
    azar.m.parametros = {{.componentes = "u-*", .campo = "kostiakov_a", .maximo = 6}};
    Corredor corredor(azar.m);
    EXPECT_EQ(MotivoDe(corredor.Corre(std::vector{2.0}, 0)), "");
    for (const double malo : {std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(MotivoDe(corredor.Corre(std::vector{malo}, 0)),
                  "La corrida fue rechazada: El valor de u-*.kostiakov_a (valor) no es un número.");
    EXPECT_EQ(MotivoDe(corredor.Corre(std::vector{2.0}, 0)), "");
}

TEST(ElCorredor, UnaCorridaRechazadaDiceSuMotivo)
{
    RedAlAzar azar(5);
    azar.m.parametros = {{.componentes = "u-1", .campo = "velocidad_media", .maximo = 6}};
    Corredor corredor(azar.m);
    const std::string motivo = MotivoDe(corredor.Corre(std::vector{0.0}, 0));
    EXPECT_TRUE(motivo.starts_with("La corrida fue rechazada: Error en la carga de datos de UEHS Nro. 1"))
        << motivo;
}

TEST(ElMotivo, DiceTodoLoQueLaCorridaDijoAlRechazarse)
{
    RedAlAzar azar(5);
    azar.m.red.ColCauces.Agrega({.numCauce = 4, .NombreCauce = "c-seco", .Cauce_aa = "c-3"});
    Corredor corredor(azar.m);
    const std::string motivo = MotivoDe(corredor.Corre({}, 0));
    EXPECT_TRUE(motivo.starts_with("La corrida fue rechazada: Hay tramos de Cauces sin aportes de UEHs."))
        << motivo;
    EXPECT_NE(motivo.find("c-seco"), std::string::npos) << motivo;
    EXPECT_NE(motivo.find(" / Error en la carga de datos de UEHS."), std::string::npos) << motivo;
}

TEST(ElMotivo, NoDejaPasarLoQueNoEsNumero)
{
    engine::Calculo c;
    c.Resultados.NroComponentes = 2;
    c.Resultados.NroPasosQ = 3;
    c.Resultados.QSale.Dimensiona(2, 4);
    EXPECT_EQ(MotivoDe(c), "");
    c.Resultados.QSale(2, 3) = std::nanf("");
    EXPECT_EQ(MotivoDe(c), "Un caudal no es un número finito.");
    c.Resultados.QSale(2, 3) = -std::numeric_limits<float>::infinity();
    EXPECT_EQ(MotivoDe(c), "Un caudal no es un número finito.");
    c.Resultados.QSale(2, 3) = 0;
    c.Resultados.HRepresa.Dimensiona(1, 4);
    c.Resultados.HRepresa(1, 2) = std::nanf("");
    EXPECT_EQ(MotivoDe(c), "Una altura o un almacenamiento no es un número finito.");
}

TEST(LosReparos, DicenQueParametroYPorQue)
{
    RedAlAzar azar(5);
    azar.m.red.ColCauces.Item(1).optDirMusk = true;
    const auto reparo = [&](study::Parametro p) {
        azar.m.parametros = {std::move(p)};
        const auto reparos = ReparosDe(azar.m);
        return reparos.empty() ? std::string{} : reparos.front();
    };
    EXPECT_EQ(reparo({.componentes = "u-*", .campo = "kostiakov_b", .minimo = 0.2, .maximo = 0.9}), "");
    EXPECT_EQ(reparo({.componentes = "u-*", .campo = "kostiakov_b", .minimo = 0.2, .maximo = 1.5}),
              "El rango de u-*.kostiakov_b (valor) lleva un valor a 1.5; se admite de 0 a 1.");
    EXPECT_EQ(reparo({.componentes = "u-*", .campo = "kostiakov_b", .minimo = 0.5, .maximo = 0.5}),
              "El mínimo de u-*.kostiakov_b (valor) no es menor que su máximo.");
    EXPECT_EQ(reparo({.componentes = "u-*", .campo = "kostiakov_a", .logaritmica = true}),
              "El mínimo de u-*.kostiakov_a (valor) no es mayor que 0, y su escala es logarítmica.");
    EXPECT_EQ(reparo({.componentes = "u-x*", .campo = "kostiakov_a"}), "Ningún componente se llama «u-x*».");
    EXPECT_EQ(reparo({.componentes = "*", .campo = "kostiakov_a"}),
              "«*» no nombra componentes: empiece por u-, c-, r- o l-, o escriba tormenta.");
    EXPECT_EQ(reparo({.componentes = "c-*", .campo = "area"}),
              "«c-*» no tiene el campo «area»; tiene longitud, velocidad, musk_k, musk_x.");
    EXPECT_EQ(
        reparo({.componentes = "c-1", .campo = "musk_k"}),
        "Ninguna corrida lee «musk_k» de «c-1», por el método de propagación o porque la función no está "
        "en uso.");
    EXPECT_EQ(reparo({.componentes = "u-1", .campo = "area", .modo = "doble"}),
              "«doble» no es un modo: valor, factor o suma.");
    azar.m.parametros = {{.componentes = "u-*", .campo = "area"}, {.componentes = "u-1", .campo = "area"}};
    EXPECT_EQ(ReparosDe(azar.m),
              std::vector<std::string>{"u-1.area (valor) mueve lo que otro parámetro mueve ya."});
    azar.m.lluvias.clear();
    EXPECT_EQ(ReparosDe(azar.m), std::vector<std::string>{"No hay ninguna tormenta que correr."});
}

}  // namespace
}  // namespace runs
