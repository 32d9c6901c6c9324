// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmConfigura.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivoConf.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

namespace shell {
namespace {

using model::Mensaje;
using model::Ruta;
using model::UnidadDe;
using Textos = std::vector<std::string>;

const Mensaje EntreDiezYTreintaMil{"Ingrese un valor numérico entre 10 y 30000"};
const Mensaje Guardado{
    "Los datos de configuración del proyecto se han guardado correctamente en el archivo "
    "/proy/Mio_Conf.vlm"};
const Mensaje YaHayDirectorio{"Verifique. Puede que ya exista un Directorio con ese nombre..."};
const Mensaje SinAcceso{"Error Nro. 75 ,Error de acceso a la ruta o al archivoVerifique"};
const Mensaje SinRuta{"Error Nro. 76 ,No se encontró la ruta de accesoVerifique"};

/// The project "Mio" in /proy, with its configuration stored; beside it another's, an image and a text.
class Configura : public testing::Test {
  protected:
    Configura()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = "/siro";
        s.Proyecto.DirProyecto = "/proy";
        f.DirPersonal = "/casas/ana";
        disco.PonDirectorio("/siro");
        disco.PonDirectorio("/casas/ana");
        disco.PonDirectorio("/otro");
        for (const char* proyecto : {"Otro", "Mio"}) {
            s.Proyecto.NombreProyecto = proyecto;
            s.frmConfigura.Dir1 = "/proy";
            s.frmConfigura.Drive1 = UnidadDe("/proy");
            s.frmConfigura.lblMiArchivoConf = std::string(proyecto) + "_Conf.vlm";
            s.frmConfigura.TextProyecto = std::string("Crecidas de ") + proyecto;
            disco.PonDirectorio("/proy");
            model::cmdAplicar(s);
        }
        disco.Pon("/proy/mapa.jpg", "x");
        disco.Pon("/proy/notas.txt", "x");
        anfitrion->sucesos.clear();
        Abre(f, s);
    }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }
    /// Types into a field and leaves it.
    bool Deja(const char* control, std::string model::ControlesConfigura::*texto, const char* valor)
    {
        s.frmConfigura.*texto = valor;
        return AlSalir(s, control);
    }
    void PulsaArchivo(const std::string& nombre)
    {
        f.filArchivoConfigura.items = {nombre};
        f.filArchivoConfigura.indice = 0;
        filArchivoConfigura_Click(f, s);
    }
    void PulsaImagen(const std::string& nombre)
    {
        f.filArchivoImagenDib.items = {nombre};
        f.filArchivoImagenDib.indice = 0;
        filArchivoImagenDib_Click(f, s);
    }

    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    frmConfigura f;
};

using C = model::ControlesConfigura;

// --- texts ---

TEST(TextosDeConfigura, EstanLetraPorLetra)
{
    EXPECT_EQ(TituloConfigura, "Configurar");
    EXPECT_EQ(FichasConfigura[0], "Seleccione el Directorio y Archivos de trabajo");
    EXPECT_EQ(FichasConfigura[1], "Ingrese los títulos del proyecto para la redacción de informes");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "BtnDefecto").leyenda, "Configurar  por defecto");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "BtnDirNv").leyenda, "Crear");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "BtnRecuDef").leyenda, "Selección por defecto");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "BtnDurDef").leyenda, "Selección por defecto");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "CheckDistriPp").leyenda, "Distribución Areal de Lluvias Uniforme");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "OKButton").leyenda, "Aceptar");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "cmdAplicar").leyenda, "Aplicar");
    EXPECT_EQ(RotuloDe(RotulosConfigura, "CancelButton").leyenda, "Cancelar");
}

TEST(TextosDeConfigura, CadaControlTieneUnNombrePropio)
{
    std::set<std::string_view> nombres;
    for (const forms::FilaRotulo& fila : RotulosConfigura)
        EXPECT_TRUE(nombres.insert(fila.control).second) << fila.control;
    for (const OpcionConfigura& fila : OpcionesConfigura)
        EXPECT_TRUE(nombres.insert(fila.control).second) << fila.control;
}

// --- opening ---

TEST_F(Configura, AlAbrirMuestraElProyectoSuDirectorioYLosArchivos)
{
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(s.frmConfigura.Drive1, UnidadDe("/proy"));
    EXPECT_EQ(f.filArchivoConfigura.items, (Textos{"Mio_Conf.vlm", "Otro_Conf.vlm"}));
    EXPECT_EQ(f.filArchivoImagenDib.items,
              (Textos{"Mio_Conf.vlm", "Otro_Conf.vlm", "mapa.jpg", "notas.txt"}));
    EXPECT_EQ(f.lblnombreproyecto, "Mio");
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Mio_Conf.vlm");
    EXPECT_EQ(f.SSTab1, 0);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, AlAbrirSinProyectoLosRotulosQuedan)
{
    s.Proyecto.NombreProyecto.clear();
    Abre(f, s);
    EXPECT_EQ(f.lblnombreproyecto, "Mio");
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Mio_Conf.vlm");
}

