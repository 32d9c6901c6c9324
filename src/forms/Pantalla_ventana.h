// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

// Windows that fit their screen: controls that scroll, what is outside brought back.
namespace forms {

/// Makes sure that a window can be as small as the room for it [pixels, without its frame]. Where its
/// controls want more, they scroll; the last row of the window, that of its buttons, stays in sight below
/// them. Once they do, they stay so: where there is room again, nothing is seen of it.
void CabeEn(QWidget& ventana, QSize lugar);

/// The same for a window of the desktop and the screen that it will open on.
void CabeEnPantalla(QWidget& ventana);

/// Brings a window of the desktop, as far as it is outside its screen, back into it: smaller first, then
/// elsewhere.
void TraeALaPantalla(QWidget& ventana);

}  // namespace forms
