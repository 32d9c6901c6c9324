// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart2_ventana.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>

#include "apoyo/Compara.h"
#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "engine/modProceso0.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/VidaProyecto.h"

namespace results {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

/// The sample project, run once with 80 mm in 120 min.
struct VentanaHidrogramas : testing::Test {
    VentanaHidrogramas()
    {
        namespace fs = std::filesystem;
        fs::copy(SIRO_DATA_DIR, carpeta.Camino(), fs::copy_options::recursive);
        mundo.s.Proyecto.DirTrabajo = mundo.s.Proyecto.DirEjecutable = carpeta.Camino().string();
        model::AbreProyectoDe(mundo.s, carpeta.Ruta("Proyectos/Quelmar_Conf.vlm"));
        mundo.s.Tormenta.PpTormenta = 80;
        mundo.s.Tormenta.DurTormenta = 120;
        mundo.s.Pasos.PasoPp = 10;
        mundo.s.Pasos.PasoQ = 5;
        EXPECT_TRUE(engine::CorreUnaTormenta(mundo.s));
        mundo.anfitrion->sucesos.clear();
    }
    void Abre()
    {
        ventana.resize(900, 600);
        ventana.Abre();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    QSlider& Pp() { return Control<QSlider>(ventana, "sldPp"); }
    QSlider& Dur() { return Control<QSlider>(ventana, "sldDur"); }
    std::string Texto(const char* rotulo) { return DeQ(Control<QLabel>(ventana, rotulo).text()); }
    std::string Descripcion() { return DeQ(Control<QWidget>(ventana, "Grafico").accessibleDescription()); }
    bool Elige(const char* prefijo)
    {
        auto& lista = Control<QListWidget>(ventana, "lstCompos");
        for (int i = 0; i < lista.count(); ++i) {
            if (!lista.item(i)->text().startsWith(QString::fromUtf8(prefijo))) continue;
            lista.scrollToItem(lista.item(i));
            QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                              lista.visualItemRect(lista.item(i)).center());
            return lista.currentRow() == i;
        }
        return false;
    }

