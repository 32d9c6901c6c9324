// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VisorDeAyuda_ventana.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "forms/Textos_ventana.h"

namespace shell {
namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)

/// A desktop that knows as much of programs and types as its `xdg-mime` says.
struct VisorDeAyuda : testing::Test {
    QTemporaryDir carpeta{};
    QByteArray antes = qgetenv("PATH");
    VisorDeAyuda() { qputenv("PATH", QFile::encodeName(carpeta.path())); }
    ~VisorDeAyuda() override { qputenv("PATH", antes); }
    VisorDeAyuda(const VisorDeAyuda&) = delete;
    VisorDeAyuda& operator=(const VisorDeAyuda&) = delete;

    /// xdg-mime is this script; $3 is the type that it is asked for.
    void Responde(const QByteArray& guion)
    {
        QFile archivo(carpeta.filePath(QStringLiteral("xdg-mime")));
        ASSERT_TRUE(archivo.open(QIODevice::WriteOnly | QIODevice::Truncate));
        archivo.write("#!/bin/sh\n" + guion + "\n");
        archivo.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TEST_F(VisorDeAyuda, SinQuienRespondaNoHay)
{
    EXPECT_FALSE(HayVisorDeAyuda());
}

TEST_F(VisorDeAyuda, SinProgramaParaElTipoNoHay)
{
    Responde("exit 0");
    EXPECT_FALSE(HayVisorDeAyuda());
    EXPECT_FALSE(AbreConVisorDeAyuda(forms::DeQ(carpeta.filePath(QStringLiteral("AyudaSIRO.chm")))));
}

TEST_F(VisorDeAyuda, ElProgramaDeCualquieraDeLosDosNombresDelTipoVale)
{
    Responde("[ \"$1 $2 $3\" != 'query default application/vnd.ms-htmlhelp' ] || echo visor.desktop");
    EXPECT_TRUE(HayVisorDeAyuda());
    Responde("[ \"$1 $2 $3\" != 'query default application/x-chm' ] || echo visor.desktop");
    EXPECT_TRUE(HayVisorDeAyuda());
    Responde("[ \"$3\" != text/html ] || echo navegador.desktop");
    EXPECT_FALSE(HayVisorDeAyuda());
}

TEST_F(VisorDeAyuda, UnaConsultaQueFallaNoDiceNada)
{
    Responde("echo visor.desktop; exit 4");
    EXPECT_FALSE(HayVisorDeAyuda());
}

#endif

}  // namespace
}  // namespace shell
