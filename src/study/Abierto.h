// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "model/SiroDeclarado.h"
#include "study/Estudio.h"
#include "study/Series.h"

namespace study {

/// How the file of the study in hand stands.
struct EstadoDeArchivo {
    enum class Clase : std::uint8_t {
        SinProyecto,  ///< no project: what is done stays in memory until there is one
        Guardado,     ///< the file holds the value; of an empty study there need be none
        SinGuardar,   ///< the value is in memory alone: the disk, or the user, refused it. Tried again
        Danado,       ///< the file can't be read: it is left alone, and so nothing is written
    };
    Clase clase = Clase::SinProyecto;
    std::string texto{};  ///< to be shown: sentences with their full stop; empty: nothing to tell
    bool operator==(const EstadoDeArchivo&) const = default;
};

/// The study of the project in hand: its value, the steps back, and its files, that of the study and one for
/// the values of each observation. What has changed is written at each change, all of it or nothing. What
/// can't be written stays in memory and is tried again, so that nothing done is lost.
///
///     abierto.AlCambiar([this] { Muestra(); });
///     study::Taller nuevo = abierto.EnMano().taller;
///     nuevo.estaciones.push_back({.nombre = "Quelmar"});
///     abierto.CambiaTaller("Agregar estación", std::move(nuevo));
class Abierto {
  public:
    /// `unSiro` outlives it.
    explicit Abierto(model::Siro& unSiro) : s(unSiro) {}
    Abierto(const Abierto&) = delete;
    Abierto& operator=(const Abierto&) = delete;

    // --- the value ---

    [[nodiscard]] const Estudio& EnMano() const { return valor; }
    /// Takes another value, and writes it; the caption, "Agregar estación", says of undo what it takes back.
    /// A value that is the same is no change. Returns whether it was one. Runs inside an event.
    bool Cambia(std::string leyenda, Estudio nuevo);
    /// The same of the rain workshop alone.
    bool CambiaTaller(std::string leyenda, Taller nuevo);
    /// The same of observed floods and what is asked of many runs. Observations get the names of their files.
    bool CambiaAjuste(std::string leyenda, Ajuste nuevo);
    /// One step back, one forth. Returns whether there was one.
    bool Deshace();
    bool Rehace();
    /// Caption of the step that Deshace and Rehace would make; empty where there is none.
    [[nodiscard]] std::string PorDeshacer() const;
    [[nodiscard]] std::string PorRehacer() const;
    /// Adds a routine that runs after value, steps or state of the file have changed, also by another
    /// project. Whoever it belongs to outlives this object.
    void AlCambiar(std::function<void()> rutina);

    // --- its files ---

    [[nodiscard]] const EstadoDeArchivo& Archivo() const { return archivo; }
    /// Series that couldn't be read: their observations have no values, their files stay as they are.
    [[nodiscard]] const std::vector<SerieDanada>& SeriesDanadas() const { return danadas; }
    /// Tries again what couldn't be written; asks again what the user refused. Returns whether all is
    /// written.
    bool Reintenta();
    /// Puts a damaged file under another name beside it, and writes the value in its place. Returns whether
    /// it did; where not, it has told why.
    bool ApartaDanado();

    // --- the project in hand ---

    /// Follows the project in hand, whoever changed it: reads its study, tells where that can't be read, and
    /// now and then tries again what couldn't be written. Belongs behind each event, as one of its own where
    /// there is something to do.
    void Sigue();
    [[nodiscard]] bool HaDeSeguir() const;
    /// The project in hand, where it is open, is that of before under a new name: value and steps stay, and
    /// are written there. One whose name was refused is merely another one.
    void TrasGuardarComo();
    /// Files of projects have been deleted: where this one's study was among them, it is empty.
    void TrasEliminar();
    /// The files of this project have been replaced by earlier ones: the study is what they hold now, without
    /// a step.
    void TrasTraer();
    /// The program ends: what is in memory alone is tried once more, and then offered another place.
    void Cierra();

  private:
    struct Paso {
        std::string leyenda{};
        Estudio otro{};  ///< the value on the other side of the step
    };
    bool Salta(std::vector<Paso>& desde, std::vector<Paso>& hacia);
    bool Lee(const std::string& deRuta, Estudio& estudio, EstadoDeArchivo& estado);
    void LeeSusSeries();
    void NombraSus(Ajuste& ajuste) const;
    void Recorta();
    void PasaA(std::string nueva);
    void Olvida();
    void Deja();
    void OfreceOtroLugar();
    void Escribe();
    bool Reemplaza(const std::string& enRuta);
    bool EscribeTodo();
    void Dice();
    [[nodiscard]] bool HaDeDecir() const;
    [[nodiscard]] bool HaDeDecirArchivo() const;
    [[nodiscard]] bool EsHora() const;
    void AvisaCambio() const;

    model::Siro& s;
    std::string ruta{};  ///< of its file; empty: no project
    Estudio valor{};
    EstadoDeArchivo archivo{};
    bool enDisco = false;                         ///< the file is there, as far as is known
    bool pendiente = false;                       ///< the value isn't in it
    bool negado = false;                          ///< the user refused to write over another program's work
    bool dicho = false;                           ///< what is wrong with the file has been told in a box
    bool ocupado = false;                         ///< a box is up
    double intento = 0;                           ///< when it was tried last [s]
    std::map<std::string, std::string> series{};  ///< texts on the disk, by the names of their files
    std::vector<SerieDanada> danadas{};
    bool seriesDichas = false;  ///< they have been told in a box
    std::vector<Paso> hechos{}, deshechos{};
    std::vector<std::function<void()>> oyentes{};
};

}  // namespace study
