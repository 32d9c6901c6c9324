// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgLago.h"

#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace editor {

using model::Lago;
using model::Siro;

namespace {

/// `sinDatos` is said of an empty table.
void MuestraParametros(dlgLago& f, const Siro& s, int numero, std::string_view sinDatos)
{
    f.lblParametros = s.Red.LagoFilas(numero) >= 1 ? ConDatosEnTabla : sinDatos;
}

}  // namespace

void MuestraCampos(dlgLago& f, Siro& s)
{
    MuestraComunes(f, s);
    Lago& lago = EnMano<Lago>(s);
    f.txtReferencia = lago.Referencia;
    MuestraMetodo(f, lago.Metodo);
    f.lblLagoCofk = RotuloDeK(f);
    f.txtHInicialEmb = model::NumeroATexto(lago.HInicialEmb);
}

void AlTomar(dlgLago& f, Siro& s)
{
    model::LeeTablaHSVQLago(s);
    MuestraCampos(f, s);
    MuestraParametros(f, s, EnMano<Lago>(s).numLAGO, SinDatosEnTabla);
    BuscaTablas(f, s);
}

void GuardaCampos(dlgLago& f, Siro& s)
{
    Lago& lago = EnMano<Lago>(s);
    lago.Referencia = f.txtReferencia;
    TomaDestino(f, s);
    lago.Metodo = f.lblMetodo;
    forms::Guarda(f, lago, CamposDlgLago);
    lago.HInicialEmb = model::Simple(model::Val(model::ComasAPuntos(f.txtHInicialEmb)));
}

void lstCauceAA_Click(dlgLago& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    if (TomaDestino(f, s)) s.Anfitrion.RedibujaEditor();
}

void lstMetodo_Click(dlgLago& f, int indice)
{
    if (EligeMetodo(f, indice)) f.lblLagoCofk = RotuloDeK(f);
}

void cmdLlevaTablas(dlgLago& f, Siro& s)
{
    const Lago& lago = EnMano<Lago>(s);
    LlevaTablas(f, s, ArchivosDeLago, lago.NombreLAGO);
    model::LeeTablaHSVQLago(s);
    MuestraParametros(f, s, lago.numLAGO, SinDatosEnTabla);
}

std::string ApunteAltura(const dlgLago& f, Siro& s)
{
    const auto altura = AlturaEscrita(f);
    auto lago = ConLoEscrito(f, s, {});
    if (!lago || !altura) return {};
    lago->HInicialEmb = *altura;
    return checks::ApunteDeAltura(s.Red, *lago);
}

PedidoFicha cmdParametros(const dlgLago& f)
{
    return f.abierta ? PedidoFicha::dlgTablaSHVQ : PedidoFicha::Nada;
}

void AlVolver(dlgLago& f, const Siro& s)
{
    if (!f.abierta || s.Seleccion.LagoSel <= 0) return;
    MuestraParametros(f, s, s.Red.ColLagos.Ranura(s.Seleccion.LagoSel).numLAGO, SinDatosLeidos);
    BuscaTablas(f, s);
}

}  // namespace editor
