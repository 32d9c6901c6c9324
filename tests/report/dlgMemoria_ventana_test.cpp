// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window of the memoria, with real clicks and keys.

#include "report/dlgMemoria_ventana.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "report/CorridaDeMuestra.h"
#include "report/Hojas_ventana.h"

namespace report {
namespace {

using apoyo::Control;
using apoyo::Pulsa;

class VentanaDeMemoria : public testing::Test {
  protected:
    static CorridaDeMuestra& Muestra()
    {
        static CorridaDeMuestra muestra;
        return muestra;
    }
    void SetUp() override
    {
        mundo.entorno.Ajustes().remove(QStringLiteral("memoria"));
        mundo.entorno.Presenta = [](QWidget& w) { apoyo::Muestra(w); };
        mundo.s.Proyecto.DirTrabajo = carpeta.Camino().string();
        ventana.DeQue = [this] { return datos; };
        ventana.Base = [this] { return carpeta.Ruta("Quelmar"); };
        ventana.AbreArchivo = [this](const std::string& ruta) {
            abierto = ruta;
            return true;
        };
    }
    void TearDown() override { mundo.entorno.Ajustes().remove(QStringLiteral("memoria")); }
    void Abre()
    {
        mundo.entorno.Atiende([this] { ventana.Abre(); });
    }
    std::string Nota() { return forms::DeQ(Control<QLabel>(ventana, "lblNota").text()); }
    bool Termina()
    {
        QElapsedTimer reloj;
        reloj.start();
        while (f.haciendo && reloj.elapsed() < 60000)
            QTest::qWait(10);
        return !f.haciendo;
    }
    /// Clicks on the box of an item.
    static void Tilda(QListWidget& lista, int item)
    {
        lista.scrollToItem(lista.item(item));
        const QRect sitio = lista.visualItemRect(lista.item(item));
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          sitio.topLeft() + QPoint(10, sitio.height() / 2));
    }

