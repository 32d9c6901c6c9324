// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "hydraulics/mdlVerifica.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "shell/MDIForm1.h"

// What the menu and the toolbar hold, and what each entry runs.
namespace shell {

using model::Siro;

namespace {

using Orden = void (*)(Siro& s);

/// A command of the project's life, which needs nothing of the desktop.
template <Orden orden>
void DelProyecto(MDIForm1& /*f*/, Siro& s, const Mandos& /*m*/)
{
    orden(s);
}

/// A command that does no more than open a window.
template <Ventana ventana>
void SoloAbre(MDIForm1& /*f*/, Siro& /*s*/, const Mandos& m)
{
    m.Abre(ventana);
}

template <Ventana ventana>
void AbreSinEsperar(MDIForm1& /*f*/, Siro& /*s*/, const Mandos& m)
{
    m.AbreSinEsperar(ventana);
}

template <Ventana ventana>
void ConProyecto(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (ExigeProyecto(s)) m.Abre(ventana);
}

template <Orden verificacion>
void ConRepresas(MDIForm1& /*f*/, Siro& s, const Mandos& /*m*/)
{
    if (s.Red.NroRepresas() >= 1) verificacion(s);
}

template <Ventana ventana>
void ConSerie(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (s.Serie.NroSeriePDR > 1) m.Abre(ventana);
}

void GuardarComo(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    model::mnuGuardarProyectoComo(s);
    m.TrasGuardarComo();
}

constexpr Rutina Nuevo = mnuNuevoProyecto;
constexpr Rutina Abrir = DelProyecto<model::mnuAbrirProyecto>;
constexpr Rutina Salir = mnuSalir;
constexpr Rutina EditorTabla = ConProyecto<Ventana::dlgUEHsEditTabla>;
constexpr Rutina Parametros = ConProyecto<Ventana::dlgUEHsTabla>;
constexpr Rutina Abaco = SoloAbre<Ventana::dlgChart3>;
constexpr Rutina TablaCompleta = ConSerie<Ventana::dlgTablaSalePDR>;
constexpr Rutina TablaComponente = ConSerie<Ventana::dlgTablaSalePDR2>;
constexpr Rutina Nada = nullptr;

using V = Variable;

constexpr FilaMenu Separador(std::string_view nombre, std::string_view padre)
{
    return {.nombre = nombre, .leyenda = "-", .padre = padre};
}

// clang-format off
constexpr auto FilasMenu = std::to_array<FilaMenu>({
    {"mnuFile",                         "&Archivo",                                        ""},
    {"mnuNuevoProyecto",                "&Nuevo Proyecto",                                 "mnuFile", Nuevo, false, V::Ninguna, "Ctrl+N", "Da nombre a un proyecto nuevo"},
    {"mnuAbrirProyecto",                "&Abrir un Proyecto existente",                    "mnuFile", Abrir, false, V::Ninguna, "Ctrl+O", "Abre un proyecto por su archivo de configuración"},
    {"mnuGuardarProyectoComo",          "&Guardar proyecto con otro nombre...",            "mnuFile", GuardarComo, false, V::mnuGuardarProyectoComo, "Ctrl+Shift+S", "Copia el proyecto abierto con otro nombre y sigue con la copia"},
    Separador("mnuBarra1", "mnuFile"),
    {"mnuDirCrea",                      "Editar &Directorios y Archivos",                  "mnuFile", mnuDirCrea, false, V::Ninguna, "", "Recorre los directorios y archivos"},
    {"mnuEliminarProyecto",             "&Eliminar un Proyecto existente",                 "mnuFile", SoloAbre<Ventana::dlgEliminarProyecto>, false, V::Ninguna, "", "Borra los archivos de un proyecto"},
    Separador("mnuBarra3", "mnuFile"),
    {"mnuFilePageSetup",                "&Preparar Página",                                "mnuFile"},
    {"mnuVistaPreliminar",              "&Vista Preliminar",                               "mnuFile"},
    {"mnuImprimir",                     "Im&primir",                                       "mnuFile"},
    {"mnuSalir",                        "Sa&lir",                                          "mnuFile", Salir, false, V::Ninguna, "Ctrl+Q", "Termina el programa"},
    Separador("mnuBarra4", "mnuFile"),
    {"mnu_ultimoarchivo1",              "",                                                "mnuFile", DelProyecto<model::mnu_ultimoarchivo1>, false, V::mnu_ultimoarchivo1, "", "Abre el último proyecto"},

    {"mnuOpciones",                     "&Opciones",                                       ""},
    {"mnuOpcionesBarra",                "&Barra de Herramientas",                          "mnuOpciones"},
    {"mnuOpcionesConfigurar",           "&Opciones de Configuración",                      "mnuOpciones", mnuOpcionesConfigurar, false, V::Ninguna, "", "Títulos, directorio, imagen, recurrencias y duraciones del proyecto"},
    {"mnu_prueba_funcionesSHVrepresas", "Verificar Funciones HA&S en Represas",            "mnuOpciones", ConRepresas<hydraulics::VerificaHSV>, false, V::mnu_prueba_funcionesSHVrepresas, "", "Lista en la Pizarra alturas, superficies y almacenamientos de una Represa"},
    {"mnu_prueba_funcionesHQrepresas",  "Verificar Funciones h-&Q de Represas",            "mnuOpciones", ConRepresas<hydraulics::VerificaHQ>, false, V::mnu_prueba_funcionesHQrepresas, "", "Lista en la Pizarra alturas y caudales de las Represas"},

    {"mnuEntradas",                     "&Entradas",                                       ""},
    {"mnufrmUEHs",                      "Editor de &UEHs (Gráfico)",                       "mnuEntradas", mnufrmUEHs, true, V::Ninguna, "F3", "Dibuja la red: UEHs, Cauces, Represas y Lagos"},
    {"mnuEditfrmUEHsTabla",             "Editor &Tabla de UEHs y Cauces",                  "mnuEntradas", EditorTabla, true, V::Ninguna, "", "Edita en tablas los datos de todas las UEHs y Cauces"},
    {"mnufrmUEHsTabla",                 "Ver Tabla de Parámetros &Físicos UEHs",           "mnuEntradas", Parametros, true, V::Ninguna, "", "Muestra los parámetros de toda la red"},
    Separador("mnuBarra5", "mnuEntradas"),
    {"mnufrmPp",                        "&Precipitaciones",                                "mnuEntradas", mnufrmPp, false, V::Ninguna, "F4", "Define la tormenta y los pasos de cálculo"},

    {"mnuProceso",                      "&Proceso",                                        ""},
    {"mnuCorre1",                       "Corre Proceso de Cálculo p/ 1 tormenta - ",       "mnuProceso", mnuCorre1, false, V::Ninguna, "F5", "Calcula los hidrogramas de la tormenta definida"},
    {"mnuCorre2",                       "Corre Proceso de Cálculo p/ varias tormentas - ", "mnuProceso", mnuCorre2, false, V::Ninguna, "F6", "Calcula los caudales máximos de una serie de tormentas"},
    {"mnuPizarra1",                     "Ver Pizarra (p/variables y salidas parciales) -", "mnuProceso", mnuPizarra1, true, V::mnuPizarra1, "F7", "Abre o cierra la Pizarra; abierta, recibe las tablas de la corrida"},

    {"mnuSalidas",                      "&Salidas",                                        ""},
    {"mnuGráficoPp",                    "Hietogramas (Pp-t)",                              "mnuSalidas", mnuGraficoPp, false, V::Ninguna, "F8", "Grafica la lluvia de la tormenta definida"},
    {"mnuHidrogramas",                  "&Hidrogramas",                                    "mnuSalidas", mnuHidrogramas, false, V::Ninguna, "F9", "Grafica los hidrogramas de la última corrida"},
    {"mnuGraficoPDRComponente",         "Gráfico Qp-D-R p/Componente",                     "mnuSalidas", Abaco, false, V::Ninguna, "", "Grafica los resultados de la serie de tormentas"},
    {"mnuPlanillaPDRCompleta",          "Planilla Qp-D-R Completa",                        "mnuSalidas", TablaCompleta, false, V::Ninguna, "", "Resultados de la serie para todos los componentes"},
    {"mnuPlanillaPDRComponente",        "Planilla Qp-D-R p/Componente",                    "mnuSalidas", TablaComponente, false, V::Ninguna, "", "Resultados de la serie para un componente"},
    {"mnuEmpiricos",                    "&Métodos Empíricos",                              "mnuSalidas", SoloAbre<Ventana::dlgEmpiricas>, false, V::Ninguna, "", "Fórmulas empíricas de caudal máximo y tiempo de concentración"},

    {"mnuEstudio",                      "Estu&dio",                                        ""},
    {"mnuAvisos",                       "&Avisos de la corrida",                           "mnuEstudio", SoloAbre<Ventana::Avisos>, false, V::Ninguna, "", "Lo que la última corrida tiene de dudoso, y su balance de agua"},
    {"mnuResumen",                      "&Resumen de la corrida",                          "mnuEstudio", SoloAbre<Ventana::Resumen>, false, V::Ninguna, "F11", "Caudales máximos, volúmenes y alturas de todos los componentes"},
    {"mnuComparar",                     "&Comparar hidrogramas",                           "mnuEstudio", SoloAbre<Ventana::Comparar>, false, V::Ninguna, "", "Hidrogramas de varios componentes en un gráfico"},
    {"mnuMapa",                         "&Mapa de la corrida",                             "mnuEstudio", SoloAbre<Ventana::Mapa>, false, V::Ninguna, "", "La red con el caudal de cada componente a lo largo del tiempo"},
    {"mnuCorridas",                     "Corridas &guardadas",                             "mnuEstudio", SoloAbre<Ventana::Corridas>, false, V::Ninguna, "", "Las corridas de este proyecto, con nombre y nota, para traerlas de vuelta o compararlas"},
    {"mnuCompararCorridas",             "Comparar c&orridas o proyectos",                  "mnuEstudio", SoloAbre<Ventana::CompararCorridas>, false, V::Ninguna, "", "Dos corridas o proyectos uno al lado del otro: parámetros, resultados, hidrogramas, series"},
    {"mnuMemoria",                      "Memoria de cá&lculo",                             "mnuEstudio", SoloAbre<Ventana::Memoria>, false, V::Ninguna, "", "Lo que se entrega: datos, métodos y resultados en PDF, ODT o HTML"},
    Separador("mnuEstudioBarra", "mnuEstudio"),
    {"mnuRevisar",                      "Revisar &proyecto",                               "mnuEstudio", ConProyecto<Ventana::Revisar>, false, V::Ninguna, "F12", "Todo lo que detendría una corrida o la haría dudosa"},
    {"mnuTaller",                       "&Taller de lluvia",                               "mnuEstudio", SoloAbre<Ventana::Taller>, false, V::Ninguna, "", "De los máximos anuales a la tormenta que se corre"},
    {"mnuAjuste",                       "Taller de a&juste",                               "mnuEstudio", SoloAbre<Ventana::Ajuste>, false, V::Ninguna, "", "De las crecidas observadas a los parámetros, y cuánto se les puede creer"},
    {"mnuAnteriores",                   "Versiones a&nteriores",                           "mnuEstudio", SoloAbre<Ventana::dlgAnteriores>, false, V::Ninguna, "", "Lo que el proyecto tenía antes de cada guardado: mirar, comparar, traer de vuelta"},
    {"mnuVerificar",                    "&Verificar",                                      "mnuEstudio", SoloAbre<Ventana::Verificar>, false, V::Ninguna, "", "Las rutinas del modelo frente a casos publicados"},
    Separador("mnuBuscarBarra", "mnuEstudio"),
    {"mnuBuscar",                       "&Buscar un comando",                              "mnuEstudio", SoloAbre<Ventana::Busca>, false, V::Ninguna, "Ctrl+Shift+P", "Comandos, componentes, ventanas, ayuda y proyectos, por unas letras de su nombre"},

    {"mnuVentana",                      "&Ventana",                                        ""},

    {"mnuAyuda",                        "A&yuda",                                          ""},
    {"mnuHelpContents",                 "Con&tenido",                                      "mnuAyuda", mnuHelpContents, false, V::Ninguna, "F1", "Muestra la ayuda"},
    Separador("mnuAyudaBarra", "mnuAyuda"),
    {"mnuAyudaAcerca",                  "A&cerca de SIRO",                                 "mnuAyuda", SoloAbre<Ventana::frmAcerca>, false, V::Ninguna, "", "Producto, versión y sistema"},
});

constexpr auto FilasBarra = std::to_array<FilaBarra>({
    {"Nuevo",        "mnuNuevoProyecto",         Nuevo},
    {"Abrir",        "mnuAbrirProyecto",         Abrir},
    {"Guardar",      "",                         Nada},
    {"Imprimir",     "mnuImprimir",              Nada},
    {},
    {"Configurar",   "mnuOpcionesConfigurar",    AbreSinEsperar<Ventana::frmConfigura>},
    {"Ayuda",        "mnuAyuda",                 Nada},
    {},
    {"EditorGrUEHs", "mnufrmUEHs",               mnufrmUEHs},
    {"EditorTbUEHs", "mnuEditfrmUEHsTabla",      EditorTabla},
    {"VerParamUEHs", "mnufrmUEHsTabla",          Parametros},
    {"EntraPp",      "mnufrmPp",                 mnufrmPp},
    {},
    {"Corre1",       "mnuCorre1",                mnuCorre1},
    {"Corre2",       "mnuCorre2",                mnuCorre2},
    {"VerPizarra",   "mnuPizarra1",              VerPizarra},
    {},
    {"VerHieto",     "mnuGráficoPp",             mnuGraficoPp},
    {"VerHidro",     "mnuHidrogramas",           mnuHidrogramas},
    {"VerAbacoQDR",  "mnuGraficoPDRComponente",  Abaco},
    {"VerTablaQDR1", "mnuPlanillaPDRCompleta",   TablaCompleta},
    {"VerTablaQDR2", "mnuPlanillaPDRComponente", TablaComponente},
    {},
    {"Revisar",      "mnuRevisar",               ConProyecto<Ventana::Revisar>},
    {"Resumen",      "mnuResumen",               SoloAbre<Ventana::Resumen>},
    {"Comparar",     "mnuComparar",              SoloAbre<Ventana::Comparar>},
    {"Mapa",         "mnuMapa",                  SoloAbre<Ventana::Mapa>},
    {"Taller",       "mnuTaller",                SoloAbre<Ventana::Taller>},
    {"Ajuste",       "mnuAjuste",                SoloAbre<Ventana::Ajuste>},
});
// clang-format on

}  // namespace

std::span<const FilaMenu> MenuMDIForm1()
{
    return FilasMenu;
}

std::span<const FilaBarra> tbToolBar()
{
    return FilasBarra;
}

std::string SinTecla(std::string_view leyenda)
{
    std::string texto(leyenda);
    std::erase(texto, '&');
    return texto;
}

std::string AyudaDeBoton(const FilaBarra& boton)
{
    const std::span<const FilaMenu> menu = MenuMDIForm1();
    const auto fila = std::find_if(menu.begin(), menu.end(),
                                   [&](const FilaMenu& entrada) { return entrada.nombre == boton.menu; });
    return fila == menu.end() ? std::string(boton.clave) : SinTecla(fila->leyenda);
}

}  // namespace shell
