// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPrinter>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "EscritorioDePrueba.h"

// A monkey at the desk. It presses keys, clicks, drags and picks entries of the menu, from the splash on, and
// starts the program anew whenever it has ended it. It expects one thing: that nothing but its own orders
// ends the program.
//
//   SIRO_MONO_SUCESOS   how many events; a few hundred unless told
//   SIRO_MONO_SEMILLA   the seed
//   SIRO_MONO_DIARIO    a file that tells each event before it is sent, so that the last line is the one that
//   broke it
namespace shell {
namespace {

constexpr int SucesosDeSiempre = 400;
constexpr double Portada = 0.15;  // [s]
constexpr std::chrono::seconds Paciencia{
    300};  // without an event; a series under the sanitizers takes its time
constexpr std::chrono::milliseconds EntreSucesos{1};

int DelAmbiente(const char* nombre, int deOtroModo)
{
    const char* const texto = std::getenv(nombre);
    return texto == nullptr ? deOtroModo : std::atoi(texto);
}

constexpr auto Teclas = std::to_array<Qt::Key>({
    Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Up,
    Qt::Key_Down,  Qt::Key_Left,    Qt::Key_Right,  Qt::Key_Delete, Qt::Key_Home,   Qt::Key_End,
    Qt::Key_F1,    Qt::Key_F2,      Qt::Key_F3,     Qt::Key_F4,     Qt::Key_F5,     Qt::Key_F6,
    Qt::Key_F7,    Qt::Key_F8,      Qt::Key_F9,     Qt::Key_Space,  Qt::Key_Menu,   Qt::Key_PageDown,
    Qt::Key_Minus, Qt::Key_Period,  Qt::Key_Comma,  Qt::Key_Plus,   Qt::Key_PageUp, Qt::Key_Backspace,
});

/// Fails where the monkey's last event is long ago: a hang has no end of its own.
class Guardian {
  public:
    Guardian()
        : hilo([this] {
              int visto = -1;
              auto desde = std::chrono::steady_clock::now();
              while (!termina) {
                  std::this_thread::sleep_for(std::chrono::milliseconds(100));
                  const auto ahora = std::chrono::steady_clock::now();
                  if (latidos != visto) desde = ahora;
                  visto = latidos;
                  if (ahora - desde < Paciencia) continue;
                  std::fputs("The program doesn't answer any more\n", stderr);
                  std::abort();
              }
          })
    {
    }
    ~Guardian()
    {
        termina = true;
        hilo.join();
    }
    Guardian(const Guardian&) = delete;
    Guardian& operator=(const Guardian&) = delete;

    std::atomic<int> latidos = 0;

  private:
    std::atomic<bool> termina = false;
    std::thread hilo;
};

/// Lets what changes the disk change one folder only.
void Encierra(model::Disco& disco, const std::string& carpeta)
{
    namespace fs = std::filesystem;
    const auto exige = [raiz = fs::path(carpeta)](const std::string& ruta) {
        const fs::path pedida = fs::weakly_canonical(ruta);
        if (std::mismatch(raiz.begin(), raiz.end(), pedida.begin(), pedida.end()).first != raiz.end())
            throw model::Falla{model::NumeroFalla::AccesoRuta};
    };
    disco.Escribe = [exige, hace = disco.Escribe](const std::string& ruta, std::string_view bytes) {
        exige(ruta);
        hace(ruta, bytes);
    };
    disco.Reemplaza = [exige, hace = disco.Reemplaza](const std::vector<model::CambioArchivo>& cambios) {
        for (const model::CambioArchivo& cambio : cambios)
            exige(cambio.ruta);
        hace(cambios);
    };
    disco.Recupera = [exige, hace = disco.Recupera](const std::string& directorio) {
        exige(directorio);
        return hace(directorio);
    };
    disco.Agrega = [exige, hace = disco.Agrega](const std::string& ruta, std::string_view bytes) {
        exige(ruta);
        hace(ruta, bytes);
    };
    disco.CreaDirectorio = [exige, hace = disco.CreaDirectorio](const std::string& ruta) {
        exige(ruta);
        hace(ruta);
    };
    disco.Borra = [exige, hace = disco.Borra](const std::string& ruta) {
        exige(ruta);
        hace(ruta);
    };
    disco.Copia = [exige, hace = disco.Copia](const std::string& origen, const std::string& destino) {
        exige(destino);
        hace(origen, destino);
    };
}

class Mono {
  public:
    Mono(unsigned semilla, int sucesos, const Instalacion& unaInstalacion)
        : azar(semilla), quedan(sucesos), instalacion(unaInstalacion)
    {
        if (const char* const archivo = std::getenv("SIRO_MONO_DIARIO")) diario.open(archivo);
        // Nothing that it presses starts another program.
        qputenv("PATH", "");
        // What the toolkit warns of is no end of the program.
        deAntes = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    }
    ~Mono()
    {
        qInstallMessageHandler(deAntes);
        qputenv("PATH", camino);
    }
    Mono(const Mono&) = delete;
    Mono& operator=(const Mono&) = delete;

    [[nodiscard]] bool Cansado() const { return quedan <= 0; }

