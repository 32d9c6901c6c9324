// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Programa_ventana.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStyleFactory>
#include <QTranslator>

#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/DirPropio.h"
#include "model/Disco.h"
#include "model/Sistema.h"
#include "shell/Escritorio_ventana.h"
#include "shell/Iconos_ventana.h"

namespace shell {
namespace {

using forms::DeQ;

std::string DirTrabajo()
{
    return model::DirTrabajoConAyuda(DeQ(QDir::toNativeSeparators(QCoreApplication::applicationDirPath())));
}

void PonAspecto(QApplication& programa, QTranslator& castellano)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setWindowIcon(IconoDelPrograma());
    if (castellano.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        programa.installTranslator(&castellano);
}

/// The configuration file that the program was started on; empty where it was started on none.
std::string ArchivoPedido(const QStringList& argumentos)
{
    if (argumentos.size() < 2) return {};
    return DeQ(QDir::toNativeSeparators(QFileInfo(argumentos.at(1)).absoluteFilePath()));
}

}  // namespace

int Programa(int& argc, char** argv)
{
    QApplication programa(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("siro"));
    QCoreApplication::setOrganizationName(QLatin1String(forms::NombrePrograma));
    QCoreApplication::setApplicationVersion(QStringLiteral(SIRO_VERSION));
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QTranslator castellano;
    PonAspecto(programa, castellano);

    const std::string dirTrabajo = DirTrabajo(), suya = model::DirDelUsuario(model::AmbienteDelProceso());
    Escritorio escritorio(dirTrabajo, suya.empty() ? dirTrabajo : suya);
    escritorio.Arranca(SegundosPortada, ArchivoPedido(QCoreApplication::arguments()));
    return escritorio.Atiende();
}

}  // namespace shell
