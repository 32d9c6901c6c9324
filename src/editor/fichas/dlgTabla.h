// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Grilla.h"
#include "forms/Rotulo.h"
#include "model/Clases.h"
#include "model/SiroDeclarado.h"
#include "model/TablasEmbalse.h"

// Rules of the editors of the tables of Represas and Lagos: dlgTablaSHV, dlgTablaFQ and dlgTablaSHVQ are one
// form with a description each. A form works on the Represa or Lago that is selected in the form behind it,
// which is disabled while this one is open.
namespace editor {

enum class TipoTabla : std::uint8_t {
    SHV,   ///< height, area and storage of a Represa
    FQ,    ///< height and outflow of a Represa
    SHVQ,  ///< height, area, storage and outflow of a Lago
};

/// What a column must do from one row to the next.
struct PruebaOrden {
    bool estricta;             ///< rise; otherwise it may stay level
    std::string_view mensaje;  ///< the number of the row follows
};

/// Array of a column: by component number and row of the table, from 1.
using ArregloTabla =
    std::variant<model::Matriz<float> model::Red::*, model::Matriz<std::int32_t> model::Red::*>;

/// What tells one editor from another.
struct DescripcionTabla {
    TipoTabla tipo;
    std::string_view nombre;  ///< object name of the window
    std::string_view titulo;
    std::string_view nombreGrilla;  ///< object names of the controls that aren't alike in all
    std::string_view nombreLblNro;
    std::string_view nombreLblNombre;
    forms::ReglasGrilla grilla;
    std::span<const ArregloTabla> arreglos;           ///< of grid columns 1, 2, ...
    std::span<const PruebaOrden> pruebas;             ///< of grid columns 1, 2, ...
    model::Clase clase;                               ///< Represa or Lago
    model::Arreglo<std::int16_t> model::Red::*filas;  ///< rows of each component's table
    model::ArchivoDeTablas archivo;
    void (*lee)(model::Siro&);
    bool (*guarda)(model::Siro&);
};

const DescripcionTabla& DescripcionDe(TipoTabla tipo);

/// Captions; the labels bear the names of those of the form behind.
inline constexpr auto RotulosDlgTabla = std::to_array<forms::FilaRotulo>({
    {"lblNroRepresa", "Nro. Represa:"},
    {"lblNombreRepresa", "Nombre Represa:"},
    {"lblNroLago", "Nro. Laguna:"},
    {"lblNombreLago", "Nombre Laguna:"},
    {"txtNroFilas", "Número de &filas:"},
    {"cmdBorraTablaHQ", "Borrar Tabla"},
    {"cmdAplicar", "&Aplicar"},
    {"OKButton", "Aceptar"},
    {"CancelButton", "Cancelar"},
});

struct dlgTabla {
    const DescripcionTabla* descripcion = nullptr;
    bool abierta = false;
    bool hayComponente = false;  ///< otherwise the form stays empty
    std::int16_t NroFilas = 0;
    std::string txtNroFilas{};
    std::string lblNro{}, lblNombre{};
    forms::Grilla grilla{};
    /// Rows that a smaller number has cut, the one next to the grid's last first. A number is typed digit by
    /// digit, "12" by way of "1": they come back as it grows, until the table is applied.
    std::vector<forms::FilaGrilla> cortadas{};
    std::vector<forms::FilaGrilla> aplicadas{};  ///< rows as they were read or last applied
    forms::Foco foco{};
};

/// Opening for the selected component, the first one where none is; the labels are those of the form behind.
/// All tables of the kind are read anew from disk.
void Abre(dlgTabla& f, model::Siro& s, TipoTabla tipo, std::string lblNro, std::string lblNombre);

/// The text of the number of rows has changed. A text that is no whole number from 0 to 999 is told and the
/// text before it comes back; otherwise the grid takes the rows, those that were cut before the new ones.
void txtNroFilas_Change(dlgTabla& f, const model::Siro& s, std::string texto);

/// A step of the grid has put other rows in place: their number follows.
void AlVolverFilas(dlgTabla& f);

/// Empties every data cell; the rows stay, those that were cut are forgotten.
void cmdBorraTablaHQ(dlgTabla& f);

/// Puts the rows in order of rising height, those that are there twice once. A grid with a cell that is no
/// number stays as it is.
void OrdenaPorAltura(dlgTabla& f);

/// Checks the cells, and where nothing is wrong takes them into the arrays and writes the file. The cursor
/// stands on what was refused last. Blocks of other components that the file would lose, having been left
/// behind by a rename, are asked about first. Returns false where the table had to be written and wasn't: the
/// user keeps them, or the file couldn't be written, which has been told.
bool cmdAplicar(dlgTabla& f, model::Siro& s);

/// Whether the grid holds what hasn't been applied.
bool SinAplicar(const dlgTabla& f);

/// Applies, and closes whatever came of it, with a reminder to save; but not where the user has kept what the
/// file would lose.
void OKButton(dlgTabla& f, model::Siro& s);

/// What was applied stays written.
void CancelButton(dlgTabla& f);

// --- small plot beside the grid ---

struct PuntoCurva {
    double x = 0, y = 0;
    bool operator==(const PuntoCurva&) const = default;
};

struct CurvaTabla {
    std::string_view ejeX, ejeY;  ///< with units
    std::vector<PuntoCurva> puntos{};
    bool operator==(const CurvaTabla&) const = default;
};

/// Storage and outflow over the height, as far as the table has them: a point of each row that has numbers in
/// both columns, in the order of the rows, as typed and not as stored.
std::vector<CurvaTabla> Curvas(const dlgTabla& f);

}  // namespace editor
