// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Historia.h"

#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"

namespace {

using editor::Boton;
using editor::Punto;
using T = editor::Tecla;

struct HistoriaDelEditor : EditorDePrueba {
    HistoriaDelEditor()
    {
        red.Cauce("c-1", {{100, 300}, {200, 200}});
        red.UEH("u-1", {250, 150});
        Parte();
    }
    /// An editing command, as the rules see it: the network differs after an event.
    void Edita(const std::function<void()>& cuerpo) { editor::Evento(f, s, cuerpo); }
};

TEST_F(HistoriaDelEditor, DeshaceYRehacePasoAPaso)
{
    Edita([&] { s.Red.ColUEHs.Item(1).Cauce_aa = "c-1"; });
    Edita([&] { s.Red.XVertice(1, 2) = 222; });
    EXPECT_TRUE(f.cambiada);
    Tecla(T::Deshacer);
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "c-1");
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "");
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Cauce_aa, "c-1");
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    Tecla(T::Rehacer);
    EXPECT_EQ(Vertice(1, 2), (Punto{222, 200}));
    Tecla(T::Rehacer);
    EXPECT_EQ(Vertice(1, 2), (Punto{222, 200}));
}

TEST_F(HistoriaDelEditor, UnPasoNuevoOlvidaLosQueSeguian)
{
    Edita([&] { s.Red.XVertice(1, 2) = 222; });
    Tecla(T::Deshacer);
    Edita([&] { s.Red.XVertice(1, 2) = 333; });
    Tecla(T::Rehacer);
    EXPECT_EQ(Vertice(1, 2), (Punto{333, 200}));
    Tecla(T::Deshacer);
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
}

TEST_F(HistoriaDelEditor, LoQueNoCambiaLaRedNoEsUnPaso)
{
    Edita([] {});
    PonModo(Boton::Cauce);
    PonModo(Boton::Selecciona);
    editor::cmdAnchoLineaDib_Click(f, s);
    editor::cmdOrdenCauce_Click(f, s);
    editor::sldEscala_Mueve(f, s, 50);
    EXPECT_TRUE(f.historia.anteriores.empty());
    EXPECT_FALSE(f.cambiada);
    EXPECT_EQ(s.Red.ColCauces.Item(1).OrdenCauce, 1);
}

TEST_F(HistoriaDelEditor, GuardarConservaLaHistoria)
{
    Edita([&] { s.Red.ColUEHs.Item(1).Area = 12; });
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_FALSE(f.cambiada);
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
    EXPECT_TRUE(f.cambiada);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
}

TEST_F(HistoriaDelEditor, GuardarConservaTambienLosPasosHaciaAdelante)
{
    Edita([&] { s.Red.ColUEHs.Item(1).Area = 12; });
    Tecla(T::Deshacer);
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
}

