// SPDX-License-Identifier: GPL-3.0-or-later
//
// The road of a storm from the user's keys to the results: what the windows of the rain take in and the menu
// runs is what siro-lote runs from the same files.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTimer>
#include <filesystem>
#include <regex>

#include "EscritorioDePrueba.h"
#include "apoyo/Compara.h"
#include "e2e/Programa.h"
#include "model/Texto.h"

namespace shell {
namespace {

namespace fs = std::filesystem;
using apoyo::BytesDeArchivo;
using apoyo::Control;
using apoyo::Escribe;
using apoyo::Espera;
using apoyo::MismoTexto;
using apoyo::Pulsa;
using apoyo::Teclea;
using forms::DeQ;
using Textos = std::vector<std::string>;

/// The Slate tells when it was written; two runs tell it differently.
std::string SinHora(const std::string& texto)
{
    return std::regex_replace(texto, std::regex("[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{1,2}:[0-9]{2}:[0-9]{2}"),
                              "dd/mm/aaaa hh:mm:ss");
}

class LluviaEnElEscritorio : public EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        Arranca(instalacion.Quelmar());
        escritorio.s.Anfitrion.Confirma = anfitrion.Puerta().Confirma;
        anfitrion->sucesos.clear();
    }
    void TearDown() override
    {
        std::error_code error;
        fs::remove_all(Copia(), error);
    }

    /// A step of the user at the next modal window, once it has the focus.
    void Hace(const std::function<void(QWidget&)>& paso)
    {
        usuario->Hace([paso](QWidget& ventana) {
            // This screen leaves the focus where it was when a window opens out of a click.
            ventana.activateWindow();
            EXPECT_TRUE(Espera([&] { return QApplication::activeWindow() == &ventana; }));
            paso(ventana);
        });
    }
    /// Presses what opens another modal window, once the present step of the user is over.
    static void PulsaDespues(QWidget& ventana, const char* boton)
    {
        QTimer::singleShot(0, &ventana, [&ventana, boton] { Pulsa(Control<QPushButton>(ventana, boton)); });
    }
    static void PonFilas(QWidget& ventana, const char* campo, const char* n, int filas)
    {
        Escribe(Control<QLineEdit>(ventana, campo), n);
        QTest::keyClick(&Control<QLineEdit>(ventana, campo), Qt::Key_Tab);
        auto* const modelo = ventana.findChild<QTableView*>()->model();
        ASSERT_TRUE(Espera([&] { return modelo->rowCount() == filas; }));
    }
    /// Types a column down from the first row.
    static void TecleaColumna(QTableView& tabla, std::initializer_list<const char*> valores)
    {
        tabla.setFocus(Qt::TabFocusReason);
        for (const char* valor : valores) {
            Teclea(tabla, valor);
            QTest::keyClick(&tabla, Qt::Key_Return);
        }
    }

    /// The installation with all that the user has stored in it, for the program without windows.
    [[nodiscard]] std::string Copia() const { return instalacion.Dir() + "-lote"; }
    e2e::Salida Lote(Textos argumentos)
    {
        fs::copy(instalacion.Dir(), Copia(), fs::copy_options::recursive);
        for (const char* archivo : {"/SalePizarra1_tem.txt", "/SaleTablasQDRs_tem.txt"})
            fs::remove(Copia() + archivo);
        argumentos.insert(argumentos.begin() + 1, {instalacion.Quelmar(), "--trabajo", Copia()});
        return e2e::Lote(argumentos, "/");
    }
    /// The hash of the window's last run is the one that the run without windows tells.
    void ComparaHuella(const e2e::Salida& lote)
    {
        JuicioDeCorrida& juicio = escritorio.Estudio().Juicio();
        ASSERT_TRUE(Espera([&] { return !juicio.EnCurso() && juicio.Ultima() != nullptr; }));
        EXPECT_EQ(juicio.Ultima()->huella.size(), 64U);
        EXPECT_NE(lote.estandar.find("\nhuella " + juicio.Ultima()->huella + "\n"), std::string::npos)
            << juicio.Ultima()->huella << "\n"
            << lote.estandar.substr(lote.estandar.rfind("\nhuella ") + 1);
    }
    /// Runs from the menu with the Slate on, then the same without windows, and compares what both wrote.
    void CorreYCompara(const Textos& argumentos)
    {
        Accion("mnuPizarra1").trigger();
        Accion("mnuCorre1").trigger();
        Textos una = {"una", "--pizarra", "--avisos"};
        una.insert(una.end(), argumentos.begin(), argumentos.end());
        const e2e::Salida salida = Lote(una);
        ASSERT_EQ(salida.estado, 0) << salida.errores;
        const std::string texto = BytesDeArchivo(instalacion.Dir() + "/SalePizarra1_tem.txt");
        EXPECT_GT(texto.size(), 10000U);
        EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(Copia() + "/SalePizarra1_tem.txt")), SinHora(texto)));
        ComparaHuella(salida);
    }

    std::unique_ptr<apoyo::Usuario> usuario = std::make_unique<apoyo::Usuario>();
};

