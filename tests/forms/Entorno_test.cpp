// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDialog>
#include <QMessageBox>
#include <QPrinter>

#include "apoyo/Ventanas.h"
#include "forms/Entorno_ventana.h"
#include "forms/Impresion_ventana.h"
#include "model/Falla.h"

namespace forms {
namespace {

struct EntornoDePrueba : testing::Test {
    apoyo::Mundo mundo{};
};

TEST_F(EntornoDePrueba, UnaFallaSinDuenoSeCuenta)
{
    mundo.entorno.Atiende([] { throw model::Falla{model::NumeroFalla::Desbordamiento}; });
    EXPECT_EQ(mundo.anfitrion->Avisos(),
              (std::vector<model::Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique"}}));
    EXPECT_FALSE(mundo.entorno.Terminando());
}

TEST_F(EntornoDePrueba, DespuesDelFinNoSeAtiendeNada)
{
    mundo.entorno.Atiende([] { throw model::FinDelPrograma{}; });
    bool corrio = false;
    mundo.entorno.Atiende([&] { corrio = true; });
    EXPECT_FALSE(corrio);
}

TEST_F(EntornoDePrueba, LaActivacionValeViniendoDeOtraVentanaDelProgramaYNoDeLaPropiaCaja)
{
    QWidget una;
    QWidget otra;
    int veces = 0;
    mundo.entorno.AlActivarse(una, [&] { ++veces; });
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 0);  // it opened: nothing was active before
    apoyo::Muestra(otra);
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 1);

    QMessageBox caja(&una);
    caja.setText(QStringLiteral("x"));
    apoyo::Muestra(caja);
    caja.close();
    apoyo::Muestra(una);
    EXPECT_EQ(veces, 1);
}

TEST_F(EntornoDePrueba, SinImpresoraSeDicePorQueNoImprime)
{
    mundo.entorno.Impresora = [] { return nullptr; };
    QWidget ventana;
    ImprimeVentana(mundo.entorno, ventana);
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_NE(mundo.anfitrion->Avisos()[0].texto.find("impresora"), std::string::npos);
}

}  // namespace
}  // namespace forms
