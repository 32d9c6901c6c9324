// SPDX-License-Identifier: GPL-3.0-or-later
//
// The windows of both tables of a series' results.

#include "results/TablaQDR_ventana.h"

#include <QClipboard>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"
#include "results/SerieDePrueba.h"
#include "results/dlgTablaSalePDR2_ventana.h"
#include "results/dlgTablaSalePDR_ventana.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using Textos = std::vector<std::string>;

class TablasDeSerie : public pruebas::SerieDePrueba {
  protected:
    static QTableView& Tabla(QWidget& ventana)
    {
        return Control<QTableView>(ventana, "MSFlexGridTablaSaleQDR");
    }
    static std::string Celda(QWidget& ventana, int fila, int columna)
    {
        return DeQ(Tabla(ventana).model()->index(fila, columna).data().toString());
    }
    /// Every cell on show, against the record.
    static void ComparaCon(const TablaQDR& t, QWidget& ventana)
    {
        ASSERT_EQ(Tabla(ventana).model()->rowCount(), static_cast<int>(t.mostradas.size()));
        ASSERT_GT(t.mostradas.size(), 5U);
        for (std::size_t i = 0; i < t.mostradas.size(); ++i)
            for (std::size_t c = 0; c < NroColumnasQDR; ++c)
                EXPECT_EQ(Celda(ventana, static_cast<int>(i), static_cast<int>(c)),
                          t.filas[t.mostradas[i]].celdas.at(c));
    }
    static void PulsaEncabezadoDe(QWidget& ventana, int columna)
    {
        QHeaderView& encabezado = *Tabla(ventana).horizontalHeader();
        QTest::mouseClick(encabezado.viewport(), Qt::LeftButton, {},
                          {encabezado.sectionViewportPosition(columna) + encabezado.sectionSize(columna) / 2,
                           encabezado.height() / 2});
    }
    static void EligeDelMenu(QWidget& ventana, int fila, int columna, const char* nombre)
    {
        QTableView& tabla = Tabla(ventana);
        QTimer::singleShot(0, &tabla, [nombre] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            auto* const accion = menu->findChild<QAction*>(QString::fromUtf8(nombre));
            ASSERT_NE(accion, nullptr) << nombre;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
        });
        const QPoint lugar = tabla.visualRect(tabla.model()->index(fila, columna)).center();
        QContextMenuEvent pide(QContextMenuEvent::Mouse, lugar, tabla.viewport()->mapToGlobal(lugar));
        QApplication::sendEvent(tabla.viewport(), &pide);
    }

    forms::Entorno entorno{s};
    dlgTablaSalePDR f{};
    dlgTablaSalePDR_ventana ventana{entorno, f};
    dlgTablaSalePDR2 g{};
    dlgTablaSalePDR2_ventana deUno{entorno, g};
};

TEST_F(TablasDeSerie, TodoTieneNombreYLosBotonesSusLeyendas)
{
    ventana.Abre();
    deUno.Abre();
    EXPECT_EQ(apoyo::SinNombre(ventana), Textos{});
    EXPECT_EQ(apoyo::SinNombre(deUno), Textos{});
    EXPECT_EQ(DeQ(ventana.windowTitle()), TituloDlgTablaSalePDR);
    EXPECT_EQ(DeQ(deUno.windowTitle()), TituloDlgTablaSalePDR2);
    for (QWidget* const w : {static_cast<QWidget*>(&ventana), static_cast<QWidget*>(&deUno)}) {
        EXPECT_EQ(DeQ(Control<QPushButton>(*w, "cmdAplicarCambios").text()), "&Actualizar cambios");
        EXPECT_EQ(DeQ(Control<QPushButton>(*w, "cmdImprimir").text()), "Imprimir");
        EXPECT_EQ(DeQ(Control<QPushButton>(*w, "OKButton").text()), "&Cerrar");
    }
}

