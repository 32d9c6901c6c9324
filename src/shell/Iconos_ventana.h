// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <string_view>

// The drawings of the toolbar's buttons.
namespace shell {

/// The drawing of a button of the toolbar, by its key.
QIcon IconoDeBoton(std::string_view clave);
QIcon IconoDelPrograma();

}  // namespace shell
