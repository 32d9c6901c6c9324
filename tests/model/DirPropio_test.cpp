// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/DirPropio.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "apoyo/DiscoPrueba.h"
#include "model/Falla.h"

namespace model {
namespace {

struct DirectorioPropio : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string programa = Ruta("", "programa");
    const std::string usuario = Ruta("", "usuario");
    const std::string entregado = Ruta("", "entregado");
    DirectorioPropio()
    {
        disco.PonDirectorio(programa);
        disco.PonDirectorio(usuario);
        disco.Pon(Ruta(entregado, "distriPp_dpt.vlm"), "tabla");
        disco.Pon(Ruta(Ruta(entregado, "Proyectos"), "Quelmar_Conf.vlm"), "conf");
    }
    std::string Prepara() { return PreparaDirTrabajo(disco.Puerta(), programa, usuario, entregado); }
};

TEST_F(DirectorioPropio, EsElDelEjecutableDondeSePuedeEscribir)
{
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(Ruta(programa, "distriPp_dpt.vlm")), "tabla");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
}

TEST_F(DirectorioPropio, NoDejaNadaDeLaPruebaDeEscritura)
{
    PreparaDirTrabajo(disco.Puerta(), programa, usuario, "");
    EXPECT_EQ(disco.Archivos().size(), 2U);  // those of the delivery
}

