// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "apoyo/Ventanas.h"
#include "forms/Formulario_ventana.h"
#include "forms/Pantalla_ventana.h"

namespace forms {
namespace {

/// A form of so many fields, each 40 pixels high, above its two buttons.
struct FormaAlta : Formulario {
    FormaAlta(Entorno& alrededor, int cuantos, QWidget* padre = nullptr)
        : Formulario(alrededor, {"FormaAlta"}, padre)
    {
        auto* const pila = new QVBoxLayout(this);
        for (int i = 0; i < cuantos; ++i) {
            auto* const campo = new QLineEdit;
            campo->setObjectName(QStringLiteral("campo_%1").arg(i));
            campo->setMinimumHeight(40);
            pila->addWidget(campo);
        }
        auto* const fila = new QHBoxLayout;
        for (const char* const nombre : {"OKButton", "CancelButton"}) {
            auto* const boton = new QPushButton(QString::fromLatin1(nombre));
            boton->setObjectName(QString::fromLatin1(nombre));
            fila->addWidget(boton);
        }
        pila->addLayout(fila);
    }
    void Muestra() override {}
};

struct Pantalla : testing::Test {
    Pantalla() { mundo.entorno.Ajustes().clear(); }
    ~Pantalla() override { mundo.entorno.Ajustes().clear(); }
    static QRect Lugar() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    apoyo::Mundo mundo{};
};

TEST_F(Pantalla, LoQueCabeQuedaComoEs)
{
    FormaAlta forma(mundo.entorno, 3);
    apoyo::Muestra(forma);
    EXPECT_EQ(forma.findChild<QScrollArea*>(), nullptr);
}

// Nobody has given it a place yet: it opens over the window that it belongs to, not in the screen's corner.
TEST_F(Pantalla, LaPrimeraVezSeAbreEnMedioDeSuVentana)
{
    QWidget principal;
    principal.setGeometry(150, 120, 500, 450);
    apoyo::Muestra(principal);
    FormaAlta forma(mundo.entorno, 3, &principal);
    apoyo::Muestra(forma);
    constexpr int Marco = 40;  // as thick as a frame may be
    EXPECT_NEAR(forma.geometry().center().x(), principal.geometry().center().x(), Marco);
    EXPECT_NEAR(forma.geometry().center().y(), principal.geometry().center().y(), Marco);
}

// 40 fields of 40 pixels are 1600, twice as high as the screen.
TEST_F(Pantalla, LoQueNoCabeSeDesplazaYSusBotonesQuedanALaVista)
{
    FormaAlta forma(mundo.entorno, 40);
    apoyo::Muestra(forma);
    EXPECT_TRUE(Lugar().contains(forma.frameGeometry()));
    EXPECT_GT(forma.height(), Lugar().height() * 4 / 5);  // all the room that there is
    for (const char* const nombre : {"OKButton", "CancelButton"}) {
        const auto& boton = apoyo::Control<QPushButton>(forma, nombre);
        EXPECT_EQ(boton.visibleRegion().boundingRect(), boton.rect());
    }
    // The field that takes the keyboard comes into sight.
    auto& ultimo = apoyo::Control<QLineEdit>(forma, "campo_39");
    EXPECT_TRUE(ultimo.visibleRegion().isEmpty());
    apoyo::Control<QLineEdit>(forma, "campo_38").setFocus();
    QTest::keyClick(forma.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(ultimo.hasFocus());
    EXPECT_EQ(ultimo.visibleRegion().boundingRect(), ultimo.rect());
    QTest::keyClick(forma.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(apoyo::Control<QPushButton>(forma, "OKButton").hasFocus());
}

TEST_F(Pantalla, ElTamanoYElLugarQueSeLeDieronVuelven)
{
    const QRect dado(120, 90, 431, 377);
    {
        FormaAlta forma(mundo.entorno, 3);
        apoyo::Muestra(forma);
        forma.setGeometry(dado);
        QTest::qWait(1);
        forma.close();
    }
    FormaAlta otra(mundo.entorno, 3);
    apoyo::Muestra(otra);
    EXPECT_EQ(otra.geometry(), dado);
}

// As after a larger screen has been taken away.
TEST_F(Pantalla, LoQueQuedoFueraDeLaPantallaVuelveAElla)
{
    for (const QRect& dejada : {QRect(3000, 2000, 400, 300), QRect(-390, -290, 400, 300),
                                QRect(700, 100, 400, 300), QRect(10, 10, 2000, 1500)}) {
        mundo.entorno.Ajustes().clear();
        {
            FormaAlta forma(mundo.entorno, 3);
            apoyo::Muestra(forma);
            forma.setGeometry(dejada);
            QTest::qWait(1);
            forma.close();
        }
        FormaAlta otra(mundo.entorno, 3);
        apoyo::Muestra(otra);
        EXPECT_TRUE(Lugar().contains(otra.frameGeometry()))
            << otra.x() << ',' << otra.y() << ' ' << otra.width() << 'x' << otra.height();
    }
}

}  // namespace
}  // namespace forms
