// SPDX-License-Identifier: GPL-3.0-or-later
//
// The windows of both tables of a series' results.

#include "results/TablaQDR_ventana.h"

#include <QClipboard>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include "apoyo/Papel.h"
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
    EXPECT_EQ(anfitrion->propuestos.front(),
              "Serie de Tormentas Sintéticas - Resumen de Qpico, Escorrentía y Coef. Esc.csv");

    const std::string libro = apoyo::LeePlanilla(disco.Bytes("/salida/t.xlsx"), "xlsx");
    for (const char* dice :
         {"_xlnm.Print_Titles SIRO!$6:$6\n", "fitToPage 1 height 0 paper 9\n", "footer &RPágina &P de &N\n",
          "A6 text Componente \n", "A7 text u-1\n", "B7 number 1.0 0\n", "C7 number 20.0 0.0##\n",
          "F7 number 11.12 0.00\n", "G7 number 1001.0 #,##0\n", "H7 number 41.12 0.00\n"})
        EXPECT_NE(libro.find(dice), std::string::npos) << dice << "in\n" << libro;
    const std::string csv = apoyo::LeePlanilla(disco.Bytes("/salida/t.csv"), "csv");
    EXPECT_NE(csv.find("\nComponente |Nro.|P[mm]|D[min]|R[años]|Qp[m3/s]|E[m3]|C[%]\n"
                       "u-1|1.0|20.0|60.0|10.0|11.12|1001.0|41.12\n"),
              std::string::npos)
        << csv;
}

TEST_F(TablasDeSerie, SeImprimeEnteraConEncabezadoYNumeroEnCadaHoja)
{
    // Sixty storms of three components and the basin: 240 rows, more than four pages.
    std::vector<pruebas::Tormenta> tormentas;
    for (std::int16_t i = 1; i <= 60; ++i)
        tormentas.push_back({static_cast<float>(100 + i), static_cast<std::int16_t>(1000 + i), 10});
    Carga(tormentas);
    LlenaResultados();
    apoyo::ImpresoraDePrueba impresora;
    entorno.Impresora = impresora.Puerta();
    ventana.Abre();
    Tabla(ventana).selectAll();  // what is selected is none of the paper's business
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_EQ(impresora.Titulo(),
              "Serie de Tormentas Sintéticas - Resumen de Qpico, Escorrentía y Coef. Esc");

    const int paginas = impresora.Paginas();
    EXPECT_GE(paginas, 4);
    std::string todo;
    for (int pagina = 1; pagina <= paginas; ++pagina) {
        const std::string texto = impresora.Texto(pagina);
        for (const std::string_view encabezado : EncabezadosQDR())
            EXPECT_NE(texto.find(encabezado.substr(0, encabezado.find_last_not_of(' ') + 1)),
                      std::string::npos)
                << encabezado << " on page " << pagina;
        EXPECT_NE(texto.find("Página " + std::to_string(pagina) + " de " + std::to_string(paginas)),
                  std::string::npos);
        EXPECT_EQ(texto.find("Ubicación: Un lugar") != std::string::npos, pagina == 1);
        todo += texto;
    }
    // Each row once: durations 1001 to 1060, of three components and of the basin.
    for (int d = 1001; d <= 1060; ++d) {
        int veces = 0;
        for (std::size_t i = todo.find(std::to_string(d)); i != std::string::npos;
             i = todo.find(std::to_string(d), i + 1))
            veces += todo[i - 1] == ' ' && todo[i + 4] == ' ';
        EXPECT_GE(veces, 4) << d;
    }
    // Ink is black: no cell is painted as selected.
    const QImage hoja = impresora.Hoja(1, 60);
    int conColor = 0;
    for (int y = 0; y < hoja.height(); ++y)
        for (int x = 0; x < hoja.width(); ++x)
            conColor += hoja.pixelColor(x, y).saturation() > 40;
    EXPECT_EQ(conColor, 0);
    EXPECT_TRUE(Control<QPushButton>(ventana, "OKButton").isVisible());
}

TEST_F(TablasDeSerie, UnaTablaVaciaSeImprimeEnUnaHoja)
{
    apoyo::ImpresoraDePrueba impresora;
    entorno.Impresora = impresora.Puerta();
    s.Resultados.NroComponentes = 0;
    ventana.Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_EQ(impresora.Paginas(), 1);
    EXPECT_NE(impresora.Texto(1).find("Página 1 de 1"), std::string::npos);
}

TEST_F(TablasDeSerie, LaDeUnComponenteLlevaSuNombreEnArchivosYPapel)
{
    apoyo::ImpresoraDePrueba impresora;
    entorno.Impresora = impresora.Puerta();
    disco.PonDirectorio("/salida");
    anfitrion->elegidos = {"/salida/t.csv"};
    s.Control.IndComp = 3;
    deUno.Abre();
    EligeDelMenu(deUno, 6, 2, "mnuGuardaCsv");
    const char* const nombre =
        "Serie de Tormentas Sintéticas - Resumen Qp-D-R - E-D-R - CE-D-R por Componente - c-1";
    EXPECT_EQ(anfitrion->propuestos.front(), std::string(nombre) + ".csv");
    Pulsa(Control<QPushButton>(deUno, "cmdImprimir"));
    EXPECT_EQ(impresora.Titulo(), nombre);
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
    s.Control.IndComp = 2;
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
    s.Resultados.NroComponentes = 0;
    deUno.Abre();
    EXPECT_FALSE(deUno.isVisible());
    ventana.Abre();
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(Tabla(ventana).model()->rowCount(), 0);
}

}  // namespace
}  // namespace results
