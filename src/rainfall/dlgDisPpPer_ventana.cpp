// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgDisPpPer_ventana.h"

namespace rainfall {

dlgDisPpPer_ventana::dlgDisPpPer_ventana(forms::Entorno& alrededor, dlgDisPpPer& registro, dlgPp& tormenta,
                                         QWidget* padre)
    : FormaDeTabla_ventana(alrededor, {"dlgDisPpPer", TituloDlgDisPpPer, LeyendasDlgDisPpPer}, padre),
      f(registro),
      pp(tormenta)
{
    Sigue(f.abierta, &f.foco);
    setLayout(EnPila(
        {Datos(),
         Validez(),
         {MarcoDeTabla(
              f.MSFlexGridDisPerso, "MSFlexGridDisPerso", "laminaDisPpPer", [this] { return Vista(f); },
              [this](const forms::Efecto& efecto) { AlAsentar(f, entorno.s, efecto); }),
          1},
         Botones(
             {Boton("cmdBorraTablaDisPer", [this] { cmdBorraTablaDisPer(f, entorno.s); })},
             [this] { cmdAplicar(f, entorno.s); }, [this] { OKButton(f, entorno.s); })}));
}

QLayout* dlgDisPpPer_ventana::Datos()
{
    QComboBox* const cual = Desplegable("cmbNroTablaDisPpPer", f.cmbNroTablaDisPpPer,
                                        [this] { cmbNroTablaDisPpPer_Click(f, pp, entorno.s); });
    QLineEdit* const notas = Campo("txtNotas", f.txtNotas);
    connect(notas, &QLineEdit::textEdited, this, [this] { txtNotas_Change(f, entorno.s); });
    QLineEdit* const periodos =
        Campo("txtNroPer", f.txtNroPer, [this] { return txtNroPer_AlSalir(f, entorno.s); });
    return EnRejilla({{Rotulo("cmbNroTablaDisPpPer", cual), {cual, 0, Qt::AlignLeft}},
                      Renglon("txtNotas", notas),
                      {Rotulo("txtNroPer", periodos), {periodos, 0, Qt::AlignLeft}}},
                     {0, 1});
}

QWidget* dlgDisPpPer_ventana::Validez()
{
    QComboBox* const minima =
        Desplegable("cmbDurMin", f.cmbDurMin, [this] { cmbDurMin_Click(f, entorno.s); });
    auto* const maxima = Nombra(new QComboBox, "cmbDurMax");
    AlMostrar([this, maxima] { forms::Pon(*maxima, f.cmbDurMax.items, f.cmbDurMax.indice); });
    // Its own check, on leaving it, must not keep a limit from being corrected.
    connect(maxima, &QComboBox::activated, this, [this](int i) {
        SucesoSinRevisar([this, i] {
            f.cmbDurMax.indice = i;
            cmbDurMax_Click(f, entorno.s);
        });
    });
    campos.Agrega(*maxima, [this] { return cmbDurMax_AlSalir(f, entorno.s); });
    return MarcoDe("MarcoValidez",
                   EnPila({Texto("lblValidez"), EnFila({Rotulo("cmbDurMin", minima), minima,
                                                        Hueco(fontMetrics().averageCharWidth() * 4),
                                                        Rotulo("cmbDurMax", maxima), maxima, Hueco()})}));
}

}  // namespace rainfall
