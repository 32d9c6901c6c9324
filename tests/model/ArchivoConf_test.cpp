// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivoConf.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ProyectoDePrueba.h"
#include "apoyo/Compara.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

using namespace model;

namespace {

using Renglones = std::vector<std::string>;

constexpr std::size_t NroCampos = 59;

/// What a field of the file is, by the layout of the file.
enum class Clase { Texto, NumeroEnTexto, SimpleEnTexto, Entero, Simple, Logico };

Clase ClaseDe(std::size_t campo)
{
    switch (campo) {
    case 15:
    case 28:
        return Clase::NumeroEnTexto;
    case 20:
    case 21:
        return Clase::SimpleEnTexto;
    case 26:
        return Clase::Simple;
    case 11:
    case 13:
        return Clase::Entero;
    default:
        if (campo >= 29) return Clase::Entero;
        if ((campo >= 17 && campo <= 19) || (campo >= 22 && campo <= 25)) return Clase::Logico;
        return Clase::Texto;
    }
}

/// The 59 fields as they stand in a file, field n at index n - 1. Recurrences ticked: 2, 10, 500, 10000.
/// Durations ticked: 5, 60, 2880.
Renglones Ejemplo()
{
    Renglones r{"\"Arroyo\"",
                "\"Crecidas, del r\xEDo\"",
                "\"Lugar\"",
                "\"Cuenca\"",
                "\"Subcuenca\"",
                "\"Operador\"",
                "\"03/04/2011\"",
                "\"" + UnidadDe("/proy") + "\"",
                "\"/proy\"",
                "\"nuevo\"",
                "1",
                "\"Arroyo_Conf.vlm\"",
                "1",
                "\"/proy/mapa.bmp\"",
                "\"150\"",
                "\"nota\"",
                "#TRUE#",
                "#FALSE#",
                "#TRUE#",
                "12.5",
                "-3",
                "#FALSE#",
                "#TRUE#",
                "#TRUE#",
                "#FALSE#",
                "45.25",
                "\"900\"",
                "\"2.5\""};
    for (const int marca : {1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1})
        r.push_back(std::to_string(marca));
    for (const int marca : {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1})
        r.push_back(std::to_string(marca));
    return r;
}

Renglones Con(std::size_t campo, const std::string& valor)
{
    Renglones r = Ejemplo();
    r.at(campo - 1) = valor;
    return r;
}

Mensaje Llano(std::string texto)
{
    return {std::move(texto), "", Icono::Ninguno};
}

/// The box of the second row: the reading stopped at a fault other than the end of the file.
Mensaje CajaDeFalla(const std::string& numero, const std::string& descripcion)
{
    return Llano("Error Nro. " + numero + " ," + descripcion + "Verifique.");
}
const Mensaje CajaTipos = CajaDeFalla("13", "No coinciden los tipos");
const Mensaje CajaDesborde = CajaDeFalla("6", "Desbordamiento");
const Mensaje CajaNoEsta = CajaDeFalla("53", "No se encontró el archivo");
const Mensaje CajaSinRuta = CajaDeFalla("76", "No se encontró la ruta de acceso");
const Mensaje CajaAcceso = CajaDeFalla("75", "Error de acceso a la ruta o al archivo");

Mensaje CajaDanado(const std::string& nombre)
{
    return Llano(
        "Error Nro. 62 ,La entrada de datos sobrepasó el final del archivoVerifique. El archivo de "
        "configuración <" +
        nombre + "_Conf.vlm > está dañado. Corrija o elimine manualmente este archivo");
}

Mensaje CajaGuardado(const std::string& ruta)
{
    return Llano("Los datos de configuración del proyecto se han guardado correctamente en el archivo " +
                 ruta);
}

/// Values from place 1 on.
std::vector<int> Valores(const std::vector<std::int16_t>& lista)
{
    return {lista.begin() + 1, lista.end()};
}

struct ConfiguracionEnDisco : ::testing::Test, ProyectoDePrueba {
    void PonConf(const Renglones& renglones) { Pon("_Conf.vlm", Junta(renglones)); }
    void Lee(const Renglones& renglones)
    {
        PonConf(renglones);
        leoConf(s);
    }
    std::string Conf() { return Bytes("_Conf.vlm"); }
};

// --- reading ---

TEST_F(ConfiguracionEnDisco, CadaCampoLlegaASuVariable)
{
    Lee(Ejemplo());
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Crecidas, del río");
    EXPECT_EQ(s.Configuracion.Ubicacion, "Lugar");
    EXPECT_EQ(s.Configuracion.Cuenca, "Cuenca");
    EXPECT_EQ(s.Configuracion.Subcuenca, "Subcuenca");
    EXPECT_EQ(s.Configuracion.Operador, "Operador");
    EXPECT_EQ(s.Proyecto.DriveProyecto, UnidadDe("/proy"));
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/proy");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(s.Configuracion.ArchivoImagen, "/proy/mapa.bmp");
    EXPECT_EQ(s.Configuracion.EscalaImagen, 150);
    EXPECT_EQ(s.Configuracion.ImagenX0, 12.5F);
    EXPECT_EQ(s.Configuracion.ImagenY0, -3.0F);
    EXPECT_EQ(s.Pasos.N0Dur, 45.25F);
    EXPECT_EQ(s.Configuracion.MaxUEHsPixel, "900");
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "2.5");
    EXPECT_EQ(s.Configuracion.CheckD,
              (std::array<std::int16_t, 17>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
}

TEST_F(ConfiguracionEnDisco, CadaCampoLlegaASuControl)
{
    Lee(Ejemplo());
    ControlesConfigura c;
    c.TextProyecto = "Crecidas, del río";
    c.TextUbica = "Lugar";
    c.TextCuenca = "Cuenca";
    c.TextSbca = "Subcuenca";
    c.TextOpera = "Operador";
    c.txtFecha = "03/04/2011";
    c.Drive1 = UnidadDe("/proy");
    c.Dir1 = "/proy";
    c.TextDirNv = "nuevo";
    c.CheckDistriPp = 1;
    c.lblMiArchivoConf = "Arroyo_Conf.vlm";
    c.chkImagenDibujo = 1;
    c.lblImagenDibujo = "/proy/mapa.bmp";
    c.TexIMGEscala = "150";
    c.TexS = "nota";
    c.Optiona = c.Optionc = c.OptionHr = c.Optionm3 = true;
    c.OptionMin = false;
    c.Optionb = c.OptionMin = c.OptionLt = false;
    c.TexIMGX0 = "12.5";
    c.TexIMGY0 = "-3";
    c.txtN0Dur = "45.25";
    c.txtMaxUEHsPixel = "900";
    c.txtEscalaImagen = "2.5";
    c.CheckR = {1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1};
    c.CheckD = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_TRUE(s.frmConfigura == c);
}

TEST_F(ConfiguracionEnDisco, LasListasLlevanLosValoresTildadosEnOrden)
{
    Lee(Ejemplo());
    EXPECT_EQ(Valores(s.Configuracion.ListaRec), (std::vector<int>{2, 10, 500, 10000}));
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 5U);
    EXPECT_EQ(Valores(s.Configuracion.ListaDur), (std::vector<int>{5, 60, 2880}));
    EXPECT_EQ(s.Configuracion.ListaDur.size(), 4U);
}

TEST_F(ConfiguracionEnDisco, UnaCasillaCuentaSoloConUnUnoExacto)
{
    Renglones r = Ejemplo();
    r[28] = "2";   // R 2
    r[29] = "-1";  // R 5
    r[42] = "2";   // D 5
    Lee(r);
    EXPECT_EQ(Valores(s.Configuracion.ListaRec), (std::vector<int>{10, 500, 10000}));
    EXPECT_EQ(Valores(s.Configuracion.ListaDur), (std::vector<int>{60, 2880}));
    EXPECT_EQ(s.frmConfigura.CheckR[0], 2);
    EXPECT_EQ(s.Configuracion.CheckR[1], -1);
}

TEST_F(ConfiguracionEnDisco, LasListasTienenLugarParaTodasLasCasillas)
{
    Renglones r = Ejemplo();
    for (std::size_t i = 28; i < NroCampos; ++i)
        r[i] = "1";
    Lee(r);
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 15U);
    EXPECT_EQ(s.Configuracion.ListaDur.size(), 18U);
    EXPECT_EQ(s.Configuracion.ListaRec.back(), 10000);
    EXPECT_EQ(s.Configuracion.ListaDur.back(), 2880);
}

