// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "apoyo/Ventanas.h"
#include "forms/Constructor_ventana.h"
#include "forms/Formulario_ventana.h"

namespace forms {
namespace {

using apoyo::Control;

constexpr auto Rotulos = std::to_array<FilaRotulo>({
    {"txtArea", "&Área:", "Del plano"},
    {"txtHora", "", "Formato hh:mm", "Hora inicial"},
    {"lstMetodo", "&Método [min]:"},
    {"chkFQ", "Función"},
    {"optA", "Opción A"},
    {"cmdVer", "&Ver"},
    {"CancelButton", "Cancelar"},
    {"lblNro", "Nro.:"},
    {"fraUno", "Un marco"},
});
constexpr auto Leyendas = std::to_array<std::string_view>({"Una", "Otra"});

struct Registro {
    struct Lista {
        std::vector<std::string> items{"Directo", "Muskingum"};
        int indice = 0;
    };
    bool abierta = true;
    std::string txtArea = "5", txtHora{}, lblNro = "7";
    Lista lstMetodo{};
    bool chkFQ = false, optA = false, visible = true;
    int optB = 0;
    Foco foco{};
    std::vector<std::string> sucesos{};
};

/// A form with a control of each kind.
struct Prueba : Formulario {
    Prueba(Entorno& alrededor, Registro& registro)
        : Formulario(alrededor, {"dlgPrueba", "Una prueba", Rotulos}), f(registro)
    {
        Sigue(f.abierta, &f.foco);
        const auto anota = [this](const char* suceso) { return [this, suceso] { Anota(suceso); }; };
        QLineEdit* const area = Campo("txtArea", f.txtArea, [this] { return f.txtArea != "x"; });
        QWidget* const metodo = Listado("lstMetodo", f.lstMetodo, Flechas::EligenAlSalir, anota("lstMetodo"));
        QWidget* const funcion = Casilla(
            "chkFQ", [this] { return f.chkFQ; }, [this](bool tildada) { f.chkFQ = tildada; });
        const auto opciones = Opciones("optB", Leyendas, f.optB, [this](int i) {
            f.optB = i;
            Anota("optB");
        });
        setLayout(EnPila(
            {Marco("fraUno", EnRejilla({Renglon("txtArea", area, "ha"),
                                        Renglon("lstMetodo", metodo, "min"),
                                        {Hueco(), Campo("txtHora", f.txtHora)},
                                        Dato("lblNro", f.lblNro),
                                        {}},
                                       {0, 1})),
             EnFila({funcion, Opcion("optA", f.optA, anota("optA")), opciones[0], opciones[1], Hueco(),
                     HabilitadoSi(VisibleSi(Boton("cmdVer", anota("cmdVer")), [this] { return f.visible; }),
                                  [this] { return f.chkFQ; }),
                     BotonSinRevisar("CancelButton", [this] { f.abierta = false; })})}));
    }
    void Anota(const char* suceso) { f.sucesos.emplace_back(suceso); }

