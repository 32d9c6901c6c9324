// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

namespace rainfall {

/// A recorded storm of the project; its depths a line each.
inline void PonTormenta(apoyo::DiscoPrueba& disco, const std::string& nombre, const std::string& notas, int n,
                        int paso, const std::string& laminas)
{
    disco.Pon("/proyectos/" + nombre,
              "\"" + notas + "\"\r\n" + std::to_string(n) + "," + std::to_string(paso) +
                  "\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"01:00\"\r\n" + laminas);
}

/// A project with a list of two storms, a real storm of three intervals, tables of P-D-R 0 (two storms) and 1
/// (one), personal distributions 1 (two periods, 30 to 120 min), 2 (three, up to 360 min) and 3 (none).
inline void PonProyectoDeLluvia(model::Siro& s, apoyo::DiscoPrueba& disco)
{
    s.Disco = disco.Puerta();
    s.Proyecto.DirTrabajo = "/trabajo";
    s.Proyecto.DirProyecto = "/proyectos";
    s.Configuracion.TituloProyecto = "Arroyo de prueba";
    s.Configuracion.ListaRec = {0, 2, 10, 50};
    disco.PonDirectorio("/trabajo");
    disco.Pon("/proyectos/ListaPDR.vlm", "30,20,5\r\n80,120,50\r\n");
    PonTormenta(disco, "Velmir_pt.vlm", "Llovizna", 3, 20, "5\r\n10\r\n2.5\r\n");
    disco.Pon("/trabajo/TablasPDRs_pdr.vlm",
              "2,1,0,0\r\n\"t0\"\r\n30,60,2\r\n40,90,5\r\n\"t1\"\r\n25,45,10\r\n\"t2\"\r\n\"t3\"\r\n");
    disco.Pon("/trabajo/distriPp_dpt.vlm",
              "2,3,0\r\n\"n1\"\r\n30,120\r\n40\r\n60\r\n\"n2\"\r\n0,360\r\n50\r\n30\r\n20\r\n\"n3\"\r\n0,"
              "0\r\n");
}

}  // namespace rainfall
