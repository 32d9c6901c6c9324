// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QProcess>
#include <QRadioButton>

#include "editor/fichas/FormasDePrueba.h"
#include "forms/Lamina_ventana.h"

// The property forms with real keys and clicks.
namespace editor {
namespace {

using apoyo::Control;
using Cajas = std::vector<model::Mensaje>;

struct FichasEnPantalla : FormasDePrueba {};

TEST_F(FichasEnPantalla, TodosLosControlesTienenNombreYLeyenda)
{
    const auto revisa = [](QDialog& forma) {
        EXPECT_EQ(apoyo::SinNombre(forma), std::vector<std::string>{});
    };
    EnForma("dlgUEH2", revisa).Abre(Pedido::FormaUEH);
    EnForma("dlgCauceEditProp", revisa).Abre(Pedido::FormaCauce);
    EnForma("dlgRepresas", revisa).Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", revisa).Abre(Pedido::FormaLago);
    EXPECT_EQ(relojes.findChildren<QTimer*>().size(), 4);
    for (const QTimer* reloj : relojes.findChildren<QTimer*>())
        EXPECT_FALSE(reloj->isActive());
}

TEST_F(FichasEnPantalla, SeAbreEnElComponenteSeleccionadoYSinComponentesNoSeAbre)
{
    s.Seleccion.UEHSel = 2;
    EnForma("dlgUEH2", [this](QDialog& forma) {
        EXPECT_EQ(Control<QLabel>(forma, "lblNroUEH").text(), QStringLiteral("2"));
        EXPECT_EQ(TextoDe(forma, "txtNombreUEH"), s.Red.UEHs(2).NombreUEH);
        EXPECT_EQ(Control<QListWidget>(forma, "lstUEHs").currentRow(), 1);
    }).Abre(Pedido::FormaUEH);
    s.Red.ColUEHs.Vacia();
    Abre(Pedido::FormaUEH);
    EXPECT_FALSE(ventanas->formas.ueh.abierta);
}

TEST_F(FichasEnPantalla, UnCampoRechazadoRetieneElFocoConTodoSeleccionado)
{
    EnForma("dlgUEH2", [this](QDialog& forma) {
        Llena(forma, "txtArea", "99999.5");
        EXPECT_EQ(mundo.anfitrion->Avisos(),
                  (Cajas{{"Ingrese un valor numérico entero o decimal menor de 99999", "",
                          model::Icono::Exclamacion}}));
        EXPECT_TRUE(Campo(forma, "txtArea").hasFocus());
        EXPECT_EQ(Campo(forma, "txtArea").selectedText(), QStringLiteral("99999.5"));
        // The next key replaces it: the limit itself passes.
        apoyo::Teclea(Campo(forma, "txtArea"), "99999");
        QTest::keyClick(&Campo(forma, "txtArea"), Qt::Key_Tab);
        EXPECT_TRUE(apoyo::Espera([&] { return !Campo(forma, "txtArea").hasFocus(); }));
        EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
        Boton(forma, "OKButton");
        EXPECT_FALSE(forma.isVisible());
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Area, 99999);
}

TEST_F(FichasEnPantalla, AceptarConUnCampoRechazadoNoCierraYCancelarNoMira)
{
    const float area = s.Red.UEHs(1).Area;
    EnForma("dlgUEH2", [this](QDialog& forma) {
        apoyo::Escribe(Campo(forma, "txtArea"), "abc");
        Boton(forma, "OKButton");
        EXPECT_TRUE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
        Boton(forma, "CancelButton");
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Area, area);
}

TEST_F(FichasEnPantalla, EntrarEnUnCampoConElRatonSeleccionaTodo)
{
    EnForma("dlgCauceEditProp", [](QDialog& forma) {
        Control<QListWidget>(forma, "lstCauces").setFocus();
        apoyo::Pulsa(Campo(forma, "txtVelMediaCauce"));
        EXPECT_TRUE(apoyo::Espera([&] {
            return Campo(forma, "txtVelMediaCauce").selectedText() == Campo(forma, "txtVelMediaCauce").text();
        }));
    }).Abre(Pedido::FormaCauce);
}

TEST_F(FichasEnPantalla, ElNombreTomaSuPrefijoMientrasSeEscribeYSeCorta)
{
    EnForma("dlgUEH2", [this](QDialog& forma) {
        apoyo::Escribe(Campo(forma, "txtNombreUEH"), "x");
        EXPECT_EQ(TextoDe(forma, "txtNombreUEH"), "u-x");
        apoyo::Teclea(Campo(forma, "txtNombreUEH"), "23456789012345");
        EXPECT_EQ(TextoDe(forma, "txtNombreUEH"), "u-x234567890123");
        QTest::keyClick(&Campo(forma, "txtNombreUEH"), Qt::Key_Tab);
        // Taken on leaving, before "Aceptar".
        EXPECT_TRUE(apoyo::Espera([this] { return s.Red.UEHs(1).NombreUEH == "u-x234567890123"; }));
        EXPECT_EQ(Control<QListWidget>(forma, "lstUEHs").item(0)->text(), QStringLiteral("u-x234567890123"));
    }).Abre(Pedido::FormaUEH);
}

TEST_F(FichasEnPantalla, UnNombreEnUsoQuedaInvalidoConTodoSeleccionadoYNoSeGuarda)
{
    const std::string antes = s.Red.UEHs(1).NombreUEH, usado = s.Red.UEHs(2).NombreUEH.substr(2);
    EnForma("dlgUEH2", [&](QDialog& forma) {
        apoyo::Escribe(Campo(forma, "txtNombreUEH"), usado.c_str());
        EXPECT_EQ(TextoDe(forma, "txtNombreUEH"), "Invalido");
        EXPECT_EQ(Campo(forma, "txtNombreUEH").selectedText(), QStringLiteral("Invalido"));
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, antes);
}

TEST_F(FichasEnPantalla, UnDestinoElegidoQuedaAunqueSeCancele)
{
    EnForma("dlgUEH2", [](QDialog& forma) {
        Elige(forma, "lstCauceAA", "Ninguno");
        EXPECT_EQ(Control<QLabel>(forma, "lblDrenaCauceAA").text(), QString());
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 0);
}

/// A list whose entries are chosen with the keys alone.
struct ListaPorTeclado {
    QDialog& forma;
    QListWidget& lista;

    ListaPorTeclado(QDialog& unaForma, const char* nombre)
        : forma(unaForma), lista(Control<QListWidget>(unaForma, nombre))
    {
        lista.setFocus(Qt::TabFocusReason);
    }
    void Tecla(Qt::Key tecla) const
    {
        QTest::keyClick(forma.windowHandle(), tecla);
        QTest::qWait(0);
    }
    /// Goes with the arrows to the entry of this text, past all between.
    void Va(const std::string& texto) const
    {
        const auto items = lista.findItems(forms::Q(texto), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << texto;
        const int hasta = lista.row(items.front());
        while (lista.currentRow() != hasta)
            Tecla(lista.currentRow() < hasta ? Qt::Key_Down : Qt::Key_Up);
    }
};

TEST_F(FichasEnPantalla, UnDestinoElegidoConFlechasSeTomaAlDejarLaLista)
{
    const std::string nuevo = s.Red.Cauces(1).NombreCauce;
    s.Red.UEHs(1).Cauce_aa = s.Red.Cauces(2).NombreCauce;
    EnForma("dlgUEH2", [&](QDialog& forma) {
        const ListaPorTeclado destinos(forma, "lstCauceAA");
        destinos.Va(nuevo);
        EXPECT_NE(s.Red.UEHs(1).Cauce_aa, nuevo);
        destinos.Tecla(Qt::Key_Tab);
        EXPECT_TRUE(apoyo::Espera([&] { return s.Red.UEHs(1).Cauce_aa == nuevo; }));
        EXPECT_EQ(destinos.lista.currentItem()->text(), forms::Q(nuevo));
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, nuevo);
}

TEST_F(FichasEnPantalla, AceptarConElFocoEnLosDestinosTomaElQueSeVe)
{
    const auto prueba = [](const char* boton) {
        return [boton](QDialog& forma) {
            ListaPorTeclado(forma, "lstCauceAA").Va("Ninguno");
            Boton(forma, boton);
        };
    };
    EnForma("dlgRepresas", prueba("OKButton")).Abre(Pedido::FormaRepresa);
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "");
    EnForma("dlgLago", prueba("OKButton")).Abre(Pedido::FormaLago);
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "");
    EnForma("dlgUEH2", prueba("OKButton")).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
}

TEST_F(FichasEnPantalla, EnterEnLosDestinosTomaUnaSolaVez)
{
    int redibujos = 0;
    const auto redibuja = s.Anfitrion.RedibujaEditor;
    s.Anfitrion.RedibujaEditor = [&, redibuja] {
        ++redibujos;
        redibuja();
    };
    EnForma("dlgUEH2", [&](QDialog& forma) {
        const ListaPorTeclado destinos(forma, "lstCauceAA");
        destinos.Va("Ninguno");
        EXPECT_EQ(redibujos, 0);
        destinos.Tecla(Qt::Key_Return);
        EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
        EXPECT_TRUE(forma.isVisible());
        destinos.Tecla(Qt::Key_Tab);
        EXPECT_EQ(redibujos, 1);
        Elige(forma, "lstCauceAA", "0");  // a click, at once
        EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "0");
        EXPECT_EQ(redibujos, 2);
    }).Abre(Pedido::FormaUEH);
}

TEST_F(FichasEnPantalla, PasarConFlechasSobreUnaRepresaNoArrastraElCauce)
{
    const std::string destino = s.Red.Cauces(1).Cauce_aa;
    const Punto boca{s.Red.XVertice(1, 1), s.Red.YVertice(1, 1)};
    EnForma("dlgCauceEditProp", [&](QDialog& forma) {
        const ListaPorTeclado destinos(forma, "lstTributaCauce");
        destinos.Va("Ninguno");  // beyond all Represas and Lagos
        destinos.Tecla(Qt::Key_Tab);
        EXPECT_TRUE(apoyo::Espera([&] { return s.Red.Cauces(1).Cauce_aa.empty(); })) << destino;
        EXPECT_EQ((Punto{s.Red.XVertice(1, 1), s.Red.YVertice(1, 1)}), boca);
    }).Abre(Pedido::FormaCauce);
}

TEST_F(FichasEnPantalla, UnMetodoElegidoConFlechasSeToma)
{
    s.Red.Represas(1).Metodo = s.Red.Lagos(1).Metodo = "Piscina Nivelada";
    const auto prueba = [](QDialog& forma) {
        const ListaPorTeclado metodos(forma, "lstMetodo");
        metodos.Tecla(Qt::Key_Down);
        EXPECT_EQ(Control<QLabel>(forma, "lblMetodo").text(), QStringLiteral("Muskingum"));
        metodos.Tecla(Qt::Key_Tab);
        Boton(forma, "OKButton");
    };
    EnForma("dlgRepresas", prueba).Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", prueba).Abre(Pedido::FormaLago);
    EXPECT_EQ(s.Red.Represas(1).Metodo, "Muskingum");
    EXPECT_EQ(s.Red.Lagos(1).Metodo, "Muskingum");
}

TEST_F(FichasEnPantalla, PasarAOtraUEHGuardaLosCamposDeLaAnterior)
{
    EnForma("dlgUEH2", [this](QDialog& forma) {
        Llena(forma, "txtRetension_Z", "12,5");
        EXPECT_EQ(TextoDe(forma, "txtRetension_Z"), "12.5");
        Elige(forma, "lstUEHs", s.Red.UEHs(4).NombreUEH.c_str());
        EXPECT_EQ(Control<QLabel>(forma, "lblNroUEH").text(), QStringLiteral("4"));
        EXPECT_EQ(s.Red.UEHs(1).RetensionZ, 12.5F);
        // The arrows look through the list too.
        QTest::keyClick(&Control<QListWidget>(forma, "lstUEHs"), Qt::Key_Down);
        EXPECT_EQ(Control<QLabel>(forma, "lblNroUEH").text(), QStringLiteral("5"));
    }).Abre(Pedido::FormaUEH);
}

TEST_F(FichasEnPantalla, LaCurvaDeInfiltracionSigueALosTresCamposMientrasSeEscriben)
{
    EnForma("dlgUEH2", [](QDialog& forma) {
        auto& curva = Control<forms::Lamina>(forma, "CurvaInfiltracion");
        const QString antes = curva.accessibleDescription();
        apoyo::Escribe(Campo(forma, "txtKostiakov_a"), "1");
        apoyo::Escribe(Campo(forma, "txtKostiakov_b"), "1");
        apoyo::Escribe(Campo(forma, "txtKostiakov_i"), "20");
        EXPECT_NE(curva.accessibleDescription(), antes);
        EXPECT_TRUE(curva.accessibleDescription().contains(QStringLiteral("máximo 200 mm en 200")))
            << forms::DeQ(curva.accessibleDescription());
        Boton(forma, "CancelButton");
    }).Abre(Pedido::FormaUEH);
}

TEST_F(FichasEnPantalla, ElCauceElijeEntreMuskingumYDirectaSinDeshabilitarCampos)
{
    EnForma("dlgCauceEditProp", [](QDialog& forma) {
        Boton(forma, "optDirecta");
        EXPECT_TRUE(Control<QRadioButton>(forma, "optDirecta").isChecked());
        EXPECT_FALSE(Control<QRadioButton>(forma, "optMusk").isChecked());
        EXPECT_TRUE(Campo(forma, "txtCauce_k_Musk").isEnabled());
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaCauce);
    EXPECT_TRUE(s.Red.Cauces(1).optDirMusk);
}

TEST_F(FichasEnPantalla, ElCampoXDelCauceRechazaMasDeMedio)
{
    EnForma("dlgCauceEditProp", [this](QDialog& forma) {
        Llena(forma, "txtCauce_n_Musk", "0.5");
        EXPECT_TRUE(mundo.anfitrion->sucesos.empty());
        Llena(forma, "txtCauce_n_Musk", "0.51");
        EXPECT_EQ(
            mundo.anfitrion->Avisos(),
            (Cajas{{"Ingrese un valor numérico decimal, entre 0 y 0.5", "", model::Icono::Exclamacion}}));
        EXPECT_EQ(forms::DeQ(Campo(forma, "txtCauce_n_Musk").toolTip()),
                  "Coeficiente 'x' de Muskingum. 0<=x>0,5 ");
    }).Abre(Pedido::FormaCauce);
}

TEST_F(FichasEnPantalla, LasGemelasMuestranElCoeficienteSoloConMuskingum)
{
    const auto prueba = [](const char* campo, const char* rotulo) {
        return [campo, rotulo](QDialog& forma) {
            Elige(forma, "lstMetodo", "Muskingum");
            EXPECT_TRUE(Campo(forma, campo).isVisible());
            EXPECT_EQ(Control<QLabel>(forma, rotulo).text(), QStringLiteral("k[min]="));
            Elige(forma, "lstMetodo", "Runge Kutta");
            EXPECT_FALSE(Campo(forma, campo).isVisible());
            EXPECT_EQ(Control<QLabel>(forma, rotulo).text(), QStringLiteral("Runge Kutta"));
            Boton(forma, "OKButton");
        };
    };
    EnForma("dlgRepresas", prueba("txtRepresa_k", "lblRepresaCofk")).Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", prueba("txtLago_k", "lblLagoCofk")).Abre(Pedido::FormaLago);
    EXPECT_EQ(s.Red.Represas(1).Metodo, "Runge Kutta");
    EXPECT_EQ(s.Red.Lagos(1).Metodo, "Runge Kutta");
}

TEST_F(FichasEnPantalla, LaAlturaInicialFueraDeLaTablaSeRechazaYQuedaEnCero)
{
    // The sample's tables reach from 0 to 24 m and from 0 to 8 m.
    const auto prueba = [this](const char* valor, const char* mensaje) {
        return [this, valor, mensaje](QDialog& forma) {
            mundo.anfitrion->sucesos.clear();
            Llena(forma, "txtHInicialEmb", valor);
            EXPECT_EQ(mundo.anfitrion->Avisos(), (Cajas{{mensaje}}));
            EXPECT_EQ(TextoDe(forma, "txtHInicialEmb"), "0");
            EXPECT_TRUE(Campo(forma, "txtHInicialEmb").hasFocus());
            EXPECT_EQ(Campo(forma, "txtHInicialEmb").selectedText(), QStringLiteral("0"));
        };
    };
    EnForma("dlgRepresas", prueba("24.5",
                                  "Ingrese '0' o un valor numérico entre la altura H mímima=0y la "
                                  "altura H máxima=24 dadas en la 'Tabla SHV'"))
        .Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", prueba("-1",
                              "Ingrese '0' o un valor numérico entre la altura H mímima=0y la "
                              "altura H máxima=8 dadas en la 'Tabla SHV'"))
        .Abre(Pedido::FormaLago);
}

TEST_F(FichasEnPantalla, LasFuncionesDeDescargaSeHabilitanUnaPorUna)
{
    EnForma("dlgRepresas", [](QDialog& forma) {
        Boton(forma, "optTablaQ");
        EXPECT_TRUE(Control<QPushButton>(forma, "cmdTablaQ").isEnabled());
        EXPECT_FALSE(Campo(forma, "txtFQa_1").isEnabled());
        EXPECT_FALSE(Control<QCheckBox>(forma, "chkFQ_5").isEnabled());
        Boton(forma, "optFunciones");
        EXPECT_FALSE(Control<QPushButton>(forma, "cmdTablaQ").isEnabled());
        EXPECT_TRUE(Campo(forma, "txtFQa_1").isEnabled());
        EXPECT_FALSE(Campo(forma, "txtFQc_5").isEnabled());
        Boton(forma, "chkFQ_5");
        EXPECT_TRUE(Campo(forma, "txtFQc_5").isEnabled());
        EXPECT_EQ(forma.findChild<QLineEdit*>(QStringLiteral("txtFQc_4")), nullptr);
        Llena(forma, "txtFQc_5", "1,25");
        EXPECT_EQ(TextoDe(forma, "txtFQc_5"), "1.25");
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaRepresa);
    EXPECT_EQ(s.Red.Represas(1).chkFQ[4], 1);
    EXPECT_EQ(s.Red.Represas(1).FQc[4], 1.25F);
    EXPECT_FALSE(s.Red.Represas(1).optTabla);
}

TEST_F(FichasEnPantalla, UnLagoSinTablaLoDiceAlVolverDeSuEditor)
{
    EnForma("dlgLago", [this](QDialog& forma) {
        EXPECT_EQ(Control<QLabel>(forma, "lblParametros").text(), QStringLiteral("Datos HSVQ en Tabla"));
        EnForma("dlgTablaSHVQ", [](QDialog& tabla) {
            Campo(tabla, "txtNroFilas").selectAll();
            apoyo::Teclea(Campo(tabla, "txtNroFilas"), "0");
            Boton(tabla, "cmdAplicar");
        });
        Boton(forma, "cmdParametros");
        EXPECT_EQ(Control<QLabel>(forma, "lblParametros").text(), QStringLiteral("---"));
    }).Abre(Pedido::FormaLago);
}

TEST_F(FichasEnPantalla, CambiarElNombreDeUnaRepresaOfreceLlevarSusTablas)
{
    const std::string viejo = s.Red.Represas(1).NombreRepresa;
    EnForma("dlgRepresas", [&](QDialog& forma) {
        auto& linea = Control<QLabel>(forma, "lblTablas");
        auto& tecla = Control<QPushButton>(forma, "cmdLlevaTablas");
        EXPECT_FALSE(linea.isVisible());
        EXPECT_FALSE(tecla.isVisible());
        Llena(forma, "txtNombreRepresa", "Nueva");
        EXPECT_TRUE(apoyo::Espera([&] { return linea.isVisible() && tecla.isVisible(); }));
        EXPECT_NE(forms::DeQ(linea.text()).find("«" + viejo + "»"), std::string::npos);
        Boton(forma, "cmdLlevaTablas");
        EXPECT_FALSE(tecla.isVisible());
        EXPECT_TRUE(linea.isVisible());
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaRepresa);
    EXPECT_EQ(mundo.anfitrion->sucesos, std::vector<apoyo::Suceso>{});
    for (const auto archivo : {model::ArchivoDeTablas::RHAS, model::ArchivoDeTablas::RHQ})
        EXPECT_EQ(model::BloquesDe(s, archivo)[0].nombre, "r-Nueva");
}

// --- work that hasn't been applied ---

const model::Mensaje PreguntaSinAplicar{
    "Lo que se escribió en esta ventana no se ha aplicado y se perdería. ¿Desea cerrarla igual ?",
    "Cambios sin aplicar", model::Icono::Exclamacion};

TEST_F(FichasEnPantalla, EscYElMarcoPreguntanAntesDePerderLoEscrito)
{
    const float area = s.Red.UEHs(1).Area;
    EnForma("dlgUEH2", [this](QDialog& forma) {
        apoyo::Escribe(Campo(forma, "txtArea"), "77");
        mundo.anfitrion->respuestas = {false};
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(forma.isVisible());
        EXPECT_EQ(TextoDe(forma, "txtArea"), "77");
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{PreguntaSinAplicar});
        mundo.anfitrion->respuestas = {false, true};
        forma.close();
        EXPECT_TRUE(forma.isVisible());
        forma.close();
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas(3, PreguntaSinAplicar));
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(s.Red.UEHs(1).Area, area);
}

TEST_F(FichasEnPantalla, CancelarNoPreguntaYSinNadaEscritoEscTampoco)
{
    const auto prueba = [](const char* campo) {
        return [campo](QDialog& forma) {
            apoyo::Escribe(Campo(forma, campo), "1");
            Boton(forma, "CancelButton");
            EXPECT_FALSE(forma.isVisible());
        };
    };
    const auto nada = [](QDialog& forma) {
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(forma.isVisible());
    };
    struct Fila {
        Pedido pedido;
        const char *forma, *campo;
    };
    for (const Fila& fila : {Fila{Pedido::FormaUEH, "dlgUEH2", "txtVelMedia"},
                             {Pedido::FormaCauce, "dlgCauceEditProp", "txtLongCauce"},
                             {Pedido::FormaRepresa, "dlgRepresas", "txtHInicialEmb"},
                             {Pedido::FormaLago, "dlgLago", "txtReferencia"}}) {
        EnForma(fila.forma, prueba(fila.campo)).Abre(fila.pedido);
        EnForma(fila.forma, nada).Abre(fila.pedido);
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{}) << fila.forma;
        EnForma(fila.forma, [&](QDialog& forma) {
            apoyo::Escribe(Campo(forma, fila.campo), "1");
            QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
            EXPECT_FALSE(forma.isVisible());
        }).Abre(fila.pedido);
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{PreguntaSinAplicar}) << fila.forma;
        mundo.anfitrion->sucesos.clear();
    }
}

TEST_F(FichasEnPantalla, LoYaTomadoNoEsTrabajoSinAplicar)
{
    EnForma("dlgUEH2", [](QDialog& forma) {
        Elige(forma, "lstCauceAA", "Ninguno");
        Llena(forma, "txtNombreUEH", "Otra");
        apoyo::Escribe(Campo(forma, "txtArea"), "77");
        Elige(forma, "lstUEHs", forms::DeQ(Control<QListWidget>(forma, "lstUEHs").item(1)->text()).c_str());
        QTest::keyClick(forma.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(forma.isVisible());
    }).Abre(Pedido::FormaUEH);
    EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{});
    EXPECT_EQ(s.Red.UEHs(1).Area, 77);
}

TEST_F(FichasEnPantalla, ElTituloMarcaLoQueNoSeHaAplicado)
{
    EnForma("dlgUEH2", [](QDialog& forma) {
        const QString titulo = QStringLiteral("Propiedades de UHE (Unidad Hidrológica Elemental)");
        EXPECT_EQ(forma.windowTitle(), titulo);
        const QString area = Campo(forma, "txtArea").text();
        apoyo::Escribe(Campo(forma, "txtArea"), "77");
        EXPECT_TRUE(apoyo::Espera([&] { return forma.isWindowModified(); }));
        EXPECT_EQ(forma.windowTitle(), titulo + QStringLiteral("[*]"));
        apoyo::Escribe(Campo(forma, "txtArea"), forms::DeQ(area).c_str());
        EXPECT_TRUE(apoyo::Espera([&] { return !forma.isWindowModified(); }));
        EXPECT_EQ(forma.windowTitle(), titulo);
    }).Abre(Pedido::FormaUEH);
}

// --- from the editor, and as far as the results ---

QWidget& Editor()
{
    for (QWidget* const w : QApplication::topLevelWidgets())
        if (w->objectName() == QStringLiteral("frmUEHs")) return *w;
    throw std::runtime_error("frmUEHs");
}

TEST_F(FichasEnPantalla, LosCambiosDeUnaFormaSonUnPasoDeLaHistoriaDelEditor)
{
    const std::size_t pasos = ventanas->red.historia.anteriores.size();
    const float area = s.Red.UEHs(1).Area;
    s.Seleccion.UEHSel = 1;
    EnForma("dlgUEH2", [](QDialog& forma) {
        Llena(forma, "txtArea", "123");
        Llena(forma, "txtNombreUEH", "otra");
        Boton(forma, "OKButton");
    });
    QTest::keyClick(&Control<QWidget>(Editor(), "picDibujo"), Qt::Key_F3);
    EXPECT_EQ(s.Red.UEHs(1).Area, 123);
    EXPECT_EQ(ventanas->red.historia.anteriores.size(), pasos + 1);
    EXPECT_TRUE(ventanas->red.cambiada);
    auto* const deshace = Editor().findChild<QAction*>(QStringLiteral("Deshace"));
    ASSERT_NE(deshace, nullptr);
    deshace->trigger();
    EXPECT_EQ(s.Red.UEHs(1).Area, area);
    EXPECT_NE(s.Red.UEHs(1).NombreUEH, "u-otra");
}

/// Runs the saved project with the batch companion and returns its results.
std::string Corre(const std::string& dir)
{
    const QString resultados = forms::Q(dir + "/r.csv");
    QProcess lote;
    lote.start(QStringLiteral(SIRO_LOTE),
               {QStringLiteral("una"), forms::Q(dir + "/Proyectos/Quelmar_Conf.vlm"),
                QStringLiteral("--trabajo"), forms::Q(dir), QStringLiteral("--pp"), QStringLiteral("80"),
                QStringLiteral("--dur"), QStringLiteral("120"), QStringLiteral("--resultados"), resultados});
    EXPECT_TRUE(lote.waitForFinished());
    EXPECT_EQ(lote.exitCode(), 0) << lote.readAllStandardError().toStdString();
    QFile archivo(resultados);
    EXPECT_TRUE(archivo.open(QIODevice::ReadOnly));
    return archivo.readAll().toStdString();
}

/// Greatest outflow of a component in the results.
double Pico(const std::string& csv, const std::string& componente)
{
    double pico = -1;
    for (const QString& linea : forms::Q(csv).split(QLatin1Char('\n'))) {
        const QStringList campos = linea.split(QLatin1Char(','));
        if (campos.size() > 4 && forms::DeQ(campos[0]) == componente)
            pico = std::max(pico, campos[4].toDouble());
    }
    return pico;
}

TEST_F(FichasEnPantalla, LoQueSeEscribeSeGuardaYCambiaLosResultadosDeSiroLote)
{
    const std::string ueh = s.Red.UEHs(1).NombreUEH, represa = s.Red.Represas(1).NombreRepresa;
    const std::string antes = Corre(Dir());
    ASSERT_GT(Pico(antes, ueh), 0);
    const float area = s.Red.UEHs(1).Area;

    EnForma("dlgUEH2", [area](QDialog& forma) {
        Llena(forma, "txtArea", std::to_string(2 * static_cast<int>(area)).c_str());
        Llena(forma, "txtQ0Recesion", "0");
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaUEH);
    EnForma("dlgCauceEditProp", [](QDialog& forma) {
        Boton(forma, "optDirecta");
        Llena(forma, "txtVelMediaCauce", "0.1");
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaCauce);
    EnForma("dlgRepresas", [](QDialog& forma) {
        Llena(forma, "txtFQa_1", "3");
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaRepresa);
    EnForma("dlgLago", [](QDialog& forma) {
        Llena(forma, "txtHInicialEmb", "0");
        Boton(forma, "OKButton");
    }).Abre(Pedido::FormaLago);
    auto* const guarda = Editor().findChild<QAction*>(QStringLiteral("btn_toolbarGuardaUEHs"));
    ASSERT_NE(guarda, nullptr);
    guarda->trigger();

    model::Siro otro;
    otro.Proyecto.NombreProyecto = "Quelmar";
    otro.Proyecto.DirProyecto = s.Proyecto.DirProyecto;
    model::LeeUEHs(otro);
    EXPECT_EQ(otro.Red.UEHs(1).Area, static_cast<float>(2 * static_cast<int>(area)));
    EXPECT_EQ(otro.Red.Cauces(1).VelMediaCauce, 0.1F);
    EXPECT_TRUE(otro.Red.Cauces(1).optDirMusk);
    EXPECT_EQ(otro.Red.Represas(1).FQa[0], 3);
    EXPECT_EQ(otro.Red.Lagos(1).HInicialEmb, 0);

    const std::string despues = Corre(Dir());
    EXPECT_GT(Pico(despues, ueh), 1.5 * Pico(antes, ueh));
    EXPECT_NE(Pico(despues, represa), Pico(antes, represa));
    EXPECT_NE(Pico(despues, s.Red.Cauces(1).NombreCauce), Pico(antes, s.Red.Cauces(1).NombreCauce));
    EXPECT_NE(Pico(despues, s.Red.Lagos(1).NombreLAGO), Pico(antes, s.Red.Lagos(1).NombreLAGO));
}

}  // namespace
}  // namespace editor