    /// One life of the program, from its splash to its end or to the last event.
    void Vive()
    {
        Escritorio uno(instalacion.Dir());
        escritorio = &uno;
        Encierra(uno.s.Disco, instalacion.Dir());
        uno.entorno.Impresora = [] { return nullptr; };
        Anota("empieza", {});
        Cita();
        uno.Arranca(Portada, Uno(2) == 0 ? std::string() : instalacion.Quelmar());
        uno.Atiende();
        escritorio = nullptr;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }

  private:
    int Uno(int n) { return n <= 1 ? 0 : std::uniform_int_distribution<int>(0, n - 1)(azar); }
    bool Toca(int porcentaje) { return Uno(100) < porcentaje; }
    template <typename Lista>
    auto& Alguno(Lista& lista)
    {
        return lista[static_cast<typename Lista::size_type>(Uno(static_cast<int>(lista.size())))];
    }

    void Anota(const char* que, const QString& donde)
    {
        if (diario.is_open())
            diario << quedan << ' ' << que << ' ' << donde.toUtf8().constData() << std::endl;
    }

    /// The next event comes from whatever loop handles events then, the one of a box that this one opens
    /// included.
    void Cita()
    {
        QTimer::singleShot(EntreSucesos, &contexto, [this] { Paso(); });
    }

    void Paso()
    {
        if (escritorio == nullptr || escritorio->entorno.Terminando()) return;
        // Where the program only paints meanwhile, no event of the user's gets through.
        const int nivel = QThread::currentThread()->loopLevel();
        Cita();
        if (!enMano.empty() && enMano.back() == nivel) return;
        if (quedan <= 0) return escritorio->entorno.Termina(0);
        --quedan;
        ++guardian.latidos;
        enMano.push_back(nivel);
        Hace();
        enMano.pop_back();
    }

    void Hace()
    {
        // Elsewhere lie files whose reading never ends, and a dialog looks into every one.
        if (!escritorio->s.Proyecto.DirProyecto.starts_with(instalacion.Dir()))
            escritorio->s.Proyecto.DirProyecto = instalacion.Proyectos();
        if (auto* const caja = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            return EligeArchivo(*caja);
        const int suerte = Uno(100);
        if (suerte < 25 && QApplication::activeModalWidget() == nullptr &&
            QApplication::activePopupWidget() == nullptr)
            return PideAlMenu();
        if (suerte < 60) return Teclea();
        Clic();
    }

    /// A name is picked out of those that lie in the monkey's own folder, or nothing.
    void EligeArchivo(QFileDialog& caja)
    {
        static constexpr auto Nombres =
            std::to_array<const char*>({"Quelmar_Conf.vlm", "Quelmar.bmp", "salida", "nuevo_Conf.vlm"});
        caja.setOption(QFileDialog::ReadOnly);
        const QString ruta =
            forms::Q(instalacion.Proyectos()) + QLatin1Char('/') + QLatin1String(Alguno(Nombres));
        Anota("archivo", ruta);
        if (Toca(40)) return caja.reject();
        caja.selectFile(ruta);
        static_cast<QDialog&>(caja).accept();
        if (caja.isVisible()) caja.reject();
    }

    /// Any entry, the hidden main window's too.
    void PideAlMenu()
    {
        std::vector<QAction*> acciones;
        for (QAction* accion : escritorio->Principal().findChildren<QAction*>())
            if (accion->isEnabled() && !accion->isSeparator() && accion->menu() == nullptr)
                acciones.push_back(accion);
        if (acciones.empty()) return;
        QAction* const accion = Alguno(acciones);
        const bool deFin = accion->objectName() == QStringLiteral("mnuSalir");
        if (deFin && !Toca(10)) return;
        Anota("menú", accion->objectName());
        accion->trigger();
    }

    static std::vector<QWindow*> Ventanas()
    {
        std::vector<QWindow*> ventanas;
        for (QWindow* ventana : QGuiApplication::topLevelWindows())
            if (ventana->isVisible() && ventana->width() > 1 && ventana->height() > 1)
                ventanas.push_back(ventana);
        return ventanas;
    }

    /// The popup, else now and then any window, else the one with the keyboard.
    QWindow* Blanco()
    {
        if (QWidget* const menu = QApplication::activePopupWidget()) return menu->windowHandle();
        const std::vector<QWindow*> ventanas = Ventanas();
        QWindow* const activa = QGuiApplication::focusWindow();
        if (activa != nullptr && activa->isVisible() && Toca(85)) return activa;
        return ventanas.empty() ? nullptr
                                : ventanas[static_cast<std::size_t>(Uno(static_cast<int>(ventanas.size())))];
    }

    Qt::KeyboardModifiers Modificadores()
    {
        if (Toca(70)) return {};
        static constexpr auto Algunos =
            std::to_array<Qt::KeyboardModifier>({Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier});
        Qt::KeyboardModifiers m = Alguno(Algunos);
        if (Toca(15)) m |= Qt::ShiftModifier;
        return m;
    }

    void Teclea()
    {
        const QPointer<QWindow> ventana = Blanco();
        if (ventana.isNull()) return;
        const Qt::Key tecla = Toca(60)   ? Alguno(Teclas)
                              : Toca(50) ? static_cast<Qt::Key>(Qt::Key_0 + Uno(10))
                                         : static_cast<Qt::Key>(Qt::Key_A + Uno(26));
        // A menu may go as Alt goes down, before the key itself.
        const Qt::KeyboardModifiers m =
            QApplication::activePopupWidget() != nullptr ? Qt::KeyboardModifiers() : Modificadores();
        if (tecla == Qt::Key_Q && m == Qt::ControlModifier && !Toca(10)) return;
        Anota("tecla",
              QKeySequence(QKeyCombination(m, tecla)).toString() + QLatin1Char(' ') + Nombre(*ventana));
        QTest::keyPress(ventana, tecla, m);
        if (!ventana.isNull()) QTest::keyRelease(ventana, tecla, m);
    }

    static QString Nombre(const QWindow& ventana)
    {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->windowHandle() == &ventana)
                return widget->objectName() + QLatin1Char(' ') + widget->windowTitle();
        return ventana.objectName();
    }

