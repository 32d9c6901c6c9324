// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Diario.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <random>
#include <string>
#include <vector>

#include "apoyo/DiscoPrueba.h"
#include "model/LlamadasQueFallan.h"
#include "shell/EscribaDeDiario.h"

namespace {

using model::NumeroFalla;
using shell::Diario;

Diario Ejemplo()
{
    return {.proyecto = "Quelmar",
            .conf = "/proy/Quelmar_Conf.vlm",
            .cuando = "23/11/2026 00:50:12",
            .huellas = {{"/proy/Quelmar_UEHs.vlm", 17}, {"/proy/Quelmar_VerCau.vlm", 18446744073709551615U}},
            .red = editor::RedEscrita{"\"Diario\"\r\n0\r\n", "1,2\r\n", "0\n\n"},
            .formas = {{.ventana = "dlgUEH2",
                        .titulo = "Parámetros",
                        .campos = {{"txtArea", "Área", "12.5"}, {"optTabla", "", "1"}},
                        .tablas = {{"grilla", "Tabla", {{"H", "A"}, {"1", ""}, {"2\n3", "4:5"}}}}},
                       {.ventana = "frmConfigura", .titulo = "Configurar", .campos = {}, .tablas = {}}}};
}

/// Any bytes, those that separate the parts among them.
struct Azar {
    std::mt19937 motor{7};
    std::size_t Hasta(std::size_t n) { return motor() % n; }
    std::string Texto()
    {
        static constexpr auto Letras =
            std::to_array<char>({'a', '1', ':', '\n', '\0', '"', '\xc3', '\xa1', ' ', '-'});
        std::string t;
        for (std::size_t n = Hasta(12); n > 0; --n)
            t += Letras.at(Hasta(Letras.size()));
        return t;
    }
    Diario UnDiario()
    {
        Diario d{.proyecto = Texto(), .conf = Texto(), .cuando = Texto()};
        for (std::size_t n = Hasta(4); n > 0; --n)
            d.huellas[Texto()] = motor();
        if (Hasta(2) == 0) d.red = {Texto(), Texto(), Texto()};
        d.formas.resize(Hasta(3));
        for (forms::Contenido& forma : d.formas) {
            forma = {.ventana = Texto(), .titulo = Texto()};
            for (std::size_t n = Hasta(4); n > 0; --n)
                forma.campos.push_back({Texto(), Texto(), Texto()});
            for (std::size_t n = Hasta(3); n > 0; --n)
                forma.tablas.push_back(
                    {Texto(), Texto(), {Hasta(4), std::vector<std::string>(Hasta(3), Texto())}});
        }
        return d;
    }
};

TEST(Diario, VaYVuelveEntero)
{
    EXPECT_EQ(shell::LeeDiario(shell::Compone(Ejemplo())), Ejemplo());
    EXPECT_EQ(shell::LeeDiario(shell::Compone({})), Diario{});
    Azar azar;
    for (int i = 0; i < 400; ++i) {
        const Diario d = azar.UnDiario();
        ASSERT_EQ(shell::LeeDiario(shell::Compone(d)), d) << i;
    }
}

TEST(Diario, CortadoEnCualquierByteOConUnByteCambiadoSeDice)
{
    const std::string bytes = shell::Compone(Ejemplo());
    for (std::size_t largo = 0; largo < bytes.size(); ++largo)
        EXPECT_EQ(apoyo::NumeroDeFalla([&] { shell::LeeDiario(bytes.substr(0, largo)); }), 75) << largo;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string otro = bytes;
        otro[i] = static_cast<char>(otro[i] ^ 1);
        EXPECT_EQ(apoyo::NumeroDeFalla([&] { shell::LeeDiario(otro); }), 75) << i;
    }
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { shell::LeeDiario(bytes + "x"); }), 75);
}

TEST(Diario, UnoDeOtraVersionSeDiceAparte)
{
    std::string bytes = shell::Compone(Ejemplo());
    bytes[bytes.find('1')] = '2';
    std::string nota;
    model::Sentencia([&] { shell::LeeDiario(bytes); }, [&](const model::Falla& f) { nota = f.nota; });
    EXPECT_EQ(nota, "El diario es de una versión posterior del programa.");
}

