// SPDX-License-Identifier: GPL-3.0-or-later
//
// The charts under a real mouse: the right button brings up the menu of each, and what it saves says what it
// is.

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>

#include "apoyo/Compara.h"
#include "e2e/EscritorioDePrueba.h"
#include "e2e/Programa.h"

namespace {

namespace fs = std::filesystem;
using e2e::Editor;
using e2e::Principal;

constexpr const char* Precipitaciones = "Carga de Datos de Precipitación";
constexpr const char* FormaUEH = "Propiedades de UHE (Unidad Hidrológica Elemental)";

/// The sample project open in a window of a known size.
class GraficosEnPantalla : public e2e::EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        EscritorioDePrueba::SetUp();
        if (pantalla == nullptr) return;
        pantalla->Arranca(dir + "/siro");
        pantalla->EsperaVentana(Principal);
        pantalla->Mide(1100, 680);
        pantalla->Teclas({"ctrl+o"});
        pantalla->EsperaVentana("Abrir");
        pantalla->Teclea(dir + "/Proyectos/Quelmar_Conf.vlm");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana("SIRO");
        pantalla->Teclas({"Return"});
        pantalla->EsperaVentana(Principal);
    }
    /// Right click at a point of the active window, saves the cells by the menu, and tells what another
    /// program reads in the file.
    std::string CeldasPorElMenu(int x, int y, const char* vuelve)
    {
        const std::string archivo = raiz + "/celdas.csv";
        fs::remove(archivo);
        constexpr int Derecho = 3;
        pantalla->Pulsa(x, y, Derecho);
        pantalla->Teclas({"g"});
        GuardaEn("Guardar las celdas como CSV", archivo, vuelve);
        const e2e::Salida salida =
            e2e::Ejecuta("/usr/bin/env", {"python3", SIRO_TESTS_DIR "/apoyo/lee_planilla.py", archivo}, "/");
        EXPECT_EQ(salida.estado, 0) << salida.errores;
        return salida.estandar;
    }
    static void Dice(const std::string& celdas, std::initializer_list<const char*> partes)
    {
        for (const char* parte : partes)
            EXPECT_NE(celdas.find(parte), std::string::npos) << parte << "\nin\n" << celdas.substr(0, 600);
    }
};

TEST_F(GraficosEnPantalla, ElBotonDerechoAbreElMenuDeCadaUno)
{
    // Each chart of the results comes up over this point of the main window.
    constexpr int X = 560, Y = 360;
    FijaTormenta("80", "120");
    pantalla->Teclas({"F8"});
    Dice(CeldasPorElMenu(X, Y, Principal),
         {"Hietograma\n", "Pp= 80mm;  D= 120 min", "Proyecto: Quelmar - Crecidas del arroyo Quelmar",
          "\nFecha: ", "\nt [minutos]|Precipitación [mm]\n"});
    pantalla->Teclas({"F5"});
    const std::string archivo = dir + "/SalePizarra1_tem.txt";
    pantalla->EsperaA("the text file", [&] { return fs::exists(archivo); });
    pantalla->EsperaVentana(Principal);
    Dice(CeldasPorElMenu(X, Y, Principal),
         {"Hidrograma\n", "Componente: 1, u-CerroBayo   Pp= 80mm;  D= 120 min", "\nProyecto: Quelmar - ",
          "\nFecha: ", "\nt [horas]|Qsale [m3/s]|Pp [mm]\n"});

    pantalla->Teclas({"F4"});
    pantalla->EsperaVentana(Precipitaciones);
    pantalla->Teclas({"alt+p", "shift+Tab", "Down", "Down", "Return"});
    pantalla->EsperaVentana(Principal);
    pantalla->Teclas({"F6"});
    Acepta("Desea continuar ?");
    Acepta("La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>");
    pantalla->EsperaVentana(Principal);
    Dice(CeldasPorElMenu(X, Y, Principal),
         {"Serie de Tormentas Sintéticas: ", "\nc-Quelmar5\n", "\nProyecto: Quelmar - ",
          "\nFecha: ", "\nDuración Tormenta D[minutos]|R= 2 años [m3/s]|R= 5 años [m3/s]|"});
    Termina();
}

TEST_F(GraficosEnPantalla, TambienElDeLaFichaDeUnaUEH)
{
    pantalla->Teclas({"F3"});
    pantalla->EsperaVentana(Editor);
    pantalla->Teclas({"F3"});
    pantalla->EsperaVentana(FormaUEH);
    Dice(CeldasPorElMenu(720, 240, FormaUEH),
         {"Infiltración I(t)\nu-CerroBayo\n", "\nProyecto: Quelmar", "\nt [min]|I [mm]\n"});
}

}  // namespace