TEST_F(Configura, AlAbrirVuelveALaPrimeraFichaYAlDirectorioEnUso)
{
    f.SSTab1 = 2;
    Dir1_Change(f, s, "/otro");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");  // picked, not applied
    Abre(f, s);
    EXPECT_EQ(f.SSTab1, 0);
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
}

TEST_F(Configura, AlAbrirElNombreDelDirectorioNuevoSeVaciaSinSuTilde)
{
    s.frmConfigura.TextDirNv = "resto";
    f.CheckDirNv = true;
    Abre(f, s);
    EXPECT_EQ(s.frmConfigura.TextDirNv, "resto");
    f.CheckDirNv = false;
    Abre(f, s);
    EXPECT_EQ(s.frmConfigura.TextDirNv, "");
}

TEST_F(Configura, UnDirectorioQueYaNoEstaNoListaNada)
{
    s.Proyecto.DirProyecto = "/ausente";
    Abre(f, s);
    EXPECT_TRUE(f.filArchivoConfigura.items.empty());
    EXPECT_TRUE(f.filArchivoImagenDib.items.empty());
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, UnProyectoNuevoSeGuardaAlAbrirYMuestraLaFichaDeImagen)
{
    s.Proyecto.NombreProyecto = "Nuevo";
    s.Proyecto.DirProyectoConf = "/proy";
    s.Proyecto.ProyectoNuevo = true;
    Abre(f, s);
    EXPECT_TRUE(disco.Esta("/proy/Nuevo_Conf.vlm"));
    EXPECT_EQ(
        Avisos(),
        (std::vector<Mensaje>{{"Los datos de configuración del proyecto se han guardado correctamente en el "
                               "archivo /proy/Nuevo_Conf.vlm"}}));
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
    EXPECT_EQ(f.SSTab1, FichaImagen);
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Nuevo_Conf.vlm");
    ASSERT_GE(f.filArchivoConfigura.indice, 0);
    EXPECT_EQ(f.filArchivoConfigura.items[static_cast<std::size_t>(f.filArchivoConfigura.indice)],
              "Nuevo_Conf.vlm");
    EXPECT_TRUE(f.abierta);
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
    // The next opening is an ordinary one.
    Abre(f, s);
    EXPECT_EQ(f.SSTab1, 0);
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(Configura, UnProyectoNuevoQueNoSePuedeGuardarLoDiceYSigueNuevo)
{
    s.Proyecto.NombreProyecto = "Nuevo";
    s.Proyecto.DirProyectoConf = "/proy";
    s.Proyecto.ProyectoNuevo = true;
    disco.Protege("/proy");
    Abre(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinAcceso});
    EXPECT_TRUE(s.Proyecto.ProyectoNuevo);
    EXPECT_TRUE(f.abierta);
}

TEST_F(Configura, AlActivarseLasListasDicenLoQueHayAhora)
{
    f.filArchivoConfigura.indice = 1;
    disco.Pon("/proy/Aaa_Conf.vlm", "x");
    AlActivarse(f, s);
    EXPECT_EQ(f.filArchivoConfigura.items, (Textos{"Aaa_Conf.vlm", "Mio_Conf.vlm", "Otro_Conf.vlm"}));
    EXPECT_EQ(f.filArchivoConfigura.indice, 2);  // the same file
    disco.Quita("/proy/Otro_Conf.vlm");
    AlActivarse(f, s);
    EXPECT_EQ(f.filArchivoConfigura.indice, -1);
}

// --- directories ---

TEST_F(Configura, LasListasSiguenAlDirectorioElegido)
{
    disco.Pon("/otro/x_Conf.vlm", "");
    disco.Pon("/otro/y_CONF.VLM", "");
    disco.Pon("/otro/zConf.vlm", "");
    disco.Pon("/otro/Conf.txt", "");
    Dir1_Change(f, s, "/otro");
    EXPECT_EQ(s.frmConfigura.Dir1, "/otro");
    EXPECT_EQ(f.filArchivoConfigura.items, (Textos{"x_Conf.vlm", "y_CONF.VLM", "zConf.vlm"}));
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
}

TEST_F(Configura, UnDirectorioQueNoEstaAvisaYQuedaElDeAntes)
{
    Dir1_Change(f, s, "/ausente");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinRuta});
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(f.filArchivoConfigura.items.size(), 2U);
}

TEST_F(Configura, UnaUnidadEsSuRaiz)
{
    const std::string raiz(1, model::Separador);
    Drive1_Change(f, s, "");
    EXPECT_EQ(s.frmConfigura.Dir1, raiz);
    EXPECT_TRUE(Avisos().empty());
    Drive1_Change(f, s, "Z:");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinRuta});
    EXPECT_EQ(s.frmConfigura.Dir1, raiz);
}

