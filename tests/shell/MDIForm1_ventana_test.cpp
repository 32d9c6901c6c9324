// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MDIForm1_ventana.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSvgRenderer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "shell/Iconos_ventana.h"
#include "shell/RotuloProyecto_ventana.h"

namespace shell {
namespace {

using apoyo::Control;
using forms::Q;

struct MarcoEnPantalla : testing::Test {
    MarcoEnPantalla()
    {
        mandos.Abre = [this](Ventana v) { abiertas.push_back(v); };
        Abre(f);
        ventana.Abre();
        apoyo::Muestra(ventana);
    }
    apoyo::Mundo mundo{};
    MDIForm1 f{};
    Mandos mandos{};
    std::vector<Ventana> abiertas{};
    MDIForm1_ventana ventana{mundo.entorno, f, mandos};

    QAction& Accion(std::string_view nombre)
    {
        auto* const accion = ventana.findChild<QAction*>(Q(nombre));
        if (accion == nullptr) throw std::runtime_error(std::string(nombre));
        return *accion;
    }
    void PulsaBoton(const char* clave) { apoyo::Pulsa(Control<QToolButton>(ventana, clave)); }
    void Refresca()
    {
        carga_lbl_proyecto(f, mundo.s);
        ventana.Muestra();
    }
};

TEST_F(MarcoEnPantalla, TodoTieneNombre)
{
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
}

TEST_F(MarcoEnPantalla, MuestraTituloMenuYBarraDeLasTablas)
{
    EXPECT_EQ(forms::DeQ(ventana.windowTitle()), TituloMDIForm1);
    for (const FilaMenu& fila : MenuMDIForm1()) {
        if (fila.padre.empty()) {
            EXPECT_EQ(forms::DeQ(Control<QMenu>(ventana, std::string(fila.nombre).c_str()).title()),
                      fila.leyenda);
            continue;
        }
        const QAction& accion = Accion(fila.nombre);
        EXPECT_EQ(accion.isSeparator(), fila.leyenda == "-") << fila.nombre;
        if (!accion.isSeparator()) {
            EXPECT_EQ(forms::DeQ(accion.text()), fila.leyenda);
        }
    }
    auto& barra = Control<QToolBar>(ventana, "tbToolBar");
    ASSERT_EQ(static_cast<std::size_t>(barra.actions().size()), tbToolBar().size());
    EXPECT_EQ(barra.actions()[15]->objectName(), QStringLiteral("VerPizarra"));
    EXPECT_EQ(Accion("Corre1").toolTip(), QStringLiteral("Corre Proceso de Cálculo p/ 1 tormenta - "));
}

TEST_F(MarcoEnPantalla, CadaBotonTieneSuPropioDibujo)
{
    std::vector<QByteArray> dibujos;
    for (const FilaBarra& fila : tbToolBar()) {
        if (fila.clave.empty()) continue;
        const QString archivo = QStringLiteral(":/iconos/%1.svg").arg(Q(fila.clave));
        QFile svg(archivo);
        ASSERT_TRUE(svg.open(QIODevice::ReadOnly)) << fila.clave;
        dibujos.push_back(svg.readAll());
        EXPECT_TRUE(QSvgRenderer(dibujos.back()).isValid()) << fila.clave;
        EXPECT_FALSE(IconoDeBoton(fila.clave).pixmap(16, 16).toImage().allGray()) << fila.clave;
    }
    std::sort(dibujos.begin(), dibujos.end());
    EXPECT_EQ(std::adjacent_find(dibujos.begin(), dibujos.end()), dibujos.end());
    EXPECT_FALSE(IconoDelPrograma().pixmap(64, 64).isNull());
}

TEST_F(MarcoEnPantalla, LasTresEntradasNoDisponiblesSeVenAsi)
{
    EXPECT_FALSE(Accion("mnuGuardarProyectoComo").isEnabled());
    EXPECT_FALSE(Accion("mnu_prueba_funcionesSHVrepresas").isEnabled());
    EXPECT_FALSE(Accion("mnu_prueba_funcionesHQrepresas").isEnabled());
    f.Estado(Variable::mnuGuardarProyectoComo).habilitada = true;
    ventana.Muestra();
    EXPECT_TRUE(Accion("mnuGuardarProyectoComo").isEnabled());
}

TEST_F(MarcoEnPantalla, SinUltimoProyectoSuEntradaNoSeVe)
{
    EXPECT_FALSE(Accion("mnu_ultimoarchivo1").isVisible());
    f.Estado(Variable::mnu_ultimoarchivo1).leyenda = "a&b";
    ventana.Muestra();
    EXPECT_TRUE(Accion("mnu_ultimoarchivo1").isVisible());
    EXPECT_EQ(Accion("mnu_ultimoarchivo1").text(), QStringLiteral("a&&b"));
}

TEST_F(MarcoEnPantalla, UnBotonCorreSuComando)
{
    PulsaBoton("EntraPp");  // no project: in silence
    EXPECT_TRUE(abiertas.empty());
    mundo.s.Proyecto.NombreProyecto = "Mio";
    PulsaBoton("EntraPp");
    EXPECT_EQ(abiertas, std::vector<Ventana>{Ventana::dlgPp});
}

TEST_F(MarcoEnPantalla, LosTresBotonesSinAccionNoHacenNada)
{
    for (const char* const clave : {"Guardar", "Imprimir", "Ayuda"})
        PulsaBoton(clave);
    EXPECT_TRUE(abiertas.empty());
    EXPECT_TRUE(mundo.anfitrion->sucesos.empty());
    EXPECT_FALSE(mundo.entorno.Terminando());
}

TEST_F(MarcoEnPantalla, LasTeclasDelMenuCorrenSuComando)
{
    mundo.s.Proyecto.NombreProyecto = "Mio";
    QTest::keyClick(&ventana, Qt::Key_F4);
    EXPECT_EQ(abiertas, std::vector<Ventana>{Ventana::dlgPp});
}

TEST_F(MarcoEnPantalla, ElMenuSeRecorreConElTeclado)
{
    mundo.s.Serie.NroSeriePDR = 2;
    QTest::keyClick(&ventana, Qt::Key_S, Qt::AltModifier);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), QStringLiteral("mnuSalidas"));
    QTest::keyClick(menu, Qt::Key_M);
    EXPECT_EQ(abiertas, std::vector<Ventana>{Ventana::dlgEmpiricas});
}

