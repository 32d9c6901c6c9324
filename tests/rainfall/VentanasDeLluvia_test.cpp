// SPDX-License-Identifier: GPL-3.0-or-later
//
// The windows that the storm dialog opens, with the user's own keys and clicks.

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "ProyectoDeLluvia.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/Componentes.h"
#include "rainfall/dlgDisPpPer_ventana.h"
#include "rainfall/dlgImportaTormenta_ventana.h"
#include "rainfall/dlgPpReal_ventana.h"
#include "rainfall/dlgTablaPpUEHs_ventana.h"
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {
namespace {

using apoyo::Control;
using apoyo::Escribe;
using apoyo::Espera;
using apoyo::Pulsa;
using apoyo::Teclea;
using forms::DeQ;
using model::Icono;
using model::Mensaje;
using Textos = std::vector<std::string>;

/// Nothing in a window is cut, and it has room on a small screen.
void CabeEntera(QWidget& v)
{
    for (const QWidget* w : v.findChildren<QWidget*>()) {
        const auto* const rotulo = qobject_cast<const QLabel*>(w);
        const bool seParte = rotulo != nullptr && rotulo->wordWrap();
        const bool conTexto = rotulo != nullptr || qobject_cast<const QAbstractButton*>(w) != nullptr;
        if (!w->isVisible() || !conTexto || seParte) continue;
        EXPECT_GE(w->width(), w->sizeHint().width()) << DeQ(w->objectName());
    }
    EXPECT_LE(v.minimumSizeHint().width(), 1300) << DeQ(v.objectName());
    EXPECT_LE(v.minimumSizeHint().height(), 700) << DeQ(v.objectName());
}

/// One of the windows over its record, shown without waiting for its closing.
template <typename Registro, typename Ventana>
class VentanaDeLluvia : public testing::Test {
  protected:
    VentanaDeLluvia()
    {
        PonProyectoDeLluvia(mundo.s, disco);
        mundo.s.Configuracion.ListaDur = {0, 5, 10, 20, 60};
        mundo.s.Proyecto.NombreProyecto = "Prueba";
        mundo.s.Proyecto.DirProyectoConf = "/proyectos";
    }
    void Muestra()
    {
        v.Muestra();
        v.Acomoda();
        apoyo::Muestra(v);
        EXPECT_EQ(apoyo::SinNombre(v), Textos{});
        CabeEntera(v);
    }
    template <typename T = QWidget>
    T& C(const char* nombre)
    {
        return Control<T>(v, nombre);
    }
    forms::TablaGrilla& Tabla()
    {
        auto* const tabla = dynamic_cast<forms::TablaGrilla*>(v.template findChild<QTableView*>());
        if (tabla == nullptr) throw std::runtime_error("no table");
        return *tabla;
    }
    std::string Texto(const char* nombre) { return DeQ(C<QLineEdit>(nombre).text()); }
    std::string Celda(int fila, int columna)
    {
        return DeQ(Tabla().model()->index(fila - 1, columna).data().toString());
    }
    void EligeTexto(const char* lista, const char* texto)
    {
        auto& combo = C<QComboBox>(lista);
        const int i = combo.findText(QString::fromUtf8(texto));
        ASSERT_GE(i, 0) << texto;
        combo.setFocus(Qt::TabFocusReason);
        for (int k = 0; combo.currentIndex() != i && k < combo.count(); ++k)
            QTest::keyClick(&combo, combo.currentIndex() < i ? Qt::Key_Down : Qt::Key_Up);
    }
    void Pega(const char* texto)
    {
        QApplication::clipboard()->setText(QString::fromUtf8(texto));
        Tabla().setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Tabla(), Qt::Key_V, Qt::ControlModifier);
    }
    /// Names of the controls that Tab comes to, from the first one on, each once.
    Textos Recorrido(const char* primero, const std::set<std::string>& fuera = {})
    {
        C(primero).setFocus(Qt::TabFocusReason);
        Textos orden{primero};
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const std::string nombre = DeQ(QApplication::focusWidget()->objectName());
            if (nombre == primero) break;
            if (nombre != orden.back() && !fuera.contains(nombre)) orden.push_back(nombre);
        }
        return orden;
    }
    std::vector<Mensaje> Avisos() const { return mundo.anfitrion->Avisos(); }

    apoyo::Mundo mundo;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    Registro f;
    Ventana v{mundo.entorno, f, pp};
};

