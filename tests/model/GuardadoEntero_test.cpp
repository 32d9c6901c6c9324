// SPDX-License-Identifier: GPL-3.0-or-later
//
// A save on a real disk that takes no more: what was there stays, on the disk and in memory.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "LlamadasQueFallan.h"
#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/Componentes.h"
#include "model/DirPropio.h"
#include "model/VidaProyecto.h"

using namespace model;
using apoyo::BytesDeArchivo;
namespace fs = std::filesystem;

namespace {

const std::string CajaAcceso = SucesoAviso("Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique");

/// How a check in a process of its own came out: its limits, its disks and its death go with it.
constexpr int Nuevo = 0, Viejo = 10, SinDerecho = 77, Mal = 1;
int EnOtroProceso(const std::function<int()>& prueba)
{
    const pid_t hijo = fork();
    if (hijo == 0) _exit(prueba());
    int estado = 0;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : Mal;
}

constexpr std::size_t Pagina = 4096;

std::string Tamano(std::size_t paginas)
{
    return "size=" + std::to_string(paginas * Pagina);
}

/// Mounts an empty disk of so many pages at a folder, for this process alone. False where that isn't allowed.
bool MontaDisco(const std::string& carpeta, std::size_t paginas)
{
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", carpeta.c_str(), "tmpfs", 0, Tamano(paginas).c_str()) == 0;
}

/// No file of this process may grow beyond so many bytes: a write beyond is refused, as on a full disk.
void LimitaArchivos(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limite);
}

struct GuardadoEntero : ::testing::Test, MundoDeProyecto {
    GuardadoEntero()
    {
        s.Disco = DiscoDelSistema();
        s.Proyecto.DirProyecto = s.Proyecto.DirTrabajo = s.frmConfigura.Dir1 = carpeta.Camino().string();
        s.Proyecto.NombreProyecto = "Quelmar";
        PonUEHs(5);
        GuardaRed(s);
        TomaSucesos();
    }
    void PonUEHs(int cuantas)
    {
        s.Red.ColUEHs.Vacia();
        for (int i = 1; i <= cuantas; ++i)
            s.Red.ColUEHs.Agrega({.NombreUEH = "u-" + std::to_string(i), .Area = 250, .numUEH = 0});
    }
    /// Saves 60 UEHs. A failed save must be told once and leave them in memory; the other one must be read
    /// back.
    int GuardaSesenta()
    {
        PonUEHs(60);
        const auto antes = s.Red.ColUEHs;
        const bool bien = GuardaRed(s);
        const auto vistos = TomaSucesos();
        if (s.Red.NroUEHs() != 60 || s.Red.ColUEHs.Cuenta() != 60 || vistos.size() != 1) return Mal;
        if (bien) return vistos[0].find("correctamente") == std::string::npos ? Mal : Nuevo;
        return vistos[0] == CajaAcceso && s.Red.ColUEHs == antes ? Viejo : Mal;
    }
    std::vector<std::string> Nombres() const
    {
        std::vector<std::string> nombres;
        for (const auto& e : fs::directory_iterator(carpeta.Camino()))
            nombres.push_back(e.path().filename().string());
        std::sort(nombres.begin(), nombres.end());
        return nombres;
    }
    apoyo::CarpetaTemporal carpeta;
};

// 60 UEHs of 18 lines take more than 60 x 18 x 2 bytes.
TEST_F(GuardadoEntero, EnUnDiscoLlenoLaRedVigenteQuedaEnElDiscoYLaNuevaEnMemoria)
{
    const std::string viejo = BytesDeArchivo(carpeta.Ruta("Quelmar_UEHs.vlm"));
    ASSERT_NE(viejo, "");
    EXPECT_EQ(EnOtroProceso([&] {
                  LimitaArchivos(2000);
                  return GuardaSesenta();
              }),
              Viejo);
    EXPECT_EQ(BytesDeArchivo(carpeta.Ruta("Quelmar_UEHs.vlm")), viejo);
    EXPECT_EQ(Nombres(), (std::vector<std::string>{"Quelmar_UEHs.vlm", "Quelmar_VerCau.vlm"}));
}

