// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"
#include "model/Red.h"
#include "model/SiroDeclarado.h"
#include "shell/Inicio.h"
#include "shell/MDIForm1.h"

// Search of whatever can be asked of the program by a few letters of its name. Rules only; texts are in
// Spanish, UTF-8.
namespace shell {

/// Something that can be found and done.
struct Candidato {
    std::string texto{};    ///< what is sought
    std::string clase{};    ///< of what kind it is, shown at its side
    std::string detalle{};  ///< its keys, its folder
    std::string clave{};    ///< by which it is known again another day
    std::string motivo{};   ///< why it can't be done now; empty: it can
    int turno = 0;          ///< among equals the lower goes first
    std::function<void()> hace = [] {};
};

/// A text as it is compared: lower case, without accents, tildes and diaereses, and where its words begin: at
/// its start, behind what is neither letter nor digit, at a capital behind a small letter, where letters turn
/// into digits or back.
struct Plegado {
    std::string letras{};
    std::vector<std::uint8_t> empieza{};  ///< of each byte, whether a word begins there
};
Plegado Pliega(std::string_view texto);

/// How well a word that is typed, folded, fits a text; negative: not at all. Its letters stand in the text in
/// this order: each behind the one before, further on in the same word, or at the start of a later word.
/// Starts of words and letters in a row count most; of all ways to find it the best one counts.
int Encaja(std::string_view palabra, const Plegado& texto);

/// Candidates in the order in which they are offered where nothing has been typed.
class Buscador {
  public:
    /// `recientes`: keys of what was chosen of late, the last one first.
    Buscador(std::vector<Candidato> unos, const std::vector<std::string>& recientes);

    /// Places of those that every word of the text finds, best first; the same on every call. A word is
    /// sought in a candidate's text, else at the start of its kind's words, else in its detail. Among equals
    /// what was chosen of late comes first, then by their turn, the shorter first, by the alphabet. Without
    /// a word: what was chosen of late, then the others in their own order.
    [[nodiscard]] std::vector<std::size_t> Halla(std::string_view texto) const;

    [[nodiscard]] const Candidato& De(std::size_t cual) const { return todos.at(cual); }
    [[nodiscard]] std::size_t Cuantos() const { return todos.size(); }

  private:
    struct Ficha {
        Plegado texto{}, clase{};
        std::string detalle{};
        std::size_t reciente = 0;  ///< place among those chosen of late, behind all of them where it wasn't
    };
    static int Puntaje(const Ficha& ficha, std::string_view palabra);

    std::vector<Candidato> todos;
    std::vector<Ficha> fichas{};
};

/// Puts a key ahead of the others; the last ones fall out beyond a number that fits in a settings file.
void AnotaElegida(std::vector<std::string>& recientes, const std::string& clave);

// --- what there is to be found ---

/// The entries of the menu that do something, under the menu that holds each. One that is greyed there tells
/// why.
std::vector<Candidato> DelMenu(const MDIForm1& f, const std::function<void(Rutina)>& orden);

/// What can be gone to in a network.
struct IrAComponente {
    std::function<void(const std::string& componente)> propiedades{};
    std::function<void(const std::string& componente)> hidrograma{};
    std::vector<std::string> corridos{};  ///< components that have a hydrograph
};
/// The components of the project in hand: of the network in memory or, where none has been read yet, of its
/// files, read on a state of its own without a word.
std::vector<Candidato> DeComponentes(const model::Siro& s, const IrAComponente& ir);

/// The pages that the contents of the delivered help name, by their titles; none where it isn't there.
std::vector<Candidato> DeAyuda(const model::Siro& s,
                               const std::function<void(const std::string& ruta)>& abre);

std::vector<Candidato> DeRecientes(const model::Disco& disco, const std::vector<ProyectoReciente>& lista,
                                   const std::function<void(const std::string& ruta)>& abre);

}  // namespace shell
