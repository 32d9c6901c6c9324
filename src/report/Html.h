// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "report/Documento.h"

namespace report {

/// A document as one HTML file that needs nothing beside it: style, pictures and table of contents inside,
/// pages for paper. The same document gives the same bytes. A figure that `dibuja` makes nothing of says so.
std::string Html(const Documento& d, const Dibujante& dibuja);

}  // namespace report
