// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MDIForm1.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/Falla.h"
#include "model/Siro.h"
#include "shell/EscenaDePrueba.h"

namespace shell {
namespace {

using model::Icono;
using model::Mensaje;
using Cajas = std::vector<Mensaje>;

const Mensaje SinProyecto{
    "No existe un Proyecto asociado. Debe cargar un Proyecto desde el Menu Opciones de Configuración o bien "
    "crear un proyecto nuevo",
    "Proyecto Inexistente...", Icono::Exclamacion};

struct MarcoDePrueba : EscenaDePrueba {};

// --- opening, labels ---

TEST_F(MarcoDePrueba, AlAbrirseLlevaSuTituloYTresEntradasNoEstanDisponibles)
{
    EXPECT_EQ(f.titulo, "SIRO - Modelo Hidrológico de  simulación de crecidas");
    EXPECT_FALSE(f.Estado(Variable::mnuGuardarProyectoComo).habilitada);
    EXPECT_FALSE(f.Estado(Variable::mnu_prueba_funcionesSHVrepresas).habilitada);
    EXPECT_FALSE(f.Estado(Variable::mnu_prueba_funcionesHQrepresas).habilitada);
    EXPECT_TRUE(Pizarra().habilitada);
    EXPECT_FALSE(Pizarra().marcada);
}

TEST_F(MarcoDePrueba, LosRotulosDicenElProyectoYSusTitulos)
{
    PonProyecto();
    s.frmConfigura.TextProyecto = "Defensa";
    s.frmConfigura.TextCuenca = "Alta";
    s.frmConfigura.TextSbca = "Norte";
    s.frmConfigura.TextUbica = "Salta";
    carga_lbl_proyecto(f, s);
    EXPECT_EQ(f.Texto("lblProyecto"), "Mio");
    EXPECT_EQ(f.Texto("lblTitulo"), "Defensa");
    EXPECT_EQ(f.Texto("lblMiDirTrabajo"), Proyectos);
    EXPECT_EQ(f.Texto("lblFileProyecto"), "Mio_Conf.vlm");
    EXPECT_EQ(f.Texto("lblCuenca"), "Alta");
    EXPECT_EQ(f.Texto("lblSubCuenca"), "Norte");
    EXPECT_EQ(f.Texto("lblUbicacion"), "Salta");
}

TEST_F(MarcoDePrueba, ElRotuloDeArchivosDeTrabajoDiceUEHSinLaS)
{
    PonProyecto();
    carga_lbl_proyecto(f, s);
    EXPECT_EQ(f.Texto("lblFilesTrabajo"), "Mio_UEH.vlm\rMio_VerCau.vlm");
}

TEST_F(MarcoDePrueba, CadaRefrescoDeLosRotulosAnotaElUltimoProyecto)
{
    PonProyecto();
    carga_lbl_proyecto(f, s);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, "Mio"));
}

