// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/ModeloDe.h"

#include <gtest/gtest.h>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

namespace runs {
namespace {

/// A unit under a storm of 60 mm in 50 min, with recorded storms and personal distributions beside it.
class ElModelo : public testing::Test {
  protected:
    ElModelo()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto = {.NombreProyecto = "P"};
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.DirTrabajo = "/trabajo";
        disco.PonDirectorio("/proy");
        disco.PonDirectorio("/trabajo");
        s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Area = 6, .LongitudMax = 600, .VelMedia = 1, .numUEH = 1});
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 50;
        s.Tormenta.DistriPp = 2;
        s.Pasos = {.PasoPp = 10, .PasoQ = 5, .N0Dur = 30};
    }
    void PonRegistrada(const std::string& nombre, std::int16_t paso, std::initializer_list<float> laminas)
    {
        model::Siro aparte = s;
        model::TormentaReal real{.nombre = nombre, .PasoPpReal = paso};
        aparte.Tormenta.NroPpReal = static_cast<std::int16_t>(laminas.size());
        aparte.Tormenta.PpReal.Dimensiona(aparte.Tormenta.NroPpReal);
        std::copy(laminas.begin(), laminas.end(), aparte.Tormenta.PpReal.Datos() + 1);
        model::GuardaPpReal(aparte, real);
    }
    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    study::Ajuste ajuste{};
};

TEST_F(ElModelo, SinEventosEsElDeLaTormentaEnMano)
{
    ajuste.parametros = {{.campo = "area"}, {.campo = "retencion_z", .activo = false}};
    const ModeloDeProyecto m = ModeloDe(s, ajuste);
    EXPECT_EQ(m.reparos, std::vector<std::string>{});
    ASSERT_EQ(m.modelo.lluvias.size(), 1U);
    EXPECT_TRUE(m.eventos.empty());
    EXPECT_EQ(m.modelo.lluvias[0].tormenta.PpTormenta, 60);
    EXPECT_EQ(m.modelo.lluvias[0].pasos.N0Dur, 30);
    ASSERT_EQ(m.modelo.parametros.size(), 1U);
    EXPECT_EQ(m.modelo.parametros[0].campo, "area");
    EXPECT_EQ(m.modelo.red.ColUEHs.Cuenta(), 1);
    EXPECT_EQ(LluviaDe(m.modelo, ""), 0U);
    EXPECT_EQ(LluviaDe(m.modelo, "otro"), 1U);
}

TEST_F(ElModelo, CadaEventoTieneSuTormentaYLosPasosQueSusObservacionesPiden)
{
    PonRegistrada("Marzo_pt.vlm", 15, {3, 6, 2});
    ajuste.eventos = {
        {.nombre = "uno", .observaciones = {{.componente = "u-1", .puntos = {{0, 1}, {145.5, 2}}}}},
        {.nombre = "dos", .papel = "fuera"},
        {.nombre = "tres", .papel = "valida", .lluvia = {.origen = "registrada", .archivo = "Marzo_pt.vlm"}},
        {.nombre = "cuatro", .lluvia = {.origen = "lamina", .lamina = 25, .duracion = 8, .distribucion = 3}}};
    const ModeloDeProyecto m = ModeloDe(s, ajuste);
    EXPECT_EQ(m.reparos, std::vector<std::string>{});
    EXPECT_EQ(m.eventos, (std::vector<std::size_t>{0, 2, 3}));
    ASSERT_EQ(m.modelo.lluvias.size(), 3U);
    const Lluvia &uno = m.modelo.lluvias[0], &tres = m.modelo.lluvias[1], &cuatro = m.modelo.lluvias[2];
    EXPECT_EQ(uno.tormenta.PpTormenta, 60);
    EXPECT_EQ(uno.pasos.N0Dur, 101);  // 146 minutes and a step
    EXPECT_EQ(tres.nombre, "tres");
    EXPECT_EQ(tres.tormenta.FormaPp, model::FormaLluvia::Real);
    EXPECT_EQ(tres.tormenta.PpTormenta, 11);
    EXPECT_EQ(tres.tormenta.DurTormenta, 45);
    EXPECT_EQ(tres.pasos.PasoPp, 15);
    EXPECT_EQ(tres.pasos.PasoQ, 5);
    EXPECT_EQ(cuatro.tormenta.PpTormenta, 25);
    EXPECT_EQ(cuatro.tormenta.DistriPp, 3);
    EXPECT_EQ(cuatro.pasos.PasoPp, 8);
    EXPECT_EQ(cuatro.pasos.PasoQ, 4);  // 5 doesn't go into 8
    EXPECT_EQ(LluviaDe(m.modelo, "tres"), 1U);
    Corredor corredor(m.modelo);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(MotivoDe(corredor.Corre({}, i)), "") << i;
    EXPECT_GE(corredor.Corre({}, 0).Resultados.NroPasosQ * 5, 146);
}

TEST_F(ElModelo, LaDistribucionPersonalSeLeeComoLoHaceUnaCorrida)
{
    model::Siro otro = s;
    otro.TablasDeLluvia.NroFilasTabla = {0, 2, 0, 0};
    otro.TablasDeLluvia.DisPerso.Dimensiona(3, 3);
    otro.TablasDeLluvia.DisPerso(1, 1) = 30;
    otro.TablasDeLluvia.DisPerso(1, 2) = 70;
    ASSERT_TRUE(model::GuardaTablaDisPer(otro));
    s.Tormenta.DistriPp = 5;
    const ModeloDeProyecto m = ModeloDe(s, ajuste);
    EXPECT_EQ(m.modelo.tablas.NroFilasTabla[1], 2);
    EXPECT_EQ(m.modelo.tablas.DisPerso(1, 2), 70);
}

TEST_F(ElModelo, LoQueNoSePuedeCorrerDiceElEventoYPorQue)
{
    const auto reparo = [&](study::Evento e) {
        e.nombre = "uno";
        ajuste.eventos = {std::move(e)};
        const ModeloDeProyecto m = ModeloDe(s, ajuste);
        return m.reparos.empty() ? std::string{} : m.reparos.front();
    };
    const std::string evento = "El evento \"uno\": ";
    for (const char* archivo : {"No_pt.vlm", "x.csv", "../P_pt.vlm"})
        EXPECT_EQ(reparo({.lluvia = {.origen = "registrada", .archivo = archivo}}),
                  evento + "la tormenta registrada " + archivo + " no se pudo leer.");
    EXPECT_EQ(reparo({.lluvia = {.origen = "lamina", .lamina = 0}}), evento + "la lluvia no tiene lámina.");
    EXPECT_EQ(reparo({.lluvia = {.origen = "radar"}}),
              evento + "no se conoce el origen de la lluvia «radar».");
    ajuste.eventos.clear();
    s.Tormenta.PpTormenta = 0;
    EXPECT_EQ(ModeloDe(s, ajuste).reparos,
              std::vector<std::string>{"La corrida: la lluvia no tiene lámina."});
    s.Red.ColUEHs.Vacia();
    EXPECT_EQ(ModeloDe(s, ajuste).reparos.back(), "El proyecto no tiene ninguna UEH.");
}

}  // namespace
}  // namespace runs
