// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Huellas.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/Falla.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view TituloCambiado = "Archivo cambiado";
constexpr std::string_view Cambiado1 = "El archivo ";
constexpr std::string_view Cambiado2 =
    " no es el que este programa leyó o guardó: otro lo ha cambiado. ¿Desea reemplazarlo?";

constexpr std::size_t SinArchivo = 0;

/// The same for every program that looks at the file, be it built otherwise: FNV-1a of 64 bits (Fowler, Noll,
/// Vo; RFC 9923), both halves joined where there is room for one.
std::size_t HuellaDe(std::string_view bytes)
{
    constexpr std::uint64_t Base = 0xcbf29ce484222325, Primo = 0x100000001b3;
    constexpr int Mitad = 32;
    std::uint64_t h = Base;
    for (const char c : bytes)
        h = (h ^ static_cast<unsigned char>(c)) * Primo;
    if constexpr (sizeof(std::size_t) < sizeof h) h = (h >> Mitad) ^ h;
    return std::max(static_cast<std::size_t>(h), SinArchivo + 1);
}

/// What a file holds now; nothing where it can't be read, so that nobody can tell.
std::optional<std::size_t> HuellaEnDisco(const Disco& disco, const std::string& ruta)
{
    try {
        return HuellaDe(disco.Lee(ruta));
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::AccesoRuta) return {};
        return SinArchivo;
    }
}

/// A file that has gone takes nobody's work with it.
bool EsAjeno(const Siro& s, const std::string& ruta)
{
    const std::optional<std::size_t> ahora = HuellaEnDisco(s.Disco, ruta);
    if (!ahora || *ahora == SinArchivo) return false;
    const auto conocida = s.Vigilancia.huellas.find(ruta);
    return conocida == s.Vigilancia.huellas.end() || conocida->second != *ahora;
}

}  // namespace

std::string LeeVigilado(Siro& s, const std::string& ruta)
{
    if (!s.Vigilancia.activa) return s.Disco.Lee(ruta);
    s.Vigilancia.huellas[ruta] = SinArchivo;
    std::string bytes = s.Disco.Lee(ruta);
    AnotaLeido(s, ruta, bytes);
    return bytes;
}

void AnotaLeido(Siro& s, const std::string& ruta, std::string_view bytes)
{
    if (s.Vigilancia.activa) s.Vigilancia.huellas[ruta] = HuellaDe(bytes);
}

void AnotaGuardado(Siro& s, const std::string& ruta)
{
    if (!s.Vigilancia.activa) return;
    if (const auto huella = HuellaEnDisco(s.Disco, ruta)) s.Vigilancia.huellas[ruta] = *huella;
}

bool PuedeGuardar(Siro& s, const std::vector<std::string>& rutas)
{
    if (!s.Vigilancia.activa || s.Proyecto.NombreProyecto.empty()) return true;
    if (!PuedeSerDeDos(s)) return false;
    return std::all_of(rutas.begin(), rutas.end(), [&](const std::string& ruta) {
        return !EsAjeno(s, ruta) ||
               Consulta(s, std::string(Cambiado1).append(ruta).append(Cambiado2), TituloCambiado);
    });
}

std::map<std::string, std::size_t> HuellasDelProyecto(const Siro& s)
{
    const std::string familia = Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto + "_");
    std::map<std::string, std::size_t> suyas;
    for (const auto& [ruta, huella] : s.Vigilancia.huellas)
        if (ruta.starts_with(familia)) suyas[ruta] = huella;
    return suyas;
}

std::vector<std::string> Cambiados(const Disco& disco, const std::map<std::string, std::size_t>& huellas)
{
    std::vector<std::string> cambiados;
    for (const auto& [ruta, huella] : huellas)
        if (HuellaEnDisco(disco, ruta) != huella) cambiados.push_back(ruta);
    return cambiados;
}

}  // namespace model
