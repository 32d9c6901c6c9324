// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/Formulas.h"

#include <array>

#include "model/Numeros.h"

namespace empirical {

using model::Cociente;
using model::Potencia;

namespace {

constexpr double CambioDeSanti = 1000;  ///< area from which the exponent is 2/3 [km2]

template <int Coeficiente>
double Santi(double S)
{
    return Coeficiente * Potencia(S, S < CambioDeSanti ? 0.5 : 2.0 / 3);
}

// Help that the label of another row shows too.
constexpr std::string_view AyudaZapata = "Qp = 21 * S^0,6  ; S= Superficie [Km2]  ; Coeficiente C= 30";

constexpr FormulaQp Fila(std::string_view control, std::string_view leyenda, double (*caudal)(double S),
                         std::string_view expresion, std::string_view ayuda)
{
    return {.control = control,
            .leyenda = leyenda,
            .caudal = caudal,
            .expresion = expresion,
            .ayuda = ayuda,
            .ayudaRotulo = ayuda};
}

constexpr FormulaQp Entre(double minimoS, double maximoS, FormulaQp fila)
{
    fila.minimoS = minimoS;
    fila.maximoS = maximoS;
    return fila;
}

constexpr FormulaQp ConRotulo(std::string_view ayudaRotulo, FormulaQp fila)
{
    fila.ayudaRotulo = ayudaRotulo;
    return fila;
}

// clang-format off
constexpr auto TablaQp = std::to_array<FormulaQp>({
    Fila("txtQCreager", "Creager",
         [](double S) { return 0.55 * 30 * Potencia(S, S - 0.05); },
         "0.55 · 30 · S^{S − 0.05}",
         "Qp = 0,55 * C * S^(S-0,05)  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpSanti100", "Santi R=100años", Santi<33>,
         "33 · S^{1/2};  S ≥ 1000: 33 · S^{2/3}",
         "Qp =33 S^(0,5)  ; S= Superficie [Km2] "),
    Fila("txtQpSanti500", "Santi R=500años", Santi<50>,
         "50 · S^{1/2};  S ≥ 1000: 50 · S^{2/3}",
         "Qp =50 S^(0,5)  ; S= Superficie [Km2] "),
    Fila("txtQpSanti1000", "Santi R=1000años", Santi<66>,
         "66 · S^{1/2};  S ≥ 1000: 66 · S^{2/3}",
         "Qp =66 S^(0,5)  ; S= Superficie [Km2] "),
    Fila("txtQpMyerC30", "Myer, C=30",
         [](double S) { return 1.75 * 30 * Potencia(S, 0.5); },
         "1.75 · 30 · S^{1/2}",
         "Qp=1,75 * 30 * S^0.5    ; S= Superficie [Km2] "),
    Fila("txtQpMyerC100", "            C=100",
         [](double S) { return 1.75 * 100 * Potencia(S, 0.5); },
         "1.75 · 100 · S^{1/2}",
         "Qp=1,75 * 100 * S^0.5    ; S= Superficie [Km2] "),
    Entre(0, 1000, Fila("txtQpScimeni", "Scimeni (S<1000Km2)",
         [](double S) { return S * (600 / (S + 10) + 1); },
         "S · (600 / (S + 10) + 1);  S ≤ 1000",
         "Qp = S * (600/(S+10 )+1)     ; S= Superficie [Km2] ")),
    Entre(20, 1000, Fila("txtQpPagliaro", "Pagliaro",
         [](double S) { return S * (2900 / (90 + S)); },
         "S · 2900 / (90 + S);  20 ≤ S ≤ 1000",
         "Qp = S * ( 2900 / ( 90+S )  )   ; S= Superficie [Km2]  ; Coeficiente C= 30")),
    Fila("txtQpGauguillet", "Gauguillet",
         [](double S) { return 25 * S / (5 + Potencia(S, 0.5)); },
         "25 · S / (5 + S^{1/2})",
         "Qp =  ( 25 * S ) / ( 90 + S )   ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpFanning", "Fanning",
         [](double S) { return 2.5 * Potencia(S, 5.0 / 6); },
         "2.5 · S^{5/6}",
         "Qp =  2.5 S^5,6   ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpDickens", "Dickens",
         [](double S) { return 6.9 * Potencia(S, 3.0 / 4); },
         "6.9 · S^{3/4}",
         "Qp = 6,9 * S^(3/4)  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpQuijano", "Quijano",
         [](double S) { return 17 * Potencia(S, 2.0 / 3); },
         "17 · S^{2/3}",
         "Qp = 17 * S^(2/3)  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpZapata", "Zapata",
         [](double S) { return 21 * Potencia(S, 0.6); },
         "21 · S^{0.6}",
         AyudaZapata),
    ConRotulo(AyudaZapata, Fila("txtQpKuicklingO", "Kuickling, Ordinarias",  // kept as it stands
         [](double S) { return S * (1246 / (S + 440) + 0.22); },
         "S · (1246 / (S + 440) + 0.22)",
         "Qp =  S * ( ( 1246 / (S+440 ) ) + 0,22  )   ; S= Superficie [Km2]  ; Coeficiente C= 30")),
    Fila("txtQpKuicklingE", "Kuickling, Extra-Ordinarias",
         [](double S) { return S * (3596 / (S + 958) + 0.08); },
         "S · (3596 / (S + 958) + 0.08)",
         "Qp = S * ( ( 3596 / (S+958 ) ) + 0,08  )  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpRyves", "Rives",
         [](double S) { return 8.5 * Potencia(S, 2.0 / 3); },
         "8.5 · S^{2/3}",
         "Qp = 8,5 * S^(2/3)  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpValentini", "Valentini",
         [](double S) { return 27 * Potencia(S, 0.5); },
         "27 · S^{1/2}",
         "Qp = 27 * S^0.5  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
    Fila("txtQpGutmann", "Gutmann",
         [](double S) { return S * (2832 / (96 + S)); },
         "S · 2832 / (96 + S)",
         "Qp = S * ( 2832 / ( S+96 ) )  ; S= Superficie [Km2]  ; Coeficiente C= 30"),
});

constexpr auto TablaTc = std::to_array<FormulaTc>({
    {"lblTcCalifornia", "California Culverts",
     [](const DatosTc& d) { return 60 * Potencia(Cociente(0.87 * Potencia(d.L, 3), d.H), 0.385); },
     "60 · (0.87 · L^{3} / H)^{0.385}",
     "Tc = 60 * [ (0,87 * L^3  /  H )^0,385] ; L= Longitud del cauce principal [Km]; H= Desnivel máximo en la cuenca [m]"},
    {"lblTcVentura", "Ventura",
     // The 100, which the help doesn't tell of, turns km2 into hectares.
     [](const DatosTc& d) { return Cociente(60 * 0.1272 * Potencia(100 * d.S, 0.5), Potencia(d.L, 0.5)); },
     "60 · 0.1272 · (100 · S)^{1/2} / L^{1/2}",
     "Tc = 60 * 0.1272 * [(S^0,5)  / ( L^0,5)]   ; L= Longitud del cauce principal [Km]; S= Superficie de la cuenca [Km2]"},
    {"lblTcSCSUS", "SCS-US",
     [](const DatosTc& d) { return 60 * 0.1947 * Potencia(Cociente(3.3 * d.L, d.i), 0.77); },
     "60 · 0.1947 · (3.3 · L / i)^{0.77}",
     "Tc = 60 * 0,1947 * (3.3 * L / i )^0,77  ; L= Longitud del cauce más largo [Km]  ; i= pendiente cauce más largo [%]",
     true},
});
// clang-format on

}  // namespace

std::span<const FormulaQp, NroFormulasQp> FormulasQp()
{
    return TablaQp;
}

std::span<const FormulaTc, NroFormulasTc> FormulasTc()
{
    return TablaTc;
}

}  // namespace empirical
