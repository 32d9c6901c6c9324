// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/LibroDeCorridas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "apoyo/Proceso.h"
#include "model/LlamadasQueFallan.h"
#include "model/Sistema.h"

namespace runs {
namespace {

using model::NumeroFalla;

CorridaPorGuardar Corrida(const std::string& nombre, std::size_t bytes = 100)
{
    CorridaPorGuardar c;
    c.ficha = {.proyecto = "P",
               .clase = "una",
               .quien = "Ana Ñandú",
               .huella = "0123456789abcdef",
               .salidas = {{"c-1", 12.5, 70, ""}},
               .avisos = 2,
               .segundos = 0.5,
               .programa = "1",
               .nombre = nombre};
    std::string ruido(bytes, ' ');
    unsigned n = 1;
    for (char& letra : ruido)
        letra = static_cast<char>((n = n * 1103515245U + 12345U) >> 16);
    c.piezas = {{"proyecto/P_Conf.vlm", ruido}};
    return c;
}

/// A ledger in memory whose clock goes on by a second at each look.
struct ElLibro : ::testing::Test {
    ElLibro()
    {
        disco.PonDirectorio("/proy");
        libro.disco = disco.Puerta();
        libro.puntas = model::PuntasPorEntero(libro.disco);
        libro.ahora = [reloj = std::int64_t{1'795'442'709'123}]() mutable { return reloj += 1000; };
    }
    std::vector<std::string> Nombres() const
    {
        std::vector<std::string> nombres;
        for (const RenglonDeLibro& r : ListaDe(libro))
            nombres.push_back(r.reparo.empty() ? r.ficha.nombre : r.reparo);
        return nombres;
    }
    static std::string En(const std::string& archivo) { return "/proy/P_corridas/" + archivo; }
    using Nombre = std::vector<std::string>;

    apoyo::DiscoPrueba disco{};
    Libro libro{.dirProyecto = "/proy", .proyecto = "P"};
};

TEST_F(ElLibro, SinCarpetaEstaVacio)
{
    EXPECT_TRUE(ListaDe(libro).empty());
    EXPECT_EQ(Ocupado(libro), 0U);
    EXPECT_EQ(HaceLugar(libro, 0), 0);
    EXPECT_TRUE(disco.Archivos().empty());
}

TEST_F(ElLibro, LaUltimaPrimero)
{
    for (const char* const nombre : {"a", "b", "c"})
        Guarda(libro, Corrida(nombre));
    EXPECT_EQ(Nombres(), (Nombre{"c", "b", "a"}));
    const auto lista = ListaDe(libro);
    study::Ficha esperada = Corrida("c").ficha;
    esperada.cuando = lista[0].ficha.cuando;
    EXPECT_EQ(lista[0].ficha, esperada);
    EXPECT_EQ(Ocupado(libro), lista[0].bytes + lista[1].bytes + lista[2].bytes);
}

TEST_F(ElLibro, NombreNotaYFijadaSeCambianYLoDemasQueda)
{
    const std::string archivo = Guarda(libro, Corrida("a", 5000));
    const auto antes = PiezasDe(libro, archivo);
    CambiaFicha(libro, archivo, [](study::Ficha& f) {
        f.nombre = "Con presa";
        f.nota = "cota 101,5 m\nsegunda línea; \"comillas\"";
        f.fijada = true;
    });
    const auto lista = ListaDe(libro);
    ASSERT_EQ(lista.size(), 1U);
    EXPECT_EQ(lista[0].archivo, archivo);
    EXPECT_EQ(lista[0].ficha.nombre, "Con presa");
    EXPECT_EQ(lista[0].ficha.nota, "cota 101,5 m\nsegunda línea; \"comillas\"");
    EXPECT_TRUE(lista[0].ficha.fijada);
    EXPECT_EQ(lista[0].ficha.quien, "Ana Ñandú");
    const auto ahora = PiezasDe(libro, archivo);
    ASSERT_EQ(ahora.size(), antes.size());
    EXPECT_TRUE(std::equal(ahora.begin() + 1, ahora.end(), antes.begin() + 1));
}

TEST_F(ElLibro, LoQueEscribioUnaVersionPosteriorQueda)
{
    const std::string archivo = Guarda(libro, Corrida("a"));
    auto piezas = PiezasDe(libro, archivo);
    piezas[0].bytes.insert(1, "\"color\": \"azul\", ");
    disco.Pon(En(archivo), study::Empaqueta(piezas));
    CambiaFicha(libro, archivo, [](study::Ficha& f) { f.nombre = "b"; });
    EXPECT_NE(PiezasDe(libro, archivo)[0].bytes.find("\"color\": \"azul\""), std::string::npos);
    piezas[0].bytes.replace(piezas[0].bytes.find("\"version\": 1"), 12, "\"version\": 2");
    disco.Pon(En(archivo), study::Empaqueta(piezas));
    EXPECT_EQ(Nombres(), (Nombre{"Renglón 2 de corrida.json: es de una versión posterior del programa "
                                 "(\"version\": 2)."}));
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { CambiaFicha(libro, archivo, [](study::Ficha&) {}); }), 75);
}

