// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop program as its user has it before him: a real window, a real keyboard, a copy of the delivered
// data. What it writes is what siro-lote writes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

#include "apoyo/Compara.h"
#include "e2e/EscritorioDePrueba.h"
#include "e2e/Programa.h"
#include "model/Componentes.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace {

namespace fs = std::filesystem;
using apoyo::BytesDeArchivo;
using apoyo::MismoTexto;
using e2e::Editor;
using e2e::Lote;
using e2e::Principal;
using e2e::Salida;
using e2e::SinHora;

std::ptrdiff_t Renglones(const std::string& archivo)
{
    const std::string texto = BytesDeArchivo(archivo);
    return std::count(texto.begin(), texto.end(), '\n');
}

class Escritorio : public e2e::EscritorioDePrueba {
  protected:
    [[nodiscard]] std::string Conf() const { return dir + "/Proyectos/Quelmar_Conf.vlm"; }

    /// Starts the program and opens the sample project from the menu.
    void AbreMuestra()
    {
        pantalla->Arranca(dir + "/siro");
        pantalla->EsperaVentana(Principal);
        pantalla->Teclas({"ctrl+o"});
        pantalla->EsperaVentana("Abrir");
        pantalla->Teclea(Conf());
        pantalla->Teclas({"Return"});
        // It lay elsewhere when it was saved: its configuration is written anew, and that is told.
        pantalla->EsperaVentana("SIRO");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Principal);
    }
};

TEST_F(Escritorio, UnaTormentaEscribeLoMismoQueSiroLote)
{
    AbreMuestra();
    pantalla->Teclas({"F7"});  // the Slate
    FijaTormenta("80", "120");
    pantalla->Teclas({"F5"});
    pantalla->EsperaVentana("La tabla de resultados es muy extensa");
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(Principal);
    const std::string archivo = dir + "/SalePizarra1_tem.txt";
    pantalla->EsperaA("the text file", [&] { return fs::exists(archivo); });

    // The chart has come up over the Slate: closed and opened again it is in front, with the text of the run.
    pantalla->Teclas({"F7", "F7", "ctrl+s"});
    GuardaEn("Guardar el texto de la Pizarra", raiz + "/pizarra.txt");
    Termina();

    const std::string lote = raiz + "/lote";
    fs::copy(SIRO_DATA_DIR, lote, fs::copy_options::recursive);
    const Salida salida =
        Lote({"una", Conf(), "--trabajo", lote, "--pp", "80", "--dur", "120", "--pizarra"}, "/");
    ASSERT_EQ(salida.estado, 0) << salida.errores;
    EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(lote + "/SalePizarra1_tem.txt")),
                           SinHora(BytesDeArchivo(archivo))));
    EXPECT_TRUE(MismoTexto(SinHora(salida.estandar),
                           SinHora(model::DeWindows1252(BytesDeArchivo(raiz + "/pizarra.txt")))));
}

