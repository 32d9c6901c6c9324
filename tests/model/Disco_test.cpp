// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Disco.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/RutaProyecto.h"

using apoyo::NumeroDeFalla;
using namespace model;

namespace {

namespace fs = std::filesystem;

/// A disk with one empty directory to work in.
struct Taller {
    virtual ~Taller() = default;
    model::Disco disco{};
    std::string raiz{};
};

struct TallerReal : Taller {
    TallerReal()
    {
        disco = DiscoDelSistema();
        raiz = carpeta.Camino().string();
    }
    apoyo::CarpetaTemporal carpeta;
};

struct TallerDePrueba : Taller {
    TallerDePrueba()
    {
        apoyo::DiscoPrueba enMemoria;
        disco = enMemoria.Puerta();
        raiz = "/proy";
        enMemoria.PonDirectorio(raiz);
    }
};

/// The contract, held against the real disk and against the one that stands in for it in all other tests.
template <typename T>
struct ContratoDeDisco : ::testing::Test {
    T taller;
    model::Disco& disco = taller.disco;
    std::string En(std::string_view nombre) { return Ruta(taller.raiz, nombre); }
};

using Talleres = ::testing::Types<TallerReal, TallerDePrueba>;
TYPED_TEST_SUITE(ContratoDeDisco, Talleres);

TYPED_TEST(ContratoDeDisco, LoEscritoSeLeeByteAByte)
{
    const std::string bytes("a\0\r\n\n\r\xED\xFF\x1A z", 11);
    this->disco.Escribe(this->En("a.vlm"), bytes);
    EXPECT_EQ(this->disco.Lee(this->En("a.vlm")), bytes);
    this->disco.Escribe(this->En("a.vlm"), "corto");
    EXPECT_EQ(this->disco.Lee(this->En("a.vlm")), "corto");
    this->disco.Escribe(this->En("a.vlm"), "");
    EXPECT_EQ(this->disco.Lee(this->En("a.vlm")), "");
}

TYPED_TEST(ContratoDeDisco, AgregaAlFinalYCreaLoQueFalta)
{
    this->disco.Agrega(this->En("a"), "uno");
    this->disco.Agrega(this->En("a"), "dos");
    this->disco.Agrega(this->En("a"), "");
    EXPECT_EQ(this->disco.Lee(this->En("a")), "unodos");
}

TYPED_TEST(ContratoDeDisco, FallasDeLoQueNoEsta)
{
    const std::string falta = this->En("falta");
    const std::string lejos = Ruta(this->En("nada"), "a");
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lee(falta); }), 53);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lee(lejos); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Escribe(lejos, "x"); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Agrega(lejos, "x"); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Borra(falta); }), 53);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Borra(lejos); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lista(this->En("nada")); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(falta, this->En("b")); }), 53);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(lejos, this->En("b")); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.CreaDirectorio(lejos); }), 75);
    EXPECT_FALSE(this->disco.HayDirectorio(falta));
    EXPECT_EQ(this->disco.Lista(this->taller.raiz), std::vector<std::string>{});
}

TYPED_TEST(ContratoDeDisco, UnDirectorioNoEsUnArchivo)
{
    const std::string dir = this->En("dir");
    this->disco.CreaDirectorio(dir);
    this->disco.Escribe(this->En("a"), "x");
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lee(dir); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Escribe(dir, "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Agrega(dir, "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Borra(dir); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(dir, this->En("b")); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(this->En("a"), dir); }), 75);
    EXPECT_TRUE(this->disco.HayDirectorio(dir));
}

TYPED_TEST(ContratoDeDisco, UnArchivoNoEsUnDirectorio)
{
    const std::string archivo = this->En("a");
    this->disco.Escribe(archivo, "x");
    EXPECT_FALSE(this->disco.HayDirectorio(archivo));
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lista(archivo); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Lee(Ruta(archivo, "b")); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Escribe(Ruta(archivo, "b"), "x"); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.CreaDirectorio(archivo); }), 75);
    EXPECT_EQ(this->disco.Lee(archivo), "x");
}

TYPED_TEST(ContratoDeDisco, CreaDirectorioUnaSolaVez)
{
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.CreaDirectorio(this->En("d")); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.CreaDirectorio(this->En("d")); }), 75);
    EXPECT_TRUE(this->disco.HayDirectorio(this->En("d")));
    EXPECT_TRUE(this->disco.HayDirectorio(this->En("d") + Separador));
}