TEST_F(ConfiguracionEnDisco, UnaSegundaLecturaHaceLasListasDeNuevo)
{
    Lee(Ejemplo());
    Lee(Con(29, "0"));
    EXPECT_EQ(Valores(s.Configuracion.ListaRec), (std::vector<int>{10, 500, 10000}));
}

TEST_F(ConfiguracionEnDisco, ElNombreDentroDelArchivoRigeDesdeAhi)
{
    Lee(Con(1, "\"Otro\""));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Otro");
    leoConf(s);  // now /proy/Otro_Conf.vlm, which isn't there
    EXPECT_EQ(Avisos(), Cajas{CajaNoEsta});
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Otro_Conf.vlm"));
}

TEST_F(ConfiguracionEnDisco, ArchivoTempEsLaRutaDelArchivoLeido)
{
    Lee(Ejemplo());
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Arroyo_Conf.vlm"));
}

TEST_F(ConfiguracionEnDisco, ComaYFinDeRenglonValenLoMismo)
{
    std::string bytes;
    for (const std::string& r : Ejemplo())
        bytes += (bytes.empty() ? "" : ",") + r;
    Pon("_Conf.vlm", bytes);
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Crecidas, del río");
    EXPECT_EQ(s.Configuracion.ListaDur.size(), 4U);
}

