// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/Anfitrion.h"

// Messages and questions of one command, gathered where there are too many to be shown one by one.
namespace forms {

/// A message, and how often it came.
struct Recogido {
    model::Mensaje mensaje{};
    int veces = 1;
    bool operator==(const Recogido&) const = default;
};

/// What one command of the user's has told and asked so far. A damaged file can bring thousands of boxes in a
/// row: beyond the first ones messages are gathered for a list, equal ones as one, and a question that comes
/// back can be answered once for all.
class Recogida {
  public:
    static constexpr int DeAUno =
        5;  ///< messages that are shown one by one, and times that a question is asked plainly

    /// Takes a message in. Returns whether it is to be shown by itself; otherwise it has been gathered.
    bool SeMuestra(const model::Mensaje& mensaje);
    [[nodiscard]] bool HayRecogidos() const { return !recogidos.empty(); }
    /// Hands over what has been gathered, in the order in which it came first, and gathers anew.
    std::vector<Recogido> Saca();

    /// Counts a question that is about to be asked. Returns whether the answer to all of its kind is offered.
    bool OfreceTodas(const model::Mensaje& pregunta);
    void RespondeSiATodas(const model::Mensaje& pregunta) { siATodas.insert(pregunta.repetida); }
    [[nodiscard]] bool RespondidaATodas(const model::Mensaje& pregunta) const
    {
        return siATodas.contains(pregunta.repetida);
    }

  private:
    int mensajes = 0;
    std::vector<Recogido> recogidos{};
    std::map<std::pair<std::string, std::string>, std::size_t> lugares{};  ///< by title and text
    std::map<std::string, int> preguntas{};
    std::set<std::string> siATodas{};
};

/// A line for each message: how often it came where more than once, its title where it has one, its text with
/// line breaks as " / ". Lines end in CR LF.
std::string ComoTexto(const std::vector<Recogido>& recogidos);

}  // namespace forms