TYPED_TEST(ContratoDeDisco, ListaLosArchivosOrdenadosSinLosDirectorios)
{
    for (const char* nombre : {"b_pt.vlm", "B.vlm", "a.vlm", "ñ.vlm", ".oculto"})
        this->disco.Escribe(this->En(nombre), "");
    this->disco.CreaDirectorio(this->En("dir"));
    this->disco.Escribe(Ruta(this->En("dir"), "dentro"), "");
    EXPECT_EQ(this->disco.Lista(this->taller.raiz),
              (std::vector<std::string>{".oculto", "B.vlm", "a.vlm", "b_pt.vlm", "ñ.vlm"}));
    EXPECT_EQ(this->disco.Lista(this->En("dir")), std::vector<std::string>{"dentro"});
}

TYPED_TEST(ContratoDeDisco, BorraSoloElArchivo)
{
    this->disco.Escribe(this->En("a"), "");
    this->disco.Escribe(this->En("b"), "");
    this->disco.Borra(this->En("a"));
    EXPECT_EQ(this->disco.Lista(this->taller.raiz), std::vector<std::string>{"b"});
}

TYPED_TEST(ContratoDeDisco, CopiaEncimaDeLoQueHaya)
{
    this->disco.Escribe(this->En("a"), "nuevo");
    this->disco.Escribe(this->En("b"), "viejo y más largo");
    this->disco.Copia(this->En("a"), this->En("b"));
    EXPECT_EQ(this->disco.Lee(this->En("b")), "nuevo");
    EXPECT_EQ(this->disco.Lee(this->En("a")), "nuevo");
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(this->En("a"), Ruta(this->En("nada"), "c")); }), 76);
    EXPECT_EQ(NumeroDeFalla([&] { this->disco.Copia(this->En("a"), this->En("a")); }), 75);
    EXPECT_EQ(this->disco.Lee(this->En("a")), "nuevo");
}

TYPED_TEST(ContratoDeDisco, UnaCopiaDeLaPuertaVeElMismoDisco)
{
    const model::Disco otra = this->disco;
    otra.Escribe(this->En("a"), "x");
    EXPECT_EQ(this->disco.Lee(this->En("a")), "x");
}

// --- the real disk alone ---

struct DiscoReal : ::testing::Test, TallerReal {
    std::string En(std::string_view nombre) const { return Ruta(raiz, nombre); }
};

TEST_F(DiscoReal, NombresConAcentosYBlancosEnUtf8)
{
    const std::string nombre = "Cuenca del río Ñandú €.vlm";
    disco.Escribe(En(nombre), "x");
    EXPECT_EQ(disco.Lista(raiz), std::vector<std::string>{nombre});
    EXPECT_EQ(disco.Lee(En(nombre)), "x");
}

TEST_F(DiscoReal, UnNombreDemasiadoLargoNoSePuedeLeerNiEscribir)
{
    const std::string largo = En(std::string(5000, 'a'));
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(largo); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(largo, "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Borra(largo); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.CreaDirectorio(largo); }), 75);
    EXPECT_FALSE(disco.HayDirectorio(largo));
}

TEST_F(DiscoReal, UnaRutaConUnNuloNoEsLaDeOtroArchivo)
{
    disco.Escribe(En("a"), "x");
    const std::string conNulo = En(std::string_view("a\0b", 3));
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(conNulo); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(conNulo, "y"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Borra(conNulo); }), 75);
    EXPECT_FALSE(disco.HayDirectorio(raiz + std::string("\0b", 2)));
    EXPECT_EQ(disco.Lee(En("a")), "x");
}

TEST_F(DiscoReal, UnArchivoEnormeNoSeLee)
{
    disco.Escribe(En("enorme"), "");
    fs::resize_file(En("enorme"), (std::uintmax_t{64} << 20) + 1);  // a hole, no bytes on the disk
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(En("enorme")); }), 75);
}

TEST_F(DiscoReal, ElUltimoTamanoQueSeLee)
{
    disco.Escribe(En("grande"), "");
    fs::resize_file(En("grande"), std::uintmax_t{64} << 20);
    EXPECT_EQ(disco.Lee(En("grande")).size(), std::size_t{64} << 20);
}

// An image may be larger than any file that a reader takes.
TEST_F(DiscoReal, UnaCopiaPuedeSerMayorQueLoQueSeLee)
{
    disco.Escribe(En("imagen"), "");
    fs::resize_file(En("imagen"), (std::uintmax_t{64} << 20) + 1);
    disco.Copia(En("imagen"), En("copia"));
    EXPECT_EQ(fs::file_size(En("copia")), (std::uintmax_t{64} << 20) + 1);
    fs::resize_file(En("imagen"), (std::uintmax_t{256} << 20) + 1);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Copia(En("imagen"), En("otra")); }), 75);
}

