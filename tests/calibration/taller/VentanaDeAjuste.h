// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTabBar>
#include <vector>

#include "apoyo/Ventanas.h"
#include "calibration/taller/TallerDeAjuste.h"
#include "calibration/taller/dlgAjuste_ventana.h"

namespace pruebas {

/// The workshop's window over its record.
struct VentanaDeAjuste : TallerDeAjuste {
    VentanaDeAjuste() { ventana.resize(1180, 560); }
    void Abre()
    {
        entorno.Atiende([this] {
            estudio.Sigue();
            ventana.Abre();
        });
        apoyo::Muestra(ventana);
    }
    /// The step whose caption begins so.
    void VeAlPaso(const char* titulo)
    {
        auto& pasos = apoyo::Control<QTabBar>(ventana, "pasos");
        for (int i = 0; i < pasos.count(); ++i)
            if (pasos.tabText(i).startsWith(QString::fromUtf8(titulo)))
                QTest::mouseClick(&pasos, Qt::LeftButton, {}, pasos.tabRect(i).center());
    }
    template <typename T>
    T& En(const char* pagina, const char* control)
    {
        return apoyo::Control<T>(apoyo::Control<QWidget>(ventana, pagina), control);
    }
    [[nodiscard]] const std::vector<study::Parametro>& Todos() const
    {
        return calibration::AjusteDe(f).parametros;
    }

    forms::Entorno entorno{s};
    calibration::dlgAjuste_ventana ventana{entorno, f};
};

}  // namespace pruebas
