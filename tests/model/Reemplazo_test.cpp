// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files replaced on the real disk while every call of the system fails in its turn, in each way, or the
// process is killed at it: each file is the old one or the new one, never less, and files that belong
// together are all old or all new.

#include "model/Reemplazo.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "ReemplazoReal.h"
#include "model/Falla.h"
#include "model/RestosDeReemplazo.h"

using namespace model;
using fallas::Contenido;
using fallas::ContenidoDe;
using fallas::Fin;
using fallas::Golpe;
using fallas::ReemplazoReal;
namespace fs = std::filesystem;

namespace {

constexpr auto Errores = std::to_array<std::errc>(
    {std::errc::no_space_on_device, std::errc::permission_denied, std::errc::no_such_file_or_directory,
     std::errc::io_error, std::errc::read_only_file_system});
constexpr auto PartesHechas = std::to_array<double>({0, 0.5, 1});
constexpr int MuchasLlamadas = 100;

/// What is there before and what is to be there; "nuevo" and "tercero" come in with the replacement.
struct Caso {
    const char* que;
    Contenido viejo, nuevo;
};

const std::vector<Caso> Casos{
    {"one file", {{"a", "viejo"}}, {{"a", "mucho más nuevo"}}},
    {"a file that isn't there", {}, {{"nuevo", "x"}}},
    {"two files", {{"a", "viejo a"}, {"b", "viejo b"}}, {{"a", "nuevo a"}, {"b", ""}}},
    {"three files, two of them new",
     {{"a", "viejo a"}},
     {{"a", "nuevo a"}, {"nuevo", "x"}, {"tercero", std::string(100000, 'z')}}}};

TEST_F(ReemplazoReal, PoneLoNuevoYNoDejaNadaMas)
{
    for (const Caso& caso : Casos) {
        fallas::PonContenido(carpeta.Camino(), caso.viejo);
        Reemplaza(caso.nuevo, LlamadasDelSistema());
        EXPECT_EQ(Queda(), caso.nuevo) << caso.que;
    }
}

TEST_F(ReemplazoReal, CadaLlamadaNegadaDejaTodoViejoOTodoNuevo)
{
    for (const Caso& caso : Casos)
        for (const std::errc error : Errores) {
            int n = 1, fallidas = 0;
            for (; n < MuchasLlamadas; ++n) {
                fallas::PonContenido(carpeta.Camino(), caso.viejo);
                const Golpe golpe{.llamada = n, .error = error};
                const int falla =
                    apoyo::NumeroDeFalla([&] { Reemplaza(caso.nuevo, fallas::Llamadas(golpe)); });
                if (falla != 0) ++fallidas;
                Recupera();  // a temporary whose removal was refused
                EXPECT_EQ(Queda(), falla == 0 ? caso.nuevo : caso.viejo)
                    << caso.que << ", call " << n << ", " << std::make_error_code(error).message();
                if (*golpe.cuenta < n) break;
            }
            EXPECT_LT(n, MuchasLlamadas) << caso.que;
            EXPECT_GE(n, 4) << caso.que << ": create, rename, settle, and none more";
            // What may not be made or renamed is written in place.
            EXPECT_TRUE(fallidas >= 1 || error == std::errc::permission_denied) << caso.que;
        }
}

// The disk goes for good at the n-th call: nothing can be taken back any more, so that what has begun waits.
TEST_F(ReemplazoReal, DesdeUnaLlamadaTodasNegadasYLaProximaAperturaLoArregla)
{
    for (const Caso& caso : Casos)
        for (int n = 1; n < MuchasLlamadas; ++n) {
            fallas::PonContenido(carpeta.Camino(), caso.viejo);
            const Golpe golpe{.llamada = n, .error = std::errc::io_error, .sigue = true};
            const int falla = apoyo::NumeroDeFalla([&] { Reemplaza(caso.nuevo, fallas::Llamadas(golpe)); });
            Recupera();
            const Contenido queda = Queda();
            EXPECT_TRUE(queda == caso.nuevo || (falla != 0 && queda == caso.viejo)) << caso.que << ", " << n;
            if (*golpe.cuenta < n) break;
        }
}

TEST_F(ReemplazoReal, MatadoEnCadaLlamadaQuedaTodoViejoOTodoNuevoTrasLaProximaApertura)
{
    for (const Caso& caso : Casos)
        for (const double hecha : PartesHechas) {
            int muertes = 0, nuevos = 0;
            for (int n = 1; n < MuchasLlamadas; ++n) {
                fallas::PonContenido(carpeta.Camino(), caso.viejo);
                const Fin fin = fallas::EnOtroProceso(
                    [&] { Reemplaza(caso.nuevo, fallas::Llamadas({.llamada = n, .hecha = hecha})); });
                ASSERT_NE(fin, Fin::Mal);
                for (const auto& [nombre, bytes] : Queda())
                    EXPECT_TRUE(nombre.starts_with(".siro-") ||
                                (caso.viejo.contains(nombre) && caso.viejo.at(nombre) == bytes) ||
                                caso.nuevo.at(nombre) == bytes)
                        << nombre << " before the next opening";
                Recupera();
                const Contenido queda = Queda();
                EXPECT_TRUE(queda == caso.viejo || queda == caso.nuevo)
                    << caso.que << ", call " << n << ", part " << hecha;
                if (queda == caso.nuevo) ++nuevos;
                if (fin == Fin::Entero) break;
                ++muertes;
            }
            EXPECT_GE(muertes, 3) << caso.que;
            EXPECT_LT(muertes, MuchasLlamadas - 2) << caso.que;
            EXPECT_GE(nuevos, 1) << caso.que;
        }
}

TEST_F(ReemplazoReal, MatadoEntreDosNombresSeCompletaYSeDiceCuales)
{
    const Caso& caso = Casos[2];
    fallas::PonContenido(carpeta.Camino(), caso.viejo);
    // Two temporaries, the list, its settling, the first rename; killed at the second.
    EXPECT_EQ(fallas::EnOtroProceso([&] { Reemplaza(caso.nuevo, fallas::Llamadas({.llamada = 6})); }),
              Fin::Matado);
    const Recuperacion hecha = RecuperaCarpeta(LlamadasDelSistema(), carpeta.Camino().string());
    EXPECT_EQ(hecha, (Recuperacion{{"b"}, {}}));
    EXPECT_EQ(Queda(), caso.nuevo);
    EXPECT_EQ(RecuperaCarpeta(LlamadasDelSistema(), carpeta.Camino().string()), Recuperacion{});
}

TEST_F(ReemplazoReal, LoQueNoSePuedeCompletarQuedaParaLaProximaVez)
{
    const Caso& caso = Casos[2];
    fallas::PonContenido(carpeta.Camino(), caso.viejo);
    EXPECT_EQ(fallas::EnOtroProceso([&] { Reemplaza(caso.nuevo, fallas::Llamadas({.llamada = 5})); }),
              Fin::Matado);
    const auto negada = fallas::Llamadas({.llamada = 1, .error = std::errc::io_error});
    EXPECT_EQ(RecuperaCarpeta(negada, carpeta.Camino().string()), (Recuperacion{{"b"}, {"a"}}));
    EXPECT_EQ(RecuperaCarpeta(LlamadasDelSistema(), carpeta.Camino().string()), (Recuperacion{{"a"}, {}}));
    EXPECT_EQ(Queda(), caso.nuevo);
}

// The second file is refused, and the program killed while it takes the first one back.
TEST_F(ReemplazoReal, MatadoMientrasVuelveQuedaTodoViejoOTodoNuevo)
{
    const Caso& caso = Casos[2];
    int muertes = 0;
    for (int n = 1; n < MuchasLlamadas; ++n) {
        fallas::PonContenido(carpeta.Camino(), caso.viejo);
        const Fin fin = fallas::EnOtroProceso([&] {
            LlamadasDisco l = fallas::Llamadas({.llamada = n});
            const auto cuenta = std::make_shared<int>(0);
            l.Renombra = [cuenta, renombra = l.Renombra](const fs::path& de, const fs::path& a) {
                return ++*cuenta == 2 ? std::make_error_code(std::errc::io_error) : renombra(de, a);
            };
            apoyo::NumeroDeFalla([&] { Reemplaza(caso.nuevo, l); });
        });
        ASSERT_NE(fin, Fin::Mal);
        Recupera();
        EXPECT_TRUE(Queda() == caso.viejo || Queda() == caso.nuevo) << "call " << n;
        if (fin == Fin::Entero) break;
        ++muertes;
    }
    EXPECT_GE(muertes, 10);
}

// A replacement that could neither end nor go back waits in the folder; what is saved after it is newer.
TEST_F(ReemplazoReal, LoQueEsperaDeUnGuardadoNoTapaLoGuardadoDespues)
{
    const Caso& caso = Casos[2];
    const Contenido despues{{"a", "después a"}, {"b", "después b"}}, soloUno{{"b", "después b"}};
    int esperaron = 0;
    for (const Contenido& otro : {despues, soloUno})
        for (int n = 1; n < MuchasLlamadas; ++n) {
            fallas::PonContenido(carpeta.Camino(), caso.viejo);
            const Golpe golpe{.llamada = n, .error = std::errc::io_error, .sigue = true};
            apoyo::NumeroDeFalla([&] { Reemplaza(caso.nuevo, fallas::Llamadas(golpe)); });
            esperaron += Queda().size() > caso.viejo.size() ? 1 : 0;
            Reemplaza(otro, LlamadasDelSistema());
            Recupera();
            const Contenido queda = Queda();
            EXPECT_EQ(queda.size(), caso.viejo.size()) << n;
            for (const auto& [nombre, bytes] : otro)
                EXPECT_EQ(queda.at(nombre), bytes) << nombre << ", " << n;
            if (*golpe.cuenta < n) break;
        }
    EXPECT_GE(esperaron, 2);
}

TEST_F(ReemplazoReal, LoBorradoNoVuelveConLoQueEspera)
{
    fallas::PonContenido(carpeta.Camino(), {{".siro-0-1-1.tmp", "nuevo b"},
                                            {".siro-0-1.lista", "a\nb\nfin\n"},
                                            {"a", "nuevo a"},
                                            {"b", "viejo b"}});
    const Disco disco = DiscoDelSistema();
    disco.Borra(En("a").string());
    EXPECT_EQ(Queda().size(), 3U) << "b still waits";
    disco.Borra(En("b").string());
    EXPECT_EQ(Queda(), Contenido{});
    Recupera();
    EXPECT_EQ(Queda(), Contenido{});
}

// --- what is found in a folder ---

TEST_F(ReemplazoReal, LoDeOtroProgramaQueCorreSeDeja)
{
    LlamadasDisco llamadas = LlamadasDelSistema();
    llamadas.Vive = [](long proceso) { return proceso == 4711; };
    fallas::PonContenido(
        carpeta.Camino(),
        {{".siro-4711-1-0.tmp", "x"}, {".siro-4711-1.lista", "a\nfin\n"}, {".siro-4712-1-0.tmp", "y"}});
    EXPECT_EQ(RecuperaCarpeta(llamadas, carpeta.Camino().string()), Recuperacion{});
    EXPECT_EQ(Queda(), (Contenido{{".siro-4711-1-0.tmp", "x"}, {".siro-4711-1.lista", "a\nfin\n"}}));
    // Numbers of processes come again: what is hours old is nobody's.
    for (const auto& entrada : fs::directory_iterator(carpeta.Camino()))
        fs::last_write_time(entrada.path(), fs::file_time_type::clock::now() - std::chrono::hours(2));
    EXPECT_EQ(RecuperaCarpeta(llamadas, carpeta.Camino().string()), (Recuperacion{{"a"}, {}}));
    EXPECT_EQ(Queda(), (Contenido{{"a", "x"}}));
}

// Another thread of the same program brings the folder in order between any two calls.
TEST_F(ReemplazoReal, LoQueOtroHiloEscribeSeDeja)
{
    for (const Caso& caso : Casos) {
        fallas::PonContenido(carpeta.Camino(), caso.viejo);
        const LlamadasDisco reales = LlamadasDelSistema();
        int veces = 0;
        const auto ordena = [&] {
            const Recuperacion hecha = RecuperaCarpeta(reales, carpeta.Camino());
            EXPECT_TRUE(hecha.completados.empty() && hecha.pendientes.empty()) << caso.que;
            ++veces;
        };
        LlamadasDisco llamadas = reales;
        llamadas.Crea = [&](const fs::path& archivo, std::string_view bytes, const fs::path& modelo) {
            ordena();
            const std::error_code error = reales.Crea(archivo, bytes, modelo);
            ordena();
            return error;
        };
        llamadas.Renombra = [&](const fs::path& de, const fs::path& a) {
            ordena();
            return reales.Renombra(de, a);
        };
        Reemplaza(caso.nuevo, llamadas);
        EXPECT_GT(veces, 2);
        EXPECT_EQ(Queda(), caso.nuevo) << caso.que;
    }
}

TEST_F(ReemplazoReal, UnaListaQueNombraLoAjenoNoHaceNada)
{
    fs::create_directory(En("sub"));
    for (const char* lista : {"../x\nfin\n", "sub/x\nfin\n", "a\nb\\c\nfin\n", "..\nfin\n", "a\n", "", "a",
                              ".siro-1-1-0.tmp\nfin\n", "a\rb\nfin\n"}) {
        fallas::PonContenido(carpeta.Camino(), {{".siro-0-1-0.tmp", "mal"}, {".siro-0-1.lista", lista}});
        fs::create_directory(En("sub"));
        Recupera();
        EXPECT_EQ(Queda(), Contenido{}) << lista;
        EXPECT_TRUE(fs::is_empty(En("sub"))) << lista;
    }
    EXPECT_FALSE(fs::exists(carpeta.Camino().parent_path() / "x"));
}

TEST_F(ReemplazoReal, LoQueSoloSePareceQueda)
{
    const Contenido parecidos{{".siro-1.tmp", ""},
                              {".siro-a-1-0.tmp", ""},
                              {".siro-1-1-0.tmpx", ""},
                              {".siro-1-1-0.lista", ""},
                              {"siro-1-1-0.tmp", ""},
                              {".siro-", ""},
                              {".siro-99999999999999999999-1-0.tmp", ""}};
    fallas::PonContenido(carpeta.Camino(), parecidos);
    Recupera();
    EXPECT_EQ(Queda(), parecidos);
}

TEST(NombreResto, IdaYVuelta)
{
    EXPECT_EQ((NombreResto{4711, 1, 0}.Texto()), ".siro-4711-1-0.tmp");
    EXPECT_EQ((NombreResto{4711, 12, -1}.Texto()), ".siro-4711-12.lista");
    EXPECT_EQ(LeeNombreResto(".siro-4711-1-0.tmp"), (NombreResto{4711, 1, 0}));
    EXPECT_EQ(LeeNombreResto(".siro-4711-12.lista"), (NombreResto{4711, 12, -1}));
}

}  // namespace
