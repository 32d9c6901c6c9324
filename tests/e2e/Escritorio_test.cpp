// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop program as its user has it before him: a real window, a real keyboard, a copy of the delivered
// data. What it writes is what siro-lote writes.

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "apoyo/Compara.h"
#include "e2e/Pantalla.h"
#include "e2e/Programa.h"
#include "model/Texto.h"

namespace {

namespace fs = std::filesystem;
using apoyo::BytesDeArchivo;
using apoyo::MismoTexto;
using e2e::Lote;
using e2e::Salida;

constexpr const char* Principal = "SIRO - Modelo Hidrológico de  simulación de crecidas";

/// The Slate tells when it was written; two runs tell it differently.
std::string SinHora(const std::string& texto)
{
    return std::regex_replace(texto, std::regex("[0-9]{2}/[0-9]{2}/[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}"),
                              "dd/mm/aaaa hh:mm:ss");
}

class Escritorio : public testing::Test {
  protected:
    void SetUp() override
    {
        std::string plantilla = (fs::temp_directory_path() / "siro-escritorio-XXXXXX").string();
        ASSERT_NE(mkdtemp(plantilla.data()), nullptr);
        raiz = fs::canonical(plantilla).string();
        dir = raiz + "/siro";
        fs::copy(SIRO_DATA_DIR, dir, fs::copy_options::recursive);
        // The program takes the directory that it lies in for its own.
        fs::copy_file(SIRO_ESCRITORIO, dir + "/siro");
        pantalla = std::make_unique<e2e::Pantalla>(raiz + "/casa");
    }
    void TearDown() override
    {
        if (HasFailure()) std::cerr << BytesDeArchivo(pantalla->Diario());
        pantalla.reset();
        std::error_code error;
        fs::remove_all(raiz, error);
    }
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
    void FijaTormenta(const char* pp, const char* dur)
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
    void Termina()
    {
        pantalla->Teclas({"ctrl+q"});
        pantalla->EsperaA("the end of the program", [&] { return pantalla->Programa().Termino(); });
        EXPECT_EQ(pantalla->Programa().Estado(), 0);
    }

    std::string raiz, dir;
    std::unique_ptr<e2e::Pantalla> pantalla;
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
    pantalla->EsperaVentana("Guardar el texto de la Pizarra");
    pantalla->Teclea(raiz + "/pizarra.txt");
    pantalla->Teclas({"Return"});
    pantalla->EsperaVentana(Principal);
    pantalla->EsperaA("the saved Slate", [&] { return fs::exists(raiz + "/pizarra.txt"); });
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

}  // namespace
