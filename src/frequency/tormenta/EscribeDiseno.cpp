// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>

#include "checks/Json.h"
#include "frequency/Cifras.h"
#include "frequency/tormenta/Diseno.h"

namespace frequency {
namespace {

using checks::Citado;

constexpr double MinutosPorHora = 60, Cien = 100;
constexpr int Decimales = 2;

std::string Celdas(const PasoDeDiseno& p)
{
    constexpr std::size_t Ancho = 12;
    std::string t;
    for (const std::string& celda :
         {Cifras(p.hasta), Con(p.lamina, Decimales), Con(p.acumulada, Decimales),
          Con(p.intensidad, Decimales), std::to_string(p.porcentaje), Con(p.motor, Decimales)})
        t += Derecha(celda, Ancho);
    return t + "\n";
}

}  // namespace

std::vector<PasoDeDiseno> PasosDe(const Diseno& d)
{
    std::vector<PasoDeDiseno> pasos;
    double acumulada = 0;
    for (std::size_t i = 0; i < d.reparto.laminas.size(); ++i) {
        const double lamina = d.reparto.laminas[i];
        acumulada += lamina;
        pasos.push_back({.hasta = d.paso * static_cast<double>(i + 1),
                         .lamina = lamina,
                         .acumulada = acumulada,
                         .intensidad = lamina * MinutosPorHora / d.paso,
                         .porcentaje = d.plan.porcentajes[i],
                         .motor = d.motor[i]});
    }
    return pasos;
}

std::string TextoDelRedondeo(const Diseno& d)
{
    return "lo caído se aparta hasta " + Con(Cien * d.plan.desvio, 1) + " % de la lámina (" +
           Con(d.lamina * d.plan.desvio, 1) + " mm)";
}

std::string TextoDe(const Diseno& d)
{
    std::string t = d.origen + "\n  " + std::string(d.patron->formula) + "\n  " +
                    std::string(d.patron->fuente) + "\n  " + std::string(d.patron->limites) + "\n\n";
    t += "     t [min]    P [mm]    suma [mm]    i [mm/h]  entera [%]  corrida [mm]\n";
    for (const PasoDeDiseno& p : PasosDe(d))
        t += Celdas(p);
    t += "\nEn una distribución personal, de porcentajes enteros, " + TextoDelRedondeo(d) + ".\n";
    for (const std::string& aviso : d.avisos)
        t += aviso + "\n";
    return t;
}

std::string CsvDe(const Diseno& d)
{
    std::string t = "minutos,lamina,acumulada,intensidad,porcentaje,corrida\n";
    for (const PasoDeDiseno& p : PasosDe(d))
        t += Exacto(p.hasta) + "," + Exacto(p.lamina) + "," + Exacto(p.acumulada) + "," +
             Exacto(p.intensidad) + "," + std::to_string(p.porcentaje) + "," + Exacto(p.motor) + "\n";
    return t;
}

std::string JsonDe(const Diseno& d)
{
    std::string t = "{\"patron\":" + Citado(d.patron->clave) + ",\"nombre\":" + Citado(d.patron->nombre) +
                    ",\"fuente\":" + Citado(d.patron->fuente) + ",\"origen\":" + Citado(d.origen) +
                    ",\"lamina\":" + EnJson(d.lamina) + ",\"paso\":" + EnJson(d.paso) +
                    ",\"desvio\":" + EnJson(d.plan.desvio) + ",\"durMin\":" + std::to_string(d.plan.durMin) +
                    ",\"durMax\":" + std::to_string(d.plan.durMax);
    t += ",\"avisos\":" + Arreglo(d.avisos, [](const std::string& x) { return Citado(x); });
    t += ",\"pasos\":" + Arreglo(PasosDe(d), [](const PasoDeDiseno& p) {
             return "{\"minutos\":" + EnJson(p.hasta) + ",\"lamina\":" + EnJson(p.lamina) +
                    ",\"intensidad\":" + EnJson(p.intensidad) +
                    ",\"porcentaje\":" + std::to_string(p.porcentaje) + ",\"corrida\":" + EnJson(p.motor) +
                    "}";
         });
    return t + "}\n";
}

}  // namespace frequency
