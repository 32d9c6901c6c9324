// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgRecesion_ventana.h"

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace calibration {

dlgRecesion_ventana::dlgRecesion_ventana(forms::Entorno& alrededor, dlgAjuste& suAjuste, QWidget* padre)
    : Formulario(alrededor, {"dlgRecesion", TituloDlgRecesion, RotulosDlgRecesion}, padre), ajuste(suAjuste)
{
    Sigue(f.abierta);
    tabla = new forms::TablaCuadro(entorno, f.tblUnidades, "tblUnidades", "Unidades aguas arriba");
    tabla->PonColumnas({17, 11, 12, 11});
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] { forms::PulsaEncabezado(f.tblUnidades, columna); });
    };
    AlMostrar([this] { tabla->Muestra(); });
    grafico = new forms::Lamina(entorno, "lamRecesion", "Recesión observada y recta ajustada");
    const auto campo = [this](std::string_view control, std::string& texto) {
        QLineEdit* const linea =
            Campo(control, texto, [this] { return txtTiempo_AlSalir(f, ajuste, entorno.s); });
        constexpr int Letras = 10;
        linea->setFixedWidth(Letras * fontMetrics().averageCharWidth());
        return linea;
    };
    QLineEdit* const desde = campo("txtDesde", f.txtDesde);
    QLineEdit* const hasta = campo("txtHasta", f.txtHasta);
    const auto deVarios = [](QLabel* texto) {
        texto->setWordWrap(true);
        texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return texto;
    };
    setLayout(EnPila({EnFila({Rotulo("txtDesde", desde), desde, Rotulo("txtHasta", hasta), hasta,
                              new QLabel(QStringLiteral("min")), Hueco()}),
                      deVarios(Texto("lblFormula")),
                      deVarios(EnNegrita(Texto("lblResultado", f.lblResultado))),
                      {EnFila({{grafico, 1}, tabla}), 1},
                      deVarios(Texto("lblAviso", f.lblAviso)),
                      EnFila({Hueco(),
                              HabilitadoSi(Boton("cmdAplicar", [this] { cmdAplicar(f, ajuste); }),
                                           [this] { return f.reparto.motivo.empty(); }),
                              BotonSinRevisar("OKButton", [this] { AlCerrar(); })})}));
    constexpr int AnchoDeTabla = 56;  // [letters]
    tabla->setFixedWidth(AnchoDeTabla * fontMetrics().averageCharWidth());
}

void dlgRecesion_ventana::Abre()
{
    calibration::Abre(f, ajuste);
    Muestra();
    constexpr int Ancho = 60, Alto = 32;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
    entorno.Ejecuta(*this);
}

void dlgRecesion_ventana::Muestra()
{
    Formulario::Muestra();
    grafico->Muestra(f.Grafico);
    grafico->PonTema(f.tema, f.componente);
}

void dlgRecesion_ventana::AlCerrar()
{
    OKButton(f);
    Muestra();
}

}  // namespace calibration