    apoyo::Mundo mundo{};
    apoyo::CarpetaTemporal carpeta{};
    Datos datos = Muestra().datos;
    dlgMemoria f{};
    dlgMemoria_ventana ventana{mundo.entorno, f};
    std::string abierto{};
};

TEST_F(VentanaDeMemoria, UnClicLaHaceYSeAbre)
{
    Abre();
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdAbrir").isEnabled());
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdCorrer").isVisible());
    Pulsa(Control(ventana, "cmdHacer"));
    EXPECT_TRUE(Control<QPushButton>(ventana, "CancelButton").isVisible());
    ASSERT_TRUE(Termina());
    const std::string ruta = carpeta.Ruta("Quelmar_memoria.pdf");
    EXPECT_EQ(Nota(), "La memoria está en " + ruta + ".");
    EXPECT_TRUE(apoyo::BytesDeArchivo(ruta).starts_with("%PDF"));
    EXPECT_FALSE(Control<QPushButton>(ventana, "CancelButton").isVisible());
    Pulsa(Control(ventana, "cmdAbrir"));
    EXPECT_EQ(abierto, ruta);
    // What it has written itself it writes over unasked.
    Pulsa(Control(ventana, "cmdHacer"));
    ASSERT_TRUE(Termina());
    EXPECT_TRUE(mundo.anfitrion->sucesos.empty());
}

TEST_F(VentanaDeMemoria, EscLaDejaEnElActoYElArchivoQuedaComoEstaba)
{
    const std::string ruta = carpeta.Ruta("Quelmar_memoria.pdf");
    Abre();
    Pulsa(Control(ventana, "cmdHacer"));
    ASSERT_TRUE(Termina());
    const std::string antes = apoyo::BytesDeArchivo(ruta);
    for (const int espera : {0, 40, 200, 500}) {
        f.papel = 1 - f.papel;
        Pulsa(Control(ventana, "cmdHacer"));
        QTest::qWait(espera);
        if (!f.haciendo) break;
        QElapsedTimer reloj;
        reloj.start();
        QTest::keyClick(&ventana, Qt::Key_Escape);
        EXPECT_LT(reloj.elapsed(), 100);
        EXPECT_FALSE(f.haciendo);
        EXPECT_EQ(Nota(), "Cancelada: el archivo queda como estaba.");
        QTest::qWait(100);
        EXPECT_TRUE(apoyo::BytesDeArchivo(ruta) == antes);
        EXPECT_TRUE(ventana.isVisible());
    }
}

TEST_F(VentanaDeMemoria, CapitulosComponentesYFormato)
{
    Abre();
    auto& capitulos = Control<QListWidget>(ventana, "lstCapitulos");
    ASSERT_GT(capitulos.count(), 8);
    EXPECT_EQ(forms::DeQ(capitulos.item(0)->text()), "Objeto");
    for (int i = 0; i < capitulos.count(); ++i)
        if (forms::DeQ(capitulos.item(i)->text()) != "Resultados") Tilda(capitulos, i);
    auto& compos = Control<QListWidget>(ventana, "lstCompos");
    ASSERT_GT(compos.count(), 10);
    Tilda(compos, 2);
    const std::string elegido = forms::DeQ(compos.item(2)->text());
    auto& formato = Control<QComboBox>(ventana, "cmbFormato");
    formato.setFocus();
    QTest::keyClick(&formato, Qt::Key_End);
    EXPECT_EQ(f.formato, 2);
    EXPECT_EQ(Control<QLineEdit>(ventana, "txtArchivo").text(),
              forms::Q(carpeta.Ruta("Quelmar_memoria.html")));
    apoyo::Escribe(Control(ventana, "txtTitulo"), "Presa Ñandú <b>");
    Pulsa(Control(ventana, "cmdHacer"));
    ASSERT_TRUE(Termina()) << Nota();
    const std::string html = apoyo::BytesDeArchivo(carpeta.Ruta("Quelmar_memoria.html"));
    EXPECT_NE(html.find("Presa Ñandú &lt;b&gt;"), std::string::npos);
    EXPECT_NE(html.find("Hidrograma de " + elegido), std::string::npos);
    EXPECT_EQ(html.find("Métodos</h1>"), std::string::npos);
    // Another window of the same user finds the choices.
    dlgMemoria otra;
    dlgMemoria_ventana segunda(mundo.entorno, otra);
    EXPECT_EQ(otra.formato, 2);
}

TEST_F(VentanaDeMemoria, UnArchivoAjenoSeReemplazaSoloSiElUsuarioQuiere)
{
    const std::string ruta = carpeta.Ruta("Quelmar_memoria.pdf");
    QFile ajeno(forms::Q(ruta));
    ASSERT_TRUE(ajeno.open(QIODevice::WriteOnly));
    ajeno.write("ajeno");
    ajeno.close();
    Abre();
    mundo.anfitrion->respuestas = {false};
    Pulsa(Control(ventana, "cmdHacer"));
    EXPECT_FALSE(f.haciendo);
    EXPECT_EQ(apoyo::BytesDeArchivo(ruta), "ajeno");
}

TEST_F(VentanaDeMemoria, SinCorridaLoDiceYOfreceCorrer)
{
    const Datos corridos = std::exchange(datos, Datos{});
    bool corrio = false;
    ventana.Corre = [&] {
        corrio = true;
        datos = corridos;
        ventana.Toma();
    };
    Abre();
    EXPECT_NE(Control<QLabel>(ventana, "lblCorrida").text().indexOf(QStringLiteral("F5")), -1);
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdHacer").isEnabled());
    Pulsa(Control(ventana, "cmdCorrer"));
    EXPECT_TRUE(corrio);
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdHacer").isEnabled());
    EXPECT_FALSE(Control<QPushButton>(ventana, "cmdCorrer").isVisible());
}

TEST_F(VentanaDeMemoria, UnaCorridaViejaSeDiceEnLaVentanaYEnLaMemoria)
{
    datos.cambios = "la tormenta era P 60 mm";
    f.formato = 2;
    Abre();
    EXPECT_TRUE(Control<QLabel>(ventana, "lblCorrida").text().contains(QStringLiteral("era P 60 mm")));
    EXPECT_TRUE(Control<QPushButton>(ventana, "cmdCorrer").isVisible());
    Pulsa(Control(ventana, "cmdHacer"));
    ASSERT_TRUE(Termina());
    EXPECT_NE(apoyo::BytesDeArchivo(carpeta.Ruta("Quelmar_memoria.html")).find("la tormenta era P 60 mm"),
              std::string::npos);
}

TEST_F(VentanaDeMemoria, LaVistaPreviaMuestraLasPaginas)
{
    Abre();
    Pulsa(Control(ventana, "cmdVista"));
    ASSERT_TRUE(Termina());
    const auto& hojas = Control<Hojas>(ventana, "hojas");
    ASSERT_GT(hojas.Paginas(), 10);
    Pulsa(Control(ventana, "cmdSiguiente"));
    Pulsa(Control(ventana, "cmdSiguiente"));
    EXPECT_EQ(hojas.Pagina(), 2);
    EXPECT_EQ(Control<QLabel>(ventana, "lblPagina").text(),
              QStringLiteral("Página 3 de %1").arg(hojas.Paginas()));
    EXPECT_FALSE(QFile::exists(forms::Q(carpeta.Ruta("Quelmar_memoria.pdf"))));
}

TEST_F(VentanaDeMemoria, LasFaltasDeLaPlantillaSeMuestranConSuRenglon)
{
    Abre();
    Pulsa(Control(ventana, "cmdPlantilla"));
    const std::string ruta = carpeta.Ruta("Plantillas/memoria.txt");
    ASSERT_EQ(abierto, ruta);
    QFile plantilla(forms::Q(ruta));
    ASSERT_TRUE(plantilla.open(QIODevice::WriteOnly | QIODevice::Truncate));
    plantilla.write("# Uno {uno}\n\n[[tabla inventada]]\n");
    plantilla.close();
    Pulsa(Control(ventana, "cmdVista"));
    ASSERT_TRUE(Termina());
    auto& faltas = Control<QLabel>(ventana, "lblFaltas");
    EXPECT_TRUE(faltas.isVisible());
    EXPECT_TRUE(faltas.text().contains(QStringLiteral("renglón 3")));
    EXPECT_EQ(Control<QListWidget>(ventana, "lstCapitulos").count(), 1);
}

TEST_F(VentanaDeMemoria, TodoTieneNombreParaElLectorDePantalla)
{
    Abre();
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
}

}  // namespace
}  // namespace report
