// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/SerieDeTormentas.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "model/VidaProyecto.h"

namespace results {

namespace {

constexpr std::int16_t Tildada = 1;

/// Whether a value has a box, and that box isn't ticked.
template <std::size_t N>
bool SinTilde(const std::array<std::int16_t, N>& valores, const std::array<std::int16_t, N>& casillas,
              std::int16_t valor)
{
    const auto hallado = std::find(valores.begin(), valores.end(), valor);
    return hallado != valores.end() &&
           casillas[static_cast<std::size_t>(hallado - valores.begin())] != Tildada;
}

}  // namespace

void FiltroTormenta(model::Siro& s, bool& Excluida)
{
    model::TomaTormenta(s.Tormenta, s.Serie, s.Serie.IndSerie);
    if (TormentaNula(s)) return;
    Excluida = s.Tormenta.DurTormenta < s.Pasos.PasoPp ||
               SinTilde(model::Duraciones, s.frmConfigura.CheckD, s.Tormenta.DurTormenta) ||
               SinTilde(model::Recurrencias, s.frmConfigura.CheckR, s.Tormenta.RecTormenta);
}

bool TormentaNula(const model::Siro& s)
{
    return s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0;
}

std::string ArchivoDeProyecto(const model::Siro& s)
{
    return model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto).append(model::TerminacionConf);
}

}  // namespace results
