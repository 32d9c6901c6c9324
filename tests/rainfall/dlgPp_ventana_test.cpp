// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp_ventana.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <set>
#include <sstream>

#include "ProyectoDeLluvia.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace rainfall {
namespace {

using apoyo::Control;
using apoyo::Escribe;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using model::Icono;
using model::Mensaje;

const Mensaje PpFueraDeLimites = {"Ingrese un valor numérico, entero o decimal, entre 0 y 999",
                                  "Advertencia !", Icono::Exclamacion};

class VentanaPp : public testing::Test {
  protected:
    VentanaPp() { PonProyectoDeLluvia(mundo.s, disco); }

    /// The form as it opens, without waiting for its closing.
    void Abre(std::int16_t forma = 0)
    {
        mundo.s.Tormenta.FormaPp = forma;
        rainfall::Abre(f, mundo.s);
        v.Muestra();
        apoyo::Muestra(v);
    }
    template <typename T = QWidget>
    T& C(const char* nombre)
    {
        return Control<T>(v, nombre);
    }
    std::string Texto(const char* nombre) { return DeQ(C<QLineEdit>(nombre).text()); }
    std::string TextoLista(const char* nombre) { return DeQ(C<QComboBox>(nombre).currentText()); }
    std::vector<Mensaje> Avisos() const { return mundo.anfitrion->Avisos(); }

