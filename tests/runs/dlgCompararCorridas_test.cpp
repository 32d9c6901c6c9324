// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCompararCorridas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "results/CorridaDeMuestra.h"

namespace runs {
namespace {

using Textos = std::vector<std::string>;

struct DlgCompararCorridas : testing::Test {
    DlgCompararCorridas() { s.Anfitrion = anfitrion.Puerta(); }
    [[nodiscard]] std::string Conf() const { return model::Ruta(s.Proyecto.DirProyecto, "Quelmar_Conf.vlm"); }
    /// Runs what has still to be run, one side after another.
    void Corre()
    {
        for (std::size_t lado; (lado = PorCorrer(f)) < f.lados.size();)
            Toma(f, lado, TrabajoDe(f, lado, s)({}));
    }
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    pruebas::CorridaDeMuestra muestra{s};
    dlgCompararCorridas f{};
};

TEST_F(DlgCompararCorridas, AlAbrirseElPrimerLadoEsLaUltimaCorrida)
{
    Abre(f, s, nullptr);
    EXPECT_TRUE(f.lados.empty());
    EXPECT_EQ(f.cmbOrigen.items, (Textos{"El proyecto Quelmar, como está guardado", "Otro proyecto..."}));
    EXPECT_EQ(f.cmbTormenta.items[0], "La tormenta en mano");
    EXPECT_EQ(f.cmbTormenta.items.size(), 5u) << "four recorded ones lie beside the project";
    Abre(f, s, muestra.Una());
    EXPECT_EQ(f.lstLados.items, (Textos{"Quelmar, última corrida"}));
    EXPECT_EQ(f.lblQueHacer, "Agregue dos lados por lo menos.");
    EXPECT_EQ(f.cmbOrigen.items[0], "La última corrida");
    EXPECT_EQ(f.lstCompos.Elegido(), "c-Quelmar5") << "the outfall";
}

TEST_F(DlgCompararCorridas, ElProyectoConLaTormentaEnManoDaLoMismoQueLaUltimaCorrida)
{
    const auto una = muestra.Una();
    Abre(f, s, una);
    EXPECT_TRUE(Agrega(f, {Origen::Clase::Proyecto, Conf(), ""}));
    EXPECT_EQ(f.lstLados.items[1], "Quelmar (falta correr)");
    Corre();
    EXPECT_EQ(f.lstLados.items[1], "Quelmar");
    ASSERT_EQ(f.corridos.size(), 2u);
    EXPECT_EQ(f.corridos[1].corrida->huella, una->huella);
    EXPECT_TRUE(f.tblParametros.planilla.filas.empty());
    EXPECT_TRUE(f.tblResultados.planilla.filas.empty());
    chkDistintas_Click(f, false);
    EXPECT_FALSE(f.tblResultados.planilla.filas.empty());
    EXPECT_EQ(f.lblQueHacer, "");
    EXPECT_FALSE(Agrega(f, {Origen::Clase::Ultima, "", ""}, una)) << "it is there already";
}

TEST_F(DlgCompararCorridas, UnaTormentaRegistradaEnLugarDeLaQueEstaEnMano)
{
    Abre(f, s, muestra.Una());
    ASSERT_TRUE(f.cmbTormenta.Elige("Ruvera 060402 AERO_pt.vlm"));
    Agrega(f, {Origen::Clase::Proyecto, Conf(), ""});
    Corre();
    ASSERT_EQ(f.corridos.size(), 2u) << f.lblQueHacer;
    EXPECT_EQ(f.corridos[1].corrida->entrada.FormaPp, model::FormaLluvia::Real);
    EXPECT_EQ(f.tblParametros.planilla.filas[0], (Textos{"Lluvia y pasos", "Forma de la lluvia", "-",
                                                         "una tormenta", "tormenta registrada", ""}));
    EXPECT_NE(f.Hidrogramas.titulo.find("tormentas distintas"), std::string::npos);
}

TEST_F(DlgCompararCorridas, ElPrimeroEsLaBaseYSePuedeCambiarElOrden)
{
    Abre(f, s, muestra.Una());
    Agrega(f, {Origen::Clase::Ultima, "", ""}, muestra.Una(100));
    EXPECT_EQ(f.lstLados.items, (Textos{"Quelmar, última corrida", "Quelmar, última corrida (2)"}));
    const auto pico = [&] {
        for (const Cifra& c : f.comparacion.cifras)
            if (c.componente.empty() && c.magnitud == "Qp sale") return c.valores;
        return std::vector<std::optional<double>>(2);
    };
    const auto antes = pico();
    EXPECT_GT(*antes[1], *antes[0]);
    cmdSubir(f);
    EXPECT_EQ(f.lstLados.indice, 0);
    EXPECT_EQ(pico()[0], antes[1]);
    EXPECT_EQ(pico()[1], antes[0]);
    cmdSubir(f);
    EXPECT_EQ(pico()[0], antes[1]) << "it is the first";
    cmdQuitar(f);
    EXPECT_EQ(f.lstLados.items, (Textos{"Quelmar, última corrida"}));
    cmdQuitar(f);
    cmdQuitar(f);
    EXPECT_TRUE(f.lados.empty());
}

TEST_F(DlgCompararCorridas, LosHidrogramasSeSuperponenConSuPico)
{
    Abre(f, s, muestra.Una());
    Agrega(f, {Origen::Clase::Ultima, "", ""}, muestra.Una(100));
    ASSERT_EQ(f.Hidrogramas.series.size(), 2u);
    EXPECT_EQ(f.Hidrogramas.series[1].leyenda, "Quelmar, última corrida (2)");
    EXPECT_EQ(f.Hidrogramas.marcas.size(), 2u);
    EXPECT_TRUE(f.Hidrogramas.muchasLineas) << "told apart in grey too";
    EXPECT_EQ(f.Hidrogramas.titulo.substr(0, f.Hidrogramas.titulo.find('\n')), "c-Quelmar5, caudal que sale");
    EXPECT_EQ(f.Hidrogramas.ejeX, "horas");
    const double ultima = f.Hidrogramas.abscisas.back();
    cmdHsMin(f);
    EXPECT_NEAR(f.Hidrogramas.abscisas.back(), 60 * ultima, 1e-9);
    f.lstCompos.Elige("u-Vega");
    lstCompos_Click(f);
    chkEntra_Click(f, true);
    EXPECT_TRUE(f.Hidrogramas.series.empty()) << "a UEH has no inflow";
    EXPECT_EQ(f.lblHidrograma, "Ningún lado tiene el caudal que entra a ese componente.");
    EXPECT_FALSE(f.lblSerie.empty());
    EXPECT_TRUE(f.Abaco.series.empty());
}

TEST_F(DlgCompararCorridas, LasSeriesSeSuperponenPorRecurrencia)
{
    const auto serie = muestra.Serie();
    Abre(f, s, serie);
    EXPECT_TRUE(Agrega(f, {Origen::Clase::Proyecto, Conf(), ""})) << "with the series in hand";
    Corre();
    ASSERT_EQ(f.corridos.size(), 2u) << f.lblQueHacer;
    EXPECT_EQ(f.corridos[1].corrida->huella, serie->huella);
    EXPECT_EQ(f.lblSerie, "");
    EXPECT_EQ(f.cmbRecurrencia.items, (Textos{"Varias", "10 años", "20 años", "30 años"}));
    EXPECT_EQ(f.Abaco.categorias, (Textos{"60", "120", "180"}));
    EXPECT_EQ(f.Abaco.series.size(), 6u) << "two sides, three recurrences";
    f.cmbRecurrencia.indice = 2;
    cmbRecurrencia_Click(f);
    ASSERT_EQ(f.Abaco.series.size(), 2u);
    EXPECT_EQ(f.Abaco.series[0].leyenda, "Quelmar, última corrida, R 20 años");
    EXPECT_TRUE(forms::EstaVacia(f.Abaco.series[0].celdas[0]));
    EXPECT_GT(f.Abaco.series[0].celdas[1], 0);
    EXPECT_EQ(f.tblSerie.planilla.filas.size(), 3u);
    EXPECT_TRUE(f.Hidrogramas.series.empty()) << "a series keeps no hydrographs";
    const auto hojas = Hojas(f);
    ASSERT_EQ(hojas.size(), 3u);
    EXPECT_EQ(hojas[2].first, "Series");
    EXPECT_EQ(hojas[0].second.titulos.size(), 3u) << "what the sides are stands above";
}

TEST_F(DlgCompararCorridas, LoQueNoSePuedeCorrerSeSacaYSeDice)
{
    Abre(f, s, muestra.Una());
    Agrega(f, {Origen::Clase::Proyecto, "/no/hay/Nadie_Conf.vlm", ""});
    Corre();
    EXPECT_EQ(f.lstLados.items.size(), 1u);
    EXPECT_EQ(f.lblQueHacer, "Nadie: No se puede abrir /no/hay/Nadie_Conf.vlm.");
    Agrega(f, {Origen::Clase::Proyecto, Conf(), ""});
    Cancela(f);
    EXPECT_EQ(f.lstLados.items.size(), 1u) << "what has still to be run";
}

}  // namespace
}  // namespace runs
