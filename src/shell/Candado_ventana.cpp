// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Candado_ventana.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include "forms/Textos_ventana.h"
#include "model/Candado.h"
#include "model/DirPropio.h"
#include "model/Disco.h"

namespace shell {
namespace {

using forms::DeQ;
using forms::Q;

constexpr std::string_view Carpeta = "candados";

/// A file of the user's own for a project in a folder that takes none. Empty where there is no place for it.
QString EnLoDelUsuario(const QString& conf)
{
    const std::string propio = model::DirDelUsuario(model::AmbienteDelProceso());
    const QString carpeta = Q(model::Ruta(propio, Carpeta));
    if (propio.empty() || !QDir().mkpath(carpeta)) return {};
    const QFileInfo archivo(conf);
    const QString entero = archivo.canonicalFilePath();
    const QByteArray ruta = (entero.isEmpty() ? archivo.absoluteFilePath() : entero).toUtf8();
    return carpeta + QDir::separator() +
           QString::fromLatin1(QCryptographicHash::hash(ruta, QCryptographicHash::Sha1).toHex()) +
           QStringLiteral(".lock");
}

std::string Quien(const QLockFile& candado)
{
    qint64 proceso = 0;
    QString equipo, programa;
    if (!candado.getLockInfo(&proceso, &equipo, &programa)) return "otro programa";
    return DeQ(QStringLiteral("equipo %1, proceso %2").arg(equipo).arg(proceso));
}

}  // namespace

std::string Candado::Toma(const std::string& conf)
{
    if (conf == tomado) return {};
    candado.reset();
    tomado.clear();
    if (conf.empty()) return {};
    for (const QString& ruta : {Q(model::RutaDeCandado(conf)), EnLoDelUsuario(Q(conf))}) {
        if (ruta.isEmpty()) continue;
        auto nuevo = std::make_unique<QLockFile>(ruta);
        nuevo->setStaleLockTime(0);  // it is held for hours; whether its program runs is what counts
        if (nuevo->tryLock(0)) {
            candado = std::move(nuevo);
            tomado = conf;
            return {};
        }
        if (nuevo->error() == QLockFile::LockFailedError) return Quien(*nuevo);
    }
    return {};
}

}  // namespace shell
