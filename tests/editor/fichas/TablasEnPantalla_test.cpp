// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "editor/fichas/FormasDePrueba.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "model/TablasEmbalse.h"

// The table editors, the tabular editor and the overview with real keys and clicks.
namespace editor {
namespace {

using apoyo::Control;
using Cajas = std::vector<model::Mensaje>;

struct TablasEnPantalla : FormasDePrueba {
    /// Opens a table from the form behind it and acts there.
    void EnTabla(const char* tabla, std::function<void(QDialog&)> actua)
    {
        const bool deLago = std::string_view(tabla) == "dlgTablaSHVQ";
        const bool caudales = std::string_view(tabla) == "dlgTablaFQ";
        EnForma(deLago ? "dlgLago" : "dlgRepresas", [=, this](QDialog& forma) {
            if (caudales) Boton(forma, "optTablaQ");
            EnForma(tabla, actua);
            Boton(forma, deLago ? "cmdParametros" : caudales ? "cmdTablaQ" : "cmdHSV");
        });
        Abre(deLago ? Pedido::FormaLago : Pedido::FormaRepresa);
    }
    static forms::TablaGrilla& Grilla(QDialog& tabla, const char* nombre = "MSFlexGridFQ")
    {
        return Control<forms::TablaGrilla>(tabla, nombre);
    }
    static std::string Celda(const forms::TablaGrilla& grilla, int fila, int columna)
    {
        return forms::DeQ(grilla.model()->index(fila - 1, columna).data().toString());
    }
    static void Clic(forms::TablaGrilla& grilla, int fila, int columna)
    {
        const QModelIndex lugar = grilla.model()->index(fila - 1, columna);
        grilla.scrollTo(lugar);
        QTest::mouseClick(grilla.viewport(), Qt::LeftButton, {}, grilla.visualRect(lugar).center());
    }
    static std::pair<int, int> Cursor(const forms::TablaGrilla& grilla)
    {
        return {grilla.currentIndex().row() + 1, grilla.currentIndex().column()};
    }
};

TEST_F(TablasEnPantalla, TodosLosControlesTienenNombreYLeyenda)
{
    for (const char* const tabla : {"dlgTablaSHV", "dlgTablaFQ", "dlgTablaSHVQ"})
        EnTabla(tabla, [tabla](QDialog& forma) {
            EXPECT_EQ(apoyo::SinNombre(forma), std::vector<std::string>{}) << tabla;
            EXPECT_FALSE(forma.windowTitle().isEmpty());
        });
    EnForma("dlgUEHsEditTabla",
            [](QDialog& forma) { EXPECT_EQ(apoyo::SinNombre(forma), std::vector<std::string>{}); });
    QWidget padre;
    ventanas->AbreEditorDeTabla(padre);
}

TEST_F(TablasEnPantalla, EmpiezaEnLaGrillaYSinFilasEnSuNumero)
{
    EnTabla("dlgTablaSHV", [](QDialog& forma) { EXPECT_TRUE(Grilla(forma).hasFocus()); });
    s.Red.RepresaFilasHAS.Dimensiona(2);
    s.Red.RepresaFilasHAS(1) = s.Red.RepresaFilasHAS(2) = 0;
    model::GuardaTablaHSVRepresa(s);
    EnTabla("dlgTablaSHV", [](QDialog& forma) {
        EXPECT_EQ(Grilla(forma).model()->rowCount(), 0);
        EXPECT_TRUE(Campo(forma, "txtNroFilas").hasFocus());
        QTest::keyClick(&Campo(forma, "txtNroFilas"), Qt::Key_3);
        EXPECT_EQ(Grilla(forma).model()->rowCount(), 3);
    });
}

TEST_F(TablasEnPantalla, LaPrimeraTeclaReemplazaLasSiguientesAgreganYUnaLetraVacia)
{
    EnTabla("dlgTablaSHV", [](QDialog& forma) {
        forms::TablaGrilla& grilla = Grilla(forma);
        EXPECT_EQ(Celda(grilla, 2, 1), "1");
        Clic(grilla, 2, 1);
        QTest::keyClicks(&grilla, QStringLiteral("7.5"));
        EXPECT_EQ(Celda(grilla, 2, 1), "7.5");
        QTest::keyClicks(&grilla, QStringLiteral("x"));
        EXPECT_EQ(Celda(grilla, 2, 1), "");
        QTest::keyClicks(&grilla, QStringLiteral("3"));
        EXPECT_EQ(Celda(grilla, 2, 1), "3");
        QTest::keyClick(&grilla, Qt::Key_Delete);
        EXPECT_EQ(Celda(grilla, 2, 1), "");
    });
}

TEST_F(TablasEnPantalla, EnterBajaDaLaVueltaYPoneCeroDondeNoHayNumero)
{
    EnTabla("dlgTablaSHV", [](QDialog& forma) {
        forms::TablaGrilla& grilla = Grilla(forma);
        const int filas = grilla.model()->rowCount();
        Clic(grilla, 2, 2);
        QTest::keyClick(&grilla, Qt::Key_Delete);
        Clic(grilla, 1, 2);
        QTest::keyClick(&grilla, Qt::Key_Return);
        EXPECT_EQ(Cursor(grilla), std::pair(2, 2));
        EXPECT_EQ(Celda(grilla, 2, 2), "0");
        Clic(grilla, filas, 3);
        QTest::keyClick(&grilla, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(Cursor(grilla), std::pair(1, 3));
        EXPECT_TRUE(forma.isVisible());  // Enter presses no button
    });
}

TEST_F(TablasEnPantalla, ElNumeroDeFilasSeTomaHasta999YLoDemasSeRechaza)
{
    EnTabla("dlgTablaFQ", [this](QDialog& forma) {
        QLineEdit& campo = Campo(forma, "txtNroFilas");
        campo.setFocus();
        campo.selectAll();
        apoyo::Teclea(campo, "999");
        EXPECT_EQ(Grilla(forma).model()->rowCount(), 999);
        EXPECT_EQ(Celda(Grilla(forma), 999, 0), "999");
        EXPECT_TRUE(mundo.anfitrion->sucesos.empty());
        const Cajas rechazo{{"Ingrese un valor numérico entero entre 0 y 999 "}};
        for (const char* const tecla : {"9", "x"}) {
            mundo.anfitrion->sucesos.clear();
            campo.end(false);
            apoyo::Teclea(campo, tecla);
            EXPECT_EQ(mundo.anfitrion->Avisos(), rechazo) << tecla;
            EXPECT_EQ(campo.selectedText(), QStringLiteral("999")) << tecla;
        }
        mundo.anfitrion->sucesos.clear();
        QTest::keyClick(&campo, Qt::Key_Backspace);  // all of it is selected
        EXPECT_EQ(mundo.anfitrion->Avisos(), rechazo);
        EXPECT_EQ(campo.text(), QStringLiteral("999"));
        apoyo::Teclea(campo, "2");
        EXPECT_EQ(Grilla(forma).model()->rowCount(), 2);
    });
}

TEST_F(TablasEnPantalla, EscribirElNumeroDeFilasCifraPorCifraNoPierdeNinguna)
{
    EnTabla("dlgTablaSHV", [](QDialog& forma) {
        constexpr int Filas = 12;
        forms::TablaGrilla& grilla = Grilla(forma);
        ASSERT_GE(grilla.model()->rowCount(), Filas);
        const std::string ultima = Celda(grilla, Filas, 3);
        ASSERT_NE(ultima, "");
        QLineEdit& campo = Campo(forma, "txtNroFilas");
        campo.setFocus();
        campo.selectAll();
        QTest::keyClick(&campo, Qt::Key_1);
        EXPECT_EQ(grilla.model()->rowCount(), 1);
        QTest::keyClick(&campo, Qt::Key_2);
        EXPECT_EQ(grilla.model()->rowCount(), Filas);
        EXPECT_EQ(Celda(grilla, Filas, 3), ultima);
        EXPECT_EQ(Celda(grilla, Filas, 0), "12");
    });
}

TEST_F(TablasEnPantalla, LaCurvaSigueALaTablaMientrasSeEscribe)
{
    EnTabla("dlgTablaSHVQ", [](QDialog& forma) {
        auto& volumen = Control<forms::Lamina>(forma, "Curva_0");
        auto& caudal = Control<forms::Lamina>(forma, "Curva_1");
        forms::TablaGrilla& grilla = Grilla(forma, "MSFlexGridHSVQ");
        const int filas = grilla.model()->rowCount();
        Clic(grilla, filas, 3);
        QTest::keyClicks(&grilla, QStringLiteral("7777777"));
        EXPECT_TRUE(volumen.accessibleDescription().contains(QStringLiteral("7777777 m3")))
            << forms::DeQ(volumen.accessibleDescription());
        Clic(grilla, filas, 4);
        QTest::keyClicks(&grilla, QStringLiteral("555"));
        EXPECT_TRUE(caudal.accessibleDescription().contains(QStringLiteral("555 m3/s")))
            << forms::DeQ(caudal.accessibleDescription());
        Boton(forma, "cmdBorraTablaHQ");
        EXPECT_EQ(Celda(grilla, 1, 1), "");
        EXPECT_EQ(Celda(grilla, 1, 0), "1");
        EXPECT_FALSE(volumen.accessibleDescription().contains(QStringLiteral("7777777")));
    });
}

TEST_F(TablasEnPantalla, AplicarDiceLasFilasQueNoCrecenYNoGuarda)
{
    EnTabla("dlgTablaSHV", [this](QDialog& forma) {
        forms::TablaGrilla& grilla = Grilla(forma);
        Clic(grilla, 3, 1);
        QTest::keyClicks(&grilla, QStringLiteral("1"));  // as high as row 2
        Boton(forma, "cmdAplicar");
        EXPECT_EQ(mundo.anfitrion->Avisos().at(0).texto,
                  "Error, la altura H debe ser creciente, Verifique la fila 3");
        EXPECT_EQ(Cursor(grilla), std::pair(3, 1));
        EXPECT_TRUE(forma.isVisible());
    });
    model::LeeTablaHSVRepresa(s);
    EXPECT_EQ(s.Red.RepresaH(1, 3), 2);
}

TEST_F(TablasEnPantalla, AceptarGuardaRecuerdaGuardarYCierra)
{
    EnTabla("dlgTablaSHV", [this](QDialog& forma) {
        forms::TablaGrilla& grilla = Grilla(forma);
        Clic(grilla, 2, 3);
        QTest::keyClicks(&grilla, QStringLiteral("31000"));
        Boton(forma, "OKButton");
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(
            mundo.anfitrion->Avisos().back().texto,
            "Asegurar los cambios producidos pulsando <Guardar> desde el formulario gráfico de de UEHs. "
            "De lo contrario se perderá la información cargada.");
    });
    model::LeeTablaHSVRepresa(s);
    EXPECT_EQ(s.Red.RepresaS(1, 2), 31000);
}

TEST_F(TablasEnPantalla, EscPreguntaMientrasHayaCeldasSinAplicar)
{
    EnTabla("dlgTablaSHV", [this](QDialog& forma) {
        Clic(Grilla(forma), 2, 1);
        QTest::keyClicks(&Grilla(forma), QStringLiteral("1.5"));
        EXPECT_TRUE(apoyo::Espera([&] { return forma.isWindowModified(); }));
        mundo.anfitrion->respuestas = {false};
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
        Boton(forma, "cmdAplicar");
        EXPECT_TRUE(apoyo::Espera([&] { return !forma.isWindowModified(); }));
        EXPECT_EQ(forma.windowTitle(),
                  QStringLiteral("Tabla Altura H[m]- Area A[has] - Almacenamiento S[m3], en Represa"));
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
    });
}

TEST_F(TablasEnPantalla, UnAplicarRechazadoSigueSinAplicar)
{
    EnTabla("dlgTablaSHV", [this](QDialog& forma) {
        Clic(Grilla(forma), 2, 1);
        QTest::keyClicks(&Grilla(forma), QStringLiteral("0"));  // not above the row before
        Boton(forma, "cmdAplicar");
        EXPECT_TRUE(forma.isWindowModified());
        Boton(forma, "CancelButton");
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{});
    });
}

TEST_F(TablasEnPantalla, UnBloqueVaAUnaPlanillaYVuelve)
{
    EnTabla("dlgTablaFQ", [](QDialog& forma) {
        forms::TablaGrilla& grilla = Grilla(forma);
        Clic(grilla, 1, 1);
        QTest::keyClick(&grilla, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&grilla, Qt::Key_C, Qt::ControlModifier);
        const std::string primera = Celda(grilla, 1, 1), segunda = Celda(grilla, 2, 1);
        QApplication::clipboard()->setText(QStringLiteral("10,5\t1\n11\t2\n"));
        Clic(grilla, 1, 1);
        QTest::keyClick(&grilla, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Celda(grilla, 1, 1), "10.5");
        EXPECT_EQ(Celda(grilla, 2, 2), "2");
    });
}

// --- tabular editor ---

struct EditorDeTabla : TablasEnPantalla {
    void Abre(std::function<void(QDialog&)> actua)
    {
        EnForma("dlgUEHsEditTabla", std::move(actua));
        QWidget padre;
        mundo.entorno.Atiende([&] { ventanas->AbreEditorDeTabla(padre); });
    }
};

TEST_F(EditorDeTabla, EmpiezaEnLaPrimeraCeldaEditableYTomaCasiTodaLaPantalla)
{
    Abre([this](QDialog& forma) {
        forms::TablaGrilla& cauces = Grilla(forma, "MSFlexGridEditCauces");
        EXPECT_TRUE(cauces.hasFocus());
        EXPECT_EQ(Cursor(cauces), std::pair(1, 7));
        EXPECT_EQ(Cursor(Grilla(forma, "MSFlexGridEditUEHs")), std::pair(1, 5));
        EXPECT_EQ(cauces.model()->rowCount(), s.Red.ColCauces.Cuenta());
        EXPECT_EQ(forma.width(), static_cast<int>(forma.screen()->availableSize().width() * 0.97));
        EXPECT_EQ(forms::DeQ(cauces.toolTip()),
                  "Las celdas de datos con fondo blanco pueden modificarse desde esta tabla");
        EXPECT_EQ(cauces.model()->headerData(7, Qt::Horizontal, Qt::ToolTipRole).toString(),
                  QStringLiteral("Vel.Media [m/s]"));
        EXPECT_EQ(Control<QLabel>(forma, "lblFileProyecto").text(), QStringLiteral("Quelmar_Conf.vlm"));
    });
}

TEST_F(EditorDeTabla, SusLimitesSonOtrosQueLosDeLaForma)
{
    Abre([this](QDialog& forma) {
        forms::TablaGrilla& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        Clic(uehs, 1, 6);
        QTest::keyClicks(&uehs, QStringLiteral("10000"));
        EXPECT_TRUE(mundo.anfitrion->sucesos.empty());
        Clic(uehs, 2, 6);
        QTest::keyClicks(&uehs, QStringLiteral("10001"));
        EXPECT_EQ(mundo.anfitrion->Avisos(), (Cajas{{"Ingrese un valor numérico entero menor de 10000",
                                                     "Advertencia !", model::Icono::Exclamacion}}));
        EXPECT_EQ(Celda(uehs, 2, 6), "0");
    });
}

TEST_F(EditorDeTabla, UnaLetraPasaSeGuardaComoCeroYLasColumnasGrisesNoSeTocan)
{
    mundo.anfitrion->respuestas = {true};
    Abre([](QDialog& forma) {
        forms::TablaGrilla& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        const std::string nombre = Celda(uehs, 1, 2);
        Clic(uehs, 1, 2);
        QTest::keyClicks(&uehs, QStringLiteral("x"));
        QTest::keyClick(&uehs, Qt::Key_Delete);
        EXPECT_EQ(Celda(uehs, 1, 2), nombre);
        Clic(uehs, 1, 5);
        QTest::keyClicks(&uehs, QStringLiteral("b"));
        EXPECT_EQ(Celda(uehs, 1, 5), "b");
        QTest::keyClick(&uehs, Qt::Key_Return);
        EXPECT_EQ(Cursor(uehs), std::pair(2, 5));
        Boton(forma, "OKButton");
        EXPECT_FALSE(forma.isVisible());
    });
    EXPECT_EQ(mundo.anfitrion->Preguntas(),
              (Cajas{{"Confirma los cambios producidos en la tabla de datos de Entradas ?",
                      "Consulta de validación de cambios", model::Icono::Exclamacion}}));
    model::LeeUEHs(s);
    EXPECT_EQ(s.Red.UEHs(1).Area, 0);
}

TEST_F(EditorDeTabla, EscDejaLaCeldaYDespuesLaForma)
{
    Abre([](QDialog& forma) {
        forms::TablaGrilla& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        Clic(uehs, 1, 5);
        QTest::keyClicks(&uehs, QStringLiteral("12"));
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(forma.isVisible());
        EXPECT_EQ(Celda(uehs, 1, 5), "12");
        QTest::keyClicks(&uehs, QStringLiteral("3"));  // come to anew
        EXPECT_EQ(Celda(uehs, 1, 5), "3");
    });
}

TEST_F(EditorDeTabla, LosTitulosPegadosNoCorrenLosValores)
{
    Abre([this](QDialog& forma) {
        forms::TablaGrilla& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        const std::string tercera = Celda(uehs, 3, 5);
        QApplication::clipboard()->setText(QStringLiteral("Area [ha]\tLong.\r\n11\t12\r\n21\t22\r\n"));
        Clic(uehs, 1, 5);
        QTest::keyClick(&uehs, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Celda(uehs, 1, 5), "11");
        EXPECT_EQ(Celda(uehs, 2, 6), "22");
        EXPECT_EQ(Celda(uehs, 3, 5), tercera);
        EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
        QTest::keyClick(&uehs, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_NE(Celda(uehs, 1, 5), "11");
        mundo.anfitrion->sucesos.clear();
        QApplication::clipboard()->setText(QStringLiteral("11\r\nonce\r\n"));
        QTest::keyClick(&uehs, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(mundo.anfitrion->Avisos().at(0).texto,
                  "No se pegó ningún dato. Fila 2, columna \"Area\": \"once\" no es un número");
        EXPECT_NE(Celda(uehs, 1, 5), "11");
    });
}

TEST_F(EditorDeTabla, ElMarcoPreguntaMientrasHayaCeldasSinAplicar)
{
    Abre([this](QDialog& forma) {
        auto& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        Clic(uehs, 1, 5);
        QTest::keyClicks(&uehs, QStringLiteral("9"));
        EXPECT_TRUE(apoyo::Espera([&] { return forma.isWindowModified(); }));
        mundo.anfitrion->respuestas = {false};
        forma.close();
        EXPECT_TRUE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
        Boton(forma, "cmdCancel");
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 1U);
    });
}

TEST_F(EditorDeTabla, CancelarNoGuardaNada)
{
    const float area = s.Red.UEHs(1).Area;
    Abre([](QDialog& forma) {
        forms::TablaGrilla& uehs = Grilla(forma, "MSFlexGridEditUEHs");
        Clic(uehs, 1, 5);
        QTest::keyClicks(&uehs, QStringLiteral("1"));
        Boton(forma, "cmdCancel");
        EXPECT_FALSE(forma.isVisible());
    });
    EXPECT_EQ(s.Red.UEHs(1).Area, area);
    EXPECT_TRUE(mundo.anfitrion->Preguntas().empty());
}

// --- overview ---

struct TablaDeParametros : TablasEnPantalla {
    TablaDeParametros()
    {
        mundo.entorno.Presenta = [this](QWidget& ventana) {
            auto* hija = qobject_cast<QMdiSubWindow*>(ventana.parentWidget());
            if (hija == nullptr) hija = area.addSubWindow(&ventana);
            hija->setAttribute(Qt::WA_DeleteOnClose, false);
            ventana.show();
            hija->show();
            area.setActiveSubWindow(hija);
        };
        principalDePrueba.setCentralWidget(&area);
        mundo.entorno.VigilaHijas(area);
        apoyo::Muestra(principalDePrueba);
        ventanas->AbreTabla();
        tabla = area.findChild<QWidget*>(QStringLiteral("dlgUEHsTabla"));
    }
    ~TablaDeParametros() override
    {
        for (QMdiSubWindow* const hija : area.subWindowList())
            if (hija->widget() == tabla) area.removeSubWindow(tabla);
        principalDePrueba.takeCentralWidget();
        area.setParent(nullptr);
    }
    forms::TablaGrilla& Grilla() { return Control<forms::TablaGrilla>(*tabla, "MSFlexGridTablaUEHs"); }
    int FilasDe(const char* clase)
    {
        int filas = 0;
        for (int fila = 1; fila <= Grilla().model()->rowCount(); ++fila)
            filas += Celda(Grilla(), fila, 0) == clase;
        return filas;
    }

    QMainWindow principalDePrueba{};
    QMdiArea area{};
    QWidget* tabla = nullptr;
};

TEST_F(TablaDeParametros, MuestraTodaLaRedSinQueSePuedaCambiar)
{
    ASSERT_NE(tabla, nullptr);
    EXPECT_EQ(apoyo::SinNombre(*tabla), std::vector<std::string>{});
    EXPECT_EQ(FilasDe("Cauce"), s.Red.ColCauces.Cuenta());
    EXPECT_EQ(FilasDe("UEH"), s.Red.ColUEHs.Cuenta());
    EXPECT_EQ(FilasDe("Represa"), 16);
    EXPECT_EQ(Celda(Grilla(), 1, 5), "Vértices");
    Clic(Grilla(), 2, 7);
    const std::string antes = Celda(Grilla(), 2, 7);
    QTest::keyClicks(&Grilla(), QStringLiteral("9"));
    QTest::keyClick(&Grilla(), Qt::Key_Delete);
    EXPECT_EQ(Celda(Grilla(), 2, 7), antes);
    EXPECT_EQ(Grilla().model()->index(1, 7).data(Qt::ToolTipRole).toString(),
              QStringLiteral("Vel.Media [m/s]"));
}

TEST_F(TablaDeParametros, ActualizarMuestraLoGuardadoYNoLoQueEstaEnMemoria)
{
    s.Red.Cauces(1).VelMediaCauce = 7.25F;
    apoyo::Pulsa(Control<QPushButton>(*tabla, "cmdActualizar"));
    EXPECT_NE(Celda(Grilla(), 2, 7), "7.25");
    s.Red.Cauces(1).VelMediaCauce = 7.25F;
    model::GuardaRed(s);
    apoyo::Pulsa(Control<QPushButton>(*tabla, "cmdActualizar"));
    EXPECT_EQ(Celda(Grilla(), 2, 7), "7.25");
    apoyo::Pulsa(Control<QPushButton>(*tabla, "OKButton"));
    EXPECT_FALSE(tabla->isVisible());
    EXPECT_FALSE(ventanas->tabla.abierta);
}

TEST_F(TablaDeParametros, AlVenirAlFrenteDeOtraSeLeeDeNuevo)
{
    auto* const otra = area.addSubWindow(new QWidget);
    otra->show();
    area.setActiveSubWindow(otra);
    s.Red.Cauces(1).VelMediaCauce = 6.5F;
    model::GuardaRed(s);
    EXPECT_NE(Celda(Grilla(), 2, 7), "6.5");
    area.setActiveSubWindow(qobject_cast<QMdiSubWindow*>(tabla->parentWidget()));
    EXPECT_EQ(Celda(Grilla(), 2, 7), "6.5");
}

TEST_F(TablaDeParametros, AlVolverDeOtraVentanaDelProgramaSeLeeDeNuevo)
{
    QWidget otra;
    apoyo::Muestra(otra);
    s.Red.Cauces(1).VelMediaCauce = 5.5F;
    model::GuardaRed(s);
    principalDePrueba.activateWindow();
    EXPECT_TRUE(apoyo::Espera([this] { return Celda(Grilla(), 2, 7) == "5.5"; }));
}

}  // namespace
}  // namespace editor