    apoyo::CarpetaTemporal carpeta{};
    apoyo::Mundo mundo{};
    dlgChart2 f{};
    dlgChart2_ventana ventana{mundo.entorno, f};
};

TEST_F(VentanaHidrogramas, LoObservadoSigueALosDeslizadoresYSePrendeYSeApaga)
{
    Abre();
    EXPECT_FALSE(Control<QComboBox>(ventana, "cmbObservado").isVisible());
    std::vector<Observado> observados{{"Marzo", {{30, 2}, {60, 5}}}};
    f.Observados = [&](const std::string&) { return observados; };
    ventana.TomaObservado();
    auto& lista = Control<QComboBox>(ventana, "cmbObservado");
    EXPECT_TRUE(lista.isVisible());
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(f.Grafico.series.back().leyenda, "Observado: Marzo");
    EXPECT_NE(Descripcion().find("Observado: Marzo"), std::string::npos) << Descripcion();
    const double antes = f.Grafico.series.front().celdas[20];
    Pp().setFocus();
    QTest::keyClick(&Pp(), Qt::Key_PageUp);
    EXPECT_TRUE(Espera([&] { return f.Grafico.series.front().celdas[20] != antes; }));
    EXPECT_EQ(f.Grafico.series.back().leyenda, "Observado: Marzo");
    EXPECT_EQ(f.Grafico.series.back().celdas[11], 5);
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_NE(f.Grafico.series.back().leyenda, "Observado: Marzo");
    EXPECT_EQ(Descripcion().find("Observado"), std::string::npos);
    EXPECT_EQ(lista.currentIndex(), 0);
    observados.clear();
    ventana.TomaObservado();
    EXPECT_FALSE(lista.isVisible());
}

TEST_F(VentanaHidrogramas, SeAbreEnElPrimerComponenteConSusControles)
{
    Abre();
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Hidrograma");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_EQ(Texto("lblTitulo"), f.lblTitulo);
    EXPECT_EQ(Texto("lblNota"), "SIRO: Modelo hidrológico de simulación lluvia-caudal");
    EXPECT_EQ(Texto("lblPp"), "Pp");
    EXPECT_EQ(Texto("lblDur"), "D ");
    EXPECT_EQ(DeQ(Dur().toolTip()), "Variador de Duración de Tormenta [min]");
    EXPECT_EQ(DeQ(Pp().toolTip()), "Variador de Pp[mm]");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdXmas").text()), "+DivideEjeX");
    EXPECT_EQ(DeQ(Control<QPushButton>(ventana, "cmdXmenos").text()), "-DivideEjeX");
    EXPECT_EQ(Control<QListWidget>(ventana, "lstCompos").count(), mundo.s.Resultados.NroComponentes);
    EXPECT_EQ(Control<QListWidget>(ventana, "lstCompos").currentRow(), 0);
    EXPECT_NE(Descripcion().find(f.lblTitulo + ". "), std::string::npos);
}

TEST_F(VentanaHidrogramas, LosDeslizadoresTienenSusTopesSusPasosYLaTormenta)
{
    Abre();
    EXPECT_EQ(Pp().minimum(), 0);
    EXPECT_EQ(Pp().maximum(), 999);
    EXPECT_EQ(Dur().minimum(), 5);
    EXPECT_EQ(Dur().maximum(), 2880);
    for (const QSlider* deslizador : {&Pp(), &Dur()}) {
        EXPECT_EQ(deslizador->singleStep(), 1);
        EXPECT_EQ(deslizador->pageStep(), 5);
    }
    EXPECT_EQ(Pp().value(), 80);
    EXPECT_EQ(Dur().value(), 120);
    EXPECT_EQ(Texto("lblValorPp"), "80 mm");
    EXPECT_EQ(Texto("lblValorDur"), "120 min");
}

TEST_F(VentanaHidrogramas, CadaComponenteElegidoSeDibuja)
{
    Abre();
    ASSERT_TRUE(Elige("c-"));
    EXPECT_NE(Texto("lblTitulo").find(", c-"), std::string::npos);
    EXPECT_EQ(f.Grafico.series.size(), 2U);
    ASSERT_TRUE(Elige("r-"));
    EXPECT_EQ(f.Grafico.series.size(), 3U);
    ASSERT_TRUE(Elige("l-"));
    EXPECT_EQ(mundo.s.Control.IndComp, Control<QListWidget>(ventana, "lstCompos").currentRow() + 1);
}

TEST_F(VentanaHidrogramas, PulsarElComponenteElegidoLoDibujaDeNuevo)
{
    Abre();
    ASSERT_TRUE(Elige("u-"));
    EXPECT_TRUE(Pp().isVisible());
    mundo.s.Tormenta.FormaPp = 3;  // settled elsewhere while the window is open
    ASSERT_TRUE(Elige("u-"));
    EXPECT_FALSE(Pp().isVisible());
    EXPECT_FALSE(Dur().isVisible());
}

TEST_F(VentanaHidrogramas, HorasYMinutosYLasDivisionesDelEje)
{
    Abre();
    auto& lamina = static_cast<forms::Lamina&>(Control<QWidget>(ventana, "Grafico"));
    EXPECT_EQ(f.Grafico.ejeX, "horas");
    Pulsa(Control<QPushButton>(ventana, "cmdHsMin"));
    EXPECT_EQ(f.Grafico.ejeX, "minutos");
    EXPECT_NE(Descripcion().find(" minutos."), std::string::npos);
    for (int i = 0; i < 5; ++i)
        Pulsa(Control<QPushButton>(ventana, "cmdXmas"));
    EXPECT_TRUE(Espera([&] {
        return lamina.RotulosEnVista() ==
               QStringList({QStringLiteral("160"), QStringLiteral("320"), QStringLiteral("480")});
    }));
    Pulsa(Control<QPushButton>(ventana, "cmdXmenos"));
    EXPECT_TRUE(Espera([&] { return lamina.RotulosEnVista().constFirst() == QStringLiteral("80"); }));
}

TEST_F(VentanaHidrogramas, LasTeclasDelDeslizadorCorrenLaTormenta)
{
    Abre();
    Pp().setFocus();
    QTest::keyClick(&Pp(), Qt::Key_Right);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 81; }));
    EXPECT_NE(Texto("lblTitulo").find("Pp= 81mm"), std::string::npos);
    QTest::keyClick(&Pp(), Qt::Key_PageUp);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 86; }));
    Dur().setFocus();
    QTest::keyClick(&Dur(), Qt::Key_PageUp);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.DurTormenta == 125; }));
    EXPECT_EQ(Texto("lblValorDur"), "125 min");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(VentanaHidrogramas, DeVariosMovimientosSeguidosSoloCuentaElUltimo)
{
    Abre();
    mundo.s.Control.SalidaPizarra = true;
    int corridas = 0;
    mundo.s.Anfitrion.PonPizarra = [&](std::string_view texto) { corridas += texto == "inicia"; };
    Pp().setFocus();
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&Pp(), Qt::Key_Right);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 100; }));
    EXPECT_LT(corridas, 20);
    EXPECT_EQ(Pp().value(), 100);
}