TEST_F(LluviaEnElEscritorio, UnaTormentaTecleadaCorreComoLaDeSiroLote)
{
    anfitrion->textos = {"Temporal"};
    Hace([](QWidget& lluvia) {
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_4"));
        PulsaDespues(lluvia, "cmdPpReal");
    });
    Hace([](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgPpReal");
        Pulsa(Control<QPushButton>(editor, "cmdNuevaPpReal"));
        Escribe(Control<QLineEdit>(editor, "txtNotas"), "tecleada");
        PonFilas(editor, "txtNroPpReal", "4", 4);
        TecleaColumna(Control<QTableView>(editor, "MSFlexGridTablaPpReal"), {"5,5", "20", "12.25", "3"});
        Pulsa(Control<QPushButton>(editor, "OKButton"));
    });
    Hace([](QWidget& lluvia) {
        auto& lista = Control<QListWidget>(lluvia, "FilePpReal");
        const auto items = lista.findItems(QStringLiteral("Temporal_pt.vlm"), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(items.front()).center());
        EXPECT_EQ(DeQ(Control<QLabel>(lluvia, "lblMiFilePpReal").text()), "Temporal_pt.vlm");
        EXPECT_EQ(DeQ(Control<QLineEdit>(lluvia, "txtPp").text()), "40.75");
        Pulsa(Control<QPushButton>(lluvia, "OKButton"));
    });
    Accion("mnufrmPp").trigger();
    EXPECT_EQ(escritorio.s.Tormenta.FormaPp, 4);
    EXPECT_EQ(escritorio.s.Tormenta.PpTormenta, 40.75F);
    EXPECT_TRUE(BytesDeArchivo(instalacion.Proyectos() + "/Temporal_pt.vlm")
                    .ends_with("5.5\r\n20\r\n12.25\r\n3\r\n"));
    CorreYCompara({"--forma", "4", "--tormenta", "Temporal_pt.vlm", "--paso-q",
                   std::to_string(escritorio.s.Pasos.PasoQ)});
}

TEST_F(LluviaEnElEscritorio, UnaDistribucionDeDoceYMedioCorreConNumerosEnteros)
{
    Hace([](QWidget& lluvia) {
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_0"));
        Pulsa(Control<QRadioButton>(lluvia, "optDistriPp_7"));
        PulsaDespues(lluvia, "cmdPpPerso");
    });
    Hace([](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgDisPpPer");
        EXPECT_EQ(DeQ(Control<QComboBox>(editor, "cmbNroTablaDisPpPer").currentText()), "3");
        PonFilas(editor, "txtNroPer", "2", 2);
        TecleaColumna(Control<QTableView>(editor, "MSFlexGridDisPerso"), {"12,5", "87.5"});
        Pulsa(Control<QPushButton>(editor, "OKButton"));
    });
    Hace([](QWidget& lluvia) {
        Escribe(Control<QLineEdit>(lluvia, "txtPp"), "50");
        Escribe(Control<QLineEdit>(lluvia, "txtDur"), "60");
        Pulsa(Control<QPushButton>(lluvia, "OKButton"));
    });
    Accion("mnufrmPp").trigger();
    EXPECT_TRUE(BytesDeArchivo(instalacion.Dir() + "/distriPp_dpt.vlm").ends_with("12.5\r\n87.5\r\n"));
    CorreYCompara({"--pp", "50", "--dur", "60", "--distribucion", "7"});
    // 12 % and 88 % of 50 mm: the file holds decimals, its reader takes whole numbers.
    EXPECT_EQ(escritorio.s.Tormenta.PpReal(1), 6.0F);
    EXPECT_EQ(escritorio.s.Tormenta.PpReal(2), 44.0F);
}