TEST_F(HistoriaDelEditor, DeshacerLimpiaLaSeleccionYRedibuja)
{
    Edita([&] { red.UEH("u-2", {9, 9}); });
    s.Seleccion.UEHSel = 2;
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(Con(editor::Papel::Icono).size(), 1U);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(HistoriaDelEditor, VuelvenCuentasVerticesYTodasLasClases)
{
    const model::Siro antes = s;
    Edita([&] {
        red.Cauce("c-2", {{1, 2}, {3, 4}, {5, 6}}, "c-1");
        red.Represa("r-1", {7, 7});
        red.Lago("l-1", {8, 8});
        editor::Redibuja(f, s);
    });
    const model::Siro despues = s;
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColCauces, antes.Red.ColCauces);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta() + s.Red.ColLagos.Cuenta(), 0);
    EXPECT_EQ(s.Red.NroCauces() + s.Red.NroRepresas() + s.Red.NroLagos(), 1);
    EXPECT_EQ(s.Red.NroVertices(2), 0);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColCauces, despues.Red.ColCauces);
    EXPECT_EQ(s.Red.ColRepresas, despues.Red.ColRepresas);
    EXPECT_EQ(s.Red.ColLagos, despues.Red.ColLagos);
    EXPECT_EQ(s.Red.NroVertices(2), 3);
    EXPECT_EQ(Vertice(2, 3), (Punto{5, 6}));
    EXPECT_EQ(Vertice(2, 1), (Punto{200, 200}));  // where c-1 begins
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(HistoriaDelEditor, UnaFallaDevuelveLaRedComoEstaba)
{
    Edita([&] {
        s.Red.ColUEHs.Anuncia(2);
        s.Red.ColUEHs.Item(1).Area = 5;
        throw model::Falla{model::NumeroFalla::Subindice};
    });
    EXPECT_EQ(
        Avisos(),
        (Cajas{{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", model::Icono::Ninguno}}));
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
    EXPECT_TRUE(f.historia.anteriores.empty());
    EXPECT_FALSE(f.cambiada);
}

TEST_F(HistoriaDelEditor, ElFinDelProgramaPasaDeLargo)
{
    EXPECT_THROW(Edita([&] { s.Anfitrion.Termina(); }), model::FinDelPrograma);
}

TEST_F(HistoriaDelEditor, LoQueCambiaUnaFormaAbiertaEsUnPaso)
{
    s.Red.ColUEHs.Item(1).Area = 44;
    editor::AlActivarse(f, s);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
}

TEST_F(HistoriaDelEditor, OtroProyectoEmpiezaOtraHistoria)
{
    Edita([&] { s.Red.ColUEHs.Item(1).Area = 12; });
    s.Proyecto.NombreProyecto = "Otro";
    editor::AlActivarse(f, s);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 12);
}

TEST_F(HistoriaDelEditor, DuranteUnArrastreNoSeAnota)
{
    f.gesto.izquierdoAbajo = true;
    Edita([&] { s.Red.ColUEHs.Item(1).IconoUEHx = 1; });
    Edita([&] { s.Red.ColUEHs.Item(1).IconoUEHx = 2; });
    EXPECT_TRUE(f.historia.anteriores.empty());
    f.gesto.izquierdoAbajo = false;
    Edita([] {});
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 250);
}

TEST_F(HistoriaDelEditor, UnaOrdenEnMedioDeUnArrastreLoTermina)
{
    f.gesto.izquierdoAbajo = true;
    Edita([&] { s.Red.ColUEHs.Item(1).IconoUEHx = 2; });
    Tecla(T::Deshacer);
    EXPECT_FALSE(f.gesto.izquierdoAbajo);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 250);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 2);
}

TEST_F(HistoriaDelEditor, LaActivacionQueTraeUnaCajaNoAnotaLoQueVaPorLaMitad)
{
    Edita([&] {
        s.Red.ColUEHs.Item(1).Area = 1;
        editor::AlActivarse(f, s);
        EXPECT_TRUE(f.historia.anteriores.empty());
        s.Red.ColUEHs.Item(1).Area = 2;
    });
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
}

/// The clicks of a reach as the rules store them.
struct TrazoEnHistoria : HistoriaDelEditor {
    void ClicDeTrazo(Punto p)
    {
        Edita([&] {
            if (f.trazo.ClicsCauce++ == 0) {
                s.Red.ColCauces.Anuncia(static_cast<std::int16_t>(s.Red.NroCauces() + 1));
                s.Red.NroVertices(s.Red.NroCauces()) = 0;
            }
            ++s.Red.NroVertices(s.Red.NroCauces());
            editor::Redibuja(f, s);
            s.Red.XVertice(s.Red.NroCauces(), s.Red.NroVertices(s.Red.NroCauces())) = p.X;
            s.Red.YVertice(s.Red.NroCauces(), s.Red.NroVertices(s.Red.NroCauces())) = p.Y;
        });
    }
    void Termina()
    {
        Edita([&] {
            f.trazo.ClicsCauce = 0;
            s.Red.ColCauces.Agrega({.numCauce = s.Red.NroCauces(),
                                    .numVertices = s.Red.NroVertices(s.Red.NroCauces()),
                                    .NombreCauce = "c-nuevo",
                                    .Cauce_aa = "0"});
            editor::Redibuja(f, s);
        });
    }
};

TEST_F(TrazoEnHistoria, MientrasSeDibujaDeshacerQuitaUnVertice)
{
    ClicDeTrazo({1, 1});
    ClicDeTrazo({2, 2});
    ClicDeTrazo({3, 3});
    Tecla(T::Deshacer);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(s.Red.NroVertices(2), 2);
    Tecla(T::Deshacer);
    Tecla(T::Deshacer);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
    Tecla(T::Rehacer);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(Vertice(2, 1), (Punto{1, 1}));
}

TEST_F(TrazoEnHistoria, TerminadoElCauceEsUnSoloPaso)
{
    ClicDeTrazo({1, 1});
    ClicDeTrazo({2, 2});
    ClicDeTrazo({3, 3});
    Termina();
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(Vertice(2, 3), (Punto{3, 3}));
}

