// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgResumen_ventana.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QTableView>
#include <QTimer>

#include "apoyo/DiscoPrueba.h"
#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "results/CorridaDeMuestra.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using Textos = std::vector<std::string>;

struct VentanaDelResumen : testing::Test {
    VentanaDelResumen()
    {
        ventana.AbreHidrograma = [this](const std::string& nombre) { abiertos.push_back(nombre); };
        ventana.Compara = [this](const Textos& nombres) { comparados = nombres; };
    }
    void Abre(const Corrida& corrida)
    {
        ventana.resize(1300, 600);
        ventana.Abre(corrida);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QTableView& Tabla() { return Control<QTableView>(ventana, "tblResumen"); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila, columna).data().toString());
    }
    QPoint Lugar(int fila, int columna)
    {
        Tabla().scrollTo(Tabla().model()->index(fila, columna));
        return Tabla().visualRect(Tabla().model()->index(fila, columna)).center();
    }
    void PulsaFila(int fila, Qt::KeyboardModifiers con = {})
    {
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, con, Lugar(fila, 1));
    }
    /// As a mouse does it: a click ahead of the double one.
    void DobleClic(int fila)
    {
        PulsaFila(fila);
        QTest::mouseDClick(Tabla().viewport(), Qt::LeftButton, {}, Lugar(fila, 1));
    }
    void PulsaEncabezado(int columna)
    {
        QHeaderView& encabezado = *Tabla().horizontalHeader();
        QTest::mouseClick(encabezado.viewport(), Qt::LeftButton, {},
                          {encabezado.sectionViewportPosition(columna) + encabezado.sectionSize(columna) / 2,
                           encabezado.height() / 2});
    }
    /// A right click on a row, and the entry of this name in the menu that comes.
    void EligeDelMenu(int fila, const char* leyenda)
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
        const QPoint lugar = Lugar(fila, 1);
        QContextMenuEvent pide(QContextMenuEvent::Mouse, lugar, Tabla().viewport()->mapToGlobal(lugar));
        QApplication::sendEvent(Tabla().viewport(), &pide);
    }
    std::string Texto(const char* rotulo) { return DeQ(Control<QLabel>(ventana, rotulo).text()); }

    apoyo::Mundo mundo{};
    pruebas::CorridaDeMuestra muestra{mundo.s};
    dlgResumen f{};
    dlgResumen_ventana ventana{mundo.entorno, f};
    Textos abiertos{}, comparados{};
};

TEST_F(VentanaDelResumen, SinCorridaDiceQueHacerYNoOfreceNada)
{
    Abre(nullptr);
    EXPECT_EQ(apoyo::SinNombre(ventana), Textos{});
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Resumen de la corrida");
    EXPECT_TRUE(Control<QLabel>(ventana, "lblQueHacer").isVisible());
    EXPECT_NE(Texto("lblQueHacer").find("(F5)"), std::string::npos);
    for (const char* const boton : {"cmdHidrograma", "cmdComparar", "cmdCopiarHuella", "cmdImprimir"})
        EXPECT_FALSE(Control<QPushButton>(ventana, boton).isEnabled()) << boton;
    EXPECT_EQ(Tabla().model()->rowCount(), 0);
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_FALSE(f.abierta);
}

TEST_F(VentanaDelResumen, LasCeldasSonLasDelRegistroYLosNumerosVanALaDerecha)
{
    Abre(muestra.Una());
    ASSERT_EQ(Tabla().model()->rowCount(), static_cast<int>(f.resumen.nombres.size()));
    ASSERT_EQ(Tabla().model()->columnCount(), 14);
    for (int fila = 0; fila < Tabla().model()->rowCount(); ++fila)
        for (int columna = 0; columna < 14; ++columna)
            EXPECT_EQ(
                Celda(fila, columna),
                f.resumen.planilla.filas[static_cast<std::size_t>(fila)][static_cast<std::size_t>(columna)]);
    EXPECT_EQ(Tabla().model()->index(0, 2).data(Qt::TextAlignmentRole).toInt(),
              int{Qt::AlignRight} | int{Qt::AlignVCenter});
    EXPECT_EQ(DeQ(Tabla().model()->headerData(6, Qt::Horizontal).toString()), "V sale [m3]");
    EXPECT_FALSE(Control<QLabel>(ventana, "lblQueHacer").isVisible());
    EXPECT_EQ(Texto("lblHuella"), f.corrida->huella);
}

TEST_F(VentanaDelResumen, UnEncabezadoOrdenaYLaCuencaQuedaUltima)
{
    Abre(muestra.Una());
    const int ultima = Tabla().model()->rowCount() - 1;
    PulsaEncabezado(2);
    PulsaEncabezado(2);
    EXPECT_EQ(f.tblResumen.columnaOrden, 2);
    EXPECT_EQ(Celda(ultima, 0), "Cuenca");
    EXPECT_GE(std::stod(Celda(0, 2)), std::stod(Celda(1, 2)));
    PulsaEncabezado(2);
    EXPECT_EQ(Celda(0, 0), mundo.s.Resultados.Secuencia[1]);
}

