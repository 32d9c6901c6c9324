// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteEventos_ventana.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <filesystem>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "calibration/taller/dlgAjuste_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Disco.h"
#include "model/VidaProyecto.h"
#include "study/Abierto.h"

namespace calibration {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

class VentanaEventos : public testing::Test {
  protected:
    VentanaEventos()
    {
        std::filesystem::copy(SIRO_DATA_DIR, carpeta.Camino(), std::filesystem::copy_options::recursive);
        mundo.s.Disco = model::DiscoDelSistema();
        mundo.s.Proyecto.DirTrabajo = mundo.s.Proyecto.DirEjecutable = carpeta.Camino().string();
        model::AbreProyectoDe(mundo.s, carpeta.Ruta("Proyectos/Quelmar_Conf.vlm"));
        mundo.s.Tormenta.PpTormenta = 80;
        mundo.s.Tormenta.DurTormenta = 120;
        mundo.s.Pasos.PasoQ = 5;
        mundo.entorno.Atiende([this] {
            estudio.Sigue();
            ventana.Abre();
        });
        ventana.resize(1180, 1000);
        apoyo::Muestra(ventana);
    }
    void Pulsa(const char* boton) { apoyo::Pulsa(Control<QPushButton>(pagina, boton)); }
    const study::Observacion& Observacion() const
    {
        return AjusteDe(f).eventos.at(static_cast<std::size_t>(f.evento)).observaciones.at(0);
    }
    std::string Avisos() { return DeQ(Control<QLabel>(pagina, "lblAvisos").text()); }

    apoyo::CarpetaTemporal carpeta{};
    apoyo::Mundo mundo{};
    study::Abierto estudio{mundo.s};
    dlgAjuste f{estudio, mundo.s};
    dlgAjuste_ventana ventana{mundo.entorno, f};
    QWidget& pagina = Control<QWidget>(ventana, "AjusteEventos");  // names come back on other pages
};

TEST_F(VentanaEventos, UnEventoSeAgregaSeEscribeYSeDeshaceConElTeclado)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    Pulsa("cmdNuevoEvento");
    ASSERT_EQ(AjusteDe(f).eventos.size(), 1U);
    auto& nombre = Control<QLineEdit>(pagina, "txtNombre");
    EXPECT_EQ(DeQ(nombre.text()), "Evento 1");
    apoyo::Escribe(nombre, "Crecida de otoño");
    QTest::keyClick(&nombre, Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([this] {
        return DeQ(Control<QComboBox>(ventana, "cmbEvento").currentText()) == "Crecida de otoño";
    }));
    auto& valores = Control<forms::TablaGrilla>(pagina, "grdValores");
    valores.setFocus();
    for (const char* celda : {"30", "2.5", "60", "7"}) {
        QTest::keyClicks(&valores, QString::fromUtf8(celda));
        QTest::keyClick(&valores, Qt::Key_Tab);
    }
    EXPECT_EQ(Observacion().puntos, (std::vector<study::Punto>{{30, 2.5}, {60, 7}}));
    EXPECT_TRUE(apoyo::Espera([this] { return Avisos().find("2 pares") != std::string::npos; })) << Avisos();
    EXPECT_NE(DeQ(Control<QWidget>(pagina, "lamEvento").accessibleDescription()).find("Observado"),
              std::string::npos);
    QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(apoyo::Espera([this] { return Observacion().puntos.size() == 1; }));
    QTest::keyClick(&ventana, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(apoyo::Espera([this] { return Observacion().puntos.size() == 2; }));
}

TEST_F(VentanaEventos, LaLluviaMuestraLosCamposDeSuOrigen)
{
    Pulsa("cmdNuevoEvento");
    const auto visibles = [this] {
        std::string t;
        for (const char* control : {"cmbTormenta", "txtLamina", "txtDuracion", "cmbDistribucion"})
            t += Control<QWidget>(pagina, control).isVisibleTo(&ventana) ? '1' : '0';
        return t;
    };
    auto& origen = Control<QComboBox>(pagina, "cmbOrigen");
    origen.setFocus();
    EXPECT_EQ(visibles(), "0000");
    QTest::keyClick(&origen, Qt::Key_Down);
    EXPECT_EQ(visibles(), "1000");
    QTest::keyClick(&origen, Qt::Key_Down);
    EXPECT_TRUE(apoyo::Espera([&] { return visibles() == "0111"; })) << visibles();
}

TEST_F(VentanaEventos, LaRuedaNoCambiaUnaListaPorLaQuePasa)
{
    Pulsa("cmdNuevoEvento");
    auto& origen = Control<QComboBox>(pagina, "cmbOrigen");
    const auto gira = [&] {
        const QPointF lugar = origen.rect().center();
        QWheelEvent rueda(lugar, origen.mapToGlobal(lugar), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&origen, &rueda);
        return origen.currentIndex();
    };
    Control<QLineEdit>(pagina, "txtNombre").setFocus();
    EXPECT_EQ(gira(), 0);
    origen.setFocus();
    EXPECT_EQ(gira(), 1);
}

TEST_F(VentanaEventos, LoCopiadoSeMiraAntesDeTomarlo)
{
    Pulsa("cmdNuevoEvento");
    QGuiApplication::clipboard()->setText(
        QStringLiteral("Hora\tCaudal (l/s)\n0:00\t500\n0:10\t-\n0:20\t2500,5\n0:20\t2500,5\n"));
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& caja) {
        EXPECT_EQ(apoyo::SinNombre(caja), std::vector<std::string>{});
        EXPECT_EQ(DeQ(Control<QComboBox>(caja, "cmbUnidad").currentText()), "l/s");
        EXPECT_EQ(Control<forms::TablaCuadro>(caja, "tblValores").model()->rowCount(), 2);
        EXPECT_EQ(Control<forms::TablaCuadro>(caja, "tblDudosos").model()->rowCount(), 1);
        EXPECT_NE(DeQ(Control<QLabel>(caja, "lblAvisos").text()).find("1 renglón no tiene valor"),
                  std::string::npos);
        apoyo::Pulsa(Control<QPushButton>(caja, "OKButton"));
    });
    Pulsa("cmdPegar");
    EXPECT_EQ(Observacion().puntos, (std::vector<study::Punto>{{0, 0.5}, {20, 2.5005}}));
}

