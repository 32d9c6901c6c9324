// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/MapaDeCorrida.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "model/Numeros.h"

namespace results {

using forms::Pixel;

namespace {

constexpr std::string_view Reproduce = "&Reproducir", Detiene = "&Detener";

std::string Entero(int n)
{
    return model::NumeroATexto(std::int32_t{n});
}

const ComponenteDelMapa* ElDelPico(const RedDeCorrida& red)
{
    const auto mayor = std::max_element(
        red.componentes.begin(), red.componentes.end(),
        [](const ComponenteDelMapa& a, const ComponenteDelMapa& b) { return a.Pico() < b.Pico(); });
    return mayor == red.componentes.end() ? nullptr : &*mayor;
}

void PonTextos(MapaDeCorrida& f)
{
    f.lblTiempo =
        TextoDeTiempo(f.paso * f.red.minutos) + " h   paso " + Entero(f.paso) + " de " + Entero(f.red.pasos);
    f.cmdReproducir = f.corriendo ? Detiene : Reproduce;
}

/// Distance of a point from a straight line between two others.
double Distancia(Pixel p, Pixel a, Pixel b)
{
    const double dx = b.x - a.x, dy = b.y - a.y, largo2 = dx * dx + dy * dy;
    const double t = largo2 > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / largo2, 0., 1.) : 0.;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

bool TocaCauce(const ComponenteDelMapa& c, const VistaDeMapa& v, Pixel en, double alcance)
{
    for (std::size_t j = 1; j < c.linea.size(); ++j)
        if (Distancia(en, v.APixel(c.linea[j - 1]), v.APixel(c.linea[j])) <= alcance) return true;
    return false;
}

}  // namespace

std::string TextoDePaso(const MapaDeCorrida& f, int paso)
{
    return TextoDeTiempo(paso * f.red.minutos) + " h   paso " + Entero(paso) + " de " + Entero(f.red.pasos);
}

int PasoDelPico(const RedDeCorrida& red)
{
    const ComponenteDelMapa* const mayor = ElDelPico(red);
    return mayor == nullptr ? 1 : std::max(1, mayor->pasoPico);
}

void Muestra(MapaDeCorrida& f, RedDeCorrida red, const forms::Procedencia& procedencia)
{
    f.abierta = red.pasos > 0;
    f.red = std::move(red);
    f.escala = EscalaHasta(f.red.Mayor());
    f.procedencia = procedencia;
    f.lblTitulo = procedencia.tema;
    f.corriendo = false;
    f.elegido = -1;
    f.velocidades.clear();
    for (const int v : VelocidadesDelMapa)
        f.velocidades.push_back(Entero(v) + (v == 1 ? " paso/s" : " pasos/s"));
    PonPaso(f, PasoDelPico(f.red));
}

void PonPaso(MapaDeCorrida& f, int paso)
{
    f.paso = std::clamp(paso, 1, std::max(1, f.red.pasos));
    f.deMas = 0;
    PonTextos(f);
}

void cmdReproducir(MapaDeCorrida& f)
{
    f.corriendo = !f.corriendo;
    PonPaso(f, f.corriendo && f.paso >= f.red.pasos ? 1 : f.paso);
}

bool Avanza(MapaDeCorrida& f, double segundos)
{
    if (!f.corriendo) return false;
    const double van = f.deMas + segundos * VelocidadesDelMapa.at(static_cast<std::size_t>(f.velocidad));
    const double enteros = std::floor(van);
    const int antes = f.paso;
    if (enteros >= f.red.pasos - f.paso) {
        f.corriendo = false;
        PonPaso(f, f.red.pasos);
    } else {
        PonPaso(f, f.paso + static_cast<int>(enteros));
        f.deMas = van - enteros;
    }
    return f.paso != antes;
}

void Recorre(MapaDeCorrida& f, int cuantos)
{
    const int n = static_cast<int>(f.red.componentes.size());
    if (n == 0) return;
    const bool ninguno = f.elegido < 0;
    f.elegido = ninguno ? (cuantos > 0 ? 0 : n - 1) : (f.elegido + cuantos + n) % n;
}

std::string Lectura(const MapaDeCorrida& f, int componente)
{
    if (componente < 0 || static_cast<std::size_t>(componente) >= f.red.componentes.size()) return {};
    const ComponenteDelMapa& c = f.red.componentes[static_cast<std::size_t>(componente)];
    if (c.Q.empty()) return c.nombre + "\nsin caudal en esta corrida";
    std::string texto = c.nombre + "\nQ= " + TextoDeCaudal(c.Caudal(f.paso)) +
                        " m3/s en t= " + TextoDeTiempo(f.paso * f.red.minutos) +
                        " h\nQ máx= " + TextoDeCaudal(c.Pico()) + " m3/s";
    if (c.pasoPico > 0)
        texto.append(" en t= ").append(TextoDeTiempo(c.pasoPico * f.red.minutos)).append(" h");
    return texto;
}

std::string Descripcion(const MapaDeCorrida& f)
{
    std::string texto = f.lblTiempo;
    std::string leido = Lectura(f, f.elegido);
    std::replace(leido.begin(), leido.end(), '\n', ';');
    return leido.empty() ? texto : leido + ". " + texto;
}

std::vector<std::string> TextosDeRotulo(const MapaDeCorrida& f, const ComponenteDelMapa& c)
{
    std::vector<std::string> textos;
    const bool conPico = f.chkPicos && c.pasoPico > 0;
    const std::string pico =
        conPico ? TextoDeCaudal(c.Pico()) + " m3/s\n" + TextoDeTiempo(c.pasoPico * f.red.minutos) + " h" : "";
    if (conPico && f.chkNombres) textos.push_back(c.nombre + "\n" + pico);
    if (conPico && !f.chkNombres) textos.push_back(pico);
    if (f.chkNombres) textos.push_back(c.nombre);
    return textos;
}

std::vector<int> OrdenDeRotulos(const MapaDeCorrida& f)
{
    std::vector<int> orden(f.red.componentes.size());
    std::iota(orden.begin(), orden.end(), 0);
    const auto rango = [&](int i) {
        const ComponenteDelMapa& c = f.red.componentes[static_cast<std::size_t>(i)];
        return std::pair(!c.EsCauce(), -c.Pico());
    };
    std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) { return rango(a) < rango(b); });
    return orden;
}

