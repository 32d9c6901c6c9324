// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "editor/frmUEHs.h"
#include "engine/ComponenteFinal.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace editor {

inline void PrintTo(const Punto& p, std::ostream* salida)
{
    *salida << '(' << p.X << ", " << p.Y << ')';
}

}  // namespace editor

using Cajas = std::vector<model::Mensaje>;

/// A network that a test builds in a few lines; names, numbers and vertices are kept in step.
struct RedHecha {
    model::Siro& s;

    void Cauce(const std::string& nombre, std::vector<editor::Punto> vertices,
               const std::string& destino = "0")
    {
        const int n = s.Red.ColCauces.Cuenta() + 1;
        const int cuenta = static_cast<int>(vertices.size());
        s.Red.ColCauces.Agrega({.numCauce = static_cast<std::int16_t>(n),
                                .numVertices = static_cast<std::int16_t>(cuenta),
                                .NombreCauce = nombre,
                                .Cauce_aa = destino,
                                .optDirMusk = true});
        s.Red.NroVertices(n) = static_cast<std::int16_t>(cuenta);
        for (auto* v : {&s.Red.XVertice, &s.Red.YVertice}) {
            if (v->UltimaFila() < model::MaxCauces) v->Dimensiona(model::MaxCauces, cuenta);
            if (v->TopeColumna() < cuenta) v->Redimensiona(cuenta);
        }
        for (int j = 1; j <= cuenta; ++j) {
            s.Red.XVertice(n, j) = vertices[static_cast<std::size_t>(j) - 1].X;
            s.Red.YVertice(n, j) = vertices[static_cast<std::size_t>(j) - 1].Y;
        }
        std::int16_t indice = 1;
        for (auto& c : s.Red.ColCauces) {
            c.IndiceParInicial = indice;
            indice = static_cast<std::int16_t>(indice + c.numVertices);
        }
    }
    void UEH(const std::string& nombre, editor::Punto en, const std::string& destino = "",
             editor::Punto drena = {})
    {
        s.Red.ColUEHs.Agrega({.NombreUEH = nombre,
                              .Metodo = "Directo",
                              .numUEH = static_cast<std::int16_t>(s.Red.ColUEHs.Cuenta() + 1),
                              .IconoUEHx = en.X,
                              .IconoUEHy = en.Y,
                              .XCauce = drena.X,
                              .YCauce = drena.Y,
                              .Cauce_aa = destino});
    }
    void Represa(const std::string& nombre, editor::Punto en, const std::string& destino = "",
                 editor::Punto drena = {})
    {
        s.Red.ColRepresas.Agrega({.NombreRepresa = nombre,
                                  .numRepresa = static_cast<std::int16_t>(s.Red.ColRepresas.Cuenta() + 1),
                                  .IconoRepresaX = en.X,
                                  .IconoRepresaY = en.Y,
                                  .Metodo = "Piscina Nivelada",
                                  .XCauce = drena.X,
                                  .YCauce = drena.Y,
                                  .Cauce_aa = destino,
                                  .optTabla = true});
    }
    void Lago(const std::string& nombre, editor::Punto en, const std::string& destino = "",
              editor::Punto drena = {})
    {
        s.Red.ColLagos.Agrega({.NombreLAGO = nombre,
                               .numLAGO = static_cast<std::int16_t>(s.Red.ColLagos.Cuenta() + 1),
                               .IconoLAGOx = en.X,
                               .IconoLAGOy = en.Y,
                               .XCauce = drena.X,
                               .YCauce = drena.Y,
                               .Metodo = "Directo",
                               .Cauce_aa = destino});
    }
};

