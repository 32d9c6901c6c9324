// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Asistente.h"

#include <cmath>
#include <vector>

#include "checks/Corrido.h"
#include "engine/Calcula.h"
#include "engine/FormulasUEH.h"
#include "hydraulics/FuncionesFQ.h"
#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

namespace {

constexpr const char* MenorOIgual = " ≤ ";

std::string Cifra(double x, int decimales = 2)
{
    return model::NumeroATexto(model::Redondea(x, decimales));
}

std::string Minutos(std::int32_t minutos)
{
    return model::NumeroATexto(minutos) + " min";
}

/// A bound of K, rounded into the window.
std::string Limite(double K, double (*hacia)(double))
{
    constexpr double Centesimas = 100, Holgura = 1e-3;
    const double aqui = K * Centesimas, entero = std::nearbyint(aqui);
    return Cifra((std::fabs(aqui - entero) < Holgura ? entero : hacia(aqui)) / Centesimas);
}

/// K of the window for this x.
std::string Ventana(double x, std::int16_t PasoQ, bool conX)
{
    const std::string delante = conX ? "con x = " + Cifra(x, 4) + ", K " : "K ";
    const std::string desde = Limite(PasoQ / (2 * (1 - x)), [](double v) { return std::ceil(v); });
    if (x <= 0) return delante + "desde " + desde + " min";
    return delante + "de " + desde + " a " + Limite(PasoQ / (2 * x), [](double v) { return std::floor(v); }) +
           " min";
}

std::string Cercano(ParMuskingum par, std::int16_t PasoQ, bool conX)
{
    const auto otro = MuskingumCercano(par, PasoQ, conX);
    if (!otro) return {};
    return ": vale K = " + Cifra(otro->K) + " min" + (conX ? " con x = " + Cifra(otro->x, 4) : std::string{});
}

/// Rows of a table as heights, and whether one is among them.
struct Alcance {
    std::vector<double> H;
    [[nodiscard]] bool Tiene(float h) const
    {
        return !H.empty() && double{h} >= H.front() && double{h} <= H.back();
    }
    [[nodiscard]] std::string Fuera() const
    {
        return H.empty() ? std::string("sin tabla") : "fuera de su tabla (" + DeA() + ")";
    }
    [[nodiscard]] bool TieneOtras(float h) const { return !H.empty() && !Tiene(h); }
    [[nodiscard]] std::string DeA() const
    {
        return "de " + Cifra(H.front(), 3) + " a " + Cifra(H.back(), 3) + " m";
    }
};

std::string ConUnidad(const std::optional<double>& valor, int decimales, const char* unidad)
{
    return valor ? Cifra(*valor, decimales) + unidad : std::string("no se puede calcular");
}

std::optional<double> Lee(auto&& lectura)
{
    std::optional<double> valor;
    model::Sentencia([&] { valor = lectura(); });
    return valor;
}

std::string Altura(const hydraulics::CompActual& c, float h)
{
    const Alcance has{ColumnaDe(c.tablaH, c.filas, c.numero)}, hq{ColumnaDe(c.tablaHQ, c.filasQ, c.numero)};
    if (c.funciones == nullptr && has.TieneOtras(h) && hq.TieneOtras(h))
        return "Fuera de las tablas: almacenamiento " + has.DeA() + ", descarga " + hq.DeA() + ".";
    std::string texto = "Con " + Cifra(h, 3) + " m: almacenamiento ";
    texto += has.Tiene(h) ? ConUnidad(Lee([&] { return hydraulics::SdeH(c, h); }), 0, " m3") : has.Fuera();
    texto += "; descarga ";
    if (c.funciones == nullptr && !hq.Tiene(h)) return texto + hq.Fuera() + ".";
    // By the functions themselves where there are any: a fault of theirs is to be seen, not to count as 0.
    const auto Q = Lee([&] {
        return c.funciones != nullptr ? double{hydraulics::FuncionesEnUso(*c.funciones).Descarga(h)}
                                      : double{hydraulics::QdeH(c, h)};
    });
    return texto + ConUnidad(Q, 3, " m3/s") + ".";
}

}  // namespace

