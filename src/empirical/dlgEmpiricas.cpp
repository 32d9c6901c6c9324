// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace empirical {

using model::Falla;
using model::NumeroATexto;

namespace {

constexpr int Decimales = 2;

/// The number that a field begins with. One beyond 64-bit floats is without bound, so that the limits of the
/// field still hold.
double Valor(const std::string& texto)
{
    double valor = 0;
    model::Sentencia([&] { valor = model::Val(texto); },
                     [&](const Falla&) {
                         const bool negativo = texto.find_first_not_of(' ') == texto.find('-');
                         valor = std::numeric_limits<double>::infinity() * (negativo ? -1 : 1);
                     });
    return valor;
}

/// A result held in 32 bits; 0 where it faults.
template <typename Formula>
float Calcula(Formula&& formula)
{
    float resultado = 0;
    model::Sentencia([&] { resultado = model::Simple(std::forward<Formula>(formula)()); });
    return resultado;
}

std::string Redondeado(float resultado)
{
    return NumeroATexto(model::Redondea(resultado, Decimales));
}

void AgregaRenglon(std::string& texto, std::string_view leyenda, std::string_view valor)
{
    texto.append(leyenda).append("\t").append(valor).append(model::SaltoLinea);
}

}  // namespace

void Abre(dlgEmpiricas& f)
{
    f = dlgEmpiricas{};
    f.abierta = true;
    f.lblSup = f.txtSup;
}

void AlCambiar(dlgEmpiricas& f, std::string_view control)
{
    if (const auto* const campo = forms::CampoDe(CamposEmpiricos, control))
        forms::Recorta(campo->regla, Valor(f.*campo->texto), f.*campo->texto);
    AlSalir(f, control);
}

void AlSalir(dlgEmpiricas& f, std::string_view control)
{
    if (control != "txtSup") return CalculaTc(f);
    if (Valor(f.txtSup) == 0) f.txtSup = "1";
    f.lblSup = f.txtSup;
    CalculaQp(f);
}

void btnCerrar(dlgEmpiricas& f)
{
    f.abierta = false;
}

void CalculaQp(dlgEmpiricas& f)
{
    const double S = Valor(f.txtSup);
    if (S > 0) {
        const auto formulas = FormulasQp();
        for (std::size_t k = 0; k < formulas.size(); ++k) {
            const FormulaQp& formula = formulas[k];
            f.Qp[k] = formula.Vale(S) ? Redondeado(Calcula([&] { return formula.caudal(S); })) : "";
        }
    }
    CalculaTc(f);
}

void CalculaTc(dlgEmpiricas& f)
{
    f.lblSup = f.txtSup;
    DatosTc datos;
    for (const auto& campo : CamposEmpiricos)
        datos.*campo.valor = Valor(f.*campo.texto);
    const auto formulas = FormulasTc();
    for (std::size_t k = 0; k < formulas.size(); ++k) {
        const FormulaTc& formula = formulas[k];
        const bool sinPendiente = formula.pidePendiente && !(datos.i > 0);
        // Kept as it stands: a slope can't be typed as 0.5, since its leading 0. turns into 0.
        if (sinPendiente) f.txtPendiCP = "0";
        const float T = sinPendiente ? 0 : Calcula([&] { return formula.tiempo(datos); });
        f.Tc[k] = T == 0 ? "" : Redondeado(T);
    }
}

std::string ComoTexto(const dlgEmpiricas& f)
{
    std::string texto;
    texto.append(MarcoQp).append(model::SaltoLinea);
    AgregaRenglon(texto, RotulosEmpiricos.front().leyenda, f.txtSup);
    for (std::size_t k = 0; k < f.Qp.size(); ++k)
        AgregaRenglon(texto, FormulasQp()[k].leyenda, f.Qp[k]);
    texto.append(MarcoTc).append(model::SaltoLinea);
    AgregaRenglon(texto, LeyendaLblSup, f.lblSup);
    for (std::size_t k = 1; k < CamposEmpiricos.size(); ++k)
        AgregaRenglon(texto, RotulosEmpiricos[k].leyenda, f.*CamposEmpiricos[k].texto);
    for (std::size_t k = 0; k < f.Tc.size(); ++k)
        AgregaRenglon(texto, FormulasTc()[k].leyenda, f.Tc[k]);
    return texto;
}

}  // namespace empirical