/// What must hold of the network after every act of the user; tells what doesn't.
inline std::vector<std::string> VerificaRed(const editor::frmUEHs& f, const model::Siro& s)
{
    std::vector<std::string> faltas;
    const auto exige = [&](bool vale, const std::string& que) {
        if (!vale) faltas.push_back(que);
    };
    exige(s.Red.NroUEHs() == s.Red.ColUEHs.Cuenta(), "NroUEHs");
    exige(s.Red.NroLagos() == s.Red.ColLagos.Cuenta(), "NroLagos");
    exige(s.Red.NroRepresas() == s.Red.ColRepresas.Cuenta(), "NroRepresas");
    exige(s.Red.NroCauces() == s.Red.ColCauces.Cuenta() + (f.trazo.ClicsCauce > 0 ? 1 : 0), "NroCauces");
    exige(s.Red.ColUEHs.Cuenta() <= model::MaxUEHs && s.Red.ColCauces.Cuenta() <= model::MaxCauces &&
              s.Red.ColLagos.Cuenta() <= model::MaxLagos && s.Red.ColRepresas.Cuenta() <= model::MaxRepresas,
          "limits");

    const auto unicos = [&](const auto& coleccion, auto nombre, std::string_view prefijo) {
        std::set<std::string> vistos;
        for (const auto& c : coleccion) {
            const std::string& n = c.*nombre;
            if (n.empty()) continue;  // a reach whose name was cancelled
            exige(vistos.insert(n).second, "twice: " + n);
            // A part of a reach without a name has the suffix alone.
            exige(n.starts_with(prefijo) || (prefijo == "c-" && n.starts_with("-.-")), "prefix: " + n);
        }
    };
    unicos(s.Red.ColUEHs, &model::UEH::NombreUEH, "u-");
    unicos(s.Red.ColCauces, &model::Cauce::NombreCauce, "c-");
    unicos(s.Red.ColRepresas, &model::Represa::NombreRepresa, "r-");
    unicos(s.Red.ColLagos, &model::Lago::NombreLAGO, "l-");
    for (const auto& u : s.Red.ColUEHs)
        exige(!u.NombreUEH.empty(), "a UEH without a name");
    for (const auto& r : s.Red.ColRepresas)
        exige(!r.NombreRepresa.empty(), "a Represa without a name");
    for (const auto& l : s.Red.ColLagos)
        exige(!l.NombreLAGO.empty(), "a Lago without a name");

    int n = 0;
    for (const auto& u : s.Red.ColUEHs)
        exige(u.numUEH == ++n, "numUEH of " + u.NombreUEH);
    n = 0;
    for (const auto& r : s.Red.ColRepresas)
        exige(r.numRepresa == ++n, "numRepresa of " + r.NombreRepresa);
    n = 0;
    for (const auto& l : s.Red.ColLagos)
        exige(l.numLAGO == ++n, "numLAGO of " + l.NombreLAGO);
    n = 0;
    for (const auto& c : s.Red.ColCauces) {
        exige(c.numCauce == ++n, "numCauce of " + c.NombreCauce);
        exige(c.numVertices == s.Red.NroVertices(n), "vertices of " + c.NombreCauce);
        exige(c.numVertices >= 2, "less than two vertices: " + c.NombreCauce);
        exige(s.Red.XVertice.TopeColumna() >= c.numVertices && s.Red.YVertice.TopeColumna() >= c.numVertices,
              "vertex bound of " + c.NombreCauce);
    }

    exige(s.Seleccion.UEHSel >= 0 && s.Seleccion.UEHSel <= s.Red.ColUEHs.Cuenta(), "UEHSel");
    exige(s.Seleccion.LagoSel >= 0 && s.Seleccion.LagoSel <= s.Red.ColLagos.Cuenta(), "LagoSel");
    exige(s.Seleccion.RepresaSel >= 0 && s.Seleccion.RepresaSel <= s.Red.ColRepresas.Cuenta(), "RepresaSel");
    exige(s.Seleccion.CauceSel >= 0 && s.Seleccion.CauceSel <= s.Red.ColCauces.Cuenta(), "CauceSel");
    exige(s.Seleccion.CauceAnterior >= 0 && s.Seleccion.CauceAnterior <= s.Red.ColCauces.Cuenta(),
          "CauceAnterior");
    exige(s.Seleccion.VerticeSel == 0 ||
              (s.Seleccion.CauceSel > 0 && s.Seleccion.VerticeSel <= s.Red.NroVertices(s.Seleccion.CauceSel)),
          "VerticeSel");

    int modos = 0;
    for (const auto& fila : editor::BotonesUEHs)
        if (fila.modo && f.Abajo(fila.boton)) ++modos;
    exige(modos == 1, "one mode button down");

    if (f.abierta) {
        int iconos = 0, cauces = 0;
        for (const auto& p : f.dibujo.Primitivas()) {
            if (p.papel == editor::Papel::Icono) ++iconos;
            if (p.papel == editor::Papel::Cauce) ++cauces;
        }
        exige(iconos == s.Red.NroUEHs() + s.Red.NroLagos() + s.Red.NroRepresas(), "icons drawn");
        exige(cauces == s.Red.NroCauces(), "reaches drawn");
    }
    return faltas;
}

