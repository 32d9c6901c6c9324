// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Documento.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace report {
namespace {

constexpr std::string_view FirmaPng = "\x89PNG\r\n\x1a\n", FirmaJpeg = "\xff\xd8\xff";

/// A whole number of so many bytes, the highest first.
double Grande(std::string_view bytes, std::size_t desde, std::size_t cuantos)
{
    double n = 0;
    for (std::size_t i = 0; i < cuantos; ++i)
        n = n * 256 + static_cast<unsigned char>(bytes[desde + i]);
    return n;
}

/// Goes from segment to segment up to the one that tells the size: markers C0..CF but C4, C8, CC (ITU-T
/// T.81, table B.1).
Medidas DeJpeg(std::string_view b)
{
    constexpr std::size_t HastaMedidas = 9;
    std::size_t i = 2;
    while (i + HastaMedidas <= b.size() && static_cast<unsigned char>(b[i]) == 0xFF) {
        const auto marca = static_cast<unsigned char>(b[i + 1]);
        if (marca >= 0xC0 && marca <= 0xCF && marca != 0xC4 && marca != 0xC8 && marca != 0xCC)
            return {Grande(b, i + 7, 2), Grande(b, i + 5, 2)};
        i += 2 + static_cast<std::size_t>(Grande(b, i + 2, 2));
    }
    return {0, 0};
}

/// The number that an attribute of the first element begins with; 0 where there is none.
double Atributo(std::string_view svg, std::string_view nombre)
{
    const std::size_t donde = svg.find(nombre);
    if (donde == std::string_view::npos) return 0;
    double n = 0;
    const char* const desde = svg.data() + donde + nombre.size();
    std::from_chars(desde, svg.data() + svg.size(), n);
    return n;
}

Medidas DeSvg(std::string_view b)
{
    const std::size_t desde = b.find("<svg");
    const std::string_view raiz = b.substr(desde, b.find('>', desde) - desde);
    const Medidas m{Atributo(raiz, " width=\""), Atributo(raiz, " height=\"")};
    if (m.ancho > 0 && m.alto > 0) return m;
    const std::size_t caja = raiz.find("viewBox=\"");
    if (caja == std::string_view::npos) return {0, 0};
    double n[4] = {};
    const char* p = raiz.data() + caja + 9;
    const char* const fin = raiz.data() + raiz.size();
    for (double& x : n) {
        while (p < fin && (*p == ' ' || *p == ','))
            ++p;
        p = std::from_chars(p, fin, x).ptr;
    }
    return {n[2], n[3]};
}

}  // namespace

std::string EnLlano(const Texto& texto)
{
    std::string t;
    for (const Tramo& tramo : texto)
        t += tramo.texto;
    return t;
}

std::string_view TipoDeImagen(std::string_view bytes)
{
    if (bytes.starts_with(FirmaPng)) return "image/png";
    if (bytes.starts_with(FirmaJpeg)) return "image/jpeg";
    constexpr std::size_t Comienzo = 4096;
    if (bytes.substr(0, Comienzo).find("<svg") != std::string_view::npos) return "image/svg+xml";
    return {};
}

Medidas MedidasDeImagen(std::string_view bytes)
{
    constexpr std::size_t HastaAlto = 24;
    const std::string_view tipo = TipoDeImagen(bytes);
    if (tipo == "image/png" && bytes.size() >= HastaAlto) return {Grande(bytes, 16, 4), Grande(bytes, 20, 4)};
    if (tipo == "image/jpeg") return DeJpeg(bytes);
    if (tipo == "image/svg+xml") return DeSvg(bytes);
    return {0, 0};
}

}  // namespace report
