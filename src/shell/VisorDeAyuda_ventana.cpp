// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VisorDeAyuda_ventana.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>

#include "forms/Textos_ventana.h"

namespace shell {

bool HayVisorDeAyuda()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    constexpr int EsperaRespuesta = 3000;  // [ms]
    // The registered name of the type, and the older one that some viewers know alone.
    for (const char* const tipo : {"application/vnd.ms-htmlhelp", "application/x-chm"}) {
        QProcess consulta;
        consulta.start(QStringLiteral("xdg-mime"),
                       {QStringLiteral("query"), QStringLiteral("default"), QString::fromLatin1(tipo)});
        if (!consulta.waitForFinished(EsperaRespuesta)) {
            consulta.kill();
            consulta.waitForFinished(EsperaRespuesta);
            continue;
        }
        const bool responde = consulta.exitStatus() == QProcess::NormalExit && consulta.exitCode() == 0;
        if (responde && !consulta.readAllStandardOutput().trimmed().isEmpty()) return true;
    }
    return false;
#else
    return true;
#endif
}

bool AbreConVisorDeAyuda(const std::string& ruta)
{
    return HayVisorDeAyuda() &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::fromNativeSeparators(forms::Q(ruta))));
}

}  // namespace shell