TEST_F(VentanaDelResumen, DobleClicIntroYBotonAbrenElHidrograma)
{
    Abre(muestra.Una());
    DobleClic(3);
    PulsaFila(1);
    QTest::keyClick(&Tabla(), Qt::Key_Return);
    PulsaFila(2);
    Pulsa(Control<QPushButton>(ventana, "cmdHidrograma"));
    const int ultima = Tabla().model()->rowCount() - 1;
    DobleClic(ultima);
    EXPECT_EQ(abiertos, (Textos{Celda(3, 0), Celda(1, 0), Celda(2, 0), mundo.s.Resultados.Salidas[1]}));
}

TEST_F(VentanaDelResumen, LasFilasElegidasVanAComparar)
{
    Abre(muestra.Una());
    PulsaFila(0);
    PulsaFila(2, Qt::ControlModifier);
    Pulsa(Control<QPushButton>(ventana, "cmdComparar"));
    EXPECT_EQ(comparados, (Textos{Celda(0, 0), Celda(2, 0)}));
    PulsaFila(1);
    EligeDelMenu(1, "C&omparar");
    EXPECT_EQ(comparados, Textos{Celda(1, 0)});
    EligeDelMenu(1, "&Hidrograma");
    EXPECT_EQ(abiertos, Textos{Celda(1, 0)});
}

TEST_F(VentanaDelResumen, SeCopianLaHuellaYLasFilas)
{
    Abre(muestra.Una());
    Pulsa(Control<QPushButton>(ventana, "cmdCopiarHuella"));
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), f.corrida->huella);
    PulsaFila(1);
    Tabla().setFocus();
    QTest::keyClick(&Tabla(), Qt::Key_C, Qt::ControlModifier);
    std::string renglon;
    for (const std::string& celda : f.resumen.planilla.filas[1])
        renglon += (renglon.empty() ? "" : "\t") + celda;
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), renglon + "\r\n");
}

TEST_F(VentanaDelResumen, SeGuardaConLoQueEsYSeImprime)
{
    apoyo::DiscoPrueba disco;
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    Abre(muestra.Una());
    mundo.s.Disco = disco.Puerta();
    disco.PonDirectorio("/salida");
    mundo.anfitrion->elegidos = {"/salida/r.csv", "/salida/r.xlsx"};
    EligeDelMenu(0, "Guardar como C&SV...");
    EligeDelMenu(0, "Guardar como &XLSX...");
    EXPECT_EQ(mundo.anfitrion->propuestos.front(), "Resumen de la corrida.csv");
    const std::string csv = disco.Bytes("/salida/r.csv");
    EXPECT_NE(csv.find("Huella: " + f.corrida->huella), std::string::npos);
    EXPECT_NE(csv.find("\"Cuenca\",,"), std::string::npos) << csv;
    const std::string libro = apoyo::LeePlanilla(disco.Bytes("/salida/r.xlsx"), "xlsx");
    EXPECT_NE(libro.find("A7 text Componente\n"), std::string::npos) << libro;
    EXPECT_NE(libro.find("C8 number "), std::string::npos);
    EXPECT_EQ(libro.find("B8 "), std::string::npos) << "the empty cell of a UEH's inflow";
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_NE(impresora.Texto(1).find(f.corrida->huella), std::string::npos);
    EXPECT_NE(impresora.Texto(1).find("Cuenca"), std::string::npos);
}

TEST_F(VentanaDelResumen, UnaCorridaNuevaSeMuestraSolaYLaFranjaDiceCuandoNoVale)
{
    Abre(muestra.Una());
    auto& franja = Control<QFrame>(ventana, "Franja");
    ventana.Franja().Actualiza = [] {};
    const std::string antes = Celda(0, 2);
    mundo.entorno.Atiende([this] { mundo.s.Tormenta.PpTormenta = 100; });
    EXPECT_TRUE(Espera([&] { return franja.isVisible(); }));
    EXPECT_EQ(Celda(0, 2), antes);
    ventana.Toma(muestra.Una(100));
    EXPECT_FALSE(franja.isVisible());
    EXPECT_NE(Celda(0, 2), antes);
    EXPECT_NE(Texto("lblTormenta").find("P 100 mm"), std::string::npos);
}

TEST_F(VentanaDelResumen, TrasUnaSerieCambianLasColumnas)
{
    Abre(muestra.Una());
    ventana.Toma(muestra.Serie());
    EXPECT_EQ(Tabla().model()->columnCount(), 7);
    EXPECT_TRUE(Control<QLabel>(ventana, "lblQueHacer").isVisible());
    PulsaFila(0);
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdHidrograma").isEnabled());
    DobleClic(0);
    EXPECT_EQ(abiertos, Textos{});
    ventana.Toma(muestra.Una());
    EXPECT_EQ(Tabla().model()->columnCount(), 14);
}

}  // namespace
}  // namespace results