std::string ApunteDeMuskingum(ParMuskingum par, std::int16_t PasoQ, bool conX)
{
    if (!conX) par.x = 0;
    const double K = par.K, x = par.x;
    const std::string paso = "paso " + Minutos(PasoQ);
    const std::string alto = conX && x > 0 ? "2K(1-x) = " : "2K = ";
    const bool pasa = PasaMuskingum(par, PasoQ);
    if (EnVentana(par, PasoQ)) {
        const std::string bajo = conX ? "2Kx = " + Cifra(2 * K * x) + MenorOIgual : std::string{};
        std::string texto =
            "Ventana de Muskingum: " + bajo + paso + MenorOIgual + alto + Cifra(2 * K * (1 - x)) + " min.";
        if (pasa) return texto;
        // Without x there is little room.
        return (conX ? texto + " Pero los" : std::string("Los")) +
               " coeficientes no suman 1 y la corrida se detiene" + Cercano(par, PasoQ, conX) + ".";
    }
    std::string texto = "Fuera de la ventana de Muskingum: ";
    if (2 * K * x > PasoQ)
        texto += "2Kx = " + Cifra(2 * K * x) + " > " + paso;
    else
        texto += alto + Cifra(2 * K * (1 - x)) + " < " + paso;
    texto += "; " + Ventana(x, PasoQ, conX) + ".";
    if (!pasa) texto += " Además los coeficientes no suman 1 y la corrida se detiene.";
    return texto;
}

std::string ApunteDeTraslado(const model::UEH& u, const model::Pasos& pasos)
{
    const std::int16_t PasoQ = PasoDeCorrida(pasos);
    const std::optional<int> T = Corrido::Traslado(u);
    if (!T || PasoQ <= 0) return {};
    return "Traslado T = " + Minutos(*T) + ": " + Cifra(double{1} * *T / PasoQ) + " pasos de " +
           Minutos(PasoQ) + ".";
}

std::string ApunteDeViaje(const model::Cauce& c, const model::Pasos& pasos)
{
    const std::int16_t PasoQ = PasoDeCorrida(pasos);
    const std::optional<int> T = Corrido::Viaje(c), retardo = Corrido::Retardo(c, PasoQ);
    if (!T || !retardo) return {};
    const std::string texto = "Viaje T = " + Minutos(*T) + ": ";
    if (!c.optDirMusk)
        return texto + Cifra(double{1} * *T / PasoQ) + " pasos de " + Minutos(PasoQ) +
               ", que por Muskingum no cuentan.";
    return texto + "la crecida se atrasa " + model::NumeroATexto(std::int32_t{*retardo}) + " pasos de " +
           Minutos(PasoQ) + ".";
}

std::string ApunteDeAltura(const model::Red& red, const model::Represa& r)
{
    const model::Anfitrion sordo;
    return Altura(hydraulics::EnMano(sordo, red, r), r.HInicialEmb);
}

std::string ApunteDeAltura(const model::Red& red, const model::Lago& l)
{
    const model::Anfitrion sordo;
    return Altura(hydraulics::EnMano(sordo, red, l), l.HInicialEmb);
}

std::string ApunteDeFunciones(const model::Represa& r, std::optional<float> altura)
{
    const hydraulics::FuncionesEnUso enUso(r);
    if (r.optTabla || enUso.begin() == enUso.end()) return {};
    std::string texto = "H cuenta desde H mín.";
    if (!altura) return texto;
    std::string cuales;
    const auto* funcion = enUso.begin();
    for (std::size_t i = 0; i < r.chkFQ.size(); ++i) {
        if (r.chkFQ[i] != 1) continue;
        const hydraulics::FuncionFQ& f = *funcion++;
        if (!f.Alcanza(*altura)) continue;
        cuales += (cuales.empty() ? " F" : "; F") + model::NumeroATexto(static_cast<std::int32_t>(i) + 1) +
                  ": H = " + Cifra(double{*altura} - f.minimo, 3) + " m, " +
                  ConUnidad(Lee([&] { return double{f.Agrega(0, *altura)}; }), 3, " m3/s");
    }
    texto += " Con " + Cifra(*altura, 3) + " m,";
    return cuales.empty() ? texto + " ninguna descarga." : texto + cuales + ".";
}