TEST_F(LluviaEnElEscritorio, UnaSerieDeTablaPersonalCorreComoLaDeSiroLote)
{
    Hace([](QWidget& lluvia) {
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_2"));
        Pulsa(Control<QRadioButton>(lluvia, "optTablaPDR_1"));
        PulsaDespues(lluvia, "cmdTablaPDR");
    });
    Hace([](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgTablasPDRs");
        PonFilas(editor, "txtNroPDRs", "3", 3);
        auto& tabla = Control<QTableView>(editor, "MSFlexGridTablaPDRs");
        tabla.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&tabla, Qt::Key_Home, Qt::ControlModifier);
        for (const char* valor : {"30", "60", "2", "45", "120", "2", "52", "60", "10"}) {
            Teclea(tabla, valor);
            QTest::keyClick(&tabla, Qt::Key_Tab);
        }
        Pulsa(Control<QPushButton>(editor, "OKButton"));
    });
    Hace([](QWidget& lluvia) {
        EXPECT_EQ(DeQ(Control<QLineEdit>(lluvia, "txtPp").text()), "30");
        Pulsa(Control<QPushButton>(lluvia, "OKButton"));
    });
    Accion("mnufrmPp").trigger();
    EXPECT_EQ(escritorio.s.Serie.NroSeriePDR, 3);
    Accion("mnuCorre2").trigger();
    const e2e::Salida salida = Lote({"serie", "--tabla", "1", "--avisos"});
    ASSERT_EQ(salida.estado, 0) << salida.errores;
    const std::string texto = BytesDeArchivo(instalacion.Dir() + "/SaleTablasQDRs_tem.txt");
    EXPECT_GT(texto.size(), 500U);
    EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(Copia() + "/SaleTablasQDRs_tem.txt")), SinHora(texto)));
    ComparaHuella(salida);
}

// The first row of the delivered table: 14 mm in 10 min, 2 years.
TEST_F(LluviaEnElEscritorio, LaTablaQueSeEligeYSeAplicaYaSeVeDetras)
{
    QWidget* detras = nullptr;
    Hace([&](QWidget& lluvia) {
        detras = &lluvia;
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_2"));
        Pulsa(Control<QRadioButton>(lluvia, "optTablaPDR_1"));
        PulsaDespues(lluvia, "cmdTablaPDR");
    });
    Hace([&](QWidget& tablas) {
        EXPECT_EQ(DeQ(tablas.objectName()), "dlgTablasPDRs");
        QTest::keyClick(&Control<QComboBox>(tablas, "cmbNroTablaPDRs"), Qt::Key_Up);
        EXPECT_TRUE(Control<QRadioButton>(*detras, "optTablaPDR_0").isChecked());
        EXPECT_FALSE(Control<QPushButton>(*detras, "cmdTablaPDR").isEnabled());
        EXPECT_NE(DeQ(Control<QLineEdit>(*detras, "txtPp").text()), "14");
        Pulsa(Control<QPushButton>(tablas, "cmdAplicar"));
        EXPECT_TRUE(tablas.isVisible());
        EXPECT_EQ(DeQ(Control<QLineEdit>(*detras, "txtPp").text()), "14");
        EXPECT_EQ(DeQ(Control<QLineEdit>(*detras, "txtDur").text()), "10");
        EXPECT_EQ(DeQ(Control<QComboBox>(*detras, "cmbRec").currentText()), "2");
        Pulsa(Control<QPushButton>(tablas, "OKButton"));
    });
    Hace([](QWidget& lluvia) { Pulsa(Control<QPushButton>(lluvia, "OKButton")); });
    Accion("mnufrmPp").trigger();
}

TEST_F(LluviaEnElEscritorio, LaDistribucionQueSeEligeYSusLimitesYaSeVenDetras)
{
    QWidget* detras = nullptr;
    Hace([&](QWidget& lluvia) {
        detras = &lluvia;
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_0"));
        Pulsa(Control<QRadioButton>(lluvia, "optDistriPp_7"));
        PulsaDespues(lluvia, "cmdPpPerso");
    });
    Hace([&](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgDisPpPer");
        QTest::keyClick(&Control<QComboBox>(editor, "cmbNroTablaDisPpPer"), Qt::Key_Up);
        EXPECT_TRUE(Control<QRadioButton>(*detras, "optDistriPp_6").isChecked());
        auto& minima = Control<QComboBox>(editor, "cmbDurMin");
        const std::string antes = DeQ(minima.currentText());
        EXPECT_EQ(DeQ(Control<QLabel>(*detras, "lblDurMin").text()), antes);
        QTest::keyClick(&minima, Qt::Key_Down);
        EXPECT_NE(DeQ(minima.currentText()), antes);
        EXPECT_EQ(DeQ(Control<QLabel>(*detras, "lblDurMin").text()), DeQ(minima.currentText()));
        Pulsa(Control<QPushButton>(editor, "CancelButton"));
    });
    Hace([](QWidget& lluvia) { Pulsa(Control<QPushButton>(lluvia, "CancelButton")); });
    Accion("mnufrmPp").trigger();
}

