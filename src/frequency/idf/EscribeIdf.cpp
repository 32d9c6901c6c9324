// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/idf/EscribeIdf.h"

#include <algorithm>
#include <cmath>

#include "checks/Json.h"
#include "frequency/Cifras.h"
#include "model/Texto.h"

namespace frequency::idf {
namespace {

using checks::Citado;

constexpr std::size_t AnchoDuracion = 14, AnchoLamina = 8, MaxCruces = 10;
constexpr int DecimalesDeLluvia = 1;

std::string TextoDeOrigen(const Curvas& c)
{
    std::string t;
    for (const LeyDeDuracion& l : c.leyes) {
        t += "  " + Derecha(Cifras(l.duracion), 5) + " min: " + std::string(l.ley->nombre) + ", ";
        for (std::size_t i = 0; i < l.ley->cuantos; ++i)
            t += (i > 0 ? ", " : "") + std::string(l.ley->parametros[i].simbolo) + " " + Cifras(l.p[i]);
        t += ", de " + std::to_string(l.anios) + " años\n";
    }
    if (!t.empty()) t = "Leyes de los máximos\n" + t + "\n";
    if (c.desagregacion != nullptr)
        t += "Desagregación\n  " + std::string(c.desagregacion->nombre) + ": " +
             std::string(c.desagregacion->formula) + "\n\n";
    return t;
}

std::string TextoDeFamilia(const Curvas& c)
{
    if (c.ajuste.familia == nullptr) return {};
    const Familia& f = *c.ajuste.familia;
    std::string t = "Curvas\n  " + std::string(f.nombre) + ": " + std::string(f.formula) + "\n";
    for (const CoeficientesDeT& k : c.ajuste.coeficientes)
        t += "  " + (k.recurrencia > 0 ? Derecha(Cifras(k.recurrencia), 6) + " años: " : std::string()) +
             TextoDeCoeficientes(f, k.c) + "\n";
    const std::string calidad = TextoDeCalidad(c);
    return t + (calidad.empty() ? "" : "  " + calidad + "\n") + "\n";
}

std::string TextoDeNotas(const Curvas& c, const TablaDeLaminas& tabla)
{
    std::string t;
    for (const std::string& aviso : c.avisos)
        t += "  " + aviso + "\n";
    if (!t.empty()) t = "A tener en cuenta\n" + t + "\n";
    const std::vector<std::string> cruces = Cruces(tabla);
    t += "Control de cruces\n";
    if (cruces.empty()) t += "  La lámina crece con la duración y con la recurrencia en toda la tabla.\n";
    for (std::size_t i = 0; i < std::min(cruces.size(), MaxCruces); ++i)
        t += "  " + cruces[i] + "\n";
    if (cruces.size() > MaxCruces) t += "  Y " + std::to_string(cruces.size() - MaxCruces) + " más.\n";
    return t + "\n";
}

std::string TextoDeTabla(const TablaDeLaminas& tabla, bool intensidades)
{
    std::string t = intensidades ? "Intensidad [mm/h]" : "Lámina [mm]";
    t += " por duración [min] y recurrencia [años]\n  " + std::string(AnchoDuracion - 2, ' ');
    for (const auto r : model::Recurrencias)
        t += Derecha(std::to_string(r), AnchoLamina);
    t += "\n";
    for (std::size_t i = 0; i < tabla.size(); ++i) {
        t += Derecha(std::to_string(model::Duraciones[i]), AnchoDuracion);
        for (const double x : tabla[i])
            t += Derecha(Con(intensidades ? x * 60 / model::Duraciones[i] : x, DecimalesDeLluvia),
                         AnchoLamina);
        t += "\n";
    }
    return t;
}

std::string JsonDeLey(const LeyDeDuracion& l)
{
    std::string t = "{\"duracion\":" + EnJson(l.duracion) + ",\"ley\":" + Citado(l.ley->clave) +
                    ",\"recomendada\":" + (l.recomendada ? "true" : "false") + ",\"p0\":" + EnJson(l.p0) +
                    ",\"factor\":" + EnJson(l.factor) + ",\"anios\":" + std::to_string(l.anios) +
                    ",\"parametros\":{";
    for (std::size_t i = 0; i < l.ley->cuantos; ++i)
        t += (i > 0 ? "," : "") + Citado(l.ley->parametros[i].simbolo) + ":" + EnJson(l.p[i]);
    return t + "}}";
}

std::string JsonDeAjuste(const Curvas& c)
{
    const AjusteDeFamilia& a = c.ajuste;
    if (a.familia == nullptr) return "null";
    std::string t =
        "{\"familia\":" + Citado(a.familia->clave) + ",\"formula\":" + Citado(a.familia->formula) +
        ",\"coeficientes\":" + Arreglo(a.coeficientes, [&](const CoeficientesDeT& k) {
            std::string suyo =
                k.recurrencia > 0 ? "{\"recurrencia\":" + EnJson(k.recurrencia) + "," : std::string("{");
            for (std::size_t i = 0; i < a.familia->cuantos; ++i)
                suyo +=
                    (i > 0 ? "," : "") + Citado(a.familia->coeficientes[i].simbolo) + ":" + EnJson(k.c[i]);
            return suyo + "}";
        });
    if (!a.ajustadas.empty())
        t += ",\"r2\":" + EnJson(a.calidad.r2) + ",\"errorMedio\":" + EnJson(a.calidad.errorMedio) +
             ",\"errorMaximo\":" + EnJson(a.calidad.errorMaximo);
    return t + "}";
}

std::string JsonDePuntos(const Curvas& c)
{
    std::string t = "[";
    for (std::size_t j = 0; j < c.puntos.size(); ++j) {
        const Punto& p = c.puntos[j];
        t += std::string(j > 0 ? "," : "") + "{\"duracion\":" + EnJson(p.duracion) +
             ",\"recurrencia\":" + EnJson(p.recurrencia) + ",\"intensidad\":" + EnJson(p.intensidad);
        if (!c.ajuste.ajustadas.empty()) t += ",\"ajustada\":" + EnJson(c.ajuste.ajustadas[j]);
        t += "}";
    }
    return t + "]";
}

}  // namespace

std::string TextoDeCoeficientes(const Familia& familia, const Coeficientes& c)
{
    std::string t;
    for (std::size_t i = 0; i < familia.cuantos; ++i)
        t += (i > 0 ? ", " : "") + std::string(familia.coeficientes[i].simbolo) + " " + Cifras(c[i]);
    return t;
}

std::string TextoDeCalidad(const Curvas& curvas)
{
    const AjusteDeFamilia& a = curvas.ajuste;
    if (a.ajustadas.empty()) return {};
    const Punto& peor = curvas.puntos[a.calidad.donde];
    return "R2 " + Con(a.calidad.r2, 5) + "; error medio " + Con(100 * a.calidad.errorMedio, 2) +
           " %; el mayor, " + Con(100 * a.calidad.errorMaximo, 1) + " % a los " + Cifras(peor.duracion) +
           " min y " + Cifras(peor.recurrencia) + " años";
}

std::string TextoDe(const Curvas& curvas)
{
    const TablaDeLaminas tabla = TablaDe(curvas);
    std::string t = TextoDeOrigen(curvas) + TextoDeFamilia(curvas);
    if (curvas.reduccion != nullptr)
        t += "Reducción areal\n  " + std::string(curvas.reduccion->nombre) + ": KA " +
             Con(FactorAreal(curvas), 4) + "\n\n";
    return t + TextoDeNotas(curvas, tabla) + TextoDeTabla(tabla, false) + "\n" + TextoDeTabla(tabla, true);
}

std::string JsonDe(const Curvas& curvas)
{
    const TablaDeLaminas tabla = TablaDe(curvas);
    const auto texto = [](const std::string& x) { return Citado(x); };
    const auto entero = [](int x) { return std::to_string(x); };
    std::string t = "{\"leyes\":" + Arreglo(curvas.leyes, JsonDeLey) + ",\"desagregacion\":";
    t += curvas.desagregacion == nullptr ? "null" : Citado(curvas.desagregacion->clave);
    t += ",\"curvas\":" + JsonDeAjuste(curvas) + ",\"reduccion\":";
    t += curvas.reduccion == nullptr ? "null" : Citado(curvas.reduccion->clave);
    t += ",\"KA\":" + EnJson(FactorAreal(curvas)) + ",\"avisos\":" + Arreglo(curvas.avisos, texto) +
         ",\"cruces\":" + Arreglo(Cruces(tabla), texto) + ",\"puntos\":" + JsonDePuntos(curvas);
    t += ",\"duraciones\":" + Arreglo(model::Duraciones, entero) +
         ",\"recurrencias\":" + Arreglo(model::Recurrencias, entero);
    return t + ",\"laminas\":" + Arreglo(tabla, [](const auto& fila) { return Arreglo(fila, EnJson); }) +
           "}\n";
}

std::string CsvDe(const Curvas& curvas)
{
    std::string t = "duracion,recurrencia,lamina,intensidad\n";
    for (const auto d : model::Duraciones)
        for (const auto T : model::Recurrencias)
            t += std::to_string(d) + "," + std::to_string(T) + "," + Exacto(Lamina(curvas, d, T)) + "," +
                 Exacto(Intensidad(curvas, d, T)) + "\n";
    return t;
}

}  // namespace frequency::idf
