// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Iconos_ventana.h"

#include <QtGlobal>

#include "forms/Textos_ventana.h"

/// A resource inside a static library is registered by hand; outside of any namespace.
static void RegistraIconos()
{
    Q_INIT_RESOURCE(iconos);
}

namespace shell {

QIcon IconoDeBoton(std::string_view clave)
{
    RegistraIconos();
    return QIcon(QStringLiteral(":/iconos/%1.svg").arg(forms::Q(clave)));
}

QIcon IconoDelPrograma()
{
    return IconoDeBoton("siro");
}

}  // namespace shell