TEST_F(VentanaHidrogramas, ElPunteroEsperaDuranteLaCorridaYNoDespues)
{
    Abre();
    mundo.s.Control.SalidaPizarra = true;
    bool esperaba = false;
    mundo.s.Anfitrion.PonPizarra = [&](std::string_view) {
        esperaba = QGuiApplication::overrideCursor() != nullptr &&
                   QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
    };
    QTest::keyClick(&Dur(), Qt::Key_Right);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.DurTormenta == 121; }));
    EXPECT_TRUE(esperaba);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(VentanaHidrogramas, LaLluviaPorDebajoDelPasoVuelveAlPaso)
{
    Abre();
    QTest::keyClick(&Pp(), Qt::Key_Home);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 10; }));
    EXPECT_TRUE(Espera([&] { return Pp().value() == 10; }));
    EXPECT_EQ(Texto("lblValorPp"), "10 mm");
}

TEST_F(VentanaHidrogramas, AbrirNoCorreNada)
{
    mundo.s.Control.SalidaPizarra = true;
    int corridas = 0;
    mundo.s.Anfitrion.PonPizarra = [&](std::string_view) { ++corridas; };
    Abre();
    QCoreApplication::processEvents();
    EXPECT_EQ(corridas, 0);
}

TEST_F(VentanaHidrogramas, ConLluviaPorUEHNoHayDeslizadores)
{
    mundo.s.Tormenta.FormaPp = 3;
    Abre();
    for (const char* nombre : {"sldPp", "sldDur", "lblPp", "lblDur", "lblValorPp", "lblValorDur"})
        EXPECT_FALSE(Control<QWidget>(ventana, nombre).isVisible()) << nombre;
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdHsMin").isVisible());
}

TEST_F(VentanaHidrogramas, LosDeslizadoresVuelvenConLaProximaTormentaUnica)
{
    Abre();
    mundo.s.Tormenta.FormaPp = 2;  // a series is run while the window is open
    ASSERT_TRUE(Elige("c-"));
    EXPECT_FALSE(Pp().isVisible());
    mundo.s.Tormenta.FormaPp = 0;
    ventana.Abre();  // as a run of one storm does at its end
    EXPECT_TRUE(Pp().isVisible());
    EXPECT_TRUE(Dur().isVisible());
    mundo.s.Tormenta.FormaPp = 3;
    ASSERT_TRUE(Elige("u-"));
    EXPECT_FALSE(Pp().isVisible());
    mundo.s.Tormenta.FormaPp = 1;
    ASSERT_TRUE(Elige("u-"));
    EXPECT_TRUE(Pp().isVisible());
}

