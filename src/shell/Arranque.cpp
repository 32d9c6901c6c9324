// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Arranque.h"

#include "model/DirPropio.h"
#include "model/VidaProyecto.h"

namespace shell {

using model::Siro;

std::string TextoVersion(std::string_view version)
{
    return std::string("Version ").append(version);
}

void Prepara(Siro& s, const Portada& portada, std::string_view version, double segundosPortada)
{
    s.SalidaPizarra = false;
    s.ErrorRed = s.RedOk = s.SaltarTormenta = false;
    s.AvisoDescargasVisto = s.ContinuarSinCorregir = false;
    s.ProyectoNuevo = s.ConfPendiente = false;
    model::LimpiaProyecto(s);
    s.NombreProyecto = ProyectoPorDefecto;

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
    model::RecuperaGuardado(s, s.DirTrabajo);
    model::AvisaEntregaPendiente(s);
    if (s.NombreProyecto.empty()) return;
    f.Estado(Variable::mnu_ultimoarchivo1).leyenda =
        model::Ruta(s.DirProyecto, s.NombreProyecto).append(model::TerminacionConf);
    s.ConfPendiente = true;
    s.NombreProyecto.clear();
}

}  // namespace shell
