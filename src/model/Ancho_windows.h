// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Windows' own texts, UTF-16, from UTF-8 and back. What isn't valid becomes U+FFFD: nothing throws.
namespace model {

std::wstring Ancho(std::string_view utf8);
std::string Utf8(std::wstring_view ancho);

}  // namespace model
