// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/dlgMemoria.h"

#include <algorithm>
#include <utility>

#include "report/Memoria.h"

namespace report {
namespace {

constexpr std::array<std::string_view, 3> Terminaciones{".pdf", ".odt", ".html"};

std::string PropuestoDe(const dlgMemoria& f)
{
    return f.base.empty()
               ? std::string()
               : f.base + "_memoria" + std::string(Terminaciones.at(static_cast<std::size_t>(f.formato)));
}

/// What there is to tell of: the runs, when they were made, what has changed since.
void PonCorrida(dlgMemoria& f)
{
    f.lblCorrida.clear();
    for (const auto& u : {f.datos.tormenta, f.datos.serie})
        if (u != nullptr)
            f.lblCorrida +=
                (f.lblCorrida.empty() ? "" : "\n") + u->sello.tormenta + " (corrida del " + u->cuando + ").";
    if (f.lblCorrida.empty())
        f.lblCorrida = "No hay ninguna corrida: defina la tormenta (F4) y corra el proceso (F5).";
    if (!f.datos.cambios.empty())
        f.lblCorrida += "\nDesde entonces hubo cambios: " + f.datos.cambios + ". La memoria también lo dice.";
}

}  // namespace

void Toma(dlgMemoria& f, Datos datos, const std::string& base)
{
    const std::string propuesto = PropuestoDe(f);
    const bool otra = f.base != base;
    f.datos = std::move(datos);
    f.base = base;
    if (otra || f.txtArchivo.empty() || f.txtArchivo == propuesto) f.txtArchivo = PropuestoDe(f);
    if (otra) f.hecha.clear();
    std::vector<std::string> elegidos;
    for (std::size_t i = 0; i < f.componentes.size() && !otra; ++i)
        if (f.conComponente[i]) elegidos.push_back(f.componentes[i]);
    f.componentes = ComponentesConHidrograma(f.datos);
    f.conComponente.clear();
    for (const std::string& c : f.componentes)
        f.conComponente.push_back(std::find(elegidos.begin(), elegidos.end(), c) != elegidos.end());
    PonCorrida(f);
}

void TomaPlantilla(dlgMemoria& f, std::string texto)
{
    const std::vector<std::string> sin = SinCapitulos(f);
    f.plantilla = std::move(texto);
    f.capitulos = CapitulosDe(f.plantilla);
    PonSinCapitulos(f, sin);
    f.lblFaltas = TextoDeFaltas(LeePlantilla(f.plantilla).faltas);
}

bool HayCorrida(const dlgMemoria& f)
{
    return f.datos.tormenta != nullptr || f.datos.serie != nullptr;
}

void lstCapitulos_Tilda(dlgMemoria& f, std::size_t item, bool tildado)
{
    if (item < f.conCapitulo.size()) f.conCapitulo[item] = tildado;
}

void lstCompos_Tilda(dlgMemoria& f, std::size_t item, bool tildado)
{
    if (item < f.conComponente.size()) f.conComponente[item] = tildado;
}

void cmbFormato_Click(dlgMemoria& f, int cual)
{
    const std::string_view antes = Terminaciones.at(static_cast<std::size_t>(f.formato));
    f.formato = cual;
    if (f.txtArchivo.ends_with(antes))
        f.txtArchivo.replace(f.txtArchivo.size() - antes.size(), antes.size(),
                             Terminaciones.at(static_cast<std::size_t>(cual)));
}

std::vector<std::string> SinCapitulos(const dlgMemoria& f)
{
    std::vector<std::string> sin;
    for (std::size_t i = 0; i < f.capitulos.size(); ++i)
        if (!f.conCapitulo[i]) sin.push_back(f.capitulos[i].clave);
    return sin;
}

void PonSinCapitulos(dlgMemoria& f, const std::vector<std::string>& claves)
{
    f.conCapitulo.clear();
    for (const Capitulo& c : f.capitulos)
        f.conCapitulo.push_back(std::find(claves.begin(), claves.end(), c.clave) == claves.end());
}

Eleccion EleccionDe(const dlgMemoria& f)
{
    Eleccion e{.titulo = f.txtTitulo, .autor = f.txtAutor, .comitente = f.txtComitente};
    e.decimal = f.decimal == 0 ? ',' : '.';
    e.hoja = f.papel == 0 ? Hoja::A4 : Hoja::Carta;
    e.sinCapitulos = SinCapitulos(f);
    for (std::size_t i = 0; i < f.componentes.size(); ++i)
        if (f.conComponente[i]) e.componentes.push_back(f.componentes[i]);
    return e;
}

std::string TextoDeFaltas(const std::vector<Falta>& faltas)
{
    std::string texto;
    for (const Falta& falta : faltas)
        texto += (texto.empty() ? "" : "\n") +
                 (falta.linea > 0 ? "Plantilla, renglón " + std::to_string(falta.linea) : "Plantilla") +
                 ": " + falta.motivo;
    return texto;
}

}  // namespace report
