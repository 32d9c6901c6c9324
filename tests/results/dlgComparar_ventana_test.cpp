// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgComparar_ventana.h"

#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTimer>

#include "apoyo/DiscoPrueba.h"
#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/CorridaDeMuestra.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;
using Textos = std::vector<std::string>;

struct VentanaDeComparar : testing::Test {
    void Abre()
    {
        ventana.resize(1000, 640);
        ventana.Abre(corrida);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QListWidget& Lista() { return Control<QListWidget>(ventana, "lstCompos"); }
    forms::Lamina& Grafico() { return Control<forms::Lamina>(ventana, "Grafico"); }
    /// A click on the box of an item.
    void PulsaItem(int fila)
    {
        QListWidgetItem* const item = Lista().item(fila);
        Lista().scrollToItem(item);
        const QRect lugar = Lista().visualItemRect(item);
        QStyleOptionViewItem opcion;
        opcion.initFrom(&Lista());
        opcion.rect = lugar;
        opcion.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect caja =
            Lista().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &opcion, &Lista());
        QTest::mouseClick(Lista().viewport(), Qt::LeftButton, {}, caja.center());
    }
    /// A right click on the chart, and the entry of this name in the menu that comes.
    void EligeDelMenu(const char* leyenda)
    {
        QTimer::singleShot(0, &ventana, [leyenda] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* const accion : menu->actions())
                if (accion->text() == QString::fromUtf8(leyenda))
                    return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
            ADD_FAILURE() << leyenda;
            menu->close();
        });
        QTest::mouseClick(ventana.windowHandle(), Qt::RightButton, {},
                          Grafico().mapTo(&ventana, Grafico().rect().center()));
        QCoreApplication::processEvents();
    }
    std::string Nota() { return DeQ(Control<QLabel>(ventana, "lblNota").text()); }
    Textos Leyendas() const
    {
        Textos leyendas;
        for (const forms::Serie& serie : f.Grafico.series)
            leyendas.push_back(serie.leyenda);
        return leyendas;
    }

    apoyo::Mundo mundo{};
    pruebas::CorridaDeMuestra muestra{mundo.s};
    Corrida corrida = muestra.Una();
    dlgComparar f{};
    dlgComparar_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaDeComparar, SeAbreConLaSalidaDeLaCuenca)
{
    Abre();
    EXPECT_EQ(apoyo::SinNombre(ventana), Textos{});
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Comparar hidrogramas");
    EXPECT_EQ(Lista().count(), mundo.s.Resultados.NroComponentes);
    EXPECT_EQ(Leyendas(), Textos{mundo.s.Resultados.Salidas[1] + " sale"});
    EXPECT_NE(DeQ(Grafico().accessibleDescription()).find("sale: máximo"), std::string::npos);
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblTitulo").text()), corrida->sello.tormenta);
    EXPECT_FALSE(Control<QLabel>(ventana, "lblNota").isVisible());
}

TEST_F(VentanaDeComparar, UnClicEnLaCajaYLaBarraEspaciadoraEligen)
{
    Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdNinguno"));
    EXPECT_TRUE(Control<QLabel>(ventana, "lblNota").isVisible());
    PulsaItem(0);
    EXPECT_EQ(Leyendas(), Textos{f.lstCompos[0] + " sale"});
    Lista().setFocus();
    Lista().setCurrentRow(2);
    QTest::keyClick(&Lista(), Qt::Key_Space);
    EXPECT_EQ(Leyendas(), (Textos{f.lstCompos[0] + " sale", f.lstCompos[2] + " sale"}));
    PulsaItem(0);
    EXPECT_EQ(Leyendas(), Textos{f.lstCompos[2] + " sale"});
}

TEST_F(VentanaDeComparar, LaDecimoterceraNoEntraYLoDice)
{
    Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdNinguno"));
    for (int fila = 0; fila < 13; ++fila)
        PulsaItem(fila);
    EXPECT_EQ(Leyendas().size(), 12U);
    EXPECT_EQ(Lista().item(12)->checkState(), Qt::Unchecked);
    EXPECT_EQ(Lista().item(11)->checkState(), Qt::Checked);
    EXPECT_NE(Nota().find("Caben 12 curvas"), std::string::npos);
    EXPECT_EQ(Grafico().LugaresDeLeyenda().size(), 12);
}

TEST_F(VentanaDeComparar, LosAtajosEligenRepresasYSalida)
{
    Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdRepresas"));
    EXPECT_TRUE(Control<QCheckBox>(ventana, "chkEntra").isChecked());
    ASSERT_GE(Leyendas().size(), 2U);
    EXPECT_TRUE(Leyendas()[0].starts_with("r-"));
    Pulsa(Control<QCheckBox>(ventana, "chkEntra"));
    for (const std::string& leyenda : Leyendas())
        EXPECT_TRUE(leyenda.ends_with(" sale")) << leyenda;
    Pulsa(Control<QPushButton>(ventana, "cmdSalida"));
    EXPECT_EQ(Leyendas(), Textos{mundo.s.Resultados.Salidas[1] + " sale"});
    const QString horas = Grafico().RotulosEnVista().last();
    Pulsa(Control<QPushButton>(ventana, "cmdHsMin"));
    EXPECT_EQ(f.Grafico.ejeX, "minutos");
    QTest::qWait(20);
    EXPECT_NE(Grafico().RotulosEnVista().last(), horas);
}