    apoyo::Mundo mundo;
    apoyo::DiscoPrueba disco;
    dlgPp f;
    dlgPp_ventana v{mundo.entorno, f};
};

TEST_F(VentanaPp, CadaControlTieneNombreYCadaCampoRotulo)
{
    Abre();
    EXPECT_EQ(apoyo::SinNombre(v), std::vector<std::string>{});
    EXPECT_EQ(DeQ(v.windowTitle()), "Carga de Datos de Precipitación");
    for (const forms::FilaRotulo& fila : ControlesDlgPp) {
        const bool indexado =
            fila.control == "optformaPp" || fila.control == "optDistriPp" || fila.control == "optTablaPDR";
        EXPECT_NE(v.findChild<QWidget*>(forms::Q(fila.control) + QLatin1String(indexado ? "_0" : "")),
                  nullptr)
            << fila.control;
    }
}

TEST_F(VentanaPp, LasLeyendasEstanEnterasYCaben)
{
    Abre();
    EXPECT_EQ(DeQ(C<QRadioButton>("optformaPp_0").text()), FormasPp[0]);
    EXPECT_EQ(DeQ(C<QRadioButton>("optDistriPp_7").text()), DistribucionesPp[7]);
    EXPECT_EQ(DeQ(C<QPushButton>("cmdPpPerso").text()), "Cargar Tabla Personalizada ");
    EXPECT_EQ(DeQ(C<QGroupBox>("Frame7").title()), "Lluvias Reales");
    for (const auto forma : std::to_array<std::int16_t>({0, 2, 4})) {
        Abre(forma);
        for (const QWidget* w : v.findChildren<QWidget*>()) {
            const bool conTexto = qobject_cast<const QAbstractButton*>(w) != nullptr ||
                                  qobject_cast<const QLabel*>(w) != nullptr;
            if (w->isVisible() && conTexto) {
                EXPECT_GE(w->width(), w->sizeHint().width()) << DeQ(w->objectName());
            }
        }
    }
    EXPECT_LE(v.minimumSizeHint().width(), 1300);
    EXPECT_LE(v.minimumSizeHint().height(), 700);
}

// --- the five forms, seen on the controls ---

struct CasoVista {
    std::int16_t forma;
    const char* habilitados;
    const char* deshabilitados;
    const char* visibles;
    const char* ocultos;
};

class VistaPorForma : public VentanaPp, public testing::WithParamInterface<CasoVista> {
  protected:
    std::vector<QWidget*> Controles(const char* nombres)
    {
        std::vector<QWidget*> controles;
        std::istringstream palabras(nombres);
        for (std::string nombre; palabras >> nombre;)
            controles.push_back(&C(nombre.c_str()));
        return controles;
    }
};

TEST_P(VistaPorForma, SeVeAlPulsarSuOpcion)
{
    Abre(GetParam().forma == 0 ? 1 : 0);
    Pulsa(C<QRadioButton>(("optformaPp_" + std::to_string(GetParam().forma)).c_str()));
    for (std::size_t i = 0; i < FormasPp.size(); ++i)
        EXPECT_EQ(C<QRadioButton>(("optformaPp_" + std::to_string(i)).c_str()).isChecked(),
                  i == static_cast<std::size_t>(GetParam().forma));
    for (const QWidget* w : Controles(GetParam().habilitados))
        EXPECT_TRUE(w->isEnabled()) << DeQ(w->objectName());
    for (const QWidget* w : Controles(GetParam().deshabilitados))
        EXPECT_FALSE(w->isEnabled()) << DeQ(w->objectName());
    for (const QWidget* w : Controles(GetParam().visibles))
        EXPECT_TRUE(w->isVisible()) << DeQ(w->objectName());
    for (const QWidget* w : Controles(GetParam().ocultos))
        EXPECT_FALSE(w->isVisible()) << DeQ(w->objectName());
    EXPECT_TRUE(Avisos().empty());
}

INSTANTIATE_TEST_SUITE_P(
    DlgPp, VistaPorForma,
    testing::Values(
        CasoVista{0,
                  "optformaPp_0 optformaPp_4 txtPp txtDur cmbRec cmdPDR cmbPasoPp cmbPasoQ cmdVerGrafico "
                  "cmdVerTablaPt optDistriPp_0 optDistriPp_7 rotulo_txtPp",
                  "cmdPpPerso cmdBorraPDR cmbPDR", "Frame2 Frame4 Frame5 Label9_0 Label9_1",
                  "Frame3 Frame7 lblValidez lblDurMin lblDurMax"},
        CasoVista{1, "cmdBorraPDR cmbPDR cmbPasoPp cmdVerGrafico cmdVerTablaPt optDistriPp_3",
                  "cmdPDR cmdPpPerso txtPp txtDur cmbRec rotulo_txtPp",
                  "Frame2 Frame4 Frame5 Label9_0 Label9_1", "Frame3 Frame7"},
        CasoVista{2, "optTablaPDR_0 optTablaPDR_3 cmbPasoPp optDistriPp_5",
                  "cmdTablaPDR cmdPpPerso txtPp txtDur cmbRec cmdVerGrafico cmdVerTablaPt",
                  "Frame2 Frame3 Frame5 Label9_0 Label9_1", "Frame4 Frame7"},
        CasoVista{3, "cmdCargaPDRnoUniforme cmbRec cmbPasoPp",
                  "txtPp txtDur cmdPpPerso cmdVerGrafico cmdVerTablaPt optDistriPp_0 optDistriPp_7",
                  "Frame2 Frame5 Label9_1", "Frame3 Frame4 Frame7 Label9_0 lblValidez lblDurMin lblDurMax"},
        CasoVista{4, "FilePpReal cmdPpReal cmbPasoQ OKButton",
                  "txtPp txtDur cmbRec cmbPasoPp cmdVerGrafico cmdVerTablaPt", "Frame2 Frame7 Label9_0",
                  "Frame3 Frame4 Frame5 Label9_1"}));

TEST_F(VentanaPp, LosTresMarcosOcupanElMismoLugar)
{
    Abre(0);
    const QRect lista = C("Frame4").geometry();
    Pulsa(C<QRadioButton>("optformaPp_2"));
    EXPECT_EQ(C("Frame3").geometry(), lista);
    Pulsa(C<QRadioButton>("optformaPp_4"));
    EXPECT_EQ(C("Frame7").geometry(), lista);
}

TEST_F(VentanaPp, LaValidezDeUnaPersonalSeMuestraConSusLimites)
{
    mundo.s.TablasDeLluvia.DurMinPer = {0, 30, 0, 0};
    mundo.s.TablasDeLluvia.DurMaxPer = {0, 120, 360, 0};
    Abre();
    Pulsa(C<QRadioButton>("optDistriPp_5"));
    EXPECT_TRUE(C("lblValidez").isVisible());
    EXPECT_EQ(DeQ(C<QLabel>("lblDurMin").text()), "30");
    EXPECT_EQ(DeQ(C<QLabel>("lblDurMax").text()), "120");
    // Each limit stands below its word.
    const QLabel& titulo = C<QLabel>("lblValidez");
    const QString hastaMaxima = titulo.text().left(titulo.text().indexOf(forms::Q("Máxima")));
    EXPECT_EQ(C("lblDurMax").x(), titulo.x() + titulo.fontMetrics().horizontalAdvance(hastaMaxima));
    Pulsa(C<QRadioButton>("optDistriPp_6"));
    EXPECT_FALSE(C("lblDurMin").isVisible());
    EXPECT_TRUE(C("lblDurMax").isVisible());
}

// --- leaving a field ---

TEST_F(VentanaPp, LaPrecipitacionFueraDeLimitesAvisaYConservaElFocoSeleccionada)
{
    Abre();
    auto& txtPp = C<QLineEdit>("txtPp");
    Escribe(txtPp, "999,5");
    QTest::keyClick(&txtPp, Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{PpFueraDeLimites});
    EXPECT_TRUE(txtPp.hasFocus());
    EXPECT_EQ(DeQ(txtPp.selectedText()), "999.5");
    // What is selected is replaced by what is typed.
    apoyo::Teclea(txtPp, "999");
    QTest::keyClick(&txtPp, Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 999; }));
    EXPECT_TRUE(C("txtDur").hasFocus());
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(VentanaPp, LaDuracionRechazadaVuelveA1440)
{
    Abre();
    auto& txtDur = C<QLineEdit>("txtDur");
    Escribe(txtDur, "14401");
    Pulsa(C<QLineEdit>("txtPp"));
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos()[0].texto, "Ingrese un valor numérico, entero o decimal, entre 0 y 14400");
    EXPECT_TRUE(txtDur.hasFocus());
    EXPECT_EQ(DeQ(txtDur.selectedText()), "1440");
    EXPECT_EQ(f.txtDur, "1440");
}

