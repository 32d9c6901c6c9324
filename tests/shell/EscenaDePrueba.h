// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Disco.h"
#include "shell/MDIForm1.h"

namespace shell {

inline const std::string Programa = model::Ruta("", "programa");
inline const std::string Proyectos = model::Ruta(Programa, "Proyectos");
inline const std::string Puntero = model::Ruta(Programa, "VelmirDir.vlm");

inline std::string BytesPuntero(const std::string& directorio, const std::string& nombre)
{
    return "\"" + directorio + "\"\r\n\"" + nombre + "\"\r\n";
}

inline std::string_view Nombre(Ventana ventana)
{
    constexpr std::string_view nombres[] = {"frmUEHs",
                                            "dlgUEHsEditTabla",
                                            "dlgUEHsTabla",
                                            "dlgPp",
                                            "frmPp",
                                            "dlgChart2",
                                            "dlgChart3",
                                            "dlgTablaSalePDR",
                                            "dlgTablaSalePDR2",
                                            "dlgEmpiricas",
                                            "Avisos",
                                            "Resumen",
                                            "Comparar",
                                            "CompararCorridas",
                                            "Mapa",
                                            "Revisar",
                                            "Verificar",
                                            "Corridas",
                                            "Taller",
                                            "Ajuste",
                                            "Memoria",
                                            "dlgAnteriores",
                                            "frmConfigura",
                                            "dlgEliminarProyecto",
                                            "frmAcerca",
                                            "Busca"};
    static_assert(std::size(nombres) == static_cast<std::size_t>(Ventana::Busca) + 1);
    return nombres[static_cast<std::size_t>(ventana)];
}

/// The rules of the main window on a disk in memory, with a scripted user. What the commands ask of the
/// desktop is a line each, in order; progress and boxes stand among them.
struct EscenaDePrueba : testing::Test {
    EscenaDePrueba()
    {
        disco.PonDirectorio(Proyectos);
        s.Disco = disco.Puerta();
        s.Proyecto.DirEjecutable = Programa;
        s.Proyecto.DirTrabajo = Programa;
        s.Proyecto.DirProyecto = Proyectos;
        ConectaAnfitrion();
        ConectaMandos();
        Abre(f);
    }

    model::Siro s{};
    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    MDIForm1 f{};
    Mandos m{};
    std::vector<std::string> pedidos{};
    bool visorToma = true;  ///< the system's viewer takes what it is given

    using Lista = std::vector<std::string>;

    const FilaMenu& Entrada(std::string_view nombre) const
    {
        const auto filas = MenuMDIForm1();
        const auto fila =
            std::find_if(filas.begin(), filas.end(), [&](const FilaMenu& e) { return e.nombre == nombre; });
        if (fila == filas.end()) throw std::runtime_error(std::string(nombre));
        return *fila;
    }
    const FilaBarra& Boton(std::string_view clave) const
    {
        const auto filas = tbToolBar();
        const auto fila =
            std::find_if(filas.begin(), filas.end(), [&](const FilaBarra& b) { return b.clave == clave; });
        if (fila == filas.end()) throw std::runtime_error(std::string(clave));
        return *fila;
    }
    /// Runs what an entry of the menu runs, and gives back what it asked for.
    Lista Elige(std::string_view nombre) { return Corre(Entrada(nombre).rutina); }
    Lista Pulsa(std::string_view clave) { return Corre(Boton(clave).rutina); }
    Lista Corre(Rutina rutina)
    {
        pedidos.clear();
        if (rutina != nullptr) rutina(f, s, m);
        return pedidos;
    }
    EstadoEntrada& Pizarra() { return f.Estado(Variable::mnuPizarra1); }
    void PonProyecto() { s.Proyecto.NombreProyecto = "Mio"; }

  private:
    void ConectaAnfitrion()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Anfitrion.MarcaPizarra = [this] { return Pizarra().marcada; };
        s.Anfitrion.PonMarcaPizarra = [this](bool marca) { Pizarra().marcada = marca; };
        s.Anfitrion.AbreAvance = [this](std::string_view t) {
            pedidos.push_back("avance " + std::string(t));
        };
        s.Anfitrion.TextosAvance = [this](std::string_view a, std::string_view b) {
            pedidos.push_back("textos " + std::string(a) + "|" + std::string(b));
        };
        s.Anfitrion.CierraAvance = [this] { pedidos.emplace_back("cierra avance"); };
    }
    void ConectaMandos()
    {
        m.Abre = [this](Ventana v) { pedidos.push_back("abre " + std::string(Nombre(v))); };
        m.AbreSinEsperar = [this](Ventana v) { pedidos.push_back("muestra " + std::string(Nombre(v))); };
        m.Cierra = [this](Ventana v) { pedidos.push_back("cierra " + std::string(Nombre(v))); };
        m.AbreHietograma = [this](const results::Hietograma& h) {
            pedidos.push_back("hietograma " + h.titulo + " " + std::to_string(h.N) + "x" +
                              std::to_string(h.paso));
        };
        m.NotasDeTormenta = [] { return std::string("notas"); };
        m.PunteroDeEspera = [this](bool espera) { pedidos.emplace_back(espera ? "espera" : "no espera"); };
        m.AbreConElSistema = [this](const std::string& ruta) {
            pedidos.push_back("sistema " + ruta);
            return visorToma;
        };
        m.AbrePaginaDeAyuda = [this](const std::string& ruta) { pedidos.push_back("pagina " + ruta); };
    }
};

}  // namespace shell
