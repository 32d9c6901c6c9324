// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace model {

struct Siro;

/// Recurrences [years] and durations [min] that a configuration can select, in the order of its file.
inline constexpr auto Recurrencias =
    std::to_array<std::int16_t>({2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000});
inline constexpr auto Duraciones = std::to_array<std::int16_t>(
    {5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440, 2880});

/// What the controls of the configuration dialog hold, on screen or hidden. A box is ticked at exactly 1.
struct ControlesConfigura {
    std::string TextProyecto{}, TextUbica{}, TextCuenca{}, TextSbca{}, TextOpera{};
    std::string txtFecha = "01/02/2006";
    std::string Drive1{}, Dir1{};
    std::string TextDirNv{};
    std::int16_t CheckDistriPp = 1;
    std::string lblMiArchivoConf{};
    std::int16_t chkImagenDibujo = 0;
    std::string lblImagenDibujo = "Ninguno";
    std::string TexIMGEscala{}, TexS{};
    bool Optiona = false, Optionb = false, Optionc = false;
    std::string TexIMGX0{}, TexIMGY0{};
    bool OptionMin = false, OptionHr = false, Optionm3 = false, OptionLt = false;
    std::string txtN0Dur = "10";
    std::string txtMaxUEHsPixel = "800";
    std::string txtEscalaImagen = "0";
    std::array<std::int16_t, Recurrencias.size()> CheckR{};  ///< boxes, in the order of Recurrencias
    std::array<std::int16_t, Duraciones.size()> CheckD{};    ///< boxes, in the order of Duraciones

    bool operator==(const ControlesConfigura&) const = default;
};

/// Ticks the designed set of recurrences: 2 to 200 and 1000, not 500, 2000, 5000, 10000.
void BtnRecuDef(ControlesConfigura& controles);
/// Ticks the designed set of durations: 10 to 1440 without 15, not 5 nor 2880.
void BtnDurDef(ControlesConfigura& controles);

/// Reads the configuration of the project NombreProyecto in DirProyecto into the run-wide variables and the
/// dialog's controls. A project that has moved takes its present directory and its file is rewritten at
/// once. A damaged file empties NombreProyecto. Failures are reported through the host and never thrown.
void leoConf(Siro& s);

/// Writes the configuration from the dialog's controls and tells so. Throws Falla 76, 75.
void cmdAplicar(Siro& s);

}  // namespace model
