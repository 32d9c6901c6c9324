// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgRevisar_ventana.h"

#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <string>
#include <vector>

#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "checks/ProyectoDePrueba.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Textos_ventana.h"

namespace checks {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using Textos = std::vector<std::string>;

/// Two errors of Muskingum, of c-1 and c-2, and a velocity out of its range.
class VentanaRevisar : public pruebas::ProyectoDePrueba {
  protected:
    VentanaRevisar()
    {
        RechazaMuskingum(1);
        RechazaMuskingum(2);
        s.Red.ColUEHs.Item(1).VelMedia = 9;
        Guarda();
        ventana.resize(900, 500);
        ventana.Va = [this](const Hallazgo& h) { idas.push_back(h.componente); };
        ventana.Corrige = [this](const std::vector<Hallazgo>& l) {
            for (const Hallazgo& h : l)
                corregidos.push_back(h.componente);
            return static_cast<int>(l.size());
        };
        ventana.Ordena = [this](const Hallazgo& h) { ordenados.push_back(h.componente); };
        entorno.Atiende([this] { ventana.Abre(); });
        apoyo::Muestra(ventana);
    }
    forms::TablaCuadro& Tabla() { return Control<forms::TablaCuadro>(ventana, "tblHallazgos"); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila, columna).data().toString());
    }
    QPoint Lugar(int fila) { return Tabla().visualRect(Tabla().model()->index(fila, 3)).center(); }
    void PulsaFila(int fila, Qt::KeyboardModifiers con = {})
    {
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, con, Lugar(fila));
    }
    void EligeDelMenu(const char* nombre)
    {
        QTimer::singleShot(0, &Tabla(), [nombre] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            auto* const accion = menu->findChild<QAction*>(QString::fromUtf8(nombre));
            ASSERT_NE(accion, nullptr) << nombre;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
        });
        QContextMenuEvent pide(QContextMenuEvent::Mouse, Lugar(0), Tabla().viewport()->mapToGlobal(Lugar(0)));
        QApplication::sendEvent(Tabla().viewport(), &pide);
    }

    forms::Entorno entorno{s};
    dlgRevisar f{};
    dlgRevisar_ventana ventana{entorno, f};
    Textos idas{}, corregidos{}, ordenados{};
};

