// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Verbos.h"

#include <algorithm>
#include <array>

#include "batch/CorridaLote.h"

namespace batch {

namespace {

constexpr std::string_view UsoVerifica =
    R"(Uso: siro-lote verifica [--json]

Corre los casos publicados y dice, de cada uno, la fuente, la cifra impresa, la del programa, el desvío y la
tolerancia.

  --json                  en JSON, con las series para un gráfico
  --ayuda, --help         este texto

Estado de salida: 0 todos están dentro de la tolerancia; 1 alguno no, o no se pudo escribir; 2 la línea de órdenes
                  es errónea.
)";

constexpr auto Verbos = std::to_array<VerboSinCorrida>({
    {"verifica", UsoVerifica, CorreVerifica},
});

bool PideAyuda(std::string_view palabra)
{
    return palabra == "--help" || palabra == "-h" || palabra == "--ayuda";
}

}  // namespace

const VerboSinCorrida* VerboDe(int argc, const char* const* argv)
{
    if (argc < 2) return nullptr;
    const auto* verbo = std::find_if(Verbos.begin(), Verbos.end(),
                                     [&](const VerboSinCorrida& v) { return v.nombre == argv[1]; });
    return verbo == Verbos.end() ? nullptr : verbo;
}

int CorreVerbo(const VerboSinCorrida& verbo, Palabras palabras, const Salidas& salidas)
{
    if (std::any_of(palabras.begin(), palabras.end(), PideAyuda))
        return Muestra(salidas, verbo.uso) ? EstadoCompleto : EstadoInterrumpido;
    std::string motivo;
    const int estado = verbo.corre(palabras, salidas, motivo);
    if (motivo.empty()) return estado;
    salidas.Errores("siro-lote: " + motivo + "\n\n");
    salidas.Errores(verbo.uso);
    return EstadoOrdenErronea;
}

}  // namespace batch