TEST_F(VentanaDeComparar, LoQueSeGuardaDiceDeQueCorridaEs)
{
    Abre();
    apoyo::DiscoPrueba disco;
    mundo.s.Disco = disco.Puerta();
    disco.PonDirectorio("/salida");
    mundo.anfitrion->elegidos = {"/salida/c.csv", "/salida/c.xlsx", "/salida/c.svg"};
    const std::string proyecto = "Proyecto: Quelmar - " + mundo.s.Configuracion.TituloProyecto;
    mundo.s.Proyecto.NombreProyecto = "Otro";  // opened since
    EligeDelMenu("&Guardar celdas como CSV...");
    EligeDelMenu("Guardar celdas como &XLSX...");
    Grafico().GuardaSvg();
    const std::string csv = disco.Bytes("/salida/c.csv");
    for (const std::string& dice : {proyecto, corrida->sello.tormenta, "Fecha: " + corrida->cuando})
        EXPECT_NE(csv.find(dice), std::string::npos) << dice << " in\n" << csv.substr(0, 600);
    EXPECT_EQ(csv.find("Otro"), std::string::npos);
    const std::string libro = apoyo::LeePlanilla(disco.Bytes("/salida/c.xlsx"), "xlsx");
    EXPECT_NE(libro.find(" sale [m3/s]\n"), std::string::npos) << libro.substr(0, 800);
    EXPECT_NE(disco.Bytes("/salida/c.svg").find("Quelmar"), std::string::npos);
}

/// Colour and dashes of each line, as the picture has them.
std::vector<std::pair<QColor, std::string>> Plumas(const std::string& svg)
{
    std::vector<std::pair<QColor, std::string>> plumas;
    const QRegularExpression grupo(QStringLiteral(
        "<g fill=\"none\" stroke=\"(#[0-9a-f]{6})\" stroke-opacity=\"1\"( stroke-dasharray=\"[^\"]*\")?[^>]*"
        "stroke-width=\"2\"[^>]*>\\s*<(path|polyline)"));
    auto vistas = grupo.globalMatch(forms::Q(svg));
    while (vistas.hasNext()) {
        const auto una = vistas.next();
        const std::pair<QColor, std::string> pluma{QColor(una.captured(1)), DeQ(una.captured(2))};
        if (std::find(plumas.begin(), plumas.end(), pluma) == plumas.end()) plumas.push_back(pluma);
    }
    return plumas;
}

// Two lines that are dashed alike differ in grey by more than a sixth of the way from black to white.
TEST_F(VentanaDeComparar, DoceCurvasSeDistinguenEnGris)
{
    Abre();
    Compara(f, f.lstCompos);
    ventana.Muestra();
    apoyo::DiscoPrueba disco;
    mundo.s.Disco = disco.Puerta();
    disco.PonDirectorio("/salida");
    mundo.anfitrion->elegidos = {"/salida/c.svg"};
    Grafico().GuardaSvg();
    const auto plumas = Plumas(disco.Bytes("/salida/c.svg"));
    ASSERT_EQ(plumas.size(), 12U);
    for (std::size_t a = 0; a < plumas.size(); ++a)
        for (std::size_t b = a + 1; b < plumas.size(); ++b)
            EXPECT_TRUE(plumas[a].second != plumas[b].second ||
                        std::abs(qGray(plumas[a].first.rgb()) - qGray(plumas[b].first.rgb())) > 42)
                << a << " " << b;
}

TEST_F(VentanaDeComparar, SeImprimeElGraficoSinLosMandos)
{
    Abre();
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_TRUE(Lista().isVisible());
    EXPECT_TRUE(Control<QPushButton>(ventana, "OKButton").isVisible());
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(VentanaDeComparar, LoElegidoEnElResumenVieneElegido)
{
    const Textos dos{corrida->r().Secuencia[1], corrida->r().Secuencia[3]};
    ventana.Compara(corrida, dos);
    EXPECT_EQ(Leyendas(), (Textos{dos[0] + " sale", dos[1] + " sale"}));
    ventana.Toma(muestra.Una(100));
    EXPECT_EQ(Leyendas(), (Textos{dos[0] + " sale", dos[1] + " sale"}));
    EXPECT_NE(f.lblTitulo.find("P 100 mm"), std::string::npos);
}

}  // namespace
}  // namespace results