/// Where the two directories are made: the user's own folder, on Windows the disk C.
const std::string Arriba = model::HayUnidades ? "c:" : "/casas/ana";
const std::string PorDefecto = Ruta(Ruta(Arriba, "SIRO"), "Proyectos");

TEST_F(Configura, ConfigurarPorDefectoCreaSusDosDirectoriosYEligeElDeProyectos)
{
    disco.PonDirectorio(Arriba);
    s.frmConfigura.CheckDistriPp = 0;
    f.CheckDirNv = true;
    BtnDefecto(f, s);
    EXPECT_TRUE(s.Disco.HayDirectorio(PorDefecto));
    EXPECT_EQ(s.frmConfigura.Dir1, PorDefecto);
    EXPECT_EQ(s.Proyecto.DirProyecto, PorDefecto);
    EXPECT_EQ(s.frmConfigura.Drive1, model::HayUnidades ? "C: [Disco C]" : "");
    EXPECT_EQ(s.frmConfigura.CheckDistriPp, 1);
    EXPECT_FALSE(f.CheckDirNv);
    EXPECT_TRUE(f.filArchivoConfigura.items.empty());
    EXPECT_TRUE(Avisos().empty());
    // With both there, the same without a word.
    Abre(f, s);
    BtnDefecto(f, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Proyecto.DirProyecto, PorDefecto);
}

TEST_F(Configura, ConfigurarPorDefectoSinPermisoAvisaYNadaCambia)
{
    disco.PonDirectorio(Arriba);
    disco.Protege(Arriba);
    s.frmConfigura.CheckDistriPp = 0;
    BtnDefecto(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinAcceso});
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(s.frmConfigura.CheckDistriPp, 0);
}

TEST_F(Configura, SinLaTildeElNombreDelDirectorioNuevoSeVacia)
{
    CheckDirNv_Click(f, s, true);
    EXPECT_TRUE(f.CheckDirNv);
    s.frmConfigura.TextDirNv = "cuencas";
    CheckDirNv_Click(f, s, false);
    EXPECT_FALSE(f.CheckDirNv);
    EXPECT_EQ(s.frmConfigura.TextDirNv, "");
}

TEST_F(Configura, CrearHaceElDirectorioDentroDelElegidoYPasaAEl)
{
    s.frmConfigura.TextDirNv = "cuencas";
    BtnDirNv(f, s);
    EXPECT_TRUE(s.Disco.HayDirectorio("/proy/cuencas"));
    EXPECT_EQ(s.frmConfigura.Dir1, Ruta("/proy", "cuencas"));
    EXPECT_EQ(s.Proyecto.DirProyecto, Ruta("/proy", "cuencas"));
    EXPECT_TRUE(f.filArchivoImagenDib.items.empty());
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, CrearEnLaRaizNoDoblaElSeparador)
{
    const std::string raiz(1, model::Separador);
    Dir1_Change(f, s, raiz);
    s.frmConfigura.TextDirNv = "cuencas";
    BtnDirNv(f, s);
    EXPECT_EQ(s.frmConfigura.Dir1, raiz + "cuencas");
}

TEST_F(Configura, CrearUnDirectorioQueExisteLoDiceYNadaCambia)
{
    disco.PonDirectorio("/proy/cuencas");
    for (const char* nombre : {"cuencas", ""}) {
        s.frmConfigura.TextDirNv = nombre;
        anfitrion->sucesos.clear();
        BtnDirNv(f, s);
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{YaHayDirectorio}) << nombre;
        EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    }
}

TEST_F(Configura, CrearSinPermisoDaElErrorYNadaCambia)
{
    disco.Protege("/proy");
    s.frmConfigura.TextDirNv = "cuencas";
    BtnDirNv(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinAcceso});
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
}

// --- files ---

TEST_F(Configura, UnArchivoDeConfiguracionCargaSuProyecto)
{
    f.filArchivoConfigura.indice = 1;
    filArchivoConfigura_Click(f, s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Otro");
    EXPECT_EQ(s.frmConfigura.TextProyecto, "Crecidas de Otro");
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Otro_Conf.vlm");
    EXPECT_EQ(f.lblnombreproyecto, "Otro");
    EXPECT_EQ(f.filArchivoConfigura.indice, 1);
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{{"Se han cargado los datos de configuración del archivo "
                                               "Otro_Conf.vlm del proyecto Otro"}}));
}