TEST_F(VentanaRevisar, MuestraTodoConIconoPalabraYCuenta)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), Textos{});
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblCuenta").text()), "2 errores, 1 aviso, 0 notas");
    ASSERT_EQ(Tabla().model()->rowCount(), 3);
    EXPECT_EQ(Celda(0, 0), "Error");
    EXPECT_EQ(Celda(0, 2), "c-1");
    EXPECT_EQ(Celda(2, 0), "Aviso");
    for (int fila = 0; fila < 3; ++fila)
        EXPECT_FALSE(Tabla().model()->index(fila, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(Tabla().editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(VentanaRevisar, DobleClicIntroYElBotonVanAlComponente)
{
    PulsaFila(2);  // the toolkit's double click is the second press alone
    QTest::mouseDClick(Tabla().viewport(), Qt::LeftButton, {}, Lugar(2));
    PulsaFila(1);
    QTest::keyClick(&Tabla(), Qt::Key_Return);
    PulsaFila(0);
    Pulsa(Control<QPushButton>(ventana, "cmdIr"));
    EXPECT_EQ(idas, (Textos{"u-1", "c-2", "c-1"}));
}

TEST_F(VentanaRevisar, CorrigeTodasLasFilasElegidasQueTienenArreglo)
{
    auto& corrige = Control<QPushButton>(ventana, "cmdCorregir");
    PulsaFila(2);
    EXPECT_FALSE(corrige.isEnabled());
    PulsaFila(0);
    PulsaFila(2, Qt::ShiftModifier);
    EXPECT_TRUE(corrige.isEnabled());
    Pulsa(corrige);
    EXPECT_EQ(corregidos, (Textos{"c-1", "c-2"}));
    EXPECT_NE(DeQ(Control<QLabel>(ventana, "lblHecho").text()).find("sin guardar (2)"), std::string::npos);
    EXPECT_TRUE(Control<QLabel>(ventana, "lblHecho").isVisible());
}

TEST_F(VentanaRevisar, LasCasillasYLosEncabezadosHacenLoSuyo)
{
    Pulsa(Control<QCheckBox>(ventana, "chkGravedad_0"));
    EXPECT_EQ(Tabla().model()->rowCount(), 1);
    Pulsa(Control<QCheckBox>(ventana, "chkGravedad_0"));
    QHeaderView& encabezado = *Tabla().horizontalHeader();
    const QPoint componente(encabezado.sectionViewportPosition(2) + 5, encabezado.height() / 2);
    QTest::mouseClick(encabezado.viewport(), Qt::LeftButton, {}, componente);
    QTest::mouseClick(encabezado.viewport(), Qt::LeftButton, {}, componente);
    EXPECT_EQ(Celda(0, 2), "u-1");
    EXPECT_EQ(Celda(2, 2), "c-1");
    EXPECT_EQ(encabezado.sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(VentanaRevisar, CtrlCCopiaLaFilaYElMenuGuardaEImprime)
{
    PulsaFila(2);
    QTest::keyClick(&Tabla(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(DeQ(QApplication::clipboard()->text()).starts_with("Aviso\t241\tu-1\t"));
    disco.PonDirectorio("/salida");
    anfitrion->elegidos = {"/salida/r.csv", "/salida/r.xlsx"};
    EligeDelMenu("mnuGuardaCsv");
    EligeDelMenu("mnuGuardaXlsx");
    EXPECT_EQ(anfitrion->propuestos.front(), "Revisar proyecto.csv");
    const std::string csv = apoyo::LeePlanilla(disco.Bytes("/salida/r.csv"), "csv");
    EXPECT_NE(csv.find("\nGravedad|Nro.|Componente|Qué|Cuánto|Remedio|Arreglo\nError|213.0|c-1|"),
              std::string::npos)
        << csv;
    EXPECT_TRUE(disco.Bytes("/salida/r.xlsx").starts_with("PK"));

    apoyo::ImpresoraDePrueba impresora;
    entorno.Impresora = impresora.Puerta();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_NE(impresora.Texto(1).find("2 errores, 1 aviso, 0 notas"), std::string::npos);
}

// What another window changes is seen without asking, once it has settled.
TEST_F(VentanaRevisar, SigueALoQueCambia)
{
    s.Tormenta.PpTormenta = 0;
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 4; }));
    EXPECT_EQ(Celda(2, 1), "206");
    s.Tormenta.PpTormenta = 60;
    model::Red dibujo = s.Red;
    dibujo.ColUEHs.Item(1).VelMedia = 1;
    ventana.DibujoSinGuardar = [&] { return &dibujo; };
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 2; }));
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblDe").text()),
              "Arroyo, con los cambios del dibujo que no se han guardado");
}

TEST_F(VentanaRevisar, LosHallazgosQueSeVanDejanSusFilasSinElegidas)
{
    PulsaFila(2);
    for (int i = 1; i <= 2; ++i) {
        s.Red.ColCauces.Item(i).Cauce_k_Musk = 10;
        s.Red.ColCauces.Item(i).Cauce_n_Musk = 0.2F;
    }
    s.Red.ColUEHs.Item(1).VelMedia = 1;
    Guarda();
    Pulsa(Control<QPushButton>(ventana, "cmdRevisar"));
    EXPECT_LT(Tabla().model()->rowCount(), 3);
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdCorregir").isEnabled());
}

TEST_F(VentanaRevisar, LaCuencaMedidaSeRevisaAlDejarElCampo)
{
    auto& campo = Control<QLineEdit>(ventana, "txtCuenca");
    campo.setFocus();
    QTest::keyClicks(&campo, QStringLiteral("150"));
    QTest::keyClick(&campo, Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 4; }));
}

TEST_F(VentanaRevisar, SeCierraConElBotonYConElMarco)
{
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    entorno.Atiende([this] { ventana.Abre(); });
    EXPECT_TRUE(ventana.isVisible());
    ventana.close();
    EXPECT_FALSE(f.abierta);
}

}  // namespace
}  // namespace checks