// --- recorded storms ---

class VentanaPpReal : public VentanaDeLluvia<dlgPpReal, dlgPpReal_ventana> {
  protected:
    void Abre()
    {
        mundo.s.Tormenta.FormaPp = 4;
        rainfall::Abre(pp, mundo.s);
        rainfall::Abre(f, pp, mundo.s);
        Muestra();
    }
};

TEST_F(VentanaPpReal, CadaControlTieneNombreYSeRecorreEnOrden)
{
    Abre();
    EXPECT_EQ(DeQ(v.windowTitle()), "Edición de Tormentas Reales (Pp-t)");
    EXPECT_EQ(DeQ(C<QPushButton>("OKButton").text()), "Ce&rrar");
    EXPECT_EQ(DeQ(C<QLineEdit>("txtDateI").toolTip()),
              "Formato dd/mm/aaaa  - Ingrese 0 ó nulo para \"01/01/1001\", se interpretará sin fecha válida");
    EXPECT_EQ(Recorrido("FilePpReal"),
              (Textos{"FilePpReal", "cmdNuevaPpReal", "cmdImporta", "txtNotas", "txtDateI", "txtTimeI",
                      "optNroPpReal_0", "cmbPasot", "txtNroPpReal", "MSFlexGridTablaPpReal", "laminaPpReal",
                      "cmdVerGrafico", "cmdBorraTablaDisPer", "cmdAplicar", "OKButton", "CancelButton"}));
}