TEST_F(Configura, ElDirectorioEnUsoCambiaAlPulsarUnArchivoDeConfiguracion)
{
    disco.Pon("/otro/Otro_Conf.vlm", disco.Bytes("/proy/Otro_Conf.vlm"));
    Dir1_Change(f, s, "/otro");
    f.filArchivoConfigura.indice = 0;
    filArchivoConfigura_Click(f, s);
    EXPECT_EQ(s.Proyecto.DirProyecto, "/otro");
    // The file says /proy: the project has moved and is stored anew.
    ASSERT_EQ(Avisos().size(), 2U);
    EXPECT_TRUE(Avisos()[0].texto.ends_with("/otro/Otro_Conf.vlm"));
}

TEST_F(Configura, UnNombreSinGuionEsTambienUnProyecto)
{
    PulsaArchivo("MioConf.vlm");
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{
                            {"Se han cargado los datos de configuración del archivo MioConf.vlm del proyecto "
                             "Mio"}}));
}

TEST_F(Configura, UnArchivoConOtroFinalSeRechaza)
{
    for (const char* archivo : {"Mio_conf.vlm", "Mio_Conf.VLM", "mapa.jpg"}) {
        anfitrion->sucesos.clear();
        PulsaArchivo(archivo);
        EXPECT_EQ(
            Avisos(),
            (std::vector<Mensaje>{{std::string("El archivo ") + archivo +
                                   " no es un archivo de configuración válido. Los archivos de configuración "
                                   "tienen el formato nnConf.vlm, donde nn es el nombre del proyecto"}}));
        EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "debe cargar el archivo Conf.");
        EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
    }
}

TEST_F(Configura, SinArchivoElegidoElClicNoHaceNada)
{
    filArchivoConfigura_Click(f, s);
    filArchivoImagenDib_Click(f, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");
}

TEST_F(Configura, LasCuatroTerminacionesDeImagenPasanConSuRutaEntera)
{
    for (const char* archivo :
         {"mapa.jpg", "mapa.gif", "mapa.bmp", "mapa.wmf", "MAPA.JPG", "mapa.Gif", "MAPA.BMP", "Mapa.WMF"}) {
        PulsaImagen(archivo);
        EXPECT_EQ(s.frmConfigura.lblImagenDibujo, Ruta("/proy", archivo));
    }
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, OtraTerminacionNoEsImagen)
{
    for (const char* archivo : {"mapa.png", "mapajpg", "notas.txt"}) {
        s.frmConfigura.lblImagenDibujo = "/proy/mapa.jpg";
        anfitrion->sucesos.clear();
        PulsaImagen(archivo);
        EXPECT_EQ(
            Avisos(),
            (std::vector<Mensaje>{{std::string("El archivo ") + archivo +
                                   " no es un archivo de Imágen válido. Los archivos de Imágen son extensión "
                                   ".bmp .gif .jpg y.wmf"}}));
        EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");
    }
}

// --- an image in another folder ---

struct ImagenAfuera : Configura {
    ImagenAfuera()
    {
        disco.Pon("/otro/foto.JPG", "foto");
        disco.Pon("/proy/Mio_UEHs.vlm", "red");
        chkImagenDibujo_Click(s, true);
        Dir1_Change(f, s, "/otro");
        PulsaImagen("foto.JPG");
    }
};

TEST_F(ImagenAfuera, LaLineaDiceLoQuePasaraYLaTeclaTraeLaImagen)
{
    EXPECT_EQ(AvisoImagen(f, s),
              "La imagen está en otra carpeta. Al aplicar, el proyecto pasa a /otro, donde no tiene red.");
    cmdTraeImagen(f, s);
    EXPECT_EQ(AvisoImagen(f, s), "");
    EXPECT_EQ(disco.Bytes("/proy/foto.JPG"), "foto");
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, Ruta("/proy", "foto.JPG"));
    EXPECT_EQ(s.frmConfigura.Dir1, "/proy");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    cmdAplicar(f, s);
    EXPECT_FALSE(disco.Esta("/otro/Mio_Conf.vlm"));
    EXPECT_NE(disco.Bytes("/proy/Mio_Conf.vlm").find("\"" + Ruta("/proy", "foto.JPG") + "\""),
              std::string::npos);
}

TEST_F(ImagenAfuera, DespuesDeAplicarDiceLoQuePasoYLaTeclaVuelve)
{
    OKButton(f, s);
    ASSERT_EQ(s.Proyecto.DirProyecto, "/otro");
    ASSERT_TRUE(disco.Esta("/otro/Mio_Conf.vlm"));
    Abre(f, s);
    EXPECT_EQ(AvisoImagen(f, s), "El proyecto pasó a la carpeta de su imagen, /otro. Su red quedó en /proy");
    anfitrion->sucesos.clear();
    anfitrion->rotulosProyecto = 0;
    cmdTraeImagen(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Guardado});
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{}) << "it is the project's own file";
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(disco.Bytes("/proy/foto.JPG"), "foto");
    EXPECT_NE(disco.Bytes("/proy/Mio_Conf.vlm").find("\"" + Ruta("/proy", "foto.JPG") + "\""),
              std::string::npos);
    EXPECT_FALSE(disco.Esta("/otro/Mio_Conf.vlm")) << "what the move had made";
    EXPECT_TRUE(disco.Esta("/otro/foto.JPG"));
    EXPECT_EQ(AvisoImagen(f, s), "");
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
}

