// SPDX-License-Identifier: GPL-3.0-or-later
//
// The delivered projects of observed floods: what they hold is what was published. Depths in inches, flows in
// cubic feet per second, runoff accumulated in inches as the tables print them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

#include "calibration/CrecidasDeMuestra.h"

namespace calibration {
namespace {

using pruebas::CrecidasDeMuestra;

constexpr double MmPorPulgada = 25.4;
constexpr double M3sPorCfs = 0.3048 * 0.3048 * 0.3048;
constexpr double M2PorMilla2 = 1609.344 * 1609.344;

/// Volume under the readings, straight between them [m3].
double Volumen(const std::vector<study::Punto>& puntos)
{
    double volumen = 0;
    for (std::size_t i = 1; i < puntos.size(); ++i)
        volumen +=
            (puntos[i].valor + puntos[i - 1].valor) / 2 * (puntos[i].minuto - puntos[i - 1].minuto) * 60;
    return volumen;
}

const study::Punto& Pico(const std::vector<study::Punto>& puntos)
{
    return *std::max_element(puntos.begin(), puntos.end(),
                             [](const auto& a, const auto& b) { return a.valor < b.valor; });
}

struct Impreso {
    std::string evento;
    double lluvia;       ///< [in], the last of the accumulated depths
    int paso;            ///< that the rain is cut by [min]
    double escorrentia;  ///< [in], accumulated between the first and the last reading taken
    double pico;         ///< [cfs]
    double minuto;       ///< of the peak, by the clocks of both tables
    std::size_t lecturas;
};

/// USGS, Open-File Report 2004-1035, station 08055700.
const std::vector<Impreso> Bachman{
    {"17/06/1966", 1.85, 5, 0.5209 - 0.0032, 1100, 136, 26},
    {"07/06/1974", 3.05, 15, 0.9799 - 0.0010, 2730, 136, 48},
    {"18/06/1976", 1.80, 15, 0.4585 - 0.0029, 2340, 225, 21},
    {"12/06/1977", 3.31, 15, 0.8121 - 0.0012, 3740, 150, 32},
};

TEST(Eventos, LosDeBachmanSonLosQueElServicioGeologicoPublico)
{
    for (const char* const proyecto : {"Bachman", "BachmanTres"}) {
        CrecidasDeMuestra m(proyecto);
        ASSERT_EQ(m.ajuste.eventos.size(), Bachman.size());
        for (std::size_t i = 0; i < Bachman.size(); ++i) {
            const Impreso& impreso = Bachman[i];
            const study::Evento& evento = m.ajuste.eventos[i];
            EXPECT_EQ(evento.nombre, impreso.evento);
            const model::TormentaReal tormenta = m.Tormenta(evento);
            EXPECT_EQ(tormenta.PasoPpReal, impreso.paso);
            EXPECT_NEAR(m.s.Tormenta.PpTormenta, impreso.lluvia * MmPorPulgada, 0.001) << impreso.evento;
            ASSERT_EQ(evento.observaciones.size(), 1u);
            const auto& puntos = evento.observaciones[0].puntos;
            EXPECT_EQ(puntos.size(), impreso.lecturas);
            EXPECT_NEAR(Pico(puntos).valor, impreso.pico * M3sPorCfs, 5e-5) << impreso.evento;
            EXPECT_EQ(Pico(puntos).minuto, impreso.minuto) << impreso.evento;
            const double pulgadas = Volumen(puntos) / (10.0 * M2PorMilla2) * 1000 / MmPorPulgada;
            EXPECT_NEAR(pulgadas, impreso.escorrentia, 0.003) << impreso.evento;
        }
    }
}

TEST(Eventos, LosDeWeisseritzSonLosDelPaquete)
{
    CrecidasDeMuestra m("Weisseritz");
    ASSERT_EQ(m.ajuste.eventos.size(), 2u);
    const std::vector<double> lluvia{34.1, 53.0}, pico{1.173, 2.335};
    const std::vector<std::size_t> horas{89, 75};
    for (std::size_t i = 0; i < 2; ++i) {
        m.Tormenta(m.ajuste.eventos[i]);
        EXPECT_NEAR(m.s.Tormenta.PpTormenta, lluvia[i], 1e-4);
        const auto& puntos = m.ajuste.eventos[i].observaciones.at(0).puntos;
        EXPECT_EQ(puntos.size(), horas[i]);
        EXPECT_EQ(Pico(puntos).valor, pico[i]);
    }
    // The page estimates the area from the first flood, for a runoff of 0.7 of the rain: 3.368 km2.
    double suma = 0;
    for (const study::Punto& p : m.ajuste.eventos[0].observaciones[0].puntos)
        suma += p.valor;
    EXPECT_NEAR(suma * 3600 / (0.7 * 34.1 / 1000) / 1e6, 3.368, 0.0005);
}

TEST(Eventos, LasRedesTienenElAreaPublicadaYUnaSolaSalida)
{
    const std::vector<std::pair<std::string, double>> proyectos{
        {"Bachman", 2590.0}, {"BachmanTres", 2590.0}, {"Weisseritz", 340.0}};
    for (const auto& [proyecto, area] : proyectos) {
        CrecidasDeMuestra m(proyecto);
        EXPECT_TRUE(m.anfitrion->Avisos().empty());
        double suma = 0;
        for (const model::UEH& u : m.s.Red.ColUEHs)
            suma += double{u.Area};
        EXPECT_NEAR(suma, area, 0.2);
        EXPECT_EQ(m.s.Red.NroUEHs(), proyecto == "BachmanTres" ? 3 : 1);
        EXPECT_EQ(m.s.Red.NroCauces(), m.s.Red.NroUEHs() + 1);
        EXPECT_EQ(m.ajuste.eventos[0].observaciones[0].componente, m.s.Red.ColCauces.Item(1).NombreCauce);
    }
}

TEST(Eventos, ElEstudioEntregadoDiceFuenteYCondicionesYSeEscribeComoSeLeyo)
{
    for (const char* const proyecto : {"Bachman", "BachmanTres", "Weisseritz"}) {
        CrecidasDeMuestra m(proyecto);
        for (const study::Evento& e : m.ajuste.eventos) {
            EXPECT_NE(e.observaciones[0].fuente, "");
            const bool libre = e.observaciones[0].fuente.find("dominio público") != std::string::npos ||
                               e.observaciones[0].fuente.find("GPL") != std::string::npos;
            EXPECT_TRUE(libre) << e.observaciones[0].fuente;
            EXPECT_EQ(e.resto, "") << "a key that the program doesn't know";
        }
        EXPECT_EQ(study::ReparoDe(m.ajuste), "");
        m.Tormenta(m.ajuste.eventos[0]);
        const runs::Modelo modelo{.red = m.s.Red,
                                  .tablas = {},
                                  .lluvias = {{.tormenta = m.s.Tormenta, .pasos = m.s.Pasos}},
                                  .parametros = m.ajuste.parametros};
        EXPECT_EQ(runs::ReparosDe(modelo), std::vector<std::string>{});
        const study::LecturaDeEstudio otra =
            study::LeeEstudio(study::EscribeEstudio(study::Estudio{.ajuste = m.ajuste}));
        EXPECT_EQ(otra.motivo, "");
        EXPECT_EQ(otra.estudio.ajuste.parametros, m.ajuste.parametros);
        for (const auto& [archivo, texto] : study::EscribeSeries(m.ajuste))
            EXPECT_EQ(texto, m.s.Disco.Lee(study::RutaDeSerie(model::Ruta(m.s.Proyecto.DirProyecto, proyecto),
                                                              archivo)));
    }
}

}  // namespace
}  // namespace calibration