TEST_F(ConfiguracionEnDisco, CamposVaciosSonCeroFalsoYTextoVacio)
{
    Renglones r(NroCampos, "");
    r[0] = "\"Arroyo\"";
    r[8] = "\"/proy\"";
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.frmConfigura.txtFecha, "");
    EXPECT_EQ(s.frmConfigura.CheckDistriPp, 0);
    EXPECT_EQ(s.frmConfigura.TexIMGEscala, "0");
    EXPECT_EQ(s.frmConfigura.txtN0Dur, "0");
    EXPECT_EQ(s.frmConfigura.txtEscalaImagen, "");
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "0");
    EXPECT_FALSE(s.frmConfigura.OptionMin);
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 1U);
    EXPECT_EQ(s.Configuracion.ListaDur.size(), 1U);
}

// --- numbers in texts ---

TEST_F(ConfiguracionEnDisco, N0DurVuelveComoFueEscrita)
{
    Lee(Con(26, "0.1"));
    EXPECT_EQ(s.Pasos.N0Dur, 0.1F);
    EXPECT_EQ(s.frmConfigura.txtN0Dur, "0.1");
    cmdAplicar(s);
    EXPECT_EQ(Conf(), Junta(Con(26, "0.1")));
    s.Pasos.N0Dur = 0;
    leoConf(s);
    EXPECT_EQ(s.Pasos.N0Dur, 0.1F);
}

TEST_F(ConfiguracionEnDisco, LaEscalaDeImagenSeDetieneEnLaComaDecimal)
{
    Lee(Con(15, "\"12,5\""));
    EXPECT_EQ(s.Configuracion.EscalaImagen, 12);
    EXPECT_EQ(s.frmConfigura.TexIMGEscala, "12");
}

TEST_F(ConfiguracionEnDisco, LaEscalaDeImagenTomaElNumeroDelComienzo)
{
    Lee(Con(15, "\" 75.5 % de zoom\""));
    EXPECT_EQ(s.Configuracion.EscalaImagen, 75.5);
    EXPECT_EQ(s.frmConfigura.TexIMGEscala, "75.5");
}

TEST_F(ConfiguracionEnDisco, LosCorrimientosSeLeenComoTexto)
{
    Renglones r = Ejemplo();
    r[19] = "\"7,5\"";
    r[20] = "abc";
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Configuracion.ImagenX0, 7.0F);
    EXPECT_EQ(s.frmConfigura.TexIMGX0, "7");
    EXPECT_EQ(s.Configuracion.ImagenY0, 0.0F);
    EXPECT_EQ(s.frmConfigura.TexIMGY0, "0");
}

TEST_F(ConfiguracionEnDisco, LaEscalaDelDibujoCambiaSuComaPorPunto)
{
    Lee(Con(28, "\"12,5 m\""));
    EXPECT_EQ(s.frmConfigura.txtEscalaImagen, "12.5 m");
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "12.5");
}

TEST_F(ConfiguracionEnDisco, LaEscalaDelDibujoEsUnNumeroDe64Bits)
{
    Lee(Con(28, "\"0.123456789012\""));
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "0.123456789012");  // a 32-bit float would end after 7 digits
}

// --- R 5000 ---

struct CasoR5000 {
    const char* campo500;
    const char* campo5000;
    std::vector<int> lista;
};

TEST_F(ConfiguracionEnDisco, ElCampoDeR5000CaeEnLaBanderaDeR500)
{
    // Recurrencias: R 500 stands at index 9, R 5000 at 12.
    for (const auto& [campo500, campo5000, lista] : std::vector<CasoR5000>{
             {"1", "0", {500}}, {"0", "1", {5000}}, {"1", "1", {500, 5000}}, {"0", "0", {}}}) {
        Renglones r = Ejemplo();
        for (std::size_t i = 28; i < 42; ++i)
            r[i] = "0";
        r[37] = campo500;
        r[40] = campo5000;
        s.Configuracion.CheckR = {};
        Lee(r);
        EXPECT_EQ(s.Configuracion.CheckR[9], std::stoi(campo5000)) << campo500 << campo5000;
        EXPECT_EQ(s.Configuracion.CheckR[12], 0);
        EXPECT_EQ(s.frmConfigura.CheckR[9], std::stoi(campo500));
        EXPECT_EQ(s.frmConfigura.CheckR[12], std::stoi(campo5000));
        EXPECT_EQ(Valores(s.Configuracion.ListaRec), lista);
    }
}

TEST_F(ConfiguracionEnDisco, LaLecturaNoTocaLaBanderaDeR5000)
{
    s.Configuracion.CheckR[12] = 7;
    Lee(Con(41, "1"));
    EXPECT_EQ(s.Configuracion.CheckR[12], 7);
}

