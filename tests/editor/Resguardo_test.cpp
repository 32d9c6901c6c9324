// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Resguardo.h"

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "editor/fichas/dlgUEHsTabla.h"

namespace {

using editor::Boton;
using model::Resguardo;
using model::Riesgo;

constexpr Riesgo Riesgos[] = {Riesgo::OtroProyecto, Riesgo::ReleeRed, Riesgo::MueveProyecto};

/// A sound network of one reach and one UEH, saved; the UEH is then moved by hand.
struct DibujoEnPeligro : EditorDePrueba {
    DibujoEnPeligro()
    {
        red.Cauce("c-1", {{100, 300}, {200, 200}});
        red.UEH("u-1", {250, 150}, "c-1", {200, 200});
        Guarda();
        anfitrion->respuestaDeSiempre = false;  // what the validation finds keeps nobody back
        s.Anfitrion.ResguardaDibujo = [this](Riesgo riesgo) { return editor::Resguarda(f, s, riesgo); };
    }
    void Cambia()
    {
        PonModo(Boton::UEH);
        Escribe({"2"});
        Clic(400, 400);
        ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 2);
        ASSERT_TRUE(f.cambiada);
        anfitrion->sucesos.clear();
    }
    [[nodiscard]] Cajas Resguardos() const { return anfitrion->Mensajes(apoyo::Suceso::Clase::Resguardo); }
    /// UEHs of the network on disk.
    int EnDisco()
    {
        model::Siro otro;
        otro.Disco = s.Disco;
        otro.Proyecto.DirProyecto = s.Proyecto.DirProyecto;
        otro.Proyecto.NombreProyecto = "Arroyo";
        model::LeeUEHs(otro);
        return otro.Red.ColUEHs.Cuenta();
    }
    const model::Mensaje Caja{
        "El dibujo de la red tiene cambios sin guardar. ¿Desea guardarlos antes de seguir?",
        "Resguardo de datos de componentes UEHs", model::Icono::Exclamacion};
};

TEST_F(DibujoEnPeligro, SinNadaSinGuardarNoSePregunta)
{
    for (const Riesgo riesgo : {Riesgo::ReleeRed, Riesgo::MueveProyecto, Riesgo::OtroProyecto})
        EXPECT_TRUE(editor::Resguarda(f, s, riesgo));
    EXPECT_EQ(anfitrion->sucesos.size(), 0U);
    EXPECT_FALSE(f.abierta) << "another project has closed it";
    for (const Riesgo riesgo : Riesgos)
        EXPECT_TRUE(editor::Resguarda(f, s, riesgo)) << "and a closed one has nothing to lose";
}

TEST_F(DibujoEnPeligro, CancelarDejaTodoComoEstaba)
{
    Cambia();
    for (const Riesgo riesgo : Riesgos) {
        anfitrion->resguardos = {Resguardo::Cancelar};
        anfitrion->sucesos.clear();
        EXPECT_FALSE(editor::Resguarda(f, s, riesgo));
        EXPECT_EQ(Resguardos(), Cajas{Caja});
        EXPECT_TRUE(f.abierta);
        EXPECT_TRUE(f.cambiada);
        EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
        EXPECT_EQ(EnDisco(), 1);
    }
}

TEST_F(DibujoEnPeligro, GuardarGuardaYSigue)
{
    for (const Riesgo riesgo : {Riesgo::ReleeRed, Riesgo::MueveProyecto, Riesgo::OtroProyecto}) {
        Cambia();
        anfitrion->resguardos = {Resguardo::Guardar};
        EXPECT_TRUE(editor::Resguarda(f, s, riesgo));
        EXPECT_EQ(EnDisco(), 2);
        EXPECT_FALSE(f.cambiada);
        EXPECT_EQ(f.abierta, riesgo != Riesgo::OtroProyecto);
        s.Red.ColUEHs.Quita(2);
        Guarda();
    }
}

TEST_F(DibujoEnPeligro, LoQueOtroCambioYNoSePisaDetieneLaOrden)
{
    s.Vigilancia.activa = true;
    model::LeeUEHs(s);
    Parte();
    Cambia();
    disco.Pon("/proy/Arroyo_UEHs.vlm", "de otro");
    anfitrion->resguardos = {Resguardo::Guardar};
    Responde({false});
    EXPECT_FALSE(editor::Resguarda(f, s, Riesgo::ReleeRed));
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_UEHs.vlm"), "de otro");
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
}

