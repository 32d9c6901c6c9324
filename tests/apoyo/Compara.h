// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "model/Falla.h"

namespace apoyo {

/// Compares two texts whole. Where they differ the failure shows the first differing line of both, with what
/// doesn't print made visible, and how many lines and bytes each has.
///
///     EXPECT_TRUE(MismoTexto(esperado, s.TextoPizarra));
::testing::AssertionResult MismoTexto(std::string_view esperado, std::string_view obtenido);

/// Compares a text with a file, which must be there.
::testing::AssertionResult MismoQueArchivo(const std::filesystem::path& esperado, std::string_view obtenido);

/// Bytes of a real file; throws where it can't be read.
std::string BytesDeArchivo(const std::filesystem::path& camino);

/// Number of the fault that a routine ends with, 0 where it ends without one.
template <typename F>
int NumeroDeFalla(F&& rutina)
{
    try {
        std::forward<F>(rutina)();
    } catch (const model::Falla& falla) {
        return static_cast<int>(falla.numero);
    }
    return 0;
}

/// An empty directory on the real disk that goes with the object.
class CarpetaTemporal {
  public:
    CarpetaTemporal();
    ~CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;
    [[nodiscard]] const std::filesystem::path& Camino() const { return camino; }
    [[nodiscard]] std::string Ruta(std::string_view nombre) const { return (camino / nombre).string(); }

  private:
    std::filesystem::path camino;
};

}  // namespace apoyo