TEST_F(MarcoDePrueba, UnPunteroQueNoSePuedeEscribirNoEstorbaALosRotulos)
{
    PonProyecto();
    disco.Protege(Programa);
    carga_lbl_proyecto(f, s);
    EXPECT_EQ(f.Texto("lblProyecto"), "Mio");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(MarcoDePrueba, LasLeyendasDeLosRotulosYCualesCrecen)
{
    const std::vector<std::string_view> leyendas{
        "Proyecto:",   "Título:",        "Directorio: ", "Archivo de Proyecto:",
        "Cuenca/UEH:", "SubCuenca/UEH:", "Ubicación:",   "Archivos de trabajo:"};
    const std::vector<int> crecen{0, 1, 1, 0, 1, 1, 1, 0};
    for (std::size_t i = 0; i < RotulosMDIForm1.size(); ++i) {
        EXPECT_EQ(RotulosMDIForm1[i].leyenda, leyendas[i]);
        EXPECT_EQ(std::ranges::count(RotulosQueCrecen, RotulosMDIForm1[i].control), crecen[i]) << leyendas[i];
    }
}

TEST_F(MarcoDePrueba, UnRotuloCreceSoloLejosDeSuBorde)
{
    EXPECT_TRUE(RotuloCrece(300, 70));
    EXPECT_TRUE(RotuloCrece(20, 70));
    EXPECT_FALSE(RotuloCrece(19.9, 70));
    EXPECT_TRUE(RotuloCrece(599.9, 70));
    EXPECT_FALSE(RotuloCrece(600, 70));
    EXPECT_TRUE(RotuloCrece(300, 40));
    EXPECT_FALSE(RotuloCrece(300, 39.9));
    EXPECT_TRUE(RotuloCrece(300, 109.9));
    EXPECT_FALSE(RotuloCrece(300, 110));
}

// --- tables ---

TEST_F(MarcoDePrueba, ElMenuTieneSusEntradasEnOrden)
{
    const std::vector<std::pair<std::string_view, std::string_view>> esperado{
        {"mnuFile", "&Archivo"},
        {"mnuNuevoProyecto", "&Nuevo Proyecto"},
        {"mnuAbrirProyecto", "&Abrir un Proyecto existente"},
        {"mnuGuardarProyectoComo", "&Guardar proyecto con otro nombre..."},
        {"mnuBarra1", "-"},
        {"mnuDirCrea", "Editar &Directorios y Archivos"},
        {"mnuEliminarProyecto", "&Eliminar un Proyecto existente"},
        {"mnuBarra3", "-"},
        {"mnuFilePageSetup", "&Preparar Página"},
        {"mnuVistaPreliminar", "&Vista Preliminar"},
        {"mnuImprimir", "Im&primir"},
        {"mnuSalir", "Sa&lir"},
        {"mnuBarra4", "-"},
        {"mnu_ultimoarchivo1", ""},
        {"mnuOpciones", "&Opciones"},
        {"mnuOpcionesBarra", "&Barra de Herramientas"},
        {"mnuOpcionesConfigurar", "&Opciones de Configuración"},
        {"mnu_prueba_funcionesSHVrepresas", "Verificar Funciones HA&S en Represas"},
        {"mnu_prueba_funcionesHQrepresas", "Verificar Funciones h-&Q de Represas"},
        {"mnuEntradas", "&Entradas"},
        {"mnufrmUEHs", "Editor de &UEHs (Gráfico)"},
        {"mnuEditfrmUEHsTabla", "Editor &Tabla de UEHs y Cauces"},
        {"mnufrmUEHsTabla", "Ver Tabla de Parámetros &Físicos UEHs"},
        {"mnuBarra5", "-"},
        {"mnufrmPp", "&Precipitaciones"},
        {"mnuProceso", "&Proceso"},
        {"mnuCorre1", "Corre Proceso de Cálculo p/ 1 tormenta - "},
        {"mnuCorre2", "Corre Proceso de Cálculo p/ varias tormentas - "},
        {"mnuPizarra1", "Ver Pizarra (p/variables y salidas parciales) -"},
        {"mnuSalidas", "&Salidas"},
        {"mnuGráficoPp", "Hietogramas (Pp-t)"},
        {"mnuHidrogramas", "&Hidrogramas"},
        {"mnuGraficoPDRComponente", "Gráfico Qp-D-R p/Componente"},
        {"mnuPlanillaPDRCompleta", "Planilla Qp-D-R Completa"},
        {"mnuPlanillaPDRComponente", "Planilla Qp-D-R p/Componente"},
        {"mnuEmpiricos", "&Métodos Empíricos"},
        {"mnuEstudio", "Estu&dio"},
        {"mnuAvisos", "&Avisos de la corrida"},
        {"mnuResumen", "&Resumen de la corrida"},
        {"mnuComparar", "&Comparar hidrogramas"},
        {"mnuMapa", "&Mapa de la corrida"},
        {"mnuCorridas", "Corridas &guardadas"},
        {"mnuCompararCorridas", "Comparar c&orridas o proyectos"},
        {"mnuMemoria", "Memoria de cá&lculo"},
        {"mnuEstudioBarra", "-"},
        {"mnuRevisar", "Revisar &proyecto"},
        {"mnuTaller", "&Taller de lluvia"},
        {"mnuAjuste", "Taller de a&juste"},
        {"mnuAnteriores", "Versiones a&nteriores"},
        {"mnuVerificar", "&Verificar"},
        {"mnuBuscarBarra", "-"},
        {"mnuBuscar", "&Buscar un comando"},
        {"mnuVentana", "&Ventana"},
        {"mnuAyuda", "A&yuda"},
        {"mnuHelpContents", "Con&tenido"},
        {"mnuAyudaBarra", "-"},
        {"mnuAyudaAcerca", "A&cerca de SIRO"},
    };
    const auto filas = MenuMDIForm1();
    ASSERT_EQ(filas.size(), esperado.size());
    for (std::size_t i = 0; i < esperado.size(); ++i) {
        EXPECT_EQ(filas[i].nombre, esperado[i].first);
        EXPECT_EQ(filas[i].leyenda, esperado[i].second);
    }
}

TEST_F(MarcoDePrueba, CadaEntradaCuelgaDeUnMenuQueEstaAntes)
{
    std::vector<std::string_view> menus;
    for (const FilaMenu& fila : MenuMDIForm1()) {
        if (fila.padre.empty())
            menus.push_back(fila.nombre);
        else
            EXPECT_EQ(menus.back(), fila.padre) << fila.nombre;
    }
    EXPECT_EQ(menus, (std::vector<std::string_view>{"mnuFile", "mnuOpciones", "mnuEntradas", "mnuProceso",
                                                    "mnuSalidas", "mnuEstudio", "mnuVentana", "mnuAyuda"}));
}

TEST_F(MarcoDePrueba, LasTeclasDelMenuNoSeRepiten)
{
    std::vector<std::string_view> teclas;
    for (const FilaMenu& fila : MenuMDIForm1())
        if (!fila.tecla.empty()) teclas.push_back(fila.tecla);
    std::sort(teclas.begin(), teclas.end());
    EXPECT_EQ(std::adjacent_find(teclas.begin(), teclas.end()), teclas.end());
    EXPECT_EQ(Entrada("mnuHelpContents").tecla, "F1");
    EXPECT_EQ(Entrada("mnuCorre1").tecla, "F5");
}

TEST_F(MarcoDePrueba, LaBarraTieneSusClavesYLaPizarraEsElBotonDieciseis)
{
    const std::vector<std::string_view> esperado{"Nuevo",
                                                 "Abrir",
                                                 "Guardar",
                                                 "Imprimir",
                                                 "",
                                                 "Configurar",
                                                 "Ayuda",
                                                 "",
                                                 "EditorGrUEHs",
                                                 "EditorTbUEHs",
                                                 "VerParamUEHs",
                                                 "EntraPp",
                                                 "",
                                                 "Corre1",
                                                 "Corre2",
                                                 "VerPizarra",
                                                 "",
                                                 "VerHieto",
                                                 "VerHidro",
                                                 "VerAbacoQDR",
                                                 "VerTablaQDR1",
                                                 "VerTablaQDR2",
                                                 "",
                                                 "Revisar",
                                                 "Resumen",
                                                 "Comparar",
                                                 "Mapa",
                                                 "Taller",
                                                 "Ajuste"};
    std::vector<std::string_view> claves;
    for (const FilaBarra& fila : tbToolBar())
        claves.push_back(fila.clave);
    EXPECT_EQ(claves, esperado);
    EXPECT_EQ(claves[16 - 1], "VerPizarra");
}

TEST_F(MarcoDePrueba, LasAyudasDeLaBarraSonLasLeyendasDelMenuSinSusTeclas)
{
    EXPECT_EQ(AyudaDeBoton(Boton("Nuevo")), "Nuevo Proyecto");
    EXPECT_EQ(AyudaDeBoton(Boton("Corre1")), "Corre Proceso de Cálculo p/ 1 tormenta - ");
    EXPECT_EQ(AyudaDeBoton(Boton("VerParamUEHs")), "Ver Tabla de Parámetros Físicos UEHs");
    EXPECT_EQ(AyudaDeBoton(Boton("Guardar")), "Guardar");
}

TEST_F(MarcoDePrueba, LosBotonesCorrenLoMismoQueSuEntrada)
{
    for (const std::string_view clave :
         {"Nuevo", "Abrir", "EditorGrUEHs", "EditorTbUEHs", "VerParamUEHs", "EntraPp", "Corre1", "Corre2",
          "VerHieto", "VerHidro", "VerAbacoQDR", "VerTablaQDR1", "VerTablaQDR2"}) {
        const FilaBarra& boton = Boton(clave);
        EXPECT_EQ(boton.rutina, Entrada(boton.menu).rutina) << clave;
        EXPECT_NE(boton.rutina, nullptr) << clave;
    }
}

TEST_F(MarcoDePrueba, GuardarImprimirYAyudaDeLaBarraNoHacenNada)
{
    EXPECT_EQ(Boton("Guardar").rutina, nullptr);
    EXPECT_EQ(Boton("Imprimir").rutina, nullptr);
    EXPECT_EQ(Boton("Ayuda").rutina, nullptr);
    EXPECT_NE(Entrada("mnuHelpContents").rutina, nullptr);
}

TEST_F(MarcoDePrueba, CincoEntradasDelMenuNoTienenAccion)
{
    for (const std::string_view nombre :
         {"mnuFilePageSetup", "mnuVistaPreliminar", "mnuImprimir", "mnuOpcionesBarra", "mnuVentana"})
        EXPECT_EQ(Entrada(nombre).rutina, nullptr) << nombre;
}

// --- guards ---

TEST_F(MarcoDePrueba, SinProyectoSusCuatroComandosLoDicenYNoAbrenNada)
{
    for (const std::string_view nombre :
         {"mnufrmUEHs", "mnuEditfrmUEHsTabla", "mnufrmUEHsTabla", "mnuPizarra1"}) {
        anfitrion->sucesos.clear();
        EXPECT_TRUE(Entrada(nombre).pideProyecto);
        for (const std::string& pedido : Elige(nombre))
            EXPECT_FALSE(pedido.starts_with("abre ")) << pedido;
        EXPECT_EQ(anfitrion->Avisos(), Cajas{SinProyecto}) << nombre;
    }
}

TEST_F(MarcoDePrueba, ConProyectoAbrenSuVentanaSinDecirNada)
{
    PonProyecto();
    EXPECT_EQ(Elige("mnufrmUEHs"), Lista{"abre frmUEHs"});
    EXPECT_EQ(Elige("mnuEditfrmUEHsTabla"), Lista{"abre dlgUEHsEditTabla"});
    EXPECT_EQ(Elige("mnufrmUEHsTabla"), Lista{"abre dlgUEHsTabla"});
    EXPECT_EQ(Elige("mnuPizarra1"), Lista{"abre frmPp"});
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(MarcoDePrueba, UnEditorAbiertoSaleAlFrenteYNadaSeRelee)
{
    PonProyecto();
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1"});
    m.AlzaEditor = [this] {
        pedidos.emplace_back("alza");
        return true;
    };
    EXPECT_EQ(Elige("mnufrmUEHs"), Lista{"alza"});
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1);
    s.Proyecto.NombreProyecto.clear();
    s.Anfitrion.ResguardaDibujo = [](model::Riesgo) { return false; };
    EXPECT_EQ(Elige("mnufrmUEHs"), Lista{});
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1) << "without a project the network would be emptied";
}