TEST_F(Escritorio, UnaSerieEscribeLoMismoQueSiroLoteYAbreElAbacoSobreLaTabla)
{
    AbreMuestra();
    pantalla->Teclas({"F4"});
    pantalla->EsperaVentana("Carga de Datos de Precipitación");
    // From the depth back to the forms of input, and to the third of them: a table of storms.
    pantalla->Teclas({"alt+p", "shift+Tab", "Down", "Down", "Return"});
    pantalla->EsperaVentana(Principal);
    pantalla->Teclas({"F6"});
    pantalla->EsperaVentana("Desea continuar ?");
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(
        "La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>");
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(Principal);
    const std::string archivo = dir + "/SaleTablasQDRs_tem.txt";
    pantalla->EsperaA("the results of the series", [&] { return fs::exists(archivo); });

    // The abacus stands in front; the menu brings the table over it. Both save what they show.
    GuardaDelMenu("g", "Guardar las celdas como CSV", raiz + "/abaco.csv");
    pantalla->Teclas({"alt+s", "Down", "Down", "Down", "Return"});
    GuardaDelMenu("s", "Guardar la tabla como CSV", raiz + "/tabla.csv");
    GuardaDelMenu("x", "Guardar la tabla como XLSX", raiz + "/tabla.xlsx");
    Termina();

    const std::string lote = raiz + "/lote";
    fs::copy(SIRO_DATA_DIR, lote, fs::copy_options::recursive);
    const Salida salida = Lote({"serie", Conf(), "--trabajo", lote}, "/");
    ASSERT_EQ(salida.estado, 0) << salida.errores;
    EXPECT_TRUE(MismoTexto(SinHora(BytesDeArchivo(lote + "/SaleTablasQDRs_tem.txt")),
                           SinHora(BytesDeArchivo(archivo))));
    EXPECT_NE(BytesDeArchivo(raiz + "/abaco.csv")
                  .find("\r\n\"Duración Tormenta D[minutos]\",\"R= 2 años [m3/s]\",\"R= 5 años [m3/s]\","),
              std::string::npos);
    // The file has nine lines of heads, the table six, and a line per storm for the basin.
    constexpr std::ptrdiff_t Tormentas = 10 * 14;  // recurrences and durations
    EXPECT_EQ(Renglones(raiz + "/tabla.csv") - 6, Renglones(archivo) - 9 + Tormentas);
    EXPECT_TRUE(BytesDeArchivo(raiz + "/tabla.xlsx").starts_with("PK"));
}

TEST_F(Escritorio, ElUltimoProyectoSeRecuerdaYSeOfreceEnElMenu)
{
    AbreMuestra();
    Termina();
    pantalla->Arranca(dir + "/siro");
    pantalla->EsperaVentana(Principal);
    pantalla->Teclas({"alt+a"});         // the menu of files
    pantalla->Teclas({"Up", "Return"});  // its last entry
    FijaTormenta("60", "60");            // refused without a project
    Termina();
    EXPECT_TRUE(BytesDeArchivo(dir + "/VelmirDir.vlm").ends_with("\"Quelmar\"\r\n"));
}

