// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmConfigura_ventana.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "model/ArchivoConf.h"

namespace shell {
namespace {

using apoyo::Control;
using apoyo::Escribe;
using apoyo::Espera;
using apoyo::Pulsa;
using forms::DeQ;
using forms::Q;
using model::Mensaje;

const Mensaje EntreDiezYTreintaMil{"Ingrese un valor numérico entre 10 y 30000"};

/// The project "Mio" in a directory of the real disk, with a directory, an image and a text beside it.
class VentanaConfigura : public testing::Test {
  protected:
    VentanaConfigura()
    {
        s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = Dir();
        s.Proyecto.DirProyecto = Dir();
        s.Proyecto.NombreProyecto = "Mio";
        s.frmConfigura.Dir1 = Dir();
        s.frmConfigura.lblMiArchivoConf = "Mio_Conf.vlm";
        s.frmConfigura.TextProyecto = "Crecidas";
        model::cmdAplicar(s);
        s.Disco.CreaDirectorio(Dir() + "/cuencas");
        s.Disco.Escribe(Dir() + "/mapa.jpg", "x");
        s.Disco.Escribe(Dir() + "/notas.txt", "x");
        mundo.anfitrion->sucesos.clear();
    }
    std::string Dir() const { return DeQ(disco.path()); }
    void Abre()
    {
        v.AbreSinEsperar();
        apoyo::Muestra(v);
    }
    void Ficha(int i)
    {
        QTabBar& fichas = *Control<QTabWidget>(v, "SSTab1").tabBar();
        QTest::mouseClick(&fichas, Qt::LeftButton, {}, fichas.tabRect(i).center());
    }
    template <typename T = QWidget>
    T& C(const char* nombre)
    {
        return Control<T>(v, nombre);
    }
    int FichaActual() { return C<QTabWidget>("SSTab1").currentIndex(); }
    void PulsaItem(const char* lista, const char* texto)
    {
        auto& l = C<QListWidget>(lista);
        const auto items = l.findItems(Q(texto), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        QTest::mouseClick(l.viewport(), Qt::LeftButton, {}, l.visualItemRect(items[0]).center());
    }
    std::vector<Mensaje> Avisos() const { return mundo.anfitrion->Avisos(); }

    apoyo::Mundo mundo;
    model::Siro& s = mundo.s;
    QTemporaryDir disco;
    frmConfigura f;
    frmConfigura_ventana v{mundo.entorno, f};
};

TEST_F(VentanaConfigura, CadaControlTieneNombreYCadaCampoRotulo)
{
    Abre();
    EXPECT_EQ(apoyo::SinNombre(v), std::vector<std::string>{});
    EXPECT_EQ(DeQ(v.windowTitle()), "Configurar");
    for (const forms::FilaRotulo& fila : RotulosConfigura)
        EXPECT_NE(v.findChild<QWidget*>(Q(fila.control)), nullptr) << fila.control;
    for (const OpcionConfigura& fila : OpcionesConfigura)
        EXPECT_NE(v.findChild<QRadioButton*>(Q(fila.control)), nullptr) << fila.control;
    for (const char* casilla : {"CheckR2", "CheckR10000", "CheckD5", "CheckD2880"})
        EXPECT_NE(v.findChild<QCheckBox*>(Q(casilla)), nullptr) << casilla;
}

TEST_F(VentanaConfigura, LasCuatroFichasTienenSuTituloYCaben)
{
    Abre();
    auto& fichas = C<QTabWidget>("SSTab1");
    ASSERT_EQ(fichas.count(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(DeQ(fichas.tabText(i)), FichasConfigura[static_cast<std::size_t>(i)]);
    EXPECT_EQ(FichaActual(), 0);
    // As far as the screen goes, with the window's margins.
    EXPECT_GE(fichas.width(),
              std::min(fichas.tabBar()->sizeHint().width(), v.screen()->availableGeometry().width() - 40));
    EXPECT_LE(v.width(), 1300);
    EXPECT_LE(v.height(), 700);
}

TEST_F(VentanaConfigura, MuestraLosDatosDelProyecto)
{
    Abre();
    EXPECT_EQ(DeQ(C<QLabel>("lblDir1").text()), Dir());
    EXPECT_EQ(DeQ(C<QLabel>("lblnombreproyecto").text()), "Mio");
    EXPECT_EQ(DeQ(C<QLabel>("lblMiArchivoConf").text()), "Mio_Conf.vlm");
    EXPECT_EQ(DeQ(C<QLabel>("lblImagenDibujo").text()), "Ninguno");
    EXPECT_EQ(C<QListWidget>("filArchivoConfigura").count(), 1);
    EXPECT_FALSE(C("filArchivoImagenDib").isEnabled());
    EXPECT_FALSE(C("TextDirNv").isEnabled());
    EXPECT_TRUE(C<QCheckBox>("CheckDistriPp").isChecked());
    EXPECT_EQ(DeQ(C<QLineEdit>("TextProyecto").text()), "Crecidas");
    EXPECT_TRUE(C<QCheckBox>("CheckR1000").isChecked());
    EXPECT_FALSE(C<QCheckBox>("CheckR500").isChecked());
    EXPECT_TRUE(C<QRadioButton>("OptionMin").isChecked());
    EXPECT_FALSE(C("Drive1").isVisible());
    auto& arbol = C<QTreeView>("Dir1");
    EXPECT_EQ(DeQ(arbol.currentIndex().data().toString()), DeQ(QDir(disco.path()).dirName()));
}

// --- leaving a field ---

TEST_F(VentanaConfigura, ElTiempoFueraDeLimitesAvisaYConservaElFocoSeleccionado)
{
    Abre();
    Ficha(FichaImagen);
    auto& campo = C<QLineEdit>("txtN0Dur");
    Escribe(campo, "9");
    QTest::keyClick(&campo, Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return !Avisos().empty(); }));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{EntreDiezYTreintaMil});
    EXPECT_TRUE(campo.hasFocus());
    EXPECT_EQ(DeQ(campo.selectedText()), "9");
    apoyo::Teclea(campo, "12,5");
    QTest::keyClick(&campo, Qt::Key_Tab);
    EXPECT_TRUE(Espera([&] { return s.Pasos.N0Dur == 12.5F; }));
    EXPECT_EQ(DeQ(campo.text()), "12.5");
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(VentanaConfigura, LaFichaNoCambiaConUnCampoRechazado)
{
    Abre();
    Ficha(FichaImagen);
    Escribe(C<QLineEdit>("txtEscalaImagen"), "60000");
    Ficha(1);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{EntreDiezYTreintaMil});
    EXPECT_EQ(FichaActual(), FichaImagen);
    EXPECT_TRUE(C("txtEscalaImagen").hasFocus());
    EXPECT_EQ(DeQ(C<QLineEdit>("txtEscalaImagen").selectedText()), "60000");
    QTest::qWait(50);
    EXPECT_EQ(Avisos().size(), 1U);
    apoyo::Teclea(C("txtEscalaImagen"), "5");
    Ficha(1);
    EXPECT_EQ(FichaActual(), 1);
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "5");
}

TEST_F(VentanaConfigura, ElZoomSeRecortaSinMensajeAlPasarAOtroCampo)
{
    Abre();
    Ficha(FichaImagen);
    Escribe(C<QLineEdit>("TexIMGEscala"), "1500");
    Pulsa(C<QLineEdit>("TexIMGX0"));
    EXPECT_TRUE(Espera([&] { return DeQ(C<QLineEdit>("TexIMGEscala").text()) == "1000"; }));
    EXPECT_TRUE(C("TexIMGX0").hasFocus());
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(VentanaConfigura, ElAnchoSeRecortaMientrasSeTeclea)
{
    Abre();
    Ficha(FichaImagen);
    Escribe(C<QLineEdit>("txtMaxUEHsPixel"), "1025");
    EXPECT_EQ(DeQ(C<QLineEdit>("txtMaxUEHsPixel").text()), "1024");
    EXPECT_EQ(s.frmConfigura.txtMaxUEHsPixel, "1024");
}

TEST_F(VentanaConfigura, LosTitulosSeSeleccionanAlRecibirElFocoYLaFechaSePoneConDobleClic)
{
    Abre();
    Ficha(1);
    s.frmConfigura.TextUbica = "Ruvera";
    v.Muestra();
    Pulsa(C("TextUbica"));
    EXPECT_TRUE(Espera([&] { return DeQ(C<QLineEdit>("TextUbica").selectedText()) == "Ruvera"; }));
    QTest::keyClick(&C("TextUbica"), Qt::Key_Backtab);
    EXPECT_EQ(DeQ(C<QLineEdit>("TextProyecto").selectedText()), "Crecidas");
    QTest::mouseDClick(&C("txtFecha"), Qt::LeftButton);
    EXPECT_EQ(DeQ(C<QLineEdit>("txtFecha").text()), "03/04/2011");
}

// --- boxes, options, default selections ---

TEST_F(VentanaConfigura, LasCasillasTildadasSeDeshacenYSeRehacen)
{
    Abre();
    Ficha(2);
    const auto tildadas = [this] {
        std::string cuales;
        for (const char* casilla : {"CheckR2", "CheckR500", "CheckD10"})
            cuales += C<QCheckBox>(casilla).isChecked() ? '1' : '0';
        return cuales;
    };
    const auto tecla = [this](Qt::Key cual, Qt::KeyboardModifiers con = Qt::ControlModifier) {
        QTest::keyClick(&C<QCheckBox>("CheckR500"), cual, con);
    };
    EXPECT_EQ(tildadas(), "101");
    tecla(Qt::Key_Z);
    EXPECT_EQ(tildadas(), "101") << "nothing has been done yet";
    Pulsa(C<QCheckBox>("CheckR500"));
    Pulsa(C<QCheckBox>("CheckD10"));
    Pulsa(C("BtnRecuDef"));
    EXPECT_EQ(tildadas(), "100");
    tecla(Qt::Key_Z);
    EXPECT_EQ(tildadas(), "110") << "the default selection is one step";
    tecla(Qt::Key_Z);
    tecla(Qt::Key_Z);
    EXPECT_EQ(tildadas(), "101");
    tecla(Qt::Key_Y);
    EXPECT_EQ(tildadas(), "111");
    tecla(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tildadas(), "110");
    EXPECT_EQ(s.frmConfigura.CheckD[1], 0);
    Pulsa(C<QCheckBox>("CheckR2"));
    tecla(Qt::Key_Y);
    EXPECT_EQ(tildadas(), "010") << "nothing is left to be done again";
}

TEST_F(VentanaConfigura, LasCasillasYOpcionesLleganASusControles)
{
    Abre();
    Ficha(2);
    Pulsa(C<QCheckBox>("CheckR500"));
    Pulsa(C<QCheckBox>("CheckD10"));
    EXPECT_EQ(s.frmConfigura.CheckR[9], 1);
    EXPECT_EQ(s.frmConfigura.CheckD[1], 0);
    EXPECT_TRUE(C<QCheckBox>("CheckR500").isChecked());
    Pulsa(C("BtnRecuDef"));
    EXPECT_FALSE(C<QCheckBox>("CheckR500").isChecked());
    EXPECT_FALSE(C<QCheckBox>("CheckD10").isChecked());
    Pulsa(C("BtnDurDef"));
    EXPECT_TRUE(C<QCheckBox>("CheckD10").isChecked());
    Ficha(FichaImagen);
    Pulsa(C<QRadioButton>("OptionHr"));
    EXPECT_TRUE(s.frmConfigura.OptionHr);
    EXPECT_FALSE(s.frmConfigura.OptionMin);
    EXPECT_TRUE(s.frmConfigura.Optionm3);
    EXPECT_FALSE(C<QRadioButton>("OptionMin").isChecked());
}

// --- directories and files ---

TEST_F(VentanaConfigura, UnDirectorioDelArbolSeEligeYLasListasLoSiguen)
{
    Abre();
    auto& arbol = C<QTreeView>("Dir1");
    // The tree is read beside the program.
    arbol.expand(arbol.currentIndex());
    const auto cuencas = [&] {
        const QModelIndex aqui = arbol.currentIndex();
        return arbol.model()->index(0, 0, aqui);
    };
    EXPECT_TRUE(Espera([&] { return cuencas().isValid() && arbol.visualRect(cuencas()).isValid(); }));
    arbol.setFocus();
    arbol.scrollTo(cuencas());
    QTest::mouseClick(arbol.viewport(), Qt::LeftButton, {}, arbol.visualRect(cuencas()).center());
    EXPECT_EQ(s.frmConfigura.Dir1, Dir() + "/cuencas");
    EXPECT_EQ(DeQ(C<QLabel>("lblDir1").text()), Dir() + "/cuencas");
    EXPECT_EQ(C<QListWidget>("filArchivoConfigura").count(), 0);
    EXPECT_EQ(s.Proyecto.DirProyecto, Dir());
    QTest::keyClick(&arbol, Qt::Key_Up);
    EXPECT_EQ(s.frmConfigura.Dir1, Dir());
    EXPECT_EQ(C<QListWidget>("filArchivoConfigura").count(), 1);
}

TEST_F(VentanaConfigura, UnDirectorioNuevoSeCreaConSuTilde)
{
    Abre();
    Pulsa(C<QCheckBox>("CheckDirNv"));
    ASSERT_TRUE(C("TextDirNv").isEnabled());
    Escribe(C("TextDirNv"), "año");
    Pulsa(C("BtnDirNv"));
    EXPECT_TRUE(s.Disco.HayDirectorio(Dir() + "/año"));
    EXPECT_EQ(DeQ(C<QLabel>("lblDir1").text()), Dir() + "/año");
    EXPECT_EQ(DeQ(C<QTreeView>("Dir1").currentIndex().data().toString()), "año");
    Pulsa(C<QCheckBox>("CheckDirNv"));
    EXPECT_FALSE(C("TextDirNv").isEnabled());
    EXPECT_EQ(DeQ(C<QLineEdit>("TextDirNv").text()), "");
}

TEST_F(VentanaConfigura, UnArchivoDeConfiguracionSeCargaConElClicYConEnter)
{
    Abre();
    s.frmConfigura.TextProyecto = "otra cosa";
    PulsaItem("filArchivoConfigura", "Mio_Conf.vlm");
    const Mensaje cargado{
        "Se han cargado los datos de configuración del archivo Mio_Conf.vlm del proyecto Mio"};
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{cargado});
    EXPECT_EQ(DeQ(C<QLineEdit>("TextProyecto").text()), "Crecidas");
    QTest::keyClick(&C("filArchivoConfigura"), Qt::Key_Return);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{cargado, cargado}));
    EXPECT_TRUE(v.isVisible());
}

