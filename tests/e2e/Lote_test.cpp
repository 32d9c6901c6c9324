// SPDX-License-Identifier: GPL-3.0-or-later
//
// siro-lote as a process: exit status, streams, files, paths.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "batch/ProyectoDePrueba.h"
#include "e2e/Programa.h"
#include "model/Texto.h"

namespace {

namespace fs = std::filesystem;

using e2e::Lote;
using e2e::Salida;
using prueba::CsvDeSesenta;
using prueba::ProyectoDePrueba;

bool Contiene(const std::string& texto, std::string_view trozo)
{
    return texto.find(trozo) != std::string::npos;
}

TEST(LoteProceso, UnaTormentaCompleta)
{
    const ProyectoDePrueba p;
    const Salida s = Lote({"una", p.Conf(), "--trabajo", p.Dir(), "--resultados", p.Ruta("r.csv")}, "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.estandar, "");
    EXPECT_EQ(s.errores, "");
    EXPECT_EQ(p.Lee("r.csv"), CsvDeSesenta);
}

TEST(LoteProceso, LosCaminosRelativosSonDelDirectorioEnQueSeEjecuta)
{
    const ProyectoDePrueba p;
    fs::create_directory(p.Ruta("trabajo"));
    const Salida s =
        Lote({"una", "trabajo/../Mio_Conf.vlm", "--trabajo", "trabajo/", "--resultados", "./r.csv"}, p.Dir());
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.errores, "");  // the configuration names the same directory: the project hasn't moved
    EXPECT_EQ(p.Lee("r.csv"), CsvDeSesenta);
    EXPECT_TRUE(p.Esta("trabajo/SalePizarra1_tem.txt"));
    EXPECT_FALSE(p.Esta("SalePizarra1_tem.txt"));
}

TEST(LoteProceso, SoloElNombreDelArchivoBastaEnSuDirectorio)
{
    const ProyectoDePrueba p;
    const Salida s = Lote({"una", "Mio_Conf.vlm", "--trabajo", ".", "--resultados", "r.csv"}, p.Dir());
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.errores, "");
    EXPECT_EQ(p.Lee("r.csv"), CsvDeSesenta);
    EXPECT_TRUE(p.Esta("SalePizarra1_tem.txt"));
}

