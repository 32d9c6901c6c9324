// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/Balance.h"
#include "checks/Corrido.h"
#include "checks/Hallazgo.h"
#include "checks/TiempoAgregado.h"

namespace checks {

/// What a rule measures against.
enum class Umbral : std::uint8_t {
    ErrorDeBalance,
    CortadoAlFinal,
    PasosDeSubida,
    InicioDeSubida,
    VolumenDeFlotante,
    AlturaDeTope,
};

struct FilaUmbral {
    Umbral umbral;
    double valor;
    std::string_view unidad;
    std::string_view que;
};

// clang-format off
inline constexpr auto Umbrales = std::to_array<FilaUmbral>({
    {Umbral::ErrorDeBalance,    0.1,      "%",  "of what enters: water that isn't accounted for"},
    {Umbral::CortadoAlFinal,    5,        "%",  "of what enters the basin: water that the end of the run cuts off"},
    {Umbral::PasosDeSubida,     5,        "",   "output steps that a rise takes at least: by fewer its peak is cut"},
    {Umbral::InicioDeSubida,    0.01,     "",   "of the peak above the first flow: where a rise begins"},
    {Umbral::VolumenDeFlotante, 16777216, "m3", "2^24: a larger 32-bit volume has lost its last unit"},
    {Umbral::AlturaDeTope,      0.001,    "m",  "by which water has to be above a top"},
});
// clang-format on

constexpr double Valor(Umbral umbral)
{
    return Umbrales[static_cast<std::size_t>(umbral)].valor;
}

/// A finding, and how bad it is among those of its rule: what the same in several storms is told by.
struct HallazgoMedido {
    Hallazgo hallazgo{};
    double magnitud = 0;
};

/// Who is asked, once and only if a peak stands at the last step, for the added time that suffices.
using PideTiempo = std::function<TiempoAgregado()>;

/// The findings of one run by the rules 101 to 121, in the order of the rules and of the components; empty
/// where there is nothing to say. Reads the run and nothing else. `balance`: BalanceDe(c), empty where the
/// run has no results. Without `tiempo` the remedy of a peak at the last step names no time. A run that
/// didn't go to its end is judged by its network and by what it said.
std::vector<HallazgoMedido> BuscaAvisos(const Corrido& c, const Balance& balance, const PideTiempo& tiempo);

/// The findings of a run by its own: errors first, then warnings, then notes. `tormenta`, `pasos` and
/// `tablas` are those that `calculo` was made of; longer runs are made of them where a peak stands at the
/// last step.
std::vector<Hallazgo> AvisosDeCorrida(const model::Red& red, const model::Tormenta& tormenta,
                                      const model::Pasos& pasos, const model::TablasDeLluvia& tablas,
                                      const engine::Calculo& calculo);

/// Whether what isn't accounted for is a larger share than ErrorDeBalance; whether it is more, too, than the
/// run's own numbers leave open, which is a finding.
bool SobreElLimite(const RenglonBalance& b);
bool SeDescuadra(const RenglonBalance& b);

/// What to do where a peak stands at the last step: the time that suffices instead of `ahora` [min], or that
/// none does.
std::string RemedioDePico(const TiempoAgregado& t, float ahora);

/// Errors first, then warnings, then notes; what is of one severity stays in its order.
void OrdenaPorGravedad(std::vector<Hallazgo>& hallazgos);

}  // namespace checks