TEST_F(DirectorioPropio, DondeNoSePuedeEscribirEsElDelUsuario)
{
    disco.Protege(programa);
    EXPECT_EQ(Prepara(), usuario);
    EXPECT_EQ(disco.Bytes(Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    EXPECT_FALSE(disco.Esta(Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LoQueElUsuarioYaTieneSeRespeta)
{
    disco.Pon(Ruta(programa, "distriPp_dpt.vlm"), "la mía");
    Prepara();
    EXPECT_EQ(disco.Bytes(Ruta(programa, "distriPp_dpt.vlm")), "la mía");
}

TEST_F(DirectorioPropio, DespuesDelPrimerArranqueNoSeCopiaMas)
{
    disco.Pon(Ruta(programa, "VelmirDir.vlm"), "");
    Prepara();
    EXPECT_FALSE(disco.Esta(Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LasCrecidasLleganTambienAQuienYaHabiaArrancado)
{
    const std::string crecidas = Ruta("Proyectos", "Crecidas");
    const std::string conf = Ruta(crecidas, "Bachman_Conf.vlm");
    disco.Pon(Ruta(entregado, conf), "bachman");
    disco.Pon(Ruta(programa, "VelmirDir.vlm"), "");
    Prepara();
    EXPECT_FALSE(disco.Esta(Ruta(programa, conf))) << "no projects at all: they were taken away";
    disco.PonDirectorio(Ruta(programa, "Proyectos"));
    Prepara();
    EXPECT_EQ(disco.Bytes(Ruta(programa, conf)), "bachman");
    EXPECT_FALSE(disco.Esta(Ruta(Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")));
    disco.Puerta().Borra(Ruta(programa, conf));
    Prepara();
    EXPECT_FALSE(disco.Esta(Ruta(programa, conf))) << "an emptied folder stays empty";
}

TEST_F(DirectorioPropio, LasCrecidasVanConElPrimerArranque)
{
    const std::string conf = Ruta(Ruta("Proyectos", "Crecidas"), "Bachman_Conf.vlm");
    disco.Pon(Ruta(entregado, conf), "bachman");
    Prepara();
    EXPECT_EQ(disco.Bytes(Ruta(programa, conf)), "bachman");
}

TEST_F(DirectorioPropio, LoQueNoSePuedeCopiarSeDejaYElRestoVa)
{
    disco.Protege(Ruta(entregado, "distriPp_dpt.vlm"));
    disco.PonDirectorio(Ruta(programa, "distriPp_dpt.vlm"));  // in the way of the copy
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
}

TEST_F(DirectorioPropio, ElDelUsuarioSeHaceConLosQueLeFaltanArriba)
{
    disco.Protege(programa);
    const std::string nuevo = Ruta(Ruta(Ruta("", "casa"), "SIRO"), "siro");
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, nuevo, entregado), nuevo);
    EXPECT_EQ(disco.Bytes(Ruta(nuevo, "distriPp_dpt.vlm")), "tabla");
}

TEST_F(DirectorioPropio, SinDirectorioDeUsuarioQuedaElDelEjecutable)
{
    disco.Protege(programa);
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, "", entregado), programa);
}

// --- a first start on a full disk ---

struct PrimerArranque : DirectorioPropio {
    PrimerArranque()
    {
        for (const char* const nombre : {"TablasPDRs_pdr.vlm", "Velmir_pt.vlm"})
            disco.Pon(Ruta(entregado, nombre), std::string(100, 't'));
        disco.Pon(Ruta(Ruta(entregado, "Proyectos"), "Quelmar_UEHs.vlm"), std::string(100, 'q'));
        for (const std::string& ruta : disco.Archivos())
            todo.push_back(programa + ruta.substr(entregado.size()));
    }
    bool Pendiente() { return EntregaPendiente(disco.Puerta(), programa); }
    /// What is delivered and is there; each must be whole.
    std::size_t Copiados()
    {
        std::size_t copiados = 0;
        for (const std::string& ruta : todo) {
            if (!disco.Esta(ruta)) continue;
            EXPECT_EQ(disco.Bytes(ruta), disco.Bytes(entregado + ruta.substr(programa.size()))) << ruta;
            ++copiados;
        }
        return copiados;
    }
    std::vector<std::string> todo{};
};

TEST_F(PrimerArranque, SinLugarCadaArchivoEstaEnteroONoEstaYElProximoLosTrae)
{
    disco.LimitaEspacio(2 * (300 + 5 + 4) - 1);  // a byte less than what is delivered takes twice
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(Copiados(), todo.size() - 1);
    EXPECT_TRUE(Pendiente());
    disco.Pon(Ruta(programa, "VelmirDir.vlm"), "");  // the pointer is written at every start
    disco.LimitaEspacio(std::string::npos);
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(Copiados(), todo.size());
    EXPECT_FALSE(Pendiente());
    // From then on what the user deletes stays deleted.
    disco.Quita(todo.front());
    Prepara();
    EXPECT_FALSE(disco.Esta(todo.front()));
}

TEST_F(PrimerArranque, CadaLlamadaQueFallaDejaArchivosEnterosYElProximoArranqueLosTraeTodos)
{
    int n = 0;
    for (bool hubo = true; hubo;) {
        ASSERT_LT(++n, 200);
        disco.Quita(programa);
        disco.PonDirectorio(programa);
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        const std::string donde = Prepara();
        hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        if (donde != programa) continue;  // the very first call decides where
        static_cast<void>(Copiados());
        disco.Pon(Ruta(programa, "VelmirDir.vlm"), "");
        const bool completo = Copiados() == todo.size();
        EXPECT_TRUE(completo || Pendiente()) << "call " << n;
        Prepara();
        EXPECT_EQ(Copiados(), todo.size()) << "call " << n;
        EXPECT_FALSE(Pendiente()) << "call " << n;
    }
    EXPECT_GE(n, 10);
}

// Two programs that start at once: the other one has taken the probe away already.
TEST_F(DirectorioPropio, LaPruebaDeEscrituraNoDependeDePoderBorrarla)
{
    Disco puerta = disco.Puerta();
    puerta.Borra = [](const std::string&) { throw Falla{NumeroFalla::ArchivoNoEsta}; };
    EXPECT_EQ(PreparaDirTrabajo(puerta, programa, usuario, ""), programa);
}

// --- what an installation delivers ---

struct LugarEntregado : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string programa = Ruta(Ruta("", "siro"), "bin");
    const std::string alLado = Ruta(Ruta(Ruta(programa, ".."), "share"), "siro");
    LugarEntregado() { disco.PonDirectorio(programa); }
    std::string Halla() { return DirEntregado(disco.Puerta(), programa); }
};

TEST_F(LugarEntregado, SinAyudaNoHayNinguno)
{
    disco.PonDirectorio(Ruta(programa, "data"));
    disco.PonDirectorio(Ruta(alLado, "Proyectos"));
    EXPECT_EQ(Halla(), "");
}

// Each place goes before those that were tried above it.
TEST_F(LugarEntregado, ElPropioElCompartidoYData)
{
    disco.PonDirectorio(Ruta(programa, "Ayuda"));
    EXPECT_EQ(Halla(), programa);
    disco.PonDirectorio(Ruta(alLado, "Ayuda"));
    EXPECT_EQ(Halla(), alLado);
    disco.PonDirectorio(Ruta(Ruta(programa, "data"), "Ayuda"));
    EXPECT_EQ(Halla(), Ruta(programa, "data"));
}

// A folder with program and data that lies where nobody may write: a medium, another's home.
TEST_F(LugarEntregado, DeUnaCarpetaProtegidaSeCopiaAlUsuario)
{
    const std::string usuario = Ruta("", "usuario");
    disco.Pon(Ruta(programa, "distriPp_dpt.vlm"), "tabla");
    disco.Pon(Ruta(Ruta(programa, "Ayuda"), "indice.html"), "ayuda");
    disco.Protege(programa);
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, usuario, Halla()), usuario);
    EXPECT_EQ(disco.Bytes(Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(usuario, "Ayuda"), "indice.html")), "ayuda");
}

// Root may write there, and must not.
TEST_F(LugarEntregado, DeUnaInstalacionSeCopiaAlUsuarioYNadaABin)
{
    const std::string usuario = Ruta("", "usuario");
    disco.Pon(Ruta(alLado, "distriPp_dpt.vlm"), "tabla");
    disco.Pon(Ruta(Ruta(alLado, "Ayuda"), "indice.html"), "ayuda");
    const std::string entregado = Halla();
    ASSERT_EQ(entregado, alLado);
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, usuario, entregado), usuario);
    EXPECT_EQ(disco.Bytes(Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    for (const std::string& archivo : disco.Archivos())
        EXPECT_FALSE(archivo.starts_with(Ruta(programa, "")) && !archivo.starts_with(alLado)) << archivo;

    // Where the system tells no place for the user's data, nothing is copied at all.
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, "", entregado), programa);
    EXPECT_FALSE(disco.Esta(Ruta(programa, "distriPp_dpt.vlm")));
}