TEST_F(MarcoDePrueba, ElEditorVaciaLaRedAunqueNoHayaProyecto)
{
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1"});
    s.Red.ColCauces.Agrega({.NombreCauce = "c-1"});
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1"});
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1"});
    EXPECT_EQ(Elige("mnufrmUEHs"), Lista{"cierra frmUEHs"});
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 0);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 0);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 0);
}

TEST_F(MarcoDePrueba, PrecipitacionesCallaSinProyectoNiArchivo)
{
    EXPECT_EQ(Elige("mnufrmPp"), Lista{});
    s.Proyecto.ArchivoTemp = "algo";
    EXPECT_EQ(Elige("mnufrmPp"), Lista{"abre dlgPp"});
    s.Proyecto.ArchivoTemp.clear();
    PonProyecto();
    EXPECT_EQ(Elige("mnufrmPp"), Lista{"abre dlgPp"});
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(MarcoDePrueba, LasPlanillasPidenMasDeUnaTormenta)
{
    s.Serie.NroSeriePDR = 1;
    EXPECT_EQ(Elige("mnuPlanillaPDRCompleta"), Lista{});
    EXPECT_EQ(Elige("mnuPlanillaPDRComponente"), Lista{});
    s.Serie.NroSeriePDR = 2;
    EXPECT_EQ(Elige("mnuPlanillaPDRCompleta"), Lista{"abre dlgTablaSalePDR"});
    EXPECT_EQ(Elige("mnuPlanillaPDRComponente"), Lista{"abre dlgTablaSalePDR2"});
}

TEST_F(MarcoDePrueba, SinRepresasLasVerificacionesNoPreguntanNada)
{
    Elige("mnu_prueba_funcionesSHVrepresas");
    Elige("mnu_prueba_funcionesHQrepresas");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(MarcoDePrueba, LoQueNoPideProyecto)
{
    EXPECT_EQ(Elige("mnuEmpiricos"), Lista{"abre dlgEmpiricas"});
    EXPECT_EQ(Elige("mnuEliminarProyecto"), Lista{"abre dlgEliminarProyecto"});
    EXPECT_EQ(Elige("mnuAyudaAcerca"), Lista{"abre frmAcerca"});
    EXPECT_EQ(Elige("mnuGraficoPDRComponente"), Lista{"abre dlgChart3"});
}

TEST_F(MarcoDePrueba, ElExploradorOfreceArchivosYNoUsaElElegido)
{
    anfitrion->elegidos = {"cualquiera_Conf.vlm"};
    EXPECT_EQ(Elige("mnuDirCrea"), Lista{});
    EXPECT_EQ(anfitrion->Mensajes(apoyo::Suceso::Clase::Archivo).size(), 1U);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
}

TEST_F(MarcoDePrueba, LaConfiguracionDelMenuEsperaYRefrescaYLaDeLaBarraNo)
{
    EXPECT_EQ(Elige("mnuOpcionesConfigurar"), Lista{"abre frmConfigura"});
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
    EXPECT_EQ(Pulsa("Configurar"), Lista{"muestra frmConfigura"});
    EXPECT_EQ(anfitrion->rotulosProyecto, 1);
}

// --- Slate ---

TEST_F(MarcoDePrueba, NuevoAbreLaConfiguracionDelProyectoNuevo)
{
    for (const bool porLaBarra : {false, true}) {
        anfitrion->textos.emplace_back(porLaBarra ? "Otro" : "Uno");
        EXPECT_EQ(porLaBarra ? Pulsa("Nuevo") : Elige("mnuNuevoProyecto"), Lista{"abre frmConfigura"});
        EXPECT_TRUE(s.Proyecto.ProyectoNuevo) << "the configuration stores the project as it opens";
    }
}

TEST_F(MarcoDePrueba, NuevoSinNombreOConUnoRechazadoNoAbreLaConfiguracion)
{
    disco.Pon(model::Ruta(Proyectos, "Viejo_Conf.vlm"), "");
    s.Proyecto.ProyectoNuevo = true;  // of a project that could not be stored
    for (const char* nombre : {"", "con_guion", "Viejo"}) {
        anfitrion->textos.emplace_back(nombre);
        EXPECT_EQ(Elige("mnuNuevoProyecto"), Lista{}) << nombre;
    }
}

TEST_F(MarcoDePrueba, LaPizarraSeAbreConElTextoDeLaUltimaCorrida)
{
    PonProyecto();
    s.Control.TextoPizarra = "última";
    EXPECT_EQ(Elige("mnuPizarra1"), Lista{"abre frmPp"});
    EXPECT_TRUE(Pizarra().marcada);
    EXPECT_TRUE(s.Control.SalidaPizarra);
    EXPECT_EQ(anfitrion->pizarra, "última");
}

TEST_F(MarcoDePrueba, LaEntradaMarcadaCierraLaPizarra)
{
    PonProyecto();
    Elige("mnuPizarra1");
    EXPECT_EQ(Elige("mnuPizarra1"), Lista{"cierra frmPp"});
    EXPECT_FALSE(Pizarra().marcada);
    EXPECT_FALSE(s.Control.SalidaPizarra);
}

TEST_F(MarcoDePrueba, ElBotonDeLaBarraAbreORefrescaLaPizarraYNuncaLaCierra)
{
    PonProyecto();
    EXPECT_EQ(Pulsa("VerPizarra"), Lista{"abre frmPp"});
    s.Control.TextoPizarra = "otra";
    EXPECT_EQ(Pulsa("VerPizarra"), Lista{"abre frmPp"});
    EXPECT_EQ(anfitrion->pizarra, "otra");
    EXPECT_TRUE(Pizarra().marcada);
    EXPECT_FALSE(f.VerPizarra);
}

TEST_F(MarcoDePrueba, SinProyectoLaPizarraPierdeSuMarcaYSuBoton)
{
    Pizarra().marcada = true;
    f.VerPizarra = true;
    EXPECT_EQ(Elige("mnuPizarra1"), Lista{});
    EXPECT_FALSE(Pizarra().marcada);
    EXPECT_FALSE(f.VerPizarra);
    EXPECT_EQ(anfitrion->Avisos(), Cajas{SinProyecto});
}

// --- runs ---

struct CorreUna : EscenaDePrueba {
    CorreUna()
    {
        PonProyecto();
        s.Tormenta.PpTormenta = 0;  // the driver ends after its header: what is looked at here is around it
        s.Tormenta.DurTormenta = 60;
    }
};

TEST_F(CorreUna, LoQueElDibujoDetieneNoCorre)
{
    s.Anfitrion.ResguardaDibujo = [](model::Riesgo riesgo) { return riesgo != model::Riesgo::ReleeRed; };
    s.Pasos.PasoPp = 10;
    s.Pasos.PasoQ = 30;
    EXPECT_EQ(Elige("mnuCorre1"), Lista{});
    EXPECT_EQ(s.Pasos.PasoQ, 30);
}

TEST_F(CorreUna, CorreYAbreElHidrogramaConElPunteroDeEspera)
{
    EXPECT_EQ(Elige("mnuCorre1"), (Lista{"espera", "abre dlgChart2", "no espera"}));
}

TEST_F(CorreUna, SinProyectoOSinDirectorioOEnUnaSerieCalla)
{
    s.Proyecto.NombreProyecto.clear();
    EXPECT_EQ(Elige("mnuCorre1"), Lista{});
    PonProyecto();
    s.Proyecto.DirProyecto.clear();
    EXPECT_EQ(Elige("mnuCorre1"), Lista{});
    s.Proyecto.DirProyecto = Proyectos;
    s.Tormenta.FormaPp = 2;
    EXPECT_EQ(Elige("mnuCorre1"), Lista{});
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(CorreUna, ElPasoDeSalidaNoPasaDelPasoDelModelo)
{
    s.Pasos.PasoPp = 10;
    s.Pasos.PasoQ = 30;
    Elige("mnuCorre1");
    EXPECT_EQ(s.Pasos.PasoQ, 10);
    s.Pasos.PasoQ = 5;
    Elige("mnuCorre1");
    EXPECT_EQ(s.Pasos.PasoQ, 5);
}

TEST_F(CorreUna, MasDeDoscientosCuarentaMinutosMuestranElAvance)
{
    s.Tormenta.DurTormenta = 241;
    EXPECT_EQ(Elige("mnuCorre1"), (Lista{"espera", "avance SIRO procesando...", "textos Un momento...|",
                                         "abre dlgChart2", "cierra avance", "no espera"}));
    s.Tormenta.DurTormenta = 240;
    EXPECT_EQ(Elige("mnuCorre1"), (Lista{"espera", "abre dlgChart2", "no espera"}));
}

TEST_F(CorreUna, DoscientosUnPasosMuestranElAvance)
{
    s.Resultados.NroPasosQ = 201;
    EXPECT_EQ(Elige("mnuCorre1")[1], "avance SIRO procesando...");
    s.Resultados.NroPasosQ = 200;
    EXPECT_EQ(Elige("mnuCorre1"), (Lista{"espera", "abre dlgChart2", "no espera"}));
}

TEST_F(CorreUna, ElFinDelProgramaDevuelveElPuntero)
{
    m.Abre = [](Ventana) { throw model::FinDelPrograma{}; };
    pedidos.clear();
    EXPECT_THROW(mnuCorre1(f, s, m), model::FinDelPrograma);
    EXPECT_EQ(pedidos, (Lista{"espera", "no espera"}));
}

TEST_F(CorreUna, ConLaPizarraMarcadaLaCorridaLaEnciende)
{
    Pizarra().marcada = true;
    Elige("mnuCorre1");
    EXPECT_TRUE(s.Control.SalidaPizarra);
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
}

struct CorreSerie : EscenaDePrueba {
    CorreSerie()
    {
        PonProyecto();
        s.Tormenta.FormaPp = 2;
        s.Serie.NroSeriePDR = 1;
        s.Serie.SerieP.Dimensiona(1);  // a storm of no depth ends the series at once
        s.Serie.SerieD.Dimensiona(1);
        s.Serie.SerieR.Dimensiona(1);
        Pizarra().marcada = true;
        s.Control.SalidaPizarra = true;
    }
};

TEST_F(CorreSerie, PreguntaCorreYAbreElAbaco)
{
    const Lista sucesos = Elige("mnuCorre2");
    ASSERT_FALSE(sucesos.empty());
    EXPECT_EQ(sucesos.front(), "espera");
    EXPECT_EQ(sucesos[sucesos.size() - 2], "abre dlgChart3");
    EXPECT_EQ(sucesos.back(), "no espera");
    EXPECT_FALSE(s.Control.SalidaPizarra);
    EXPECT_FALSE(Pizarra().marcada);
    const Cajas esperada{
        {"Este proceso puede demandar varios minutos, siendo mayor cuanto mayor sea el número y duración de "
         "tormentas y menor sea el paso del modelo. No podrá cancelarse una vez iniciado.\r\n"
         "Se sugiere probar primero con unas pocas tormentas PDR de corta a mediana duración. Pruebe "
         "desactivar "
         "tormentas desde las fichas de <Recurrencias> y de <DuracionPp> del <Menú\\Opciones\\Opciones de "
         "Configuración>; luego de las pruebas, aumente la cantidad de tormentas a las necesidades de su "
         "proyecto\r\nUna vez iniciado, el proceso de cálculo solo puede abortarse con <Ctrl<+<Alt>+<Del>",
         "Desea continuar ?", Icono::Pregunta}};
    EXPECT_EQ(anfitrion->Confirmaciones(), esperada);
}

TEST_F(CorreSerie, CancelarNoTocaNada)
{
    anfitrion->respuestas = {false};
    EXPECT_EQ(Elige("mnuCorre2"), Lista{});
    EXPECT_TRUE(s.Control.SalidaPizarra);
    EXPECT_TRUE(Pizarra().marcada);
}

TEST_F(CorreSerie, SinTormentasSoloDevuelveElPuntero)
{
    s.Serie.NroSeriePDR = 0;
    s.Pasos.PasoPp = 5;
    s.Pasos.PasoQ = 10;
    EXPECT_EQ(Elige("mnuCorre2"), Lista{"no espera"});
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Pasos.PasoQ, 5);
}

TEST_F(CorreSerie, SinProyectoOSinSerieCalla)
{
    s.Tormenta.FormaPp = 0;
    EXPECT_EQ(Elige("mnuCorre2"), Lista{});
    s.Tormenta.FormaPp = 2;
    s.Proyecto.NombreProyecto.clear();
    EXPECT_EQ(Elige("mnuCorre2"), Lista{});
    PonProyecto();
    s.Proyecto.DirProyecto.clear();
    EXPECT_EQ(Elige("mnuCorre2"), Lista{});
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

// --- charts ---

struct Graficos : EscenaDePrueba {
    Graficos()
    {
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 60;
        s.Configuracion.TituloProyecto = "Defensa";
    }
};

TEST_F(Graficos, ElHietogramaSeConstruyeYSeAbre)
{
    const Lista sucesos = Elige("mnuGráficoPp");
    ASSERT_EQ(sucesos.size(), 1U);
    EXPECT_TRUE(sucesos[0].starts_with("hietograma Defensa ")) << sucesos[0];
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
}

TEST_F(Graficos, SinTormentaNingunoSeAbre)
{
    s.Tormenta.PpTormenta = 0;
    EXPECT_EQ(Elige("mnuGráficoPp"), Lista{});
    EXPECT_EQ(Elige("mnuHidrogramas"), Lista{});
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 0;
    EXPECT_EQ(Elige("mnuGráficoPp"), Lista{});
    EXPECT_EQ(Elige("mnuHidrogramas"), Lista{});
    EXPECT_FALSE(anfitrion->Termino());
}

TEST_F(Graficos, ConLaPizarraAbiertaSaleAntesAlFrente)
{
    s.Control.SalidaPizarra = true;
    Elige("mnuGráficoPp");
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
    s.Resultados.NroPasosQ = 1;
    EXPECT_EQ(Elige("mnuHidrogramas"), Lista{"abre dlgChart2"});
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 2);
}

TEST_F(Graficos, SinBloquesOSinPasosNoHayHidrograma)
{
    s.Resultados.NroPasosQ = 1;
    EXPECT_EQ(Elige("mnuHidrogramas"), Lista{});
    Elige("mnuGráficoPp");
    s.Resultados.NroPasosQ = 0;
    EXPECT_EQ(Elige("mnuHidrogramas"), Lista{});
}

// --- help, shut-down ---

struct Ayuda : EscenaDePrueba {
    const std::string carpeta = model::Ruta(Programa, "Ayuda");
    const std::string compilada = model::Ruta(carpeta, "AyudaSIRO.chm");
    const std::string pagina = model::Ruta(carpeta, "indice.html");
};

TEST_F(Ayuda, LaCompiladaVaAlVisorDelSistema)
{
    disco.Pon(compilada, "x");
    disco.Pon(pagina, "x");
    EXPECT_EQ(Elige("mnuHelpContents"), Lista{"sistema " + compilada});
}

TEST_F(Ayuda, SinLaCompiladaOSinVisorSalenLasPaginas)
{
    disco.Pon(pagina, "x");
    EXPECT_EQ(Elige("mnuHelpContents"), Lista{"pagina " + pagina});
    disco.Pon(compilada, "x");
    visorToma = false;
    EXPECT_EQ(Elige("mnuHelpContents"), (Lista{"sistema " + compilada, "pagina " + pagina}));
}

TEST_F(Ayuda, SinNingunaSeDiceLaFallaYElProgramaTermina)
{
    EXPECT_THROW(Elige("mnuHelpContents"), model::FinDelPrograma);
    EXPECT_EQ(anfitrion->Avisos(), (Cajas{{"Error Nro. 53 ,No se encontró el archivoVerifique"}}));
    EXPECT_TRUE(anfitrion->Termino());
}

TEST_F(Ayuda, UnaVentanaTieneSuPaginaPorSuNombre)
{
    disco.Pon(pagina, "x");
    disco.Pon(compilada, "x");
    disco.Pon(model::Ruta(carpeta, "dlgPp.html"), "x");
    disco.Pon(model::Ruta(carpeta, "dlgTabla.html"), "x");
    AyudaDeVentana(s, m, "dlgPp");
    EXPECT_EQ(pedidos, Lista{"pagina " + model::Ruta(carpeta, "dlgPp.html")});
    pedidos.clear();
    AyudaDeVentana(s, m, "dlgTablaSHVQ");  // its two twins and it share one
    EXPECT_EQ(pedidos, Lista{"pagina " + model::Ruta(carpeta, "dlgTabla.html")});
}

TEST_F(Ayuda, UnaVentanaSinPaginaAbreLaPrimeraYSinNingunaNada)
{
    disco.Pon(pagina, "x");
    AyudaDeVentana(s, m, "dlgPp");
    EXPECT_EQ(pedidos, Lista{"pagina " + pagina});
    pedidos.clear();
    disco.Quita(pagina);
    AyudaDeVentana(s, m, "dlgPp");
    EXPECT_EQ(pedidos, Lista{});
    EXPECT_EQ(anfitrion->Avisos(), Cajas{});
    EXPECT_FALSE(anfitrion->Termino());
}

TEST_F(MarcoDePrueba, SalirAnotaElProyectoYTerminaSinPreguntar)
{
    PonProyecto();
    EXPECT_THROW(Elige("mnuSalir"), model::FinDelPrograma);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, "Mio"));
    EXPECT_TRUE(anfitrion->Preguntas().empty());
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(MarcoDePrueba, SalirTerminaAunqueElPunteroNoSePuedaEscribir)
{
    disco.Protege(Programa);
    EXPECT_THROW(Elige("mnuSalir"), model::FinDelPrograma);
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

}  // namespace
}  // namespace shell
