// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "report/Documento.h"

// Parts of an OpenDocument text that hardly depend on what it says.
namespace report {

/// Namespaces of the root elements.
extern const std::string_view EspaciosOdt;

/// styles.xml: styles of paragraphs, numbers of headings, the page with its foot.
std::string EstilosOdt(const Documento& d);
/// meta.xml: title, author, date.
std::string MetaOdt(const Documento& d);
/// Styles of text by its manner, of tables and pictures: what content.xml needs besides.
std::string EstilosDeContenido();
/// Name of the style of a stretch; empty: plain.
std::string EstiloDe(const Tramo& tramo);

}  // namespace report
