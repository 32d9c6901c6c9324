// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "editor/frmUEHs.h"
#include "forms/Entorno_ventana.h"
#include "shell/Diario.h"
#include "shell/EscribaDeDiario.h"

namespace shell {

/// Keeps this program's journal: looks now and then, while the user does something, whether anything isn't
/// saved and has changed, and has it written beside the windows' thread. The file goes when all is saved or
/// given up by the user. What the journals of programs that run no more hold can be asked of it.
class GuardaDeDiario : public QObject {
  public:
    /// `unaCarpeta`: where all programs of the user's keep theirs; empty: none is kept. The editor's record
    /// outlives it.
    GuardaDeDiario(forms::Entorno& alrededor, const editor::frmUEHs& unEditor, std::string unaCarpeta);
    /// Writes down what isn't saved even now: nobody has been asked about it.
    ~GuardaDeDiario() override;
    GuardaDeDiario(const GuardaDeDiario&) = delete;
    GuardaDeDiario& operator=(const GuardaDeDiario&) = delete;

    /// Writes at once, and waits for it. Returns whether something isn't saved and all of it is on the disk.
    bool EscribeYa();
    /// The journal can't be written in its folder any more, or can be again: an empty text.
    std::function<void(const std::string& carpeta)> AlFallar = [](const std::string&) {};

    /// Journals of programs that run no more. They are this program's until it lets go of them.
    std::vector<DiarioHallado> Hallados();
    void Suelta(const std::string& hallado) { candados.erase(hallado); }

  protected:
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

  private:
    [[nodiscard]] bool HayDibujo() const;
    [[nodiscard]] Diario Presente();
    void QuitaCandadosSueltos();
    void Mira();
    bool Toma(const std::string& cual);

    forms::Entorno& entorno;
    const editor::frmUEHs& red;
    std::string carpeta, ruta{};
    QTimer turno{};
    Diario escrito{};                            ///< what the file holds, or is to hold; empty: no file
    std::optional<editor::RedGuardada> vista{};  ///< the network that was written down last
    bool fallo = false;                          ///< told that it can't be written
    std::map<std::string, std::unique_ptr<QLockFile>> candados{};  ///< of journals, by their paths
    std::unique_ptr<EscribaDeDiario> escriba{};
};

}  // namespace shell
