// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/CorreAparte.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "model/ArchivosTormenta.h"
#include "model/Siro.h"
#include "runs/CorridaGuardada.h"
#include "runs/ProyectoCorrido.h"

namespace runs {
namespace {

using pruebas::ProyectoCorrido;

void PonTormenta(model::Siro& s)
{
    s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
    s.Tormenta.PpTormenta = 80;
    s.Tormenta.DurTormenta = 120;
    s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
}
void PonSerie(model::Siro& s)
{
    s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
    s.Tormenta.TablaPDR = 0;
    model::LeeTablaPDRs(s);
}

struct Aparte : testing::Test {
    Aparte() { p.PonMuestra(); }
    [[nodiscard]] ProyectoAparte Proyecto(std::function<void(model::Siro&)> pon = PonTormenta) const
    {
        return {.conf = "/proy/Quelmar_Conf.vlm",
                .disco = p.disco.Puerta(),
                .dirTrabajo = "/trabajo",
                .cuando = "23/11/2026 14:05:09",
                .ponTormenta = std::move(pon),
                .hilos = 1};
    }
    ProyectoCorrido p{};
};

TEST_F(Aparte, UnaTormentaConLosBitsDeLaDelProyectoEnMano)
{
    PonTormenta(p.s);
    const auto suya = p.CorreUna();
    ASSERT_NE(suya, nullptr);
    const CorridaAparte hecha = CorreAparte(Proyecto());
    EXPECT_TRUE(hecha.reparos.empty());
    ASSERT_NE(hecha.corrida, nullptr);
    pruebas::EsperaLoMismo(*hecha.corrida, *suya);
    EXPECT_EQ(hecha.corrida->cuando, "23/11/2026 14:05:09");
}

TEST_F(Aparte, UnaSerieConLosBitsDeLaDelProyectoEnMano)
{
    const auto suya = p.CorreSerie(0);
    ASSERT_NE(suya, nullptr);
    const CorridaAparte hecha = CorreAparte(Proyecto(PonSerie));
    EXPECT_TRUE(hecha.reparos.empty());
    ASSERT_NE(hecha.corrida, nullptr);
    EXPECT_TRUE(hecha.corrida->esSerie);
    EXPECT_EQ(hecha.corrida->corridas.size(), 140u);
    pruebas::EsperaLoMismo(*hecha.corrida, *suya);
}

TEST_F(Aparte, NoEscribeNiBorra)
{
    p.disco.OlvidaLlamadas();
    ASSERT_NE(CorreAparte(Proyecto()).corrida, nullptr);
    ASSERT_NE(CorreAparte(Proyecto(PonSerie)).corrida, nullptr);
    using Clase = apoyo::DiscoPrueba::Clase;
    ASSERT_FALSE(p.disco.Llamadas().empty());
    for (const auto& llamada : p.disco.Llamadas())
        EXPECT_TRUE(llamada.clase == Clase::Lee || llamada.clase == Clase::HayDirectorio ||
                    llamada.clase == Clase::Lista)
            << llamada.ruta;
}

TEST_F(Aparte, UnaSerieSeDejaALaMitad)
{
    std::size_t preguntas = 0;
    const CorridaAparte hecha = CorreAparte(Proyecto(PonSerie), [&](std::size_t van, std::size_t total) {
        EXPECT_LE(van, total);
        return ++preguntas < 5;
    });
    EXPECT_EQ(hecha.corrida, nullptr);
    EXPECT_TRUE(hecha.reparos.empty()) << "the user gave it up";
    EXPECT_LT(preguntas, 20u) << "it ends at once";
}

TEST_F(Aparte, LoQueNoSePuedeLeerSeDice)
{
    ProyectoAparte otro = Proyecto();
    otro.conf = "/proy/Nadie_Conf.vlm";
    const CorridaAparte hecha = CorreAparte(otro);
    EXPECT_EQ(hecha.corrida, nullptr);
    EXPECT_EQ(hecha.reparos, (std::vector<std::string>{"No se puede abrir /proy/Nadie_Conf.vlm."}));
    p.disco.Pon("/proy/Quelmar_RHAS.vlm", "\"r-Quelmar\"\r\ndiez\r\n");
    const CorridaAparte danada = CorreAparte(Proyecto());
    ASSERT_FALSE(danada.reparos.empty());
    EXPECT_NE(danada.reparos[0].find("Error"), std::string::npos) << danada.reparos[0];
}

TEST_F(Aparte, UnaCopiaQueDiceSerDeOtroProyectoSeDice)
{
    p.disco.Pon("/proy/Copia_Conf.vlm", p.disco.Bytes("/proy/Quelmar_Conf.vlm"));
    ProyectoAparte otro = Proyecto();
    otro.conf = "/proy/Copia_Conf.vlm";
    const CorridaAparte hecha = CorreAparte(otro);
    ASSERT_NE(hecha.corrida, nullptr);
    EXPECT_EQ(
        hecha.reparos,
        (std::vector<std::string>{"/proy/Copia_Conf.vlm dice que su proyecto es Quelmar: se corre ese."}));
}

TEST_F(Aparte, UnaCorridaGuardadaPorSuNombreOElDeSuArchivo)
{
    PonTormenta(p.s);
    const auto suya = p.CorreUna();
    ASSERT_NE(suya, nullptr);
    const std::string archivo = p.Guarda(*suya);
    CambiaFicha(p.Libro(), archivo, [](study::Ficha& f) { f.nombre = "Con la presa"; });
    for (const std::string& nombre : {archivo, std::string("Con la presa")}) {
        const CorridaAparte hecha = CorreGuardada(p.Libro(), nombre);
        EXPECT_TRUE(hecha.reparos.empty());
        ASSERT_NE(hecha.corrida, nullptr) << nombre;
        EXPECT_EQ(hecha.corrida->huella, suya->huella);
    }
    const CorridaAparte ninguna = CorreGuardada(p.Libro(), "Sin la presa");
    EXPECT_EQ(ninguna.corrida, nullptr);
    EXPECT_EQ(ninguna.reparos.size(), 1u);
}

}  // namespace
}  // namespace runs
