// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "editor/Destinos.h"
#include "forms/CampoNumerico.h"
#include "model/Componentes.h"
#include "model/Siro.h"

// A network for the tests of the property forms, and what all of them check of number fields.
namespace editor {

using Textos = std::vector<std::string>;
using Cajas = std::vector<model::Mensaje>;

/// Reaches c-1 (vertices 10,10; 13,14; 16,18), c-2 (16,18; 30,20) and c-3 (no destination), units u-1 to u-3,
/// dams r-1 (table from 100.3 to 110.7 m, whose 32-bit floats lie inside both decimals) and r-2 (no table),
/// lakes l-1 (from 1 to 2.5 m) and l-2 (no table). u-1, r-1, l-1 and c-2 drain to c-1.
struct RedDeFichas : testing::Test {
    RedDeFichas()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        disco.PonDirectorio("/proy");
        disco.Pon("/proy/Arroyo_RHAS.vlm", "\"*r-1\",3,\"*\"\r\n100.3,1,0\r\n105,2,1000\r\n110.7,3,2000\r\n");
        disco.Pon("/proy/Arroyo_LHASQ.vlm", "\"*l-1\",2,\"*\",\"*\"\r\n1,10,0,0\r\n2.5,20,5000,3\r\n");
        s.Red.XVertice.Dimensiona(70, 10);
        s.Red.YVertice.Dimensiona(70, 10);
        PonCauce("c-1", "0", {{10, 10}, {13, 14}, {16, 18}});
        PonCauce("c-2", "c-1", {{16, 18}, {30, 20}});
        PonCauce("c-3", "0", {{50, 50}, {60, 60}});
        for (const char* nombre : {"u-1", "u-2", "u-3"})
            s.Red.ColUEHs.Agrega(
                {.NombreUEH = nombre, .Metodo = "Directo", .numUEH = Siguiente(s.Red.ColUEHs)});
        for (const char* nombre : {"r-1", "r-2"})
            s.Red.ColRepresas.Agrega({.NombreRepresa = nombre,
                                      .numRepresa = Siguiente(s.Red.ColRepresas),
                                      .IconoRepresaX = 71,
                                      .IconoRepresaY = 72,
                                      .Metodo = "Piscina Nivelada",
                                      .optTabla = true});
        for (const char* nombre : {"l-1", "l-2"})
            s.Red.ColLagos.Agrega({.NombreLAGO = nombre,
                                   .numLAGO = Siguiente(s.Red.ColLagos),
                                   .IconoLAGOx = 81,
                                   .IconoLAGOy = 82,
                                   .Metodo = "Piscina Nivelada"});
        s.Red.UEHs(1).Cauce_aa = s.Red.Represas(1).Cauce_aa = s.Red.Lagos(1).Cauce_aa = "c-1";
    }

    void PonCauce(const char* nombre, const char* destino, const std::vector<std::pair<float, float>>& puntos)
    {
        const std::int16_t n = Siguiente(s.Red.ColCauces);
        const auto vertices = static_cast<std::int16_t>(puntos.size());
        s.Red.ColCauces.Agrega(
            {.numCauce = n, .numVertices = vertices, .NombreCauce = nombre, .Cauce_aa = destino});
        PonVertices(n, puntos);
    }
    void PonVertices(int cauce, const std::vector<std::pair<float, float>>& puntos)
    {
        s.Red.NroVertices(cauce) = s.Red.Cauces(cauce).numVertices = static_cast<std::int16_t>(puntos.size());
        for (int j = 1; j <= s.Red.NroVertices(cauce); ++j) {
            s.Red.XVertice(cauce, j) = puntos[static_cast<std::size_t>(j) - 1].first;
            s.Red.YVertice(cauce, j) = puntos[static_cast<std::size_t>(j) - 1].second;
        }
    }
    std::pair<float, float> PrimerVertice(int cauce) const
    {
        return {s.Red.XVertice(cauce, 1), s.Red.YVertice(cauce, 1)};
    }
    template <typename Componentes>
    static std::int16_t Siguiente(const Componentes& componentes)
    {
        return static_cast<std::int16_t>(componentes.Cuenta() + 1);
    }
    Cajas Avisos() const { return anfitrion->Avisos(); }

    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
};

/// Line of an entry in a list; the test fails where it isn't there.
inline int LineaDe(const Lista& lista, std::string_view entrada)
{
    const auto lugar = std::find(lista.items.begin(), lista.items.end(), entrada);
    EXPECT_NE(lugar, lista.items.end()) << entrada;
    return static_cast<int>(lugar - lista.items.begin());
}

/// What a number field takes: texts just inside its limit, at it and just outside, and what it says then.
struct CasoLimite {
    const char* control;
    const char* dentro;
    const char* limite;
    const char* fuera;
    const char* mensaje;
};

inline void PrintTo(const CasoLimite& caso, std::ostream* salida)
{
    *salida << caso.control;
}

inline std::string NombreDeCaso(const testing::TestParamInfo<CasoLimite>& caso)
{
    return caso.param.control;
}

/// Leaves the field with each text in turn and checks what becomes of it. `icono` is that of the box, which
/// has no title.
template <typename Forma>
void VerificaLimite(Forma& f, model::Siro& s, apoyo::AnfitrionPrueba& anfitrion, const CasoLimite& caso,
                    std::string Forma::*texto, model::Icono icono)
{
    for (const char* valor : {caso.dentro, caso.limite, "0", " 0.25 "}) {
        f.*texto = valor;
        EXPECT_TRUE(AlSalir(f, s, caso.control)) << valor;
        EXPECT_EQ(f.*texto, valor);
        EXPECT_EQ(f.foco, forms::Foco{}) << valor;
        EXPECT_TRUE(anfitrion->sucesos.empty()) << valor;
    }
    f.*texto = "0,25";
    EXPECT_TRUE(AlSalir(f, s, caso.control));
    EXPECT_EQ(f.*texto, "0.25");
    for (const char* valor : {caso.fuera, "-0.01", "", "abc", "1x", "1.2.3", "1E999"}) {
        anfitrion->sucesos.clear();
        f.*texto = valor;
        EXPECT_FALSE(AlSalir(f, s, caso.control)) << valor;
        EXPECT_EQ(anfitrion->Avisos(), (Cajas{{caso.mensaje, "", icono}})) << valor;
        EXPECT_EQ(f.*texto, valor);
    }
    anfitrion->sucesos.clear();
}

/// Member of a form's record by the name of its control.
template <typename Forma, typename Campos>
std::string Forma::*MiembroDe(const Campos& campos, std::string_view control)
{
    for (const auto& campo : campos)
        if (campo.regla.control == control) return campo.texto;
    ADD_FAILURE() << "no field " << control;
    return campos[0].texto;
}

/// The caption of a control.
template <typename Rotulos>
std::string RotuloDe(const Rotulos& rotulos, std::string_view control)
{
    for (const auto& fila : rotulos)
        if (fila.control == control) return std::string(fila.leyenda);
    ADD_FAILURE() << "no caption of " << control;
    return {};
}

/// What typing a text into the name and leaving it makes of the text.
struct CasoNombre {
    std::string escrito, queda;
};

}  // namespace editor