TEST_F(TrazoEnHistoria, LoColocadoEntreDosClicsSigueSiendoUnPasoPropio)
{
    ClicDeTrazo({1, 1});
    ClicDeTrazo({2, 2});
    Edita([&] { red.UEH("u-2", {9, 9}); });
    ClicDeTrazo({3, 3});
    Termina();
    Tecla(T::Deshacer);  // back before the third click
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(s.Red.NroUEHs(), 2);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
}

/// Bytes of what a step keeps, vertices included.
std::size_t Peso(const editor::RedGuardada& red)
{
    std::size_t bytes = sizeof red;
    const auto suma = [&](const auto& coleccion) {
        for (const auto& componente : coleccion)
            bytes += sizeof componente;
    };
    suma(red.ColUEHs);
    suma(red.ColCauces);
    suma(red.ColLagos);
    suma(red.ColRepresas);
    for (const auto& linea : red.lineas)
        bytes += sizeof linea + linea.capacity() * sizeof(Punto);
    return bytes;
}

// 230 components and 70 reaches of 21 vertices: a thousand steps of the largest network take 100 MB at most.
TEST_F(HistoriaDelEditor, UnPasoDeLaRedMasGrandePesaPoco)
{
    for (int i = s.Red.NroUEHs(); i < model::MaxUEHs; ++i)
        red.UEH("u", {1, 1});
    for (int i = s.Red.NroCauces(); i < model::MaxCauces; ++i)
        red.Cauce("c", std::vector<Punto>(21, {1, 1}));
    for (int i = 0; i < model::MaxLagos; ++i)
        red.Lago("l", {1, 1});
    for (int i = 0; i < model::MaxRepresas; ++i)
        red.Represa("r", {1, 1});
    Parte();
    Edita([&] { s.Red.ColUEHs.Item(1).Area = 1; });
    ASSERT_EQ(f.historia.anteriores.size(), 1U);
    EXPECT_GT(Peso(f.historia.anteriores[0]), 230 * sizeof(model::Cauce));
    EXPECT_LT(Peso(f.historia.anteriores[0]), 100'000U);
}

// --- with the user's own commands ---

TEST_F(HistoriaDelEditor, UnArrastreEsUnSoloPaso)
{
    s.Seleccion.UEHSel = 1;
    Arrastra({{255, 155}, {260, 160}, {300, 200}, {400, 300}});
    EXPECT_NE(s.Red.ColUEHs.Item(1).IconoUEHx, 250);
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 250);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHy, 150);
}

TEST_F(HistoriaDelEditor, UnCauceDibujadoEsUnSoloPaso)
{
    PonModo(Boton::Cauce);
    Clic(10, 10);
    Clic(20, 20);
    Escribe({"nuevo"});
    DobleClic(30, 30);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.ColCauces.Item(2).NombreCauce, "c-nuevo");
    EXPECT_EQ(f.historia.anteriores.size(), 1U);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    Tecla(T::Rehacer);
    EXPECT_EQ(s.Red.NroVertices(2), 3);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(HistoriaDelEditor, DeshacerUnBorradoQueSeGuardoMarcaLaRedComoCambiada)
{
    s.Seleccion.UEHSel = 1;
    Tecla(T::Suprimir);
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_FALSE(f.cambiada);
    const std::string enDisco = disco.Bytes("/proy/Arroyo_UEHs.vlm");
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).NombreUEH, "u-1");
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_UEHs.vlm"), enDisco);
}

TEST_F(HistoriaDelEditor, BorrarTodoSeDeshace)
{
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::BorraTodo);
    EXPECT_EQ(s.Red.NroUEHs() + s.Red.NroCauces(), 0);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroUEHs() + s.Red.NroCauces(), 2);
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
}

TEST_F(HistoriaDelEditor, ColocarPasadoElLimiteDejaLaRedComoEstaba)
{
    while (s.Red.NroRepresas() < model::MaxRepresas)
        red.Represa("r-" + std::to_string(s.Red.NroRepresas()), {static_cast<float>(s.Red.NroRepresas()), 5});
    Parte();
    PonModo(Boton::Represa);
    Escribe({"una mas"});
    Clic(500, 500);
    EXPECT_EQ(s.Red.NroRepresas(), model::MaxRepresas);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), model::MaxRepresas);
    EXPECT_EQ(
        Avisos(),
        (Cajas{{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", model::Icono::Ninguno}}));
}

}  // namespace
