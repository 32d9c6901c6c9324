// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Companeros.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/ArchivoConf.h"
#include "model/Configuracion.h"
#include "model/RutaProyecto.h"
#include "model/VidaProyecto.h"

using namespace model;
using apoyo::NumeroDeFalla;

namespace {

using Nombres = std::vector<std::string>;

const std::string Carpeta = "otros";
const std::string BarraFinal(1, Separador);

std::string En(const std::string& nombre)
{
    return Ruta(Carpeta, nombre);
}

/// Two projects in a folder, Ara with all that a study keeps.
struct Companeros : ::testing::Test, MundoDeProyecto {
    Companeros()
    {
        disco.PonDirectorio(Carpeta);
        disco.PonDirectorio("siro");
        s.Proyecto.DirEjecutable = s.Proyecto.DirTrabajo = "siro";
        for (const char* const nombre : {"Ara_Conf.vlm", "Ara_UEHs.vlm", "Arauco_Conf.vlm", "Otro_Conf.vlm"})
            disco.Pon(En(nombre), nombre);
        for (const char* const nombre :
             {"Ara_Estudio.json", "Ara_serie_1.csv", "Ara_serie_hasta 2010.csv", "Ara_serie_.csv",
              "Ara_serie_1.txt", "Ara_serie.csv", "ara_Estudio.json", "Arauco_Estudio.json",
              "Otro_Estudio.json", "Sin_Estudio.json"})
            disco.Pon(En(nombre), nombre);
        disco.Pon(Ruta(En("Ara_corridas"), "1.json"), "una");
        disco.Pon(Ruta(En("Ara_corridas"), "2.json"), "dos");
        s.Proyecto.DirProyecto = Carpeta;
        s.Proyecto.NombreProyecto = "Ara";
    }
    Nombres De(const std::string& proyecto)
    {
        return CompanerosDe(s, Carpeta, s.Disco.Lista(Carpeta), proyecto);
    }
    void Elimina(const std::string& conf)
    {
        dlg.Abre(s);
        dlg.filProyectoEliminar_AlPulsar(conf);
        RespondeSi(true);
        dlg.OKButton(s);
    }
    /// Makes Ara a project that can be copied, of one reach.
    void PonAra()
    {
        disco.Quita(En("Ara_Conf.vlm"));
        disco.Pon(En("Ara_UEHs.vlm"),
                  "\"Ara\"\r\n1\r\n1\r\n\"c-1\"\r\n2\r\n1\r\n\"\"\r\n1\r\n1000\r\n1\r\n0\r\n0\r\n#TRUE#"
                  "\r\n0\r\n0\r\n0\r\n");
        disco.Pon(En("Ara_VerCau.vlm"), "1,2\r\n3,4\r\n");
        s.frmConfigura.Dir1 = Carpeta;
        EscribeConf(s);
        TomaSucesos();
    }
    dlgEliminarProyecto dlg;
};

TEST_F(Companeros, SonElEstudioLasSeriesYLasCorridas)
{
    EXPECT_EQ(De("Ara"), (Nombres{"Ara_Estudio.json", "Ara_serie_1.csv", "Ara_serie_hasta 2010.csv",
                                  "Ara_corridas" + BarraFinal}));
    EXPECT_EQ(De("Sin"), Nombres{"Sin_Estudio.json"});
    EXPECT_TRUE(De("Ninguno").empty());
}

TEST_F(Companeros, GuardarComoLosCopiaSalvoLasCorridas)
{
    PonAra();
    Responde("Nueva");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(De("Nueva"),
              (Nombres{"Nueva_Estudio.json", "Nueva_serie_1.csv", "Nueva_serie_hasta 2010.csv"}));
    EXPECT_EQ(disco.Bytes(En("Nueva_Estudio.json")), "Ara_Estudio.json");
    EXPECT_EQ(disco.Bytes(En("Nueva_serie_1.csv")), "Ara_serie_1.csv");
    EXPECT_EQ(De("Ara").size(), 4U);
    EXPECT_TRUE(disco.Esta(Ruta(En("Ara_corridas"), "2.json")));
}

TEST_F(Companeros, GuardarComoConUnaFallaNoCopiaNinguno)
{
    PonAra();
    disco.Protege(En("Nueva_serie_1.csv"));
    Responde("Nueva");
    EXPECT_THROW(mnuGuardarProyectoComo(s), FinDelPrograma);
    EXPECT_TRUE(De("Nueva").empty());
    EXPECT_FALSE(disco.Esta(En("Nueva_Conf.vlm")));
}

TEST_F(Companeros, EliminarListaYBorraLosDeCadaProyectoQueBorra)
{
    dlg.Abre(s);
    dlg.filProyectoEliminar_AlPulsar("Otro_Conf.vlm");
    EXPECT_EQ(dlg.lblTambien, "Otro_Estudio.json");
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    EXPECT_EQ(dlg.lblTambien, "Ara_Estudio.json, Ara_serie_1.csv, Ara_serie_hasta 2010.csv, Ara_corridas" +
                                  BarraFinal + ", Arauco_Estudio.json");
    Elimina("Ara_Conf.vlm");
    EXPECT_FALSE(dlg.abierto);
    EXPECT_EQ(s.Disco.Lista(Carpeta),
              (Nombres{"Ara_serie.csv", "Ara_serie_.csv", "Ara_serie_1.txt", "Otro_Conf.vlm",
                       "Otro_Estudio.json", "Sin_Estudio.json", "ara_Estudio.json"}));
    EXPECT_TRUE(s.Disco.Lista(En("Ara_corridas")).empty());
}

TEST_F(Companeros, EliminarLosLlevaALaPapeleraDondeLaHay)
{
    Nombres tirados;
    s.Anfitrion.TiraAPapelera = [&](const std::string& ruta) {
        tirados.push_back(ruta);
        disco.Quita(ruta);
        return true;
    };
    Elimina("Ara_Conf.vlm");
    EXPECT_EQ(tirados, (Nombres{En("Ara_Estudio.json"), En("Ara_serie_1.csv"), En("Ara_serie_hasta 2010.csv"),
                                En("Ara_corridas"), En("Arauco_Estudio.json"), En("Ara_Conf.vlm"),
                                En("Ara_UEHs.vlm"), En("Arauco_Conf.vlm")}));
}

TEST_F(Companeros, EliminarConUnaFallaDejaElProyectoYElDialogo)
{
    disco.Protege(En("Ara_Estudio.json"));
    EXPECT_EQ(NumeroDeFalla([&] { Elimina("Ara_Conf.vlm"); }), 75);
    EXPECT_TRUE(dlg.abierto);
    EXPECT_TRUE(disco.Esta(En("Ara_Conf.vlm")));
    disco.Protege(En("Ara_Estudio.json"), false);
    dlg.Abre(s);
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    disco.Quita(En("Ara_Conf.vlm"));
    EXPECT_EQ(NumeroDeFalla([&] { dlg.OKButton(s); }), 53);
    EXPECT_TRUE(disco.Esta(En("Arauco_Estudio.json"))) << "nothing is deleted then";
}

TEST_F(Companeros, NuevoApartaLosQueQuedabanYLoDice)
{
    s.Proyecto.DirProyecto = Carpeta;
    disco.Pon(Ruta("siro", "VelmirDir.vlm"), "\"otros\"\r\n\"Otro\"\r\n");
    disco.Pon(En("Sin_Estudio.json.anterior"), "de antes");
    disco.Pon(Ruta(En("Sin_corridas"), "1.json"), "una");
    Responde("Sin");
    EXPECT_TRUE(mnuNuevoProyecto(s));
    EXPECT_TRUE(De("Sin").empty());
    EXPECT_EQ(disco.Bytes(En("Sin_Estudio.json.anterior")), "de antes");
    EXPECT_EQ(disco.Bytes(En("Sin_Estudio.json.anterior2")), "Sin_Estudio.json");
    EXPECT_EQ(disco.Bytes(Ruta(En("Sin_corridas.anterior"), "1.json")), "una");
    EXPECT_EQ(TomaCajas(),
              (std::vector<Mensaje>{{"En la carpeta quedaban archivos de otro proyecto de nombre <Sin>. "
                                     "Se los apartó con otro nombre: Sin_Estudio.json.anterior2, "
                                     "Sin_corridas.anterior",
                                     "Archivos del estudio", Icono::Exclamacion}}));
    EXPECT_TRUE(s.Proyecto.ProyectoNuevo);
}

TEST_F(Companeros, NuevoQueNoPuedeApartarlosLoDiceYNoSigue)
{
    disco.Pon(Ruta("siro", "VelmirDir.vlm"), "\"otros\"\r\n\"Otro\"\r\n");
    disco.Protege(En("Sin_Estudio.json"));
    Responde("Sin");
    EXPECT_FALSE(mnuNuevoProyecto(s));
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
    EXPECT_TRUE(disco.Esta(En("Sin_Estudio.json")));
    EXPECT_EQ(TomaCajas(),
              (std::vector<Mensaje>{{"En la carpeta quedaban archivos de otro proyecto de nombre <Sin>, y "
                                     "no se los pudo apartar. Elija un nombre distinto, o mueva de allí "
                                     "estos archivos: Sin_Estudio.json",
                                     "Archivos del estudio", Icono::Exclamacion}}));
}

TEST_F(Companeros, LosDeUnProyectoQueEstaNoSeApartan)
{
    EXPECT_TRUE(ApartaCompaneros(s, Carpeta, "Ara"));
    EXPECT_EQ(De("Ara").size(), 4U);
    EXPECT_TRUE(TomaCajas().empty());
}

TEST_F(Companeros, ApartarQueFallaALaMitadNoPierdeNada)
{
    for (int n = 1; n < 40; ++n) {
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        ApartaCompaneros(s, Carpeta, "Sin");
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        EXPECT_TRUE(disco.Esta(En("Sin_Estudio.json")) || disco.Esta(En("Sin_Estudio.json.anterior")) ||
                    disco.Esta(En("Sin_Estudio.json.anterior2")))
            << n;
        disco.Pon(En("Sin_Estudio.json"), "Sin_Estudio.json");
        if (!hubo) return;
    }
    ADD_FAILURE() << "more calls than that takes";
}

}  // namespace
