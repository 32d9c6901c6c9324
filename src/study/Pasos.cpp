// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Pasos.h"

namespace study {

void Toma(Pasos& f)
{
    f.TomaEnMano();
    const auto leyenda = [](std::string_view orden, const std::string& que) {
        return que.empty() ? std::string(orden) : std::string(orden) + ": " + que;
    };
    f.cmdDeshacer = leyenda("Deshacer", f.estudio.PorDeshacer());
    f.cmdRehacer = leyenda("Rehacer", f.estudio.PorRehacer());
    f.lblArchivo = f.estudio.Archivo().texto;
    f.danado = f.estudio.Archivo().clase == EstadoDeArchivo::Clase::Danado;
}

void CambiaEstudio(Pasos& f, std::string_view leyenda, const std::function<void(Estudio&)>& cambio)
{
    if (!FaltaProyecto(f).empty()) return;
    Estudio nuevo = f.estudio.EnMano();
    cambio(nuevo);
    f.estudio.Cambia(std::string(leyenda), std::move(nuevo));
    Toma(f);
}

void cmdDeshacer(Pasos& f)
{
    f.estudio.Deshace();
    Toma(f);
}

void cmdRehacer(Pasos& f)
{
    f.estudio.Rehace();
    Toma(f);
}

void cmdArchivo(Pasos& f)
{
    if (f.danado)
        f.estudio.ApartaDanado();
    else
        f.estudio.Reintenta();
    Toma(f);
}

void OKButton(Pasos& f)
{
    f.abierta = false;
}

std::string FaltaProyecto(const Pasos& f)
{
    if (f.estudio.Archivo().clase != EstadoDeArchivo::Clase::SinProyecto) return {};
    return "No hay un proyecto abierto. El taller guarda sus datos junto a los del proyecto: abra uno, o "
           "cree uno nuevo, desde el menú Archivo.";
}

}  // namespace study
