// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/CampoNumerico.h"
#include "forms/Lista.h"
#include "forms/Rotulo.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"
#include "model/Siro.h"

// Rules of the configuration dialog. The controls that the project's file is read into and written from are
// `Siro::frmConfigura`; the record below holds what else the dialog shows. Its fields write to the run-wide
// variables as they are left, its commands to the file.
namespace shell {

inline constexpr std::string_view TituloConfigura = "Configurar";

/// Captions of the tabs of SSTab1.
inline constexpr auto FichasConfigura = std::to_array<std::string_view>({
    "Seleccione el Directorio y Archivos de trabajo",
    "Ingrese los títulos del proyecto para la redacción de informes",
    "Recurrencias y DuracionPp",
    "Imagen, unidades y dibujo",
});
inline constexpr int FichaImagen = 3;

// clang-format off
inline constexpr auto RotulosConfigura = std::to_array<forms::FilaRotulo>({
    {"Drive1",              "&Unidad:"},
    {"Dir1",                "&Directorio:"},
    {"filArchivoConfigura", "Archivos de c&onfiguración:", "Pulse sobre un archivo para cargar los datos de su proyecto"},
    {"lblMiArchivoConf",    "Archivo:"},
    {"lblnombreproyecto",   "Proyecto:"},
    {"CheckDirNv",          "Crear un directorio &nuevo:"},
    {"TextDirNv",           "Nombre del directorio nuevo", "El directorio nuevo se crea dentro del elegido"},
    {"BtnDirNv",            "Crear"},
    {"BtnDefecto",          "Configurar  por defecto", "Crea y elige el directorio de proyectos de SIRO"},
    {"CheckDistriPp",       "Distribución Areal de Lluvias Uniforme"},
    {"chkImagenDibujo",     "&Imagen de fondo del dibujo:"},
    {"filArchivoImagenDib", "Archivos de imágenes", "Pulse sobre un archivo .bmp .gif .jpg o .wmf para elegirlo"},
    {"lblImagenDibujo",     "Imagen:"},
    {"cmdTraeImagen",       "Copiar la imagen a la carpeta del proyecto", "El proyecto queda, o vuelve, donde estaba"},
    {"TextProyecto",        "&Título:"},
    {"TextUbica",           "&Ubicación:"},
    {"TextCuenca",          "&Cuenca/UEH:"},
    {"TextSbca",            "&SubCuenca/UEH:"},
    {"TextOpera",           "&Operador:"},
    {"txtFecha",            "&Fecha:", "Con un doble clic se pone la fecha de hoy"},
    {"BtnRecuDef",          "Selección por defecto"},
    {"BtnDurDef",           "Selección por defecto"},
    {"TexIMGEscala",        "&Zoom de la imagen [%]:"},
    {"TexIMGX0",            "Corrimiento &X [píxeles]:"},
    {"TexIMGY0",            "Corrimiento &Y [píxeles]:"},
    {"TexS",                "&Texto libre:"},
    {"txtN0Dur",            "Tiempo &agregado a la duración de la tormenta [min]:", "Similar al tiempo de concentración o un poco mayor"},
    {"txtMaxUEHsPixel",     "Ancho &máximo del dibujo [píxeles]:", "Sugerido: 800. Máximo: 1024"},
    {"txtEscalaImagen",     "&Escala de la imagen [metros por píxel]:", "0: sin escala"},
    {"OKButton",            "Aceptar"},
    {"cmdAplicar",          "Aplicar"},
    {"CancelButton",        "Cancelar"},
});

/// Options; of those with the same question one is ticked.
struct OpcionConfigura {
    std::string_view control;
    std::string_view leyenda;
    bool model::ControlesConfigura::*marcada;
    std::string_view pregunta;
};
inline constexpr auto OpcionesConfigura = std::to_array<OpcionConfigura>({
    {"Optiona",   "Opción a",           &model::ControlesConfigura::Optiona,   "Opciones"},
    {"Optionb",   "Opción b",           &model::ControlesConfigura::Optionb,   "Opciones"},
    {"Optionc",   "Opción c",           &model::ControlesConfigura::Optionc,   "Opciones"},
    {"OptionMin", "Minutos",            &model::ControlesConfigura::OptionMin, "Tiempo"},
    {"OptionHr",  "Horas",              &model::ControlesConfigura::OptionHr,  "Tiempo"},
    {"Optionm3",  "Metros cúbicos [m3]", &model::ControlesConfigura::Optionm3, "Volúmenes"},
    {"OptionLt",  "Litros [l]",         &model::ControlesConfigura::OptionLt,  "Volúmenes"},
});
// clang-format on

/// How a project went to the folder of its image.
struct Mudanza {
    std::string desde{};  ///< the folder where its network has stayed; empty: it hasn't gone anywhere
    std::string conf{};   ///< its configuration file in the image's folder
    bool nueva = false;   ///< that file wasn't there before
};

/// What the dialog shows beside `Siro::frmConfigura`. It lives as long as the program.
struct frmConfigura {
    int SSTab1 = 0;             ///< tab in front, from 0
    std::string DirPersonal{};  ///< home directory of the user; the window sets it
    std::string lblnombreproyecto{};
    bool CheckDirNv = false;             ///< TextDirNv is available
    forms::Lista filArchivoConfigura{};  ///< configuration files of Dir1
    forms::Lista filArchivoImagenDib{};  ///< all files of Dir1
    Mudanza mudanza{};
    model::ControlesConfigura guardados{};  ///< as the dialog opened, or they were read or written last
    std::string archivoGuardado{};          ///< the file that they were of
    bool abierta = false;
};

/// What a choice of image in another folder does, or has done, to the project; else nothing.
std::string AvisoImagen(const frmConfigura& f, const model::Siro& s);
/// Brings the project back to its folder and its image with it, as a copy.
void cmdTraeImagen(frmConfigura& f, model::Siro& s);

/// filArchivoImagenDib is available.
bool HayImagen(const model::Siro& s);

// --- number fields ---

/// A field, and what takes its number to the run-wide state. The limits of the image's shift are those of the
/// drawing at the moment.
using CampoConfigura = forms::CampoNumerico<model::ControlesConfigura, void (*)(model::Siro& s, double x)>;
/// The two fields that refuse share the message of one of them: kept as it stands.
inline constexpr std::string_view EntreDiezYTreintaMil = "Ingrese un valor numérico entre 10 y 30000";

// clang-format off
inline constexpr auto CamposConfigura = std::to_array<CampoConfigura>({
    {{.control = "TexIMGEscala", .maximo = 1000, .rechazo = forms::Rechazo::Recorta},
     &model::ControlesConfigura::TexIMGEscala, [](model::Siro& s, double x) { s.Configuracion.EscalaImagen = x; }},
    {{.control = "TexIMGX0", .minimo = -forms::SinLimite, .rechazo = forms::Rechazo::Recorta},
     &model::ControlesConfigura::TexIMGX0, [](model::Siro& s, double x) { s.Configuracion.ImagenX0 = model::Simple(x); }},
    {{.control = "TexIMGY0", .minimo = -forms::SinLimite, .rechazo = forms::Rechazo::Recorta},
     &model::ControlesConfigura::TexIMGY0, [](model::Siro& s, double x) { s.Configuracion.ImagenY0 = model::Simple(x); }},
    // The run-wide value is taken at the next reading of the file.
    {{.control = "txtMaxUEHsPixel", .minimo = -forms::SinLimite, .maximo = 1024, .rechazo = forms::Rechazo::Recorta},
     &model::ControlesConfigura::txtMaxUEHsPixel, [](model::Siro&, double) {}},
    {{.control = "txtEscalaImagen", .maximo = 50000, .mensaje = EntreDiezYTreintaMil, .rechazo = forms::Rechazo::Llana},
     &model::ControlesConfigura::txtEscalaImagen, [](model::Siro& s, double x) { s.Configuracion.EscalaDibujo = model::NumeroATexto(x); }},
    {{.control = "txtN0Dur", .minimo = 10, .maximo = 30000, .mensaje = EntreDiezYTreintaMil, .rechazo = forms::Rechazo::Llana},
     &model::ControlesConfigura::txtN0Dur, [](model::Siro& s, double x) { s.Pasos.N0Dur = model::Simple(x); }},
});
// clang-format on

/// Leaving a field, txtMaxUEHsPixel at each edit too: its number goes to the run-wide state. Returns false
/// where it is refused: the message was shown, the state is as it was, and the focus stays. Any other control
/// passes.
bool AlSalir(model::Siro& s, std::string_view control);
/// Puts today's date.
void txtFecha_DblClick(model::Siro& s);

// --- events; a fault is told in a box and ends the event, the dialog staying as it is ---

/// Opening. A new project is stored at once, which is told.
void Abre(frmConfigura& f, model::Siro& s);
/// The window becomes active: what came and went meanwhile shows in the lists of files.
void AlActivarse(frmConfigura& f, const model::Siro& s);

/// Another directory is picked. Where it can't be listed the old one stays.
void Dir1_Change(frmConfigura& f, model::Siro& s, const std::string& directorio);
/// Another drive is picked: its root.
void Drive1_Change(frmConfigura& f, model::Siro& s, const std::string& unidad);

/// Makes the program's standard directories and picks that of the projects.
void BtnDefecto(frmConfigura& f, model::Siro& s);
void CheckDirNv_Click(frmConfigura& f, model::Siro& s, bool tildada);
/// Makes the directory TextDirNv inside the one picked, and picks it.
void BtnDirNv(frmConfigura& f, model::Siro& s);

/// A box that is only stored.
void Casilla_Click(std::int16_t& casilla, bool tildada);
/// Whether a box shows as ticked.
bool Tildada(std::int16_t casilla);
void chkImagenDibujo_Click(model::Siro& s, bool tildada);
/// i: place in OpcionesConfigura.
void Opcion_Click(model::Siro& s, std::size_t i);

// Clicks in lists act on the item selected; with none they do nothing.

/// Loads the configuration of another project, which becomes the current one in the directory picked.
void filArchivoConfigura_Click(frmConfigura& f, model::Siro& s);
void filArchivoImagenDib_Click(frmConfigura& f, model::Siro& s);

void cmdAplicar(frmConfigura& f, model::Siro& s);
/// Sets the time added to the storm [min] as a user does who types it and presses cmdAplicar, on the
/// configuration as the file has it. Returns false, with nothing stored, where the dialog holds what wasn't
/// applied, the file can't be read, the field refuses the time, or cmdAplicar doesn't store it; each has been
/// told.
bool PonTiempoAgregado(frmConfigura& f, model::Siro& s, float minutos);
void OKButton(frmConfigura& f, model::Siro& s);
void CancelButton(frmConfigura& f);

/// The current project may have become another one, whose file was read into the controls.
void AlCargarProyecto(frmConfigura& f, const model::Siro& s);
/// Whether it holds what wasn't applied. To go through directories is no work.
bool SinAplicar(const frmConfigura& f, const model::Siro& s);

}  // namespace shell