    /// Somewhere in a control, or anywhere in the window.
    QPoint Lugar(const QWindow& ventana)
    {
        QWidget* encima = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->windowHandle() == &ventana) encima = widget;
        std::vector<QWidget*> controles;
        if (encima != nullptr)
            for (QWidget* control : encima->findChildren<QWidget*>())
                if (control->isVisible() && control->window() == encima && !control->size().isEmpty())
                    controles.push_back(control);
        QPoint lugar(Uno(ventana.width()), Uno(ventana.height()));
        if (!controles.empty() && Toca(70)) {
            QWidget* const control = Alguno(controles);
            lugar = control->mapTo(encima, QPoint(Uno(control->width()), Uno(control->height())));
        }
        return {std::clamp(lugar.x(), 0, ventana.width() - 1),
                std::clamp(lugar.y(), 0, ventana.height() - 1)};
    }

    void Clic()
    {
        QPointer<QWindow> ventana = Blanco();
        if (ventana.isNull()) return;
        const Qt::MouseButton boton = Toca(80) ? Qt::LeftButton : Qt::RightButton;
        const Qt::KeyboardModifiers m = Toca(90) ? Qt::KeyboardModifiers() : Modificadores();
        const QPoint lugar = Lugar(*ventana);
        const QString donde =
            QStringLiteral("%1 (%2, %3)").arg(Nombre(*ventana)).arg(lugar.x()).arg(lugar.y());
        const int clase = Uno(10);
        if (clase < 7) {
            Anota(boton == Qt::LeftButton ? "clic" : "clic derecho", donde);
            return Pulsa(ventana, boton, m, {lugar});
        }
        if (clase < 8) {
            Anota("doble clic", donde);
            Pulsa(ventana, boton, m, {lugar});
            return Pulsa(ventana, boton, m, {lugar});
        }
        const QPoint hasta = Lugar(*ventana);
        Anota("arrastra", donde + QStringLiteral(" hasta (%1, %2)").arg(hasta.x()).arg(hasta.y()));
        Pulsa(ventana, boton, m, {lugar, (lugar + hasta) / 2, hasta});
    }

    /// Presses at the first place and lets go at the last, for as long as the window lives.
    static void Pulsa(const QPointer<QWindow>& ventana, Qt::MouseButton boton, Qt::KeyboardModifiers m,
                      std::initializer_list<QPoint> lugares)
    {
        const auto cabe = [&](const QPoint& lugar) {
            return !ventana.isNull() && ventana->isVisible() && QRect({}, ventana->size()).contains(lugar);
        };
        QPoint ultimo;
        for (const QPoint& lugar : lugares) {
            if (!cabe(lugar)) break;
            if (&lugar == lugares.begin())
                QTest::mousePress(ventana, boton, m, lugar);
            else
                QTest::mouseMove(ventana, lugar);
            ultimo = lugar;
        }
        if (cabe(ultimo)) QTest::mouseRelease(ventana, boton, m, ultimo);
    }

    const QByteArray camino = qgetenv("PATH");
    QtMessageHandler deAntes = nullptr;
    std::mt19937 azar;
    int quedan;
    const Instalacion& instalacion;
    Escritorio* escritorio = nullptr;
    std::vector<int> enMano{};  ///< loop in which each event that isn't over was sent
    std::ofstream diario{};
    QObject contexto{};  ///< of its appointments, which end with it
    Guardian guardian{};
};

TEST(Mono, NadaDeLoQueHaceTerminaElProgramaSinQueLoPida)
{
    const Instalacion instalacion;
    Mono mono(static_cast<unsigned>(DelAmbiente("SIRO_MONO_SEMILLA", 1)),
              DelAmbiente("SIRO_MONO_SUCESOS", SucesosDeSiempre), instalacion);
    int vidas = 0;
    while (!mono.Cansado()) {
        mono.Vive();
        ++vidas;
    }
    EXPECT_GT(vidas, 0);
    RecordProperty("vidas", vidas);
}

}  // namespace
}  // namespace shell
