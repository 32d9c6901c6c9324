// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/FuncionesFQ.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/Potencia.h"

namespace hydraulics {

using model::NumeroATexto;
using model::Potencia;

namespace {

/// What a form of outflow function is. Heights are those above H min [m].
struct FormulaFQ {
    /// Q plus what is let out at d [m3/s].
    double (*suma)(double Q, const FuncionFQ& f, double d);
    /// A bound of what is let out between two heights [m3/s]; infinite or no number where there is none.
    double (*cota)(const FuncionFQ& f, double desde, double hasta);
    /// Behind a.
    std::string (*texto)(const FuncionFQ& f);
};

constexpr auto Formulas = std::to_array<FormulaFQ>({
    // FormaFQ::Potencia
    {[](double Q, const FuncionFQ& f, double d) { return Q + f.a * Potencia(d, f.b); },
     [](const FuncionFQ& f, double desde, double hasta) {
         if (f.b < 0 && desde == 0) return std::numeric_limits<double>::infinity();
         return std::fabs(double{f.a}) * model::PotenciaRedondeada(f.b < 0 ? desde : hasta, double{f.b});
     },
     [](const FuncionFQ& f) { return " * (H[m]-HMin[m])^" + NumeroATexto(f.b); }},
    // FormaFQ::Parabola: listed with H[m]^2 though it counts from H min, kept as it stands
    {[](double Q, const FuncionFQ& f, double d) { return Q + f.a + f.b * d + f.c * Potencia(d, 2); },
     [](const FuncionFQ& f, double, double hasta) {
         return std::fabs(double{f.a}) + std::fabs(double{f.b}) * hasta +
                std::fabs(double{f.c}) * hasta * hasta;
     },
     [](const FuncionFQ& f) {
         return " + " + NumeroATexto(f.b) + " * (H[m]-HMin[m]) + " + NumeroATexto(f.c) + " * H[m]^2";
     }},
});

const FormulaFQ& FormulaDe(model::FormaFQ forma)
{
    return Formulas[static_cast<std::size_t>(forma)];
}

}  // namespace

float FuncionFQ::Agrega(float Q, float h) const
{
    return model::Simple(FormulaDe(forma).suma(Q, *this, double{h} - minimo));
}

double FuncionFQ::MayorAporte(float desde, float hasta) const
{
    const double primera = double{std::max(desde, minimo)} - minimo;
    const double ultima = double{std::min(hasta, maximo)} - minimo;
    return primera > ultima ? 0 : FormulaDe(forma).cota(*this, primera, ultima);
}

std::string FuncionFQ::Expresion() const
{
    return "Q[m3/s]= " + NumeroATexto(a) + FormulaDe(forma).texto(*this) + "     ; para, " +
           NumeroATexto(minimo) + "[m] <=H[m]<= " + NumeroATexto(maximo);
}

}  // namespace hydraulics
