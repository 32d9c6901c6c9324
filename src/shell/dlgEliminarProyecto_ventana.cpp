// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgEliminarProyecto_ventana.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"

namespace shell {

namespace {

constexpr int LetrasDeAncho = 60;

int LugarEn(const std::vector<std::string>& lista, const std::string& nombre)
{
    const auto lugar = std::find(lista.begin(), lista.end(), nombre);
    return lugar == lista.end() ? -1 : static_cast<int>(lugar - lista.begin());
}

}  // namespace

dlgEliminarProyecto_ventana::dlgEliminarProyecto_ventana(forms::Entorno& alrededor,
                                                         model::dlgEliminarProyecto& reglas, QWidget* padre)
    : Formulario(alrededor, {"dlgEliminarProyecto"}, padre), f(reglas)
{
    setWindowTitle(QStringLiteral("Eliminar un Proyecto existente"));
    auto* const filas = new QFormLayout(this);
    lblDirProyecto = new QLabel(this);
    lblDirProyecto->setObjectName(QStringLiteral("lblDirProyecto"));
    lblDirProyecto->setWordWrap(true);
    filProyectoEliminar = new forms::ListaParaElegir(this);
    filProyectoEliminar->conFlechas = true;
    filProyectoEliminar->setObjectName(QStringLiteral("filProyectoEliminar"));
    filProyectoEliminar->setMinimumWidth(fontMetrics().averageCharWidth() * LetrasDeAncho);
    lblProyectoAEliminar = new QLabel(this);
    lblProyectoAEliminar->setObjectName(QStringLiteral("lblProyectoAEliminar"));
    filas->addRow(QStringLiteral("Directorio:"), lblDirProyecto);
    filas->addRow(QStringLiteral("&Proyectos:"), filProyectoEliminar);
    lblTambien = new QLabel(this);
    lblTambien->setObjectName(QStringLiteral("lblTambien"));
    lblTambien->setWordWrap(true);
    filas->addRow(QStringLiteral("Proyecto a eliminar:"), lblProyectoAEliminar);
    filas->addRow(QStringLiteral("Con su estudio:"), lblTambien);

    auto* const botones = new QDialogButtonBox(this);
    QPushButton* const OKButton =
        botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    QPushButton* const CancelButton =
        botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    OKButton->setObjectName(QStringLiteral("OKButton"));
    CancelButton->setObjectName(QStringLiteral("CancelButton"));
    OKButton->setAutoDefault(false);
    CancelButton->setDefault(true);  // what is deleted doesn't come back
    filas->addRow(botones);

    filProyectoEliminar->AlElegir = [this](int fila) {
        Suceso([this, fila] {
            f.filProyectoEliminar_AlPulsar(f.filProyectoEliminar[static_cast<std::size_t>(fila)]);
        });
    };
    AlPulsar(*OKButton, [this] { f.OKButton(entorno.s); });
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void dlgEliminarProyecto_ventana::Abre()
{
    f.Abre(entorno.s);
    Muestra();
    entorno.Ejecuta(*this);
}

void dlgEliminarProyecto_ventana::Muestra()
{
    forms::Pon(*lblDirProyecto, f.DirProyecto);
    forms::Pon(*filProyectoEliminar, f.filProyectoEliminar,
               LugarEn(f.filProyectoEliminar, f.lblProyectoAEliminar));
    forms::Pon(*lblProyectoAEliminar, f.lblProyectoAEliminar);
    forms::Pon(*lblTambien, f.lblTambien);
    static_cast<QFormLayout*>(layout())->setRowVisible(lblTambien, !f.lblTambien.empty());
    if (!f.abierto && isVisible()) done(QDialog::Accepted);
}

}  // namespace shell
