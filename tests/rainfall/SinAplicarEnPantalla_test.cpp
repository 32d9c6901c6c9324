// SPDX-License-Identifier: GPL-3.0-or-later
//
// The forms of the rain over work that wasn't applied: the title's mark, and the question before they close.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QWindow>
#include <functional>

#include "ProyectoDeLluvia.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/Componentes.h"
#include "rainfall/dlgDisPpPer_ventana.h"
#include "rainfall/dlgPpReal_ventana.h"
#include "rainfall/dlgPp_ventana.h"
#include "rainfall/dlgTablaPpUEHs_ventana.h"
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {
namespace {

using apoyo::Control;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using Cajas = std::vector<model::Mensaje>;

const model::Mensaje Pregunta{
    "Lo que se escribió en esta ventana no se ha aplicado y se perdería. ¿Desea cerrarla igual ?",
    "Cambios sin aplicar", model::Icono::Exclamacion};

class LluviaSinAplicar : public testing::Test {
  protected:
    LluviaSinAplicar()
    {
        PonProyectoDeLluvia(mundo.s, disco);
        mundo.s.Configuracion.ListaDur = {0, 5, 10, 20, 60};
    }
    void Muestra(forms::Formulario& ventana, const char* suTitulo)
    {
        v = &ventana;
        titulo = suTitulo;
        v->Muestra();
        apoyo::Muestra(*v);
        mundo.anfitrion->sucesos.clear();
        EstaLimpia("at opening");
    }
    template <typename T = QWidget>
    T& C(const char* nombre)
    {
        return Control<T>(*v, nombre);
    }
    /// A key to the window, which gives it to what has the focus.
    void Tecla(int tecla, Qt::KeyboardModifiers con = Qt::NoModifier)
    {
        QTest::keyClick(v->windowHandle(), static_cast<Qt::Key>(tecla), con);
    }
    /// Into a field or a list, in place of what it has.
    void Escribe(const char* campo, const char* texto)
    {
        C(campo).setFocus(Qt::TabFocusReason);
        Tecla(Qt::Key_A, Qt::ControlModifier);
        Sigue(texto);
    }
    void Sigue(const char* texto)
    {
        for (const char* p = texto; *p != 0; ++p)
            QTest::keyClick(v->windowHandle(), *p);
    }
    void EnTabla(const char* tabla, const char* texto)
    {
        C<QTableView>(tabla).setFocus(Qt::TabFocusReason);
        Sigue(texto);
    }
    void EstaMarcada(const char* donde)
    {
        EXPECT_TRUE(Espera([&] { return v->isWindowModified(); })) << donde;
        EXPECT_EQ(DeQ(v->windowTitle()), std::string(titulo) + "[*]") << donde;
    }
    void EstaLimpia(const char* donde)
    {
        v->update();
        EXPECT_TRUE(Espera([&] { return !v->isWindowModified(); })) << donde;
        EXPECT_EQ(DeQ(v->windowTitle()), titulo) << donde;
    }
    /// Esc asks; "No" leaves the form and `intacto` as they are, "Sí" closes the form.
    void EscPregunta(const std::function<bool()>& intacto)
    {
        mundo.anfitrion->sucesos.clear();
        mundo.anfitrion->respuestas = {false, false, true};
        Tecla(Qt::Key_Escape);
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{Pregunta});
        v->close();
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas(2, Pregunta));
        EXPECT_TRUE(v->isVisible());
        EXPECT_TRUE(intacto());
        Tecla(Qt::Key_Escape);
        EXPECT_FALSE(v->isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas(3, Pregunta));
    }
    void EscNoPregunta()
    {
        EstaLimpia("before Esc");
        mundo.anfitrion->sucesos.clear();
        Tecla(Qt::Key_Escape);
        EXPECT_FALSE(v->isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{});
    }
    void CancelarNoPregunta()
    {
        mundo.anfitrion->sucesos.clear();
        Pulsa(C("CancelButton"));
        EXPECT_FALSE(v->isVisible());
        EXPECT_EQ(mundo.anfitrion->Preguntas(), Cajas{});
    }
    std::string Texto(const char* campo) { return DeQ(C<QLineEdit>(campo).text()); }
    std::string Celda(const char* tabla, int fila, int columna)
    {
        return DeQ(C<QTableView>(tabla).model()->index(fila - 1, columna).data().toString());
    }

    apoyo::Mundo mundo;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    forms::Formulario* v = nullptr;
    const char* titulo = "";
};