TEST_F(ImagenAfuera, UnaConfiguracionQueYaEstabaAllaSeQueda)
{
    disco.Pon("/otro/Mio_Conf.vlm", "de antes");
    anfitrion->respuestas = {true};  // over that one
    cmdAplicar(f, s);
    ASSERT_EQ(s.Proyecto.DirProyecto, "/otro");
    cmdTraeImagen(f, s);
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_TRUE(disco.Esta("/otro/Mio_Conf.vlm"));
}

TEST_F(ImagenAfuera, OtraImagenDelMismoNombreNoSePisaSinPreguntar)
{
    disco.Pon("/proy/foto.JPG", "otra foto");
    anfitrion->respuestas = {false, true};
    cmdTraeImagen(f, s);
    EXPECT_EQ(disco.Bytes("/proy/foto.JPG"), "otra foto");
    EXPECT_EQ(s.frmConfigura.Dir1, "/otro");
    EXPECT_EQ(anfitrion->Preguntas(),
              (std::vector<Mensaje>{
                  {"En la carpeta del proyecto ya hay otro archivo foto.JPG. ¿Desea reemplazarlo?",
                   "Imagen de fondo", model::Icono::Exclamacion}}));
    cmdTraeImagen(f, s);
    EXPECT_EQ(disco.Bytes("/proy/foto.JPG"), "foto");
}

TEST_F(ImagenAfuera, SinEspacioElProyectoQuedaDondeEsta)
{
    cmdAplicar(f, s);
    disco.Protege("/proy");
    anfitrion->sucesos.clear();
    cmdTraeImagen(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinAcceso});
    EXPECT_EQ(s.Proyecto.DirProyecto, "/otro");
    EXPECT_NE(AvisoImagen(f, s), "");
}

TEST_F(ImagenAfuera, UnaImagenDeLaCarpetaDelProyectoNoDiceNada)
{
    Dir1_Change(f, s, "/proy");
    PulsaImagen("mapa.jpg");
    EXPECT_EQ(AvisoImagen(f, s), "");
    Dir1_Change(f, s, "/otro");
    EXPECT_EQ(AvisoImagen(f, s), "") << "the project moves, but not for its image";
    cmdAplicar(f, s);
    EXPECT_EQ(AvisoImagen(f, s), "");
}

// --- a drawing that isn't saved ---

