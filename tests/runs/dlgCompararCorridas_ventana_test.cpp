// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCompararCorridas_ventana.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "apoyo/Ventanas.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Lista_ventana.h"
#include "results/CorridaDeMuestra.h"

namespace runs {
namespace {

using apoyo::Control;
using apoyo::Pulsa;

struct VentanaDeCorridas : testing::Test {
    VentanaDeCorridas()
    {
        ventana.resize(1180, 620);
        ventana.Ultima = [this] { return corrida; };
    }
    void Abre()
    {
        mundo.entorno.Atiende([this] { ventana.Abre(); });
        apoyo::Muestra(ventana);
    }
    /// Picks the item of a list by its keys.
    void Elige(const char* lista, const char* item)
    {
        auto& combo = Control<QComboBox>(ventana, lista);
        const int cual = combo.findText(QString::fromUtf8(item));
        ASSERT_GE(cual, 0) << item;
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Home);
        for (int i = 0; i < cual; ++i)
            QTest::keyClick(&combo, Qt::Key_Down);
    }
    void VeA(int pagina)
    {
        QTabBar& barra = *Control<QTabWidget>(ventana, "tabPaginas").tabBar();
        QTest::mouseClick(&barra, Qt::LeftButton, {}, barra.tabRect(pagina).center());
    }
    void Agrega(const char* origen)
    {
        Elige("cmbOrigen", origen);
        Pulsa(Control<QPushButton>(ventana, "cmdAgregar"));
    }
    [[nodiscard]] std::string Conf() const
    {
        return model::Ruta(mundo.s.Proyecto.DirProyecto, "Quelmar_Conf.vlm");
    }
    bool Corridos(std::size_t cuantos)
    {
        return apoyo::Espera([&] { return f.corridos.size() == cuantos && PorCorrer(f) == f.lados.size(); });
    }

    apoyo::Mundo mundo{};
    pruebas::CorridaDeMuestra muestra{mundo.s};
    std::shared_ptr<const checks::UltimaCorrida> corrida = muestra.Una();
    dlgCompararCorridas f{};
    dlgCompararCorridas_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaDeCorridas, LaUltimaCorridaContraElProyectoConOtraTormenta)
{
    mundo.s.Tormenta.PpTormenta = 100;
    Abre();
    EXPECT_TRUE(apoyo::SinNombre(ventana).empty());
    Agrega("El proyecto Quelmar, como está guardado");
    ASSERT_TRUE(Corridos(2)) << f.lblQueHacer;
    auto& parametros = Control<forms::TablaCuadro>(ventana, "tblParametros");
    ASSERT_EQ(parametros.model()->rowCount(), 1);
    EXPECT_EQ(parametros.model()->index(0, 1).data().toString(), QString::fromUtf8("Lámina P"));
    EXPECT_EQ(parametros.model()->index(0, 4).data().toString(), QStringLiteral("100"));
    VeA(1);
    auto& resultados = Control<forms::TablaCuadro>(ventana, "tblResultados");
    const int distintas = resultados.model()->rowCount();
    EXPECT_GT(distintas, 20);
    EXPECT_EQ(resultados.model()->headerData(6, Qt::Horizontal).toString(),
              QStringLiteral("Dif. Quelmar [%]"));
    Pulsa(Control<QCheckBox>(ventana, "chkDistintas"));
    EXPECT_GT(resultados.model()->rowCount(), distintas);
    VeA(2);
    EXPECT_EQ(f.Hidrogramas.series.size(), 2u);
    auto& lista = Control<forms::ListaParaElegir>(ventana, "lstCompos");
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Home);
    EXPECT_EQ(f.lstCompos.indice, 0);
    EXPECT_EQ(f.Hidrogramas.titulo.substr(0, 2), "u-");
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(VentanaDeCorridas, OtroProyectoSePideYLosLadosSeOrdenanYSeQuitan)
{
    Abre();
    mundo.anfitrion->elegidos = {Conf()};
    mundo.s.Tormenta.PpTormenta = 100;
    Agrega("Otro proyecto...");
    ASSERT_TRUE(Corridos(2)) << f.lblQueHacer;
    EXPECT_EQ(f.lstLados.items[1], "Quelmar");
    Pulsa(Control<QPushButton>(ventana, "cmdSubir"));
    EXPECT_EQ(f.lstLados.items[0], "Quelmar");
    Pulsa(Control<QPushButton>(ventana, "cmdQuitar"));
    EXPECT_EQ(f.lstLados.items, (std::vector<std::string>{"Quelmar, última corrida"}));
    Agrega("Otro proyecto...");
    EXPECT_EQ(f.lados.size(), 1u) << "the choice was cancelled";
}

TEST_F(VentanaDeCorridas, EscDejaLoQueSeCorreEnseguida)
{
    Abre();
    muestra.Serie();
    constexpr std::int16_t Muchas = 3000;
    model::Serie& serie = mundo.s.Serie;
    serie.NroSeriePDR = Muchas;
    serie.SerieP.Dimensiona(Muchas);
    serie.SerieD.Dimensiona(Muchas);
    serie.SerieR.Dimensiona(Muchas);
    for (int n = 1; n <= Muchas; ++n) {
        serie.SerieP(n) = 50;
        serie.SerieD(n) = 720;
        serie.SerieR(n) = 10;
    }
    Agrega("El proyecto Quelmar, como está guardado");
    ASSERT_EQ(f.lados.size(), 2u);
    EXPECT_TRUE(Control<QPushButton>(ventana, "CancelButton").isVisible());
    QElapsedTimer reloj;
    reloj.start();
    QTest::keyClick(&ventana, Qt::Key_Escape);
    EXPECT_LT(reloj.elapsed(), 100);
    EXPECT_EQ(f.lados.size(), 1u);
    EXPECT_FALSE(Control<QPushButton>(ventana, "CancelButton").isVisible());
    EXPECT_TRUE(ventana.isVisible());
}

TEST_F(VentanaDeCorridas, ElLibroTieneUnaHojaPorTabla)
{
    Abre();
    mundo.s.Tormenta.PpTormenta = 100;
    Agrega("El proyecto Quelmar, como está guardado");
    ASSERT_TRUE(Corridos(2));
    apoyo::CarpetaTemporal carpeta;
    mundo.anfitrion->elegidos = {carpeta.Ruta("c.xlsx")};
    Pulsa(Control<QPushButton>(ventana, "cmdXlsx"));
    ASSERT_TRUE(std::filesystem::exists(carpeta.Camino() / "c.xlsx"));
    EXPECT_EQ(apoyo::BytesDeArchivo(carpeta.Camino() / "c.xlsx").substr(0, 2), "PK");
    const auto hojas = Hojas(f);
    ASSERT_EQ(hojas.size(), 3u);
    EXPECT_EQ(hojas[0].first, "Parámetros");
    EXPECT_EQ(hojas[2].first, "Hidrogramas");
}

TEST_F(VentanaDeCorridas, OtraVentanaLaAbreConCorridasGuardadas)
{
    mundo.entorno.Atiende([this] { ventana.Compara({{Origen::Clase::Guardada, "no_hay.zip", "Ayer"}}); });
    apoyo::Muestra(ventana);
    ASSERT_TRUE(apoyo::Espera([&] { return f.lados.empty(); }));
    EXPECT_NE(f.lblQueHacer.find("no tiene ninguna corrida de nombre no_hay.zip"), std::string::npos)
        << f.lblQueHacer;
}

}  // namespace
}  // namespace runs
