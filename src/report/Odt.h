// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "report/Documento.h"

namespace report {

/// A document as an OpenDocument text (ISO/IEC 26300, version 1.3): headings with their levels, captions that
/// number themselves, tables whose heads are repeated, a table of contents that is filled in already, feet
/// with page numbers. The same document gives the same bytes.
std::string Odt(const Documento& d, const Dibujante& dibuja);

}  // namespace report