std::optional<Reparto> RepartoDe(const model::UEH& u, const model::Tormenta& tormenta,
                                 const model::Pasos& pasos, const model::TablasDeLluvia& tablas)
{
    if (tormenta.FormaPp == model::FormaLluvia::SeriePDR || tormenta.DurTormenta <= 0) return {};
    // The rain alone is wanted of the run: a UEH that no run refuses, and that lets it go at once.
    constexpr std::int16_t Sola = 1;
    model::Red red;
    red.ColUEHs.Agrega(
        {.NombreUEH = u.NombreUEH, .Area = 1, .LongitudMax = 60, .VelMedia = 1, .numUEH = Sola});
    model::Tormenta propia = tormenta;
    model::Pasos cortos = pasos;
    cortos.PasoQ = PasoDeCorrida(pasos);
    cortos.N0Dur = cortos.PasoPp;
    std::optional<Reparto> reparto;
    model::Sentencia([&] {
        if (tormenta.FormaPp == model::FormaLluvia::PorUEH) propia.PpUEH(Sola) = tormenta.PpUEH(u.numUEH);
        const engine::Calculo calculo = engine::Calcula(red, propia, cortos, tablas);
        if (calculo.fin != engine::FinCalculo::Completo) return;
        const auto& lluvia = calculo.Resultados.PpUEHPaso;
        const engine::Infiltracion suelo(u, cortos.PasoPp);
        engine::Infiltracion::PotenciaDeT fin;
        Reparto suma;
        float restante = u.RetensionZ, R = 0;
        int reloj = 1;
        for (int k = 1; k <= lluvia.TopeColumna(); ++k) {
            const float Pp = lluvia(Sola, k);
            engine::Retiene(Pp, restante, R);
            const float N = model::Simple(double{Pp} - R);
            const float I = N == 0 ? 0 : suelo.Lamina(reloj++, fin);
            const float E = N > I ? model::Simple(double{N} - I) : 0;
            suma.lluvia += double{Pp};
            suma.retenida += double{R};
            suma.infiltrada += double{N} - E;
            suma.escurrida += double{E};
        }
        if (suma.lluvia > 0) reparto = suma;
    });
    return reparto;
}

double NumeroDeCurva(double P, double Q)
{
    constexpr double MilimetrosDeCN = 25400, Descuento = 254;
    const double S = 5 * (P + 2 * Q - std::sqrt(4 * Q * Q + 5 * P * Q));
    return MilimetrosDeCN / (S + Descuento);
}

std::string ApunteDeRetencion(const std::optional<Reparto>& reparto)
{
    if (!reparto) return {};
    return "De los " + Cifra(reparto->lluvia, 1) + " mm de la tormenta en mano retiene " +
           Cifra(reparto->retenida, 1) + " mm.";
}

std::string ApunteDeEscorrentia(const std::optional<Reparto>& reparto)
{
    if (!reparto) return "Sin una tormenta en mano no se sabe cuánto escurre.";
    const std::string texto = "De los " + Cifra(reparto->lluvia, 1) + " mm de la tormenta en mano infiltra " +
                              Cifra(reparto->infiltrada, 1) + " mm y ";
    constexpr double Despreciable = 0.05;  // [mm], what is shown as 0
    if (reparto->escurrida < Despreciable) return texto + "no escurre nada.";
    return texto + "escurren " + Cifra(reparto->escurrida, 1) + " mm (" +
           Cifra(reparto->escurrida / reparto->lluvia * 100, 0) + " %), como con CN " +
           Cifra(NumeroDeCurva(reparto->lluvia, reparto->escurrida), 1) + ".";
}

}  // namespace checks