TEST_F(ConfiguracionEnDisco, LasCasillasDeR500YR5000VuelvenDelGuardadoComoSeCargaron)
{
    Renglones r = Con(38, "0");
    r[40] = "1";
    Lee(r);
    cmdAplicar(s);
    EXPECT_EQ(Conf(), Junta(r));
    leoConf(s);
    EXPECT_EQ(s.frmConfigura.CheckR[9], 0);
    EXPECT_EQ(s.frmConfigura.CheckR[12], 1);
}

// --- a project that has moved ---

TEST_F(ConfiguracionEnDisco, UnProyectoEnOtraRutaSeReescribeEnElActo)
{
    Lee(Con(9, "\"/antes/aqui\""));
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/proy");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(Conf(), Junta(Ejemplo()));  // fields 8 and 9 tell the present place
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 5U);
    leoConf(s);
    EXPECT_EQ(Avisos().size(), 1U);  // at home from now on
}

TEST_F(ConfiguracionEnDisco, UnaUnidadEscritaEnOtraPlataformaEsUnaMudanza)
{
    Renglones r = Ejemplo();
    r[7] = "\"c: [datos]\"";
    r[8] = "\"C:/proy\"";
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
    EXPECT_EQ(s.Proyecto.DriveProyecto, "c: [datos]");
    EXPECT_EQ(s.frmConfigura.Drive1, "");  // a drive that isn't there leaves the control as it is
    EXPECT_EQ(Conf(), Junta(Ejemplo()));
}

TEST_F(ConfiguracionEnDisco, SinUnidadEnElCampo8RigeLaRuta)
{
    Lee(Con(8, ""));
    EXPECT_EQ(Avisos(), Cajas{});
    Lee(Con(9, "\"/otra\""));
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
}

TEST_F(ConfiguracionEnDisco, LasRutasSeComparanSinSuUnidad)
{
    Lee(Con(9, "\"D:/proy\""));  // the second character is a colon: what stands behind it counts
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Proyecto.DirProyecto, "D:/proy");
}

TEST_F(ConfiguracionEnDisco, SinDosPuntosNadaSeQuitaDeLaRuta)
{
    Lee(Con(9, "\"xxroy\""));  // "/proy" and "xxroy" differ in their first two characters alone
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
}

TEST_F(ConfiguracionEnDisco, LaUnidadSeCuentaEnCaracteres)
{
    Lee(Con(9, "\"\xF1:/proy\""));  // ñ is two bytes in memory
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Proyecto.DirProyecto, "ñ:/proy");
}

TEST_F(ConfiguracionEnDisco, UnDirectorioDeMenosDeDosLetrasSeComparaEntero)
{
    for (const char* const directorio : {"\"\"", "\"/\"", "\":\""}) {
        OlvidaAvisos();
        s.Proyecto.NombreProyecto = "Arroyo";
        Lee(Con(9, directorio));
        EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")}) << directorio;
    }
}

TEST_F(ConfiguracionEnDisco, UnaCopiaQueDiceOtroNombreNoSeReescribeSola)
{
    disco.Pon("/proy/Otro_Conf.vlm", "ajeno");
    Renglones r = Con(1, "\"Otro\"");
    r[8] = "\"/antes\"";
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(disco.Bytes("/proy/Otro_Conf.vlm"), "ajeno");
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_Conf.vlm"), Junta(r));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Otro");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 5U);
}

TEST_F(ConfiguracionEnDisco, AplicarEnUnaCopiaPreguntaAntesDePisarElArchivoDeOtroProyecto)
{
    disco.Pon("/proy/Otro_Conf.vlm", "ajeno");
    Lee(Con(1, "\"Otro\""));
    anfitrion->respuestas = {false, true};
    EXPECT_FALSE(cmdAplicar(s));
    EXPECT_EQ(disco.Bytes("/proy/Otro_Conf.vlm"), "ajeno");
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(disco.Bytes("/proy/Otro_Conf.vlm"), Junta(Con(1, "\"Otro\"")));
    EXPECT_TRUE(cmdAplicar(s));
    const Mensaje pregunta{
        "El archivo /proy/Otro_Conf.vlm ya existe y no es el del proyecto que se abrió. "
        "¿Desea reemplazarlo?",
        "Archivo de otro proyecto", Icono::Exclamacion};
    EXPECT_EQ(anfitrion->Preguntas(), (Cajas{pregunta, pregunta}))
        << "once it is its own it isn't asked about";
}

TEST_F(ConfiguracionEnDisco, AplicarEnElArchivoLeidoONuevoNoPregunta)
{
    Lee(Ejemplo());
    EXPECT_TRUE(cmdAplicar(s));
    s.Proyecto.NombreProyecto = "Nuevo";
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(anfitrion->Preguntas(), Cajas{});
}

