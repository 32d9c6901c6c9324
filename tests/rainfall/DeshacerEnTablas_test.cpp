// SPDX-License-Identifier: GPL-3.0-or-later
//
// Undo and redo in the tables of the rain, with the user's own keys: typing, a block, other rows, a table
// that was emptied.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <functional>

#include "ProyectoDeLluvia.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/Componentes.h"
#include "rainfall/dlgDisPpPer_ventana.h"
#include "rainfall/dlgPpReal_ventana.h"
#include "rainfall/dlgTablaPpUEHs_ventana.h"
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {
namespace {

using apoyo::Control;
using forms::DeQ;
using Textos = std::vector<std::string>;

/// A table of a window: its column, what that holds at opening, what is beside it.
struct FilaDeTabla {
    const char* tabla;
    int columna;
    Textos alAbrir;
    const char* cuantas;  ///< field of the number of rows; none: they are as many as the UEHs
    const char* borra;    ///< key that empties the table
    Textos borrada;       ///< what it leaves
};

class DeshacerEnTablas : public testing::Test {
  protected:
    DeshacerEnTablas()
    {
        PonProyectoDeLluvia(mundo.s, disco);
        mundo.s.Configuracion.ListaDur = {0, 5, 10, 20, 60};
        mundo.s.Proyecto.NombreProyecto = "Prueba";
        mundo.s.Proyecto.DirProyectoConf = "/proyectos";
        mundo.s.Tormenta.FormaPp = 2;
        mundo.s.Tormenta.TablaPDR = 1;
        mundo.s.Tormenta.DistriPp = 5;
        rainfall::Abre(pp, mundo.s);
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier)
    {
        QTest::keyClick(v->windowHandle(), tecla, con);
    }
    void Deshace() { Tecla(Qt::Key_Z, Qt::ControlModifier); }
    void Rehace() { Tecla(Qt::Key_Y, Qt::ControlModifier); }
    void Sigue(const char* texto)
    {
        for (const char* p = texto; *p != 0; ++p)
            QTest::keyClick(v->windowHandle(), *p);
    }
    QTableView& Tabla() { return Control<QTableView>(*v, fila->tabla); }
    void VeACelda(int cual)
    {
        const QModelIndex lugar = Tabla().model()->index(cual - 1, fila->columna);
        Tabla().scrollTo(lugar);
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, {}, Tabla().visualRect(lugar).center());
    }
    Textos Columna()
    {
        Textos textos;
        for (int i = 0; i < Tabla().model()->rowCount(); ++i)
            textos.push_back(DeQ(Tabla().model()->index(i, fila->columna).data().toString()));
        return textos;
    }
    /// The number of rows by its field, left with Tab.
    void PonCuantas(const char* cuantas)
    {
        auto& campo = Control<QLineEdit>(*v, fila->cuantas);
        apoyo::Escribe(campo, cuantas);
        QTest::keyClick(&campo, Qt::Key_Tab);
        QTest::qWait(0);
    }
    std::string Cuantas() { return DeQ(Control<QLineEdit>(*v, fila->cuantas).text()); }

    void Tecleo()
    {
        const Textos antes = fila->alAbrir;
        Textos con = antes;
        con[0] = "12";
        VeACelda(1);
        Sigue("12");
        EXPECT_EQ(Columna(), con);
        Deshace();
        EXPECT_EQ(Columna(), antes) << "all that was typed in a cell is one step";
        Rehace();
        EXPECT_EQ(Columna(), con);
        Deshace();
        Tecla(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(Columna(), con) << "Ctrl+Shift+Z";
        Deshace();
        EXPECT_EQ(Columna(), antes);
    }
    void Bloque()
    {
        QApplication::clipboard()->setText(QStringLiteral("20"));
        VeACelda(1);
        Tecla(Qt::Key_V, Qt::ControlModifier);
        Textos con = fila->alAbrir;
        con[0] = "20";
        EXPECT_EQ(Columna(), con);
        Deshace();
        EXPECT_EQ(Columna(), fila->alAbrir);
    }
    void OtrasFilas()
    {
        if (fila->cuantas == nullptr) return;
        VeACelda(1);
        Sigue("7");
        Textos con = fila->alAbrir;
        con[0] = "7";
        PonCuantas("5");
        ASSERT_EQ(Columna().size(), 5U);
        PonCuantas("1");
        EXPECT_EQ(Columna(), (Textos{"7"}));
        VeACelda(1);
        Deshace();
        EXPECT_EQ(Columna().size(), 5U);
        EXPECT_EQ(Cuantas(), "5");
        Deshace();
        EXPECT_EQ(Columna(), con) << "the rows, and what was typed before";
        EXPECT_EQ(Cuantas(), std::to_string(fila->alAbrir.size()));
        Deshace();
        EXPECT_EQ(Columna(), fila->alAbrir);
        for (int i = 0; i < 3; ++i)
            Rehace();
        EXPECT_EQ(Columna(), (Textos{"7"}));
        EXPECT_EQ(Cuantas(), "1");
        for (int i = 0; i < 3; ++i)
            Deshace();
        EXPECT_EQ(Columna(), fila->alAbrir);
    }
    void Borrado()
    {
        if (fila->borra == nullptr) return;
        apoyo::Pulsa(Control<QPushButton>(*v, fila->borra));
        EXPECT_EQ(Columna(), fila->borrada);
        Tabla().setFocus(Qt::TabFocusReason);
        Deshace();
        EXPECT_EQ(Columna(), fila->alAbrir);
    }
    void Menu()
    {
        VeACelda(1);
        Sigue("3");
        Textos con = fila->alAbrir;
        con[0] = "3";
        for (const auto& [entrada, queda] : {std::pair{"&Deshacer", fila->alAbrir}, {"&Rehacer", con}}) {
            QTimer::singleShot(0, v, [entrada = entrada] {
                auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                ASSERT_NE(menu, nullptr);
                for (QAction* const accion : menu->actions())
                    if (DeQ(accion->text()) == entrada) {
                        EXPECT_TRUE(accion->isEnabled());
                        accion->trigger();
                    }
                menu->close();
            });
            QContextMenuEvent pide(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(&Tabla(), &pide);
            EXPECT_EQ(Columna(), queda) << entrada;
        }
        Deshace();
    }
    /// All of it in a window on show.
    void Prueba(forms::Formulario& ventana, const FilaDeTabla& suFila)
    {
        SCOPED_TRACE(suFila.tabla);
        v = &ventana;
        fila = &suFila;
        v->Muestra();
        apoyo::Muestra(*v);
        ASSERT_EQ(Columna(), suFila.alAbrir);
        Tecleo();
        Bloque();
        OtrasFilas();
        Menu();
        Borrado();
        EXPECT_TRUE(mundo.anfitrion->Avisos().empty());
        ventana.close();
    }

    apoyo::Mundo mundo;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    forms::Formulario* v = nullptr;
    const FilaDeTabla* fila = nullptr;
};

TEST_F(DeshacerEnTablas, UnaTormentaReal)
{
    dlgPpReal f;
    dlgPpReal_ventana ventana(mundo.entorno, f, pp);
    rainfall::Abre(f, pp, mundo.s);
    Prueba(ventana, {"MSFlexGridTablaPpReal", 3, {"5", "10", "2.5"}, "txtNroPpReal", nullptr, {}});
    // What the run would take follows: 5 + 10 + 2.5 mm in 3 x 20 min.
    EXPECT_EQ(mundo.s.Tormenta.NroPpReal, 3);
    EXPECT_EQ(mundo.s.Tormenta.PpTormenta, 17.5F);
    EXPECT_EQ(mundo.s.Tormenta.DurTormenta, 60);
}

TEST_F(DeshacerEnTablas, UnaDistribucionPersonal)
{
    dlgDisPpPer f;
    dlgDisPpPer_ventana ventana(mundo.entorno, f, pp);
    rainfall::Abre(f, pp, mundo.s);
    Prueba(ventana, {"MSFlexGridDisPerso", 2, {"40", "60"}, "txtNroPer", "cmdBorraTablaDisPer", {}});
    EXPECT_EQ(mundo.s.TablasDeLluvia.NroFilasTabla[1], 2);
    EXPECT_EQ(mundo.s.TablasDeLluvia.DisPerso(1, 2), 60);
}

TEST_F(DeshacerEnTablas, UnaTablaPDR)
{
    dlgTablasPDRs f;
    dlgTablasPDRs_ventana ventana(mundo.entorno, f, pp);
    rainfall::Abre(f, pp, mundo.s);
    Prueba(ventana, {"MSFlexGridTablaPDRs", 1, {"25"}, "txtNroPDRs", "cmdBorraTablaDisPer", {}});
    EXPECT_EQ(mundo.s.TablasDeLluvia.NroFilasTabla[1], 1);
}

TEST_F(DeshacerEnTablas, LaLluviaPorUEH)
{
    for (std::int16_t n = 1; n <= 2; ++n) {
        model::UEH ueh;
        ueh.numUEH = n;
        ueh.NombreUEH = "u-" + std::to_string(n);
        mundo.s.Red.ColUEHs.Agrega(ueh);
    }
    model::GuardaRed(mundo.s);
    mundo.anfitrion->sucesos.clear();
    dlgTablaPpUEHs f;
    dlgTablaPpUEHs_ventana ventana(mundo.entorno, f, pp);
    rainfall::Abre(f, mundo.s);
    Prueba(ventana, {"MSFlexGridPpUEHs", 2, {"0", "0"}, nullptr, "cmdBorraTablaHQ", {"", ""}});
}

}  // namespace
}  // namespace rainfall