TEST_F(ElLibro, UnaFichaMasLargaQueLaPrimeraLecturaSeLeeEntera)
{
    CorridaPorGuardar c = Corrida("a");
    c.ficha.nota = std::string(20000, 'n');
    Guarda(libro, c);
    EXPECT_EQ(ListaDe(libro)[0].ficha.nota, c.ficha.nota);
}

// --- the bound ---

TEST_F(ElLibro, SeVanLasMasViejasSinFijarHastaQueEntran)
{
    std::vector<std::string> archivos;
    for (const char* const nombre : {"a", "b", "c", "d", "e"})
        archivos.push_back(Guarda(libro, Corrida(nombre, 1000)));
    CambiaFicha(libro, archivos[0], [](study::Ficha& f) { f.fijada = true; });
    const std::uint64_t una = Ocupado(libro) / 5;
    EXPECT_EQ(HaceLugar(libro, Ocupado(libro)), 0);
    EXPECT_EQ(HaceLugar(libro, Ocupado(libro) - 1), 1);
    EXPECT_EQ(Nombres(), (Nombre{"e", "d", "c", "a"}));
    EXPECT_EQ(HaceLugar(libro, 2 * una + una / 2), 2);
    EXPECT_EQ(Nombres(), (Nombre{"e", "a"}));
    // The one just written stays, and so does what is pinned, however small the bound.
    EXPECT_EQ(HaceLugar(libro, 0, archivos[4]), 0);
    EXPECT_EQ(HaceLugar(libro, 0), 1);
    EXPECT_EQ(Nombres(), Nombre{"a"});
}

TEST_F(ElLibro, LoAjenoYLoDanadoNiSeBorraNiEstorba)
{
    Guarda(libro, Corrida("a", 1000));
    const std::string danado = Guarda(libro, Corrida("b", 1000));
    disco.Pon(En(danado), disco.Bytes(En(danado)).substr(0, 300));
    Guarda(libro, Corrida("c", 1000));
    disco.Pon(En("leeme.txt"), "notas del usuario");
    disco.Pon(En("otro.zip"), study::Empaqueta({{"a.txt", "x", true}}));
    disco.Pon(En("vacio.zip"), "");
    EXPECT_EQ(Nombres(),
              (Nombre{"c", "El archivo está cortado.", "a", "El archivo no es una corrida guardada.",
                      "El archivo no es una corrida guardada.", "El archivo no es una corrida guardada."}));
    EXPECT_EQ(HaceLugar(libro, 0), 2);
    EXPECT_TRUE(disco.Esta(En(danado)) && disco.Esta(En("leeme.txt")) && disco.Esta(En("otro.zip")));
}

TEST_F(ElLibro, LoQueNoSePuedeBorrarQueda)
{
    const std::string primero = Guarda(libro, Corrida("a", 1000));
    Guarda(libro, Corrida("b", 1000));
    disco.Protege(En(primero));
    EXPECT_EQ(HaceLugar(libro, 1500), 1);
    EXPECT_EQ(Nombres(), Nombre{"a"});
}

// --- damaged files ---

