// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// What the bytes of an image file say of themselves, before anybody makes a picture of them.
namespace editor {

/// Whether the file ends before its picture does. JPEG, PNG, GIF, BMP and Windows metafiles tell; of anything
/// else nothing is known, and it counts as whole.
bool EstaIncompleta(std::string_view bytes);

/// Whether it is an enhanced metafile (EMF), which bears the name .wmf now and then and is another format.
bool EsMetarchivoMejorado(std::string_view bytes);

}  // namespace editor
