// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/frmPp.h"

#include <algorithm>

#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace results {

using model::Siro;

namespace {

constexpr std::string_view DesdeElPrincipio = "Se llegó al final; sigue desde el principio";
constexpr std::string_view DesdeElFinal = "Se llegó al principio; sigue desde el final";
constexpr std::string_view NoEsta = "No se encuentra";

/// Small letters for capital ones, A to Z and the accented ones of Western languages (U+00C0 to U+00DE, in
/// UTF-8 a byte C3 and one more), so that every byte keeps its place.
std::string EnMinusculas(std::string_view texto)
{
    constexpr char Guia = '\xC3', PrimeraAcentuada = '\x80', UltimaAcentuada = '\x9E', Por = '\x97';
    constexpr int Distancia = 0x20;
    std::string minusculas(texto);
    char anterior = 0;
    for (char& c : minusculas) {
        const bool acentuada = anterior == Guia && c >= PrimeraAcentuada && c <= UltimaAcentuada && c != Por;
        anterior = c;
        if ((c >= 'A' && c <= 'Z') || acentuada) c = static_cast<char>(c + Distancia);
    }
    return minusculas;
}

/// Where a stretch of bytes stands.
Hallazgo Lugar(std::string_view texto, std::size_t desde, std::size_t bytes)
{
    const std::string_view antes = texto.substr(0, desde);
    const std::size_t salto = antes.rfind('\n');
    const std::size_t inicio = salto == std::string_view::npos ? 0 : salto + 1;
    return {static_cast<std::size_t>(std::count(antes.begin(), antes.end(), '\n')),
            model::CuentaCaracteres(antes.substr(inicio)),
            model::CuentaCaracteres(texto.substr(desde, bytes))};
}

/// Shows what a search gave; npos: nothing.
void Concluye(frmPp& f, std::size_t desde, std::string_view aviso)
{
    Busqueda& b = f.busqueda;
    ++b.veces;
    if (desde == std::string::npos) {
        b.hallado = {};
        b.aviso = NoEsta;
        return;
    }
    b.desde = desde;
    b.hallado = Lugar(f.Text1, desde, b.buscado.size());
    b.aviso = aviso;
}

/// Nothing to look for: nothing is selected and nothing told.
bool SinBuscado(frmPp& f)
{
    if (!f.busqueda.buscado.empty()) return false;
    f.busqueda.hallado = {};
    f.busqueda.aviso.clear();
    return true;
}

/// The first place from a byte on, or else from the beginning.
void BuscaDesde(frmPp& f, std::size_t desde)
{
    if (SinBuscado(f)) return;
    const std::string texto = EnMinusculas(f.Text1), buscado = EnMinusculas(f.busqueda.buscado);
    const std::size_t lugar = texto.find(buscado, desde);
    if (lugar != std::string::npos) return Concluye(f, lugar, "");
    Concluye(f, texto.find(buscado), DesdeElPrincipio);
}

}  // namespace

void Abre(frmPp& f, Siro& s)
{
    f.abierta = true;
    s.Control.SalidaPizarra = true;
    s.Anfitrion.PonMarcaPizarra(true);
}

void Cierra(frmPp& f, Siro& s)
{
    if (!f.abierta) return;
    f.abierta = false;
    s.Control.SalidaPizarra = false;
    s.Anfitrion.PonMarcaPizarra(false);
}

void cmdCerrar(frmPp& f, Siro& s)
{
    Cierra(f, s);
}

void PonTexto(frmPp& f, std::string_view texto)
{
    ++f.reemplazos;
    f.Text1.clear();
    f.caracteres = 0;
    f.busqueda.desde = 0;
    f.busqueda.hallado = {};
    f.busqueda.aviso.clear();
    AgregaTexto(f, texto);
}

void AgregaTexto(frmPp& f, std::string_view texto)
{
    f.Text1 += texto;
    f.caracteres += model::CuentaCaracteres(texto);
}

void AmpliaTexto(frmPp& f, std::string_view texto)
{
    if (texto.size() < f.Text1.size()) return PonTexto(f, texto);
    AgregaTexto(f, texto.substr(f.Text1.size()));
}

std::string RotuloLargo(const frmPp& f)
{
    return model::NumeroATexto(static_cast<std::int32_t>(f.caracteres)) + " caracteres";
}

void GuardaTexto(const frmPp& f, const Siro& s)
{
    const std::string ruta = s.Anfitrion.EligeDestino(TituloGuardaPizarra, FiltroTexto, NombrePizarra);
    if (ruta.empty()) return;
    model::Sentencia([&] { s.Disco.Escribe(ruta, model::AWindows1252(f.Text1)); }, model::AvisaArchivo(s));
}

void AbreBusqueda(frmPp& f, std::string_view seleccionado)
{
    f.busqueda.abierta = true;
    if (seleccionado.empty() || seleccionado.find('\n') != std::string_view::npos) return;
    f.busqueda.buscado = seleccionado;
}

void CierraBusqueda(frmPp& f)
{
    f.busqueda.abierta = false;
    f.busqueda.aviso.clear();
}

void txtBuscar_Change(frmPp& f, std::string_view texto)
{
    f.busqueda.buscado = texto;
    BuscaDesde(f, f.busqueda.desde);
}

void BuscaSiguiente(frmPp& f)
{
    BuscaDesde(f, f.busqueda.hallado.largo == 0 ? f.busqueda.desde : f.busqueda.desde + 1);
}

void BuscaAnterior(frmPp& f)
{
    if (SinBuscado(f)) return;
    const std::string texto = EnMinusculas(f.Text1), buscado = EnMinusculas(f.busqueda.buscado);
    if (f.busqueda.desde > 0) {
        const std::size_t lugar = texto.rfind(buscado, f.busqueda.desde - 1);
        if (lugar != std::string::npos) return Concluye(f, lugar, "");
    }
    Concluye(f, texto.rfind(buscado), DesdeElFinal);
}

}  // namespace results
