// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Familias.h"

namespace checks::casos {

namespace {

constexpr double Hectareas = 60;  // 1 mm/min on them is 10 m3/s

std::vector<double> CadaDiez(int n)
{
    std::vector<double> t;
    for (int k = 0; k <= n; ++k)
        t.push_back(10.0 * k);
    return t;
}

/// A UEH alone under an even rain [mm, min].
Banco UEHSola(float lamina, std::int16_t duracion, std::int16_t pasoPp, int minutosDeViaje)
{
    Banco banco;
    banco.PonUEH("0", Hectareas, minutosDeViaje);
    banco.tormenta.PpTormenta = lamina;
    banco.tormenta.DurTormenta = duracion;
    banco.pasos = {.PasoPp = pasoPp, .PasoQ = 10, .N0Dur = 60};
    return banco;
}

Comparacion Traslacion(std::int16_t duracion, int minutosDeViaje, std::vector<double> impreso)
{
    Banco banco = UEHSola(duracion, duracion, 10, minutosDeViaje);
    const auto n = static_cast<int>(impreso.size()) - 1;
    std::vector<double> nuestro = Columna(banco.Corre().Resultados.QSale, 1, static_cast<std::size_t>(n));
    return {CadaDiez(n), std::move(impreso), std::move(nuestro)};
}

/// What a slope of one step of travel doesn't hand on of 20 mm in each 10 min, summed up.
Comparacion Kostiakov(float humedad, std::vector<double> impreso)
{
    constexpr float LaminaPorPaso = 20;
    const auto n = impreso.size();
    Banco banco = UEHSola(LaminaPorPaso * static_cast<float>(n), static_cast<std::int16_t>(10 * n), 10, 10);
    model::UEH& u = banco.red.UEHs(1);
    u.KostiakovA = 6;
    u.KostiakovB = 0.5F;
    u.KostiakovI = humedad;
    const std::vector<double> caudal = Columna(banco.Corre().Resultados.QSale, 1, n);
    Comparacion c;
    double infiltrada = 0;
    for (std::size_t k = 1; k <= n; ++k) {
        infiltrada += LaminaPorPaso - caudal[k];  // 1 mm in a step is 1 m3/s on the 60 ha
        c.x.push_back(10 * static_cast<double>(k));
        c.nuestro.push_back(infiltrada);
    }
    c.impreso = std::move(impreso);
    return c;
}

/// Base flow of 10 m3/s under a rain that the surface keeps.
Comparacion Recesion()
{
    Banco banco = UEHSola(1, 60, 60, 10);
    banco.pasos = {.PasoPp = 60, .PasoQ = 60, .N0Dur = 300};
    model::UEH& u = banco.red.UEHs(1);
    u.RetensionZ = 10;
    u.Q0Recesion = 10;
    u.KRecesion = 2;
    std::vector<double> caudal = Columna(banco.Corre().Resultados.QSale, 1, 6);
    caudal.erase(caudal.begin());
    return {{1, 2, 3, 4, 5, 6}, {6.0653, 3.6788, 2.2313, 1.3534, 0.8208, 0.4979}, std::move(caudal)};
}

constexpr std::string_view FuenteTraslacion =
    "a mano: intensidad por área que contribuye, que crece en línea recta hasta el tiempo de viaje (método "
    "racional, E. Kuichling, 1889, The relation between the rainfall and the discharge of sewers in populous "
    "districts, Trans. ASCE 20)";
constexpr std::string_view FuenteKostiakov =
    "a mano: F = a·t^b (A. N. Kostiakov, 1932, On the dynamics of the coefficient of water percolation in "
    "soils, Trans. 6th Comm. Int. Soc. Soil Sci., parte A)";
constexpr std::string_view PorqueSexto = "el programa lleva 0.166667 por 1/6: 0.00002 en 10 m3/s";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Traslación triangular", FuenteTraslacion,
     "60 ha impermeables, lluvia de 1 mm/min durante 30 min, 30 min de viaje", "caudal [m3/s]",
     "tiempo [min]", 0.0001, PorqueSexto, true,
     [] {
         return Traslacion(30, 30, {0, 3.33333, 6.66667, 10, 6.66667, 3.33333, 0, 0});
     }},
    {"Traslación trapecial, lluvia más larga que el viaje", FuenteTraslacion,
     "60 ha impermeables, lluvia de 1 mm/min durante 60 min, 30 min de viaje", "caudal [m3/s]",
     "tiempo [min]", 0.0001, PorqueSexto, true,
     [] {
         return Traslacion(60, 30, {0, 3.33333, 6.66667, 10, 10, 10, 10, 6.66667, 3.33333, 0, 0});
     }},
    {"Traslación trapecial, viaje más largo que la lluvia", FuenteTraslacion,
     "60 ha impermeables, lluvia de 1 mm/min durante 20 min, 40 min de viaje", "caudal [m3/s]",
     "tiempo [min]", 0.0001, PorqueSexto, true,
     [] {
         return Traslacion(20, 40, {0, 2.5, 5, 5, 5, 2.5, 0, 0});
     }},
    {"Infiltración de Kostiakov, suelo seco", FuenteKostiakov,
     "a = 6 mm/min^b, b = 0.5; 20 mm cada 10 min, que siempre alcanzan", "lámina infiltrada [mm]",
     "tiempo [min]", 0.001, "media unidad de la última cifra, y 0.00004 por paso del 0.166667", true,
     [] {
         return Kostiakov(0, {18.974, 26.833, 32.863, 37.947, 42.426, 46.476});
     }},
    {"Infiltración de Kostiakov, suelo húmedo", FuenteKostiakov,
     "lo mismo con 30 min de infiltración ya pasados: F(t + 30) - F(30)", "lámina infiltrada [mm]",
     "tiempo [min]", 0.001, "media unidad de la última cifra, y 0.00004 por paso del 0.166667", true,
     [] {
         return Kostiakov(30, {5.084, 9.563, 13.612, 17.336, 20.802, 24.058});
     }},
    {"Recesión exponencial",
     "a mano: Q = Q0·e^(-t/K) (B. S. Barnes, 1939, The structure of discharge-recession curves, Trans. AGU "
     "20), con e^-0.5 = 0.60653 y sus potencias",
     "Q0 = 10 m3/s, K = 2 h", "caudal [m3/s]", "tiempo [h]", 0.0001,
     "media unidad de la última cifra, y el programa lleva 2.7183 por e", true, Recesion},
});

}  // namespace

std::span<const FilaDeCaso> UEHs()
{
    return Filas;
}

}  // namespace checks::casos