TEST_F(ElLibro, CortadoEnCualquierLargoSeDiceYNadaMas)
{
    const std::string archivo = Guarda(libro, Corrida("a"));
    const std::string entero = disco.Bytes(En(archivo));
    for (std::size_t largo = 0; largo < entero.size(); ++largo) {
        disco.Pon(En(archivo), entero.substr(0, largo));
        const auto lista = ListaDe(libro);
        ASSERT_EQ(lista.size(), 1U);
        EXPECT_TRUE(lista[0].reparo == "El archivo está cortado." ||
                    lista[0].reparo == "El archivo está dañado.")
            << largo << ": " << lista[0].reparo;
        EXPECT_EQ(apoyo::NumeroDeFalla([&] { PiezasDe(libro, archivo); }), 75) << largo;
        EXPECT_EQ(apoyo::NumeroDeFalla([&] { CambiaFicha(libro, archivo, [](study::Ficha&) {}); }), 75);
        EXPECT_EQ(disco.Bytes(En(archivo)).size(), largo);
    }
}

TEST_F(ElLibro, UnByteCambiadoNoDaOtraFichaNiOtrasPiezas)
{
    const std::string archivo = Guarda(libro, Corrida("a"));
    const std::string entero = disco.Bytes(En(archivo));
    const study::Ficha ficha = ListaDe(libro)[0].ficha;
    const auto piezas = PiezasDe(libro, archivo);
    for (std::size_t lugar = 0; lugar < entero.size(); ++lugar)
        for (const int bit : {0, 5, 7}) {
            std::string otro = entero;
            otro[lugar] = static_cast<char>(static_cast<unsigned char>(otro[lugar]) ^ (1U << bit));
            disco.Pon(En(archivo), otro);
            const auto lista = ListaDe(libro);
            ASSERT_EQ(lista.size(), 1U);
            if (lista[0].reparo.empty()) {
                EXPECT_EQ(lista[0].ficha, ficha) << lugar;
            }
            try {
                const auto leidas = PiezasDe(libro, archivo);
                ASSERT_EQ(leidas.size(), piezas.size()) << lugar;
                for (std::size_t i = 0; i < piezas.size(); ++i)
                    EXPECT_EQ(leidas[i].bytes, piezas[i].bytes) << lugar;
            } catch (const model::Falla& falla) {
                EXPECT_EQ(falla.numero, NumeroFalla::AccesoRuta);
            }
        }
}

// --- a disk that refuses ---

TEST_F(ElLibro, EnUnDiscoLlenoNoQuedaNadaYLoDeAntesSigue)
{
    Guarda(libro, Corrida("a"));
    const auto antes = disco.Archivos();
    std::size_t ocupado = 0;
    for (const std::string& ruta : antes)
        ocupado += disco.Bytes(ruta).size();
    disco.LimitaEspacio(ocupado + 100);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { Guarda(libro, Corrida("b", 5000)); }), 75);
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_EQ(Nombres(), Nombre{"a"});
}

TEST_F(ElLibro, EnUnaCarpetaProtegidaSeDiceYSeLista)
{
    Guarda(libro, Corrida("a"));
    disco.Protege("/proy/P_corridas");
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { Guarda(libro, Corrida("b")); }), 75);
    EXPECT_EQ(Nombres(), Nombre{"a"});
    EXPECT_EQ(HaceLugar(libro, 0), 0);
    const Libro otro{.dirProyecto = "/no está", .proyecto = "P", .disco = libro.disco};
    EXPECT_NE(apoyo::NumeroDeFalla([&] { Guarda(otro, Corrida("b")); }), 0);
}

TEST_F(ElLibro, CadaLlamadaQueFallaDejaTodoComoEstabaOGuardado)
{
    Guarda(libro, Corrida("a"));
    for (int n = 1; n < 20; ++n) {
        const auto antes = disco.Archivos();
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        const int numero = apoyo::NumeroDeFalla([&] { Guarda(libro, Corrida("b")); });
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        if (!hubo) return;
        EXPECT_EQ(disco.Archivos().size(), antes.size() + (numero == 0 ? 1 : 0)) << n;
        for (const RenglonDeLibro& r : ListaDe(libro))
            EXPECT_EQ(r.reparo, "");
    }
    FAIL() << "no end of calls";
}

