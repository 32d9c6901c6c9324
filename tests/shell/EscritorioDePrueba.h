// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <stdexcept>
#include <string>
#include <string_view>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "shell/Escritorio_ventana.h"
#include "shell/RotuloProyecto_ventana.h"

namespace shell {

/// A copy of what is delivered, so that a test may write to it.
struct Instalacion {
    Instalacion()
    {
        const QString datos = QString::fromUtf8(SIRO_DATA_DIR);
        QDir(carpeta.path()).mkdir(QStringLiteral("Proyectos"));
        QDir(carpeta.path()).mkdir(QStringLiteral("Ayuda"));
        for (const char* const sub : {"", "/Proyectos", "/Ayuda"})
            for (const QFileInfo& archivo : QDir(datos + QLatin1String(sub)).entryInfoList(QDir::Files))
                QFile::copy(archivo.filePath(),
                            carpeta.path() + QLatin1String(sub) + QLatin1Char('/') + archivo.fileName());
    }
    [[nodiscard]] std::string Dir() const
    {
        return forms::DeQ(QFileInfo(carpeta.path()).canonicalFilePath());
    }
    [[nodiscard]] std::string Proyectos() const { return Dir() + "/Proyectos"; }
    [[nodiscard]] std::string Quelmar() const { return Proyectos() + "/Quelmar_Conf.vlm"; }
    QTemporaryDir carpeta{};
};

/// The whole program, with the boxes of a scripted user.
struct EscritorioDePrueba : testing::Test {
    /// `conAnteriores`: what saves take the place of is kept in a folder of the installation's.
    explicit EscritorioDePrueba(bool conAnteriores = false)
        : escritorio(instalacion.Dir(), conAnteriores ? instalacion.Dir() + "/usuario" : std::string())
    {
        model::Anfitrion& a = escritorio.s.Anfitrion;
        const model::Anfitrion prueba = anfitrion.Puerta();
        a.Avisa = prueba.Avisa;
        a.Pregunta = prueba.Pregunta;
        a.Confirma = prueba.Confirma;
        a.PideResguardo = prueba.PideResguardo;
        a.PideTexto = prueba.PideTexto;
        a.EligeArchivo = prueba.EligeArchivo;
    }
    void Arranca(const std::string& archivo = {})
    {
        escritorio.Arranca(0, archivo);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&escritorio.Principal()));
    }
    QAction& Accion(std::string_view nombre)
    {
        auto* const accion = escritorio.Principal().findChild<QAction*>(forms::Q(nombre));
        if (accion == nullptr) throw std::runtime_error(std::string(nombre));
        return *accion;
    }
    std::string Rotulo(const char* nombre)
    {
        return forms::DeQ(apoyo::Control<RotuloProyecto>(escritorio.Principal(), nombre).Texto());
    }
    static QWidget* Editor()
    {
        for (QWidget* ventana : QApplication::topLevelWidgets())
            if (ventana->objectName() == QStringLiteral("frmUEHs")) return ventana;
        return nullptr;
    }
    std::string BytesPuntero() const { return escritorio.s.Disco.Lee(instalacion.Dir() + "/VelmirDir.vlm"); }

    Instalacion instalacion{};
    apoyo::AnfitrionPrueba anfitrion{};
    Escritorio escritorio;
};

}  // namespace shell
