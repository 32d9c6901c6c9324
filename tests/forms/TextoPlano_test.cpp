// SPDX-License-Identifier: GPL-3.0-or-later
#include <QInputDialog>
#include <QLabel>
#include <QToolTip>
#include <QVBoxLayout>

#include "apoyo/Ventanas.h"
#include "forms/Cajas_ventana.h"

namespace forms {
namespace {

// What a stranger's project may call itself: as mark-up it asks for an image of any size.
constexpr char Malicioso[] = "<img src=\"/dev/zero\" width=99999 height=99999><b>título</b>";

struct TextoPlano : testing::Test {
    apoyo::Mundo mundo{};
    const QString texto = QString::fromUtf8(Malicioso);
    TextoPlano() { PonCajas(mundo.s.Anfitrion, mundo.entorno); }
};

TEST_F(TextoPlano, DeUnRotuloPuestoAntesYDespuesDeMostrarlo)
{
    QWidget ventana;
    auto* const pila = new QVBoxLayout(&ventana);
    auto* const antes = new QLabel(texto);
    auto* const despues = new QLabel;
    pila->addWidget(antes);
    pila->addWidget(despues);
    apoyo::Muestra(ventana);
    despues->setText(texto);
    for (const QLabel* rotulo : {antes, despues}) {
        EXPECT_EQ(rotulo->textFormat(), Qt::PlainText);
        EXPECT_GE(rotulo->sizeHint().width(), rotulo->fontMetrics().horizontalAdvance(texto));
        EXPECT_LE(rotulo->sizeHint().height(), 2 * rotulo->fontMetrics().height());
    }
}

TEST_F(TextoPlano, DeUnGloboDeAyuda)
{
    QWidget ventana;
    apoyo::Muestra(ventana);
    QToolTip::showText(ventana.mapToGlobal(QPoint(5, 5)), texto, &ventana);
    const QLabel* globo = nullptr;
    for (const QWidget* w : QApplication::topLevelWidgets())
        if (w->inherits("QTipLabel")) globo = qobject_cast<const QLabel*>(w);
    ASSERT_NE(globo, nullptr);
    EXPECT_EQ(globo->text(), texto);
    EXPECT_EQ(globo->textFormat(), Qt::PlainText);
    QToolTip::hideText();
}

TEST_F(TextoPlano, DeLasCajasYLosPedidos)
{
    apoyo::Usuario usuario;
    const auto mira = [&](QWidget& caja) {
        int conTexto = 0;
        for (const QLabel* rotulo : caja.findChildren<QLabel*>()) {
            EXPECT_EQ(rotulo->textFormat(), Qt::PlainText) << rotulo->text().toStdString();
            if (rotulo->text().contains(QLatin1String("<img"))) ++conTexto;
        }
        EXPECT_EQ(conTexto, 1);
        caja.close();
    };
    usuario.Hace(mira).Hace(mira);
    mundo.s.Anfitrion.Avisa({Malicioso, Malicioso});
    mundo.s.Anfitrion.PideTexto({Malicioso, Malicioso, Malicioso});
}

TEST_F(TextoPlano, DeUnPedidoConservaSusSignos)
{
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) {
        const auto* const pedido = qobject_cast<const QInputDialog*>(&caja);
        ASSERT_NE(pedido, nullptr);
        EXPECT_EQ(pedido->labelText(), QStringLiteral("Agua && sal"));  // shown as one
        caja.close();
    });
    mundo.s.Anfitrion.PideTexto({"Agua & sal"});
}

}  // namespace
}  // namespace forms