TEST_F(VentanaPp, UnaOpcionNoSePulsaConUnCampoRechazado)
{
    Abre();
    Escribe(C<QLineEdit>("txtPp"), "x");
    Pulsa(C<QRadioButton>("optformaPp_2"));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{PpFueraDeLimites});
    EXPECT_TRUE(C<QRadioButton>("optformaPp_0").isChecked());
    EXPECT_FALSE(C<QRadioButton>("optformaPp_2").isChecked());
    EXPECT_EQ(mundo.s.Tormenta.FormaPp, 0);
    EXPECT_TRUE(C("txtPp").hasFocus());
}

TEST_F(VentanaPp, ElPasoDeEntradaMayorQueLaDuracionConservaElFoco)
{
    Abre();
    Escribe(C<QComboBox>("cmbPasoPp"), "61");
    QTest::keyClick(&C("cmbPasoPp"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos()[0].titulo, "Corrección de selección del paso de entrada (Precipitación)");
    EXPECT_TRUE(C("cmbPasoPp").hasFocus());
    EXPECT_EQ(DeQ(C<QComboBox>("cmbPasoPp").lineEdit()->selectedText()), "61");
}

TEST_F(VentanaPp, ElPasoDeSalidaQueNoCabeSeCorrigeYElFocoSigue)
{
    Abre();
    Escribe(C<QComboBox>("cmbPasoQ"), "3");  // 10/3 isn't whole
    QTest::keyClick(&C("cmbPasoQ"), Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos()[0].titulo, "Corrección de selección del paso de salida");
    EXPECT_EQ(TextoLista("cmbPasoQ"), "10");
    EXPECT_FALSE(C("cmbPasoQ").hasFocus());
}

TEST_F(VentanaPp, LoTecleadoEnUnaListaNoSeCompletaSolo)
{
    Abre();
    Escribe(C<QComboBox>("cmbPasoQ"), "1");
    EXPECT_EQ(TextoLista("cmbPasoQ"), "1");
    EXPECT_EQ(f.cmbPasoQ, "1");
}

// --- commands ---

TEST_F(VentanaPp, EnterEnUnCampoLoTomaYAcepta)
{
    Abre();
    Escribe(C<QLineEdit>("txtPp"), "80");
    QTest::keyClick(&C("txtPp"), Qt::Key_Return);
    EXPECT_TRUE(Espera([&] { return !v.isVisible(); }));
    EXPECT_EQ(mundo.s.Tormenta.PpTormenta, 80);
    EXPECT_EQ(mundo.s.Tormenta.DurTormenta, 60);
}

TEST_F(VentanaPp, EnterConUnCampoRechazadoNoAcepta)
{
    Abre();
    Escribe(C<QLineEdit>("txtPp"), "1000");
    QTest::keyClick(&C("txtPp"), Qt::Key_Return);
    EXPECT_TRUE(v.isVisible());
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{PpFueraDeLimites});
}