// --- the storm dialog ---

class PpSinAplicar : public LluviaSinAplicar {
  protected:
    void Abre(std::int16_t forma = 0)
    {
        mundo.s.Tormenta.FormaPp = forma;
        rainfall::Abre(pp, mundo.s);
        Muestra(ventana, "Carga de Datos de Precipitación");
    }
    dlgPp_ventana ventana{mundo.entorno, pp};
};

TEST_F(PpSinAplicar, PreguntaPorUnaRecurrenciaEscritaYNoPorLaAplicada)
{
    Abre();
    Escribe("cmbRec", "7");
    EstaMarcada("typed");
    Pulsa(C("cmdAplicar"));
    EstaLimpia("applied");
    Escribe("cmbRec", "8");
    EstaMarcada("typed again");
    EscPregunta([&] { return C<QComboBox>("cmbRec").currentText() == QStringLiteral("8"); });
    EXPECT_EQ(mundo.s.Tormenta.RecTormenta, 7);
    Abre();
    EscNoPregunta();
}

TEST_F(PpSinAplicar, UnaLluviaYaTomadaAlSalirDelCampoNoSePierde)
{
    Abre();
    Escribe("txtPp", "71");
    EstaMarcada("typed");
    Tecla(Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return mundo.s.Tormenta.PpTormenta == 71; }));
    EscNoPregunta();
}

TEST_F(PpSinAplicar, LaFormaYLaDistribucionSeTomanAlPulsarYLaTablaAlAplicar)
{
    Abre();
    Pulsa(C("optformaPp_2"));
    Pulsa(C("optDistriPp_1"));
    EstaLimpia("form and distribution");
    Pulsa(C("optTablaPDR_1"));
    EstaMarcada("table");
    CancelarNoPregunta();
    EXPECT_EQ(mundo.s.Tormenta.TablaPDR, 0);
}

TEST_F(PpSinAplicar, CadaFormaSeAbreSinMarca)
{
    for (const auto forma : std::to_array<std::int16_t>({0, 1, 2, 3, 4})) {
        Abre(forma);
        EscNoPregunta();
    }
}

// --- the forms that it opens ---

TEST_F(LluviaSinAplicar, UnaTormentaRealPreguntaHastaQueSeEscribe)
{
    mundo.s.Tormenta.FormaPp = 4;
    rainfall::Abre(pp, mundo.s);
    dlgPpReal f;
    dlgPpReal_ventana ventana(mundo.entorno, f, pp);
    const auto abre = [&] {
        rainfall::Abre(f, pp, mundo.s);
        Muestra(ventana, "Edición de Tormentas Reales (Pp-t)");
    };
    abre();
    EnTabla("MSFlexGridTablaPpReal", "9");
    EstaMarcada("cell");
    Pulsa(C("cmdAplicar"));
    EstaLimpia("applied");
    Escribe("txtNotas", "otra");
    EstaMarcada("notes");
    const std::string antes = disco.Bytes("/proyectos/Velmir_pt.vlm");
    EscPregunta([&] { return Texto("txtNotas") == "otra"; });
    EXPECT_EQ(disco.Bytes("/proyectos/Velmir_pt.vlm"), antes);
    abre();
    EnTabla("MSFlexGridTablaPpReal", "4");
    disco.FallaDesde(1, model::NumeroFalla::AccesoRuta);
    Pulsa(C("cmdAplicar"));
    EstaMarcada("not written");
    CancelarNoPregunta();
}