TEST_F(ConfiguracionEnDisco, UnaCarpetaQueElArchivoNoPuedeNombrarNoEsUnaMudanza)
{
    // Windows-1252 has the i with its accent and not the alpha: the file says "?" for it.
    disco.PonDirectorio("/río-α");
    s.Proyecto.DirProyecto = "/río-α";
    const std::string bytes = Junta(Con(9, "\"/r\xEDo-?\""));
    disco.Pon("/río-α/Arroyo_Conf.vlm", bytes);
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Proyecto.DirProyecto, "/río-α");
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/río-α");
    EXPECT_EQ(s.frmConfigura.Dir1, "/río-α");
    EXPECT_EQ(disco.Bytes("/río-α/Arroyo_Conf.vlm"), bytes);
}

TEST_F(ConfiguracionEnDisco, DosSeparadoresSonUnoSalvoAlComienzo)
{
    disco.PonDirectorio("/a/b");
    disco.Pon("/a/b/Arroyo_Conf.vlm", Junta(Con(9, "\"/a//b\"")));
    s.Proyecto.DirProyecto = "/a/b";
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(s.Proyecto.DirProyecto, "/a/b");
    disco.Pon("/a/b/Arroyo_Conf.vlm", Junta(Con(9, "\"//a/b\"")));
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/a/b/Arroyo_Conf.vlm")}) << "a network path is another place";
}

TEST_F(ConfiguracionEnDisco, UnNombreQueSaleDeLaCarpetaEsUnArchivoDanado)
{
    for (const char* const nombre : {"../otro/X", "a/b", "a\\b", "..", "a..b", "a\tb", "a\x7F", "a\x81"}) {
        OlvidaAvisos();
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Configuracion.ListaRec.resize(12);
        Lee(Con(1, "\"" + std::string(nombre) + "\""));
        EXPECT_EQ(Avisos(), Cajas{CajaDanado("Arroyo")}) << nombre;
        EXPECT_EQ(s.Proyecto.NombreProyecto, "") << nombre;
        EXPECT_EQ(s.Configuracion.ListaRec.size(), 12U) << nombre;
    }
    for (const char* const nombre : {"Arroyo", "con espacio", "R\xEDo", "a.b"}) {
        OlvidaAvisos();
        s.Proyecto.NombreProyecto = "Arroyo";
        Lee(Con(1, "\"" + std::string(nombre) + "\""));
        EXPECT_EQ(Avisos(), Cajas{}) << nombre;
    }
}

TEST_F(ConfiguracionEnDisco, LaReescrituraGuardaCadaCampoASuManera)
{
    Renglones r = Ejemplo();
    r[8] = "\"/antes\"";
    r[11] = "\"viejo_Conf.vlm\"";
    r[14] = "\"12,5\"";
    r[26] = "\"mil\"";
    r[27] = "\"12,5 m\"";
    Lee(r);
    Renglones nueva = r;
    nueva[8] = "\"/proy\"";
    nueva[14] = "\"12\"";      // the control shows the number
    nueva[27] = "\"12.5 m\"";  // the control's text, its comma a point; 12 and 27 as read
    EXPECT_EQ(Conf(), Junta(nueva));
}

TEST_F(ConfiguracionEnDisco, UnaReescrituraFallidaEsUnaFallaDeLaLectura)
{
    PonConf(Con(9, "\"/antes\""));
    disco.FallaEn(2, NumeroFalla::AccesoRuta);  // 1: the reading
    s.Configuracion.ListaRec.resize(12);
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{CajaAcceso});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 12U);
}

TEST_F(ConfiguracionEnDisco, UnProyectoMudadoSinNombreNoEscribeNada)
{
    Renglones r = Con(1, "\"\"");
    r[8] = "\"/antes\"";
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_EQ(Conf(), Junta(r));
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/proy");
}

// --- failures of the reading ---

TEST_F(ConfiguracionEnDisco, UnArchivoDe58RenglonesEstaDanado)
{
    Renglones r = Ejemplo();
    r.pop_back();
    s.Configuracion.ListaRec.resize(12);
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{CajaDanado("Arroyo")});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Crecidas, del río");  // what was read stays
    EXPECT_EQ(s.Configuracion.CheckD[15], 0);
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 12U);
    EXPECT_EQ(Conf(), Junta(r));
}

TEST_F(ConfiguracionEnDisco, UnArchivoVacioEstaDanadoYNombraAlProyectoEnMemoria)
{
    Lee({});
    EXPECT_EQ(Avisos(), Cajas{CajaDanado("Arroyo")});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
}

TEST_F(ConfiguracionEnDisco, ElAvisoDeDanadoLlevaElNombreDeAdentro)
{
    Lee({"\"Otro\"", "\"titulo\""});
    EXPECT_EQ(Avisos(), Cajas{CajaDanado("Otro")});
    EXPECT_EQ(s.Configuracion.TituloProyecto, "titulo");
}

TEST_F(ConfiguracionEnDisco, UnArchivoDanadoQueSeMudoNoSeReescribe)
{
    Renglones r = Con(9, "\"/antes\"");
    r.pop_back();
    Lee(r);
    EXPECT_EQ(Avisos(), Cajas{CajaDanado("Arroyo")});
    EXPECT_EQ(Conf(), Junta(r));
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/proy");
}

