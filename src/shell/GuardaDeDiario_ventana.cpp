// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/GuardaDeDiario_ventana.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <chrono>
#include <utility>

#include "forms/Contenido_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Huellas.h"
#include "model/Siro.h"

namespace shell {
namespace {

using forms::DeQ;
using forms::Q;

/// From what the user does to the look at it. What he goes on doing meanwhile doesn't put it off.
constexpr std::chrono::milliseconds EntreMiradas{400};

constexpr const char* FinDeCandado = ".lock";

bool HaceAlgo(QEvent::Type suceso)
{
    switch (suceso) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Shortcut:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

}  // namespace

GuardaDeDiario::GuardaDeDiario(forms::Entorno& alrededor, const editor::frmUEHs& unEditor,
                               std::string unaCarpeta)
    : entorno(alrededor), red(unEditor), carpeta(std::move(unaCarpeta))
{
    if (carpeta.empty()) return;
    turno.setSingleShot(true);
    turno.setInterval(EntreMiradas);
    connect(&turno, &QTimer::timeout, this, [this] { Mira(); });
    qApp->installEventFilter(this);
    entorno.AlTerminarSuceso(*this, [this] {
        // What has been saved or given up is gone at once.
        if (!escrito.Vacio() && !HayDibujo() && !forms::HaySinAplicar()) return Mira();
        if (!turno.isActive()) turno.start();
    });
}

GuardaDeDiario::~GuardaDeDiario()
{
    if (!carpeta.empty()) EscribeYa();
    escriba.reset();
}

bool GuardaDeDiario::eventFilter(QObject* objeto, QEvent* suceso)
{
    if (HaceAlgo(suceso->type()) && !turno.isActive()) turno.start();
    return QObject::eventFilter(objeto, suceso);
}

bool GuardaDeDiario::EscribeYa()
{
    Mira();
    return escriba != nullptr && escriba->Espera() && !escrito.Vacio();
}

bool GuardaDeDiario::HayDibujo() const
{
    return red.abierta && red.historia.presente && (red.cambiada || red.trazo.ClicsCauce > 0);
}

Diario GuardaDeDiario::Presente()
{
    const model::Siro& s = entorno.s;
    Diario diario;
    if (HayDibujo() && vista == red.historia.presente) {
        diario.red = escrito.red;
    } else if (HayDibujo()) {
        // One that a save would refuse leaves the one before in the journal.
        diario.red = editor::Escribe(*red.historia.presente);
        if (!diario.red) diario.red = escrito.red;
        vista = red.historia.presente;
    } else {
        vista.reset();
    }
    diario.formas = forms::ContenidosSinAplicar();
    if (diario.Vacio()) return diario;
    diario.proyecto = s.Proyecto.NombreProyecto;
    diario.conf = model::Ruta(s.Proyecto.DirProyecto, model::ArchivoConf(s.Proyecto.NombreProyecto));
    diario.huellas = model::HuellasDelProyecto(s);
    diario.cuando = escrito.cuando;
    return diario;
}

void GuardaDeDiario::Mira()
{
    const bool falla = escriba != nullptr && escriba->Fallo();
    if (std::exchange(fallo, falla) != falla) AlFallar(falla ? carpeta : std::string{});
    Diario diario = Presente();
    if (diario.Vacio()) {
        if (!escrito.Vacio()) escriba->Borra();
        escrito = {};
        return;
    }
    if (diario == escrito && !escriba->Fallo()) return;
    diario.cuando = entorno.s.Anfitrion.FechaHora();
    if (escriba == nullptr) {
        const QString cuando = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
        QDir().mkpath(Q(carpeta));
        ruta = model::Ruta(
            carpeta, NombreDeDiario(DeQ(cuando), static_cast<long>(QCoreApplication::applicationPid())));
        Toma(ruta);
        escriba = std::make_unique<EscribaDeDiario>(model::DiscoDelSistema(), ruta);
    }
    escrito = std::move(diario);
    escriba->Escribe(Compone(escrito));
}

bool GuardaDeDiario::Toma(const std::string& cual)
{
    auto candado = std::make_unique<QLockFile>(Q(cual) + QLatin1String(FinDeCandado));
    candado->setStaleLockTime(0);  // it is held for hours; whether its program runs is what counts
    if (!candado->tryLock(0) && candado->error() == QLockFile::LockFailedError) return false;
    candados[cual] = std::move(candado);
    return true;
}

/// Those of programs that were killed before their journal was there.
void GuardaDeDiario::QuitaCandadosSueltos()
{
    const QDir donde(Q(carpeta));
    for (const QString& nombre : donde.entryList({QStringLiteral("*%1").arg(QLatin1String(FinDeCandado))},
                                                 QDir::Files | QDir::Hidden)) {
        const QString diario = nombre.chopped(static_cast<int>(qstrlen(FinDeCandado)));
        if (donde.exists(diario)) continue;
        QLockFile candado(donde.filePath(nombre));
        candado.setStaleLockTime(0);
        candado.tryLock(0);  // it goes with the lock
    }
}

std::vector<DiarioHallado> GuardaDeDiario::Hallados()
{
    if (carpeta.empty()) return {};
    QuitaCandadosSueltos();
    return BuscaDiarios(model::DiscoDelSistema(), carpeta,
                        [this](const std::string& cual) { return !candados.contains(cual) && Toma(cual); });
}

}  // namespace shell