TEST_F(MarcoEnPantalla, LaPizarraMuestraSuMarcaYSinProyectoLaPierde)
{
    Accion("mnuPizarra1").trigger();
    EXPECT_FALSE(Accion("mnuPizarra1").isChecked());
    ASSERT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(mundo.anfitrion->Avisos()[0].titulo, "Proyecto Inexistente...");
    mundo.s.Proyecto.NombreProyecto = "Mio";
    PulsaBoton("VerPizarra");
    EXPECT_TRUE(Accion("mnuPizarra1").isChecked());
    EXPECT_FALSE(Control<QToolButton>(ventana, "VerPizarra").isChecked());
    Accion("mnuPizarra1").trigger();
    EXPECT_FALSE(Accion("mnuPizarra1").isChecked());
}

TEST_F(MarcoEnPantalla, LosRotulosMuestranElProyecto)
{
    mundo.s.Proyecto.NombreProyecto = "Mio";
    mundo.s.frmConfigura.TextCuenca = "Alta";
    Refresca();
    EXPECT_EQ(Control<RotuloProyecto>(ventana, "lblProyecto").Texto(), QStringLiteral("Mio"));
    EXPECT_EQ(Control<RotuloProyecto>(ventana, "lblCuenca").Texto(), QStringLiteral("Alta"));
    EXPECT_EQ(Control<RotuloProyecto>(ventana, "lblFilesTrabajo").Texto(),
              QStringLiteral("Mio_UEH.vlm\nMio_VerCau.vlm"));
}

TEST_F(MarcoEnPantalla, UnRotuloCreceBajoElPunteroYVuelveCercaDeSuBorde)
{
    mundo.s.frmConfigura.TextProyecto = std::string(120, 'm');
    Refresca();
    auto& rotulo = Control<RotuloProyecto>(ventana, "lblTitulo");
    const QRect antes = rotulo.geometry();
    QTest::mouseMove(&rotulo, QPoint(20, 5));  // 300, 75
    ASSERT_TRUE(apoyo::Espera([&] { return rotulo.Crecido(); }));
    const int texto = rotulo.fontMetrics().horizontalAdvance(rotulo.Texto());
    EXPECT_GT(rotulo.width() * (rotulo.height() / rotulo.fontMetrics().lineSpacing()), texto);
    QTest::mouseMove(&rotulo, QPoint(45, 5));  // 675: beyond
    ASSERT_TRUE(apoyo::Espera([&] { return !rotulo.Crecido(); }));
    EXPECT_EQ(rotulo.geometry(), antes);
}