TEST_F(VentanaConfigura, LaImagenSeEligeConSuTilde)
{
    Abre();
    Pulsa(C<QCheckBox>("chkImagenDibujo"));
    ASSERT_TRUE(C("filArchivoImagenDib").isEnabled());
    PulsaItem("filArchivoImagenDib", "mapa.jpg");
    EXPECT_EQ(DeQ(C<QLabel>("lblImagenDibujo").text()), Dir() + "/mapa.jpg");
    PulsaItem("filArchivoImagenDib", "notas.txt");
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(DeQ(C<QLabel>("lblImagenDibujo").text()), "Ninguno");
    Pulsa(C("cmdAplicar"));
    EXPECT_FALSE(C<QCheckBox>("chkImagenDibujo").isChecked());
    EXPECT_FALSE(C("filArchivoImagenDib").isEnabled());
}

// --- commands, opening ---

TEST_F(VentanaConfigura, EnterAceptaLoTecleadoYCierra)
{
    Abre();
    Ficha(FichaImagen);
    Escribe(C("txtN0Dur"), "120");
    QTest::keyClick(&C("txtN0Dur"), Qt::Key_Return);
    EXPECT_TRUE(Espera([&] { return !v.isVisible(); }));
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(mundo.anfitrion->rotulosProyecto, 1);
    s.Pasos.N0Dur = 0;
    model::leoConf(s);
    EXPECT_EQ(s.Pasos.N0Dur, 120);
}

