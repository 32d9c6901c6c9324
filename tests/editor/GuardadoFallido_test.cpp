// SPDX-License-Identifier: GPL-3.0-or-later
//
// The editor over a disk that refuses: whatever call of a command fails, the files hold the old network or
// the new one, the drawing stays, and what was done can be undone.

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "model/Componentes.h"

namespace {

using editor::Boton;
using model::Icono;
using model::Mensaje;
using model::NumeroFalla;
using T = editor::Tecla;
using Nombres = std::vector<std::string>;

const Mensaje SinAcceso = {"Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique", "",
                           Icono::Ninguno};

struct GuardadoFallido : EditorDePrueba {
    GuardadoFallido()
    {
        red.Cauce("c-1", {{100, 300}, {200, 200}});
        red.Cauce("c-2", {{300, 300}, {250, 250}, {200, 200}});
        for (const char* const nombre : {"u-1", "u-2", "u-3"})
            red.UEH(nombre, {250, 150});
        red.Represa("r-1", {500, 100});
        red.Represa("r-2", {520, 100});
        red.Lago("l-1", {600, 100});
        Guarda();
        viejo = {disco.Bytes(UEHs), disco.Bytes(VerCau)};
    }
    [[nodiscard]] Nombres Archivos() const { return {disco.Bytes(UEHs), disco.Bytes(VerCau)}; }
    [[nodiscard]] Nombres NombresUEH() const
    {
        Nombres nombres;
        for (const auto& u : s.Red.ColUEHs)
            nombres.push_back(u.NombreUEH);
        return nombres;
    }
    /// No file of the network may be written from now on.
    void Niega() { disco.Protege(VerCau); }
    void Permite() { disco.Protege(VerCau, false); }

    const std::string UEHs = "/proy/Arroyo_UEHs.vlm", VerCau = "/proy/Arroyo_VerCau.vlm";
    Nombres viejo{};
};

TEST_F(GuardadoFallido, ElBotonDejaArchivosMemoriaYDeshacer)
{
    editor::Evento(f, s, [&] { s.Red.ColUEHs.Item(1).Area = 12; });
    editor::Evento(f, s, [&] { s.Red.ColUEHs.Item(2).Area = 34; });
    s.Red.ColCauces.Item(1).OrdenCauce = 9;  // a save works it out anew
    editor::Asienta(f, s);
    const auto cauces = s.Red.ColCauces;
    Niega();
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_EQ(Avisos(), Cajas{SinAcceso});
    EXPECT_EQ(Archivos(), viejo);
    EXPECT_TRUE(f.cambiada);
    EXPECT_TRUE(s.Red.ColCauces == cauces);
    EXPECT_EQ(f.historia.anteriores.size(), 2U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(2).Area, 0);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
    Tecla(T::Rehacer);
    Permite();
    anfitrion->sucesos.clear();
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_FALSE(f.cambiada);
    EXPECT_NE(Archivos(), viejo);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
    EXPECT_EQ(s.Red.ColUEHs.Item(2).Area, 34);
    EXPECT_EQ(Faltas(), Nombres{});
}

TEST_F(GuardadoFallido, ElTrazoSinTerminarSigueEnLaMano)
{
    PonModo(Boton::Cauce);
    Clic(700, 700);
    Clic(710, 690);
    Niega();
    PonModo(Boton::GuardaUEHs);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(s.Red.NroCauces(), 3);
    EXPECT_EQ(Vertice(3, 2), (editor::Punto{710, 690}));
    EXPECT_EQ(Faltas(), Nombres{});
}

TEST_F(GuardadoFallido, AlCerrarLaVentanaQueda)
{
    editor::Evento(f, s, [&] { s.Red.ColUEHs.Item(1).Area = 12; });
    Niega();
    // No to what the network lacks, yes to the save.
    s.Anfitrion.Pregunta = [](const Mensaje& m) {
        return m.titulo == "Resguardo de datos de componentes UEHs";
    };
    Tecla(T::Esc);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Archivos(), viejo);
    const Cajas vistas = Avisos();
    EXPECT_EQ(std::count(vistas.begin(), vistas.end(), SinAcceso), 1);
}

TEST_F(GuardadoFallido, LoBorradoQuedaBorradoConLosNumerosCerradosYSeDeshace)
{
    Niega();
    s.Seleccion.UEHSel = 1;
    Tecla(T::Suprimir);
    EXPECT_EQ(Avisos(), Cajas{SinAcceso});
    EXPECT_EQ(NombresUEH(), (Nombres{"u-2", "u-3"}));
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-2");
    EXPECT_EQ(s.Red.UEHs(1).numUEH, 1);
    EXPECT_EQ(s.Red.NroUEHs(), 2);
    EXPECT_EQ(Archivos(), viejo);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Faltas(), Nombres{});
    Tecla(T::Deshacer);
    EXPECT_EQ(NombresUEH(), (Nombres{"u-1", "u-2", "u-3"}));
    EXPECT_EQ(Faltas(), Nombres{});
}

