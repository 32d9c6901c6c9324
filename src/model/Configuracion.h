// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"

namespace model {

struct Siro;

/// Recurrences [years] and durations [min] that a configuration can select, in the order of its file.
inline constexpr auto Recurrencias =
    std::to_array<std::int16_t>({2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000});
inline constexpr auto Duraciones = std::to_array<std::int16_t>(
    {5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440, 2880});

/// Boxes of a selection, in the order of its values: 1 for those that are chosen, else 0.
template <std::size_t N, std::size_t M>
consteval std::array<std::int16_t, N> Casillas(const std::array<std::int16_t, N>& valores,
                                               const std::array<std::int16_t, M>& elegidos)
{
    std::array<std::int16_t, N> casillas{};
    for (std::size_t i = 0; i < N; ++i)
        for (const std::int16_t elegido : elegidos)
            if (valores[i] == elegido) casillas[i] = 1;
    return casillas;
}

/// The sets as designed: R 1000 without R 500 is meant.
inline constexpr auto RecurrenciasDefecto =
    Casillas(Recurrencias, std::to_array<std::int16_t>({2, 5, 10, 20, 25, 40, 50, 100, 200, 1000}));
inline constexpr auto DuracionesDefecto = Casillas(
    Duraciones,
    std::to_array<std::int16_t>({10, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440}));

/// Drives exist where the backslash separates directories.
inline constexpr bool HayUnidades = Separador == '\\';
/// Drive of a path: its first two characters, the empty text on a platform without drives.
std::string UnidadDe(std::string_view ruta);

/// What the controls of the configuration dialog hold, on screen or hidden: at first use what
/// a project without settings of its own begins with. A box is ticked at exactly 1.
struct ControlesConfigura {
    std::string TextProyecto{}, TextUbica{}, TextCuenca{}, TextSbca{}, TextOpera{};
    std::string txtFecha = "01/02/2006";
    std::string Drive1{}, Dir1{};
    std::string TextDirNv{};
    std::int16_t CheckDistriPp = 1;
    std::string lblMiArchivoConf{};
    std::int16_t chkImagenDibujo = 0;
    std::string lblImagenDibujo = "Ninguno";
    std::string TexIMGEscala = "100", TexS{};
    bool Optiona = true, Optionb = false, Optionc = false;
    std::string TexIMGX0 = "0", TexIMGY0 = "0";
    bool OptionMin = true, OptionHr = false, Optionm3 = true, OptionLt = false;
    std::string txtN0Dur = "10";
    std::string txtMaxUEHsPixel = "800";
    std::string txtEscalaImagen = "0";
    std::array<std::int16_t, Recurrencias.size()> CheckR = RecurrenciasDefecto;  ///< boxes, as Recurrencias
    std::array<std::int16_t, Duraciones.size()> CheckD = DuracionesDefecto;      ///< boxes, as Duraciones

    bool operator==(const ControlesConfigura&) const = default;
};

/// Where the program and the project stand on the disk.
struct Proyecto {
    /// Directory of the executable, or the user's own where that one can't be written; the host sets it.
    std::string DirEjecutable{};
    std::string DirTrabajo{};       ///< the program's own directory: shared tables, result files
    std::string DirProyecto{};      ///< directory of the project's files
    std::string DirProyectoConf{};  ///< the same as the configuration tells it
    std::string DriveProyecto{};
    std::string NombreProyecto{};  ///< empty: no project open
    std::string ArchivoTemp{};     ///< file name last composed by a file operation
    bool ProyectoNuevo = false;    ///< a new project waits for its configuration to be confirmed
    bool ConfPendiente = false;  ///< start-up is over: a read of the pointer tests that its project is there
};

/// What a project's configuration says.
struct Configuracion {
    std::string TituloProyecto{}, Ubicacion{}, Cuenca{}, Subcuenca{}, Operador{};
    std::string FechaProyecto = "01/02/2006";
    std::string DirNv{};
    std::int16_t CheckDistriPp = 1;
    std::string NombreArchivoConf{};
    std::int16_t ImagenDibujo = 0;
    std::string ArchivoImagenDibujo = "Ninguno";  ///< background image of the project
    std::string ArchivoImagen{};                  ///< the editor's copy
    double EscalaImagen = 0;                      ///< zoom of the image [%]
    std::string TextoS{};
    bool Optiona = false, Optionb = false, Optionc = false;
    float ImagenX0 = 0, ImagenY0 = 0;  ///< shift of the image [pixels]
    bool OptionMin = false, OptionHr = false, Optionm3 = false, OptionLt = false;
    std::string MaxUEHsPixel = "800";
    std::string EscalaDibujo = "0";                                     ///< scale of the image [m/pixel]
    std::array<std::int16_t, Recurrencias.size()> CheckR{};             ///< flags; not those of the boxes
    std::array<std::int16_t, Duraciones.size()> CheckD{};               ///< flags
    std::vector<std::int16_t> ListaRec = std::vector<std::int16_t>(1);  ///< ticked recurrences, from 1
    std::vector<std::int16_t> ListaDur = std::vector<std::int16_t>(1);  ///< ticked durations, from 1
    std::int16_t NroRec = 0, NroDur = 0;
};

/// Ticks the designed set of recurrences: 2 to 200 and 1000, not 500, 2000, 5000, 10000.
void BtnRecuDef(ControlesConfigura& controles);
/// Ticks the designed set of durations: 10 to 1440 without 15, not 5 nor 2880.
void BtnDurDef(ControlesConfigura& controles);

/// Reads the configuration of the project NombreProyecto in DirProyecto into the run-wide variables and the
/// dialog's controls. A project that has moved takes its present directory and its file is rewritten at
/// once, unless it bears another name than it tells. A damaged file empties NombreProyecto. Failures are
/// reported through the host and never thrown.
void leoConf(Siro& s);

/// Writes the configuration from the dialog's controls and tells so. Asks before it writes over a file that
/// isn't the one that was read, or that another program has changed; returns false where the user keeps it.
/// Throws Falla 76, 75; memory and disk are then as they were.
bool cmdAplicar(Siro& s);

// Its two halves, for who writes other files together with the configuration.

/// Writes the file and makes the controls' directory the project's. Throws Falla 76, 75.
void EscribeConf(Siro& s);
void AvisaConfGuardada(const Siro& s, const std::string& ruta);

}  // namespace model
