// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace forms {

/// A double quote ends a text in the program's files, which know no way around it: whatever is typed, pasted
/// or dropped into a field of any window gets a single one in its place. Fields are met as they are shown for
/// the first time. Left alone are those where files are chosen, whose names may bear one.
class SinComillas : public QObject {
  public:
    explicit SinComillas(QObject& duenno);
    bool eventFilter(QObject* objeto, QEvent* evento) override;
};

}  // namespace forms
