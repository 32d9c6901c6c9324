// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgLago.h"

#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace editor {

using model::Lago;
using model::Siro;

namespace {

constexpr ReglasFicha<dlgLago, Lago, model::MaxLagos> Reglas{
    .prefijo = "l-",
    .coleccion = &model::Red::ColLagos,
    .seleccion = &model::Seleccion::LagoSel,
    .nombre = &Lago::NombreLAGO,
    .numero = &Lago::numLAGO,
    .destinos = OrdenDestinos::SoloCauces,
    .controlNombre = "txtNombreLAGO",
    .txtNombre = &dlgLago::txtNombreLAGO,
    .lista = &dlgLago::lstLAGOs,
    .listaDestinos = &dlgLago::lstCauceAA,
    .lblNumero = &dlgLago::lblNroLago,
    .lblNombre = &dlgLago::lblNombreLago,
};

/// `sinDatos` is said of an empty table.
void MuestraParametros(dlgLago& f, const Siro& s, int numero, std::string_view sinDatos)
{
    f.lblParametros = s.Red.LagoFilas(numero) >= 1 ? ConDatosEnTabla : sinDatos;
}

void BuscaSusTablas(dlgLago& f, const Siro& s)
{
    BuscaTablas(f, s, TablasDeLago, s.Red.ColLagos, &Lago::NombreLAGO, s.Seleccion.LagoSel);
}

void MuestraCampos(dlgLago& f, Siro& s)
{
    MuestraIdentidad(f, s, Reglas);
    Lago& lago = EnMano(s, Reglas);
    f.txtReferencia = lago.Referencia;
    MuestraMetodo(f, lago.Metodo);
    f.lblLagoCofk = RotuloDeK(f);
    forms::Muestra(f, lago, CamposDlgLago);
    f.txtHInicialEmb = model::NumeroATexto(lago.HInicialEmb);
}

void MuestraLago(dlgLago& f, Siro& s)
{
    model::LeeTablaHSVQLago(s);
    MuestraCampos(f, s);
    MuestraParametros(f, s, EnMano(s, Reglas).numLAGO, SinDatosEnTabla);
    BuscaSusTablas(f, s);
}

void GuardaLago(dlgLago& f, Siro& s)
{
    GuardaNombreTocado(f, s, Reglas);
    Lago& lago = EnMano(s, Reglas);
    lago.Referencia = f.txtReferencia;
    TomaDestino(lago, s, f);
    lago.Metodo = f.lblMetodo;
    forms::Guarda(f, lago, CamposDlgLago);
    lago.HInicialEmb = model::Simple(model::Val(model::ComasAPuntos(f.txtHInicialEmb)));
}

}  // namespace

void Abre(dlgLago& f, Siro& s)
{
    if (AbreFicha(f, s, Reglas)) MuestraLago(f, s);
}

void lstLAGOs_Click(dlgLago& f, Siro& s, int indice)
{
    GuardaLago(f, s);
    if (TomaDeLista(f, s, Reglas, indice)) MuestraLago(f, s);
}

bool txtNombreLAGO_Cambia(dlgLago& f, const Siro& s)
{
    return ArreglaNombre(f, s, Reglas);
}

bool AlSalir(dlgLago& f, Siro& s, std::string_view control)
{
    if (control == Reglas.controlNombre) {
        const std::string antes = f.lblNombreLago;
        const bool vale = GuardaNombre(f, s, Reglas);
        if (f.lblNombreLago != antes) BuscaSusTablas(f, s);
        return vale;
    }
    if (control == ReglaHInicialEmb.control)
        return SaleDeHInicialEmb(f, s, AlturasDe(s.Red.LagoFilas, s.Red.LagoH, EnMano(s, Reglas).numLAGO));
    return forms::AlSalir(f, s, CamposDlgLago, control);
}

void lstCauceAA_Click(dlgLago& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    if (TomaDestino(EnMano(s, Reglas), s, f)) s.Anfitrion.RedibujaEditor();
}

void lstMetodo_Click(dlgLago& f, int indice)
{
    if (EligeMetodo(f, indice)) f.lblLagoCofk = RotuloDeK(f);
}

void cmdLlevaTablas(dlgLago& f, Siro& s)
{
    const Lago& lago = EnMano(s, Reglas);
    LlevaTablas(f, s, TablasDeLago, lago.NombreLAGO);
    model::LeeTablaHSVQLago(s);
    MuestraParametros(f, s, lago.numLAGO, SinDatosEnTabla);
}

PedidoFicha cmdParametros(const dlgLago& f)
{
    return f.abierta ? PedidoFicha::dlgTablaSHVQ : PedidoFicha::Nada;
}

void AlVolver(dlgLago& f, const Siro& s)
{
    if (!f.abierta || s.Seleccion.LagoSel <= 0) return;
    MuestraParametros(f, s, s.Red.ColLagos.Ranura(s.Seleccion.LagoSel).numLAGO, SinDatosLeidos);
    BuscaSusTablas(f, s);
}

bool SinAplicar(const dlgLago& f, Siro& s)
{
    return Difiere(f, [&](dlgLago& limpia) { MuestraCampos(limpia, s); });
}

void OKButton(dlgLago& f, Siro& s)
{
    GuardaLago(f, s);
    CierraConSeleccion(f, s);
}

void CancelButton(dlgLago& f, Siro& s)
{
    CierraFicha(f, s);
}

}  // namespace editor