TEST_F(VentanaPpReal, UnaTormentaSeEscribeEnteraConElTeclado)
{
    Abre();
    mundo.anfitrion->textos = {"Nueva"};
    Pulsa(C<QPushButton>("cmdNuevaPpReal"));
    EXPECT_EQ(DeQ(C<QLabel>("lblMiFilePpReal").text()), "Nueva_pt.vlm");
    Escribe(C<QLineEdit>("txtNotas"), "Aguacero en Ñirihuau");
    Escribe(C<QLineEdit>("txtDateI"), "29022004");
    QTest::keyClick(&C("txtDateI"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Texto("txtDateI") == "29/02/2004"; }));
    Escribe(C<QLineEdit>("txtTimeI"), "2350");
    QTest::keyClick(&C("txtTimeI"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Texto("txtTimeI") == "23:50"; }));
    Escribe(C<QLineEdit>("txtNroPpReal"), "3");
    QTest::keyClick(&C("txtNroPpReal"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 3; }));
    EXPECT_EQ(Texto("txtDateF"), "01/03/2004");
    EXPECT_EQ(Texto("txtTimeF"), "00:20");
    Teclea(Tabla(), "1,5");
    EXPECT_EQ(Celda(1, 3), "1.5");
    QTest::keyClick(&Tabla(), Qt::Key_Return);
    EXPECT_EQ(Celda(1, 4), "1.5");
    Teclea(Tabla(), "12");
    QTest::keyClick(&Tabla(), Qt::Key_Enter);
    Teclea(Tabla(), "4");
    // The mnemonic leaves the cell as little as the focus.
    QTest::keyClick(&v, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(Espera([&] { return Celda(3, 4) == "17.5"; }));
    EXPECT_EQ(
        disco.Bytes("/proyectos/Nueva_pt.vlm"),
        "\"Aguacero en \xD1irihuau\"\r\n3,10\r\n\"29/02/2004\",\"23:50\"\r\n\"01/03/2004\",\"00:20\"\r\n"
        "1.5\r\n12\r\n4\r\n");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(VentanaPpReal, EnterEnUnCampoNoCierraNiEscribe)
{
    Abre();
    disco.OlvidaLlamadas();
    QTest::keyClick(&C("txtNotas"), Qt::Key_Return);
    EXPECT_TRUE(v.isVisible());
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_F(VentanaPpReal, UnaFechaMalaVuelveAlCampoTodaSeleccionada)
{
    Abre();
    Escribe(C<QLineEdit>("txtDateI"), "31/02/2004");
    QTest::keyClick(&C("txtDateI"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos().at(0).texto, "Ingrese una fecha formato dd/mm/aaaa, Ej: 01/04/2004 ");
    EXPECT_EQ(QApplication::focusWidget(), &C("txtDateI"));
    EXPECT_EQ(DeQ(C<QLineEdit>("txtDateI").selectedText()), "31/02/2004");
    Pulsa(C<QPushButton>("CancelButton"));
    EXPECT_FALSE(v.isVisible());
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(VentanaPpReal, CadaOpcionHabilitaLoSuyo)
{
    Abre();
    EXPECT_TRUE(C("txtNroPpReal").isEnabled());
    EXPECT_FALSE(C("txtDateF").isEnabled());
    Pulsa(C<QRadioButton>("optNroPpReal_0"));
    EXPECT_FALSE(C("txtNroPpReal").isEnabled());
    EXPECT_TRUE(C("txtTimeF").isEnabled());
    Escribe(C<QLineEdit>("txtTimeF"), "02:00");
    QTest::keyClick(&C("txtTimeF"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return Texto("txtNroPpReal") == "6"; }));
}

TEST_F(VentanaPpReal, ElPasoSeEligeYNoSeEscribe)
{
    Abre();
    EligeTexto("cmbPasot", "60");
    EXPECT_EQ(f.tormenta.PasoPpReal, 60);
    EXPECT_EQ(Texto("txtTimeF"), "03:00");
    Teclea(C("cmbPasot"), "7");
    EXPECT_EQ(DeQ(C<QComboBox>("cmbPasot").currentText()), "60");
}

TEST_F(VentanaPpReal, UnaColumnaDeUnaPlanillaSePega)
{
    Abre();
    Pega("1,5\r\n2\r\n3,25\r\n");
    EXPECT_EQ(Celda(3, 4), "6.75");
    EXPECT_EQ(mundo.s.Tormenta.PpTormenta, 6.75F);
}

TEST_F(VentanaPpReal, UnClicEnLaListaLeeLaTormentaYLaProtegidaNoSeTeclea)
{
    PonTormenta(disco, "Ruvera 170276 _pt.vlm", "muestra", 2, 60, "7\r\n8\r\n");
    Abre();
    auto& lista = C<QListWidget>("FilePpReal");
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(0)).center());
    EXPECT_EQ(Texto("txtNotas"), "muestra");
    EXPECT_FALSE(C("cmdImporta").isEnabled());
    Tabla().setFocus(Qt::TabFocusReason);
    Teclea(Tabla(), "9");
    EXPECT_EQ(Celda(1, 3), "7");
}

TEST_F(VentanaPpReal, ElGraficoSePideConLoQueSeEscribe)
{
    std::vector<PedidoHietograma> pedidos;
    v.AbreHietograma = [&](const PedidoHietograma& p) { pedidos.push_back(p); };
    Abre();
    Tabla().setFocus(Qt::TabFocusReason);
    Teclea(Tabla(), "6");
    Pulsa(C<QPushButton>("cmdVerGrafico"));
    EXPECT_EQ(pedidos, (std::vector<PedidoHietograma>{{3, 20, "Llovizna", 18.5F, 60}}));
}

TEST_F(VentanaPpReal, LaVistaPreviaMuestraLosRenglonesDudosos)
{
    disco.Pon("/proyectos/r.csv",
              "t;P\n0x/03/2004 00:05;9\n01/03/2004 00:10;1\n01/03/2004 00:10;1\n01/03/2004 00:20;2\n");
    mundo.anfitrion->elegidos = {"/proyectos/r.csv"};
    Abre();
    apoyo::Usuario usuario;
    usuario.Hace([](QWidget& previa) {
        auto& dudosos = Control<QTableView>(previa, "grillaDudosos");
        EXPECT_TRUE(dudosos.isVisible());
        ASSERT_EQ(dudosos.model()->rowCount(), 2);
        EXPECT_EQ(DeQ(dudosos.model()->index(1, 0).data().toString()), "4");
        EXPECT_EQ(DeQ(dudosos.model()->index(1, 2).data().toString()),
                  "repite la hora y la lámina del anterior: no se toma");
        Pulsa(Control<QPushButton>(previa, "OKButton"));
    });
    Pulsa(C<QPushButton>("cmdImporta"));
    EXPECT_EQ(Texto("txtNroPpReal"), "2");
}

TEST_F(VentanaPpReal, UnRegistroSeImportaConVistaPrevia)
{
    disco.Pon("/datos/r.csv", "fecha;mm\n17/02/1976 17:00;13\n17/02/1976 18:00;3,5\n");
    mundo.anfitrion->elegidos = {"/datos/r.csv"};
    Abre();
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& previa) {
        EXPECT_EQ(apoyo::SinNombre(previa), Textos{});
        CabeEntera(previa);
        EXPECT_EQ(DeQ(previa.windowTitle()), "Importar una tormenta registrada");
        EXPECT_EQ(DeQ(Control<QLabel>(previa, "lblRegistro").text()),
                  "2 lecturas, del 17/02/1976 17:00 al 17/02/1976 18:00, Pp= 16.5 [mm]");
        Escribe(Control<QComboBox>(previa, "cmbPaso"), "0");
        EXPECT_FALSE(Control(previa, "OKButton").isEnabled());
        Escribe(Control<QComboBox>(previa, "cmbPaso"), "30");
        EXPECT_EQ(Control<QTableView>(previa, "grillaImportada").model()->rowCount(), 4);
        Pulsa(Control<QPushButton>(previa, "OKButton"));
    });
    Pulsa(C<QPushButton>("cmdImporta"));
    EXPECT_EQ(Texto("txtNotas"), "Importada de r.csv");
    EXPECT_EQ(Texto("txtDateI"), "17/02/1976");
    EXPECT_EQ(Texto("txtTimeI"), "16:00");
    EXPECT_EQ(DeQ(C<QComboBox>("cmbPasot").currentText()), "30");
    EXPECT_EQ(Celda(4, 4), "16.5");
    mundo.anfitrion->elegidos = {"/datos/r.csv"};
    usuario.Hace([](QWidget& previa) { QTest::keyClick(&previa, Qt::Key_Escape); });
    Escribe(C<QLineEdit>("txtNotas"), "mías");
    Pulsa(C<QPushButton>("cmdImporta"));
    EXPECT_EQ(Texto("txtNotas"), "mías");
}

