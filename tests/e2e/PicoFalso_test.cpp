// SPDX-License-Identifier: GPL-3.0-or-later
//
// A peak that is none, from the notice to the run that is long enough, by mouse and keyboard.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "e2e/EscritorioDePrueba.h"
#include "e2e/Programa.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace {

namespace fs = std::filesystem;
using e2e::Principal;

// In a window of this size, with the list at its foot.
constexpr int Ancho = 1100, Alto = 680;
constexpr int ClaveX = 1030, ClaveY = 663;     // key of the status bar
constexpr int BotonX = 988, BotonY = 537;      // "Agregar ... y correr de nuevo"
constexpr int BalanceX = 150, BalanceY = 562;  // page of the balance
constexpr int CuencaX = 60, CuencaY = 606;     // its first row, two above that of c-1
constexpr int GraficoX = 400, GraficoY = 300;  // the chart, which stands above the list
constexpr int Derecho = 3;

/// A hydrograph of the cells that a chart saves.
struct Hidrograma {
    std::vector<double> horas{}, caudales{};
    [[nodiscard]] std::size_t Pico() const
    {
        return static_cast<std::size_t>(std::max_element(caudales.begin(), caudales.end()) -
                                        caudales.begin());
    }
};

/// u-1 -> c-1, the outlet. 60 mm in 60 min, all of them excess, on 100 ha that they take 60 min to leave: by
/// the rational formula 0.06/3600·1e6 = 16.667 m3/s from minute 60 on, and on the way there as much of it as
/// of the 60 min has gone by. The reach brings it 60 min later.
class PicoFalso : public e2e::EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        EscritorioDePrueba::SetUp();
        if (pantalla == nullptr) return;
        EscribeElProyecto();
        pantalla->Arranca(dir + "/siro", {Conf()});
        pantalla->EsperaVentana(Principal);
        pantalla->Mide(Ancho, Alto);
    }
    [[nodiscard]] std::string Conf() const { return Proyectos() + "/Arroyo_Conf.vlm"; }
    void EscribeElProyecto() const
    {
        apoyo::AnfitrionPrueba anfitrion;
        model::Siro s;
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.frmConfigura.Dir1 = Proyectos();
        s.Proyecto.DirTrabajo = dir;
        s.frmConfigura.txtN0Dur = "10";
        ASSERT_TRUE(model::cmdAplicar(s));
        model::UEH u;
        u.NombreUEH = "u-1";
        u.Metodo = "Directo";
        u.numUEH = 1;
        u.IconoUEHx = 300;
        u.IconoUEHy = 100;
        u.Cauce_aa = "c-1";
        u.Area = 100;
        u.LongitudMax = 3600;
        u.VelMedia = 1;
        s.Red.ColUEHs.Agrega(u);
        model::Cauce c;
        c.numCauce = 1;
        c.numVertices = 2;
        c.IndiceParInicial = 1;
        c.NombreCauce = "c-1";
        c.Cauce_aa = "0";
        c.optDirMusk = true;
        c.LongCauce = 3600;
        c.VelMediaCauce = 1;
        s.Red.ColCauces.Agrega(c);
        s.Red.NroVertices(1) = 2;
        for (auto* v : {&s.Red.XVertice, &s.Red.YVertice}) {
            v->Dimensiona(model::MaxCauces, 2);
            (*v)(1, 1) = 400;
            (*v)(1, 2) = 300;
        }
        ASSERT_TRUE(model::GuardaRed(s));
    }
    /// What another program reads in a table that was saved.
    static std::string Lee(const std::string& archivo)
    {
        const e2e::Salida salida =
            e2e::Ejecuta("/usr/bin/env", {"python3", SIRO_TESTS_DIR "/apoyo/lee_planilla.py", archivo}, "/");
        EXPECT_EQ(salida.estado, 0) << salida.errores;
        return salida.estandar;
    }
    /// Waits for the text file that a run leaves at its end.
    void EsperaLaCorrida()
    {
        pantalla->EsperaA("the run", [&] { return fs::exists(dir + "/SalePizarra1_tem.txt"); });
        pantalla->EsperaVentana(Principal);
    }
    /// Opens the list by its key, and saves it by its menu.
    std::string Lista()
    {
        pantalla->Pulsa(ClaveX, ClaveY);
        const std::string archivo = raiz + "/avisos.csv";
        fs::remove(archivo);
        pantalla->Teclas({"Home", "Menu", "s"});
        GuardaEn("Guardar la tabla como CSV", archivo);
        return Lee(archivo);
    }
    /// The hydrograph of the outlet, from its row in the balance.
    Hidrograma DeLaSalida()
    {
        pantalla->Pulsa(ClaveX, ClaveY);
        pantalla->Pulsa(BalanceX, BalanceY);
        pantalla->Pulsa(CuencaX, CuencaY);
        pantalla->Teclas({"Down", "Down", "Menu", "v"});
        const std::string archivo = raiz + "/celdas.csv";
        fs::remove(archivo);
        pantalla->Pulsa(GraficoX, GraficoY, Derecho);
        pantalla->Teclas({"g"});
        GuardaEn("Guardar las celdas como CSV", archivo, Principal);
        const std::string celdas = Lee(archivo);
        EXPECT_NE(celdas.find("c-1"), std::string::npos) << celdas;
        Hidrograma h;
        std::istringstream lineas(celdas.substr(celdas.find("\nt [") + 1));
        std::string linea, campo;
        std::getline(lineas, linea);
        while (std::getline(lineas, linea)) {
            std::istringstream campos(linea);
            std::getline(campos, campo, '|');
            h.horas.push_back(model::Val(campo));
            std::getline(campos, campo, '|');
            h.caudales.push_back(model::Val(campo));
        }
        return h;
    }
};

