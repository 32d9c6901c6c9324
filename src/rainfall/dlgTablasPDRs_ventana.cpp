// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablasPDRs_ventana.h"

namespace rainfall {

dlgTablasPDRs_ventana::dlgTablasPDRs_ventana(forms::Entorno& alrededor, dlgTablasPDRs& registro,
                                             dlgPp& tormenta, QWidget* padre)
    : FormaDeTabla_ventana(alrededor, {"dlgTablasPDRs", TituloDlgTablasPDRs, LeyendasDlgTablasPDRs}, padre),
      f(registro),
      pp(tormenta)
{
    Sigue(f.abierta, &f.foco);
    setLayout(
        EnPila({Datos(),
                {MarcoDeTabla(
                     f.MSFlexGridTablaPDRs, "MSFlexGridTablaPDRs", "laminaTablasPDRs",
                     [this] { return Vista(f, entorno.s); },
                     [this](const forms::Efecto& efecto) { AlAsentar(f, entorno.s, efecto); }),
                 1},
                Notas(),
                Botones(
                    {HabilitadoSi(Boton("cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, entorno.s); }),
                                  [this] { return f.editable; })},
                    [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); })}));
}

QLayout* dlgTablasPDRs_ventana::Datos()
{
    QComboBox* const cual = Desplegable("cmbNroTablaPDRs", f.cmbNroTablaPDRs,
                                        [this] { cmbNroTablaPDRs_Click(f, pp, entorno.s); });
    QLineEdit* const numero =
        Campo("txtNroPDRs", f.txtNroPDRs, [this] { return txtNroPDRs_AlSalir(f, entorno.s); });
    AlMostrar([this, numero] { numero->setReadOnly(!f.editable); });
    // One of the two is shown.
    QLineEdit* const notas = Campo("txtNotas", f.txtNotas);
    connect(notas, &QLineEdit::textEdited, this, [this] { txtNotas_Change(f, entorno.s); });
    QLabel* const fijas = Texto("lblNotas", f.txtNotas);
    fijas->setWordWrap(true);
    const auto editables = [this] { return f.editable; };
    const auto leidas = [this] { return !f.editable; };
    return EnRejilla(
        {{Rotulo("cmbNroTablaPDRs", cual), {cual, 0, Qt::AlignLeft}},
         {Rotulo("txtNroPDRs", numero), {numero, 0, Qt::AlignLeft}},
         {VisibleSi(Rotulo("txtNotas", notas), editables), VisibleSi(notas, editables)},
         {{VisibleSi(Rotulo("lblNotas", fijas), leidas), 0, Qt::AlignTop}, VisibleSi(fijas, leidas)}},
        {0, 1});
}

QWidget* dlgTablasPDRs_ventana::Notas()
{
    forms::Partes renglones;
    for (const std::string_view nota : NotasFijasPDRs) {
        auto* const rotulo = new QLabel(forms::Q(nota));
        rotulo->setWordWrap(true);
        renglones.emplace_back(rotulo);
    }
    return MarcoDe("MarcoNotas", EnPila(renglones));
}

}  // namespace rainfall