#if defined(__unix__)

TEST_F(DiscoReal, ElDiscoLlenoEsFallaAlEscribirYAlAgregar)
{
    const std::string lleno = "/dev/full";
    if (!fs::exists(lleno)) GTEST_SKIP() << "this system has no " << lleno;
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(lleno, "x"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(lleno, std::string(1 << 20, 'x')); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Agrega(lleno, "x"); }), 75);
}

TEST_F(DiscoReal, LoQueNoEsUnArchivoComunNoSeLee)
{
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee("/dev/zero"); }), 75);  // would never end
}

TEST_F(DiscoReal, EnlacesALaNadaYEnCirculo)
{
    fs::create_symlink("ninguna", En("suelto"));
    fs::create_symlink("circulo", En("circulo"));
    disco.Escribe(En("a"), "x");
    fs::create_symlink("a", En("bueno"));
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(En("suelto")); }), 53);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(En("circulo")); }), 75);
    EXPECT_EQ(disco.Lee(En("bueno")), "x");
    EXPECT_EQ(disco.Lista(raiz), (std::vector<std::string>{"a", "bueno"}));
    EXPECT_EQ(NumeroDeFalla([&] { disco.Copia(En("a"), En("bueno")); }), 75);  // the same file by two names
    EXPECT_EQ(disco.Lee(En("a")), "x");
}

/// Whether the user may write where it isn't allowed, as an administrator may; permissions then prove
/// nothing.
bool TodoLePermite(const std::string& protegido)
{
    return static_cast<bool>(std::ofstream(protegido, std::ios::app));
}

TEST_F(DiscoReal, SinPermisoNoSeLeeNiSeEscribe)
{
    disco.Escribe(En("a"), "x");
    fs::permissions(En("a"), fs::perms::none);
    if (TodoLePermite(En("a"))) GTEST_SKIP() << "an administrator runs this test";
    EXPECT_EQ(NumeroDeFalla([&] { disco.Lee(En("a")); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(En("a"), "y"); }), 75);
    EXPECT_EQ(NumeroDeFalla([&] { disco.Agrega(En("a"), "y"); }), 75);
    fs::permissions(En("a"), fs::perms::owner_all);
    EXPECT_EQ(disco.Lee(En("a")), "x");
}

TEST_F(DiscoReal, EnUnDirectorioProtegidoNadaSeCreaNiSeBorra)
{
    const std::string dir = En("dir");
    disco.CreaDirectorio(dir);
    disco.Escribe(Ruta(dir, "a"), "x");
    fs::permissions(dir, fs::perms::owner_read | fs::perms::owner_exec);
    const bool todo = TodoLePermite(Ruta(dir, "b"));
    if (!todo) {
        EXPECT_EQ(NumeroDeFalla([&] { disco.Escribe(Ruta(dir, "c"), "y"); }), 75);
        EXPECT_EQ(NumeroDeFalla([&] { disco.Borra(Ruta(dir, "a")); }), 75);
        EXPECT_EQ(NumeroDeFalla([&] { disco.CreaDirectorio(Ruta(dir, "d")); }), 75);
        EXPECT_EQ(disco.Lee(Ruta(dir, "a")), "x");
    }
    fs::permissions(dir, fs::perms::owner_all);
    if (todo) GTEST_SKIP() << "an administrator runs this test";
}

TEST_F(DiscoReal, LaCopiaDeUnArchivoProtegidoSePuedeEscribir)
{
    disco.Escribe(En("a"), "x");
    fs::permissions(En("a"), fs::perms::owner_read);
    disco.Copia(En("a"), En("b"));
    EXPECT_NE(fs::status(En("b")).permissions() & fs::perms::owner_write, fs::perms::none);
}

#endif

TEST(Ruta, UneConElSeparadorDeLaPlataforma)
{
    EXPECT_EQ(Ruta("dir", "a.vlm"), std::string("dir") + Separador + "a.vlm");
}

RC_GTEST_PROP(Disco, CualquierContenidoVuelve, (const std::string& uno, const std::string& otro))
{
    TallerReal taller;
    const std::string ruta = Ruta(taller.raiz, "a");
    taller.disco.Escribe(ruta, uno);
    taller.disco.Agrega(ruta, otro);
    RC_ASSERT(taller.disco.Lee(ruta) == uno + otro);
}

}  // namespace