TEST_F(LluviaEnElEscritorio, LaTormentaNuevaYaSeVeEnLaListaDeDetras)
{
    anfitrion->textos = {"Temporal"};
    QWidget* detras = nullptr;
    Hace([&](QWidget& lluvia) {
        detras = &lluvia;
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_4"));
        PulsaDespues(lluvia, "cmdPpReal");
    });
    Hace([&](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgPpReal");
        auto& lista = Control<QListWidget>(*detras, "FilePpReal");
        const int archivos = lista.count();
        const std::string elegida = DeQ(lista.currentItem()->text());
        Pulsa(Control<QPushButton>(editor, "cmdNuevaPpReal"));
        EXPECT_EQ(lista.count(), archivos + 1);
        EXPECT_EQ(DeQ(lista.currentItem()->text()), elegida);
        Pulsa(Control<QPushButton>(editor, "cmdAplicar"));
        EXPECT_TRUE(editor.isVisible());
        EXPECT_EQ(DeQ(Control<QLabel>(*detras, "lblMiFilePpReal").text()), "Temporal_pt.vlm");
        EXPECT_EQ(DeQ(lista.currentItem()->text()), "Temporal_pt.vlm");
        Pulsa(Control<QPushButton>(editor, "CancelButton"));
    });
    Hace([](QWidget& lluvia) { Pulsa(Control<QPushButton>(lluvia, "CancelButton")); });
    Accion("mnufrmPp").trigger();
}

TEST_F(LluviaEnElEscritorio, LaLluviaPorUEHYaSeVeDetras)
{
    QWidget* detras = nullptr;
    Hace([&](QWidget& lluvia) {
        detras = &lluvia;
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_3"));
        PulsaDespues(lluvia, "cmdCargaPDRnoUniforme");
    });
    Hace([&](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgTablaPpUEHs");
        Escribe(Control<QLineEdit>(editor, "txtDPpUEHs"), "120");
        Escribe(Control<QLineEdit>(editor, "txtRPpUEHs"), "25");
        auto& tabla = Control<QTableView>(editor, "MSFlexGridPpUEHs");
        tabla.setFocus(Qt::TabFocusReason);
        Teclea(tabla, "37.5");
        QTest::keyClick(&tabla, Qt::Key_Return);
        Pulsa(Control<QPushButton>(editor, "cmdAplicar"));
        EXPECT_TRUE(editor.isVisible());
        EXPECT_EQ(DeQ(Control<QLineEdit>(*detras, "txtPp").text()), "37.5");
        EXPECT_EQ(DeQ(Control<QLineEdit>(*detras, "txtDur").text()), "120");
        Pulsa(Control<QPushButton>(editor, "CancelButton"));
    });
    Hace([](QWidget& lluvia) { Pulsa(Control<QPushButton>(lluvia, "CancelButton")); });
    Accion("mnufrmPp").trigger();
}

TEST_F(LluviaEnElEscritorio, LaLluviaPorUEHCorreComoLaDeSiroLote)
{
    Hace([](QWidget& lluvia) {
        Pulsa(Control<QRadioButton>(lluvia, "optformaPp_3"));
        PulsaDespues(lluvia, "cmdCargaPDRnoUniforme");
    });
    std::string laminas;
    Hace([&](QWidget& editor) {
        EXPECT_EQ(DeQ(editor.objectName()), "dlgTablaPpUEHs");
        Escribe(Control<QLineEdit>(editor, "txtDPpUEHs"), "120");
        Escribe(Control<QLineEdit>(editor, "txtRPpUEHs"), "25");
        auto& tabla = Control<QTableView>(editor, "MSFlexGridPpUEHs");
        tabla.setFocus(Qt::TabFocusReason);
        ASSERT_GT(tabla.model()->rowCount(), 3);
        for (int j = 1; j <= tabla.model()->rowCount(); ++j) {
            const std::string lamina = std::to_string(35 + 2 * j) + ".5";
            laminas += (j == 1 ? "" : ",") + lamina;
            Teclea(tabla, lamina.c_str());
            QTest::keyClick(&tabla, Qt::Key_Return);
        }
        Pulsa(Control<QPushButton>(editor, "OKButton"));
    });
    Hace([](QWidget& lluvia) {
        EXPECT_EQ(DeQ(Control<QLineEdit>(lluvia, "txtPp").text()), "37.5");
        EXPECT_EQ(DeQ(Control<QLineEdit>(lluvia, "txtDur").text()), "120");
        EXPECT_EQ(DeQ(Control<QComboBox>(lluvia, "cmbRec").currentText()), "25");
        Pulsa(Control<QPushButton>(lluvia, "OKButton"));
    });
    Accion("mnufrmPp").trigger();
    EXPECT_EQ(escritorio.s.Tormenta.FormaPp, 3);
    CorreYCompara({"--forma", "3", "--dur", "120", "--rec", "25", "--pp-ueh", laminas});
}

}  // namespace
}  // namespace shell
