// SPDX-License-Identifier: GPL-3.0-or-later
//
// Runs that are kept, from the menu on: what leaves a row, what is done with one, what can't be written.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTableView>
#include <filesystem>
#include <fstream>
#include <map>

#include "EscritorioDePrueba.h"
#include "apoyo/Compara.h"
#include "apoyo/Ventanas.h"
#include "model/ArchivosTormenta.h"
#include "runs/LibroDeCorridas.h"
#include "runs/dlgCorridas_ventana.h"

namespace shell {
namespace {

namespace fs = std::filesystem;
using apoyo::Control;
using apoyo::Escribe;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;

class CorridasEnElEscritorio : public EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        escritorio.entorno.Ajustes().remove(QStringLiteral("Corridas/TopeMiB"));
    }
    void Corre(float pp, const char* cual = "mnuCorre1")
    {
        escritorio.entorno.Atiende([&] {
            escritorio.s.Tormenta.PpTormenta = pp;
            escritorio.s.Tormenta.DurTormenta = 120;
        });
        Accion(cual).trigger();
        EXPECT_TRUE(Espera([&] { return !escritorio.Estudio().Juicio().EnCurso(); }));
    }
    [[nodiscard]] std::vector<runs::RenglonDeLibro> Filas() const
    {
        return runs::ListaDe({.dirProyecto = instalacion.Proyectos(), .proyecto = "Quelmar"});
    }
    bool EsperaFilas(std::size_t n)
    {
        return Espera([&] { return Filas().size() == n; });
    }
    QWidget& Ventana() { return Control<QWidget>(escritorio.Principal(), "dlgCorridas"); }
    QTableView& Tabla() { return Control<QTableView>(Ventana(), "tblCorridas"); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila, columna).data().toString());
    }
    void Abre(int filas)
    {
        Accion("mnuCorridas").trigger();
        EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == filas; }));
    }
    void PulsaFila(int fila, Qt::KeyboardModifiers con = {})
    {
        QTest::mouseClick(Tabla().viewport(), Qt::LeftButton, con,
                          Tabla().visualRect(Tabla().model()->index(fila, 3)).center());
    }
    /// The model's files of the project.
    std::map<std::string, std::string> Vlm()
    {
        std::map<std::string, std::string> archivos;
        for (const auto& e : fs::directory_iterator(instalacion.Proyectos()))
            if (e.path().extension() == ".vlm")
                archivos[e.path().filename().string()] = apoyo::BytesDeArchivo(e.path());
        return archivos;
    }
};

TEST_F(CorridasEnElEscritorio, UnaTormentaDejaUnaFilaYUnaBarraNinguna)
{
    Corre(80);
    ASSERT_TRUE(EsperaFilas(1));
    const study::Ficha f = Filas()[0].ficha;
    EXPECT_EQ(f.clase, "una");
    EXPECT_EQ(f.huella, escritorio.Estudio().Juicio().Ultima()->huella);
    EXPECT_EQ(f.quien, escritorio.s.Configuracion.Operador);
    ASSERT_EQ(f.salidas.size(), 1U);
    EXPECT_GT(f.salidas[0].caudal, 0);
    auto& barra = Control<QSlider>(escritorio.Principal(), "sldPp");
    barra.setFocus();
    QTest::keyClick(&barra, Qt::Key_Right);
    EXPECT_TRUE(Espera([&] {
        const auto u = escritorio.Estudio().Juicio().Ultima();
        return !escritorio.Estudio().Juicio().EnCurso() && u->huella != f.huella;
    }));
    QTest::qWait(300);
    EXPECT_EQ(Filas().size(), 1U);
}

TEST_F(CorridasEnElEscritorio, UnaSerieDejaUnaFilaYUnaCorridaDetenidaNinguna)
{
    escritorio.entorno.Atiende([&] {
        escritorio.s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        escritorio.s.Tormenta.TablaPDR = 1;
        model::LeeTablaPDRs(escritorio.s);
    });
    Accion("mnuCorre2").trigger();
    ASSERT_TRUE(EsperaFilas(1));
    EXPECT_EQ(Filas()[0].ficha.clase, "serie");
    escritorio.entorno.Atiende([&] {
        escritorio.s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
        escritorio.s.Pasos = {.PasoPp = 10, .PasoQ = 4};  // which a check refuses
    });
    Corre(60);
    QTest::qWait(300);
    EXPECT_EQ(Filas().size(), 1U);
}

TEST_F(CorridasEnElEscritorio, TraeDeVueltaRedTormentaYResultadosSinTocarLosArchivos)
{
    Corre(80);
    const std::string huella = escritorio.Estudio().Juicio().Ultima()->huella;
    const model::Resultados resultados = escritorio.s.Resultados;
    Corre(60);
    ASSERT_TRUE(EsperaFilas(2));
    const auto antes = Vlm();
    Abre(2);
    EXPECT_EQ(Celda(0, 4).substr(0, 20), "Tormenta: P 60 mm, D");
    PulsaFila(1);
    Pulsa(Control<QPushButton>(Ventana(), "cmdTraer"));
    EXPECT_TRUE(Espera([&] {
        const auto u = escritorio.Estudio().Juicio().Ultima();
        return !escritorio.Estudio().Juicio().EnCurso() && u != nullptr && u->huella == huella;
    }));
    EXPECT_EQ(escritorio.s.Tormenta.PpTormenta, 80);
    EXPECT_TRUE(escritorio.s.Resultados.QSale == resultados.QSale);
    EXPECT_EQ(escritorio.Estudio().SelloDeResultados(), checks::SelloDe(escritorio.s));
    EXPECT_EQ(Vlm(), antes);
    EXPECT_EQ(Filas().size(), 2U) << "what is brought back is no new run";
}