TEST_F(ConfiguracionEnDisco, SinArchivoSeAvisaYElNombreQueda)
{
    s.Configuracion.TituloProyecto = "anterior";
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{CajaNoEsta});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
    EXPECT_EQ(s.Configuracion.TituloProyecto, "anterior");
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
}

TEST_F(ConfiguracionEnDisco, SinDirectorioSeAvisaLaRuta)
{
    s.Proyecto.DirProyecto = "/ido";
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{CajaSinRuta});
}

TEST_F(ConfiguracionEnDisco, UnArchivoIlegibleSeAvisa)
{
    PonConf(Ejemplo());
    disco.FallaEn(1, NumeroFalla::AccesoRuta);
    leoConf(s);
    EXPECT_EQ(Avisos(), Cajas{CajaAcceso});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
}

TEST_F(ConfiguracionEnDisco, UnCampoDeOtroTipoDetieneLaLectura)
{
    s.frmConfigura.TexS = "anterior";
    Lee(Con(13, "\"x\""));
    EXPECT_EQ(Avisos(), Cajas{CajaTipos});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Arroyo_Conf.vlm");  // field 12
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");           // field 14 keeps its value
    EXPECT_EQ(s.frmConfigura.TexS, "anterior");
    EXPECT_EQ(s.Configuracion.ListaRec.size(), 1U);
}

/// What a bad value gives in a field of a class: nothing, or the box of a fault.
struct MalValor {
    const char* valor;
    std::array<const Mensaje*, 6> caja;  ///< by Clase
};

TEST_F(ConfiguracionEnDisco, CadaCampoConTextoEnormeONadaDaSuAviso)
{
    const Mensaje* const no = nullptr;
    const auto valores = std::to_array<MalValor>({
        //            Texto  NumeroEnTexto   SimpleEnTexto   Entero          Simple          Logico
        {"\"x\"", {no, no, no, &CajaTipos, &CajaTipos, &CajaTipos}},
        {"12x", {no, no, no, &CajaTipos, &CajaTipos, &CajaTipos}},
        {"40000", {no, no, no, &CajaDesborde, no, no}},
        {"-99999999", {no, no, no, &CajaDesborde, no, no}},
        {"1E300", {no, no, &CajaDesborde, &CajaDesborde, &CajaDesborde, no}},
        {"1E999", {no, &CajaDesborde, &CajaDesborde, &CajaDesborde, &CajaDesborde, nullptr}},
        {"#TRUE#", {no, no, no, &CajaTipos, &CajaTipos, no}},
        {"", {no, no, no, no, no, no}},
    });
    for (std::size_t campo = 1; campo <= NroCampos; ++campo) {
        if (campo == 8 || campo == 9) continue;  // where they are wrong the project has moved: told above
        for (const MalValor& malo : valores) {
            const Clase clase = ClaseDe(campo);
            if (clase == Clase::Logico && std::string_view(malo.valor) == "1E999") continue;
            ProyectoDePrueba otro;
            const std::string bytes = Junta(Con(campo, malo.valor));
            otro.Pon("_Conf.vlm", bytes);
            leoConf(otro.s);
            const Mensaje* const caja = malo.caja[static_cast<std::size_t>(clase)];
            EXPECT_EQ(otro.Avisos(), caja == nullptr ? Cajas{} : Cajas{*caja}) << campo << ": " << malo.valor;
            EXPECT_EQ(otro.Bytes("_Conf.vlm"), bytes);
            EXPECT_EQ(otro.s.Configuracion.ListaDur.size(),
                      caja == nullptr ? (campo == 43 || campo == 48 || campo == 59 ? 3U : 4U) : 1U)
                << campo << ": " << malo.valor;
        }
    }
}

/// A cut inside a boolean leaves a field that is no boolean; any other cut ends the file early.
bool CortaUnLogico(const std::string& bytes, std::size_t largo)
{
    const std::size_t comienzo = bytes.rfind('\n', largo - 1) + 1;
    return comienzo < largo && bytes[comienzo] == '#' && bytes.find('\r', comienzo) > largo;
}

TEST_F(ConfiguracionEnDisco, ElArchivoCortadoEnCadaByteAvisaUnaVezYNoSeToca)
{
    const std::string bytes = Junta(Ejemplo());
    for (std::size_t largo = 1; largo < bytes.size(); ++largo) {
        ProyectoDePrueba otro;
        otro.Pon("_Conf.vlm", bytes.substr(0, largo));
        leoConf(otro.s);
        ASSERT_EQ(otro.Bytes("_Conf.vlm"), bytes.substr(0, largo));
        if (largo >= bytes.size() - 2) {  // the last field stands whole
            EXPECT_EQ(otro.Avisos(), Cajas{});
        } else if (CortaUnLogico(bytes, largo)) {
            EXPECT_EQ(otro.Avisos(), Cajas{CajaTipos}) << largo;
            EXPECT_EQ(otro.s.Proyecto.NombreProyecto, "Arroyo");
        } else {
            // The name, quoted, is cut from the second byte to the seventh.
            const std::string nombre = largo < 7 ? bytes.substr(1, largo - 1) : "Arroyo";
            EXPECT_EQ(otro.Avisos(), Cajas{CajaDanado(nombre)}) << largo;
            EXPECT_EQ(otro.s.Proyecto.NombreProyecto, "");
        }
    }
}