TEST_F(DibujoEnPeligro, SeguirSinGuardarReleeLoGuardadoYDeshacerLoDevuelve)
{
    Cambia();
    anfitrion->resguardos = {Resguardo::SeguirSinGuardar};
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::ReleeRed));
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1);
    EXPECT_FALSE(f.cambiada);
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::ReleeRed));
    EXPECT_EQ(Resguardos().size(), 1U) << "there is nothing left to ask about";
    Tecla(editor::Tecla::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(DibujoEnPeligro, SeguirSinGuardarNoTocaElDibujoDeUnProyectoQueSeMueve)
{
    Cambia();
    anfitrion->resguardos = {Resguardo::SeguirSinGuardar};
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::MueveProyecto));
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_TRUE(f.cambiada);
}

TEST_F(DibujoEnPeligro, ElCauceQueSeEstaDibujandoEstaSinGuardar)
{
    PonModo(Boton::Cauce);
    Clic(300, 300);
    Clic(350, 350);
    ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    anfitrion->sucesos.clear();
    anfitrion->resguardos = {Resguardo::Cancelar, Resguardo::SeguirSinGuardar};
    EXPECT_FALSE(editor::Resguarda(f, s, Riesgo::ReleeRed));
    EXPECT_EQ(Resguardos(), Cajas{Caja});
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::ReleeRed));
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(DibujoEnPeligro, OtroProyectoCierraElEditorSinGuardarSiAsiSePide)
{
    Cambia();
    anfitrion->resguardos = {Resguardo::SeguirSinGuardar};
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::OtroProyecto));
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(EnDisco(), 1);
}

TEST_F(DibujoEnPeligro, LoQueLaValidacionRetieneDetieneLaOrden)
{
    // No outfall: the only reach drains into a Lago that drains into the reach.
    s.Red.ColCauces.Item(1).Cauce_aa = "l-1";
    red.Lago("l-1", {100, 320}, "c-1");
    Parte();
    f.cambiada = true;
    anfitrion->respuestaDeSiempre = true;
    EXPECT_FALSE(editor::Resguarda(f, s, Riesgo::OtroProyecto));
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Resguardos(), Cajas{});
    EXPECT_GT(anfitrion->sucesos.size(), 0U);
}

TEST_F(DibujoEnPeligro, UnaRedVaciaSeCierraSinPreguntas)
{
    Responde({true});
    ToolbarUEHs_ButtonClick(f, s, Boton::BorraTodo);
    ASSERT_TRUE(editor::RedVacia(s.Red));
    ASSERT_TRUE(f.cambiada);
    anfitrion->sucesos.clear();
    EXPECT_TRUE(editor::Resguarda(f, s, Riesgo::OtroProyecto));
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->sucesos.size(), 0U);
    EXPECT_EQ(EnDisco(), 1) << "nothing was saved";
}

TEST_F(DibujoEnPeligro, LaImagenYLasTablasPreguntanAntesDeReleer)
{
    Cambia();
    editor::dlgUEHsEditTabla editorDeTabla;
    editor::dlgUEHsTabla tabla;
    editor::cmdImagenUEHs_Click(f, s);
    editor::Abre(editorDeTabla, s);
    editor::Abre(tabla, s);
    EXPECT_EQ(Resguardos(), (Cajas{Caja, Caja, Caja}));
    EXPECT_FALSE(editorDeTabla.abierta);
    EXPECT_FALSE(tabla.abierta);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_EQ(f.fondo.cmdImagenUEHs, "Imágen");
    tabla.abierta = true;
    editor::cmdActualizar(tabla, s);
    EXPECT_EQ(Resguardos().size(), 4U);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    anfitrion->resguardos = {Resguardo::Guardar};
    editor::Abre(editorDeTabla, s);
    EXPECT_TRUE(editorDeTabla.abierta);
    EXPECT_EQ(editorDeTabla.MSFlexGridEditUEHs.NroFilas(), 2);
}

}  // namespace
