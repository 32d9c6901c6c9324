// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cmath>

#include "checks/Arregla.h"
#include "checks/Reglas.h"
#include "engine/Embalses.h"
#include "hydraulics/FuncionesFQ.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

using model::NumeroATexto;

namespace {

/// A value, the range in which it usually lies, and who says so. Where `ceroVale`, 0 means that it isn't
/// used.
template <typename T>
struct FilaRango {
    int numero;
    Gravedad gravedad;
    const char* que;
    const char* unidad;
    double (*valor)(const T&);
    double minimo, maximo;
    bool ceroVale;
    const char* fuente;
};

// Foreign units: 0.05 to 0.6 inches of retention; 10 square miles; 0.076 to 0.619 m/s per root of a slope of
// 0.5 to 50 %; velocities over sand to boulders of 0.2 to 2 m/s, and a wave 5/3 as fast (kinematic wave with
// Manning's formula); a recession to a tenth in 15 to 100 days, of surface flow in 1.8 to 6: the K of
// e^(-t/K) is t / ln 10, from 1.8 * 24 / ln 10 to 100 * 24 / ln 10 hours.
// clang-format off
constexpr auto DeUEH = std::to_array<FilaRango<model::UEH>>({
    {240, Gravedad::Nota, "La superficie de la UEH", " ha", [](const model::UEH& u) { return double{u.Area}; }, 0, 2590, false,
     "sobre 10 millas cuadradas conviene dividir: Urban Drainage and Flood Control District, Drainage Criteria Manual, 1984, Runoff, 4.5"},
    {241, Gravedad::Aviso, "La velocidad media en ladera", " m/s", [](const model::UEH& u) { return double{u.VelMedia}; }, 0.05, 4.4, true,
     "pendientes de 0.5 a 50 %: FHWA, HEC-22, 2009, tabla 3-3"},
    {242, Gravedad::Aviso, "El coeficiente a de Kostiakov", " mm/min^b", [](const model::UEH& u) { return double{u.KostiakovA}; }, 0, HUGE_VAL, true,
     "Kostiakov, 1932"},
    {243, Gravedad::Aviso, "La infiltración de la primera hora", " mm",
     [](const model::UEH& u) { return u.KostiakovA > 0 ? u.KostiakovA * std::pow(60.0, double{u.KostiakovB}) : 0; }, 1, HUGE_VAL, true,
     "una arcilla infiltra de 1 a 5 mm/h: Brouwer y otros, FAO, 1988, manual 5, anexo 2"},
    {244, Gravedad::Aviso, "El exponente b de Kostiakov", "",
     [](const model::UEH& u) { return u.KostiakovA > 0 ? double{u.KostiakovB} : 0; }, 0, 1, false,
     "Kostiakov, 1932"},
    {245, Gravedad::Aviso, "La retención superficial", " mm", [](const model::UEH& u) { return double{u.RetensionZ}; }, 1.27, 15.24, true,
     "Urban Drainage and Flood Control District, Drainage Criteria Manual, 1984, tabla 2-1"},
    {246, Gravedad::Aviso, "La constante k de recesión", " h",
     [](const model::UEH& u) { return u.Q0Recesion > 0 ? double{u.KRecesion} : 0; }, 18.7, 1043, true,
     "baja a un décimo en 1.8 a 100 días: Singh y Stall, Water Resources Research 7(2), 1971"},
});
constexpr auto DeCauce = std::to_array<FilaRango<model::Cauce>>({
    {251, Gravedad::Aviso, "La velocidad de la propagación directa", " m/s",
     [](const model::Cauce& c) { return c.optDirMusk ? double{c.VelMediaCauce} : 0; }, 0.2, 3.4, true,
     "lechos de arena a bloques, Einsele, 1960, por 5/3 de la onda: Chow, Maidment y Mays, 1988"},
    {252, Gravedad::Aviso, "El peso x de Muskingum", "",
     [](const model::Cauce& c) { return c.optDirMusk ? 0 : double{c.Cauce_n_Musk}; }, 0, 0.5, false,
     "Chow, Maidment y Mays, 1988; Rui, Liu y Yu, 2008"},
});
constexpr auto DeFuncion = std::to_array<FilaRango<hydraulics::FuncionFQ>>({
    {254, Gravedad::Aviso, "El exponente de una función de descarga", "",
     [](const hydraulics::FuncionFQ& f) { return f.forma == model::FormaFQ::Potencia ? double{f.b} : 1; }, 0.5, 2.5, false,
     "de orificio 0.5 a vertedero triangular 2.5: uso corriente, sin fuente impresa"},
});
// clang-format on

void RevisaFilas(const auto& filas, const auto& c, const std::string& nombre, Hallazgos& l)
{
    for (const auto& f : filas) {
        const double v = f.valor(c);
        if ((v == 0 && f.ceroVale) || (f.minimo <= v && v <= f.maximo)) continue;
        const std::string hasta = std::isinf(f.maximo)
                                      ? "desde " + NumeroATexto(f.minimo)
                                      : "de " + NumeroATexto(f.minimo) + " a " + NumeroATexto(f.maximo);
        l.push_back({f.gravedad, f.numero, nombre, std::string(f.que) + " está fuera de lo habitual",
                     NumeroATexto(static_cast<float>(v)) + f.unidad + ", lo habitual " + hasta,
                     std::string("Revise el valor; ") + f.fuente + "."});
    }
}

/// With dt outside the window a coefficient is negative and the outflow dips before it rises, or swings.
void RevisaVentana(const std::string& nombre, ParMuskingum par, std::int16_t PasoQ, Hallazgos& l)
{
    if (EnVentana(par, PasoQ)) return;
    const auto minutos = [](double x) { return NumeroATexto(static_cast<float>(x)); };
    const double K = par.K, x = par.x;
    l.push_back(
        {Gravedad::Aviso, 253, nombre, "El paso de salida está fuera de la ventana de Muskingum",
         NumeroATexto(std::int32_t{PasoQ}) + " min, 2Kx " + minutos(2 * K * x) + ", 2K(1-x) " +
             minutos(2 * K * (1 - x)) + " min",
         "Elija un paso dentro de ella, o divida o una tramos: fuera hay coeficientes negativos (Chow, "
         "Maidment y Mays, 1988)."});
}

}  // namespace

void RevisaRangos(const model::Red& red, std::int16_t PasoQ, Hallazgos& l)
{
    for (const model::UEH& u : red.ColUEHs)
        RevisaFilas(DeUEH, u, u.NombreUEH, l);
    for (const model::Cauce& c : red.ColCauces) {
        RevisaFilas(DeCauce, c, c.NombreCauce, l);
        if (!c.optDirMusk) RevisaVentana(c.NombreCauce, {c.Cauce_k_Musk, c.Cauce_n_Musk}, PasoQ, l);
    }
    for (const model::Lago& e : red.ColLagos)
        if (e.Metodo == engine::MetodoMuskingum) RevisaVentana(e.NombreLAGO, {e.Lago_k_Musk, 0}, PasoQ, l);
    for (const model::Represa& r : red.ColRepresas) {
        if (r.Metodo == engine::MetodoMuskingum)
            RevisaVentana(r.NombreRepresa, {r.Represa_k_Musk, 0}, PasoQ, l);
        if (r.optTabla) continue;
        for (const hydraulics::FuncionFQ& f : hydraulics::FuncionesEnUso(r))
            RevisaFilas(DeFuncion, f, r.NombreRepresa, l);
    }
}

}  // namespace checks
