// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablaPpUEHs_ventana.h"

namespace rainfall {

dlgTablaPpUEHs_ventana::dlgTablaPpUEHs_ventana(forms::Entorno& alrededor, dlgTablaPpUEHs& registro,
                                               dlgPp& tormenta, QWidget* padre)
    : FormaDeTabla_ventana(alrededor, {"dlgTablaPpUEHs", TituloDlgTablaPpUEHs, LeyendasDlgTablaPpUEHs},
                           padre),
      f(registro),
      pp(tormenta)
{
    Sigue(f.abierta, &f.foco);
    QLineEdit* const D =
        Campo("txtDPpUEHs", f.txtDPpUEHs, [this] { return AlSalir(f, entorno.s, "txtDPpUEHs"); });
    QLineEdit* const R =
        Campo("txtRPpUEHs", f.txtRPpUEHs, [this] { return AlSalir(f, entorno.s, "txtRPpUEHs"); });
    for (QLineEdit* const campo : {D, R})
        campo->setMaxLength(LargoCampoPpUEHs);
    QGroupBox* const marco =
        MarcoDeTabla(f.MSFlexGridPpUEHs, "MSFlexGridPpUEHs", "laminaPpUEHs", [this] { return Vista(f); });
    marco->setToolTip(tabla->toolTip());
    tabla->setToolTip({});
    setLayout(
        EnPila({EnFila({Rotulo("txtDPpUEHs", D), D, Hueco(fontMetrics().averageCharWidth() * 4),
                        Rotulo("txtRPpUEHs", R), R, Hueco()}),
                {marco, 1},
                Botones(
                    {Boton("cmdBorraTablaHQ", [this] { cmdBorraTablaHQ(f, entorno.s); })},
                    [this] { cmdAplicar(f, pp, entorno.s); }, [this] { OKButton(f, pp, entorno.s); })}));
}

}  // namespace rainfall
