// SPDX-License-Identifier: GPL-3.0-or-later
//
// Undo and redo in the tables of the components, with the user's own keys: typing, a block, other rows, a
// table that was emptied.

#include <QClipboard>

#include "editor/fichas/FormasDePrueba.h"
#include "forms/Grilla_ventana.h"

namespace editor {
namespace {

using apoyo::Control;
using Textos = std::vector<std::string>;

struct DeshacerEnFichas : FormasDePrueba {
    static void Tecla(QDialog& forma, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::ControlModifier)
    {
        QTest::keyClick(forma.windowHandle(), tecla, con);
    }
    static Textos Columna(QDialog& forma, const char* tabla, int columna)
    {
        Textos textos;
        const QAbstractItemModel& celdas = *Control<forms::TablaGrilla>(forma, tabla).model();
        for (int i = 0; i < celdas.rowCount(); ++i)
            textos.push_back(forms::DeQ(celdas.index(i, columna).data().toString()));
        return textos;
    }
    static void VeACelda(QDialog& forma, const char* tabla, int fila, int columna)
    {
        auto& grilla = Control<forms::TablaGrilla>(forma, tabla);
        const QModelIndex lugar = grilla.model()->index(fila - 1, columna);
        grilla.scrollTo(lugar);
        QTest::mouseClick(grilla.viewport(), Qt::LeftButton, {}, grilla.visualRect(lugar).center());
    }
    /// Typing and a block of two rows, back and forth.
    static void TecleaYPega(QDialog& forma, const char* tabla, int columna)
    {
        SCOPED_TRACE(tabla);
        const Textos antes = Columna(forma, tabla, columna);
        ASSERT_GE(antes.size(), 2U);
        Textos con = antes;
        con[0] = "12";
        VeACelda(forma, tabla, 1, columna);
        QTest::keyClicks(&Control<forms::TablaGrilla>(forma, tabla), QStringLiteral("12"));
        EXPECT_EQ(Columna(forma, tabla, columna), con);
        Tecla(forma, Qt::Key_Z);
        EXPECT_EQ(Columna(forma, tabla, columna), antes);
        Tecla(forma, Qt::Key_Y);
        EXPECT_EQ(Columna(forma, tabla, columna), con);
        QApplication::clipboard()->setText(QStringLiteral("3\n4"));
        Tecla(forma, Qt::Key_V);
        Textos pegada = antes;
        pegada[0] = "3";
        pegada[1] = "4";
        EXPECT_EQ(Columna(forma, tabla, columna), pegada);
        Tecla(forma, Qt::Key_Z);
        EXPECT_EQ(Columna(forma, tabla, columna), con);
        Tecla(forma, Qt::Key_Z);
        EXPECT_EQ(Columna(forma, tabla, columna), antes);
        Tecla(forma, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(Columna(forma, tabla, columna), con);
        Tecla(forma, Qt::Key_Z);
    }
    /// The number of rows, digit by digit, and the emptied table.
    static void OtrasFilas(QDialog& forma, const char* tabla)
    {
        SCOPED_TRACE(tabla);
        const Textos antes = Columna(forma, tabla, 1);
        const std::string cuantas = TextoDe(forma, "txtNroFilas");
        apoyo::Escribe(Campo(forma, "txtNroFilas"), "12");
        ASSERT_EQ(Columna(forma, tabla, 1).size(), 12U);
        VeACelda(forma, tabla, 1, 1);
        Tecla(forma, Qt::Key_Z);
        EXPECT_EQ(Columna(forma, tabla, 1), antes) << "both digits are one step";
        EXPECT_EQ(TextoDe(forma, "txtNroFilas"), cuantas);
        Tecla(forma, Qt::Key_Y);
        EXPECT_EQ(TextoDe(forma, "txtNroFilas"), "12");
        Tecla(forma, Qt::Key_Z);
        Boton(forma, "cmdBorraTablaHQ");
        EXPECT_EQ(Columna(forma, tabla, 1), Textos(antes.size()));
        Control<forms::TablaGrilla>(forma, tabla).setFocus(Qt::TabFocusReason);
        Tecla(forma, Qt::Key_Z);
        EXPECT_EQ(Columna(forma, tabla, 1), antes);
        EXPECT_FALSE(forma.isWindowModified());
    }
};

TEST_F(DeshacerEnFichas, LasTablasDeRepresasYLagos)
{
    for (const char* const tabla : {"dlgTablaSHV", "dlgTablaFQ", "dlgTablaSHVQ"}) {
        SCOPED_TRACE(tabla);
        const bool deLago = std::string_view(tabla) == "dlgTablaSHVQ";
        const bool caudales = std::string_view(tabla) == "dlgTablaFQ";
        if (caudales) s.Seleccion.RepresaSel = 2;
        bool hecha = false;
        EnForma(deLago ? "dlgLago" : "dlgRepresas", [&, this](QDialog& forma) {
            if (caudales) Boton(forma, "optTablaQ");
            EnForma(tabla, [&](QDialog& grilla) {
                TecleaYPega(grilla, deLago ? "MSFlexGridHSVQ" : "MSFlexGridFQ", 1);
                OtrasFilas(grilla, deLago ? "MSFlexGridHSVQ" : "MSFlexGridFQ");
                hecha = true;
            });
            Boton(forma, deLago ? "cmdParametros" : caudales ? "cmdTablaQ" : "cmdHSV");
        });
        Abre(deLago ? Pedido::FormaLago : Pedido::FormaRepresa);
        EXPECT_TRUE(hecha);
    }
}

TEST_F(DeshacerEnFichas, LasGrillasDeCaucesYUEHsCadaUnaLosSuyos)
{
    bool hecha = false;
    EnForma("dlgUEHsEditTabla", [&](QDialog& forma) {
        TecleaYPega(forma, "MSFlexGridEditCauces", 7);
        TecleaYPega(forma, "MSFlexGridEditUEHs", 5);
        hecha = true;
    });
    QWidget padre;
    ventanas->AbreEditorDeTabla(padre);
    EXPECT_TRUE(hecha);
}

}  // namespace
}  // namespace editor
