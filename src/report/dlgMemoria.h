// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Rotulo.h"
#include "report/Datos.h"
#include "report/Plantilla.h"

// Rules of the window that makes the memoria: what it is made of, what the user chooses.
namespace report {

inline constexpr std::string_view TituloDlgMemoria = "Memoria de cálculo";

inline constexpr auto RotulosDlgMemoria = std::to_array<forms::FilaRotulo>({
    {"cmdCorrer", "Co&rrer la tormenta", "Corre la tormenta en mano, como F5"},
    {"lstCapitulos", "&Capítulos:", "Un clic o la barra espaciadora pone o quita un capítulo", "Capítulos"},
    {"lstCompos", "Com&ponentes:",
     "De quiénes son los hidrogramas; sin marcar ninguno: las salidas, las represas y los lagos",
     "Componentes"},
    {"txtTitulo", "&Título:", "Vacío: el del proyecto"},
    {"txtAutor", "A&utor:", "Vacío: el operador de la configuración"},
    {"txtComitente", "C&omitente:", "Para quién se hizo; vacío: no se dice"},
    {"txtLogo", "Lo&go:", "Imagen PNG, JPEG o SVG de la carátula; vacío: sin logo"},
    {"cmdLogo", "&Buscar"},
    {"cmbFormato", "&Formato:"},
    {"cmbPapel", "Pap&el:", "Tamaño de las páginas"},
    {"cmbDecimal", "Signo &decimal:"},
    {"chkImagen", "&Imagen de fondo", "La red se dibuja sobre la imagen del proyecto"},
    {"cmdPlantilla", "Editar la planti&lla",
     "Abre el texto de la memoria en el editor del sistema; la primera vez copia el que trae el programa"},
    {"txtArchivo", "Arc&hivo:", "Donde queda la memoria"},
    {"cmdArchivo", "Exa&minar"},
    {"cmdVista", "&Vista previa", "Muestra las páginas como quedan en el PDF"},
    {"cmdAnterior", "<", "Página anterior"},
    {"cmdSiguiente", ">", "Página siguiente"},
    {"barAvance", "Avance de la memoria"},
    {"CancelButton", "Ca&ncelar", "Deja la memoria sin hacer; el archivo queda como estaba (Esc)"},
    {"cmdHacer", "Hacer la memori&a"},
    {"cmdAbrir", "Abrir el re&sultado", "Abre la memoria hecha con el programa del sistema"},
    {"OKButton", "Cerrar"},
});

struct dlgMemoria {
    bool abierta = false;
    Datos datos{};       ///< without the published cases
    std::string base{};  ///< path and name of the project, ahead of "_memoria.pdf"
    std::string plantilla{};
    std::vector<Capitulo> capitulos{};
    std::vector<bool> conCapitulo{};
    std::vector<std::string> componentes{};  ///< that have a hydrograph
    std::vector<bool> conComponente{};       ///< none: those that a memoria shows by itself
    std::string txtTitulo{}, txtAutor{}, txtComitente{}, txtLogo{}, txtArchivo{};
    std::vector<std::string> formatos{"PDF", "ODT (texto de LibreOffice)", "HTML"}, papeles{"A4", "Carta"},
        decimales{"Coma", "Punto"};
    int formato = 0, papel = 0, decimal = 0;
    bool chkImagen = true;
    std::string lblCorrida{}, lblNota{}, lblFaltas{};
    bool haciendo = false;
    std::string hecha{};  ///< path of the memoria made last; empty: none
};

/// Takes what a memoria is made of. Choices stay where they still can be.
void Toma(dlgMemoria& f, Datos datos, const std::string& base);
/// Takes a template; chapters that were left out stay so. What it has wrong stands in lblFaltas.
void TomaPlantilla(dlgMemoria& f, std::string texto);
/// Whether something has been run.
bool HayCorrida(const dlgMemoria& f);

void lstCapitulos_Tilda(dlgMemoria& f, std::size_t item, bool tildado);
void lstCompos_Tilda(dlgMemoria& f, std::size_t item, bool tildado);
/// Another format: the file gets its ending.
void cmbFormato_Click(dlgMemoria& f, int cual);

/// Keys of the chapters that are left out.
std::vector<std::string> SinCapitulos(const dlgMemoria& f);
/// Leaves chapters out, as far as the template has them.
void PonSinCapitulos(dlgMemoria& f, const std::vector<std::string>& claves);
/// What the user chose, but for the logo's bytes.
Eleccion EleccionDe(const dlgMemoria& f);
/// Slips as lines: "Plantilla, renglón 12: ...".
std::string TextoDeFaltas(const std::vector<Falta>& faltas);

}  // namespace report
