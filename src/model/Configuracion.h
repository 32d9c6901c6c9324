// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What a project's configuration says, and what the controls of its dialog hold.
namespace model {

/// Ends the name of a project's configuration file.
inline constexpr std::string_view TerminacionConf = "_Conf.vlm";
inline std::string ArchivoConf(std::string_view proyecto)
{
    return std::string(proyecto).append(TerminacionConf);
}

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
    std::string ArchivoImagen{};       ///< background image of the project
    double EscalaImagen = 0;           ///< zoom of the image [%]
    float ImagenX0 = 0, ImagenY0 = 0;  ///< shift of the image [pixels]
    std::string MaxUEHsPixel = "800";
    std::string EscalaDibujo = "0";                                     ///< scale of the image [m/pixel]
    std::array<std::int16_t, Recurrencias.size()> CheckR{};             ///< flags; not those of the boxes
    std::array<std::int16_t, Duraciones.size()> CheckD{};               ///< flags
    std::vector<std::int16_t> ListaRec = std::vector<std::int16_t>(1);  ///< ticked recurrences, from 1
    std::vector<std::int16_t> ListaDur = std::vector<std::int16_t>(1);  ///< ticked durations, from 1
};

/// Ticks the designed set of recurrences: 2 to 200 and 1000, not 500, 2000, 5000, 10000.
inline void BtnRecuDef(ControlesConfigura& controles)
{
    controles.CheckR = RecurrenciasDefecto;
}
/// Ticks the designed set of durations: 10 to 1440 without 15, not 5 nor 2880.
inline void BtnDurDef(ControlesConfigura& controles)
{
    controles.CheckD = DuracionesDefecto;
}

}  // namespace model
