// SPDX-License-Identifier: GPL-3.0-or-later
//
// Storms and projects on a real disk that fails: the process killed in the middle of a write, the disk full,
// the directory write-protected. No crash, the box that belongs to it and no other, memory as it was, and
// every file the old one or the new one.

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "LlamadasQueFallan.h"
#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/ArchivoConf.h"
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
    return {s.TablasDeLluvia.NroFilasTabla, s.TablasDeLluvia.DisPerso,
            s.TablasDeLluvia.TablasP,       s.Tormenta.PpReal,
            s.Tormenta.PpTormenta,          s.Tormenta.DurTormenta,
            s.Tormenta.RecTormenta,         s.Proyecto.NombreProyecto,
            s.Proyecto.DirProyecto};
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
        s.Proyecto.DirEjecutable = s.Proyecto.DirTrabajo = s.Proyecto.DirProyecto = directorio;
        s.Proyecto.NombreProyecto = "Quelmar";
        s.TablasDeLluvia.NroFilasTabla = {2, 2, 1, 3};
        s.TablasDeLluvia.DisPerso.Dimensiona(3, 4);
        s.TablasDeLluvia.DisPerso(1, 1) = 12.5F;
        s.TablasDeLluvia.TablasP.Dimensiona(4, 4);
        s.TablasDeLluvia.TablasD.Dimensiona(4, 4);
        s.TablasDeLluvia.TablasR.Dimensiona(4, 4);
        s.Tormenta.NroPpReal = 3;
        s.Tormenta.PpReal.Dimensiona(3);
        s.Tormenta.PpTormenta = 77;
        s.Tormenta.DurTormenta = 88;
        s.Tormenta.RecTormenta = 99;
    }
    std::string EnRaiz(const std::string& nombre) const { return Ruta(raiz, nombre); }
    /// Runs a writer that must fail with number `numero`; what it shows and throws must be that and no more.
    void EsperaFalla(const Escritor& escritor, int numero, const std::string& nota = "")
    {
        const Datos antes = DatosDe(s);
        const int falla = NumeroDeFalla([&] { escritor.guarda(s); });
        EXPECT_EQ(falla, escritor.avisa ? 0 : numero) << escritor.archivo;
        const std::string caja = (numero == 75 ? CajaAcceso : CajaSinRuta) + nota;
        EXPECT_EQ(TomaSucesos(), escritor.avisa ? Sucesos{caja} : Sucesos{}) << escritor.archivo;
        EXPECT_EQ(DatosDe(s), antes) << escritor.archivo;
    }
    apoyo::CarpetaTemporal carpeta;
    const std::string raiz = carpeta.Camino().string();
};

// --- killed in the middle of a write ---

/// What the readers leave of a directory: it must be all or nothing, and silent.
void EsperaLecturaCallada(MundoDeProyecto& mundo, const std::string& raiz, const std::string& que)
{
    Siro& s = mundo.s;
    TormentaReal t = Tormenta();
    LeePpReal(s, t);
    EXPECT_TRUE(s.Tormenta.NroPpReal == 0 || s.Tormenta.NroPpReal == 3) << que;
    s.TablasDeLluvia.NroFilasTabla = {9, 9, 9, 9};
    LeeTablaDisTemPer(s);
    EXPECT_TRUE(s.TablasDeLluvia.NroFilasTabla == (std::array<std::int16_t, 4>{9, 0, 0, 0}) ||
                s.TablasDeLluvia.NroFilasTabla == (std::array<std::int16_t, 4>{9, 2, 1, 3}))
        << que;
    LeeTablaPDRs(s);
    EXPECT_TRUE(s.TablasDeLluvia.NroFilasTabla[3] == 0 ||
                s.TablasDeLluvia.NroFilasTabla == (std::array<std::int16_t, 4>{2, 2, 1, 3}))
        << que;
    std::vector<std::string> cmbPDR;
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_LE(cmbPDR.size(), 2U) << que;
    EXPECT_EQ(mundo.TomaSucesos(), Sucesos{}) << que;
    LeePuntero(s);
    EXPECT_TRUE(s.Proyecto.DirProyecto == raiz || s.Proyecto.DirProyecto == Ruta(raiz, "Proyectos")) << que;
    EXPECT_EQ(mundo.TomaSucesos(), Sucesos{}) << que;
}

