// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgComparar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "results/CorridaDeMuestra.h"

namespace results {
namespace {

using Textos = std::vector<std::string>;

struct ReglasDeComparar : testing::Test {
    ReglasDeComparar() { s.Anfitrion = anfitrion.Puerta(); }
    Textos Leyendas() const
    {
        Textos leyendas;
        for (const forms::Serie& serie : f.Grafico.series)
            leyendas.push_back(serie.leyenda);
        return leyendas;
    }
    std::size_t Item(std::string_view nombre) const
    {
        return static_cast<std::size_t>(std::find(f.lstCompos.begin(), f.lstCompos.end(), nombre) -
                                        f.lstCompos.begin());
    }
    int Fila(std::string_view nombre) const { return static_cast<int>(Item(nombre)) + 1; }

    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    pruebas::CorridaDeMuestra muestra{s};
    dlgComparar f{};
};

TEST_F(ReglasDeComparar, SinCorridaDiceQueHacer)
{
    Pon(f, nullptr);
    EXPECT_TRUE(f.lstCompos.empty());
    EXPECT_TRUE(f.Grafico.series.empty());
    EXPECT_NE(f.lblNota.find("(F5)"), std::string::npos);
    cmdRepresas(f);
    cmdSalida(f);
    EXPECT_TRUE(f.Grafico.series.empty());
}

TEST_F(ReglasDeComparar, AlPrincipioEstaLaSalidaDeLaCuenca)
{
    Pon(f, muestra.Una());
    EXPECT_EQ(f.lstCompos.size(), static_cast<std::size_t>(s.Resultados.NroComponentes));
    EXPECT_EQ(f.lstCompos.front(), s.Resultados.Secuencia[1]);
    ASSERT_EQ(Leyendas(), Textos{s.Resultados.Salidas[1] + " sale"});
    const std::vector<double>& celdas = f.Grafico.series[0].celdas;
    ASSERT_EQ(celdas.size(), static_cast<std::size_t>(s.Resultados.NroPasosQ));
    const int fila = Fila(s.Resultados.Salidas[1]);
    for (int p = 1; p <= s.Resultados.NroPasosQ; ++p)
        EXPECT_EQ(celdas[static_cast<std::size_t>(p) - 1], double{s.Resultados.QSale(fila, p)});
    ASSERT_EQ(f.Grafico.marcas.size(), 1U);
    EXPECT_EQ(static_cast<float>(celdas[f.Grafico.marcas[0].fila]), s.Resultados.QMax(fila, 1));
    EXPECT_EQ(f.Grafico.categorias[11], "1") << "row 12 of 5 min is one hour";
    cmdHsMin(f);
    EXPECT_EQ(f.Grafico.categorias[11], "60");
    EXPECT_EQ(f.Grafico.ejeX, "minutos");
    EXPECT_EQ(f.lblTitulo, f.corrida->sello.tormenta);
}

TEST_F(ReglasDeComparar, LasRepresasConEntradaYSalida)
{
    Pon(f, muestra.Una());
    ASSERT_TRUE(f.hayRepresas);
    cmdRepresas(f);
    const auto represas = std::count_if(f.lstCompos.begin(), f.lstCompos.end(),
                                        [](const std::string& n) { return n.starts_with("r-"); });
    ASSERT_EQ(std::ssize(f.Grafico.series), 2 * represas);
    for (std::size_t k = 0; k < f.Grafico.series.size(); k += 2) {
        const std::string& entra = f.Grafico.series[k].leyenda;
        EXPECT_TRUE(entra.starts_with("r-") && entra.ends_with(" entra")) << entra;
        const std::string nombre = entra.substr(0, entra.find(' '));
        EXPECT_EQ(f.Grafico.series[k + 1].leyenda, nombre + " sale");
        EXPECT_EQ(f.Grafico.series[k].celdas[20], double{s.Resultados.QEntra(Fila(nombre), 21)});
        EXPECT_EQ(f.Grafico.series[k + 1].celdas[20], double{s.Resultados.QSale(Fila(nombre), 21)});
    }
}

TEST_F(ReglasDeComparar, UnaUEHNoTieneEntrada)
{
    Pon(f, muestra.Una());
    Compara(f, {f.lstCompos[0]});
    chkEntra_Click(f, true);
    EXPECT_EQ(Leyendas(), Textos{f.lstCompos[0] + " sale"});
    chkSale_Click(f, false);
    EXPECT_EQ(Leyendas(), Textos{});
    EXPECT_NE(f.lblNota.find("Marque Salida o Entrada"), std::string::npos);
}

TEST_F(ReglasDeComparar, NoMasDeDoceCurvas)
{
    Pon(f, muestra.Una());
    ASSERT_GE(f.lstCompos.size(), 13U);
    Compara(f, f.lstCompos);
    EXPECT_EQ(f.Grafico.series.size(), 12U);
    EXPECT_EQ(f.lblNota,
              "Caben 12 curvas: se muestran 12 de " + std::to_string(f.lstCompos.size()) + " componentes.");
    lstCompos_Tilda(f, 12, true);
    EXPECT_FALSE(f.elegidos[12]);
    EXPECT_EQ(f.Grafico.series.size(), 12U);
    EXPECT_NE(f.lblNota.find("para agregar " + f.lstCompos[12]), std::string::npos);
    lstCompos_Tilda(f, 0, false);
    EXPECT_EQ(f.lblNota, "");
    lstCompos_Tilda(f, 12, true);
    EXPECT_TRUE(f.elegidos[12]);
    EXPECT_EQ(f.Grafico.series.size(), 12U);
    lstCompos_Tilda(f, 999, true);  // no such item
    EXPECT_EQ(f.Grafico.series.size(), 12U);
}

TEST_F(ReglasDeComparar, LasEntradasQueNoCabenNoSeAgregan)
{
    Pon(f, muestra.Una());
    Textos cauces;
    std::copy_if(f.lstCompos.begin(), f.lstCompos.end(), std::back_inserter(cauces),
                 [](const std::string& n) { return !n.starts_with("u-"); });
    ASSERT_GE(cauces.size(), 7U);
    cauces.resize(7);
    Compara(f, cauces);
    chkEntra_Click(f, true);
    EXPECT_FALSE(f.chkEntra);
    EXPECT_EQ(f.Grafico.series.size(), 7U);
    EXPECT_NE(f.lblNota.find("las entradas"), std::string::npos);
    lstCompos_Tilda(f, Item(cauces[0]), false);
    chkEntra_Click(f, true);
    EXPECT_TRUE(f.chkEntra);
    EXPECT_EQ(f.Grafico.series.size(), 12U);
    const Textos leyendas = Leyendas();
    EXPECT_EQ(std::set(leyendas.begin(), leyendas.end()).size(), 12U);
}

TEST_F(ReglasDeComparar, OtraCorridaDejaLoElegidoYCambiaLasCurvas)
{
    Pon(f, muestra.Una());
    Compara(f, {f.lstCompos[0], f.lstCompos[2]});
    const Textos antes = Leyendas();
    const double pico =
        *std::max_element(f.Grafico.series[0].celdas.begin(), f.Grafico.series[0].celdas.end());
    // The run on show is a copy: another run of the state leaves it alone until it is taken.
    const Corrida otra = muestra.Una(100);
    EXPECT_EQ(*std::max_element(f.Grafico.series[0].celdas.begin(), f.Grafico.series[0].celdas.end()), pico);
    Pon(f, otra);
    EXPECT_EQ(Leyendas(), antes);
    EXPECT_GT(*std::max_element(f.Grafico.series[0].celdas.begin(), f.Grafico.series[0].celdas.end()), pico);
    cmdNinguno(f);
    EXPECT_EQ(Leyendas(), Textos{});
    EXPECT_NE(f.lblNota.find("Elija en la lista"), std::string::npos);
}

TEST_F(ReglasDeComparar, UnaSerieNoTieneHidrogramas)
{
    Pon(f, muestra.Serie());
    EXPECT_TRUE(f.lstCompos.empty());
    EXPECT_NE(f.lblNota.find("serie"), std::string::npos);
    Pon(f, muestra.Rechazada());
    EXPECT_TRUE(f.lstCompos.empty());
    EXPECT_NE(f.lblNota.find("no llegó a su fin"), std::string::npos);
}

}  // namespace
}  // namespace results