// A disk with room for the old network and 0, 1, 2 ... pages more.
TEST_F(GuardadoEntero, EnUnDiscoDeCadaTamanoLaRedEsLaViejaOLaNueva)
{
    const fallas::Contenido vieja = fallas::ContenidoDe(carpeta.Camino());
    int viejas = 0, nuevas = 0;
    for (std::size_t libres = 0; libres < 8; ++libres) {
        const int salida = EnOtroProceso([&] {
            const std::string raiz = carpeta.Camino().string();
            if (!MontaDisco(raiz, libres + 2)) return SinDerecho;  // its root takes a page as well
            fallas::PonContenido(raiz, vieja);
            const int como = GuardaSesenta();
            const fallas::Contenido queda = fallas::ContenidoDe(raiz);
            if (queda.size() != vieja.size()) return Mal;  // a temporary is left
            const bool esVieja = queda == vieja;
            return como == Viejo ? (esVieja ? Viejo : Mal) : (como == Nuevo && !esVieja ? Nuevo : Mal);
        });
        if (salida == SinDerecho) GTEST_SKIP() << "only a privileged user can mount";
        ASSERT_NE(salida, Mal) << libres << " pages";
        viejas += salida == Viejo;
        nuevas += salida == Nuevo;
    }
    EXPECT_GE(viejas, 1);
    EXPECT_GE(nuevas, 1);
    EXPECT_EQ(fallas::ContenidoDe(carpeta.Camino()), vieja) << "the test has written outside its disk";
}

TEST_F(GuardadoEntero, MatadoEnCadaLlamadaLaRedEsLaViejaOLaNuevaTrasAbrirla)
{
    const fallas::Contenido vieja = fallas::ContenidoDe(carpeta.Camino());
    ASSERT_EQ(EnOtroProceso([&] { return GuardaSesenta(); }), Nuevo);
    const fallas::Contenido nueva = fallas::ContenidoDe(carpeta.Camino());
    for (const double hecha : {0.0, 0.5, 1.0}) {
        int muertes = 0, nuevas = 0;
        for (int n = 1; n < 40; ++n) {
            fallas::PonContenido(carpeta.Camino(), vieja);
            const fallas::Fin fin = fallas::EnOtroProceso([&] {
                s.Disco = fallas::Disco({.llamada = n, .hecha = hecha});
                GuardaSesenta();
            });
            ASSERT_NE(fin, fallas::Fin::Mal);
            RecuperaGuardado(s, s.Proyecto.DirProyecto);
            const fallas::Contenido queda = fallas::ContenidoDe(carpeta.Camino());
            EXPECT_TRUE(queda == vieja || queda == nueva) << "call " << n << ", part " << hecha;
            nuevas += queda == nueva;
            if (fin == fallas::Fin::Entero) break;
            ++muertes;
        }
        EXPECT_EQ(muertes, 8) << "two files, their list, its name, two renames, the folder, the list's end";
        EXPECT_GE(nuevas, 5);
    }
}

// --- the first start ---

/// What is delivered and stands in a directory; -1 where one of the files isn't whole.
int Entregados(const fs::path& directorio)
{
    int cuantos = 0;
    for (const char* const carpeta : {"", "Proyectos", "Proyectos/Crecidas", "Ayuda"})
        for (const auto& [nombre, bytes] : fallas::ContenidoDe(fs::path(SIRO_DATA_DIR) / carpeta)) {
            const fs::path copia = directorio / carpeta / nombre;
            if (!fs::exists(copia)) continue;
            if (BytesDeArchivo(copia) != bytes) return -1;
            ++cuantos;
        }
    return cuantos;
}