TEST_F(Configura, LoQueElDibujoDetieneNoCambiaNiProyectoNiCarpeta)
{
    std::vector<model::Riesgo> riesgos;
    s.Anfitrion.ResguardaDibujo = [&](model::Riesgo riesgo) {
        riesgos.push_back(riesgo);
        return false;
    };
    PulsaArchivo("Otro_Conf.vlm");
    EXPECT_EQ(riesgos, std::vector<model::Riesgo>{model::Riesgo::OtroProyecto});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
    PulsaArchivo("Mio_Conf.vlm");
    EXPECT_EQ(riesgos.size(), 1U) << "its own file is no other project";
    const Textos antes = disco.Archivos();
    BtnDefecto(f, s);
    s.frmConfigura.TextDirNv = "nueva";
    BtnDirNv(f, s);
    Dir1_Change(f, s, "/otro");
    cmdAplicar(f, s);
    f.abierta = true;
    OKButton(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(riesgos.size(), 5U);
    EXPECT_EQ(riesgos.back(), model::Riesgo::MueveProyecto);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_FALSE(s.Disco.HayDirectorio("/proy/nueva"));
}

TEST_F(Configura, AceptarSinPisarElArchivoDeOtroSigueAbierto)
{
    disco.Pon("/otro/Mio_Conf.vlm", "ajeno");
    Dir1_Change(f, s, "/otro");
    anfitrion->respuestas = {false};
    OKButton(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(disco.Bytes("/otro/Mio_Conf.vlm"), "ajeno");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
}

TEST_F(Configura, ElCandadoDeUnProyectoNoEstaEntreLasImagenes)
{
    disco.Pon("/proy/.Mio_Conf.vlm.lock", "");
    AlActivarse(f, s);
    EXPECT_EQ(f.filArchivoImagenDib.items,
              (Textos{"Mio_Conf.vlm", "Otro_Conf.vlm", "mapa.jpg", "notas.txt"}));
}

TEST_F(Configura, SinLaTildeNoHayImagen)
{
    chkImagenDibujo_Click(s, true);
    EXPECT_TRUE(HayImagen(s));
    s.frmConfigura.lblImagenDibujo = "/proy/mapa.jpg";
    chkImagenDibujo_Click(s, false);
    EXPECT_FALSE(HayImagen(s));
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");
}

// --- fields ---

TEST_F(Configura, ElZoomSeRecortaSinMensaje)
{
    struct Caso {
        const char* tecleado;
        const char* texto;
        double escala;
    };
    for (const Caso& caso : {Caso{"1500", "1000", 1000}, Caso{"1000.1", "1000", 1000},
                             Caso{"1000", "1000", 1000}, Caso{"0", "0", 0}, Caso{"-3", "0", 0},
                             Caso{"x", "0", 0}, Caso{"0.5", "0.5", 0.5}, Caso{"12,5", "12,5", 12}}) {
        EXPECT_TRUE(Deja("TexIMGEscala", &C::TexIMGEscala, caso.tecleado));
        EXPECT_EQ(s.frmConfigura.TexIMGEscala, caso.texto) << caso.tecleado;
        EXPECT_EQ(s.Configuracion.EscalaImagen, caso.escala) << caso.tecleado;
    }
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, ElCorrimientoSeRecortaAlTamanoDelDibujo)
{
    s.Configuracion.MaxUEHsPixel = "600";
    struct Caso {
        const char* tecleado;
        const char* texto;
        float x;
    };
    for (const Caso& caso : {Caso{"599", "599", 599}, Caso{"599.5", "600", 600}, Caso{"9999", "600", 600},
                             Caso{"-700", "-700", -700}, Caso{"12.25", "12.25", 12.25F}}) {
        EXPECT_TRUE(Deja("TexIMGX0", &C::TexIMGX0, caso.tecleado));
        EXPECT_TRUE(Deja("TexIMGY0", &C::TexIMGY0, caso.tecleado));
        EXPECT_EQ(s.frmConfigura.TexIMGX0, caso.texto) << caso.tecleado;
        EXPECT_EQ(s.frmConfigura.TexIMGY0, caso.texto) << caso.tecleado;
        EXPECT_EQ(s.Configuracion.ImagenX0, caso.x) << caso.tecleado;
        EXPECT_EQ(s.Configuracion.ImagenY0, caso.x) << caso.tecleado;
    }
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, SinTamanoDelDibujoElCorrimientoLlegaA800)
{
    for (const char* tamano : {"", "0", "-5", "x"}) {
        s.Configuracion.MaxUEHsPixel = tamano;
        Deja("TexIMGX0", &C::TexIMGX0, "5000");
        EXPECT_EQ(s.Configuracion.ImagenX0, 800) << tamano;
        EXPECT_EQ(s.frmConfigura.TexIMGX0, "800") << tamano;
    }
}

TEST_F(Configura, UnNumeroQueNoCabeSeAvisaYNoCambiaNada)
{
    s.Configuracion.ImagenX0 = 7;
    Deja("TexIMGX0", &C::TexIMGX0, "-1e39");
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique"}}));
    EXPECT_EQ(s.Configuracion.ImagenX0, 7);
}

TEST_F(Configura, LaEscalaVaDe0A50000YSuMensajeHablaDeOtrosLimites)
{
    struct Caso {
        const char* tecleado;
        bool pasa;
        const char* escala;
    };
    for (const Caso& caso :
         {Caso{"5", true, "5"}, Caso{"0", true, "0"}, Caso{"50000", true, "50000"},
          Caso{"12,5", true, "12.5"}, Caso{"50000.1", false, "3"}, Caso{"60000", false, "3"},
          Caso{"-1", false, "3"}, Caso{"", false, "3"}, Caso{"12x", false, "3"}}) {
        s.Configuracion.EscalaDibujo = "3";
        anfitrion->sucesos.clear();
        EXPECT_EQ(Deja("txtEscalaImagen", &C::txtEscalaImagen, caso.tecleado), caso.pasa) << caso.tecleado;
        EXPECT_EQ(s.Configuracion.EscalaDibujo, caso.escala) << caso.tecleado;
        EXPECT_EQ(Avisos(), caso.pasa ? std::vector<Mensaje>{} : std::vector<Mensaje>{EntreDiezYTreintaMil})
            << caso.tecleado;
    }
    EXPECT_EQ(s.frmConfigura.txtEscalaImagen, "12x");
}

TEST_F(Configura, ElTiempoAgregadoVaDe10A30000YSeGuardaSinAplicar)
{
    struct Caso {
        const char* tecleado;
        bool pasa;
        float tiempo;
    };
    for (const Caso& caso : {Caso{"10", true, 10}, Caso{"30000", true, 30000}, Caso{"45,25", true, 45.25F},
                             Caso{"9.99", false, 77}, Caso{"30000.5", false, 77}, Caso{"", false, 77},
                             Caso{"diez", false, 77}}) {
        s.Pasos.N0Dur = 77;
        anfitrion->sucesos.clear();
        EXPECT_EQ(Deja("txtN0Dur", &C::txtN0Dur, caso.tecleado), caso.pasa) << caso.tecleado;
        EXPECT_EQ(s.Pasos.N0Dur, caso.tiempo) << caso.tecleado;
        EXPECT_EQ(Avisos(), caso.pasa ? std::vector<Mensaje>{} : std::vector<Mensaje>{EntreDiezYTreintaMil})
            << caso.tecleado;
    }
    EXPECT_TRUE(Deja("txtN0Dur", &C::txtN0Dur, "12,5"));
    EXPECT_EQ(s.frmConfigura.txtN0Dur, "12.5");
}

TEST_F(Configura, ElAnchoDelDibujoNoPasaDe1024AlCambiarNiAlSalir)
{
    for (const char* tecleado : {"1025", "10245", "1024.5"}) {
        s.frmConfigura.txtMaxUEHsPixel = tecleado;
        AlSalir(s, "txtMaxUEHsPixel");
        EXPECT_EQ(s.frmConfigura.txtMaxUEHsPixel, "1024") << tecleado;
        EXPECT_TRUE(Deja("txtMaxUEHsPixel", &C::txtMaxUEHsPixel, tecleado));
        EXPECT_EQ(s.frmConfigura.txtMaxUEHsPixel, "1024") << tecleado;
    }
    for (const char* tecleado : {"1024", "700", "", "x"}) {
        s.frmConfigura.txtMaxUEHsPixel = tecleado;
        AlSalir(s, "txtMaxUEHsPixel");
        EXPECT_EQ(s.frmConfigura.txtMaxUEHsPixel, tecleado);
    }
    EXPECT_EQ(s.Configuracion.MaxUEHsPixel, "800");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Configura, UnControlSinReglaSeDejaSinMas)
{
    EXPECT_TRUE(AlSalir(s, "TextProyecto"));
}

TEST_F(Configura, ElDobleClicPoneLaFechaDeHoy)
{
    txtFecha_DblClick(s);
    EXPECT_EQ(s.frmConfigura.txtFecha, "03/04/2011");
}

// --- boxes and options ---

TEST_F(Configura, DeLasOpcionesDeUnaPreguntaHayUnaMarcada)
{
    const auto marcadas = [this] {
        std::string nombres;
        for (const OpcionConfigura& opcion : OpcionesConfigura)
            if (s.frmConfigura.*opcion.marcada) nombres.append(opcion.control).append(" ");
        return nombres;
    };
    EXPECT_EQ(marcadas(), "Optiona OptionMin Optionm3 ");
    Opcion_Click(s, 2);
    Opcion_Click(s, 4);
    EXPECT_EQ(marcadas(), "Optionc OptionHr Optionm3 ");
    Opcion_Click(s, 6);
    Opcion_Click(s, 1);
    EXPECT_EQ(marcadas(), "Optionb OptionHr OptionLt ");
}

TEST_F(Configura, UnaCasillaSeVeTildadaSoloConUnUno)
{
    std::int16_t casilla = 2;
    EXPECT_FALSE(Tildada(casilla));
    Casilla_Click(casilla, true);
    EXPECT_EQ(casilla, 1);
    EXPECT_TRUE(Tildada(casilla));
    Casilla_Click(casilla, false);
    EXPECT_EQ(casilla, 0);
}

// --- commands ---

TEST_F(Configura, AplicarGuardaEnElDirectorioElegidoYSigueAbierto)
{
    Dir1_Change(f, s, "/otro");
    cmdAplicar(f, s);
    EXPECT_TRUE(disco.Esta("/otro/Mio_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.DirProyecto, "/otro");
    EXPECT_EQ(f.filArchivoConfigura.items, Textos{"Mio_Conf.vlm"});
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(anfitrion->rotulosProyecto, 0);
}

TEST_F(Configura, AceptarGuardaCierraYRefrescaLosRotulos)
{
    OKButton(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Guardado});
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
}

TEST_F(Configura, AceptarSinProyectoNoEscribeNingunArchivo)
{
    s.Proyecto.NombreProyecto.clear();
    const Textos antes = disco.Archivos();
    OKButton(f, s);
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "/proy");
}

TEST_F(Configura, AceptarSinPoderEscribirAvisaYSigueAbierto)
{
    disco.Protege("/proy");
    OKButton(f, s);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinAcceso});
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(anfitrion->rotulosProyecto, 0);
    cmdAplicar(f, s);
    EXPECT_EQ(Avisos().size(), 2U);
}

