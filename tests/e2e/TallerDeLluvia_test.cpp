// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rain workshop by keyboard and mouse: ten maxima typed, the table of the laws, steps taken back.

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "apoyo/Compara.h"
#include "e2e/EscritorioDePrueba.h"
#include "e2e/Programa.h"

namespace {

namespace fs = std::filesystem;
using e2e::Principal;

// In a window of this size.
constexpr int Ancho = 1100, Alto = 680;
constexpr int CeldaX = 262, CeldaY = 280;      // first cell of the grid
constexpr int AjustesX = 225, AjustesY = 200;  // the third step
constexpr int TablaX = 60, TablaY = 420;       // its table
constexpr int DeshacerX = 950, DeshacerY = 200;

class Taller : public e2e::EscritorioDePrueba {
  protected:
    void SetUp() override
    {
        EscritorioDePrueba::SetUp();
        if (pantalla == nullptr) return;
        pantalla->Arranca(dir + "/siro", {Proyectos() + "/Quelmar_Conf.vlm"});
        Acepta("SIRO");
        pantalla->EsperaVentana(Principal);
        pantalla->Mide(Ancho, Alto);
    }
    /// Maxima that the study's file holds.
    [[nodiscard]] int Maximos() const
    {
        const std::string archivo = Proyectos() + "/Quelmar_Estudio.json";
        if (!fs::exists(archivo)) return 0;
        const std::string texto = apoyo::BytesDeArchivo(archivo);
        int n = 0;
        for (std::size_t i = texto.find("\"anio\""); i != std::string::npos;
             i = texto.find("\"anio\"", i + 1))
            ++n;
        return n;
    }
    void Foto(const char* nombre) const
    {
        if (const char* const carpeta = std::getenv("SIRO_FOTOS"))
            pantalla->Foto(std::string(carpeta) + "/" + nombre + ".png");
    }
};

// The depth of 100 years by Gumbel is worked out in Python: mean 69.5 mm, l2 = 13.3667 mm.
TEST_F(Taller, DiezMaximosDanSuTablaYSeDeshacen)
{
    constexpr std::array<const char*, 10> Diez{"51", "70", "48", "95", "62", "58", "81", "44", "66", "120"};
    pantalla->Teclas({"alt+d", "t"});
    pantalla->EsperaA("the workshop",
                      [this] { return pantalla->Activa().find("SIRO") != std::string::npos; });
    pantalla->Pulsa(CeldaX, CeldaY);
    for (std::size_t i = 0; i < Diez.size(); ++i) {
        pantalla->Teclea(std::to_string(1990 + i));
        pantalla->Teclas({"Tab"});
        pantalla->Teclea(Diez[i]);
        pantalla->Teclas({"Tab", "Tab"});
    }
    Foto("taller_1");
    pantalla->EsperaA("ten maxima in the file", [this] { return Maximos() == 10; });

    pantalla->Pulsa(AjustesX, AjustesY);
    pantalla->Pulsa(TablaX, TablaY);
    const std::string archivo = raiz + "/laminas.csv";
    pantalla->Teclas({"Menu", "s"});
    Foto("taller_3");
    GuardaEn("Guardar la tabla como CSV", archivo);
    const e2e::Salida salida =
        e2e::Ejecuta("/usr/bin/env", {"python3", SIRO_TESTS_DIR "/apoyo/lee_planilla.py", archivo}, "/");
    EXPECT_EQ(salida.estado, 0) << salida.errores;
    EXPECT_NE(salida.estandar.find("Gumbel"), std::string::npos) << salida.estandar;
    EXPECT_NE(salida.estandar.find("\n100.0|"), std::string::npos) << salida.estandar;
    EXPECT_NE(salida.estandar.find("147.1"), std::string::npos) << salida.estandar;

    pantalla->Pulsa(DeshacerX, DeshacerY);
    pantalla->EsperaA("nine maxima", [this] { return Maximos() == 9; });
    pantalla->Teclas({"ctrl+z"});
    pantalla->EsperaA("eight maxima", [this] { return Maximos() == 8; });
    Foto("taller_deshecho");
    pantalla->Teclas({"ctrl+y", "ctrl+y"});
    pantalla->EsperaA("ten maxima again", [this] { return Maximos() == 10; });
    Termina();
}

}  // namespace