    Registro& f;
};

struct Constructor : testing::Test {
    void Abre()
    {
        ventana.Muestra();
        apoyo::Muestra(ventana);
    }
    template <typename T>
    T& C(const char* nombre)
    {
        return Control<T>(ventana, nombre);
    }
    apoyo::Mundo mundo{};
    Registro f{};
    Prueba ventana{mundo.entorno, f};
};

TEST_F(Constructor, UnControlTieneLoQueDiceSuFila)
{
    EXPECT_EQ(DeQ(ventana.windowTitle()), "Una prueba");
    const auto& area = C<QLineEdit>("txtArea");
    EXPECT_EQ(DeQ(area.toolTip()), "Del plano");
    EXPECT_EQ(DeQ(area.accessibleName()), "Área:");
    EXPECT_EQ(DeQ(C<QLabel>("rotulo_txtArea").text()), "&Área:");
    EXPECT_EQ(C<QLabel>("rotulo_txtArea").buddy(), &area);
    EXPECT_EQ(DeQ(C<QLineEdit>("txtHora").accessibleName()), "Hora inicial");
    EXPECT_EQ(DeQ(C<QPushButton>("cmdVer").text()), "&Ver");
    EXPECT_EQ(DeQ(C<QGroupBox>("fraUno").title()), "Un marco");
    EXPECT_EQ(DeQ(C<QRadioButton>("optB_1").text()), "Otra");
    EXPECT_TRUE(apoyo::SinNombre(ventana).empty());
}

// "[ha]" stands behind the field; "min" doesn't, since the caption of the list tells it.
TEST_F(Constructor, LaUnidadEstaAparteDondeLaLeyendaNoLaDice)
{
    std::vector<std::string> sinNombre;
    for (const QLabel* const rotulo : ventana.findChildren<QLabel*>())
        if (rotulo->objectName().isEmpty()) sinNombre.push_back(DeQ(rotulo->text()));
    EXPECT_EQ(sinNombre, std::vector<std::string>{"[ha]"});
}

TEST_F(Constructor, MuestraElRegistro)
{
    f.chkFQ = f.optA = true;
    f.lstMetodo.indice = 1;
    Abre();
    EXPECT_EQ(DeQ(C<QLineEdit>("txtArea").text()), "5");
    EXPECT_EQ(DeQ(C<QLabel>("lblNro").text()), "7");
    EXPECT_EQ(C<QListWidget>("lstMetodo").currentRow(), 1);
    EXPECT_TRUE(C<QCheckBox>("chkFQ").isChecked());
    EXPECT_TRUE(C<QRadioButton>("optA").isChecked());
    EXPECT_TRUE(C<QRadioButton>("optB_0").isChecked());
    EXPECT_TRUE(C<QPushButton>("cmdVer").isEnabled());
    f.visible = false;
    f.foco = {"txtArea", true};
    ventana.Muestra();
    EXPECT_FALSE(C<QPushButton>("cmdVer").isVisible());
    EXPECT_TRUE(C<QLineEdit>("txtArea").hasFocus());
    EXPECT_EQ(DeQ(C<QLineEdit>("txtArea").selectedText()), "5");
    EXPECT_EQ(f.foco, Foco{});
}

TEST_F(Constructor, LosSucesosVanAlRegistroYVuelven)
{
    Abre();
    apoyo::Escribe(C<QLineEdit>("txtArea"), "8");
    EXPECT_EQ(f.txtArea, "8");
    apoyo::Pulsa(C<QCheckBox>("chkFQ"));
    EXPECT_TRUE(f.chkFQ);
    EXPECT_TRUE(C<QPushButton>("cmdVer").isEnabled());
    apoyo::Pulsa(C<QPushButton>("cmdVer"));
    apoyo::Pulsa(C<QRadioButton>("optA"));
    apoyo::Pulsa(C<QRadioButton>("optB_1"));
    EXPECT_EQ(f.sucesos, (std::vector<std::string>{"cmdVer", "optA", "optB"}));
    EXPECT_FALSE(C<QRadioButton>("optA").isChecked()) << "the record says so";
    EXPECT_TRUE(C<QRadioButton>("optB_1").isChecked());
}

// The arrows move to the second item; it is taken as the list is left, and only then.
TEST_F(Constructor, LoQueLasFlechasAlcanzanSeEligeAlSalir)
{
    Abre();
    auto& lista = C<QListWidget>("lstMetodo");
    lista.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(f.lstMetodo.indice, 0);
    ventana.Muestra();
    EXPECT_EQ(lista.currentRow(), 1);
    QTest::keyClick(&lista, Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Espera([this] { return f.lstMetodo.indice == 1; }));
    EXPECT_EQ(f.sucesos, std::vector<std::string>{"lstMetodo"});
}

TEST_F(Constructor, UnTextoRechazadoDetieneAUnBotonPeroNoAlQueDejaLaVentana)
{
    f.chkFQ = true;
    Abre();
    apoyo::Escribe(C<QLineEdit>("txtArea"), "x");
    apoyo::Pulsa(C<QPushButton>("cmdVer"));
    EXPECT_TRUE(f.sucesos.empty());
    apoyo::Pulsa(C<QPushButton>("CancelButton"));
    EXPECT_FALSE(ventana.isVisible());
}

TEST_F(Constructor, ElTabuladorSigueElOrdenDeLasPartes)
{
    Abre();
    std::vector<std::string> orden;
    for (const QWidget* w = ventana.nextInFocusChain(); w != &ventana; w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus) orden.push_back(DeQ(w->objectName()));
    EXPECT_EQ(orden, (std::vector<std::string>{"txtArea", "lstMetodo", "txtHora", "chkFQ", "optA", "optB_0",
                                               "optB_1", "cmdVer", "CancelButton"}));
}

// Four rows, of which the third begins in the second column, and the one that takes the rest of the height.
TEST_F(Constructor, LaUltimaParteDeUnaFilaLlegaHastaElBorde)
{
    Abre();
    const auto* const rejilla = qobject_cast<QGridLayout*>(C<QGroupBox>("fraUno").layout());
    ASSERT_NE(rejilla, nullptr);
    const auto lugar = [&](const char* control) {
        std::array<int, 4> l{};
        rejilla->getItemPosition(rejilla->indexOf(&C<QWidget>(control)), &l[0], &l[1], &l[2], &l[3]);
        return l;
    };
    EXPECT_EQ(lugar("txtArea"), (std::array<int, 4>{0, 1, 1, 1}));
    EXPECT_EQ(lugar("lstMetodo"), (std::array<int, 4>{1, 1, 1, 2}));
    EXPECT_EQ(lugar("txtHora"), (std::array<int, 4>{2, 1, 1, 2}));
    EXPECT_EQ(rejilla->rowStretch(4), 1);
    EXPECT_EQ(rejilla->columnStretch(1), 1);
}

}  // namespace
}  // namespace forms
