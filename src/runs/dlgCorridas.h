// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Cuadro.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"
#include "runs/LibroDeCorridas.h"

// Rules of the window of the kept runs: its table, what is found in it, name, note and pin, what is deleted
// and brought back, the bound on size.
namespace runs {

inline constexpr std::string_view TituloDlgCorridas = "Corridas guardadas";

inline constexpr auto RotulosDlgCorridas = std::to_array<forms::FilaRotulo>({
    {"txtFiltro", "&Buscar:", "Muestra las corridas que tienen todas estas palabras, sin mirar acentos"},
    {"tblCorridas", "Corridas", "Doble clic o Intro: trae de vuelta la corrida",
     "Corridas guardadas del proyecto, la última primero"},
    {"txtNombre", "&Nombre:", "Nombre de la corrida elegida"},
    {"txtNota", "N&ota:", "Lo que convenga recordar de la corrida elegida"},
    {"chkFijada", "&Fijada", "Una corrida fijada no se borra para hacer lugar"},
    {"txtTope", "To&pe:",
     "Cuánto pueden ocupar las corridas de cada proyecto; las más viejas sin fijar se borran. 0: no se "
     "guarda "
     "ninguna"},
    {"cmdTraer", "&Traer de vuelta",
     "Pone en las ventanas la red, la tormenta, los pasos y los resultados de la corrida; no guarda nada"},
    {"cmdAparte", "Abrir &aparte...", "Escribe las entradas de la corrida como un proyecto en otra carpeta"},
    {"cmdComparar", "Co&mparar", "Compara dos o más corridas elegidas"},
    {"cmdBorrar", "Bo&rrar", "Borra las corridas elegidas"},
    {"cmdDeshacer", "&Deshacer", "Devuelve lo que se borró"},
    {"cmdImprimir", "&Imprimir"},
    {"OKButton", "&Cerrar"},
});

inline constexpr int TopePorDefecto = 256;  ///< [MiB]
inline constexpr int MayorTope = 1 << 20;   ///< [MiB]

/// What a deletion took, to be put back.
struct CorridaBorrada {
    std::string archivo{}, bytes{};
};

struct dlgCorridas {
    bool abierta = false;
    std::optional<Libro> libro{};  ///< of the project in hand; none: there is no project
    std::vector<RenglonDeLibro> renglones{};
    bool leyendo = false;  ///< the ledger is being read
    forms::Cuadro tblCorridas{};
    std::string elegida{};  ///< file of the row whose fields are on show; empty: none
    std::string txtFiltro{}, txtNombre{}, txtNota{}, txtTope{};
    bool chkFijada = false;
    int tope = TopePorDefecto;                            ///< [MiB]
    std::string lblOcupado{};                             ///< what the ledger takes, and of how much
    std::string lblQueHacer{};                            ///< why the table is empty; empty: it isn't
    std::string lblEstado{};                              ///< what went wrong last, or was done; a sentence
    std::vector<std::vector<CorridaBorrada>> borradas{};  ///< by deletion
};

/// Takes the rows of a ledger; order, filter and the row in hand stay.
void Pon(dlgCorridas& f, std::optional<Libro> libro, std::vector<RenglonDeLibro> renglones);
/// The ledger is about to be read.
void PonLeyendo(dlgCorridas& f);
/// The bound, as the program remembers it.
void PonTope(dlgCorridas& f, int mebibytes);
/// A run couldn't be kept: a sentence; empty: one was.
void PonFallo(dlgCorridas& f, const std::string& motivo);

// --- what the user does; a field that is left returns false where its text is refused, which was told ---
void txtFiltro_Cambia(dlgCorridas& f);
/// The row with the cursor; one that isn't there: none.
void AlMoverse(dlgCorridas& f, std::size_t fila);
void AlPulsarEncabezado(dlgCorridas& f, int columna);
bool txtNombre_AlSalir(dlgCorridas& f);
bool txtNota_AlSalir(dlgCorridas& f);
void chkFijada_Click(dlgCorridas& f, bool fijada);
bool txtTope_AlSalir(dlgCorridas& f, const model::Siro& s);
/// Asks, then takes the rows away: into the trash where there is one.
void cmdBorrar(dlgCorridas& f, const model::Siro& s, const std::vector<std::size_t>& filas);
/// Puts back what the last deletion took.
void cmdDeshacer(dlgCorridas& f);

/// Whether the row with the cursor is a kept run.
bool HayElegida(const dlgCorridas& f);
/// Whether it can be run again.
bool SePuedeTraer(const dlgCorridas& f);
/// The files of those of some rows that can be compared.
std::vector<std::string> ParaComparar(const dlgCorridas& f, const std::vector<std::size_t>& filas);

/// The table as it is on show.
forms::Planilla ComoPlanilla(const dlgCorridas& f);

/// Writes the inputs of a kept run as a project of its own in a folder; nothing of what is there is written
/// over. Returns the path of its configuration; empty where it couldn't, which was told.
std::string EscribeAparte(const Libro& libro, const std::string& archivo, const std::string& carpeta,
                          const model::Siro& s);

}  // namespace runs
