// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerTormenta_ventana.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"
#include "frequency/taller/dlgTaller_ventana.h"
#include "study/Abierto.h"

namespace frequency {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

class VentanaTormenta : public testing::Test {
  protected:
    VentanaTormenta()
    {
        for (const char* nombre : {"TablasPDRs_pdr.vlm", "distriPp_dpt.vlm"})
            disco.Pon(std::string("/trabajo/") + nombre,
                      apoyo::BytesDeArchivo(std::string(SIRO_DATA_DIR) + "/" + nombre));
        disco.PonDirectorio("/proy");
        mundo.s.Disco = disco.Puerta();
        mundo.s.Proyecto.NombreProyecto = "Quelmar";
        mundo.s.Proyecto.DirProyecto = "/proy";
        mundo.s.Proyecto.DirTrabajo = "/trabajo";
        mundo.s.Proyecto.ProyectoNuevo = false;
        mundo.entorno.Atiende([this] {
            estudio.Sigue();
            Cambia(f, "Curvas", [](study::Taller& t) {
                t.idf.origen = "coeficientes";
                t.idf.coeficientes = {{"k", 822}, {"a", 0.2}, {"b", 10}, {"c", 0.8}};
            });
            ventana.Abre();
        });
        ventana.resize(1180, 560);
        apoyo::Muestra(ventana);
        QTabBar& pasos = Control<QTabBar>(ventana, "pasos");
        QTest::mouseClick(&pasos, Qt::LeftButton, {}, pasos.tabRect(pasos.count() - 1).center());
    }
    [[nodiscard]] int Filas()
    {
        return Control<forms::TablaCuadro>(ventana, "tblTormenta").model()->rowCount();
    }
    [[nodiscard]] bool Visible(const char* campo) { return Control<QWidget>(ventana, campo).isVisible(); }

    apoyo::DiscoPrueba disco{};
    apoyo::Mundo mundo{};
    study::Abierto estudio{mundo.s};
    dlgTaller f{estudio};
    dlgTaller_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaTormenta, ElPatronSeEligeConElTecladoYSusCamposVan)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(Filas(), 12);
    EXPECT_FALSE(Visible("txtAvance"));
    auto& patron = Control<QComboBox>(ventana, "cmbPatron");
    patron.setFocus();
    QTest::keyClick(&patron, Qt::Key_Down);
    EXPECT_TRUE(Visible("txtAvance"));
    EXPECT_FALSE(Visible("cmbCuartil"));
    EXPECT_NE(DeQ(Control<QLabel>(ventana, "lblPatron").text()).find("Keifer y Chu (1957)"),
              std::string::npos);
    auto& paso = Control<QLineEdit>(ventana, "txtPaso");
    apoyo::Escribe(paso, "20");
    QTest::keyClick(&paso, Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([this] { return Filas() == 6; }));
    QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Filas(), 12);
    QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TallerDe(f).tormenta.patron, "bloques");
    EXPECT_FALSE(Visible("txtAvance"));
}

TEST_F(VentanaTormenta, LosBotonesEscribenYVuelven)
{
    const std::string tablas = disco.Bytes("/trabajo/TablasPDRs_pdr.vlm"),
                      distribuciones = disco.Bytes("/trabajo/distriPp_dpt.vlm");
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdDeshacerEscritura").isEnabled());
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdEscalar").isEnabled()) << "there is no recorded storm";
    Pulsa(Control<QPushButton>(ventana, "cmdLlenar"));
    Pulsa(Control<QPushButton>(ventana, "cmdEscribir"));
    EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 2U);
    EXPECT_EQ(HayEnTabla(mundo.s, 1).filas, 238);
    EXPECT_EQ(HayEnDistribucion(mundo.s, 1).filas, 12);
    auto& deshace = Control<QPushButton>(ventana, "cmdDeshacerEscritura");
    EXPECT_EQ(DeQ(deshace.text()), "Deshacer: Distribución personal 1...");
    Pulsa(deshace);
    Pulsa(deshace);
    EXPECT_FALSE(deshace.isEnabled());
    EXPECT_EQ(disco.Bytes("/trabajo/TablasPDRs_pdr.vlm"), tablas);
    EXPECT_EQ(disco.Bytes("/trabajo/distriPp_dpt.vlm"), distribuciones);
    EXPECT_TRUE(TallerDe(f).derivados.empty());
}

TEST_F(VentanaTormenta, ConElEditorAbiertoNoSeEscribe)
{
    const std::string tablas = disco.Bytes("/trabajo/TablasPDRs_pdr.vlm");
    QWidget editor;
    editor.setObjectName(QStringLiteral("dlgTablasPDRs"));
    editor.show();
    Pulsa(Control<QPushButton>(ventana, "cmdLlenar"));
    EXPECT_EQ(
        mundo.anfitrion->Avisos().back().texto,
        "Cierre antes la ventana de las tablas P-D-R, que tiene el archivo en mano y lo escribiría encima.");
    EXPECT_EQ(disco.Bytes("/trabajo/TablasPDRs_pdr.vlm"), tablas);
}

}  // namespace
}  // namespace frequency
