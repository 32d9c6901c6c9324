// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string_view>

class QLabel;

namespace shell {

/// The splash: product and version.
class frmInicio_ventana : public QWidget {
  public:
    frmInicio_ventana();
    void Abre(std::string_view version);

  private:
    QLabel* lblVersion;
};

}  // namespace shell