TEST_F(VentanaPp, EscCierraSinAplicarPeroLaFormaElegidaQueda)
{
    Abre();
    Pulsa(C<QRadioButton>("optformaPp_2"));
    Escribe(C<QComboBox>("cmbPasoQ"), "5");
    QTest::keyClick(&C("cmbPasoQ"), Qt::Key_Escape);
    EXPECT_FALSE(v.isVisible());
    EXPECT_EQ(mundo.s.Tormenta.FormaPp, 2);
    EXPECT_EQ(mundo.s.Pasos.PasoQ, 10);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(VentanaPp, AplicarSinLluviaAvisaYCierra)
{
    Abre();
    Escribe(C<QLineEdit>("txtPp"), "0");
    Pulsa(C<QPushButton>("cmdAplicar"));
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{{"No ha ingresado datos de Pp y Duración de la tormenta.",
                                               "Advertencia !", Icono::Exclamacion}}));
    EXPECT_FALSE(v.isVisible());
}

TEST_F(VentanaPp, AplicarSigueAbiertoYMuestraElPasoCorregido)
{
    Abre();
    Escribe(C<QLineEdit>("txtDur"), "5");
    Pulsa(C<QPushButton>("cmdAplicar"));
    EXPECT_TRUE(v.isVisible());
    EXPECT_EQ(TextoLista("cmbPasoPp"), "5");
    EXPECT_EQ(mundo.s.Pasos.PasoPp, 5);
}

TEST_F(VentanaPp, ElGraficoSePideConLaTormentaEscrita)
{
    std::vector<PedidoHietograma> pedidos;
    v.AbreHietograma = [&](const PedidoHietograma& pedido) { pedidos.push_back(pedido); };
    Abre();
    Escribe(C<QLineEdit>("txtPp"), "30");
    Pulsa(C<QPushButton>("cmdVerGrafico"));
    ASSERT_EQ(pedidos.size(), 1U);
    // Of constant intensity: a single block.
    EXPECT_EQ(pedidos[0], (PedidoHietograma{1, 10, "Arroyo de prueba", 30, 60}));
    EXPECT_TRUE(v.isVisible());
}

TEST_F(VentanaPp, CadaBotonAbreSuVentana)
{
    Abre();
    std::vector<std::string> abiertas;
    apoyo::Usuario usuario;
    for (int i = 0; i < 4; ++i)
        usuario.Hace([&](QWidget& ventana) {
            abiertas.push_back(DeQ(ventana.objectName()));
            Pulsa(Control<QPushButton>(ventana, "CancelButton"));
        });
    Pulsa(C<QRadioButton>("optDistriPp_5"));
    Pulsa(C<QPushButton>("cmdPpPerso"));
    Pulsa(C<QRadioButton>("optformaPp_3"));
    Pulsa(C<QPushButton>("cmdCargaPDRnoUniforme"));
    Pulsa(C<QRadioButton>("optformaPp_2"));
    Pulsa(C<QRadioButton>("optTablaPDR_1"));
    Pulsa(C<QPushButton>("cmdTablaPDR"));
    Pulsa(C<QRadioButton>("optformaPp_4"));
    Pulsa(C<QPushButton>("cmdPpReal"));
    EXPECT_EQ(abiertas,
              (std::vector<std::string>{"dlgDisPpPer", "dlgTablaPpUEHs", "dlgTablasPDRs", "dlgPpReal"}));
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{{"No existen UEHs cargadas, no hay un proyecto asociado", "",
                                               Icono::Exclamacion}}));
}

TEST_F(VentanaPp, LoQueOtraVentanaPoneEnLosCamposQueda)
{
    v.AbrePpUEHs = [this] {
        f.txtPp = "77";
        f.Estado("txtPp").habilitado = true;
    };
    Abre(3);
    Pulsa(C<QPushButton>("cmdCargaPDRnoUniforme"));
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(Texto("txtPp"), "77");
    EXPECT_FALSE(C("txtPp").isEnabled());  // the form's state was shown anew
}

// --- lists ---

TEST_F(VentanaPp, ElegirDeLaListaArchivadaMuestraSusTresValores)
{
    Abre(1);
    auto& cmbPDR = C<QComboBox>("cmbPDR");
    ASSERT_EQ(cmbPDR.count(), 2);
    EXPECT_EQ(cmbPDR.currentIndex(), -1);
    cmbPDR.setFocus();
    QTest::keyClick(&cmbPDR, Qt::Key_Down);
    QTest::keyClick(&cmbPDR, Qt::Key_Down);
    EXPECT_EQ(Texto("txtPp"), "80");
    EXPECT_EQ(Texto("txtDur"), "120");
    EXPECT_EQ(TextoLista("cmbRec"), "50");
    Pulsa(C<QPushButton>("cmdBorraPDR"));
    EXPECT_EQ(cmbPDR.count(), 1);
    EXPECT_EQ(cmbPDR.currentIndex(), -1);
    EXPECT_EQ(disco.Bytes("/proyectos/ListaPDR.vlm"), "30,20,5\r\n");
}

