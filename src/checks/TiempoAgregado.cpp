// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/TiempoAgregado.h"

#include <algorithm>
#include <cmath>

namespace checks {

namespace {

constexpr float TopeN0Dur = 30000;  // of the configuration's box [min]
constexpr int TopeMinutos = 32767;
constexpr float Redondeo = 10;  // [min]

/// First step at which a component's outflow is at its greatest; 0 where it has none. What a reach has
/// shifted beyond the run's last step counts: it stands behind it in the row.
int PasoDelPico(const model::Resultados& r, int fila)
{
    const float* q = r.QSale.Fila(fila);
    const int paso = static_cast<int>(std::max_element(q + 1, q + r.QSale.TopeColumna() + 1) - q);
    return q[paso] > 0 ? paso : 0;
}

std::vector<float> Picos(const model::Resultados& r)
{
    std::vector<float> picos(static_cast<std::size_t>(r.NroComponentes) + 1);
    for (int f = 1; f <= r.NroComponentes; ++f)
        picos[static_cast<std::size_t>(f)] = r.QMax(f, 1);
    return picos;
}

int UltimoPico(const model::Resultados& r)
{
    int ultimo = 0;
    for (int f = 1; f <= r.NroComponentes; ++f)
        ultimo = std::max(ultimo, PasoDelPico(r, f));
    return ultimo;
}

bool Sirve(const engine::Calculo& c)
{
    return c.fin == engine::FinCalculo::Completo && !HayPicoAlFinal(c.Resultados);
}

}  // namespace

bool PicoAlFinal(const model::Resultados& r, int fila)
{
    return r.NroPasosQ > 1 && PasoDelPico(r, fila) >= r.NroPasosQ;
}

bool HayPicoAlFinal(const model::Resultados& r)
{
    for (int f = 1; f <= r.NroComponentes; ++f)
        if (PicoAlFinal(r, f)) return true;
    return false;
}

TiempoAgregado TiempoQueAlcanza(const model::Red& red, const model::Tormenta& tormenta, model::Pasos pasos,
                                const model::TablasDeLluvia& tablas, engine::Memoria& memoria)
{
    const auto corre = [&](float minutos) {
        pasos.N0Dur = minutos;
        return engine::Calcula(red, tormenta, pasos, tablas, memoria);
    };
    // the last step may begin just ahead of the end, and the end is rounded up to a step
    const auto cabe = static_cast<float>(TopeMinutos - tormenta.DurTormenta - 2 * pasos.PasoPp);
    const float tope = std::floor(std::min(TopeN0Dur, cabe) / Redondeo) * Redondeo;
    const float ahora = pasos.N0Dur;
    float largo = std::max({ahora, static_cast<float>(tormenta.DurTormenta) / 4, Redondeo});
    while (largo < tope) {
        largo = std::min(tope, std::ceil(2 * largo / Redondeo) * Redondeo);
        const engine::Calculo larga = corre(largo);
        if (!Sirve(larga)) continue;
        const int hasta = (UltimoPico(larga.Resultados) + 1) * pasos.PasoQ;
        const float justo = std::ceil(static_cast<float>(hasta - tormenta.DurTormenta) / Redondeo) * Redondeo;
        if (justo > ahora && justo < largo) {
            const engine::Calculo corta = corre(justo);
            if (Sirve(corta)) return {true, justo, Picos(corta.Resultados)};
        }
        return {true, largo, Picos(larga.Resultados)};
    }
    return {false, tope, {}};
}

}  // namespace checks
