// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AnfitrionLote.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <string>
#include <utility>

#include "model/Falla.h"
#include "model/Sistema.h"

namespace batch {
namespace {

constexpr std::string_view TituloPropio = "SIRO";
constexpr std::string_view EntreLineas = " / ";
constexpr std::string_view RespuestaSi = " -> Sí";
constexpr std::string_view RespuestaNo = " -> No";

constexpr std::size_t LargoTrozo = std::size_t{1} << 16;  // bytes of a piece of the Slate's text

constexpr int AnchoBarra = 30;                       // characters between the brackets
constexpr std::string_view BorraLinea = "\r\x1b[K";  // back to the margin, erase to the end of the line

constexpr long IgualesEscritas = 999;  // lines of the same words; the rest are only counted

bool Escribe(std::FILE* archivo, std::string_view texto)
{
    return std::fwrite(texto.data(), 1, texto.size(), archivo) == texto.size() && std::fflush(archivo) == 0;
}

/// CR LF, a lone CR and a lone LF are one line break each.
void AgregaEnUnaLinea(std::string& linea, std::string_view texto)
{
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] != '\r' && texto[i] != '\n') {
            linea += texto[i];
            continue;
        }
        if (texto[i] == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n') ++i;
        linea += EntreLineas;
    }
}

void AgregaDosCifras(std::string& texto, int n)
{
    texto += static_cast<char>('0' + n / 10 % 10);
    texto += static_cast<char>('0' + n % 10);
}

}  // namespace

Salidas SalidasDelProceso()
{
    model::PreparaSalidas();
    const auto estandar = [](std::string_view texto) {
        if (!Escribe(stdout, texto)) throw model::Falla{model::NumeroFalla::AccesoRuta};
    };
    return {estandar, [](std::string_view texto) { Escribe(stderr, texto); }, model::EsTerminal(stderr)};
}

std::string LineaDeAviso(std::string_view titulo, std::string_view texto, std::string_view respuesta)
{
    std::string linea = "[";
    AgregaEnUnaLinea(linea, titulo.empty() ? TituloPropio : titulo);
    linea += "] ";
    AgregaEnUnaLinea(linea, texto);
    linea += respuesta;
    linea += '\n';
    return linea;
}

std::string FechaHoraLocal()
{
    const std::tm t = model::HoraLocal(std::time(nullptr));
    std::string texto;
    AgregaDosCifras(texto, t.tm_mday);
    texto += '/';
    AgregaDosCifras(texto, t.tm_mon + 1);
    texto += '/' + std::to_string(t.tm_year + 1900) + ' ';
    AgregaDosCifras(texto, t.tm_hour);
    texto += ':';
    AgregaDosCifras(texto, t.tm_min);
    texto += ':';
    AgregaDosCifras(texto, t.tm_sec);
    return texto;
}

void TextoPorTrozos::Vacia()
{
    trozos.clear();
    largo = 0;
}

void TextoPorTrozos::Agrega(std::string_view texto)
{
    largo += texto.size();
    while (!texto.empty()) {
        if (trozos.empty() || trozos.back().size() == LargoTrozo) trozos.emplace_back().reserve(LargoTrozo);
        std::string& ultimo = trozos.back();
        const std::string_view cabe = texto.substr(0, LargoTrozo - ultimo.size());
        ultimo += cabe;
        texto.remove_prefix(cabe.size());
    }
}

std::string TextoPorTrozos::Entero() const
{
    std::string texto;
    texto.reserve(largo);
    for (const std::string& trozo : trozos)
        texto += trozo;
    return texto;
}

AnfitrionLote::AnfitrionLote(Salidas unasSalidas, bool pizarraMarcada, bool respondeSi)
    : salidas(std::move(unasSalidas)), marcaPizarra(pizarraMarcada), responde(respondeSi)
{
}

model::Anfitrion AnfitrionLote::Anfitrion()
{
    model::Anfitrion a;
    a.Avisa = [this](const model::Mensaje& m) { Linea(m.titulo, m.texto, {}); };
    a.Pregunta = [this](const model::Mensaje& m) {
        Linea(m.titulo, m.texto, responde ? RespuestaSi : RespuestaNo);
        return responde;
    };
    a.Termina = [] { throw model::FinDelPrograma{EstadoTerminado}; };
    a.FechaHora = FechaHoraLocal;
    a.Reloj = [] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    };
    PonPizarraYAvance(a);
    return a;
}

void AnfitrionLote::PonPizarraYAvance(model::Anfitrion& a)
{
    a.MarcaPizarra = [this] { return marcaPizarra; };
    a.PonMarcaPizarra = [this](bool marca) { marcaPizarra = marca; };
    a.LeePizarra = [this] { return pizarra.Entero(); };
    a.PonPizarra = [this](std::string_view texto) {
        pizarra.Vacia();
        pizarra.Agrega(texto);
    };
    // A run hands over its whole text after each component; only what is new is copied.
    a.AmpliaPizarra = [this](const std::string& texto) {
        pizarra.Agrega(std::string_view(texto).substr(pizarra.Largo()));
    };
    a.AgregaPizarra = [this](std::string_view texto) { pizarra.Agrega(texto); };
    if (!salidas.erroresEsTerminal) return;
    a.TextosAvance = [this](std::string_view primero, std::string_view segundo) {
        if (avanceVisible && porcentaje == porcentajeVisible) return;
        DibujaAvance(primero, segundo);
    };
    a.BarraAvance = [this](int unPorcentaje) { porcentaje = unPorcentaje; };
    a.CierraAvance = [this] { BorraAvance(); };
}

void AnfitrionLote::MuestraPizarra() const
{
    for (const std::string& trozo : pizarra.Trozos())
        salidas.Estandar(trozo);
}

void AnfitrionLote::Linea(std::string_view titulo, std::string_view texto, std::string_view respuesta)
{
    const std::string linea = LineaDeAviso(titulo, texto, respuesta);
    const long esta = ++veces[linea];
    if (esta > IgualesEscritas) {
        if (esta == IgualesEscritas + 1) muchas.push_back(linea);
        return;
    }
    BorraAvance();
    salidas.Errores(linea);
}

void AnfitrionLote::CuentaRepetidas()
{
    for (const std::string& linea : muchas)
        salidas.Errores(linea.substr(0, linea.size() - 1) + " (" +
                        std::to_string(veces[linea] - IgualesEscritas) + " veces más)\n");
    muchas.clear();
    veces.clear();
}

// One drawing per percent: a series' storms may be over faster than a terminal shows them.
void AnfitrionLote::DibujaAvance(std::string_view primero, std::string_view segundo)
{
    const int llenos = std::clamp(porcentaje, 0, 100) * AnchoBarra / 100;
    std::string linea{BorraLinea};
    linea += '[';
    linea.append(static_cast<std::size_t>(llenos), '#');
    linea.append(static_cast<std::size_t>(AnchoBarra - llenos), '.');
    linea += "] " + std::to_string(porcentaje) + " %  ";
    AgregaEnUnaLinea(linea, primero);
    linea += "  ";
    AgregaEnUnaLinea(linea, segundo);
    salidas.Errores(linea);
    avanceVisible = true;
    porcentajeVisible = porcentaje;
}

void AnfitrionLote::BorraAvance()
{
    if (!avanceVisible) return;
    salidas.Errores(BorraLinea);
    avanceVisible = false;
}

}  // namespace batch
