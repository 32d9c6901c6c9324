// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Planes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "engine/modDistriPp.h"
#include "model/ArchivosTormenta.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace frequency {
namespace {

constexpr double MaximaLamina = 9999;  ///< of a row [mm]
constexpr int Cien = 100;

std::string Texto(double x)
{
    return model::NumeroATexto(x);
}

std::string Texto(std::size_t n)
{
    return model::NumeroATexto(static_cast<std::int32_t>(n));
}

/// "1 fila queda", "3 filas quedan": a count with what follows it.
std::string Cuenta(std::size_t n, const char* una, const char* varias)
{
    return Texto(n) + (n == 1 ? una : varias);
}

std::string TormentaDe(double d, double r)
{
    return Texto(d) + " min y " + Texto(r) + " años";
}

/// What was left out or came out alike, as the plan is filled.
struct Sobras {
    std::size_t enCero = 0, deMas = 0, iguales = 0, cruzadas = 0;
};

void Avisa(PlanDeTabla& plan, const Sobras& sobras)
{
    const auto avisa = [&](std::size_t n, const char* una, const char* varias) {
        if (n > 0) plan.avisos.push_back(Cuenta(n, una, varias));
    };
    avisa(sobras.enCero, " fila redondea a 0 mm y no se escribe: terminaría la serie.",
          " filas redondean a 0 mm y no se escriben: terminarían la serie.");
    avisa(sobras.deMas, " fila pasa de 9999 mm y no se escribe.",
          " filas pasan de 9999 mm y no se escriben.");
    avisa(sobras.iguales, " fila queda con la lámina entera de la duración anterior.",
          " filas quedan con la lámina entera de la duración anterior.");
    avisa(sobras.cruzadas, " lámina es menor que la de la recurrencia anterior: las curvas se cruzan.",
          " láminas son menores que las de la recurrencia anterior: las curvas se cruzan.");
}

/// Puts a row into the plan, or says why there can be none.
std::string Agrega(PlanDeTabla& plan, const FilaDeTormenta& fila, Sobras& sobras)
{
    const bool mismaR = !plan.filas.empty() && plan.filas.back().r == fila.r;
    if (!std::isfinite(fila.exacta) || fila.exacta < 0)
        return "No hay una lámina para " + TormentaDe(fila.d, fila.r) + ".";
    if (mismaR && fila.exacta < plan.filas.back().exacta)
        return "La lámina de " + TormentaDe(fila.d, fila.r) +
               " es menor que la de la duración anterior: las curvas no sirven para una tabla.";
    const double entera = std::round(fila.exacta);
    if (entera < 1) return ++sobras.enCero, std::string{};
    if (entera > MaximaLamina) return ++sobras.deMas, std::string{};
    if (mismaR && entera == plan.filas.back().p) ++sobras.iguales;
    plan.filas.push_back(fila);
    plan.filas.back().p = static_cast<std::int16_t>(entera);
    if (const double desvio = std::abs(entera - fila.exacta) / fila.exacta; desvio > plan.desvio) {
        plan.desvio = desvio;
        plan.peor = plan.filas.back();
    }
    return {};
}

/// The plan of a pattern that has been checked: n parts that add up to `suma`.
void Redondea(PlanDeDistribucion& plan, std::span<const double> laminas, double suma)
{
    std::vector<std::pair<double, std::size_t>> restos;
    for (const double x : laminas) {
        const double porcentaje = Cien * x / suma, entero = std::floor(porcentaje);
        restos.emplace_back(porcentaje - entero, plan.porcentajes.size());
        plan.porcentajes.push_back(static_cast<std::int16_t>(entero));
    }
    std::stable_sort(restos.begin(), restos.end(),
                     [](const auto& uno, const auto& otro) { return uno.first > otro.first; });
    const int faltan = Cien - std::accumulate(plan.porcentajes.begin(), plan.porcentajes.end(), 0);
    for (int i = 0; i < faltan; ++i)
        ++plan.porcentajes[restos[static_cast<std::size_t>(i)].second];
}

void MideRedondeo(PlanDeDistribucion& plan, std::span<const double> laminas, double suma)
{
    double acumulada = 0;
    int porcentaje = 0;
    std::size_t enCero = 0;
    for (std::size_t i = 0; i < laminas.size(); ++i) {
        acumulada += laminas[i];
        porcentaje += plan.porcentajes[i];
        plan.desvio = std::max(plan.desvio, std::abs(double{1} * porcentaje / Cien - acumulada / suma));
        if (plan.porcentajes[i] == 0 && laminas[i] > 0) ++enCero;
    }
    if (enCero > 0)
        plan.avisos.push_back(
            Cuenta(enCero, " período con lluvia redondea a 0 %: menos períodos la guardarían mejor.",
                   " períodos con lluvia redondean a 0 %: menos períodos la guardarían mejor."));
}

void PonValidez(PlanDeDistribucion& plan, double duracion)
{
    plan.durMin = model::DuracionesMinimas.front();
    for (const std::int16_t d : model::DuracionesMinimas)
        if (d <= duracion) plan.durMin = d;
    const auto* const hasta = std::find_if(model::DuracionesMaximas.begin(), model::DuracionesMaximas.end(),
                                           [&](std::int16_t d) { return d >= duracion; });
    plan.durMax = hasta == model::DuracionesMaximas.end() ? model::DuracionesMaximas.back() : *hasta;
    if (duracion > plan.durMax)
        plan.avisos.push_back("La tormenta dura más de 1440 min, la mayor validez que la tabla puede decir.");
}

}  // namespace