constexpr auto PartesHechas = std::to_array<double>({0, 0.5, 1});
constexpr int MuchasLlamadas = 60;

/// Each writer's file after it has written all over again.
std::vector<std::string> EscribeTodo(Siro& s, const std::string& raiz)
{
    std::vector<std::string> bytes;
    for (const Escritor& escritor : Escritores)
        escritor.guarda(s);
    for (const Escritor& escritor : Escritores)
        bytes.push_back(BytesDeArchivo(Ruta(raiz, escritor.archivo)));
    return bytes;
}

TEST_F(FallasDeDisco, MatadoEnCadaLlamadaDeCadaEscrituraElArchivoEsElViejoOElNuevo)
{
    for (std::size_t i = 0; i < Escritores.size(); ++i)
        for (const double hecha : PartesHechas) {
            const Escritor& escritor = Escritores[i];
            const std::string nuevo = EscribeTodo(s, raiz)[i];
            int muertes = 0;
            for (int n = 1; n <= MuchasLlamadas; ++n) {
                std::ofstream(EnRaiz(escritor.archivo), std::ios::binary) << "viejo";
                const FinDeProceso fin = EnOtroProceso([&] {
                    s.Disco = fallas::Disco({.llamada = n, .hecha = hecha});
                    escritor.guarda(s);
                    return std::string("al fin");
                });
                ASSERT_TRUE(fin.matado || fin.texto == "al fin") << escritor.archivo << ", call " << n;
                const std::string queda = BytesDeArchivo(EnRaiz(escritor.archivo));
                EXPECT_TRUE(queda == "viejo" || queda == nuevo) << escritor.archivo << ", call " << n;
                EXPECT_TRUE(fin.matado || queda == nuevo) << escritor.archivo;
                MundoDeProyecto otro;
                otro.s.Disco = DiscoDelSistema();
                RecuperaGuardado(otro.s, raiz);
                EXPECT_EQ(otro.TomaSucesos(), Sucesos{}) << "of a single file there is nothing to finish";
                EXPECT_EQ(fallas::ContenidoDe(raiz).size(), Escritores.size()) << escritor.archivo;
                if (!fin.matado) break;
                ++muertes;
            }
            EXPECT_EQ(muertes, 3) << escritor.archivo << ": the new file, its name, the folder";
            EscribeTodo(s, raiz);
        }
    MundoDeProyecto nuevo;
    nuevo.s.Disco = DiscoDelSistema();
    nuevo.s.Proyecto.DirEjecutable = nuevo.s.Proyecto.DirTrabajo = nuevo.s.Proyecto.DirProyecto = raiz;
    EsperaLecturaCallada(nuevo, raiz, "after all of it");
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

/// A project with components and a table in a folder of its own.
fallas::Contenido ProyectoEntero(const std::string& directorio)
{
    return {{"Quelmar_Conf.vlm", BytesConf(directorio)},
            {"Quelmar_UEHs.vlm",
             "\"Quelmar\"\r\n0\r\n1\r\n1\r\n\"u-1\"\r\n250\r\n\"\"\r\n0\r\n0\r\n\r\n0\r\n0\r\n0"
             "\r\n0\r\n\"\"\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"},
            {"Quelmar_VerCau.vlm", ""},
            {"Quelmar_RHQ.vlm", "tabla"},
            {"Quelmar_LHASQ.vlm", "otra"}};
}

struct GuardarComo : FallasDeDisco {
    /// Opens the project and saves it under another name on a disk of the test's.
    void Guarda(const Disco& enCual)
    {
        TomaRutaProyecto(s, EnRaiz("Quelmar_Conf.vlm"));
        leoConf(s);
        Responde("Copia");
        s.Disco = enCual;
        try {
            mnuGuardarProyectoComo(s);
        } catch (const FinDelPrograma&) {
            termino = true;
        }
    }
    /// What a folder holds beside the old project, which must be as it was.
    fallas::Contenido Copia()
    {
        fallas::Contenido queda = fallas::ContenidoDe(raiz);
        for (const auto& [nombre, bytes] : ProyectoEntero(raiz)) {
            EXPECT_EQ(queda[nombre], bytes) << nombre;
            queda.erase(nombre);
        }
        return queda;
    }
    void Empieza()
    {
        fallas::PonContenido(raiz, ProyectoEntero(raiz));
        termino = false;
        TomaSucesos();
    }
    bool termino = false;
};

TEST_F(GuardarComo, LlevaCadaArchivo)
{
    Empieza();
    Guarda(DiscoDelSistema());
    const fallas::Contenido copia = Copia();
    EXPECT_EQ(copia.size(), 5U);
    EXPECT_EQ(copia.at("Copia_UEHs.vlm").substr(0, 9), "\"Copia\"\r\n");
    EXPECT_EQ(copia.at("Copia_UEHs.vlm").substr(9), ProyectoEntero(raiz)["Quelmar_UEHs.vlm"].substr(11));
    EXPECT_EQ(copia.at("Copia_RHQ.vlm"), "tabla");
    EXPECT_EQ(copia.at("Copia_LHASQ.vlm"), "otra");
}

TEST_F(GuardarComo, CadaLlamadaNegadaDejaTodoONada)
{
    Empieza();
    Guarda(DiscoDelSistema());
    const fallas::Contenido entera = Copia();
    for (const std::errc error : {std::errc::no_space_on_device, std::errc::permission_denied,
                                  std::errc::no_such_file_or_directory, std::errc::io_error}) {
        int n = 1, nadas = 0;
        for (; n < MuchasLlamadas; ++n) {
            Empieza();
            const fallas::Golpe golpe{.llamada = n, .error = error};
            Guarda(fallas::Disco(golpe));
            s.Disco = DiscoDelSistema();
            RecuperaGuardado(s, raiz);  // a temporary whose removal was refused
            EXPECT_EQ(Copia(), termino ? fallas::Contenido{} : entera) << "call " << n;
            const Sucesos vistos = TomaSucesos();
            const auto dice = [&](const std::string& que) {
                return std::count_if(vistos.begin(), vistos.end(), [&](const std::string& suceso) {
                    return suceso.find(que) != std::string::npos;
                });
            };
            EXPECT_EQ(dice("correctamente"), termino ? 0 : 2) << "call " << n;
            EXPECT_EQ(dice("Error de archivo desconocido"), termino ? 1 : 0) << "call " << n;
            nadas += termino ? 1 : 0;
            if (*golpe.cuenta < n) break;
        }
        EXPECT_GE(nadas, 6) << "five new files and their list at least";
        EXPECT_LT(n, MuchasLlamadas);
    }
}

TEST_F(GuardarComo, MatadoEnCadaLlamadaQuedaTodoONadaTrasLaProximaApertura)
{
    Empieza();
    Guarda(DiscoDelSistema());
    const fallas::Contenido entera = Copia();
    for (const double hecha : PartesHechas) {
        int muertes = 0, enteras = 0, completadas = 0;
        for (int n = 1; n < MuchasLlamadas; ++n) {
            Empieza();
            const FinDeProceso fin = EnOtroProceso([&] {
                Guarda(fallas::Disco({.llamada = n, .hecha = hecha}));
                return std::string("al fin");
            });
            ASSERT_TRUE(fin.matado || fin.texto == "al fin") << "call " << n << ": " << fin.texto;
            s.Disco = DiscoDelSistema();
            AbreProyectoDe(s, EnRaiz("Quelmar_Conf.vlm"));
            // The user is told of what was finished.
            for (const std::string& suceso : TomaSucesos())
                completadas +=
                    suceso.find("Se lo completó ahora con los archivos: Copia_") != std::string::npos;
            fs::remove(EnRaiz("VelmirDir.vlm"));
            fs::remove(EnRaiz("Proyectos"));
            const fallas::Contenido copia = Copia();
            EXPECT_TRUE(copia.empty() || copia == entera) << "call " << n << ", part " << hecha;
            enteras += copia.empty() ? 0 : 1;
            if (!fin.matado) break;
            ++muertes;
        }
        EXPECT_GE(muertes, 12) << "five files, a list, five names, the list's end";
        EXPECT_LT(muertes, MuchasLlamadas - 2);
        EXPECT_GE(enteras, 5);
        EXPECT_GE(completadas, 5);
    }
}

// --- full disk ---

TEST_F(FallasDeDisco, UnEnlaceQueSaleDeLaCarpetaSeNiegaYSeDice)
{
    const std::string nota =
        "\r\n\r\nEl archivo es un enlace que lleva fuera de su carpeta: no se escribe a través de él.";
    const apoyo::CarpetaTemporal ajena;
    for (const Escritor& escritor : Escritores) {
        std::ofstream(ajena.Ruta("meta"), std::ios::binary) << "ajeno";
        fs::create_symlink(ajena.Ruta("meta"), EnRaiz(escritor.archivo));
        EsperaFalla(escritor, 75, nota);
        EXPECT_EQ(BytesDeArchivo(ajena.Ruta("meta")), "ajeno") << escritor.archivo;
    }
}

TEST_F(FallasDeDisco, UnSistemaDeArchivosLlenoSeDiceUnaVezYCadaArchivoQueda)
{
    const std::string chico = EnRaiz("chico");
    fs::create_directory(chico);
    if (mount("tmpfs", chico.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP()
            << "only a privileged user can mount; what fails is tried with every call refused as well";
    Monta(chico);
    EscribeTodo(s, chico);
    TomaSucesos();
    for (const Escritor& escritor : Escritores)
        std::ofstream(Ruta(chico, escritor.archivo), std::ios::binary) << "viejo";
    std::ofstream(Ruta(chico, "relleno"), std::ios::binary)
        << std::string(1 << 20, 'x');  // as far as it goes
    const std::size_t archivos = fallas::ContenidoDe(chico).size();
    Monta(chico);
    for (const Escritor& escritor : Escritores) {
        EsperaFalla(escritor, 75);
        EXPECT_EQ(BytesDeArchivo(Ruta(chico, escritor.archivo)), "viejo") << escritor.archivo;
    }
    EXPECT_EQ(fallas::ContenidoDe(chico).size(), archivos) << "a temporary is left";
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
    nuevo.s.Proyecto.DirEjecutable = nuevo.s.Proyecto.DirTrabajo = nuevo.s.Proyecto.DirProyecto = raiz;
    EsperaLecturaCallada(nuevo, raiz, "a directory in the file's place");
    EXPECT_EQ(nuevo.s.Proyecto.NombreProyecto, "");
}

TEST_F(FallasDeDisco, UnDirectorioQueEsArchivoNoEsRuta)
{
    const std::string archivo = EnRaiz("archivo");
    std::ofstream(archivo) << "x";
    Monta(archivo);
    for (const Escritor& escritor : Escritores)
        EsperaFalla(escritor, 76);
    s.Proyecto.NombreProyecto = "Quelmar";
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Ruta(archivo, "Proyectos"));
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
        std::string texto = "open " + s.Proyecto.NombreProyecto + "\n" + Junta(TomaSucesos());
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
