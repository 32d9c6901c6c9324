// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/FormasDeComponentes_ventana.h"

#include <utility>

#include "editor/EnMano.h"
#include "editor/fichas/dlgCauceEditProp_ventana.h"
#include "editor/fichas/dlgLago_ventana.h"
#include "editor/fichas/dlgRepresas_ventana.h"
#include "editor/fichas/dlgTabla_ventana.h"
#include "editor/fichas/dlgUEH2_ventana.h"

namespace editor {

void FormasDeComponentes::Abre(Pedido forma)
{
    switch (forma) {
    case Pedido::FormaUEH:
        return dlgUEH2_ventana(entorno, ueh, &padre).Abre();
    case Pedido::FormaCauce:
        return dlgCauceEditProp_ventana(entorno, cauce, &padre).Abre();
    case Pedido::FormaRepresa:
        return AbreRepresa();
    case Pedido::FormaLago:
        return AbreLago();
    case Pedido::TablaHAS:
        return AbreTablaDeComponente(entorno.s.Seleccion.LagoSel > 0 ? TipoTabla::SHVQ : TipoTabla::SHV);
    case Pedido::TablaHQ:
        return AbreTablaDeComponente(TipoTabla::FQ);
    case Pedido::Menu:
        return;
    }
}

void FormasDeComponentes::AbreRepresa()
{
    dlgRepresas_ventana ventana(entorno, represa, &padre);
    ventana.AbreTabla = [&](PedidoFicha pedido) {
        if (pedido == PedidoFicha::Nada) return;
        const TipoTabla tipo = pedido == PedidoFicha::dlgTablaFQ ? TipoTabla::FQ : TipoTabla::SHV;
        dlgTabla_ventana(entorno, tabla, tipo, &ventana)
            .Abre(represa.lblNroRepresa, represa.lblNombreRepresa);
        AlVolver(represa, entorno.s);
        ventana.Muestra();
    };
    ventana.Abre();
}

/// The table of the selected component, without its form behind.
void FormasDeComponentes::AbreTablaDeComponente(TipoTabla tipo)
{
    const model::Siro& s = entorno.s;
    const bool deLago = tipo == TipoTabla::SHVQ;
    const std::string nombre =
        deLago ? EnMano<model::Lago>(entorno.s).NombreLAGO : EnMano<model::Represa>(entorno.s).NombreRepresa;
    const int numero = deLago ? s.Seleccion.LagoSel : s.Seleccion.RepresaSel;
    dlgTabla_ventana ventana(entorno, tabla, tipo, &padre);
    ventana.ordenada = std::exchange(ordenaTabla, false);
    ventana.Abre(std::to_string(numero), nombre);
}

void FormasDeComponentes::AbreLago()
{
    dlgLago_ventana ventana(entorno, lago, &padre);
    ventana.AbreTabla = [&](PedidoFicha pedido) {
        if (pedido == PedidoFicha::Nada) return;
        dlgTabla_ventana deTabla(entorno, tabla, TipoTabla::SHVQ, &ventana);
        deTabla.AlCambiarTablas = [&] {
            AlVolver(lago, entorno.s);
            ventana.Muestra();
        };
        deTabla.Abre(lago.lblNroLago, lago.lblNombreLago);
    };
    ventana.Abre();
}

}  // namespace editor
