// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Json.h"

namespace checks {

std::string Citado(std::string_view texto)
{
    constexpr std::string_view Hexa = "0123456789abcdef";
    std::string citado = "\"";
    for (const char c : texto) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (citado += '\\') += c;
        else if (byte < 0x20)
            ((citado += "\\u00") += Hexa[byte >> 4]) += Hexa[byte & 15];
        else
            citado += c;
    }
    return citado += '"';
}

}  // namespace checks
