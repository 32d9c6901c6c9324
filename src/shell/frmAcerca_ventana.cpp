// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmAcerca_ventana.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QSysInfo>

#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Siro.h"
#include "shell/Arranque.h"
#include "shell/Iconos_ventana.h"

namespace shell {
namespace {

constexpr int LadoDibujo = 64;  // [pixels]
constexpr char HerramientaDelSistema[] = "msinfo32";

void MuestraElSistema(const model::Siro& s)
{
    const QString herramienta = QStandardPaths::findExecutable(QString::fromLatin1(HerramientaDelSistema));
    if (!herramienta.isEmpty() && QProcess::startDetached(herramienta, {})) return;
    s.Anfitrion.Avisa({InformacionDelSistema(), "Información del sistema"});
}

}  // namespace

std::string InformacionDelSistema()
{
    const QStringList renglones{
        QStringLiteral("%1 %2").arg(QLatin1String(forms::NombrePrograma), QLatin1String(SIRO_VERSION)),
        QStringLiteral("Qt %1").arg(QLatin1String(qVersion())),
        QSysInfo::prettyProductName(),
        QStringLiteral("%1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
        QSysInfo::currentCpuArchitecture(),
    };
    return forms::DeQ(renglones.join(QLatin1Char('\n')));
}

frmAcerca_ventana::frmAcerca_ventana(forms::Entorno& alrededor, QWidget* padre)
    : Formulario(alrededor, {"frmAcerca"}, padre)
{
    setWindowTitle(QStringLiteral("Acerca de SIRO"));
    auto* const rejilla = new QGridLayout(this);
    auto* const dibujo = new QLabel(this);
    dibujo->setPixmap(IconoDelPrograma().pixmap(LadoDibujo, LadoDibujo));
    auto* const lblProducto = new QLabel(forms::Q(TituloMDIForm1), this);
    lblProducto->setObjectName(QStringLiteral("lblProducto"));
    auto* const lblVersion = new QLabel(forms::Q(TextoVersion(SIRO_VERSION)), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    auto* const lblLicencia = new QLabel(
        QStringLiteral("Programa libre bajo la licencia GPL, versión 3 o posterior, sin garantía."), this);
    lblLicencia->setObjectName(QStringLiteral("lblLicencia"));
    rejilla->addWidget(dibujo, 0, 0, 3, 1, Qt::AlignTop);
    rejilla->addWidget(lblProducto, 0, 1);
    rejilla->addWidget(lblVersion, 1, 1);
    rejilla->addWidget(lblLicencia, 2, 1);

    auto* const botones = new QDialogButtonBox(this);
    QPushButton* const OKButton =
        botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    QPushButton* const cmdSysInfo =
        botones->addButton(QStringLiteral("&Información del sistema..."), QDialogButtonBox::ActionRole);
    OKButton->setObjectName(QStringLiteral("OKButton"));
    cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    cmdSysInfo->setAutoDefault(false);
    OKButton->setDefault(true);
    rejilla->addWidget(botones, 3, 0, 1, 2);
    AlPulsar(*OKButton, [this] { accept(); });
    AlPulsar(*cmdSysInfo, [this] { MuestraElSistema(entorno.s); });
}

void frmAcerca_ventana::Abre()
{
    entorno.Ejecuta(*this);
}

}  // namespace shell
