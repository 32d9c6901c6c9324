// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Fondo.h"

#include <string_view>

#include "model/Avisos.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Siro.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::string_view LeyendaMostrar = "Mostrar Imágen";
constexpr std::string_view LeyendaQuitar = "Quitar Imágen";

// What follows the name of the file.
constexpr auto ImagenIncompleta =
    " está incompleto: termina antes que su imagen. Cópielo otra vez del original.";
constexpr auto ImagenEmf =
    " es un metarchivo mejorado (EMF) aunque su nombre termine en .wmf. Guárdelo como .png, .jpg o .wmf con "
    "el programa que lo hizo.";
constexpr auto ImagenExcesiva =
    " tiene demasiados elementos para servir de fondo. Guárdelo como .png o .jpg con el programa que lo "
    "hizo.";

/// Names the fault of a file that isn't there. That it can't be read as other files are, being too large, is
/// none of an image.
void ExigeArchivo(const Siro& s, const std::string& ruta)
{
    model::Sentencia([&] { s.Disco.Lee(ruta); },
                     [](const model::Falla& falla) {
                         if (falla.numero != model::NumeroFalla::AccesoRuta) throw falla;
                     });
}

/// Tells what is wrong with an image beyond the faults of its file.
void AvisaDeImagen(const Siro& s, CargaDeImagen fin, const std::string& ruta)
{
    if (fin == CargaDeImagen::Incompleta)
        model::Advierte(s, "El archivo de imagen " + ruta + ImagenIncompleta);
    else if (fin == CargaDeImagen::MetarchivoMejorado)
        model::Advierte(s, "El archivo " + ruta + ImagenEmf);
    else if (fin == CargaDeImagen::Excesiva)
        model::Advierte(s, "El dibujo del archivo " + ruta + ImagenExcesiva);
}

/// Loads the image. Returns false where there is none to be shown, which has been told.
bool Carga(Fondo& f, const Siro& s)
{
    const std::string ruta = RutaImagen(s);
    bool hayImagen = false;
    const auto carga = [&] {
        ExigeArchivo(s, ruta);
        const ImagenCargada cargada = f.CargaImagen(ruta);
        if (cargada.fin == CargaDeImagen::Ilegible) throw model::Falla{model::NumeroFalla::AccesoRuta};
        AvisaDeImagen(s, cargada.fin, ruta);
        hayImagen = cargada.tamano != Tamano{};
        if (!hayImagen) return;
        f.imagen = cargada.tamano;
        f.rutaImagen = ruta;
    };
    model::Sentencia(
        carga, [&](const model::Falla& falla) { model::Informa(s, model::TextoFallaMotor(falla) + "."); });
    return hayImagen;
}

}  // namespace

std::string RutaImagen(const Siro& s)
{
    const std::string& archivo = s.Configuracion.ArchivoImagen;
    const bool conDirectorio = archivo.find_first_of("/\\") != std::string::npos;
    return conDirectorio ? archivo : model::Ruta(s.Proyecto.DirProyecto, archivo);
}

bool AlternaImagen(Fondo& f, const Siro& s)
{
    if (f.ImagenVisible) {
        f.imagen = {};
        f.rutaImagen.clear();
        f.cmdImagenUEHs = LeyendaMostrar;
    } else {
        if (!Carga(f, s)) return false;
        f.cmdImagenUEHs = LeyendaQuitar;
    }
    f.ImagenVisible = !f.ImagenVisible;
    return true;
}

}  // namespace editor
