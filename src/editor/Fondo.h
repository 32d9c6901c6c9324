// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "editor/Vista.h"
#include "model/SiroDeclarado.h"

// The background image of the editor.
namespace editor {

/// What became of loading an image file.
enum class CargaDeImagen {
    Entera,
    Incompleta,  ///< the file ends before its picture does: there is what it holds of it, be it nothing
    Ilegible,
    MetarchivoMejorado,  ///< an .emf that is called .wmf
    Excesiva,            ///< a drawing of so many records, or so slow ones, that it was given up
    Cancelada,           ///< by the user
};

struct ImagenCargada {
    CargaDeImagen fin = CargaDeImagen::Ilegible;
    Tamano tamano{};  ///< 0 by 0 where there is no picture
};

struct Fondo {
    std::string cmdImagenUEHs = "Imágen";  ///< its caption
    bool ImagenVisible = false;
    Tamano imagen{};           ///< size of the image that is on [pixels]
    std::string rutaImagen{};  ///< its path
    /// Loads an image file. The window fills it in.
    std::function<ImagenCargada(const std::string& ruta)> CargaImagen = [](const std::string&) {
        return ImagenCargada{};
    };
};

/// Path of the project's image: a bare file name stands for a file of the project's directory.
std::string RutaImagen(const model::Siro& s);

/// Puts the image on or takes it off. A file that can't be read as an image is told and the image stays off.
/// Returns whether there was a change.
bool AlternaImagen(Fondo& fondo, const model::Siro& s);

}  // namespace editor
