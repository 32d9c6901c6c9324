// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/EscritorioDePrueba.h"

#include <filesystem>
#include <iostream>
#include <regex>

#include "apoyo/Compara.h"

namespace e2e {

namespace fs = std::filesystem;

std::string SinHora(const std::string& texto)
{
    return std::regex_replace(texto, std::regex("[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}"),
                              "dd/mm/aaaa hh:mm:ss");
}

void EscritorioDePrueba::SetUp()
{
    if (raiz.empty()) {
        std::string plantilla = (fs::temp_directory_path() / "siro-escritorio-XXXXXX").string();
        ASSERT_NE(mkdtemp(plantilla.data()), nullptr);
        raiz = fs::canonical(plantilla).string();
    }
    dir = raiz + "/siro";
    fs::copy(SIRO_DATA_DIR, dir, fs::copy_options::recursive);
    // The program takes the directory that it lies in for its own.
    fs::copy_file(SIRO_ESCRITORIO, dir + "/siro");
    pantalla = std::make_unique<Pantalla>(raiz + "/casa", tamano);
}

void EscritorioDePrueba::TearDown()
{
    if (pantalla == nullptr) return;
    if (HasFailure()) std::cerr << apoyo::BytesDeArchivo(pantalla->Diario());
    pantalla.reset();
    std::error_code error;
    fs::remove_all(raiz, error);
}

void EscritorioDePrueba::Acepta(const char* titulo)
{
    pantalla->EsperaVentana(titulo);
    pantalla->Teclas({"Return"});
}

void EscritorioDePrueba::FijaTormenta(const char* pp, const char* dur)
{
    pantalla->Teclas({"F4"});
    pantalla->EsperaVentana("Carga de Datos de Precipitación");
    pantalla->Teclas({"alt+p", "ctrl+a"});
    pantalla->Teclea(pp);
    pantalla->Teclas({"alt+d", "ctrl+a"});
    pantalla->Teclea(dur);
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(Principal);
}

void EscritorioDePrueba::GuardaEn(const char* titulo, const std::string& ruta, const char* vuelve)
{
    pantalla->EsperaVentana(titulo);
    pantalla->Teclas({"ctrl+a"});
    pantalla->Teclea(ruta);
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(vuelve);
    pantalla->EsperaA("the file " + ruta, [&] { return fs::exists(ruta); });
}

void EscritorioDePrueba::GuardaDelMenu(const char* entrada, const char* titulo, const std::string& ruta)
{
    pantalla->Teclas({"Menu", entrada});
    GuardaEn(titulo, ruta);
}

void EscritorioDePrueba::Termina()
{
    pantalla->Teclas({"ctrl+q"});
    pantalla->EsperaA("the end of the program", [&] { return pantalla->Programa().Termino(); });
    EXPECT_EQ(pantalla->Programa().Estado(), 0);
}

}  // namespace e2e
