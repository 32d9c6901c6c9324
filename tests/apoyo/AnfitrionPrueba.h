// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Anfitrion.h"

namespace model {

// How a failed test shows them.
void PrintTo(const Mensaje& mensaje, std::ostream* salida);

}  // namespace model

namespace apoyo {

/// Something that the user saw or was asked.
struct Suceso {
    enum class Clase { Aviso, Pregunta, Confirmacion, Resguardo, Peticion, Archivo, Fin };
    Clase clase = Clase::Aviso;
    model::Mensaje mensaje{};  ///< of a request its text and title; of a choice of file its filter and title
    std::string respuesta{};   ///< "Sí" or "No", the text typed, the file chosen
    bool operator==(const Suceso&) const = default;
};
void PrintTo(const Suceso& suceso, std::ostream* salida);

/// A user who follows a script: gives the prepared answers in order, then the standing one, and remembers
/// every box and question. Its copies and every `Puerta` share one state.
///
///     AnfitrionPrueba anfitrion;
///     anfitrion->respuestas = {true, false};
///     s.Anfitrion = anfitrion.Puerta();
///     ...
///     EXPECT_EQ(anfitrion->Avisos(), (std::vector<model::Mensaje>{{"texto", "título",
///     Icono::Exclamacion}}));
class AnfitrionPrueba {
  public:
    struct Estado {
        std::deque<bool> respuestas{};   ///< to the next questions
        bool respuestaDeSiempre = true;  ///< to all after them
        std::deque<model::Resguardo>
            resguardos{};                    ///< what becomes of unsaved work next; then all is cancelled
        std::deque<std::string> textos{};    ///< to the next requests for a text; then it is cancelled
        bool aceptaDefecto = false;          ///< instead, then the text offered is taken
        std::deque<std::string> elegidos{};  ///< files chosen next; then the choice is cancelled

        std::vector<std::string> propuestos{};  ///< names proposed for what was to be saved

        std::vector<Suceso> sucesos{};  ///< all of it, in order

        bool marcaPizarra = false;
        int pizarrasAbiertas = 0;
        std::string pizarra{};  ///< text in the Slate's box

        /// Progress in order, a line each: "abre t", "textos a|b", "barra 12", "cierra".
        std::vector<std::string> avance{};
        bool avanceAbierto = false;

        int tablasSerie = 0;  ///< how often each was asked for
        int rotulosProyecto = 0;
        int guardarComoHabilitado = 0;
        int verificacionHabilitada = 0;
        int redibujos = 0;
        std::vector<std::string> reclamados{};  ///< projects claimed, by their configuration files
        std::string ocupante{};                 ///< who else has the next ones open
        bool hayPapelera = false;               ///< what is thrown away goes to `tirados` and off no disk
        std::vector<std::string> tirados{};

        std::string fechaHora = "03/04/2011 10:20:30";
        double reloj = 1000;   ///< [s], what the clock shows next
        double pasoReloj = 0;  ///< [s] by which each look at it moves it on

        [[nodiscard]] std::vector<model::Mensaje> Avisos() const { return Mensajes(Suceso::Clase::Aviso); }
        [[nodiscard]] std::vector<model::Mensaje> Preguntas() const
        {
            return Mensajes(Suceso::Clase::Pregunta);
        }
        /// Questions with OK and Cancel; they take their answers from `respuestas` as the others do.
        [[nodiscard]] std::vector<model::Mensaje> Confirmaciones() const
        {
            return Mensajes(Suceso::Clase::Confirmacion);
        }
        [[nodiscard]] std::vector<model::Mensaje> Mensajes(Suceso::Clase clase) const;
        [[nodiscard]] bool Termino() const;  ///< the program was ended
    };

    /// What the program under test gets. `Termina` throws FinDelPrograma.
    [[nodiscard]] model::Anfitrion Puerta() const;
    Estado* operator->() const { return estado.get(); }
    Estado& operator*() const { return *estado; }

  private:
    std::shared_ptr<Estado> estado = std::make_shared<Estado>();
};

}  // namespace apoyo