TEST_F(VentanaPp, LaTormentaDeLosCamposSeAgregaALaLista)
{
    Abre(0);
    Escribe(C<QLineEdit>("txtPp"), "45,5");
    Escribe(C<QComboBox>("cmbRec"), "25");
    Pulsa(C<QPushButton>("cmdPDR"));
    EXPECT_EQ(TextoLista("cmbPDR"), "Pp= 45.5 - Dur = 60 - Rec = 25");
    EXPECT_EQ(disco.Bytes("/proyectos/ListaPDR.vlm"), "30,20,5\r\n80,120,50\r\n45.5,60,25\r\n");
}

TEST_F(VentanaPp, LaTormentaRealSeEligeConElClicYConLasFlechas)
{
    PonTormenta(disco, "Zeta_pt.vlm", "Temporal", 1, 30, "4\r\n");
    Abre(4);
    auto& lista = C<QListWidget>("FilePpReal");
    ASSERT_EQ(lista.count(), 2);
    EXPECT_EQ(Texto("txtPp"), "17.5");
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(lista.item(1)).center());
    EXPECT_EQ(Texto("txtPp"), "4");
    EXPECT_EQ(TextoLista("cmbPasoPp"), "30");
    EXPECT_EQ(DeQ(C<QLabel>("lblMiFilePpReal").text()), "Zeta_pt.vlm");
    EXPECT_EQ(DeQ(C<QLabel>("lblNumPer").text()), "1");
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(DeQ(C<QLabel>("lblMiFilePpReal").text()), "Velmir_pt.vlm");
    EXPECT_EQ(Texto("txtDur"), "60");
}

TEST_F(VentanaPp, AlVolverDeOtraVentanaLaFormaRealLeeDeNuevoYDeUnaCajaNo)
{
    QWidget otra;
    apoyo::Muestra(otra);
    Abre(4);
    PonTormenta(disco, "Velmir_pt.vlm", "Llovizna", 1, 30, "8\r\n");
    apoyo::Muestra(otra);
    v.activateWindow();
    EXPECT_TRUE(Espera([&] { return Texto("txtPp") == "8"; }));

    PonTormenta(disco, "Velmir_pt.vlm", "Llovizna", 1, 30, "9\r\n");
    QDialog caja(&v);
    apoyo::Muestra(caja);
    caja.close();
    EXPECT_TRUE(Espera([&] { return v.isActiveWindow(); }));
    EXPECT_EQ(Texto("txtPp"), "8");
}

// --- modal ---

TEST_F(VentanaPp, AbreEsModalYVuelveAlCerrarse)
{
    mundo.s.Tormenta.PpTormenta = 33;
    mundo.s.Tormenta.DurTormenta = 90;
    QTimer::singleShot(0, &v, [this] {
        EXPECT_TRUE(v.isModal());
        EXPECT_EQ(Texto("txtPp"), "33");
        EXPECT_EQ(Texto("txtDur"), "90");
        EXPECT_TRUE(C<QPushButton>("OKButton").isDefault());
        Pulsa(C<QPushButton>("CancelButton"));
    });
    v.Abre();
    EXPECT_FALSE(v.isVisible());
    EXPECT_FALSE(f.abierta);

    // Opened again it begins anew, and not on the button that closed it.
    mundo.s.Tormenta.FormaPp = 2;
    QTimer::singleShot(0, &v, [this] {
        EXPECT_TRUE(Espera([&] { return C("optformaPp_2").hasFocus(); }));
        QTest::keyClick(&C("optformaPp_2"), Qt::Key_Escape);
    });
    v.Abre();
}

TEST_F(VentanaPp, ElTabRecorreLaVentanaEnElOrdenDeLectura)
{
    Abre(0);
    C("optformaPp_0").setFocus();
    std::vector<std::string> orden;
    const std::set<std::string> paradas = {"txtPp",    "txtDur",     "cmbRec",   "cmdPDR",      "cmbPasoPp",
                                           "cmbPasoQ", "cmdAplicar", "OKButton", "CancelButton"};
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const std::string nombre = DeQ(QApplication::focusWidget()->objectName());
        if (nombre == "optformaPp_0") break;
        if (paradas.contains(nombre)) orden.push_back(nombre);
    }
    EXPECT_EQ(orden, (std::vector<std::string>{"txtPp", "txtDur", "cmbRec", "cmdPDR", "cmbPasoPp", "cmbPasoQ",
                                               "cmdAplicar", "OKButton", "CancelButton"}));
}

}  // namespace
}  // namespace rainfall
