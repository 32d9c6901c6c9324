// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Compara.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace apoyo {

namespace {

/// A line with its end, in quotes, blanks at the end and control bytes visible.
std::string Visible(std::string_view linea)
{
    constexpr std::string_view Cifras = "0123456789ABCDEF";
    std::string visible = "\"";
    for (const char c : linea) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\r')
            visible += "\\r";
        else if (c == '\n')
            visible += "\\n";
        else if (byte < 0x20 || byte == 0x7F)
            visible += {'\\', 'x', Cifras[byte >> 4], Cifras[byte & 15]};
        else
            visible += c;
    }
    return visible + "\"";
}

std::string_view LineaEn(std::string_view texto, std::size_t inicio)
{
    if (inicio >= texto.size()) return {};
    const std::size_t fin = texto.find('\n', inicio);
    return texto.substr(inicio, fin == std::string_view::npos ? fin : fin - inicio + 1);
}

auto CuentaLineas(std::string_view texto)
{
    return std::count(texto.begin(), texto.end(), '\n');
}

}  // namespace

::testing::AssertionResult MismoTexto(std::string_view esperado, std::string_view obtenido)
{
    if (esperado == obtenido) return ::testing::AssertionSuccess();
    const auto [e, o] = std::mismatch(esperado.begin(), esperado.end(), obtenido.begin(), obtenido.end());
    const std::string_view comun = esperado.substr(0, static_cast<std::size_t>(e - esperado.begin()));
    const std::size_t inicio = comun.rfind('\n') + 1;  // npos + 1 is 0
    return ::testing::AssertionFailure()
           << "line " << CuentaLineas(comun) + 1 << ", byte " << comun.size() - inicio + 1
           << " of it differs\n"
           << "  expected " << Visible(LineaEn(esperado, inicio)) << "\n"
           << "  obtained " << Visible(LineaEn(obtenido, inicio)) << "\n"
           << "expected " << CuentaLineas(esperado) << " line ends, " << esperado.size()
           << " bytes; obtained " << CuentaLineas(obtenido) << " line ends, " << obtenido.size() << " bytes";
}

::testing::AssertionResult MismoQueArchivo(const std::filesystem::path& esperado, std::string_view obtenido)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(esperado, error))
        return ::testing::AssertionFailure() << esperado << " isn't there";
    auto resultado = MismoTexto(BytesDeArchivo(esperado), obtenido);
    return resultado ? resultado : resultado << "\nexpected: " << esperado;
}

std::string BytesDeArchivo(const std::filesystem::path& camino)
{
    std::ifstream archivo(camino, std::ios::binary);
    if (!archivo) throw std::runtime_error("can't read " + camino.string());
    return {std::istreambuf_iterator<char>(archivo), {}};
}

CarpetaTemporal::CarpetaTemporal()
{
    std::random_device azar;
    const auto base = std::filesystem::canonical(std::filesystem::temp_directory_path());
    do {
        camino = base / ("siro-" + std::to_string(azar()));
    } while (!std::filesystem::create_directory(camino));
}

CarpetaTemporal::~CarpetaTemporal()
{
    std::error_code error;
    std::filesystem::remove_all(camino, error);
}

}  // namespace apoyo
