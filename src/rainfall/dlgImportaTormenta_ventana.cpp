// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgImportaTormenta_ventana.h"

#include <QHeaderView>

namespace rainfall {

dlgImportaTormenta_ventana::dlgImportaTormenta_ventana(forms::Entorno& alrededor,
                                                       dlgImportaTormenta& registro, QWidget* padre)
    : FormaDeTabla_ventana(
          alrededor, {"dlgImportaTormenta", TituloDlgImportaTormenta, LeyendasDlgImportaTormenta}, padre),
      f(registro)
{
    Sigue(f.abierta);
    QPushButton* const acepta =
        HabilitadoSi(Boton("OKButton", [this] { OKButton(f); }), [this] { return f.puedeImportar; });
    acepta->setDefault(true);
    setLayout(EnPila(
        {Datos(),
         MarcoDeDudosos(),
         {MarcoDeTabla(f.grillaImportada, "grillaImportada", "laminaImportada", [this] { return Vista(f); }),
          1},
         EnFila({Hueco(), acepta, BotonCancelar()})}));
}

QLayout* dlgImportaTormenta_ventana::Datos()
{
    const auto dato = [this](std::string_view control, const std::string& texto) -> forms::Partes {
        QLabel* const valor = Texto(control, texto);
        valor->setWordWrap(true);
        return {{Rotulo(control, valor), 0, Qt::AlignTop}, valor};
    };
    QComboBox* const paso = CampoConLista("cmbPaso", f.itemsPaso, f.cmbPaso);
    connect(paso, &QComboBox::editTextChanged, this, [this] { Suceso([this] { cmbPaso_Change(f); }); });
    return EnRejilla({dato("lblArchivo", f.lblArchivo),
                      dato("lblRegistro", f.lblRegistro),
                      {Rotulo("cmbPaso", paso), {paso, 0, Qt::AlignLeft}},
                      dato("lblResultado", f.lblResultado)},
                     {0, 1});
}

/// What the user should look at before the storm is taken; hidden where there is nothing.
QWidget* dlgImportaTormenta_ventana::MarcoDeDudosos()
{
    constexpr int Filas = 4;
    forms::TablaGrilla* const dudosos = Tabla(f.grillaDudosos, "grillaDudosos");
    dudosos->horizontalHeader()->setStretchLastSection(true);
    const int alto = dudosos->fontMetrics().height();
    dudosos->verticalHeader()->setDefaultSectionSize(alto * 3 / 2);
    dudosos->setFixedHeight(dudosos->horizontalHeader()->sizeHint().height() + 2 * dudosos->frameWidth() +
                            Filas * dudosos->verticalHeader()->defaultSectionSize());
    return VisibleSi(MarcoDe("grillaDudosos", EnPila({dudosos})),
                     [this] { return f.grillaDudosos.NroFilas() > 0; });
}

}  // namespace rainfall
