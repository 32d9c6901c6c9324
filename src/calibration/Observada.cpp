// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Observada.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "calibration/Puntajes.h"
#include "model/Numeros.h"

namespace calibration {
namespace {

using study::Observacion;
using study::Punto;
using study::PuntoDeCurva;

constexpr double FactorDeHueco = 2.5;

std::string Numero(double x)
{
    return model::NumeroATexto(static_cast<float>(x));
}

std::string Cuantos(std::size_t n, const char* uno, const char* varios)
{
    return std::to_string(n) + ' ' + (n == 1 ? uno : varios);
}

bool EnLogaritmos(const PuntoDeCurva& a, const PuntoDeCurva& b)
{
    return a.nivel > 0 && a.caudal > 0 && b.caudal > 0;
}

double Entre(const PuntoDeCurva& a, const PuntoDeCurva& b, double nivel, bool enLogaritmos)
{
    if (!enLogaritmos || !EnLogaritmos(a, b))
        return a.caudal + (b.caudal - a.caudal) * (nivel - a.nivel) / (b.nivel - a.nivel);
    const double parte = std::log(nivel / a.nivel) / std::log(b.nivel / a.nivel);
    return a.caudal * std::pow(b.caudal / a.caudal, parte);
}

void DiceCurva(const Observacion& o, std::vector<std::string>& dudas)
{
    if (o.interpolacion == "lineal") {
        dudas.emplace_back("Entre los puntos de la curva de gasto el caudal se interpola linealmente.");
        return;
    }
    std::string texto =
        "Entre los puntos de la curva de gasto se interpolan los logaritmos de nivel y caudal";
    for (std::size_t i = 1; i < o.curva.size(); ++i)
        if (!EnLogaritmos(o.curva[i - 1], o.curva[i])) {
            texto += "; hasta el nivel " + Numero(o.curva[i].nivel) +
                     " m, linealmente, porque hay un nivel o un caudal que no es mayor que 0";
            break;
        }
    dudas.push_back(texto + '.');
}

void TomaNiveles(const Observacion& o, Observada& observada)
{
    if (const std::string reparo = ReparoDeCurva(o.curva); !reparo.empty()) {
        observada.dudas.push_back(reparo + " Los niveles no dan caudales.");
        return;
    }
    std::size_t debajo = 0, encima = 0;
    for (const Punto& p : o.puntos)
        if (const auto caudal = CaudalDeNivel(o, p.valor))
            observada.puntos.push_back({p.minuto, *caudal});
        else
            ++(p.valor < o.curva.front().nivel ? debajo : encima);
    DiceCurva(o, observada.dudas);
    const auto dice = [&](std::size_t n, const char* lado, double borde, const char* punto) {
        if (n > 0)
            observada.dudas.push_back(Cuantos(n, "nivel está ", "niveles están ") + lado + " del " + punto +
                                      " punto de la curva de gasto, " + Numero(borde) +
                                      " m: no se extrapola y quedan sin caudal.");
    };
    dice(debajo, "por debajo", o.curva.front().nivel, "primer");
    dice(encima, "por encima", o.curva.back().nivel, "último");
}

void DiceHuecos(const Observada& observada, std::vector<std::string>& dudas)
{
    if (observada.huecos.empty()) return;
    const Hueco mayor = *std::max_element(
        observada.huecos.begin(), observada.huecos.end(),
        [](const Hueco& a, const Hueco& b) { return a.hasta - a.desde < b.hasta - b.desde; });
    dudas.push_back(Cuantos(observada.huecos.size(), "hueco", "huecos") + " de más de " +
                    Numero(FactorDeHueco * observada.paso) + " min (lo usual son " + Numero(observada.paso) +
                    " min); el mayor va del minuto " + Numero(mayor.desde) + " al " + Numero(mayor.hasta) +
                    ". En ellos no se compara nada.");
}

void DiceVentanas(const Observacion& o, const std::vector<Punto>& puntos, std::vector<std::string>& dudas)
{
    std::vector<bool> usada(o.ventanas.size());
    for (const Punto& p : puntos)
        if (const int cual = VentanaDe(o.ventanas, p.minuto); cual >= 0)
            usada[static_cast<std::size_t>(cual)] = true;
    for (std::size_t i = 0; i < usada.size(); ++i)
        if (!usada[i])
            dudas.push_back("La ventana de " + Numero(o.ventanas[i].desde) + " a " +
                            Numero(o.ventanas[i].hasta) + " min no tiene ninguna lectura suya.");
}

}  // namespace

std::optional<double> CaudalDeNivel(const Observacion& o, double nivel)
{
    const auto& curva = o.curva;
    if (curva.size() < 2 || !(nivel >= curva.front().nivel && nivel <= curva.back().nivel)) return {};
    const auto arriba =
        std::find_if(curva.begin() + 1, curva.end() - 1, [&](const auto& p) { return nivel <= p.nivel; });
    return Entre(*(arriba - 1), *arriba, nivel, o.interpolacion != "lineal");
}

std::string ReparoDeCurva(std::span<const PuntoDeCurva> curva)
{
    if (curva.size() < 2) return "La curva de gasto necesita al menos dos puntos.";
    for (std::size_t i = 1; i < curva.size(); ++i) {
        const std::string lugar =
            "El punto " + std::to_string(i + 1) + " de la curva de gasto, " + Numero(curva[i].nivel) + " m, ";
        if (curva[i].nivel <= curva[i - 1].nivel) return lugar + "no está más alto que el anterior.";
        if (curva[i].caudal < curva[i - 1].caudal) return lugar + "tiene menos caudal que el anterior.";
    }
    return {};
}

double PasoUsual(std::span<const Punto> puntos)
{
    if (puntos.size() < 2) return 0;
    std::vector<double> pasos;
    for (std::size_t i = 1; i < puntos.size(); ++i)
        pasos.push_back(puntos[i].minuto - puntos[i - 1].minuto);
    const auto medio = pasos.begin() + static_cast<std::ptrdiff_t>((pasos.size() - 1) / 2);
    std::nth_element(pasos.begin(), medio, pasos.end());
    return *medio;
}

std::vector<Hueco> HuecosDe(std::span<const Punto> puntos)
{
    std::vector<Hueco> huecos;
    const double mayor = FactorDeHueco * PasoUsual(puntos);
    for (std::size_t i = 1; i < puntos.size(); ++i)
        if (puntos[i].minuto - puntos[i - 1].minuto > mayor)
            huecos.push_back({puntos[i - 1].minuto, puntos[i].minuto});
    return huecos;
}

Observada ObservadaDe(const Observacion& o)
{
    Observada observada;
    if (o.magnitud == "nivel")
        TomaNiveles(o, observada);
    else
        observada.puntos = o.puntos;
    observada.paso = PasoUsual(observada.puntos);
    observada.huecos = HuecosDe(observada.puntos);
    DiceHuecos(observada, observada.dudas);
    const auto negativos = std::count_if(observada.puntos.begin(), observada.puntos.end(),
                                         [](const Punto& p) { return p.valor < 0; });
    if (negativos > 0)
        observada.dudas.push_back(
            Cuantos(static_cast<std::size_t>(negativos), "caudal es negativo.", "caudales son negativos."));
    if (o.promedio > 0 && observada.paso > 0 && o.promedio > observada.paso)
        observada.dudas.push_back("Cada valor es el promedio de " + Numero(o.promedio) +
                                  " min, más que los " + Numero(observada.paso) +
                                  " min que pasan entre lecturas: los promedios se superponen.");
    DiceVentanas(o, observada.puntos, observada.dudas);
    return observada;
}

}  // namespace calibration