TEST_F(VentanaEventos, LaRecesionSeMiraYSeAplicaSoloConSuBoton)
{
    Pulsa("cmdNuevoEvento");
    EXPECT_FALSE(Control<QPushButton>(pagina, "cmdBase").isEnabled());
    mundo.entorno.Atiende([this] {
        Cambia(f, "Valores", [&](study::Ajuste& a) {
            ObservacionDe(f, a).puntos = {{0, 1}, {60, 9}, {120, 4}, {180, 3}, {240, 2.2}, {300, 1.7}};
        });
    });
    ventana.Muestra();
    int veces = 0;
    f.Aplica = [&](const CambioDeProyecto&) { return ++veces > 0; };
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& caja) {
        EXPECT_EQ(apoyo::SinNombre(caja), std::vector<std::string>{});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&caja));
        EXPECT_EQ(DeQ(Control<QLineEdit>(caja, "txtDesde").text()), "180");
        EXPECT_TRUE(DeQ(Control<QLabel>(caja, "lblResultado").text()).starts_with("Q0 = "));
        apoyo::Escribe(Control<QLineEdit>(caja, "txtDesde"), "120");
        EXPECT_EQ(veces, 0);
        apoyo::Pulsa(Control<QPushButton>(caja, "cmdAplicar"));  // takes what is typed first
        EXPECT_EQ(veces, 1);
        const std::string resultado = DeQ(Control<QLabel>(caja, "lblResultado").text());
        EXPECT_NE(resultado.find("con 4 lecturas"), std::string::npos) << resultado;
        apoyo::Pulsa(Control<QPushButton>(caja, "OKButton"));
    });
    Pulsa("cmdBase");
}

}  // namespace
}  // namespace calibration