TEST_F(Configura, UnaImagenTildadaSinArchivoSeDestildaAlAplicar)
{
    chkImagenDibujo_Click(s, true);
    cmdAplicar(f, s);
    EXPECT_FALSE(HayImagen(s));
    EXPECT_EQ(s.frmConfigura.lblImagenDibujo, "Ninguno");
}

TEST_F(Configura, CancelarNoTocaElArchivoYLoTomadoDeUnCampoQueda)
{
    const std::string antes = disco.Bytes("/proy/Mio_Conf.vlm");
    Deja("txtN0Dur", &C::txtN0Dur, "90");
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(disco.Bytes("/proy/Mio_Conf.vlm"), antes);
    EXPECT_EQ(s.Pasos.N0Dur, 90);
    model::leoConf(s);
    EXPECT_EQ(s.Pasos.N0Dur, 10);
}

TEST_F(Configura, SinAplicarEstaLoQueElArchivoNoTiene)
{
    EXPECT_FALSE(SinAplicar(f, s));
    Dir1_Change(f, s, "/otro");  // a look around is no work
    Dir1_Change(f, s, "/proy");
    EXPECT_FALSE(SinAplicar(f, s));
    Deja("txtN0Dur", &C::txtN0Dur, "90");  // in use, and not in the file
    EXPECT_TRUE(SinAplicar(f, s));
    cmdAplicar(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    s.frmConfigura.TextOpera = "Ana";
    EXPECT_TRUE(SinAplicar(f, s));
    disco.FallaDesde(1, model::NumeroFalla::AccesoRuta);
    cmdAplicar(f, s);
    EXPECT_TRUE(SinAplicar(f, s));
    disco.DejaDeFallar();
    AlCargarProyecto(f, s);  // still the same one
    EXPECT_TRUE(SinAplicar(f, s));
    s.Proyecto.NombreProyecto = "Otro";
    model::leoConf(s);
    AlCargarProyecto(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    s.frmConfigura.TextOpera = "Ana";
    EXPECT_TRUE(SinAplicar(f, s));
    CancelButton(f);
    EXPECT_FALSE(SinAplicar(f, s));
    Abre(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
}

// --- the added time, set from outside ---

TEST_F(Configura, ElTiempoAgregadoSePoneComoConAplicarYConSuCaja)
{
    CancelButton(f);
    ASSERT_TRUE(PonTiempoAgregado(f, s, 340));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Guardado});
    EXPECT_EQ(s.Pasos.N0Dur, 340);
    s.Pasos.N0Dur = 0;
    s.frmConfigura.txtN0Dur.clear();
    EXPECT_TRUE(model::leoConf(s));
    EXPECT_EQ(s.Pasos.N0Dur, 340);
    EXPECT_EQ(s.frmConfigura.txtN0Dur, "340");
}

TEST_F(Configura, LoQueUnaAberturaDejoSinAplicarNoSeGuardaConElTiempo)
{
    s.frmConfigura.TextProyecto = "Escrito y cancelado";
    s.frmConfigura.Dir1 = "/otro";
    CancelButton(f);
    ASSERT_TRUE(PonTiempoAgregado(f, s, 340));
    EXPECT_EQ(s.frmConfigura.TextProyecto, "Crecidas de Mio");
    EXPECT_EQ(s.Proyecto.DirProyecto, "/proy");
    EXPECT_FALSE(disco.Esta("/otro/Mio_Conf.vlm"));
}

TEST_F(Configura, ConCambiosSinAplicarALaVistaElTiempoNoSePone)
{
    const std::string antes = disco.Bytes("/proy/Mio_Conf.vlm");
    s.frmConfigura.TextCuenca = "Otra";
    EXPECT_FALSE(PonTiempoAgregado(f, s, 340));
    ASSERT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(Avisos()[0].texto,
              "La ventana <Configurar> tiene cambios sin aplicar. Aplíquelos o cancélelos primero");
    EXPECT_EQ(s.frmConfigura.TextCuenca, "Otra");
    EXPECT_EQ(disco.Bytes("/proy/Mio_Conf.vlm"), antes);
}

TEST_F(Configura, UnTiempoFueraDeLimitesSeRechazaComoEnElCampo)
{
    CancelButton(f);
    const std::string antes = disco.Bytes("/proy/Mio_Conf.vlm");
    EXPECT_FALSE(PonTiempoAgregado(f, s, 30010));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{EntreDiezYTreintaMil});
    EXPECT_EQ(disco.Bytes("/proy/Mio_Conf.vlm"), antes);
}

TEST_F(Configura, SiNoSePuedeLeerElArchivoElTiempoNoSePone)
{
    CancelButton(f);
    disco.Pon("/proy/Mio_Conf.vlm", "");
    EXPECT_FALSE(PonTiempoAgregado(f, s, 340));
    EXPECT_EQ(disco.Bytes("/proy/Mio_Conf.vlm"), "");
}

}  // namespace
}  // namespace shell
