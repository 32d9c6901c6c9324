// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Inicio.h"

#include <algorithm>
#include <utility>

#include "checks/Sello.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Numeros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace shell {

using model::Siro;

namespace {

constexpr std::string_view CarpetaDeProyectos = "Proyectos";
constexpr std::string_view NombreDeMuestra = "Quelmar";
constexpr std::string_view CarpetaDeAyuda = "Ayuda";
constexpr std::string_view PaginaDelTutorial = "tutorial.html";
constexpr std::string_view Entre = " · ";

bool SePuedeLeer(const model::Disco& disco, const std::string& ruta)
{
    return !ruta.empty() && model::Sentencia([&] { disco.Lee(ruta); });
}

/// Folder and file name of a path.
std::pair<std::string, std::string> Partida(const std::string& ruta)
{
    const std::size_t ultimo = ruta.rfind(model::Separador);
    if (ultimo == std::string::npos) return {{}, ruta};
    return {ruta.substr(0, ultimo), ruta.substr(ultimo + 1)};
}

std::string Cuantos(int n, std::string_view uno, std::string_view varios)
{
    return model::NumeroATexto(std::int32_t{n}) + " " + std::string(n == 1 ? uno : varios);
}

Paso PasoConfiguracion(const Siro& s)
{
    const model::ControlesConfigura& c = s.frmConfigura;
    Paso paso{{"1. Configuración", "Falta guardarla"}, EstadoPaso::Falta, "mnuOpcionesConfigurar"};
    if (ConfEnMano(s).empty()) return paso;
    paso.estado = EstadoPaso::Hecho;
    paso.entrada.detalle = c.TextProyecto.empty() ? "Sin título" : c.TextProyecto;
    paso.entrada.detalle.append(Entre).append(c.TextCuenca.empty() ? "sin cuenca" : c.TextCuenca);
    return paso;
}

Paso PasoRed(const RedGuardada& red)
{
    Paso paso{{"2. Red", "Falta dibujarla: todavía no tiene componentes"}, EstadoPaso::Falta, "mnufrmUEHs"};
    if (red == RedGuardada{}) return paso;
    std::string texto = Cuantos(red.UEHs, "UEH", "UEHs");
    texto += ", " + Cuantos(red.cauces, "cauce", "cauces");
    if (red.represas > 0) texto += ", " + Cuantos(red.represas, "represa", "represas");
    if (red.lagos > 0) texto += ", " + Cuantos(red.lagos, "lago", "lagos");
    paso.entrada.detalle = texto;
    if (red.UEHs == 0)
        paso.entrada.detalle = "Falta una UEH: " + texto;
    else
        paso.estado = EstadoPaso::Hecho;
    return paso;
}

bool HayTormenta(const Siro& s)
{
    const model::Tormenta& t = s.Tormenta;
    if (t.FormaPp == model::FormaLluvia::SeriePDR) return s.Serie.NroSeriePDR >= 1;
    return t.DurTormenta > 0 && (t.PpTormenta > 0 || t.FormaPp == model::FormaLluvia::PorUEH);
}

Paso PasoTormenta(const Siro& s)
{
    if (!HayTormenta(s)) return {{"3. Tormenta", "Falta elegirla"}, EstadoPaso::Falta, "mnufrmPp"};
    return {{"3. Tormenta", checks::TormentaEnMano(s)}, EstadoPaso::Hecho, "mnufrmPp"};
}

Paso PasoCorrida(const Siro& s, const CorridaHecha& corrida)
{
    const bool serie = s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR;
    Paso paso{{"4. Corrida", "Falta: todavía no se ha corrido"},
              EstadoPaso::Falta,
              serie ? "mnuCorre2" : "mnuCorre1"};
    if (!corrida.hay || corrida.deOtro) return paso;
    if (!corrida.difiere.empty()) {
        paso.estado = EstadoPaso::Repetir;
        paso.entrada.detalle = "Hay que repetirla: " + corrida.difiere;
        return paso;
    }
    paso.estado = EstadoPaso::Hecho;
    paso.entrada.detalle = corrida.cuando;
    if (!corrida.avisos.empty()) paso.entrada.detalle.append(Entre).append(corrida.avisos);
    return paso;
}

}  // namespace

void AnotaReciente(std::vector<ProyectoReciente>& lista, const ProyectoReciente& proyecto)
{
    std::erase_if(lista, [&](const ProyectoReciente& otro) { return otro.ruta == proyecto.ruta; });
    lista.insert(lista.begin(), proyecto);
    if (lista.size() > MaximoRecientes) lista.resize(MaximoRecientes);
}

std::string ConfEnMano(const Siro& s)
{
    if (s.Proyecto.NombreProyecto.empty()) return {};
    std::string ruta = model::Ruta(s.Proyecto.DirProyecto, model::ArchivoConf(s.Proyecto.NombreProyecto));
    return SePuedeLeer(s.Disco, ruta) ? ruta : std::string{};
}

Entrada EntradaDe(const model::Disco& disco, const ProyectoReciente& proyecto)
{
    auto [carpeta, nombre] = Partida(proyecto.ruta);
    if (nombre.ends_with(model::TerminacionConf))
        nombre.resize(nombre.size() - model::TerminacionConf.size());
    if (!SePuedeLeer(disco, proyecto.ruta)) return {nombre, "No está en " + carpeta, false};
    std::string detalle;
    for (const std::string& parte : {proyecto.cuando, proyecto.cuenca, carpeta})
        if (!parte.empty()) detalle.append(detalle.empty() ? "" : Entre).append(parte);
    return {nombre, detalle, true};
}

std::string ProyectoDeMuestra(const Siro& s)
{
    std::string ruta = model::Ruta(model::Ruta(s.Proyecto.DirTrabajo, CarpetaDeProyectos),
                                   model::ArchivoConf(std::string(NombreDeMuestra)));
    return SePuedeLeer(s.Disco, ruta) ? ruta : std::string{};
}

bool HayTutorial(const Siro& s)
{
    return SePuedeLeer(s.Disco,
                       model::Ruta(model::Ruta(s.Proyecto.DirTrabajo, CarpetaDeAyuda), PaginaDelTutorial));
}

RedGuardada RedEnDisco(const Siro& s)
{
    Siro aparte;
    aparte.Disco = s.Disco;
    aparte.Proyecto = s.Proyecto;
    model::Sentencia([&] { model::LeeUEHs(aparte); });
    const model::Red& red = aparte.Red;
    return {red.NroUEHs(), red.NroCauces(), red.NroRepresas(), red.NroLagos()};
}

std::vector<Paso> PasosDelProyecto(const Siro& s, const RedGuardada& red, const CorridaHecha& corrida)
{
    return {PasoConfiguracion(s), PasoRed(red), PasoTormenta(s), PasoCorrida(s, corrida)};
}

}  // namespace shell
