// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "checks/AvisosDeCorrida.h"
#include "checks/ReglasDeAvisos.h"
#include "editor/fichas/dlgCauceEditProp.h"
#include "editor/fichas/dlgUEH2.h"
#include "editor/fichas/dlgUEHsEditTabla.h"
#include "empirical/Formulas.h"
#include "model/Numeros.h"
#include "rainfall/dlgPp.h"
#include "shell/MDIForm1.h"
#include "shell/frmConfigura.h"

// The delivered pages say what the tables of the program say: captions, keys, limits.
namespace shell {
namespace {

std::string Pagina(const char* ventana)
{
    std::ifstream archivo(std::string(SIRO_DATA_DIR "/Ayuda/") + ventana + ".html", std::ios::binary);
    EXPECT_TRUE(archivo.is_open()) << ventana;
    return {std::istreambuf_iterator<char>(archivo), {}};
}

void Dice(const std::string& pagina, const std::string& texto)
{
    EXPECT_NE(pagina.find(texto), std::string::npos) << texto;
}

/// The cell of a table that tells the limits, its unit before it where the field has one.
void DiceLimites(const std::string& pagina, const forms::ReglaNumero& regla)
{
    const std::string limites =
        "<td>" + model::NumeroATexto(regla.minimo) + " a " + model::NumeroATexto(regla.maximo);
    Dice(pagina, regla.unidad.empty() ? limites : "<td>" + std::string(regla.unidad) + "</td>" + limites);
}

std::string SinCola(std::string leyenda)
{
    while (leyenda.ends_with(' ') || leyenda.ends_with('-'))
        leyenda.pop_back();
    return leyenda;
}

TEST(PaginasDeAyuda, LaDeLaPrincipalNombraCadaOrdenDelMenuYSuTecla)
{
    const std::string pagina = Pagina("MDIForm1");
    const std::string teclas = Pagina("teclas");
    for (const FilaMenu& fila : MenuMDIForm1()) {
        if (fila.rutina == nullptr || fila.leyenda.empty()) continue;
        Dice(pagina, SinCola(SinTecla(fila.leyenda)));
        if (fila.tecla.empty()) continue;
        std::string tecla(fila.tecla);
        if (const std::size_t lugar = tecla.find("Shift"); lugar != std::string::npos)
            tecla.replace(lugar, 5, "Mayús");
        Dice(teclas, "<td>" + tecla + "</td>");
    }
}

TEST(PaginasDeAyuda, LosLimitesDeLosCamposSonLosDelPrograma)
{
    const std::string ueh = Pagina("dlgUEH2");
    for (const auto& campo : editor::CamposDlgUEH2)
        DiceLimites(ueh, campo.regla);
    const std::string cauce = Pagina("dlgCauceEditProp");
    for (const auto& campo : editor::CamposDlgCauceEditProp)
        DiceLimites(cauce, campo.regla);
    const std::string lluvia = Pagina("dlgPp");
    for (const rainfall::CampoPp& campo : std::span(rainfall::CamposDeTormenta).first(2))
        DiceLimites(lluvia, {.maximo = campo.regla.maximo});
    const std::string configuracion = Pagina("frmConfigura");
    for (const CampoConfigura& campo : CamposConfigura) {
        if (campo.regla.rechazo == forms::Rechazo::Recorta) continue;
        DiceLimites(configuracion, {.minimo = campo.regla.minimo, .maximo = campo.regla.maximo});
    }
}

TEST(PaginasDeAyuda, LasColumnasEditablesYSusLimitesSonLosDeLasGrillas)
{
    const std::string pagina = Pagina("dlgUEHsEditTabla");
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    model::Siro s;
    s.Anfitrion = anfitrion.Puerta();
    s.Disco = disco.Puerta();
    editor::dlgUEHsEditTabla f;
    editor::Abre(f, s);
    for (const forms::Grilla* grilla : {&f.MSFlexGridEditCauces, &f.MSFlexGridEditUEHs}) {
        ASSERT_FALSE(grilla->reglas->editables.empty());
        for (const forms::ColumnaEditable& limite : grilla->reglas->editables) {
            std::string titulo = grilla->columnas.at(static_cast<std::size_t>(limite.columna)).titulo;
            titulo.erase(0, titulo.find_first_not_of(' '));
            Dice(pagina, "<td>" + SinCola(titulo));
            Dice(pagina, "<td>0 a " + model::NumeroATexto(limite.maximo) + "</td>");
        }
    }
}

/// A text as a page writes it.
std::string EnHtml(std::string_view texto)
{
    std::string escrito;
    for (const char c : texto)
        escrito += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
    return escrito;
}

TEST(PaginasDeAyuda, LosAvisosDeUnaCorridaTienenUnaFilaPorReglaConSusPalabras)
{
    const std::string pagina = Pagina("dlgAvisos");
    for (const checks::ReglaDeAviso& regla : checks::ReglasDeAvisos) {
        const std::string comienzo = "<tr><td>" + std::to_string(regla.numero) + "</td><td>" +
                                     std::string(Nombre(regla.gravedad)) + "</td>";
        const std::size_t lugar = pagina.find(comienzo);
        ASSERT_NE(lugar, std::string::npos) << comienzo;
        EXPECT_EQ(pagina.find("<tr><td>" + std::to_string(regla.numero), lugar + 1), std::string::npos);
        const std::string fila = pagina.substr(lugar, pagina.find("</tr>", lugar) - lugar);
        Dice(fila, EnHtml(regla.que));
        Dice(fila, EnHtml(regla.remedio));
    }
    const std::string limite = model::NumeroATexto(Valor(checks::Umbral::ErrorDeBalance)) + " %";
    Dice(pagina.substr(pagina.find("<tr><td>105")), "más del " + limite);
    Dice(pagina.substr(pagina.find("<tr><td>102")),
         "Más del " + model::NumeroATexto(Valor(checks::Umbral::CortadoAlFinal)) + " %");
}

TEST(PaginasDeAyuda, LasFormulasEmpiricasEstanTodas)
{
    const std::string pagina = Pagina("dlgEmpiricas");
    for (const char* autor :
         {"Creager", "Santi", "Myer", "Scimeni", "Pagliaro", "Gauguillet", "Fanning", "Dickens", "Quijano",
          "Zapata", "Kuickling, ordinarias", "Kuickling, extraordinarias", "Rives", "Valentini", "Gutmann"})
        Dice(pagina, std::string("<td>") + autor);
    for (const auto& formula : empirical::FormulasTc())
        Dice(pagina, "<td>" + std::string(formula.leyenda) + "</td>");
}

}  // namespace
}  // namespace shell