TEST_F(VentanaConfigura, EscCancelaSinRevisarNiEscribir)
{
    const std::string antes = s.Disco.Lee(Dir() + "/Mio_Conf.vlm");
    Abre();
    Ficha(FichaImagen);
    Escribe(C("txtN0Dur"), "5");
    QTest::keyClick(&C("txtN0Dur"), Qt::Key_Escape);
    QTest::qWait(50);
    EXPECT_FALSE(v.isVisible());  // the one question, whether to give it up, was answered so
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Pasos.N0Dur, 10);
    EXPECT_EQ(s.Disco.Lee(Dir() + "/Mio_Conf.vlm"), antes);
}

const Mensaje PreguntaSinAplicar{
    "Lo que se escribió en esta ventana no se ha aplicado y se perdería. ¿Desea cerrarla igual ?",
    "Cambios sin aplicar", model::Icono::Exclamacion};

TEST_F(VentanaConfigura, EscPreguntaPorUnTituloEscritoHastaQueSeAplica)
{
    Abre();
    EXPECT_EQ(DeQ(v.windowTitle()), "Configurar");
    Ficha(1);
    Escribe(C("TextCuenca"), "Arroyo Hondo");
    EXPECT_TRUE(Espera([&] { return v.isWindowModified(); }));
    EXPECT_EQ(DeQ(v.windowTitle()), "Configurar[*]");
    mundo.anfitrion->respuestas = {false, false};
    QTest::keyClick(v.windowHandle(), Qt::Key_Escape);
    v.close();
    EXPECT_TRUE(v.isVisible());
    EXPECT_EQ(mundo.anfitrion->Preguntas(), (std::vector<Mensaje>(2, PreguntaSinAplicar)));
    EXPECT_EQ(DeQ(C<QLineEdit>("TextCuenca").text()), "Arroyo Hondo");
    Pulsa(C("cmdAplicar"));
    EXPECT_TRUE(Espera([&] { return !v.isWindowModified(); }));
    EXPECT_EQ(DeQ(v.windowTitle()), "Configurar");
    QTest::keyClick(v.windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(v.isVisible());
    EXPECT_EQ(mundo.anfitrion->Preguntas().size(), 2U);
}

TEST_F(VentanaConfigura, CancelarNoPreguntaYUnAplicarFallidoSigueMarcado)
{
    Abre();
    Ficha(2);
    Pulsa(C("CheckR2"));
    EXPECT_TRUE(Espera([&] { return v.isWindowModified(); }));
    const QString archivo = Q(Dir() + "/Mio_Conf.vlm");
    QFile::remove(archivo);
    QDir().mkpath(archivo);  // a directory takes the file's place: it can't be written
    Pulsa(C("cmdAplicar"));
    QTest::qWait(50);
    EXPECT_TRUE(v.isWindowModified());
    mundo.anfitrion->sucesos.clear();
    Pulsa(C("CancelButton"));
    EXPECT_FALSE(v.isVisible());
    EXPECT_EQ(mundo.anfitrion->Preguntas(), std::vector<Mensaje>{});
    Abre();
    EXPECT_EQ(DeQ(v.windowTitle()), "Configurar");
}

TEST_F(VentanaConfigura, UnProyectoNuevoSeGuardaAlAbrirYMuestraLaFichaDeImagen)
{
    s.Proyecto.NombreProyecto = "Nuevo";
    s.Proyecto.DirProyectoConf = Dir();
    s.Proyecto.ProyectoNuevo = true;
    Abre();
    EXPECT_EQ(FichaActual(), FichaImagen);
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(DeQ(C<QListWidget>("filArchivoConfigura").currentItem()->text()), "Nuevo_Conf.vlm");
    EXPECT_TRUE(v.isVisible());
}

TEST_F(VentanaConfigura, DesdeElMenuEsModalTambienSiYaEstabaALaVista)
{
    Abre();
    EXPECT_FALSE(v.isModal());
    Ficha(2);
    QTimer::singleShot(0, &v, [this] {
        EXPECT_TRUE(v.isModal());
        EXPECT_TRUE(v.isVisible());
        EXPECT_EQ(FichaActual(), 2);  // it was open already
        Pulsa(C("CancelButton"));
    });
    v.Abre();
    EXPECT_FALSE(v.isVisible());
    Abre();
    EXPECT_FALSE(v.isModal());
    EXPECT_EQ(FichaActual(), 0);
    EXPECT_TRUE(C<QTabWidget>("SSTab1").tabBar()->hasFocus());  // and not the button that closed it
}

}  // namespace
}  // namespace shell