/// The graphic editor, with keys for its modes and clicks at points of its window.
class EditorEnPantalla : public Escritorio {
  protected:
    void CreaProyecto(const char* nombre)
    {
        pantalla->Arranca(dir + "/siro");
        pantalla->EsperaVentana(Principal);
        pantalla->Teclas({"ctrl+n"});
        pantalla->EsperaVentana("Proyecto Nuevo");
        pantalla->Teclea(nombre);
        pantalla->Teclas({"Return"});
        Acepta("SIRO");  // its configuration, as it begins, is on disk; confirming it settles it
        pantalla->EsperaVentana("Configurar");
        pantalla->Teclas({"Return"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
    }
    void Nombra(const char* titulo, const char* nombre)
    {
        pantalla->EsperaVentana(titulo);
        pantalla->Teclea(nombre);
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Editor);
    }
    /// What the drawing doesn't say: properties of the UEHs and the reaches, tables of the dam.
    void DaDatos(const char* nombre) const
    {
        model::Siro s;
        s.Proyecto.NombreProyecto = nombre;
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = dir + "/Proyectos";
        model::LeeUEHs(s);
        for (model::UEH& u : s.Red.ColUEHs) {
            u.Area = 250;
            u.LongitudMax = 900;
            u.VelMedia = 0.5F;
        }
        for (model::Cauce& c : s.Red.ColCauces) {
            c.LongCauce = 1200;
            c.VelMediaCauce = 1;
        }
        model::GuardaRed(s);
        s.Red.RepresaFilasHAS.Dimensiona(1);
        s.Red.RepresaFilasHQ.Dimensiona(1);
        s.Red.RepresaFilasHAS(1) = s.Red.RepresaFilasHQ(1) = 2;
        s.Red.RepresaH.Dimensiona(1, 2);
        s.Red.RepresaA.Dimensiona(1, 2);
        s.Red.RepresaS.Dimensiona(1, 2);
        s.Red.RepresaQH.Dimensiona(1, 2);
        s.Red.RepresaQQ.Dimensiona(1, 2);
        s.Red.RepresaH(1, 2) = s.Red.RepresaQH(1, 2) = 20;
        s.Red.RepresaA(1, 2) = 80;
        s.Red.RepresaS(1, 2) = 8000000;
        s.Red.RepresaQQ(1, 2) = 150;
        model::GuardaTablaHSVRepresa(s);
        model::GuardaTablaHQRepresa(s);
    }
    void Coloca(const char* modo, int x, int y, const char* titulo, const char* nombre)
    {
        pantalla->Teclas({modo});
        pantalla->Pulsa(x, y);
        Nombra(titulo, nombre);
    }
};

TEST_F(EditorEnPantalla, UnaCuencaDibujadaDesdeUnProyectoVacioCorreConSiroLote)
{
    CreaProyecto("Arroyo");
    pantalla->Teclas({"F3"});
    pantalla->EsperaVentana(Editor);

    // Two reaches, each from its mouth upwards; the dam between them; three hillsides.
    pantalla->Teclas({"ctrl+3"});
    pantalla->Pulsa(900, 420);
    pantalla->Pulsa(700, 340);
    pantalla->Teclas({"Return"});
    Nombra("Agrega un nuevo Cauce", "Abajo");
    pantalla->Pulsa(600, 300);
    pantalla->Pulsa(350, 180);
    pantalla->Teclas({"Return"});
    Nombra("Agrega un nuevo Cauce", "Arriba");
    Coloca("ctrl+4", 640, 320, "Agregar una Represa", "Grande");
    Coloca("ctrl+2", 150, 120, "Agregar una UEH", "Norte");
    Coloca("ctrl+2", 200, 300, "Agregar una UEH", "Oeste");
    Coloca("ctrl+2", 850, 200, "Agregar una UEH", "Este");

    // Links: a click on the reach, one on the other component, then the entry of the pop-up.
    pantalla->Teclas({"ctrl+1"});
    const auto acopla = [&](int xCauce, int yCauce, int xIcono, int yIcono, int entrada, bool pregunta) {
        pantalla->Pulsa(xCauce, yCauce);
        pantalla->Pulsa(xIcono + 8, yIcono + 4);
        pantalla->Teclas({"F2"});
        pantalla->Teclas(std::vector<std::string>(static_cast<std::size_t>(entrada), "Down"));
        pantalla->Teclas({"Return"});
        if (pregunta) Acepta("Consulta");
        pantalla->EsperaVentana(Editor);
    };
    constexpr int UEHaCauce = 3, CauceARepresa = 3, RepresaACauce = 4;
    acopla(350, 180, 150, 120, UEHaCauce, true);
    acopla(350, 180, 200, 300, UEHaCauce, true);
    acopla(700, 340, 850, 200, UEHaCauce, true);
    acopla(700, 340, 640, 320, RepresaACauce, true);
    acopla(350, 180, 640, 320, CauceARepresa, false);

    pantalla->Teclas({"Escape"});
    Acepta("Resguardo de datos de componentes UEHs");
    Acepta("SIRO");  // what was saved, and where
    pantalla->EsperaVentana(Principal);
    Termina();
    DaDatos("Arroyo");

    const Salida salida = Lote({"una", dir + "/Proyectos/Arroyo_Conf.vlm", "--trabajo", dir, "--resultados",
                                raiz + "/r.csv", "--pizarra"},
                               "/");
    EXPECT_EQ(salida.estado, 0) << salida.errores;
    const std::string csv = BytesDeArchivo(raiz + "/r.csv");
    for (const char* nombre : {"u-Norte,", "u-Oeste,", "u-Este,", "c-Arriba,", "r-Grande,", "c-Abajo,"})
        EXPECT_NE(csv.find(std::string("\n") + nombre), std::string::npos) << nombre;
    // Upstream to downstream.
    EXPECT_LT(csv.find("\nc-Arriba,"), csv.find("\nr-Grande,"));
    EXPECT_LT(csv.find("\nr-Grande,"), csv.find("\nc-Abajo,"));
}

}  // namespace
