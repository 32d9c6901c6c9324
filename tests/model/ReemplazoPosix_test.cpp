// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files replaced where rights, owners and links of POSIX have a say.

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "ReemplazoReal.h"
#include "model/Falla.h"

using namespace model;
using fallas::Contenido;
using fallas::Fin;
using fallas::ReemplazoReal;
namespace fs = std::filesystem;

namespace {

TEST_F(ReemplazoReal, LosDerechosDelArchivoQuedan)
{
    fallas::PonContenido(carpeta.Camino(), {{"a", "viejo"}});
    for (const mode_t derechos : {0600U, 0640U, 0664U, 0666U}) {
        chmod(En("a").c_str(), derechos);
        Reemplaza({{"a", "nuevo"}}, LlamadasDelSistema());
        EXPECT_EQ(static_cast<mode_t>(fs::status(En("a")).permissions()), derechos);
    }
}

// --- where a folder takes no new file ---

/// Gives up the rights of the administrator, who may write everywhere.
bool SinPrivilegios()
{
    constexpr uid_t nadie = 65534;
    return geteuid() != 0 || (setgid(nadie) == 0 && setuid(nadie) == 0);
}

TEST_F(ReemplazoReal, EnUnaCarpetaSinArchivosNuevosSeEscribeEnSitio)
{
    fallas::PonContenido(carpeta.Camino(), {{"a", "viejo"}, {"b", "otro"}});
    chmod(En("a").c_str(), 0666);
    chmod(En("b").c_str(), 0666);
    chmod(carpeta.Camino().c_str(), 0555);
    const Fin fin = fallas::EnOtroProceso([&] {
        if (!SinPrivilegios()) _exit(2);
        Reemplaza({{"a", "nuevo y más largo"}, {"b", "x"}}, LlamadasDelSistema());
        // What isn't there can't come in.
        if (apoyo::NumeroDeFalla([&] { Reemplaza({{"c", "x"}}, LlamadasDelSistema()); }) != 75) _exit(3);
    });
    chmod(carpeta.Camino().c_str(), 0755);
    EXPECT_EQ(fin, Fin::Entero);
    EXPECT_EQ(Queda(), (Contenido{{"a", "nuevo y más largo"}, {"b", "x"}}));
}

TEST_F(ReemplazoReal, EnSitioUnDiscoLlenoDejaLoViejo)
{
    const Contenido viejo{{"a", "viejo"}, {"b", "otro"}};
    fallas::PonContenido(carpeta.Camino(), viejo);
    chmod(En("a").c_str(), 0666);
    chmod(En("b").c_str(), 0666);
    chmod(carpeta.Camino().c_str(), 0555);
    const Fin fin = fallas::EnOtroProceso([&] {
        if (!SinPrivilegios()) _exit(2);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{100, 100};
        setrlimit(RLIMIT_FSIZE, &limite);
        const Contenido nuevo{{"a", "nuevo"}, {"b", std::string(1000, 'x')}};
        if (apoyo::NumeroDeFalla([&] { Reemplaza(nuevo, LlamadasDelSistema()); }) != 75) _exit(3);
    });
    chmod(carpeta.Camino().c_str(), 0755);
    EXPECT_EQ(fin, Fin::Entero);
    EXPECT_EQ(Queda(), viejo);
}

// A folder for all, where nobody may take another's file away.
TEST_F(ReemplazoReal, EnUnaCarpetaCompartidaElArchivoDeOtroSeEscribeEnSitio)
{
    if (geteuid() != 0) GTEST_SKIP() << "only an administrator can make a file of another user's";
    fallas::PonContenido(carpeta.Camino(), {{"a", "viejo"}, {"b", "otro"}});
    chmod(En("a").c_str(), 0666);
    chmod(En("b").c_str(), 0666);
    chmod(carpeta.Camino().c_str(), 01777);
    const Contenido nuevo{{"a", "nuevo y más largo"}, {"b", "x"}, {"c", "propio"}};
    const Fin fin = fallas::EnOtroProceso([&] {
        if (!SinPrivilegios()) _exit(2);
        Reemplaza(nuevo, LlamadasDelSistema());
    });
    EXPECT_EQ(fin, Fin::Entero);
    EXPECT_EQ(Queda(), nuevo);
}

TEST_F(ReemplazoReal, UnArchivoProtegidoNoSeReemplaza)
{
    fallas::PonContenido(carpeta.Camino(), {{"a", "viejo"}});
    chmod(En("a").c_str(), 0444);
    chmod(carpeta.Camino().c_str(), 0777);
    const Fin fin = fallas::EnOtroProceso([&] {
        if (!SinPrivilegios()) _exit(2);
        if (apoyo::NumeroDeFalla([&] { Reemplaza({{"a", "x"}}, LlamadasDelSistema()); }) != 75) _exit(3);
    });
    EXPECT_EQ(fin, Fin::Entero);
    EXPECT_EQ(Queda(), (Contenido{{"a", "viejo"}}));
}

// --- links ---

struct Enlaces : ReemplazoReal {
    Enlaces()
    {
        fs::create_directory(En("dentro"));
        std::ofstream(En("dentro") / "meta", std::ios::binary) << "viejo";
        std::ofstream(fuera.Ruta("meta"), std::ios::binary) << "ajeno";
    }
    int Escribe(const std::string& nombre) const
    {
        return apoyo::NumeroDeFalla([&] { Reemplaza({{nombre, "nuevo"}}, LlamadasDelSistema()); });
    }
    apoyo::CarpetaTemporal fuera;
};

TEST_F(Enlaces, DentroDeLaCarpetaSeSiguen)
{
    fs::create_symlink("dentro/meta", En("a"));
    fs::create_symlink("a", En("b"));
    fs::create_symlink("todavia_no", En("c"));
    EXPECT_EQ(Escribe("b"), 0);
    EXPECT_EQ(apoyo::BytesDeArchivo(En("dentro") / "meta"), "nuevo");
    EXPECT_TRUE(fs::is_symlink(En("a")) && fs::is_symlink(En("b")));
    EXPECT_EQ(Escribe("c"), 0);
    EXPECT_EQ(apoyo::BytesDeArchivo(En("todavia_no")), "nuevo");
}

TEST_F(Enlaces, FueraDeLaCarpetaNoSeSiguenYSeDicePorQue)
{
    fs::create_symlink(fuera.Camino() / "meta", En("a"));
    fs::create_symlink(fuera.Camino() / "todavia_no", En("b"));
    fs::create_symlink("../otra", En("c"));
    fs::create_symlink("d", En("d"));
    fs::create_symlink(fuera.Camino(), En("puente"));
    fs::create_symlink("puente/meta", En("e"));
    for (const char* nombre : {"a", "b", "c", "e"}) {
        try {
            Reemplaza({{nombre, "nuevo"}}, LlamadasDelSistema());
            ADD_FAILURE() << nombre << " was written";
        } catch (const Falla& falla) {
            EXPECT_EQ(falla, (Falla{NumeroFalla::AccesoRuta, NotaEnlace})) << nombre;
        }
    }
    EXPECT_EQ(Escribe("d"), 75);
    EXPECT_EQ(apoyo::BytesDeArchivo(fuera.Camino() / "meta"), "ajeno");
    EXPECT_FALSE(fs::exists(fuera.Camino() / "todavia_no"));
    EXPECT_FALSE(fs::exists(carpeta.Camino().parent_path() / "otra"));
}

// Two files of a project that stand in a folder of it, and links in their place.
TEST_F(Enlaces, LoQueQuedoDondeLlevanSeArreglaConLaCarpeta)
{
    const fs::path dentro = En("dentro");
    std::ofstream(dentro / "otro", std::ios::binary) << "viejo";
    fs::create_symlink("dentro/meta", En("a"));
    fs::create_symlink("dentro/otro", En("b"));
    fs::create_symlink("dentro/ninguno", En("c"));
    fs::create_symlink(fuera.Camino() / "meta", En("d"));
    std::ofstream(fuera.Ruta(".siro-0-1-0.tmp"), std::ios::binary) << "ajeno";
    // Two temporaries, the list, its settling, the first rename; killed at the second.
    ASSERT_EQ(fallas::EnOtroProceso([&] {
                  Reemplaza({{"a", "nuevo a"}, {"b", "nuevo b"}}, fallas::Llamadas({.llamada = 6}));
              }),
              Fin::Matado);
    EXPECT_EQ(RecuperaCarpeta(LlamadasDelSistema(), carpeta.Camino().string()), (Recuperacion{{"otro"}, {}}));
    EXPECT_EQ(fallas::ContenidoDe(dentro), (Contenido{{"meta", "nuevo a"}, {"otro", "nuevo b"}}));
    EXPECT_TRUE(fs::exists(fuera.Ruta(".siro-0-1-0.tmp"))) << "no link leads out";
}

TEST_F(Enlaces, UnaCarpetaQueEsEnlaceEsLaDelProyecto)
{
    const fs::path atajo = fuera.Camino() / "atajo";
    fs::create_directory_symlink(carpeta.Camino(), atajo);
    fs::create_symlink("dentro/meta", En("a"));
    ReemplazaArchivos(LlamadasDelSistema(), {{(atajo / "a").string(), "nuevo"}});
    EXPECT_EQ(apoyo::BytesDeArchivo(En("dentro") / "meta"), "nuevo");
}

}  // namespace