// 4 MiB in all: the second form would go beyond.
TEST(Diario, LasFormasDemasiadoGrandesDejanSoloSuTitulo)
{
    Diario d = Ejemplo();
    d.formas[0].campos[0].valor.assign(std::size_t{3} << 20, 'x');
    d.formas[1].campos.push_back({"c", "c", std::string(std::size_t{3} << 20, 'y')});
    Diario espera = d;
    espera.formas[1].campos.clear();
    EXPECT_EQ(shell::LeeDiario(shell::Compone(d)), espera);
}

// --- the folder ---

const std::string Carpeta = "/casa/Diario";

TEST(CarpetaDeDiarios, SeOfrecenLosQueSeToman)
{
    apoyo::DiscoPrueba disco;
    const auto busca = [&](const std::string& vivo) {
        std::vector<std::string> rutas;
        for (const auto& h : shell::BuscaDiarios(disco.Puerta(), Carpeta,
                                                 [&](const std::string& ruta) { return ruta != vivo; }))
            rutas.push_back(h.ruta.substr(Carpeta.size() + 1) + (h.dano.empty() ? "" : " " + h.dano));
        return rutas;
    };
    using Rutas = std::vector<std::string>;
    EXPECT_EQ(busca(""), Rutas{});  // no such folder yet
    disco.PonDirectorio(Carpeta);
    EXPECT_EQ(busca(""), Rutas{});
    const std::string bytes = shell::Compone(Ejemplo());
    disco.Pon(Carpeta + "/20261123-005012-42.diario", bytes);
    disco.Pon(Carpeta + "/20261122-235959-99.diario", bytes.substr(0, 30));
    disco.Pon(Carpeta + "/20261123-005012-42.diario.lock", "42");
    disco.Pon(Carpeta + "/otra cosa.txt", "x");
    EXPECT_EQ(busca(""), (Rutas{"20261122-235959-99.diario El diario está dañado: no se lo puede leer.",
                                "20261123-005012-42.diario"}));
    EXPECT_EQ(busca(Carpeta + "/20261122-235959-99.diario"), Rutas{"20261123-005012-42.diario"});
    EXPECT_EQ(shell::NombreDeDiario("20261123-005012", 42), "20261123-005012-42.diario");
}

TEST(CarpetaDeDiarios, ApartarGuardaLosUltimosVeinte)
{
    apoyo::DiscoPrueba disco;
    disco.PonDirectorio(Carpeta);
    const auto nombre = [](int i) {
        return "2026112" + std::string(i < 10 ? "0" : "") + std::to_string(i) + ".diario";
    };
    for (int i = 0; i < 25; ++i) {
        disco.Pon(Carpeta + '/' + nombre(i), std::to_string(i));
        shell::ApartaDiario(disco.Puerta(), Carpeta + '/' + nombre(i));
        EXPECT_FALSE(disco.Esta(Carpeta + '/' + nombre(i)));
    }
    const std::vector<std::string> quedan = disco.Puerta().Lista(Carpeta + "/Descartados");
    ASSERT_EQ(quedan.size(), 20U);
    EXPECT_EQ(quedan.front(), nombre(5));
    EXPECT_EQ(disco.Bytes(Carpeta + "/Descartados/" + nombre(24)), "24");
    // What the disk refuses leaves it where it was.
    disco.Pon(Carpeta + "/a.diario", "a");
    disco.Protege(Carpeta + "/Descartados");
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { shell::ApartaDiario(disco.Puerta(), Carpeta + "/a.diario"); }), 75);
    EXPECT_EQ(disco.Bytes(Carpeta + "/a.diario"), "a");
}

// --- who writes it ---

struct Escriba : testing::Test {
    apoyo::CarpetaTemporal carpeta{};
    std::string ruta = carpeta.Ruta("x.diario");
    [[nodiscard]] std::string Queda() const { return apoyo::BytesDeArchivo(ruta); }
};

TEST_F(Escriba, EscribeBorraYTerminaLoPedido)
{
    {
        shell::EscribaDeDiario escriba(model::DiscoDelSistema(), ruta);
        EXPECT_TRUE(escriba.Espera());
        escriba.Escribe("uno");
        EXPECT_TRUE(escriba.Espera());
        EXPECT_EQ(Queda(), "uno");
        escriba.Borra();
        EXPECT_TRUE(escriba.Espera());
        EXPECT_FALSE(fallas::fs::exists(ruta));
        escriba.Borra();  // there is none any more
        EXPECT_TRUE(escriba.Espera());
        escriba.Escribe("dos");
    }
    EXPECT_EQ(Queda(), "dos");
}