TEST_F(VentanaPpReal, EscCierraSinEscribirYAbreEsModal)
{
    Abre();
    v.close();
    apoyo::Usuario usuario;
    usuario.Hace([&](QWidget& ventana) {
        EXPECT_EQ(&ventana, &v);
        disco.OlvidaLlamadas();
        QTest::keyClick(&ventana, Qt::Key_Escape);
    });
    v.Abre();
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(disco.Llamadas().empty());
}

// --- distributions ---

class VentanaDisPpPer : public VentanaDeLluvia<dlgDisPpPer, dlgDisPpPer_ventana> {
  protected:
    void Abre(std::int16_t distribucion = 5)
    {
        mundo.s.Tormenta.DistriPp = distribucion;
        rainfall::Abre(pp, mundo.s);
        rainfall::Abre(f, pp, mundo.s);
        Muestra();
    }
};

TEST_F(VentanaDisPpPer, CadaControlTieneNombreYSeRecorreEnOrden)
{
    Abre();
    EXPECT_EQ(DeQ(v.windowTitle()), "Distribución temporal de la Precipitación: Tabla P-t Personalizada");
    EXPECT_EQ(DeQ(C<QGroupBox>("marco_MarcoValidez").title()), "Perído de Validez");
    EXPECT_EQ(Recorrido("cmbNroTablaDisPpPer"),
              (Textos{"cmbNroTablaDisPpPer", "txtNotas", "txtNroPer", "cmbDurMin", "cmbDurMax",
                      "MSFlexGridDisPerso", "laminaDisPpPer", "cmdBorraTablaDisPer", "cmdAplicar", "OKButton",
                      "CancelButton"}));
}