TEST_F(TablasDeSerie, SusCeldasSonLasDelRegistroCentradasYDeSoloLectura)
{
    ventana.Abre();
    ComparaCon(f.MSFlexGridTablaSaleQDR, ventana);
    EXPECT_EQ(Celda(ventana, 5, 0), "u-1");
    EXPECT_EQ(Celda(ventana, 5, 5), "11.12");
    const QTableView& tabla = Tabla(ventana);
    EXPECT_EQ(tabla.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(tabla.model()->index(5, 5).data(Qt::TextAlignmentRole).toInt(), int{Qt::AlignCenter});
    EXPECT_EQ(DeQ(tabla.model()->headerData(4, Qt::Horizontal).toString()), "R[años]");
}

TEST_F(TablasDeSerie, LosCincoRenglonesDeTituloEstanUnidos)
{
    ventana.Abre();
    const QTableView& tabla = Tabla(ventana);
    for (int fila = 0; fila < 5; ++fila)
        EXPECT_EQ(tabla.columnSpan(fila, 0), 8);
    EXPECT_EQ(tabla.columnSpan(5, 0), 1);
    // Still so when the table is filled anew with fewer rows.
    DestildaR(R10);
    Pulsa(Control<QPushButton>(ventana, "cmdAplicarCambios"));
    EXPECT_EQ(tabla.columnSpan(4, 0), 8);
    EXPECT_EQ(tabla.columnSpan(5, 0), 1);
}

TEST_F(TablasDeSerie, UnTildeQueSeQuitaSeNotaAlActualizarYAlVolver)
{
    ventana.Abre();
    const int antes = Tabla(ventana).model()->rowCount();
    DestildaR(R10);
    Pulsa(Control<QPushButton>(ventana, "cmdAplicarCambios"));
    EXPECT_EQ(Tabla(ventana).model()->rowCount(), antes - 8);  // two storms of three components and the total
    ComparaCon(f.MSFlexGridTablaSaleQDR, ventana);

    QWidget otra;
    apoyo::Muestra(ventana);
    apoyo::Muestra(otra);
    DestildaD(D60);
    apoyo::Muestra(ventana);
    EXPECT_EQ(Tabla(ventana).model()->rowCount(), antes - 12);
    ComparaCon(f.MSFlexGridTablaSaleQDR, ventana);
}

TEST_F(TablasDeSerie, UnEncabezadoOrdenaYATercerClicVuelveElOrdenDado)
{
    ventana.Abre();
    const QHeaderView& encabezado = *Tabla(ventana).horizontalHeader();
    EXPECT_FALSE(encabezado.isSortIndicatorShown());
    PulsaEncabezadoDe(ventana, 5);
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.columnaOrden, 5);
    EXPECT_EQ(encabezado.sortIndicatorSection(), 5);
    EXPECT_EQ(encabezado.sortIndicatorOrder(), Qt::AscendingOrder);
    PulsaEncabezadoDe(ventana, 5);
    EXPECT_EQ(Celda(ventana, 5, 5), "34.12");
    EXPECT_EQ(encabezado.sortIndicatorOrder(), Qt::DescendingOrder);
    ComparaCon(f.MSFlexGridTablaSaleQDR, ventana);
    EXPECT_TRUE(Tabla(ventana).selectionModel()->selectedIndexes().isEmpty());
    PulsaEncabezadoDe(ventana, 5);
    EXPECT_EQ(Celda(ventana, 5, 5), "11.12");
    EXPECT_FALSE(encabezado.isSortIndicatorShown());
}

TEST_F(TablasDeSerie, ElMenuOrdenaPorLaColumnaDeLaCelda)
{
    ventana.Abre();
    EligeDelMenu(ventana, 6, 2, "mnuOrdena");
    EXPECT_EQ(f.MSFlexGridTablaSaleQDR.columnaOrden, 2);
    ComparaCon(f.MSFlexGridTablaSaleQDR, ventana);
}

TEST_F(TablasDeSerie, ElMenuCopiaLaTablaEnElOrdenALaVista)
{
    ventana.Abre();
    PulsaEncabezadoDe(ventana, 2);
    EligeDelMenu(ventana, 6, 2, "mnuCopiaTabla");
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), ComoTexto(ComoPlanilla(f.MSFlexGridTablaSaleQDR)));
}