TEST_F(MarcoEnPantalla, ElRotuloDelProyectoNoCrece)
{
    mundo.s.Proyecto.NombreProyecto = std::string(120, 'm');
    Refresca();
    auto& rotulo = Control<RotuloProyecto>(ventana, "lblProyecto");
    QTest::mouseMove(&rotulo, QPoint(20, 5));
    EXPECT_FALSE(rotulo.Crecido());
}

TEST_F(MarcoEnPantalla, UnArchivoDeConfiguracionQueSeSueltaAbreSuProyecto)
{
    const auto suelta = [this](const QString& ruta) {
        QMimeData datos;
        datos.setUrls({QUrl::fromLocalFile(ruta)});
        QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&ventana, &entra);
        QDropEvent evento(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&ventana, &evento);
    };
    suelta(QDir::tempPath() + QStringLiteral("/otro.txt"));
    EXPECT_EQ(mundo.s.Proyecto.NombreProyecto, "");
    suelta(QDir::tempPath() + QStringLiteral("/Nada_Conf.vlm"));
    EXPECT_EQ(mundo.s.Proyecto.NombreProyecto, "Nada");
    EXPECT_EQ(mundo.anfitrion->guardarComoHabilitado, 1);
}

TEST_F(MarcoEnPantalla, CerrarLaVentanaTerminaElPrograma)
{
    ventana.close();
    EXPECT_TRUE(mundo.entorno.Terminando());
    EXPECT_TRUE(mundo.anfitrion->Preguntas().empty());
}

// --- the windows inside it ---

struct VentanasDelArea : MarcoEnPantalla {
    QWidget una{}, otra{};
    VentanasDelArea()
    {
        una.setObjectName(QStringLiteral("una"));
        una.setWindowTitle(QStringLiteral("Una & primera"));
        otra.setObjectName(QStringLiteral("otra"));
        otra.setWindowTitle(QStringLiteral("Otra"));
        ventana.Ventanas().Presenta(una);
        ventana.Ventanas().Presenta(otra);
    }
    QStringList Listadas()
    {
        auto& menu = Control<QMenu>(ventana, "mnuVentana");
        menu.popup(QPoint(0, 0));
        QStringList titulos;
        for (const QAction* accion : menu.actions())
            if (accion->isCheckable())
                titulos.append(accion->text() + (accion->isChecked() ? QStringLiteral("*") : QString()));
        menu.close();
        return titulos;
    }
};

TEST_F(VentanasDelArea, ElMenuListaLasVentanasAbiertasYMarcaLaDelFrente)
{
    EXPECT_EQ(Listadas(), (QStringList{QStringLiteral("&1 Una && primera"), QStringLiteral("&2 Otra*")}));
    ventana.Ventanas().Presenta(una);
    EXPECT_EQ(Listadas(), (QStringList{QStringLiteral("&1 Una && primera*"), QStringLiteral("&2 Otra")}));
}

TEST_F(VentanasDelArea, UnaVentanaQueSeCierraSeLlevaSuMarcoYPuedeVolver)
{
    otra.close();
    EXPECT_EQ(Listadas(), QStringList{QStringLiteral("&1 Una && primera*")});
    ventana.Ventanas().Presenta(otra);
    EXPECT_TRUE(otra.isVisible());
    EXPECT_EQ(Listadas().size(), 2);
    otra.parentWidget()->close();  // the frame's own button
    EXPECT_FALSE(otra.isVisible());
    ventana.Ventanas().Presenta(otra);
    EXPECT_TRUE(otra.isVisible());
}

TEST_F(VentanasDelArea, UnaMinimizadaVuelveAlPresentarse)
{
    otra.parentWidget()->showMinimized();
    EXPECT_EQ(Listadas().size(), 2);
    ventana.Ventanas().Presenta(otra);
    EXPECT_FALSE(otra.parentWidget()->isMinimized());
    EXPECT_TRUE(otra.isVisible());
}

TEST_F(VentanasDelArea, MosaicoYCascadaLasAcomodan)
{
    Accion("mnuVentanaMosaico").trigger();
    EXPECT_FALSE(una.parentWidget()->geometry().intersects(otra.parentWidget()->geometry()));
    Accion("mnuVentanaCascada").trigger();
    EXPECT_TRUE(una.parentWidget()->geometry().intersects(otra.parentWidget()->geometry()));
}

}  // namespace
}  // namespace shell
