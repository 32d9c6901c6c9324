// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "editor/lienzo/LienzoMeta.h"

// Windows metafiles (.wmf): a drawing as a sequence of records. The player reads them and tells a canvas what
// to draw, in the drawing's own logical units; it trusts no length and no index of the file.
namespace editor {

/// What the head of a metafile says.
struct MarcoMeta {
    RectanguloMeta ventana{};  ///< part of the logical plane that the picture shows
    int ancho = 0, alto = 0;   ///< size of the picture [pixels at 96 dpi], at least 1
};

/// Whether the bytes begin as a metafile does.
bool EsMetarchivo(std::string_view bytes);

/// Returns the frame of a metafile; nothing for what is none, or tells no size.
std::optional<MarcoMeta> MarcoDe(std::string_view bytes);

/// Plays a metafile from its first record to its last, or to the first damaged one, as long as `sigue`, asked
/// ahead of each, says so. Records that draw nothing that a picture shows are passed over. Returns false
/// where the bytes are no metafile.
bool Toca(
    std::string_view bytes, LienzoMeta& lienzo, const std::function<bool()>& sigue = [] { return true; });

/// Whether the records of a metafile come to the one that ends it.
bool TieneFin(std::string_view bytes);

}  // namespace editor
