// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Ayuda_ventana.h"

#include <QDir>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "forms/Textos_ventana.h"
#include "shell/Iconos_ventana.h"

namespace shell {
namespace {

constexpr int LetrasDeAncho = 90;
constexpr int RenglonesDeAlto = 30;

}  // namespace

Ayuda_ventana::Ayuda_ventana(forms::Entorno& alrededor, QWidget* padre) : Ventana(alrededor, "Ayuda", padre)
{
    setWindowTitle(QStringLiteral("Ayuda de SIRO"));
    setWindowIcon(IconoDeBoton("Ayuda"));
    auto* const cmdInicio = new QPushButton(QStringLiteral("&Inicio"), this);
    auto* const cmdAtras = new QPushButton(QStringLiteral("A&trás"), this);
    auto* const cmdCerrar = new QPushButton(QStringLiteral("&Cerrar"), this);
    cmdInicio->setObjectName(QStringLiteral("cmdInicio"));
    cmdAtras->setObjectName(QStringLiteral("cmdAtras"));
    cmdCerrar->setObjectName(QStringLiteral("cmdCerrar"));
    cmdAtras->setEnabled(false);
    Paginas = new QTextBrowser(this);
    Paginas->setObjectName(QStringLiteral("Paginas"));
    Paginas->setAccessibleName(QStringLiteral("Páginas de ayuda"));
    Paginas->setOpenExternalLinks(true);

    auto* const botones = new QHBoxLayout;
    botones->addWidget(cmdInicio);
    botones->addWidget(cmdAtras);
    botones->addStretch(1);
    botones->addWidget(cmdCerrar);
    auto* const pila = new QVBoxLayout(this);
    pila->addWidget(Paginas, 1);
    pila->addLayout(botones);

    AlPulsar(*cmdInicio, [this] { Paginas->home(); });
    AlPulsar(*cmdAtras, [this] { Paginas->backward(); });
    AlPulsar(*cmdCerrar, [this] { close(); });
    connect(Paginas, &QTextBrowser::backwardAvailable, cmdAtras, &QPushButton::setEnabled);
    resize(fontMetrics().averageCharWidth() * LetrasDeAncho, fontMetrics().lineSpacing() * RenglonesDeAlto);
}

void Ayuda_ventana::Abre(const std::string& ruta)
{
    Paginas->setSource(QUrl::fromLocalFile(QDir::fromNativeSeparators(forms::Q(ruta))));
    entorno.Presenta(*this);
}

}  // namespace shell
