// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEH2.h"

#include <algorithm>
#include <cstddef>

namespace editor {

using model::Siro;
using model::UEH;

namespace {

constexpr ReglasFicha<dlgUEH2, UEH, model::MaxUEHs> Reglas{
    .prefijo = "u-",
    .coleccion = &model::Red::ColUEHs,
    .seleccion = &model::Seleccion::UEHSel,
    .nombre = &UEH::NombreUEH,
    .numero = &UEH::numUEH,
    .destinos = OrdenDestinos::Todos,
    .controlNombre = "txtNombreUEH",
    .txtNombre = &dlgUEH2::txtNombreUEH,
    .lista = &dlgUEH2::lstUEHs,
    .listaDestinos = &dlgUEH2::lstCauceAA,
    .lblNumero = &dlgUEH2::lblNroUEH,
    .lblNombre = &dlgUEH2::lblNombreUEH,
};

/// No component drains to a UEH: of the UEHs no destination follows.
constexpr SiguenNombre Siguen{.UEHs = false};

void MuestraUEH(dlgUEH2& f, Siro& s)
{
    MuestraIdentidad(f, s, Reglas);
    const UEH& ueh = EnMano(s, Reglas);
    f.lblDrenaCauceAA = ueh.Cauce_aa;
    f.lblMetodo = ueh.Metodo;
    f.lstMetodo = {{std::string(MetodoUEH)}, ueh.Metodo == MetodoUEH ? 0 : -1};
    f.txtReferencia = ueh.Referencia;
    forms::Muestra(f, ueh, CamposDlgUEH2);
}

void PonPunto(UEH& ueh, Punto en)
{
    ueh.XCauce = en.X;
    ueh.YCauce = en.Y;
}

void GuardaUEH(dlgUEH2& f, Siro& s)
{
    GuardaNombreTocado(f, s, Reglas, Siguen);
    UEH& ueh = EnMano(s, Reglas);
    ueh.Referencia = f.txtReferencia;
    if (f.lstMetodo.indice >= 0) ueh.Metodo = MetodoUEH;
    forms::Guarda(f, ueh, CamposDlgUEH2);
    if (const int cauce = NumeroDeCauce(s, ueh.Cauce_aa); ueh.Cauce_aa.empty())
        PonPunto(ueh, {});
    else if (cauce > 0)
        PonPunto(ueh, UltimoVertice(s, cauce));
}

void Cierra(dlgUEH2& f, Siro& s)
{
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = 0;
    CierraFicha(f, s);
}

/// The number that a field holds; nothing where its text is refused.
std::optional<double> Numero(const dlgUEH2& f, std::string_view control)
{
    const auto* campo = std::find_if(CamposDlgUEH2.begin(), CamposDlgUEH2.end(),
                                     [&](const auto& fila) { return fila.regla.control == control; });
    if (campo == CamposDlgUEH2.end() || !forms::Vale(campo->regla, f.*campo->texto)) return {};
    return forms::NumeroDeCampo(f.*campo->texto);
}

}  // namespace

void Abre(dlgUEH2& f, Siro& s)
{
    if (AbreFicha(f, s, Reglas)) MuestraUEH(f, s);
}

void lstUEHs_Click(dlgUEH2& f, Siro& s, int indice)
{
    GuardaUEH(f, s);
    if (TomaDeLista(f, s, Reglas, indice)) MuestraUEH(f, s);
}

bool txtNombreUEH_Cambia(dlgUEH2& f, const Siro& s)
{
    return ArreglaNombre(f, s, Reglas);
}

bool AlSalir(dlgUEH2& f, Siro& s, std::string_view control)
{
    if (control == Reglas.controlNombre) return GuardaNombre(f, s, Reglas, Siguen);
    return forms::AlSalir(f, s, CamposDlgUEH2, control);
}

void lstCauceAA_Click(dlgUEH2& f, Siro& s, int indice)
{
    f.lstCauceAA.indice = indice;
    const std::optional<Destino> destino = DestinoElegido(s, Reglas.destinos, f.lstCauceAA);
    if (!destino) return;
    UEH& ueh = EnMano(s, Reglas);
    ueh.Cauce_aa = f.lblDrenaCauceAA = destino->Cauce_aa;
    if (destino->clase != Destino::Clase::Cauce) PonPunto(ueh, PuntoDestino(s, *destino));
    s.Anfitrion.RedibujaEditor();
}

void lstMetodo_Click(dlgUEH2& f, int indice)
{
    if (indice != 0) return;
    f.lstMetodo.indice = indice;
    f.lblMetodo = MetodoUEH;
}

bool SinAplicar(const dlgUEH2& f, Siro& s)
{
    return Difiere(f, [&](dlgUEH2& limpia) { MuestraUEH(limpia, s); });
}

void OKButton(dlgUEH2& f, Siro& s)
{
    GuardaUEH(f, s);
    Cierra(f, s);
}

void CancelButton(dlgUEH2& f, Siro& s)
{
    Cierra(f, s);
}

std::optional<CurvaInfiltracion> CurvaDeCampos(const dlgUEH2& f)
{
    const auto a = Numero(f, "txtKostiakov_a");
    const auto b = Numero(f, "txtKostiakov_b");
    const auto tInicial = Numero(f, "txtKostiakov_i");
    if (!a || !b || !tInicial) return {};
    return CurvaKostiakov(*a, *b, *tInicial);
}

}  // namespace editor
