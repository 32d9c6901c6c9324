// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The state's name alone, for headers that only hand it on.

namespace model {
struct Siro;
}