// --- help after an upgrade ---

struct AyudaRenovada : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string propio = Ruta("", "usuario"), entregado = Ruta("", "entregado");
    const std::string indice = Ruta(Ruta(propio, "Ayuda"), "indice.html");
    AyudaRenovada()
    {
        disco.Pon(Ruta(Ruta(entregado, "Ayuda"), "indice.html"), "nueva");
        disco.Pon(indice, "vieja");
    }
    void Renueva() { RenuevaAyuda(disco.Puerta(), propio, entregado); }
};

TEST_F(AyudaRenovada, LoEntregadoReemplazaALoCopiadoAntes)
{
    disco.Pon(Ruta(Ruta(entregado, "Ayuda"), "teclas.html"), "otra");
    Renueva();
    EXPECT_EQ(disco.Bytes(indice), "nueva");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(propio, "Ayuda"), "teclas.html")), "otra");
}

TEST_F(AyudaRenovada, LoQueEsIgualNoSeEscribe)
{
    disco.Pon(indice, "nueva");
    Disco puerta = disco.Puerta();
    int copias = 0;
    puerta.Copia = [&](const std::string&, const std::string&) { ++copias; };
    RenuevaAyuda(puerta, propio, entregado);
    EXPECT_EQ(copias, 0);
}

TEST_F(AyudaRenovada, LosDatosDelUsuarioNoSeTocan)
{
    disco.Pon(Ruta(entregado, "distriPp_dpt.vlm"), "tabla");
    disco.Pon(Ruta(propio, "distriPp_dpt.vlm"), "la mía");
    Renueva();
    EXPECT_EQ(disco.Bytes(Ruta(propio, "distriPp_dpt.vlm")), "la mía");
}

TEST_F(AyudaRenovada, SinLugarOSinEntregaTodoQueda)
{
    RenuevaAyuda(disco.Puerta(), propio, "");
    RenuevaAyuda(disco.Puerta(), propio, Ruta("", "nada"));
    EXPECT_EQ(disco.Bytes(indice), "vieja");
    disco.PonDirectorio(Ruta("", "otro"));
    RenuevaAyuda(disco.Puerta(), Ruta("", "otro"), entregado);
    EXPECT_FALSE(disco.Esta(Ruta(Ruta(Ruta("", "otro"), "Ayuda"), "indice.html")));
}

TEST_F(AyudaRenovada, LoQueNoSePuedeEscribirSeDejaSinDecirNada)
{
    disco.Protege(Ruta(propio, "Ayuda"));
    EXPECT_NO_THROW(Renueva());
    EXPECT_EQ(disco.Bytes(indice), "vieja");
}

// --- the user's own directory ---

std::string DirDe(const std::map<std::string, std::string>& variables)
{
    return DirDelUsuario([&](const std::string& nombre) {
        const auto hallada = variables.find(nombre);
        return hallada == variables.end() ? std::string() : hallada->second;
    });
}

#if !defined(_WIN32) && !defined(__APPLE__)
TEST(DirDelUsuario, EsDondeElEscritorioGuardaLosDatos)
{
    EXPECT_EQ(DirDe({{"HOME", "/casa"}}), "/casa/.local/share/SIRO/siro");
    EXPECT_EQ(DirDe({{"HOME", "/casa"}, {"XDG_DATA_HOME", "/datos"}}), "/datos/SIRO/siro");
    EXPECT_EQ(DirDe({{"XDG_DATA_HOME", "/datos"}}), "/datos/SIRO/siro");
    EXPECT_EQ(DirDe({{"HOME", "/casa"}, {"XDG_DATA_HOME", "datos"}}), "/casa/.local/share/SIRO/siro");
}
#endif

TEST(DirDelUsuario, SinAmbienteNoHayNinguno)
{
    EXPECT_EQ(DirDe({}), "");
}

}  // namespace
}  // namespace model
