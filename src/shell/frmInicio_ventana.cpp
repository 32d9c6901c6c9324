// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmInicio_ventana.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"
#include "shell/Iconos_ventana.h"

namespace shell {
namespace {

constexpr int LadoDibujo = 96;  // [pixels]
constexpr int Margen = 28;
constexpr double AumentoTitulo = 2.6;

QLabel* Renglon(QWidget* padre, const char* nombre, const QString& texto, double aumento)
{
    auto* const rotulo = new QLabel(texto, padre);
    rotulo->setObjectName(QString::fromLatin1(nombre));
    QFont letra = rotulo->font();
    letra.setPointSizeF(letra.pointSizeF() * aumento);
    letra.setBold(aumento > 1);
    rotulo->setFont(letra);
    return rotulo;
}

}  // namespace

frmInicio_ventana::frmInicio_ventana() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmInicio"));
    auto* const fila = new QHBoxLayout(this);
    fila->setContentsMargins(Margen, Margen, Margen, Margen);
    fila->setSpacing(Margen);
    auto* const dibujo = new QLabel(this);
    dibujo->setObjectName(QStringLiteral("imgInicio"));
    dibujo->setPixmap(IconoDelPrograma().pixmap(LadoDibujo, LadoDibujo));
    fila->addWidget(dibujo);
    auto* const pila = new QVBoxLayout;
    pila->addWidget(Renglon(this, "lblProducto", QString::fromLatin1(forms::NombrePrograma), AumentoTitulo));
    pila->addWidget(
        Renglon(this, "lblDescripcion", QStringLiteral("Simulación de crecidas en cuencas pequeñas"), 1));
    lblVersion = Renglon(this, "lblVersion", {}, 1);
    pila->addWidget(lblVersion);
    fila->addLayout(pila);
}

void frmInicio_ventana::Abre(std::string_view version)
{
    forms::Pon(*lblVersion, version);
    adjustSize();
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    move(pantalla.center() - rect().center());
    show();
}

}  // namespace shell