TEST_F(VentanaDisPpPer, UnaTablaDeDoceYMedioSeEscribeConElTeclado)
{
    Abre(7);
    Escribe(C<QLineEdit>("txtNotas"), "dos períodos");
    Escribe(C<QLineEdit>("txtNroPer"), "2");
    Tabla().setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 2; }));
    Teclea(Tabla(), "12,5");
    QTest::keyClick(&Tabla(), Qt::Key_Return);
    Teclea(Tabla(), "87.5");
    Pulsa(C<QPushButton>("OKButton"));
    EXPECT_FALSE(v.isVisible());
    EXPECT_TRUE(Avisos().empty());
    EXPECT_TRUE(
        disco.Bytes("/trabajo/distriPp_dpt.vlm").ends_with("\"dos per\xEDodos\"\r\n0,0\r\n12.5\r\n87.5\r\n"));
    Abre(7);
    EXPECT_EQ(Celda(1, 2), "12");
    EXPECT_EQ(Celda(2, 2), "88");
    EXPECT_EQ(Celda(2, 3), "100");
}

TEST_F(VentanaDisPpPer, UnErrorDeCierreLlevaElFocoALaTabla)
{
    Abre();
    Pega("10\n20\n");
    Pulsa(C<QPushButton>("cmdAplicar"));
    ASSERT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), &Tabla());
    EXPECT_EQ(Tabla().currentIndex().row(), 0);
}

