// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "apoyo/Compara.h"
#include "model/Camino.h"
#include "model/Disco.h"
#include "model/RutaProyecto.h"

// A project small enough to be worked out by hand, written to a directory of its own that goes with the
// object.
//
// u-1 -> c-1 -> l-1, all of it exact in 32-bit floats or nearly so. u-1: 100 ha that neither retain nor
// infiltrate, 10 min long. So each 10 min step of a storm of 1 mm/min gives 10 mm, that is
// 10/10 * 0.166667 * 100 = 16.6667 m3/s, at output step k for rain step k (the trapezoid of 10 + 10 min has
// its only point at 10 min). c-1: a direct reach of 10 min, one step of delay. l-1: a level pool whose table
// spans 0.004 m, less than the bisection resolves, so that height, storage and outflow stay as they are at
// the start: 100 m, 1234 m3, 2.5 m3/s.
namespace prueba {

class ProyectoDePrueba {
  public:
    ProyectoDePrueba()
    {
        Escribe("Mio_Conf.vlm", TextoConf());
        Escribe("Mio_UEHs.vlm", TextoComponentes());
        Escribe("Mio_VerCau.vlm", "");
        Escribe("Mio_LHASQ.vlm", "\"*l-1\",2,\"*\",\"*\"\r\n100,1,1234,2.5\r\n100.004,1,1334,2.6\r\n");
    }
    ProyectoDePrueba(const ProyectoDePrueba&) = delete;
    ProyectoDePrueba& operator=(const ProyectoDePrueba&) = delete;

    [[nodiscard]] const std::string& Dir() const { return dir; }
    [[nodiscard]] std::string Ruta(std::string_view nombre) const { return model::Ruta(dir, nombre); }
    [[nodiscard]] std::string Conf() const { return Ruta("Mio_Conf.vlm"); }
    [[nodiscard]] bool Esta(std::string_view nombre) const
    {
        return std::filesystem::exists(model::Camino(Ruta(nombre)));
    }

    void Escribe(std::string_view nombre, std::string_view bytes) const
    {
        std::ofstream archivo(model::Camino(Ruta(nombre)), std::ios::binary);
        archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!archivo.flush()) throw std::runtime_error("can't write " + Ruta(nombre));
    }
    [[nodiscard]] std::string Lee(std::string_view nombre) const
    {
        std::ifstream archivo(model::Camino(Ruta(nombre)), std::ios::binary);
        if (!archivo) throw std::runtime_error("can't read " + Ruta(nombre));
        return {std::istreambuf_iterator<char>(archivo), {}};
    }
    /// Puts a text in the place of another that stands once in a file.
    void Cambia(std::string_view nombre, std::string_view antes, std::string_view ahora) const
    {
        std::string bytes = Lee(nombre);
        const std::size_t lugar = bytes.find(antes);
        if (lugar == std::string::npos || bytes.find(antes, lugar + 1) != std::string::npos)
            throw std::runtime_error("not once in the file: " + std::string(antes));
        Escribe(nombre, bytes.replace(lugar, antes.size(), ahora));
    }

    /// The 59 fields of the configuration; 10 min are simulated beyond the storm, every box is ticked.
    [[nodiscard]] std::string TextoConf() const
    {
        std::string conf =
            "\"Mio\"\r\n\"Titulo\"\r\n\"Lugar\"\r\n\"Cuenca\"\r\n\"Subcuenca\"\r\n\"Operadora\"\r\n"
            "\"01/02/2006\"\r\n\"" +
            model::UnidadDe(dir) + "\"\r\n\"" + dir +
            "\"\r\n\"\"\r\n1\r\n\"Mio_Conf.vlm\"\r\n0\r\n\"Ninguno\"\r\n\"100\"\r\n\"\"\r\n"
            "#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n0\r\n0\r\n#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n"
            "10\r\n\"800\"\r\n\"0\"\r\n";
        for (int i = 0; i < 14 + 17; ++i)
            conf += "1\r\n";
        return conf;
    }

  private:
    static std::string TextoComponentes()
    {
        return "\"Mio\"\r\n"
               // reach: number, name, vertices, first of them, destination, velocity, length, order, K, x,
               // direct
               "1\r\n1\r\n\"c-1\"\r\n0\r\n1\r\n\"l-1\"\r\n1\r\n600\r\n1\r\n0\r\n0\r\n#TRUE#\r\n"
               // UEH: number, name, area, note, length, velocity, method, icon, contact, destination,
               // a, b, prior time, Q0, K, retention
               "1\r\n1\r\n\"u-1\"\r\n100\r\n\"\"\r\n600\r\n1.0\r\n\"Directo\"\r\n0\r\n0\r\n0\r\n0\r\n\"c-"
               "1\"\r\n"
               "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"
               // no Represa
               "0\r\n"
               // Lago: number, name, note, method, icon, contact, destination, K, first height
               "1\r\n1\r\n\"l-1\"\r\n\"\"\r\n\"Piscina "
               "Nivelada\"\r\n0\r\n0\r\n0\r\n0\r\n\"0\"\r\n0\r\n100.000\r\n";
    }

    apoyo::CarpetaTemporal carpeta{};
    std::string dir = carpeta.Camino().string();
};

/// The CSV of a storm of 60 mm in 60 min with steps of 10 min: 7 output steps.
inline constexpr std::string_view CsvDeSesenta =
    "componente,p,minutos,qentra,qsale,h,s\n"
    "u-1,0,0,,0,,\n"
    "u-1,1,10,,16.6667,,\n"
    "u-1,2,20,,16.6667,,\n"
    "u-1,3,30,,16.6667,,\n"
    "u-1,4,40,,16.6667,,\n"
    "u-1,5,50,,16.6667,,\n"
    "u-1,6,60,,16.6667,,\n"
    "u-1,7,70,,0,,\n"
    "c-1,0,0,0,0,,\n"
    "c-1,1,10,16.6667,0,,\n"
    "c-1,2,20,16.6667,16.6667,,\n"
    "c-1,3,30,16.6667,16.6667,,\n"
    "c-1,4,40,16.6667,16.6667,,\n"
    "c-1,5,50,16.6667,16.6667,,\n"
    "c-1,6,60,16.6667,16.6667,,\n"
    "c-1,7,70,0,16.6667,,\n"
    "l-1,0,0,0,2.5,100,1234\n"
    "l-1,1,10,0,2.5,100,1234\n"
    "l-1,2,20,16.6667,2.5,100,1234\n"
    "l-1,3,30,16.6667,2.5,100,1234\n"
    "l-1,4,40,16.6667,2.5,100,1234\n"
    "l-1,5,50,16.6667,2.5,100,1234\n"
    "l-1,6,60,16.6667,2.5,100,1234\n"
    "l-1,7,70,16.6667,2.5,100,1234\n";

}  // namespace prueba