TEST_F(ElLibro, ListarConUnDiscoQueFallaEsUnaFallaOUnRenglonQueLoDice)
{
    Guarda(libro, Corrida("a"));
    Guarda(libro, Corrida("b"));
    for (int n = 1; n < 10; ++n) {
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        std::vector<RenglonDeLibro> lista;
        const int numero = apoyo::NumeroDeFalla([&] { lista = ListaDe(libro); });
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        if (!hubo) return;
        const auto mal = std::ranges::count_if(lista, [](const auto& r) { return !r.reparo.empty(); });
        EXPECT_TRUE(numero == 75 || mal == 1 || lista.empty()) << n;
    }
    FAIL() << "no end of calls";
}

// --- on the real disk: several programs, and one that is killed ---

struct LibroReal : ::testing::Test {
    apoyo::CarpetaTemporal carpeta{};
    Libro libro{.dirProyecto = carpeta.Camino().string(), .proyecto = "P"};

    /// A process that begins while a thread of its parent holds a lock of the C library never gets it:
    /// whoever writes beside it waits until it has begun.
    void HaEmpezado(int cual) const { std::ofstream(Marca(cual)) << 'x'; }
    void EsperaA(int cual) const
    {
        while (!std::filesystem::exists(Marca(cual)))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

  private:
    [[nodiscard]] std::filesystem::path Marca(int cual) const
    {
        return carpeta.Camino() / ("empezo" + std::to_string(cual));
    }
};

TEST_F(LibroReal, VariosProgramasEscribenALaVez)
{
    constexpr int Programas = 4, Corridas = 25;
    // Each of them starts the next one, so that all are at it at once.
    const std::function<void(int)> escribe = [&](int cual) {
        const auto propias = [&] {
            for (int i = 0; i < Corridas; ++i)
                Guarda(libro, Corrida("p" + std::to_string(cual) + "-" + std::to_string(i), 2000));
        };
        if (cual == Programas) return propias();
        std::vector<apoyo::Fin> fines(1);
        std::thread otro([&] {
            fines[0] = apoyo::EnOtroProceso([&] {
                HaEmpezado(cual + 1);
                escribe(cual + 1);
            });
        });
        EsperaA(cual + 1);
        propias();
        otro.join();
        if (fines[0] != apoyo::Fin::Entero) throw std::runtime_error("a program has failed");
    };
    escribe(1);
    const auto lista = ListaDe(libro);
    std::set<std::string> nombres;
    for (const RenglonDeLibro& r : lista) {
        EXPECT_EQ(r.reparo, "");
        nombres.insert(r.ficha.nombre);
    }
    EXPECT_EQ(lista.size(), std::size_t{Programas} * Corridas);
    EXPECT_EQ(nombres.size(), lista.size());
}

TEST_F(LibroReal, MientrasUnoBorraElOtroGuardaYNadaSePierdeDeMas)
{
    const apoyo::Fin fin = [&] {
        std::thread poda([&] {
            EsperaA(1);
            for (int i = 0; i < 40; ++i)
                HaceLugar(libro, 20000);
        });
        const apoyo::Fin suyo = apoyo::EnOtroProceso([&] {
            HaEmpezado(1);
            for (int i = 0; i < 30; ++i)
                HaceLugar(libro, 20000, Guarda(libro, Corrida("b" + std::to_string(i), 2000)));
        });
        poda.join();
        return suyo;
    }();
    EXPECT_EQ(fin, apoyo::Fin::Entero);
    const auto lista = ListaDe(libro);
    ASSERT_FALSE(lista.empty());
    EXPECT_EQ(lista[0].ficha.nombre, "b29");
    for (const RenglonDeLibro& r : lista)
        EXPECT_EQ(r.reparo, "");
    EXPECT_LE(Ocupado(libro), 20000U);
}

/// The calls of a whole write, and those that make a folder or delete a file.
model::Disco DiscoQueMata(const fallas::Golpe& golpe)
{
    model::Disco disco = fallas::Disco(golpe);
    for (auto* const llamada : {&disco.CreaDirectorio, &disco.Borra})
        *llamada = [golpe, de = *llamada](const std::string& ruta) {
            if (!golpe.Da()) return de(ruta);
            if (golpe.hecha == 1) de(ruta);
            apoyo::Muere();
        };
    return disco;
}

/// What is left when the process dies at the n-th call to the system while it writes an entry over a ledger
/// of two, with a bound that only two fit in.
TEST_F(LibroReal, MatadoEnCadaLlamadaLaCorridaEstaEnteraONoEsta)
{
    const auto pon = [&](Libro& suyo, const char* nombre) { return Guarda(suyo, Corrida(nombre, 2000)); };
    for (const double hecha : {0.0, 0.5, 1.0}) {
        for (int n = 1;; ++n) {
            ASSERT_LT(n, 60);
            std::filesystem::remove_all(libro.Carpeta());
            pon(libro, "a");
            const std::string fijada = pon(libro, "b");
            CambiaFicha(libro, fijada, [](study::Ficha& f) { f.fijada = true; });
            const std::uint64_t tope = Ocupado(libro) + 500;
            const apoyo::Fin fin = apoyo::EnOtroProceso([&] {
                Libro suyo = libro;
                suyo.disco = DiscoQueMata({.llamada = n, .hecha = hecha});
                const std::string nueva = pon(suyo, "c");
                CambiaFicha(suyo, nueva, [](study::Ficha& f) { f.nombre = "d"; });
                HaceLugar(suyo, tope, nueva);
            });
            std::multiset<std::string> quedan;
            for (const RenglonDeLibro& r : ListaDe(libro)) {
                EXPECT_EQ(r.reparo, "") << "call " << n;
                EXPECT_EQ(PiezasDe(libro, r.archivo).at(1), Corrida("", 2000).piezas[0]);
                quedan.insert(r.ficha.nombre);
            }
            using Quedan = std::multiset<std::string>;
            EXPECT_TRUE(quedan == (Quedan{"a", "b"}) || quedan == (Quedan{"a", "b", "c"}) ||
                        quedan == (Quedan{"a", "b", "d"}) || quedan == (Quedan{"b", "d"}))
                << "call " << n;
            for (const std::string& archivo : model::DiscoDelSistema().Lista(libro.Carpeta()))
                EXPECT_FALSE(archivo.starts_with(".siro-")) << "call " << n << " leaves " << archivo;
            if (fin == apoyo::Fin::Entero) {
                EXPECT_EQ(n, 8);  // three of each whole write, a deletion, none to make the folder
                EXPECT_EQ(quedan, (Quedan{"b", "d"}));
                break;
            }
            EXPECT_EQ(fin, apoyo::Fin::Matado);
        }
    }
}

TEST_F(LibroReal, MatadoAlHacerLaCarpetaElSiguienteSigue)
{
    for (const double hecha : {0.0, 1.0}) {
        std::filesystem::remove_all(libro.Carpeta());
        EXPECT_EQ(apoyo::EnOtroProceso([&] {
                      Libro suyo = libro;
                      suyo.disco = DiscoQueMata({.llamada = 1, .hecha = hecha});
                      Guarda(suyo, Corrida("a"));
                  }),
                  apoyo::Fin::Matado);
        EXPECT_TRUE(ListaDe(libro).empty());
        Guarda(libro, Corrida("b"));
        EXPECT_EQ(ListaDe(libro).size(), 1U);
    }
}

TEST_F(LibroReal, LasPuntasSonLasDelArchivo)
{
    const std::string ruta = carpeta.Ruta("x");
    const auto lee = model::PuntasDelSistema();
    for (const std::string& bytes : {std::string(), std::string("a"), std::string("abcdefghij")}) {
        model::DiscoDelSistema().Escribe(ruta, bytes);
        const model::Puntas p = lee(ruta, 4, 3);
        EXPECT_EQ(p.bytes, bytes.size());
        EXPECT_EQ(p.comienzo, bytes.substr(0, 4));
        EXPECT_EQ(p.fin, bytes.substr(bytes.size() - std::min<std::size_t>(3, bytes.size())));
        EXPECT_EQ(lee(ruta, 0, 0).bytes, bytes.size());
    }
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { lee(carpeta.Ruta("no"), 1, 1); }), 53);
    EXPECT_NE(apoyo::NumeroDeFalla([&] { lee(carpeta.Camino().string(), 1, 1); }), 0);
}

}  // namespace
}  // namespace runs