TEST_F(VentanaDisPpPer, LaMaximaMenorQuedaHastaCorregirse)
{
    Abre();  // 30 to 120
    EligeTexto("cmbDurMax", "20");
    QTest::keyClick(&C("cmbDurMax"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(QApplication::focusWidget(), &C("cmbDurMax"));
    EligeTexto("cmbDurMax", "60");
    EXPECT_EQ(mundo.s.TablasDeLluvia.DurMaxPer[1], 60);
    QTest::keyClick(&C("cmbDurMax"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return QApplication::focusWidget() == &Tabla(); }));
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(VentanaDisPpPer, OtraTablaSeEligeYMarcaSuOpcion)
{
    Abre();
    EligeTexto("cmbNroTablaDisPpPer", "2");
    EXPECT_EQ(Tabla().model()->rowCount(), 3);
    EXPECT_EQ(pp.optDistriPp, 6);
    EXPECT_EQ(Texto("txtNotas"), "n2");
}

// --- P-D-R tables ---

class VentanaTablasPDRs : public VentanaDeLluvia<dlgTablasPDRs, dlgTablasPDRs_ventana> {
  protected:
    void Abre(std::int16_t tabla)
    {
        mundo.s.Tormenta.FormaPp = 2;
        mundo.s.Tormenta.TablaPDR = tabla;
        rainfall::Abre(pp, mundo.s);
        rainfall::Abre(f, pp, mundo.s);
        Muestra();
    }
};

TEST_F(VentanaTablasPDRs, CadaControlTieneNombreYSeRecorreEnOrden)
{
    Abre(1);
    EXPECT_EQ(DeQ(v.windowTitle()), "Tablas de Precipitación [mm] - Duración [min] - Recurrencia [años]");
    EXPECT_EQ(Recorrido("cmbNroTablaPDRs"),
              (Textos{"cmbNroTablaPDRs", "txtNroPDRs", "txtNotas", "MSFlexGridTablaPDRs", "laminaTablasPDRs",
                      "cmdBorraTablaDisPer", "cmdAplicar", "OKButton", "CancelButton"}));
}

TEST_F(VentanaTablasPDRs, LaTablaCeroSeMiraYNoSeEdita)
{
    Abre(0);
    EXPECT_TRUE(C<QLineEdit>("txtNroPDRs").isReadOnly());
    EXPECT_FALSE(C("txtNotas").isVisible());
    EXPECT_TRUE(C("lblNotas").isVisible());
    EXPECT_EQ(DeQ(C<QLabel>("lblNotas").text()), "t0");
    EXPECT_FALSE(C("cmdBorraTablaDisPer").isEnabled());
    Tabla().setFocus(Qt::TabFocusReason);
    Teclea(Tabla(), "9");
    EXPECT_EQ(Celda(1, 1), "30");
    EligeTexto("cmbNroTablaPDRs", "1");
    EXPECT_TRUE(C("txtNotas").isVisible());
    EXPECT_FALSE(C("lblNotas").isVisible());
    EXPECT_TRUE(C("cmdBorraTablaDisPer").isEnabled());
}

TEST_F(VentanaTablasPDRs, UnaTablaSeEscribeConElTeclado)
{
    Abre(2);
    Escribe(C<QLineEdit>("txtNroPDRs"), "2");
    Tabla().setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Espera([&] { return Tabla().model()->rowCount() == 2; }));
    for (const char* valor : {"12,7", "60", "2", "20", "120", "2"}) {
        Teclea(Tabla(), valor);
        QTest::keyClick(&Tabla(), Qt::Key_Tab);
    }
    Pulsa(C<QPushButton>("cmdAplicar"));
    EXPECT_TRUE(Avisos().empty());
    EXPECT_TRUE(
        disco.Bytes("/trabajo/TablasPDRs_pdr.vlm").ends_with("\"t2\"\r\n13,60,2\r\n20,120,2\r\n\"t3\"\r\n"));
    EXPECT_EQ(pp.txtPp, "12.7");
    EXPECT_TRUE(v.isVisible());
}

TEST_F(VentanaTablasPDRs, UnErrorLlevaElFocoALaCelda)
{
    Abre(1);
    Pega("x");
    EXPECT_EQ(Avisos().size(), 1U);  // what is no number isn't pasted
    Pega("10\t60\t2");
    QTest::keyClick(&Tabla(), Qt::Key_Delete);
    Pulsa(C<QPushButton>("cmdAplicar"));
    EXPECT_EQ(Avisos().back().titulo, "Advertencia !!!");
    EXPECT_EQ(QApplication::focusWidget(), &Tabla());
}

// --- rain per UEH ---

class VentanaPpUEHs : public VentanaDeLluvia<dlgTablaPpUEHs, dlgTablaPpUEHs_ventana> {
  protected:
    void Abre()
    {
        for (std::int16_t n = 1; n <= 3; ++n) {
            model::UEH ueh;
            ueh.numUEH = n;
            ueh.NombreUEH = "u-" + std::to_string(n);
            mundo.s.Red.ColUEHs.Agrega(ueh);
        }
        model::GuardaRed(mundo.s);
        mundo.anfitrion->sucesos.clear();
        mundo.s.Tormenta.FormaPp = 3;
        rainfall::Abre(pp, mundo.s);
        rainfall::Abre(f, mundo.s);
        Muestra();
    }
};

TEST_F(VentanaPpUEHs, CadaControlTieneNombreYSeRecorreEnOrden)
{
    Abre();
    EXPECT_EQ(DeQ(v.windowTitle()), "Distribución areal de la Precipitación: Tabla P-D-R por UEHs");
    EXPECT_EQ(Recorrido("txtDPpUEHs"), (Textos{"txtDPpUEHs", "txtRPpUEHs", "MSFlexGridPpUEHs", "laminaPpUEHs",
                                               "cmdBorraTablaHQ", "cmdAplicar", "OKButton", "CancelButton"}));
}

TEST_F(VentanaPpUEHs, UnaLluviaPorUEHSeEscribeConElTeclado)
{
    Abre();
    Escribe(C<QLineEdit>("txtDPpUEHs"), "1234567");
    EXPECT_EQ(Texto("txtDPpUEHs"), "12345");
    QTest::keyClick(&C("txtDPpUEHs"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos().at(0).texto, "Ingrese un valor numérico entero entre 0 y 1440 ");
    Escribe(C<QLineEdit>("txtDPpUEHs"), "90");
    Escribe(C<QLineEdit>("txtRPpUEHs"), "25");
    Tabla().setFocus(Qt::TabFocusReason);
    for (const char* valor : {"30", "20,5", "0"}) {
        Teclea(Tabla(), valor);
        QTest::keyClick(&Tabla(), Qt::Key_Down);
    }
    Pulsa(C<QPushButton>("OKButton"));
    EXPECT_FALSE(v.isVisible());
    EXPECT_EQ(mundo.s.Tormenta.PpUEH(2), 20.5F);
    EXPECT_EQ(mundo.s.Tormenta.PpTormenta, 30.0F);
    EXPECT_EQ(pp.txtDur, "90");
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(VentanaPpUEHs, SinDuracionElFocoVaASuCampo)
{
    Abre();
    Pulsa(C<QPushButton>("cmdAplicar"));
    EXPECT_EQ(Avisos().size(), 2U);
    EXPECT_EQ(QApplication::focusWidget(), &C("txtDPpUEHs"));
}

}  // namespace
}  // namespace rainfall
