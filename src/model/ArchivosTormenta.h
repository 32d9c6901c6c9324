// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/Arreglo.h"

// The four kinds of file that carry rain: real storms, personal temporal distributions, tables of synthetic
// storms (depth P, duration D, recurrence R), and the project's list of single storms. Tables that all
// projects share lie in DirTrabajo, the others in DirProyecto.
namespace model {

struct Siro;

// --- real storms, <name>_pt.vlm ---

inline constexpr std::string_view TerminacionTormenta = "_pt.vlm";
inline constexpr std::string_view TormentaPorDefecto = "Velmir_pt.vlm";

/// Files of the delivered storms that the editor of real storms doesn't write at "Aplicar".
inline constexpr auto TormentasProtegidas =
    std::to_array<std::string_view>({"Ruvera 100592_pt.vlm", "Ruvera 170276 _pt.vlm",  // kept as it stands
                                     "Ruvera 230498_pt.vlm", "Ruvera 060402_pt.vlm"});

/// A recorded storm as a form holds it. Its depths are Tormenta::PpReal, their number is Tormenta::NroPpReal.
struct TormentaReal {
    std::string nombre{};         ///< file name in DirProyecto
    std::string Notas{};          ///< description
    std::int16_t PasoPpReal = 0;  ///< length of an interval [min]
    std::string txtDateI{};       ///< start, dd/mm/yyyy; "01/01/1001": no valid date
    std::string txtTimeI{};       ///< start, hh:mm
    std::string txtDateF{};       ///< end, dd/mm/yyyy
    std::string txtTimeF{};       ///< end, hh:mm

    bool operator==(const TormentaReal&) const = default;
};

/// The name itself where its last seven characters are "_pt.vlm", else the default storm's.
std::string NombreTormenta(std::string_view nombre);

/// Whether a file is one of the four protected storms, by exact text.
bool TormentaProtegida(std::string_view nombre);

/// Names of the storms in DirProyecto, sorted. Throws Falla 76 where the directory isn't there.
std::vector<std::string> ListaTormentas(const Siro& s);

/// What the storm's label shows once a name was picked from the list: the name, the default storm's where
/// it is no storm's name.
std::string EtiquetaTormenta(const Siro& s, std::string_view nombre);

/// The check behind EtiquetaTormenta: shows a box for a name that is no storm's and returns the label that
/// asks for one. The default name has been put in place before, so that the box never shows in use.
std::string CompruebaTormenta(const Siro& s, std::string_view nombre);

/// Default of the prompt for a new storm: "Velmir" and one more than the highest number that a storm of
/// DirProyecto so named bears. Throws Falla 6 where a number is outside 16 bits, Falla 76.
std::string NombreTormentaNueva(const Siro& s);

/// File name of a new storm: the ending is always put behind what the user typed.
std::string ArchivoTormentaNueva(std::string_view respuesta);

/// Reads the storm `tormenta.nombre`, or the default one, and with it PpReal, NroPpReal, DurTormenta [min]
/// and PpTormenta [mm], a sum of 32-bit floats in order. A file that can't be read to its end, or that lasts
/// beyond 32767 minutes, is silent and leaves NroPpReal at 0.
void LeePpReal(Siro& s, TormentaReal& tormenta);

/// Writes the storm in hand over its file, or over the default one's; PpReal is cut or filled up to NroPpReal
/// first. Throws Falla 76, 75 and leaves file and depths as they were; Falla 9 where NroPpReal is negative.
void GuardaPpReal(Siro& s, TormentaReal& tormenta);

// --- tables of rain ---

inline constexpr std::string_view ArchivoDisPer = "distriPp_dpt.vlm";
inline constexpr std::string_view ArchivoPDRs = "TablasPDRs_pdr.vlm";
inline constexpr std::int16_t MaximoDeFilas = 999;  ///< periods or storms of a table

/// Changes the columns of a table of TablasDeLluvia and keeps what it holds; the first time it is allocated,
/// with rows up to `ultimaFila`. Throws Falla 9 for a negative bound.
template <typename T>
void Ajusta(Matriz<T>& tabla, int ultimaFila, int columnas)
{
    if (tabla.TopeColumna() < 0)
        tabla.Dimensiona(ultimaFila, columnas);
    else
        tabla.Redimensiona(columnas);
}

// --- personal distributions, distriPp_dpt.vlm ---

/// Limits that the editor offers for the durations of a table [min]. The last two of the second are alike:
/// kept as it stands.
inline constexpr auto DuracionesMinimas =
    std::to_array<std::int16_t>({5, 10, 15, 20, 30, 60, 120, 180, 240, 300, 360, 540, 720, 1440});
inline constexpr auto DuracionesMaximas =
    std::to_array<std::int16_t>({10, 15, 20, 30, 60, 120, 180, 240, 300, 360, 540, 720, 1440, 1440});

/// Reads the three personal distributions from DirTrabajo into NroFilasTabla 1..3, NotasDisPer, DurMinPer,
/// DurMaxPer and DisPerso. Percentages are read as whole numbers although they are written with decimals:
/// kept as it stands. A failure is silent and leaves slots 1 to 3 of NroFilasTabla at 0. Returns whether they
/// were read.
bool LeeTablaDisTemPer(Siro& s);

/// Writes the three tables. A fault shows one box and leaves the file and the tables in memory as they are.
/// Returns whether they were written.
bool GuardaTablaDisPer(Siro& s);

// --- tables of synthetic storms, TablasPDRs_pdr.vlm ---

/// Reads the four tables from DirTrabajo into NroFilasTabla, NotasPDR, TablasP, TablasD, TablasR, and the
/// rows of table TablaPDR (0 where it is none of 1, 2, 3) into the series. A failure is silent, leaves slots
/// 1 to 3 of NroFilasTabla at 0, slot 0 as it is, and the series as it was. Returns whether they were read.
bool LeeTablaPDRs(Siro& s);

/// Writes the four tables, as GuardaTablaDisPer does.
bool GuardaTablaPDRs(Siro& s);

// --- list of single storms, ListaPDR.vlm ---

inline constexpr std::string_view ArchivoListaPDR = "ListaPDR.vlm";

/// Text of a storm in the list `cmbPDR`: "Pp= 60 - Dur = 60 - Rec = 10".
std::string TextoPDR(std::string_view p, std::string_view d, std::string_view r);
std::string TextoPDR(float p, std::int16_t d, std::int16_t r);

/// Splits an item of `cmbPDR` into PpTormenta, DurTormenta and RecTormenta. Without any "-" behind its first
/// four characters only R is taken, from the start of what follows them; with a single one, P and then R.
/// Throws Falla 6 where a number is outside its type.
void ParsePDR(Siro& s, std::string_view item);

/// Replaces the items of `cmbPDR` by the storms of the project's list. The last storm read is left in
/// PpTormenta, DurTormenta and RecTormenta. A failure is silent and keeps the items read so far.
void leeListaPpDurRec(Siro& s, std::vector<std::string>& cmbPDR);

/// Texts of the storm in hand as the form shows it.
struct CamposTormenta {
    std::string txtPp{};   ///< depth [mm]
    std::string txtDur{};  ///< duration [min]
    std::string cmbRec{};  ///< recurrence [years]
};

/// Writes the items of `cmbPDR` that aren't empty over the project's list, then takes PpTormenta,
/// DurTormenta and RecTormenta from the form's fields. A fault shows one box and leaves the file and the
/// storm in hand as they were. Returns whether the list was written.
bool GuardaListaPDR(Siro& s, const std::vector<std::string>& cmbPDR, const CamposTormenta& campos);

}  // namespace model