TEST_F(ConfiguracionEnDisco, UnArchivoBinarioNoHaceDano)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes.push_back(static_cast<char>((i * 7919) % 251));
    Pon("_Conf.vlm", bytes);
    leoConf(s);
    EXPECT_EQ(Avisos().size(), 1U);
}

// --- writing ---

TEST_F(ConfiguracionEnDisco, SinNombreDeProyectoAplicarSoloTomaElDirectorio)
{
    s.Proyecto.NombreProyecto.clear();
    s.Proyecto.ProyectoNuevo = true;
    s.frmConfigura.Dir1 = "/elegido";
    s.frmConfigura.Drive1 = "x:";
    s.frmConfigura.chkImagenDibujo = 1;
    cmdAplicar(s);
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/elegido");
    EXPECT_EQ(s.Proyecto.DriveProyecto, "x:");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(s.frmConfigura.chkImagenDibujo, 1);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_TRUE(disco.Archivos().empty());
    EXPECT_TRUE(s.Proyecto.ProyectoNuevo);
}

TEST_F(ConfiguracionEnDisco, AplicarEscribeLos59CamposDeLosControles)
{
    ControlesConfigura& c = s.frmConfigura;
    c.TextProyecto = "Crecidas, del río";
    c.TextUbica = "Lugar";
    c.TextCuenca = "Cuenca";
    c.TextSbca = "Subcuenca";
    c.TextOpera = "Operador";
    c.txtFecha = "03/04/2011";
    c.Drive1 = UnidadDe("/proy");
    c.Dir1 = "/proy";
    c.TextDirNv = "nuevo";
    c.lblMiArchivoConf = "Arroyo_Conf.vlm";
    c.chkImagenDibujo = 1;
    c.lblImagenDibujo = "/proy/mapa.bmp";
    c.TexIMGEscala = "150";
    c.TexS = "nota";
    c.Optiona = c.Optionc = c.OptionHr = c.Optionm3 = true;
    c.OptionMin = false;
    c.txtMaxUEHsPixel = "900";
    c.txtEscalaImagen = "2.5";
    c.CheckR = {1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1};
    c.CheckD = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    s.Configuracion.ImagenX0 = 12.5F;
    s.Configuracion.ImagenY0 = -3;
    s.Pasos.N0Dur = 45.25F;
    s.Proyecto.ProyectoNuevo = true;
    s.Proyecto.DirProyecto = "/otro";
    cmdAplicar(s);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_Conf.vlm"), Junta(Ejemplo()));
    EXPECT_EQ(Avisos(), Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta("/proy", "Arroyo_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
}

TEST_F(ConfiguracionEnDisco, CorrimientosYN0DurSalenDeLasVariablesYNoDeLosControles)
{
    Lee(Ejemplo());
    s.frmConfigura.TexIMGX0 = s.frmConfigura.TexIMGY0 = s.frmConfigura.txtN0Dur = "777";
    cmdAplicar(s);
    EXPECT_EQ(Conf(), Junta(Ejemplo()));
}

TEST_F(ConfiguracionEnDisco, LaEscalaDeImagenSeEscribeComoElTextoDelControl)
{
    Lee(Ejemplo());
    s.Configuracion.EscalaImagen = 33;
    s.frmConfigura.TexIMGEscala = "80,5";
    cmdAplicar(s);
    EXPECT_EQ(Conf(), Junta(Con(15, "\"80,5\"")));
}

TEST_F(ConfiguracionEnDisco, UnaImagenTildadaSinArchivoSeDestildaAlAplicar)
{
    Lee(Con(14, "\"Ninguno\""));
    cmdAplicar(s);
    EXPECT_EQ(s.frmConfigura.chkImagenDibujo, 0);
    EXPECT_EQ(s.Configuracion.ArchivoImagen, "");
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");
    Renglones r = Con(14, "\"Ninguno\"");
    r[12] = "0";
    EXPECT_EQ(Conf(), Junta(r));
}

TEST_F(ConfiguracionEnDisco, UnaImagenSinTildarConservaSuArchivo)
{
    Lee(Con(13, "0"));
    cmdAplicar(s);
    EXPECT_EQ(s.Configuracion.ArchivoImagen, "/proy/mapa.bmp");
}

TEST_F(ConfiguracionEnDisco, AplicarSinDondeEscribirEsUnaFalla)
{
    s.frmConfigura.Dir1 = "/ido";
    s.Proyecto.ProyectoNuevo = true;
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { cmdAplicar(s); }), 76);
    s.frmConfigura.Dir1 = "/proy";
    disco.FallaEn(2, NumeroFalla::AccesoRuta);  // 1: the look whether another's file is there
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { cmdAplicar(s); }), 75);
    EXPECT_EQ(Avisos(), Cajas{});
    EXPECT_TRUE(s.Proyecto.ProyectoNuevo);
}