double ParteDe(const MapaDeCorrida& f, const ComponenteDelMapa& c)
{
    return f.escala.Parte(c.Caudal(f.paso));
}

std::optional<Pixel> CentroDe(const ComponenteDelMapa& c, const VistaDeMapa& v)
{
    if (c.linea.empty()) return {};
    if (!c.EsCauce()) return v.APixel(c.linea.front());
    const auto lugar = [&](int j) { return v.APixel(c.linea[static_cast<std::size_t>(j) - 1]); };
    constexpr double Algo = 1e-9;
    const auto medio = forms::MedioDe(static_cast<int>(c.linea.size()), lugar, Algo);
    return medio ? medio->en : v.APixel(c.linea.front());
}

int Bajo(const MapaDeCorrida& f, const VistaDeMapa& v, Pixel en)
{
    constexpr double Holgura = 3;  // of the pointer [pixels]
    for (std::size_t i = f.red.componentes.size(); i-- > 0;) {
        const ComponenteDelMapa& c = f.red.componentes[i];
        if (c.linea.empty()) continue;
        const double parte = ParteDe(f, c);
        const bool toca =
            c.EsCauce() ? TocaCauce(c, v, en, AnchoDeCauce(parte) / 2 + Holgura)
                        : forms::Largo(v.APixel(c.linea.front()), en) <= LadoDeSimbolo(parte) / 2 + Holgura;
        if (toca) return static_cast<int>(i);
    }
    return -1;
}

}  // namespace results
