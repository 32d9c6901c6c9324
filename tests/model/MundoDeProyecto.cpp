// SPDX-License-Identifier: GPL-3.0-or-later
#include "MundoDeProyecto.h"

#include <utility>

#include "model/Falla.h"

using namespace model;

namespace {

std::string MarcaIcono(Icono icono)
{
    switch (icono) {
    case Icono::Exclamacion:
        return "!";
    case Icono::Pregunta:
        return "?";
    case Icono::Ninguno:
        break;
    }
    return "-";
}

}  // namespace

std::string SucesoAviso(const std::string& texto, const std::string& titulo, Icono icono)
{
    return "box " + MarcaIcono(icono) + " [" + titulo + "] " + texto;
}
std::string SucesoPregunta(const std::string& texto, const std::string& titulo, Icono icono)
{
    return "question " + MarcaIcono(icono) + " [" + titulo + "] " + texto;
}
std::string SucesoPide(const std::string& texto, const std::string& titulo, const std::string& defecto)
{
    return "input [" + titulo + "] " + texto + " (" + defecto + ")";
}
std::string SucesoElige(const std::string& titulo, const std::string& filtro)
{
    return "chooser [" + titulo + "] " + filtro;
}
std::string SucesoEtiquetas(const std::string& proyecto, const std::string& titulo)
{
    return "labels " + proyecto + " [" + titulo + "]";
}
std::string SucesoHabilitaGuardarComo()
{
    return "save as enabled";
}
std::string SucesoTermina()
{
    return "end of the program";
}

MundoDeProyecto::MundoDeProyecto()
{
    s.Disco = disco.Puerta();
    s.Anfitrion = Anfitrion();
}

Anfitrion MundoDeProyecto::Anfitrion()
{
    model::Anfitrion a;
    a.Avisa = [this](const Mensaje& m) {
        cajas.push_back(m);
        sucesos.push_back(SucesoAviso(m.texto, m.titulo, m.icono));
    };
    a.Pregunta = [this](const Mensaje& m) {
        sucesos.push_back(SucesoPregunta(m.texto, m.titulo, m.icono));
        return respondeSi;
    };
    a.PideTexto = [this](const Peticion& p) {
        sucesos.push_back(SucesoPide(p.texto, p.titulo, p.defecto));
        alPedir();
        return respuesta;
    };
    a.EligeArchivo = [this](std::string_view titulo, std::string_view filtro) {
        sucesos.push_back(SucesoElige(std::string(titulo), std::string(filtro)));
        alElegir();
        return rutaElegida;
    };
    a.Termina = [this] {
        sucesos.push_back(SucesoTermina());
        if (!terminaVuelve) throw FinDelPrograma{3};
    };
    a.carga_lbl_proyecto = [this] {
        sucesos.push_back(SucesoEtiquetas(s.Proyecto.NombreProyecto, s.frmConfigura.TextProyecto));
    };
    a.HabilitaGuardarComo = [this] { sucesos.push_back(SucesoHabilitaGuardarComo()); };
    return a;
}
