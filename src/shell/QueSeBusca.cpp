// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <set>
#include <type_traits>

#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Componentes.h"
#include "model/Siro.h"
#include "shell/Busca.h"

// What the search of the main window offers, kind by kind.
namespace shell {

using model::Siro;

namespace {

constexpr std::string_view DondeEstaLaAyuda = "Ayuda";
constexpr std::string_view PrimeraPagina = "indice.html";

/// Why an entry of the menu is greyed.
struct FilaMotivo {
    Variable variable;
    std::string_view motivo;
};
constexpr auto Motivos = std::to_array<FilaMotivo>({
    {Variable::mnuGuardarProyectoComo, "Todavía no se abrió un proyecto."},
    {Variable::mnu_prueba_funcionesSHVrepresas, "Todavía no se leyó una red con represas."},
    {Variable::mnu_prueba_funcionesHQrepresas, "Todavía no se leyó una red con represas."},
});

std::string MotivoDe(const MDIForm1& f, Variable variable)
{
    if (variable == Variable::Ninguna || f.Estado(variable).habilitada) return {};
    const auto* const fila =
        std::ranges::find_if(Motivos, [&](const FilaMotivo& m) { return m.variable == variable; });
    return fila == Motivos.end() ? "Por ahora no se puede." : std::string(fila->motivo);
}

std::string SinCola(std::string texto)
{
    while (texto.ends_with(' ') || texto.ends_with('-'))
        texto.pop_back();
    return texto;
}

/// Keys as they are called in Spanish.
std::string EnTeclado(std::string tecla)
{
    constexpr std::string_view Shift = "Shift";
    const std::size_t lugar = tecla.find(Shift);
    if (lugar != std::string::npos) tecla.replace(lugar, Shift.size(), "Mayús");
    return tecla;
}

/// Name of a kind of component.
constexpr std::string_view NombreDe(model::Clase clase)
{
    constexpr std::array<std::string_view, 4> nombres = {"UEH", "Cauce", "Lago", "Represa"};
    return nombres.at(static_cast<std::size_t>(clase));
}

void AgregaComponentes(std::vector<Candidato>& lista, const model::Red& red, const IrAComponente& ir)
{
    const std::set<std::string> corridos(ir.corridos.begin(), ir.corridos.end());
    std::vector<Candidato> hidrogramas;
    model::CadaComponente(red, [&](const auto& componente) {
        const std::string nombre = model::Nombre(componente);
        if (nombre.empty()) return;
        constexpr model::Clase clase = model::DeClase<std::remove_cvref_t<decltype(componente)>>::clase;
        lista.push_back({.texto = nombre,
                         .clase = std::string(NombreDe(clase)),
                         .clave = "componente " + nombre,
                         .hace = [va = ir.propiedades, nombre] { va(nombre); }});
        if (corridos.contains(nombre))
            hidrogramas.push_back({.texto = nombre,
                                   .clase = "Hidrograma",
                                   .clave = "hidrograma " + nombre,
                                   .turno = 1,
                                   .hace = [va = ir.hidrograma, nombre] { va(nombre); }});
    });
    std::ranges::move(hidrogramas, std::back_inserter(lista));
}

}  // namespace

std::vector<Candidato> DelMenu(const MDIForm1& f, const std::function<void(Rutina)>& orden)
{
    std::vector<Candidato> lista;
    const std::span<const FilaMenu> menu = MenuMDIForm1();
    for (const FilaMenu& fila : menu) {
        const bool ultimo = fila.variable == Variable::mnu_ultimoarchivo1;
        const std::string texto = ultimo ? f.Estado(fila.variable).leyenda : SinTecla(fila.leyenda);
        if (fila.rutina == nullptr || texto.empty()) continue;
        const auto padre = std::ranges::find(menu, fila.padre, &FilaMenu::nombre);
        lista.push_back({.texto = SinCola(texto),
                         .clase = "Menú " + SinTecla(padre->leyenda),
                         .detalle = EnTeclado(std::string(fila.tecla)),
                         .clave = "menu " + std::string(fila.nombre),
                         .motivo = MotivoDe(f, fila.variable),
                         .hace = [orden, rutina = fila.rutina] { orden(rutina); }});
    }
    return lista;
}

std::vector<Candidato> DeComponentes(const Siro& s, const IrAComponente& ir)
{
    std::vector<Candidato> lista;
    if (s.Proyecto.NombreProyecto.empty()) return lista;
    AgregaComponentes(lista, s.Red, ir);
    if (!lista.empty()) return lista;
    Siro aparte;
    aparte.Disco = s.Disco;
    aparte.Proyecto = s.Proyecto;
    model::Sentencia([&] { model::LeeUEHs(aparte); });
    AgregaComponentes(lista, aparte.Red, ir);
    return lista;
}

std::vector<Candidato> DeAyuda(const Siro& s, const std::function<void(const std::string& ruta)>& abre)
{
    std::vector<Candidato> lista;
    const std::string carpeta = model::Ruta(s.Proyecto.DirTrabajo, DondeEstaLaAyuda);
    std::string indice;
    model::Sentencia([&] { indice = s.Disco.Lee(model::Ruta(carpeta, PrimeraPagina)); });
    constexpr std::string_view Enlace = "<a href=\"", TrasPagina = "\">", TrasTitulo = "</a>";
    const auto hasta = [&](std::size_t desde, std::string_view fin) {
        const std::size_t lugar = indice.find(fin, desde);
        return indice.substr(desde, lugar - desde);
    };
    for (std::size_t i = indice.find(Enlace); i != std::string::npos; i = indice.find(Enlace, i)) {
        i += Enlace.size();
        const std::string pagina = hasta(i, "\"");
        const std::string titulo = hasta(i + pagina.size() + TrasPagina.size(), TrasTitulo);
        if (pagina.find_first_of("#:") != std::string::npos) continue;
        lista.push_back({.texto = titulo,
                         .clase = "Ayuda",
                         .clave = "ayuda " + pagina,
                         .turno = 2,
                         .hace = [abre, ruta = model::Ruta(carpeta, pagina)] { abre(ruta); }});
    }
    return lista;
}

std::vector<Candidato> DeRecientes(const model::Disco& disco, const std::vector<ProyectoReciente>& lista,
                                   const std::function<void(const std::string& ruta)>& abre)
{
    std::vector<Candidato> candidatos;
    for (const ProyectoReciente& proyecto : lista) {
        const Entrada entrada = EntradaDe(disco, proyecto);
        candidatos.push_back({.texto = entrada.titulo,
                              .clase = "Proyecto",
                              .detalle = entrada.habilitada ? entrada.detalle : std::string{},
                              .clave = "proyecto " + proyecto.ruta,
                              .motivo = entrada.habilitada ? std::string{} : entrada.detalle + ".",
                              .hace = [abre, ruta = proyecto.ruta] { abre(ruta); }});
    }
    return candidatos;
}

}  // namespace shell