TEST_F(GuardadoFallido, VariosBorradosALaVezSeDicenUnaVez)
{
    Niega();
    s.Seleccion.CauceSel = 1;
    s.Seleccion.UEHSel = 3;
    s.Seleccion.RepresaSel = 2;
    s.Seleccion.LagoSel = 1;
    Tecla(T::Suprimir);
    const Cajas vistas = Avisos();
    EXPECT_EQ(std::count(vistas.begin(), vistas.end(), SinAcceso), 1);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(NombresUEH(), (Nombres{"u-1", "u-2"}));
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 0);
    EXPECT_EQ(Archivos(), viejo);
    EXPECT_EQ(Faltas(), Nombres{});
}

/// A command whose n-th call of the disk fails.
struct Orden {
    const char* que;
    void (*hace)(GuardadoFallido&);
    int uehs;  ///< how many there are afterwards, saved or not
};

const std::vector<Orden> Ordenes{
    {"save", [](GuardadoFallido& e) { editor::ToolbarUEHs_ButtonClick(e.f, e.s, Boton::GuardaUEHs); }, 3},
    {"delete a UEH",
     [](GuardadoFallido& e) {
         e.s.Seleccion.UEHSel = 2;
         e.Tecla(T::Suprimir);
     },
     2},
    {"delete a reach",
     [](GuardadoFallido& e) {
         e.s.Seleccion.CauceSel = 1;
         e.Tecla(T::Suprimir);
     },
     3}};

TEST_F(GuardadoFallido, CadaLlamadaAlDiscoQueFallaDejaLosArchivosEnterosYElDibujo)
{
    for (const Orden& orden : Ordenes)
        for (const NumeroFalla numero : {NumeroFalla::AccesoRuta, NumeroFalla::RutaNoEsta}) {
            int n = 0;
            for (bool hubo = true; hubo;) {
                ASSERT_LT(++n, 20) << orden.que;
                disco.Pon(UEHs, viejo[0]);
                disco.Pon(VerCau, viejo[1]);
                model::LeeUEHs(s);
                Parte();
                anfitrion->sucesos.clear();
                disco.FallaEn(n, numero);
                orden.hace(*this);
                hubo = disco.HuboFalla();
                disco.DejaDeFallar();
                EXPECT_EQ(s.Red.ColUEHs.Cuenta(), orden.uehs) << orden.que << ", call " << n;
                EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 2) << orden.que << ", call " << n;
                EXPECT_EQ(Faltas(), Nombres{}) << orden.que << ", call " << n;
                EXPECT_EQ(Avisos().size(), n > 1 && hubo ? 2U : 1U) << orden.que << ", call " << n;
                EXPECT_TRUE(n > 1 || Archivos() == viejo) << orden.que;
                // What is in memory can be saved as it is.
                editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
                model::LeeUEHs(s);
                EXPECT_EQ(s.Red.ColUEHs.Cuenta(), orden.uehs) << orden.que << ", call " << n;
                EXPECT_EQ(s.Red.ColCauces.Cuenta(), s.Red.NroCauces());
            }
            EXPECT_GE(n, 2) << orden.que;
        }
}

TEST_F(GuardadoFallido, UnaRedQueNoSePudoLeerNoSeBorraAlGuardarDosVeces)
{
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    model::LeeUEHs(s);
    disco.DejaDeFallar();
    ASSERT_TRUE(editor::RedVacia(s.Red));
    for (int i = 0; i < 2; ++i)
        editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_EQ(Archivos(), viejo);
    // The user who empties the drawing on purpose takes the files along.
    Responde({true});
    PonModo(Boton::BorraTodo);
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_FALSE(disco.Esta(UEHs));
}

TEST_F(GuardadoFallido, LasTablasDeComponentesQuedanAbiertasConLoEscrito)
{
    editor::dlgUEHsEditTabla tabla;
    editor::Abre(tabla, s);
    tabla.MSFlexGridEditUEHs.Pon({1, 5}, "77");
    Niega();
    Responde({true});
    editor::OKButton(tabla, s);
    EXPECT_TRUE(tabla.abierta);
    EXPECT_EQ(Archivos(), viejo);
    Permite();
    editor::OKButton(tabla, s);
    EXPECT_FALSE(tabla.abierta);
    EXPECT_NE(Archivos(), viejo);
}

}  // namespace
