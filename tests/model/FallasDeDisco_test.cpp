// SPDX-License-Identifier: GPL-3.0-or-later
//
// Storms and projects on a real disk that fails: the process killed in the middle of a write, the disk full,
// the directory write-protected. No crash, the box that belongs to it and no other, and memory as it was.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/ArchivosTormenta.h"
#include "model/Configuracion.h"
#include "model/VidaProyecto.h"

using namespace model;
using apoyo::BytesDeArchivo;
using apoyo::NumeroDeFalla;
namespace fs = std::filesystem;

namespace {

using Sucesos = std::vector<std::string>;

const std::string CajaAcceso = SucesoAviso("Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique");
const std::string CajaSinRuta = SucesoAviso("Error Nro. 76No se encontró la ruta de acceso ,Verifique");
const std::string ErrorDesconocido = SucesoAviso("Error de archivo desconocido");

/// What ended a process of its own, and what the routine that ran in it gave back.
struct FinDeProceso {
    bool matado = false;  ///< by SIGKILL
    bool entero = false;  ///< the routine came to its end
    std::string texto{};
};

/// Runs something in a process of its own, so that it may be killed or may give up its rights.
FinDeProceso EnOtroProceso(const std::function<std::string()>& rutina)
{
    std::array<int, 2> tubo{};
    if (pipe(tubo.data()) != 0) return {};
    const pid_t hijo = fork();
    if (hijo == 0) {
        const std::string texto = rutina();
        const bool escrito = write(tubo[1], texto.data(), texto.size()) == static_cast<ssize_t>(texto.size());
        _exit(escrito ? 0 : 1);
    }
    close(tubo[1]);
    FinDeProceso fin;
    std::array<char, 4096> trozo{};
    for (ssize_t n = 0; (n = read(tubo[0], trozo.data(), trozo.size())) > 0;)
        fin.texto.append(trozo.data(), static_cast<std::size_t>(n));
    close(tubo[0]);
    int estado = 0;
    waitpid(hijo, &estado, 0);
    fin.matado = WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL;
    fin.entero = WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
    return fin;
}

std::string Junta(const Sucesos& sucesos)
{
    std::string texto;
    for (const std::string& suceso : sucesos)
        texto += suceso + "\n";
    return texto;
}

/// What the writers write from, and what must not change where they fail.
struct Datos {
    std::array<std::int16_t, 4> filas{};
    Matriz<float> dispersion{};
    Matriz<std::int16_t> tablasP{};
    Arreglo<float> lluvia{};
    float p = 0;
    std::int16_t d = 0, r = 0;
    std::string proyecto{}, directorio{};
    bool operator==(const Datos&) const = default;
};

Datos DatosDe(const Siro& s)
{
    return {s.NroFilasTabla, s.DisPerso,    s.TablasP,        s.PpReal,     s.PpTormenta,
            s.DurTormenta,   s.RecTormenta, s.NombreProyecto, s.DirProyecto};
}

/// A writer, its file, whether its directory is the program's, and how it tells of a fault.
struct Escritor {
    const char* archivo;
    bool enTrabajo;
    bool avisa;  ///< shows a box; else it hands the fault to who called it
    std::function<void(Siro&)> guarda;
};

TormentaReal Tormenta()
{
    return {"x_pt.vlm", "nota", 10, "01/01/1001", "00:00", "01/01/1001", "00:30"};
}

void GuardaTormenta(Siro& s)
{
    TormentaReal t = Tormenta();
    GuardaPpReal(s, t);
}

void GuardaLista(Siro& s)
{
    GuardaListaPDR(s, {TextoPDR("60", "60", "10"), TextoPDR("12.5", "30", "2")}, {"77", "88", "99"});
}

const std::vector<Escritor> Escritores{{"x_pt.vlm", false, false, GuardaTormenta},
                                       {"distriPp_dpt.vlm", true, true, GuardaTablaDisPer},
                                       {"TablasPDRs_pdr.vlm", true, true, GuardaTablaPDRs},
                                       {"ListaPDR.vlm", false, true, GuardaLista},
                                       {"VelmirDir.vlm", true, false, GuardaPuntero}};

struct FallasDeDisco : ::testing::Test, MundoDeProyecto {
    FallasDeDisco() { Monta(raiz); }
    ~FallasDeDisco() override
    {
        std::error_code error;  // a write-protected folder couldn't be emptied
        fs::permissions(raiz, fs::perms::owner_all, error);
    }
    /// Puts the program with its data into a directory, which serves it for everything.
    void Monta(const std::string& directorio)
    {
        s.Disco = DiscoDelSistema();
        s.DirEjecutable = s.DirTrabajo = s.DirProyecto = directorio;
        s.NombreProyecto = "Quelmar";
        s.NroFilasTabla = {2, 2, 1, 3};
        s.DisPerso.Dimensiona(3, 4);
        s.DisPerso(1, 1) = 12.5F;
        s.TablasP.Dimensiona(4, 4);
        s.TablasD.Dimensiona(4, 4);
        s.TablasR.Dimensiona(4, 4);
        s.NroPpReal = 3;
        s.PpReal.Dimensiona(3);
        s.PpTormenta = 77;
        s.DurTormenta = 88;
        s.RecTormenta = 99;
    }
    std::string EnRaiz(const std::string& nombre) const { return Ruta(raiz, nombre); }
    /// Runs a writer that must fail with number `numero`; what it shows and throws must be that and no more.
    void EsperaFalla(const Escritor& escritor, int numero)
    {
        const Datos antes = DatosDe(s);
        const int falla = NumeroDeFalla([&] { escritor.guarda(s); });
        EXPECT_EQ(falla, escritor.avisa ? 0 : numero) << escritor.archivo;
        const std::string caja = numero == 75 ? CajaAcceso : CajaSinRuta;
        EXPECT_EQ(TomaSucesos(), escritor.avisa ? Sucesos{caja} : Sucesos{}) << escritor.archivo;
        EXPECT_EQ(DatosDe(s), antes) << escritor.archivo;
    }
    apoyo::CarpetaTemporal carpeta;
    const std::string raiz = carpeta.Camino().string();
};

// --- killed in the middle of a write ---

/// A disk that kills its process at the n-th write, half of whose bytes have gone out.
Disco DiscoQueMata(int n)
{
    Disco disco = DiscoDelSistema();
    const auto cuenta = std::make_shared<int>(n);
    const auto mata = [cuenta](const auto& escribe) {
        return [cuenta, escribe](const std::string& ruta, std::string_view bytes) {
            const bool ultima = --*cuenta == 0;
            escribe(ruta, ultima ? bytes.substr(0, bytes.size() / 2) : bytes);
            if (ultima) kill(getpid(), SIGKILL);
        };
    };
    disco.Escribe = mata(disco.Escribe);
    disco.Agrega = mata(disco.Agrega);
    disco.Copia = [copia = disco.Copia, cuenta](const std::string& origen, const std::string& destino) {
        copia(origen, destino);  // a file that isn't there is no write
        if (--*cuenta > 0) return;
        fs::resize_file(destino, fs::file_size(destino) / 2);
        kill(getpid(), SIGKILL);
    };
    return disco;
}

/// What the readers leave of a directory: it must be all or nothing, and silent.
void EsperaLecturaCallada(MundoDeProyecto& mundo, const std::string& raiz, const std::string& que)
{
    Siro& s = mundo.s;
    TormentaReal t = Tormenta();
    LeePpReal(s, t);
    EXPECT_TRUE(s.NroPpReal == 0 || s.NroPpReal == 3) << que;
    s.NroFilasTabla = {9, 9, 9, 9};
    LeeTablaDisTemPer(s);
    EXPECT_TRUE(s.NroFilasTabla == (std::array<std::int16_t, 4>{9, 0, 0, 0}) ||
                s.NroFilasTabla == (std::array<std::int16_t, 4>{9, 2, 1, 3}))
        << que;
    LeeTablaPDRs(s);
    EXPECT_TRUE(s.NroFilasTabla[3] == 0 || s.NroFilasTabla == (std::array<std::int16_t, 4>{2, 2, 1, 3}))
        << que;
    std::vector<std::string> cmbPDR;
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_LE(cmbPDR.size(), 2U) << que;
    EXPECT_EQ(mundo.TomaSucesos(), Sucesos{}) << que;
    LeePuntero(s);
    EXPECT_TRUE(s.DirProyecto == raiz || s.DirProyecto == Ruta(raiz, "Proyectos")) << que;
    EXPECT_EQ(mundo.TomaSucesos(), Sucesos{}) << que;
}

TEST_F(FallasDeDisco, MatadoEnMedioDeCadaEscrituraLoQueQuedaSeLeeEnSilencio)
{
    for (const Escritor& escritor : Escritores) {
        int muertes = 0;
        for (int n = 1; n <= 20; ++n) {
            for (const Escritor& otro : Escritores)
                otro.guarda(s);
            const FinDeProceso fin = EnOtroProceso([&] {
                s.Disco = DiscoQueMata(n);
                escritor.guarda(s);
                return std::string("al fin");
            });
            ASSERT_TRUE(fin.matado || fin.texto == "al fin") << escritor.archivo << ", write " << n;
            MundoDeProyecto nuevo;
            nuevo.s.Disco = DiscoDelSistema();
            nuevo.s.DirEjecutable = nuevo.s.DirTrabajo = nuevo.s.DirProyecto = raiz;
            EsperaLecturaCallada(nuevo, raiz, escritor.archivo + std::string(", write ") + std::to_string(n));
            if (!fin.matado) break;
            ++muertes;
        }
        EXPECT_GE(muertes, 2) << escritor.archivo << ": at the opening and behind it";
        EXPECT_LT(muertes, 20) << escritor.archivo;
    }
}

std::string BytesConf(const std::string& directorio)
{
    std::string bytes = "\"Quelmar\"\r\n";
    for (int i = 0; i < 6; ++i)
        bytes += "\"\"\r\n";
    bytes += "\"\"\r\n\"" + directorio + "\"\r\n\"\"\r\n1\r\n\"\"\r\n0\r\n\"Ninguno\"\r\n\"0\"\r\n\"\"\r\n";
    bytes +=
        "#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n0\r\n0\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#"
        "\r\n10\r\n\"800\"\r\n\"0\"\r\n";
    for (int i = 0; i < 31; ++i)
        bytes += "0\r\n";
    return bytes;
}

TEST_F(FallasDeDisco, MatadoEnMedioDeUnaCopiaElProyectoViejoQueda)
{
    const std::string conf = BytesConf(raiz);
    int muertes = 0;
    for (int n = 1; n <= 20; ++n) {
        for (const char* parte : {"_Conf.vlm", "_UEHs.vlm", "_VerCau.vlm", "_RHQ.vlm"})
            fs::remove(EnRaiz(std::string("Copia") + parte));
        std::ofstream(EnRaiz("Quelmar_Conf.vlm"), std::ios::binary) << conf;
        std::ofstream(EnRaiz("Quelmar_RHQ.vlm"), std::ios::binary) << "tabla";
        const FinDeProceso fin = EnOtroProceso([&] {
            TomaRutaProyecto(s, EnRaiz("Quelmar_Conf.vlm"));
            s.Disco = DiscoQueMata(n);
            leoConf(s);
            Responde("Copia");
            mnuGuardarProyectoComo(s);
            return std::string("al fin");
        });
        ASSERT_TRUE(fin.matado || fin.texto == "al fin") << "write " << n << ": " << fin.texto;
        EXPECT_EQ(BytesDeArchivo(EnRaiz("Quelmar_Conf.vlm")), conf) << "write " << n;
        EXPECT_EQ(BytesDeArchivo(EnRaiz("Quelmar_RHQ.vlm")), "tabla") << "write " << n;
        if (!fin.matado) break;
        ++muertes;
    }
    EXPECT_GE(muertes, 4) << "the copy of the configuration, its two writes, the copy of the table";
    EXPECT_LT(muertes, 20);
    EXPECT_EQ(BytesDeArchivo(EnRaiz("Copia_RHQ.vlm")), "tabla");
}

// --- full disk ---

TEST_F(FallasDeDisco, UnDiscoLlenoSeDiceUnaVezYLaMemoriaQueda)
{
    // What is written through these links finds no room, as on a full disk: the opening still passes.
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
    for (const Escritor& escritor : Escritores) {
        fs::create_symlink("/dev/full", EnRaiz(escritor.archivo));
        EsperaFalla(escritor, 75);
    }
}

TEST_F(FallasDeDisco, UnSistemaDeArchivosLlenoSeDiceUnaVezYLoEscritoQuedaCorto)
{
    const std::string chico = EnRaiz("chico");
    fs::create_directory(chico);
    if (mount("tmpfs", chico.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "only a privileged user can mount; the full disk is tried with /dev/full as well";
    Monta(chico);
    for (const Escritor& escritor : Escritores)
        escritor.guarda(s);
    TomaSucesos();
    Monta(chico);
    std::ofstream(Ruta(chico, "relleno"), std::ios::binary)
        << std::string(1 << 20, 'x');  // as far as it goes
    for (const Escritor& escritor : Escritores) {
        // The file that is replaced gives its page back: the filler takes it.
        std::ofstream(Ruta(chico, escritor.archivo), std::ios::binary | std::ios::trunc).close();
        std::ofstream(Ruta(chico, "relleno"), std::ios::binary | std::ios::app) << std::string(1 << 16, 'x');
        EsperaFalla(escritor, 75);
        EXPECT_EQ(BytesDeArchivo(Ruta(chico, escritor.archivo)), "") << escritor.archivo;
    }
    EXPECT_EQ(umount2(chico.c_str(), MNT_DETACH), 0);
}

// --- where nothing can be written ---

TEST_F(FallasDeDisco, UnaRutaQueEsDirectorioNoSePuedeEscribirNiLeer)
{
    for (const Escritor& escritor : Escritores) {
        fs::create_directory(EnRaiz(escritor.archivo));
        EsperaFalla(escritor, 75);
    }
    MundoDeProyecto nuevo;
    nuevo.s.Disco = DiscoDelSistema();
    nuevo.s.DirEjecutable = nuevo.s.DirTrabajo = nuevo.s.DirProyecto = raiz;
    EsperaLecturaCallada(nuevo, raiz, "a directory in the file's place");
    EXPECT_EQ(nuevo.s.NombreProyecto, "");
}

TEST_F(FallasDeDisco, UnDirectorioQueEsArchivoNoEsRuta)
{
    const std::string archivo = EnRaiz("archivo");
    std::ofstream(archivo) << "x";
    Monta(archivo);
    for (const Escritor& escritor : Escritores)
        EsperaFalla(escritor, 76);
    s.NombreProyecto = "Quelmar";
    LeePuntero(s);
    EXPECT_EQ(s.NombreProyecto, "");
    EXPECT_EQ(s.DirProyecto, Ruta(archivo, "Proyectos"));
    EXPECT_EQ(TomaSucesos(), Sucesos{});
    EXPECT_EQ(BytesDeArchivo(archivo), "x");
}

/// Gives up the rights of the administrator, who may write everywhere. Returns false where that can't be
/// done.
bool SinPrivilegios()
{
    constexpr uid_t nadie = 65534;
    if (geteuid() != 0) return true;
    return setgid(nadie) == 0 && setuid(nadie) == 0;
}

TEST_F(FallasDeDisco, EnUnDirectorioProtegidoCadaEscritorDiceLoSuyoYNadaCambia)
{
    for (const Escritor& escritor : Escritores)
        escritor.guarda(s);
    Monta(raiz);
    TomaSucesos();
    std::vector<std::string> antes;
    for (const Escritor& escritor : Escritores) {
        antes.push_back(BytesDeArchivo(EnRaiz(escritor.archivo)));
        fs::permissions(EnRaiz(escritor.archivo), fs::perms::owner_read | fs::perms::others_read);
    }
    fs::permissions(raiz, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                              fs::perms::others_exec);
    std::string espera;
    for (const Escritor& escritor : Escritores)
        espera +=
            escritor.archivo + std::string(escritor.avisa ? " 0 " + CajaAcceso + "\n" : " 75 ") + "intacta\n";
    const FinDeProceso fin = EnOtroProceso([&] {
        if (!SinPrivilegios()) return std::string("con privilegios");
        std::string texto;
        for (const Escritor& escritor : Escritores) {
            const Datos datos = DatosDe(s);
            const int falla = NumeroDeFalla([&] { escritor.guarda(s); });
            texto += escritor.archivo + std::string(" ") + std::to_string(falla) + " " + Junta(TomaSucesos());
            texto += DatosDe(s) == datos ? "intacta\n" : "cambiada\n";
        }
        return texto;
    });
    ASSERT_TRUE(fin.entero);
    if (fin.texto == "con privilegios")
        GTEST_SKIP() << "the rights of the administrator can't be given up here";
    EXPECT_EQ(fin.texto, espera);
    for (std::size_t i = 0; i < Escritores.size(); ++i)
        EXPECT_EQ(BytesDeArchivo(EnRaiz(Escritores[i].archivo)), antes[i]) << Escritores[i].archivo;
}

TEST_F(FallasDeDisco, EnUnDirectorioProtegidoNuevoYGuardarComoTerminanYAbrirAbre)
{
    std::ofstream(EnRaiz("Quelmar_Conf.vlm"), std::ios::binary) << BytesConf(raiz);
    fs::permissions(EnRaiz("Quelmar_Conf.vlm"), fs::perms::owner_read | fs::perms::others_read);
    fs::permissions(raiz, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                              fs::perms::others_exec);
    const FinDeProceso fin = EnOtroProceso([&] {
        if (!SinPrivilegios()) return std::string("con privilegios");
        EligeRuta(EnRaiz("Quelmar_Conf.vlm"));
        mnuAbrirProyecto(s);
        std::string texto = "open " + s.NombreProyecto + "\n" + Junta(TomaSucesos());
        Responde("Copia");
        try {
            mnuGuardarProyectoComo(s);
        } catch (const FinDelPrograma&) {
            texto += "ended\n";
        }
        texto += Junta(TomaSucesos());
        try {
            mnuNuevoProyecto(s);
        } catch (const FinDelPrograma&) {
            texto += "ended\n";
        }
        // No directory of projects can be created: the new project has nowhere to go.
        return texto + Junta(TomaSucesos());
    });
    ASSERT_TRUE(fin.entero);
    if (fin.texto == "con privilegios")
        GTEST_SKIP() << "the rights of the administrator can't be given up here";
    const std::string pide = "Ingrese un nombre de archivo para el nuevo proyecto: ";
    EXPECT_EQ(fin.texto,
              "open Quelmar\n" +
                  Junta({SucesoElige("Abrir", "Archivos de Proyecto (*_Conf.vlm) |*_Conf.vlm"),
                         SucesoEtiquetas("Quelmar", ""), SucesoHabilitaGuardarComo()}) +
                  "ended\n" +
                  Junta({SucesoPide(pide, "Cuardar Como...(copia el proyecto actual con otro nombre)", ""),
                         ErrorDesconocido, SucesoTermina()}) +
                  "ended\n" +
                  Junta({SucesoPide(pide, "Proyecto Nuevo", ""), ErrorDesconocido, SucesoTermina()}));
    EXPECT_EQ(BytesDeArchivo(EnRaiz("Quelmar_Conf.vlm")), BytesConf(raiz));
}

}  // namespace
