// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Arranque.h"

#include "model/Configuracion.h"
#include "model/DirPropio.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace shell {

using model::Siro;

std::string TextoVersion(std::string_view version)
{
    return std::string("Version ").append(version);
}

void Prepara(Siro& s, const Portada& portada, std::string_view version, double segundosPortada)
{
    s.Control.SalidaPizarra = false;
    s.Control.ErrorRed = s.Control.RedOk = s.Serie.SaltarTormenta = false;
    s.Control.AvisoDescargasVisto = s.Control.ContinuarSinCorregir = false;
    s.Proyecto.ProyectoNuevo = s.Proyecto.ConfPendiente = false;
    model::LimpiaProyecto(s);
    s.Proyecto.NombreProyecto = ProyectoPorDefecto;

    portada.Abre(TextoVersion(version));
    const double desde = s.Anfitrion.Reloj();
    do {
        portada.AtiendeSucesos();
    } while (s.Anfitrion.Reloj() - desde < segundosPortada);
    portada.Cierra();

    model::LeePuntero(s);
}

void AlAbrirse(MDIForm1& f, Siro& s)
{
    Abre(f);
    model::RecuperaGuardado(s, s.Proyecto.DirTrabajo);
    model::AvisaEntregaPendiente(s);
    if (s.Proyecto.NombreProyecto.empty()) return;
    f.Estado(Variable::mnu_ultimoarchivo1).leyenda =
        model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto).append(model::TerminacionConf);
    s.Proyecto.ConfPendiente = true;
    s.Proyecto.NombreProyecto.clear();
}

}  // namespace shell