// A copy of the program in a directory of its own, started from elsewhere.
TEST(LoteProceso, SinTrabajoLosResultadosVanJuntoAlPrograma)
{
    const ProyectoDePrueba p;
    fs::create_directory(p.Ruta("programa"));
    fs::copy_file(SIRO_LOTE, p.Ruta("programa/lote"));
    const Salida s = e2e::Ejecuta(p.Ruta("programa/lote"), {"una", p.Conf()}, "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.errores, "");
    EXPECT_TRUE(p.Esta("programa/SalePizarra1_tem.txt"));
}

// The file holds the Slate's text as one quoted field in the code page of the files.
TEST(LoteProceso, LaPizarraYSuArchivoDicenLoMismo)
{
    const ProyectoDePrueba p;
    const Salida s = Lote({"una", p.Conf(), "--trabajo", p.Dir(), "--pizarra"}, "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_TRUE(s.estandar.starts_with("SIRO - Modelo de Simulación Hidrológica\r\n"));
    std::string archivo = "\"";
    archivo.append(model::AWindows1252(s.estandar)).append("\"\r\n");
    EXPECT_EQ(p.Lee("SalePizarra1_tem.txt"), archivo);
}

TEST(LoteProceso, ElCsvEsElMismoConPizarraYSinElla)
{
    const ProyectoDePrueba p;
    EXPECT_EQ(Lote({"una", p.Conf(), "--trabajo", p.Dir(), "--pizarra", "--resultados", p.Ruta("r.csv")}, "/")
                  .estado,
              0);
    EXPECT_EQ(p.Lee("r.csv"), CsvDeSesenta);
}

TEST(LoteProceso, LineaDeOrdenesErronea)
{
    for (const std::vector<std::string>& palabras :
         {std::vector<std::string>{}, {"una"}, {"una", "Rio.vlm"}, {"una", "Rio_Conf.vlm", "--forma", "2"}}) {
        const Salida s = Lote(palabras, "/");
        EXPECT_EQ(s.estado, 2);
        EXPECT_EQ(s.estandar, "");
        EXPECT_TRUE(Contiene(s.errores, "\nUso: siro-lote una ")) << s.errores;
    }
}

TEST(LoteProceso, LaAyudaNoEsUnError)
{
    const Salida s = Lote({"--help"}, "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_TRUE(s.estandar.starts_with("Uso: siro-lote una "));
    EXPECT_EQ(s.errores, "");
}

TEST(LoteProceso, UnControlTerminaConUno)
{
    const ProyectoDePrueba p;
    const Salida s =
        Lote({"una", p.Conf(), "--trabajo", p.Dir(), "--pp", "0", "--resultados", p.Ruta("r.csv")}, "/");
    EXPECT_EQ(s.estado, 1);
    EXPECT_FALSE(p.Esta("r.csv"));
}

#if defined(__linux__)
TEST(LoteProceso, LaSalidaEstandarLlenaTerminaConUno)
{
    const ProyectoDePrueba p;
    const auto llena = [&](const std::string& palabras) {
        return e2e::Ejecuta("/bin/sh", {"-c", std::string(SIRO_LOTE) + " " + palabras + " >/dev/full"},
                            p.Dir());
    };
    const Salida corrida = llena("una Mio_Conf.vlm --trabajo . --pizarra --resultados r.csv");
    EXPECT_EQ(corrida.estado, 1);
    EXPECT_EQ(corrida.errores, "siro-lote: no se puede escribir en la salida estándar\n");
    EXPECT_FALSE(p.Esta("r.csv"));
    EXPECT_EQ(llena("--ayuda").estado, 1);
    EXPECT_EQ(llena("una Mio_Conf.vlm --trabajo .").estado, 0) << "nothing was to be written there";
}

/// Whether the programs carry the address sanitizer, which takes terabytes of addresses for itself.
constexpr bool ConDireccionesVigiladas()
{
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
    return true;
#endif
#endif
    return false;
}

// Threads that the system refuses aren't missed: fewer give the same.
TEST(LoteProceso, SinLugarParaMasHilosUnaSerieSigueConMenos)
{
    if (ConDireccionesVigiladas()) GTEST_SKIP() << "its own memory is beyond any limit";
    const ProyectoDePrueba p;
    std::string tormentas;
    for (int i = 1; i <= 200; ++i)
        tormentas += std::to_string(i) + ",60,10\r\n";
    p.Escribe("TablasPDRs_pdr.vlm", "200,0,0,0\r\n\"\"\r\n" + tormentas + "\"\"\r\n\"\"\r\n\"\"\r\n");
    EXPECT_EQ(Lote({"serie", p.Conf(), "--trabajo", p.Dir(), "--resultados", p.Ruta("r.csv")}, "/").estado,
              0);
    const Salida s =
        e2e::Ejecuta("/bin/sh",
                     {"-c", std::string("ulimit -v 400000; exec ") + SIRO_LOTE +
                                " serie Mio_Conf.vlm --trabajo . --hilos 1024 --resultados poca.csv"},
                     p.Dir());
    EXPECT_EQ(s.estado, 0) << s.errores;
    EXPECT_EQ(p.Lee("poca.csv"), p.Lee("r.csv"));
}
#endif

TEST(LoteProceso, UnNoTerminaConTres)
{
    const ProyectoDePrueba p;
    p.Cambia("Mio_UEHs.vlm", "\r\n100.000\r\n", "\r\n99\r\n");
    const Salida s = Lote({"una", p.Conf(), "--trabajo", p.Dir(), "--responde", "no", "--pizarra"}, "/");
    EXPECT_EQ(s.estado, 3);
    EXPECT_EQ(s.estandar, "");
    EXPECT_TRUE(s.errores.ends_with(" -> No\n")) << s.errores;
}

TEST(LoteProceso, UnaSerieSinTerminalNoDibujaAvance)
{
    const ProyectoDePrueba p;
    p.Escribe("TablasPDRs_pdr.vlm", "2,0,0,0\r\n\"\"\r\n60,60,10\r\n120,60,25\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    const Salida s = Lote({"serie", p.Conf(), "--trabajo", p.Dir(), "--resultados", p.Ruta("r.csv")}, "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.estandar, "");
    EXPECT_FALSE(Contiene(s.errores, "\r")) << s.errores;
    EXPECT_TRUE(Contiene(p.Lee("r.csv"), "\n*,2,120,60,25,,120000,100\n"));
    EXPECT_TRUE(p.Esta("SaleTablasQDRs_tem.txt"));
}

// A decimal comma and another calendar of the machine change nothing.
TEST(LoteProceso, LaConfiguracionRegionalNoCuenta)
{
    const ProyectoDePrueba p;
    const Salida s =
        e2e::Ejecuta("/usr/bin/env",
                     {"LC_ALL=es_AR.UTF-8", "LANG=es_AR.UTF-8", "TZ=America/Argentina/Salta", SIRO_LOTE,
                      "una", p.Conf(), "--trabajo", p.Dir(), "--resultados", p.Ruta("r.csv")},
                     "/");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(p.Lee("r.csv"), CsvDeSesenta);
}

}  // namespace