TEST_F(TablasDeSerie, CtrlCCopiaElBloqueElegido)
{
    ventana.Abre();
    QTableView& tabla = Tabla(ventana);
    tabla.setFocus();
    tabla.setCurrentIndex(tabla.model()->index(5, 2));
    for (const Qt::Key tecla : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right})
        QTest::keyClick(&tabla, tecla, Qt::ShiftModifier);
    QTest::keyClick(&tabla, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), "20\t60\t10\r\n30\t120\t10\r\n");
}

TEST_F(TablasDeSerie, ElMenuGuardaCsvYXlsx)
{
    ventana.Abre();
    disco.PonDirectorio("/salida");
    anfitrion->elegidos = {"/salida/t.csv", "/salida/t.xlsx"};
    EligeDelMenu(ventana, 6, 2, "mnuGuardaCsv");
    EXPECT_EQ(disco.Bytes("/salida/t.csv"), "\xEF\xBB\xBF" + ComoCsv(ComoPlanilla(f.MSFlexGridTablaSaleQDR)));
    EligeDelMenu(ventana, 6, 2, "mnuGuardaXlsx");
    EXPECT_TRUE(disco.Bytes("/salida/t.xlsx").starts_with("PK"));
    EXPECT_EQ(anfitrion->propuestos.front(), std::string(TituloDlgTablaSalePDR) + ".csv");
}

TEST_F(TablasDeSerie, SeImprimeSinBotonesNiBarrasYTodoVuelve)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("tabla.pdf"));
    bool conBotones = true;
    entorno.Impresora = [&] {
        conBotones = Control<QPushButton>(ventana, "OKButton").isVisible() ||
                     Tabla(ventana).verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
        auto impresora = std::make_unique<QPrinter>();
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(ruta);
        return impresora;
    };
    ventana.Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_FALSE(conBotones);
    EXPECT_TRUE(apoyo::BytesDeArchivo(DeQ(ruta)).starts_with("%PDF"));
    EXPECT_TRUE(Control<QPushButton>(ventana, "OKButton").isVisible());
    EXPECT_EQ(Tabla(ventana).verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST_F(TablasDeSerie, SeCierraConElBotonYConElMarco)
{
    ventana.Abre();
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_FALSE(f.abierta);
    deUno.Abre();
    deUno.close();
    EXPECT_FALSE(g.abierta);
}

TEST_F(TablasDeSerie, LaTablaDeUnComponenteSigueALaLista)
{
    s.IndComp = 2;
    deUno.Abre();
    auto& lista = Control<forms::ListaParaElegir>(deUno, "lstCompos");
    ASSERT_EQ(lista.count(), 3);
    EXPECT_EQ(lista.currentRow(), 1);
    EXPECT_EQ(Celda(deUno, 5, 0), "u-2");
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(2)).center());
    EXPECT_EQ(Celda(deUno, 5, 0), "c-1");
    ComparaCon(g.MSFlexGridTablaSaleQDR, deUno);
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(Celda(deUno, 5, 0), "u-2");
    EXPECT_EQ(g.lstComposIndice, 1);
    PulsaEncabezadoDe(deUno, 5);
    PulsaEncabezadoDe(deUno, 5);
    EXPECT_EQ(Celda(deUno, 5, 5), "24.12");
}

TEST_F(TablasDeSerie, ElTabRecorreLaDeUnComponenteEnElOrdenDeLectura)
{
    deUno.Abre();
    Textos orden;
    for (const QWidget* w = deUno.nextInFocusChain(); w != &deUno; w = w->nextInFocusChain())
        if (!w->objectName().startsWith(QLatin1String("qt_")) && w->focusPolicy() != Qt::NoFocus)
            orden.push_back(DeQ(w->objectName()));
    EXPECT_EQ(orden, (Textos{"lstCompos", "MSFlexGridTablaSaleQDR", "cmdAplicarCambios", "cmdImprimir",
                             "OKButton"}));
}

TEST_F(TablasDeSerie, SinComponentesLaDeUnComponenteNoSeAbre)
{
    s.NroComponentes = 0;
    deUno.Abre();
    EXPECT_FALSE(deUno.isVisible());
    ventana.Abre();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(Tabla(ventana).model()->rowCount(), 0);
}

}  // namespace
}  // namespace results
