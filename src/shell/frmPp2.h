// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace shell {

/// What the progress window shows. It can be closed at any time by its frame.
struct frmPp2 {
    bool abierta = false;
    std::string titulo{};
    std::string primero{}, segundo{};
    int porcentaje = 0;
};

}  // namespace shell
