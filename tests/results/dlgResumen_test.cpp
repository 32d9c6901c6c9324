// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgResumen.h"

#include <gtest/gtest.h>

#include <string>

#include "checks/Huella.h"
#include "results/CorridaDeMuestra.h"

namespace results {
namespace {

using Textos = std::vector<std::string>;

struct ReglasDelResumen : testing::Test {
    ReglasDelResumen() { s.Anfitrion = anfitrion.Puerta(); }
    std::string Mostrada(std::size_t fila, std::size_t columna) const
    {
        return f.tblResumen.planilla.filas.at(f.tblResumen.mostradas.at(fila)).at(columna);
    }
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    pruebas::CorridaDeMuestra muestra{s};
    dlgResumen f{};
};

TEST_F(ReglasDelResumen, AntesDeCorrerDiceQueHacer)
{
    Pon(f, nullptr);
    EXPECT_TRUE(f.tblResumen.planilla.filas.empty());
    EXPECT_NE(f.lblQueHacer.find("(F5)"), std::string::npos);
    EXPECT_EQ(f.lblHuella, "");
}

TEST_F(ReglasDelResumen, LaCabezaDiceDeQueEs)
{
    const Corrida u = muestra.Una();
    Pon(f, u);
    EXPECT_EQ(f.lblProyecto, "Quelmar - " + s.Configuracion.TituloProyecto);
    EXPECT_EQ(f.lblTormenta, checks::TormentaEnMano(s));
    EXPECT_EQ(f.lblCuando, u->cuando + ", SIRO " + std::string(checks::Version()));
    EXPECT_EQ(f.lblHuella.size(), 64U);
    EXPECT_EQ(f.lblHuella, u->huella);
    EXPECT_NE(f.lblAvisos.find("aviso"), std::string::npos) << f.lblAvisos;
    EXPECT_EQ(f.lblQueHacer, "");
    // It stays what it was of, whatever is opened or run meanwhile.
    s.Configuracion.TituloProyecto = "Otro";
    muestra.Una(50);
    EXPECT_NE(ComoPlanilla(f).titulos[1].find("Quelmar - "), std::string::npos);
    EXPECT_EQ(ComoPlanilla(f).titulos[1].find("Otro"), std::string::npos);
    EXPECT_EQ(ComoPlanilla(f).titulos.back(), "Huella: " + u->huella);
}

TEST_F(ReglasDelResumen, LaCuencaQuedaUltimaEnCualquierOrden)
{
    Pon(f, muestra.Una());
    const std::size_t ultima = f.tblResumen.mostradas.size() - 1;
    AlPulsarEncabezado(f, 2);
    AlPulsarEncabezado(f, 2);
    EXPECT_TRUE(f.tblResumen.descendente);
    EXPECT_EQ(Mostrada(ultima, 0), "Cuenca");
    EXPECT_GE(std::stod(Mostrada(0, 2)), std::stod(Mostrada(1, 2)));
    // Another run keeps the order.
    Pon(f, muestra.Una(60));
    EXPECT_EQ(f.tblResumen.columnaOrden, 2);
    EXPECT_EQ(Mostrada(ultima, 0), "Cuenca");
    EXPECT_GE(std::stod(Mostrada(0, 2)), std::stod(Mostrada(1, 2)));
}

TEST_F(ReglasDelResumen, LosHidrogramasDeVariasFilasVanUnaVez)
{
    Pon(f, muestra.Una());
    const std::size_t ultima = f.resumen.nombres.size() - 1;
    const Textos dos = Hidrogramas(f, {0, ultima, 1, 0});
    ASSERT_EQ(dos.size(), 3U);
    EXPECT_EQ(dos[0], f.resumen.nombres[0]);
    EXPECT_EQ(dos[1], s.Resultados.Salidas[1]);
    EXPECT_EQ(dos[2], f.resumen.nombres[1]);
    EXPECT_EQ(Hidrogramas(f, {ultima + 1}), Textos{}) << "no row there";
}

TEST_F(ReglasDelResumen, TrasUnaSerieDiceQueEsYNoLlevaAHidrogramas)
{
    Pon(f, muestra.Una());
    AlPulsarEncabezado(f, 12);
    Pon(f, muestra.Serie());
    EXPECT_EQ(f.tblResumen.columnaOrden, -1) << "other columns, another order";
    EXPECT_NE(f.lblQueHacer.find("serie"), std::string::npos);
    EXPECT_EQ(Hidrogramas(f, {0, 1}), Textos{});
    EXPECT_NE(f.lblTormenta.find("Serie de "), std::string::npos);
}

TEST_F(ReglasDelResumen, UnaCorridaQueNoLlegoASuFinLoDice)
{
    Pon(f, muestra.Rechazada());
    EXPECT_NE(f.lblQueHacer.find("no llegó a su fin"), std::string::npos);
    EXPECT_NE(f.lblAvisos.find("error"), std::string::npos);
}

}  // namespace
}  // namespace results
