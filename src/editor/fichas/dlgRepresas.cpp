// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgRepresas.h"

#include <algorithm>

#include "checks/Asistente.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace editor {

using model::Represa;
using model::Siro;

namespace {

constexpr std::string_view RotuloX = "x=";

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

/// Reads the tables of outflow beside the network, without a word: a run reads them anew, and says what is
/// wrong with them.
void LeeDescargas(dlgRepresas& f, const Siro& s)
{
    Siro aparte;
    aparte.Disco = s.Disco;
    aparte.Proyecto = s.Proyecto;
    aparte.Red.ColRepresas = s.Red.ColRepresas;
    model::Sentencia([&] { model::LeeTablaHQRepresa(aparte); });
    f.descargas = {aparte.Red.RepresaFilasHQ, aparte.Red.RepresaQH, aparte.Red.RepresaQQ};
}

/// Leaving fields without limits of their own: only the decimal sign is put right.
void PonPuntos(TextosFQ& textos)
{
    for (std::string& texto : textos)
        texto = model::ComasAPuntos(texto);
}

}  // namespace

void MuestraCampos(dlgRepresas& f, Siro& s)
{
    MuestraComunes(f, s);
    Represa& represa = EnMano<Represa>(s);
    f.lblDrenaCauceAA = represa.Cauce_aa;
    MuestraMetodo(f, represa.Metodo);
    MuestraRotulos(f);
    f.txtHInicialEmb = model::NumeroATexto(represa.HInicialEmb);
    MuestraFunciones(f, represa);
}

void AlTomar(dlgRepresas& f, Siro& s)
{
    MuestraCampos(f, s);
    BuscaTablas(f, s);
    LeeDescargas(f, s);
}

void GuardaCampos(dlgRepresas& f, Siro& s)
{
    Represa& represa = EnMano<Represa>(s);
    represa.Metodo = f.lblMetodo;
    forms::Guarda(f, represa, CamposDlgRepresas);
    GuardaFunciones(f, represa);
    represa.HInicialEmb = NumeroInicial(f.txtHInicialEmb);
}

void Abre(dlgRepresas& f, Siro& s)
{
    if (!AbreVacia(f, s)) return;
    model::LeeTablaHSVRepresa(s);
    AlTomar(f, s);
}

bool AlSalir(dlgRepresas& f, Siro& s, std::string_view control)
{
    for (const CampoFQ& campo : CamposFQ)
        if (campo.control == control) PonPuntos(f.*campo.textos);
    return AlSalir<dlgRepresas>(f, s, control);
}

void lstCauceAA_Click(dlgRepresas& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    if (!TomaDestino(f, s)) return;
    f.lblDrenaCauceAA = EnMano<Represa>(s).Cauce_aa;
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
    LlevaTablas(f, s, ArchivosDeRepresa, EnMano<Represa>(s).NombreRepresa);
    model::LeeTablaHSVRepresa(s);
    LeeDescargas(f, s);
}

void AlVolver(dlgRepresas& f, const Siro& s)
{
    if (!f.abierta || s.Seleccion.RepresaSel <= 0) return;
    BuscaTablas(f, s);
    LeeDescargas(f, s);
}

std::string ApunteAltura(const dlgRepresas& f, Siro& s)
{
    const auto altura = AlturaEscrita(f);
    auto represa = ConLoEscrito(f, s, {});
    if (!represa || !altura) return {};
    GuardaFunciones(f, *represa);
    represa->HInicialEmb = *altura;
    model::Red red = s.Red;
    red.RepresaFilasHQ = f.descargas.filas;
    red.RepresaQH = f.descargas.H;
    red.RepresaQQ = f.descargas.Q;
    return checks::ApunteDeAltura(red, *represa);
}

std::string ApunteFunciones(const dlgRepresas& f, Siro& s)
{
    auto represa = ConLoEscrito(f, s, {});
    if (!represa) return {};
    GuardaFunciones(f, *represa);
    return checks::ApunteDeFunciones(*represa, AlturaEscrita(f));
}

PedidoFicha cmdHSV(const dlgRepresas& f)
{
    return f.abierta ? PedidoFicha::dlgTablaSHV : PedidoFicha::Nada;
}

PedidoFicha cmdTablaQ(const dlgRepresas& f)
{
    return f.cmdTablaQHabilitado() ? PedidoFicha::dlgTablaFQ : PedidoFicha::Nada;
}

}  // namespace editor