/// The editor opened on the empty project "Arroyo" of "/proy", with a user who follows a script.
/// EscalaBase is 800, so that at 100 % the canvas is 800 by 800; its pixels are drawing units.
struct EditorDePrueba : ::testing::Test {
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    editor::frmUEHs f{};
    RedHecha red{s};

    EditorDePrueba()
    {
        disco.PonDirectorio("/proy");
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = "/proy";
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Anfitrion.RedibujaEditor = [this] { editor::Redibuja(f, s); };
        s.frmConfigura.txtEscalaImagen = "2";
        model::cmdAplicar(s);
        Abre();
        // That of the configuration. Where there are drives this project has moved, by a path that tells
        // none: it is saved once more as it opens.
        EXPECT_EQ(Avisos().size(), model::HayUnidades ? 2U : 1U);
        anfitrion->sucesos.clear();
    }
    void Abre()
    {
        editor::Abre(f, s, {1000, 1000});
        f.vista.lienzo = {800, 800};
    }
    /// Takes what the test has put in memory for the network that the editor starts from.
    void Parte()
    {
        editor::Redibuja(f, s);
        editor::EmpiezaHistoria(f.historia, s.Proyecto.NombreProyecto, s.Red, f.trazo);
    }
    /// Takes it for the saved one too.
    void Guarda()
    {
        model::GuardaRed(s);
        Parte();
        anfitrion->sucesos.clear();
    }

    // --- the user ---
    void PonModo(editor::Boton modo) { editor::ToolbarUEHs_ButtonClick(f, s, modo); }
    void Aprieta(float x, float y)
    {
        editor::picDibujo_MouseDown(f, s, editor::BotonRaton::Izquierdo, {x, y});
    }
    void Mueve(float x, float y) { editor::picDibujo_MouseMove(f, s, {x, y}, true); }
    void Suelta(float x, float y) { editor::picDibujo_MouseUp(f, s, editor::BotonRaton::Izquierdo, {x, y}); }
    void Clic(float x, float y)
    {
        Aprieta(x, y);
        Suelta(x, y);
    }
    void DobleClic(float x, float y)
    {
        Clic(x, y);
        editor::picDibujo_DblClick(f, s);
        Suelta(x, y);
    }
    /// A drag from one point through others to the last.
    void Arrastra(std::vector<editor::Punto> camino)
    {
        Aprieta(camino.front().X, camino.front().Y);
        for (const editor::Punto p : camino)
            Mueve(p.X, p.Y);
        Suelta(camino.back().X, camino.back().Y);
    }
    void Tecla(editor::Tecla t)
    {
        const bool delLienzo = t <= editor::Tecla::Enter;
        if (delLienzo) {
            editor::picDibujo_KeyDown(f, s, t);
        } else {
            editor::Form_KeyDown(f, s, t);
        }
    }
    void Responde(std::initializer_list<bool> respuestas) { anfitrion->respuestas.assign(respuestas); }
    void Escribe(std::initializer_list<std::string> textos) { anfitrion->textos.assign(textos); }

    // --- what is seen ---
    [[nodiscard]] Cajas Avisos() const { return anfitrion->Avisos(); }
    [[nodiscard]] Cajas Preguntas() const { return anfitrion->Preguntas(); }
    [[nodiscard]] std::vector<std::string> Faltas() const { return VerificaRed(f, s); }
    [[nodiscard]] editor::Punto Vertice(int cauce, int vertice) const
    {
        return {s.Red.XVertice(cauce, vertice), s.Red.YVertice(cauce, vertice)};
    }
    /// Primitives that play a part.
    [[nodiscard]] std::vector<editor::Primitiva> Con(editor::Papel papel) const
    {
        std::vector<editor::Primitiva> r;
        for (const auto& p : f.dibujo.Primitivas())
            if (p.papel == papel) r.push_back(p);
        return r;
    }
    [[nodiscard]] std::vector<editor::Punto> PuntosDe(const editor::Primitiva& p) const
    {
        const auto puntos = f.dibujo.Puntos(p);
        return {puntos.begin(), puntos.end()};
    }
};
