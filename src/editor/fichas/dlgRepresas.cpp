// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgRepresas.h"

#include <algorithm>

#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace editor {

using model::Represa;
using model::Siro;

namespace {

constexpr std::string_view RotuloX = "x=";

constexpr ReglasFicha<dlgRepresas, Represa, model::MaxRepresas> Reglas{
    .prefijo = "r-",
    .coleccion = &model::Red::ColRepresas,
    .seleccion = &model::Seleccion::RepresaSel,
    .nombre = &Represa::NombreRepresa,
    .numero = &Represa::numRepresa,
    .destinos = OrdenDestinos::SoloCauces,
    .controlNombre = "txtNombreRepresa",
    .txtNombre = &dlgRepresas::txtNombreRepresa,
    .lista = &dlgRepresas::lstRepresas,
    .listaDestinos = &dlgRepresas::lstCauceAA,
    .lblNumero = &dlgRepresas::lblNroRepresa,
    .lblNombre = &dlgRepresas::lblNombreRepresa,
};

void MuestraRotulos(dlgRepresas& f)
{
    f.lblRepresaCofk = RotuloDeK(f);
    f.lblRepresaCofn = f.MuskingumVisible() ? RotuloX : std::string_view{};
}

void MuestraFunciones(dlgRepresas& f, const Represa& represa)
{
    f.optTablaQ = represa.optTabla;
    f.optFunciones = !represa.optTabla;
    for (std::size_t i = 0; i < f.chkFQ.size(); ++i)
        f.chkFQ[i] = represa.chkFQ[i] == 1;
    for (const CampoFQ& campo : CamposFQ)
        for (std::size_t i = 0; i < f.chkFQ.size(); ++i)
            if (campo.Tiene(i)) (f.*campo.textos)[i] = model::NumeroATexto((represa.*campo.valores)[i]);
}

void MuestraRepresa(dlgRepresas& f, Siro& s)
{
    MuestraIdentidad(f, s, Reglas);
    Represa& represa = EnMano(s, Reglas);
    f.lblDrenaCauceAA = represa.Cauce_aa;
    MuestraMetodo(f, represa.Metodo);
    MuestraRotulos(f);
    forms::Muestra(f, represa, CamposDlgRepresas);
    f.txtHInicialEmb = model::NumeroATexto(represa.HInicialEmb);
    MuestraFunciones(f, represa);
}

void BuscaSusTablas(dlgRepresas& f, const Siro& s)
{
    BuscaTablas(f, s, TablasDeRepresa, s.Red.ColRepresas, &Represa::NombreRepresa, s.Seleccion.RepresaSel);
}

float NumeroInicial(const std::string& texto)
{
    return model::Simple(model::Val(model::ComasAPuntos(texto)));
}

void GuardaFunciones(const dlgRepresas& f, Represa& represa)
{
    represa.optTabla = f.optTablaQ;
    for (std::size_t i = 0; i < f.chkFQ.size(); ++i)
        represa.chkFQ[i] = f.chkFQ[i] ? 1 : 0;
    for (const CampoFQ& campo : CamposFQ)
        for (std::size_t i = 0; i < f.chkFQ.size(); ++i)
            if (campo.Tiene(i)) (represa.*campo.valores)[i] = NumeroInicial((f.*campo.textos)[i]);
}

void GuardaRepresa(dlgRepresas& f, Siro& s)
{
    GuardaNombreTocado(f, s, Reglas);
    Represa& represa = EnMano(s, Reglas);
    represa.Metodo = f.lblMetodo;
    forms::Guarda(f, represa, CamposDlgRepresas);
    GuardaFunciones(f, represa);
    represa.HInicialEmb = NumeroInicial(f.txtHInicialEmb);
}

/// Leaving fields without limits of their own: only the decimal sign is put right.
void PonPuntos(TextosFQ& textos)
{
    for (std::string& texto : textos)
        texto = model::ComasAPuntos(texto);
}

}  // namespace

void Abre(dlgRepresas& f, Siro& s)
{
    if (!AbreFicha(f, s, Reglas)) return;
    model::LeeTablaHSVRepresa(s);
    MuestraRepresa(f, s);
    BuscaSusTablas(f, s);
}

void lstRepresas_Click(dlgRepresas& f, Siro& s, int indice)
{
    GuardaRepresa(f, s);
    if (!TomaDeLista(f, s, Reglas, indice)) return;
    MuestraRepresa(f, s);
    BuscaSusTablas(f, s);
}

bool txtNombreRepresa_Cambia(dlgRepresas& f, const Siro& s)
{
    return ArreglaNombre(f, s, Reglas);
}

bool AlSalir(dlgRepresas& f, Siro& s, std::string_view control)
{
    if (control == Reglas.controlNombre) {
        const std::string antes = f.lblNombreRepresa;
        const bool vale = GuardaNombre(f, s, Reglas);
        if (f.lblNombreRepresa != antes) BuscaSusTablas(f, s);
        return vale;
    }
    if (control == ReglaHInicialEmb.control) {
        const int numero = EnMano(s, Reglas).numRepresa;
        return SaleDeHInicialEmb(f, s, AlturasDe(s.Red.RepresaFilasHAS, s.Red.RepresaH, numero));
    }
    for (const CampoFQ& campo : CamposFQ)
        if (campo.control == control) PonPuntos(f.*campo.textos);
    return forms::AlSalir(f, s, CamposDlgRepresas, control);
}

void lstCauceAA_Click(dlgRepresas& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    Represa& represa = EnMano(s, Reglas);
    if (!TomaDestino(represa, s, f)) return;
    f.lblDrenaCauceAA = represa.Cauce_aa;
    s.Anfitrion.RedibujaEditor();
}

void lstMetodo_Click(dlgRepresas& f, int indice)
{
    if (EligeMetodo(f, indice)) MuestraRotulos(f);
}

void optTablaQ_Click(dlgRepresas& f)
{
    f.optTablaQ = true;
    f.optFunciones = false;
}

void optFunciones_Click(dlgRepresas& f)
{
    f.optFunciones = true;
    f.optTablaQ = false;
}

void chkFQ_Click(dlgRepresas& f, int funcion, bool marcada)
{
    f.chkFQ[static_cast<std::size_t>(funcion) - 1] = marcada;
}

void cmdLlevaTablas(dlgRepresas& f, Siro& s)
{
    LlevaTablas(f, s, TablasDeRepresa, EnMano(s, Reglas).NombreRepresa);
    model::LeeTablaHSVRepresa(s);
}

void AlVolver(dlgRepresas& f, const Siro& s)
{
    if (f.abierta && s.Seleccion.RepresaSel > 0) BuscaSusTablas(f, s);
}

PedidoFicha cmdHSV(const dlgRepresas& f)
{
    return f.abierta ? PedidoFicha::dlgTablaSHV : PedidoFicha::Nada;
}

PedidoFicha cmdTablaQ(const dlgRepresas& f)
{
    return f.cmdTablaQHabilitado() ? PedidoFicha::dlgTablaFQ : PedidoFicha::Nada;
}

bool SinAplicar(const dlgRepresas& f, Siro& s)
{
    return Difiere(f, [&](dlgRepresas& limpia) { MuestraRepresa(limpia, s); });
}

void OKButton(dlgRepresas& f, Siro& s)
{
    GuardaRepresa(f, s);
    CierraConSeleccion(f, s);
}

void CancelButton(dlgRepresas& f, Siro& s)
{
    CierraFicha(f, s);
}

}  // namespace editor
