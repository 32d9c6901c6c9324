// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablaPpUEHs.h"

#include <algorithm>
#include <cstdint>

#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"
#include "model/UEH.h"
#include "rainfall/VistaLluvia.h"

namespace rainfall {

using forms::Evento;
using model::NumeroATexto;
using model::Siro;

namespace {

constexpr int ColumnaNombre = 1;
constexpr int ColumnaP = 2;
constexpr auto Editables = std::to_array<forms::ColumnaEditable>({{ColumnaP}});
constexpr forms::ReglasGrilla ReglasTabla{
    .encabezado = "^Nro. UEH|>Nombre UEH      |> P[mm]         ", .editables = Editables, .columnasFijas = 1};

constexpr std::string_view NoHayUEHs = "No existen UEHs cargadas, no hay un proyecto asociado";
constexpr std::string_view SinDuracion =
    "Si la Duración de la Tormenta es '0' se anularan los datos de Pp cargados";
constexpr std::string_view SinRecurrencia =
    "Si la Recurrencia 'R' de la Tormenta es '0' se interpreta como de Período de Retorno desconocido";

// The limit that the message tells is neither field's: kept as it stands.
constexpr std::string_view EnteroFueraDeLimites = "Ingrese un valor numérico entero entre 0 y 1440 ";
constexpr auto Campos = std::to_array<forms::CampoNumerico<dlgTablaPpUEHs, std::string dlgTablaPpUEHs::*>>({
    {{.control = "txtDPpUEHs",
      .unidad = "min",
      .maximo = 2880,
      .mensaje = EnteroFueraDeLimites,
      .clase = forms::ClaseNumero::Entero},
     &dlgTablaPpUEHs::txtDPpUEHs,
     &dlgTablaPpUEHs::DValida},
    {{.control = "txtRPpUEHs",
      .unidad = "años",
      .maximo = 10000,
      .mensaje = EnteroFueraDeLimites,
      .clase = forms::ClaseNumero::Entero},
     &dlgTablaPpUEHs::txtRPpUEHs,
     &dlgTablaPpUEHs::RValida},
});

void LlenaTabla(dlgTablaPpUEHs& f, Siro& s)
{
    forms::Grilla& g = f.MSFlexGridPpUEHs;
    const int n = s.Red.ColUEHs.Cuenta();
    forms::PonNroFilas(g, n);
    for (int j = 1; j <= n; ++j) {
        const auto ueh = std::find_if(s.Red.ColUEHs.begin(), s.Red.ColUEHs.end(),
                                      [&](const model::UEH& u) { return u.numUEH == j; });
        if (ueh == s.Red.ColUEHs.end()) continue;
        g.Pon({j, 0}, NumeroATexto(std::int32_t{ueh->numUEH}));
        g.Pon({j, ColumnaNombre}, ueh->NombreUEH);
        g.Pon({j, ColumnaP}, NumeroATexto(s.Tormenta.PpUEH(ueh->numUEH)));
    }
}

/// Whether every depth is a number; the cursor goes to the first that is none.
bool Numerica(dlgTablaPpUEHs& f)
{
    forms::Grilla& g = f.MSFlexGridPpUEHs;
    for (int j = 1; j <= g.NroFilas(); ++j) {
        if (g.EsNumero({j, ColumnaP})) continue;
        forms::Mueve(g, {j, ColumnaP});
        f.foco = {"MSFlexGridPpUEHs", false};
        return false;
    }
    return true;
}

/// Duration, recurrence and the first depth above 0 become those of the storm in hand.
void LlevaTormenta(const dlgTablaPpUEHs& f, dlgPp& pp, Siro& s)
{
    pp.txtDur = f.txtDPpUEHs;
    pp.Estado("txtDur").habilitado = false;
    for (s.Control.IndUEH = 1; s.Control.IndUEH <= s.Red.NroUEHs(); ++s.Control.IndUEH) {
        if (!(s.Tormenta.PpUEH(s.Control.IndUEH) > 0)) continue;
        s.Tormenta.PpTormenta = s.Tormenta.PpUEH(s.Control.IndUEH);
        pp.txtPp = NumeroATexto(s.Tormenta.PpTormenta);
        pp.Estado("txtPp").habilitado = false;
        break;
    }
    s.Tormenta.DurTormenta = model::Entero16(model::Val(f.txtDPpUEHs));
    s.Tormenta.RecTormenta = model::Entero16(model::Val(f.txtRPpUEHs));
    pp.cmbRec = f.txtRPpUEHs;
}

PpUEHsAplicadas EnLaForma(const dlgTablaPpUEHs& f)
{
    return {f.txtDPpUEHs, f.txtRPpUEHs, f.MSFlexGridPpUEHs.filas};
}

void Aplica(dlgTablaPpUEHs& f, dlgPp& pp, Siro& s)
{
    forms::Deja(f.MSFlexGridPpUEHs);
    f.foco = {};
    if (model::Val(f.txtDPpUEHs) == 0) {
        model::Advierte(s, std::string(SinDuracion), {});
        f.foco.control = "txtDPpUEHs";
    }
    if (model::Val(f.txtRPpUEHs) == 0) model::Advierte(s, std::string(SinRecurrencia), {});
    if (!Numerica(f)) return;
    for (int j = 1; j <= f.MSFlexGridPpUEHs.NroFilas(); ++j)
        s.Tormenta.PpUEH(j) = model::Simple(f.MSFlexGridPpUEHs.Numero({j, ColumnaP}));
    LlevaTormenta(f, pp, s);
    f.aplicadas = EnLaForma(f);
}

}  // namespace

void Abre(dlgTablaPpUEHs& f, Siro& s)
{
    Evento(s, [&] {
        f.abierta = s.Anfitrion.ResguardaDibujo(model::Riesgo::ReleeRed);
        if (!f.abierta) return;
        f.foco = {};
        f.MSFlexGridPpUEHs = forms::NuevaGrilla(ReglasTabla);
        model::LeeUEHs(s);
        if (s.Red.ColUEHs.Cuenta() == 0) model::Advierte(s, std::string(NoHayUEHs), {});
        LlenaTabla(f, s);
        f.aplicadas = EnLaForma(f);
    });
}

bool AlSalir(dlgTablaPpUEHs& f, const Siro& s, std::string_view control)
{
    const auto* const campo = forms::CampoDe(Campos, control);
    if (campo == nullptr) return true;
    std::string& texto = f.*campo->texto;
    texto = model::PrimerosCaracteres(texto, LargoCampoPpUEHs);
    if (!forms::AlSalir(s, campo->regla, texto)) return false;
    f.*campo->valor = texto;
    return true;
}

void cmdBorraTablaHQ(dlgTablaPpUEHs& f, const Siro& s)
{
    const int n = s.Red.ColUEHs.Cuenta();
    if (f.MSFlexGridPpUEHs.NroFilas() != n) forms::PonNroFilas(f.MSFlexGridPpUEHs, n);
    forms::VaciaDatos(f.MSFlexGridPpUEHs);
}

void cmdAplicar(dlgTablaPpUEHs& f, dlgPp& pp, Siro& s)
{
    Evento(s, [&] { Aplica(f, pp, s); });
}

void OKButton(dlgTablaPpUEHs& f, dlgPp& pp, Siro& s)
{
    Evento(s, [&] { Aplica(f, pp, s); });
    f.abierta = false;
}

void CancelButton(dlgTablaPpUEHs& f)
{
    for (const auto& campo : Campos)
        if (!forms::Vale(campo.regla, f.*campo.texto)) f.*campo.texto = f.*campo.valor;
    f.abierta = false;
}

bool SinAplicar(const dlgTablaPpUEHs& f)
{
    return f.abierta && !(f.aplicadas == EnLaForma(f));
}

forms::Grafico Vista(const dlgTablaPpUEHs& f)
{
    return GraficoDeTabla(
        f.MSFlexGridPpUEHs,
        {.columnaX = ColumnaNombre, .columnaY = ColumnaP, .ejeX = "UEH", .ejeY = "Pp [mm]"});
}

}  // namespace rainfall
