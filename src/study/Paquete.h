// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Zip packages in memory: what is kept of a run, a document for a word processor. They go to the disk
// through model::Disco like everything else, whole or not at all. Format: PKWARE, APPNOTE.TXT 6.3.
namespace study {

/// A file of a package.
struct Pieza {
    std::string nombre{};  ///< UTF-8, "/" between its folders
    std::string bytes{};
    bool comprimida = true;  ///< deflated; otherwise its bytes stand in the package as they are
    bool operator==(const Pieza&) const = default;
};

inline constexpr std::size_t TopeDesempaquetado = std::size_t{64} << 20;  ///< [bytes], all pieces together

/// Bytes of a package of these pieces, in this order. The same pieces make the same bytes: no time of day
/// goes in. Names differ from one another. Throws std::bad_alloc alone.
std::string Empaqueta(const std::vector<Pieza>& piezas);

/// The pieces of a package, in their order. Throws Falla 75, whose note says what is wrong: that it is no
/// package, is damaged, is encrypted, or holds more than TopeDesempaquetado.
std::vector<Pieza> Desempaqueta(std::string_view paquete);

}  // namespace study