TEST(PrimerArranqueEnUnDiscoLleno, CadaArchivoEstaEnteroONoEstaYElProximoTraeLosDemas)
{
    const int todos = Entregados(SIRO_DATA_DIR);
    ASSERT_GE(todos, 20);
    const apoyo::CarpetaTemporal carpeta;
    const std::string raiz = carpeta.Camino().string();
    int cortos = 0;
    for (const std::size_t paginas : {2U, 3U, 5U, 8U, 13U, 21U, 34U, 55U, 5000U}) {
        const int salida = EnOtroProceso([&] {
            if (!MontaDisco(raiz, paginas)) return SinDerecho;
            const Disco disco = DiscoDelSistema();
            PreparaDirTrabajo(disco, raiz, "", SIRO_DATA_DIR);
            const int primero = Entregados(raiz);
            if (primero < 0 || (primero < todos) != EntregaPendiente(disco, raiz)) return Mal;
            // There is room again, and the pointer has been written meanwhile.
            if (mount(nullptr, raiz.c_str(), nullptr, MS_REMOUNT, Tamano(10000).c_str()) != 0) return Mal;
            disco.Reemplaza({{Ruta(raiz, "VelmirDir.vlm"), "puntero"}});
            PreparaDirTrabajo(disco, raiz, "", SIRO_DATA_DIR);
            if (Entregados(raiz) != todos || EntregaPendiente(disco, raiz)) return Mal;
            return primero < todos ? Viejo : Nuevo;
        });
        if (salida == SinDerecho) GTEST_SKIP() << "only a privileged user can mount";
        EXPECT_NE(salida, Mal) << paginas << " pages";
        cortos += salida == Viejo;
    }
    EXPECT_EQ(cortos, 8) << "all but the large one";
}

TEST(PrimerArranqueMatado, ElProximoTraeLosDemasYNoDejaNadaDeLoQueQuedoAMedias)
{
    const apoyo::CarpetaTemporal entregado, propio;
    const auto carpetas = {"", "Proyectos", "Proyectos/Crecidas", "Ayuda"};
    for (const fs::path carpeta : carpetas) {
        fs::create_directories(entregado.Camino() / carpeta);
        std::ofstream(entregado.Camino() / carpeta / "entregado") << "de " << carpeta;
    }
    const auto prepara = [&](const Disco& disco) {
        PreparaDirTrabajo(disco, propio.Camino().string(), "", entregado.Camino().string());
    };
    int muertes = 0;
    for (int n = 1;; ++n) {
        fallas::PonContenido(propio.Camino(), {});
        const fallas::Fin fin =
            fallas::EnOtroProceso([&] { prepara(fallas::Disco({.llamada = n, .hecha = 0.5})); });
        ASSERT_NE(fin, fallas::Fin::Mal);
        prepara(DiscoDelSistema());
        for (const fs::path carpeta : carpetas)
            EXPECT_EQ(fallas::ContenidoDe(propio.Camino() / carpeta),
                      fallas::ContenidoDe(entregado.Camino() / carpeta))
                << carpeta << ", call " << n;
        if (fin == fallas::Fin::Entero) break;
        ++muertes;
    }
    EXPECT_GE(muertes, 6) << "each of the three is made and renamed";
}

// The help is renewed at every start, not at the first alone.
TEST(AyudaMatada, QuitaLoQueDejoUnaRenovacionMatada)
{
    const apoyo::CarpetaTemporal entregado, propio;
    for (const auto* carpeta : {&entregado, &propio}) {
        fs::create_directory(carpeta->Camino() / "Ayuda");
        std::ofstream(carpeta->Camino() / "Ayuda" / "indice.html") << "igual";
    }
    std::ofstream(propio.Camino() / "Ayuda" / ".siro-0-1-0.tmp") << "a medias";
    RenuevaAyuda(DiscoDelSistema(), propio.Camino().string(), entregado.Camino().string());
    EXPECT_EQ(fallas::ContenidoDe(propio.Camino() / "Ayuda"), (fallas::Contenido{{"indice.html", "igual"}}));
}

// A save that was cut short is finished where the user is told: by the opening of its project.
TEST(PrimerArranqueMatado, UnGuardadoAMediasEsperaASuProyecto)
{
    const apoyo::CarpetaTemporal entregado, propio;
    fs::create_directory(entregado.Camino() / "Proyectos");
    fs::create_directory(propio.Camino() / "Proyectos");
    const fallas::Contenido espera{
        {".siro-0-1-0.tmp", "nuevo"}, {".siro-0-1.lista", "a\nfin\n"}, {"a", "viejo"}};
    fallas::PonContenido(propio.Camino() / "Proyectos", espera);
    PreparaDirTrabajo(DiscoDelSistema(), propio.Camino().string(), "", entregado.Camino().string());
    EXPECT_EQ(fallas::ContenidoDe(propio.Camino() / "Proyectos"), espera);
}

}  // namespace
