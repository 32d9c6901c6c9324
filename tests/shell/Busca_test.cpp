// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Busca.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "model/Componentes.h"
#include "model/Siro.h"
#include "shell/EscenaDePrueba.h"

// What is found by a few letters, and in which order.
namespace shell {
namespace {

using Lista = std::vector<std::string>;

Candidato Uno(std::string texto, std::string clase = {}, std::string detalle = {})
{
    const std::string clave = clase + " " + texto;
    return {
        .texto = std::move(texto), .clase = std::move(clase), .detalle = std::move(detalle), .clave = clave};
}

Lista Textos(const Buscador& buscador, std::string_view texto)
{
    Lista textos;
    for (const std::size_t i : buscador.Halla(texto))
        textos.push_back(buscador.De(i).texto);
    return textos;
}

Lista Halla(std::vector<Candidato> todos, std::string_view texto, const Lista& recientes = {})
{
    return Textos(Buscador(std::move(todos), recientes), texto);
}

bool Esta(std::string_view palabra, std::string_view texto)
{
    return Encaja(Pliega(palabra).letras, Pliega(texto)) >= 0;
}

TEST(Pliega, QuitaMayusculasAcentosTildesYDieresis)
{
    EXPECT_EQ(Pliega("ÁÉÍÓÚ áéíóú").letras, "aeiou aeiou");
    EXPECT_EQ(Pliega("ñandú Ñuble CIGÜEÑA Çà").letras, "nandu nuble ciguena ca");
    EXPECT_EQ(Pliega("n.º 3ª").letras, "n.o 3a");
    EXPECT_EQ(Pliega("ma\xCC\x81rgen n\xCC\x83").letras, "margen n") << "marks on the letter before";
    EXPECT_EQ(Pliega("3×4÷5").letras, "3×4÷5") << "no letters";
    EXPECT_EQ(Pliega("Δh\xC3").letras, "Δh\xC3") << "other alphabets and broken texts stay";
    EXPECT_EQ(Pliega("").letras, "");
}

TEST(Pliega, DiceDondeEmpiezaCadaPalabra)
{
    const auto comienzos = [](std::string_view texto) {
        const Plegado p = Pliega(texto);
        std::string marcas;
        for (std::size_t i = 0; i < p.letras.size(); ++i)
            marcas += p.empieza[i] != 0 ? p.letras[i] : '.';
        return marcas;
    };
    EXPECT_EQ(comienzos("Corre 1 tormenta"), "c.....1.t.......");
    EXPECT_EQ(comienzos("u-Quelmar12b"), "u.q......1.b");
    EXPECT_EQ(comienzos("arroyoÑire (UEH)"), "a.....n.....u...");
    EXPECT_EQ(comienzos("Qp-D-R"), "q..d.r");
}

TEST(Encaja, LasLetrasVanEnOrdenYSoloSaltanAOtraPalabraPorSuComienzo)
{
    for (const char* palabra : {"mapa", "mdlc", "corr", "rrida", "mapcor", "cda", "mc"})
        EXPECT_TRUE(Esta(palabra, "Mapa de la corrida")) << palabra;
    for (const char* palabra : {"mapaz", "corridam", "mapda2", "pe", "mrr", "lacorridaz"})
        EXPECT_FALSE(Esta(palabra, "Mapa de la corrida")) << palabra;
    EXPECT_TRUE(Esta("cp1t", "Corre Proceso de Cálculo p/ 1 tormenta"));
    EXPECT_TRUE(Esta("u12", "u-12"));
    EXPECT_TRUE(Esta("hdgrm", "Hidrogramas"));
    EXPECT_TRUE(Esta("CALCULO", "Corre Proceso de Cálculo"));
    EXPECT_TRUE(Esta("cálculo", "CALCULO"));
    EXPECT_FALSE(Esta("a", ""));
    EXPECT_TRUE(Esta("", "algo"));
}

TEST(Encaja, DeTodasLasManerasCuentaLaMejor)
{
    // The first c of "accion" isn't the one that begins a word.
    const Plegado texto = Pliega("Acción de correr");
    EXPECT_EQ(Encaja("corr", texto), Encaja("corr", Pliega("De correr")));
    EXPECT_GT(Encaja("corr", Pliega("correr")), Encaja("corr", texto));
    EXPECT_GT(Encaja("co", Pliega("x co")), Encaja("co", Pliega("x cao")));
    EXPECT_GT(Encaja("ar", Pliega("x arbol")), Encaja("ar", Pliega("mar")));
}

TEST(Busca, LasPalabrasVanEnCualquierOrden)
{
    const std::vector<Candidato> todos{Uno("Mapa de la corrida"), Uno("Avisos de la corrida"),
                                       Uno("Resumen de la corrida"), Uno("Configuración")};
    EXPECT_EQ(Halla(todos, "corrida mapa"), Lista{"Mapa de la corrida"});
    EXPECT_EQ(Halla(todos, "  corr   av "), Lista{"Avisos de la corrida"});
    EXPECT_EQ(Halla(todos, "corrida").size(), 3U);
    EXPECT_EQ(Halla(todos, "corrida xyz"), Lista{});
    EXPECT_EQ(Halla(todos, "CONFIGURACION"), Lista{"Configuración"});
}

TEST(Busca, PrimeroLoQueEmpiezaAsiDespuesLasPalabrasYAlFinalLoSuelto)
{
    const std::vector<Candidato> todos{Uno("Tabla de sueltos: cara amiga"), Uno("Ver la marca"),
                                       Uno("Gran Mapa"), Uno("Mapa"), Uno("Mapache y otros")};
    EXPECT_EQ(Halla(todos, "map"), (Lista{"Mapa", "Mapache y otros", "Gran Mapa"}));
    EXPECT_EQ(Halla(todos, "ma"), (Lista{"Mapa", "Mapache y otros", "Gran Mapa", "Ver la marca",
                                         "Tabla de sueltos: cara amiga"}));
}

TEST(Busca, LaClaseYElDetalleTambienSeBuscanYValenMenos)
{
    const std::vector<Candidato> todos{Uno("u-Norte", "UEH"), Uno("u-Norte", "Hidrograma"),
                                       Uno("Editor de UEHs", "Menú Entradas", "F3"),
                                       Uno("Hidrogramas", "Menú Salidas", "F9")};
    EXPECT_EQ(Halla(todos, "norte ueh"), Lista{"u-Norte"});
    EXPECT_EQ(Halla(todos, "ueh"), (Lista{"Editor de UEHs", "u-Norte"}));
    EXPECT_EQ(Halla(todos, "hidro norte").size(), 1U);
    EXPECT_EQ(Halla(todos, "f9"), Lista{"Hidrogramas"});
    EXPECT_EQ(Halla(todos, "salidas"), Lista{"Hidrogramas"});
    EXPECT_EQ(Halla(todos, "lidas"), Lista{}) << "not from the middle of a kind's word";
}

TEST(Busca, EntreIgualesPrimeroLoElegidoHacePocoDespuesLoCortoYDespuesSuOrden)
{
    const std::vector<Candidato> todos{Uno("c-3 larga"), Uno("c-1"), Uno("c-2"), Uno("c-4")};
    EXPECT_EQ(Halla(todos, "c"), (Lista{"c-1", "c-2", "c-4", "c-3 larga"}));
    EXPECT_EQ(Halla(todos, "c", {" c-4", " c-2"}), (Lista{"c-4", "c-2", "c-1", "c-3 larga"}));
    EXPECT_EQ(Halla(todos, "", {" c-2"}), (Lista{"c-2", "c-3 larga", "c-1", "c-4"}));
    std::vector<Candidato> conTurno = todos;
    conTurno[1].turno = 1;
    EXPECT_EQ(Halla(conTurno, "c"), (Lista{"c-2", "c-4", "c-3 larga", "c-1"}));
    // Not ahead of what fits better.
    EXPECT_EQ(Halla({Uno("arco"), Uno("cota")}, "co", {" arco"}), (Lista{"cota", "arco"}));
}

TEST(Busca, DaLoMismoSiempre)
{
    std::vector<Candidato> todos;
    for (int i = 0; i < 400; ++i)
        todos.push_back(Uno("u-" + std::to_string(i * 7919 % 400)));
    const Buscador buscador(todos, {});
    for (const char* texto : {"u", "1", "u1", "u-12", "9 u"}) {
        const auto una = buscador.Halla(texto);
        EXPECT_FALSE(una.empty());
        EXPECT_EQ(una, buscador.Halla(texto));
        EXPECT_EQ(una, Buscador(todos, {}).Halla(texto));
    }
}

TEST(Busca, LoElegidoSeRecuerdaSinRepetirseYHastaVeinte)
{
    Lista recientes;
    for (int i = 0; i < 30; ++i)
        AnotaElegida(recientes, std::to_string(i));
    AnotaElegida(recientes, "25");
    EXPECT_EQ(recientes.size(), 20U);
    EXPECT_EQ(recientes.front(), "25");
    EXPECT_EQ(std::count(recientes.begin(), recientes.end(), "25"), 1);
    EXPECT_EQ(recientes.back(), "10");
}

// --- what there is to be found ---

struct QueSeBusca : EscenaDePrueba {
    static const Candidato& De(const std::vector<Candidato>& lista, std::string_view texto)
    {
        const auto uno = std::ranges::find(lista, texto, &Candidato::texto);
        if (uno == lista.end()) throw std::runtime_error(std::string(texto));
        return *uno;
    }
    std::vector<Candidato> Menu()
    {
        return DelMenu(f, [this](Rutina rutina) { rutina(f, s, m); });
    }
    static Lista TextosDe(const std::vector<Candidato>& lista)
    {
        Lista textos;
        for (const Candidato& c : lista)
            textos.push_back(c.texto);
        return textos;
    }
};

TEST_F(QueSeBusca, CadaEntradaDelMenuQueHaceAlgoEstaConSuMenuYSuTecla)
{
    const std::vector<Candidato> menu = Menu();
    const auto hacen = std::ranges::count_if(MenuMDIForm1(), [](const FilaMenu& fila) {
        return fila.rutina != nullptr && fila.variable != Variable::mnu_ultimoarchivo1;
    });
    EXPECT_EQ(static_cast<std::ptrdiff_t>(menu.size()), hacen);
    const Candidato& corre = De(menu, "Corre Proceso de Cálculo p/ 1 tormenta");
    EXPECT_EQ(corre.clase, "Menú Proceso");
    EXPECT_EQ(corre.detalle, "F5");
    EXPECT_EQ(De(menu, "Guardar proyecto con otro nombre...").detalle, "Ctrl+Mayús+S");
    EXPECT_EQ(De(menu, "Buscar un comando").detalle, "Ctrl+Mayús+P");
    EXPECT_EQ(std::ranges::count(TextosDe(menu), "Imprimir"), 0) << "it does nothing";
    pedidos.clear();
    De(menu, "Resumen de la corrida").hace();
    EXPECT_EQ(pedidos, Lista{"abre Resumen"});
}

TEST_F(QueSeBusca, LoQueElMenuTieneApagadoDicePorQue)
{
    EXPECT_EQ(De(Menu(), "Guardar proyecto con otro nombre...").motivo, "Todavía no se abrió un proyecto.");
    EXPECT_EQ(De(Menu(), "Verificar Funciones h-Q de Represas").motivo,
              "Todavía no se leyó una red con represas.");
    EXPECT_EQ(De(Menu(), "Salir").motivo, "");
    f.Estado(Variable::mnuGuardarProyectoComo).habilitada = true;
    EXPECT_EQ(De(Menu(), "Guardar proyecto con otro nombre...").motivo, "");
}

TEST_F(QueSeBusca, ElUltimoProyectoLlevaElNombreQueMuestraElMenu)
{
    f.Estado(Variable::mnu_ultimoarchivo1).leyenda = "R&D";
    EXPECT_EQ(De(Menu(), "R&D").clase, "Menú Archivo");
}

TEST_F(QueSeBusca, LosComponentesSonLosDeLaRedEnMemoriaYLosCorridosTienenHidrograma)
{
    PonProyecto();
    model::UEH u;
    u.NombreUEH = "u-Ñandú";
    s.Red.ColUEHs.Agrega(u);
    model::Cauce c;
    c.NombreCauce = "c-1";
    s.Red.ColCauces.Agrega(c);
    Lista idas;
    const IrAComponente ir{.propiedades = [&](const std::string& n) { idas.push_back("propiedades " + n); },
                           .hidrograma = [&](const std::string& n) { idas.push_back("hidrograma " + n); },
                           .corridos = {"c-1", "u-Otra"}};
    const std::vector<Candidato> lista = DeComponentes(s, ir);
    ASSERT_EQ(TextosDe(lista), (Lista{"u-Ñandú", "c-1", "c-1"}));
    EXPECT_EQ(lista[0].clase, "UEH");
    EXPECT_EQ(lista[1].clase, "Cauce");
    EXPECT_EQ(lista[2].clase, "Hidrograma");
    for (const Candidato& uno : lista)
        uno.hace();
    EXPECT_EQ(idas, (Lista{"propiedades u-Ñandú", "propiedades c-1", "hidrograma c-1"}));
    s.Proyecto.NombreProyecto.clear();
    EXPECT_TRUE(DeComponentes(s, ir).empty());
}

TEST_F(QueSeBusca, ConLaRedSinLeerSonLosDeSusArchivosYNadaCambia)
{
    PonProyecto();
    model::UEH u;
    u.NombreUEH = "u-guardada";
    s.Red.ColUEHs.Agrega(u);
    model::GuardaRed(s);
    anfitrion->sucesos.clear();
    s.Red.ColUEHs.Vacia();
    EXPECT_EQ(TextosDe(DeComponentes(s, {})), Lista{"u-guardada"});
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(QueSeBusca, LasPaginasDeAyudaSonLasDelContenidoEntregado)
{
    std::ifstream archivo(SIRO_DATA_DIR "/Ayuda/indice.html", std::ios::binary);
    const std::string indice{std::istreambuf_iterator<char>(archivo), {}};
    disco.PonDirectorio(model::Ruta(Programa, "Ayuda"));
    disco.Pon(model::Ruta(model::Ruta(Programa, "Ayuda"), "indice.html"), indice);
    std::string abierta;
    const std::vector<Candidato> lista = DeAyuda(s, [&](const std::string& ruta) { abierta = ruta; });
    std::size_t enlaces = 0;
    for (std::size_t i = indice.find("<li><a href"); i != std::string::npos;
         i = indice.find("<li><a href", i + 1))
        ++enlaces;
    EXPECT_EQ(lista.size(), enlaces);
    De(lista, "Editor gráfico de la red").hace();
    EXPECT_EQ(abierta, model::Ruta(model::Ruta(Programa, "Ayuda"), "frmUEHs.html"));
    EXPECT_EQ(De(lista, "Teclas").clase, "Ayuda");
}

TEST_F(QueSeBusca, SinAyudaInstaladaNoHayPaginas)
{
    EXPECT_TRUE(DeAyuda(s, [](const std::string&) {}).empty());
}

TEST_F(QueSeBusca, UnProyectoQueYaNoEstaDicePorQueNoSePuedeAbrir)
{
    disco.Pon(model::Ruta(Proyectos, "Sauce_Conf.vlm"), "x");
    Lista abiertos;
    const std::vector<Candidato> lista =
        DeRecientes(s.Disco,
                    {{model::Ruta(Proyectos, "Sauce_Conf.vlm"), "Río Ñire", "01/02/2026 03:04"},
                     {model::Ruta(Proyectos, "Otro_Conf.vlm"), "", ""}},
                    [&](const std::string& conf) { abiertos.push_back(conf); });
    ASSERT_EQ(TextosDe(lista), (Lista{"Sauce", "Otro"}));
    EXPECT_EQ(lista[0].motivo, "");
    EXPECT_NE(lista[0].detalle.find("Río Ñire"), std::string::npos);
    EXPECT_EQ(lista[1].motivo, "No está en " + Proyectos + ".");
    lista[0].hace();
    EXPECT_EQ(abiertos, Lista{model::Ruta(Proyectos, "Sauce_Conf.vlm")});
}

}  // namespace
}  // namespace shell