// The disk takes its time; whoever asks doesn't wait, and of what he asks for meanwhile the last is written.
TEST_F(Escriba, DeLoPedidoMientrasEscribeCuentaLoUltimo)
{
    std::mutex cerrojo;
    std::condition_variable abre;
    bool abierto = false;
    std::vector<std::string> escritos;
    model::Disco lento = model::DiscoDelSistema();
    lento.Reemplaza = [&](const std::vector<model::CambioArchivo>& cambios) {
        std::unique_lock cierra(cerrojo);
        escritos.push_back(cambios[0].bytes);
        abre.wait(cierra, [&] { return abierto; });
    };
    shell::EscribaDeDiario escriba(lento, ruta);
    escriba.Escribe("1");
    const auto empezo = [&] {
        const std::scoped_lock cierra(cerrojo);
        return escritos.size() == 1;
    };
    while (!empezo())
        std::this_thread::yield();
    for (const char* const otro : {"2", "3", "4"})
        escriba.Escribe(otro);
    {
        const std::scoped_lock cierra(cerrojo);
        abierto = true;
    }
    abre.notify_all();
    EXPECT_TRUE(escriba.Espera());
    EXPECT_EQ(escritos, (std::vector<std::string>{"1", "4"}));
}

TEST_F(Escriba, LoQueElDiscoNiegaSeSabeYSePruebaOtraVez)
{
    bool lleno = true;
    model::Disco disco = model::DiscoDelSistema();
    disco.Reemplaza = [&, real = disco.Reemplaza](const std::vector<model::CambioArchivo>& cambios) {
        if (lleno) throw model::Falla{NumeroFalla::AccesoRuta};
        real(cambios);
    };
    shell::EscribaDeDiario escriba(disco, ruta);
    escriba.Escribe("uno");
    EXPECT_FALSE(escriba.Espera());
    EXPECT_TRUE(escriba.Fallo());
    lleno = false;
    escriba.Escribe("uno");
    EXPECT_TRUE(escriba.Espera());
    EXPECT_FALSE(escriba.Fallo());
    EXPECT_EQ(Queda(), "uno");
}

// Killed at each call of the system in its turn, before it, in its middle and behind it: the journal is the
// one before or the new one, and can be read; the next start leaves nothing else in the folder.
TEST_F(Escriba, MatadoEnCadaLlamadaDelSistemaQuedaUnDiarioEntero)
{
    Diario viejo = Ejemplo(), nuevo = Ejemplo();
    viejo.proyecto = "viejo";
    nuevo.formas[0].campos[0].valor.assign(100000, 'x');
    for (const bool habia : {false, true})
        for (const double hecha : {0.0, 0.5, 1.0}) {
            int n = 1, muertes = 0;
            for (;; ++n) {
                fallas::PonContenido(carpeta.Camino(), {});
                if (habia) fallas::PonContenido(carpeta.Camino(), {{"x.diario", shell::Compone(viejo)}});
                const fallas::Fin fin = fallas::EnOtroProceso([&] {
                    shell::EscribaDeDiario escriba(fallas::Disco({.llamada = n, .hecha = hecha}), ruta);
                    escriba.Escribe(shell::Compone(nuevo));
                    escriba.Espera();
                });
                const auto hallados = shell::BuscaDiarios(model::DiscoDelSistema(), carpeta.Camino().string(),
                                                          [](const std::string&) { return true; });
                ASSERT_EQ(fallas::ContenidoDe(carpeta.Camino()).size(), hallados.size()) << n;
                ASSERT_LE(hallados.size(), 1U);
                if (habia) {
                    ASSERT_EQ(hallados.size(), 1U) << n << ' ' << hecha;
                }
                for (const auto& h : hallados) {
                    EXPECT_EQ(h.dano, "") << n << ' ' << hecha;
                    EXPECT_TRUE(h.diario == nuevo || (habia && h.diario == viejo)) << n << ' ' << hecha;
                }
                if (fin == fallas::Fin::Entero) break;
                ++muertes;
                ASSERT_LT(n, 50);
            }
            EXPECT_GE(muertes, 3) << "create, rename, settle";
        }
}

}  // namespace
