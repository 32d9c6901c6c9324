// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Huellas.h"

#include <algorithm>
#include <cstddef>
#include <functional>
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

std::size_t HuellaDe(std::string_view bytes)
{
    return std::max<std::size_t>(std::hash<std::string_view>{}(bytes), SinArchivo + 1);
}

/// What a file holds now; nothing where it can't be read, so that nobody can tell.
std::optional<std::size_t> HuellaEnDisco(const Siro& s, const std::string& ruta)
{
    try {
        return HuellaDe(s.Disco.Lee(ruta));
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::AccesoRuta) return {};
        return SinArchivo;
    }
}

/// A file that has gone takes nobody's work with it.
bool EsAjeno(const Siro& s, const std::string& ruta)
{
    const std::optional<std::size_t> ahora = HuellaEnDisco(s, ruta);
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
    if (const auto huella = HuellaEnDisco(s, ruta)) s.Vigilancia.huellas[ruta] = *huella;
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

}  // namespace model
