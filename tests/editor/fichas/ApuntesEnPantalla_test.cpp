// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
#include <QRegularExpression>
#include <map>

#include "editor/fichas/FormasDePrueba.h"

// The lines under the fields with real keys.
namespace editor {
namespace {

using apoyo::Control;

struct ApuntesEnPantalla : FormasDePrueba {
    static std::string Dice(QDialog& forma, const char* control)
    {
        return forms::DeQ(Control<QLabel>(forma, (std::string("apunte_") + control).c_str()).text());
    }
    static bool LlegaADecir(QDialog& forma, const char* control, const std::string& texto)
    {
        const bool llega = apoyo::Espera([&] { return Dice(forma, control) == texto; });
        EXPECT_TRUE(llega) << Dice(forma, control);
        return llega;
    }
    static std::map<QString, QRect> Lugares(QDialog& forma)
    {
        std::map<QString, QRect> lugares;
        for (const QWidget* w : forma.findChildren<QWidget*>())
            if (w->isVisible() && !w->objectName().isEmpty())
                lugares[w->objectName()] = {w->mapTo(&forma, QPoint()), w->size()};
        return lugares;
    }
    /// The text of each line has its place.
    static void Caben(QDialog& forma)
    {
        int lineas = 0;
        for (const QLabel* linea :
             forma.findChildren<QLabel*>(QRegularExpression(QStringLiteral("^apunte_")))) {
            ++lineas;
            const QRect texto =
                linea->fontMetrics().boundingRect(linea->contentsRect(), Qt::TextWordWrap, linea->text());
            EXPECT_LE(texto.height(), linea->contentsRect().height())
                << forms::DeQ(linea->objectName()) << ": " << forms::DeQ(linea->text());
            EXPECT_EQ(linea->focusPolicy(), Qt::NoFocus);
        }
        EXPECT_GE(lineas, 2);
    }
};

TEST_F(ApuntesEnPantalla, SiguenALaTeclaYNadaSeMueve)
{
    EnForma("dlgCauceEditProp", [](QDialog& forma) {
        Boton(forma, "optMusk");
        apoyo::Escribe(Campo(forma, "txtCauce_k_Musk"), "24");
        apoyo::Escribe(Campo(forma, "txtCauce_n_Musk"), "0.2");
        LlegaADecir(forma, "txtCauce_n_Musk",
                    "Ventana de Muskingum: 2Kx = 9.6 ≤ paso 10 min ≤ 2K(1-x) = 38.4 min.");
        const auto lugares = Lugares(forma);
        Caben(forma);
        // The longest that there is.
        apoyo::Escribe(Campo(forma, "txtCauce_k_Musk"), "12");
        LlegaADecir(forma, "txtCauce_n_Musk",
                    "Ventana de Muskingum: 2Kx = 4.8 ≤ paso 10 min ≤ 2K(1-x) = 19.2 min. Pero los "
                    "coeficientes no suman 1 y la corrida se detiene: vale K = 12.01 min con x = 0.2.");
        Caben(forma);
        apoyo::Escribe(Campo(forma, "txtCauce_n_Musk"), "0.");
        QTest::keyClick(&Campo(forma, "txtCauce_n_Musk"), Qt::Key_9);
        LlegaADecir(forma, "txtCauce_n_Musk", "");
        EXPECT_TRUE(Lugares(forma) == lugares);
        apoyo::Escribe(Campo(forma, "txtCauce_n_Musk"), "0.2");
        // The Tab key goes on as if the lines weren't there.
        QTest::keyClick(&Campo(forma, "txtCauce_n_Musk"), Qt::Key_Tab);
        EXPECT_TRUE(apoyo::Espera([&] { return Control<QPushButton>(forma, "OKButton").hasFocus(); }));
        Boton(forma, "CancelButton");
    }).Abre(Pedido::FormaCauce);
}

TEST_F(ApuntesEnPantalla, LaUEHDiceQuePasaConLaTormenta)
{
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 60;
    EnForma("dlgUEH2", [](QDialog& forma) {
        const char* const campos[][2] = {{"txtLongMax", "800"},     {"txtVelMedia", "1"},
                                         {"txtRetension_Z", "5"},   {"txtKostiakov_a", "2"},
                                         {"txtKostiakov_b", "0.5"}, {"txtKostiakov_i", "30"}};
        for (const auto& [campo, valor] : campos)
            apoyo::Escribe(Campo(forma, campo), valor);
        LlegaADecir(forma, "txtVelMedia", "Traslado T = 13 min: 1.3 pasos de 10 min.");
        LlegaADecir(forma, "txtRetension_Z", "De los 60 mm de la tormenta en mano retiene 5 mm.");
        LlegaADecir(
            forma, "txtKostiakov_i",
            "De los 60 mm de la tormenta en mano infiltra 8 mm y escurren 47 mm (78 %), como con CN 95.2.");
        Caben(forma);
        Boton(forma, "CancelButton");
        EXPECT_EQ(Dice(forma, "txtVelMedia"), "");
    }).Abre(Pedido::FormaUEH);
}

TEST_F(ApuntesEnPantalla, LaRepresaYElLagoDicenQueHayALaAlturaEscrita)
{
    EnForma("dlgRepresas", [](QDialog& forma) {
        Boton(forma, "optTablaQ");
        apoyo::Escribe(Campo(forma, "txtHInicialEmb"), "1");
        EXPECT_TRUE(apoyo::Espera([&] { return Dice(forma, "txtHInicialEmb").ends_with(" m3/s."); }))
            << Dice(forma, "txtHInicialEmb");
        Boton(forma, "optFunciones");
        apoyo::Escribe(Campo(forma, "txtHInicialEmb"), "2");
        EXPECT_TRUE(apoyo::Espera([&] { return Dice(forma, "txtHInicialEmb").starts_with("Con 2 m:"); }))
            << Dice(forma, "txtHInicialEmb");
        EXPECT_TRUE(Dice(forma, "txtFQHmin").starts_with("H cuenta desde H mín."))
            << Dice(forma, "txtFQHmin");
        Caben(forma);
        apoyo::Escribe(Campo(forma, "txtHInicialEmb"), "99.75");
        EXPECT_TRUE(
            apoyo::Espera([&] { return Dice(forma, "txtHInicialEmb").find("fuera") != std::string::npos; }));
        Caben(forma);
        Boton(forma, "CancelButton");
    }).Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", [](QDialog& forma) {
        apoyo::Escribe(Campo(forma, "txtHInicialEmb"), "9");
        LlegaADecir(forma, "txtHInicialEmb",
                    "Fuera de las tablas: almacenamiento de 0 a 8 m, descarga de 0 a 8 m.");
        Caben(forma);
        Boton(forma, "CancelButton");
    }).Abre(Pedido::FormaLago);
}

}  // namespace
}  // namespace editor