TEST_F(VentanaHidrogramas, DeUnaRepresaSaleLaNotaDeLosNombresCambiados)
{
    Abre();
    const char* const nota =
        "Los nombres Qentra y Qsale de la leyenda están cambiados: la curva llamada Qentra es la salida.";
    ASSERT_TRUE(Elige("r-"));
    EXPECT_EQ(f.Grafico.salvedad, nota);
    apoyo::ImpresoraDePrueba impresora;
    mundo.entorno.Impresora = impresora.Puerta();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_NE(impresora.Texto(1).find(nota), std::string::npos) << impresora.Texto(1);
    EXPECT_EQ(impresora.Titulo(), "Hidrograma - " + f.componente);
    ASSERT_TRUE(Elige("l-"));
    EXPECT_EQ(f.Grafico.salvedad, nota);
    ASSERT_TRUE(Elige("c-"));
    EXPECT_EQ(f.Grafico.salvedad, "");
}

TEST_F(VentanaHidrogramas, SinResultadosOEnSerieSeCierraSola)
{
    mundo.s.Tormenta.FormaPp = 2;
    ventana.Abre();
    EXPECT_FALSE(ventana.isVisible());
    mundo.s.Tormenta.FormaPp = 0;
    Abre();
    mundo.s.Resultados.NroPasosQ = 0;
    QTest::keyClick(&Control<QListWidget>(ventana, "lstCompos"), Qt::Key_Down);
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(VentanaHidrogramas, PasosQueNoSonMultiplosSeDicenUnaVezYElGraficoQueda)
{
    Abre();
    const forms::Grafico antes = f.Grafico;
    mundo.s.Pasos.PasoQ = 7;
    ASSERT_TRUE(Elige("c-"));
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(mundo.anfitrion->Avisos().front().titulo, "Advertencia !");
    EXPECT_EQ(f.Grafico, antes);
}

TEST_F(VentanaHidrogramas, SeImprimeElGraficoSoloYTodoVuelve)
{
    const QTemporaryDir hojas;
    const QString ruta = hojas.filePath(QStringLiteral("h.pdf"));
    Abre();
    bool alImprimir = true;
    int ancho = 0;
    mundo.entorno.Impresora = [&] {
        for (const char* nombre : {"lstCompos", "sldPp", "sldDur", "lblPp", "lblDur", "cmdHsMin", "cmdXmas",
                                   "cmdXmenos", "cmdImprimir", "OKButton"})
            if (Control<QWidget>(ventana, nombre).isVisible()) alImprimir = false;
        ancho = Control<QWidget>(ventana, "Grafico").width();
        auto impresora = std::make_unique<QPrinter>();
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(ruta);
        return impresora;
    };
    const int antes = Control<QWidget>(ventana, "Grafico").width();
    Pulsa(Control<QPushButton>(ventana, "cmdImprimir"));
    EXPECT_TRUE(apoyo::BytesDeArchivo(DeQ(ruta)).starts_with("%PDF"));
    EXPECT_TRUE(alImprimir);
    EXPECT_GT(ancho, antes);
    EXPECT_TRUE(Control<QListWidget>(ventana, "lstCompos").isVisible());
    EXPECT_TRUE(Pp().isVisible());
    EXPECT_TRUE(Espera([&] { return Control<QWidget>(ventana, "Grafico").width() == antes; }));
}

TEST_F(VentanaHidrogramas, SeCierraConElBotonYConElMarcoYSeVuelveAAbrir)
{
    Abre();
    Pulsa(Control<QPushButton>(ventana, "OKButton"));
    EXPECT_FALSE(ventana.isVisible());
    Abre();
    EXPECT_TRUE(ventana.isVisible());
    ventana.close();
    EXPECT_FALSE(f.abierta);
    QCoreApplication::processEvents();
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(VentanaHidrogramas, UnMovimientoPendienteNoCorreTrasElCierre)
{
    Abre();
    Pp().setFocus();
    QTest::keyClick(&Pp(), Qt::Key_Right);
    ventana.close();
    QTest::qWait(20);
    EXPECT_EQ(mundo.s.Tormenta.PpTormenta, 80);
    EXPECT_FALSE(ventana.isVisible());
}

}  // namespace
}  // namespace results
