// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgVerificar_ventana.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <string>
#include <vector>

#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "checks/Verifica.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace checks {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

class VentanaVerificar : public testing::Test {
  protected:
    VentanaVerificar()
    {
        ventana.resize(900, 600);
        mundo.entorno.Atiende([this] { ventana.Abre(); });
    }
    bool Termina()
    {
        return QTest::qWaitFor([this] { return !f.corriendo; }, 60000);
    }
    forms::TablaCuadro& Tabla() { return Control<forms::TablaCuadro>(ventana, "tblCasos"); }

    apoyo::Mundo mundo{};
    dlgVerificar f{};
    dlgVerificar_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaVerificar, CorreAparteYMuestraTodosLosCasosConSuma)
{
    EXPECT_TRUE(f.corriendo) << "the window doesn't wait for it";
    EXPECT_TRUE(Control<QProgressBar>(ventana, "barAvance").isVisible());
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdVerificar").isEnabled());
    ASSERT_TRUE(Termina());
    const std::vector<Caso> casos = Verifica();
    ASSERT_EQ(Tabla().model()->rowCount(), static_cast<int>(casos.size()));
    const std::string suma = DeQ(Control<QLabel>(ventana, "lblSuma").text());
    EXPECT_TRUE(suma.starts_with(std::to_string(casos.size()) + " casos, 0 fuera de tolerancia, en "))
        << suma;
    EXPECT_FALSE(Control<QProgressBar>(ventana, "barAvance").isVisible());
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdVerificar").isEnabled());
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
}

TEST_F(VentanaVerificar, LasFlechasLlevanDeUnCasoAOtroConSuGrafico)
{
    ASSERT_TRUE(Termina());
    apoyo::Muestra(ventana);
    Tabla().setFocus();
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblCaso").text()), f.casos[0].nombre);
    for (int k = 0; k < 3; ++k)
        QTest::keyClick(&Tabla(), Qt::Key_Down);
    EXPECT_EQ(f.caso, 3U);
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblCaso").text()), f.casos[3].nombre);
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblFuente").text()), f.casos[3].fuente);
    EXPECT_EQ(Control<forms::Lamina>(ventana, "Grafico").DeDonde().tema, f.casos[3].nombre);
}

TEST_F(VentanaVerificar, EscYCancelarLaDejanAlInstanteYQuedaLaAnterior)
{
    apoyo::Muestra(ventana);
    QElapsedTimer reloj;
    reloj.start();
    QTest::keyClick(&Tabla(), Qt::Key_Escape);
    EXPECT_FALSE(f.corriendo);
    EXPECT_LT(reloj.elapsed(), 100) << "[ms]";
    EXPECT_EQ(DeQ(Control<QLabel>(ventana, "lblSuma").text()), "Verificación cancelada");

    Pulsa(Control<QPushButton>(ventana, "cmdVerificar"));
    ASSERT_TRUE(Termina());
    const std::string suma = f.lblSuma;
    Pulsa(Control<QPushButton>(ventana, "cmdVerificar"));
    EXPECT_TRUE(f.corriendo);
    reloj.start();
    Pulsa(Control<QPushButton>(ventana, "CancelButton"));
    EXPECT_FALSE(f.corriendo);
    EXPECT_LT(reloj.elapsed(), 100) << "[ms]";
    EXPECT_EQ(f.lblSuma, suma);
    EXPECT_FALSE(f.casos.empty());
}

TEST_F(VentanaVerificar, SeImprimenLaTablaYElCaso)
{
    ASSERT_TRUE(Termina());
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    ASSERT_TRUE(impresora.Imprimio());
    EXPECT_NE(impresora.Texto(1).find(f.lblSuma), std::string::npos);
    Pulsa(Control<QPushButton>(ventana, "cmdImprimirCaso"));
    EXPECT_EQ(impresora.Paginas(), 1);
}

TEST_F(VentanaVerificar, SeCierraMientrasCorre)
{
    ventana.close();
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(f.corriendo);
    mundo.entorno.Atiende([this] { ventana.Abre(); });
    EXPECT_TRUE(f.corriendo);
}

}  // namespace
}  // namespace checks