PlanDeTabla PlaneaTabla(const PedidoDeTabla& pedido)
{
    PlanDeTabla plan{.notas = SinComillas(pedido.notas)};
    Sobras sobras;
    std::vector<double> anteriores(pedido.duraciones.size(), 0.0);
    for (const std::int16_t r : pedido.recurrencias)
        for (std::size_t i = 0; i < pedido.duraciones.size(); ++i) {
            const std::int16_t d = pedido.duraciones[i];
            const FilaDeTormenta fila{.d = d, .r = r, .exacta = pedido.lamina(d, r)};
            plan.error = Agrega(plan, fila, sobras);
            if (!plan.error.empty()) return plan;
            if (fila.exacta < anteriores[i]) ++sobras.cruzadas;
            anteriores[i] = fila.exacta;
        }
    if (plan.filas.empty()) plan.error = "No queda ninguna tormenta para la tabla.";
    if (plan.filas.size() > static_cast<std::size_t>(model::MaximoDeFilas))
        plan.error = "Son " + Texto(plan.filas.size()) + " tormentas; una tabla admite 999.";
    Avisa(plan, sobras);
    return plan;
}

PlanDeDistribucion PlaneaDistribucion(std::span<const double> laminas, double duracion, std::string notas)
{
    PlanDeDistribucion plan{.notas = SinComillas(std::move(notas))};
    const double suma = std::accumulate(laminas.begin(), laminas.end(), 0.0);
    if (laminas.empty() || !(suma > 0) || !std::isfinite(suma)) {
        plan.error = "El patrón no tiene lluvia.";
        return plan;
    }
    if (laminas.size() > static_cast<std::size_t>(model::MaximoDeFilas)) {
        plan.error = "Son " + Texto(laminas.size()) + " períodos; una distribución admite 999.";
        return plan;
    }
    Redondea(plan, laminas, suma);
    MideRedondeo(plan, laminas, suma);
    PonValidez(plan, duracion);
    return plan;
}

std::vector<double> HietogramaDelMotor(const PlanDeDistribucion& plan, double total, double duracion,
                                       double paso)
{
    model::Siro s;
    s.Tormenta.PpTormenta = model::Simple(total);
    s.Tormenta.DurTormenta = model::Entero16(duracion);
    s.Tormenta.DistriPp = model::PrimeraPersonal;
    s.Pasos.PasoPp = model::Entero16(paso);
    const auto n = static_cast<std::int16_t>(plan.porcentajes.size());
    s.TablasDeLluvia.NroFilasTabla[1] = n;
    s.TablasDeLluvia.DisPerso.Dimensiona(3, n + 1);
    for (int j = 1; j <= n; ++j)
        s.TablasDeLluvia.DisPerso(1, j) = plan.porcentajes[static_cast<std::size_t>(j) - 1];
    engine::ConstruyeHietograma(s, engine::TablasPersonales::EnMemoria);
    std::vector<double> bloques;
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
        bloques.push_back(s.Tormenta.PpReal(j));
    return bloques;
}

std::string SinComillas(std::string texto)
{
    for (char& c : texto) {
        if (c == '"') c = '\'';
        if (c == '\r' || c == '\n') c = ' ';
    }
    return texto;
}

}  // namespace frequency