TEST_F(LluviaSinAplicar, UnaDistribucionPreguntaTambienTrasUnCierreRechazado)
{
    mundo.s.Tormenta.DistriPp = 5;
    rainfall::Abre(pp, mundo.s);
    dlgDisPpPer f;
    dlgDisPpPer_ventana ventana(mundo.entorno, f, pp);
    const auto abre = [&] {
        rainfall::Abre(f, pp, mundo.s);
        Muestra(ventana, "Distribución temporal de la Precipitación: Tabla P-t Personalizada");
    };
    abre();
    EnTabla("MSFlexGridDisPerso", "10");
    EstaMarcada("cell");
    Pulsa(C("cmdAplicar"));
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EstaMarcada("10 % + 60 % were refused");
    EscPregunta([&] { return Celda("MSFlexGridDisPerso", 1, 2) == "10"; });
    abre();
    EXPECT_EQ(Celda("MSFlexGridDisPerso", 1, 2), "40");
    Escribe("txtNotas", "otra");
    EstaMarcada("notes");
    // Another table comes into sight, the notes typed wait with theirs.
    C<QComboBox>("cmbNroTablaDisPpPer").setFocus(Qt::TabFocusReason);
    Tecla(Qt::Key_Down);
    EstaMarcada("another table");
    Pulsa(C("cmdAplicar"));
    EscNoPregunta();
}

TEST_F(LluviaSinAplicar, UnaTablaPDRPreguntaTambienTrasUnAplicarRechazado)
{
    mundo.s.Tormenta.FormaPp = 2;
    mundo.s.Tormenta.TablaPDR = 1;
    rainfall::Abre(pp, mundo.s);
    dlgTablasPDRs f;
    dlgTablasPDRs_ventana ventana(mundo.entorno, f, pp);
    const auto abre = [&] {
        rainfall::Abre(f, pp, mundo.s);
        Muestra(ventana, "Tablas de Precipitación [mm] - Duración [min] - Recurrencia [años]");
    };
    abre();
    EnTabla("MSFlexGridTablaPDRs", "26");
    EstaMarcada("cell");
    Pulsa(C("cmdAplicar"));
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
    EstaMarcada("45 min were refused");
    EscPregunta([&] { return Celda("MSFlexGridTablaPDRs", 1, 1) == "26"; });
    abre();
    Escribe("txtNotas", "otra");
    EstaMarcada("notes");
    CancelarNoPregunta();
    abre();
    EnTabla("MSFlexGridTablaPDRs", "26");
    Tecla(Qt::Key_Right);
    Sigue("60");
    Pulsa(C("cmdAplicar"));
    EscNoPregunta();
}

TEST_F(LluviaSinAplicar, LaLluviaPorUEHPreguntaHastaQueSeToma)
{
    for (std::int16_t n = 1; n <= 2; ++n) {
        model::UEH ueh;
        ueh.numUEH = n;
        ueh.NombreUEH = "u-" + std::to_string(n);
        mundo.s.Red.ColUEHs.Agrega(ueh);
    }
    mundo.s.Proyecto.NombreProyecto = "Prueba";
    mundo.s.Proyecto.DirProyectoConf = "/proyectos";
    model::GuardaRed(mundo.s);
    rainfall::Abre(pp, mundo.s);
    dlgTablaPpUEHs f;
    dlgTablaPpUEHs_ventana ventana(mundo.entorno, f, pp);
    const auto abre = [&] {
        rainfall::Abre(f, mundo.s);
        Muestra(ventana, "Distribución areal de la Precipitación: Tabla P-D-R por UEHs");
    };
    abre();
    EnTabla("MSFlexGridPpUEHs", "33");
    EstaMarcada("cell");
    EscPregunta([&] { return Celda("MSFlexGridPpUEHs", 1, 2) == "33"; });
    abre();
    Escribe("txtDPpUEHs", "45");
    EstaMarcada("duration");
    EnTabla("MSFlexGridPpUEHs", "x");
    Pulsa(C("cmdAplicar"));
    EstaMarcada("a depth that is none");
    EnTabla("MSFlexGridPpUEHs", "34");
    Pulsa(C("cmdAplicar"));
    EXPECT_EQ(mundo.s.Tormenta.PpUEH(1), 34);
    EscNoPregunta();
    abre();
    Pulsa(C("cmdBorraTablaHQ"));
    EstaMarcada("emptied");
    CancelarNoPregunta();
}

}  // namespace
}  // namespace rainfall
