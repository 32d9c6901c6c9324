// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/modProceso0.h"

#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "hydraulics/mdlFQs.h"
#include "model/ArchivoConf.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace engine {

using model::Siro;

namespace {

void AbrePizarra(Siro& s)
{
    s.Anfitrion.AbrePizarra();
    std::string texto;
    const auto renglon = [&](std::string_view t) { texto.append(t).append(model::SaltoLinea); };
    renglon("SIRO - Modelo de Simulación Hidrológica");
    renglon(model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto));
    renglon(s.Configuracion.TituloProyecto);
    renglon(s.Configuracion.Ubicacion);
    renglon(s.Configuracion.Cuenca);
    renglon(s.Configuracion.Subcuenca);
    renglon(s.Configuracion.Operador + " - " + s.Anfitrion.FechaHora());
    renglon("");
    renglon("SIMULACION LLUVIA-CAUDAL PARA UNA TORMENTA");
    s.Anfitrion.PonPizarra(texto);
}

}  // namespace

void CargaProyecto(Siro& s)
{
    model::leoConf(s);
    model::LeeUEHs(s);
    if (s.Red.NroRepresas() > 0) {
        model::LeeTablaHQRepresa(s);
        model::LeeTablaHSVRepresa(s);
    }
    if (s.Red.NroLagos() > 0) model::LeeTablaHSVQLago(s);
    s.Anfitrion.carga_lbl_proyecto();
    model::Sentencia([&] { hydraulics::CargaFQs(s.Red); }, model::AvisaMotor(s));
    if (s.Red.NroRepresas() >= 1) s.Anfitrion.HabilitaVerificacion();
}

bool CorreUnaTormenta(Siro& s)
{
    s.Anfitrion.PonPizarra("");
    s.Control.SalidaPizarra = s.Anfitrion.MarcaPizarra();
    if (s.Control.SalidaPizarra) AbrePizarra(s);
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return false;
    CargaProyecto(s);
    s.Control.AvisoDescargasVisto = true;
    ConstruyeHietograma(s);
    return ProcesoPrincipal(s, true);
}

}  // namespace engine