TEST_F(ConfiguracionEnDisco, LeerYAplicarDejaLosMismosBytes)
{
    Lee(Ejemplo());
    cmdAplicar(s);
    EXPECT_EQ(Conf(), Junta(Ejemplo()));
}

// --- round trips ---

/// Controls as a user could leave them. Numbers are whole hundredths below 100000: 7 digits tell them.
ControlesConfigura ControlesAlAzar()
{
    ControlesConfigura c;
    for (std::string* texto : {&c.TextProyecto, &c.TextUbica, &c.TextCuenca, &c.TextSbca, &c.TextOpera,
                               &c.txtFecha, &c.TextDirNv, &c.lblMiArchivoConf, &c.TexS, &c.txtMaxUEHsPixel})
        *texto = TextoAlAzar();
    c.Drive1 = UnidadDe("/proy");
    c.Dir1 = "/proy";
    for (std::int16_t* marca : {&c.CheckDistriPp, &c.chkImagenDibujo})
        *marca = *rc::gen::inRange<std::int16_t>(0, 2);
    c.lblImagenDibujo = "mapa.bmp";
    c.TexIMGEscala = std::to_string(*rc::gen::inRange(0, 1001));
    for (bool* opcion :
         {&c.Optiona, &c.Optionb, &c.Optionc, &c.OptionMin, &c.OptionHr, &c.Optionm3, &c.OptionLt})
        *opcion = *rc::gen::arbitrary<bool>();
    c.txtEscalaImagen = std::to_string(*rc::gen::inRange(0, 50001));
    for (std::int16_t& marca : c.CheckR)
        marca = *rc::gen::arbitrary<std::int16_t>();
    for (std::int16_t& marca : c.CheckD)
        marca = *rc::gen::inRange<std::int16_t>(0, 2);
    return c;
}

RC_GTEST_PROP(ConfiguracionIdaYVuelta, LoGuardadoVuelveIgual, ())
{
    ProyectoDePrueba a;
    a.s.frmConfigura = ControlesAlAzar();
    a.s.Pasos.N0Dur = SimpleAlAzar();
    a.s.Configuracion.ImagenX0 = SimpleAlAzar();
    a.s.Configuracion.ImagenY0 = SimpleAlAzar();
    cmdAplicar(a.s);
    const std::string bytes = a.Bytes("_Conf.vlm");

    ProyectoDePrueba b;
    b.Pon("_Conf.vlm", bytes);
    leoConf(b.s);
    RC_ASSERT(b.Avisos().empty());
    RC_ASSERT(b.s.Pasos.N0Dur == a.s.Pasos.N0Dur);
    RC_ASSERT(b.s.Configuracion.ImagenX0 == a.s.Configuracion.ImagenX0);
    RC_ASSERT(b.s.Configuracion.ImagenY0 == a.s.Configuracion.ImagenY0);
    ControlesConfigura leidos = b.s.frmConfigura;
    leidos.TexIMGX0 = a.s.frmConfigura.TexIMGX0;  // shown by the reader, not in the file
    leidos.TexIMGY0 = a.s.frmConfigura.TexIMGY0;
    leidos.txtN0Dur = a.s.frmConfigura.txtN0Dur;
    RC_ASSERT(leidos == a.s.frmConfigura);

    cmdAplicar(b.s);
    RC_ASSERT(b.Bytes("_Conf.vlm") == bytes);
}

// --- the disk gives way ---

TEST(ConfiguracionSinDisco, CadaLlamadaQueFallaDaSuAvisoYNadaMas)
{
    bool hubo = true;
    int llamada = 0;
    while (hubo) {
        ++llamada;
        ASSERT_LT(llamada, 20);
        ProyectoDePrueba p;
        p.Pon("_Conf.vlm", Junta(Con(9, "\"/antes\"")));
        p.disco.FallaEn(llamada, NumeroFalla::AccesoRuta);
        leoConf(p.s);
        hubo = p.disco.HuboFalla();
        EXPECT_EQ(p.Avisos(), hubo ? Cajas{CajaAcceso} : Cajas{CajaGuardado("/proy/Arroyo_Conf.vlm")});
        EXPECT_EQ(p.s.Proyecto.NombreProyecto, "Arroyo");
    }
    EXPECT_GE(llamada, 3);  // a reading and at least one writing
}

}  // namespace
