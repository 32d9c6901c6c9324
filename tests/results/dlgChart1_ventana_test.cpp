// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart1_ventana.h"

#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>

#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

struct VentanaHietograma : testing::Test {
    VentanaHietograma()
    {
        mundo.s.Tormenta.PpReal.Dimensiona(3);
        mundo.s.Tormenta.PpReal(1) = 5;
        mundo.s.Tormenta.PpReal(2) = 20;
        mundo.s.Tormenta.PpReal(3) = 10;
    }
    void Abre()
    {
        ventana.Muestra(Hietograma{3, 50, "Tormenta de diseño", 35, 150});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    std::string Descripcion() { return DeQ(Control<QWidget>(ventana, "Grafico").accessibleDescription()); }

    apoyo::Mundo mundo{};
    dlgChart1 f{};
    dlgChart1_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaHietograma, SeAbreEnMinutosYElBotonPasaAHorasYVuelve)
{
    Abre();
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Hietograma");
    EXPECT_EQ(Descripcion(), "3 filas. Precipitación: máximo 20 mm en 100 minutos.");
    Pulsa(Control<QPushButton>(ventana, "cmdHsMin"));
    EXPECT_EQ(Descripcion(), "3 filas. Precipitación: máximo 20 mm en 1.66 horas.");
    Pulsa(Control<QPushButton>(ventana, "cmdHsMin"));
    EXPECT_EQ(Descripcion(), "3 filas. Precipitación: máximo 20 mm en 100 minutos.");
}

TEST_F(VentanaHietograma, TodoTieneNombreYSuLeyenda)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdHsMin").text()), "Ver t [Horas] / Ver t [Minutos]");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdImprimir").text()), "&Imprimir");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "OKButton").text()), "&Cerrar");
}

TEST_F(VentanaHietograma, EnUnaSerieSeCierraSola)
{
    mundo.s.Tormenta.FormaPp = 2;
    ventana.Abre();
    EXPECT_FALSE(ventana.isVisible());
    ventana.Muestra(Hietograma{3, 50, "t", 35, 150});
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(VentanaHietograma, OtroPedidoSeMuestraEnLaMismaVentana)
{
    Abre();
    mundo.s.Tormenta.PpReal(3) = 40;
    ventana.Muestra(Hietograma{3, 10, "otra", 65, 30});
    EXPECT_EQ(Descripcion(), "3 filas. Precipitación: máximo 40 mm en 30 minutos.");
}

TEST_F(VentanaHietograma, SeCierraConElBotonYConElMarco)
{
    Abre();
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_FALSE(f.abierta);
    Abre();
    ventana.close();
    EXPECT_FALSE(f.abierta);
}

TEST_F(VentanaHietograma, SeImprimeTalComoSeVe)
{
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("h.pdf"));
    mundo.entorno.Impresora = [&] {
        auto impresora = std::make_unique<QPrinter>();
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(ruta);
        return impresora;
    };
    Abre();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_TRUE(apoyo::BytesDeArchivo(DeQ(ruta)).starts_with("%PDF"));
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdImprimir").isVisible());
}

}  // namespace
}  // namespace results