TEST_F(CorridasEnElEscritorio, NombreNotaYFijadaQuedanEnElArchivo)
{
    Corre(80);
    ASSERT_TRUE(EsperaFilas(1));
    Abre(1);
    PulsaFila(0);
    Escribe(Control<QLineEdit>(Ventana(), "txtNombre"), "Sin presa, año 1");
    QTest::keyClick(&Control<QLineEdit>(Ventana(), "txtNombre"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Celda(0, 1) == "Sin presa, año 1"; }));
    Pulsa(Control<QCheckBox>(Ventana(), "chkFijada"));
    EXPECT_EQ(Celda(0, 2), "Sí");
    EXPECT_EQ(Filas()[0].ficha.nombre, "Sin presa, año 1");
    EXPECT_TRUE(Filas()[0].ficha.fijada);
    Escribe(Control<QLineEdit>(Ventana(), "txtFiltro"), "ANO presa");
    EXPECT_EQ(Tabla().model()->rowCount(), 1);
    Escribe(Control<QLineEdit>(Ventana(), "txtFiltro"), "otra");
    EXPECT_EQ(Tabla().model()->rowCount(), 0);
    EXPECT_TRUE(Control<QLabel>(Ventana(), "lblQueHacer").isVisible());
}

TEST_F(CorridasEnElEscritorio, LoBorradoVuelve)
{
    Corre(80);
    Corre(60);
    ASSERT_TRUE(EsperaFilas(2));
    Abre(2);
    PulsaFila(0);
    PulsaFila(1, Qt::ShiftModifier);
    EXPECT_FALSE(Control<QPushButton>(Ventana(), "cmdDeshacer").isEnabled());
    Pulsa(Control<QPushButton>(Ventana(), "cmdBorrar"));
    EXPECT_EQ(Filas().size(), 0U);
    EXPECT_EQ(Tabla().model()->rowCount(), 0);
    Pulsa(Control<QPushButton>(Ventana(), "cmdDeshacer"));
    EXPECT_EQ(Filas().size(), 2U);
    EXPECT_EQ(Tabla().model()->rowCount(), 2);
}

TEST_F(CorridasEnElEscritorio, ElTopeSeRecuerdaYConCeroNoSeGuarda)
{
    Abre(0);
    Escribe(Control<QLineEdit>(Ventana(), "txtTope"), "0");
    QTest::keyClick(&Control<QLineEdit>(Ventana(), "txtTope"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return runs::TopeDeCorridas(escritorio.entorno) == 0; }));
    Corre(80);
    QTest::qWait(300);
    EXPECT_EQ(Filas().size(), 0U);
    Escribe(Control<QLineEdit>(Ventana(), "txtTope"), "1");
    QTest::keyClick(&Control<QLineEdit>(Ventana(), "txtTope"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return runs::TopeDeCorridas(escritorio.entorno) == 1; }));
    Corre(80);
    EXPECT_TRUE(EsperaFilas(1));
}

TEST_F(CorridasEnElEscritorio, SiNoSePuedeEscribirSeDiceEnLaLineaDeEstadoYNadaMas)
{
    std::ofstream(instalacion.Proyectos() + "/Quelmar_corridas") << "un archivo con ese nombre";
    anfitrion->sucesos.clear();
    Corre(80);
    auto& linea = Control<QLabel>(escritorio.Principal(), "lblTormentaEnMano");
    EXPECT_TRUE(Espera(
        [&] { return DeQ(linea.toolTip()).find("La corrida no se guardó en ") != std::string::npos; }));
    EXPECT_TRUE(anfitrion->Avisos().empty());
    EXPECT_GT(escritorio.s.Resultados.NroPasosQ, 0);
    fs::remove(instalacion.Proyectos() + "/Quelmar_corridas");
    Corre(60);
    EXPECT_TRUE(EsperaFilas(1));
    EXPECT_TRUE(Espera(
        [&] { return DeQ(linea.toolTip()).find("La corrida no se guardó en ") == std::string::npos; }));
}

TEST_F(CorridasEnElEscritorio, AparteEsUnProyectoConLosArchivosDeLaCorrida)
{
    Corre(80);
    ASSERT_TRUE(EsperaFilas(1));
    Abre(1);
    PulsaFila(0);
    const std::string carpeta = instalacion.Dir() + "/Aparte";
    fs::create_directory(carpeta);
    escritorio.Estudio().CorridasGuardadas().Ventana()->EligeCarpeta = [&] { return carpeta; };
    const auto antes = Vlm();
    Pulsa(Control<QPushButton>(Ventana(), "cmdAparte"));
    EXPECT_TRUE(apoyo::MismoTexto(antes.at("Quelmar_UEHs.vlm"),
                                  apoyo::BytesDeArchivo(carpeta + "/Quelmar_UEHs.vlm")));
    EXPECT_EQ(escritorio.s.Proyecto.DirProyecto, carpeta) << "the user said that it be opened";
    EXPECT_EQ(escritorio.s.Tormenta.PpTormenta, 80);
    EXPECT_EQ(Vlm(), antes);
}

}  // namespace
}  // namespace shell