TEST_F(PicoFalso, DelAvisoALaCorridaQueAlcanza)
{
    constexpr double Racional = 0.06 / 3600 * 1e6;  // [m3/s]
    FijaTormenta("60", "60");
    pantalla->Teclas({"F5"});
    EsperaLaCorrida();

    const std::string antes = Lista();
    EXPECT_NE(antes.find("1 error"), std::string::npos) << antes;
    EXPECT_NE(antes.find("\nerror|101.0|c-1|"), std::string::npos) << antes;
    EXPECT_NE(antes.find("(ahora 10 min)"), std::string::npos) << antes;
    // The slope is dry at minute 110, and so long the run is at least: the reach has brought the flood of the
    // first 50 min by then.
    const Hidrograma corto = DeLaSalida();
    ASSERT_FALSE(corto.caudales.empty());
    EXPECT_EQ(corto.Pico(), corto.caudales.size() - 1);
    EXPECT_NEAR(corto.caudales.back(), Racional * 50 / 60, 0.01);

    fs::remove(dir + "/SalePizarra1_tem.txt");
    pantalla->Pulsa(ClaveX, ClaveY);
    pantalla->Pulsa(BotonX, BotonY);
    Acepta("SIRO");  // the box of the configuration
    EsperaLaCorrida();

    const std::string despues = Lista();
    EXPECT_EQ(despues.find("|101.0|"), std::string::npos) << despues;
    EXPECT_NE(despues.find("Sin avisos"), std::string::npos) << despues;
    const Hidrograma largo = DeLaSalida();
    ASSERT_FALSE(largo.caudales.empty());
    EXPECT_LT(largo.Pico(), largo.caudales.size() - 1);
    EXPECT_NEAR(largo.caudales[largo.Pico()], Racional, 0.01);
    EXPECT_NEAR(largo.horas[largo.Pico()], 2.0, 1e-6);  // 60 min of the slope and 60 of the reach
    Termina();
}

}  // namespace
