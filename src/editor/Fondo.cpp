// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Fondo.h"

#include <optional>
#include <string_view>

#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Disco.h"
#include "model/Falla.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::string_view LeyendaMostrar = "Mostrar Imágen";
constexpr std::string_view LeyendaQuitar = "Quitar Imágen";

}  // namespace

std::string RutaImagen(const Siro& s)
{
    const bool conDirectorio = s.ArchivoImagen.find_first_of("/\\") != std::string::npos;
    return conDirectorio ? s.ArchivoImagen : model::Ruta(s.DirProyecto, s.ArchivoImagen);
}

namespace {

/// Loads the image. Returns false where that failed, which has been told.
bool Carga(frmUEHs& f, const Siro& s)
{
    const std::string ruta = RutaImagen(s);
    const auto carga = [&] {
        static_cast<void>(s.Disco.Lee(ruta));  // names the fault of a file that isn't there
        const std::optional<Tamano> tamano = f.CargaImagen(ruta);
        if (!tamano) throw model::Falla{model::NumeroFalla::AccesoRuta};
        f.imagen = *tamano;
        f.rutaImagen = ruta;
    };
    return model::Sentencia(
        carga, [&](const model::Falla& falla) { model::Informa(s, model::TextoFallaMotor(falla) + "."); });
}

}  // namespace

void AlternaImagen(frmUEHs& f, Siro& s)
{
    if (f.ImagenVisible) {
        f.imagen = {};
        f.rutaImagen.clear();
        f.cmdImagenUEHs = LeyendaMostrar;
    } else {
        if (!Carga(f, s)) return;
        f.cmdImagenUEHs = LeyendaQuitar;
    }
    f.ImagenVisible = !f.ImagenVisible;
    LimpiaSeleccion(s);
    model::LeeUEHs(s);
    f.guardada = true;  // memory and files agree again
    Redibuja(f, s);
}

}  // namespace editor
