// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop program without its splash, its editor open, telling a file what it goes through:
//
//     escritorio_que_cae <own directory> <the user's> <configuration file> <file>
//
// First a line with the number of the process and the place of the canvas, then for each state of the network
// the time, its sign, and whether it is saved.

#include <QApplication>
#include <QTimer>
#include <fstream>
#include <optional>
#include <string>

#include "e2e/Bitacora.h"
#include "shell/Escritorio_ventana.h"

namespace {

/// Tells each new state once the event that made it is over.
class Cronista {
  public:
    Cronista(shell::Escritorio& unEscritorio, const std::string& archivo)
        : escritorio(unEscritorio), salida(archivo)
    {
    }
    void Empieza()
    {
        for (const QWidget* const ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == QLatin1String("frmUEHs"))
                if (const auto* const dibujo = ventana->findChild<QWidget*>(QStringLiteral("picDibujo")))
                    Escribe(*dibujo);
    }
    void Mira()
    {
        const editor::frmUEHs& f = escritorio.Editor().red;
        if (!empezada || !f.abierta || !f.historia.presente) return;
        const bool guardada = !f.cambiada && f.trazo.ClicsCauce == 0;
        if (visto == f.historia.presente && vistaGuardada == guardada) return;
        visto = f.historia.presente;
        vistaGuardada = guardada;
        salida << e2e::Ahora() << ' ' << e2e::Sena(editor::Escribe(*visto)) << ' ' << guardada << std::endl;
    }

    /// What an event has saved before it is over, and a box of its own tells so.
    void MiraGuardado()
    {
        editor::Historia h;
        editor::EmpiezaHistoria(h, {}, escritorio.s.Red, escritorio.Editor().red.trazo);
        if (empezada) Escribe(*h.presente, true);
    }

  private:
    void Escribe(const editor::RedGuardada& red, bool guardada)
    {
        salida << e2e::Ahora() << ' ' << e2e::Sena(editor::Escribe(red)) << ' ' << guardada << std::endl;
    }
    void Escribe(const QWidget& dibujo)
    {
        const QPoint esquina = dibujo.mapToGlobal(QPoint(0, 0));
        salida << QCoreApplication::applicationPid() << ' ' << esquina.x() << ' ' << esquina.y() << ' '
               << dibujo.width() << ' ' << dibujo.height() << std::endl;
        empezada = true;
        Mira();
    }
    shell::Escritorio& escritorio;
    std::ofstream salida;
    std::optional<editor::RedGuardada> visto{};
    bool vistaGuardada = false, empezada = false;
};

}  // namespace

int main(int argc, char** argv)
{
    QApplication programa(argc, argv);
    if (argc < 5) return 2;
    QGuiApplication::setQuitOnLastWindowClosed(false);
    shell::Escritorio escritorio(argv[1], argv[2]);
    Cronista cronista(escritorio, argv[4]);
    const auto avisa = escritorio.s.Anfitrion.Avisa;
    escritorio.s.Anfitrion.Avisa = [](const model::Mensaje&) {};  // that the project has moved
    escritorio.Arranca(0, argv[3]);
    escritorio.s.Anfitrion.Avisa = [&](const model::Mensaje& mensaje) {
        if (mensaje.texto.find("se han guardado correctamente") != std::string::npos) cronista.MiraGuardado();
        avisa(mensaje);
    };
    escritorio.entorno.Atiende([&] { escritorio.Abre(shell::Ventana::frmUEHs); });
    escritorio.entorno.AlTerminarSuceso(escritorio.Principal(), [&] { cronista.Mira(); });
    constexpr int HastaEstarALaVista = 150;  // [ms]
    QTimer::singleShot(HastaEstarALaVista, &programa, [&] { cronista.Empieza(); });
    return escritorio.Atiende();
}
