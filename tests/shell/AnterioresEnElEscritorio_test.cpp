// SPDX-License-Identifier: GPL-3.0-or-later
//
// Previous versions in the whole program, by the user's own clicks.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <functional>

#include "EscritorioDePrueba.h"
#include "model/Componentes.h"

namespace shell {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

struct AnterioresEnElEscritorio : EscritorioDePrueba {
    AnterioresEnElEscritorio() : EscritorioDePrueba(true) {}
    /// The sample project, without the version that its opening leaves: it takes its present folder then.
    void AbreQuelmar()
    {
        Arranca(instalacion.Quelmar());
        QDir(forms::Q(instalacion.Dir() + "/usuario")).removeRecursively();
    }
    /// Acts in the window, which is closed afterwards.
    void EnVentana(const std::function<void(QDialog&)>& actua)
    {
        bool hecha = false;
        QTimer mira;
        QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
            auto* const ventana = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (hecha || ventana == nullptr || !ventana->isVisible()) return;
            hecha = true;
            QTimer::singleShot(0, ventana, [&actua, ventana] {
                EXPECT_TRUE(QTest::qWaitForWindowActive(ventana));
                actua(*ventana);
                if (ventana->isVisible()) Pulsa(Control<QPushButton>(*ventana, "OKButton"));
            });
        });
        mira.start(5);
        Accion("mnuAnteriores").trigger();
        EXPECT_TRUE(hecha);
    }
    static std::string Celda(QDialog& v, const char* tabla, int fila, int columna)
    {
        return DeQ(Control<QTableView>(v, tabla).model()->index(fila, columna).data().toString());
    }
    static void Clic(QDialog& v, int fila)
    {
        auto& tabla = Control<QTableView>(v, "tblVersiones");
        const QModelIndex lugar = tabla.model()->index(fila, 0);
        tabla.scrollTo(lugar);
        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, tabla.visualRect(lugar).center());
    }
    /// The first UEH takes another area, which is saved. Saves of this second are one.
    void PonArea(float area)
    {
        escritorio.entorno.Atiende([&] {
            model::LeeUEHs(escritorio.s);
            escritorio.s.Red.ColUEHs.Item(1).Area = area;
            model::GuardaRed(escritorio.s);
        });
        anfitrion->sucesos.clear();
    }
    float AreaEnDisco()
    {
        float area = 0;
        escritorio.entorno.Atiende([&] {
            model::LeeUEHs(escritorio.s);
            area = escritorio.s.Red.ColUEHs.Item(1).Area;
        });
        return area;
    }
};

TEST_F(AnterioresEnElEscritorio, SeVeSeCopiaSeTraeYSeDeshace)
{
    AbreQuelmar();
    const float antes = AreaEnDisco();
    PonArea(4321);
    EnVentana([&](QDialog& v) {
        EXPECT_EQ(apoyo::SinNombre(v), std::vector<std::string>{});
        ASSERT_EQ(Control<QTableView>(v, "tblVersiones").model()->rowCount(), 1);
        EXPECT_EQ(Celda(v, "tblVersiones", 0, 1), "1 componente cambia");
        ASSERT_EQ(Control<QTableView>(v, "tblDiferencias").model()->rowCount(), 1);
        EXPECT_EQ(Celda(v, "tblDiferencias", 0, 1), "Area");
        EXPECT_EQ(Celda(v, "tblDiferencias", 0, 3), "4321");
        Pulsa(Control<QPushButton>(v, "cmdCopiar"));
        EXPECT_NE(QApplication::clipboard()->text().indexOf(QStringLiteral("Area\t")), -1);
        anfitrion->respuestas = {true};
        Pulsa(Control<QPushButton>(v, "cmdTraer"));
        EXPECT_EQ(anfitrion->Preguntas().size(), 1U) << "nothing beside whether it is to be brought back";
        EXPECT_EQ(Control<QTableView>(v, "tblVersiones").model()->rowCount(), 2);
        EXPECT_TRUE(v.isVisible());
    });
    EXPECT_EQ(AreaEnDisco(), antes);
    EXPECT_EQ(escritorio.s.Proyecto.NombreProyecto, "Quelmar");
    EnVentana([&](QDialog& v) {
        Clic(v, 1);
        EXPECT_EQ(Control<QTableView>(v, "tblDiferencias").model()->rowCount(), 0) << "what is there now";
        Clic(v, 0);
        EXPECT_EQ(Celda(v, "tblDiferencias", 0, 2), "4321");
        anfitrion->respuestas = {true};
        Pulsa(Control<QPushButton>(v, "cmdTraer"));
    });
    EXPECT_EQ(AreaEnDisco(), 4321);
}

TEST_F(AnterioresEnElEscritorio, AparteSeAbreEnLaCarpetaElegida)
{
    AbreQuelmar();
    const float antes = AreaEnDisco();
    PonArea(4321);
    QDir(forms::Q(instalacion.Dir())).mkdir(QStringLiteral("otra"));
    escritorio.s.Anfitrion.EligeDestino = [&](std::string_view, std::string_view, std::string_view nombre) {
        EXPECT_EQ(nombre, "Quelmar_Conf.vlm");
        return instalacion.Dir() + "/otra/Quelmar_Conf.vlm";
    };
    EnVentana([](QDialog& v) { Pulsa(Control<QPushButton>(v, "cmdAparte")); });
    EXPECT_EQ(escritorio.s.Proyecto.DirProyecto, instalacion.Dir() + "/otra");
    EXPECT_EQ(AreaEnDisco(), antes);
}

TEST_F(AnterioresEnElEscritorio, SinVersionesNoHayNadaQueTraer)
{
    AbreQuelmar();
    EnVentana([](QDialog& v) {
        EXPECT_FALSE(Control<QPushButton>(v, "cmdTraer").isEnabled());
        EXPECT_FALSE(Control<QPushButton>(v, "cmdAparte").isEnabled());
        EXPECT_FALSE(Control<QPushButton>(v, "cmdCopiar").isEnabled());
        QTest::keyClick(&v, Qt::Key_Escape);
        EXPECT_FALSE(v.isVisible());
    });
}

}  // namespace
}  // namespace shell
