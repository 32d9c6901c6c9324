// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/SerieDeTormentas.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Resultados.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
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

std::vector<std::string> Componentes(const model::Resultados& r)
{
    if (r.Secuencia.empty()) return {};
    return {r.Secuencia.begin() + 1, r.Secuencia.end()};
}

const std::string& NombreComponente(const model::Siro& s)
{
    const std::int16_t n = s.Control.IndComp;
    if (n < 0 || static_cast<std::size_t>(n) >= s.Resultados.Secuencia.size())
        throw model::Falla{model::NumeroFalla::Subindice};
    return s.Resultados.Secuencia[static_cast<std::size_t>(n)];
}

void AcotaIndComp(model::Siro& s)
{
    if (s.Control.IndComp < 1 || s.Control.IndComp > s.Resultados.NroComponentes) s.Control.IndComp = 1;
}

void TomaComponente(model::Siro& s, const std::vector<std::string>& lista, std::size_t item)
{
    const auto lugar = std::find(lista.begin(), lista.end(), lista[item]) - lista.begin() + 1;
    s.Control.IndComp = static_cast<std::int16_t>(
        std::max<std::ptrdiff_t>(std::min<std::ptrdiff_t>(lugar, s.Resultados.NroComponentes), 1));
}

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
